// Regional settings by number.
#include "tests/fuzz/regional.h"

#include <vector>

#include "tests/support/currencies.h"

namespace zttest {
namespace {

using zte::Settings;
using zte::Text;

// Pictures of dates and clocks in use, in turn with the money.
struct Clockwork {
    const char* shortDate;
    const char* timeSeparator;
    const char* am;
    const char* pm;
};

constexpr Clockwork kClockworks[] = {
    {"m/d/yy",          ":", "AM",    "PM"   },
    {"dd.MM.yyyy",      ":", "",      ""     },
    {"yyyy-MM-dd",      ".", "am",    "pm"   },
    {"d. M. yyyy",      ":", "vorm.", "nachm"},
    {"dd-MMM-yy",       ":", "AM",    "PM"   },
    {"d 'de' MMM yyyy", "h", "a.m.",  "p.m." },
    {"yyyy.MM.dd.",     ".", "de.",   "du."  },
    {"dd/MM/yyyy",      ":", "A",     "P"    },
};
constexpr size_t kClockworkCount = sizeof kClockworks / sizeof kClockworks[0];

constexpr const char* kGermanMonths[zte::kMonths] = {"Jan", "Feb", "M\xE4r", "Apr", "Mai", "Jun",
                                                     "Jul", "Aug", "Sep",    "Okt", "Nov", "Dez"};

void Set(Settings& settings, const Clockwork& clockwork)
{
    zte::Assign(settings.shortDate, clockwork.shortDate);
    zte::Assign(settings.timeSeparator, clockwork.timeSeparator);
    zte::Assign(settings.amString, clockwork.am);
    zte::Assign(settings.pmString, clockwork.pm);
}

void Set(Settings& settings, const CurrencySettings& money)
{
    settings.decimalChar = money.decimal[0] ? money.decimal[0] : '.';
    settings.thousandChar = money.thousand[0] ? money.thousand[0] : ',';
    zte::Assign(settings.currencySymbol, money.symbol);
    settings.currencyPosition = money.position;
    settings.currencyDigits = money.digits;
}

std::vector<Settings> AllSettings()
{
    std::vector<Settings> all;
    for (const Clockwork& clockwork : kClockworks) {
        all.push_back(zte::StandardSettings());
        Set(all.back(), clockwork);
    }
    for (size_t row = 0; row < kCurrencyCount; ++row) {
        all.push_back(zte::StandardSettings());
        Set(all.back(), kClockworks[row % kClockworkCount]);
        Set(all.back(), kCurrencies[row]);
        if (row % 3 == 0)
            for (int month = 0; month < zte::kMonths; ++month)
                zte::Assign(all.back().monthNames[month], kGermanMonths[month]);
    }
    return all;
}

const std::vector<Settings>& Table()
{
    static const std::vector<Settings> table = AllSettings();
    return table;
}

}  // namespace

const Settings& RegionalSettings(uint8_t choice)
{
    return Table()[choice % Table().size()];
}

uint32_t RegionalCount()
{
    return static_cast<uint32_t>(Table().size());
}

}  // namespace zttest
