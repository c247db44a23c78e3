// Dates, times, strings and code tables edited by keys and mouse in modern controls: what is shown, where the caret stands, what is
// refused and why, and the state.
#include <gtest/gtest.h>

#include <cstring>

#include "engine/editing.h"
#include "engine/memory_control.h"
#include "tests/support/marked_text.h"
#include "tests/support/rows.h"

namespace zttest::typing {
namespace {

using namespace zte;

// ---- a control that is played on

struct TypingSetup {
    const char* mask;
    int32_t type;
    uint32_t options = 0;
    const char* codes = nullptr;
    const char* range = nullptr;
    const char* am = "AM";
    const char* pm = "PM";
};

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

struct TypingRow {
    const TypingSetup& setup;
    const char* before;  // null: empty
    const char* keys;
    const char* after;
    const char* reasons = "";  // of all that was refused
};
void PrintTo(const TypingRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << (row.before ? row.before : "") << "\": " << row.keys;
}

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

constexpr TypingSetup kUs = {"MM/DD/YYYY", DT_DATE};
constexpr TypingSetup kShort = {"MM/DD/YY", DT_DATE};
constexpr TypingSetup kNamed = {"DD-MMM-YYYY", DT_DATE};
constexpr TypingSetup kDayOfYear = {"JJJ/YYYY", DT_DATE};
constexpr TypingSetup kFramed = {"(MM/DD/YY)", DT_DATE};
constexpr TypingSetup kTime = {"HH:MM", DT_TIME};
constexpr TypingSetup kHalves = {"HH:MM AM/PM", DT_TIME};
constexpr TypingSetup kDotted = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "a.m.", "p.m."};
constexpr TypingSetup kHalfFirst = {"AM/PM HH:MM", DT_TIME};
constexpr TypingSetup kFraction = {"HH:MM:SS.FFF", DT_TIME};
constexpr TypingSetup kBoth = {"MM/DD/YYYY HH:MM", DT_DATETIME};
constexpr TypingSetup kUsSpin = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN};
constexpr TypingSetup kShortSpin = {"MM/DD/YY", DT_DATE, ZTEO_SPIN};
constexpr TypingSetup kTimeSpin = {"HH:MM", DT_TIME, ZTEO_SPIN};
constexpr TypingSetup kHalvesSpin = {"HH:MM AM/PM", DT_TIME, ZTEO_SPIN};
constexpr TypingSetup kNamedSpin = {"DD-MMM-YYYY", DT_DATE, ZTEO_SPIN};
constexpr TypingSetup kRanged = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN, nullptr, "2024-01-10~2024-01-20"};

