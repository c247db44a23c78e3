// Canonical texts: dates, times, numbers, decimals. Bytes: settings, then lines.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "engine/services.h"
#include "engine/values/calendar.h"
#include "engine/values/date_time.h"
#include "engine/values/decimal_digits.h"
#include "engine/values/decimal_number.h"
#include "engine/values/number_text.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/regional.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using zte::Text;

constexpr DateTimeValue kUntouched = {1, 2, 3, 4, 5, 6, 7, 8};

bool IsSame(const DateTimeValue& one, const DateTimeValue& other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

Text CanonicalDate(const DateTimeValue& value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", value.year + 1900, value.month + 1, value.day);
    return text;
}

Text CanonicalTime(const DateTimeValue& value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d:%06u", value.hour, value.minute, value.second, value.microsecond);
    return text;
}

Text Canonical(const DateTimeValue& value, int32_t kind)
{
    const bool time = zte::HasTime(value);
    if (kind == DATETIME_KIND_TIME)
        return CanonicalTime(value);
    return CanonicalDate(value) + (time ? " " + CanonicalTime(value) : Text());
}

bool IsPossibleDate(const DateTimeValue& value)
{
    return value.year >= 1 - 1900 && value.year <= 9999 - 1900 && value.month >= 0 && value.month <= 11 && value.day >= 1 &&
           value.day <= zte::DaysInMonth(4, value);
}

bool IsPossibleTime(const DateTimeValue& value)
{
    return value.hour >= 0 && value.hour <= 23 && value.minute >= 0 && value.minute <= 59 && value.second >= 0 &&
           value.second <= 59 && value.microsecond <= 999999;
}

void CheckPossible(const DateTimeValue& value, int32_t kind, const Text& text)
{
    Demand(value.spare == 0, "the spare byte is 0", text);
    Demand(zte::HasDate(value) == (kind != DATETIME_KIND_TIME), "a text of the kind has its date", text);
    Demand(!zte::HasDate(value) || IsPossibleDate(value), "no impossible date is read", text);
    Demand(!zte::HasTime(value) || IsPossibleTime(value), "no impossible time is read", text);
}

void CheckDateTime(const Text& text, int32_t kind, const zte::Settings& settings)
{
    CountStep();
    DateTimeValue value = kUntouched;
    if (!zte::ParseDateTime(value, text.c_str(), kind, settings)) {
        Demand(IsSame(value, kUntouched), "a text that is refused leaves the value", text);
        return;
    }
    CheckPossible(value, kind, text);
    CountStep();
    DateTimeValue again = kUntouched;
    const Text canonical = Canonical(value, kind);
    Demand(zte::ParseDateTime(again, canonical.c_str(), kind, settings) && IsSame(again, value),
           "a value's canonical text is that value", canonical, text);
}

// What the C library makes of a number text, where both speak of the same grammar.
void CheckNumber(const Text& text, const zte::Settings& settings)
{
    CountStep(2);
    const double value = zte::NumberFromPlainText(text.c_str());
    Demand(!std::isnan(value), "a text gives a number", text);
    if (!zte::IsNumberText(text.c_str(), '.'))
        return;
    const double expected = std::strtod(text.c_str(), nullptr);
    Demand(value == expected, "a number text is its number", text);
    Demand(zte::IsNumberText(text.c_str(), settings.decimalChar), "the point is a point under every setting", text);
}

Text DigitsOf(const DecimalValue& value)
{
    const zte::DecimalDigits digits = zte::DecimalDigits::FromDecimal(value);
    Text text = digits.IsNegative() ? "-" : "";
    for (int32_t at = 0; at < digits.PointPos(); ++at)
        text += digits.At(at);
    if (digits.FractionDigits() > 0) {
        text += '.';
        for (int32_t at = 0; at < digits.FractionDigits(); ++at)
            text += digits.At(digits.PointPos() + at);
    }
    return text;
}

int32_t SignificantDigits(const DecimalValue& value)
{
    return zte::DecimalDigits::FromDecimal(value).Count();
}

bool IsValid(const DecimalValue& value)
{
    return value.scale <= 28 && (value.sign == 0 || value.sign == 0x80) && value.reserved == 0;
}

void CheckDecimal(const Text& text, int32_t places)
{
    CountStep(2);
    const DecimalValue value = zte::services::DecimalOf(text.c_str(), places);
    Demand(IsValid(value), "a decimal read is a valid record", text);
    const Text written = DigitsOf(value);
    const DecimalValue again = zte::services::DecimalOf(written.c_str(), 0);
    Demand(zte::services::Compare(value, again) == 0, "the digits of a decimal are that decimal", text, written);
}

// Sums inside twenty-eight digits are exact, so that what was added can be taken away again.
void CheckArithmetic(const Text& firstText, const Text& secondText)
{
    CountStep(4);
    const DecimalValue first = zte::services::DecimalOf(firstText.c_str(), 0);
    const DecimalValue second = zte::services::DecimalOf(secondText.c_str(), 0);
    Demand(zte::services::Compare(first, second) == -zte::services::Compare(second, first), "an order has two sides", firstText,
           secondText);
    const DecimalValue sum = zte::services::Add(first, second);
    Demand(IsValid(sum) && IsValid(zte::services::Subtract(first, second)) && IsValid(zte::services::Divide(first, second)),
           "results are valid records", firstText, secondText);
    Demand(zte::services::Compare(sum, zte::services::Add(second, first)) == 0, "a sum has no order", firstText, secondText);
    const bool isExact = first.hi32 == 0 && second.hi32 == 0 && first.lo64 < 10'000'000'000'000u &&
                         second.lo64 < 10'000'000'000'000u && first.scale <= 13 && second.scale <= 13;
    if (isExact && SignificantDigits(first) <= 13 && SignificantDigits(second) <= 13)
        Demand(zte::services::Compare(zte::services::Subtract(sum, second), first) == 0, "what was added is taken away again",
               firstText, secondText);
}

}  // namespace

void PlayCanonical(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const zte::Settings& settings = RegionalSettings(bytes.Take());
    const int32_t places = bytes.Take() - 64;
    Text before = "0";
    while (!bytes.IsEmpty()) {
        const Text text = bytes.TakeLine();
        for (const int32_t kind : {DATETIME_KIND_BOTH, DATETIME_KIND_DATE, DATETIME_KIND_TIME})
            CheckDateTime(text, kind, settings);
        CheckNumber(text, settings);
        CheckDecimal(text, places);
        CheckArithmetic(before, text);
        before = text;
    }
}

}  // namespace zttest
