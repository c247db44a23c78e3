// Masks of numbers: their check, and the format text by which the number renderer shows them.
#include "engine/mask/number_mask.h"

#include <utility>

#include "engine/mask/mask_checks.h"
#include "engine/mask/mask_items.h"
#include "engine/services.h"

namespace zte {

namespace {

// The walk over a number mask: what has been seen so far decides what may come.
class NumberMaskWalk {
public:
    explicit NumberMaskWalk(const Settings& settings) : settings_(settings) {}

    // Goes on to what follows the characters at the mask, which are one item. The ZTM_ value of it.
    int32_t Take(const Char*& mask)
    {
        const Char* item = mask;
        const bool isSymbol = *item != '~' && !IsDigitPlace(*item) && BeginsWith(item, settings_.currencySymbol);
        mask += isSymbol ? TextLength(settings_.currencySymbol) : *item == '~' ? 2 : 1;
        if (IsDigitPlace(*item))
            return TakeDigitPlace();
        if (*item == '~')
            return IsBadEscape(item) ? ZTM_ESCAPE : body_ ? ZTM_OUT_OF_PLACE : ZTM_FITS;
        return isSymbol ? TakeCurrency() : TakeOther(*item);
    }

private:
    static bool IsDigitPlace(Char c) { return c == '#' || c == '0'; }

    int32_t TakeDigitPlace()
    {
        body_ = true;
        return percent_ ? ZTM_OUT_OF_PLACE : ZTM_FITS;
    }

    // An empty symbol fits anywhere, and so refuses every mask with more than placeholders; kept.
    int32_t TakeCurrency()
    {
        const int32_t verdict = currency_ ? ZTM_TWICE : body_ ? ZTM_OUT_OF_PLACE : ZTM_FITS;
        currency_ = body_ = true;
        return verdict;
    }

    int32_t TakeOther(Char c)
    {
        if (c == '\'' || c == '"')
            return ZTM_OUT_OF_PLACE;
        if (c == settings_.decimalChar)
            return std::exchange(decimal_, true) ? ZTM_TWICE : ZTM_FITS;
        if (c == settings_.thousandChar)
            return decimal_ ? ZTM_OUT_OF_PLACE : ZTM_FITS;
        if (c == '%')
            return std::exchange(percent_, true) ? ZTM_TWICE : currency_ ? ZTM_OUT_OF_PLACE : ZTM_FITS;
        return body_ ? ZTM_OUT_OF_PLACE : ZTM_FITS;
    }

    const Settings& settings_;
    bool body_ = false;
    bool currency_ = false;
    bool decimal_ = false;
    bool percent_ = false;
};

bool CanBeRendered(const Text& mask, const Settings& settings)
{
    services::NumberFormat format;
    return services::CompileFormat(format, DisplayFormatText(mask, settings));
}

// The item up to which the mask cannot be rendered: the one behind the longest part of it that can.
MaskVerdict FaultOfFormat(const Text& mask, const Settings& settings)
{
    for (size_t length = mask.size(); length-- > 0;)
        if (CanBeRendered(mask.substr(0, length), settings))
            return {ZTM_OUT_OF_PLACE, static_cast<int32_t>(length)};
    return {ZTM_NO_DIGIT, Length(mask)};
}

// Item by item, without a look at what the renderer takes.
MaskVerdict WalkOver(const Text& mask, const Settings& settings)
{
    NumberMaskWalk walk(settings);
    for (const Char* at = mask.c_str(); *at;) {
        const auto offset = static_cast<int32_t>(at - mask.c_str());
        const int32_t reason = walk.Take(at);
        if (reason != ZTM_FITS)
            return {reason, offset};
    }
    return {};
}

bool IsSeparator(Char c)
{
    return c == '.' || c == ',' || c == '%';
}

bool IsPlaceholder(Char c)
{
    return c == '#' || c == '0';
}

// A symbol of nothing but placeholders is no symbol: it could not be told from the number.
bool IsSymbol(const Text& symbol)
{
    for (const Char c : symbol)
        if (!IsPlaceholder(c))
            return true;
    return false;
}

int32_t FindSymbolBefore(const Text& mask, const Text& symbol)
{
    for (int32_t at = 0; at < Length(mask); ++at) {
        if (BeginsWith(mask.c_str() + at, symbol.c_str()))
            return at;
        if (IsPlaceholder(At(mask, at)))
            return -1;
        at += At(mask, at) == '~' ? 1 : 0;
    }
    return -1;
}

int32_t FindSymbolBehind(const Text& mask, const Text& symbol)
{
    const int32_t at = Length(mask) - Length(symbol);
    return at > 0 && BeginsWith(mask.c_str() + at, symbol.c_str()) ? at : -1;
}

// Where the currency symbol stands in a mask, before the number or behind it; -1 when it does not.
int32_t FindSymbol(const Text& mask, const Text& symbol)
{
    if (!IsSymbol(symbol))
        return -1;
    const int32_t before = FindSymbolBefore(mask, symbol);
    return before >= 0 ? before : FindSymbolBehind(mask, symbol);
}

// Literal to the renderer whatever the characters are.
Text EscapedText(const Text& literal)
{
    Text escaped;
    for (const Char c : literal) {
        if (IsPlaceholder(c) || IsSeparator(c) || c == '\\')
            escaped += Char{'\\'};
        escaped += c;
    }
    return escaped;
}

const Char* BehindEscape(const Char* mask)
{
    return mask[1] ? mask + 2 : mask + 1;
}

}  // namespace

MaskVerdict CheckNumberMask(const Text& mask, const Settings& settings)
{
    if (Length(mask) > kMaxMaskLength)
        return {ZTM_TOO_LONG, kMaxMaskLength};
    const MaskVerdict verdict = WalkOver(mask, settings);
    const Text before = verdict ? mask : mask.substr(0, static_cast<size_t>(verdict.offset));
    if (CanBeRendered(before, settings))
        return verdict;
    const MaskVerdict fault = FaultOfFormat(before, settings);
    return !verdict && fault.reason == ZTM_NO_DIGIT ? verdict : fault;
}

Text DisplayFormatText(const Text& mask, const Settings& settings)
{
    const Text symbol = settings.currencySymbol;
    const Char* symbolAt = mask.c_str() + FindSymbol(mask, symbol);
    Text format;
    for (const Char* at = mask.c_str(); *at;) {
        if (at == symbolAt) {
            format += EscapedText(symbol);
            at += symbol.size();
        } else if (*at == '~') {
            format += Char{'\\'};
            format.append(at + 1, BehindEscape(at));
            at = BehindEscape(at);
        } else {
            format += *at++;
        }
    }
    return format;
}

Text WithUnitsForced(Text format)
{
    size_t units = Text::npos;
    for (size_t at = 0; at < format.size(); ++at) {
        if (format[at] == '#')
            units = at;
        at += format[at] == '\\' ? 1 : 0;
    }
    if (units != Text::npos)
        format[units] = '0';
    return format;
}

bool HasLiterals(const Text& mask, int32_t dataType, const Settings& settings)
{
    const Text symbol = settings.currencySymbol;
    const Char* symbolAt = mask.c_str() + FindSymbol(mask, symbol);
    for (const Char* at = mask.c_str(); *at;) {
        if (at == symbolAt)
            at += symbol.size();
        else if (IsSeparator(*at) || IsMaskItem(*at, dataType))
            ++at;
        else
            return true;
    }
    return false;
}

}  // namespace zte
