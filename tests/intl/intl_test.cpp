// The regional settings as controls follow them: every key of the profile section "intl", its default, and what a
// change does to open controls.
#include "tests/support/live/window_value_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// Every key that is read, and none of them in the profile.
const RegionalSet kNothing = {
    {"sDecimal",    nullptr},
    {"sThousand",   nullptr},
    {"sCurrency",   nullptr},
    {"iCurrency",   nullptr},
    {"iCurrDigits", nullptr},
    {"iNegCurr",    nullptr},
    {"s1159",       nullptr},
    {"s2359",       nullptr},
    {"sShortDate",  nullptr},
    {"sTime",       nullptr},
};

// One key, the rest as in the United States; what is then shown for a value under a mask.
struct IntlKeyCase {
    const char* name;
    const char* key;
    const char* value;  // null: absent
    const char* mask;
    int32_t type;
    const char* data;
    const char* shown;
};
void PrintTo(const IntlKeyCase& row, std::ostream* out)
{
    *out << row.key << '=' << (row.value ? row.value : "(absent)");
}

class IntlKey : public WindowValueTest, public OfRow<IntlKeyCase> {};

ROW_TEST(IntlKey, IsFollowed)
{
    const IntlKeyCase& row = GetParam();
    const ProfileValue key = {row.key, row.value};
    const Regional settings(With(kUnitedStates, RegionalSet{key}));
    Install(row.mask, row.type);
    EXPECT_EQ(ShownFor(row.data), row.shown);
}

const IntlKeyCase kKeyRows[] = {
    {"DecimalAbsent",          "sDecimal",    nullptr,       "#.00",          DT_NUMBER, "1.5",        "1.50"        },
    {"DecimalComma",           "sDecimal",    ",",           "[currency(8)]", DT_NUMBER, "1.5",        "$1,50"       },
    {"DecimalFirstCharacter",  "sDecimal",    ":;",          "[currency(8)]", DT_NUMBER, "1.5",        "$1:50"       },
    {"DecimalEmptyIsAPoint",   "sDecimal",    "",            "#.00",          DT_NUMBER, "1.5",        "1.50"        },
    {"ThousandAbsent",         "sThousand",   nullptr,       "#,#.00",        DT_NUMBER, "1234.5",     "1,234.50"    },
    {"ThousandEmptyIsAComma",  "sThousand",   "",            "#,#.00",        DT_NUMBER, "1234.5",     "1,234.50"    },
    {"ThousandApostrophe",     "sThousand",   "'",           "[currency(8)]", DT_NUMBER, "1234.5",     "$1'234.50"   },
    {"ThousandFirstCharacter", "sThousand",   "_-",          "[currency(8)]", DT_NUMBER, "1234.5",     "$1_234.50"   },
    {"CurrencyAbsent",         "sCurrency",   nullptr,       "[currency(8)]", DT_NUMBER, "1.5",        "$1.50"       },
    {"CurrencyEmptyIsEmpty",   "sCurrency",   "",            "[currency(8)]", DT_NUMBER, "1.5",        "1.50"        },
    {"CurrencyIsTakenWhole",   "sCurrency",   "guilders",    "[currency(8)]", DT_NUMBER, "1.5",        "guilders1.50"},
    {"CurrencyPositionAbsent", "iCurrency",   nullptr,       "[currency(8)]", DT_NUMBER, "1.5",        "$1.50"       },
    {"CurrencyPositionBehind", "iCurrency",   "1",           "[currency(8)]", DT_NUMBER, "1.5",        "1.50$"       },
    {"CurrencyPositionThree",  "iCurrency",   "3",           "[currency(8)]", DT_NUMBER, "1.5",        "1.50$"       },
    {"CurrencyPositionWord",   "iCurrency",   "x",           "[currency(8)]", DT_NUMBER, "1.5",        "$1.50"       },
    {"CurrencyDigitsAbsent",   "iCurrDigits", nullptr,       "[currency(8)]", DT_NUMBER, "1.5",        "$1.50"       },
    {"CurrencyDigitsThree",    "iCurrDigits", "3",           "[currency(8)]", DT_NUMBER, "1.5",        "$1.500"      },
    {"CurrencyDigitsNone",     "iCurrDigits", "0",           "[currency(8)]", DT_NUMBER, "1.4",        "$1"          },
    {"NegativeFormatIgnored",  "iNegCurr",    "5",           "[currency(8)]", DT_NUMBER, "-1.5",       "$-1.50"      },
    {"AmAbsent",               "s1159",       nullptr,       "HH:MM AM/PM",   DT_TIME,   "01:05",      "01:05 AM"    },
    {"AmEmpty",                "s1159",       "",            "HH:MM AM/PM",   DT_TIME,   "01:05",      "01:05 AM"    },
    {"AmOfFourCharacters",     "s1159",       "a.m.",        "HH:MM AM/PM",   DT_TIME,   "01:05",      "01:05 a.m."  },
    {"AmOfFiveCharacters",     "s1159",       "a.m.m",       "HH:MM AM/PM",   DT_TIME,   "01:05",      "01:05 a.m."  },
    {"PmAbsent",               "s2359",       nullptr,       "HH:MM AM/PM",   DT_TIME,   "13:05",      "01:05 PM"    },
    {"PmEmpty",                "s2359",       "",            "HH:MM AM/PM",   DT_TIME,   "13:05",      "01:05 PM"    },
    {"PmOfFourCharacters",     "s2359",       "p.m.",        "HH:MM AM/PM",   DT_TIME,   "13:05",      "01:05 p.m."  },
    {"PmOfALongWordIsCut",     "s2359",       "nachmittags", "HH:MM AM/PM",   DT_TIME,   "13:05",      "01:05 nach"  },
    {"ShortDateAbsent",        "sShortDate",  nullptr,       "[date]",        DT_DATE,   "1995-07-04", "07/04/95"    },
    {"ShortDateDayFirst",      "sShortDate",  "dd.MM.yyyy",  "[date]",        DT_DATE,   "1995-07-04", "04.07.1995"  },
    {"ShortDateYearFirst",     "sShortDate",  "yyyy-MM-dd",  "[date]",        DT_DATE,   "1995-07-04", "1995-07-04"  },
    {"ShortDateSingleLetters", "sShortDate",  "d/M/yy",      "[date]",        DT_DATE,   "1995-07-04", "04/07/95"    },
    {"ShortDateWithMonthName", "sShortDate",  "dd-MMM-yyyy", "[date]",        DT_DATE,   "1995-07-04", "04-07-1995"  },
    {"TimeAbsent",             "sTime",       nullptr,       "[time]",        DT_TIME,   "14:07:09",   "14:07:09"    },
    {"TimePoint",              "sTime",       ".",           "[time]",        DT_TIME,   "14:07:09",   "14.07.09"    },
    {"TimeEmpty",              "sTime",       "",            "[time]",        DT_TIME,   "14:07:09",   "140709"      },
};
TEST_ROWS(, IntlKey, kKeyRows);

