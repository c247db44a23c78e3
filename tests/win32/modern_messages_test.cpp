// The messages of an edit control to a modern one: what they do, and all that the parent hears of it.
#include "tests/support/clipboard.h"
#include "tests/support/rows.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

// ---- one act each

enum class Act : uint8_t { Keys, Paste, Message, Replace, ReplaceForGood, WindowText };

struct ActCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
    int start;  // of the selection
    int end;
    Act act;
    const char* text;  // the keys, the clipboard's text, the text handed in
    UINT message;
    const char* shown;
    Told told;
    int beeps;
};

void PrintTo(const ActCase& row, std::ostream* out)
{
    *out << row.name;
}

class ModernAct : public ModernWindow, public OfRow<ActCase> {
protected:
    void Do(const ActCase& row)
    {
        switch (row.act) {
        case Act::Keys: Play(row.text); return;
        case Act::Paste:
            CopyToClipboard(row.text);
            Send(row.message);
            return;
        case Act::Message: Send(row.message); return;
        case Act::Replace: SendText(EM_REPLACESEL, row.text, TRUE); return;
        case Act::ReplaceForGood: SendText(EM_REPLACESEL, row.text, FALSE); return;
        case Act::WindowText: SendText(WM_SETTEXT, row.text); return;
        }
    }
};

ROW_TEST(ModernAct, IsToldOnce)
{
    const ActCase& row = GetParam();
    CopyToClipboard("clipped");
    Make(row.mask, row.type, row.data);
    Select(row.start, row.end);
    TakeTold();
    Do(row);
    EXPECT_EQ(Shown(), row.shown);
    EXPECT_EQ(TakeTold(), row.told);
    EXPECT_EQ(Beeps(), row.beeps);
}

