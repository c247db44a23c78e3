// Typing into strings, dates and times: an accepted character overwrites positions, literals are passed.
#include "edit/char_entry.h"

#include <cstring>
#include <string>

#include "core/base_edit.h"
#include "core/instance.h"
#include "edit/caret.h"
#include "intl/regional_settings.h"
#include "mask/mask_items.h"
#include "mask/mask_text.h"
#include "shared/ascii.h"

namespace zte {

namespace {

// The character goes to the AM/PM field, wherever the caret is, when it begins one of the regional designators.
bool IsAmPmChar(EditInstance& edit, char typed)
{
    if (!HasAmPmField(edit) || typed == '\0')
        return false;
    if (typed != regionalSettings.amString[0] && typed != regionalSettings.pmString[0])
        return false;
    edit.typedChar[0] = typed;
    edit.typedChar[1] = '\0';
    return true;
}

// The next literal, not written with "~", that shows the character; -1 when there is none.
int32_t FindLiteralAhead(const EditInstance& edit, const std::string& text, int32_t position, char typed)
{
    const auto end = static_cast<int32_t>(text.size());
    for (int32_t at = position + 1; at < end && at < edit.displayLength; ++at) {
        if (text[static_cast<size_t>(at)] != typed)
            continue;
        const MaskChar mask = MaskCharAt(edit, text, at);
        if (mask.value != '~' && !FindMaskItem(mask.value, edit.dataType))
            return at;
    }
    return -1;
}

bool IsSecondDigitOfTwo(const EditInstance& edit, const std::string& text, int32_t position)
{
    const char letter = ToUpper(MaskCharAt(edit, text, position).value);
    return letter != '\0' && std::strchr("MDHS", letter) && MaskRunBefore(edit.mask, position, edit.dataType) == 1 &&
           MaskRunAfter(edit.mask, position, edit.dataType) == 0;
}

// A single digit before the separator typed becomes "0" and the digit.
void PadFieldDigit(EditInstance& edit, std::string& text, int32_t position)
{
    const auto at = static_cast<size_t>(position);
    if (position < 1 || at >= text.size() || !IsSecondDigitOfTwo(edit, text, position))
        return;
    const char digit = text[at - 1];
    if (!IsDigit(digit) || digit == '0')
        return;
    text[at] = digit;
    text[at - 1] = '0';
    SetText(edit, text.c_str());
}

// A padded digit fills its field; the rest of a month name, or a digit that only pulls a 0 behind it, leaves the caret on the
// next position, so that typing can go on there.
int32_t CaretBehind(const EditInstance& edit, int32_t placedAt, char typed)
{
    const bool padded = edit.typedChar[0] == '0' && edit.typedChar[1] == typed && typed != '0';
    return placedAt + (padded ? 2 : 1);
}

// Overwrites as many positions as typedChar has characters. Redrawing is on again before the replacement, so that it paints
// once.
int32_t Place(EditInstance& edit, int32_t position, char typed)
{
    const auto length = static_cast<int32_t>(std::strlen(edit.typedChar));
    if (length == 0)
        return Caret(edit);
    SetRedraw(edit, false);
    Select(edit, position, position + length);
    SetRedraw(edit, true);
    ReplaceSelection(edit, edit.typedChar);
    const bool isPart = length > 1 && Has(edit, ZERO_PADDED);
    SetFlag(edit, ZERO_PADDED, false);
    if (!isPart)
        return Caret(edit);
    const int32_t caret = CaretBehind(edit, position, typed);
    PlaceCaret(edit, caret);
    return caret;
}

// Past the literals to the next position; where none follows the field is full and the focus may move on.
void GoOn(EditInstance& edit, const std::string& text, int32_t caret)
{
    if (StepsToEditable(edit, text, caret - 1, Direction::Forward) != 0)
        SkipLiterals(edit, text, caret);
    else if (Has(edit, AUTOSKIP))
        MoveCaret(edit, VK_RIGHT, 0);
}

void PlaceAndGoOn(EditInstance& edit, const std::string& text, int32_t position, char typed)
{
    const int32_t caret = Place(edit, position, typed);
    GoOn(edit, text, caret);
}

// A refused character that is a literal further on skips to it.
void SkipAhead(EditInstance& edit, std::string& text, int32_t position, char typed)
{
    const int32_t literal = FindLiteralAhead(edit, text, position, typed);
    if (literal <= 0)
        return Beep();
    if (IsDateOrTime(edit.dataType))
        PadFieldDigit(edit, text, position);
    PlaceCaret(edit, literal + 1);
    GoOn(edit, text, literal + 1);
}

const MaskItem* ItemAt(const EditInstance& edit, const std::string& text, int32_t position)
{
    return FindMaskItem(MaskCharAt(edit, text, position).value, edit.dataType);
}

bool IsAccepted(EditInstance& edit, const MaskItem& item, char typed, int32_t position)
{
    return !IsControl(static_cast<unsigned char>(typed)) &&
           item.validate(static_cast<unsigned char>(typed), edit, position);
}

// On a literal: before the first field the character is meant for that field, anywhere else it is refused.
void EnterOnLiteral(EditInstance& edit, const std::string& text, int32_t position, char typed)
{
    if (position >= edit.firstFieldPos)
        return Beep();
    const int32_t first = edit.firstFieldPos;
    PlaceCaret(edit, first);
    const MaskItem* item = ItemAt(edit, text, first);
    if (!item)
        return GoOn(edit, text, first);
    if (!IsAccepted(edit, *item, typed, first))
        return Beep();
    PlaceAndGoOn(edit, text, first, typed);
}

}  // namespace

void EnterChar(EditInstance& edit, WPARAM typedChar)
{
    UpdateFormatRect(edit);
    edit.typedChar[0] = '\0';
    SetFlag(edit, ZERO_PADDED, false);
    const CarriedOver carried = TakeCarriedOver(edit);
    const char typed = static_cast<char>(typedChar & 0xFF);
    if (IsAmPmChar(edit, typed))
        return PlaceAndGoOn(edit, ReadText(edit), edit.ampmPos, typed);

    const int32_t position = Caret(edit);
    if (static_cast<uint32_t>(position) > static_cast<uint32_t>(edit.displayLength - 1))
        return;
    std::string text = ReadText(edit);
    if (IsCarriedLiteral(edit, text, carried, position, typed))
        return;
    const MaskItem* item = ItemAt(edit, text, position);
    if (!item)
        EnterOnLiteral(edit, text, position, typed);
    else if (IsAccepted(edit, *item, typed, position))
        PlaceAndGoOn(edit, text, position, typed);
    else
        SkipAhead(edit, text, position, typed);
}

}  // namespace zte
