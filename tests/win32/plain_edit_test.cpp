// A string control without a mask is told from a plain edit by nothing: the same messages are sent to a standard edit control and to
// the library's, and what they answer, show and tell their parents is the same, step by step.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/support/clipboard.h"
#include "tests/support/key_case.h"
#include "tests/support/live/form.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr int kWidth = 160;
constexpr int kHeight = 60;
constexpr int kEditId = 5;

// ---- what is done

enum class Do : uint8_t {
    Send,       // a message
    SendText,   // a message with a text as lParam; null for none
    Key,        // a key pressed and released, with its character when it makes one
    Clipboard,  // filled by another program
    Resize,
    TakeFocus,
    GiveFocus,  // to the parent
    GetLine,
    AskAsDialog,  // the dialog manager's question about a key
    OpenMenu,     // the context menu, given up at once
};

struct Step {
    Do what;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    const char* text = nullptr;
    bool shift = false;
    bool control = false;
};
using Script = std::vector<Step>;

Step Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return {Do::Send, message, wParam, lParam};
}
Step SendText(UINT message, const char* text, WPARAM wParam = 0)
{
    return {Do::SendText, message, wParam, 0, text};
}
Step Chars(WPARAM character)
{
    return Send(WM_CHAR, character, 1);
}
// character: what the key makes, 0 for nothing.
Step Key(WPARAM key, WPARAM character = 0, bool shift = false, bool control = false)
{
    return {Do::Key, static_cast<UINT>(character), key, 0, nullptr, shift, control};
}
Step CtrlLetter(char letter)
{
    return Key(static_cast<WPARAM>(letter), static_cast<WPARAM>(letter - 'A' + 1), false, true);
}
Step Clip(const char* text)
{
    return {Do::Clipboard, 0, 0, 0, text};
}
Step Select(int start, int end)
{
    return Send(EM_SETSEL, static_cast<WPARAM>(start), end);
}
Step Mouse(UINT message, int x, int y, WPARAM held = 0)
{
    return Send(message, held, MAKELPARAM(x, y));
}
Step Simple(Do what, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return {what, 0, wParam, lParam};
}

std::string Print(const Step& step)
{
    char text[120];
    std::snprintf(text, sizeof text, "{%d, 0x%x, 0x%llx, 0x%llx, %s, %d, %d}", static_cast<int>(step.what),
                  step.message, static_cast<unsigned long long>(step.wParam),
                  static_cast<unsigned long long>(step.lParam),
                  step.text ? ("\"" + std::string(step.text, 0, 30) + "\"").c_str() : "null", step.shift, step.control);
    return text;
}

// ---- to whom

// A hidden parent that writes down what its edit control tells it.
class Parent {
public:
    Parent()
    {
        WNDCLASSA parentClass = {};
        parentClass.lpfnWndProc = Proc;
        parentClass.hInstance = GetModuleHandleA(nullptr);
        parentClass.lpszClassName = "zttest plain parent";
        RegisterClassA(&parentClass);
        hwnd_ = CreateWindowExA(0, parentClass.lpszClassName, "", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300, nullptr, nullptr,
                                parentClass.hInstance, nullptr);
        SetWindowLongPtrA(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    Parent(const Parent&) = delete;
    Parent& operator=(const Parent&) = delete;
    ~Parent()
    {
        SetWindowLongPtrA(hwnd_, GWLP_USERDATA, 0);
        DestroyWindow(hwnd_);
    }
    HWND hwnd() const { return hwnd_; }
    std::string TakeTold()
    {
        std::string told;
        told.swap(told_);
        return told;
    }

private:
    static bool IsWrittenDown(UINT message)
    {
        return message == WM_COMMAND || message == WM_CLOSE || message == WM_NEXTDLGCTL || message == DM_GETDEFID ||
               message == WM_CONTEXTMENU;
    }
    static LRESULT CALLBACK Proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* parent = reinterpret_cast<Parent*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
        if (!parent || !IsWrittenDown(message))
            return DefWindowProcA(hwnd, message, wParam, lParam);
        char line[80];
        const unsigned long long detail = message == WM_COMMAND ? wParam : 0;
        std::snprintf(line, sizeof line, " told 0x%x 0x%llx", message, detail);
        parent->told_ += line;
        if (message == WM_COMMAND && lParam) {  // what the parent sees at that moment
            const auto edit = reinterpret_cast<HWND>(lParam);
            parent->told_ +=
                " '" + TextOf(edit) + "' " + (SendMessageA(edit, EM_GETMODIFY, 0, 0) ? "modified" : "unmodified");
        }
        return 0;
    }

    HWND hwnd_;
    std::string told_;
};

enum class Kind {
    Standard,
    ByClass,
    ByInit,
    Subclassed,
    EmptyMaskLater,  // made with a mask that is taken away
    WithData,        // made with data
    AfterNumbers,    // a number control that becomes a string
    WithoutRecord,
    WithSpin,  // whose strip moves the text where it is not left-aligned, and scrolls it sooner
};

HWND MakeEdit(Kind kind, HWND parent, DWORD style, SharedHeap heap)
{
    EditInitParams params = {};
    params.heap = heap;
    params.maskText = kind == Kind::EmptyMaskLater ? "(###) ###" : kind == Kind::AfterNumbers ? "#,##0.00" : "";
    params.dataType = kind == Kind::AfterNumbers ? DT_NUMBER : DT_STRING;
    params.initialData = kind == Kind::WithData ? "data" : nullptr;
    params.options = kind == Kind::EmptyMaskLater ? ZTEO_AUTOSKIP : kind == Kind::WithSpin ? ZTEO_SPIN : 0;
    params.spinIncrement = 1;
    const bool standard = kind == Kind::Standard || kind == Kind::Subclassed;
    const bool initLater = kind == Kind::ByInit || kind == Kind::Subclassed || kind == Kind::WithoutRecord;
    const HWND edit = CreateWindowExA(0, standard ? "edit" : ZTEDIT_CLASS, "", WS_CHILD | WS_VISIBLE | style, 0, 0,
                                      kWidth, kHeight, parent, reinterpret_cast<HMENU>(kEditId),
                                      GetModuleHandleA(nullptr), standard || initLater ? nullptr : &params);
    if (kind == Kind::Subclassed)
        SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ZTE_SuperEditWndProc));
    if (kind == Kind::ByInit || kind == Kind::Subclassed)
        ZTE_Init(edit, &params);
    if (kind == Kind::EmptyMaskLater || kind == Kind::AfterNumbers)
        ZTE_FmtSetMask(edit, "", DT_STRING);
    return edit;
}

