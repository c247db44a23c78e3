// The ends of ranges, and calls that the ways through a window never make.
#include <gtest/gtest.h>

#include "engine/edit/validators.h"
#include "engine/format/data.h"
#include "engine/format/display.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/mask/currency_mask.h"
#include "engine/mask/mask_choice.h"
#include "engine/mask/picture.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/spin/date_step.h"
#include "engine/spin/step.h"
#include "engine/text/writer.h"
#include "engine/values/cursor_list.h"
#include "engine/values/date_time.h"
#include "engine/values/decimal_number.h"

#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

DateTimeValue Noon()
{
    return {0, 95, 6, 4, 12, 0, 0, 0};
}

class Edges : public testing::Test {
protected:
    MemoryControl& Make(const char* mask, int32_t dataType)
    {
        mask_ = FromAscii(mask);
        ControlSetup setup;
        setup.mask = mask_.c_str();
        setup.dataType = dataType;
        control_ = std::make_unique<MemoryControl>(setup, settings_, Noon);
        return *control_;
    }

    Settings settings_ = StandardSettings();
    Text mask_;
    std::unique_ptr<MemoryControl> control_;
};

// ---- Text ----

TEST(WriterEdges, WhatDoesNotFitIsCutAndTold)
{
    Char buffer[4];
    Writer writer(buffer, 4);
    writer.Put("abcd");
    EXPECT_STREQ(buffer, "abc");
    EXPECT_TRUE(writer.IsCut());
    EXPECT_EQ(writer.Length(), 3);
}

TEST(WriterEdges, WhatFitsIsNotCut)
{
    Char buffer[4];
    Writer writer(buffer, 4);
    writer.Put("abc");
    EXPECT_FALSE(writer.IsCut());
}

TEST(WriterEdges, ABufferWithoutRoomTakesNothing)
{
    Writer writer(nullptr, 10);
    writer.Put("a");
    EXPECT_EQ(writer.Length(), 0);
}

TEST(CursorListEdges, ACursorPastTheLastStaysPastWhatIsAppended)
{
    void* room[2];
    CursorList list;
    list.elements = room;
    list.capacity = 2;
    list.MoveTo(5);
    int element = 0;
    list.Append(&element);
    EXPECT_EQ(list.Current(), nullptr);
    EXPECT_EQ(list.MoveTo(0), &element);
}

// ---- Decimals ----

struct DecimalRow {
    const char* name;
    const char* text;
    int32_t places;
    uint64_t low;
    uint32_t high;
    int32_t scale;
};
void PrintTo(const DecimalRow& row, std::ostream* out)
{
    *out << row.text;
}

class DecimalEdge : public RowTest<DecimalRow> {};

ROW_TEST(DecimalEdge, IsReadAs)
{
    const DecimalValue value = decimal::Read(FromAscii(GetParam().text).c_str(), GetParam().places);
    EXPECT_EQ(value.lo64, GetParam().low);
    EXPECT_EQ(value.hi32, GetParam().high);
    EXPECT_EQ(value.scale, GetParam().scale);
}

// clang-format off
const DecimalRow kDecimalRows[] = {
    {"TheLargest", "79228162514264337593543950335", 0, UINT64_MAX, UINT32_MAX, 0},
    {"OneMoreIsTheLargest", "79228162514264337593543950336", 0, UINT64_MAX, UINT32_MAX, 0},
    {"AVeryLongNumberIsTheLargest", "1000000000000000000000000000000000000000000000000000000000000000000000001", 0, UINT64_MAX, UINT32_MAX,
     0},
    {"ATieGoesToTheEvenDigitBelow", "0.00000000000000000000000000025", 0, 2, 0, 28},
    {"ATieGoesToTheEvenDigitAbove", "0.00000000000000000000000000035", 0, 4, 0, 28},
    {"AboveATieGoesUp", "0.000000000000000000000000000251", 0, 3, 0, 28},
    {"TooSmallIsZero", "1e-200", 0, 0, 0, 28},
    {"ZeroWithALargeExponentIsZero", "0e50", 0, 0, 0, 0},
    {"ManyFractionDigitsDecideTheRounding", "0.1000000000000000000000000000000000000000000000000000000000000000000001",
     2, 11515845246265065472u, 0x33B2E3C,
     28},
    {"TheScaleWantedIsGivenWhereItFits", "5", 2, 500, 0, 2},
    {"TheScaleWantedStopsWhereItDoesNot", "79228162514264337593543950335", 2, UINT64_MAX, UINT32_MAX, 0},
};
// clang-format on
TEST_ROWS(Rows, DecimalEdge, kDecimalRows);

TEST(DecimalEdges, DivisionByZeroIsZero)
{
    const DecimalValue value = services::Divide(services::DecimalOf(7), services::DecimalOf(0));
    EXPECT_EQ(services::Compare(value, services::DecimalOf(0)), 0);
}

