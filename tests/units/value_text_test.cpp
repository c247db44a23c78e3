// Texts of numbers, the format text of a number mask, and the reading of date and time texts field by field.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "engine/format/date_text.h"
#include "engine/format/field_text.h"
#include "engine/format/number_value.h"
#include "engine/mask/mask_table.h"
#include "engine/mask/number_mask.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/values/number_text.h"
#include "tests/support/key_case.h"
#include "tests/support/native/profile_store.h"
#include "tests/support/profile.h"
#include "tests/support/rows.h"
#include "tests/support/values.h"

namespace zttest {
namespace {

using namespace zte;

// A control with a mask, for its record. The mask is not checked: null leaves the type's default.
class Masked {
public:
    Masked(const char* mask, int32_t type) : control_(SetupOf(type), SettingsInForce(), nullptr)
    {
        if (!mask)
            return;
        EditInstance& record = control_.Record();
        InstallMask(record, mask, MaskOrigin::Given, false);
        record.yearDigits = Text(mask).find("YYYY") == Text::npos ? 2 : 4;
    }
    const EditInstance& operator*() const { return control_.Record(); }

private:
    static ControlSetup SetupOf(int32_t type)
    {
        ControlSetup setup;
        setup.dataType = type;
        return setup;
    }

    MemoryControl control_;
};

std::string TextOfDecimal(const DecimalValue& value)
{
    services::NumberFormat format;
    EXPECT_TRUE(services::CompileFormat(format, "0.############################"));
    return services::FormatDecimal(format, value, StandardSettings());
}

DecimalValue DecimalFrom(const char* text)
{
    return DecimalFromText(*Masked("0.00", DT_DECIMAL), text);
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

class NumberTexts : public RowTest<NumberCase> {};

ROW_TEST(NumberTexts, AreReadAsCanonicalText)
{
    EXPECT_EQ(NumberFromPlainText(GetParam().text), GetParam().plain);
}

ROW_TEST(NumberTexts, AreReadAsCanonicalTextUnderAnySettings)
{
    const Regional settings(kGerman);
    EXPECT_EQ(NumberFromPlainText(GetParam().text), GetParam().plain);
}

ROW_TEST(NumberTexts, AreReadWithTheRegionalDecimalCharacter)
{
    const Regional settings(kGerman);
    EXPECT_EQ(NumberFromText(*Masked("0", DT_NUMBER), GetParam().text), GetParam().german);
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
    {"BehindAPoint",  "1.e-2", 0.01,  0.01 },
};
TEST_ROWS(, NumberTexts, kNumberRows);

TEST(SmallNumbers, HaveNoExponentBehindABlank)
{
    EXPECT_EQ(NumberFromPlainText(("0." + std::string(400, '0') + "1e 900").c_str()), 0.0);
}

TEST(PlainPoint, StandsForTheRegionalCharacter)
{
    const Regional settings(kGerman);
    EXPECT_EQ(WithPlainPoint("-12,50", SettingsInForce()), "-12.50");
}

TEST(DecimalTexts, KeepEveryDigit)
{
    EXPECT_EQ(TextOfDecimal(DecimalFrom("12345678901234567890.12345678")), "12345678901234567890.12345678");
}

TEST(DecimalTexts, AreReadWithTheRegionalDecimalCharacter)
{
    const Regional settings(kGerman);
    const DecimalValue comma = DecimalFrom("-12,5");
    EXPECT_EQ(services::Compare(comma, DecimalOf("-12.5")), 0);
}

TEST(DecimalTexts, ThatAreNoneAreZero)
{
    EXPECT_EQ(TextOfDecimal(DecimalFrom("seven")), "0.");
    EXPECT_EQ(TextOfDecimal(DecimalFrom("")), "0.");
}

// The mask of a number as its format.
struct FormatCase {
    const char* name;
    const char* mask;
    const char* format;
    bool literals;
    int32_t before;
};
void PrintTo(const FormatCase& row, std::ostream* out)
{
    *out << row.mask;
}

class FormatTexts : public RowTest<FormatCase> {};

ROW_TEST(FormatTexts, AreTheMaskWithItsEscapes)
{
    EXPECT_EQ(DisplayFormatText(GetParam().mask, SettingsInForce()), GetParam().format);
}

ROW_TEST(FormatTexts, TellOfLiterals)
{
    EXPECT_EQ(HasLiterals(GetParam().mask, DT_NUMBER, SettingsInForce()), GetParam().literals);
}

ROW_TEST(FormatTexts, TellTheLiteralsBeforeTheNumber)
{
    EXPECT_EQ(Length(LiteralsBefore(DisplayFormatText(GetParam().mask, SettingsInForce()).c_str())), GetParam().before);
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
TEST_ROWS(, FormatTexts, kFormatRows);

TEST(FormatText, TheSymbolOfTheSettingsIsNoLiteral)
{
    const Regional settings(kGerman);
    EXPECT_FALSE(HasLiterals("EUR##0", DT_NUMBER, SettingsInForce()));
    EXPECT_FALSE(HasLiterals("##0EUR", DT_NUMBER, SettingsInForce()));
    EXPECT_TRUE(HasLiterals("$##0", DT_NUMBER, SettingsInForce()));
}

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

class DateWalk : public RowTest<WalkCase> {};

ROW_TEST(DateWalk, ReadsFieldByField)
{
    const Masked edit(GetParam().mask, GetParam().type);
    DateTimeValue value = {};
    EXPECT_EQ(ReadFields(*edit, GetParam().text, value), GetParam().read);
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
TEST_ROWS(, DateWalk, kWalkRows);

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

class FieldCheck : public RowTest<CheckCase> {};

ROW_TEST(FieldCheck, FindsImpossibleDatesAndTimes)
{
    DateTimeValue value = GetParam().value;
    const bool possible = CheckFields(GetParam().type, value);
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
TEST_ROWS(, FieldCheck, kCheckRows);

TEST(CanonicalText, OfADateFillsTheValue)
{
    DateTimeValue value = {};
    EXPECT_TRUE(ParseCanonical(*Masked(nullptr, DT_DATE), "1995-07-04", value));
    EXPECT_EQ(Canonical(value), "1995-07-04");
}

TEST(CanonicalText, OfATimeFillsTheValue)
{
    DateTimeValue value = {};
    EXPECT_TRUE(ParseCanonical(*Masked(nullptr, DT_TIME), "14:07", value));
    EXPECT_EQ(Canonical(value), "14:07:00:000000");
}

TEST(CanonicalText, OfADateAndTimeFillsTheValue)
{
    DateTimeValue value = {};
    EXPECT_TRUE(ParseCanonical(*Masked(nullptr, DT_DATETIME), "1995-07-04 14:07:09.25", value));
    EXPECT_EQ(Canonical(value), "1995-07-04 14:07:09:250000");
}

TEST(CanonicalText, ThatIsNoneLeavesTheEmptyValue)
{
    for (const int32_t type : {DT_DATE, DT_TIME, DT_DATETIME}) {
        DateTimeValue value = {1, 1, 1, 1, 1, 1, 1, 0};
        EXPECT_FALSE(ParseCanonical(*Masked(nullptr, type), "07/04/95", value));
        EXPECT_EQ(Canonical(value), "");
    }
}

// The year and the month under a mask, read from a text.
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

class YearOfText : public RowTest<FieldCase> {};
class MonthOfText : public RowTest<FieldCase> {};

ROW_TEST(YearOfText, IsRead)
{
    EXPECT_EQ(YearFromText(*Masked(GetParam().mask, DT_DATE), GetParam().text), GetParam().expected);
}

ROW_TEST(MonthOfText, IsRead)
{
    EXPECT_EQ(MonthFromText(*Masked(GetParam().mask, DT_DATE), GetParam().text), GetParam().expected);
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
TEST_ROWS(, YearOfText, kYearFieldRows);

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
    {"CutInTheMonth",             "DD.MM.YYYY",  "04.1",        0 },
    {"AShortText",                "DD.MM.YYYY",  "04",          0 },
    {"AnEmptyText",               "MM/DD/YY",    "",            0 },
};
TEST_ROWS(, MonthOfText, kMonthFieldRows);

}  // namespace
}  // namespace zttest