class Subject {
public:
    // withPlaces: look at the places of the text and the caret in the window as well.
    Subject(Kind kind, DWORD style, bool withPlaces = true)
        : withPlaces_(withPlaces), heap_(SharedHeapCreate()), edit_(MakeEdit(kind, parent_.hwnd(), style, heap_))
    {
        atCreation_ = parent_.TakeTold();
        SetFocus(edit_);
        HoldKeys(false, false);
        SetWindowTextA(edit_, "");
        parent_.TakeTold();
    }
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    ~Subject()
    {
        HoldKeys(false, false);
        DestroyWindow(edit_);
        SharedHeapDestroy(heap_);
    }

    // What came of a step: the result, what the parent was told, and how the control looks afterwards.
    std::string Play(const Step& step)
    {
        HoldKeys(step.shift, step.control);
        std::string seen = Carry(step);
        HoldKeys(false, false);
        DrainQueue();
        return seen + parent_.TakeTold() + Look();
    }
    const std::string& AtCreation() const { return atCreation_; }
    HWND hwnd() const { return edit_; }

private:
    static void HoldKeys(bool shift, bool control)
    {
        BYTE keys[256] = {};
        keys[VK_SHIFT] = keys[VK_LSHIFT] = shift ? 0x80 : 0;
        keys[VK_CONTROL] = keys[VK_LCONTROL] = control ? 0x80 : 0;
        SetKeyboardState(keys);
    }
    void DrainQueue() const
    {
        MSG message;
        while (PeekMessageA(&message, parent_.hwnd(), 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
    }
    std::string Answer(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return " " + std::to_string(static_cast<long long>(SendMessageA(edit_, message, wParam, lParam)));
    }
    std::string Carry(const Step& step)
    {
        switch (step.what) {
        case Do::Send: return Answer(step.message, step.wParam, step.lParam);
        case Do::SendText: return Answer(step.message, step.wParam, reinterpret_cast<LPARAM>(step.text));
        case Do::Key: return PressKey(step);
        case Do::Clipboard: CopyToClipboard(step.text); return "";
        case Do::Resize:
            SetWindowPos(edit_, nullptr, 0, 0, static_cast<int>(step.wParam), static_cast<int>(step.lParam),
                         SWP_NOMOVE | SWP_NOZORDER);
            return "";
        case Do::TakeFocus: SetFocus(edit_); return "";
        case Do::GiveFocus: SetFocus(parent_.hwnd()); return "";
        case Do::GetLine: return GetLine(step.wParam);
        case Do::AskAsDialog: return AskAsDialog(step.wParam);
        case Do::OpenMenu: return OpenMenu();
        }
        return "";
    }
    std::string PressKey(const Step& step) const
    {
        const auto scan =
            static_cast<LPARAM>(MapVirtualKeyA(static_cast<UINT>(step.wParam), MAPVK_VK_TO_VSC) << 16 | 1);
        std::string seen = Answer(WM_KEYDOWN, step.wParam, scan);
        if (step.message)
            seen += Answer(WM_CHAR, step.message, scan);
        return seen + Answer(WM_KEYUP, step.wParam, scan | static_cast<LPARAM>(0xC0000000u));
    }
    std::string GetLine(WPARAM line) const
    {
        char text[300] = {};
        text[0] = static_cast<char>(200);
        const LRESULT count = SendMessageA(edit_, EM_GETLINE, line, reinterpret_cast<LPARAM>(text));
        return " " + std::string(text, static_cast<size_t>(count > 0 ? count : 0));
    }
    std::string AskAsDialog(WPARAM key) const
    {
        MSG message = {edit_, WM_KEYDOWN, key, 1, 0, {}};
        return Answer(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&message));
    }
    static void CALLBACK GiveUpMenu(HWND, UINT, UINT_PTR, DWORD) { EndMenu(); }
    std::string OpenMenu() const
    {
        const UINT_PTR timer = SetTimer(nullptr, 0, 50, GiveUpMenu);
        const std::string seen = Answer(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit_), MAKELPARAM(20, 10));
        KillTimer(nullptr, timer);
        return seen;
    }
    std::string Places(DWORD position) const
    {
        POINT caret = {};
        GetCaretPos(&caret);
        RECT format = {};
        SendMessageA(edit_, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&format));
        return Answer(EM_POSFROMCHAR, position) + Answer(EM_GETFIRSTVISIBLELINE) + " caret " + std::to_string(caret.x) +
               "," + std::to_string(caret.y) + " rect " + std::to_string(format.left) + "," +
               std::to_string(format.right) + "," + std::to_string(format.bottom);
    }
    std::string Look() const
    {
        DWORD start = 0;
        DWORD end = 0;
        SendMessageA(edit_, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        std::string look =
            " shows '" + TextOf(edit_) + "' " + std::to_string(start) + "-" + std::to_string(end) + " state";
        constexpr UINT kQuestions[] = {EM_GETMODIFY,    EM_CANUNDO,    EM_GETLIMITTEXT,
                                       EM_GETLINECOUNT, EM_GETMARGINS, EM_GETPASSWORDCHAR};
        for (const UINT question : kQuestions)
            look += Answer(question);
        look += Answer(EM_LINEINDEX, static_cast<WPARAM>(-1)) + Answer(EM_LINELENGTH, static_cast<WPARAM>(-1)) +
                Answer(WM_GETDLGCODE) + (withPlaces_ ? Places(start) : "");
        return look + " style " + std::to_string(GetWindowLongA(edit_, GWL_STYLE)) + " clip '" + ClipboardText() + "'";
    }

    Parent parent_;
    bool withPlaces_;
    SharedHeap heap_;
    HWND edit_;
    std::string atCreation_;
};

