// Each action of a script as the message that a program or a user would send; its result is checked on the way.
#include "tests/field/real_player.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/clipboard.h"

namespace zttest {
namespace {

// Wide enough for every text played: a control that scrolls sideways would move under the clicks.
constexpr int kWidth = 8000;
constexpr int kHeight = 40;
constexpr int kClickY = 5;

struct StyleBit {
    int32_t style;
    DWORD bit;
};

constexpr StyleBit kStyleBits[] = {
    {kReadOnly, ES_READONLY },
    {kUpper,    ES_UPPERCASE},
    {kLower,    ES_LOWERCASE},
    {kDigits,   ES_NUMBER   },
};

DWORD BitsOf(int32_t style)
{
    DWORD bits = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
    for (const StyleBit& row : kStyleBits)
        if (style & row.style)
            bits |= row.bit;
    return bits;
}

char LetterOf(WORD code)
{
    switch (code) {
    case EN_UPDATE: return 'U';
    case EN_CHANGE: return 'C';
    case EN_MAXTEXT: return 'M';
    case EN_SETFOCUS:
    case EN_KILLFOCUS: return '\0';
    default: return '?';
    }
}

LRESULT CALLBACK ParentProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* told = reinterpret_cast<std::string*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    if (message == WM_COMMAND && told)
        if (const char letter = LetterOf(HIWORD(wParam)))
            *told += letter;
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

HWND MakeParent()
{
    WNDCLASSA parentClass = {};
    parentClass.lpfnWndProc = ParentProc;
    parentClass.hInstance = GetModuleHandleA(nullptr);
    parentClass.lpszClassName = "zttest field parent";
    RegisterClassA(&parentClass);
    return CreateWindowA(parentClass.lpszClassName, "", WS_OVERLAPPEDWINDOW, 0, 0, kWidth, 2 * kHeight, nullptr,
                         nullptr, parentClass.hInstance, nullptr);
}

// One for all controls: making it takes longer than a script.
HWND Parent()
{
    static const HWND parent = MakeParent();
    return parent;
}

void HoldKeys(int32_t keysDown)
{
    BYTE keys[256] = {};
    if (keysDown & kShiftDown)
        keys[VK_SHIFT] = keys[VK_LSHIFT] = 0x80;
    if (keysDown & kCtrlDown)
        keys[VK_CONTROL] = keys[VK_LCONTROL] = 0x80;
    SetKeyboardState(keys);
}

// The keys held while one operation is played.
class HeldKeys {
public:
    explicit HeldKeys(int32_t keysDown) : held_(keysDown != kNoKeys)
    {
        if (held_)
            HoldKeys(keysDown);
    }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;
    ~HeldKeys()
    {
        if (held_)
            HoldKeys(kNoKeys);
    }

private:
    bool held_;
};

// Control characters and signs may have no width of their own: no point in the window tells such positions apart.
bool HasPlainGlyphs(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        const auto code = static_cast<unsigned char>(c);
        return (code >= ' ' && code < 0x7F) || code >= 0xC0;
    });
}

LPARAM Pointer(const std::string& text)
{
    return reinterpret_cast<LPARAM>(text.c_str());
}

}  // namespace

RealPlayer::RealPlayer(int32_t style)
    : edit_(CreateWindowExA(0, "edit", "", BitsOf(style), 0, 0, kWidth, kHeight, Parent(), nullptr,
                            GetModuleHandleA(nullptr), nullptr))
{
    SetWindowLongPtrA(Parent(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&told_));
    SetFocus(edit_);
    HoldKeys(kNoKeys);
}

RealPlayer::~RealPlayer()
{
    SetWindowLongPtrA(Parent(), GWLP_USERDATA, 0);
    DestroyWindow(edit_);
}

LRESULT RealPlayer::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageA(edit_, message, wParam, lParam);
}

void RealPlayer::Expect(LRESULT expected, UINT message, WPARAM wParam, LPARAM lParam) const
{
    EXPECT_EQ(Send(message, wParam, lParam), expected) << "message " << message << ", " << wParam;
}

