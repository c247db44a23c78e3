// Values into a control and back at the edges: what a value leaves in the record, code tables, dates read field by field, numbers
// written as texts.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <ostream>
#include <vector>

#include "engine/format/code_table.h"
#include "engine/format/data.h"
#include "engine/format/date_text.h"
#include "engine/format/display.h"
#include "engine/format/field_text.h"
#include "engine/format/mask_setting.h"
#include "engine/format/number_value.h"
#include "engine/format/read_back.h"
#include "engine/heap_block.h"
#include "engine/mask/mask_table.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/spin/spin_settings.h"
#include "engine/values/date_time.h"

#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

// microsecond, year, month, day, hour, minute, second, spare
constexpr DateTimeValue kNoon = {0, 95, 6, 4, 12, 0, 0, 0};
constexpr int32_t kUnknownType = 9;

class FormatEdges : public testing::Test {
protected:
    EditInstance& Make(const char* mask, int32_t dataType, const char* codes = nullptr, uint32_t options = 0)
    {
        mask_ = FromAscii(mask);
        codes_ = FromAscii(codes ? codes : "");
        ControlSetup setup;
        setup.mask = mask_.c_str();
        setup.dataType = dataType;
        setup.options = options;
        setup.codeTable = codes ? codes_.c_str() : nullptr;
        control_ = std::make_unique<MemoryControl>(setup, settings_, nullptr);
        return control_->Record();
    }
    // With a mask that a program could not set.
    EditInstance& MakeUnchecked(const char* mask, int32_t dataType)
    {
        EditInstance& record = Make(mask, dataType);
        if (Text(record.mask) != mask_)
            InstallMask(record, mask_, MaskOrigin::Given, false);
        SetFlag(record, PERCENT, record.table->number.shape.percent);
        record.yearDigits = mask_.find(FromAscii("YYYY")) == Text::npos ? 2 : 4;
        return record;
    }
    EditInstance& MakeCoded(const char* mask, int32_t dataType, const char* codes)
    {
        return Make(mask, dataType, codes, ZTEO_SPIN | ZTEO_CODE_DISPLAY);
    }
    const Text& Shown() const { return control_->Edit().Shown(); }
    int32_t Changes() const { return control_->Edit().Count(FieldEvent::Change); }

    Settings settings_ = StandardSettings();
    Text mask_;
    Text codes_;
    std::unique_ptr<MemoryControl> control_;
};

void ExpectSame(const DateTimeValue& value, const DateTimeValue& expected)
{
    EXPECT_EQ(value.year, expected.year);
    EXPECT_EQ(value.month, expected.month);
    EXPECT_EQ(value.day, expected.day);
    EXPECT_EQ(value.hour, expected.hour);
    EXPECT_EQ(value.minute, expected.minute);
    EXPECT_EQ(value.second, expected.second);
    EXPECT_EQ(value.microsecond, expected.microsecond);
}

// ---- Values set ----

TEST_F(FormatEdges, AValueIsSetUnderAMaskAndThroughACodeTable)
{
    EXPECT_EQ(SetData(Make("(##)", DT_STRING), FromAscii("12").c_str()), 1);
    EXPECT_EQ(SetData(MakeCoded("", DT_STRING, "Red\tR/Blue\tB"), FromAscii("B").c_str()), 1);
    EXPECT_EQ(Shown(), FromAscii("Blue"));
}

TEST_F(FormatEdges, AValueSetEndsWhatTypingHasPassed)
{
    EditInstance& record = Make("(##)", DT_STRING);
    record.carriedTo = 3;
    record.spelled = 1;
    SetData(record, nullptr);
    EXPECT_EQ(record.carriedTo, 0);
    EXPECT_EQ(record.spelled, 0);
}

TEST_F(FormatEdges, AMaskSetEndsWhatTypingHasPassed)
{
    EditInstance& record = MakeCoded("(##)", DT_STRING, "Red\tR");
    record.carriedTo = 3;
    record.spelled = 1;
    SetMask(record, FromAscii("##").c_str(), DT_STRING);
    EXPECT_EQ(record.carriedTo, 0);
    EXPECT_EQ(record.spelled, 0);
}

TEST_F(FormatEdges, WithoutAMaskNoTextIsSet)
{
    for (const int32_t type : {DT_STRING, DT_NUMBER, DT_DATE, DT_DECIMAL, DT_TIME, DT_DATETIME}) {
        EditInstance& record = Make(type == DT_STRING ? "##" : "", type);
        DropMask(record);
        EXPECT_FALSE(HasMask(record));
        EXPECT_EQ(SetDataString(record, FromAscii("1").c_str()), 0) << type;
    }
}