// The steps of a script, each with what came of it. The clipboard is the same at every beginning.
std::vector<std::string> Play(Kind kind, DWORD style, const Script& script, bool withPlaces = true)
{
    CopyToClipboard("clipped");
    Subject subject(kind, style, withPlaces);
    std::vector<std::string> seen;
    for (const Step& step : script)
        seen.push_back(Print(step) + ":" + subject.Play(step));
    return seen;
}

// For reports: control characters would garble them.
std::string Legible(const std::string& text)
{
    std::string legible;
    for (const char c : text) {
        char hex[8];
        std::snprintf(hex, sizeof hex, "\\x%02x", static_cast<unsigned char>(c));
        legible += static_cast<unsigned char>(c) < ' ' ? hex : std::string(1, c);
    }
    return legible;
}

// False at the first step that comes out otherwise, with the steps before it.
bool PlayAlike(Kind kind, DWORD style, const Script& script, const std::vector<std::string>& expected,
               bool withPlaces = true)
{
    const std::vector<std::string> seen = Play(kind, style, script, withPlaces);
    for (size_t i = 0; i < script.size(); ++i) {
        if (seen[i] == expected[i])
            continue;
        std::string before;
        for (size_t k = i > 6 ? i - 6 : 0; k < i; ++k)
            before += "  " + Legible(expected[k]) + "\n";
        ADD_FAILURE() << "style 0x" << std::hex << style << ", kind " << static_cast<int>(kind) << "\n"
                      << before << "plain " << Legible(expected[i]) << "\nours  " << Legible(seen[i]);
        return false;
    }
    return true;
}

constexpr Kind kKinds[] = {Kind::ByClass,  Kind::ByInit,       Kind::Subclassed,   Kind::EmptyMaskLater,
                           Kind::WithData, Kind::AfterNumbers, Kind::WithoutRecord};

void ExpectAlike(DWORD style, const Script& script)
{
    const std::vector<std::string> expected = Play(Kind::Standard, style, script);
    for (const Kind kind : kKinds)
        if (!PlayAlike(kind, style, script, expected))
            return;
}

// ---- scripts by hand

struct Row {
    const char* name;
    DWORD style;
    Script script;
};
void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

constexpr DWORD kLine = ES_AUTOHSCROLL;
constexpr DWORD kLines = ES_MULTILINE | ES_AUTOVSCROLL;
const std::string kLongText(400, 'w');

