// The fixture of tests of modern controls in their windows: a parent that writes down all that a control tells it, in one list, and may
// answer, or do something about it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/live/base_recorder.h"
#include "tests/support/live/beeps.h"
#include "tests/support/live/form.h"
#include "tests/support/live/typist.h"

namespace zttest {

using Told = std::vector<std::string>;

inline constexpr char kPhone[] = "(###) ###-####";
inline constexpr char kDate[] = "MM/DD/YYYY";

// "update", "change", "skip", "rejected wrong kind at 3 by x", "state empty to incomplete".
class ModernParent {
public:
    ModernParent();
    ModernParent(const ModernParent&) = delete;
    ModernParent& operator=(const ModernParent&) = delete;
    ~ModernParent();

    HWND hwnd() const { return hwnd_; }
    const Told& Heard() const { return told_; }
    Told TakeTold();

    // Called for each after it has been written down.
    std::function<void(const std::string&)> onTold;
    // What a refusal is answered with.
    LRESULT answer = 0;
    // Wheel messages that came to it: what they have turned.
    std::vector<int> wheels;

private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Notify(const NMHDR& header);
    void Tell(std::string text);

    HWND hwnd_;
    Told told_;
};

class ModernWindow : public testing::Test {
protected:
    // A modern control on the parent, unless the options say otherwise; what was told at its creation is forgotten.
    void Make(const Config& config, uint32_t options = ZTEO_MODERN);
    void Make(const char* mask, int32_t type, const char* data = nullptr, uint32_t options = 0);

    HWND Window() const { return control_->hwnd(); }
    HWND Spin() const { return GetWindow(Window(), GW_CHILD); }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageA(Window(), message, wParam, lParam);
    }
    LRESULT SendText(UINT message, const char* text, WPARAM wParam = 0) const
    {
        return Send(message, wParam, reinterpret_cast<LPARAM>(text));
    }
    void Select(int start, int end) const { control_->Select(start, end); }
    void Type(const std::string& text) { typist_.Type(text); }
    void Play(const std::string& keys) { typist_.Play(keys); }

    std::string Shown() const { return control_->Shown(); }
    int32_t State() const { return ZTE_GetState(Window()); }
    bool IsModified() const { return Send(EM_GETMODIFY) != 0; }
    bool CanUndo() const { return Send(EM_CANUNDO) != 0; }
    Told TakeTold() { return parent_.TakeTold(); }
    int Beeps() const { return beeps_.Count(); }

    BeepCounter beeps_;
    ModernParent parent_;
    Typist typist_;
    std::unique_ptr<Control> control_;
};

}  // namespace zttest
