// A modern control without a field: the record that a mask is set in, and the content that acts of a user lead to, one after the other.
#pragma once

#include <string>

#include "engine/format/mask_setting.h"
#include "engine/memory_control.h"
#include "engine/modern/kind.h"
#include "tests/support/marked_text.h"

namespace zttest {

inline DateTimeValue NoClock()
{
    return {};
}

class ModernContent {
public:
    ModernContent(const zte::ControlSetup& setup, const zte::Settings& settings)
        : settings_(settings), control_(WithoutMask(setup), settings_, NoClock)
    {
        accepted_ = !setup.mask || zte::SetMask(control_.Record(), setup.mask, setup.dataType) != 0;
        Take(Kind().show(Record(), nullptr));
    }

    bool IsAccepted() const { return accepted_; }
    zte::EditInstance& Record() { return control_.Record(); }
    const zte::modern::Kind& Kind() { return zte::modern::KindOf(control_.Record()); }
    zte::Settings& Regional() { return settings_; }
    zte::modern::Content& Content() { return content_; }

    // ---- acts: 0, or the reason why nothing has changed
    int Type(const std::string& keys)
    {
        for (const char key : keys)
            if (const int reason = Take(Kind().type(Record(), content_, static_cast<zte::Char>(key))))
                return reason;
        return 0;
    }
    int TypeKeypadPoint(char key)
    {
        zte::modern::Content pressed = content_;
        pressed.typing.keypadPoint = true;
        return Take(Kind().type(Record(), pressed, static_cast<zte::Char>(key)));
    }
    int Erase(zte::modern::Eraser eraser) { return Take(Kind().erase(Record(), content_, eraser)); }
    int Paste(const std::string& text) { return Take(Kind().paste(Record(), content_, text)); }
    int Step(int steps) { return Take(Kind().step(Record(), content_, steps)); }
    int Position() const { return position_; }  // of what was refused last
    bool IsFull() const { return isFull_; }     // the last act filled the last position

    // ---- the caret, as a window moves it
    void Select(int start, int end)
    {
        content_ = zte::modern::Untyped(std::move(content_));
        content_.selection = {start, end};
    }
    void SelectAll() { Select(0, zte::Length(content_.text)); }
    void Move(zte::Key key, bool control = false)
    {
        const int caret = Kind().move(Record(), content_, key, control);
        Select(caret, caret);
    }
    void Leave(int position = -1) { content_ = Kind().leave(Record(), content_, position); }

    // ---- values
    bool ShowCanonical(const std::string& text)
    {
        const auto read = Kind().readCanonical(Record(), text);
        if (read)
            Take(*read);
        return read.has_value();
    }
    // A text with its marks, as a program sets it.
    void ShowText(const std::string& marked)
    {
        const Marked text = Unmark(marked);
        content_ = {};
        content_.text = text.text;
        content_.selection = {text.start, text.end};
    }
    int State() { return Kind().state(Record(), content_); }
    std::string Canonical() { return Kind().canonical(Record(), content_); }
    std::string Text() const { return content_.text; }
    std::string Marks() const { return Mark(content_.text, content_.selection.start, content_.selection.end); }

private:
    static zte::ControlSetup WithoutMask(zte::ControlSetup setup)
    {
        setup.mask = "";
        return setup;
    }
    void Take(zte::modern::Content content) { content_ = std::move(content); }
    int Take(zte::modern::Outcome outcome)
    {
        position_ = outcome.position;
        isFull_ = outcome.reason == 0 && outcome.isFull;
        if (outcome.reason == 0)
            content_ = std::move(outcome.content);
        return outcome.reason;
    }

    zte::Settings settings_;
    zte::MemoryControl control_;
    zte::modern::Content content_;
    bool accepted_ = false;
    bool isFull_ = false;
    int position_ = -1;
};

}  // namespace zttest