// clang-format off
const Row kRows[] = {
    {"Typing", kLine, {Chars('a'), Chars('b'), Chars(' '), Chars('9'), Key('C', 'c'), Key('D', 'D', true), Chars(0xE4), Chars(0xFC)}},
    {"TypingOverASelection", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, 3), Chars('x'), Send(EM_UNDO), Send(EM_UNDO),
        Select(4, 7), Key('Y', 'y')}},
    {"ControlCharactersOverASelection", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, 3), Key(VK_RETURN, '\r'), Key(VK_ESCAPE, 27),
        Key(VK_TAB, '\t'), Chars('\n'), Chars(1), Chars(2), Chars(4), Chars(5), Chars(11), Chars(12), Chars(19), Chars(23), Chars(25),
        Chars(28), Chars(31), Chars(127), Chars(0)}},
    {"ControlLetters", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, 3), CtrlLetter('C'), CtrlLetter('X'), CtrlLetter('Z'),
        CtrlLetter('A'), CtrlLetter('V'), CtrlLetter('Z'), CtrlLetter('Y'), CtrlLetter('D'), CtrlLetter('B')}},
    {"Backspace", kLine, {SendText(WM_SETTEXT, "one two"), Select(7, 7), Key(VK_BACK, 8), Key(VK_BACK, 8), Select(1, 3),
        Key(VK_BACK, 8), Send(EM_UNDO), Key(VK_BACK, 8, true), Key(VK_BACK, 127, false, true), Select(0, 0), Key(VK_BACK, 8)}},
    {"BackspaceKeyAndCharacterApart", kLine, {SendText(WM_SETTEXT, "one"), Select(3, 3), Send(WM_KEYDOWN, VK_BACK, 1), Chars('x'),
        Chars(8), Chars(8), Send(WM_KEYUP, VK_BACK, 1)}},
    {"Delete", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, 0), Key(VK_DELETE), Key(VK_DELETE, 0, true), Select(0, 2),
        Key(VK_DELETE, 0, true), Send(EM_UNDO), Select(1, 1), Key(VK_DELETE, 0, false, true), Key(VK_DELETE), Send(WM_UNDO)}},
    {"Arrows", kLine, {SendText(WM_SETTEXT, "one two three"), Key(VK_RIGHT), Key(VK_DOWN), Key(VK_UP), Key(VK_LEFT), Key(VK_END),
        Key(VK_LEFT, 0, true), Key(VK_LEFT, 0, true, true), Key(VK_HOME), Key(VK_RIGHT, 0, false, true), Key(VK_END, 0, true),
        Key(VK_PRIOR), Key(VK_NEXT), Key(VK_UP, 0, true)}},
    {"KeysMarkedByTheirUpperHalf", kLine, {SendText(WM_SETTEXT, "one"), Send(WM_KEYDOWN, 9 << 16 | VK_RIGHT, 1),
        Send(WM_KEYDOWN, 9 << 16, 1), Send(WM_KEYDOWN, VK_RIGHT, 1)}},
    {"InsertKeys", kLine, {SendText(WM_SETTEXT, "one"), Select(0, 2), Key(VK_INSERT, 0, false, true), Key(VK_INSERT), Select(3, 3),
        Key(VK_INSERT, 0, true), Key(VK_INSERT, 0, true, true)}},
    {"OtherKeys", kLine, {SendText(WM_SETTEXT, "one"), Key(VK_F4), Key(VK_F10), Key(VK_APPS), Key(VK_SHIFT), Key(VK_CONTROL),
        Send(WM_SYSKEYDOWN, VK_BACK, 1 << 29), Send(WM_SYSCHAR, 'a', 1 << 29)}},
    {"PasteOfTwoLines", kLine, {SendText(WM_SETTEXT, "ab"), Select(1, 1), Clip("one\r\ntwo"), Send(WM_PASTE), Send(EM_UNDO),
        Select(0, -1), CtrlLetter('V'), Clip("x\ty"), Send(WM_PASTE)}},
    {"PasteOfTwoLinesIntoMany", kLines, {SendText(WM_SETTEXT, "ab"), Select(1, 1), Clip("one\r\ntwo"), Send(WM_PASTE), Send(EM_UNDO),
        CtrlLetter('V'), Simple(Do::GetLine, 1)}},
    {"PasteOfNothing", kLine, {SendText(WM_SETTEXT, "ab"), Select(0, 1), Clip(""), Send(WM_PASTE), CtrlLetter('V'),
        Key(VK_INSERT, 0, true)}},
    {"ClipboardMessages", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, 3), Send(WM_COPY), Send(WM_CUT), Send(WM_UNDO),
        Send(WM_CLEAR), Send(EM_UNDO), Send(WM_PASTE), Send(WM_CUT)}},
    {"Undo", kLine, {Chars('a'), Chars('b'), Send(EM_CANUNDO), Send(EM_UNDO), Send(EM_UNDO), Chars(8), Send(WM_UNDO),
        Send(EM_EMPTYUNDOBUFFER), Send(EM_UNDO), CtrlLetter('Z')}},
    {"Limit", kLine, {Send(EM_SETLIMITTEXT, 3), Chars('a'), Chars('b'), Chars('c'), Chars('d'), Clip("12345"), Select(1, 2),
        Send(WM_PASTE), SendText(WM_SETTEXT, "longer"), Chars('x'), SendText(EM_REPLACESEL, "123", TRUE), Send(EM_SETLIMITTEXT, 0),
        Chars('y')}},
    {"NarrowWithoutScrolling", 0, {SendText(WM_SETTEXT, "wwwwwwwwww"), Key(VK_END), Chars('w'), Chars('w'), Clip("wwwwwwwwwwwwwwww"),
        Send(WM_PASTE)}},
    {"DigitsOnly", kLine | ES_NUMBER, {Chars('1'), Chars('a'), Chars('-'), Chars('.'), Chars('2'), Clip("12ab"), Send(WM_PASTE),
        CtrlLetter('V'), Select(0, 1), Chars('x'), Key(VK_BACK, 8)}},
    {"UpperCase", kLine | ES_UPPERCASE, {Chars('a'), Chars('B'), Chars(0xE4), SendText(WM_SETTEXT, "mixed Case"),
        SendText(EM_REPLACESEL, "more", TRUE), Clip("pasted"), Send(WM_PASTE)}},
    {"LowerCase", kLine | ES_LOWERCASE, {Chars('A'), Chars('b'), Chars(0xC4), SendText(WM_SETTEXT, "MIXED Case"),
        SendText(EM_REPLACESEL, "MORE", TRUE), Clip("PASTED"), Send(WM_PASTE)}},
    {"Password", kLine | ES_PASSWORD, {Chars('a'), Chars('b'), Select(0, 2), Send(WM_COPY), CtrlLetter('C'), CtrlLetter('X'),
        Send(WM_CUT), Send(EM_SETPASSWORDCHAR, '#'), Chars('c'), Key(VK_LEFT, 0, false, true)}},
    {"ReadOnly", kLine | ES_READONLY, {SendText(WM_SETTEXT, "one two"), Select(0, 3), Chars('x'), Key(VK_BACK, 8), Key(VK_DELETE),
        CtrlLetter('X'), CtrlLetter('V'), CtrlLetter('Z'), Send(WM_CUT), Send(WM_CLEAR), Send(WM_PASTE), Key(VK_DELETE, 0, true),
        Key(VK_INSERT, 0, true), SendText(EM_REPLACESEL, "y", TRUE), Send(EM_SETREADONLY, FALSE), Chars('z'),
        Send(EM_SETREADONLY, TRUE)}},
    {"Disabled", kLine | WS_DISABLED, {SendText(WM_SETTEXT, "one two"), Select(0, 3), Chars('x'), Key(VK_DELETE), Send(WM_PASTE),
        CtrlLetter('V'), Key(VK_UP)}},
    {"ManyLines", kLines, {Chars('a'), Key(VK_RETURN, '\r'), Chars('b'), Key(VK_RETURN, '\r'), Chars('c'), Key(VK_UP), Key(VK_UP),
        Key(VK_END), Key(VK_DOWN, 0, true), Key(VK_TAB, '\t'), Key(VK_BACK, 8), Simple(Do::GetLine, 0), Simple(Do::GetLine, 1),
        Send(EM_LINEFROMCHAR, 2), Send(EM_LINEINDEX, 1), CtrlLetter('A'), Key(VK_RETURN, '\n', false, true), Key(VK_ESCAPE, 27)}},
    {"ManyLinesThatWantReturn", kLines | ES_WANTRETURN, {Chars('a'), Key(VK_RETURN, '\r'), Simple(Do::AskAsDialog, VK_RETURN),
        Key(VK_RETURN, '\r'), Chars('\n')}},
    {"ManyLinesInADialog", kLines, {SendText(WM_SETTEXT, "one"), Simple(Do::AskAsDialog, VK_RETURN), Key(VK_RETURN, '\r'),
        Simple(Do::AskAsDialog, VK_ESCAPE), Key(VK_ESCAPE, 27), Simple(Do::AskAsDialog, VK_TAB), Key(VK_TAB, '\t'),
        Simple(Do::AskAsDialog, 'A'), Key('A', 'a')}},
    {"OneLineInADialog", kLine, {SendText(WM_SETTEXT, "one"), Simple(Do::AskAsDialog, VK_RETURN), Key(VK_RETURN, '\r'),
        Simple(Do::AskAsDialog, VK_ESCAPE), Key(VK_ESCAPE, 27), Simple(Do::AskAsDialog, VK_TAB), Key(VK_TAB, '\t')}},
    {"Clicks", kLine, {SendText(WM_SETTEXT, "one (two) three"), Mouse(WM_LBUTTONDOWN, 30, 5, MK_LBUTTON), Mouse(WM_LBUTTONUP, 30, 5),
        Mouse(WM_LBUTTONDBLCLK, 30, 5, MK_LBUTTON), Mouse(WM_LBUTTONUP, 30, 5), Mouse(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON),
        Mouse(WM_MOUSEMOVE, 60, 5, MK_LBUTTON), Mouse(WM_LBUTTONUP, 60, 5), Mouse(WM_LBUTTONDOWN, 90, 5, MK_LBUTTON | MK_SHIFT),
        Mouse(WM_LBUTTONUP, 90, 5, MK_SHIFT), Mouse(WM_LBUTTONUP, 10, 5), Mouse(WM_RBUTTONDOWN, 30, 5, MK_RBUTTON),
        Mouse(WM_MBUTTONDOWN, 30, 5, MK_MBUTTON), Mouse(WM_MBUTTONUP, 30, 5)}},
    {"ClicksInAnEmptyText", kLine, {Mouse(WM_LBUTTONDOWN, 30, 5, MK_LBUTTON), Mouse(WM_LBUTTONUP, 30, 5)}},
    {"Texts", kLine, {SendText(WM_SETTEXT, "one"), SendText(WM_SETTEXT, nullptr), SendText(WM_SETTEXT, ""), Chars('a'),
        SendText(WM_SETTEXT, "a"), SendText(WM_SETTEXT, "two\r\nlines"), SendText(WM_SETTEXT, kLongText.c_str()), Key(VK_END),
        Send(WM_GETTEXTLENGTH)}},
    {"TextsOfManyLines", kLines, {SendText(WM_SETTEXT, "one\r\ntwo"), Chars('a'), SendText(WM_SETTEXT, nullptr),
        SendText(WM_SETTEXT, kLongText.c_str()), Send(EM_SCROLL, SB_PAGEDOWN), Send(EM_LINESCROLL, 0, 2), Send(EM_SCROLLCARET)}},
    {"Selections", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, -1), Select(-1, 0), Select(5, 2), Select(2, 99), Select(99, 99),
        Send(EM_SETSEL, 0, -1), Send(EM_GETSEL), Send(EM_CHARFROMPOS, 0, MAKELPARAM(20, 5)), Send(EM_POSFROMCHAR, 3),
        Send(EM_POSFROMCHAR, 99)}},
    {"Replacements", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, 3), SendText(EM_REPLACESEL, "1", TRUE), Send(EM_UNDO),
        Select(0, 3), SendText(EM_REPLACESEL, "2", FALSE), Send(EM_UNDO), SendText(EM_REPLACESEL, "", TRUE)}},
    {"Modified", kLine, {Send(EM_SETMODIFY, TRUE), SendText(WM_SETTEXT, "a"), Chars('b'), Send(EM_SETMODIFY, FALSE), Key(VK_LEFT),
        Key(VK_DELETE), Send(EM_SETMODIFY, FALSE), Send(EM_UNDO)}},
    {"Focus", kLine, {SendText(WM_SETTEXT, "one"), Select(0, 2), Simple(Do::GiveFocus), Chars('x'), Simple(Do::TakeFocus), Chars('y')}},
    {"Margins", kLine, {SendText(WM_SETTEXT, "one"), Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(4, 7)),
        Send(EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, EC_USEFONTINFO)), Send(EM_SETMARGINS, EC_USEFONTINFO, 0), Send(EM_GETMARGINS)}},
    {"Fonts", kLine, {SendText(WM_SETTEXT, "one"), Key(VK_END), Chars('x'),
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT)), TRUE), Chars('y'), Send(WM_SETFONT, 0, FALSE),
        Send(EM_UNDO)}},
    {"FontsOfManyLines", kLines, {SendText(WM_SETTEXT, "one\r\ntwo"),
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT)), TRUE), Chars('y'), Send(EM_UNDO)}},
    {"Sizes", kLine, {SendText(WM_SETTEXT, kLongText.c_str()), Key(VK_END), Simple(Do::Resize, 60, 20), Chars('x'),
        Simple(Do::Resize, 0, 0), Chars('y'), Simple(Do::Resize, 200, 30)}},
    {"SizesOfManyLines", kLines, {SendText(WM_SETTEXT, kLongText.c_str()), Key(VK_END), Simple(Do::Resize, 60, 20), Chars('x'),
        Simple(Do::Resize, 200, 30), Send(WM_VSCROLL, SB_TOP)}},
    {"RightAligned", kLine | ES_RIGHT, {Chars('a'), Chars('b'), Key(VK_HOME), Chars('c'), SendText(WM_SETTEXT, kLongText.c_str()),
        Key(VK_END), Chars('d')}},
    {"Centred", kLine | ES_CENTER, {Chars('a'), Chars('b'), Key(VK_HOME), Chars('c'), SendText(WM_SETTEXT, kLongText.c_str()),
        Key(VK_END), Chars('d')}},
    {"Redrawing", kLine, {Send(WM_SETREDRAW, FALSE), Chars('a'), Chars('b'), Send(WM_SETREDRAW, TRUE), Chars('c')}},
    {"Painting", kLine, {Chars('a'), Send(WM_PAINT), Send(WM_MOVE), Send(WM_SETFOCUS), Send(WM_KILLFOCUS),
        Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(kWidth, kHeight)), Send(WM_ERASEBKGND, 0), Chars('b')}},
    {"DialogCodes", kLines | ES_WANTRETURN, {Send(WM_GETDLGCODE), Simple(Do::AskAsDialog, VK_RETURN), Simple(Do::AskAsDialog, VK_TAB),
        Simple(Do::AskAsDialog, VK_LEFT)}},
    {"ContextMenu", kLine, {SendText(WM_SETTEXT, "one two"), Select(0, 3), Simple(Do::OpenMenu), Chars('x'), Simple(Do::OpenMenu)}},
    {"Unknown", kLine, {Send(WM_USER + 77, 1, 2), Send(0xC123), Send(EM_GETIMESTATUS), Send(EM_GETTHUMB), Send(EM_FMTLINES, TRUE),
        Send(WM_NULL), Send(WM_WININICHANGE)}},
};
// clang-format on

