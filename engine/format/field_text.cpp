// Reads the year and the month out of the text now shown.
#include "engine/format/field_text.h"

#include "engine/mask/mask_table.h"
#include "engine/values/date_time.h"
#include "engine/values/month_names.h"

namespace zte {

namespace {

Text Cut(const Text& text, MaskSpan field)
{
    return Slice(text, field.offset, field.length);
}

}  // namespace

int32_t YearFromText(const EditInstance& edit, const Text& text)
{
    const MaskSpan field = edit.table->year;
    return field.length == 0 ? 0 : YearValue(IntegerOf(Cut(text, field)), field.length);
}

int32_t MonthFromText(const EditInstance& edit, const Text& text)
{
    const MaskSpan field = edit.table->month;
    if (field.length == 0)
        return 0;
    const Text month = Cut(text.empty() ? text : text.substr(0, text.size() - 1), field);
    return field.length == 2 ? IntegerOf(month) : MonthFromName(*edit.settings, month) + 1;
}

}  // namespace zte
