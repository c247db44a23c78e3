// How numbers and decimals are shown: placeholders, rounding, grouping, signs, literals, and the regional characters.
#include <cmath>
#include <limits>

#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

struct NumberCase {
    const char* name;
    const char* mask;
    const char* data;
    const char* shown;
};
void PrintTo(const NumberCase& row, std::ostream* out)
{
    *out << row.data << " under " << row.mask;
}

// The same rows hold for doubles and for decimals.
class NumberDisplay : public ValueTest, public OfRow<NumberCase> {};

ROW_TEST(NumberDisplay, ShowsADouble)
{
    Install(GetParam().mask, DT_NUMBER);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

ROW_TEST(NumberDisplay, ShowsADecimal)
{
    Install(GetParam().mask, DT_DECIMAL);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

const NumberCase kPlaceholderRows[] = {
    {"ZeroUnderHashesIsEmpty",                   "####",     "0",      ""      },
    {"HashesShowSignificantDigits",              "####",     "12",     "12"    },
    {"DigitsBeyondThePlaceholdersAreShown",      "##",       "123456", "123456"},
    {"DigitsBeyondOneZeroAreShown",              "0",        "12345",  "12345" },
    {"ZerosForceDigits",                         "0000",     "12",     "0012"  },
    {"ZerosShowZero",                            "000",      "0",      "000"   },
    {"AHashBeforeAZeroShowsOneDigit",            "##0",      "0",      "0"     },
    {"ZeroUnderTheDefaultMaskStartsAtThePoint",  "#,#.00",   "0",      ".00"   },
    {"AHalfUnderTheDefaultMaskStartsAtThePoint", "#,#.00",   "0.5",    ".50"   },
    {"OneUnderTheDefaultMask",                   "#,#.00",   "1",      "1.00"  },
    {"ForcedUnitBeforeThePoint",                 "#,##0.00", "0.5",    "0.50"  },
    {"HashFractionDropsTrailingZeros",           "#.##",     "1.5",    "1.5"   },
    {"ThePointStaysBehindAWholeNumber",          "#.##",     "2",      "2."    },
    {"ThePointAloneIsZero",                      "#.##",     "0",      "."     },
    {"HashFractionKeepsInnerZeros",              "#.##",     "0.05",   ".05"   },
    {"MixedFractionForcesItsZero",               "0.0#",     "1",      "1.0"   },
    {"MixedFractionShowsBothDigits",             "0.0#",     "1.25",   "1.25"  },
    {"OnlyAFraction",                            ".00",      "0.25",   ".25"   },
    {"IntegerDigitsBeforeAMaskWithoutThem",      ".00",      "12.25",  "12.25" },
};

const NumberCase kGroupingRows[] = {
    {"OneCommaGroupsByThree",      "#,#",        "1234567",          "1,234,567"            },
    {"NoCommaDoesNotGroup",        "#",          "1234567",          "1234567"              },
    {"ThreeDigitsNeedNoSeparator", "#,##0",      "999",              "999"                  },
    {"FourDigitsNeedOne",          "#,##0",      "1000",             "1,000"                },
    {"TheFractionIsNotGrouped",    "#,##0.0000", "1234.5678",        "1,234.5678"           },
    {"ForcedZerosAreGroupedToo",   "0,000",      "5",                "0,005"                },
    {"ALargeNumber",               "#,##0",      "1000000000000000", "1,000,000,000,000,000"},
};

const NumberCase kRoundingRows[] = {
    {"AHalfGoesUp",                           "#,##0",    "2.5",     "3"       },
    {"AHalfOfANegativeGoesDown",              "#,##0",    "-2.5",    "-3"      },
    {"BelowAHalfGoesToZero",                  "#,##0",    "0.4999",  "0"       },
    {"AHalfGoesToOne",                        "#,##0",    "0.5",     "1"       },
    {"TheDecimalDigitsCountNotTheBinaryOnes", "0.00",     "2.675",   "2.68"    },
    {"AnotherBinaryTrap",                     "0.00",     "1.005",   "1.01"    },
    {"ANegativeBinaryTrap",                   "0.00",     "-2.675",  "-2.68"   },
    {"AnExactBinaryHalfGoesUp",               "0.00",     "0.125",   "0.13"    },
    {"CarriesRunThroughNines",                "#,##0.00", "999.995", "1,000.00"},
    {"CarriesMakeADigit",                     "0",        "9.5",     "10"      },
    {"BelowTheLastDigit",                     "0.00",     "0.004",   "0.00"    },
    {"HashFractionRounds",                    "#.##",     "0.005",   ".01"     },
};

const NumberCase kSignRows[] = {
    {"BeforeTheFirstDigit",     "#,##0.00",    "-5",       "-5.00"     },
    {"BeforeThePoint",          "#,#.00",      "-0.5",     "-.50"      },
    {"BehindTheCurrencySymbol", "$#,##0.00",   "-5",       "$-5.00"    },
    {"BehindTheLiterals",       "Total #,##0", "-5",       "Total -5"  },
    {"BeforeForcedZeros",       "000",         "-5",       "-005"      },
    {"BeforeGroups",            "#,##0",       "-1234567", "-1,234,567"},
    {"NoneWhenRoundedToZero",   "#,##0.00",    "-0.001",   "0.00"      },
    {"NoneForAnEmptyZero",      "####",        "-0.2",     ""          },
    {"BeforeAPercentage",       "##0%",        "-0.5",     "-50%"      },
};

const NumberCase kPercentRows[] = {
    {"TimesAHundred",        "#,##0.00%", "0.125",   "12.50%"},
    {"OneIsAHundred",        "##0%",      "1",       "100%"  },
    {"Zero",                 "##0%",      "0",       "0%"    },
    {"IsExact",              "#,##0.##%", "0.07",    "7.%"   },
    {"IsExactForTwentyNine", "0.00%",     "0.29",    "29.00%"},
    {"Rounds",               "##0%",      "0.125",   "13%"   },
    {"RoundsInDecimal",      "0.0%",      "0.01005", "1.0%"  },
    {"Groups",               "#,##0%",    "12.34",   "1,234%"},
};

const NumberCase kLiteralRows[] = {
    {"CurrencySymbol",                      "$#,##0.00",   "1234.5", "$1,234.50"  },
    {"APrefix",                             "Total #,##0", "1234",   "Total 1,234"},
    {"APrefixBeforeTheCurrencySymbol",      "Due: $#,##0", "1234",   "Due: $1,234"},
    {"AnEscapedPlaceholder",                "~##0",        "5",      "#5"         },
    {"AnEscapedZero",                       "~0##0",       "5",      "05"         },
    {"AnEscapedBackslash",                  "~\\##0",      "5",      "\\5"        },
    {"AnEscapedPercentSignDoesNotMultiply", "~%##0",       "5",      "%5"         },
    {"AnEscapedPoint",                      "~.##0",       "5",      ".5"         },
};

const NumberCase kGeneralRows[] = {
    {"AFraction",                           "[GENERAL]", "1234.5",               "1234.5"           },
    {"AWholeNumber",                        "[GENERAL]", "1234567",              "1234567"          },
    {"Zero",                                "[GENERAL]", "0",                    "0"                },
    {"ANegativeNumber",                     "[GENERAL]", "-0.25",                "-0.25"            },
    {"NoTrailingZeros",                     "[GENERAL]", "2.500",                "2.5"              },
    {"FifteenDigits",                       "[GENERAL]", "123456789012345",      "123456789012345"  },
    {"FifteenSignificantDigitsOfAFraction", "[GENERAL]", "0.123456789012345678", "0.123456789012346"},
    {"ASmallNumber",                        "[GENERAL]", "0.000001",             "0.000001"         },
};

TEST_ROWS(Placeholders, NumberDisplay, kPlaceholderRows);
TEST_ROWS(Grouping, NumberDisplay, kGroupingRows);
TEST_ROWS(Rounding, NumberDisplay, kRoundingRows);
TEST_ROWS(Sign, NumberDisplay, kSignRows);
TEST_ROWS(Percent, NumberDisplay, kPercentRows);
TEST_ROWS(Literals, NumberDisplay, kLiteralRows);
TEST_ROWS(General, NumberDisplay, kGeneralRows);

struct RegionalNumberCase {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    const char* data;
    const char* shown;
};
void PrintTo(const RegionalNumberCase& row, std::ostream* out)
{
    *out << row.data << " under " << row.mask;
}

class RegionalNumberDisplay : public ValueTest, public OfRow<RegionalNumberCase> {};

ROW_TEST(RegionalNumberDisplay, ShowsADouble)
{
    const Regional settings(*GetParam().settings);
    Install(GetParam().mask, DT_NUMBER);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

ROW_TEST(RegionalNumberDisplay, ShowsADecimal)
{
    const Regional settings(*GetParam().settings);
    Install(GetParam().mask, DT_DECIMAL);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

const RegionalNumberCase kRegionalNumberRows[] = {
    {"UnitedStatesDefault",          &kUnitedStates, nullptr,         "1234567.891", "1,234,567.89"},
    {"UnitedStatesCurrency",         &kUnitedStates, "[currency(8)]", "1234.5",      "$1,234.50"   },
    {"UnitedStatesNegativeCurrency", &kUnitedStates, "[currency(8)]", "-1234.5",     "$-1,234.50"  },
    {"GermanDefault",                &kGerman,       nullptr,         "1234567.891", "1.234.567,89"},
    {"GermanDefaultBelowOne",        &kGerman,       nullptr,         "0.5",         ",50"         },
    {"GermanWholeNumbers",           &kGerman,       "#,##0",         "1234567",     "1.234.567"   },
    {"GermanFraction",               &kGerman,       "##0.00",        "1234.5",      "1234,50"     },
    {"GermanPercent",                &kGerman,       "##0.00%",       "0.125",       "12,50%"      },
    {"GermanCurrencyBehind",         &kGerman,       "[currency(8)]", "1234.5",      "1.234,50EUR" },
    {"GermanNegativeCurrency",       &kGerman,       "[currency(8)]", "-5",          "-5,00EUR"    },
    {"GermanGeneral",                &kGerman,       "[GENERAL]",     "1234.5",      "1234,5"      },
    {"FrenchDefault",                &kFrench,       nullptr,         "1234567.891", "1 234 567,89"},
    {"FrenchWholeNumbers",           &kFrench,       "#,##0",         "1234567",     "1 234 567"   },
    {"FrenchCurrencyBehind",         &kFrench,       "[currency(8)]", "1234.5",      "1 234,50F"   },
    {"SwissDefault",                 &kSwiss,        nullptr,         "1234567.891", "1'234'567.89"},
    {"SwissCurrencyBefore",          &kSwiss,        "[currency(8)]", "1234.5",      "CHF1'234.50" },
    {"SwissNegativeCurrency",        &kSwiss,        "[currency(8)]", "-1234.5",     "CHF-1'234.50"},
    {"SwissMaskWithTheSymbol",       &kSwiss,        "CHF##0.00",     "12",          "CHF12.00"    },
};
TEST_ROWS(, RegionalNumberDisplay, kRegionalNumberRows);

class NumberFormatResult : public ValueTest {};

struct FirstPosCase {
    const char* name;
    const char* mask;
    double value;
    const char* shown;
    int32_t firstFieldPos;
    uint32_t flags;
};
void PrintTo(const FirstPosCase& row, std::ostream* out)
{
    *out << row.value << " under " << row.mask;
}

class FirstPosition : public ValueTest, public OfRow<FirstPosCase> {};

ROW_TEST(FirstPosition, IsTheFirstDigitOrSign)
{
    const FirstPosCase& row = GetParam();
    Install(row.mask, DT_NUMBER);
    const FormattedValue result = Format(&row.value);
    EXPECT_EQ(result.text, row.shown);
    EXPECT_EQ(result.firstFieldPos, row.firstFieldPos);
}

ROW_TEST(FirstPosition, LiteralsAreTold)
{
    Install(GetParam().mask, DT_NUMBER);
    EXPECT_EQ(Format(&GetParam().value).flags, GetParam().flags);
}

const FirstPosCase kFirstPosRows[] = {
    {"AtTheStartWhereThereIsNone",        "#.##",        0.0,  ".",       0, FORMAT_DONE                      },
    {"AtTheStart",                        "#,##0.00",    5.0,  "5.00",    0, FORMAT_DONE                      },
    {"BehindTheCurrencySymbol",           "$#,##0.00",   5.0,  "$5.00",   1, FORMAT_DONE                      },
    {"ASignBehindTheCurrencySymbol",      "$#,##0.00",   -5.0, "$-5.00",  1, FORMAT_DONE                      },
    {"OnThePointWhenItComesFirst",        "#,#.00",      0.5,  ".50",     0, FORMAT_DONE                      },
    {"OnThePointBehindTheCurrencySymbol", "$#,#.00",     0.5,  "$.50",    1, FORMAT_DONE                      },
    {"OnTheSignBeforeThePoint",           "#,#.00",      -0.5, "-.50",    0, FORMAT_DONE                      },
    {"BehindALiteral",                    "Total #,##0", 5.0,  "Total 5", 6, FORMAT_DONE | FORMAT_HAS_LITERALS},
    {"BehindAnEscape",                    "~*##0",       5.0,  "*5",      1, FORMAT_DONE | FORMAT_HAS_LITERALS},
    {"PercentIsNoLiteral",                "##0%",        0.5,  "50%",     0, FORMAT_DONE                      },
    {"ALiteralBeforeTheCurrencySymbol",   "Due $#,##0",  5.0,  "Due $5",  5, FORMAT_DONE | FORMAT_HAS_LITERALS},
};
TEST_ROWS(, FirstPosition, kFirstPosRows);

TEST_F(NumberFormatResult, NullIsZeroForANumber)
{
    Install("#,##0.00", DT_NUMBER);
    EXPECT_EQ(Format(nullptr).text, "0.00");
}

TEST_F(NumberFormatResult, NullIsZeroForADecimal)
{
    Install("#,##0.00", DT_DECIMAL);
    EXPECT_EQ(Format(nullptr).text, "0.00");
}

TEST_F(NumberFormatResult, SettingNullShowsZero)
{
    Install("#,##0.00", DT_NUMBER);
    ShownFor("12");
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "0.00");
}

TEST_F(NumberFormatResult, NotANumberShowsAsZero)
{
    Install("#,##0.00", DT_NUMBER);
    const double value = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Format(&value).text, "0.00");
}

TEST_F(NumberFormatResult, InfinityShowsAsZero)
{
    Install("#,##0.00", DT_NUMBER);
    const double value = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Format(&value).text, "0.00");
}

TEST_F(NumberFormatResult, NegativeInfinityShowsAsZero)
{
    Install("#,##0.00", DT_NUMBER);
    const double value = -std::numeric_limits<double>::infinity();
    EXPECT_EQ(Format(&value).text, "0.00");
}

TEST_F(NumberFormatResult, NegativeZeroHasNoSign)
{
    Install("#,##0.00", DT_NUMBER);
    const double value = -0.0;
    EXPECT_EQ(Format(&value).text, "0.00");
}

TEST_F(NumberFormatResult, ADoubleIsItsShortestRoundTripDigits)
{
    Install("#.####################", DT_NUMBER);
    const double value = 0.1 + 0.2;
    EXPECT_EQ(Format(&value).text, ".30000000000000004");
}

TEST_F(NumberFormatResult, FormattingLeavesTheWindowAlone)
{
    Install("#,##0.00", DT_NUMBER);
    ShownFor("12");
    const double other = 99.0;
    EXPECT_EQ(Format(&other).text, "99.00");
    EXPECT_EQ(Text(), "12.00");
}

TEST_F(NumberFormatResult, AnEmptyDecimalCharacterIsWrittenAsAPoint)
{
    const Regional settings(With(kUnitedStates, {
                                                    {"sDecimal", ""}
    }));
    Install("#,##0.00", DT_NUMBER);
    EXPECT_EQ(ShownFor("1234.5"), "1,234.50");
}

TEST_F(NumberFormatResult, AMaskTheRendererCannotReadShowsThroughTheDefault)
{
    Install("[date]", DT_NUMBER);  // keywords are installed unchecked
    EXPECT_EQ(ShownFor("1234.5"), "1,234.50");
}

struct NumberTextCase {
    const char* name;
    const char* data;
    const char* shown;   // under "#,##0.00##"
    const char* german;  // under "[GENERAL]"
};
void PrintTo(const NumberTextCase& row, std::ostream* out)
{
    *out << '"' << row.data << '"';
}

class NumberDataText : public ValueTest, public OfRow<NumberTextCase> {};

ROW_TEST(NumberDataText, IsReadAsFarAsItIsANumber)
{
    Install("#,##0.00##", DT_NUMBER);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

ROW_TEST(NumberDataText, IsReadAlikeForADecimal)
{
    Install("#,##0.00##", DT_DECIMAL);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

ROW_TEST(NumberDataText, IsCanonicalBeforeItIsRegional)
{
    const Regional settings(kGerman);
    Install("[GENERAL]", DT_NUMBER);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().german);
}

const NumberTextCase kNumberTextRows[] = {
    {"AWholeNumber",           "12",        "12.00",        "12"      },
    {"AFraction",              "12.5",      "12.50",        "12,5"    },
    {"LeadingBlanks",          "  12",      "12.00",        "12"      },
    {"APlusSign",              "+12",       "12.00",        "12"      },
    {"AMinusSign",             "-12",       "-12.00",       "-12"     },
    {"APointFirst",            ".25",       "0.25",         "0,25"    },
    {"AnExponent",             "1.5e3",     "1,500.00",     "1500"    },
    {"ANegativeExponent",      "25e-2",     "0.25",         "0,25"    },
    {"TrailingText",           "12abc",     "12.00",        "12"      },
    {"GroupedAsShown",         "1,234",     "1,234.00",     "1,234"   },
    {"GroupedTwice",           "1,234,567", "1,234,567.00", "1"       },
    {"GroupsOfTwoEndIt",       "12,34",     "12.00",        "12,34"   },
    {"AGroupOfFourEndsIt",     "1,2345",    "1.00",         "1,2345"  },
    {"FourDigitsBeforeAGroup", "1234,567",  "1,234.00",     "1234,567"},
    {"AnAmountAsShown",        "1,234.50",  "1,234.50",     "1"       },
    {"AnAmountShownInGerman",  "1.234,50",  "1.234",        "1234,5"  },
    {"AFractionShownInGerman", "98,70",     "98.00",        "98,7"    },
    {"ANegativeShownInGerman", "-1.234,50", "-1.234",       "-1234,5" },
    {"APointThatIsCanonical",  "1.234",     "1.234",        "1,234"   },
    {"ASecondPointEndsIt",     "1.2.3",     "1.20",         "1,2"     },
    {"NoNumber",               "abc",       "0.00",         "0"       },
    {"Empty",                  "",          "0.00",         "0"       },
    {"ASignAlone",             "-",         "0.00",         "0"       },
};
TEST_ROWS(, NumberDataText, kNumberTextRows);

// A 0 is shown as "1,00" too; what was returned for 1 stays 1.
TEST_F(ValueTest, ANumberReturnedIsTakenAgainBesideLiteralDigits)
{
    const Regional settings(kGerman);
    Install("~1.00", DT_NUMBER);
    EXPECT_EQ(ShownFor("1"), "11,00");
    EXPECT_EQ(ShownFor(Read().c_str()), "11,00");
}

class DecimalExactness : public ValueTest {};

TEST_F(DecimalExactness, TwentyEightDigitsAreShown)
{
    Install("#,##0.00", DT_DECIMAL);
    EXPECT_EQ(ShownFor("12345678901234567890123456.78"), "12,345,678,901,234,567,890,123,456.78");
}

TEST_F(DecimalExactness, TwentyEightDigitsAreReadBack)
{
    Install("#,##0.00", DT_DECIMAL);
    ShownFor("-12345678901234567890123456.78");
    EXPECT_EQ(Read(), "-12345678901234567890123456.78");
}

TEST_F(DecimalExactness, TwentySevenFractionDigitsAreShown)
{
    Install("0.###########################", DT_DECIMAL);
    EXPECT_EQ(ShownFor("0.123456789012345678901234567"), "0.123456789012345678901234567");
}

TEST_F(DecimalExactness, ADecimalValueIsTakenByPointer)
{
    Install("#,##0.00", DT_DECIMAL);
    const DecimalValue value = DecimalOf("1234567890123456789.99");
    control_->SetData(&value);
    EXPECT_EQ(Text(), "1,234,567,890,123,456,789.99");
}

TEST_F(DecimalExactness, RoundingLooksAtTheWholeFraction)
{
    Install("0.00", DT_DECIMAL);
    EXPECT_EQ(ShownFor("0.0049999999999999999999999"), "0.00");
}

}  // namespace
}  // namespace zttest