class PlainEditRow : public RowTest<Row> {};

ROW_TEST(PlainEditRow, IsThatOfAStandardEdit)
{
    ExpectAlike(GetParam().style, GetParam().script);
}

TEST_ROWS(Scripts, PlainEditRow, kRows);

// Beside a spin, too: but for Up and Down.
class PlainEditWithASpin : public RowTest<Row> {};

ROW_TEST(PlainEditWithASpin, IsThatOfAStandardEdit)
{
    const Script& script = GetParam().script;
    const std::vector<std::string> expected = Play(Kind::Standard, GetParam().style, script, false);
    PlayAlike(Kind::WithSpin, GetParam().style, script, expected, false);
}

// Scripts in one line whose answers do not tell places.
std::vector<Row> RowsForASpin()
{
    const auto asksForPlaces = [](const Step& step) {
        const bool steps = step.what == Do::Key && (step.wParam == VK_UP || step.wParam == VK_DOWN);
        return steps || (step.what == Do::Send && (step.message == EM_POSFROMCHAR || step.message == EM_CHARFROMPOS));
    };
    std::vector<Row> rows;
    for (const Row& row : kRows)
        if ((row.style & (ES_MULTILINE | ES_AUTOHSCROLL)) == ES_AUTOHSCROLL &&
            std::none_of(row.script.begin(), row.script.end(), asksForPlaces))
            rows.push_back(row);
    return rows;
}
TEST_ROWS(Scripts, PlainEditWithASpin, RowsForASpin());