TEST_F(FormatEdges, TheLayoutIsKeptBeforeAndAfterATextShown)
{
    EditInstance& record = Make("##", DT_STRING);
    control_->Edit().ForgetCounts();
    SetData(record, FromAscii("12").c_str());
    EXPECT_EQ(control_->Edit().Count(FieldEvent::Layout), 2);
}

// Answers a changed text by a caret of its own.
class CaretAtTwo final : public FieldListener {
public:
    explicit CaretAtTwo(MemoryField& field) : field_(field) {}
    void OnFieldEvent(FieldEvent event) override
    {
        if (event == FieldEvent::Change)
            field_.SetSelection(2, 2);
    }

private:
    MemoryField& field_;
};

TEST_F(FormatEdges, ACaretIsPlacedOnlyWhereTheFirstFieldIsNotAtTheStart)
{
    EditInstance& record = Make("##-##", DT_STRING);
    CaretAtTwo host(control_->Edit());
    control_->Edit().SetListener(&host);
    SetData(record, FromAscii("1234").c_str());
    EXPECT_EQ(control_->Edit().Caret(), 2);
    SetMask(record, FromAscii("(##)").c_str(), DT_STRING);
    EXPECT_EQ(control_->Edit().Caret(), 1);
}

TEST_F(FormatEdges, DatesAreEditedPositionByPosition)
{
    EXPECT_TRUE(Has(Make("MM/DD/YY", DT_DATE), CHARWISE));
    EXPECT_FALSE(Has(Make("#,##0", DT_NUMBER), CHARWISE));
}

// ---- Masks set ----

TEST_F(FormatEdges, ANewPlainEditTellsNoChange)
{
    const EditInstance& record = Make("", DT_STRING);
    EXPECT_EQ(Changes(), 0);
    EXPECT_EQ(record.formatFlags, static_cast<uint32_t>(FORMAT_DONE));
}

TEST_F(FormatEdges, APlainEditThatIsNotNewTellsItsEmptyText)
{
    EditInstance& record = Make("", DT_STRING);
    SetMask(record, FromAscii("").c_str(), DT_STRING);
    EXPECT_EQ(Changes(), 1);
}

TEST_F(FormatEdges, ANewPlainEditLosesTheTextThatItWasGivenBefore)
{
    EditInstance& record = Make("", DT_STRING);
    control_->Edit().SetText(FromAscii("abc").c_str());
    record.maskJustSet = 0;
    SetMask(record, FromAscii("").c_str(), DT_STRING);
    EXPECT_EQ(Shown(), Text());
}

TEST_F(FormatEdges, ANewControlOfACodeTableHasShownNothingYet)
{
    EXPECT_EQ(MakeCoded("", DT_STRING, "Red\tR").formatFlags, 0u);
    EXPECT_EQ(Changes(), 0);
}

TEST_F(FormatEdges, AMaskWithoutAYearLeavesTheDigitsOfTheLastOne)
{
    EditInstance& record = Make("MM/DD/YYYY", DT_DATE);
    SetMask(record, FromAscii("HH:MM").c_str(), DT_TIME);
    EXPECT_EQ(record.yearDigits, 4);
}

// What is no keyword within the characters of a mask, and one more, is none.
TEST_F(FormatEdges, AKeywordIsNoLongerThanAMask)
{
    EditInstance& record = Make("0", DT_NUMBER);
    const Text longest = FromAscii("[currency") + Text(244, ' ') + FromAscii("(9)");
    EXPECT_EQ(SetMask(record, longest.c_str(), DT_NUMBER), 1);
    EXPECT_EQ(Text(record.mask), FromAscii("$#,###,###.00"));
    const Text longer = FromAscii("[currency") + Text(245, ' ') + FromAscii("(9)");
    EXPECT_EQ(SetMask(record, longer.c_str(), DT_NUMBER), 0);
    EXPECT_EQ(Text(record.mask), FromAscii("#,#.00"));
}

TEST_F(FormatEdges, AnUnknownTypeIsNoPlainEdit)
{
    Make("", kUnknownType);
    EXPECT_EQ(Changes(), 1) << "it tells its empty text, new as it is";
}

// ---- Displays ----

struct FlagsCase {
    const char* name;
    const char* mask;
    int32_t type;
    uint32_t flags;
};
void PrintTo(const FlagsCase& row, std::ostream* out)
{
    *out << row.mask;
}

class DisplayFlags : public FormatEdges, public OfRow<FlagsCase> {};

ROW_TEST(DisplayFlags, TellOfLiterals)
{
    EXPECT_EQ(FormatValue(Make(GetParam().mask, GetParam().type), nullptr).formatFlags, GetParam().flags);
}

