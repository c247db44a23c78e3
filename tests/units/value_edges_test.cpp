// Values at their edges: months and days out of the calendar, the cursor of a list, the standard settings, digits that are rounded,
// shapes of number formats.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <ostream>
#include <string>

#include "engine/values/calendar.h"
#include "engine/values/cursor_list.h"
#include "engine/values/decimal_digits.h"
#include "engine/values/decimal_number.h"
#include "engine/values/month_names.h"
#include "engine/values/number_format.h"
#include "engine/values/number_text.h"
#include "engine/values/settings.h"
#include "engine/values/typed_number.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

// ---- Calendar -------------------------------------------------------------------------------------------------------

TEST(MonthRows, OfMonthsOutOfRangeAreTheNearest)
{
    for (const int32_t year : {95, 96}) {
        EXPECT_EQ(MonthRowOf(4, year, -1).index, 0);
        EXPECT_EQ(MonthRowOf(4, year, -128).index, 0);
        EXPECT_EQ(MonthRowOf(4, year, 12).index, 11);
        EXPECT_EQ(MonthRowOf(4, year, 127).index, 11);
    }
}

struct DayCase {
    const char* name;
    int16_t year;
    int32_t dayOfYear;
    int32_t month;
    int32_t day;
};
void PrintTo(const DayCase& row, std::ostream* out)
{
    *out << "day " << row.dayOfYear << " of " << 1900 + row.year;
}

class DayOutOfYear : public RowTest<DayCase> {};

ROW_TEST(DayOutOfYear, LandsWhereTheCheckRefusesIt)
{
    DateTimeValue value = {0, GetParam().year, 5, 5, -1, 0, 0, 0};
    DateFromDayOfYear(4, GetParam().dayOfYear, value);
    EXPECT_EQ(value.month, GetParam().month);
    EXPECT_EQ(value.day, GetParam().day);
}

const DayCase kDayRows[] = {
    {"Zero",             95, 0,    0,  0  },
    {"ZeroOfALeapYear",  96, 0,    0,  0  },
    {"Minus",            96, -1,   0,  -1 },
    {"FarBefore",        96, -400, 0,  -1 },
    {"One",              96, 1,    0,  1  },
    {"Last",             95, 365,  11, 31 },
    {"LastOfALeapYear",  96, 366,  11, 31 },
    {"Behind",           95, 366,  11, 32 },
    {"AsFarAsTheRecord", 95, 461,  11, 127},
    {"FarBehind",        95, 999,  11, 127},
};
TEST_ROWS(, DayOutOfYear, kDayRows);

TEST(MonthNames, OutOfRangeAreEmpty)
{
    const Settings settings = StandardSettings();
    EXPECT_EQ(MonthName(settings, -1), "");
    EXPECT_EQ(MonthName(settings, 0), "JAN");
    EXPECT_EQ(MonthName(settings, 11), "DEC");
    EXPECT_EQ(MonthName(settings, 12), "");
}

TEST(MonthNames, ThatAreNoneAreMinusOne)
{
    const Settings settings = StandardSettings();
    EXPECT_EQ(MonthFromName(settings, "XXX"), -1);
    EXPECT_EQ(MonthFromName(settings, ":"), -1);
    EXPECT_EQ(MonthByPrefix(settings, "X", 0), -1);
    EXPECT_EQ(MonthByPrefix(settings, "J", 7), -1);
    EXPECT_EQ(MonthByPrefix(settings, "D", 12), -1);
    EXPECT_EQ(MonthByPrefix(settings, "d", 11), 11);
}

TEST(MonthNames, AreTheTwelveAlone)
{
    Settings settings = StandardSettings();
    const Text before(21, 'J');  // what ends the settings in front of the names, as a name would read it
    Assign(settings.shortDate, Text(99, 'J'));
    Assign(settings.timeSeparator, Text(9, 'J'));
    Assign(settings.monthNames[0], before);
    EXPECT_EQ(MonthFromName(settings, before), 0);
    EXPECT_EQ(MonthName(settings, -1), "");
}

// ---- Lists ----------------------------------------------------------------------------------------------------------

class Cursor : public testing::Test {
protected:
    Cursor()
    {
        list_.elements = room_;
        list_.capacity = static_cast<int32_t>(std::size(room_));
    }

