// Dates, times, strings and code tables edited by keys and mouse in modern controls: what is shown, where the caret stands, what is
// refused and why, and the state.
#include <gtest/gtest.h>

#include <cstring>

#include "engine/editing.h"
#include "engine/memory_control.h"
#include "tests/support/marked_text.h"
#include "tests/support/modern_rows.h"
#include "tests/support/rows.h"

namespace zttest::typing {
namespace {

using namespace zte;

// ---- a control that is played on

constexpr const char* kReasonNames[] = {
    "",         "wrong kind",     "out of bounds", "full",        "read-only", "does not fit",
    "in doubt", "does not exist", "no such entry", "end of range"};

DateTimeValue Noon4thOfJune1995()
{
    return {0, 95, 5, 4, 12, 0, 0, 0};
}

// Hears the reasons of what is refused, and the states, in their order.
class Listener final : public FieldListener {
public:
    void Hear(const MemoryField& field) { field_ = &field; }
    void Forget() { reasons_ = states_ = {}; }
    const std::string& Reasons() const { return reasons_; }
    const std::string& States() const { return states_; }

private:
    void OnFieldEvent(FieldEvent event) override
    {
        if (!field_)
            return;
        if (event == FieldEvent::Rejected)
            reasons_ += (reasons_.empty() ? "" : ", ") + std::string(kReasonNames[field_->LastRejected().reason]);
        if (event == FieldEvent::State)
            states_ += (states_.empty() ? "" : " ") + std::to_string(field_->LastState().was) + ">" +
                       std::to_string(field_->LastState().is);
    }

    const MemoryField* field_ = nullptr;
    std::string reasons_;
    std::string states_;
};

class Played {
public:
    explicit Played(const TypingSetup& setup)
        : mask_(FromAscii(setup.mask)),
          codes_(FromAscii(setup.codes ? setup.codes : "")),
          range_(FromAscii(setup.range ? setup.range : ""))
    {
        Assign(settings_.amString, FromAscii(setup.am));
        Assign(settings_.pmString, FromAscii(setup.pm));
        ControlSetup made;
        made.mask = mask_.c_str();
        made.dataType = setup.type;
        made.options = ZTEO_MODERN | setup.options | (setup.codes ? ZTEO_SPIN | ZTEO_CODE_DISPLAY : 0u);
        made.codeTable = setup.codes ? codes_.c_str() : nullptr;
        made.spinRange = setup.range ? range_.c_str() : nullptr;
        made.spinIncrement = 1;
        control_ = std::make_unique<MemoryControl>(made, settings_, Noon4thOfJune1995, &listener_);
        listener_.Hear(control_->Edit());
    }

    MemoryControl& Control() { return *control_; }
    const Listener& Heard() const { return listener_; }

    // Puts a text with its marks there; null: leaves it empty.
    void Show(const char* marked)
    {
        if (marked) {
            const Marked text = Unmark(marked);
            control_->SetText(FromAscii(text.text.c_str()).c_str());
            control_->Select(text.start, text.end);
        }
        listener_.Forget();
        control_->Edit().ForgetCounts();
        control_->Edit().SetModifiedFlag(false);
    }

    std::string Shown() const
    {
        const Selection selection = control_->Edit().ReadSelection();
        const Text& text = control_->Edit().Shown();
        return Mark(std::string(text.begin(), text.end()), selection.start, selection.end);
    }

    // Characters as they are, keys and acts by name: "12{Left}{Undo}".
    void Play(const std::string& keys)
    {
        for (size_t i = 0; i < keys.size(); ++i) {
            if (keys[i] != '{') {
                control_->Type(static_cast<unsigned char>(keys[i]));
                continue;
            }
            const size_t end = keys.find('}', i);
            Act(keys.substr(i + 1, end - i - 1));
            i = end;
        }
    }

private:
    struct ActRow {
        const char* name;
        void (*act)(MemoryControl&, int32_t position);
    };
    static const ActRow kActs[];

    static void Press(MemoryControl& control, Key key, bool shift, bool ctrl)
    {
        control.Edit().HoldShift(shift);
        control.Edit().HoldControl(ctrl);
        control.KeyDown(key);
        control.KeyUp(key);
        control.Edit().HoldShift(false);
        control.Edit().HoldControl(false);
    }

