// The user's regional conventions, as the profile section "intl" keeps them.
#include "intl/regional_settings.h"

#include "ztshared.h"

namespace zte {

RegionalSettings regionalSettings;

namespace {

constexpr char kSection[] = "intl";

template <size_t size>
void ReadText(char (&text)[size], const char* key, const char* whenAbsent)
{
    GetProfileStringA(kSection, key, whenAbsent, text, static_cast<DWORD>(size));
}

char ReadFirstChar(const char* key, const char* whenAbsent)
{
    char text[256] = "";
    ReadText(text, key, whenAbsent);
    return text[0];
}

int32_t ReadInteger(const char* key, int32_t whenAbsent)
{
    return static_cast<int32_t>(GetProfileIntA(kSection, key, whenAbsent));
}

// AM and PM designators always have a text.
void ReadDesignator(char (&text)[5], const char* key, const char* standard)
{
    ReadText(text, key, standard);
    if (text[0] == '\0')
        lstrcpynA(text, standard, sizeof text);
}

}  // namespace

void ReadIntlSettings()
{
    RegionalSettings& settings = regionalSettings;
    settings.decimalChar = ReadFirstChar("sDecimal", ".");  // stays NUL when the key is there and empty
    const char thousand = ReadFirstChar("sThousand", ",");
    settings.thousandChar = thousand ? thousand : ',';
    ReadText(settings.currencySymbol, "sCurrency", "$");
    settings.currencyPosition = ReadInteger("iCurrency", 0);
    settings.currencyDigits = ReadInteger("iCurrDigits", 2);
    settings.negativeCurrencyFormat = ReadInteger("iNegCurr", 0);
    ReadDesignator(settings.amString, "s1159", "AM");
    ReadDesignator(settings.pmString, "s2359", "PM");
    SharedReadRegionalSettings();
}

char DecimalChar()
{
    return regionalSettings.decimalChar ? regionalSettings.decimalChar : '.';
}

}  // namespace zte