    int values_[3] = {};
    void* room_[4] = {};
    CursorList list_;
};

TEST_F(Cursor, StandsBeforeTheFirstAtMinusOne)
{
    EXPECT_EQ(list_.cursor, -1);
    list_.Append(&values_[0]);
    EXPECT_EQ(list_.cursor, -1);
    EXPECT_EQ(list_.Current(), nullptr);
}

TEST_F(Cursor, StaysInsideTheListAndOneBeyondIt)
{
    list_.Append(&values_[0]);
    list_.Append(&values_[1]);
    EXPECT_EQ(list_.MoveTo(99), nullptr);
    EXPECT_EQ(list_.cursor, 2);
    EXPECT_EQ(list_.MoveTo(-99), nullptr);
    EXPECT_EQ(list_.cursor, -1);
    EXPECT_EQ(list_.MoveTo(1), &values_[1]);
}

TEST_F(Cursor, KeepsItsElementWhenOthersAreAppended)
{
    list_.Append(&values_[0]);
    list_.MoveTo(0);
    list_.Append(&values_[1]);
    EXPECT_EQ(list_.cursor, 0);
    EXPECT_EQ(list_.Current(), &values_[0]);
}

TEST_F(Cursor, PastTheLastStaysThere)
{
    list_.Append(&values_[0]);
    list_.MoveTo(1);
    list_.Append(&values_[1]);
    EXPECT_EQ(list_.cursor, 2);
    EXPECT_EQ(list_.Current(), nullptr);
}

TEST(ListRoom, Doubles)
{
    CursorList list;
    EXPECT_GT(list.NextCapacity(), 0);
    list.capacity = 1000;
    EXPECT_EQ(list.NextCapacity(), 2000);
}

// ---- Settings -------------------------------------------------------------------------------------------------------

TEST(StandardConventions, AreThoseOfTheUnitedStates)
{
    const Settings settings = StandardSettings();
    EXPECT_EQ(settings.decimalChar, '.');
    EXPECT_EQ(settings.thousandChar, ',');
    EXPECT_STREQ(settings.currencySymbol, "$");
    EXPECT_EQ(settings.currencyPosition, 0);
    EXPECT_EQ(settings.currencyDigits, 2);
    EXPECT_STREQ(settings.amString, "AM");
    EXPECT_STREQ(settings.pmString, "PM");
    EXPECT_STREQ(settings.shortDate, "m/d/yy");
    EXPECT_STREQ(settings.timeSeparator, ":");
    EXPECT_EQ(settings.letters, &kAsciiLetters);
}

TEST(StandardConventions, KeepFourCharactersOfTheHalvesOfTheDay)
{
    Settings settings = StandardSettings();
    Assign(settings.amString, "morning");
    EXPECT_STREQ(settings.amString, "morn");
}

TEST(StandardConventions, Keep31CharactersOfAMonth)
{
    Settings settings = StandardSettings();
    Assign(settings.monthNames[11], Text(40, 'x'));
    EXPECT_EQ(MonthName(settings, 11), Text(31, 'x'));
    EXPECT_EQ(settings.letters, &kAsciiLetters);
}

TEST(AsciiLetters, AreThe52)
{
    for (int32_t code = 0; code < 128; ++code) {
        const bool upper = code >= 'A' && code <= 'Z';
        const bool lower = code >= 'a' && code <= 'z';
        const Char c = static_cast<Char>(code);
        EXPECT_EQ(kAsciiLetters.isLetter(c), upper || lower) << code;
        EXPECT_EQ(kAsciiLetters.upper(c), lower ? code - 32 : code) << code;
        EXPECT_EQ(kAsciiLetters.lower(c), upper ? code + 32 : code) << code;
    }
}

// ---- Decimals -------------------------------------------------------------------------------------------------------

decimal::Number NumberOf(const char* text)
{
    const DecimalValue value = decimal::Read(text, 0);
    return decimal::Unpack(&value);
}

TEST(DecimalComparison, TellsMinusOneZeroOrOne)
{
    EXPECT_EQ(decimal::Compare(NumberOf("1.5"), NumberOf("-20")), 1);
    EXPECT_EQ(decimal::Compare(NumberOf("-20"), NumberOf("1.5")), -1);
    EXPECT_EQ(decimal::Compare(NumberOf("1.0"), NumberOf("1.00")), 0);
}