TEST(PlainEditWithoutASpin, IsComparedInManyScripts)
{
    EXPECT_GT(RowsForASpin().size(), 30u) << "beside a spin as well";
}

// ---- creation

TEST(PlainEditCreation, TellsTheParentNothing)
{
    EXPECT_EQ(Subject(Kind::Standard, kLine).AtCreation(), "");
    EXPECT_EQ(Subject(Kind::ByClass, kLine).AtCreation(), "");
    EXPECT_EQ(Subject(Kind::ByInit, kLine).AtCreation(), "");
    EXPECT_EQ(Subject(Kind::Subclassed, kLine).AtCreation(), "");
}

TEST(PlainEditCreation, WithDataTellsItAsSettingTheTextDoes)
{
    Parent parent;
    const HWND edit = CreateWindowExA(0, "edit", "", WS_CHILD | kLine, 0, 0, kWidth, kHeight, parent.hwnd(),
                                      reinterpret_cast<HMENU>(kEditId), nullptr, nullptr);
    SetWindowTextA(edit, "data");
    EXPECT_EQ(Subject(Kind::WithData, kLine).AtCreation(), parent.TakeTold());
}

TEST(PlainEditCreation, EmptiesTheWindowsText)
{
    Parent parent;
    const SharedHeap heap = SharedHeapCreate();
    EditInitParams params = {};
    params.heap = heap;
    params.dataType = DT_STRING;
    const HWND edit = CreateWindowExA(0, ZTEDIT_CLASS, "title", WS_CHILD | kLine, 0, 0, kWidth, kHeight, parent.hwnd(),
                                      nullptr, nullptr, &params);
    EXPECT_EQ(TextOf(edit), "");
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
    EXPECT_EQ(SendMessageA(edit, EM_CANUNDO, 0, 0), 0);
    DestroyWindow(edit);
    SharedHeapDestroy(heap);
}