// clang-format off
const TypingRow kDateRows[] = {
    // first digits begin, pad, or wait
    {kUs, nullptr, "07042024",               "07/04/2024|"},
    {kUs, nullptr, "07/04/2024",             "07/04/2024|"},
    {kUs, nullptr, "7/4/2024",               "07/04/2024|"},
    {kUs, nullptr, "742024",                 "07/04/2024|"},
    {kUs, nullptr, "7-4.2024",               "07/04/2024|"},
    {kUs, nullptr, "7 4 2024",               "07/04/2024|"},
    {kUs, nullptr, "4",                      "04/|  /    "},
    {kUs, nullptr, "1",                      "1| /  /    "},
    {kUs, nullptr, "1/",                     "01/|  /    "},
    {kUs, nullptr, "1-",                     "01/|  /    "},
    {kUs, nullptr, "12//",                   "12/  /|    "},
    {kUs, nullptr, "12",                     "12/|  /    "},
    {kUs, nullptr, "13",                     "1| /  /    ", "out of bounds"},
    {kUs, nullptr, "00",                     "0| /  /    ", "out of bounds"},
    {kUs, nullptr, "0/",                     "0 /|  /    "},
    {kUs, nullptr, "0732",                   "07/3| /    ", "out of bounds"},
    {kUs, nullptr, "0700",                   "07/0| /    ", "out of bounds"},
    {kUs, nullptr, "x",                      "|  /  /    ", "wrong kind"},
    {kUs, nullptr, "07x04",                  "07/04/|    ", "wrong kind"},
    {kUs, nullptr, "070420241",              "07/04/2024|", "full"},
    {kUs, nullptr, "02302023",               "02/30/2023|"},
    {kUs, nullptr, "04312023",               "04/31/2023|"},
    {kUs, nullptr, "02292024",               "02/29/2024|"},
    {kShort, nullptr, "022924",              "02/29/24|"},
    {kShort, nullptr, "022923",              "02/29/23|"},
    {kFramed, nullptr, "(070424)",           "(07/04/24)|"},
    {kFramed, nullptr, "07/04/24",           "(07/04/24)|"},
    // what is left is completed
    {kUs, nullptr, "1{Blur}",                "0|1/  /    "},
    {kUs, nullptr, "1{Right}",               "01/|  /    "},
    {kUs, nullptr, "123{Home}",              "|12/03/    "},
    {kUs, nullptr, "123{Click0}",            "|12/03/    "},
    {kUs, nullptr, "1/2/9{Blur}",            "01/02/2|009"},
    {kUs, nullptr, "1/2/99{Blur}",           "01/02/19|99"},
    {kUs, nullptr, "1/2/24{Blur}",           "01/02/20|24"},
    {kUs, nullptr, "1/2/49{Blur}",           "01/02/20|49"},
    {kUs, nullptr, "1/2/50{Blur}",           "01/02/19|50"},
    {kUs, nullptr, "1/2/202{Blur}",          "01/02/202| "},
    {kUs, nullptr, "0{Blur}",                "0| /  /    "},
    {kDayOfYear, nullptr, "7/2024",          "007/2024|"},
    {kDayOfYear, nullptr, "1862024",         "186/2024|"},
    {kDayOfYear, nullptr, "992024",          "099/2024|"},
    {kDayOfYear, nullptr, "367",             "36| /    ", "out of bounds"},
    {kDayOfYear, nullptr, "000",             "00| /    ", "out of bounds"},
    // over another date
    {kUs, "|12/31/1999", "02292024",         "02/29/2024|"},
    {kUs, "|12/31/1999", "2/29/2024",        "02/29/2024|"},
    {kUs, "|12/31/1999", "1",                "1| /31/1999"},
    {kUs, "|12/31/1999", "4",                "04/|31/1999"},
    {kUs, "12/31/|1999", "2",                "12/31/2|   "},
    {kUs, "1|2/31/1999", "1",                "11/|31/1999"},
    {kUs, "12/31/1|999", "2",                "12/31/12|99"},
    {kDayOfYear, "3|65/2024", "6",           "36|5/2024"},
    {kDayOfYear, "3|65/2024", "7",           "037/|2024"},
    {kUs, "1|2/31/1999", "3",                "1|2/31/1999", "out of bounds"},
    {kUs, "0|7/31/1999", "0",                "0|7/31/1999", "out of bounds"},
    {kUs, "12/3|1/1999", "2",                "12/3|1/1999", "out of bounds"},
    {kUs, "12/3|1/1999", "0",                "12/30/|1999"},
    {kUs, "12/31/|1999", "/",                "12/31/|1999", "wrong kind"},
    {kUs, "12/31/1999|", "0",                "12/31/1999|", "full"},
    {kUs, "[12/31/1999]", "7",               "07/|  /    "},
    {kUs, "[12]/31/1999", "1",               "1| /31/1999"},
    {kUs, "12/[31]/1999", "4",               "12/04/|1999"},
    {kUs, "12/[31/19]99", "4",               "12/04/|99  "},
    {kUs, "[12/31/1999]", "x",               "[12/31/1999]", "wrong kind"},
    {kUs, "[12/31/1999]", "\x02",            "[12/31/1999]", "wrong kind"},
    {kUs, "[12/31/1999]", "{Escape}",        "[12/31/1999]"},
    {kUs, "[12/31/1999]", "{ReadOnly}7",     "[12/31/1999]", "read-only"},
    {kUs, "junk|", "7",                      "07/|  /    "},
    {kBoth, nullptr, "7/4/2024 13:30",       "07/04/2024 13:30|"},
    {kBoth, nullptr, "070420241330",         "07/04/2024 13:30|"},
    {kBoth, nullptr, "7 4 24 9 5{Blur}",     "07/04/2024 09:0|5"},
    // names of months
    {kNamed, nullptr, "4jul2024",            "04-JUL-2024|"},
    {kNamed, nullptr, "04-JUL-2024",         "04-JUL-2024|"},
    {kNamed, nullptr, "4dec2024",            "04-DEC-2024|"},
    {kNamed, nullptr, "4d2024",              "04-DEC-2024|"},
    {kNamed, nullptr, "4-7-2024",            "04-JUL-2024|"},
    {kNamed, nullptr, "412 2024",            "04-DEC-2024|"},
    {kNamed, nullptr, "41-2024",             "04-JAN-2024|"},
    {kNamed, nullptr, "413",                 "04-1|  -    ", "out of bounds"},
    {kNamed, nullptr, "4j",                  "04-J|  -    "},
    {kNamed, nullptr, "4j-",                 "04-JAN-|    "},
    {kNamed, nullptr, "4ju-",                "04-JUN-|    "},
    {kNamed, nullptr, "4j{Blur}",            "04-J|AN-    "},
    {kNamed, nullptr, "4x",                  "04-|   -    ", "wrong kind"},
    {kNamed, nullptr, "4jx",                 "04-J|  -    ", "wrong kind"},
    {kNamed, "04-|JUL-2024", "may",          "04-MAY-|2024"},
    {kNamed, "04-|JUL-2024", "m",            "04-M|  -2024"},
    {kNamed, "04-JUL|-2024", "{Bs}",         "04-JU| -2024"},
    {kNamed, "04-[JUL]-2024", "s",           "04-SEP-|2024"},
};
TEST_ROWS(Dates, ModernTyping, kDateRows);

