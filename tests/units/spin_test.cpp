// The spin of a control: its settings, and what its steps show.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "engine/mask/mask_table.h"
#include "engine/memory_control.h"
#include "engine/spin/range.h"
#include "engine/spin/spin_settings.h"
#include "engine/spin/step.h"
#include "engine/values/date_time.h"
#include "tests/support/values.h"

namespace zttest {
namespace {

using namespace zte;

DateTimeValue Noon()
{
    return ValueOf("1995-07-04 12:00");
}

class SpinOf : public testing::Test, public FieldListener {
public:
    void OnFieldEvent(FieldEvent event) override { events_.push_back(event); }

protected:
    void Make(const char* mask, int32_t type, const char* range = "", uint32_t options = 0, const char* codes = "")
    {
        mask_ = FromAscii(mask);
        range_ = FromAscii(range);
        codes_ = FromAscii(codes);
        ControlSetup setup;
        setup.mask = mask_.c_str();
        setup.dataType = type;
        setup.options = ZTEO_SPIN | options;
        setup.spinRange = *range ? range_.c_str() : nullptr;
        setup.spinIncrement = 1;
        setup.codeTable = *codes ? codes_.c_str() : nullptr;
        setup.style.readOnly = readOnly_;
        control_ = std::make_unique<MemoryControl>(setup, settings_, Noon, this);
    }

    EditInstance& Record() { return control_->Record(); }

    // What a step shows, of the field under the caret.
    Text Stepped(const char* text, bool up, int32_t caret = 0)
    {
        control_->SetText(FromAscii(text).c_str());
        control_->Select(caret, caret);
        events_.clear();
        control_->Step(up);
        return control_->Edit().Shown();
    }
    Text Up(const char* text, int32_t caret = 0) { return Stepped(text, true, caret); }
    Text Down(const char* text, int32_t caret = 0) { return Stepped(text, false, caret); }

