// A masked edit in memory.
#include "engine/memory_control.h"

#include <algorithm>

#include "engine/edit/plain_edit.h"
#include "engine/editing.h"
#include "engine/own_heap.h"
#include "engine/spin/spin_settings.h"

namespace zte {

namespace {

constexpr KeyData kFromKeyboard = 1;       // a key was pressed
constexpr KeyData kRepeated = 0x40000000;  // and was down before

}  // namespace

MemoryControl::MemoryControl(const ControlSetup& setup, const Settings& settings, Clock clock, FieldListener* listener)
    : field_(setup.style)
{
    field_.SetListener(listener);
    record_.heap = CreateHeap();
    record_.dataType = setup.dataType;
    record_.field = &field_;
    record_.settings = &settings;
    record_.clock = clock;
    ApplyOptions(record_, setup.options);
    if (Has(record_, HAS_SPIN))
        SetSpin(record_, setup.spinIncrement, setup.spinRange, setup.codeTable, SpinStyleOf(setup.options));
    if ((setup.options & ZTEO_MODERN) != 0)
        BeginModern(record_);
    Reading().setMask(record_, setup.mask, setup.dataType);
    if (setup.data)
        Reading().setDataString(record_, setup.data);
    if (Has(record_, HAS_SPIN))
        CreateSpin();
    EndCreation(record_);
}

MemoryControl::~MemoryControl()
{
    DropEditor(record_);
    DestroyHeap(record_.heap);  // with all that the record points to
}

void MemoryControl::KeyDown(int32_t key, bool repeated)
{
    const auto pressed = static_cast<uint32_t>(key);
    const KeyData keyData = repeated ? kFromKeyboard | kRepeated : kFromKeyboard;
    const bool plain = IsPlainEdit(record_);
    const Reply reply = plain ? OnPlainKeyDown(record_, pressed) : Reading().keyDown(record_, pressed, keyData);
    if (reply.kept)
        return;
    field_.Press(static_cast<Key>(key));
    if (!plain && Reading().afterKey)
        Reading().afterKey(record_);
}

void MemoryControl::Type(uint32_t character)
{
    const bool plain = IsPlainEdit(record_);
    const Reply reply =
        plain ? OnPlainChar(record_, character) : Reading().character(record_, character, kFromKeyboard);
    if (!reply.kept)
        field_.Type(static_cast<Char>(character));
}

void MemoryControl::KeyUp(int32_t key)
{
    if (!IsPlainEdit(record_))
        Reading().keyUp(record_, static_cast<uint32_t>(key));
}

template <typename Mouse>
void MemoryControl::UseMouse(Mouse mouse)
{
    ForgetPassed(record_);
    mouse();
    if (!IsPlainEdit(record_) && Reading().beforeClick(record_))
        Reading().afterClick(record_);
}

void MemoryControl::Click(int32_t position, bool shift)
{
    UseMouse([&] { field_.Click(position, shift); });
}

void MemoryControl::Drag(int32_t from, int32_t to)
{
    UseMouse([&] { field_.Drag(from, to); });
}

// What is not kept is the field's own.
template <typename Act, typename Own>
void MemoryControl::Do(Act act, Own own)
{
    if (IsPlainEdit(record_) || !(Reading().*act)(record_).kept)
        (field_.*own)();
}

void MemoryControl::Paste()
{
    Do(&Editing::paste, &MemoryField::Paste);
}

void MemoryControl::Cut()
{
    Do(&Editing::cut, &MemoryField::Cut);
}

void MemoryControl::Clear()
{
    Do(&Editing::clear, &MemoryField::Clear);
}

void MemoryControl::Undo()
{
    Do(&Editing::undo, &MemoryField::Undo);
}

void MemoryControl::Redo()
{
    Reading().redo(record_);
}

void MemoryControl::Wheel(int32_t notches)
{
    if (Reading().wheel)
        Reading().wheel(record_, notches);
}

void MemoryControl::DoubleClick(int32_t position)
{
    ForgetPassed(record_);
    const int32_t within = std::clamp(position, 0, Length(field_.Shown()));
    const auto select = IsPlainEdit(record_) ? nullptr : Reading().doubleClick;
    if (!select || !select(record_, within).kept)
        field_.DoubleClick(within);
}

void MemoryControl::Select(int32_t anchor, int32_t caret)
{
    Reading().beforeTextSet(record_);
    field_.SetSelection(anchor, caret);
    Reading().afterSelect(record_);
}

void MemoryControl::SetText(const Char* text)
{
    Reading().beforeTextSet(record_);
    field_.SetText(text);
    Reading().afterTextSet(record_);
}

void MemoryControl::Replace(const Char* text, bool canUndo)
{
    if (IsPlainEdit(record_) || !Reading().replaceSelection(record_, text, canUndo).kept)
        field_.Replace(text, canUndo);
}

void MemoryControl::LoseFocus()
{
    Reading().focusLost(record_);
}

void MemoryControl::DestroySpin()
{
    DropSpinTexts(record_);
    record_.hwndSpin = nullptr;
}

void MemoryControl::Step(bool up)
{
    Reading().step(record_, up, false);
}

uint32_t MemoryControl::BlockCount() const
{
    return zte::BlockCount(record_.heap);
}

}  // namespace zte