constexpr uint32_t kDone = FORMAT_DONE;
constexpr uint32_t kLiterals = FORMAT_DONE | FORMAT_HAS_LITERALS;
constexpr uint32_t kLiteralAfter = FORMAT_DONE | FORMAT_HAS_LITERALS | FORMAT_LITERAL_AFTER;
const FlagsCase kFlagsRows[] = {
    {"NoLiteral",             "##",       DT_STRING, kDone        },
    {"ALiteralInFront",       "(##",      DT_STRING, kLiterals    },
    {"ALiteralBehind",        "##)",      DT_STRING, kLiteralAfter},
    {"AnEscapedOneBehind",    "##~)",     DT_STRING, kLiterals    },
    {"ADate",                 "MM/DD/YY", DT_DATE,   kLiteralAfter},
    {"ADateWithoutLiterals",  "MMDDYY",   DT_DATE,   kLiterals    },
    {"ANumber",               "#,##0",    DT_NUMBER, kDone        },
    {"ANumberBehindLiterals", "No #,##0", DT_NUMBER, kLiterals    },
};
TEST_ROWS(Rows, DisplayFlags, kFlagsRows);

TEST_F(FormatEdges, AStringWithoutAMaskBeginsAtTheStart)
{
    const Display display = FormatValue(Make("", DT_STRING), FromAscii("ab").c_str());
    EXPECT_EQ(display.text, FromAscii("ab"));
    EXPECT_EQ(display.firstFieldPos, 0);
}

TEST_F(FormatEdges, ATildeAtTheEndShowsNothing)
{
    EXPECT_EQ(FormatValue(Make("##~", DT_STRING), FromAscii("12").c_str()).text, FromAscii("12"));
    EXPECT_EQ(FormatValue(MakeUnchecked("##~", DT_STRING), FromAscii("12").c_str()).text, FromAscii("12"));
}

TEST_F(FormatEdges, AnUnknownTypeWithoutAValueShowsBlanks)
{
    EXPECT_EQ(FormatValue(Make("XX", kUnknownType), nullptr).text, FromAscii("  "));
}

TEST_F(FormatEdges, ADateWithoutAMaskShowsNothing)
{
    EditInstance& record = Make("MM/DD/YY", DT_DATE);
    InstallMask(record, Text(), MaskOrigin::Given, false);
    DateTimeValue value = kNoon;
    value.microsecond = 0x41424344;  // as a text it would be letters
    EXPECT_EQ(FormatValue(record, &value).text, Text());
}

TEST_F(FormatEdges, ANumberWithoutAPointInItsTextBeginsBeforeItsFirstDigitAllTheSame)
{
    EditInstance& record = Make("$0", DT_NUMBER);
    const double five = 5;
    EXPECT_EQ(FormatValue(record, &five).firstFieldPos, 1);
    record.decimalPlaces = 2;
    EXPECT_EQ(FormatValue(record, &five).firstFieldPos, 0);
}

struct PartCase {
    const char* name;
    const char* mask;
    int32_t type;
    DateTimeValue value;
    const char* shown;
};
void PrintTo(const PartCase& row, std::ostream* out)
{
    *out << row.mask;
}

class ValueParts : public FormatEdges, public OfRow<PartCase> {};

ROW_TEST(ValueParts, AreShown)
{
    EXPECT_EQ(FormatValue(MakeUnchecked(GetParam().mask, GetParam().type), &GetParam().value).text,
              FromAscii(GetParam().shown));
}

// clang-format off
const PartCase kPartRows[] = {
    {"NoDateHasNoDay",                    "MM/DD/YY",            DT_DATE,     {0, -32767, 3, 5, -1, 0, 0, 0},      "00/00/00"},
    {"NoDateHasNoYearOfFourDigits",       "YYYY-MM-DD",          DT_DATE,     {0, -32767, 3, 5, -1, 0, 0, 0},      "0000-00-00"},
    {"NoDateHasABlankMonthName",          "DD MMM YY",           DT_DATE,     {0, -32767, 3, 5, -1, 0, 0, 0},      "00     00"},
    {"AShortYearIsFollowedByABlankMonth", "YYMMM",               DT_DATE,     {0, -32767, 3, 5, -1, 0, 0, 0},      "00   "},
    {"NoTimeHasNoMinutes",                "HH:MM:SS.FFF",        DT_TIME,     {250000, -32767, 0, 0, -1, 7, 9, 0}, "00:00:00.000"},
    {"TheFractionIsCutToItsDigits",       "HH:MM:SS.FFF",        DT_TIME,     {250999, -32767, 0, 0, 14, 7, 9, 0}, "14:07:09.250"},
    {"MidnightIsTwelve",                  "HH:MM AM/PM",         DT_TIME,     {0, -32767, 0, 0, 0, 7, 0, 0},       "12:07 AM"},
    {"ElevenIsEleven",                    "HH:MM AM/PM",         DT_TIME,     {0, -32767, 0, 0, 11, 7, 0, 0},      "11:07 AM"},
    {"NoonIsTwelve",                      "HH:MM AM/PM",         DT_TIME,     {0, -32767, 0, 0, 12, 7, 0, 0},      "12:07 PM"},
    {"ThirteenIsOne",                     "HH:MM AM/PM",         DT_TIME,     {0, -32767, 0, 0, 13, 7, 0, 0},      "01:07 PM"},
    {"TheLastHourIsEleven",               "HH:MM AM/PM",         DT_TIME,     {0, -32767, 0, 0, 23, 7, 0, 0},      "11:07 PM"},
};
// clang-format on
TEST_ROWS(Rows, ValueParts, kPartRows);

