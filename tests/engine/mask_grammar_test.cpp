// Which masks are installed and which are replaced by the default of their type.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class MaskTest : public ValueTest {
protected:
    MaskTest() { Install(nullptr, DT_STRING); }
};

// What stands in for a mask that is refused, and what it shows of the empty value.
struct DefaultCase {
    const char* name;
    int32_t type;
    const char* mask;
    const char* shown;
};
void PrintTo(const DefaultCase& row, std::ostream* out)
{
    *out << row.name;
}

const DefaultCase kDefaults[] = {
    {"String",   DT_STRING,   "",                      ""                     },
    {"Number",   DT_NUMBER,   "#,#.00",                ".00"                  },
    {"Date",     DT_DATE,     "MM/DD/YY",              "00/00/00"             },
    {"Time",     DT_TIME,     "HH:MM:SS:FFF",          "00:00:00:000"         },
    {"DateTime", DT_DATETIME, "MM/DD/YY HH:MM:SS:FFF", "00/00/00 00:00:00:000"},
    {"Decimal",  DT_DECIMAL,  "#,#.00",                ".00"                  },
};

std::string DefaultMask(int32_t type)
{
    for (const DefaultCase& entry : kDefaults) {
        if (entry.type == type)
            return entry.mask;
    }
    return "?";
}

class Defaults : public MaskTest, public OfRow<DefaultCase> {};

ROW_TEST(Defaults, StandInForNull)
{
    EXPECT_EQ(control_->SetMask(nullptr, GetParam().type), 0);
    EXPECT_EQ(MaskInForce(), GetParam().mask);
}

ROW_TEST(Defaults, StandInForAnEmptyMask)
{
    EXPECT_EQ(SetMask("", GetParam().type), 0);
    EXPECT_EQ(MaskInForce(), GetParam().mask);
}

ROW_TEST(Defaults, StandInForMoreThan255Characters)
{
    EXPECT_EQ(SetMask(std::string(256, '#'), GetParam().type), 0);
    EXPECT_EQ(MaskInForce(), GetParam().mask);
}

ROW_TEST(Defaults, StandInForADoubledTilde)
{
    EXPECT_EQ(SetMask("~~", GetParam().type), 0);
    EXPECT_EQ(MaskInForce(), GetParam().mask);
}

ROW_TEST(Defaults, StandInForATildeAtTheEnd)
{
    EXPECT_EQ(SetMask(std::string(GetParam().mask) + "~", GetParam().type), 0);
    EXPECT_EQ(MaskInForce(), GetParam().mask);
}

ROW_TEST(Defaults, ShowTheEmptyValue)
{
    SetMask("", GetParam().type);
    EXPECT_EQ(Text(), GetParam().shown);
}

ROW_TEST(Defaults, AreAcceptedWhenWrittenOut)
{
    if (GetParam().type == DT_STRING)
        EXPECT_EQ(SetMask(GetParam().mask, GetParam().type), 0);  // the empty mask is never accepted
    else
        EXPECT_EQ(SetMask(GetParam().mask, GetParam().type), 1);
}

TEST_ROWS(, Defaults, kDefaults);

struct MaskCase {
    const char* name;
    const char* mask;
};
void PrintTo(const MaskCase& row, std::ostream* out)
{
    *out << row.mask;
}

// One suite a type: the masks accepted, and those refused. The masks of numbers hold for decimals too.
template <int32_t type>
class Accepted : public MaskTest, public OfRow<MaskCase> {
protected:
    void Check()
    {
        EXPECT_EQ(SetMask(GetParam().mask, type), 1);
        EXPECT_EQ(MaskInForce(), GetParam().mask);
    }
};

template <int32_t type>
class Refused : public MaskTest, public OfRow<MaskCase> {
protected:
    void Check()
    {
        EXPECT_EQ(SetMask(GetParam().mask, type), 0);
        EXPECT_EQ(MaskInForce(), DefaultMask(type));
    }
};

using AcceptedString = Accepted<DT_STRING>;
using AcceptedNumber = Accepted<DT_NUMBER>;
using AcceptedDecimal = Accepted<DT_DECIMAL>;
using AcceptedDate = Accepted<DT_DATE>;
using AcceptedTime = Accepted<DT_TIME>;
using AcceptedDateTime = Accepted<DT_DATETIME>;
using RefusedString = Refused<DT_STRING>;
using RefusedNumber = Refused<DT_NUMBER>;
using RefusedDecimal = Refused<DT_DECIMAL>;
using RefusedDate = Refused<DT_DATE>;
using RefusedTime = Refused<DT_TIME>;
using RefusedDateTime = Refused<DT_DATETIME>;

