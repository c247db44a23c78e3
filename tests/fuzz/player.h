// A control that a script plays, with the laws that hold after everything that is done to it.
#pragma once

#include "engine/memory_control.h"

namespace zttest {

// The day on which all scripts are played.
DateTimeValue FuzzToday();

// Live settings that a script may change under a control.
class PlayedControl final : public zte::FieldListener {
public:
    PlayedControl(const zte::ControlSetup& setup, const zte::Settings& settings);
    ~PlayedControl();
    PlayedControl(const PlayedControl&) = delete;
    PlayedControl& operator=(const PlayedControl&) = delete;

    void OnFieldEvent(zte::FieldEvent event) override;

    // What a user does; the laws are checked behind it.
    void Type(uint32_t character);
    void Press(int32_t key);  // with its character where it makes one
    void Hold(int32_t key, bool down);
    void Click(int32_t position);
    void Drag(int32_t from, int32_t to);
    void Paste(const zte::Text& text);
    void Step(bool up);
    void LoseFocus();

    // What the form's program does by the library.
    void SetMask(const zte::Text& mask, int32_t dataType);
    void SetDataString(const zte::Text& text);
    void SetNoData();
    void SetSpin(uint32_t increment, const zte::Text& range, const zte::Text& codes, uint32_t style);
    void CreateSpin();
    void DestroySpin();
    void SetAutoskip(bool on);
    void SetInput(bool readOnly, bool disabled);
    void Read();
    void Unformat(const zte::Text& text);
    void FormatAgain();
    void ShowAgain();

    // What it does behind the library's back: the laws of the text rest until a value or a mask is set.
    void Select(int32_t anchor, int32_t caret);
    void SetText(const zte::Text& text);
    void Replace(const zte::Text& text);
    void ClearByMenu();
    void CutByMenu();
    void UndoByMenu();
    void Limit(int32_t characters);
    void ChangeSettings(const zte::Settings& settings);

    zte::MemoryControl& Control() { return control_; }

private:
    template <typename Act>
    void ByUser(Act act);
    template <typename Act>
    void ByProgram(Act act);

    bool IsWatched() const;
    void Tell() const;
    void CheckAlways() const;
    void CheckText() const;
    void CheckFields() const;
    void CheckNumber() const;
    void CheckNoUndo() const;
    void CheckRefused(const zte::Text& before, zte::Selection selection) const;
    void CheckShownAgain();
    void CheckTypedAgain();

    zte::Settings settings_;
    bool redrawOff_ = false;
    bool properMask_ = true;
    bool unformatted_ = false;  // kept: a mask set while a table's entries are shown does not know its literals at once
    bool foreign_ = false;      // a text stands there that the library has not made
    bool foreignSettings_ = false;  // the mask was set under others
    bool limited_ = false;
    bool hadUnknownType_ = false;  // kept: a step of an unknown type leaves redrawing off
    int32_t beeps_ = 0;
    zte::MemoryControl control_;
};

}  // namespace zttest