    void Act(const std::string& name)
    {
        const size_t digits = name.find_first_of("0123456789");
        const std::string act = name.substr(0, digits);
        const int32_t position = digits == std::string::npos ? 0 : std::stoi(name.substr(digits));
        for (const ActRow* row = kActs; row->name; ++row)
            if (act == row->name) {
                row->act(*control_, position);
                return;
            }
        FAIL() << "no act is called " << name;
    }

    Settings settings_ = StandardSettings();
    Text mask_;
    Text codes_;
    Text range_;
    Listener listener_;
    std::unique_ptr<MemoryControl> control_;
};

// clang-format off
const Played::ActRow Played::kActs[] = {
    {"Bs", [](MemoryControl& control, int32_t) { control.Type(8); }},
    {"CtrlBs", [](MemoryControl& control, int32_t) { control.Type(127); }},
    {"Del", [](MemoryControl& control, int32_t) { Press(control, KEY_DELETE, false, false); }},
    {"CtrlDel", [](MemoryControl& control, int32_t) { Press(control, KEY_DELETE, false, true); }},
    {"ShiftDel", [](MemoryControl& control, int32_t) { Press(control, KEY_DELETE, true, false); }},
    {"ShiftIns", [](MemoryControl& control, int32_t) { Press(control, KEY_INSERT, true, false); }},
    {"Left", [](MemoryControl& control, int32_t) { Press(control, KEY_LEFT, false, false); }},
    {"Right", [](MemoryControl& control, int32_t) { Press(control, KEY_RIGHT, false, false); }},
    {"CtrlLeft", [](MemoryControl& control, int32_t) { Press(control, KEY_LEFT, false, true); }},
    {"CtrlRight", [](MemoryControl& control, int32_t) { Press(control, KEY_RIGHT, false, true); }},
    {"Home", [](MemoryControl& control, int32_t) { Press(control, KEY_HOME, false, false); }},
    {"End", [](MemoryControl& control, int32_t) { Press(control, KEY_END, false, false); }},
    {"Up", [](MemoryControl& control, int32_t) { Press(control, KEY_UP, false, false); }},
    {"Down", [](MemoryControl& control, int32_t) { Press(control, KEY_DOWN, false, false); }},
    {"PageUp", [](MemoryControl& control, int32_t) { Press(control, KEY_PAGE_UP, false, false); }},
    {"PageDown", [](MemoryControl& control, int32_t) { Press(control, KEY_PAGE_DOWN, false, false); }},
    {"WheelUp", [](MemoryControl& control, int32_t) { control.Wheel(1); }},
    {"WheelDown", [](MemoryControl& control, int32_t) { control.Wheel(-1); }},
    {"All", [](MemoryControl& control, int32_t) { control.Type(1); }},
    {"CtrlV", [](MemoryControl& control, int32_t) { control.Type(22); }},
    {"CtrlX", [](MemoryControl& control, int32_t) { control.Type(24); }},
    {"CtrlY", [](MemoryControl& control, int32_t) { control.Type(25); }},
    {"CtrlZ", [](MemoryControl& control, int32_t) { control.Type(26); }},
    {"Escape", [](MemoryControl& control, int32_t) { control.Type(27); }},
    {"Cut", [](MemoryControl& control, int32_t) { control.Cut(); }},
    {"Clear", [](MemoryControl& control, int32_t) { control.Clear(); }},
    {"Paste", [](MemoryControl& control, int32_t) { control.Paste(); }},
    {"Undo", [](MemoryControl& control, int32_t) { control.Undo(); }},
    {"Redo", [](MemoryControl& control, int32_t) { control.Redo(); }},
    {"Blur", [](MemoryControl& control, int32_t) { control.LoseFocus(); }},
    {"Pause", [](MemoryControl& control, int32_t) { control.Edit().LetTimePass(1000); }},
    {"ReadOnly", [](MemoryControl& control, int32_t) { control.Edit().SetReadOnly(true); }},
    {"Click", [](MemoryControl& control, int32_t position) { control.Click(position); }},
    {"Double", [](MemoryControl& control, int32_t position) { control.DoubleClick(position); }},
    {nullptr, nullptr},
};
// clang-format on

// ---- what keys leave

class ModernTyping : public RowTest<TypingRow> {};

ROW_TEST(ModernTyping, Leaves)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    EXPECT_EQ(played.Shown(), GetParam().after);
    EXPECT_EQ(played.Heard().Reasons(), GetParam().reasons);
    const MemoryField& field = played.Control().Edit();
    EXPECT_EQ(field.Count(FieldEvent::Beep), field.Count(FieldEvent::Rejected));
    EXPECT_EQ(field.Count(FieldEvent::Update), field.Count(FieldEvent::Change));
}

// Backwards and forwards again: nothing is lost.
ROW_TEST(ModernTyping, IsUndoneAndRedone)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    const Text before = played.Control().Edit().Shown();
    played.Play(GetParam().keys);
    const Text after = played.Control().Edit().Shown();
    played.Control().Edit().SetReadOnly(false);
    for (int i = 0; i < 100; ++i)
        played.Control().Undo();
    EXPECT_EQ(played.Control().Edit().Shown(), before);
    if (std::strstr(GetParam().keys, "Undo") || std::strstr(GetParam().keys, "CtrlZ"))
        return;
    for (int i = 0; i < 100; ++i)
        played.Control().Redo();
    EXPECT_EQ(played.Control().Edit().Shown(), after);
}