TEST_F(FormatEdges, AMonthNameShorterThanItsFieldIsFilledWithBlanks)
{
    Assign(settings_.monthNames[6], FromAscii("JL"));
    EXPECT_EQ(FormatValue(MakeUnchecked("DDMMM YY", DT_DATE), &kNoon).text, FromAscii("04JL  95"));
}

TEST_F(FormatEdges, AMonthNameLongerThanItsFieldIsCut)
{
    Assign(settings_.monthNames[6], FromAscii("JUILLET"));
    EXPECT_EQ(FormatValue(MakeUnchecked("DD-MMM", DT_DATE), &kNoon).text, FromAscii("04-JUI"));
}

// ---- Code tables ----

TEST_F(FormatEdges, ValuesAreShownAsTheyAreWhereTheCodeTableIsMissing)
{
    EditInstance& record = Make("", DT_STRING, nullptr, ZTEO_SPIN | ZTEO_CODE_DISPLAY);
    EXPECT_EQ(FormatValue(record, FromAscii("ab").c_str()).text, FromAscii("ab"));
    EXPECT_EQ(ReadShownText(record, FromAscii("ab")), FromAscii("ab"));
}

TEST_F(FormatEdges, ACodeTableThatIsOnlySteppedThroughTranslatesNothing)
{
    EditInstance& record = Make("", DT_STRING, "Red\tR", ZTEO_SPIN);
    EXPECT_EQ(FormatValue(record, FromAscii("R").c_str()).text, FromAscii("R"));
    EXPECT_EQ(ReadShownText(record, FromAscii("Red")), FromAscii("Red"));
}

TEST_F(FormatEdges, WhereNoEntryIsShownTheTablesCursorStandsOnNone)
{
    EditInstance& record = MakeCoded("", DT_STRING, "Red\tR");
    record.flags |= CODE_POSITIONED;
    FormatValue(record, FromAscii("X").c_str());
    EXPECT_FALSE(Has(record, CODE_POSITIONED));
    FormatValue(record, FromAscii("R").c_str());
    EXPECT_TRUE(Has(record, CODE_POSITIONED));
}

TEST_F(FormatEdges, WithoutACodeTableNoEntryIsStoodOn)
{
    EditInstance& record = Make("", DT_STRING, nullptr, ZTEO_SPIN | ZTEO_CODE_DISPLAY);
    record.flags |= CODE_POSITIONED;
    EXPECT_EQ(SetData(record, FromAscii("ab").c_str()), 1);
    EXPECT_FALSE(Has(record, CODE_POSITIONED));
}

TEST_F(FormatEdges, ADateIsNotLookedUpAsAText)
{
    EditInstance& record = MakeCoded("MM/DD/YY", DT_DATE, "Empty\t");
    EXPECT_EQ(FormatValue(record, &kNoon).text, FromAscii("07/04/95"));
}

TEST_F(FormatEdges, ADateThatIsSetIsNotLookedUpAsAText)
{
    DateTimeValue value = kNoon;
    value.microsecond = 'R';
    SetData(MakeCoded("MM/DD/YY", DT_DATE, "Red\tR"), &value);
    EXPECT_EQ(Shown(), FromAscii("07/04/95"));
}

TEST_F(FormatEdges, ADateIsReadByTheEntryShown)
{
    EditInstance& record = MakeCoded("MM/DD/YYYY", DT_DATE, "Independence\t1776-07-04");
    ExpectSame(ReadShownDateTime(record, FromAscii("Independence")), {0, 1776 - 1900, 6, 4, -1, 0, 0, 0});
}

TEST_F(FormatEdges, AnEmptyFieldShowsNoDateEvenWhereAnEntryIsEmpty)
{
    EditInstance& record = MakeCoded("MM/DD/YYYY", DT_DATE, "\t1776-07-04");
    ExpectSame(ReadShownDateTime(record, Text()), kEmptyDateTime);
}