const TypingRow kTimeRows[] = {
    {kTime, nullptr, "1330",                 "13:30|"},
    {kTime, nullptr, "13:30",                "13:30|"},
    {kTime, nullptr, "0000",                 "00:00|"},
    {kTime, nullptr, "9:5{Blur}",            "09:0|5"},
    {kTime, nullptr, "24",                   "2| :  ", "out of bounds"},
    {kTime, nullptr, "96",                   "09:06|"},
    {kTime, nullptr, "960",                  "09:06|", "full"},
    {kTime, "|13:30", "0905",                "09:05|"},
    {kTime, "|13:30", "2",                   "2| :30"},
    {kTime, "1|3:30", "9",                   "19:|30"},
    {kTime, "13:|30", "6",                   "13:06|"},
    {kFraction, nullptr, "1330455{Blur}",    "13:30:45.5|00"},
    {kFraction, nullptr, "13:30:45.05{Blur}", "13:30:45.05|0"},
    {kFraction, nullptr, "133045123",        "13:30:45.123|"},
    // twelve hours
    {kHalves, nullptr, "1330",               "01:30 |PM"},
    {kHalves, nullptr, "0030",               "12:30 |AM"},
    {kHalves, nullptr, "0130",               "01:30 |AM"},
    {kHalves, nullptr, "1130",               "11:30 |AM"},
    {kHalves, nullptr, "1230",               "12:30 |PM"},
    {kHalves, nullptr, "0130p",              "01:30 PM|"},
    {kHalves, nullptr, "0130P",              "01:30 PM|"},
    {kHalves, nullptr, "1:30 PM",            "01:30 PM|"},
    {kHalves, nullptr, "1:30pm",             "01:30 PM|"},
    {kHalves, nullptr, "01:30 PM",           "01:30 PM|"},
    {kHalves, nullptr, "12:00 am",           "12:00 AM|"},
    {kHalves, nullptr, "p0130",              "01:30 |PM"},
    {kHalves, nullptr, "1p:30",              "01:30 |PM"},
    {kHalves, nullptr, "24",                 "2| :     ", "out of bounds"},
    {kHalves, nullptr, "0130x",              "01:30 |AM", "wrong kind"},
    {kHalves, "|01:30 PM", "0245",           "02:45 |PM"},
    {kHalves, "|01:30 PM", "1245",           "12:45 |PM"},
    {kHalves, "|01:30 AM", "1245",           "12:45 |AM"},
    {kHalves, "|01:30 AM", "1445",           "02:45 |PM"},
    {kHalves, "|01:30 PM", "0045",           "12:45 |AM"},
    {kHalves, "01:3|0 PM", "a",              "01:3|0 AM"},
    {kHalves, "01:30 |PM", "A",              "01:30 AM|"},
    {kHalves, "01:30 PM|", "{Bs}",           "01:30 |  "},
    {kHalves, "01:30 |PM", "{Del}",          "01:30 |  "},
    {kHalves, "[01:30 PM]", "2",             "2| :     "},
    {kDotted, nullptr, "1:30p.m.",           "01:30 p.m.|"},
    {kDotted, nullptr, "1330",               "01:30 |p.m."},
    {kHalfFirst, nullptr, "p0130",           "PM 01:30|"},
    {kHalfFirst, nullptr, "PM 01:30",        "PM 01:30|"},
};
TEST_ROWS(Times, ModernTyping, kTimeRows);