TEST_ROWS(Dates, ModernTyping, ModernDates());
TEST_ROWS(Times, ModernTyping, ModernTimes());
TEST_ROWS(Deletions, ModernTyping, ModernDeletions());
TEST_ROWS(Undo, ModernTyping, ModernUndo());
TEST_ROWS(Carets, ModernTyping, ModernCarets());
TEST_ROWS(Spins, ModernTyping, ModernSpins());
TEST_ROWS(Strings, ModernTyping, ModernStrings());
TEST_ROWS(Choices, ModernTyping, ModernChoices());

// ---- states

struct StateRow {
    const TypingSetup& setup;
    const char* before;
    const char* keys;
    int32_t state;
    const char* told;       // of the keys: "0>1 1>4"
    const char* canonical;  // null: none
};
void PrintTo(const StateRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << (row.before ? row.before : "") << "\": " << row.keys;
}

class ModernState : public RowTest<StateRow> {};

ROW_TEST(ModernState, IsToldAndAsked)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    const EditInstance& edit = played.Control().Record();
    EXPECT_EQ(StateOf(edit), GetParam().state);
    EXPECT_EQ(played.Heard().States(), GetParam().told);
    Text text;
    const bool has = CanonicalText(edit, text);
    EXPECT_EQ(has, GetParam().canonical != nullptr);
    if (has && GetParam().canonical) {
        EXPECT_EQ(text, FromAscii(GetParam().canonical));
    }
}

// What is given back, handed in again, changes nothing.
ROW_TEST(ModernState, OfTheCanonicalTextIsTheSame)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    Text text;
    if (!CanonicalText(played.Control().Record(), text))
        return;
    const Text before = played.Control().Edit().Shown();
    const bool isTaken = TrySetDataString(played.Control().Record(), text.c_str()) == 0;
    EXPECT_EQ(isTaken, GetParam().state != ZTS_INVALID);
    EXPECT_EQ(played.Control().Edit().Shown(), before);
    EXPECT_EQ(StateOf(played.Control().Record()), GetParam().state);
}

