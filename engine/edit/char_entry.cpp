// Typing into strings, dates and times: an accepted character overwrites positions, literals are passed.
#include "engine/edit/char_entry.h"

#include "engine/edit/caret.h"
#include "engine/edit/validators.h"
#include "engine/mask/half_of_day.h"
#include "engine/text/ascii.h"

namespace zte {

namespace {

// Where a character is typed: before the first field it is meant for that field.
int32_t PlaceToType(const EditInstance& edit, const Text& text, int32_t caret)
{
    return caret < edit.firstFieldPos && !PositionOf(edit, text, caret).IsEditable() ? edit.firstFieldPos : caret;
}

// The half of the day that the character chooses, wherever the caret is; a letter that its own position takes belongs there.
std::optional<HalfOfDay> HalfMeant(const EditInstance& edit, const Text& text, int32_t caret, Char typed)
{
    const std::optional<HalfOfDay> half = HalfTyped(edit, text, typed);
    if (!half)
        return std::nullopt;
    const int32_t place = PlaceToType(edit, text, caret);
    const bool taken = place < ShownLength(edit, text) && Validate({edit, text, place, typed}).accepted;
    return taken ? std::nullopt : half;
}

// The next literal, not written with "~", that shows the character; -1 when there is none.
int32_t FindLiteralAhead(const EditInstance& edit, const Text& text, int32_t position, Char typed)
{
    for (int32_t at = position + 1; at < Length(text) && at < ShownLength(edit, text); ++at)
        if (At(text, at) == typed && PositionOf(edit, text, at).IsPlainLiteral())
            return at;
    return -1;
}

bool IsPaddable(FieldKind kind)
{
    return kind == FieldKind::Month || kind == FieldKind::Day || kind == FieldKind::Hour || kind == FieldKind::Minute ||
           kind == FieldKind::Second;
}

bool IsSecondDigitOfTwo(const EditInstance& edit, const Text& text, int32_t position)
{
    const MaskPosition& mask = PositionOf(edit, text, position);
    return IsPaddable(mask.kind) && mask.runBefore == 1 && mask.runAfter == 0;
}

// A single digit before the separator typed, which stands further on, becomes "0" and the digit.
void PadFieldDigit(EditInstance& edit, const Text& text, int32_t position)
{
    if (!IsSecondDigitOfTwo(edit, text, position))
        return;
    const Char digit = At(text, position - 1);
    if (!IsDigit(digit) || digit == '0')
        return;
    Text padded = text;
    padded[static_cast<size_t>(position)] = digit;
    padded[static_cast<size_t>(position) - 1] = '0';
    edit.field->SetText(padded.c_str());
    edit.field->SetModified();
}

// A padded digit fills its field; the rest of a month name, or a digit that only pulls a 0 behind it, leaves the caret on the
// next position, so that typing can go on there.
int32_t CaretBehind(const EditInstance& edit, int32_t placedAt, Char typed)
{
    const bool fills = edit.typedChar[0] == '0' && typed != '0';
    return placedAt + (fills ? 2 : 1);
}

// Puts typedChar in the place of positions. Redrawing is on again before the replacement, so that it paints once.
void Overwrite(EditInstance& edit, int32_t position, int32_t length)
{
    edit.field->SetRedraw(false);
    edit.field->Select(position, position + length);
    edit.field->SetRedraw(true);
    edit.field->ReplaceSelection(edit.typedChar);
}

// Overwrites as many positions as typedChar has characters.
int32_t Place(EditInstance& edit, int32_t position, Char typed)
{
    const auto length = static_cast<int32_t>(BoundedLength(edit.typedChar, Verdict::kRoom));
    if (length == 0)
        return Caret(edit);
    Overwrite(edit, position, length);
    const bool isPart = length > 1 && Has(edit, ZERO_PADDED);
    SetFlag(edit, ZERO_PADDED, false);
    if (!isPart)
        return Caret(edit);
    const int32_t caret = CaretBehind(edit, position, typed);
    PlaceCaret(edit, caret);
    return caret;
}

// Past the literals to the next position; where none follows the field is full and the focus may move on.
void GoOn(EditInstance& edit, const Text& text, int32_t caret)
{
    if (!SkipLiterals(edit, text, caret))
        MoveOnWhenFull(edit);
}

void PlaceAndGoOn(EditInstance& edit, const Text& text, int32_t position, Char typed)
{
    const int32_t caret = Place(edit, position, typed);
    GoOn(edit, text, caret);
}

// The whole designator, which may be longer or shorter than the one shown.
void PlaceHalf(EditInstance& edit, const Text& text, HalfOfDay half)
{
    KeepVerdict(edit, Verdict::Placing(DesignatorOf(*edit.settings, half)));
    Overwrite(edit, edit.table->ampmPosition, AmPmWidth(edit, text));
    GoOn(edit, edit.field->ReadText(), Caret(edit));
}

// True when the character chooses a half of the day.
bool EnterHalf(EditInstance& edit, const Text& text, int32_t caret, Char typed)
{
    const std::optional<HalfOfDay> half = HalfMeant(edit, text, caret, typed);
    if (half)
        PlaceHalf(edit, text, *half);
    return half.has_value();
}

// A refused character that is a literal further on skips to it.
void SkipAhead(EditInstance& edit, const Text& text, int32_t position, Char typed)
{
    const int32_t literal = FindLiteralAhead(edit, text, position, typed);
    if (literal < 0)
        return edit.field->Beep();
    PadFieldDigit(edit, text, position);
    PlaceCaret(edit, literal + 1);
    GoOn(edit, text, literal + 1);
}

// True when the character was accepted. The verdict is in the record.
bool IsAccepted(EditInstance& edit, const Entry& entry)
{
    const Verdict verdict = Validate(entry);
    KeepVerdict(edit, verdict);
    return verdict.accepted;
}

// On a literal: before the first field the character is meant for that field, anywhere else it is refused.
void EnterOnLiteral(EditInstance& edit, const Text& text, int32_t position, Char typed)
{
    const int32_t first = edit.firstFieldPos;
    if (position >= first)
        return edit.field->Beep();
    PlaceCaret(edit, first);
    const Entry entry(edit, text, first, typed);
    if (!entry.mask.IsEditable())
        return GoOn(edit, text, first);
    if (!IsAccepted(edit, entry))
        return edit.field->Beep();
    PlaceAndGoOn(edit, text, first, typed);
}

}  // namespace

void EnterChar(EditInstance& edit, Char typed, int32_t caret)
{
    edit.field->KeepLayout();
    ForgetVerdict(edit);
    const CarriedOver carried = TakeCarriedOver(edit);
    const Text text = edit.field->ReadText();
    if (HasAmPmField(edit) && EnterHalf(edit, text, caret, typed))
        return;
    if (edit.displayLength > 0 && caret >= ShownLength(edit, text))
        return;
    if (IsCarriedLiteral(edit, text, carried, caret, typed))
        return;
    const Entry entry(edit, text, caret, typed);
    if (!entry.mask.IsEditable())
        EnterOnLiteral(edit, text, caret, typed);
    else if (IsAccepted(edit, entry))
        PlaceAndGoOn(edit, text, caret, typed);
    else
        SkipAhead(edit, text, caret, typed);
}

}  // namespace zte