// clang-format off
const ActCase kActs[] = {
    {"ADigit", kPhone, DT_STRING, nullptr, 1, 1, Act::Keys, "5", 0, "(5|  )    -    ",
        {"update", "change", "state empty to incomplete"}, 0},
    {"ALetterInADigitsPlace", kPhone, DT_STRING, "555", 1, 4, Act::Keys, "x", 0, "([555])    -    ", {"rejected wrong kind at 1 by x"}, 1},
    {"ADigitOfADate", kDate, DT_DATE, nullptr, 0, 0, Act::Keys, "1", 0, "1| /  /    ",
        {"update", "change", "state empty to incomplete"}, 0},
    {"TheLastDigit", kDate, DT_DATE, nullptr, 0, 0, Act::Keys, "02302024", 0, "02/30/2024|",
        {"update", "change", "state empty to incomplete", "update", "change", "update", "change", "update", "change", "update", "change",
         "update", "change", "update", "change", "update", "change", "state incomplete to invalid"}, 0},
    {"BackspaceAtTheStart", kPhone, DT_STRING, "555", 1, 1, Act::Keys, "{Back}", 0, "(|555)    -    ", {}, 0},
    {"Movement", kPhone, DT_STRING, "555", 1, 1, Act::Keys, "{Right}{End}{Home}{Left}{Shift+Right}", 0, "([5]55)    -    ", {}, 0},
    {"EscapeTabAndEnter", kPhone, DT_STRING, "555", 1, 4, Act::Keys, "{Esc}{Tab}{Enter}", 0, "([555])    -    ", {}, 0},
    {"CopyByKey", kPhone, DT_STRING, "555", 1, 4, Act::Keys, "{Ctrl+C}", 0, "([555])    -    ", {}, 0},
    {"SelectAllByKey", kPhone, DT_STRING, "555", 1, 1, Act::Keys, "{Ctrl+A}", 0, "[(555)    -    ]", {}, 0},
    {"Cut", kPhone, DT_STRING, "5551234567", 1, 8, Act::Message, nullptr, WM_CUT, "(|   )   3-4567",
        {"update", "change", "state complete to incomplete"}, 0},
    {"CutWithoutASelection", kPhone, DT_STRING, "555", 2, 2, Act::Message, nullptr, WM_CUT, "(5|55)    -    ", {}, 0},
    {"Clear", kPhone, DT_STRING, "555", 0, -1, Act::Message, nullptr, WM_CLEAR, "(|   )    -    ",
        {"update", "change", "state incomplete to empty"}, 0},
    {"ClearWithoutASelection", kPhone, DT_STRING, "555", 2, 2, Act::Message, nullptr, WM_CLEAR, "(5|55)    -    ", {}, 0},
    {"UndoOfNothing", kPhone, DT_STRING, "555", 2, 2, Act::Message, nullptr, WM_UNDO, "(5|55)    -    ", {}, 0},
    {"UndoOfNothingByAnotherName", kPhone, DT_STRING, "555", 2, 2, Act::Message, nullptr, EM_UNDO, "(5|55)    -    ", {}, 0},
    {"Paste", kPhone, DT_STRING, nullptr, 1, 1, Act::Paste, "555-123-4567", WM_PASTE, "(555) 123-4567|",
        {"update", "change", "state empty to complete"}, 0},
    {"PasteOfLetters", kPhone, DT_STRING, "555", 0, -1, Act::Paste, "555x", WM_PASTE, "[(555)    -    ]", {"rejected wrong kind at 3"}, 1},
    {"PasteOfNothing", kPhone, DT_STRING, "555", 1, 1, Act::Paste, "", WM_PASTE, "(|555)    -    ", {}, 0},
    {"ReplacementOfTheSelection", kPhone, DT_STRING, "5551234567", 6, 9, Act::Replace, "999", 0, "(555) 999-|4567",
        {"update", "change"}, 0},
    {"ReplacementThatDoesNotFit", kPhone, DT_STRING, "5551234567", 6, 9, Act::Replace, "none", 0, "(555) [123]-4567",
        {"rejected wrong kind at 0"}, 1},
    {"WindowText", kPhone, DT_STRING, nullptr, 1, 1, Act::WindowText, "any", 0, "|any", {"update", "change", "state empty to invalid"}, 0},
};
// clang-format on
TEST_ROWS(Rows, ModernAct, kActs);

// ---- masks that have nothing to fill in

class ModernMaskOfLiterals : public ModernWindow {};

TEST_F(ModernMaskOfLiterals, TakesNothing)
{
    for (const int32_t type : {DT_STRING, DT_TIME}) {
        Make("----", type);
        const std::string text = "----";
        Select(0, 0);
        Play("-x1 {Right}-x1 {Back}{Del}{End}-x1 {Ctrl+A}{Del}-x1 {Home}{Up}{Down}");
        EXPECT_EQ(control_->Text(), text) << type;
        EXPECT_FALSE(CanUndo()) << type;
    }
}

// ---- undo

class ModernUndo : public ModernWindow {};

TEST_F(ModernUndo, BringsBackTextAndSelectionByEveryMessage)
{
    for (const UINT message : {WM_UNDO, static_cast<int>(EM_UNDO)}) {
        Make(kPhone, DT_STRING, "5551234567");
        Select(1, 4);
        Type("9");
        TakeTold();
        EXPECT_EQ(Shown(), "(9|  ) 123-4567");
        EXPECT_TRUE(CanUndo());
        EXPECT_EQ(Send(message), TRUE);
        EXPECT_EQ(Shown(), "([555]) 123-4567");
        EXPECT_EQ(TakeTold(), (Told{"update", "change", "state incomplete to complete"}));
        EXPECT_FALSE(CanUndo());
        EXPECT_EQ(Send(message), FALSE);
        EXPECT_TRUE(IsModified());
    }
}

