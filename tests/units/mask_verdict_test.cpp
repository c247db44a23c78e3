// Why a mask does not fit its type, and where; and that a mask is judged as it is then installed.
#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <string>

#include "engine/format/mask_setting.h"
#include "engine/mask/mask_choice.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

Settings WithDecimalComma()
{
    Settings settings = StandardSettings();
    settings.decimalChar = ',';
    settings.thousandChar = '.';
    return settings;
}

struct VerdictRow {
    const char* name;
    int32_t type;
    const char* mask;
    int32_t reason;
    int32_t offset;
    bool decimalComma = false;
};
void PrintTo(const VerdictRow& row, std::ostream* out)
{
    *out << '"' << row.mask << "\" of type " << row.type;
}

class JudgedMask : public RowTest<VerdictRow> {};

ROW_TEST(JudgedMask, IsToldWhyAndWhere)
{
    const VerdictRow& row = GetParam();
    const Settings settings = row.decimalComma ? WithDecimalComma() : StandardSettings();
    const MaskVerdict verdict = JudgeMask(FromAscii(row.mask).c_str(), row.type, settings);
    EXPECT_EQ(verdict.reason, row.reason);
    EXPECT_EQ(verdict.offset, row.offset);
}

// clang-format off
const VerdictRow kVerdicts[] = {
    {"ADate",                      DT_DATE,     "MM/DD/YY",          ZTM_FITS,          -1},
    {"AKeyword",                   DT_DATE,     "[date]",            ZTM_FITS,          -1},
    {"ACurrency",                  DT_NUMBER,   "[currency(9)]",     ZTM_FITS,          -1},
    {"APhone",                     DT_STRING,   "(###) ###-####",    ZTM_FITS,          -1},
    {"NoMaskOfStrings",            DT_STRING,   "",                  ZTM_FITS,          -1},
    {"NoMaskOfNumbers",            DT_NUMBER,   "",                  ZTM_EMPTY,          0},
    {"NoMaskOfTimes",              DT_TIME,     "",                  ZTM_EMPTY,          0},
    {"TypeZero",                   0,           "##",                ZTM_DATA_TYPE,      0},
    {"TypeSeven",                  7,           "##",                ZTM_DATA_TYPE,      0},

    {"TildeAtTheEndOfAString",     DT_STRING,   "##~",               ZTM_ESCAPE,         2},
    {"TwoTildesInAString",         DT_STRING,   "#~~#",              ZTM_ESCAPE,         1},
    {"TildeAtTheEndOfANumber",     DT_NUMBER,   "~",                 ZTM_ESCAPE,         0},
    {"TildeAtTheEndOfADate",       DT_DATE,     "MM/DD/YY~",         ZTM_ESCAPE,         8},

    {"TooManyDigitsOfACurrency",   DT_NUMBER,   "[currency(17)]",    ZTM_KEYWORD,        0},
    {"ACurrencyWithoutACount",     DT_DECIMAL,  "[currency]",        ZTM_KEYWORD,        0},

    {"ALiteralAmongDigits",        DT_NUMBER,   "##x##",             ZTM_OUT_OF_PLACE,   2},
    {"ALiteralBehindDigits",       DT_NUMBER,   "## ",               ZTM_OUT_OF_PLACE,   2},
    {"AnEscapeBehindDigits",       DT_NUMBER,   "##~x",              ZTM_OUT_OF_PLACE,   2},
    {"AQuotationMark",             DT_NUMBER,   "\"#",               ZTM_OUT_OF_PLACE,   0},
    {"ADigitBehindPercent",        DT_NUMBER,   "#%#",               ZTM_OUT_OF_PLACE,   2},
    {"PercentOfMoney",             DT_NUMBER,   "$#%",               ZTM_OUT_OF_PLACE,   2},
    {"AThousandsBehindThePoint",   DT_NUMBER,   "#.0,0",             ZTM_OUT_OF_PLACE,   3},
    {"ASymbolBehindDigits",        DT_NUMBER,   "#.00$",             ZTM_OUT_OF_PLACE,   4},
    {"ASecondPoint",               DT_NUMBER,   "#.0.0",             ZTM_TWICE,          3},
    {"ASecondPercent",             DT_NUMBER,   "#%%",               ZTM_TWICE,          2},
    {"ASecondSymbol",              DT_NUMBER,   "$$#",               ZTM_TWICE,          1},
    {"NoDigit",                    DT_NUMBER,   "$",                 ZTM_NO_DIGIT,       1},
    {"AGroupedMaskUnderAComma",    DT_NUMBER,   "#,##0.00",          ZTM_OUT_OF_PLACE,   5, true},
    {"TwoPointsUnderAComma",       DT_NUMBER,   "#.0.0",             ZTM_OUT_OF_PLACE,   3, true},

    {"AMonthOfOneLetter",          DT_DATE,     "M/DD/YY",           ZTM_FIELD_LENGTH,   0},
    {"AMonthOfFourLetters",        DT_DATE,     "DD MMMM YYYY",      ZTM_FIELD_LENGTH,   3},
    {"AYearOfThree",               DT_DATE,     "MM/DD/YYY",         ZTM_FIELD_LENGTH,   6},
    {"AFractionOfSeven",           DT_TIME,     "HH:MM:SS.FFFFFFF",  ZTM_FIELD_LENGTH,   9},
    {"TwoMonths",                  DT_DATE,     "MM/MM/YY",          ZTM_TWICE,          3},
    {"TwoMarkers",                 DT_TIME,     "HH AM/PM AM/PM",    ZTM_TWICE,          9},
    {"ADayOfTheYearBesideADay",    DT_DATE,     "DD JJJ YY",         ZTM_EXCLUDED,       3},
    {"AMonthBesideADayOfTheYear",  DT_DATE,     "JJJ MM YY",         ZTM_EXCLUDED,       4},
    {"ADateWithoutAYear",          DT_DATE,     "MM/DD",             ZTM_FIELD_MISSING,  5},
    {"ADayWithoutAMonth",          DT_DATE,     "YY DD",             ZTM_FIELD_MISSING,  3},
    {"MinutesWithoutHours",        DT_DATETIME, "YY :MM:SS",         ZTM_FIELD_MISSING,  7},
    {"SecondsWithoutMinutes",      DT_TIME,     "HH:SS",             ZTM_FIELD_MISSING,  3},
    {"AFractionWithoutSeconds",    DT_TIME,     "HH:MM.FF",          ZTM_FIELD_MISSING,  6},
    {"ADayWithoutAYear",           DT_DATETIME, "MM/DD HH:MM",       ZTM_FIELD_MISSING,  3},
};
// clang-format on
TEST_ROWS(Rows, JudgedMask, kVerdicts);

