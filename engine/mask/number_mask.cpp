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
        const bool taken = !currency_ && !body_;
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

bool CanBeRendered(const Text& mask)
{
    services::NumberFormat format;
    return services::CompileFormat(format, DisplayFormatText(mask, DT_NUMBER));
}

bool IsSeparator(Char c)
{
    return c == '.' || c == ',' || c == '%';
}

const Char* EndOfLiterals(const Char* mask, int32_t dataType)
{
    while (*mask && !IsMaskItem(*mask, dataType))
        ++mask;
    return mask;
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
    return CanBeRendered(mask);
}

Text DisplayFormatText(const Text& mask, int32_t dataType)
{
    Text format;
    for (const Char* at = mask.c_str(); *at;) {
        if (*at == '~') {
            format += Char{'\\'};
            format.append(at + 1, BehindEscape(at));
            at = BehindEscape(at);
        } else if (IsSeparator(*at) || IsMaskItem(*at, dataType)) {
            format += *at++;
        } else {
            const Char* end = EndOfLiterals(at, dataType);
            format.append(at, end);
            at = end;
        }
    }
    return format;
}

bool HasLiterals(const Text& mask, int32_t dataType, const Settings& settings)
{
    const size_t symbol = TextLength(settings.currencySymbol);
    for (const Char* at = mask.c_str(); *at;) {
        if (*at == '~')
            return true;
        if (IsSeparator(*at) || IsMaskItem(*at, dataType))
            ++at;
        else if (symbol > 0 && BeginsWith(at, settings.currencySymbol))
            at += symbol;
        else
            return true;
    }
    return false;
}

int32_t FirstPlaceholderPos(const Text& mask, int32_t dataType)
{
    int32_t position = 0;
    for (const Char* at = mask.c_str(); *at && !IsMaskItem(*at, dataType); ++position)
        at = *at == '~' ? BehindEscape(at) : at + 1;
    return position;
}

int32_t CountDecimalPlaces(const Text& mask)
{
    const int32_t point = Find(mask, '.');
    if (point < 0)
        return 0;
    int32_t places = 0;
    while (At(mask, point + 1 + places) == '0' || At(mask, point + 1 + places) == '#')
        ++places;
    return places;
}

}  // namespace zte
