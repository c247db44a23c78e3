// The ends of a date or time range, and the order of two values.
#include "spin/date_range.h"

#include <cmath>
#include <cstring>
#include <tuple>

#include "core/instance.h"
#include "format/date_walk.h"

namespace zte {

namespace {

constexpr int32_t kEscapeWidth = 2;  // a literal written with "~" is passed with its neighbour; kept

auto DatePart(const DateTimeValue& value)
{
    return std::make_tuple(value.year, value.month, value.day);
}

auto TimePart(const DateTimeValue& value)
{
    return std::make_tuple(value.hour, value.minute, value.second, value.microsecond);
}

bool IsTimeEarlier(const DateTimeValue& first, const DateTimeValue& second)
{
    return HasTime(first) && HasTime(second) && TimePart(second) < TimePart(first);
}

bool IsDateEarlier(const DateTimeValue& first, const DateTimeValue& second)
{
    return HasDate(first) && HasDate(second) && DatePart(second) < DatePart(first);
}

// A zero on either side is no bound.
bool IsSmaller(const void* first, const void* second)
{
    double numbers[2];
    std::memcpy(&numbers[0], first, sizeof(double));
    std::memcpy(&numbers[1], second, sizeof(double));
    return std::fabs(numbers[0]) > 0.0 && std::fabs(numbers[1]) > 0.0 && numbers[1] < numbers[0];
}

}  // namespace

int32_t ReadRangeEnd(EditInstance& edit, DateTimeValue& value, const char* text)
{
    value = kEmptyDateTime;
    if (!IsDateOrTime(edit.dataType))
        return 0;
    if (LooksLikeDisplayText(edit, text) && WalkDateText(edit, text, value, kEscapeWidth) &&
        CheckByCanonicalText(edit.dataType, value))
        return 0;
    return ParseCanonical(edit.dataType, text, value);
}

bool IsOutOfOrder(int32_t dataType, const DateTimeValue& first, const DateTimeValue& second)
{
    if (dataType == DT_DATE)
        return IsDateEarlier(first, second);
    if (dataType == DT_TIME)
        return IsTimeEarlier(first, second);
    if (HasDate(first) && HasDate(second) && DatePart(first) != DatePart(second))
        return IsDateEarlier(first, second);
    return IsTimeEarlier(first, second);
}

}  // namespace zte

using namespace zte;

int16_t WINAPI ZTE_SpinDateRange(HWND hwnd, DateTimeValue* value, const char* text)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit || !value || !text)
        return 1;
    return static_cast<int16_t>(ReadRangeEnd(*edit, *value, text));
}

// Decimals are compared by their first eight bytes as doubles; kept, callers pass doubles for both types.
int16_t WINAPI ZTE_SpinRangeCompare(HWND hwnd, const void* first, const void* second)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 1;
    if (!first || !second)
        return 0;
    if (IsNumeric(edit->dataType))
        return IsSmaller(first, second);
    if (!IsDateOrTime(edit->dataType))
        return 0;
    return IsOutOfOrder(edit->dataType, *static_cast<const DateTimeValue*>(first),
                        *static_cast<const DateTimeValue*>(second));
}
