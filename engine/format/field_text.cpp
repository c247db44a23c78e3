// Reads the year and the month out of the text now shown.
#include "engine/format/field_text.h"

#include <algorithm>

#include "engine/mask/mask_table.h"
#include "engine/values/date_time.h"
#include "engine/values/month_names.h"

namespace zte {

namespace {

// Kept: a month at the end of the text is read without its last character.
int32_t MonthLength(const Text& text, int32_t start, int32_t length)
{
    return std::min(length, Length(text) - 1 - start);
}

}  // namespace

int32_t YearFromText(const EditInstance& edit, const Text& text)
{
    const MaskSpan field = edit.table->year;
    return field.length == 0 ? 0
                             : YearValue(IntegerAt(text, FieldStart(edit, text, field), field.length), field.length);
}

int32_t MonthFromText(const EditInstance& edit, const Text& text)
{
    const MaskSpan field = edit.table->month;
    if (field.length == 0)
        return 0;
    const int32_t start = FieldStart(edit, text, field);
    const int32_t length = MonthLength(text, start, field.length);
    return field.length == 2 ? IntegerAt(text, start, length)
                             : MonthFromName(*edit.settings, Slice(text, start, length)) + 1;
}

}  // namespace zte
