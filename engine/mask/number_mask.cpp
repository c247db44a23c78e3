// Masks of numbers: their check, and the format text by which the number renderer shows them.
#include "engine/mask/number_mask.h"

#include "engine/mask/mask_checks.h"
#include "engine/mask/mask_items.h"
#include "engine/services.h"

namespace zte {

namespace {

// The walk over a number mask: what has been seen so far decides what may come.
class NumberMaskWalk {
public:
    explicit NumberMaskWalk(const Settings& settings) : settings_(settings) {}

    // Takes the character at mask and returns what follows it; null refuses the mask.
    const Char* Take(const Char* mask)
    {
        const Char c = *mask;
        if (c == '#' || c == '0') {
            body_ = true;
            return percent_ ? nullptr : mask + 1;
        }
        if (c == '~')
            return body_ || IsBadEscape(mask) ? nullptr : mask + 2;
        if (BeginsWith(mask, settings_.currencySymbol))
            return TakeCurrency() ? mask + TextLength(settings_.currencySymbol) : nullptr;
        return TakeOther(c) ? mask + 1 : nullptr;
    }

private:
    // An empty symbol fits anywhere, and so refuses every mask with more than placeholders; kept.
    bool TakeCurrency()
    {
        const bool taken = !body_;
        currency_ = body_ = true;
        return taken;
    }

    bool TakeOther(Char c)
    {
        if (c == '\'' || c == '"')
            return false;
        if (c == settings_.decimalChar) {
            const bool taken = !decimal_;
            decimal_ = true;
            return taken;
        }
        if (c == settings_.thousandChar)
            return !decimal_;
        if (c == '%') {
            const bool taken = !percent_ && !currency_;
            percent_ = true;
            return taken;
        }
        return !body_;
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

bool CheckNumberMask(const Text& mask, const Settings& settings)
{
    if (Length(mask) > kMaxMaskLength)
        return false;
    NumberMaskWalk walk(settings);
    for (const Char* at = mask.c_str(); *at;) {
        at = walk.Take(at);
        if (!at)
            return false;
    }
    return CanBeRendered(mask, settings);
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
