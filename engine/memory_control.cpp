// A masked edit in memory.
#include "engine/memory_control.h"

#include "engine/edit/click.h"
#include "engine/edit/keyboard.h"
#include "engine/edit/paste.h"
#include "engine/edit/plain_edit.h"
#include "engine/format/data.h"
#include "engine/format/mask_setting.h"
#include "engine/own_heap.h"
#include "engine/spin/spin_settings.h"
#include "engine/spin/step.h"

namespace zte {

namespace {

constexpr KeyData kFromKeyboard = 1;  // a key was pressed

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
    SetMask(record_, setup.mask, setup.dataType);
    if (setup.data)
        SetDataString(record_, setup.data);
    if (Has(record_, HAS_SPIN))
        CreateSpin();
}

MemoryControl::~MemoryControl()
{
    DestroyHeap(record_.heap);  // with all that the record points to
}

void MemoryControl::KeyDown(int32_t key)
{
    const auto pressed = static_cast<uint32_t>(key);
    const bool plain = IsPlainEdit(record_);
    const Reply reply = plain ? OnPlainKeyDown(record_, pressed) : OnKeyDown(record_, pressed, kFromKeyboard);
    if (!reply.kept)
        field_.Press(static_cast<Key>(key));
}

void MemoryControl::Type(uint32_t character)
{
    const bool plain = IsPlainEdit(record_);
    const Reply reply = plain ? OnPlainChar(record_, character) : OnChar(record_, character, kFromKeyboard);
    if (!reply.kept)
        field_.Type(static_cast<Char>(character));
}

void MemoryControl::KeyUp(int32_t key)
{
    if (!IsPlainEdit(record_))
        OnKeyUp(record_, static_cast<uint32_t>(key));
}

template <typename Mouse>
void MemoryControl::UseMouse(Mouse mouse)
{
    ForgetPassed(record_);
    mouse();
    if (!IsPlainEdit(record_) && IsClickCorrected(record_))
        CorrectClick(record_);
}

void MemoryControl::Click(int32_t position, bool shift)
{
    UseMouse([&] { field_.Click(position, shift); });
}

void MemoryControl::Drag(int32_t from, int32_t to)
{
    UseMouse([&] { field_.Drag(from, to); });
}

void MemoryControl::Paste()
{
    if (IsPlainEdit(record_))
        field_.Paste();
    else
        PasteClipboard(record_);
}

void MemoryControl::Select(int32_t anchor, int32_t caret)
{
    OnTextSetFromOutside(record_);
    field_.SetSelection(anchor, caret);
}

void MemoryControl::SetText(const Char* text)
{
    OnTextSetFromOutside(record_);
    field_.SetText(text);
}

void MemoryControl::Replace(const Char* text, bool canUndo)
{
    OnTextSetFromOutside(record_);
    field_.Replace(text, canUndo);
}

void MemoryControl::LoseFocus()
{
    OnFocusLost(record_);
}

void MemoryControl::DestroySpin()
{
    DropSpinTexts(record_);
    record_.hwndSpin = nullptr;
}

void MemoryControl::Step(bool up)
{
    record_.flags |= up ? SPIN_UP : SPIN_DOWN;
    SpinStep(record_);
    SetFlag(record_, SPIN_UP | SPIN_DOWN, false);
}

uint32_t MemoryControl::BlockCount() const
{
    return zte::BlockCount(record_.heap);
}

}  // namespace zte