TEST_F(FormatEdges, ATextTooShortForADateIsTheEmptyOne)
{
    ExpectSame(ReadShownDateTime(Make("MM/DD/YYYY", DT_DATE), FromAscii("07/")), kEmptyDateTime);
}

TEST_F(FormatEdges, ALongCodeIsReadWhole)
{
    const EditInstance& record = MakeCoded("", DT_STRING, "Long\tA value that is longer than a record of a date");
    auto block = Own(record, static_cast<Char*>(UnformatData(record, FromAscii("Long").c_str())));
    EXPECT_EQ(Text(block.get()), FromAscii("A value that is longer than a record of a date"));
}

// A caller may take what is read for a date.
TEST_F(FormatEdges, AShortCodeIsFilledToARecord)
{
    const EditInstance& record = MakeCoded("MM/DD/YY", DT_DATE, "Short\tAB");
    constexpr size_t kRecord = sizeof(DateTimeValue);
    for (int i = 0; i < 8; ++i) {  // what the heap hands out again is not empty
        void* used = services::Allocate(record.heap, kRecord, 0);
        std::memset(used, 0x7F, kRecord);
        services::Free(record.heap, used);
    }
    auto block = Own(record, static_cast<char*>(UnformatData(record, FromAscii("Short").c_str())));
    EXPECT_EQ(std::string(block.get(), kRecord), "AB" + std::string(kRecord - 2, '\0'));
}

TEST_F(FormatEdges, ACodeTableGrowsWithItsEntries)
{
    constexpr int kEntries = 120;
    std::string codes;
    for (int i = 0; i < kEntries; ++i)
        codes += "Entry" + std::to_string(i) + "\t" + std::to_string(i) + "/";
    const EditInstance& record = MakeCoded("", DT_STRING, codes.c_str());
    EXPECT_EQ(record.codeTable->count, kEntries);
    for (int i = 0; i < kEntries; ++i) {
        const Char* display = DisplayTextForValue(record, FromAscii(std::to_string(i).c_str()).c_str());
        ASSERT_NE(display, nullptr) << i;
        EXPECT_EQ(Text(display), FromAscii(("Entry" + std::to_string(i)).c_str()));
    }
}

TEST_F(FormatEdges, ACodeTableHoldsNoMoreEntriesThanItsRecordCanCount)
{
    constexpr int kMost = 32767 - 51;  // and room to grow once more
    std::string codes;
    for (int i = 0; i < kMost + 100; ++i)
        codes += "x/";
    EXPECT_EQ(MakeCoded("", DT_STRING, codes.c_str()).codeTable->count, kMost);
}

TEST_F(FormatEdges, ACodeTableWithoutEntriesIsEmpty)
{
    EXPECT_EQ(MakeCoded("", DT_STRING, "").codeTable->count, 0);
}

// ---- Dates read field by field ----

