// The standard edit control underneath: every call to it goes through these wrappers. Those that may make the control go
// away (by what its parent does on a notification) throw ControlGone when it did; see life_guard.h.
#pragma once

#include <string>

#include "core/edit_instance.h"

namespace zte {

// The library's process-wide values beside the regional settings.
extern HINSTANCE libraryInstance;
extern WNDPROC baseEditProc;  // procedure of the system "edit" class

LRESULT CallBaseEdit(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

struct Selection {
    int32_t start;
    int32_t end;  // one past the last selected position
    bool IsEmpty() const { return start == end; }
};

Selection GetSelection(const EditInstance& edit);
inline int32_t Caret(const EditInstance& edit)
{
    return GetSelection(edit).start;
}

// EM_SCROLLCARET and EM_SETSEL, sent to the control so that a host's subclass sees them.
void Select(const EditInstance& edit, int32_t start, int32_t end);
inline void PlaceCaret(const EditInstance& edit, int32_t position)
{
    Select(edit, position, position);
}

// EM_REPLACESEL to the base, without an undo step.
void ReplaceSelection(const EditInstance& edit, const char* text);

// Turns redrawing off, or on again when the library turned it off. A hidden window stays as it is.
void SetRedraw(EditInstance& edit, bool on);

// The control's text, read from the base edit procedure.
std::string ReadText(const EditInstance& edit);

// SetWindowTextA on the control; leaves no undo step.
void SetText(const EditInstance& edit, const char* text);

// SetText framed by UpdateFormatRect before and after.
void ShowText(const EditInstance& edit, const char* text);

// Keys and characters straight to the base: count times a key-down and a key-up; a key-down alone; a character.
void SendKeyToBase(const EditInstance& edit, WPARAM key, LPARAM keyData, int32_t count = 1);
void SendKeyDownToBase(const EditInstance& edit, WPARAM key, LPARAM keyData);
void SendCharToBase(const EditInstance& edit, char character, LPARAM keyData);

// Whether the control is read-only or disabled: it then takes no input from the user.
bool IsInputRefused(HWND hwnd);

// Sends WM_COMMAND with the notification code to the parent; the control may be gone afterwards.
void NotifyParent(HWND hwnd, HWND parent, uint16_t code);

// Tells the parent that the focus may move on.
void NotifyAutoskip(const EditInstance& edit);

// MessageBeep(0).
void Beep();

}  // namespace zte