ROW_TEST(AcceptedString, IsInstalled)
{
    Check();
}
ROW_TEST(AcceptedNumber, IsInstalled)
{
    Check();
}
ROW_TEST(AcceptedDecimal, IsInstalled)
{
    Check();
}
ROW_TEST(AcceptedDate, IsInstalled)
{
    Check();
}
ROW_TEST(AcceptedTime, IsInstalled)
{
    Check();
}
ROW_TEST(AcceptedDateTime, IsInstalled)
{
    Check();
}
ROW_TEST(RefusedString, GivesWayToTheDefault)
{
    Check();
}
ROW_TEST(RefusedNumber, GivesWayToTheDefault)
{
    Check();
}
ROW_TEST(RefusedDecimal, GivesWayToTheDefault)
{
    Check();
}
ROW_TEST(RefusedDate, GivesWayToTheDefault)
{
    Check();
}
ROW_TEST(RefusedTime, GivesWayToTheDefault)
{
    Check();
}
ROW_TEST(RefusedDateTime, GivesWayToTheDefault)
{
    Check();
}

const MaskCase kAcceptedStrings[] = {
    {"EveryMaskCharacter",           "#0AX!^"        },
    {"Telephone",                    "(###) ###-####"},
    {"Escapes",                      "~#~A~X##"      },
    {"OnlyLiterals",                 "---"           },
    {"DateLetters",                  "MM/DD/YY"      },
    {"AnEscapeAtTheEnd",             "##~#"          },
    {"KeywordInCapitalsOfACurrency", "[Currency(8)]" },
    {"GeneralIsNoKeyword",           "[GENERAL]"     },
};

const MaskCase kRefusedStrings[] = {
    {"DoubledTildeInside", "##~~##"},
    {"TildeAlone",         "~"     },
    {"TildeAtTheEnd",      "##~"   },
    {"EscapeThenTilde",    "~#~"   },
};

const MaskCase kAcceptedNumbers[] = {
    {"OneHash",                        "#"          },
    {"OneZero",                        "0"          },
    {"OnlyZeros",                      "000"        },
    {"Grouped",                        "#,##0"      },
    {"Fraction",                       "#,##0.00"   },
    {"HashFraction",                   "#.##"       },
    {"OnlyAFraction",                  ".00"        },
    {"AWholeNumberWithAPoint",         "##0."       },
    {"CurrencySymbol",                 "$#,##0.00"  },
    {"Percent",                        "#,##0.00%"  },
    {"PercentOfAWholeNumber",          "##0%"       },
    {"LiteralPrefix",                  "Total #,##0"},
    {"EscapedPrefix",                  "~##0"       },
    {"EscapedCurrencySymbol",          "~$#,##0"    },
    {"LiteralBeforeTheCurrencySymbol", "Due $#,##0" },
    {"General",                        "[GENERAL]"  },
};

const MaskCase kRefusedNumbers[] = {
    {"NoDigit",                       "Total"        },
    {"OnlyAPoint",                    "."            },
    {"OnlyAPercentSign",              "%"            },
    {"OnlyTheCurrencySymbol",         "$"            },
    {"OnlyAnEscape",                  "~#"           },
    {"PercentBeforeDigits",           "%#"           },
    {"PercentBetweenDigits",          "#%#"          },
    {"TwoPercentSigns",               "##%%"         },
    {"PercentWithCurrency",           "$#,##0%"      },
    {"CurrencyBehindDigits",          "#,##0.00$"    },
    {"TwoCurrencySymbols",            "$$#"          },
    {"TwoPoints",                     "#.0.0"        },
    {"CommaBehindThePoint",           "#.0,0"        },
    {"LiteralInTheBody",              "# #"          },
    {"LiteralBehindTheBody",          "#,##0 DM"     },
    {"EscapeInTheBody",               "#~x#"         },
    {"EscapeBehindTheBody",           "#~x"          },
    {"EscapeBehindTheCurrencySymbol", "$~x#"         },
    {"DoubledTilde",                  "~~#"          },
    {"ApostropheInThePrefix",         "'#"           },
    {"ApostropheInTheBody",           "#'#"          },
    {"QuoteInThePrefix",              "\"#"          },
    {"BackslashHidesTheOnlyDigit",    "\\#"          },
    {"BackslashAtTheEnd",             "#\\"          },
    {"CurrencyKeywordInCapitals",     "[Currency(8)]"},
};