std::string RealPlayer::Play(const Operation& operation)
{
    const auto first = static_cast<WPARAM>(operation.first);
    told_.clear();
    switch (operation.action) {
    case Action::Type: {
        const HeldKeys held(operation.second);
        Expect(1, WM_CHAR, static_cast<unsigned char>(operation.text[0]));
        break;
    }
    case Action::Key: {
        const HeldKeys held(operation.second);
        Expect(1, WM_KEYDOWN, first);
        Send(WM_KEYUP, first);
        break;
    }
    case Action::SetText: Expect(1, WM_SETTEXT, 0, Pointer(operation.text)); break;
    case Action::Put: Put(operation.text); break;
    case Action::Replace: Expect(1, EM_REPLACESEL, FALSE, Pointer(operation.text)); break;
    case Action::ReplaceWithUndo: Expect(1, EM_REPLACESEL, TRUE, Pointer(operation.text)); break;
    case Action::Select: Expect(1, EM_SETSEL, first, operation.second); break;
    case Action::Limit: Expect(0, EM_SETLIMITTEXT, first); break;
    case Action::FillClipboard: CopyToClipboard(operation.text); break;
    case Action::EmptyClipboard: EmptyTheClipboard(); break;
    case Action::Cut: Expect(0, WM_CUT); break;
    case Action::Copy: Expect(0, WM_COPY); break;
    case Action::Paste: Expect(0, WM_PASTE); break;
    case Action::Clear: Expect(0, WM_CLEAR); break;
    case Action::Undo: Expect(1, EM_UNDO); break;
    case Action::UndoByWindowMessage: Expect(1, WM_UNDO); break;
    case Action::ForgetUndo: Expect(0, EM_EMPTYUNDOBUFFER); break;
    case Action::Modify: Expect(0, EM_SETMODIFY, first); break;
    case Action::Click:
        Mouse(WM_LBUTTONDOWN, operation.first, MK_LBUTTON);
        Mouse(WM_LBUTTONUP, operation.first, 0);
        break;
    case Action::ShiftClick:
        Mouse(WM_LBUTTONDOWN, operation.first, MK_LBUTTON | MK_SHIFT);
        Mouse(WM_LBUTTONUP, operation.first, MK_SHIFT);
        break;
    case Action::DoubleClick:
        Mouse(WM_LBUTTONDOWN, operation.first, MK_LBUTTON);
        Mouse(WM_LBUTTONUP, operation.first, 0);
        Mouse(WM_LBUTTONDBLCLK, operation.first, MK_LBUTTON);
        Mouse(WM_LBUTTONUP, operation.first, 0);
        break;
    case Action::Drag:
        Mouse(WM_LBUTTONDOWN, operation.first, MK_LBUTTON);
        Mouse(WM_MOUSEMOVE, operation.second, MK_LBUTTON);
        Mouse(WM_LBUTTONUP, operation.second, 0);
        break;
    case Action::ReadOnly: Expect(1, EM_SETREADONLY, first); break;
    }
    return told_;
}

// As the control library does it: without an undo step, and uncut by a limit below the text that stands there.
void RealPlayer::Put(const std::string& text) const
{
    const LRESULT limit = Send(EM_GETLIMITTEXT);
    const bool raised = limit < Length();
    if (raised)
        Send(EM_SETLIMITTEXT, static_cast<WPARAM>(Length()));
    Expect(1, EM_REPLACESEL, FALSE, Pointer(text));
    if (raised)
        Send(EM_SETLIMITTEXT, static_cast<WPARAM>(limit));
    Send(EM_EMPTYUNDOBUFFER);
}

// The left edge of the character at a position; behind the text, a point right of everything.
int32_t RealPlayer::Left(int32_t position) const
{
    if (position >= Length())
        return kWidth - 10;
    return static_cast<int16_t>(LOWORD(Send(EM_POSFROMCHAR, static_cast<WPARAM>(position))));
}

void RealPlayer::Mouse(UINT message, int32_t position, WPARAM held) const
{
    Expect(0, message, held, MAKELPARAM(Left(position), kClickY));
}

bool RealPlayer::CanPlay(const Operation& operation) const
{
    switch (operation.action) {
    case Action::Click:
    case Action::ShiftClick:
    case Action::DoubleClick:
    case Action::Drag: return HasPlainGlyphs(Text());
    default: return true;
    }
}

std::string RealPlayer::Text() const
{
    std::string text(static_cast<size_t>(Length()) + 1, '\0');
    text.resize(static_cast<size_t>(Send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(&text[0]))));
    return text;
}

State RealPlayer::Look() const
{
    State state;
    state.text = Text();
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&state.start), reinterpret_cast<LPARAM>(&state.end));
    state.caretHidden = !HasPlainGlyphs(state.text);
    if (state.start != state.end && !state.caretHidden) {
        POINT caret = {};
        GetCaretPos(&caret);
        state.caretAtStart = caret.x == Left(state.start);
    }
    state.modified = Send(EM_GETMODIFY) != 0;
    state.canUndo = Send(EM_CANUNDO) != 0;
    state.limit = static_cast<int32_t>(Send(EM_GETLIMITTEXT));
    return state;
}

std::string RealPlayer::ClipboardText() const
{
    return zttest::ClipboardText();
}

}  // namespace zttest
