// The fixture of tests that need a live window: they type into a control and look at its window.
// Given a mask and a text with the caret in it, Type or Press, and compare what is Shown.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/live/beeps.h"
#include "tests/support/live/form.h"
#include "tests/support/live/typist.h"

#include "tests/support/key_case.h"
#include "tests/support/marked_text.h"
#include "tests/support/rows.h"
#include "tests/support/values.h"

namespace zttest {

class WindowTest : public testing::Test {
protected:
    // Makes the control anew.
    void Make(const Config& config, Creation creation = Creation::ByClass);

    // Makes a control that shows a value, with the caret where '|' stands or what is between '[' and ']' selected.
    // shown is display text under the regional settings of the moment and must be one that a value has.
    void Given(const char* mask, int32_t type, const std::string& shown, uint32_t options = 0);

    // The same for any text at all: it is put into the window from outside.
    void GivenText(const char* mask, int32_t type, const std::string& shown, uint32_t options = 0);

    // Types, with keys named in braces: "12{Left}{Del}".
    void Play(const std::string& keys) { typist_.Play(keys); }
    void Type(const std::string& text) { typist_.Type(text); }
    void Press(int key, int modifiers = kPlain) { typist_.Press(key, modifiers); }
    void Backspace(int times = 1);
    void Delete(int times = 1);
    void Click(int position) { typist_.Click(position); }
    void PutCaret(int position) { control_->Select(position, position); }
    void SelectAll() { control_->Select(0, -1); }

    HWND Window() const { return control_->hwnd(); }
    std::string Text() const { return control_->Text(); }
    std::string Shown() const { return control_->Shown(); }
    int Beeps() const { return beeps_.Count(); }
    int Skips() const { return form_.Count(ZTN_AUTOSKIP); }

    // The value read back: a string's or number's text, and the canonical text of a date or time ("" for none).
    std::string Value() const;

    BeepCounter beeps_;
    Form form_;
    Typist typist_;
    std::unique_ptr<Control> control_;
};

class WindowKeyTable : public WindowTest, public OfRow<KeyCase> {
protected:
    void Check(const KeyCase& row);
};

}  // namespace zttest