TEST(MaskTooLong, IsToldAtItsEndWhateverTheType)
{
    const Text mask(256, Char{'#'});
    for (const int32_t type : {DT_STRING, DT_NUMBER, DT_DATE, DT_TIME, DT_DATETIME, DT_DECIMAL}) {
        const MaskVerdict verdict = JudgeMask(mask.c_str(), type, StandardSettings());
        EXPECT_EQ(verdict.reason, ZTM_TOO_LONG) << type;
        EXPECT_EQ(verdict.offset, 255) << type;
    }
    EXPECT_TRUE(JudgeMask(mask.c_str() + 1, DT_STRING, StandardSettings()));
    EXPECT_EQ(JudgeMask(nullptr, DT_DATE, StandardSettings()).reason, ZTM_EMPTY);
}

TEST(MaskKeyword, ThatThePictureCannotFillIsToldAsOne)
{
    Settings settings = StandardSettings();
    Assign(settings.shortDate, FromAscii("m/d/yyy"));
    EXPECT_EQ(JudgeMask(FromAscii("[date]").c_str(), DT_DATE, settings).reason, ZTM_KEYWORD);
    EXPECT_EQ(JudgeMask(FromAscii("[date] [time]").c_str(), DT_DATETIME, settings).reason, ZTM_KEYWORD);
}

// A law: what is judged to fit is installed as given, and what does not is not; what is told stands in the mask.
TEST(JudgedMasks, AreInstalledAsTheyAreJudged)
{
    constexpr char kPieces[] = "#0.,%$~'xMDYHSFX /:-[";
    std::mt19937 random(11);
    int refused = 0;
    for (int i = 0; i < 15000; ++i) {
        Text mask;
        for (auto length = random() % 10; length > 0; --length)
            mask.append(1 + random() % 3, static_cast<Char>(kPieces[random() % (sizeof kPieces - 1)]));
        const auto type = static_cast<int32_t>(1 + random() % 6);
        const Settings settings = random() % 2 == 0 ? StandardSettings() : WithDecimalComma();
        FieldLayout layout{};
        const ChosenMask chosen = ChooseMask(mask, type, settings, layout);
        const MaskVerdict verdict = JudgeMask(mask.c_str(), type, settings);
        if (!mask.empty()) {
            ASSERT_EQ(static_cast<bool>(verdict), chosen.asGiven)
                << type << ' ' << std::string(mask.begin(), mask.end());
        }
        if (verdict)
            continue;
        ++refused;
        ASSERT_TRUE(verdict.offset >= 0 && verdict.offset <= Length(mask));
        // What stands before the fault is fine, or lacks something. (The lengths of fields behind '~' are measured elsewhere.)
        const auto lacks = [](const MaskVerdict& of) {
            return of.reason == ZTM_FIELD_MISSING || of.reason == ZTM_NO_DIGIT || of.reason == ZTM_EMPTY;
        };
        if (lacks(verdict) || mask.find(Char{'~'}) != Text::npos)
            continue;
        const MaskVerdict before =
            JudgeMask(mask.substr(0, static_cast<size_t>(verdict.offset)).c_str(), type, settings);
        ASSERT_TRUE(before || lacks(before)) << type << ' ' << std::string(mask.begin(), mask.end()) << " at "
                                             << verdict.offset << " before " << before.reason;
    }
    EXPECT_GT(refused, 3000);
}

}  // namespace
}  // namespace zttest