struct ReadCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* text;
    int32_t escapeWidth;
    bool read;
    DateTimeValue value;
};
void PrintTo(const ReadCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class FieldsRead : public FormatEdges, public OfRow<ReadCase> {};

ROW_TEST(FieldsRead, AreTheValue)
{
    const EditInstance& record = MakeUnchecked(GetParam().mask, GetParam().type);
    DateTimeValue value = kNoon;
    EXPECT_EQ(ReadFields(record, FromAscii(GetParam().text), value, GetParam().escapeWidth), GetParam().read);
    ExpectSame(value, GetParam().value);
}

// clang-format off
const ReadCase kReadRows[] = {
    {"AnUnreadableHour",                 "HH:MM",          DT_TIME, "x4:07",         1, false, {0, -32767, 0, 0, -1, 0, 0, 0}},
    {"AnUnreadableHourOfTwelve",         "HH:MM AM/PM",    DT_TIME, "x4:07 PM",      1, false, {0, -32767, 0, 0, -1, 0, 0, 0}},
    {"AnUnreadableYear",                 "MM/DD/YY",       DT_DATE, "07/04/x5",      1, false, {0, -32767, 6, 4, -1, 0, 0, 0}},
    {"AnUnreadableFraction",             "HH:MM:SS.FFF",   DT_TIME, "14:07:09.x50",  1, false, {0, -32767, 0, 0, 14, 7, 9, 0}},
    {"January",                          "DD MMM YYYY",    DT_DATE, "04 JAN 1995",   1, true,  {0, 95, 0, 4, -1, 0, 0, 0}},
    {"OfTwoMonthsTheLast",               "MM MMM",         DT_DATE, "07 JAN",        1, true,  {0, -32767, 0, 0, -1, 0, 0, 0}},
    {"ADayOfTheYearDirectlyInFront",     "JJJYYYY",        DT_DATE, "1851996",       1, true,  {0, 96, 6, 3, -1, 0, 0, 0}},
    {"TheLastDayOfAYear",                "JJJ/YYYY",       DT_DATE, "365/1995",      1, true,  {0, 95, 11, 31, -1, 0, 0, 0}},
    {"ADayThatTheYearDoesNotHave",       "JJJ/YYYY",       DT_DATE, "366/1995",      1, true,  {0, -32767, 0, 0, -1, 0, 0, 0}},
    {"DayZeroOfTheYear",                 "JJJ/YYYY",       DT_DATE, "000/1995",      1, true,  {0, -32767, 0, 0, -1, 0, 0, 0}},
    {"ADayOfTheYearWithoutAYear",        "JJJ",            DT_DATE, "185",           1, true,  {0, -32767, 0, 0, -1, 0, 0, 0}},
    {"AYearTwice",                       "YYYY/YYYY",      DT_DATE, "1995/1996",     1, true,  {0, 96, 0, 0, -1, 0, 0, 0}},
    {"ADayOfTheYearBeforeTheYearTwice",  "JJJ/YYYY/YYYY",  DT_DATE, "366/1996/1996", 1, true,  {0, 96, 11, 31, -1, 0, 0, 0}},
    {"AnEscapedLiteralIsOnePosition",    "YYYY~MMM",       DT_DATE, "1995M07",       1, true,  {0, 95, 6, 0, -1, 0, 0, 0}},
    {"AnEscapedLiteralIsTwoWhereWanted", "YYYY~MDD",       DT_DATE, "1995M104",      2, true,  {0, 95, 0, 4, -1, 0, 0, 0}},
};
// clang-format on
TEST_ROWS(Rows, FieldsRead, kReadRows);

TEST_F(FormatEdges, AnEscapedLiteralIsOnePositionUnlessToldOtherwise)
{
    const EditInstance& record = MakeUnchecked("YYYY~XMM", DT_DATE);
    DateTimeValue value = kNoon;
    EXPECT_TRUE(ReadFields(record, FromAscii("1995X07"), value));
    EXPECT_EQ(value.month, 6);
    EXPECT_TRUE(ReadDisplayText(record, FromAscii("1995X08"), value));
    EXPECT_EQ(value.month, 7);
}

// Behind a mask without escapes its first position goes on.
TEST_F(FormatEdges, ATextIsReadAsFarAsAMaskReachesAndOneCharacterMore)
{
    const EditInstance& record = MakeUnchecked("FHH", DT_TIME);
    DateTimeValue value = kNoon;
    Text text(300, '0');
    text.replace(253, 4, FromAscii("3456"));
    EXPECT_TRUE(ReadFields(record, text, value));
    EXPECT_EQ(value.microsecond, 500000u);
    text.resize(255);
    EXPECT_TRUE(ReadFields(record, text, value));
    EXPECT_EQ(value.microsecond, 400000u);
}

struct PossibleCase {
    const char* name;
    int32_t type;
    DateTimeValue given;
    bool possible;
    DateTimeValue checked;
};
void PrintTo(const PossibleCase& row, std::ostream* out)
{
    *out << row.name;
}

class PossibleValues : public RowTest<PossibleCase> {};

ROW_TEST(PossibleValues, KeepThePartsOfTheirType)
{
    DateTimeValue value = GetParam().given;
    EXPECT_EQ(CheckFields(GetParam().type, value), GetParam().possible);
    ExpectSame(value, GetParam().checked);
}

// clang-format off
const PossibleCase kPossibleRows[] = {
    {"ADateLosesItsTime",        DT_DATE,     {5, 95, 6, 4, 14, 7, 9, 0},            true,  {0, 95, 6, 4, -1, 0, 0, 0}},
    {"ATimeLosesItsDate",        DT_TIME,     {5, 95, 6, 4, 14, 7, 9, 0},            true,  {5, -32767, 0, 0, 14, 7, 9, 0}},
    {"BothKeepAll",              DT_DATETIME, {5, 95, 6, 4, 14, 7, 9, 0},            true,  {5, 95, 6, 4, 14, 7, 9, 0}},
    {"ATimeOfNoHourIsDropped",   DT_DATETIME, {5, 95, 6, 4, -1, 7, 9, 0},            true,  {0, 95, 6, 4, -1, 0, 0, 0}},
    {"AnImpossibleTimeOfADate",  DT_DATE,     {5, 95, 6, 4, 25, 61, 9, 0},           true,  {0, 95, 6, 4, -1, 0, 0, 0}},
    {"TheLastYear",              DT_DATE,     {0, 8099, 11, 31, -1, 0, 0, 0},        true,  {0, 8099, 11, 31, -1, 0, 0, 0}},
    {"YearTenThousand",          DT_DATE,     {0, 8100, 0, 1, -1, 0, 0, 0},          false, kEmptyDateTime},
    {"AMonthBeforeJanuary",      DT_DATE,     {0, 95, -1, 1, -1, 0, 0, 0},           false, kEmptyDateTime},
    {"ADayBeforeTheFirst",       DT_DATE,     {0, 95, 0, -1, -1, 0, 0, 0},           false, kEmptyDateTime},
    {"FebruaryOfALeapYear",      DT_DATE,     {0, 4, 1, 29, -1, 0, 0, 0},            true,  {0, 4, 1, 29, -1, 0, 0, 0}},
    {"FebruaryOf1900",           DT_DATE,     {0, 0, 1, 29, -1, 0, 0, 0},            false, kEmptyDateTime},
    {"AMinuteBeforeTheHour",     DT_TIME,     {0, -32767, 0, 0, 14, -1, 9, 0},       false, kEmptyDateTime},
    {"ASecondBeforeTheMinute",   DT_TIME,     {0, -32767, 0, 0, 14, 7, -1, 0},       false, kEmptyDateTime},
    {"SecondSixty",              DT_TIME,     {0, -32767, 0, 0, 14, 7, 60, 0},       false, kEmptyDateTime},
    {"TheLastMicrosecond",       DT_TIME,     {999999, -32767, 0, 0, 23, 59, 59, 0}, true,  {999999, -32767, 0, 0, 23, 59, 59, 0}},
    {"AMillionMicroseconds",     DT_TIME,     {1000000, -32767, 0, 0, 14, 7, 9, 0},  false, kEmptyDateTime},
};
// clang-format on
TEST_ROWS(Rows, PossibleValues, kPossibleRows);

TEST_F(FormatEdges, OnlyAnUntouchedDateReadsAsNone)
{
    const EditInstance& record = MakeUnchecked("DD/YY/MM", DT_DATE);
    control_->Edit().SetText(FromAscii("00/00/05").c_str());
    auto touched = Own(record, static_cast<DateTimeValue*>(GetData(record)));
    ASSERT_TRUE(touched);
    ExpectSame(*touched, {0, 100, 4, 1, -1, 0, 0, 0});
    control_->Edit().SetText(FromAscii("00/00/00").c_str());
    EXPECT_EQ(GetData(record), nullptr);
}

TEST_F(FormatEdges, AMaskWithoutAMonthHasNoneWhateverTheNamesAre)
{
    settings_.monthNames[0][0] = Char{};
    EXPECT_EQ(MonthFromText(MakeUnchecked("YYYY", DT_DATE), FromAscii("1995")), 0);
}

// ---- Numbers as texts ----

struct NumberTextCase {
    const char* name;
    const char* mask;
    const char* given;
    const char* plain;
};
void PrintTo(const NumberTextCase& row, std::ostream* out)
{
    *out << '"' << row.given << "\" under " << row.mask;
}

class NumberGiven : public FormatEdges, public OfRow<NumberTextCase> {};

ROW_TEST(NumberGiven, IsReadAsPlainText)
{
    EXPECT_EQ(PlainNumberOf(MakeUnchecked(GetParam().mask, DT_NUMBER), FromAscii(GetParam().given)),
              FromAscii(GetParam().plain));
}

const NumberTextCase kNumberTextRows[] = {
    {"Groups",                                   "#,##0.00",  "1,234.50", "1234.50" },
    {"AGroupTooShort",                           "#,##0.00",  "1,23",     "1,23"    },
    {"APlusIsLeftOut",                           "#,##0",     "+1,234",   "1234"    },
    {"AMinusStays",                              "#,##0",     "-1,234",   "-1234"   },
    {"NoFractionBehindThePoint",                 "#,##0.00",  "1,234.",   "1234."   },
    {"ExponentWithASign",                        "[GENERAL]", "1,234E+5", "1234E+5" },
    {"ExponentWithoutASign",                     "[GENERAL]", "1,234e15", "1234e15" },
    {"AnExponentWithoutDigits",                  "[GENERAL]", "1,234E",   "1234E"   },
    {"NoExponentUnderOtherMasks",                "#,##0",     "1,234E+5", "1,234E+5"},
    {"APercentage",                              "#,##0%",    "1,250%",   "12.5"    },
    {"ZeroPercentHasNoSign",                     "#0%",       "-0%",      "0"       },
    {"APercentageWithoutItsBlank",               "#0 %",      "12%",      "0.12"    },
    {"APercentageWithoutItsBlankBehindALiteral", "~T #0 %",   "T 12%",    "0.12"    },
    {"APercentageUnderAnotherMask",              "#0",        "12%",      "12%"     },
};
TEST_ROWS(Rows, NumberGiven, kNumberTextRows);

TEST_F(FormatEdges, APointAloneIsNoNumber)
{
    settings_.decimalChar = ',';
    settings_.thousandChar = '.';
    EXPECT_EQ(PlainNumberOf(Make("0", DT_NUMBER), FromAscii(",")), FromAscii(","));
}

TEST_F(FormatEdges, WhereOneCharacterIsBothItIsThePoint)
{
    settings_.decimalChar = settings_.thousandChar = ',';
    EXPECT_EQ(PlainNumberOf(Make("0", DT_NUMBER), FromAscii("1,500")), FromAscii("1.500"));
}

TEST_F(FormatEdges, ASlashMayBeThePoint)
{
    settings_.decimalChar = '/';
    EXPECT_EQ(PlainNumberOf(Make("0", DT_NUMBER), FromAscii("1/5")), FromAscii("1.5"));
}

TEST_F(FormatEdges, WithoutACurrencySymbolNothingIsTakenOut)
{
    settings_.currencySymbol[0] = Char{};
    EXPECT_EQ(PlainNumberOf(Make("#,##0", DT_NUMBER), FromAscii("1,234")), FromAscii("1234"));
}

TEST_F(FormatEdges, LiteralsBehindANumberAreNotOfIt)
{
    const EditInstance& record = MakeUnchecked("$##0~5", DT_NUMBER);
    EXPECT_EQ(NumberShown(record, FromAscii("$125")), FromAscii("12"));
    EXPECT_EQ(NumberIn(record, FromAscii("$125")), FromAscii("12"));
}

TEST_F(FormatEdges, ALoneSignReadsAsTheMasksBlankReads)
{
    const EditInstance& plain = Make("#,##0", DT_NUMBER);
    EXPECT_EQ(NumberShown(plain, FromAscii("-")), FromAscii("0"));
    const EditInstance& dollars = Make("$#,##0", DT_NUMBER);
    EXPECT_EQ(NumberShown(dollars, FromAscii("$-")), NumberShown(dollars, FromAscii("$")));
}

TEST_F(FormatEdges, ANumberAndNothingElse)
{
    const EditInstance& general = Make("[GENERAL]", DT_NUMBER);
    EXPECT_TRUE(IsNumberOf(general, FromAscii("1E5")));
    EXPECT_TRUE(IsNumberOf(general, FromAscii("-1.5E-20")));
    EXPECT_FALSE(IsNumberOf(general, FromAscii("x")));
    EXPECT_FALSE(IsNumberOf(general, FromAscii("E5")));
    EXPECT_FALSE(IsNumberOf(general, FromAscii("1E5x")));
    EXPECT_FALSE(IsNumberOf(general, FromAscii("5%")));
    const EditInstance& number = Make("#,##0", DT_NUMBER);
    EXPECT_TRUE(IsNumberOf(number, FromAscii("1234")));
    EXPECT_FALSE(IsNumberOf(number, FromAscii("1,234")));
}

TEST_F(FormatEdges, WithoutAMaskANumberIsReadAsItStands)
{
    EditInstance& record = Make("#,##0", DT_NUMBER);
    DropMask(record);
    EXPECT_EQ(PlainNumberOf(record, FromAscii("1,234")), FromAscii("1,234"));
}

TEST_F(FormatEdges, WithoutAMaskThereIsNoExponent)
{
    EditInstance& record = Make("[GENERAL]", DT_NUMBER);
    DropMask(record);
    EXPECT_FALSE(IsNumberOf(record, FromAscii("1E5")));
}

// ---- Services of a program without the library ----

TEST(OwnFormats, ThatDoNotFitAreRefused)
{
    services::NumberFormat format;
    EXPECT_TRUE(services::CompileFormat(format, Text(SHARED_FORMAT_SIZE - 1, '0')));
    EXPECT_FALSE(services::CompileFormat(format, Text(SHARED_FORMAT_SIZE, '0')));
}

TEST_F(FormatEdges, ABlockOwnedIsFreedAtTheEndOfItsScope)
{
    const EditInstance& record = Make("##", DT_STRING);
    const uint32_t before = control_->BlockCount();
    {
        const auto block = Own(record, Duplicate(record, FromAscii("ab")));
        EXPECT_TRUE(block);
        EXPECT_EQ(control_->BlockCount(), before + 1);
    }
    EXPECT_EQ(control_->BlockCount(), before);
    EXPECT_FALSE(Own<Char>(record, nullptr));
}

}  // namespace
}  // namespace zttest