TEST(DecimalZero, WithMoreZerosThanADecimalHasPlacesHasNone)
{
    decimal::Number zero;
    zero.scale = -50;
    EXPECT_EQ(decimal::Pack(zero).scale, 0);
}

TEST(DecimalSign, IsTheHighestBitAlone)
{
    DecimalValue value = decimal::Read("5", 0);
    value.sign = 0x7F;
    EXPECT_FALSE(DecimalDigits::FromDecimal(value).IsNegative());
    EXPECT_FALSE(decimal::Unpack(&value).negative);
    value.sign = 0x80;
    EXPECT_TRUE(DecimalDigits::FromDecimal(value).IsNegative());
    EXPECT_TRUE(decimal::Unpack(&value).negative);
}

TEST(WideIntegers, AreZeroWhenEveryPartIs)
{
    EXPECT_TRUE(decimal::WideInteger().IsZero());
    EXPECT_FALSE(decimal::WideInteger(1, 0).IsZero());
    EXPECT_FALSE(decimal::WideInteger(0, 1).IsZero());
    EXPECT_FALSE(decimal::WideInteger(0, uint64_t{1} << 32).IsZero());
    decimal::WideInteger beyond(1, 0);
    beyond.MultiplyAdd(1u << 31, 0);
    beyond.MultiplyAdd(2, 0);
    EXPECT_FALSE(beyond.IsZero());
    EXPECT_FALSE(beyond.FitsIn96Bits());
}

TEST(WideIntegers, CompareByTheirHighestDifference)
{
    const decimal::WideInteger small(0, 5);
    const decimal::WideInteger large(1, 4);
    EXPECT_LT(small.Compare(large), 0);
    EXPECT_GT(large.Compare(small), 0);
    EXPECT_EQ(large.Compare(large), 0);
}

// ---- Digits ---------------------------------------------------------------------------------------------------------

std::string DigitsOf(const DecimalDigits& number)
{
    std::string text = number.IsNegative() ? "-0." : "0.";
    for (int32_t i = 0; i < number.Count(); ++i)
        text += number.At(i);
    return text + "e" + std::to_string(number.PointPos());
}

TEST(Digits, OfZeroAreNone)
{
    const double none[] = {0.0, -0.0, std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL};
    for (const double value : none) {
        const DecimalDigits digits = DecimalDigits::FromDouble(value);
        EXPECT_EQ(DigitsOf(digits), "0.e0") << value;
        EXPECT_TRUE(digits.IsZero()) << value;
        EXPECT_EQ(digits.FractionDigits(), 0) << value;
    }
    EXPECT_EQ(DigitsOf(DecimalDigits()), "0.e0");
}

TEST(Digits, BehindThePointAreCounted)
{
    EXPECT_EQ(DecimalDigits::FromDouble(1200).FractionDigits(), 0);
    EXPECT_EQ(DecimalDigits::FromDouble(12).FractionDigits(), 0);
    EXPECT_EQ(DecimalDigits::FromDouble(1.25).FractionDigits(), 2);
    EXPECT_EQ(DecimalDigits::FromDouble(0.00125).FractionDigits(), 5);
}

TEST(Digits, OutsideTheSignificantOnesAreZeros)
{
    const DecimalDigits number = DecimalDigits::FromDouble(98);
    EXPECT_EQ(number.At(-1), '0');
    EXPECT_EQ(number.At(0), '9');
    EXPECT_EQ(number.At(1), '8');
    EXPECT_EQ(number.At(2), '0');
}

struct RoundCase {
    const char* name;
    double value;
    int32_t places;
    const char* rounded;
};
void PrintTo(const RoundCase& row, std::ostream* out)
{
    *out << row.value << " to " << row.places << " places";
}

class RoundedDigits : public RowTest<RoundCase> {};

ROW_TEST(RoundedDigits, GoAwayFromZeroAtTheHalf)
{
    DecimalDigits number = DecimalDigits::FromDouble(GetParam().value);
    number.RoundToFractionDigits(GetParam().places);
    EXPECT_EQ(DigitsOf(number), GetParam().rounded);
    EXPECT_EQ(number.IsZero(), number.Count() == 0);
}

