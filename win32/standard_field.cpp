// The field of a control in a window: the standard edit control underneath.
#include "win32/standard_field.h"

#include "win32/life_guard.h"
#include "win32/spin_layout.h"
#include "win32/window_of_thread.h"
#include "ztedit.h"

namespace zte {

WNDPROC baseEditProc;

namespace {

// The control to which the library is just sending a message that hosts send too. Asked before the record is looked up, which
// costs a call into the window manager. A control's messages stay on its thread.
const WindowOfThread ownMessageTo;

// Announces a message of the library while it lives.
class OwnMessage {
public:
    explicit OwnMessage(HWND hwnd) : hwnd_(hwnd) { ownMessageTo.Set(hwnd); }
    OwnMessage(const OwnMessage&) = delete;
    OwnMessage& operator=(const OwnMessage&) = delete;
    ~OwnMessage() { StandardField::TakeOwnMessage(hwnd_); }

private:
    HWND hwnd_;
};

constexpr int kPressed = 0x8000;

// A text limit below the text shown would cut what is put in its place; it is raised for the replacement.
class RaisedLimit {
public:
    explicit RaisedLimit(HWND hwnd) : hwnd_(hwnd)
    {
        limit_ = CallBaseEdit(hwnd_, EM_GETLIMITTEXT, 0, 0);
        const LRESULT length = CallBaseEdit(hwnd_, WM_GETTEXTLENGTH, 0, 0);
        raised_ = limit_ < length;
        if (raised_)
            CallBaseEdit(hwnd_, EM_SETLIMITTEXT, static_cast<WPARAM>(length), 0);
    }
    RaisedLimit(const RaisedLimit&) = delete;
    RaisedLimit& operator=(const RaisedLimit&) = delete;
    ~RaisedLimit()
    {
        if (raised_)
            CallBaseEdit(hwnd_, EM_SETLIMITTEXT, static_cast<WPARAM>(limit_), 0);
    }

private:
    HWND hwnd_;
    LRESULT limit_;
    bool raised_;
};

class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND hwnd) : open_(OpenClipboard(hwnd) != FALSE) {}
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard()
    {
        if (open_)
            CloseClipboard();
    }
    bool IsOpen() const { return open_; }

private:
    bool open_;
};

// Of one byte, whatever its sign.
int32_t CodeOf(Char character)
{
    return static_cast<uint8_t>(character);
}

bool HasStyle(HWND hwnd, LONG style)
{
    return (GetWindowLongA(hwnd, GWL_STYLE) & style) != 0;
}

void NotifyParent(HWND hwnd, HWND parent, uint16_t code)
{
    const auto id = static_cast<uint16_t>(GetWindowLongA(hwnd, GWL_ID));
    SendMessageA(parent, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(hwnd));
}

}  // namespace

LRESULT CallBaseEdit(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcA(baseEditProc, hwnd, message, wParam, lParam);
}

RECT ClientOf(HWND hwnd)
{
    RECT client{};
    GetClientRect(hwnd, &client);
    return client;
}

bool StandardField::TakeOwnMessage(HWND hwnd)
{
    const bool isOwn = ownMessageTo.Get() == hwnd;
    if (isOwn)
        ownMessageTo.Set(nullptr);
    return isOwn;
}

LRESULT StandardField::ToBase(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LifeCheck life(*this);
    const LRESULT result = CallBaseEdit(Window(), message, wParam, lParam);
    life.Check();
    return result;
}

void StandardField::ToControl(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LifeCheck life(*this);
    SendMessageA(Window(), message, wParam, lParam);
    life.Check();
}

