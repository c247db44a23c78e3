// The fixtures of tests that run on a live window and on a field in memory alike: Given a mask and a text with the
// caret in it, Type or Play, and compare what is Shown; Install a mask, hand values in and Read them back; MakeSpin and
// Step.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/arrow.h"
#include "tests/support/config.h"
#include "tests/support/key_case.h"
#include "tests/support/masked_edit.h"
#include "tests/support/profile.h"
#include "tests/support/rows.h"
#include "tests/support/values.h"

namespace zttest {

class EditTest : public testing::Test {
protected:
    // Makes the control anew.
    void Make(const Config& config);

    // Makes a control that shows a value, with the caret where '|' stands or what is between '[' and ']' selected.
    // shown is display text under the regional settings of the moment and must be one that a value has.
    void Given(const char* mask, int32_t type, const std::string& shown, uint32_t options = 0);

    // The same for any text at all: it is put into the control from outside.
    void GivenText(const char* mask, int32_t type, const std::string& shown, uint32_t options = 0);

    // Puts a text with its marks into the control that is there: display text of any kind.
    void Show(const std::string& marked);

    // Types, with keys named in braces: "12{Left}{Del}".
    void Play(const std::string& keys) { control_->Keys().Play(keys); }
    void Type(const std::string& text) { control_->Keys().Type(text); }
    void Backspace(int times = 1);
    void Delete(int times = 1);
    void PutCaret(int position) { control_->Select(position, position); }
    void SelectAll() { control_->Select(0, -1); }

    std::string Text() const { return control_->Text(); }
    std::string Shown() const { return control_->Shown(); }
    int Beeps() const { return control_->Beeps(); }
    int Skips() const { return control_->Count(Notice::Full); }

    // The value read back: a string's or number's text, and the canonical text of a date or time ("" for none).
    std::string Value() const;

    std::unique_ptr<MaskedEdit> control_;
};

class KeyTable : public EditTest, public OfRow<KeyCase> {
protected:
    void Check(const KeyCase& row);
};

// Values handed to a control and read back, without typing.
class ValueTest : public EditTest {
protected:
    // Makes the control anew, with the mask given at creation.
    void Install(const char* mask, int32_t type, uint32_t options = 0, const char* codes = nullptr);

    int32_t SetMask(const std::string& mask, int32_t type) { return control_->SetMask(mask.c_str(), type); }
    void SetText(const std::string& text) { control_->SetText(text); }

    // What the control shows for a value given as text.
    std::string ShownFor(const std::string& data);

    std::string Read() const { return control_->Read(); }
    std::string Unformat(const char* text) const { return control_->Unformat(text); }
    FormattedValue Format(const void* data) const { return control_->Format(data); }
    RecordView Record() const { return control_->Record(); }
    std::string MaskInForce() const { return control_->Mask(); }
};

// A control with a spin, stepped by its keys.
class SpinTest : public EditTest {
protected:
    void MakeSpin(const char* mask, int32_t type, const char* range, uint32_t increment, const char* data);

    // The same with its spin set up by SetSpin afterwards.
    void MakeCodeTable(const char* mask, int32_t type, const char* codes, uint32_t style);

    // SetSpin on the control that is there.
    void SetSpin(uint32_t increment, const char* range, const char* codes, uint32_t style);

    // Steps by the arrow keys, and forgets the notices that came before.
    void Step(Arrow arrow);
    void Up() { Step(Arrow::Up); }
    void Down() { Step(Arrow::Down); }

    int Changes() const { return control_->Count(Notice::Changed); }
    RecordView Record() const { return control_->Record(); }
};

}  // namespace zttest