TEST_F(ModernUndo, AndRedoComeByKey)
{
    Make(kPhone, DT_STRING);
    Select(1, 1);
    Type("55");
    Type("\x1a");
    EXPECT_EQ(Shown(), "(|   )    -    ");
    Type("\x19");
    EXPECT_EQ(Shown(), "(55| )    -    ");
    Type("\x1a");
    Play("{Ctrl+Shift+Z}");
    EXPECT_EQ(Shown(), "(55| )    -    ");
    EXPECT_EQ(Beeps(), 0);
}

// With Alt a key and its character come as messages of their own; the system would beep at the character.
TEST_F(ModernUndo, ComesByAltAndBackspaceWithoutABeep)
{
    constexpr LPARAM kAlt = 1L << 29 | 1;
    Make(kPhone, DT_STRING);
    Select(1, 1);
    Type("55");
    Send(WM_SYSKEYDOWN, VK_BACK, kAlt);
    Send(WM_SYSCHAR, 8, kAlt);
    EXPECT_EQ(Shown(), "(|   )    -    ");
    BaseRecorder recorder;
    Send(WM_SYSCHAR, 8, kAlt);
    EXPECT_TRUE(recorder.Of(WM_SYSCHAR).empty());
}

TEST_F(ModernUndo, IsEmptiedByTheProgram)
{
    struct Emptying {
        const char* name;
        std::function<void()> what;
    };
    const Emptying emptyings[] = {
        {"message",     [&] { Send(EM_EMPTYUNDOBUFFER); }                    },
        {"replacement", [&] { SendText(EM_REPLACESEL, "7", FALSE); }         },
        {"window text", [&] { SetWindowTextA(Window(), "(555)    -    "); }  },
        {"data",        [&] { ZTE_FmtSetDataString(Window(), "5"); }         },
        {"tried data",  [&] { ZTE_TrySetDataString(Window(), "5"); }         },
        {"mask",        [&] { ZTE_FmtSetMask(Window(), "(###)", DT_STRING); }},
        {"on again",    [&] { ZTE_SetModern(Window(), 1); }                  },
    };
    for (const Emptying& emptying : emptyings) {
        Make(kPhone, DT_STRING);
        Select(1, 1);
        Type("5");
        EXPECT_TRUE(CanUndo()) << emptying.name;
        emptying.what();
        EXPECT_FALSE(CanUndo()) << emptying.name;
    }
}

TEST_F(ModernUndo, TakesAReplacementBackWhereItIsMeantTo)
{
    Make(kPhone, DT_STRING, "5551234567");
    Select(6, 9);
    SendText(EM_REPLACESEL, "999", TRUE);
    EXPECT_TRUE(CanUndo());
    Send(EM_UNDO);
    EXPECT_EQ(Shown(), "(555) [123]-4567");
}

TEST_F(ModernUndo, OfATextFromOutsideIsNotToBeHad)
{
    Make(kPhone, DT_STRING);
    Select(1, 1);
    Type("5");
    SetWindowTextA(Window(), "any");
    Type("\x1a");
    EXPECT_EQ(Shown(), "|any");
    EXPECT_EQ(State(), ZTS_INVALID);
}

// ---- read-only and disabled

class ModernRefusal : public ModernWindow {};

TEST_F(ModernRefusal, OfAReadOnlyControlChangesNothingAndTellsWhy)
{
    CopyToClipboard("999");
    Make(kPhone, DT_STRING, "555");
    Select(1, 4);
    Send(EM_SETREADONLY, TRUE);
    TakeTold();
    Type("5");
    Play("{Del}");
    Send(WM_CUT);
    Send(WM_CLEAR);
    Send(WM_PASTE);
    EXPECT_EQ(Shown(), "([555])    -    ");
    EXPECT_EQ(TakeTold(), (Told{"rejected read-only at 1 by 5", "rejected read-only at 1", "rejected read-only at 1",
                                "rejected read-only at 1", "rejected read-only at 1"}));
    EXPECT_FALSE(IsModified());
}

