// Texts of numbers, the format text of a number mask, and the reading of date and time texts field by field.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "format/date_walk.h"
#include "format/format_text.h"
#include "format/number_text.h"
#include "mask/field_text.h"
#include "tests/support/edit_test.h"
#include "tests/support/profile.h"

namespace zttest {
namespace {

using namespace zte;

std::string TextOfDecimal(const DecimalValue& value)
{
    char compiled[SHARED_FORMAT_SIZE];
    char text[SHARED_FORMAT_SIZE] = "";
    SharedCompileFormat(compiled, "0.############################", SHARED_FORMAT_SIZE);
    SharedFormatDecimal(text, sizeof text, compiled, &value, 0);
    return text;
}

struct NumberCase {
    const char* name;
    const char* text;
    double plain;   // read as canonical text
    double german;  // read as text of the German settings
};
void PrintTo(const NumberCase& row, std::ostream* out)
{
    *out << '"' << row.text << '"';
}

class NumberTexts : public testing::TestWithParam<NumberCase> {};

TEST_P(NumberTexts, AreReadAsCanonicalText)
{
    EXPECT_EQ(NumberFromPlainText(GetParam().text), GetParam().plain);
}

TEST_P(NumberTexts, AreReadAsCanonicalTextUnderAnySettings)
{
    const Regional settings(kGerman);
    EXPECT_EQ(NumberFromPlainText(GetParam().text), GetParam().plain);
}

TEST_P(NumberTexts, AreReadWithTheRegionalDecimalCharacter)
{
    const Regional settings(kGerman);
    EXPECT_EQ(NumberFromText(GetParam().text), GetParam().german);
}

const NumberCase kNumberRows[] = {
    {"Whole",         "12",    12,    12   },
    {"Point",         "12.5",  12.5,  12.5 },
    {"Comma",         "12,5",  12,    12.5 },
    {"CommaFirst",    ",5",    0,     0.5  },
    {"Negative",      "-12.5", -12.5, -12.5},
    {"NegativeComma", "-12,5", -12,   -12.5},
    {"LeadingBlanks", "  7",   7,     7    },
    {"TrailingText",  "7 pm",  7,     7    },
    {"NoNumber",      "seven", 0,     0    },
    {"Empty",         "",      0,     0    },
    {"SignAlone",     "-",     0,     0    },
    {"Exponent",      "1e3",   1000,  1000 },
};
INSTANTIATE_TEST_SUITE_P(, NumberTexts, testing::ValuesIn(kNumberRows), RowName<NumberCase>);

TEST(PlainPoint, StandsForTheRegionalCharacter)
{
    const Regional settings(kGerman);
    EXPECT_EQ(WithPlainPoint("-12,50"), "-12.50");
}

TEST(DecimalTexts, KeepEveryDigit)
{
    EXPECT_EQ(TextOfDecimal(DecimalFromText("12345678901234567890.12345678", 2)), "12345678901234567890.12345678");
}

TEST(DecimalTexts, AreReadWithTheRegionalDecimalCharacter)
{
    const Regional settings(kGerman);
    const DecimalValue comma = DecimalFromText("-12,5", 2);
    DecimalValue expected;
    DecFromString(&expected, "-12.5", 2);
    EXPECT_EQ(DecCompare(&comma, &expected), 0);
}

TEST(DecimalTexts, ThatAreNoneAreZero)
{
    EXPECT_EQ(TextOfDecimal(DecimalFromText("seven", 2)), "0.");
    EXPECT_EQ(TextOfDecimal(DecimalFromText("", 2)), "0.");
}

// The mask of a number as its format.
struct FormatCase {
    const char* name;
    const char* mask;
    const char* format;
    bool literals;
    int32_t firstPlaceholder;
};
void PrintTo(const FormatCase& row, std::ostream* out)
{
    *out << row.mask;
}

class FormatTexts : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatTexts, AreTheMaskWithItsEscapes)
{
    EXPECT_EQ(DisplayFormatText(GetParam().mask, DT_NUMBER), GetParam().format);
}

TEST_P(FormatTexts, TellOfLiterals)
{
    EXPECT_EQ(HasLiterals(GetParam().mask, DT_NUMBER), GetParam().literals);
}

TEST_P(FormatTexts, TellTheFirstPlaceholder)
{
    EXPECT_EQ(FirstPlaceholderPos(GetParam().mask, DT_DECIMAL), GetParam().firstPlaceholder);
}

const FormatCase kFormatRows[] = {
    {"Plain",                  "#,##0.00",    "#,##0.00",    false, 0},
    {"CurrencyIsNoLiteral",    "$#,##0.00",   "$#,##0.00",   false, 1},
    {"CurrencyBehind",         "#,##0.00$",   "#,##0.00$",   false, 0},
    {"PercentIsNoLiteral",     "#,##0%",      "#,##0%",      false, 0},
    {"AWordBehind",            "#,##0.00 DM", "#,##0.00 DM", true,  0},
    {"AWordBefore",            "Total #,##0", "Total #,##0", true,  6},
    {"AnEscapedPlaceholder",   "~##0",        "\\##0",       true,  1},
    {"TwoEscapes",             "~#~0#",       "\\#\\0#",     true,  2},
    {"AnEscapeAndTheCurrency", "~#$#",        "\\#$#",       true,  2},
    {"AnotherCurrency",        "DM#",         "DM#",         true,  2},
};
INSTANTIATE_TEST_SUITE_P(, FormatTexts, testing::ValuesIn(kFormatRows), RowName<FormatCase>);

TEST(FormatText, TheSymbolOfTheSettingsIsNoLiteral)
{
    const Regional settings(kGerman);
    EXPECT_FALSE(HasLiterals("EUR##0", DT_NUMBER));
    EXPECT_FALSE(HasLiterals("##0EUR", DT_NUMBER));
    EXPECT_TRUE(HasLiterals("$##0", DT_NUMBER));
}

// A record with a mask and no window.
class MaskOnly {
public:
    MaskOnly(const char* mask, int32_t type) : mask_(mask)
    {
        edit_.mask = &mask_[0];
        edit_.dataType = type;
        edit_.displayLength = static_cast<int32_t>(mask_.size());
        edit_.yearDigits = mask_.find("YYYY") == std::string::npos ? 2 : 4;
    }
    EditInstance& operator*() { return edit_; }

private:
    std::string mask_;
    EditInstance edit_ = {};
};

struct WalkCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* text;
    bool read;
    const char* value;  // of what was read up to the first unreadable field
};
void PrintTo(const WalkCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class DateWalk : public testing::TestWithParam<WalkCase> {};

TEST_P(DateWalk, ReadsFieldByField)
{
    MaskOnly edit(GetParam().mask, GetParam().type);
    DateTimeValue value = {};
    EXPECT_EQ(WalkDateText(*edit, GetParam().text, value), GetParam().read);
    EXPECT_EQ(Canonical(value), GetParam().value);
}

const WalkCase kWalkRows[] = {
    {"ADate",                      "MM/DD/YY",         DT_DATE,     "07/04/95",         true,  "1995-07-04"                },
    {"YearFortyNine",              "MM/DD/YY",         DT_DATE,     "07/04/49",         true,  "2049-07-04"                },
    {"YearFifty",                  "MM/DD/YY",         DT_DATE,     "07/04/50",         true,  "1950-07-04"                },
    {"FourDigitYear",              "YYYY-MM-DD",       DT_DATE,     "1849-07-04",       true,  "1849-07-04"                },
    {"MonthName",                  "DD-MMM-YYYY",      DT_DATE,     "04-jul-1995",      true,  "1995-07-04"                },
    {"UnknownMonthName",           "YYYY-MMM-DD",      DT_DATE,     "1995-XXX-04",      false, "1995-01-00"                },
    {"MonthZeroIsJanuary",         "YYYY-MM-DD",       DT_DATE,     "1995-00-04",       true,  "1995-01-04"                },
    {"OutOfRangeIsStoredAsRead",   "YYYY-MM-DD",       DT_DATE,     "1995-45-67",       true,  "1995-45-67"                },
    {"ALetterStopsTheWalk",        "YYYY-MM-DD",       DT_DATE,     "1995-x7-04",       false, "1995-01-00"                },
    {"ALetterBehindADigitStopsIt", "YYYY-MM-DD",       DT_DATE,     "1995-7x-04",       false, "1995-01-00"                },
    {"DayOfYearBehindTheYear",     "YYYY/JJJ",         DT_DATE,     "1996/185",         true,  "1996-07-03"                },
    {"DayOfYearWaitsForTheYear",   "JJJ/YYYY",         DT_DATE,     "185/1996",         true,  "1996-07-03"                },
    {"DayOfYearOfTwoDigits",       "JJJ/YY",           DT_DATE,     "060/00",           true,  "2000-02-29"                },
    {"Time",                       "HH:MM:SS",         DT_TIME,     "14:07:09",         true,  "14:07:09:000000"           },
    {"Milliseconds",               "HH:MM:SS:FFF",     DT_TIME,     "14:07:09:250",     true,  "14:07:09:250000"           },
    {"Microseconds",               "HH:MM:SS:FFFFFF",  DT_TIME,     "14:07:09:000250",  true,  "14:07:09:000250"           },
    {"Tenths",                     "HH:MM:SS:F",       DT_TIME,     "14:07:09:2",       true,  "14:07:09:200000"           },
    {"MonthThenMinute",            "YYYY-MM-DD HH:MM", DT_DATETIME, "1995-07-04 14:07", true,  "1995-07-04 14:07:00:000000"},
    {"NoFieldOfTheType",           "ABC",              DT_TIME,     "ABC",              true,  ""                          },
    {"Empty",                      "MM/DD/YY",         DT_DATE,     "",                 true,  ""                          },
};
INSTANTIATE_TEST_SUITE_P(, DateWalk, testing::ValuesIn(kWalkRows), RowName<WalkCase>);

struct CheckCase {
    const char* name;
    int32_t type;
    DateTimeValue value;
    const char* checked;  // null: impossible
};
void PrintTo(const CheckCase& row, std::ostream* out)
{
    *out << Canonical(row.value);
}

class CanonicalCheck : public testing::TestWithParam<CheckCase> {};

TEST_P(CanonicalCheck, FindsImpossibleDatesAndTimes)
{
    DateTimeValue value = GetParam().value;
    const bool possible = CheckByCanonicalText(GetParam().type, value);
    EXPECT_EQ(possible, GetParam().checked != nullptr);
    if (possible) {
        EXPECT_EQ(Canonical(value), GetParam().checked);
    }
}

// microsecond, year, month, day, hour, minute, second, spare
const CheckCase kCheckRows[] = {
    {"ADate",              DT_DATE,     {0, 95, 6, 4, -1, 0, 0, 0},       "1995-07-04"                },
    {"DayZeroIsTheFirst",  DT_DATE,     {0, 95, 6, 0, -1, 0, 0, 0},       "1995-07-01"                },
    {"LeapDay",            DT_DATE,     {0, 96, 1, 29, -1, 0, 0, 0},      "1996-02-29"                },
    {"NoLeapDay",          DT_DATE,     {0, 95, 1, 29, -1, 0, 0, 0},      nullptr                     },
    {"AprilThirtyOne",     DT_DATE,     {0, 95, 3, 31, -1, 0, 0, 0},      nullptr                     },
    {"MonthThirteen",      DT_DATE,     {0, 95, 12, 1, -1, 0, 0, 0},      nullptr                     },
    {"YearZero",           DT_DATE,     {0, -1900, 0, 1, -1, 0, 0, 0},    nullptr                     },
    {"NoDate",             DT_DATE,     {0, -32767, 0, 0, -1, 0, 0, 0},   nullptr                     },
    {"ATime",              DT_TIME,     {250, -32767, 0, 0, 14, 7, 9, 0}, "14:07:09:000250"           },
    {"HourTwentyFour",     DT_TIME,     {0, -32767, 0, 0, 24, 0, 0, 0},   nullptr                     },
    {"MinuteSixty",        DT_TIME,     {0, -32767, 0, 0, 14, 60, 0, 0},  nullptr                     },
    {"NoTime",             DT_TIME,     {0, -32767, 0, 0, -1, 0, 0, 0},   nullptr                     },
    {"Both",               DT_DATETIME, {0, 95, 6, 4, 14, 7, 9, 0},       "1995-07-04 14:07:09:000000"},
    {"DateWithoutATime",   DT_DATETIME, {0, 95, 6, 4, -1, 0, 0, 0},       "1995-07-04"                },
    {"BadTimeOfAGoodDate", DT_DATETIME, {0, 95, 6, 4, 25, 0, 0, 0},       nullptr                     },
};
INSTANTIATE_TEST_SUITE_P(, CanonicalCheck, testing::ValuesIn(kCheckRows), RowName<CheckCase>);

TEST(CanonicalText, OfADateFillsTheValue)
{
    DateTimeValue value = {};
    EXPECT_EQ(ParseCanonical(DT_DATE, "1995-07-04", value), 0);
    EXPECT_EQ(Canonical(value), "1995-07-04");
}

TEST(CanonicalText, OfATimeFillsTheValue)
{
    DateTimeValue value = {};
    EXPECT_EQ(ParseCanonical(DT_TIME, "14:07", value), 0);
    EXPECT_EQ(Canonical(value), "14:07:00:000000");
}

TEST(CanonicalText, OfADateAndTimeFillsTheValue)
{
    DateTimeValue value = {};
    EXPECT_EQ(ParseCanonical(DT_DATETIME, "1995-07-04 14:07:09.25", value), 0);
    EXPECT_EQ(Canonical(value), "1995-07-04 14:07:09:250000");
}

TEST(CanonicalText, ThatIsNoneLeavesTheEmptyValue)
{
    for (const int32_t type : {DT_DATE, DT_TIME, DT_DATETIME}) {
        DateTimeValue value = {1, 1, 1, 1, 1, 1, 1, 0};
        EXPECT_NE(ParseCanonical(type, "07/04/95", value), 0);
        EXPECT_EQ(Canonical(value), "");
    }
}

TEST(DisplayText, HasTheLengthOfTheDisplay)
{
    MaskOnly edit("MM/DD/YY", DT_DATE);
    EXPECT_TRUE(LooksLikeDisplayText(*edit, "07/04/95"));
    EXPECT_FALSE(LooksLikeDisplayText(*edit, "1995-07-04"));
    EXPECT_FALSE(LooksLikeDisplayText(*edit, ""));
}

TEST(DisplayText, OfTwelveHoursShowsItsMarker)
{
    MaskOnly edit("HH:MM AM/PM", DT_TIME);
    (*edit).flags = AMPM;
    (*edit).ampmPos = 6;
    EXPECT_TRUE(LooksLikeDisplayText(*edit, "01:30 PM"));
    EXPECT_TRUE(LooksLikeDisplayText(*edit, "01:30 AM"));
    EXPECT_FALSE(LooksLikeDisplayText(*edit, "13:30:00:25"));
    EXPECT_FALSE(LooksLikeDisplayText(*edit, "13:30"));
}

// The year and the month under a mask, read from the text of a window.
struct FieldCase {
    const char* name;
    const char* mask;
    const char* text;
    int32_t expected;
};
void PrintTo(const FieldCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class FieldReader : public testing::TestWithParam<FieldCase> {
protected:
    FieldReader() : edit_(GetParam().mask, DT_DATE)
    {
        (*edit_).hwnd =
            CreateWindowExA(0, "edit", GetParam().text, WS_POPUP, 0, 0, 100, 20, nullptr, nullptr, nullptr, nullptr);
    }
    ~FieldReader() override { DestroyWindow((*edit_).hwnd); }

    MaskOnly edit_;
};

class YearOfText : public FieldReader {};
class MonthOfText : public FieldReader {};

TEST_P(YearOfText, IsRead)
{
    EXPECT_EQ(YearFromText(*edit_), GetParam().expected);
}

TEST_P(MonthOfText, IsRead)
{
    EXPECT_EQ(MonthFromText(*edit_), GetParam().expected);
}

const FieldCase kYearFieldRows[] = {
    {"FortyNine",                    "YY",         "49",         149},
    {"Fifty",                        "YY",         "50",         50 },
    {"FourDigits",                   "YYYY",       "1995",       95 },
    {"BehindOtherFields",            "MM/DD/YY",   "07/04/95",   95 },
    {"FourDigitsBehind",             "MM/DD/YYYY", "07/04/2024", 124},
    {"InFront",                      "YYYY-MM-DD", "2024-03-05", 124},
    {"SmallLetters",                 "mm/dd/yy",   "07/04/95",   95 },
    {"None",                         "MM/DD",      "07/04",      0  },
    {"Blank",                        "MM/DD/YY",   "00/00/00",   100},
    {"AnEscapeBeforeShiftsTheField", "~YYY",       "Y49",        109},
};
INSTANTIATE_TEST_SUITE_P(, YearOfText, testing::ValuesIn(kYearFieldRows), RowName<FieldCase>);

const FieldCase kMonthFieldRows[] = {
    {"TwoDigits",                 "MM/DD/YY",    "07/04/95",    7 },
    {"InTheMiddle",               "DD.MM.YYYY",  "04.12.1995",  12},
    {"SmallLetters",              "mm/dd/yy",    "07/04/95",    7 },
    {"AName",                     "DD-MMM-YYYY", "04-JUL-1995", 7 },
    {"ASmallName",                "DD-MMM-YYYY", "04-dec-1995", 12},
    {"AnUnknownName",             "DD-MMM-YYYY", "04-XXX-1995", 0 },
    {"None",                      "YYYY",        "1995",        0 },
    {"Blank",                     "MM/DD/YY",    "00/00/00",    0 },
    {"AtTheEndItLosesItsLast",    "YY/MM",       "95/12",       1 },
    {"ANameAtTheEndLosesItsLast", "YY/MMM",      "95/JUL",      0 },
    {"AShortText",                "DD.MM.YYYY",  "04",          0 },
    {"AnEmptyText",               "MM/DD/YY",    "",            0 },
};
INSTANTIATE_TEST_SUITE_P(, MonthOfText, testing::ValuesIn(kMonthFieldRows), RowName<FieldCase>);

}  // namespace
}  // namespace zttest
