// One row a setting: how it is read from a text, and how it is told.
#include "ztfield/regional.h"

#include <vector>

#include "ztfield.h"
#include "ztfield/letters.h"

namespace zte {

namespace {

constexpr Char kBetweenMonths = '/';
constexpr int32_t kLastCurrencyPosition = 3;
constexpr int32_t kMostCurrencyDigits = 16;

template <Char Settings::*member>
bool SetCharacter(Settings& settings, const Text& value)
{
    if (value.size() != 1)
        return false;
    settings.*member = value[0];
    return true;
}
template <Char Settings::*member>
Text CharacterOf(const Settings& settings)
{
    return Text(1, settings.*member);
}

template <auto member>
bool SetText(Settings& settings, const Text& value)
{
    Assign(settings.*member, value);
    return true;
}
template <auto member>
Text TextOf(const Settings& settings)
{
    return settings.*member;
}

template <int32_t Settings::*member, int32_t last>
bool SetNumber(Settings& settings, const Text& value)
{
    const int32_t number = DigitsAt(value, 0, Length(value));
    if (value.empty() || number < 0 || number > last)
        return false;
    settings.*member = number;
    return true;
}
template <int32_t Settings::*member>
Text NumberOf(const Settings& settings)
{
    return NumberText(static_cast<uint32_t>(settings.*member), 1);
}

std::vector<Text> Parted(const Text& text, Char separator)
{
    std::vector<Text> parts(1);
    for (const Char c : text) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

bool SetMonths(Settings& settings, const Text& value)
{
    const std::vector<Text> names = Parted(value, kBetweenMonths);
    if (names.size() != kMonths)
        return false;
    for (const Text& name : names)
        if (name.empty())
            return false;
    auto name = names.begin();
    for (auto& month : settings.monthNames)
        Assign(month, *name++);
    return true;
}
Text MonthsOf(const Settings& settings)
{
    Text text;
    for (const auto& month : settings.monthNames) {
        if (!text.empty())
            text += kBetweenMonths;
        text += month;
    }
    return text;
}

struct SettingRow {
    int32_t setting;
    bool (*set)(Settings&, const Text&);
    Text (*tell)(const Settings&);
};

// clang-format off
constexpr SettingRow kSettings[] = {
    {ZTF_DECIMAL,           SetCharacter<&Settings::decimalChar>,   CharacterOf<&Settings::decimalChar>},
    {ZTF_THOUSANDS,         SetCharacter<&Settings::thousandChar>,  CharacterOf<&Settings::thousandChar>},
    {ZTF_CURRENCY,          SetText<&Settings::currencySymbol>,     TextOf<&Settings::currencySymbol>},
    {ZTF_CURRENCY_POSITION, SetNumber<&Settings::currencyPosition, kLastCurrencyPosition>, NumberOf<&Settings::currencyPosition>},
    {ZTF_CURRENCY_DIGITS,   SetNumber<&Settings::currencyDigits, kMostCurrencyDigits>,     NumberOf<&Settings::currencyDigits>},
    {ZTF_AM,                SetText<&Settings::amString>,           TextOf<&Settings::amString>},
    {ZTF_PM,                SetText<&Settings::pmString>,           TextOf<&Settings::pmString>},
    {ZTF_SHORT_DATE,        SetText<&Settings::shortDate>,          TextOf<&Settings::shortDate>},
    {ZTF_TIME_SEPARATOR,    SetText<&Settings::timeSeparator>,      TextOf<&Settings::timeSeparator>},
    {ZTF_MONTHS,            SetMonths,                              MonthsOf},
};
// clang-format on

const SettingRow* RowOf(int32_t setting)
{
    for (const SettingRow& row : kSettings)
        if (row.setting == setting)
            return &row;
    return nullptr;
}

}  // namespace

Settings DefaultSettings()
{
    Settings settings = StandardSettings();
    settings.letters = &kUnicodeLetters;
    return settings;
}

bool SetSetting(Settings& settings, int32_t setting, const Text& value)
{
    const SettingRow* row = RowOf(setting);
    return row && row->set(settings, value);
}

Text SettingOf(const Settings& settings, int32_t setting)
{
    const SettingRow* row = RowOf(setting);
    return row ? row->tell(settings) : Text();
}

}  // namespace zte