ROW_TEST(RoundedDigits, StayWhenRoundedAgain)
{
    DecimalDigits number = DecimalDigits::FromDouble(GetParam().value);
    number.RoundToFractionDigits(GetParam().places);
    number.RoundToFractionDigits(GetParam().places);
    number.RoundToSignificantDigits(number.Count());
    EXPECT_EQ(DigitsOf(number), GetParam().rounded);
}

const RoundCase kRoundRows[] = {
    {"Down",               1.24,     1, "0.12e1"     },
    {"Up",                 1.25,     1, "0.13e1"     },
    {"NinesBefore",        1.296,    2, "0.13e1"     },
    {"NinesBeforeFar",     1.99996,  4, "0.2e1"      },
    {"AllNines",           9.996,    2, "0.1e2"      },
    {"ZerosBefore",        10.04,    1, "0.1e2"      },
    {"EnoughPlaces",       1.25,     2, "0.125e1"    },
    {"MorePlaces",         1.25,     9, "0.125e1"    },
    {"NothingLeft",        0.4,      0, "0.e0"       },
    {"FarBehind",          -0.00004, 1, "0.e0"       },
    {"UpToTheFirst",       0.5,      0, "0.1e1"      },
    {"UpToTheFirstPlace",  -0.05,    1, "-0.1e0"     },
    {"OneBehindTheFirst",  0.09,     0, "0.e0"       },
    {"NegativeDown",       -0.04,    1, "0.e0"       },
    {"IntegersAreAllKept", 1234567,  0, "0.1234567e7"},
};
TEST_ROWS(, RoundedDigits, kRoundRows);

// ---- Number texts ---------------------------------------------------------------------------------------------------

struct FarCase {
    const char* name;
    std::string text;
    double value;
};
void PrintTo(const FarCase& row, std::ostream* out)
{
    *out << row.text.substr(0, 60);
}

class FarNumber : public RowTest<FarCase> {};

ROW_TEST(FarNumber, IsInfiniteOrZero)
{
    EXPECT_EQ(NumberFromPlainText(GetParam().text.c_str()), GetParam().value);
}

const std::string kManyZeros(400, '0');

const FarCase kFarRows[] = {
    {"Exponent",                "1e400",                                  HUGE_VAL },
    {"ExponentInCapitals",      "1E400",                                  HUGE_VAL },
    {"Negative",                "-1e400",                                 -HUGE_VAL},
    {"Digits",                  "1" + kManyZeros,                         HUGE_VAL },
    {"DigitsAndPoint",          "1" + kManyZeros + ".5",                  HUGE_VAL },
    {"PointBehindTheFirst",     "1.5e400",                                HUGE_VAL },
    {"ZeroBehindTheFirst",      "10e400",                                 HUGE_VAL },
    {"ZeroBeforeTheFirst",      "01e400",                                 HUGE_VAL },
    {"ZerosBeforeAndBehind",    "0001" + kManyZeros,                      HUGE_VAL },
    {"PointBeforeTheFirst",     ".5e400",                                 HUGE_VAL },
    {"ZeroAndPoint",            "0.5e400",                                HUGE_VAL },
    {"MoreZerosThanExponent",   "1" + kManyZeros + kManyZeros + "e-400",  HUGE_VAL },
    {"LetterBehind",            "1" + kManyZeros + "x-5",                 HUGE_VAL },
    {"ExponentWithoutDigits",   "1" + kManyZeros + "e-",                  HUGE_VAL },
    {"ExponentOfAnother",       "1" + kManyZeros + "e-x5",                HUGE_VAL },
    {"LargestExponent",         "1e99999999999999999999",                 HUGE_VAL },
    {"SmallExponent",           "1e-400",                                 0        },
    {"SmallNegative",           "-1e-400",                                0        },
    {"SmallestExponent",        "1e-99999999999999999999",                0        },
    {"SmallDigits",             "0." + kManyZeros + "1",                  0        },
    {"SmallDigitsFromThePoint", "." + kManyZeros + "1",                   0        },
    {"SmallDigitsGrown",        "0." + kManyZeros + kManyZeros + "1e400", 0        },
};
TEST_ROWS(, FarNumber, kFarRows);

