// The keywords that expand into masks of the regional settings.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class Keywords : public ValueTest {
protected:
    Keywords() { Install(nullptr, DT_STRING); }
};

struct KeywordCase {
    const char* name;
    const RegionalSet* settings;
    const char* keyword;
    int32_t type;
    int32_t result;
    const char* mask;
};
void PrintTo(const KeywordCase& row, std::ostream* out)
{
    *out << row.keyword;
}

class Expansion : public Keywords, public OfRow<KeywordCase> {};

ROW_TEST(Expansion, IsInstalled)
{
    const Regional settings(*GetParam().settings);
    EXPECT_EQ(SetMask(GetParam().keyword, GetParam().type), GetParam().result);
    EXPECT_EQ(MaskInForce(), GetParam().mask);
}

const KeywordCase kDateKeywordRows[] = {
    {"DateInTheUnitedStates",          &kUnitedStates, "[date]",         DT_DATE,     1, "mm/dd/yyyy"           },
    {"DateInGerman",                   &kGerman,       "[date]",         DT_DATE,     1, "dd.mm.yyyy"           },
    {"DateInIso",                      &kIso,          "[date]",         DT_DATE,     1, "yyyy-mm-dd"           },
    {"DateInCapitals",                 &kUnitedStates, "[DATE]",         DT_DATE,     1, "mm/dd/yyyy"           },
    {"DateInMixedCase",                &kUnitedStates, "[Date]",         DT_DATE,     1, "mm/dd/yyyy"           },
    {"DateIsNotCheckedAgainstTheType", &kUnitedStates, "[date]",         DT_STRING,   1, "mm/dd/yyyy"           },
    {"Time",                           &kUnitedStates, "[time]",         DT_TIME,     1, "hh:mm:ss"             },
    {"TimeInCapitals",                 &kUnitedStates, "[TIME]",         DT_TIME,     1, "hh:mm:ss"             },
    {"Both",                           &kUnitedStates, "[date] [time]",  DT_DATETIME, 1, "mm/dd/yyyy hh:mm:ss"  },
    {"BothInGerman",                   &kGerman,       "[date] [time]",  DT_DATETIME, 1, "dd.mm.yyyy hh:mm:ss"  },
    {"BothInCapitals",                 &kIso,          "[DATE] [TIME]",  DT_DATETIME, 1, "yyyy-mm-dd hh:mm:ss"  },
    {"TextBeforeIsNoKeyword",          &kUnitedStates, " [time]",        DT_STRING,   1, " [time]"              },
    {"TextBehindIsNoKeyword",          &kUnitedStates, "[time] ",        DT_STRING,   1, "[time] "              },
    {"TwoBlanksAreNoKeyword",          &kUnitedStates, "[date]  [time]", DT_DATETIME, 0, "MM/DD/YY HH:MM:SS:FFF"},
    {"TheOtherOrderIsNoKeyword",       &kUnitedStates, "[time] [date]",  DT_DATETIME, 0, "MM/DD/YY HH:MM:SS:FFF"},
};