TEST(DecimalEdges, ARecordWithAScaleThatNoDecimalHasIsZero)
{
    DecimalValue broken = services::DecimalOf(7);
    broken.scale = 29;
    EXPECT_EQ(services::Compare(broken, services::DecimalOf(0)), 0);
}

// ---- Number formats ----

struct GeneralRow {
    double value;
    const char* text;
};

TEST(GeneralFormat, AnExponentStandsWhereThePlainFormIsTooLong)
{
    const Settings settings = StandardSettings();
    services::NumberFormat general;
    ASSERT_TRUE(services::CompileFormat(general, FromAscii("[GENERAL]")));
    constexpr GeneralRow kRows[] = {
        {1e15,      "1E+15"            },
        {1.5e300,   "1.5E+300"         },
        {-2e-20,    "-2E-20"           },
        {1e-100,    "1E-100"           },
        {123456789, "123456789"        },
        {1e14,      "100000000000000"  },
        {1e-15,     "0.000000000000001"}
    };
    for (const GeneralRow& row : kRows)
        EXPECT_EQ(services::FormatDouble(general, row.value, settings), FromAscii(row.text));
}

// ---- Masks ----

TEST(CurrencyMaskEdges, MoreDigitsThanAMaskHoldsGiveNone)
{
    Settings settings = StandardSettings();
    settings.currencyDigits = -300;
    EXPECT_TRUE(BuildCurrencyMask(16, settings).empty());
}

TEST(PictureEdges, AMaskThatDoesNotFitIsRefused)
{
    EXPECT_EQ(PictureToMask(FromAscii("m/d/yy"), 9).status, PictureStatus::Ok);
    EXPECT_EQ(PictureToMask(FromAscii("m/d/yy"), 8).status, PictureStatus::DoesNotFit);
    EXPECT_EQ(PictureToMask(Text(), 0).status, PictureStatus::DoesNotFit);
}

TEST(KeywordEdges, ThoseOfPicturesAreKnownInAnyCase)
{
    EXPECT_TRUE(IsPictureKeyword(FromAscii("[Date] [TIME]").c_str()));
    EXPECT_FALSE(IsPictureKeyword(FromAscii("[currency(5)]").c_str()));
    EXPECT_FALSE(IsPictureKeyword(FromAscii("MM/DD/YY").c_str()));
}

TEST_F(Edges, AKeywordServesATypeThatIsNotKnown)
{
    EXPECT_EQ(Text(Make("[date]", 9).Record().mask), FromAscii("mm/dd/yy"));
}

// ---- Controls ----

TEST_F(Edges, WithoutAMaskNothingIsSetFormattedOrRead)
{
    MemoryControl& control = Make("MM/DD/YY", DT_DATE);
    DropMask(control.Record());
    const DateTimeValue noon = Noon();
    EXPECT_EQ(SetData(control.Record(), &noon), 0);
    EXPECT_EQ(FormatValue(control.Record(), &noon).text, Text());
    EXPECT_EQ(GetData(control.Record()), nullptr);
    EXPECT_EQ(UnformatData(control.Record(), FromAscii("07/04/95").c_str()), nullptr);
}

TEST_F(Edges, ALiteralIsNoPlaceForAValidator)
{
    const MemoryControl& control = Make("MM/DD/YY", DT_DATE);
    const Text text = control.Edit().Shown();
    EXPECT_FALSE(Validate({control.Record(), text, 2, '5'}).accepted);
    EXPECT_TRUE(Validate({control.Record(), text, 3, '1'}).accepted);
}

TEST_F(Edges, PositionsThatFollowDigitsAreNotToldByTheMaskAlone)
{
    EXPECT_FALSE(PositionOf(Make("#,#.00", DT_NUMBER).Record(), FromAscii(".00"), 0).exists);
}

TEST_F(Edges, AnUnknownTypeStepsNothing)
{
    MemoryControl& control = Make("XX", 9);
    control.Record().spinIncrement = 1;
    const Text before = control.Edit().Shown();
    control.Step(true);
    EXPECT_EQ(control.Edit().Shown(), before);
    EXPECT_EQ(control.Edit().Count(FieldEvent::Stepped), 1);
}

TEST_F(Edges, AnArrowStepsUpAndDown)
{
    MemoryControl& control = Make("MM/DD/YY", DT_DATE);
    const DateTimeValue noon = Noon();
    SetData(control.Record(), &noon);
    control.Record().spinIncrement = 1;
    control.Step(true);
    EXPECT_EQ(control.Edit().Shown(), FromAscii("08/04/95"));
    control.Step(false);
    control.Step(false);
    EXPECT_EQ(control.Edit().Shown(), FromAscii("06/04/95"));
}

TEST(CanonicalEdges, AnUnknownKindIsNone)
{
    DateTimeValue value = Noon();
    EXPECT_FALSE(ParseDateTime(value, FromAscii("1995-07-04").c_str(), 4, StandardSettings()));
    EXPECT_EQ(value.hour, 12);
}

}  // namespace
}  // namespace zttest