const TypingRow kDeletionRows[] = {
    {kUs, "12/31/1999|", "{Bs}",             "12/31/199| "},
    {kUs, "12/31/|1999", "{Bs}",             "12/3| /1999"},
    {kUs, "12/31/1|999", "{Bs}",             "12/31/|999 "},
    {kUs, "1|2/31/1999", "{Bs}",             "|2 /31/1999"},
    {kUs, "|12/31/1999", "{Bs}",             "|12/31/1999"},
    {kUs, "|12/31/1999", "{Del}",            "|2 /31/1999"},
    {kUs, "12|/31/1999", "{Del}",            "12/|1 /1999"},
    {kUs, "12/31/1999|", "{Del}",            "12/31/1999|"},
    {kUs, "12/31/1999|", "{CtrlBs}",         "12/31/|    "},
    {kUs, "12/|31/1999", "{CtrlBs}",         "|  /31/1999"},
    {kUs, "12/31/19|99", "{CtrlBs}",         "12/31/|    "},
    {kUs, "12/31/|1999", "{CtrlDel}",        "12/31/|    "},
    {kUs, "12/31/19|99", "{CtrlDel}",        "12/31/|    "},
    {kUs, "12|/31/1999", "{CtrlDel}",        "12/|  /1999"},
    {kUs, "[12/31/1999]", "{Bs}",            "|  /  /    "},
    {kUs, "[12/31/1999]", "{Del}",           "|  /  /    "},
    {kUs, "[12/31]/1999", "{Cut}",           "|  /  /1999"},
    {kUs, "[12/31]/1999", "{Clear}",         "|  /  /1999"},
    {kUs, "[12/31]/1999", "{CtrlX}",         "|  /  /1999"},
    {kUs, "[12/31]/1999", "{ShiftDel}",      "|  /  /1999"},
    {kUs, "12[/31/]1999", "{Cut}",           "12/|  /1999"},
    {kUs, "12/31[/19]99", "{Cut}",           "12/31/|99  "},
    {kUs, "1[2/3]1/1999", "{Cut}",           "1| /1 /1999"},
    {kUs, "12[/]31/1999", "{Cut}",           "12/|31/1999"},
    {kUs, "12/3|1/1999", "{Cut}",            "12/3|1/1999"},
    {kUs, "12/3|1/1999", "{Clear}",          "12/3|1/1999"},
    {kUs, "[12/31]/1999", "{ReadOnly}{Cut}", "[12/31]/1999", "read-only"},
    {kUs, "12/3|1/1999", "{ReadOnly}{Bs}",   "12/3|1/1999", "read-only"},
    {kUs, "[12/31]/1999", "{Cut}{CtrlV}",    "|  /  /1999", "does not fit"},
    {kUs, "[12/31/1999]", "{Cut}{CtrlV}",    "12/31/1999|"},
    {kUs, "[12/31/1999]", "{Cut}{ShiftIns}", "12/31/1999|"},
    {kUs, "12/31/1999|", "{Paste}",          "12/31/1999|"},
};
TEST_ROWS(Deletions, ModernTyping, kDeletionRows);