Text StandardField::ReadText() const
{
    const LRESULT length = CallBaseEdit(Window(), WM_GETTEXTLENGTH, 0, 0);
    if (length <= 0)
        return {};
    Text text(static_cast<size_t>(length) + 1, '\0');
    const LRESULT copied = CallBaseEdit(Window(), WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(copied > 0 ? static_cast<size_t>(copied) : 0);
    return text;
}

Selection StandardField::ReadSelection() const
{
    const auto packed = static_cast<uint32_t>(CallBaseEdit(Window(), EM_GETSEL, 0, 0));
    return {static_cast<int32_t>(packed & 0xFFFF), static_cast<int32_t>(packed >> 16)};
}

bool StandardField::IsHeld(Key key) const
{
    return (GetKeyState(key) & kPressed) != 0;
}

bool StandardField::RefusesInput() const
{
    return HasStyle(Window(), ES_READONLY | WS_DISABLED);
}

std::optional<Text> StandardField::ReadClipboard() const
{
    const OpenedClipboard clipboard(Window());
    HANDLE data = clipboard.IsOpen() ? GetClipboardData(CF_TEXT) : nullptr;
    const auto* text = data ? static_cast<const char*>(GlobalLock(data)) : nullptr;
    if (!text)
        return std::nullopt;
    Text copy(text, BoundedLength(text, GlobalSize(data)));
    GlobalUnlock(data);
    return copy;
}

void StandardField::Select(int32_t start, int32_t end)
{
    ToControl(EM_SCROLLCARET, 0, 0);
    const OwnMessage own(Window());
    ToControl(EM_SETSEL, static_cast<WPARAM>(start), end);
}

void StandardField::SetText(const Char* text)
{
    const LifeCheck life(*this);
    const OwnMessage own(Window());
    SetWindowTextA(Window(), text);
    life.Check();
}

void StandardField::ReplaceSelection(const Char* text)
{
    const RaisedLimit limit(Window());
    ToBase(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    CallBaseEdit(Window(), EM_EMPTYUNDOBUFFER, 0, 0);
}

void StandardField::CopySelection()
{
    ToBase(WM_COPY, 0, 0);
}

void StandardField::PressArrow(Key key, KeyData keyData, int32_t times)
{
    for (int32_t i = 0; i < times; ++i) {
        ToBase(WM_KEYDOWN, static_cast<WPARAM>(key), keyData);
        ToBase(WM_KEYUP, static_cast<WPARAM>(key), keyData);
    }
}

void StandardField::PressDelete(KeyData keyData)
{
    ToBase(WM_KEYDOWN, VK_DELETE, keyData);
}

bool StandardField::IsModified() const
{
    return CallBaseEdit(Window(), EM_GETMODIFY, 0, 0) != 0;
}

void StandardField::ScrollToCaret()
{
    CallBaseEdit(Window(), EM_SCROLLCARET, 0, 0);
}

void StandardField::SetModified()
{
    CallBaseEdit(Window(), EM_SETMODIFY, TRUE, 0);
}

void StandardField::HoldShift(bool down)
{
    BYTE keys[256];
    if (!GetKeyboardState(keys))
        return;
    keys[VK_SHIFT] = down ? 0x80 : 0;
    SetKeyboardState(keys);
}

// Turning redrawing on makes a window visible, so a hidden one (or one whose host has redrawing off) is left alone.
void StandardField::SetRedraw(bool on)
{
    const bool visible = HasStyle(Window(), WS_VISIBLE);
    if (on ? !redrawOff_ : !visible)
        return;
    redrawOff_ = !on;
    CallBaseEdit(Window(), WM_SETREDRAW, on, 0);
}

void StandardField::KeepLayout()
{
    if (Has(edit_, HAS_SPIN))
        KeepTextOffSpin(edit_);
}

void StandardField::Repaint()
{
    InvalidateRect(Window(), nullptr, TRUE);
}

void StandardField::RepaintSpin()
{
    if (edit_.hwndSpin && ArrowsPressed(edit_) != arrowsShown)
        InvalidateRect(SpinOf(edit_), nullptr, FALSE);
}

void StandardField::Beep()
{
    MessageBeep(0);
}

void StandardField::NotifyFull()
{
    const LifeCheck life(*this);
    NotifyParent(Window(), static_cast<HWND>(edit_.hwndParent), ZTN_AUTOSKIP);
    life.Check();
}

void StandardField::NotifyStepped()
{
    const LifeCheck life(*this);
    NotifyParent(Window(), GetParent(Window()), EN_CHANGE);
    life.Check();
}

// A notification as WM_NOTIFY; the parent's answer. The control may be gone afterwards.
template <typename Notification>
LRESULT StandardField::Tell(Notification& notification, UINT code)
{
    const LifeCheck life(*this);
    const auto id = static_cast<UINT_PTR>(GetWindowLongA(Window(), GWL_ID));
    notification.hdr = {Window(), id, code};
    const LRESULT answer = SendMessageA(GetParent(Window()), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&notification));
    life.Check();
    return answer;
}

bool StandardField::NotifyRejected(int32_t reason, int32_t position, Char character)
{
    ZTNotifyRejected rejected = {{}, reason, position, CodeOf(character)};
    return Tell(rejected, ZTN_REJECTED) != 0;
}

void StandardField::NotifyState(int32_t was, int32_t is)
{
    ZTNotifyState state = {{}, was, is};
    Tell(state, ZTN_STATECHANGED);
}

void StandardField::NotifyValue()
{
    for (const HWND shown : {Window(), SpinOf(edit_)})
        if (shown)
            NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, shown, OBJID_CLIENT, CHILDID_SELF);
}

uint32_t StandardField::Milliseconds() const
{
    return static_cast<uint32_t>(GetMessageTime());
}

}  // namespace zte
