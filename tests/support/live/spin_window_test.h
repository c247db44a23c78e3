// The fixture of the tests of the spin's window: a control with a spin, stepped by its keys and by the mouse on its
// arrows.
#pragma once

#include <string>
#include <vector>

#include "engine/record.h"
#include "tests/support/arrow.h"
#include "tests/support/live/window_test.h"

namespace zttest {

class SpinWindowTest : public WindowTest {
protected:
    // A control made with a spin. shown: a text with the caret in it, put there as display text; null for the empty
    // value.
    void MakeSpin(const char* mask, int32_t type, const char* range, uint32_t increment, const char* data);

    // The same with its spin set up by ZTE_SetSpin afterwards.
    void MakeCodeTable(const char* mask, int32_t type, const char* codes, uint32_t style);

    // Steps by the arrow keys, and forgets the notifications that came before.
    void Step(Arrow arrow);
    void Up() { Step(Arrow::Up); }
    void Down() { Step(Arrow::Down); }

    // Puts the text with its marks into the control: display text of any kind, the caret or selection where marked.
    void Show(const std::string& marked);

    // The spin window, null without one; and a message of the mouse to it, in the middle of an arrow.
    HWND Spin() const { return GetWindow(Window(), GW_CHILD); }
    POINT MiddleOf(Arrow arrow) const;
    void MouseAt(UINT message, POINT point) const;
    void PressArrow(Arrow arrow) const { MouseAt(WM_LBUTTONDOWN, MiddleOf(arrow)); }
    void Release() const { MouseAt(WM_LBUTTONUP, {0, 0}); }
    void Tick() const { SendMessageA(Spin(), WM_TIMER, 1, 0); }

    int Changes() const { return form_.Count(EN_CHANGE); }

    // The record that a window's property leads to, null when it has none.
    static zte::EditInstance* RecordOf(HWND hwnd);
    bool HasFlag(uint32_t bits) const { return (RecordOf(Window())->flags & bits) != 0; }
};

}  // namespace zttest
