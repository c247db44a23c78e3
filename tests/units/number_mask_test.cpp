// Masks of numbers: what they are shown by, and the number taken apart that they show.
#include "engine/mask/number_mask.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "engine/mask/shown_number.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

Settings WithSymbol(const char* symbol)
{
    Settings settings = StandardSettings();
    Assign(settings.currencySymbol, FromAscii(symbol));
    return settings;
}

struct FormatRow {
    const char* name;
    const char* symbol;
    const char* mask;
    const char* format;
};
void PrintTo(const FormatRow& row, std::ostream* out)
{
    *out << row.mask << " with the symbol " << row.symbol;
}

class FormatOfMask : public RowTest<FormatRow> {};

ROW_TEST(FormatOfMask, HasTheSymbolAndTheLiteralsEscaped)
{
    const FormatRow& row = GetParam();
    EXPECT_EQ(DisplayFormatText(FromAscii(row.mask), WithSymbol(row.symbol)), FromAscii(row.format));
}

const FormatRow kFormatRows[] = {
    {"ASymbolOfLetters",             "$",   "$#.00",  "$#.00"    },
    {"ASymbolWithASeparator",        "k.",  "k.#0",   "k\\.#0"   },
    {"ASymbolWithAHash",             "A#",  "A##",    "A\\##"    },
    {"ASymbolWithAZero",             "A0",  "A00",    "A\\00"    },
    {"ASymbolWithABackslash",        "\\",  "\\0",    "\\\\0"    },
    {"ASymbolOfAPlaceholder",        "0",   "#0",     "#0"       },
    {"ASymbolOfAHash",               "#",   "0#",     "0#"       },
    {"NoSymbol",                     "",    "#0",     "#0"       },
    {"ASymbolBehindALiteral",        "k,",  "xk,0",   "xk\\,0"   },
    {"ASymbolBehindTwoLiterals",     "k,",  "xyk,0",  "xyk\\,0"  },
    {"ASymbolBehindAnEscape",        "k,",  "~xk,0",  "\\xk\\,0" },
    {"ASymbolBehindItsEscapedSelf",  "k,",  "~k,k,0", "\\k,k\\,0"},
    {"ASymbolBehindTheNumber",       "k,",  "0k,",    "0k\\,"    },
    {"ASymbolInsideTheNumberIsNone", "k.",  "0k.0",   "0k.0"     },
    {"AnEscapedSymbolIsNone",        "k,",  "~k,0",   "\\k,0"    },
    {"ASymbolLongerThanTheMask",     "kkk", "0",      "0"        },
    {"AnEscapedTilde",               "$",   "~~0",    "\\~0"     },
    {"AnEscapedTildeAlone",          "$",   "~~",     "\\~"      },
    {"ATildeAtTheEnd",               "$",   "0~",     "0\\"      },
};
TEST_ROWS(, FormatOfMask, kFormatRows);

TEST(UnitsForced, AreTheLastOptionalDigit)
{
    EXPECT_EQ(WithUnitsForced(FromAscii("#")), FromAscii("0"));
    EXPECT_EQ(WithUnitsForced(FromAscii("$#,###")), FromAscii("$#,##0"));
    EXPECT_EQ(WithUnitsForced(FromAscii("#,###\\#")), FromAscii("#,##0\\#"));
    EXPECT_EQ(WithUnitsForced(FromAscii("#\\#")), FromAscii("0\\#"));
    EXPECT_EQ(WithUnitsForced(FromAscii("\\##")), FromAscii("\\#0"));
    EXPECT_EQ(WithUnitsForced(FromAscii("00")), FromAscii("00"));
    EXPECT_EQ(WithUnitsForced(Text()), Text());
}

// The backslash is a currency's symbol where fonts show it as one.
TEST(UnitsForced, StandBehindASymbolThatIsABackslash)
{
    EXPECT_EQ(WithUnitsForced(FromAscii("\\\\#")), FromAscii("\\\\0"));
}

TEST(NumberMaskCheck, TakesNoDigitBehindThePercentSign)
{
    EXPECT_TRUE(CheckNumberMask(FromAscii("##%"), StandardSettings()));
    EXPECT_FALSE(CheckNumberMask(FromAscii("#%#"), StandardSettings()));
    EXPECT_FALSE(CheckNumberMask(FromAscii("#%0"), StandardSettings()));
    EXPECT_FALSE(CheckNumberMask(FromAscii("%#"), StandardSettings()));
}

TEST(NumberMaskCheck, TakesTheSymbolOnceAndInFrontOfTheNumber)
{
    EXPECT_TRUE(CheckNumberMask(FromAscii("$#"), StandardSettings()));
    EXPECT_FALSE(CheckNumberMask(FromAscii("$$#"), StandardSettings()));
}

TEST(NumberMaskCheck, TakesNoMoreThanAMaskHolds)
{
    const Text longest(kMaxMaskLength, Char{'#'});
    EXPECT_TRUE(CheckNumberMask(longest, StandardSettings()));
    EXPECT_FALSE(CheckNumberMask(longest + Char{'#'}, StandardSettings()));
}