const KeywordCase kCurrencyKeywordRows[] = {
    {"Eight",                          &kUnitedStates, "[currency(8)]",                    DT_NUMBER,  1, "$###,###.00"           },
    {"Nine",                           &kUnitedStates, "[currency(9)]",                    DT_NUMBER,  1, "$#,###,###.00"         },
    {"Sixteen",                        &kUnitedStates, "[currency(16)]",                   DT_NUMBER,  1, "$##,###,###,###,###.00"},
    {"Three",                          &kUnitedStates, "[currency(3)]",                    DT_NUMBER,  1, "$#.00"                 },
    {"OnlyTheFraction",                &kUnitedStates, "[currency(2)]",                    DT_NUMBER,  1, "$.00"                  },
    {"FewerThanTheFraction",           &kUnitedStates, "[currency(1)]",                    DT_NUMBER,  1, "$.00"                  },
    {"NoCount",                        &kUnitedStates, "[currency()]",                     DT_NUMBER,  1, "$.00"                  },
    {"ANegativeCount",                 &kUnitedStates, "[currency(-4)]",                   DT_NUMBER,  1, "$.00"                  },
    {"ForADecimal",                    &kUnitedStates, "[currency(8)]",                    DT_DECIMAL, 1, "$###,###.00"           },
    {"TextBehind",                     &kUnitedStates, "[currency(8)] of it",              DT_NUMBER,  1, "$###,###.00"           },
    {"TextBeforeTheParenthesis",       &kUnitedStates, "[currency: (8)]",                  DT_NUMBER,  1, "$###,###.00"           },
    {"NineteenCharactersOfCount",      &kUnitedStates, "[currency(0000000000000000008)]",  DT_NUMBER,  1, "$###,###.00"           },
    {"TheCountIsSixteenBitsWide",      &kUnitedStates, "[currency(65544)]",                DT_NUMBER,  1, "$###,###.00"           },
    {"SeventeenFails",                 &kUnitedStates, "[currency(17)]",                   DT_NUMBER,  0, "#,#.00"                },
    {"TwentyCharactersOfCountFail",    &kUnitedStates, "[currency(00000000000000000008)]", DT_NUMBER,  0, "#,#.00"                },
    {"NoParenthesisFails",             &kUnitedStates, "[currency]",                       DT_NUMBER,  0, "#,#.00"                },
    {"NoClosingParenthesisFails",      &kUnitedStates, "[currency(8]",                     DT_NUMBER,  0, "#,#.00"                },
    {"OtherOrderOfParenthesesFails",   &kUnitedStates, "[currency)8(]",                    DT_NUMBER,  0, "#,#.00"                },
    {"CapitalsAreNoKeyword",           &kUnitedStates, "[Currency(8)]",                    DT_NUMBER,  0, "#,#.00"                },
    {"AFailedKeywordMayBeAStringMask", &kUnitedStates, "[currency(17)]",                   DT_STRING,  1, "[currency(17)]"        },
    {"GermanBehindTheDigits",          &kGerman,       "[currency(8)]",                    DT_NUMBER,  1, "###,###.00EUR"         },
    {"FrenchBehindTheDigits",          &kFrench,       "[currency(5)]",                    DT_NUMBER,  1, "###.00F"               },
    {"SwissBeforeTheDigits",           &kSwiss,        "[currency(8)]",                    DT_NUMBER,  1, "CHF###,###.00"         },
};

TEST_ROWS(Date, Expansion, kDateKeywordRows);
TEST_ROWS(Currency, Expansion, kCurrencyKeywordRows);

// Keys of the settings and the keyword under them, the rest as in the United States.
struct SettingCase {
    const char* name;
    const char* key;
    const char* value;
    const char* secondKey;
    const char* secondValue;
    const char* keyword;
    int32_t type;
    int32_t result;
    const char* mask;
};
void PrintTo(const SettingCase& row, std::ostream* out)
{
    *out << row.keyword << " with " << row.key << '=' << row.value;
}

class SettingsOf : public Keywords, public OfRow<SettingCase> {};

ROW_TEST(SettingsOf, TheKeywordAreFollowed)
{
    const SettingCase& row = GetParam();
    RegionalSet changes = {
        {row.key, row.value}
    };
    if (row.secondKey)
        changes.push_back({row.secondKey, row.secondValue});
    const Regional settings(With(kUnitedStates, changes));
    EXPECT_EQ(SetMask(row.keyword, row.type), row.result);
    EXPECT_EQ(MaskInForce(), row.mask);
}

