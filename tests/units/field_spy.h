// A control whose field tells what it is asked to do, call by call.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engine/format/data.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "tests/support/marked_text.h"
#include "tests/support/values.h"

namespace zttest {

// Stands before a field in memory. What reads the field is not noted.
class FieldSpy final : public zte::Field {
public:
    explicit FieldSpy(zte::MemoryField& under) : under_(under) {}

    zte::Text ReadText() const override { return under_.ReadText(); }
    zte::Selection ReadSelection() const override { return under_.ReadSelection(); }
    bool IsHeld(zte::Key key) const override { return under_.IsHeld(key); }
    bool RefusesInput() const override { return under_.RefusesInput(); }
    std::optional<zte::Text> ReadClipboard() const override { return under_.ReadClipboard(); }
    bool IsModified() const override { return under_.IsModified(); }

    void Select(int32_t start, int32_t end) override
    {
        Note("Select " + std::to_string(start) + "-" + std::to_string(end));
        under_.Select(start, end);
    }
    void ScrollToCaret() override { Note("ScrollToCaret"); }
    void ReplaceSelection(const zte::Char* text) override
    {
        Note("ReplaceSelection");
        under_.ReplaceSelection(text);
    }
    void CopySelection() override
    {
        Note("CopySelection");
        under_.CopySelection();
    }
    void SetText(const zte::Char* text) override
    {
        Note("SetText");
        under_.SetText(text);
    }
    void PressArrow(zte::Key key, zte::KeyData keyData, int32_t times) override
    {
        Note(std::string(key == zte::KEY_LEFT    ? "Left"
                         : key == zte::KEY_RIGHT ? "Right"
                                                 : "?") +
             " x" + std::to_string(times) + " data " + std::to_string(keyData));
        under_.PressArrow(key, keyData, times);
    }
    void PressDelete(zte::KeyData keyData) override
    {
        Note("Delete");
        under_.PressDelete(keyData);
    }
    void HoldShift(bool down) override
    {
        Note(down ? "Shift down" : "Shift up");
        under_.HoldShift(down);
    }
    void SetRedraw(bool on) override { under_.SetRedraw(on); }
    void KeepLayout() override { Note("KeepLayout"); }
    void Repaint() override { under_.Repaint(); }
    void RepaintSpin() override { Note("RepaintSpin"); }
    void SetModified() override { under_.SetModified(); }
    void Beep() override { Note("Beep"); }
    void NotifyFull() override { Note("Full"); }
    void NotifyStepped() override { under_.NotifyStepped(); }
    bool NotifyRejected(int32_t reason, int32_t position, zte::Char character) override
    {
        return under_.NotifyRejected(reason, position, character);
    }
    void NotifyState(int32_t was, int32_t is) override { under_.NotifyState(was, is); }
    uint32_t Milliseconds() const override { return under_.Milliseconds(); }

    const std::vector<std::string>& Calls() const { return calls_; }
    int Count(const std::string& call) const
    {
        return static_cast<int>(std::count(calls_.begin(), calls_.end(), call));
    }
    void Forget() { calls_.clear(); }

private:
    void Note(std::string call) { calls_.push_back(std::move(call)); }

    zte::MemoryField& under_;
    std::vector<std::string> calls_;
};

struct SpiedSetup {
    const char* mask;
    int32_t type;
    const char* codes = nullptr;
    uint32_t options = 0;
};

// A control and the spy before its field.
class Spied {
public:
    explicit Spied(const SpiedSetup& setup)
        : mask_(zte::FromAscii(setup.mask)), codes_(zte::FromAscii(setup.codes ? setup.codes : ""))
    {
        zte::ControlSetup made;
        made.mask = mask_.c_str();
        made.dataType = setup.type;
        made.options = setup.options;
        made.codeTable = setup.codes ? codes_.c_str() : nullptr;
        control_ = std::make_unique<zte::MemoryControl>(made, settings_,
                                                        [] { return DateTimeValue{0, 95, 6, 4, 12, 0, 0, 0}; });
        spy_ = std::make_unique<FieldSpy>(control_->Edit());
        control_->Record().field = spy_.get();
    }

    zte::MemoryControl& Control() { return *control_; }
    zte::EditInstance& Record() { return control_->Record(); }
    zte::MemoryField& Edit() { return control_->Edit(); }
    FieldSpy& Spy() { return *spy_; }
    zte::Settings& Regional() { return settings_; }

    // Puts a text with its marks there, from outside, and forgets what that took.
    void Show(const char* marked)
    {
        const Marked text = Unmark(marked);
        control_->SetText(zte::FromAscii(text.text.c_str()).c_str());
        control_->Select(text.start, text.end);
        spy_->Forget();
    }
    void Type(const char* text)
    {
        for (; *text; ++text)
            control_->Type(static_cast<unsigned char>(*text));
    }
    std::string Shown() const
    {
        const zte::Selection selection = control_->Edit().ReadSelection();
        const zte::Text text = control_->Edit().ReadText();
        return Mark(std::string(text.begin(), text.end()), selection.start, selection.end);
    }
    int Beeps() const { return spy_->Count("Beep"); }

private:
    zte::Settings settings_ = zte::StandardSettings();
    zte::Text mask_;
    zte::Text codes_;
    std::unique_ptr<zte::MemoryControl> control_;
    std::unique_ptr<FieldSpy> spy_;
};

}  // namespace zttest
