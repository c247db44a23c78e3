// Reads the year and the month out of the text now shown.
#include "engine/format/field_text.h"

#include "engine/mask/mask_table.h"
#include "engine/values/date_time.h"
#include "engine/values/month_names.h"

namespace zte {

namespace {

Text Cut(const EditInstance& edit, const Text& text, const MaskSpan& field)
{
    return Slice(text, FieldStart(edit, text, field), field.length);
}

}  // namespace

int32_t YearFromText(const EditInstance& edit, const Text& text)
{
    const MaskSpan field = edit.table->year;
    return field.length == 0 ? 0 : YearValue(IntegerOf(Cut(edit, text, field)), field.length);
}

int32_t MonthFromText(const EditInstance& edit, const Text& text)
{
    const MaskSpan field = edit.table->month;
    if (field.length == 0)
        return 0;
    Text month = Cut(edit, text, field);
    if (FieldStart(edit, text, field) + Length(month) == Length(text) && !month.empty())
        month.pop_back();
    return field.length == 2 ? IntegerOf(month) : MonthFromName(*edit.settings, month) + 1;
}

}  // namespace zte