// ---- The number that a text shows ----

struct ShownRow {
    const char* name;
    const char* before;
    const char* format;
    const char* behind;
    const char* text;
    int32_t start;
    int32_t end;
    int32_t sign;
    int32_t point;
};
void PrintTo(const ShownRow& row, std::ostream* out)
{
    *out << row.text;
}

struct Shown {
    Shown(const char* before, const char* format, const char* behind, const char* text)
        : format_(FromAscii(format)),
          before_(FromAscii(before)),
          behind_(FromAscii(behind)),
          text_(FromAscii(text)),
          mask_{
              format_.c_str(),
              ReadShape(format_.c_str()),
              {before_.c_str(), Length(before_)},
              {behind_.c_str(), Length(behind_)},
              false
    },
          number(mask_, StandardSettings(), text_)
    {
    }

private:
    Text format_;
    Text before_;
    Text behind_;
    Text text_;
    NumberMask mask_;

public:
    ShownNumber number;
};

class NumberShown : public RowTest<ShownRow> {};

ROW_TEST(NumberShown, IsTakenApart)
{
    const ShownRow& row = GetParam();
    const Shown shown(row.before, row.format, row.behind, row.text);
    EXPECT_EQ(shown.number.Start(), row.start);
    EXPECT_EQ(shown.number.End(), row.end);
    EXPECT_EQ(shown.number.Sign(), row.sign);
    EXPECT_EQ(shown.number.Point(), row.point);
}

const ShownRow kShownRows[] = {
    {"WithLiterals",                    "$", "#.00", "%",  "$-1.50%", 1, 6, 1,  3 },
    {"WithoutLiterals",                 "$", "#.00", "%",  "1.50",    0, 4, -1, 1 },
    {"ALiteralThatIsBoth",              "%", "#",    "%",  "%",       1, 1, -1, -1},
    {"APointInTheLiteralBehind",        "",  "#.00", ".k", "5.k",     0, 1, -1, -1},
    {"AMinusInTheLiteralBehind",        "",  "#",    "-k", "-k",      0, 0, -1, -1},
    {"TheFirstMinusIsTheSign",          "",  "#",    "",   "--5",     0, 3, 0,  -1},
    {"AMinusBehindADigitIsNone",        "",  "#",    "",   "1-2",     0, 3, -1, -1},
    {"AMinusFurtherBehindADigitIsNone", "",  "#",    "",   "1,-2",    0, 4, -1, -1},
    {"AMinusBehindThePointIsNone",      "",  "#.00", "",   ".-2",     0, 3, -1, 0 },
    {"TheFirstPointCounts",             "",  "#.00", "",   "1.2.3",   0, 5, -1, 1 },
    {"NoPointWhereTheMaskHasNone",      "",  "##0",  "",   "1.2",     0, 3, -1, -1},
    {"Nothing",                         "$", "#",    "%",  "",        0, 0, -1, -1},
};
TEST_ROWS(, NumberShown, kShownRows);

TEST(DigitsShown, AreThoseOfTheNumberAlone)
{
    const Shown shown("7", "#.00", "9", "712.39");
    EXPECT_EQ(shown.number.Digits().integer, FromAscii("12"));
    EXPECT_EQ(shown.number.Digits().fraction, FromAscii("3"));
    EXPECT_FALSE(shown.number.IsDigitAt(0));
    EXPECT_TRUE(shown.number.IsDigitAt(1));
    EXPECT_TRUE(shown.number.IsDigitAt(4));
    EXPECT_FALSE(shown.number.IsDigitAt(5));
}

TEST(PlacesShown, InTheFractionAreCountedByDigits)
{
    const Shown plain("", "#.00", "", "1.23");
    EXPECT_EQ(plain.number.PositionOf({true, 0}), 2);
    EXPECT_EQ(plain.number.PositionOf({true, 1}), 3);
    EXPECT_EQ(plain.number.PositionOf({true, 2}), 4);
    EXPECT_EQ(plain.number.PositionOf({true, 9}), 4) << "no further than the number goes";
    const Shown parted("", "#.00", "", "1.2 3");
    EXPECT_EQ(parted.number.PositionOf({true, 1}), 3);
    EXPECT_EQ(parted.number.PositionOf({true, 2}), 5);
    EXPECT_EQ(parted.number.PlaceAt(5).digits, 2);
}

TEST(PlacesShown, NoDigitFollowsWhereThePointIsOrTheEnd)
{
    EXPECT_EQ(Shown("", "#.00", "", "12.").number.NextDigit(2), 2);
    EXPECT_EQ(Shown("", "#.00", "", "12.34").number.NextDigit(2), 2);
    EXPECT_EQ(Shown("", "#", "", "-").number.NextDigit(0), 1);
    EXPECT_EQ(Shown("", "#", "", "-").number.NextDigit(5), 1);
    EXPECT_EQ(Shown("$", "#", "", "$-7").number.NextDigit(0), 2);
}

}  // namespace
}  // namespace zttest
