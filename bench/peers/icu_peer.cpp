// ICU's formatters, made once as one is told to: a value into text, a text into a value. It has no keys.
#include <benchmark/benchmark.h>
#include <unicode/calendar.h>
#include <unicode/decimfmt.h>
#include <unicode/smpdtfmt.h>

#include <cstdlib>
#include <memory>

#include "bench/peers/measure.h"
#include "bench/peers/peers.h"

namespace peers {

namespace {

void Expect(UErrorCode status, const Case& row)
{
    if (U_SUCCESS(status))
        return;
    std::fprintf(stderr, "FAILED: ICU, %s: %s\n", row.name.c_str(), u_errorName(status));
    std::exit(1);
}

std::string InBytes(const icu::UnicodeString& text)
{
    std::string bytes;
    return text.toUTF8String(bytes);
}

std::unique_ptr<icu::SimpleDateFormat> DateFormat(const Case& row, const char* pattern)
{
    UErrorCode status = U_ZERO_ERROR;
    auto format =
        std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString::fromUTF8(pattern), icu::Locale::getUS(), status);
    Expect(status, row);
    format->setTimeZone(*icu::TimeZone::getGMT());
    return format;
}

std::unique_ptr<icu::DecimalFormat> NumberFormat(const Case& row)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(icu::Locale::getUS(), status);
    auto format = std::make_unique<icu::DecimalFormat>(icu::UnicodeString::fromUTF8(row.icu), symbols, status);
    Expect(status, row);
    return format;
}

Timed Formats(const Case& row)
{
    return {"ICU", row.name, "formats"};
}
Timed Reads(const Case& row)
{
    return {"ICU", row.name, "reads"};
}

// Its value is a time of day on a day, in milliseconds.
void MeasureDateTime(const Case& row, const char* canonicalPattern)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto canonical = DateFormat(row, canonicalPattern);
    const auto format = DateFormat(row, row.icu.c_str());
    const UDate value = canonical->parse(icu::UnicodeString::fromUTF8(row.value), status);
    const icu::UnicodeString shown = icu::UnicodeString::fromUTF8(row.text);
    const auto show = [&] {
        icu::UnicodeString text;
        return format->format(value, text);
    };
    const auto read = [&] { return format->parse(shown, status); };
    icu::UnicodeString readAgain;
    canonical->format(read(), readAgain);
    Expect(status, row);
    Measure(Formats(row), InBytes(show()), [&] { benchmark::DoNotOptimize(show()); });
    Measure(Reads(row), InBytes(readAgain), [&] { benchmark::DoNotOptimize(read()); });
}

void MeasureDate(const Case& row)
{
    MeasureDateTime(row, "yyyy-MM-dd");
}

void MeasureTime(const Case& row)
{
    MeasureDateTime(row, "HH:mm:ss");
}

void MeasureNumber(const Case& row)
{
    const auto format = NumberFormat(row);
    const double value = std::strtod(row.value.c_str(), nullptr);
    const icu::UnicodeString shown = icu::UnicodeString::fromUTF8(row.text);
    UErrorCode status = U_ZERO_ERROR;
    const auto show = [&] {
        icu::UnicodeString text;
        return format->format(value, text);
    };
    const auto read = [&] {
        icu::Formattable result;
        format->parse(shown, result, status);
        return result.getDouble(status);
    };
    const bool right = read() == value;
    Expect(status, row);
    Measure(Formats(row), InBytes(show()), [&] { benchmark::DoNotOptimize(show()); });
    Measure(Reads(row), right ? row.value : "another value", [&] { benchmark::DoNotOptimize(read()); });
}

// ICU may tell the digits with an exponent.
bool SameDecimal(const std::string& one, const std::string& other)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString texts[2];
    const icu::DecimalFormatSymbols symbols(icu::Locale::getUS(), status);
    const icu::DecimalFormat plain(icu::UnicodeString::fromUTF8("0.0#########"), symbols, status);
    plain.format(icu::StringPiece(one), texts[0], nullptr, status);
    plain.format(icu::StringPiece(other), texts[1], nullptr, status);
    return U_SUCCESS(status) && texts[0] == texts[1];
}

// Exact: its value is a text of digits.
void MeasureDecimal(const Case& row)
{
    const auto format = NumberFormat(row);
    const icu::UnicodeString shown = icu::UnicodeString::fromUTF8(row.text);
    UErrorCode status = U_ZERO_ERROR;
    const auto show = [&] {
        icu::UnicodeString text;
        return format->format(icu::StringPiece(row.value), text, nullptr, status);
    };
    const auto read = [&] {
        icu::Formattable result;
        format->parse(shown, result, status);
        const icu::StringPiece digits = result.getDecimalNumber(status);
        return std::string(digits.data(), static_cast<size_t>(digits.length()));
    };
    const bool right = SameDecimal(read(), row.value);
    Expect(status, row);
    Measure(Formats(row), InBytes(show()), [&] { benchmark::DoNotOptimize(show()); });
    Measure(Reads(row), right ? row.value : "another value", [&] { benchmark::DoNotOptimize(read()); });
}

struct Type {
    const char* name;
    void (*measure)(const Case& row);
};

constexpr Type kTypes[] = {
    {"date",    MeasureDate   },
    {"time",    MeasureTime   },
    {"number",  MeasureNumber },
    {"decimal", MeasureDecimal},
};

}  // namespace

void MeasureIcu(const Case& row)
{
    for (const Type& type : kTypes)
        if (row.type == type.name && row.icu != "-")
            type.measure(row);
}

}  // namespace peers
