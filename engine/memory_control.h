// A masked edit in memory: the engine over a field in memory, with the routing that the window procedure does in a window.
#pragma once

#include "engine/editing.h"
#include "engine/memory_field.h"
#include "engine/record.h"

namespace zte {

// How a control is made; texts are borrowed for the call, null for none. The spin's fields count with ZTEO_SPIN only.
struct ControlSetup {
    const Char* mask = nullptr;
    int32_t dataType = DT_STRING;
    uint32_t options = 0;  // ZTEO_ bits
    const Char* data = nullptr;
    const Char* spinRange = nullptr;
    uint32_t spinIncrement = 0;
    const Char* codeTable = nullptr;
    FieldStyle style{};
};

class MemoryControl {
public:
    // settings stay the host's and may change; the listener hears from the first text on.
    MemoryControl(const ControlSetup& setup, const Settings& settings, Clock clock, FieldListener* listener = nullptr);
    MemoryControl(const MemoryControl&) = delete;
    MemoryControl& operator=(const MemoryControl&) = delete;
    ~MemoryControl();

    EditInstance& Record() { return record_; }
    const EditInstance& Record() const { return record_; }
    MemoryField& Edit() { return field_; }
    const MemoryField& Edit() const { return field_; }

    // What a keyboard sends: a key going down, the character that it makes, the key coming up.
    void KeyDown(int32_t key, bool repeated = false);
    void Type(uint32_t character);
    void KeyUp(int32_t key);

    // What a mouse and the menus send.
    void Click(int32_t position, bool shift = false);
    void Drag(int32_t from, int32_t to);
    void DoubleClick(int32_t position);
    void Wheel(int32_t notches);
    void Paste();
    void Cut();
    void Clear();
    void Undo();
    void Redo();

    // What a program does to an edit control that it does not know to be a masked one.
    void Select(int32_t anchor, int32_t caret);
    void SetText(const Char* text);
    void Replace(const Char* text, bool canUndo);
    void LoseFocus();

    // A spin counts as there; its texts go with it.
    void CreateSpin() { record_.hwndSpin = this; }
    void DestroySpin();
    void Step(bool up);  // an arrow pressed and released

    // Live blocks of the control's heap.
    uint32_t BlockCount() const;

private:
    const Editing& Reading() const { return EditingOf(record_); }
    template <typename Act, typename Own>
    void Do(Act act, Own own);
    template <typename Mouse>
    void UseMouse(Mouse mouse);

    EditInstance record_{};
    MemoryField field_;
};

}  // namespace zte