// clang-format off
const StateRow kStates[] = {
    {kUs, nullptr, "",                   ZTS_EMPTY, "", ""},
    {kUs, nullptr, "1",                  ZTS_INCOMPLETE, "0>1", nullptr},
    {kUs, nullptr, "1{Bs}",              ZTS_EMPTY, "0>1 1>0", ""},
    {kUs, nullptr, "07042024",           ZTS_COMPLETE, "0>1 1>4", "2024-07-04"},
    {kUs, nullptr, "0704202",            ZTS_INCOMPLETE, "0>1", nullptr},
    {kUs, nullptr, "02302023",           ZTS_INVALID, "0>1 1>2", nullptr},
    {kUs, nullptr, "02302023{Undo}",     ZTS_EMPTY, "0>1 1>2 2>0", ""},
    {kUs, nullptr, "0230202x3",          ZTS_INVALID, "0>1 1>2", nullptr},
    {kUs, nullptr, "7/4/24",             ZTS_INCOMPLETE, "0>1", nullptr},
    {kUs, nullptr, "7/4/24{Blur}",       ZTS_COMPLETE, "0>1 1>4", "2024-07-04"},
    {kUs, "12/|  /2024", "",             ZTS_INCOMPLETE, "", nullptr},
    {kUs, "junk|", "",                   ZTS_INVALID, "", nullptr},
    {kUs, "13/0|1/2024", "",             ZTS_INVALID, "", nullptr},
    {kUs, "00/0|0/0000", "",             ZTS_INVALID, "", nullptr},
    {kUs, "[12/31/1999]", "{Del}",       ZTS_EMPTY, "4>0", ""},
    {kUs, "12/31/1999|", "{Bs}",         ZTS_INCOMPLETE, "4>1", nullptr},
    {kUs, "[12/31/1999]", "x",           ZTS_COMPLETE, "", "1999-12-31"},
    {kShort, nullptr, "070450",          ZTS_COMPLETE, "0>1 1>4", "1950-07-04"},
    {kShort, nullptr, "070400",          ZTS_COMPLETE, "0>1 1>4", "2000-07-04"},
    {kDayOfYear, nullptr, "3662023",     ZTS_INVALID, "0>1 1>2", nullptr},
    {kDayOfYear, nullptr, "3662024",     ZTS_COMPLETE, "0>1 1>4", "2024-12-31"},
    {kNamed, nullptr, "4jul2024",        ZTS_COMPLETE, "0>1 1>4", "2024-07-04"},
    {kNamed, nullptr, "4j",              ZTS_INCOMPLETE, "0>1", nullptr},
    {kTime, nullptr, "0000",             ZTS_COMPLETE, "0>1 1>4", "00:00:00"},
    {kTime, nullptr, "00",               ZTS_INCOMPLETE, "0>1", nullptr},
    {kTime, "99:9|9", "",                ZTS_INVALID, "", nullptr},
    {kHalves, nullptr, "1330",           ZTS_COMPLETE, "0>1 1>4", "13:30:00"},
    {kHalves, nullptr, "0030",           ZTS_COMPLETE, "0>1 1>4", "00:30:00"},
    {kHalves, nullptr, "p",              ZTS_INCOMPLETE, "0>1", nullptr},
    {kHalves, "13:30 P|M", "",           ZTS_INVALID, "", nullptr},
    {kFraction, nullptr, "1330455{Blur}", ZTS_COMPLETE, "0>1 1>4", "13:30:45:500000"},
    {kBoth, nullptr, "070420241330",     ZTS_COMPLETE, "0>1 1>4", "2024-07-04 13:30:00"},
    {kBoth, nullptr, "07042024",         ZTS_INCOMPLETE, "0>1", nullptr},
    {kRanged, nullptr, "01252024",       ZTS_OUT_OF_RANGE, "0>1 1>3", "2024-01-25"},
    {kRanged, nullptr, "01252024{Up}",   ZTS_COMPLETE, "0>1 1>3 3>4", "2024-01-20"},
    {kPhone, nullptr, "555",             ZTS_INCOMPLETE, "0>1", "555"},
    {kPhone, nullptr, "5551234567",      ZTS_COMPLETE, "0>1 1>4", "5551234567"},
    {kPhone, "junk|", "",                ZTS_INVALID, "", "unk"},
    {kPlate, nullptr, "ab",              ZTS_INCOMPLETE, "0>1", "AB"},
    {kPlate, nullptr, "a 123",           ZTS_COMPLETE, "0>1 1>4", "A 123"},
    {kWord, nullptr, "ab",               ZTS_COMPLETE, "0>4", "ab"},
    {kColours, nullptr, "g",             ZTS_COMPLETE, "0>4", "g"},
    {kColours, "[Red]", "{Del}",         ZTS_EMPTY, "4>0", ""},
    {kColours, "[Blue]", "",             ZTS_INVALID, "", nullptr},
    {kColours, "[Blue]", "g",            ZTS_COMPLETE, "2>4", "g"},
};
TEST_ROWS(States, ModernState, kStates);
// clang-format on

}  // namespace
}  // namespace zttest::typing
