// Exact decimals: reading, limits, rounding, and random arithmetic against pen and paper.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <random>
#include <string>

#include "tests/companions/long_decimal.h"
#include "tests/support/rows.h"
#include "ztdecimal.h"

namespace {

using zttest::AsDecimalValue;
using zttest::FromText;
using zttest::FromValue;
using zttest::kLargestDecimal;
using zttest::LongDecimal;
using zttest::ToText;

DecimalValue Decimal(const std::string& text, int32_t places = 0)
{
    DecimalValue value;
    DecFromString(&value, text.c_str(), places);
    return value;
}

std::string Text(const DecimalValue& value)
{
    return ToText(FromValue(value));
}
std::string Read(const std::string& text)
{
    return Text(Decimal(text));
}

std::string Add(const std::string& first, const std::string& second)
{
    const DecimalValue a = Decimal(first);
    const DecimalValue b = Decimal(second);
    DecimalValue sum;
    EXPECT_EQ(DecAdd(&sum, &a, &b), &sum);
    return Text(sum);
}

std::string Subtract(const std::string& first, const std::string& second)
{
    const DecimalValue a = Decimal(first);
    const DecimalValue b = Decimal(second);
    DecimalValue difference;
    EXPECT_EQ(DecSubtract(&difference, &a, &b), &difference);
    return Text(difference);
}

std::string Divide(const std::string& first, const std::string& second)
{
    const DecimalValue a = Decimal(first);
    const DecimalValue b = Decimal(second);
    DecimalValue quotient;
    EXPECT_EQ(DecDivide(&quotient, &a, &b), &quotient);
    return Text(quotient);
}

int Order(const std::string& first, const std::string& second)
{
    const DecimalValue a = Decimal(first);
    const DecimalValue b = Decimal(second);
    const int16_t order = DecCompare(&a, &b);
    return (order > 0) - (order < 0);
}

// A number of up to the given digits, its point anywhere among or before them.
std::string RandomText(std::mt19937& random, int mostDigits)
{
    const int digits = static_cast<int>(random() % static_cast<unsigned>(mostDigits)) + 1;
    const int places = static_cast<int>(random() % 29u);
    std::string text(static_cast<size_t>(digits), '0');
    for (char& c : text)
        c = static_cast<char>('0' + random() % 10);
    if (places >= digits)
        text.insert(0, static_cast<size_t>(places - digits + 1), '0');
    if (places > 0)
        text.insert(text.size() - static_cast<size_t>(places), ".");
    return random() % 2 ? "-" + text : text;
}

TEST(DecimalRecord, WritesItsReservedFieldAsZero)
{
    DecimalValue value;
    std::memset(&value, 0xEE, sizeof value);
    DecFromString(&value, "1", 0);
    EXPECT_EQ(value.reserved, 0);
    std::memset(&value, 0xEE, sizeof value);
    DecFromUnsigned(&value, 1);
    EXPECT_EQ(value.reserved, 0);
}

struct ReadCase {
    const char* name;
    const char* text;
    const char* value;
};

void PrintTo(const ReadCase& row, std::ostream* out)
{
    *out << row.name << " \"" << row.text << '"';
}

class DecimalReading : public zttest::RowTest<ReadCase> {};

ROW_TEST(DecimalReading, GivesTheValue)
{
    EXPECT_EQ(Read(GetParam().text), GetParam().value);
}

constexpr ReadCase kReadCases[] = {
    {"Zero",                          "0",                                       "0"                             },
    {"Integer",                       "123",                                     "123"                           },
    {"Fraction",                      "19.90",                                   "19.9"                          },
    {"Negative",                      "-5.5",                                    "-5.5"                          },
    {"Plus",                          "+5.5",                                    "5.5"                           },
    {"LeadingBlanks",                 " \t 7",                                   "7"                             },
    {"PointFirst",                    ".5",                                      "0.5"                           },
    {"PointLast",                     "5.",                                      "5"                             },
    {"LeadingZeros",                  "000000000000000000000000000000000000001", "1"                             },
    {"ZerosBehindThePoint",           "0.0000000000000000000000000001",          "0.0000000000000000000000000001"},
    {"Exponent",                      "1.5e3",                                   "1500"                          },
    {"UpperCaseExponent",             "1.5E+3",                                  "1500"                          },
    {"NegativeExponent",              "15e-4",                                   "0.0015"                        },
    {"LoneExponentLetter",            "12e",                                     "12"                            },
    {"ExponentWithoutDigits",         "12e+",                                    "12"                            },
    {"RestIsIgnored",                 "12.5abc",                                 "12.5"                          },
    {"SecondPointEnds",               "1.2.3",                                   "1.2"                           },
    {"CommaEnds",                     "1,234",                                   "1"                             },
    {"BlankInsideEnds",               "1 2",                                     "1"                             },
    {"BlankBehindSignIsNone",         "- 5",                                     "0"                             },
    {"Empty",                         "",                                        "0"                             },
    {"BlanksOnly",                    "   ",                                     "0"                             },
    {"SignOnly",                      "-",                                       "0"                             },
    {"PointOnly",                     ".",                                       "0"                             },
    {"TwoSigns",                      "--1",                                     "0"                             },
    {"Letters",                       "abc",                                     "0"                             },
    {"NoExponentWithoutDigits",       "e5",                                      "0"                             },
    {"TwentyEightDigits",             "1234567890.123456789012345678",           "1234567890.123456789012345678" },
    {"Largest",                       "79228162514264337593543950335",           "79228162514264337593543950335" },
    {"LargestNegative",               "-79228162514264337593543950335",          "-79228162514264337593543950335"},
    {"OneTooLarge",                   "79228162514264337593543950336",           "79228162514264337593543950335" },
    {"OneTooLargeNegative",           "-79228162514264337593543950336",          "-79228162514264337593543950335"},
    {"FarTooLarge",                   "1e999999999999",                          "79228162514264337593543950335" },
    {"ExponentOfThirtyDigits",        "1e100000000000000000000000000000",        "79228162514264337593543950335" },
    {"ExponentThatWouldWrap",         "1e18446744073709551617",                  "79228162514264337593543950335" },
    {"NegativeExponentThatWouldWrap", "1e-18446744073709551617",                 "0"                             },
    {"FarTooLargeNegative",           "-1e30",                                   "-79228162514264337593543950335"},
    {"FarTooSmall",                   "1e-999999999999",                         "0"                             },
    {"ZeroTimesALot",                 "0e999999999999",                          "0"                             },
    {"LargestPowerOfTen",             "1e28",                                    "10000000000000000000000000000" },
    {"RoundsToTheLargest",            "79228162514264337593543950335.4",         "79228162514264337593543950335" },
    {"RoundsOverTheLargest",          "79228162514264337593543950335.5",         "79228162514264337593543950335" },
    {"DropsADigitForTheRound",        "7.92281625142643375935439503355",         "7.922816251426433759354395034" },
    {"HalfToEvenDown",                "0.00000000000000000000000000005",         "0"                             },
    {"HalfToEvenUp",                  "0.00000000000000000000000000015",         "0.0000000000000000000000000002"},
    {"AboveHalf",                     "0.000000000000000000000000000050001",     "0.0000000000000000000000000001"},
    {"LastKeptDigitUp",               "1.00000000000000000000000000006",         "1.0000000000000000000000000001"},
    {"LastKeptDigitDown",             "1.00000000000000000000000000004",         "1"                             },
};

TEST_ROWS(Texts, DecimalReading, kReadCases);

TEST(DecimalReading, KeepsADigitThatStandsHundredsOfPlacesBehindATie)
{
    const std::string tie = "0.00000000000000000000000000005";
    EXPECT_EQ(Read(tie + std::string(500, '0')), "0");
    EXPECT_EQ(Read(tie + std::string(500, '0') + "1"), "0.0000000000000000000000000001");
    EXPECT_EQ(Read(tie + std::string(500, '0') + "10"), "0.0000000000000000000000000001");
}

TEST(DecimalReading, TakesTextsOfAnyLength)
{
    EXPECT_EQ(Read(std::string(100000, '9')), kLargestDecimal);
    EXPECT_EQ(Read("0." + std::string(100000, '0') + "9"), "0");
    EXPECT_EQ(Read(std::string(100000, '0') + "12.5"), "12.5");
    EXPECT_EQ(Read("1" + std::string(1000, '0') + "e-1000"), "1");
    EXPECT_EQ(Read("0." + std::string(999, '0') + "125e1000"), "1.25");
    EXPECT_EQ(Read(std::string(1000, '0') + "1" + std::string(1000, '0') + "e-1000"), "1");
    // the product with its power of ten is small again in 256 bits
    EXPECT_EQ(Read("573992965558300112334183729786566828019444640986046840e28"), kLargestDecimal);
}

TEST(DecimalReading, ReadsNullAsZero)
{
    DecimalValue value = Decimal("5");
    EXPECT_EQ(DecFromString(&value, nullptr, 2), &value);
    EXPECT_EQ(Text(value), "0");
}

TEST(DecimalReading, GivesZeroNoSign)
{
    EXPECT_EQ(Decimal("-0").sign, 0);
    EXPECT_EQ(Decimal("-0.00").sign, 0);
    EXPECT_EQ(Decimal("-1e-100").sign, 0);
}

TEST(DecimalReading, TakesNoExponentWithoutDigitsBeforeIt)
{
    for (const char* text : {"e-5", ".e-5", "-e-5", "E-5"})
        EXPECT_EQ(Decimal(text).scale, 0) << text;
}

TEST(DecimalReading, HasTheScaleOfTheText)
{
    EXPECT_EQ(Decimal("1.50").scale, 2);
    EXPECT_EQ(Decimal("5e1").scale, 0);
    EXPECT_EQ(Decimal("1e28").scale, 0);
    EXPECT_EQ(Decimal("15e-4").scale, 4);
    EXPECT_EQ(Decimal("0e28").scale, 0);
    EXPECT_EQ(Decimal("0e100").scale, 0);
    EXPECT_EQ(Decimal("1e-100").scale, 28);
}

TEST(DecimalReading, KeepsTheDigitsWhateverTheHint)
{
    for (const int32_t places : {-1000000, -1, 0, 1, 2, 27, 28, 29, 1000000}) {
        EXPECT_EQ(Text(Decimal("1.25", places)), "1.25") << places;
        EXPECT_EQ(Text(Decimal(kLargestDecimal, places)), kLargestDecimal) << places;
        EXPECT_EQ(Text(Decimal("-0.125", places)), "-0.125") << places;
    }
}

TEST(DecimalReading, WidensToTheScaleOfTheHintWhereThereIsRoom)
{
    EXPECT_EQ(Decimal("12", 1).scale, 1);
    EXPECT_EQ(Decimal("12", 2).scale, 2);
    EXPECT_EQ(Decimal("1.5", 28).scale, 28);
    EXPECT_EQ(Decimal("1.5", -3).scale, 1);
    EXPECT_EQ(Decimal("0", 1000000).scale, 28);
    EXPECT_EQ(Decimal("0", 29).scale, 28);
    EXPECT_EQ(Decimal("1.250", 2).scale, 3);
    EXPECT_EQ(Decimal("7", 28).scale, 28);
    EXPECT_EQ(Decimal("8", 28).scale, 27);
    EXPECT_EQ(Decimal(kLargestDecimal, 2).scale, 0);
}

TEST(DecimalReading, AgreesWithPenAndPaperOnRandomTexts)
{
    std::mt19937 random(20240305);
    for (int i = 0; i < 3000; ++i) {
        std::string text = RandomText(random, 45);
        if (random() % 3 == 0)
            text += "e" + std::to_string(static_cast<int>(random() % 61) - 30);
        ASSERT_EQ(Read(text), ToText(AsDecimalValue(FromText(text)))) << text;
    }
}

constexpr char kMost[] = "79228162514264337593543950335";
constexpr char kLeast[] = "-79228162514264337593543950335";

// Exact inside 28 digits; beyond them the half goes to the even digit, and what is out of range is the largest of its
// sign.
struct Calculation {
    const char* name;
    const char* first;
    char operation;
    const char* second;
    const char* result;
};

void PrintTo(const Calculation& row, std::ostream* out)
{
    *out << row.first << ' ' << row.operation << ' ' << row.second;
}

class DecimalCalculation : public zttest::RowTest<Calculation> {};

ROW_TEST(DecimalCalculation, GivesTheResult)
{
    const auto calculate = GetParam().operation == '+' ? Add : GetParam().operation == '-' ? Subtract : Divide;
    EXPECT_EQ(calculate(GetParam().first, GetParam().second), GetParam().result);
}

// clang-format off
constexpr Calculation kSums[] = {
    {"Cents",                  "19.90",                          '+', "3.78",                           "23.68"},
    {"TenthsThatNoDoubleHas",  "0.1",                            '+', "0.2",                            "0.3"},
    {"Opposites",              "-5",                             '+', "5",                              "0"},
    {"CarryOver28Digits",      "9999999999999999999999999999",   '+', "1",                              "10000000000000000000000000000"},
    {"CarryOver28Places",      "0.0000000000000000000000000001", '+', "0.9999999999999999999999999999", "1"},
    {"FarApart",               "1000000000000000000",            '+', "0.0000000001",                   "1000000000000000000.0000000001"},
    {"CarryOver64Bits",        "18446744073709551615",           '+', "1",                              "18446744073709551616"},
    {"BorrowOver64Bits",       "18446744073709551616",           '-', "1",                              "18446744073709551615"},
    {"TenthsSubtracted",       "0.3",                            '-', "0.1",                            "0.2"},
    {"ChangeOfSign",           "1",                              '-', kMost,                            "-79228162514264337593543950334"},
    {"EqualNegatives",         "-1",                             '-', "-1",                             "0"},
    {"HalfToEvenDown",         "70000000000000000000000000000",  '+', "0.5",                            "70000000000000000000000000000"},
    {"HalfToEvenUp",           "70000000000000000000000000001",  '+', "0.5",                            "70000000000000000000000000002"},
    {"AboveHalf",              "70000000000000000000000000000",  '+', "0.5000000000000000000000000001", "70000000000000000000000000001"},
    {"LowestDigitRunsOut",     "7.0000000000000000000000000001", '+', "1000",                           "1007"},
    {"OneTooLarge",            kMost,                            '+', "1",                              kMost},
    {"TwiceTheLargest",        kMost,                            '+', kMost,                            kMost},
    {"LargestAndLessThanHalf", kMost,                            '+', "0.4",                            kMost},
    {"OneTooSmall",            kLeast,                           '-', "1",                              kLeast},
};

constexpr Calculation kQuotients[] = {
    {"ByAHundred",        "12.5",                           '/', "100",                            "0.125"},
    {"AQuarter",          "1",                              '/', "4",                              "0.25"},
    {"TrailingZeros",     "10.00",                          '/', "2",                              "5"},
    {"ByATenth",          "5",                              '/', "0.10",                           "50"},
    {"OfANegative",       "-7",                             '/', "2",                              "-3.5"},
    {"OfTwoNegatives",    "-7",                             '/', "-2",                             "3.5"},
    {"LargestByOne",      kMost,                            '/', "1",                              kMost},
    {"LargestByItself",   kMost,                            '/', kMost,                            "1"},
    {"OfZero",            "0",                              '/', "7",                              "0"},
    {"SmallestResult",    "1",                              '/', "10000000000000000000000000000",  "0.0000000000000000000000000001"},
    {"AThird",            "1",                              '/', "3",                              "0.3333333333333333333333333333"},
    {"TwoThirds",         "2",                              '/', "3",                              "0.6666666666666666666666666667"},
    {"TwoThirdsNegative", "-2",                             '/', "3",                              "-0.6666666666666666666666666667"},
    {"HalfToEvenZero",    "0.0000000000000000000000000001", '/', "2",                              "0"},
    {"HalfToEvenUp",      "0.0000000000000000000000000003", '/', "2",                              "0.0000000000000000000000000002"},
    {"HalfToEvenDown",    "0.0000000000000000000000000005", '/', "2",                              "0.0000000000000000000000000002"},
    {"RestBehindATie",    "18",                             '/', "19",                             "0.9473684210526315789473684211"},
    {"LargestByTen",      kMost,                            '/', "10",                             "7922816251426433759354395033.5"},
    {"LargestHalved",     kMost,                            '/', "2",                              "39614081257132168796771975168"},
    {"TwoLessHalved",     "79228162514264337593543950333",  '/', "2",                              "39614081257132168796771975166"},
    {"ByZero",            "5",                              '/', "0",                              "0"},
    {"ZeroByZero",        "0",                              '/', "0.00",                           "0"},
    {"TooLarge",          kMost,                            '/', "0.1",                            kMost},
    {"LargestPowerOfTen", "-1",                             '/', "0.0000000000000000000000000001", "-10000000000000000000000000000"},
    {"TooSmall",          "-8",                             '/', "0.0000000000000000000000000001", kLeast},
};
// clang-format on
TEST_ROWS(Sums, DecimalCalculation, kSums);
TEST_ROWS(Quotients, DecimalCalculation, kQuotients);

TEST(DecimalSum, KeepsTheLargerScale)
{
    const DecimalValue a = Decimal("1.10");
    const DecimalValue b = Decimal("2.9");
    DecimalValue sum;
    DecAdd(&sum, &a, &b);
    EXPECT_EQ(sum.scale, 2);
    EXPECT_EQ(Text(sum), "4");
}

TEST(DecimalSum, OfOppositesHasNoSign)
{
    const DecimalValue a = Decimal("-5.5");
    DecimalValue sum;
    DecSubtract(&sum, &a, &a);
    EXPECT_EQ(sum.sign, 0);
    EXPECT_EQ(Text(sum), "0");
}

TEST(DecimalSum, MayReplaceAnOperand)
{
    DecimalValue value = Decimal("1.5");
    DecAdd(&value, &value, &value);
    EXPECT_EQ(Text(value), "3");
    const DecimalValue other = Decimal("10");
    DecSubtract(&value, &other, &value);
    EXPECT_EQ(Text(value), "7");
}

TEST(DecimalSum, AgreesWithPenAndPaperOnRandomNumbers)
{
    std::mt19937 random(42);
    for (int i = 0; i < 5000; ++i) {
        const std::string a = RandomText(random, 29);
        const std::string b = RandomText(random, 29);
        const LongDecimal first = FromValue(Decimal(a));
        const LongDecimal second = FromValue(Decimal(b));
        ASSERT_EQ(Add(a, b), ToText(AsDecimalValue(zttest::Sum(first, second)))) << a << " + " << b;
        ASSERT_EQ(Subtract(a, b), ToText(AsDecimalValue(zttest::Sum(first, zttest::Negated(second)))))
            << a << " - " << b;
        ASSERT_EQ(Order(a, b), zttest::Compare(first, second)) << a << " <=> " << b;
    }
}

TEST(DecimalQuotient, HasNoMoreDigitsThanItNeeds)
{
    const struct {
        const char* first;
        const char* second;
        uint8_t scale;
    } rows[] = {
        {"1",     "4",    2 },
        {"12.5",  "100",  3 },
        {"10.00", "2",    2 },
        {"10.00", "2.00", 0 },
        {"5",     "0.10", 0 },
        {"1",     "3",    28},
    };
    for (const auto& row : rows) {
        const DecimalValue first = Decimal(row.first);
        const DecimalValue second = Decimal(row.second);
        DecimalValue quotient;
        EXPECT_EQ(DecDivide(&quotient, &first, &second)->scale, row.scale) << row.first << " / " << row.second;
    }
}

TEST(DecimalQuotient, MayReplaceAnOperand)
{
    DecimalValue value = Decimal("3");
    DecDivide(&value, &value, &value);
    EXPECT_EQ(Text(value), "1");
}

TEST(DecimalQuotient, AgreesWithPenAndPaperOnRandomNumbers)
{
    std::mt19937 random(7);
    for (int i = 0; i < 2000; ++i) {
        const std::string a = RandomText(random, 29);
        const std::string b = RandomText(random, 29);
        const LongDecimal divisor = FromValue(Decimal(b));
        if (divisor.digits.empty())
            continue;
        const LongDecimal exact = zttest::Quotient(FromValue(Decimal(a)), divisor);
        ASSERT_EQ(Divide(a, b), ToText(AsDecimalValue(exact))) << a << " / " << b;
    }
}

struct OrderCase {
    const char* name;
    const char* first;
    const char* second;
    int order;
};

void PrintTo(const OrderCase& row, std::ostream* out)
{
    *out << row.first << " and " << row.second;
}

class DecimalOrder : public zttest::RowTest<OrderCase> {};

ROW_TEST(DecimalOrder, LooksAtTheValueAndNotAtTheScale)
{
    EXPECT_EQ(Order(GetParam().first, GetParam().second), GetParam().order);
}

ROW_TEST(DecimalOrder, IsTheOppositeTheOtherWayRound)
{
    EXPECT_EQ(Order(GetParam().second, GetParam().first), -GetParam().order);
}

constexpr OrderCase kOrders[] = {
    {"ScalesDiffer",       "1.0",  "1.00",                           0 },
    {"ZerosOfBothSigns",   "0",    "-0.000",                         0 },
    {"SmallestDifference", "1",    "1.0000000000000000000000000001", -1},
    {"SignsDiffer",        "-1",   "1",                              -1},
    {"Negatives",          "-1",   "-2",                             1 },
    {"LengthsDiffer",      "2",    "10",                             -1},
    {"LargestAndSmallest", kMost,  "0.0000000000000000000000000001", 1 },
    {"LeastAndMost",       kLeast, kMost,                            -1},
    {"LargestAndItself",   kMost,  kMost,                            0 },
};
TEST_ROWS(Pairs, DecimalOrder, kOrders);

TEST(DecimalRecord, WithASignAndNoDigitsIsZero)
{
    DecimalValue negativeZero{};
    negativeZero.sign = 0x80;
    const DecimalValue zero = Decimal("0");
    EXPECT_EQ(DecCompare(&negativeZero, &zero), 0);
    EXPECT_EQ(DecCompare(&zero, &negativeZero), 0);
}

TEST(DecimalFromUnsigned, TakesEveryNumber)
{
    for (const uint32_t number : {0u, 1u, 100u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        DecimalValue value;
        EXPECT_EQ(DecFromUnsigned(&value, number), &value);
        EXPECT_EQ(Text(value), std::to_string(number));
        EXPECT_EQ(value.scale, 0);
    }
}

TEST(DecimalCopy, EqualsItsSource)
{
    const DecimalValue source = Decimal("-123.4500");
    DecimalValue copy;
    EXPECT_EQ(DecCopy(&copy, &source), &copy);
    EXPECT_EQ(Text(copy), "-123.45");
    EXPECT_EQ(copy.scale, 4);
}

TEST(DecimalZero, IsZero)
{
    DecimalValue value = Decimal("-1.5");
    EXPECT_EQ(DecSetZero(&value), &value);
    const DecimalValue zero{};
    EXPECT_EQ(std::memcmp(&value, &zero, sizeof zero), 0);
}

TEST(DecimalBadInput, NullOperandsAreZeroAndNullDestinationsAreLeft)
{
    const DecimalValue two = Decimal("2");
    DecimalValue result = two;
    EXPECT_EQ(Text(*DecAdd(&result, nullptr, &two)), "2");
    EXPECT_EQ(Text(*DecSubtract(&result, nullptr, &two)), "-2");
    EXPECT_EQ(Text(*DecDivide(&result, nullptr, &two)), "0");
    EXPECT_EQ(Text(*DecDivide(&result, &two, nullptr)), "0");
    EXPECT_EQ(Text(*DecCopy(&result, nullptr)), "0");
    EXPECT_GT(DecCompare(&two, nullptr), 0);
    EXPECT_EQ(DecCompare(nullptr, nullptr), 0);
    EXPECT_EQ(DecAdd(nullptr, &two, &two), nullptr);
    EXPECT_EQ(DecFromString(nullptr, "1", 0), nullptr);
    EXPECT_EQ(DecFromUnsigned(nullptr, 1), nullptr);
    EXPECT_EQ(DecSetZero(nullptr), nullptr);
}

TEST(DecimalBadInput, ARecordThatIsNoDecimalCountsAsZero)
{
    DecimalValue bad = Decimal("5");
    bad.scale = 29;
    const DecimalValue two = Decimal("2");
    DecimalValue result;
    EXPECT_EQ(Text(*DecAdd(&result, &bad, &two)), "2");
    EXPECT_EQ(Text(*DecDivide(&result, &two, &bad)), "0");
    EXPECT_LT(DecCompare(&bad, &two), 0);
}

}  // namespace