// clang-format off
const SettingCase kSettingRows[] = {
    {"PositionZero",                  "iCurrency",   "0",            "sCurrency", "F",     "[currency(5)]", DT_NUMBER, 1, "F###.00"},
    {"PositionOne",                   "iCurrency",   "1",            "sCurrency", "F",     "[currency(5)]", DT_NUMBER, 1, "###.00F"},
    {"PositionTwo",                   "iCurrency",   "2",            "sCurrency", "F",     "[currency(5)]", DT_NUMBER, 1, "F###.00"},
    {"PositionThree",                 "iCurrency",   "3",            "sCurrency", "F",     "[currency(5)]", DT_NUMBER, 1, "###.00F"},
    {"PositionFourIsZero",            "iCurrency",   "4",            "sCurrency", "F",     "[currency(5)]", DT_NUMBER, 1, "F###.00"},
    {"PositionSevenIsZero",           "iCurrency",   "7",            "sCurrency", "F",     "[currency(5)]", DT_NUMBER, 1, "F###.00"},
    {"ANegativePositionIsZero",       "iCurrency",   "-1",           "sCurrency", "F",     "[currency(5)]", DT_NUMBER, 1, "F###.00"},
    {"ThreeLettersBefore",            "iCurrency",   "2",            "sCurrency", "DKK",   "[currency(8)]", DT_NUMBER, 1, "DKK###,###.00"},
    {"ThreeLettersBehind",            "iCurrency",   "3",            "sCurrency", "DKK",   "[currency(8)]", DT_NUMBER, 1, "###,###.00DKK"},
    {"NoSymbol",                      "iCurrency",   "0",            "sCurrency", "",      "[currency(8)]", DT_NUMBER, 1, "###,###.00"},
    {"NoFractionDigits",              "iCurrDigits", "0",            nullptr,     nullptr, "[currency(4)]", DT_NUMBER, 1, "$#,###"},
    {"OneFractionDigit",              "iCurrDigits", "1",            nullptr,     nullptr, "[currency(4)]", DT_NUMBER, 1, "$###.0"},
    {"ThreeFractionDigits",           "iCurrDigits", "3",            nullptr,     nullptr, "[currency(7)]", DT_NUMBER, 1, "$#,###.000"},
    {"ANegativeFractionKeepsThePoint", "iCurrDigits", "-1",           nullptr,     nullptr, "[currency(4)]", DT_NUMBER, 1, "$##,###."},
    {"SeparatorsStayPlain",           "sDecimal",    ",",            "sThousand", ".",     "[currency(8)]", DT_NUMBER, 1, "$###,###.00"},
    {"AnotherTimeSeparator",          "sTime",       ".",            nullptr,     nullptr, "[time]",        DT_TIME, 1, "hh.mm.ss"},
    {"ATimeSeparatorOfTwoCharacters", "sTime",       "::",           nullptr,     nullptr, "[time]",        DT_TIME, 1, "hh::mm::ss"},
    {"BothOfThem", "sShortDate", "d-MMM-yy", "sTime", ".", "[date] [time]", DT_DATETIME, 1, "dd-mm-yy hh.mm.ss"},
    {"WordsInThePicture",             "sShortDate",  "'Day' d.M.yy", nullptr,     nullptr, "[date]",        DT_DATE, 1, "~Da~y dd.mm.yy"},
    {"AnEmptyPictureIsAnEmptyMask",   "sShortDate",  "",             nullptr,     nullptr, "[date]",        DT_DATE, 1, ""},
    {"ABadPictureFails",              "sShortDate",  "yyy/MM/dd",    nullptr,     nullptr, "[date]",        DT_DATE, 0, "MM/DD/YY"},
    {"ABadPictureFailsForBoth", "sShortDate", "yyy/MM/dd", nullptr, nullptr, "[date] [time]", DT_DATETIME, 0, "MM/DD/YY HH:MM:SS:FFF"},
    {"AFailedKeywordMayBeATimeMask",  "sShortDate",  "yyy/MM/dd",    nullptr,     nullptr, "[date]",        DT_TIME, 1, "[date]"},
    {"ABadPictureDoesNotConcernTheTime", "sShortDate",  "yyy/MM/dd",    nullptr,     nullptr, "[time]",        DT_TIME, 1, "hh:mm:ss"},
};
// clang-format on
TEST_ROWS(, SettingsOf, kSettingRows);

TEST_F(Keywords, ACurrencySymbolThatJustFitsIsTaken)
{
    const std::string symbol(245, 'c');
    const Regional settings(With(kUnitedStates, {
                                                    {"sCurrency", symbol.c_str()}
    }));
    EXPECT_EQ(SetMask("[currency(8)]", DT_NUMBER), 1);
    EXPECT_EQ(MaskInForce(), symbol + "###,###.00");
}

TEST_F(Keywords, ACurrencySymbolThatDoesNotFitFails)
{
    const std::string symbol(246, 'c');
    const Regional settings(With(kUnitedStates, {
                                                    {"sCurrency", symbol.c_str()}
    }));
    EXPECT_EQ(SetMask("[currency(8)]", DT_NUMBER), 0);
    EXPECT_EQ(MaskInForce(), "#,#.00");
}

TEST_F(Keywords, ExpandByTheSettingsOfTheCall)
{
    SetMask("[date]", DT_DATE);
    const Regional settings(kGerman);
    EXPECT_EQ(MaskInForce(), "mm/dd/yyyy");
    SetMask("[date]", DT_DATE);
    EXPECT_EQ(MaskInForce(), "dd.mm.yyyy");
}

TEST_F(Keywords, ThatFailUnderAStringMaskStandAsTheyAre)
{
    const Regional settings(With(kUnitedStates, {
                                                    {"sShortDate", "yyy/MM/dd"}
    }));
    EXPECT_EQ(SetMask("[date]", DT_STRING), 1);
    EXPECT_EQ(MaskInForce(), "[date]");
}