const TypingRow kUndoRows[] = {
    {kUs, nullptr, "07042024{Undo}",         "|  /  /    "},
    {kUs, nullptr, "07042024{CtrlZ}",        "|  /  /    "},
    {kUs, nullptr, "07042024{Undo}{Redo}",   "07/04/2024|"},
    {kUs, nullptr, "07042024{CtrlZ}{CtrlY}", "07/04/2024|"},
    {kUs, nullptr, "07{Pause}04{Undo}",      "07/|  /    "},
    {kUs, nullptr, "07{Home}04{Undo}",       "|07/  /    "},
    {kUs, nullptr, "07x04{Undo}",            "|  /  /    ", "wrong kind"},
    {kUs, nullptr, "1{Blur}{Undo}",          "|  /  /    "},
    {kUs, nullptr, "07{Bs}{Undo}",           "07/|  /    "},
    {kUs, nullptr, "{Undo}",                 "|  /  /    "},
    {kUs, nullptr, "{Redo}",                 "|  /  /    "},
    {kUs, "12/31/1999|", "{Bs}{Bs}{Bs}{Undo}", "12/31/1999|"},
    {kUs, "[12/31]/1999", "{Cut}{Undo}",     "[12/31]/1999"},
    {kUs, "[12/31]/1999", "{Cut}{Undo}{Redo}", "|  /  /1999"},
    {kUs, "[12/31/1999]", "7{Undo}",         "[12/31/1999]"},
    {kUs, "12/3|1/1999", "{Cut}{Undo}",      "12/3|1/1999"},
    {kUsSpin, "|01/31/2024", "{Up}{Up}{Undo}", "[02]/29/2024"},
    {kUsSpin, "|01/31/2024", "{WheelUp}{WheelUp}{Undo}", "|01/31/2024"},
    {kUsSpin, "|01/31/2024", "{WheelUp}{Pause}{WheelUp}{Undo}", "[02]/29/2024"},
};
TEST_ROWS(Undo, ModernTyping, kUndoRows);

const TypingRow kCaretRows[] = {
    {kUs, "|12/31/1999", "{Right}",          "1|2/31/1999"},
    {kUs, "|12/31/1999", "{Right}{Right}",   "12/|31/1999"},
    {kUs, "12/|31/1999", "{Left}",           "1|2/31/1999"},
    {kUs, "|12/31/1999", "{Left}",           "|12/31/1999"},
    {kUs, "|12/31/1999", "{CtrlRight}",      "12/|31/1999"},
    {kUs, "12/31/|1999", "{CtrlLeft}",       "12/|31/1999"},
    {kUs, "|12/31/1999", "{End}",            "12/31/1999|"},
    {kUs, "|12/  /    ", "{End}",            "12|/  /    "},
    {kUs, "|12/  /    ", "{End}{End}",       "12/  /    |"},
    {kUs, "12/31/19|99", "{Home}",           "|12/31/1999"},
    {kUs, "[12/31]/1999", "{Left}",          "|12/31/1999"},
    {kUs, "[12/31/1999]", "{Right}",         "12/31/1999|"},
    {kUs, "|12/31/1999", "{Click2}",         "12/|31/1999"},
    {kUs, "|12/31/1999", "{Click5}",         "12/31/|1999"},
    {kUs, "|12/31/1999", "{Click4}",         "12/3|1/1999"},
    {kUs, "|12/31/1999", "{Click10}",        "12/31/1999|"},
    {kUs, "|12/31/1999", "{Double4}",        "12/[31]/1999"},
    {kUs, "|12/31/1999", "{Double8}",        "12/31/[1999]"},
    {kUs, "|12/31/1999", "{All}",            "[12/31/1999]"},
    {kFramed, "(12/31/99|)", "{Home}",       "(|12/31/99)"},
    {kHalves, "01:30 |PM", "{Right}",        "01:30 PM|"},
    {kHalves, "01:30 PM|", "{Left}",         "01:30 |PM"},
    {kHalves, "|01:30 PM", "{Click7}",       "01:30 |PM"},
};
TEST_ROWS(Carets, ModernTyping, kCaretRows);