    Settings settings_ = StandardSettings();
    bool readOnly_ = false;
    Text mask_;
    Text range_;
    Text codes_;
    std::vector<FieldEvent> events_;
    std::unique_ptr<MemoryControl> control_;
};

// ---- Settings ----

struct OptionRow {
    uint32_t option;
    uint32_t flag;
    uint32_t style;
};

constexpr OptionRow kOptionRows[] = {
    {0,                 0,             0                  },
    {ZTEO_AUTOSKIP,     AUTOSKIP,      0                  },
    {ZTEO_SPIN,         HAS_SPIN,      0                  },
    {ZTEO_CODE_PICK,    CODE_PICKLIST, SPINSTYLE_PICKLIST },
    {ZTEO_CODE_DISPLAY, CODE_SPIN,     SPINSTYLE_CODETABLE},
};

TEST_F(SpinOf, OptionsSetTheirFlagAndNoOther)
{
    Make("XX", DT_STRING);
    for (const OptionRow& row : kOptionRows) {
        Record().flags = AUTOSKIP | HAS_SPIN | CODE_PICKLIST | CODE_SPIN;
        ApplyOptions(Record(), row.option);
        EXPECT_EQ(Record().flags, row.flag) << row.option;
    }
}

TEST_F(SpinOf, OptionsAskForTheirStyleAndNoOther)
{
    for (const OptionRow& row : kOptionRows)
        EXPECT_EQ(SpinStyleOf(row.option), row.style) << row.option;
    EXPECT_EQ(SpinStyleOf(ZTEO_CODE_PICK | ZTEO_CODE_DISPLAY), SPINSTYLE_PICKLIST | SPINSTYLE_CODETABLE);
}

TEST_F(SpinOf, StylesSetTheirFlagAndOtherBitsNone)
{
    Make("XX", DT_STRING);
    const auto flagsOf = [&](uint32_t style) {
        SetSpin(Record(), 1, nullptr, nullptr, style);
        return Record().flags & (CODE_PICKLIST | CODE_SPIN);
    };
    EXPECT_EQ(flagsOf(SPINSTYLE_PICKLIST), CODE_PICKLIST);
    EXPECT_EQ(flagsOf(SPINSTYLE_CODETABLE), CODE_SPIN);
    EXPECT_EQ(flagsOf(~(SPINSTYLE_PICKLIST | SPINSTYLE_CODETABLE)), 0u);
}

// ---- Ranges ----

TEST_F(SpinOf, ARangeEndIsReadWithoutAMaskToo)
{
    Make("MM/DD/YY", DT_DATE);
    DropMask(Record());
    DateTimeValue value = Noon();
    EXPECT_EQ(ReadRangeEnd(Record(), value, FromAscii("1999-01-02")), 0);
    EXPECT_EQ(Canonical(value), "1999-01-02");
    EXPECT_EQ(ReadRangeEnd(Record(), value, FromAscii("01/02/99")), 1);
    EXPECT_EQ(Canonical(value), "");
}

TEST_F(SpinOf, ARangeEndPassesTheNeighbourOfAnEscapedLiteral)
{
    struct Row {
        const char* mask;
        const char* text;
    };
    for (const Row& row : {
             Row{"HH~x~yMM//",    "08xy15//"  },
             Row{"HH~x~y~zMM///", "08xyz?15//"}
    }) {
        Make(row.mask, DT_TIME);
        ASSERT_EQ(Text(Record().mask), FromAscii(row.mask));
        DateTimeValue value = Noon();
        EXPECT_EQ(ReadRangeEnd(Record(), value, FromAscii(row.text)), 0) << row.text;
        EXPECT_EQ(Canonical(value), "08:15:00:000000") << row.text;
    }
}

TEST_F(SpinOf, AMaximumBelowNoughtOrOfOneCounts)
{
    Make("##0", DT_NUMBER, "-10~-5");
    EXPECT_EQ(Up("-6"), FromAscii("-5"));
    EXPECT_EQ(Up("-5"), FromAscii("-5"));
    Make("##0", DT_NUMBER, "0~1");
    EXPECT_EQ(Up("0"), FromAscii("1"));
    EXPECT_EQ(Up("1"), FromAscii("1"));
}

TEST_F(SpinOf, AnEmptyRangeHasNoEnds)
{
    Make("MM/DD/YYYY", DT_DATE);
    EXPECT_EQ(Up("07/04/1995"), FromAscii("08/04/1995"));
    SetSpin(Record(), 1, FromAscii("").c_str(), nullptr, 0);
    EXPECT_EQ(Up("07/04/1995"), FromAscii("08/04/1995"));
    EXPECT_EQ(Down("07/04/1995"), FromAscii("06/04/1995"));
}

TEST_F(SpinOf, ARangeThatBeginsBehindItsEndIsNone)
{
    Make("MM/DD/YYYY", DT_DATE, "1995-08-01~1995-06-01");
    EXPECT_EQ(Up("07/04/1995"), FromAscii("08/04/1995"));
    EXPECT_EQ(Down("07/04/1995"), FromAscii("06/04/1995"));
}

// ---- Dates and times ----

TEST_F(SpinOf, ADateWithoutATimeIsOfMidnight)
{
    Make("MM/DD/YYYY", DT_DATETIME, "1995-07-01 00:00~1995-07-04 00:30");
    EXPECT_EQ(Up("07/03/1995", 3), FromAscii("07/04/1995"));
    Make("MM/DD/YYYY", DT_DATETIME, "1995-07-03 00:30");
    EXPECT_EQ(Down("07/04/1995", 3), FromAscii("07/31/1995"));
}

TEST_F(SpinOf, AMonthWithoutAYearCountsFromTheStartOf1900)
{
    Make("MM HH", DT_DATETIME);
    EXPECT_EQ(Up("07 05"), FromAscii("02 05"));
}

TEST_F(SpinOf, WithoutADirectionOnlyTheYearMoves)
{
    Make("MM/DD/YYYY", DT_DATE);
    const auto stepAt = [&](int32_t caret) {
        control_->SetText(FromAscii("07/04/1995").c_str());
        control_->Select(caret, caret);
        SpinStep(Record());
        return control_->Edit().Shown();
    };
    EXPECT_EQ(stepAt(0), FromAscii("07/04/1995"));
    EXPECT_EQ(stepAt(3), FromAscii("07/04/1995"));
    EXPECT_EQ(stepAt(6), FromAscii("07/04/1996"));
}

// Behind an escape a run is measured one place further on, so that a single letter may pass for a field.
TEST_F(SpinOf, AMonthOrMinuteOfOneLetterIsNoFieldToStep)
{
    Make("YYYY~xM//", DT_DATE);
    ASSERT_EQ(Text(Record().mask), FromAscii("YYYY~xM//"));
    EXPECT_EQ(Up("1995x7//", 5), FromAscii("1995x7//"));
    Make("HH~xM//", DT_TIME);
    ASSERT_EQ(Text(Record().mask), FromAscii("HH~xM//"));
    EXPECT_EQ(Up("05x7//", 3), FromAscii("05x7//"));
}

TEST_F(SpinOf, TheSecondLetterOfAHalfStays)
{
    Make("HH AM/PM", DT_TIME);
    EXPECT_EQ(Up("05 AM", 3), FromAscii("05 PM"));
    EXPECT_EQ(Up("05 Am", 4), FromAscii("05 Am"));
}

TEST_F(SpinOf, AHalfThatIsNotShownStaysAway)
{
    Make("HH AM/PM", DT_TIME);
    EXPECT_EQ(Up("05 ", 3), FromAscii("05 "));
}

// A text of other settings may show a wider half than the display has.
TEST_F(SpinOf, AFieldBehindAWiderHalfIsNotCutAway)
{
    Make("HH AM/PM:MM", DT_TIME);
    EXPECT_EQ(Up("05 xxxx:30", 8), FromAscii("05 xxxx:30"));
}

// Hosts see the text of an end appear at once, laid out and drawn.
TEST_F(SpinOf, AnEndIsShownAsAWhole)
{
    Make("MM/DD/YYYY", DT_DATE, "1995-07-03~1995-07-04");
    EXPECT_EQ(Up("07/04/1995", 3), FromAscii("07/03/1995"));
    using E = FieldEvent;
    const std::vector<FieldEvent> expected = {E::RedrawOff, E::Layout,  E::RedrawOn, E::Update,
                                              E::Change,    E::Repaint, E::Stepped};
    EXPECT_EQ(events_, expected);
}

TEST_F(SpinOf, AFieldReadOnlyIsNotStepped)
{
    readOnly_ = true;
    Make("MM/DD/YYYY", DT_DATE);
    EXPECT_EQ(Up("07/04/1995"), FromAscii("07/04/1995"));
    EXPECT_EQ(control_->Edit().Count(FieldEvent::Stepped), 0);
}

// ---- Code tables ----

constexpr char kColourEntries[] = "Red\tR/Green\tG/Blue\tB";

TEST_F(SpinOf, ACodeTableGoesOnFromTheEntryShown)
{
    const auto fromText = [&](const char* mask, int32_t type, const char* codes, const char* text) {
        Make(mask, type, "", ZTEO_CODE_DISPLAY, codes);
        control_->SetText(FromAscii(text).c_str());
        SetFlag(Record(), CODE_POSITIONED, false);
        control_->Step(true);
        return control_->Edit().Shown();
    };
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, kColourEntries, "Green"), FromAscii("Blue"));
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, kColourEntries, "Green   "), FromAscii("Blue"));
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, kColourEntries, "G"), FromAscii("Blue"));
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, kColourEntries, "G       "), FromAscii("Blue"));
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, kColourEntries, "Green!!!"), FromAscii("Red"));
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, kColourEntries, "Yellow"), FromAscii("Red"));
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, kColourEntries, ""), FromAscii("Red"));
    EXPECT_EQ(fromText("XXXXXXXX", DT_STRING, "a\t1/ \t2/b\t3", " "), FromAscii("b"));
    EXPECT_EQ(fromText("XX-XX", DT_STRING, "a\t1234/b\t5678/c\t9", "56-78"), FromAscii("c"));
    EXPECT_EQ(fromText("XX-XX", DT_STRING, "a\t/b\t5678/c\t9", "  -  "), FromAscii("a"));
    EXPECT_EQ(fromText("#,#.00", DT_NUMBER, "a\t1.00/b\t1234/c\t9", "1,234"), FromAscii("a"));
}

TEST_F(SpinOf, TheTextOfAnEntryIsLaidOut)
{
    Make("XXXXXXXX", DT_STRING, "", ZTEO_CODE_DISPLAY, kColourEntries);
    EXPECT_EQ(Up(""), FromAscii("Red"));
    using E = FieldEvent;
    ASSERT_GE(events_.size(), 3u);
    EXPECT_EQ(events_[0], E::Layout);
    EXPECT_EQ(events_[1], E::Update);
}

}  // namespace
}  // namespace zttest
