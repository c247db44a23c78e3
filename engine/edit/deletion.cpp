// Deleting with the literals kept.
#include "engine/edit/deletion.h"

#include <algorithm>

#include "engine/format/display.h"
#include "engine/format/reformat_number.h"
#include "engine/mask/half_of_day.h"
#include "engine/mask/mask_table.h"
#include "engine/values/number_layout.h"

namespace zte {

namespace {

// What the selected positions show when nothing is typed there. The AM/PM field stays: it has no blank.
Text BlankOf(EditInstance& edit, Selection selection)
{
    Text blank = FormatValue(edit, nullptr).text;
    if (HasAmPmField(edit) && ShownHalf(edit, blank)) {
        const Text text = edit.field->ReadText();
        const int32_t marker = edit.table->ampmPosition;
        blank.replace(static_cast<size_t>(marker), static_cast<size_t>(AmPmWidth(edit, blank)),
                      Slice(text, marker, AmPmWidth(edit, text)));
    }
    return Slice(blank, selection.start, selection.end - selection.start);
}

void DeletePositions(EditInstance& edit, Selection selection)
{
    edit.field->ReplaceSelection(BlankOf(edit, selection).c_str());
    PlaceCaret(edit, selection.start);
}

// The number that is left when the decimal character went with the selection: few digits are taken as fraction digits.
Text WithoutPoint(const EditInstance& edit, const Text& text)
{
    const Char decimalChar = edit.settings->decimalChar;
    const bool isFraction = edit.decimalPlaces + 1 >= Length(text);
    return isFraction && At(text, 0) != decimalChar ? decimalChar + text : text;
}

void DeleteDigits(EditInstance& edit, Selection selection, bool typing)
{
    const int32_t start = std::max(selection.start, edit.firstFieldPos);
    SetFlag(edit, CHARWISE, false);
    if (typing)
        edit.flags |= TYPING;
    const int32_t point = DecimalCharPos(edit.field->ReadText(), edit.settings->decimalChar);
    edit.field->ReplaceSelection(Text().c_str());

    const Text left = edit.field->ReadText();
    const bool pointDeleted = edit.decimalPlaces != 0 && start <= point && point <= selection.end;
    if (pointDeleted && (!typing || !left.empty()))
        ReformatNumber(edit, WithoutPoint(edit, left));
    else if (!typing && (edit.decimalPlaces != 0 || !left.empty()))
        ReformatNumber(edit, left);
    PlaceCaret(edit, start);
}

}  // namespace

bool DeleteSelection(EditInstance& edit, Selection selection, bool typing)
{
    if (selection.IsEmpty())
        return false;
    edit.carriedTo = 0;
    if (IsNumeric(edit.dataType))
        DeleteDigits(edit, selection, typing);
    else
        DeletePositions(edit, selection);
    return true;
}

}  // namespace zte
