// Values, records and room for results that end directly before an inaccessible page, at every alignment; texts without a
// terminator where one need not be reached.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "engine/values/date_time.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"
#include "tests/texts/doors.h"
#include "tests/texts/guarded.h"
#include "tests/texts/texts.h"

namespace zttest {
namespace {

namespace services = services_under_test;

constexpr size_t kAlignments = 8;

const FieldRow& FieldOf(int32_t type)
{
    for (const FieldRow& field : Fields())
        if (field.type == type && field.mask)
            return field;
    return Fields().front();
}

// ---- values

template <typename T>
void ExpectItIsShownWhereverItStands(int32_t type, const T& value)
{
    const FieldRow& field = FieldOf(type);
    Subject subject(ConfigOf(field));
    for (size_t behind = 0; behind < kAlignments; ++behind) {
        const Guarded guarded(&value, sizeof value, Access::ReadOnly, behind);
        subject.SetData(nullptr);
        subject.SetData(guarded.As<const void>());
        EXPECT_EQ(subject.Text(), field.shown) << behind;
        EXPECT_EQ(subject.Format(guarded.As<const void>()), field.shown) << behind;
    }
}

TEST(Value, ANumberMayStandAnywhere)
{
    ExpectItIsShownWhereverItStands(DT_NUMBER, 1234.5);
}

TEST(Value, ADecimalMayStandAnywhere)
{
    ExpectItIsShownWhereverItStands(DT_DECIMAL, DecimalOf("1234.5"));
}

TEST(Value, ADateMayStandAnywhere)
{
    ExpectItIsShownWhereverItStands(DT_DATE, ValueOf("1995-07-04"));
}

TEST(Value, ATimeMayStandAnywhere)
{
    ExpectItIsShownWhereverItStands(DT_TIME, ValueOf("14:07:09:000250"));
}

TEST(Value, ADateTimeMayStandAnywhere)
{
    ExpectItIsShownWhereverItStands(DT_DATETIME, ValueOf("1995-07-04 14:07:09"));
}

template <typename T>
void ExpectTheirOrderIsTold(int32_t type, const T& smaller, const T& larger)
{
    Subject subject(ConfigOf(FieldOf(type)));
    for (size_t behind = 0; behind < kAlignments; ++behind) {
        const Guarded first(&larger, sizeof larger, Access::ReadOnly, behind);
        const Guarded second(&smaller, sizeof smaller, Access::ReadOnly, behind);
        EXPECT_TRUE(subject.IsOutOfOrder(first.As<const void>(), second.As<const void>())) << behind;
        EXPECT_FALSE(subject.IsOutOfOrder(second.As<const void>(), first.As<const void>())) << behind;
    }
}

TEST(Value, TheEndsOfARangeMayStandAnywhere)
{
    ExpectTheirOrderIsTold(DT_NUMBER, 1.0, 2.0);
    ExpectTheirOrderIsTold(DT_DECIMAL, 1.0, 2.0);  // doubles, as callers pass them
    ExpectTheirOrderIsTold(DT_DATE, ValueOf("1995-07-04"), ValueOf("1995-07-05"));
    ExpectTheirOrderIsTold(DT_TIME, ValueOf("14:07"), ValueOf("14:08"));
    ExpectTheirOrderIsTold(DT_DATETIME, ValueOf("1995-07-04 14:07"), ValueOf("1995-07-04 14:08"));
}

TEST(Value, DecimalsAreAddedAndComparedWhereverTheyStand)
{
    const DecimalValue one = DecimalOf("1.25");
    const DecimalValue two = DecimalOf("2.50");
    for (size_t behind = 0; behind < kAlignments; ++behind) {
        const Guarded first(&one, sizeof one, Access::ReadOnly, behind);
        const Guarded second(&two, sizeof two, Access::ReadOnly, behind);
        const Guarded room(&one, sizeof one, Access::ReadWrite, behind);
        EXPECT_LT(services::Compare(first.As<const DecimalValue>(), second.As<const DecimalValue>()), 0);
        services::Add(room.As<DecimalValue>(), first.As<const DecimalValue>(), first.As<const DecimalValue>());
        EXPECT_EQ(services::Compare(room.As<const DecimalValue>(), second.As<const DecimalValue>()), 0);
        services::DecimalOf(room.As<DecimalValue>(), "1.25", 2);
        EXPECT_EQ(services::Compare(room.As<const DecimalValue>(), first.As<const DecimalValue>()), 0);
    }
}

// ---- room for results

struct NumberRow {
    const char* name;
    const char* format;
    double value;
    const char* shown;  // null: only its end matters
};

class RenderedNumber : public RowTest<NumberRow> {};

// Into room of every size up to a few more than it takes, each ending before the page.
ROW_TEST(RenderedNumber, IsCutToTheRoom)
{
    constexpr int32_t kEnough = 1200;
    const std::string format = GetParam().format;
    const std::string blank(kEnough, '?');
    const Guarded compiled(blank.data(), format.size() + 1, Access::ReadWrite);
    ASSERT_TRUE(services::CompileFormat(compiled.As<void>(), format.c_str(), static_cast<int32_t>(format.size()) + 1));
    std::string whole(kEnough, '\0');
    const int32_t length = services::FormatDouble(whole.data(), kEnough, compiled.As<void>(), GetParam().value);
    whole.resize(static_cast<size_t>(length));
    if (GetParam().shown) {
        EXPECT_EQ(whole, GetParam().shown);
    }
    for (int32_t size = 0; size < length + 4; ++size) {
        const Guarded room(blank.data(), static_cast<size_t>(size), Access::ReadWrite);
        const int32_t written = services::FormatDouble(room.As<char>(), size, compiled.As<void>(), GetParam().value);
        EXPECT_EQ(written, std::max(std::min(length, size - 1), 0));
        if (size > 0) {
            EXPECT_EQ(room.As<char>(), whole.substr(0, static_cast<size_t>(written)));
        }
    }
}

// clang-format off
const NumberRow kNumbers[] = {
    {"Plain",    "#,##0.00",       1234.5,                              "1,234.50"  },
    {"Negative", "$#,##0.00",      -1234.5,                             "$-1,234.50"},
    {"Percent",  "0.0%",           0.125,                               "12.5%"     },
    {"General",  "[GENERAL]",      1.5e300,                             "1.5E+300"  },
    {"Literals", "\\#00\\-00",     1234,                                "#12-34"    },
    {"Largest",  "#,##0.00",       -std::numeric_limits<double>::max(), nullptr     },
    {"NoNumber", "0",              std::numeric_limits<double>::quiet_NaN(), "0"    },
};
// clang-format on
TEST_ROWS(Numbers, RenderedNumber, kNumbers);

TEST(Room, ADecimalIsCutToIt)
{
    const DecimalValue value = DecimalOf("-1234.5");
    const char format[] = "#,##0.00";
    const std::string whole = "-1,234.50";
    const Guarded decimal(&value, sizeof value, Access::ReadOnly, 3);
    for (size_t size = 0; size < whole.size() + 4; ++size) {
        const std::string blank(size, '?');
        const Guarded room(blank.data(), size, Access::ReadWrite);
        const int32_t written = services::FormatDecimal(room.As<char>(), static_cast<int32_t>(size), format,
                                                        decimal.As<const DecimalValue>());
        ASSERT_EQ(static_cast<size_t>(written), std::min(whole.size(), size > 0 ? size - 1 : 0));
        if (size > 0) {
            EXPECT_EQ(room.As<char>(), whole.substr(0, size - 1));
        }
    }
}

TEST(Room, AFormatThatDoesNotFitIsRefused)
{
    const GuardedText format("#,##0.00");
    const std::string blank(16, '?');
    for (size_t size = 1; size < blank.size(); ++size) {
        const Guarded room(blank.data(), size, Access::ReadWrite);
        EXPECT_EQ(services::CompileFormat(room.As<void>(), format.get(), static_cast<int32_t>(size)), size > 8) << size;
    }
}

TEST(Room, ADateIsReadIntoItWhereverItStands)
{
    const DateTimeValue expected = ValueOf("1995-07-04 14:07:09");
    const GuardedText text("1995-07-04 14:07:09");
    Subject subject(ConfigOf(FieldOf(DT_DATETIME)));
    for (size_t behind = 0; behind < kAlignments; ++behind) {
        const Guarded read(&zte::kEmptyDateTime, sizeof expected, Access::ReadWrite, behind);
        EXPECT_TRUE(services::ParseDateTime(read.As<DateTimeValue>(), text.get(), DATETIME_KIND_BOTH));
        EXPECT_EQ(std::memcmp(read.As<void>(), &expected, sizeof expected), 0) << behind;
        const Guarded end(&zte::kEmptyDateTime, sizeof expected, Access::ReadWrite, behind);
        EXPECT_TRUE(subject.ReadRangeEnd(end.As<DateTimeValue>(), text.get()));
        EXPECT_EQ(std::memcmp(end.As<void>(), &expected, sizeof expected), 0) << behind;
    }
}

// ---- texts without a terminator

class MaskWithoutATerminator : public RowTest<FieldRow> {};

// A mask has at most 255 characters, so the 256th tells that it is none.
ROW_TEST(MaskWithoutATerminator, IsReadNoFurtherThanAMaskGoes)
{
    for (const char character : {'#', 'X', '0', 'Y', '-', '\xE4'}) {
        const UnterminatedText mask(std::string(256, character));
        Config config = ConfigOf(GetParam());
        config.mask = mask.get();
        Subject subject(config);
        ExpectItWorks(subject, GetParam());
        EXPECT_EQ(subject.SetMask(mask.get(), GetParam().type), 0);
        ExpectItWorks(subject, GetParam());
    }
}

TEST_ROWS(Fields, MaskWithoutATerminator, Fields());

// ---- texts of the services

// What a text is told to be, whichever service reads it; the services keep nothing that a bad text could spoil.
void ReadByAllServices(const std::string& text)
{
    const GuardedText guarded(text);
    const DateTimeValue untouched = ValueOf("2001-02-03 04:05:06");
    for (const int32_t kind : {DATETIME_KIND_BOTH, DATETIME_KIND_DATE, DATETIME_KIND_TIME, 0, 4}) {
        const Guarded room(&untouched, sizeof untouched, Access::ReadWrite, text.size() % kAlignments);
        if (!services::ParseDateTime(room.As<DateTimeValue>(), guarded.get(), kind)) {
            EXPECT_EQ(std::memcmp(room.As<void>(), &untouched, sizeof untouched), 0) << "a refused text left a value";
        }
    }
    if (services::IsNumber(guarded.get())) {
        EXPECT_NE(text.find_first_of("0123456789"), std::string::npos);
    }
    const DecimalValue zero = {};
    const Guarded decimal(&zero, sizeof zero, Access::ReadWrite, text.size() % kAlignments);
    services::DecimalOf(decimal.As<DecimalValue>(), guarded.get(), static_cast<int32_t>(text.size() % 40) - 4);
    DecimalValue read;
    std::memcpy(&read, decimal.As<void>(), sizeof read);
    EXPECT_LE(read.scale, 28);
    if (text.find_first_of("123456789") == std::string::npos) {
        EXPECT_EQ(services::Compare(&read, &zero), 0);
    }

    const std::string blank(256, '?');
    const Guarded compiled(blank.data(), blank.size(), Access::ReadWrite);
    const bool valid = services::CompileFormat(compiled.As<void>(), guarded.get(), 256);
    EXPECT_TRUE(!valid || text.size() < 256);
    if (valid) {
        EXPECT_EQ(compiled.As<char>(), text);
        char shown[1024];
        EXPECT_LT(services::FormatDouble(shown, sizeof shown, compiled.As<void>(), 1234567.891), 1024);
    }
    EXPECT_TRUE(services::CopyOf(guarded.get()) == text);
}

void ReadEachByAllServices(const std::vector<std::string>& texts)
{
    for (const std::string& text : texts) {
        ReadByAllServices(text);
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << Described(text);
            return;
        }
    }
}

TEST(TextOfAService, MayHoldEveryCharacter)
{
    for (const char* good : {"1995-07-04 14:07:09:000250", "02:07 PM", "-1234.5e6", "$#,##0.00%"})
        ReadEachByAllServices(TextsOfEveryByte(good));
}

TEST(TextOfAService, MayHaveAnyLength)
{
    const Sample sample(7);
    const std::vector<LongText> texts = LongTexts();
    for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
        if (texts[i].length < kMegabyte || sample.Has(i, 0))
            ReadEachByAllServices({texts[i].Make()});
}

TEST(TextOfAService, MayBeAnyMix)
{
    ReadEachByAllServices(RandomTexts(1789, 500));
}

}  // namespace
}  // namespace zttest
