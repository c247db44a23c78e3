// The regional conventions that stand in where nobody has set others.
#include "engine/values/settings.h"

#include "engine/text/ascii.h"

namespace zte {

namespace {

constexpr const char* kMonthNames[kMonths] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                              "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

constexpr bool IsAsciiLetter(Char c)
{
    return AsciiUpper(c) >= 'A' && AsciiUpper(c) <= 'Z';
}
constexpr Char AsciiLower(Char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<Char>(c - 'A' + 'a') : c;
}

}  // namespace

const Letters kAsciiLetters = {IsAsciiLetter, AsciiUpper, AsciiLower};

Settings StandardSettings()
{
    Settings settings{};
    settings.decimalChar = '.';
    settings.thousandChar = ',';
    Assign(settings.currencySymbol, FromAscii("$"));
    settings.currencyDigits = 2;
    Assign(settings.amString, FromAscii("AM"));
    Assign(settings.pmString, FromAscii("PM"));
    Assign(settings.shortDate, FromAscii("m/d/yy"));
    Assign(settings.timeSeparator, FromAscii(":"));
    const char* const* name = kMonthNames;
    for (auto& month : settings.monthNames)
        Assign(month, FromAscii(*name++));
    settings.letters = &kAsciiLetters;
    return settings;
}

Text Folded(const Settings& settings, Text text)
{
    for (Char& c : text)
        c = settings.letters->upper(c);
    return text;
}

}  // namespace zte