const MaskCase kAcceptedDates[] = {
    {"MonthDayYear",                "MM/DD/YY"         },
    {"SmallLetters",                "mm/dd/yyyy"       },
    {"CasesMayDifferBetweenFields", "MM/dd/YY"         },
    {"DayMonthYear",                "DD.MM.YYYY"       },
    {"YearMonthDay",                "YYYY-MM-DD"       },
    {"MonthName",                   "DD-MMM-YYYY"      },
    {"SmallMonthName",              "dd-mmm-yy"        },
    {"NoLiterals",                  "MMDDYY"           },
    {"MonthAndYear",                "MM/YY"            },
    {"MonthNameAndYear",            "MMM YYYY"         },
    {"YearAlone",                   "YY"               },
    {"FourDigitYearAlone",          "YYYY"             },
    {"DayOfYear",                   "JJJ/YY"           },
    {"DayOfYearBehind",             "YYYY-JJJ"         },
    {"SmallDayOfYear",              "jjj.yy"           },
    {"WordsAround",                 "on MM/DD/YY sharp"},
    {"TimeLettersAreLiterals",      "MM/DD/YY HH"      },
    {"AnEscapeBehind",              "MM/DD/YY~D"       },
};

const MaskCase kRefusedDates[] = {
    {"NoYear",                 "DD/MM"      },
    {"OnlyAMonth",             "MM"         },
    {"OnlyADayOfTheYear",      "JJJ"        },
    {"NoField",                "ABC"        },
    {"DayWithoutMonth",        "DD/YY"      },
    {"ThreeYearLetters",       "MM/DD/YYY"  },
    {"OneYearLetter",          "MM/DD/Y"    },
    {"FiveYearLetters",        "MM/DD/YYYYY"},
    {"OneMonthLetter",         "M/DD/YY"    },
    {"FourMonthLetters",       "MMMM/YY"    },
    {"OneDayLetter",           "MM/D/YY"    },
    {"ThreeDayLetters",        "MM/DDD/YY"  },
    {"TwoDayOfYearLetters",    "JJ/YY"      },
    {"FourDayOfYearLetters",   "JJJJ/YY"    },
    {"DayOfYearThenDay",       "JJJ/DD/YY"  },
    {"DayThenDayOfYear",       "DD/JJJ/YY"  },
    {"DayOfYearThenMonth",     "JJJ/MM/YY"  },
    {"MonthThenDayOfYear",     "MM/JJJ/YY"  },
    {"DayOfYearThenMonthName", "JJJ/MMM/YY" },
    {"TwoMonths",              "MM/MM/YY"   },
    {"TwoDays",                "DD/DD/MM/YY"},
    {"TwoYears",               "MM/YY/YYYY" },
    {"TwoDaysOfTheYear",       "JJJ/JJJ/YY" },
    {"MixedCaseField",         "mM/DD/YY"   },
    {"AnEscapeBeforeAField",   "~xMM/DD/YY" },
};

const MaskCase kAcceptedTimes[] = {
    {"HoursAndMinutes",        "HH:MM"          },
    {"SmallLetters",           "hh:mm:ss"       },
    {"NoLiterals",             "HHMMSS"         },
    {"HoursAlone",             "HH"             },
    {"OneFractionDigit",       "HH:MM:SS.F"     },
    {"ThreeFractionDigits",    "HH:MM:SS:FFF"   },
    {"SixFractionDigits",      "HH:MM:SS.FFFFFF"},
    {"FieldsInAnotherOrder",   "MM:HH"          },
    {"TwelveHours",            "HH:MM AM/PM"    },
    {"SmallMarker",            "HH:MM:SS am/pm" },
    {"MarkerWithoutABlank",    "HH:MMAM/PM"     },
    {"MarkerAlone",            "AM/PM"          },
    {"NoField",                "ABC"            },
    {"DateLettersAreLiterals", "HH:MM DY"       },
    {"AnEscapeBehind",         "HH:MM~h"        },
    {"ShortMarkerIsText",      "HH:MM A/P"      },
};

