// Installs a mask in a control: keywords, the check against the type, and what is derived from the mask.
#include "mask/mask_setting.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

#include "core/heap.h"
#include "core/instance.h"
#include "core/life_guard.h"
#include "format/data.h"
#include "format/date_walk.h"
#include "intl/intl_picture.h"
#include "mask/currency_mask.h"
#include "mask/mask_checks.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

using Expansion = std::optional<std::string>;  // none: the keyword failed

Expansion ExpandPicture(int32_t kind, int32_t size)
{
    char mask[kMaxMaskLength + 1] = "";
    if (IntlPictureToMask(mask, size, kind) != PICTURE_OK)
        return std::nullopt;
    return mask;
}

Expansion ExpandDate()
{
    return ExpandPicture(PICTURE_DATE, kMaxMaskLength);
}
Expansion ExpandTime()
{
    return ExpandPicture(PICTURE_TIME, kMaxMaskLength);
}

Expansion ExpandDateTime()
{
    const Expansion date = ExpandDate();
    if (!date)
        return std::nullopt;
    const Expansion time = ExpandPicture(PICTURE_TIME, kMaxMaskLength - 1 - static_cast<int32_t>(date->size()));
    if (!time)
        return std::nullopt;
    return *date + ' ' + *time;
}

// "[currency(n)": the count of digits stands in the first parentheses behind the keyword.
Expansion ExpandCurrency(const char* keyword)
{
    constexpr size_t kLongestCount = 19;
    constexpr int16_t kMostDigits = 16;
    const char* open = std::strchr(keyword, '(');
    const char* close = open ? std::strchr(open, ')') : nullptr;
    if (!close || static_cast<size_t>(close - open - 1) > kLongestCount)
        return std::nullopt;
    const auto digits = static_cast<int16_t>(std::atoi(std::string(open + 1, close).c_str()));
    if (digits > kMostDigits)
        return std::nullopt;
    const std::string mask = BuildCurrencyMask(digits);
    return mask.empty() ? std::nullopt : Expansion(mask);
}

struct Keyword {
    const char* text;
    Expansion (*expand)();
};

constexpr Keyword kKeywords[] = {
    {"[date]",        ExpandDate    },
    {"[time]",        ExpandTime    },
    {"[date] [time]", ExpandDateTime},
};
constexpr char kCurrencyKeyword[] = "[currency";  // in this case only, unlike the others; kept

Expansion ExpandKeyword(const char* mask)
{
    for (const Keyword& keyword : kKeywords)
        if (lstrcmpiA(mask, keyword.text) == 0)
            return keyword.expand();
    if (std::strncmp(mask, kCurrencyKeyword, sizeof kCurrencyKeyword - 1) == 0)
        return ExpandCurrency(mask);
    return std::nullopt;
}

// Puts the mask, or what stands in for it, into the record. False when the type's default stands in.
bool InstallMask(EditInstance& edit, const char* mask, int32_t dataType)
{
    if (const Expansion expansion = ExpandKeyword(mask)) {
        edit.mask = Duplicate(edit, expansion->c_str());
        return true;
    }
    edit.mask = CheckMaskForType(edit, mask, dataType);
    if (edit.mask)
        return false;
    edit.mask = Duplicate(edit, mask);
    return true;
}

// Counted behind the plain '.', whatever the regional decimal character is; kept.
int32_t CountDecimalPlaces(const char* mask)
{
    const char* point = std::strchr(mask, '.');
    return point ? static_cast<int32_t>(std::strspn(point + 1, "0#")) : 0;
}

void ShowEmptyValue(EditInstance& edit)
{
    if (IsNumeric(edit.dataType)) {
        SetData(edit, nullptr);
    } else if (edit.dataType == DT_STRING) {
        const std::string blanks(HasMask(edit) ? kMaxMaskLength : 0, ' ');
        SetData(edit, blanks.c_str());
    } else {
        SetData(edit, &kEmptyDateTime);
    }
}

}  // namespace

void ChooseEditMode(EditInstance& edit)
{
    const bool hasLiterals = (edit.formatFlags & FORMAT_HAS_LITERALS) != 0;
    SetFlag(edit, CHARWISE, hasLiterals || !IsNumeric(edit.dataType) || !std::strchr(edit.mask, '#'));
}

int32_t SetMask(EditInstance& edit, const char* mask, int32_t dataType)
{
    edit.dataType = dataType;
    if (char* old = std::exchange(edit.mask, nullptr))
        SharedHeapFree(edit.heap, old);
    const bool installed = InstallMask(edit, mask ? mask : "", dataType);
    edit.decimalPlaces = IsNumeric(dataType) ? CountDecimalPlaces(edit.mask) : 0;
    SetFlag(edit, PERCENT, IsNumeric(dataType) && std::strchr(edit.mask, '%'));
    SetFlag(edit, SPUN, false);
    edit.maskJustSet = 1;
    edit.carriedTo = 0;
    ChooseEditMode(edit);
    edit.displayLength = MaskDisplayLength(edit.mask);
    if (!Has(edit, CODE_SPIN))
        ShowEmptyValue(edit);
    return installed ? 1 : 0;
}

}  // namespace zte

using namespace zte;

int32_t WINAPI ZTE_FmtSetMask(HWND hwnd, const char* mask, int32_t dataType)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 1;
    return WhileAlive(*edit, 1, [&] { return SetMask(*edit, mask, dataType); });
}