TEST(NumbersInText, EndWhereTheExponentIsNone)
{
    EXPECT_EQ(NumberFromPlainText("12e+3x"), 12000);
    EXPECT_EQ(NumberFromPlainText("12e-1e5"), 1.2);
    EXPECT_EQ(NumberFromPlainText("12e"), 12);
    EXPECT_EQ(NumberFromPlainText("12e+"), 12);
    EXPECT_EQ(NumberFromPlainText("12e-x"), 12);
    EXPECT_EQ(NumberFromPlainText("."), 0);
    EXPECT_EQ(NumberFromPlainText(".e5"), 0);
    EXPECT_EQ(NumberFromPlainText("e5"), 0);
    EXPECT_EQ(NumberFromPlainText("--5"), 0);
    EXPECT_EQ(NumberFromPlainText("inf"), 0);
    EXPECT_EQ(NumberFromPlainText("\r\n\t7"), 7);
}

// ---- Typed numbers --------------------------------------------------------------------------------------------------

struct TypedCase {
    const char* name;
    const char* integer;
    const char* fraction;
    int32_t places;
    const char* rounded;
};
void PrintTo(const TypedCase& row, std::ostream* out)
{
    *out << row.integer << '.' << row.fraction << " to " << row.places;
}

class TypedRounding : public RowTest<TypedCase> {};

ROW_TEST(TypedRounding, GoesAwayFromZeroAtTheHalf)
{
    TypedNumber number;
    EXPECT_FALSE(number.negative);
    number.integer = GetParam().integer;
    number.fraction = GetParam().fraction;
    RoundToPlaces(number, GetParam().places);
    EXPECT_EQ(number.integer + '.' + number.fraction, GetParam().rounded);
}

const TypedCase kTypedRows[] = {
    {"Fits",              "12",  "34",   2, "12.34" },
    {"FitsWithRoom",      "12",  "9",    2, "12.9"  },
    {"Down",              "12",  "344",  2, "12.34" },
    {"JustBelowTheHalf",  "12",  "3449", 2, "12.34" },
    {"Up",                "12",  "345",  2, "12.35" },
    {"ZerosStay",         "12",  "300",  2, "12.30" },
    {"NineBefore",        "12",  "395",  2, "12.40" },
    {"IntoTheInteger",    "12",  "995",  2, "13.00" },
    {"ThroughTheInteger", "199", "995",  2, "200.00"},
    {"OneDigitMore",      "99",  "995",  2, "100.00"},
    {"NoInteger",         "",    "995",  2, "1.00"  },
    {"NoPlaces",          "12",  "5",    0, "13."   },
    {"NoPlacesDown",      "12",  "4",    0, "12."   },
    {"AllNinesDown",      "99",  "994",  2, "99.99" },
};
TEST_ROWS(, TypedRounding, kTypedRows);

TEST(LaidNumbers, HaveUpTo1023Characters)
{
    for (const size_t digits : {1022u, 1023u, 1024u, 5000u}) {
        TypedNumber number;
        number.integer.assign(digits, '7');
        EXPECT_EQ(LayOutDigits("#", ReadShape("#"), number, StandardSettings()),
                  Text(std::min<size_t>(digits, 1023), '7'));
    }
}

// ---- Shapes of formats ----------------------------------------------------------------------------------------------

struct ShapeCase {
    const char* name;
    const char* format;
    int32_t integerPlaces;
    int32_t forcedInteger;
    int32_t fractionPlaces;
    int32_t forcedFraction;
    int32_t room;
    int32_t literalsInside;
    const char* marks;  // P point, G grouped, % percent, O optional, V valid
};
void PrintTo(const ShapeCase& row, std::ostream* out)
{
    *out << row.format;
}

std::string MarksOf(const FormatShape& shape)
{
    std::string marks;
    marks += shape.point ? "P" : "";
    marks += shape.grouped ? "G" : "";
    marks += shape.percent ? "%" : "";
    marks += shape.optional ? "O" : "";
    marks += shape.valid ? "V" : "";
    return marks;
}

class FormatShapes : public RowTest<ShapeCase> {};

