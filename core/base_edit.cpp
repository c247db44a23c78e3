// The standard edit control underneath: calls that go straight to its procedure, and those that go through the control.
#include "core/base_edit.h"

#include "core/instance.h"
#include "core/life_guard.h"

namespace zte {

HINSTANCE libraryInstance;
WNDPROC baseEditProc;

namespace {

LRESULT ToBase(const EditInstance& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LifeCheck life(edit);
    const LRESULT result = CallBaseEdit(edit.hwnd, message, wParam, lParam);
    life.Check();
    return result;
}

void ToControl(const EditInstance& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LifeCheck life(edit);
    SendMessageA(edit.hwnd, message, wParam, lParam);
    life.Check();
}

// A text limit below the text shown would cut what is put in its place; it is raised for the replacement.
class RaisedLimit {
public:
    explicit RaisedLimit(const EditInstance& edit) : hwnd_(edit.hwnd)
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

}  // namespace

LRESULT CallBaseEdit(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcA(baseEditProc, hwnd, message, wParam, lParam);
}

Selection GetSelection(const EditInstance& edit)
{
    const auto packed = static_cast<uint32_t>(CallBaseEdit(edit.hwnd, EM_GETSEL, 0, 0));
    return {static_cast<int32_t>(packed & 0xFFFF), static_cast<int32_t>(packed >> 16)};
}

void Select(const EditInstance& edit, int32_t start, int32_t end)
{
    ToControl(edit, EM_SCROLLCARET, 0, 0);
    ToControl(edit, EM_SETSEL, static_cast<WPARAM>(start), end);
}

void ReplaceSelection(const EditInstance& edit, const char* text)
{
    const RaisedLimit limit(edit);
    ToBase(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    CallBaseEdit(edit.hwnd, EM_EMPTYUNDOBUFFER, 0, 0);
}

// Turning redrawing on makes a window visible, so a hidden one (or one whose host has redrawing off) is left alone.
void SetRedraw(EditInstance& edit, bool on)
{
    const bool visible = (GetWindowLongA(edit.hwnd, GWL_STYLE) & WS_VISIBLE) != 0;
    if (on ? !edit.redrawOff : !visible)
        return;
    edit.redrawOff = !on;
    CallBaseEdit(edit.hwnd, WM_SETREDRAW, on, 0);
}

std::string ReadText(const EditInstance& edit)
{
    const LRESULT length = CallBaseEdit(edit.hwnd, WM_GETTEXTLENGTH, 0, 0);
    if (length <= 0)
        return {};
    std::string text(static_cast<size_t>(length) + 1, '\0');
    const LRESULT copied = CallBaseEdit(edit.hwnd, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(copied > 0 ? static_cast<size_t>(copied) : 0);
    return text;
}

void SetText(const EditInstance& edit, const char* text)
{
    const LifeCheck life(edit);
    SetWindowTextA(edit.hwnd, text);
    life.Check();
}

void ShowText(const EditInstance& edit, const char* text)
{
    UpdateFormatRect(edit);
    SetText(edit, text);
    UpdateFormatRect(edit);
}

void SendCharToBase(const EditInstance& edit, char character, LPARAM keyData)
{
    ToBase(edit, WM_CHAR, static_cast<unsigned char>(character), keyData);
}

void SendKeyToBase(const EditInstance& edit, WPARAM key, LPARAM keyData, int32_t count)
{
    for (int32_t i = 0; i < count; ++i) {
        ToBase(edit, WM_KEYDOWN, key, keyData);
        ToBase(edit, WM_KEYUP, key, keyData);
    }
}

void SendKeyDownToBase(const EditInstance& edit, WPARAM key, LPARAM keyData)
{
    ToBase(edit, WM_KEYDOWN, key, keyData);
}

bool IsInputRefused(HWND hwnd)
{
    return (GetWindowLongA(hwnd, GWL_STYLE) & (ES_READONLY | WS_DISABLED)) != 0;
}

void NotifyParent(HWND hwnd, HWND parent, uint16_t code)
{
    const auto id = static_cast<uint16_t>(GetWindowLongA(hwnd, GWL_ID));
    SendMessageA(parent, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(hwnd));
}

void NotifyAutoskip(const EditInstance& edit)
{
    const LifeCheck life(edit);
    NotifyParent(edit.hwnd, edit.hwndParent, ZTN_AUTOSKIP);
    life.Check();
}

void Beep()
{
    MessageBeep(0);
}

}  // namespace zte
