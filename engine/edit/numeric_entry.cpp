// Typing into numbers and decimals.
#include "engine/edit/numeric_entry.h"

#include <algorithm>
#include <utility>

#include "engine/edit/caret.h"
#include "engine/edit/number_deletion.h"
#include "engine/edit/number_edit.h"
#include "engine/format/data.h"
#include "engine/text/ascii.h"

namespace zte {

namespace {

constexpr int32_t kNoMore = INT32_MAX;  // of the literals before a number

enum class Outcome {
    Taken,
    Filled,   // the last position was typed: the focus may move on
    Dropped,  // nothing is left to fill: without a beep
    Refused,
};

// One character typed into a number.
struct NumericKey {
    Char typed;
    int32_t spelled;           // characters of the literals before the number that were typed directly before
    bool insertsIntoFraction;  // in the place of a selection there: what stood behind it stays behind it
};

bool IsDecimalChar(const EditInstance& edit, Char typed)
{
    return typed == edit.settings->decimalChar && edit.decimalPlaces != 0;
}

// A full number is edited position by position: arrow keys pass its separators.
void MarkWhenFull(EditInstance& edit, const NumberEdit& number)
{
    if (!number.Mask().Grows() || !number.FitsOneMore())
        edit.flags |= CHARWISE;
}

// ---- the literals around the number

// What may be typed before a number: the literals that are shown there; where there are none, the symbol that stands behind.
MaskLiterals LiteralsTypedFirst(const NumberMask& mask)
{
    if (mask.before.length > 0)
        return mask.before;
    return mask.shape.percent ? MaskLiterals{} : mask.behind;
}

// Where the currency symbol begins among literals that end with it; 0 where they do not.
int32_t SymbolStart(const MaskLiterals& literals, const Settings& settings)
{
    const auto start = literals.length - static_cast<int32_t>(TextLength(settings.currencySymbol));
    return start > 0 && BeginsWith(literals.text + start, settings.currencySymbol) ? start : 0;
}

bool BeginsNumber(const EditInstance& edit, Char typed)
{
    return IsDigit(typed) || IsSign(typed) || IsDecimalChar(edit, typed);
}

// What is typed into an empty field may begin with them, or with the symbol that ends them; a digit, a sign or a decimal character
// begins the number instead. Returns which of the literals the key is; -1: none.
int32_t FindSpelled(const EditInstance& edit, const NumberEdit& number, const NumericKey& key)
{
    const MaskLiterals literals = LiteralsTypedFirst(number.Mask());
    const int32_t caret = number.Caret();
    const bool mayBegin = caret == key.spelled || caret == number.Shown().Start();
    if (key.spelled >= literals.length || !mayBegin || !number.IsBlank())
        return -1;
    if (literals.text[key.spelled] == key.typed && (key.spelled > 0 || !BeginsNumber(edit, key.typed)))
        return key.spelled;
    const int32_t symbol = SymbolStart(literals, *edit.settings);
    const bool begins = key.spelled == 0 && caret == number.Shown().Start();
    return begins && literals.text[symbol] == key.typed && !BeginsNumber(edit, key.typed) ? symbol : -1;
}

void PassSpelled(EditInstance& edit, NumberEdit& number, int32_t spelled)
{
    edit.spelled = spelled + 1;
    if (number.Caret() < number.Shown().Start())
        number.MoveTo(number.Caret() + 1);
}

// A character that is no digit and stands at the caret is passed. The sign's own key, and the point's before the number, mean more.
bool IsShownAtCaret(const EditInstance& edit, const NumberEdit& number, Char typed)
{
    if (typed == Char{} || typed != number.Under() || IsDigit(typed) || IsSign(typed))
        return false;
    const ShownNumber& shown = number.Shown();
    const bool onLiteral = number.Caret() < shown.Start() || number.Caret() >= shown.End();
    return !IsDecimalChar(edit, typed) || number.Caret() == shown.Point() || (onLiteral && number.Caret() > 0);
}

// ---- digits

void LeaveLiterals(NumberEdit& number)
{
    const ShownNumber& shown = number.Shown();
    if (number.Caret() <= shown.Sign()) {
        TypedNumber positive = number.Digits();
        positive.negative = false;
        return number.LayOut(std::move(positive), shown.Front());
    }
    number.MoveTo(std::clamp(number.Caret(), shown.Start(), std::max(shown.End(), shown.Start())));
}

Outcome TypeIntoFraction(NumberEdit& number, const NumericKey& key, int32_t index)
{
    const int32_t places = number.Mask().shape.fractionPlaces;
    TypedNumber typed = number.Digits();
    const auto at = static_cast<size_t>(index);
    if (key.insertsIntoFraction || index >= Length(typed.fraction))
        typed.fraction.insert(std::min(at, typed.fraction.size()), 1, key.typed);
    else
        typed.fraction[at] = key.typed;
    typed.fraction.resize(std::min(typed.fraction.size(), static_cast<size_t>(places)));
    number.LayOut(std::move(typed), {true, index + 1});
    return index + 1 == places ? Outcome::Filled : Outcome::Taken;
}

// Behind an integer digit that was placed with right digits behind it: from a full part the caret goes on over the separators, and over
// the point where there is a fraction.
Outcome GoOn(const EditInstance& edit, NumberEdit& number, int32_t right)
{
    if (number.Mask().Grows() && number.FitsOneMore())
        return Outcome::Taken;
    const ShownNumber& shown = number.Shown();
    if (right == 0 && edit.decimalPlaces == 0)
        return Outcome::Filled;
    number.CarryTo(right == 0 ? shown.Point() + 1 : shown.NextDigit(number.Caret()));
    return Outcome::Taken;
}

// right: integer digits behind the place. Zeros in front that nobody typed hold no place, and one that is typed there is dropped.
Outcome InsertDigit(const EditInstance& edit, NumberEdit& number, Char digit, int32_t right)
{
    TypedNumber typed = number.HeldDigits();
    const int32_t behind = std::min(right, Length(typed.integer));
    if (digit != '0' || behind < Length(typed.integer))
        typed.integer.insert(typed.integer.size() - static_cast<size_t>(behind), 1, digit);
    number.LayOut(std::move(typed), {false, behind});
    return GoOn(edit, number, behind);
}

Outcome OverwriteDigit(const EditInstance& edit, NumberEdit& number, const NumericKey& key, int32_t right)
{
    if (right == 0) {
        if (number.Mask().shape.room == 0 && key.typed == '0')
            return Outcome::Taken;  // 0.5 may be typed where only .5 is shown
        return edit.decimalPlaces != 0 ? TypeIntoFraction(number, key, 0) : Outcome::Refused;
    }
    TypedNumber typed = number.Digits();
    typed.integer[typed.integer.size() - static_cast<size_t>(right)] = key.typed;
    number.LayOut(std::move(typed), {false, right - 1});
    return GoOn(edit, number, right - 1);
}

Outcome PlaceDigit(const EditInstance& edit, NumberEdit& number, const NumericKey& key)
{
    const DigitPlace place = number.Shown().PlaceAt(number.Caret());
    if (place.inFraction)
        return TypeIntoFraction(number, key, place.digits);
    if (number.Mask().Grows() && number.FitsOneMore())
        return InsertDigit(edit, number, key.typed, place.digits);
    return OverwriteDigit(edit, number, key, place.digits);
}

Outcome TypeDigit(EditInstance& edit, NumberEdit& number, const NumericKey& key)
{
    const int32_t caret = number.Caret();
    LeaveLiterals(number);
    const Outcome outcome = PlaceDigit(edit, number, key);
    if (outcome == Outcome::Refused)
        number.MoveTo(caret);
    MarkWhenFull(edit, number);
    return outcome;
}

// ---- sign and point

Outcome TypeSign(NumberEdit& number, Char typed)
{
    if (!number.Shown().IsAtFront(number.Caret()))
        return Outcome::Refused;
    TypedNumber digits = number.Digits();
    if (typed == '+' && !digits.negative)
        return Outcome::Taken;  // not shown
    digits.negative = typed == '-';
    const int32_t caret = number.Caret();
    number.LayOut(std::move(digits), number.Shown().Front());
    number.MoveTo(typed == '+' ? caret : number.Shown().PositionOf(number.Shown().Front()));
    return Outcome::Taken;
}

// Typed inside the integer part it drops what stands between the caret and the point.
Outcome TypePoint(EditInstance& edit, NumberEdit& number)
{
    const ShownNumber& shown = number.Shown();
    if (shown.IsInFraction(number.Caret()))
        return Outcome::Refused;
    TypedNumber typed = number.Digits();
    typed.negative = typed.negative && number.Caret() > shown.Sign();
    const int32_t dropped = std::min(shown.PlaceAt(number.Caret()).digits, Length(typed.integer));
    typed.integer.resize(typed.integer.size() - static_cast<size_t>(dropped));
    number.LayOut(dropped > 0 ? number.WithoutZerosInFront(std::move(typed)) : std::move(typed), {true, 0});
    ChooseEditMode(edit);
    return Outcome::Taken;
}

// ---- one key

// Nothing is left to fill behind the caret.
bool IsBehindNumber(const EditInstance& edit, const NumberEdit& number)
{
    const ShownNumber& shown = number.Shown();
    if (edit.decimalPlaces != 0)
        return shown.IsInFraction(number.Caret()) && shown.PlaceAt(number.Caret()).digits >= edit.decimalPlaces;
    return number.IsBehindText() && !(number.Mask().Grows() && number.FitsOneMore());
}

// The number laid anew, with the caret among the same digits.
void Relay(NumberEdit& number)
{
    const int32_t caret = number.Caret();
    const Text before = number.Shown().Shown();
    number.LayOut(number.WithoutZerosInFront(number.Digits()), number.Shown().PlaceAt(caret));
    if (number.Shown().Shown() == before)
        number.MoveTo(caret);
}

Outcome Enter(EditInstance& edit, NumberEdit& number, const NumericKey& key)
{
    if (const int32_t spelled = FindSpelled(edit, number, key); spelled >= 0) {
        PassSpelled(edit, number, spelled);
        return Outcome::Taken;
    }
    if (IsShownAtCaret(edit, number, key.typed)) {
        number.MoveTo(number.Caret() + 1);
        return Outcome::Taken;
    }
    if (IsBehindNumber(edit, number))
        return Outcome::Dropped;
    if (IsDigit(key.typed))
        return TypeDigit(edit, number, key);
    if (IsSign(key.typed))
        return TypeSign(number, key.typed);
    return IsDecimalChar(edit, key.typed) ? TypePoint(edit, number) : Outcome::Refused;
}

void Finish(EditInstance& edit, NumberEdit& number, Outcome outcome)
{
    if (outcome == Outcome::Refused)
        Relay(number);
    number.Show();
    if (outcome == Outcome::Refused)
        edit.field->Beep();
    else if (outcome == Outcome::Filled)
        MoveOnWhenFull(edit);
}

bool IsTypedInto(const EditInstance& edit)
{
    return !edit.table->number.isGeneral;
}

// What is selected goes, or one digit. Deleting makes the number one that grows again.
void DeleteBy(EditInstance& edit, Selection selection, bool (*deleteDigit)(NumberEdit&))
{
    if (!IsTypedInto(edit))
        return;
    NumberEdit number(edit, selection.start);
    if (!selection.IsEmpty())
        DeleteSelected(number, selection);
    else if (!deleteDigit(number))
        return PlaceCaret(edit, number.Caret());
    SetFlag(edit, CHARWISE, false);
    number.Show();
}

// Any other key that is taken has begun the number, a 0 that shows nothing too: literals are no more typed before it.
void NoteSpelled(EditInstance& edit, const NumericKey& key, Outcome outcome)
{
    if (outcome == Outcome::Refused)
        edit.spelled = key.spelled;
    else if (edit.spelled == 0)
        edit.spelled = kNoMore;
}

}  // namespace

// A separator over which typing has just carried the caret is taken as typed: 123.45 may be typed as it is read.
void EnterNumericChar(EditInstance& edit, Char typed, Selection selection)
{
    edit.field->KeepLayout();
    const CarriedOver carried = TakeCarriedOver(edit);
    const int32_t spelled = std::exchange(edit.spelled, 0);
    if (!IsTypedInto(edit))
        return edit.field->Beep();
    NumberEdit number(edit, selection.start);
    NumericKey key = {typed, selection.IsEmpty() ? spelled : 0, false};
    if (selection.IsEmpty()) {
        if (IsCarriedLiteral(edit, number.Shown().Shown(), carried, selection.start, typed))
            return;
        number.BringIntoForm();
    } else {
        key.insertsIntoFraction = number.Mask().Grows() && number.Shown().IsInFraction(selection.start);
        SetFlag(edit, CHARWISE, false);
        DeleteSelected(number, selection);
    }
    const Outcome outcome = Enter(edit, number, key);
    NoteSpelled(edit, key, outcome);
    Finish(edit, number, outcome);
}

void BackspaceInNumber(EditInstance& edit, Selection selection)
{
    DeleteBy(edit, selection, DeleteDigitBefore);
}

void DeleteInNumber(EditInstance& edit, Selection selection)
{
    DeleteBy(edit, selection, DeleteDigitAt);
}

// An entry of a code table may begin with a dash too: only what the mask shows is a number.
void CompleteNumber(EditInstance& edit)
{
    if (!IsNumeric(edit.dataType) || !HasMask(edit) || !IsTypedInto(edit))
        return;
    NumberEdit number(edit, Caret(edit));
    TypedNumber digits = number.Digits();
    if (!digits.negative || !number.IsZero() || !number.IsInForm() || edit.field->RefusesInput())
        return;
    digits.negative = false;
    number.LayOut(std::move(digits), number.Shown().PlaceAt(number.Caret()));
    number.Show();
}

}  // namespace zte