const TypingRow kSpinRows[] = {
    {kUsSpin, "|01/31/2024", "{Up}",         "[02]/29/2024"},
    {kUsSpin, "|01/31/2023", "{Up}",         "[02]/28/2023"},
    {kUsSpin, "|03/31/2024", "{Down}",       "[02]/29/2024"},
    {kUsSpin, "|01/15/2024", "{Up}",         "[02]/15/2024"},
    {kUsSpin, "02/29/|2024", "{Up}",         "02/28/[2025]"},
    {kUsSpin, "02/29/|2024", "{Down}",       "02/28/[2023]"},
    {kUsSpin, "02/15/|2024", "{WheelUp}",    "02/15/[2025]"},
    {kUsSpin, "02/15/|2024", "{WheelDown}",  "02/15/[2023]"},
    {kUsSpin, "02/15/|2024", "{PageUp}",     "02/15/[2034]"},
    {kUsSpin, "02/15/|2024", "{PageDown}",   "02/15/[2014]"},
    {kUsSpin, "02/15/|9995", "{PageUp}",     "02/15/[9999]"},
    {kUsSpin, "02/15/|9999", "{PageUp}",     "02/15/|9999", "end of range"},
    {kUsSpin, "02/15/|9999", "{Up}",         "02/15/|9999", "end of range"},
    {kUsSpin, "02/15/|0001", "{Down}",       "02/15/|0001", "end of range"},
    {kUsSpin, nullptr, "{Up}",               "[06]/04/1995"},
    {kUsSpin, nullptr, "{Down}",             "[06]/04/1995"},
    {kUsSpin, "12|/  /    ", "{Up}",         "[01]/  /    "},
    {kUsSpin, "12/|  /    ", "{Up}",         "12/[01]/    "},
    {kUsSpin, "|01/31/2024", "{ReadOnly}{Up}", "|01/31/2024", "read-only"},
    {kShortSpin, "02/15/|49", "{Up}",        "02/15/|49", "end of range"},
    {kShortSpin, "02/15/|99", "{Up}",        "02/15/[00]"},
    {kTimeSpin, "|23:59", "{Up}",            "[00]:59"},
    {kTimeSpin, nullptr, "{Up}",             "[12]:00"},
    {kHalvesSpin, "|11:30 AM", "{Up}",       "[12]:30 PM"},
    {kHalvesSpin, "11:30 |AM", "{Up}",       "11:30 [PM]"},
    {kNamedSpin, "31-|JAN-2024", "{Up}",     "29-[FEB]-2024"},
    {kRanged, "01/|15/2024", "{Up}",         "01/[16]/2024"},
    {kRanged, "01/|15/2024", "{PageUp}",     "01/[20]/2024"},
    {kRanged, "01/|20/2024", "{PageUp}",     "01/|20/2024", "end of range"},
    {kRanged, "01/|20/2024", "{Up}",         "01/|20/2024", "end of range"},
    {kRanged, "01/|25/2024", "{Up}",         "01/[20]/2024"},
    {kRanged, "01/|05/2024", "{Down}",       "01/[10]/2024"},
};
TEST_ROWS(Spins, ModernTyping, kSpinRows);
// clang-format on

// ---- strings and code tables

constexpr TypingSetup kPhone = {"(###) ###-####", DT_STRING};
constexpr TypingSetup kWord = {"AAAAA", DT_STRING};
constexpr TypingSetup kNote = {"XXXXXXXX", DT_STRING};
constexpr TypingSetup kPlate = {"!!-###", DT_STRING};
constexpr TypingSetup kPlus = {"##+XX", DT_STRING};
constexpr TypingSetup kColours = {"", DT_STRING, 0, "Red\tr/Green\tg/Grey\ty/Light blue\tb/None\tnull!"};
constexpr TypingSetup kNoNull = {"", DT_STRING, 0, "Red\tr/Green\tg"};

