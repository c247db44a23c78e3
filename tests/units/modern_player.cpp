// A modern control in memory that keys, acts and a program are played on.
#include "tests/units/modern_player.h"

#include <gtest/gtest.h>

#include "tests/support/marked_text.h"

namespace zttest::typing {

using namespace zte;

namespace {

constexpr const char* kReasonNames[] = {
    "",         "wrong kind",     "out of bounds", "full",         "read-only",       "does not fit",
    "in doubt", "does not exist", "no such entry", "end of range", "not in code page"};

// By their numbers; null: told in other words.
constexpr const char* kEventNames[] = {"update", "change", "limit",   "beep",         "full",  "stepped", "off",
                                       "on",     "layout", "repaint", "repaint spin", nullptr, nullptr,   "value"};

DateTimeValue Noon4thOfJune1995()
{
    return {0, 95, 5, 4, 12, 0, 0, 0};
}

struct ActRow {
    const char* name;
    void (*act)(MemoryControl&, int32_t number, const Text& text);
};

constexpr int32_t kKeypadPoint = 0x6E;
constexpr KeyData kHeld = 0x40000001;  // of a key that was down before

template <Key key, bool shift = false, bool ctrl = false>
void Press(MemoryControl& control, int32_t, const Text&)
{
    control.Edit().HoldShift(shift);
    control.Edit().HoldControl(ctrl);
    control.KeyDown(key);
    control.KeyUp(key);
    control.Edit().HoldShift(false);
    control.Edit().HoldControl(false);
}

// Pressed, and held as often as told.
template <Key key>
void Hold(MemoryControl& control, int32_t times, const Text&)
{
    control.KeyDown(key);
    for (int32_t i = 0; i < times; ++i)
        EditingOf(control.Record()).keyDown(control.Record(), key, kHeld);
    control.KeyUp(key);
}

template <uint32_t character>
void TypeIt(MemoryControl& control, int32_t, const Text&)
{
    control.Type(character);
}

// clang-format off
const ActRow kActs[] = {
    {"Bs", TypeIt<8>},
    {"CtrlBs", TypeIt<127>},
    {"Del", Press<KEY_DELETE>},
    {"CtrlDel", Press<KEY_DELETE, false, true>},
    {"ShiftDel", Press<KEY_DELETE, true>},
    {"Ins", Press<KEY_INSERT>},
    {"ShiftIns", Press<KEY_INSERT, true>},
    {"Left", Press<KEY_LEFT>},
    {"Right", Press<KEY_RIGHT>},
    {"CtrlLeft", Press<KEY_LEFT, false, true>},
    {"CtrlRight", Press<KEY_RIGHT, false, true>},
    {"ShiftLeft", Press<KEY_LEFT, true>},
    {"ShiftRight", Press<KEY_RIGHT, true>},
    {"Home", Press<KEY_HOME>},
    {"End", Press<KEY_END>},
    {"Up", Press<KEY_UP>},
    {"Down", Press<KEY_DOWN>},
    {"HoldUp", Hold<KEY_UP>},
    {"HoldDown", Hold<KEY_DOWN>},
    {"HoldPageUp", Hold<KEY_PAGE_UP>},
    {"PageUp", Press<KEY_PAGE_UP>},
    {"PageDown", Press<KEY_PAGE_DOWN>},
    {"WheelUp", [](MemoryControl& control, int32_t, const Text&) { control.Wheel(1); }},
    {"WheelDown", [](MemoryControl& control, int32_t, const Text&) { control.Wheel(-1); }},
    {"WheelStill", [](MemoryControl& control, int32_t, const Text&) { control.Wheel(0); }},
    {"ArrowUp", [](MemoryControl& control, int32_t, const Text&) { control.Step(true); }},
    {"ArrowDown", [](MemoryControl& control, int32_t, const Text&) { control.Step(false); }},
    {"Point", [](MemoryControl& control, int32_t, const Text&) { control.KeyDown(kKeypadPoint); control.Type('.'); }},
    {"All", TypeIt<1>},
    {"CtrlC", TypeIt<3>},
    {"CtrlV", TypeIt<22>},
    {"CtrlX", TypeIt<24>},
    {"CtrlY", TypeIt<25>},
    {"CtrlZ", TypeIt<26>},
    {"CtrlShiftZ", [](MemoryControl& control, int32_t, const Text&) {
        control.Edit().HoldShift(true); control.Type(26); control.Edit().HoldShift(false); }},
    {"Tab", TypeIt<9>},
    {"LineFeed", TypeIt<10>},
    {"Enter", TypeIt<13>},
    {"Escape", TypeIt<27>},
    {"Foreign", [](MemoryControl& control, int32_t, const Text&) { EditingOf(control.Record()).foreignCharacter(control.Record()); }},
    {"Cut", [](MemoryControl& control, int32_t, const Text&) { control.Cut(); }},
    {"Clear", [](MemoryControl& control, int32_t, const Text&) { control.Clear(); }},
    {"Paste", [](MemoryControl& control, int32_t, const Text&) { control.Paste(); }},
    {"Undo", [](MemoryControl& control, int32_t, const Text&) { control.Undo(); }},
    {"Redo", [](MemoryControl& control, int32_t, const Text&) { control.Redo(); }},
    {"NoUndo", [](MemoryControl& control, int32_t, const Text&) { EditingOf(control.Record()).emptyUndo(control.Record()); }},
    {"Blur", [](MemoryControl& control, int32_t, const Text&) { control.LoseFocus(); }},
    {"Pause", [](MemoryControl& control, int32_t number, const Text&) {
        control.Edit().LetTimePass(number != 0 ? static_cast<uint32_t>(number) : 1000); }},
    {"ReadOnly", [](MemoryControl& control, int32_t, const Text&) { control.Edit().SetReadOnly(true); }},
    {"Writable", [](MemoryControl& control, int32_t, const Text&) { control.Edit().SetReadOnly(false); }},
    {"Quiet", [](MemoryControl& control, int32_t, const Text&) { control.Edit().BeQuiet(true); }},
    {"Limit", [](MemoryControl& control, int32_t number, const Text&) { control.Edit().SetLimit(number); }},
    {"Click", [](MemoryControl& control, int32_t number, const Text&) { control.Click(number); }},
    {"ShiftClick", [](MemoryControl& control, int32_t number, const Text&) { control.Click(number, true); }},
    {"Double", [](MemoryControl& control, int32_t number, const Text&) { control.DoubleClick(number); }},
    {"Caret", [](MemoryControl& control, int32_t number, const Text&) { control.Select(number, number); }},
    {"Set", [](MemoryControl& control, int32_t, const Text& text) { control.SetText(text.c_str()); }},
    {"Copied", [](MemoryControl& control, int32_t, const Text& text) { control.Edit().SetClipboard(text); }},
    {"Insert", [](MemoryControl& control, int32_t, const Text& text) { control.Replace(text.c_str(), true); }},
    {"InsertForGood", [](MemoryControl& control, int32_t, const Text& text) { control.Replace(text.c_str(), false); }},
    {"Data", [](MemoryControl& control, int32_t, const Text& text) { TrySetDataString(control.Record(), text.c_str()); }},
    // What others do to the text of a field, behind the control's back.
    {"Behind", [](MemoryControl& control, int32_t, const Text& text) { control.Edit().SetText(text.c_str()); }},
    {"CaretBehind", [](MemoryControl& control, int32_t number, const Text&) { control.Edit().SetSelection(number, number); }},
};
// clang-format on

// What the names are followed by.
int32_t NumberOf(const std::string& rest)
{
    return rest.empty() || rest[0] == ' ' ? 0 : static_cast<int32_t>(std::stoll(rest));
}

Text TextOf(const std::string& rest)
{
    return rest.empty() || rest[0] != ' ' ? Text() : FromAscii(rest.substr(1).c_str());
}

}  // namespace

// ---- what is told

std::string Listener::Told(FieldEvent event) const
{
    if (event == FieldEvent::State)
        return std::to_string(field_->LastState().was) + ">" + std::to_string(field_->LastState().is);
    if (event != FieldEvent::Rejected) {
        const char* name = kEventNames[static_cast<size_t>(event)];
        return name ? name : "";
    }
    const Rejection& rejection = field_->LastRejected();
    std::string told = std::string(kReasonNames[rejection.reason]) + "@" + std::to_string(rejection.position);
    if (rejection.character != Char{})
        told += static_cast<char>(rejection.character);
    return told;
}

void Listener::OnFieldEvent(FieldEvent event)
{
    if (!field_)
        return;
    if (event == FieldEvent::Rejected)
        reasons_ += (reasons_.empty() ? "" : ", ") + std::string(kReasonNames[field_->LastRejected().reason]);
    if (event == FieldEvent::State)
        states_ += (states_.empty() ? "" : " ") + Told(event);
    const std::string told = Told(event);
    all_ += (all_.empty() || told.empty() ? "" : " ") + told;
}

std::string Listener::All() const
{
    static const std::string kChange = "off on update change";
    std::string all = all_;
    for (size_t at = all.find(kChange); at != std::string::npos; at = all.find(kChange, at))
        all.replace(at, kChange.size(), "changed");
    return all;
}

// ---- the control

Played::Played(const TypingSetup& setup, uint32_t notOptions)
    : settings_(StandardSettings()),
      mask_(FromAscii(setup.mask)),
      codes_(FromAscii(setup.codes ? setup.codes : "")),
      range_(FromAscii(setup.range ? setup.range : ""))
{
    Assign(settings_.amString, FromAscii(setup.am));
    Assign(settings_.pmString, FromAscii(setup.pm));
    if (setup.regional)
        setup.regional(settings_);
    ControlSetup made;
    made.mask = mask_.c_str();
    made.dataType = setup.type;
    made.options = (ZTEO_MODERN | setup.options | (setup.codes ? ZTEO_SPIN | ZTEO_CODE_DISPLAY : 0u)) & ~notOptions;
    made.codeTable = setup.codes ? codes_.c_str() : nullptr;
    made.spinRange = setup.range ? range_.c_str() : nullptr;
    made.spinIncrement = 1;
    control_ = std::make_unique<MemoryControl>(made, settings_, Noon4thOfJune1995, &listener_);
    listener_.Hear(control_->Edit());
}

void Played::Show(const char* marked)
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

std::string Played::Shown() const
{
    const Selection selection = control_->Edit().ReadSelection();
    const Text& text = control_->Edit().Shown();
    return Mark(std::string(text.begin(), text.end()), selection.start, selection.end);
}

void Played::Play(const std::string& keys)
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

void Played::Act(const std::string& name)
{
    const size_t end = std::min(name.find_first_of(" 0123456789"), name.size());
    const std::string rest = name.substr(end);
    for (const ActRow& row : kActs)
        if (name.compare(0, end, row.name) == 0) {
            row.act(*control_, NumberOf(rest), TextOf(rest));
            return;
        }
    FAIL() << "no act is called " << name;
}

// ---- rows

void PrintTo(const ToldRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << (row.before ? row.before : "") << "\": " << row.keys;
}

void ExpectTold(const ToldRow& row)
{
    Played played(row.setup);
    played.Show(row.before);
    played.Play(row.keys);
    EXPECT_EQ(played.Shown(), row.after);
    EXPECT_EQ(played.Heard().All(), row.told);
}

}  // namespace zttest::typing
