// Deleting with the literals kept.
#include "edit/deletion.h"

#include <algorithm>
#include <string>

#include "core/base_edit.h"
#include "edit/number_layout.h"
#include "format/display.h"
#include "format/read_back.h"
#include "intl/regional_settings.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

// What the selected positions show when nothing is typed there. The AM/PM field stays: it has no blank.
std::string BlankOf(EditInstance& edit, Selection selection)
{
    const std::string blank = FormatValue(edit, nullptr).text;
    const std::string text = HasAmPmField(edit) ? ReadText(edit) : std::string();
    std::string part;
    for (int32_t i = selection.start; i < selection.end && i < static_cast<int32_t>(blank.size()); ++i) {
        const auto at = static_cast<size_t>(i);
        part += IsInsideAmPmField(edit, i) && at < text.size() ? text[at] : blank[at];
    }
    return part;
}

void DeletePositions(EditInstance& edit, Selection selection)
{
    ReplaceSelection(edit, BlankOf(edit, selection).c_str());
    PlaceCaret(edit, selection.start);
}

// The number that is left when the decimal character went with the selection: few digits are taken as fraction digits.
std::string WithoutPoint(const EditInstance& edit, std::string text)
{
    const bool isFraction = edit.decimalPlaces + 1 >= static_cast<int32_t>(text.size());
    if (isFraction && (text.empty() || text[0] != DecimalChar()))
        text.insert(text.begin(), DecimalChar());
    return text;
}

void DeleteDigits(EditInstance& edit, Selection selection, bool typing)
{
    const int32_t start = std::max(selection.start, edit.firstFieldPos);
    SetFlag(edit, CHARWISE, false);
    if (typing)
        edit.flags |= TYPING;
    const int32_t point = DecimalCharPos(ReadText(edit));
    ReplaceSelection(edit, "");

    const std::string left = ReadText(edit);
    const bool pointDeleted = edit.decimalPlaces != 0 && start <= point && point <= selection.end;
    if (pointDeleted && (!typing || !left.empty()))
        ReformatNumber(edit, WithoutPoint(edit, left).c_str());
    else if (!typing && (edit.decimalPlaces != 0 || !left.empty()))
        ReformatNumber(edit, left.c_str());
    PlaceCaret(edit, start);
}

}  // namespace

bool DeleteSelection(EditInstance& edit, bool typing)
{
    const Selection selection = GetSelection(edit);
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
