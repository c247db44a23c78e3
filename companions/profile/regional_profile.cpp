// Reads the regional conventions from the profile section "intl".
#include "companions/profile/regional_profile.h"

#include <windows.h>

#include <cctype>

namespace zte {

namespace {

constexpr char kSection[] = "intl";

template <size_t size>
void ReadText(char (&text)[size], const char* key, const char* whenAbsent)
{
    GetProfileStringA(kSection, key, whenAbsent, text, static_cast<DWORD>(size));
}

// The same, with an empty key counting as an absent one.
template <size_t size>
void ReadFilledText(char (&text)[size], const char* key, const char* standard)
{
    ReadText(text, key, standard);
    if (text[0] == '\0')
        lstrcpynA(text, standard, static_cast<int>(size));
}

char ReadFirstChar(const char* key, const char* standard)
{
    char text[256] = "";
    ReadFilledText(text, key, standard);
    return text[0];
}

int32_t ReadInteger(const char* key, int32_t whenAbsent)
{
    return static_cast<int32_t>(GetProfileIntA(kSection, key, whenAbsent));
}

bool IsLocaleLetter(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}
char LocaleUpper(char c)
{
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}
char LocaleLower(char c)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

}  // namespace

const Letters kLocaleLetters = {IsLocaleLetter, LocaleUpper, LocaleLower};

void ReadRegionalProfile(Settings& settings)
{
    settings.decimalChar = ReadFirstChar("sDecimal", ".");
    settings.thousandChar = ReadFirstChar("sThousand", ",");
    ReadText(settings.currencySymbol, "sCurrency", "$");
    settings.currencyPosition = ReadInteger("iCurrency", 0);
    settings.currencyDigits = ReadInteger("iCurrDigits", 2);
    settings.negativeCurrencyFormat = ReadInteger("iNegCurr", 0);
    ReadFilledText(settings.amString, "s1159", "AM");
    ReadFilledText(settings.pmString, "s2359", "PM");
    settings.letters = &kLocaleLetters;
}

void ReadPictures(Settings& settings)
{
    ReadText(settings.shortDate, "sShortDate", "m/d/yy");
    ReadText(settings.timeSeparator, "sTime", ":");
}

}  // namespace zte
