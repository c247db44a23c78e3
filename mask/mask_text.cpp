// The mask as text: which mask character stands at a display position, and runs of equal ones.
#include "mask/mask_text.h"

#include <cstring>

#include "intl/regional_settings.h"
#include "mask/mask_items.h"
#include "shared/ascii.h"

namespace zte {

namespace {

constexpr int32_t kAmPmLength = 5;
constexpr char kEscaped[] =
    "~";  // stands for a literal written with the escape, so that it never looks like a mask character
constexpr char kNothing[] = "";

// The digits of a number do not stand under their placeholders; its positions are told by the text.
bool FollowsDigits(const char* mask, int32_t dataType)
{
    if (!IsNumeric(dataType))
        return false;
    const char* point = std::strchr(mask, '.');
    return !(point && point > mask && point[-1] == '~');
}

char NumericMaskChar(const char* mask, char shown, int32_t position)
{
    if (shown == '\0' || shown == '-' || shown == '+')
        return '#';
    if (IsDigit(shown)) {
        const bool forced = position < static_cast<int32_t>(std::strlen(mask)) && mask[position] == '0';
        return forced ? '0' : '#';
    }
    if (shown == DecimalChar())
        return '.';
    return shown == regionalSettings.thousandChar ? ',' : shown;
}

}  // namespace

// The character of a display position, in the mask itself where it is not escaped. Past the end of a mask without escapes
// it is the mask's first character: kept, readers of over-long texts rely on it.
const char* MaskTextAt(const char* mask, int32_t position)
{
    if (position < 0)
        return kNothing;
    if (!std::strchr(mask, '~'))
        return position < static_cast<int32_t>(std::strlen(mask)) ? mask + position : mask;
    const char* at = mask;
    for (int32_t shown = 0; *at; ++at, ++shown) {
        const bool escaped = *at == '~';
        if (shown == position)
            return escaped ? kEscaped : at;
        if (escaped && *++at == '\0')
            break;
    }
    return kNothing;
}

MaskChar MaskCharAt(const char* mask, const std::string* text, int32_t dataType, int32_t position)
{
    if (!FollowsDigits(mask, dataType))
        return {*MaskTextAt(mask, position), false};
    if (!text)
        return {'\0', true};
    const bool inside = position >= 0 && position < static_cast<int32_t>(text->size());
    return {NumericMaskChar(mask, inside ? (*text)[static_cast<size_t>(position)] : '\0', position), false};
}

bool IsInsideAmPmField(const EditInstance& edit, int32_t position)
{
    return HasAmPmField(edit) && position >= edit.ampmPos && position < edit.ampmPos + kAmPmLength;
}

// The letters of an AM/PM field are literals, never the minutes that its "M" would be.
MaskChar MaskCharAt(const EditInstance& edit, const std::string& text, int32_t position)
{
    if (IsInsideAmPmField(edit, position))
        return {kEscaped[0], false};
    return MaskCharAt(edit.mask, &text, edit.dataType, position);
}

bool IsEditable(const EditInstance& edit, const std::string& text, int32_t position)
{
    const MaskChar mask = MaskCharAt(edit, text, position);
    return !mask.IsNone() && FindMaskItem(mask.value, edit.dataType) != nullptr;
}

int32_t MaskDisplayLength(const char* mask)
{
    int32_t length = 0;
    for (; *mask; ++mask)
        length += *mask != '~';
    return length;
}

int32_t RunLength(const char* text)
{
    int32_t length = 0;
    while (text[length] && text[length] == text[0])
        ++length;
    return length;
}

int32_t MaskRunAfter(const char* mask, int32_t position, int32_t dataType)
{
    if (FollowsDigits(mask, dataType))
        return 0;
    const int32_t run = RunLength(MaskTextAt(mask, position));
    return run > 0 ? run - 1 : 0;
}

int32_t MaskRunBefore(const char* mask, int32_t position, int32_t dataType)
{
    if (FollowsDigits(mask, dataType))
        return 0;
    const char* at = MaskTextAt(mask, position);
    if (at == kEscaped || at == kNothing)
        return 0;
    int32_t run = 0;
    while (at - run > mask && *(at - run - 1) == *at)
        ++run;
    // The first of an escaped run is a literal of its own.
    if (run > 0 && at - run > mask && *(at - run - 1) == '~')
        --run;
    return run;
}

int32_t MaskIndex(const char* mask, int32_t position)
{
    int32_t index = 0;
    for (int32_t shown = 0; mask[index]; ++index, ++shown) {
        if (mask[index] == '~' && mask[index + 1])
            ++index;
        if (shown == position)
            return index;
    }
    return index;
}

bool BeginsWithAmPm(const char* text)
{
    return std::strncmp(text, "AM/PM", kAmPmLength) == 0 || std::strncmp(text, "am/pm", kAmPmLength) == 0;
}

}  // namespace zte
