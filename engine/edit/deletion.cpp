// Deleting with the literals kept.
#include "engine/edit/deletion.h"

#include <algorithm>

#include "engine/edit/numeric_entry.h"
#include "engine/format/display.h"
#include "engine/mask/half_of_day.h"
#include "engine/mask/mask_table.h"

namespace zte {

namespace {

// What the selected positions show when nothing is typed there. The AM/PM field stays: it has no blank. A code table may have an entry
// for no value, which is no display of fields.
Text BlankOf(EditInstance& edit, Selection selection)
{
    Text blank = FormatValue(edit, nullptr).text;
    if (HasAmPmField(edit) && !Has(edit, CODE_POSITIONED)) {
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

}  // namespace

void ClearSelected(EditInstance& edit, Selection selection)
{
    ForgetPassed(edit);
    if (IsNumeric(edit.dataType))
        DeleteInNumber(edit, selection);
    else
        DeletePositions(edit, selection);
}

}  // namespace zte
