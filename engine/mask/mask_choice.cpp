// Which mask a control gets: the one given, what a keyword stands for, or the default of the type.
#include "engine/mask/mask_choice.h"

#include <optional>

#include "engine/mask/currency_mask.h"
#include "engine/mask/mask_checks.h"
#include "engine/mask/picture.h"
#include "engine/text/ascii.h"
#include "ztvalues.h"

namespace zte {

namespace {

using Expansion = std::optional<Text>;  // none: the keyword failed

Expansion Expand(const Picture& picture)
{
    return picture.status == PictureStatus::Ok ? Expansion(picture.mask) : std::nullopt;
}

Expansion ExpandDate(const Settings& settings)
{
    return Expand(DatePictureToMask(settings, kMaxMaskLength));
}
Expansion ExpandTime(const Settings& settings)
{
    return Expand(TimePictureToMask(settings, kMaxMaskLength));
}

Expansion ExpandDateTime(const Settings& settings)
{
    const Expansion date = ExpandDate(settings);
    if (!date)
        return std::nullopt;
    const Expansion time = Expand(TimePictureToMask(settings, kMaxMaskLength - 1 - Length(*date)));
    if (!time)
        return std::nullopt;
    return *date + Char{' '} + *time;
}

// "[currency(n)": the count of digits stands in the first parentheses behind the keyword.
Expansion ExpandCurrency(const Text& keyword, const Settings& settings)
{
    constexpr size_t kLongestCount = 19;
    constexpr int16_t kMostDigits = 16;
    const size_t open = keyword.find(Char{'('});
    const size_t close = keyword.find(Char{')'}, open);  // none where nothing opens
    if (close == Text::npos || close - open - 1 > kLongestCount)
        return std::nullopt;
    const auto digits = static_cast<int16_t>(IntegerOf(keyword.c_str() + open + 1));
    if (digits > kMostDigits)
        return std::nullopt;
    const Text mask = BuildCurrencyMask(digits, settings);
    return mask.empty() ? std::nullopt : Expansion(mask);
}

struct Keyword {
    const char* text;  // lower case
    Expansion (*expand)(const Settings&);
};

constexpr Keyword kKeywords[] = {
    {"[date]",        ExpandDate    },
    {"[time]",        ExpandTime    },
    {"[date] [time]", ExpandDateTime},
};
constexpr char kCurrencyKeyword[] = "[currency";  // in this case only, unlike the others; kept

bool EqualsInAnyCase(const Char* text, const char* lower)
{
    for (; *lower; ++lower, ++text)
        if (AsciiUpper(*text) != AsciiUpper(static_cast<Char>(*lower)))
            return false;
    return *text == Char{};
}

const Keyword* FindKeyword(const Char* mask)
{
    for (const Keyword& keyword : kKeywords)
        if (EqualsInAnyCase(mask, keyword.text))
            return &keyword;
    return nullptr;
}

Expansion ExpandKeyword(const Text& mask, const Settings& settings)
{
    if (const Keyword* keyword = FindKeyword(mask.c_str()))
        return keyword->expand(settings);
    return BeginsWith(mask.c_str(), kCurrencyKeyword) ? ExpandCurrency(mask, settings) : std::nullopt;
}

// A keyword that nothing could be made of is read as a mask; where it is none, the keyword was meant.
MaskVerdict BlameKeyword(const MaskVerdict& verdict, const Text& mask)
{
    const bool isKeyword = FindKeyword(mask.c_str()) || BeginsWith(mask.c_str(), kCurrencyKeyword);
    return verdict || !isKeyword ? verdict : MaskVerdict{ZTM_KEYWORD, 0};
}

// A type that has no default takes any mask; of the others an empty one is not acceptable.
MaskVerdict CheckGiven(const Text& mask, int32_t dataType, const Settings& settings, FieldLayout& layout)
{
    if (!DefaultMask(dataType))
        return {};
    return mask.empty() ? MaskVerdict{ZTM_EMPTY, 0} : BlameKeyword(CheckMask(mask, dataType, settings, layout), mask);
}

}  // namespace

// A keyword's mask is installed as it is: the check only tells where its fields stand.
ChosenMask ChooseMask(const Text& mask, int32_t dataType, const Settings& settings, FieldLayout& layout)
{
    layout.hasAmPm = false;
    if (const Expansion expansion = ExpandKeyword(mask, settings)) {
        if (dataType == DT_DATE || dataType == DT_TIME || dataType == DT_DATETIME)
            CheckDateOrTimeMask(*expansion, dataType, layout, MaskOrigin::Keyword);
        const bool isCurrency = !FindKeyword(mask.c_str());
        return {*expansion, true, {}, MaskOrigin::Keyword, isCurrency && settings.currencyDigits == 0};
    }
    const FieldLayout none = layout;
    const MaskVerdict verdict = CheckGiven(mask, dataType, settings, layout);
    if (verdict)
        return {mask, true};
    layout = none;
    const Text standIn = FromAscii(DefaultMask(dataType));
    CheckMask(standIn, dataType, settings, layout);
    return {standIn, false, verdict};
}

bool IsPictureKeyword(const Char* mask)
{
    return FindKeyword(mask) != nullptr;
}

}  // namespace zte