const MaskCase kRefusedTimes[] = {
    {"SevenFractionDigits",    "HH:MM:SS.FFFFFFF" },
    {"MinutesWithoutHours",    "MM:SS"            },
    {"MinutesAlone",           "MM"               },
    {"SecondsAlone",           "SS"               },
    {"SecondsWithoutMinutes",  "HH:SS"            },
    {"FractionAlone",          "FFF"              },
    {"FractionWithoutSeconds", "HH:MM:FFF"        },
    {"OneHourLetter",          "H:MM"             },
    {"ThreeHourLetters",       "HHH:MM"           },
    {"OneMinuteLetter",        "HH:M"             },
    {"ThreeMinuteLetters",     "HH:MMM"           },
    {"OneSecondLetter",        "HH:MM:S"          },
    {"ThreeSecondLetters",     "HH:MM:SSS"        },
    {"TwoHours",               "HH:HH"            },
    {"TwoMinutes",             "HH:MM:MM"         },
    {"TwoSeconds",             "HH:MM:SS:SS"      },
    {"TwoFractions",           "HH:MM:SS.F.F"     },
    {"TwoMarkers",             "HH:MM AM/PM AM/PM"},
    {"MixedCaseMarker",        "HH:MM Am/Pm"      },
    {"MixedCaseField",         "hH:MM"            },
    {"AnEscapeBeforeAField",   "~xHH:MM"          },
};

const MaskCase kAcceptedDateTimes[] = {
    {"DateAndTime",      "MM/DD/YY HH:MM:SS:FFF" },
    {"DayMonthYear",     "DD.MM.YYYY HH:MM"      },
    {"MonthName",        "DD-MMM-YYYY HH:MM"     },
    {"SmallLetters",     "yyyy-mm-dd hh:mm"      },
    {"TwelveHours",      "MM/DD/YYYY HH:MM AM/PM"},
    {"DayOfYear",        "YYYY.JJJ HH:MM"        },
    {"DateAlone",        "MM/DD/YY"              },
    {"TimeAlone",        "HH:MM"                 },
    {"YearAlone",        "YYYY"                  },
    {"MonthAndHours",    "MM HH"                 },
    {"MonthYearAndTime", "MM/YY HH:MM"           },
    {"NoField",          "ABC"                   },
    {"NoLiterals",       "YYYYMMDDHHMMSS"        },
};

const MaskCase kRefusedDateTimes[] = {
    {"DayAndMonthWithoutYear", "DD/MM HH:MM"     },
    {"DayAndYearWithoutMonth", "DD/YY HH:MM"     },
    {"DayAlone",               "DD"              },
    {"MonthBehindTheHour",     "HH:MM DD/MM/YY"  },
    {"MinutesForTheMonth",     "HH DD/MM/YY"     },
    {"TwoMonths",              "MM/DD/YY MM:SS"  },
    {"SecondsWithoutMinutes",  "MM/DD/YY HH:SS"  },
    {"SecondsWithoutHours",    "MM/DD/YY SS"     },
    {"FractionWithoutSeconds", "MM/DD/YY HH:MM:F"},
    {"ThreeYearLetters",       "MM/DD/YYY HH:MM" },
    {"DayOfYearWithDay",       "JJJ/DD/YY HH:MM" },
    {"DayOfYearWithMonth",     "JJJ/MM/YY HH:MM" },
    {"FourMonthLetters",       "DD MMMM YYYY"    },
    {"TwoMarkers",             "HH AM/PM AM/PM"  },
    {"ThreeMinuteLetters",     "MM/DD/YY HH:MMM" },
    {"AnEscapeBeforeAField",   "~xMM/DD/YY HH:MM"},
};

TEST_ROWS(, AcceptedString, kAcceptedStrings);
TEST_ROWS(, RefusedString, kRefusedStrings);
TEST_ROWS(, AcceptedNumber, kAcceptedNumbers);
TEST_ROWS(, RefusedNumber, kRefusedNumbers);
TEST_ROWS(, AcceptedDecimal, kAcceptedNumbers);
TEST_ROWS(, RefusedDecimal, kRefusedNumbers);
TEST_ROWS(, AcceptedDate, kAcceptedDates);
TEST_ROWS(, RefusedDate, kRefusedDates);
TEST_ROWS(, AcceptedTime, kAcceptedTimes);
TEST_ROWS(, RefusedTime, kRefusedTimes);
TEST_ROWS(, AcceptedDateTime, kAcceptedDateTimes);
TEST_ROWS(, RefusedDateTime, kRefusedDateTimes);

// Number masks follow the regional characters in force.
struct RegionalMaskCase {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    int32_t accepted;
};
void PrintTo(const RegionalMaskCase& row, std::ostream* out)
{
    *out << row.mask;
}

class RegionalNumberMask : public MaskTest, public OfRow<RegionalMaskCase> {
protected:
    void Check(const Regional&)
    {
        EXPECT_EQ(SetMask(GetParam().mask, DT_NUMBER), GetParam().accepted);
        EXPECT_EQ(MaskInForce(), GetParam().accepted ? GetParam().mask : "#,#.00");
    }
};

ROW_TEST(RegionalNumberMask, IsCheckedByTheRegionalCharacters)
{
    Check(Regional(*GetParam().settings));
}

