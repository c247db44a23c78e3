// Regional settings for tests.
// Only keys that differ are written, since each write goes to the disk.
#include "tests/support/profile.h"

#include <windows.h>

#include "include/ztedit.h"

namespace zttest {
namespace {

constexpr const char* kSection = "intl";
constexpr const char* kAbsent = "\x01";

std::string ReadKey(const char* key)
{
    char value[300];
    GetProfileStringA(kSection, key, kAbsent, value, sizeof value);
    return value;
}

void WriteKey(const char* key, const std::string& value)
{
    WriteProfileStringA(kSection, key, value == kAbsent ? nullptr : value.c_str());
}

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
        const std::string current = ReadKey(entry.key);
        if (current == wanted)
            continue;
        previous_.emplace_back(entry.key, current);
        WriteKey(entry.key, wanted);
    }
    TellRegionalChange();
}

Regional::~Regional()
{
    for (auto entry = previous_.rbegin(); entry != previous_.rend(); ++entry)
        WriteKey(entry->first.c_str(), entry->second);
    TellRegionalChange();
}

void TellRegionalChange()
{
    const HWND listener = CreateWindowExA(0, ZTEDIT_CLASS, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                          GetModuleHandleA(nullptr), nullptr);
    SendMessageA(listener, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    DestroyWindow(listener);
}

}  // namespace zttest
