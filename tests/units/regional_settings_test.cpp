// The record of the regional settings: every key, its default, and what a value too long or empty becomes. And the mask of
// money that is built from them.
#include "intl/regional_settings.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "mask/currency_mask.h"
#include "tests/support/profile.h"

namespace zttest {
namespace {

using namespace zte;

RegionalSet Key(const char* key, const char* value)
{
    return RegionalSet(1, {key, value});
}

RegionalSet NoKeys()
{
    RegionalSet keys = kUnitedStates;
    for (ProfileValue& entry : keys)
        entry.value = nullptr;
    return keys;
}

TEST(RegionalRecord, HasADefaultForEveryMissingKey)
{
    const Regional settings(NoKeys());
    EXPECT_EQ(regionalSettings.decimalChar, '.');
    EXPECT_EQ(regionalSettings.thousandChar, ',');
    EXPECT_STREQ(regionalSettings.currencySymbol, "$");
    EXPECT_EQ(regionalSettings.currencyPosition, 0);
    EXPECT_EQ(regionalSettings.currencyDigits, 2);
    EXPECT_EQ(regionalSettings.negativeCurrencyFormat, 0);
    EXPECT_STREQ(regionalSettings.amString, "AM");
    EXPECT_STREQ(regionalSettings.pmString, "PM");
}

TEST(RegionalRecord, HoldsEveryKey)
{
    const Regional settings({
        {"sDecimal",    ";"  },
        {"sThousand",   "_"  },
        {"sCurrency",   "Kr."},
        {"iCurrency",   "3"  },
        {"iCurrDigits", "4"  },
        {"iNegCurr",    "8"  },
        {"s1159",       "vm" },
        {"s2359",       "nm" }
    });
    EXPECT_EQ(regionalSettings.decimalChar, ';');
    EXPECT_EQ(regionalSettings.thousandChar, '_');
    EXPECT_STREQ(regionalSettings.currencySymbol, "Kr.");
    EXPECT_EQ(regionalSettings.currencyPosition, 3);
    EXPECT_EQ(regionalSettings.currencyDigits, 4);
    EXPECT_EQ(regionalSettings.negativeCurrencyFormat, 8);
    EXPECT_STREQ(regionalSettings.amString, "vm");
    EXPECT_STREQ(regionalSettings.pmString, "nm");
}

TEST(RegionalRecord, AnEmptyDecimalCharacterStaysEmpty)
{
    const Regional settings(Key("sDecimal", ""));
    EXPECT_EQ(regionalSettings.decimalChar, '\0');
}

TEST(RegionalRecord, AnEmptyDecimalCharacterIsReadAndWrittenAsAPoint)
{
    const Regional settings(Key("sDecimal", ""));
    EXPECT_EQ(DecimalChar(), '.');
}

TEST(RegionalRecord, TheDecimalCharacterIsTheRegionalOne)
{
    const Regional settings(Key("sDecimal", ","));
    EXPECT_EQ(DecimalChar(), ',');
}

TEST(RegionalRecord, AnEmptyThousandsCharacterIsAComma)
{
    const Regional settings(Key("sThousand", ""));
    EXPECT_EQ(regionalSettings.thousandChar, ',');
}

TEST(RegionalRecord, AnEmptyCurrencySymbolStaysEmpty)
{
    const Regional settings(Key("sCurrency", ""));
    EXPECT_STREQ(regionalSettings.currencySymbol, "");
}

TEST(RegionalRecord, ALongCurrencySymbolIsCutTo255Characters)
{
    const std::string symbol(300, 'c');
    const Regional settings(Key("sCurrency", symbol.c_str()));
    EXPECT_EQ(regionalSettings.currencySymbol, std::string(255, 'c'));
}

TEST(RegionalRecord, DesignatorsAreCutToFourCharacters)
{
    const Regional settings({
        {"s1159", "a.m.m"     },
        {"s2359", "nachmittag"}
    });
    EXPECT_STREQ(regionalSettings.amString, "a.m.");
    EXPECT_STREQ(regionalSettings.pmString, "nach");
}

TEST(RegionalRecord, EmptyDesignatorsAreAmAndPm)
{
    const Regional settings({
        {"s1159", ""},
        {"s2359", ""}
    });
    EXPECT_STREQ(regionalSettings.amString, "AM");
    EXPECT_STREQ(regionalSettings.pmString, "PM");
}

TEST(RegionalRecord, IsReadOnlyWhenTold)
{
    WriteProfileStringA("intl", "sDecimal", "!");
    const char before = regionalSettings.decimalChar;
    ReadIntlSettings();
    const char after = regionalSettings.decimalChar;
    WriteProfileStringA("intl", "sDecimal", ".");
    ReadIntlSettings();
    EXPECT_EQ(before, '.');
    EXPECT_EQ(after, '!');
    EXPECT_EQ(regionalSettings.decimalChar, '.');
}

// The integer part of masks of money, digit by digit.
TEST(CurrencyMask, GroupsFromTheRight)
{
    static const char* const integers[] = {"#",
                                           "##",
                                           "###",
                                           "#,###",
                                           "##,###",
                                           "###,###",
                                           "#,###,###",
                                           "##,###,###",
                                           "###,###,###",
                                           "#,###,###,###",
                                           "##,###,###,###",
                                           "###,###,###,###",
                                           "#,###,###,###,###",
                                           "##,###,###,###,###"};
    for (int16_t digits = 3; digits <= 16; ++digits)
        EXPECT_EQ(BuildCurrencyMask(digits), "$" + std::string(integers[digits - 3]) + ".00") << digits;
}

TEST(CurrencyMask, OfNoIntegerDigitsIsTheFraction)
{
    EXPECT_EQ(BuildCurrencyMask(2), "$.00");
    EXPECT_EQ(BuildCurrencyMask(0), "$.00");
    EXPECT_EQ(BuildCurrencyMask(-5), "$.00");
}

TEST(CurrencyMask, HasTheFractionOfTheSettings)
{
    const Regional settings(Key("iCurrDigits", "0"));
    EXPECT_EQ(BuildCurrencyMask(4), "$#,###");
    EXPECT_EQ(BuildCurrencyMask(0), "$");
}

TEST(CurrencyMask, ThatDoesNotFitAMaskIsEmpty)
{
    const std::string symbol(255, 'c');
    const Regional settings(Key("sCurrency", symbol.c_str()));
    EXPECT_EQ(BuildCurrencyMask(8), "");
}

}  // namespace
}  // namespace zttest
