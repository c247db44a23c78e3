// Regional settings for tests.
// Only keys that differ are written, since each write may go to the disk.
#include "tests/support/profile.h"

#include <cstring>

namespace zttest {
namespace {

RegionalSet Complete(const char* decimal, const char* thousand, const char* currency, const char* currencyPosition,
                     const char* shortDate)
{
    return {
        {"sDecimal",    decimal         },
        {"sThousand",   thousand        },
        {"sCurrency",   currency        },
        {"iCurrency",   currencyPosition},
        {"iCurrDigits", "2"             },
        {"iNegCurr",    "0"             },
        {"s1159",       "AM"            },
        {"s2359",       "PM"            },
        {"sShortDate",  shortDate       },
        {"sTime",       ":"             }
    };
}

}  // namespace

const RegionalSet kUnitedStates = Complete(".", ",", "$", "0", "M/d/yyyy");
const RegionalSet kGerman = Complete(",", ".", "EUR", "1", "dd.MM.yyyy");
const RegionalSet kFrench = Complete(",", " ", "F", "1", "dd/MM/yyyy");
const RegionalSet kSwiss = Complete(".", "'", "CHF", "0", "dd.MM.yyyy");
const RegionalSet kIso = Complete(".", ",", "$", "0", "yyyy-MM-dd");

Regional::Regional(const RegionalSet& values)
{
    for (const ProfileValue& entry : values) {
        const std::string wanted = entry.value ? entry.value : kAbsent;
        const std::string current = ReadProfile(entry.key);
        if (current == wanted)
            continue;
        previous_.emplace_back(entry.key, current);
        WriteProfile(entry.key, wanted);
    }
    TellRegionalChange();
}

Regional::~Regional()
{
    for (auto entry = previous_.rbegin(); entry != previous_.rend(); ++entry)
        WriteProfile(entry->first.c_str(), entry->second);
    TellRegionalChange();
}

RegionalSet With(RegionalSet set, const RegionalSet& changes)
{
    for (const ProfileValue& change : changes)
        for (ProfileValue& entry : set)
            if (std::strcmp(entry.key, change.key) == 0)
                entry.value = change.value;
    return set;
}

std::string RegionalValue(const char* key)
{
    const std::string value = ReadProfile(key);
    return value == kAbsent ? "" : value;
}

}  // namespace zttest