TEST_F(ModernRefusal, IsNotBeepedAtWhereTheParentAnswers)
{
    Make(kPhone, DT_STRING);
    Select(1, 1);
    parent_.answer = 1;
    Type("x");
    EXPECT_EQ(Beeps(), 0);
    parent_.answer = 0;
    Type("x");
    EXPECT_EQ(Beeps(), 1);
}

TEST_F(ModernRefusal, IsToldWhenAllStandsAsBefore)
{
    Make(kPhone, DT_STRING, "555");
    Select(1, 4);
    std::string seen;
    int beeps = -1;
    parent_.onTold = [&](const std::string&) {
        seen = Shown();
        beeps = Beeps();
    };
    Type("x");
    EXPECT_EQ(seen, "([555])    -    ");
    EXPECT_EQ(beeps, 0);
    EXPECT_EQ(Beeps(), 1);
}

// ---- the mouse

class ModernMouse : public ModernWindow {
protected:
    void DoubleClick(int position)
    {
        const LPARAM where = Send(EM_POSFROMCHAR, static_cast<WPARAM>(position)) + MAKELPARAM(1, 1);
        typist_.Click(position);
        Send(WM_LBUTTONDBLCLK, MK_LBUTTON, where);
        Send(WM_LBUTTONUP, 0, where);
    }
    void Turn(int delta, WORD keys = 0)
    {
        Send(WM_MOUSEWHEEL, MAKEWPARAM(keys, static_cast<WORD>(delta)), MAKELPARAM(30, 30));
    }
    void MakeSpin(const char* data)
    {
        Config config;
        config.mask = kDate;
        config.type = DT_DATE;
        config.data = data;
        config.options = ZTEO_SPIN;
        Make(config);
        Select(3, 3);
        TakeTold();
    }
};

TEST_F(ModernMouse, SelectsAFieldByADoubleClick)
{
    Make(kDate, DT_DATE, "2024-02-29");
    DoubleClick(4);
    EXPECT_EQ(Shown(), "02/[29]/2024");
    DoubleClick(7);
    EXPECT_EQ(Shown(), "02/29/[2024]");
}

TEST_F(ModernMouse, NeverLeavesTheCaretOnALiteral)
{
    Make(kPhone, DT_STRING, "5551234567");
    typist_.Click(0);
    EXPECT_EQ(Shown(), "(|555) 123-4567");
    typist_.Click(5);
    EXPECT_EQ(Shown(), "(555) |123-4567");
}

TEST_F(ModernMouse, EndsTheFieldThatItLeaves)
{
    Make(kDate, DT_DATE);
    Select(0, 0);
    Type("1");
    TakeTold();
    typist_.Click(6);
    EXPECT_EQ(Shown(), "01/  /|    ");
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
}

TEST_F(ModernMouse, WheelStepsWithTheFocus)
{
    MakeSpin("2024-02-28");
    SetFocus(Window());
    TakeTold();
    Turn(WHEEL_DELTA);
    EXPECT_EQ(Shown().substr(0, 6).find("02/"), 0u);
    EXPECT_EQ(control_->Text(), "02/29/2024");
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
    Turn(-2 * WHEEL_DELTA);
    EXPECT_EQ(control_->Text(), "02/27/2024");
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
    EXPECT_TRUE(parent_.wheels.empty());
}

TEST_F(ModernMouse, WheelAddsUpPartsOfANotch)
{
    MakeSpin("2024-02-28");
    SetFocus(Window());
    Turn(50);
    Turn(50);
    EXPECT_EQ(control_->Text(), "02/28/2024");
    Turn(50);
    EXPECT_EQ(control_->Text(), "02/29/2024");
    Turn(-100);  // the thirty left over are forgotten
    EXPECT_EQ(control_->Text(), "02/29/2024");
    Turn(-20);
    EXPECT_EQ(control_->Text(), "02/28/2024");
    EXPECT_TRUE(parent_.wheels.empty());
}

