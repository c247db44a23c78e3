/* Regional settings for one window. */
#include "profile.h"

#include <string.h>

static const char kSection[] = "intl";
static const char kAbsent[] = "\x01";  // stands in no profile

typedef struct ProfileKey {
    const char* name;
    const char* whenAbsent;
} ProfileKey;

// clang-format off
static const ProfileKey kKeys[PROFILE_KEYS] = {
    {"sDecimal",    "."},
    {"sThousand",   ","},
    {"sCurrency",   "$"},
    {"iCurrency",   "0"},
    {"iCurrDigits", "2"},
    {"s1159",       "AM"},
    {"s2359",       "PM"},
    {"sShortDate",  "m/d/yy"},
    {"sTime",       ":"},
};

const Country kCountries[] = {
    {"United States",  {{".", ",", "$",   "0", "2", "AM", "PM", "M/d/yyyy",   ":"}}},
    {"Germany",        {{",", ".", "EUR", "1", "2", "AM", "PM", "dd.MM.yyyy", ":"}}},
    {"France",         {{",", " ", "EUR", "3", "2", "AM", "PM", "dd/MM/yyyy", ":"}}},
    {"Switzerland",    {{".", "'", "CHF", "2", "2", "AM", "PM", "dd.MM.yyyy", ":"}}},
    {"Denmark",        {{",", ".", "kr.", "2", "2", "AM", "PM", "dd-MM-yyyy", "."}}},
    {"Japan",          {{".", ",", "\\",  "0", "0", "AM", "PM", "yyyy/MM/dd", ":"}}},
    {"Mexico",         {{".", ",", "$",   "0", "2", "a.m.", "p.m.", "dd/MM/yyyy", ":"}}},
    {"ISO 8601",       {{".", ",", "$",   "0", "2", "AM", "PM", "yyyy-MM-dd", ":"}}},
};
// clang-format on
const int kCountryCount = sizeof kCountries / sizeof kCountries[0];

void ReadProfile(Profile* profile)
{
    int i;
    for (i = 0; i < PROFILE_KEYS; ++i)
        GetProfileStringA(kSection, kKeys[i].name, kKeys[i].whenAbsent, profile->values[i], PROFILE_ROOM);
}

static void ReadAsItStands(Profile* profile)
{
    int i;
    for (i = 0; i < PROFILE_KEYS; ++i)
        GetProfileStringA(kSection, kKeys[i].name, kAbsent, profile->values[i], PROFILE_ROOM);
}

void LendProfile(const Profile* wanted, LentProfile* lent)
{
    Profile current;
    int i;
    ReadProfile(&current);
    ReadAsItStands(&lent->former);
    for (i = 0; i < PROFILE_KEYS; ++i) {
        lent->changed[i] = strcmp(wanted->values[i], current.values[i]) != 0;
        if (lent->changed[i])
            WriteProfileStringA(kSection, kKeys[i].name, wanted->values[i]);
    }
}

void ReturnProfile(const LentProfile* lent)
{
    int i;
    for (i = 0; i < PROFILE_KEYS; ++i)
        if (lent->changed[i]) {
            const char* former = lent->former.values[i];
            WriteProfileStringA(kSection, kKeys[i].name, strcmp(former, kAbsent) == 0 ? NULL : former);
        }
}