TEST(PlainEditData, IsSetAsATextIs)
{
    Subject standard(Kind::Standard, kLine);
    Subject ours(Kind::ByClass, kLine);
    const Step look = Send(WM_NULL);
    for (const char* text : {"one", "two\r\nlines", "", "(###)"}) {
        SetFocus(standard.hwnd());
        standard.Play(Chars('x'));
        SetWindowTextA(standard.hwnd(), text);
        const std::string expected = standard.Play(look);
        SetFocus(ours.hwnd());
        ours.Play(Chars('x'));
        ZTE_FmtSetDataString(ours.hwnd(), text);
        EXPECT_EQ(ours.Play(look), expected) << text;
        ours.Play(Chars('x'));
        ZTE_FmtSetData(ours.hwnd(), text);
        EXPECT_EQ(ours.Play(look), expected) << text;
    }
    SetFocus(standard.hwnd());
    standard.Play(Chars('x'));
    SetWindowTextA(standard.hwnd(), "");
    const std::string expected = standard.Play(look);
    SetFocus(ours.hwnd());
    ours.Play(Chars('x'));
    ZTE_FmtSetMask(ours.hwnd(), "", DT_STRING);
    EXPECT_EQ(ours.Play(look), expected);
}

// ---- scripts at random

class RandomScript {
public:
    explicit RandomScript(unsigned seed) : random_(seed) {}

