// Typing into numbers and decimals.
#include "engine/edit/numeric_entry.h"

#include <algorithm>

#include "engine/edit/caret.h"
#include "engine/edit/validators.h"
#include "engine/format/data.h"
#include "engine/format/reformat_number.h"
#include "engine/text/ascii.h"
#include "engine/values/number_layout.h"

namespace zte {

namespace {

// One character typed into a number, and the number as it stood before.
struct NumericEntry {
    Char typed;
    KeyData keyData;
    int32_t position;
    Text text;
    CarriedOver carried;
    Char decimalChar;

    Char Under() const { return At(text, position); }
    int32_t Point() const { return DecimalCharPos(text, decimalChar); }
    // Emptied, but for a sign that was typed since.
    bool IsEmptied() const { return text.empty() || (text.size() == 1 && IsSign(text[0])); }
    bool IsDigitTyped() const { return IsDigit(typed); }
};

int32_t PointOf(const EditInstance& edit, const Text& text)
{
    return DecimalCharPos(text, edit.settings->decimalChar);
}

// The caret among the same digits as before the text was laid anew: it goes along with the text's growth, unless that would
// be another place.
int32_t SamePlace(const NumericEntry& entry, const Text& after, int32_t growth)
{
    const DigitPlace place = DigitPlaceOf(entry.text, entry.position, entry.decimalChar);
    const int32_t moved = entry.position + growth;
    const bool stays = !entry.text.empty() && DigitPlaceOf(after, moved, entry.decimalChar) == place;
    return stays ? moved : PositionOf(after, place, entry.decimalChar);
}

void Refuse(EditInstance& edit, const NumericEntry& entry)
{
    const int32_t growth = ReformatNumber(edit);
    PlaceCaret(edit, SamePlace(entry, edit.field->ReadText(), growth));
    edit.field->Beep();
}

void ChooseCharwiseByPoint(EditInstance& edit, const Text& text)
{
    if (edit.table->point == PointOf(edit, text))
        edit.flags |= CHARWISE;
}

// The point typed inside the integer part: the digits between the caret and the point go.
void CutToPoint(EditInstance& edit, const NumericEntry& entry)
{
    Text cut = entry.text;
    cut.erase(static_cast<size_t>(entry.position), static_cast<size_t>(entry.Point() - entry.position));
    ReformatNumber(edit, cut);
    PlaceCaret(edit, PointOf(edit, edit.field->ReadText()) + 1);
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
    if (entry.typed == entry.decimalChar && edit.decimalPlaces != 0)
        EnterPoint(edit, entry);
    else
        Refuse(edit, entry);
}

// Directly behind a digit just typed before a percent sign the next digit belongs to the number.
bool IsBehindInserted(const EditInstance& edit, const NumericEntry& entry)
{
    const CarriedOver& last = entry.carried;
    return edit.typedFractionChar[0] && last.to != 0 && last.to == entry.position && last.from == last.to;
}

// On a literal: before the number the character goes to its start, on a separator it goes to the digits there, anywhere
// else it is refused.
bool LeaveLiteral(EditInstance& edit, NumericEntry& entry)
{
    const MaskPosition mask = PositionAt(edit, entry.text, entry.position);
    if (mask.IsEditable())
        return true;
    if (entry.position < edit.firstFieldPos) {
        entry.position = edit.firstFieldPos;
        PlaceCaret(edit, entry.position);
        return true;
    }
    const bool separator = !mask.escaped && (mask.character == '.' || mask.character == ',');
    return separator || IsBehindInserted(edit, entry);
}

// The decimal character is never overwritten: a digit goes to the first fraction digit, a sign is inserted before it.
// False when the number has no fraction digit to go to.
bool SparePoint(EditInstance& edit, NumericEntry& entry)
{
    if (!edit.typedChar[0] || entry.Under() != entry.decimalChar)
        return true;
    if (!entry.IsDigitTyped()) {
        std::copy(std::begin(edit.typedChar), std::end(edit.typedChar), std::begin(edit.typedFractionChar));
        edit.typedChar[0] = Char{};
        return true;
    }
    ++entry.position;
    return edit.decimalPlaces != 0 || IsDigit(entry.Under());
}

void EnterMinus(EditInstance& edit, const NumericEntry& entry)
{
    if (edit.typedChar[0]) {
        edit.field->Select(entry.position, entry.position + 1);
        edit.field->ReplaceSelection(edit.typedChar);
        PlaceCaret(edit, Caret(edit));
    } else if (edit.typedFractionChar[0]) {
        edit.field->TypeChar(entry.typed, entry.keyData);
        PlaceCaret(edit, entry.position + 1);
    }
}

// An overwritten integer digit makes the number be laid anew, an overwritten fraction digit only be painted. Returns where
// the caret stands.
int32_t LayOverwritten(EditInstance& edit, const NumericEntry& entry, int32_t caret)
{
    if (caret < entry.Point()) {
        if (ReformatNumber(edit) != 0)
            caret = PointOf(edit, edit.field->ReadText()) + 1;
    } else {
        edit.field->SetRedraw(true);
        if (Has(edit, PERCENT))
            ReformatNumber(edit);
        edit.field->SetText(edit.field->ReadText().c_str());
        edit.field->KeepLayout();
    }
    PlaceCaret(edit, caret);
    return caret;
}

// Behind the digit that has taken the sign's place, or else behind where the sign was.
void PlaceBehindSign(const EditInstance& edit, const NumericEntry& entry, const Text& placed, int32_t behind)
{
    const DigitPlace place = DigitPlaceOf(placed, behind, entry.decimalChar);
    const int32_t caret = PositionOf(edit.field->ReadText(), place, entry.decimalChar);
    PlaceCaret(edit, entry.IsDigitTyped() && caret > 0 ? caret : 1);
}

// Returns the position from which the caret passes separators.
int32_t Overwrite(EditInstance& edit, const NumericEntry& entry)
{
    const bool layAnew = edit.decimalPlaces != 0 && !Has(edit, CHARWISE);
    if (layAnew)
        edit.field->SetRedraw(false);
    edit.field->Select(entry.position, entry.position + static_cast<int32_t>(TextLength(edit.typedChar)));
    edit.field->ReplaceSelection(edit.typedChar);
    const int32_t behind = Caret(edit);
    if (edit.decimalPlaces == 0)
        return behind;
    const bool tookSign = entry.Under() == '-';
    const Text placed = tookSign ? edit.field->ReadText() : Text();
    const int32_t caret = layAnew ? LayOverwritten(edit, entry, behind) : behind;
    if (tookSign)
        PlaceBehindSign(edit, entry, placed, behind);
    return caret;
}

// Where the caret goes after the number was laid anew around an inserted character: by as much as the text has grown, and
// behind the digit just placed where that would be another place. A leading 0 that was dropped again is no digit placed.
int32_t BehindInserted(const EditInstance& edit, const NumericEntry& entry, const Text& inserted, int32_t behind,
                       int32_t growth)
{
    if (entry.text.empty() && !entry.IsDigitTyped() && edit.decimalPlaces != 0)
        return edit.firstFieldPos;
    const Text text = edit.field->ReadText();
    const auto placeIn = [&](const Text& shown, int32_t at) { return DigitPlaceOf(shown, at, entry.decimalChar); };
    const DigitPlace place = placeIn(inserted, behind);
    const bool dropped = placeIn(text, 0).digits < placeIn(inserted, 0).digits;
    const bool moved = entry.IsDigitTyped() && !dropped && !(placeIn(text, behind + growth) == place);
    return entry.IsEmptied() || moved ? PositionOf(text, place, entry.decimalChar) : behind + growth;
}

// Inserts before the point and lays the number anew; the caret stays behind the digit just placed.
int32_t Insert(EditInstance& edit, const NumericEntry& entry)
{
    edit.field->SetRedraw(false);
    for (const Char* c = edit.typedFractionChar; *c; ++c)
        edit.field->TypeChar(*c, entry.keyData);
    const int32_t behind = Caret(edit);
    const Text inserted = edit.field->ReadText();
    const int32_t growth = ReformatNumber(edit, entry.text.empty() ? LeadingEscapes(edit) + inserted : inserted);
    const int32_t caret = BehindInserted(edit, entry, inserted, behind, growth);
    PlaceCaret(edit, caret);
    edit.carriedFrom = edit.carriedTo = caret;
    return caret;
}

// With the integer part full the caret passes separators; at the end of the field the focus may move on.
void GoOn(EditInstance& edit, int32_t caret)
{
    const Text text = edit.field->ReadText();
    if (edit.decimalPlaces != 0) {
        ChooseCharwiseByPoint(edit, text);
        if (caret >= PointOf(edit, text) + edit.decimalPlaces + 1)
            return MoveOnWhenFull(edit);
    } else if (edit.displayLength == Length(text)) {
        edit.flags |= CHARWISE;
    }
    if (Has(edit, CHARWISE) && !SkipLiterals(edit, text, caret))
        MoveOnWhenFull(edit);
}

void EnterAccepted(EditInstance& edit, NumericEntry& entry)
{
    if (!LeaveLiteral(edit, entry) || !SparePoint(edit, entry))
        return edit.field->Beep();
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

void EnterNumericChar(EditInstance& edit, Char typed, KeyData keyData)
{
    edit.field->KeepLayout();
    ForgetVerdict(edit);
    NumericEntry entry{
        typed, keyData, Caret(edit), edit.field->ReadText(), TakeCarriedOver(edit), edit.settings->decimalChar};
    if (IsFull(edit, entry))
        return;
    const Verdict verdict = ValidateNumberDigit({edit, entry.text, entry.position, typed});
    if (!verdict.accepted)
        return EnterRefused(edit, entry);
    KeepVerdict(edit, verdict);
    EnterAccepted(edit, entry);
}

}  // namespace zte
