// The regional settings of tests without windows.
#include "tests/support/native/profile_store.h"

#include <map>

#include "tests/support/profile.h"

namespace zttest {
namespace {

std::map<std::string, std::string> profile;
zte::Settings settings = zte::StandardSettings();

template <size_t size>
void ReadText(zte::Char (&text)[size], const char* key)
{
    const std::string value = ReadProfile(key);
    if (value != kAbsent)
        zte::Assign(text, zte::FromAscii(value.c_str()));
}

// An empty key counts as an absent one.
template <size_t size>
void ReadFilledText(zte::Char (&text)[size], const char* key)
{
    if (!RegionalValue(key).empty())
        ReadText(text, key);
}

void ReadFirstChar(zte::Char& character, const char* key)
{
    const std::string value = RegionalValue(key);
    if (!value.empty())
        character = static_cast<zte::Char>(value[0]);
}

void ReadInteger(int32_t& number, const char* key)
{
    const std::string value = ReadProfile(key);
    if (value != kAbsent)
        number = zte::IntegerOf(zte::FromAscii(value.c_str()));
}

}  // namespace

std::string ReadProfile(const char* key)
{
    const auto found = profile.find(key);
    return found == profile.end() ? kAbsent : found->second;
}

void WriteProfile(const char* key, const std::string& value)
{
    if (value == kAbsent)
        profile.erase(key);
    else
        profile[key] = value;
}

void TellRegionalChange()
{
    settings = zte::StandardSettings();
    ReadFirstChar(settings.decimalChar, "sDecimal");
    ReadFirstChar(settings.thousandChar, "sThousand");
    ReadText(settings.currencySymbol, "sCurrency");
    ReadInteger(settings.currencyPosition, "iCurrency");
    ReadInteger(settings.currencyDigits, "iCurrDigits");
    ReadInteger(settings.negativeCurrencyFormat, "iNegCurr");
    ReadFilledText(settings.amString, "s1159");
    ReadFilledText(settings.pmString, "s2359");
    ReadText(settings.shortDate, "sShortDate");
    ReadText(settings.timeSeparator, "sTime");
}

const zte::Settings& SettingsInForce()
{
    return settings;
}

}  // namespace zttest