    DWORD Style()
    {
        constexpr DWORD kStyles[] = {kLine,
                                     kLine,
                                     kLines,
                                     kLines | ES_WANTRETURN,
                                     kLines | ES_AUTOHSCROLL,
                                     kLine | ES_NUMBER,
                                     kLine | ES_UPPERCASE,
                                     kLine | ES_LOWERCASE,
                                     kLine | ES_PASSWORD,
                                     kLine | ES_READONLY,
                                     kLine | ES_RIGHT,
                                     kLine | ES_CENTER,
                                     kLine | ES_NOHIDESEL | WS_BORDER,
                                     kLine | WS_DISABLED};
        return kStyles[Below(std::size(kStyles))];
    }
    Script Steps(int count)
    {
        Script script;
        for (int i = 0; i < count; ++i)
            script.push_back(Next());
        return script;
    }

private:
    template <typename Count>
    int Below(Count count)
    {
        return static_cast<int>(random_() % static_cast<unsigned>(count));
    }
    bool Sometimes() { return Below(4) == 0; }
    const char* Text()
    {
        static const char* const kTexts[] = {"",        "a",  "one two",   "two\r\nlines",   "12ab",
                                             "(555) x", "\t", "A\xE4\xDC", kLongText.c_str()};
        return kTexts[Below(std::size(kTexts))];
    }
    Step Next()
    {
        switch (Below(16)) {
        case 0:
        case 1:
        case 2: return Chars(static_cast<WPARAM>(Sometimes() ? Below(256) : ' ' + Below(95)));
        case 3: return Key(static_cast<WPARAM>('A' + Below(26)), static_cast<WPARAM>('a' + Below(26)), Sometimes());
        case 4: return CtrlLetter("ACVXZHYBD"[Below(9)]);
        case 5:
        case 6: return NavigationKey();
        case 7: return Key(VK_BACK, 8, Sometimes());
        case 8: return Select(Below(12) - 1, Below(14) - 1);
        case 9: return ByMouse();
        case 10: return Clip(Text());
        case 11: return TextMessage();
        case 12:
        case 13: return EditMessage();
        case 14: return Asides();
        default: return Key(Sometimes() ? VK_ESCAPE : VK_RETURN, static_cast<WPARAM>(Sometimes() ? 27 : '\r'));
        }
    }
    Step NavigationKey()
    {
        constexpr WPARAM kKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN,   VK_HOME,
                                    VK_END,  VK_PRIOR, VK_NEXT, VK_DELETE, VK_INSERT};
        return Key(kKeys[Below(std::size(kKeys))], 0, Sometimes(), Sometimes());
    }
    Step ByMouse()
    {
        constexpr UINT kMessages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_MOUSEMOVE};
        const UINT message = kMessages[Below(std::size(kMessages))];
        const WPARAM held = message == WM_LBUTTONUP ? 0u : static_cast<WPARAM>(MK_LBUTTON);
        return Mouse(message, Below(kWidth), Below(kHeight), held | (Sometimes() ? static_cast<WPARAM>(MK_SHIFT) : 0u));
    }
    Step TextMessage()
    {
        switch (Below(4)) {
        case 0: return SendText(WM_SETTEXT, Text());
        case 1: return SendText(WM_SETTEXT, nullptr);
        default: return SendText(EM_REPLACESEL, Text(), static_cast<WPARAM>(Below(2)));
        }
    }
    Step EditMessage()
    {
        struct Choice {
            UINT message;
            int wParams;
        };
        constexpr Choice kChoices[] = {
            {EM_UNDO,                1},
            {WM_UNDO,                1},
            {WM_CUT,                 1},
            {WM_COPY,                1},
            {WM_CLEAR,               1},
            {WM_PASTE,               1},
            {EM_EMPTYUNDOBUFFER,     1},
            {EM_SETMODIFY,           2},
            {EM_CANUNDO,             1},
            {EM_SETLIMITTEXT,        9},
            {EM_SCROLL,              4},
            {EM_LINEINDEX,           4},
            {EM_LINEFROMCHAR,        9},
            {EM_LINELENGTH,          9},
            {EM_GETSEL,              1},
            {EM_POSFROMCHAR,         9},
            {EM_SCROLLCARET,         1},
            {EM_SETREADONLY,         2},
            {WM_GETTEXTLENGTH,       1},
            {EM_GETFIRSTVISIBLELINE, 1},
        };
        const Choice& choice = kChoices[Below(std::size(kChoices))];
        return Send(choice.message, static_cast<WPARAM>(Below(choice.wParams)));
    }
    Step Asides()
    {
        switch (Below(7)) {
        case 0: return Simple(Do::GetLine, static_cast<WPARAM>(Below(3)));
        case 1: return Simple(Do::AskAsDialog, static_cast<WPARAM>(Sometimes() ? VK_TAB : VK_RETURN));
        case 2: return Simple(Do::Resize, static_cast<WPARAM>(Below(kWidth)), Below(kHeight));
        case 3: return Simple(Sometimes() ? Do::GiveFocus : Do::TakeFocus);
        case 4: return Send(EM_SETMARGINS, static_cast<WPARAM>(Below(4)), MAKELPARAM(Below(9), Below(9)));
        case 5: return Send(WM_KEYUP, static_cast<WPARAM>(Below(256)), 1);
        default: return Send(WM_KEYDOWN, static_cast<WPARAM>(Below(0x70) | (Sometimes() ? 9 << 16 : 0)), 1);
        }
    }

    std::mt19937 random_;
};

// ZT_PLAIN_SCRIPTS: how many; the default is for every run.
int ScriptCount()
{
    char count[20] = "";
    return GetEnvironmentVariableA("ZT_PLAIN_SCRIPTS", count, sizeof count) ? std::atoi(count) : 60;
}

TEST(PlainEditAtRandom, IsThatOfAStandardEdit)
{
    for (unsigned seed = 1; seed <= static_cast<unsigned>(ScriptCount()); ++seed) {
        RandomScript random(seed);
        const DWORD style = random.Style();
        const Script script = random.Steps(40);
        const std::vector<std::string> expected = Play(Kind::Standard, style, script);
        if (!PlayAlike(kKinds[seed % std::size(kKinds)], style, script, expected)) {
            ADD_FAILURE() << "seed " << seed;
            return;
        }
    }
}

}  // namespace
}  // namespace zttest
