// A host form for tests: a window that records the notifications of its controls, and controls in heaps of their own.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "include/ztedit.h"

#include "tests/support/config.h"

namespace zttest {

// One WM_COMMAND that reached the form.
struct Notification {
    int code;
    int id;
    HWND control;
    bool operator==(const Notification& other) const
    {
        return code == other.code && id == other.id && control == other.control;
    }
};
std::ostream& operator<<(std::ostream& out, const Notification& notification);

// The ways in which a host brings a control to life.
enum class Creation {
    ByClass,        // CreateWindowExA with the record as creation parameter
    ByInit,         // CreateWindowExA without it, then ZTE_Init
    BySubclassing,  // a standard edit control, subclassed with ZTE_SuperEditWndProc, then ZTE_Init
};

// A window of the library in a heap of its own. At the end the window is destroyed, and a failure is reported when
// blocks were lost: editing has left none behind, and the record goes with the window. (Its strings stay until the heap
// goes.)
class Control {
public:
    Control(HWND parent, int id, const Config& config, Creation creation = Creation::ByClass);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    ~Control();

    HWND hwnd() const { return hwnd_; }
    int id() const { return id_; }
    SharedHeap heap() const { return heap_; }

    std::string Text() const;
    int CaretStart() const;
    int CaretEnd() const;
    void Select(int start, int end) const;

    // The text with '|' at the caret, or '[' and ']' around the selection.
    std::string Shown() const;

    // Takes the blocks now in the heap as what the control owns, after a call that is meant to change it (ZTE_SetSpin).
    void AcceptHeap();

private:
    HWND hwnd_ = nullptr;
    int id_;
    SharedHeap heap_;
    uint32_t ownBlocks_ = 0;
};

class Form {
public:
    explicit Form(bool visible = false);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form();

    HWND hwnd() const { return hwnd_; }

    // All notifications, or those of one code, in the order of arrival.
    const std::vector<Notification>& Notifications() const { return notifications_; }
    int Count(int code) const;
    void Forget() { notifications_.clear(); }

    // Called for each notification after it has been recorded.
    std::function<void(const Notification&)> onNotification;

private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    HWND hwnd_ = nullptr;
    std::vector<Notification> notifications_;
};

// The text of any window.
std::string TextOf(HWND hwnd);

// Carries out what is waiting in the thread's message queue.
void DrainMessages();

}  // namespace zttest
