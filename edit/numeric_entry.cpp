// Typing into numbers and decimals: digits are inserted before the point and the number is laid anew, or, once the integer
// part has filled its room, overwritten position by position.
#include "edit/numeric_entry.h"

#include <cstring>
#include <string>

#include "core/base_edit.h"
#include "core/instance.h"
#include "edit/caret.h"
#include "edit/number_layout.h"
#include "format/read_back.h"
#include "intl/regional_settings.h"
#include "mask/mask_items.h"
#include "mask/mask_setting.h"
#include "mask/mask_text.h"
#include "mask/validators.h"
#include "shared/ascii.h"

namespace zte {

namespace {

// One character typed into a number, and the number as it stood before.
struct NumericEntry {
    char typed;
    LPARAM keyData;
    int32_t position;
    std::string text;
    CarriedOver carried;

    int32_t Length() const { return static_cast<int32_t>(text.size()); }
    char Under() const { return position < Length() ? text[static_cast<size_t>(position)] : '\0'; }
    int32_t Point() const { return DecimalCharPos(text); }
    // Emptied, but for a sign that was typed since.
    bool IsEmptied() const { return text.empty() || text == "-" || text == "+"; }
    bool IsDigitTyped() const { return IsDigit(typed); }
};

// The caret among the same digits as before the text was laid anew: it goes along with the text's growth, unless that would
// be another place.
int32_t SamePlace(const std::string& before, int32_t position, const std::string& after, int32_t growth)
{
    const DigitPlace place = DigitPlaceOf(before, position);
    const int32_t moved = position + growth;
    return !before.empty() && DigitPlaceOf(after, moved) == place ? moved : PositionOf(after, place);
}

void Refuse(EditInstance& edit, const NumericEntry& entry)
{
    const int32_t growth = ReformatNumber(edit, nullptr);
    PlaceCaret(edit, SamePlace(entry.text, entry.position, ReadText(edit), growth));
    Beep();
}

void ChooseCharwiseByPoint(EditInstance& edit, const std::string& text)
{
    if (MaskPointPos(edit) == DecimalCharPos(text))
        edit.flags |= CHARWISE;
}

// The point typed inside the integer part: the digits between the caret and the point go.
void CutToPoint(EditInstance& edit, const NumericEntry& entry)
{
    const std::string cut = entry.text.substr(0, static_cast<size_t>(entry.position)) +
                            entry.text.substr(static_cast<size_t>(entry.Point()));
    ReformatNumber(edit, cut.c_str());
    PlaceCaret(edit, DecimalCharPos(ReadText(edit)) + 1);
    ChooseEditMode(edit);
}

void EnterPoint(EditInstance& edit, const NumericEntry& entry)
{
    const int32_t point = entry.Point();
    if (entry.position < point)
        return CutToPoint(edit, entry);
    if (entry.position > point)
        return Refuse(edit, entry);
    PlaceCaret(edit, point + 1);
    ChooseCharwiseByPoint(edit, entry.text);
}

// A separator over which the caret has just been carried is taken as typed: 123.45 may be typed as it is read.
void EnterRefused(EditInstance& edit, const NumericEntry& entry)
{
    if (IsCarriedLiteral(edit, entry.text, entry.carried, entry.position, entry.typed))
        return;
    if (entry.typed == DecimalChar() && edit.decimalPlaces != 0)
        EnterPoint(edit, entry);
    else
        Refuse(edit, entry);
}

// Directly behind a digit just typed before a percent sign the next digit belongs to the number.
bool IsBehindInserted(const EditInstance& edit, const NumericEntry& entry)
{
    const CarriedOver& last = entry.carried;
    return edit.typedFractionChar[0] != '\0' && last.to != 0 && last.to == entry.position && last.from == last.to;
}

// On a literal: before the number the character goes to its start, on a separator it goes to the digits there, anywhere
// else it is refused.
bool LeaveLiteral(EditInstance& edit, NumericEntry& entry)
{
    const char mask = MaskCharAt(edit, entry.text, entry.position).value;
    if (FindMaskItem(mask, edit.dataType))
        return true;
    if (entry.position < edit.firstFieldPos) {
        entry.position = edit.firstFieldPos;
        PlaceCaret(edit, entry.position);
        return true;
    }
    return mask == '.' || mask == ',' || IsBehindInserted(edit, entry);
}

// The decimal character is never overwritten: a digit goes to the first fraction digit, a sign is inserted before it.
// False when the number has no fraction digit to go to.
bool SparePoint(EditInstance& edit, NumericEntry& entry)
{
    if (edit.typedChar[0] == '\0' || entry.Under() != DecimalChar())
        return true;
    if (!entry.IsDigitTyped()) {
        std::memcpy(edit.typedFractionChar, edit.typedChar, sizeof edit.typedChar);
        edit.typedChar[0] = '\0';
        return true;
    }
    ++entry.position;
    return edit.decimalPlaces != 0 || IsDigit(entry.Under());
}

void EnterMinus(EditInstance& edit, const NumericEntry& entry)
{
    if (edit.typedChar[0]) {
        Select(edit, entry.position, entry.position + 1);
        ReplaceSelection(edit, edit.typedChar);
        PlaceCaret(edit, Caret(edit));
    } else if (edit.typedFractionChar[0]) {
        SendCharToBase(edit, entry.typed, entry.keyData);
        PlaceCaret(edit, entry.position + 1);
    }
}

// An overwritten integer digit makes the number be laid anew, an overwritten fraction digit only be painted. Returns where
// the caret stands.
int32_t LayOverwritten(EditInstance& edit, const NumericEntry& entry, int32_t caret)
{
    if (caret < entry.Point()) {
        if (ReformatNumber(edit, nullptr) != 0)
            caret = DecimalCharPos(ReadText(edit)) + 1;
    } else {
        SetRedraw(edit, true);
        if (Has(edit, PERCENT))
            ReformatNumber(edit, nullptr);
        SetText(edit, ReadText(edit).c_str());
        UpdateFormatRect(edit);
    }
    PlaceCaret(edit, caret);
    return caret;
}

// Behind the digit that has taken the sign's place, or else behind where the sign was.
void PlaceBehindSign(const EditInstance& edit, const NumericEntry& entry, const std::string& placed, int32_t behind)
{
    const std::string text = ReadText(edit);
    const DigitPlace place = DigitPlaceOf(placed, behind);
    const int32_t caret = PositionOf(text, place);
    PlaceCaret(edit, entry.IsDigitTyped() && caret > 0 ? caret : 1);
}

// Returns the position from which the caret passes separators.
int32_t Overwrite(EditInstance& edit, const NumericEntry& entry)
{
    const bool layAnew = edit.decimalPlaces != 0 && !Has(edit, CHARWISE);
    if (layAnew)
        SetRedraw(edit, false);
    Select(edit, entry.position, entry.position + static_cast<int32_t>(std::strlen(edit.typedChar)));
    ReplaceSelection(edit, edit.typedChar);
    const int32_t behind = Caret(edit);
    if (edit.decimalPlaces == 0)
        return behind;
    const bool tookSign = entry.Under() == '-';
    const std::string placed = tookSign ? ReadText(edit) : std::string();
    const int32_t caret = layAnew ? LayOverwritten(edit, entry, behind) : behind;
    if (tookSign)
        PlaceBehindSign(edit, entry, placed, behind);
    return caret;
}

// The escaped literals at the start of the mask, which laying a number anew expects in the text.
std::string LeadingLiterals(const EditInstance& edit)
{
    std::string literals;
    for (const char* mask = edit.mask; mask[0] == '~' && mask[1]; mask += 2)
        literals += mask[1];
    return literals;
}

// Where the caret goes after the number was laid anew around an inserted character: by as much as the text has grown, and
// behind the digit just placed where that would be another place. A leading 0 that was dropped again is no digit placed.
int32_t BehindInserted(const EditInstance& edit, const NumericEntry& entry, const std::string& inserted, int32_t behind,
                       const std::string& text, int32_t growth)
{
    if (entry.Length() == 0 && !entry.IsDigitTyped() && edit.decimalPlaces != 0)
        return edit.firstFieldPos;
    const DigitPlace place = DigitPlaceOf(inserted, behind);
    const bool dropped = DigitPlaceOf(text, 0).digits < DigitPlaceOf(inserted, 0).digits;
    const bool moved = entry.IsDigitTyped() && !dropped && !(DigitPlaceOf(text, behind + growth) == place);
    return entry.IsEmptied() || moved ? PositionOf(text, place) : behind + growth;
}

// Inserts before the point and lays the number anew; the caret stays behind the digit just placed.
int32_t Insert(EditInstance& edit, const NumericEntry& entry)
{
    SetRedraw(edit, false);
    for (const char* c = edit.typedFractionChar; *c; ++c)
        SendCharToBase(edit, *c, entry.keyData);
    const int32_t behind = Caret(edit);
    const std::string inserted = ReadText(edit);
    const std::string whole = entry.Length() == 0 ? LeadingLiterals(edit) + inserted : inserted;
    const int32_t growth = ReformatNumber(edit, whole.c_str());
    const int32_t caret = BehindInserted(edit, entry, inserted, behind, ReadText(edit), growth);
    PlaceCaret(edit, caret);
    edit.carriedFrom = edit.carriedTo = caret;
    return caret;
}

// With the integer part full the caret passes separators; at the end of the field the focus may move on.
void GoOn(EditInstance& edit, int32_t caret)
{
    const std::string text = ReadText(edit);
    if (edit.decimalPlaces != 0) {
        ChooseCharwiseByPoint(edit, text);
        if (caret >= DecimalCharPos(text) + edit.decimalPlaces + 1) {
            if (Has(edit, AUTOSKIP))
                MoveCaret(edit, VK_RIGHT, 0);
            return;
        }
    } else if (edit.displayLength == static_cast<int32_t>(text.size())) {
        edit.flags |= CHARWISE;
    }
    if (Has(edit, CHARWISE) && !SkipLiterals(edit, text, caret) && Has(edit, AUTOSKIP))
        MoveCaret(edit, VK_RIGHT, 0);
}

void EnterAccepted(EditInstance& edit, NumericEntry& entry)
{
    if (!LeaveLiteral(edit, entry) || !SparePoint(edit, entry))
        return Beep();
    if (entry.typed == '-')
        return EnterMinus(edit, entry);
    int32_t caret = entry.position;
    if (edit.typedChar[0])
        caret = Overwrite(edit, entry);
    else if (edit.typedFractionChar[0])
        caret = Insert(edit, entry);
    GoOn(edit, caret);
}

// Behind the last position, or behind the last fraction digit: characters are dropped without a beep.
bool IsFull(const EditInstance& edit, const NumericEntry& entry)
{
    if (entry.position > edit.displayLength - 1)
        return true;
    return edit.decimalPlaces != 0 && entry.position >= entry.Point() + edit.decimalPlaces + 1;
}

}  // namespace

void EnterNumericChar(EditInstance& edit, WPARAM typedChar, LPARAM keyData)
{
    UpdateFormatRect(edit);
    edit.typedFractionChar[0] = '\0';
    edit.typedChar[0] = '\0';
    NumericEntry entry{static_cast<char>(typedChar & 0xFF), keyData, Caret(edit), ReadText(edit),
                       TakeCarriedOver(edit)};
    if (IsFull(edit, entry))
        return;
    if (ValidateNumberDigit(static_cast<unsigned char>(entry.typed), edit, entry.position))
        EnterAccepted(edit, entry);
    else
        EnterRefused(edit, entry);
}

}  // namespace zte