class Intl : public WindowValueTest {};

TEST_F(Intl, AMissingSectionHasDefaultsForNumbers)
{
    const Regional settings(kNothing);
    Install("[currency(9)]", DT_NUMBER);
    EXPECT_EQ(ShownFor("1234.5"), "$1,234.50");
}

TEST_F(Intl, AMissingSectionHasDefaultsForTimes)
{
    const Regional settings(kNothing);
    Install("HH:MM AM/PM", DT_TIME);
    EXPECT_EQ(ShownFor("00:05"), "12:05 AM");
    EXPECT_EQ(ShownFor("12:05"), "12:05 PM");
}

TEST_F(Intl, AMissingSectionHasADefaultPicture)
{
    const Regional settings(kNothing);
    Install("[date] [time]", DT_DATETIME);
    EXPECT_EQ(ShownFor("1995-07-04 14:07:09"), "07/04/95 14:07:09");
}

TEST_F(Intl, AChangeIsFollowedByOpenControlsAtTheNextValue)
{
    Install("#,#.00", DT_NUMBER);
    ShownFor("1234.5");
    const Regional settings(kGerman);
    EXPECT_EQ(Text(), "1,234.50") << "what is shown is not formatted again";
    EXPECT_EQ(ShownFor("1234.5"), "1.234,50");
}

TEST_F(Intl, AChangeLeavesTheMaskInForce)
{
    Install("[currency(8)]", DT_NUMBER);
    const Regional settings(kGerman);
    EXPECT_EQ(MaskInForce(), "$###,###.00");
}

TEST_F(Intl, AChangeNobodyTellsOfIsNotNoticed)
{
    Install("#,#.00", DT_NUMBER);
    WriteProfileStringA("intl", "sDecimal", "!");
    const std::string shown = ShownFor("1.5");
    WriteProfileStringA("intl", "sDecimal", ".");
    EXPECT_EQ(shown, "1.50");
}

TEST_F(Intl, AnyControlThatHearsOfAChangeServesAll)
{
    Install("#,#.00", DT_NUMBER);
    const Control other(form_.hwnd(), 99, Config());
    WriteProfileStringA("intl", "sDecimal", "!");
    SendMessageA(other.hwnd(), WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    const std::string shown = ShownFor("1.5");
    WriteProfileStringA("intl", "sDecimal", ".");
    TellRegionalChange();
    EXPECT_EQ(shown, "1!50");
}

TEST_F(Intl, PicturesAreReadAtEachCall)
{
    Install(nullptr, DT_DATE);
    WriteProfileStringA("intl", "sShortDate", "d.M.yy");
    ZTE_FmtSetMask(Window(), "[date]", DT_DATE);
    const std::string mask = MaskInForce();
    WriteProfileStringA("intl", "sShortDate", "M/d/yyyy");
    EXPECT_EQ(mask, "dd.mm.yy");
}

TEST_F(Intl, ADecimalCharacterIsReadBackInItsNewForm)
{
    Install("#,#.00", DT_NUMBER);
    const Regional settings(kGerman);
    ShownFor("1234.5");
    EXPECT_EQ(Read(), "1234,50");
}

}  // namespace
}  // namespace zttest