const RegionalMaskCase kRegionalMaskRows[] = {
    {"GermanPointBehindTheCommaIsRefused",        &kGerman, "#,##0.00",  0},
    {"GermanCommaBehindThePointHasNoFormat",      &kGerman, "#.##0,00",  0},
    {"GermanPointAlone",                          &kGerman, "##0.00",    1},
    {"GermanCommaAlone",                          &kGerman, "#,##0",     1},
    {"GermanCurrencySymbol",                      &kGerman, "EUR##0.00", 1},
    {"GermanCurrencySymbolBehindDigitsIsRefused", &kGerman, "##0.00EUR", 0},
    {"PartOfTheGermanCurrencySymbolIsAPrefix",    &kGerman, "EU##0.00",  1},
    {"DollarIsAPrefixInGerman",                   &kGerman, "$##0.00",   1},
    {"DollarAllowsPercentInGerman",               &kGerman, "$##0%",     1},
    {"FrenchPointInTheBodyIsRefused",             &kFrench, "##0.00",    0},
    {"FrenchComma",                               &kFrench, "#,##0",     1},
    {"SwissCommaInTheBodyIsRefused",              &kSwiss,  "#,##0.00",  0},
    {"SwissApostropheIsRefusedAsEver",            &kSwiss,  "#'##0",     0},
    {"SwissCurrencySymbol",                       &kSwiss,  "CHF##0.00", 1},
    {"SwissCurrencySymbolWithPercentIsRefused",   &kSwiss,  "CHF##0%",   0},
};
TEST_ROWS(, RegionalNumberMask, kRegionalMaskRows);

class MaskWithoutCurrency : public RegionalNumberMask {};

// An empty symbol is found everywhere, so only digits are left.
ROW_TEST(MaskWithoutCurrency, TakesDigitsOnly)
{
    Check(Regional(With(kUnitedStates, {
                                           {"sCurrency", ""}
    })));
}

const RegionalMaskCase kNoCurrencyRows[] = {
    {"Digits",          nullptr, "##0",     1},
    {"ACommaInTheBody", nullptr, "#,##0",   0},
    {"APoint",          nullptr, "##0.00",  0},
    {"APrefix",         nullptr, "Total 0", 0},
    {"APercentSign",    nullptr, "##0%",    0},
};
TEST_ROWS(, MaskWithoutCurrency, kNoCurrencyRows);

class MaskSetting : public MaskTest {};

TEST_F(MaskSetting, TakesAStringMaskOf255Characters)
{
    const std::string longest(255, '#');
    EXPECT_EQ(SetMask(longest, DT_STRING), 1);
    EXPECT_EQ(MaskInForce(), longest);
    EXPECT_EQ(Record().displayLength, 255);
}

TEST_F(MaskSetting, IsNotCheckedForAnotherTypeCode)
{
    EXPECT_EQ(SetMask("~~%#", 9), 1);
    EXPECT_EQ(MaskInForce(), "~~%#");
}

TEST_F(MaskSetting, ReplacesTheValueByTheEmptyOne)
{
    SetMask("###-###", DT_STRING);
    ShownFor("123456");
    SetMask("##-##", DT_STRING);
    EXPECT_EQ(Text(), "  -  ");
}

TEST_F(MaskSetting, ShowsBlanksForAStringWithoutLiterals)
{
    SetMask("####", DT_STRING);
    EXPECT_EQ(Text(), "    ");
}

TEST_F(MaskSetting, ClearsTheTextWithTheEmptyStringMask)
{
    SetMask("####", DT_STRING);
    ShownFor("1234");
    SetMask("", DT_STRING);
    EXPECT_EQ(Text(), "");
}

TEST_F(MaskSetting, ChangesTheTypeTold)
{
    SetMask("MM/DD/YY", DT_DATE);
    SetMask("#", DT_NUMBER);
    EXPECT_EQ(control_->DataType(), DT_NUMBER);
}

TEST_F(MaskSetting, CopiesTheText)
{
    std::string mask = "###";
    SetMask(mask, DT_STRING);
    mask[0] = 'A';
    EXPECT_EQ(MaskInForce(), "###");
}

TEST_F(MaskSetting, FreesThePreviousMask)
{
    SetMask("###", DT_STRING);
    const uint32_t blocks = control_->Blocks();
    SetMask("MM/DD/YYYY", DT_DATE);
    SetMask("[date]", DT_DATE);
    SetMask("refused", DT_NUMBER);
    EXPECT_EQ(control_->Blocks(), blocks);
}

}  // namespace
}  // namespace zttest
