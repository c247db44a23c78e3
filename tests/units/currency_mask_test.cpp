// The mask of money that is built from the regional settings.
#include "engine/mask/currency_mask.h"

#include <gtest/gtest.h>

#include <string>

namespace zttest {
namespace {

using namespace zte;

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
        EXPECT_EQ(BuildCurrencyMask(digits, StandardSettings()), "$" + std::string(integers[digits - 3]) + ".00")
            << digits;
}

TEST(CurrencyMask, OfNoIntegerDigitsIsTheFraction)
{
    EXPECT_EQ(BuildCurrencyMask(2, StandardSettings()), "$.00");
    EXPECT_EQ(BuildCurrencyMask(0, StandardSettings()), "$.00");
    EXPECT_EQ(BuildCurrencyMask(-5, StandardSettings()), "$.00");
}

TEST(CurrencyMask, HasTheFractionOfTheSettings)
{
    Settings settings = StandardSettings();
    settings.currencyDigits = 0;
    EXPECT_EQ(BuildCurrencyMask(4, settings), "$#,###");
    EXPECT_EQ(BuildCurrencyMask(0, settings), "$");
}

TEST(CurrencyMask, ThatDoesNotFitAMaskIsEmpty)
{
    Settings settings = StandardSettings();
    Assign(settings.currencySymbol, Text(255, 'c'));
    EXPECT_EQ(BuildCurrencyMask(8, settings), "");
}

}  // namespace
}  // namespace zttest
