// The form on which the controls stand, and the ways in which they are made and used.
#pragma once

#include <windows.h>

#include "ztedit.h"

namespace bench {

enum class Visibility { Hidden, Visible };

class Form {
public:
    Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form();

    HWND Window() const { return window_; }
    SharedHeap Heap() const { return heap_; }

    HWND MakeControl(const char* mask, int32_t type, Visibility visibility, uint32_t options = 0) const;
    HWND MakeEdit(Visibility visibility) const;
    HWND MakePicker(Visibility visibility) const;
    HWND MakeUpDown(HWND buddy) const;

private:
    HWND MakeChild(const char* windowClass, DWORD style, Visibility visibility, void* params) const;

    POINT NextPlace(Visibility visibility) const;

    mutable int shown_ = 0;
    HWND window_;
    SharedHeap heap_;
};

// What a keyboard sends for one character that needs no Shift; what it has made invalid is painted at once.
void TypeKey(HWND window, char character);
void PressKey(HWND window, WPARAM key);
void Paint(HWND window);

}  // namespace bench