// What pictures with words show, and what is typed under them.
struct WordCase {
    const char* name;
    const char* key;
    const char* value;
    const char* keyword;
    int32_t type;
    const char* data;
    const char* shown;
    const char* typed;
    const char* typedText;
    const char* typedValue;
};
void PrintTo(const WordCase& row, std::ostream* out)
{
    *out << row.typed << " under " << row.keyword << " with " << row.key << '=' << row.value;
}

class Words : public EditTest, public OfRow<WordCase> {
protected:
    Words()
        : settings_(With(kUnitedStates, {
                                            {GetParam().key, GetParam().value}
    }))
    {
    }

    void GivenKeyword()
    {
        Config config;
        config.mask = GetParam().keyword;
        config.type = GetParam().type;
        Make(config);
    }

private:
    Regional settings_;
};

ROW_TEST(Words, StandInTheDisplay)
{
    GivenKeyword();
    control_->SetDataString(GetParam().data);
    EXPECT_EQ(Text(), GetParam().shown);
    const std::string value = Value();
    control_->SetDataString(Text());
    EXPECT_EQ(Value(), value) << "as it was shown";
}

ROW_TEST(Words, AreTypedAround)
{
    GivenKeyword();
    Type(GetParam().typed);
    EXPECT_EQ(Text(), GetParam().typedText);
    EXPECT_EQ(Value(), GetParam().typedValue);
    EXPECT_EQ(Beeps(), 0);
}

// clang-format off
const WordCase kWordRows[] = {
    {"DayOfMonth",     "sShortDate", "d 'de' MMMM 'de' yyyy",     "[date]",        DT_DATE,     "1995-07-04", "04 de 07 de 1995",
     "31121999", "31 de 12 de 1999", "1999-12-31"},
    {"BothQuotes",     "sShortDate", "d \"de\" MMMM 'de' yyyy", "[date]",        DT_DATE,     "1995-07-04", "04 de 07 de 1995",
     "4d2de1999", "04 de 02 de 1999", "1999-02-04"},
    {"InFront",        "sShortDate", "'den' d.M.yyyy",            "[date]",        DT_DATE,     "1995-07-04", "den 04.07.1995",
     "31.12.1999", "den 31.12.1999", "1999-12-31"},
    {"OldTwoDigitYear", "sShortDate", "'my' d.M.yy",              "[date]",        DT_DATE,     "2049-07-04", "my 04.07.49",
     "4.2.00", "my 04.02.00", "2000-02-04"},
    {"SignsOfTheEast", "sShortDate", "yyyy'\xE5\xB9\xB4'M'\xE6\x9C\x88'd'\xE6\x97\xA5'", "[date]", DT_DATE, "1995-07-04",
     "1995\xE5\xB9\xB4" "07\xE6\x9C\x88" "04\xE6\x97\xA5", "20240229",
     "2024\xE5\xB9\xB4" "02\xE6\x9C\x88" "29\xE6\x97\xA5", "2024-02-29"},
    {"ATildeInASign",  "sShortDate", "yyyy'\xA6\x7E'M'\xA4\xEB'd", "[date]",   DT_DATE,     "1995-07-04",
     "1995\xA6\x7E" "07\xA4\xEB" "04", "20240229", "2024\xA6\x7E" "02\xA4\xEB" "29", "2024-02-29"},
    {"Backslashes",    "sShortDate", "d\\d M\\m yyyy",        "[date]",        DT_DATE,     "1995-07-04", "04d 07m 1995",
     "31121999", "31d 12m 1999", "1999-12-31"},
    {"TimeSeparator",  "sTime",      "h",                         "[time]",        DT_TIME,     "14:07:09",   "14h07h09",
     "9h5h7", "09h05h07", "09:05:07:000000"},
    {"WithATime",      "sShortDate", "'Day' d/M/yy",              "[date] [time]", DT_DATETIME, "1995-07-04 14:07:09",
     "Day 04/07/95 14:07:09", "311299235958", "Day 31/12/99 23:59:58", "1999-12-31 23:59:58:000000"},
};
// clang-format on

TEST_ROWS(Pictures, Words, kWordRows);

// The days of a month are counted by the month and the year that stand behind the words.
TEST_F(EditTest, AWordInThePictureShiftsNoField)
{
    const Regional settings(With(kUnitedStates, {
                                                    {"sShortDate", "'Day' yyyy 'dd' M 'dd' d"}
    }));
    Given("[date]", DT_DATE, "Day 1995 dd 02 dd |04");
    Type("29");
    EXPECT_EQ(Shown(), "Day 1995 dd 02 dd 2|4");
    EXPECT_EQ(Beeps(), 1);
}

}  // namespace
}  // namespace zttest
