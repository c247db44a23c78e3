// The range of a spin: its text, the ends of date and time ranges, and the order of two values.
#include "engine/spin/range.h"

#include <cmath>
#include <tuple>

#include "engine/format/date_text.h"
#include "engine/values/caller_value.h"

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

// Nothing is earlier than what is not there: its hour, or its year, is less than any other.
bool IsTimeEarlier(const DateTimeValue& first, const DateTimeValue& second)
{
    return HasTime(second) && TimePart(second) < TimePart(first);
}

bool IsDateEarlier(const DateTimeValue& first, const DateTimeValue& second)
{
    return HasDate(second) && DatePart(second) < DatePart(first);
}

// Decimals are compared by their first eight bytes as doubles; kept, callers pass doubles for both types.
bool IsSmaller(const void* first, const void* second)
{
    const auto one = ReadValue<double>(first);
    const auto other = ReadValue<double>(second);
    return std::fabs(one) > 0.0 && std::fabs(other) > 0.0 && other < one;
}

}  // namespace

RangeText SplitRange(const Char* range)
{
    if (!range)
        return {};
    const int32_t tilde = Find(range, '~');
    if (tilde < 0)
        return {range, {}};
    return {Text(range, range + tilde), range + tilde + 1};
}

int32_t ReadRangeEnd(const EditInstance& edit, DateTimeValue& value, const Text& text)
{
    value = kEmptyDateTime;
    if (!IsDateOrTime(edit.dataType) || (edit.mask && ReadDisplayText(edit, text, value, kEscapeWidth)))
        return 0;
    return ParseCanonical(edit, text.c_str(), value) ? 0 : 1;
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

bool IsOutOfOrder(int32_t dataType, const void* first, const void* second)
{
    if (IsNumeric(dataType))
        return IsSmaller(first, second);
    return IsDateOrTime(dataType) &&
           IsOutOfOrder(dataType, ReadValue<DateTimeValue>(first), ReadValue<DateTimeValue>(second));
}

}  // namespace zte