TEST_F(ModernMouse, WheelGoesToTheParentWithoutTheFocusWithCtrlAndWithoutASpin)
{
    MakeSpin("2024-02-28");
    SetFocus(nullptr);
    Turn(WHEEL_DELTA);
    SetFocus(Window());
    Turn(240, MK_CONTROL);
    EXPECT_EQ(control_->Text(), "02/28/2024");
    Make(kDate, DT_DATE, "2024-02-28");
    SetFocus(Window());
    Turn(-60);
    EXPECT_EQ(parent_.wheels, (std::vector<int>{120, 240, -60}));
    EXPECT_EQ(control_->Text(), "02/28/2024");
}

// ---- the program

class ModernProgram : public ModernWindow {};

TEST_F(ModernProgram, EndsAFieldWhereItMovesTheCaret)
{
    Make(kDate, DT_DATE);
    Select(0, 0);
    Type("1");
    TakeTold();
    Select(3, 3);
    EXPECT_EQ(Shown(), "01/|  /    ");
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
}

TEST_F(ModernProgram, IsToldOfAFieldThatEndsWithTheFocus)
{
    Make(kDate, DT_DATE, nullptr);
    SetFocus(Window());
    Select(0, 0);
    Type("1");
    TakeTold();
    SetFocus(parent_.hwnd());
    EXPECT_EQ(control_->Text(), "01/  /    ");
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
}

TEST_F(ModernProgram, IsToldOfStatesThatItMakes)
{
    Make(kDate, DT_DATE);
    ZTE_FmtSetDataString(Window(), "2024-02-29");
    EXPECT_EQ(TakeTold(), (Told{"update", "change", "state empty to complete"}));
    ZTE_SetSpin(Window(), 1, "2024-03-01~2024-03-31", nullptr, 0);
    control_->AcceptHeap();
    EXPECT_EQ(TakeTold(), (Told{"state complete to out of range"}));
    ZTE_FmtSetData(Window(), nullptr);
    EXPECT_EQ(TakeTold(), (Told{"update", "change", "state out of range to empty"}));
}

TEST_F(ModernProgram, HearsOfNoStateAtCreation)
{
    Config config;
    config.mask = kDate;
    config.type = DT_DATE;
    config.data = "2024-02-29";
    config.options = ZTEO_MODERN;
    const Control control(parent_.hwnd(), 12, config);
    for (const std::string& told : TakeTold())
        EXPECT_EQ(told.find("state"), std::string::npos) << told;
}

TEST_F(ModernProgram, ConfiguresAnewByASecondCall)
{
    Make(kDate, DT_DATE, "2024-02-29");
    EditInitParams params = {};
    params.heap = control_->heap();
    params.maskText = kPhone;
    params.dataType = DT_STRING;
    params.options = ZTEO_MODERN;
    ZTE_Init(Window(), &params);
    control_->AcceptHeap();
    EXPECT_EQ(State(), ZTS_EMPTY);
    EXPECT_EQ(ZTE_SetModern(Window(), 1), 1);
    params.options = 0;
    ZTE_Init(Window(), &params);
    control_->AcceptHeap();
    EXPECT_EQ(ZTE_SetModern(Window(), 0), 0);
    EXPECT_FALSE(CanUndo());
}

// Only the lowest byte of the options is read.
TEST_F(ModernProgram, IsNotMisunderstood)
{
    Config config;
    config.mask = kDate;
    config.type = DT_DATE;
    config.options = 0x1000;
    Make(config, 0);
    EXPECT_EQ(ZTE_SetModern(Window(), 0), 0);
    config.options = 0x1010;
    Make(config, 0);
    EXPECT_EQ(ZTE_SetModern(Window(), 0), 1);
}

