// Characters of all scripts: one position each, in masks, values and settings.
#include <gtest/gtest.h>

#include "tests/ztfield/field.h"

namespace zttest::fields {
namespace {

struct TypedRow {
    const char* mask;
    const char* typed;
    const char* shown;
};

TEST(Letters, OfEveryScriptTakeOnePosition)
{
    const TypedRow rows[] = {
        {"AAAAA", "\u00e9\u0436\u00df\u4e2d\u05d0", "\u00e9\u0436\u00df\u4e2d\u05d0|"},
        {"AA", "\u20ac\u00e9", "\u00e9| "},                       // a currency symbol is no letter
        {"XXX", "\u20ac\U0001F600\u00a0", "\u20ac\U0001F600\u00a0|"},
        {"!!!!", "\u00e9\u0436\u00df\u00ff", "\u00c9\u0416\u00df\u0178|"},  // a sharp s has no capital of one character
        {"^^^", "\u00c9\u0416\u0130", "\u00e9\u0436i|"},
        {"##", "\u0663\u0661" "12", "12|"},                       // digits are those of ASCII
        {"\u2116 ##", "7", "\u2116 7| "},                         // a literal of several bytes
        {"#\u20ac#", "12", "1\u20ac2|"},
    };
    for (const TypedRow& row : rows) {
        const Field field(row.mask, DT_STRING);
        field.Type(row.typed);
        EXPECT_EQ(field.Shown(), row.shown) << row.mask << " " << row.typed;
    }
}

TEST(Positions, AreCountedInCharacters)
{
    const Field field("\u20ac##", DT_STRING);
    EXPECT_EQ(ZTF_CountPositions(field.get()), 3);
    ZTFieldPosition position = {};
    ASSERT_EQ(ZTF_GetPosition(field.get(), 0, &position), 1);
    EXPECT_EQ(position.character, 0x20ACu);
    EXPECT_EQ(position.kind, ZTF_LITERAL);
    int32_t offset = 0;
    EXPECT_EQ(ZTF_CheckMask(nullptr, "MM\u20acDD", DT_DATE, &offset), ZTM_FIELD_MISSING);
    EXPECT_EQ(offset, 5);
}

TEST(Strings, KeepLettersThroughDataAndBack)
{
    const Field field("\u00ab!!!!\u00bb", DT_STRING);
    EXPECT_EQ(ZTF_TrySetDataString(field.get(), "\u0416\u0423\u041a\u0418"), 0);
    EXPECT_EQ(field.Text(), "\u00ab\u0416\u0423\u041a\u0418\u00bb");
    EXPECT_EQ(field.Value(), "\u0416\u0423\u041a\u0418");
}

TEST(Undo, BringsLettersBack)
{
    const Field field("AAAA", DT_STRING);
    field.Type("\u0436\u4e2d");
    field.Press(ZTF_KEY_BACKSPACE, 0);
    EXPECT_EQ(field.Shown(), "\u0436|   ");
    field.Press('Z', ZTF_CONTROL);
    EXPECT_EQ(field.Shown(), "\u0436\u4e2d|  ");
}

// ---- settings of countries

struct AmountRow {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
    const char* shown;
    const char* typed;  // over all of it: the same value
};

void ExpectAmounts(const Settings& settings, std::initializer_list<AmountRow> rows)
{
    for (const AmountRow& row : rows) {
        const Field field(row.mask, row.type, ZTEO_MODERN, settings.get());
        EXPECT_EQ(ZTF_TrySetDataString(field.get(), row.data), 0) << row.name;
        EXPECT_EQ(field.Text(), row.shown) << row.name;
        EXPECT_EQ(field.Value(), row.data) << row.name;
        field.Press('A', ZTF_CONTROL);
        field.Type(row.typed);
        EXPECT_EQ(field.Text(), row.shown) << row.name << " typed";
        EXPECT_EQ(field.Value(), row.data) << row.name << " typed";
        EXPECT_EQ(ZTF_TrySetDataString(field.get(), row.shown), 0) << row.name << " handed in as it is shown";
        EXPECT_EQ(field.Value(), row.data) << row.name;
    }
}

TEST(Amounts, OfFranceHaveANarrowNoBreakBlank)
{
    const Settings french({{ZTF_DECIMAL, ","}, {ZTF_THOUSANDS, "\u202f"}, {ZTF_CURRENCY, "\u00a0\u20ac"}, {ZTF_CURRENCY_POSITION, "1"}});
    ExpectAmounts(french, {{"number", "#,##0.00", DT_NUMBER, "1234.50", "1\u202f234,50", "1234,50"},
                           {"negative", "#,##0.00", DT_DECIMAL, "-1234.50", "-1\u202f234,50", "-1234,50"},
                           {"money", "[currency(9)]", DT_DECIMAL, "1234567.89", "1\u202f234\u202f567,89\u00a0\u20ac", "1234567,89"}});
}

TEST(Amounts, OfIndiaHaveARupee)
{
    const Settings indian({{ZTF_CURRENCY, "\u20b9"}});
    ExpectAmounts(indian, {{"money", "[currency(9)]", DT_DECIMAL, "1234.50", "\u20b91,234.50", "1234.50"}});
}

TEST(Amounts, MayHaveAnyCharacterAsPoint)
{
    const Settings other({{ZTF_DECIMAL, "\u066b"}, {ZTF_THOUSANDS, "\u066c"}});
    ExpectAmounts(other, {{"number", "#,##0.00", DT_NUMBER, "1234.50", "1\u066c234\u066b50", "1234\u066b50"}});
}

TEST(NumberMasks, AreWrittenAlikeForAllCountriesOfModernFields)
{
    const Settings german({{ZTF_DECIMAL, ","}, {ZTF_THOUSANDS, "."}});
    int32_t offset = 7;
    EXPECT_EQ(ZTF_CheckModernMask(german.get(), "#,##0.00", DT_NUMBER, &offset), ZTM_FITS);
    EXPECT_EQ(offset, -1);
    EXPECT_EQ(ZTF_CheckMask(german.get(), "#,##0.00", DT_NUMBER, &offset), ZTM_OUT_OF_PLACE);
    EXPECT_EQ(offset, 5);
    EXPECT_EQ(ZTF_CheckModernMask(german.get(), "#,##0.0x0", DT_NUMBER, &offset), ZTM_OUT_OF_PLACE);
    EXPECT_EQ(offset, 7);
    EXPECT_EQ(ZTF_CheckModernMask(nullptr, "MM/DD", DT_DATE, nullptr), ZTM_FIELD_MISSING);
}

TEST(Halves, OfTheDayMayBeOfAnyScript)
{
    const Settings settings({{ZTF_AM, "\u4e0a\u5348"}, {ZTF_PM, "\u4e0b\u5348"}});
    const Field field("HH:MM AM/PM", DT_TIME, ZTEO_MODERN, settings.get());
    EXPECT_EQ(ZTF_TrySetDataString(field.get(), "13:30"), 0);
    EXPECT_EQ(field.Text(), "01:30 \u4e0b\u5348");
    field.Press('A', ZTF_CONTROL);
    field.Type("0930\u4e0a");
    EXPECT_EQ(field.Text(), "09:30 \u4e0a\u5348");
    EXPECT_EQ(field.Value(), "09:30:00");
}

TEST(Months, MayHaveNamesOfAnyScript)
{
    const char* const kNames = "ЯНВ/ФЕВ/МАР/АПР/МАЙ/ИЮН/ИЮЛ/АВГ/СЕН/ОКТ/НОЯ/ДЕК";
    const Settings russian({{ZTF_MONTHS, kNames}});
    const Field field("DD-MMM-YYYY", DT_DATE, ZTEO_MODERN, russian.get());
    EXPECT_EQ(ZTF_TrySetDataString(field.get(), "2026-07-04"), 0);
    EXPECT_EQ(field.Text(), "04-\u0418\u042e\u041b-2026");
    field.Press('A', ZTF_CONTROL);
    field.Type("9\u0430\u0432\u0433" "2027");
    EXPECT_EQ(field.Text(), "09-\u0410\u0412\u0413-2027");
    EXPECT_EQ(field.Value(), "2027-08-09");
}

// ---- what can be set

TEST(Settings, AreAtFirstThoseOfTheUnitedStates)
{
    const Settings settings({});
    EXPECT_EQ(settings.Of(ZTF_DECIMAL), ".");
    EXPECT_EQ(settings.Of(ZTF_THOUSANDS), ",");
    EXPECT_EQ(settings.Of(ZTF_CURRENCY), "$");
    EXPECT_EQ(settings.Of(ZTF_CURRENCY_POSITION), "0");
    EXPECT_EQ(settings.Of(ZTF_CURRENCY_DIGITS), "2");
    EXPECT_EQ(settings.Of(ZTF_AM), "AM");
    EXPECT_EQ(settings.Of(ZTF_PM), "PM");
    EXPECT_EQ(settings.Of(ZTF_SHORT_DATE), "m/d/yy");
    EXPECT_EQ(settings.Of(ZTF_TIME_SEPARATOR), ":");
    EXPECT_EQ(settings.Of(ZTF_MONTHS), "JAN/FEB/MAR/APR/MAY/JUN/JUL/AUG/SEP/OCT/NOV/DEC");
    EXPECT_EQ(settings.Of(99), "");
    EXPECT_EQ(TextOf([](char* buffer, int32_t size) { return ZTF_GetSetting(nullptr, ZTF_DECIMAL, buffer, size); }), ".");
}

TEST(Settings, ThatCannotBeAreRefusedAndChangeNothing)
{
    const Settings settings({});
    const SettingRow refused[] = {
        {ZTF_DECIMAL, ""}, {ZTF_DECIMAL, ".."}, {ZTF_DECIMAL, nullptr}, {ZTF_THOUSANDS, "''"}, {ZTF_CURRENCY_POSITION, "4"},
        {ZTF_CURRENCY_POSITION, ""}, {ZTF_CURRENCY_POSITION, "-1"}, {ZTF_CURRENCY_POSITION, "x"}, {ZTF_CURRENCY_DIGITS, "17"},
        {ZTF_CURRENCY_DIGITS, "2.0"}, {ZTF_MONTHS, "JAN/FEB"}, {ZTF_MONTHS, "A/B/C/D/E/F/G/H/I/J/K/"}, {ZTF_MONTHS, ""},
        {0, "."}, {99, "."},
    };
    for (const SettingRow& row : refused)
        EXPECT_EQ(ZTF_SetSetting(settings.get(), row.setting, row.value), 0) << row.setting << " " << (row.value ? row.value : "null");
    EXPECT_EQ(settings.Of(ZTF_DECIMAL), ".");
    EXPECT_EQ(settings.Of(ZTF_MONTHS).substr(0, 3), "JAN");
}

TEST(Settings, ThatAreTooLongAreCutBetweenCharacters)
{
    const Settings settings({{ZTF_AM, "\u4e0a\u5348\u4e0a\u5348\u4e0a"}});
    EXPECT_EQ(settings.Of(ZTF_AM), "\u4e0a\u5348\u4e0a\u5348");
}

TEST(OtherSettings, KeepTheValueAndGiveItAnotherDress)
{
    const Settings german({{ZTF_DECIMAL, ","}, {ZTF_THOUSANDS, "."}, {ZTF_SHORT_DATE, "dd.MM.yyyy"}});
    const Field date("[date]", DT_DATE);
    ZTF_TrySetDataString(date.get(), "2026-07-04");
    EXPECT_EQ(date.Text(), "07/04/26");
    ZTF_UseSettings(date.get(), german.get());
    EXPECT_EQ(date.Text(), "04.07.2026");
    const Field number("#,##0.00", DT_NUMBER);
    ZTF_TrySetDataString(number.get(), "1234.5");
    ZTF_UseSettings(number.get(), german.get());
    EXPECT_EQ(number.Value(), "1234.50");
    ZTF_UseSettings(number.get(), nullptr);
    EXPECT_EQ(number.Text(), "1,234.50");
}

TEST(OtherSettings, OfTheCallersAreNotThoseOfFieldsMadeBefore)
{
    const Settings settings({});
    const Field field("#,##0.00", DT_NUMBER, ZTEO_MODERN, settings.get());
    ZTF_SetSetting(settings.get(), ZTF_DECIMAL, ",");
    ZTF_SetSetting(settings.get(), ZTF_THOUSANDS, ".");
    ZTF_TrySetDataString(field.get(), "1234.5");
    EXPECT_EQ(field.Text(), "1,234.50");
}

}  // namespace
}  // namespace zttest::fields