ROW_TEST(FormatShapes, AreWhatThePlaceholdersSay)
{
    const FormatShape shape = ReadShape(GetParam().format);
    EXPECT_EQ(shape.integerPlaces, GetParam().integerPlaces);
    EXPECT_EQ(shape.forcedInteger, GetParam().forcedInteger);
    EXPECT_EQ(shape.fractionPlaces, GetParam().fractionPlaces);
    EXPECT_EQ(shape.forcedFraction, GetParam().forcedFraction);
    EXPECT_EQ(shape.room, GetParam().room);
    EXPECT_EQ(shape.literalsInside, GetParam().literalsInside);
    EXPECT_EQ(MarksOf(shape), GetParam().marks);
}

// clang-format off
const ShapeCase kShapeRows[] = {
    {"Empty",                      "",             0, 0, 0, 0, 0, 0, ""},
    {"Zero",                       "0",            1, 1, 0, 0, 1, 0, "V"},
    {"Sharp",                      "#",            1, 0, 0, 0, 1, 0, "OV"},
    {"Amount",                     "#,##0.00",     4, 1, 2, 2, 5, 0, "PGOV"},
    {"GroupsOfOne",                "#,#,#",        3, 0, 0, 0, 5, 0, "GOV"},
    {"ZeroInTheMiddle",            "#0#",          3, 2, 0, 0, 3, 0, "OV"},
    {"FractionAlone",              ".0#",          0, 0, 2, 1, 0, 0, "POV"},
    {"ForcedBehindOptional",       "#.#0",         1, 0, 2, 2, 1, 0, "POV"},
    {"Percent",                    "0%",           1, 1, 0, 0, 1, 0, "%V"},
    {"PlaceBehindPercent",         "0%0",          2, 2, 0, 0, 2, 0, "%"},
    {"LiteralsBefore",             "DM 0",         1, 1, 0, 0, 1, 0, "V"},
    {"LiteralsBehind",             "0 DM",         1, 1, 0, 0, 1, 0, "V"},
    {"LiteralInside",              "00-00",        4, 4, 0, 0, 5, 1, "V"},
    {"LiteralsInsideTwice",        "0-00--0",      4, 4, 0, 0, 7, 3, "V"},
    {"LiteralBeforeThePoint",      "0x.0",         1, 1, 1, 1, 2, 1, "PV"},
    {"LiteralBehindThePoint",      "0.0x0",        1, 1, 2, 2, 1, 0, "PV"},
    {"LiteralBeforeAGroup",        "0x,0",         2, 2, 0, 0, 4, 1, "GV"},
    {"LiteralBetweenPointPlaces",  "x.0",          0, 0, 1, 1, 0, 0, "PV"},
    {"GroupsBefore",               ",,0",          1, 1, 0, 0, 3, 0, "V"},
    {"GroupsBeforeALiteral",       ",,x0",         1, 1, 0, 0, 1, 0, "V"},
    {"GroupsBeforeAndBehindIt",    ",x,0",         1, 1, 0, 0, 2, 0, "V"},
    {"GroupsBeforeThePoint",       ",.0",          0, 0, 1, 1, 1, 0, "PV"},
    {"EscapedLiteralInside",       "0\\00",        2, 2, 0, 0, 3, 1, "V"},
    {"EscapedPoint",               "0\\.0",        2, 2, 0, 0, 3, 1, "V"},
    {"SecondPoint",                "0.0.0",        1, 1, 2, 2, 1, 0, "P"},
    {"GroupBehindThePoint",        "0.0,0",        1, 1, 2, 2, 1, 0, "P"},
    {"LoneBackslash",              "0\\",          1, 1, 0, 0, 1, 0, ""},
    {"BackslashAlone",             "\\",           0, 0, 0, 0, 0, 0, ""},
    {"LiteralsOnly",               "abc",          0, 0, 0, 0, 0, 0, ""},
};
// clang-format on
TEST_ROWS(, FormatShapes, kShapeRows);

TEST(FormatTokens, TellABackslashAtTheEnd)
{
    const Char text[] = "\\";
    const Char* at = text;
    EXPECT_EQ(NextToken(at).kind, TokenKind::Invalid);
    EXPECT_EQ(at, text + 1);
    EXPECT_EQ(NextToken(at).kind, TokenKind::End);
    EXPECT_EQ(at, text + 1);
}

}  // namespace
}  // namespace zttest