TEST_F(ModernProgram, IsToldWhenARangeGoesWithItsSpin)
{
    Config config;
    config.mask = kDate;
    config.type = DT_DATE;
    config.data = "2024-02-29";
    config.range = "2024-03-01~2024-03-31";
    config.options = ZTEO_SPIN;
    Make(config);
    EXPECT_EQ(State(), ZTS_OUT_OF_RANGE);
    ZTE_DestroySpin(Window());
    EXPECT_EQ(TakeTold().back(), "state out of range to complete");
    control_->AcceptHeap();
}

// The standard edit puts no more in than its limit says.
TEST_F(ModernProgram, LimitsNoText)
{
    Make(kPhone, DT_STRING);
    SetWindowTextA(Window(), "");
    Send(EM_SETLIMITTEXT, 3);
    Type("555");
    EXPECT_EQ(Shown(), "(555) |   -    ");
    EXPECT_EQ(State(), ZTS_INCOMPLETE);
}

// Nor more than can be seen of a line that does not scroll.
TEST_F(ModernProgram, LosesNoLiteralInAFieldThatIsTooNarrow)
{
    Config config;
    config.mask = kPhone;
    config.style = WS_CHILD | WS_VISIBLE;
    config.width = 30;
    Make(config);
    Select(1, 1);
    Type("5551234567");
    EXPECT_EQ(Shown(), "(555) 123-4567|");
    Send(WM_UNDO);
    EXPECT_EQ(Shown(), "(|   )    -    ");
}

// ---- a control without a mask

class ModernPlainEdit : public ModernWindow {};

TEST_F(ModernPlainEdit, IsThePlatformsAndTellsItsState)
{
    CopyToClipboard("b c");
    Make("", DT_STRING);
    Type("a");
    EXPECT_EQ(TakeTold(), (Told{"update", "change", "state empty to complete"}));
    Send(WM_PASTE);
    EXPECT_EQ(Shown(), "ab c|");
    Send(WM_UNDO);
    EXPECT_NE(control_->Text(), "ab c");
    SetWindowTextA(Window(), "y");
    TakeTold();
    SendText(EM_REPLACESEL, "x", TRUE);
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
    Select(0, -1);
    Send(WM_CLEAR);
    EXPECT_EQ(TakeTold(), (Told{"update", "change", "state complete to empty"}));
    Send(EM_UNDO);
    EXPECT_EQ(TakeTold().back(), "state empty to complete");
    Select(0, -1);
    Play("{Del}");
    EXPECT_EQ(TakeTold(), (Told{"update", "change", "state complete to empty"}));
    EXPECT_EQ(Beeps(), 0);
}

// ---- a classic control

class ClassicBesideModern : public ModernWindow {};

TEST_F(ClassicBesideModern, HearsNothingNew)
{
    Config config;
    config.mask = kPhone;
    Make(config, 0);
    Select(1, 1);
    Type("5x");
    Send(WM_UNDO);
    Send(WM_SYSCHAR, 8, 1L << 29);
    for (const std::string& told : TakeTold())
        EXPECT_TRUE(told == "update" || told == "change") << told;
}

// What is new to modern controls reaches the standard edit as it did.
TEST_F(ClassicBesideModern, PassesOnWhatItHasNoPartIn)
{
    Config config;
    config.mask = kPhone;
    config.options = ZTEO_SPIN;
    Make(config, 0);
    BaseRecorder recorder;
    constexpr UINT kMessages[] = {WM_CUT,    WM_CLEAR,           WM_UNDO,       EM_UNDO,    EM_CANUNDO,
                                  EM_SETSEL, EM_EMPTYUNDOBUFFER, WM_MOUSEWHEEL, WM_SYSCHAR, WM_LBUTTONDBLCLK};
    for (const UINT message : kMessages) {
        recorder.Forget();
        Send(message, message == WM_SYSCHAR ? 8 : 0, 0);
        EXPECT_EQ(recorder.Of(message).size(), 1u) << message;
        EXPECT_TRUE(recorder.Of(EM_CHARFROMPOS).empty()) << message;
    }
}

}  // namespace
}  // namespace zttest