// clang-format off
const TypingRow kStringRows[] = {
    {kPhone, nullptr, "5551234567",          "(555) 123-4567|"},
    {kPhone, nullptr, "(555) 123-4567",      "(555) 123-4567|"},
    {kPhone, nullptr, "555-",                "(555) |   -    "},
    {kPhone, nullptr, "555",                 "(555) |   -    "},
    {kPhone, nullptr, "55x",                 "(55| )    -    ", "wrong kind"},
    {kPhone, nullptr, "55512345678",         "(555) 123-4567|", "full"},
    {kPhone, nullptr, "(((",                 "(|   )    -    "},
    {kPhone, "(555) |123-4567", "{Bs}",      "(55| ) 123-4567"},
    {kPhone, "(555|) 123-4567", "{Del}",     "(555) | 23-4567"},
    {kPhone, "(|555) 123-4567", "{Bs}",      "(|555) 123-4567"},
    {kPhone, "(555) 1|23-4567", "{Del}",     "(555) 1| 3-4567"},
    {kPhone, "[(555) 123]-4567", "{Cut}",    "(|   )    -4567"},
    {kPhone, "(555[) ]123-4567", "{Cut}",    "(555) |123-4567"},
    {kPhone, "[(555) 123-4567]", "9",        "(9|  )    -    "},
    {kPhone, "[(555) 123-4567]", "x",        "[(555) 123-4567]", "wrong kind"},
    {kPhone, "(555) 123|-4567", "{CtrlBs}",  "(555) |   -4567"},
    {kPhone, "(555) |123-4567", "{CtrlDel}", "(555) |   -4567"},
    {kPhone, "(555) |123-4567", "9",         "(555) 9|23-4567"},
    {kPhone, "(555) 12|3-4567", "{Home}",    "(|555) 123-4567"},
    {kPhone, "(|555)    -    ", "{End}",     "(555|)    -    "},
    {kPhone, "(|555) 123-4567", "{Double8}", "(555) [123]-4567"},
    {kPhone, "(|555) 123-4567", "{Click10}", "(555) 123-|4567"},
    {kPhone, nullptr, "5551{Undo}",          "(|   )    -    "},
    {kPhone, "(555) |123-4567", "{Bs}{Bs}{Undo}", "(555) |123-4567"},
    {kPhone, "junk|", "5",                   "(5|  )    -    "},
    {kWord, nullptr, "ab1",                  "ab1|  "},
    {kWord, nullptr, "ab-",                  "ab|   ", "wrong kind"},
    {kWord, "|abcde", "x",                   "x|bcde"},
    {kWord, "a|bcde", "{Del}",               "a| cde"},
    {kWord, "a[bcd]e", "{Bs}",               "a|   e"},
    {kNote, "one two|", "{CtrlBs}",          "|        "},
    {kNote, "one two |", "{CtrlBs}",         "one |    "},
    {kNote, "|one two ", "{CtrlDel}",        "|    two "},
    {kNote, "|one two ", "{Double5}",        "one [two] "},
    {kNote, "|one two ", "{Double1}",        "[one] two "},
    {kNote, "|one two ", "{Double3}",        "[one] two "},
    {kNote, "|one     ", "{Double1}",        "[one     ]"},
    {kNote, "|        ", "{Double4}",        "[        ]"},
    {kPhone, "(|555)    -    ", "{Double7}", "(555) [   ]-    "},
    {kPlate, nullptr, "ab123",               "AB-123|"},
    {kPlate, nullptr, "a-1",                 "A--1|  "},
    {kPlus, nullptr, "12++",                 "12++| "},
};
TEST_ROWS(Strings, ModernTyping, kStringRows);

const TypingRow kChoiceRows[] = {
    {kColours, nullptr, "g",                 "[Green]"},
    {kColours, nullptr, "G",                 "[Green]"},
    {kColours, nullptr, "grey",              "[Grey]"},
    {kColours, nullptr, "gg",                "[Grey]"},
    {kColours, nullptr, "ggg",               "[Green]"},
    {kColours, nullptr, "gx",                "[Green]", "no such entry"},
    {kColours, nullptr, "gxrey",             "[Grey]", "no such entry"},
    {kColours, nullptr, "g{Pause}r",         "[Red]"},
    {kColours, nullptr, "light b",           "[Light blue]"},
    {kColours, nullptr, "LIGHT B",           "[Light blue]"},
    {kColours, "[Red]", "z",                 "[Red]", "no such entry"},
    {kColours, "[Red]", "{Bs}",              "[None]"},
    {kColours, "[Red]", "{Del}",             "[None]"},
    {kColours, "[Red]", "{Cut}",             "[None]"},
    {kNoNull, "[Red]", "{Bs}",               "|"},
    {kNoNull, "[Red]", "{Del}",              "|"},
    {kColours, "[Green]", "{Home}",          "[Red]"},
    {kColours, "[Green]", "{End}",           "[None]"},
    {kColours, "[Red]", "{Up}{Down}",        "[Red]"},
    {kColours, "[Red]", "{Up}{Up}{Up}{Up}{Up}", "[Red]"},
    {kColours, "[Red]", "{WheelUp}{WheelDown}", "[Red]"},
    {kColours, "[Red]", "{PageUp}{PageUp}",  "[None]", "end of range"},
    {kColours, "[Red]", "{PageDown}",        "[Red]", "end of range"},
    {kColours, "[Green]", "{PageDown}",      "[Red]"},
    {kColours, "[Red]", "g{Undo}",           "[Red]"},
    {kColours, "[Red]", "{ReadOnly}g",       "[Red]", "read-only"},
    {kColours, "[Blue]", "g",                "[Green]"},
    {kColours, "[Blue]", "{Up}",             "[Red]"},
};
TEST_ROWS(Choices, ModernTyping, kChoiceRows);
// clang-format on

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
