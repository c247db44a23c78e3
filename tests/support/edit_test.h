// The fixture of tests that type into a live control: Given a mask and a text with the caret in it, Type or Press, and
// compare what is Shown.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/beeps.h"
#include "tests/support/form.h"
#include "tests/support/typist.h"

namespace zttest {

class EditTest : public testing::Test {
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

// One row of a keystroke table: under a mask, from a text with the caret in it, the keys lead to another text and
// caret.
struct KeyCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* given;  // as for Given; with "text:" in front as for GivenText
    const char* keys;   // as for Typist::Play
    const char* shown;
    int beeps = 0;
};
void PrintTo(const KeyCase& row, std::ostream* out);

class KeyTable : public EditTest, public testing::WithParamInterface<KeyCase> {
protected:
    void Check(const KeyCase& row);
};

// The name of a row as gtest wants it for INSTANTIATE_TEST_SUITE_P.
template <class Row>
std::string RowName(const testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

// A text with its marks taken out: '|' for a caret, '[' and ']' around a selection.
struct Marked {
    std::string text;
    int start;
    int end;
};
Marked Unmark(const std::string& shown);

// The text that ZTE_FmtSetDataString takes for a number shown.
std::string DataOfNumberShown(const std::string& shown, char decimalChar);

// "2024-03-05 14:07:09:000250", without the part that the value does not have.
std::string Canonical(const DateTimeValue& value);

}  // namespace zttest
