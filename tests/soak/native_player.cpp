// A control in memory under the hands of its user and its program.
#include "tests/soak/native_player.h"

#include "engine/format/data.h"
#include "engine/format/display.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/mask/mask_table.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/spin/range.h"
#include "engine/spin/spin_settings.h"
#include "engine/values/date_time.h"
#include "tests/support/keyboard.h"
#include "tests/support/native/profile_store.h"

namespace soak {

namespace {

constexpr int kControlKey = 0x11;

const std::string* textBeingEdited = nullptr;
int operationsBegun = 0;

DateTimeValue TellNow()
{
    DateTimeValue now = zte::kEmptyDateTime;
    now.year = 95;
    now.month = 6;
    now.day = 4;
    now.hour = 14;
    now.minute = 7;
    return now;
}

zte::ControlSetup SetupOf(const zttest::Config& config)
{
    zte::ControlSetup setup;
    setup.mask = config.mask;
    setup.dataType = config.type;
    setup.options = config.options;
    setup.data = config.data;
    setup.spinRange = config.range;
    setup.spinIncrement = config.increment;
    setup.codeTable = config.codes;
    setup.style.readOnly = config.readOnly;
    return setup;
}

class NativeControl final : private zttest::Keyboard {
public:
    explicit NativeControl(const zttest::Config& config) : control_(SetupOf(config), zttest::SettingsInForce(), TellNow)
    {
        textBeingEdited = &control_.Edit().Shown();
    }
    NativeControl(const NativeControl&) = delete;
    NativeControl& operator=(const NativeControl&) = delete;
    ~NativeControl() { textBeingEdited = nullptr; }

    uint32_t Blocks() const { return control_.BlockCount(); }

    void DropAll()
    {
        zte::DropSpinTexts(Record());
        zte::DropMask(Record());
    }

    void Perform(const Act& act)
    {
        switch (act.deed) {
        case Deed::Type: Keyboard::Type(act.text); break;
        case Deed::Press: Keyboard::Press(act.first, act.second); break;
        case Deed::Paste:
            control_.Edit().SetClipboard(act.text);
            control_.Paste();
            break;
        case Deed::Click: control_.Click(act.first); break;
        case Deed::Drag: control_.Drag(act.first, act.second); break;
        case Deed::Select: control_.Select(act.first, act.second); break;
        case Deed::SetText: control_.SetText(act.text.c_str()); break;
        case Deed::Replace: control_.Replace(act.text.c_str(), false); break;
        case Deed::SetMask: zte::SetMask(Record(), act.text.c_str(), act.first); break;
        case Deed::SetData: zte::SetDataString(Record(), act.text.c_str()); break;
        case Deed::SetNothing: zte::SetData(Record(), nullptr); break;
        case Deed::Read: Free(zte::GetData(Record())); break;
        case Deed::Format: zte::FormatValue(Record(), nullptr); break;
        case Deed::Unformat: Free(zte::UnformatData(Record(), act.text.c_str())); break;
        case Deed::ReadRange: {
            DateTimeValue end{};
            zte::ReadRangeEnd(Record(), end, act.text);
            break;
        }
        case Deed::SetSpin: {
            const SpinRow& row = SpinRowOf(act.first);
            zte::SetSpin(Record(), row.increment, row.range, row.codes, row.style);
            break;
        }
        case Deed::CreateSpin: control_.CreateSpin(); break;
        case Deed::DestroySpin: control_.DestroySpin(); break;
        case Deed::Autoskip: zte::SetFlag(Record(), zte::AUTOSKIP, act.first != 0); break;
        case Deed::ReadOnly: control_.Edit().SetReadOnly(act.first != 0); break;
        case Deed::Enable: control_.Edit().Enable(act.first != 0); break;
        case Deed::LoseFocus: control_.LoseFocus(); break;
        case Deed::Undo: control_.Edit().Undo(); break;
        case Deed::Resize:
        case Deed::Show:
        case Deed::Paint: break;
        }
    }

private:
    zte::EditInstance& Record() { return control_.Record(); }
    void Free(void* block) { zte::services::Free(Record().heap, block); }

    void Hold(int key, bool down) override
    {
        if (key == zte::KEY_SHIFT)
            control_.Edit().HoldShift(down);
        else if (key == kControlKey)
            control_.Edit().HoldControl(down);
    }
    void SendKeyDown(int key) override { control_.KeyDown(key); }
    void SendKeyUp(int key) override { control_.KeyUp(key); }
    void SendChar(char character, int) override { control_.Type(static_cast<unsigned char>(character)); }

    zte::MemoryControl control_;
};

}  // namespace

std::string Lead(const Life& life)
{
    operationsBegun = 1;
    NativeControl control(life.config);
    for (size_t i = 0; i < life.acts.size(); ++i) {
        ++operationsBegun;
        const uint32_t blocks = control.Blocks();
        control.Perform(life.acts[i]);
        if (control.Blocks() != blocks && !ChangesBlocks(life.acts[i].deed))
            return "blocks " + std::to_string(blocks) + " became " + std::to_string(control.Blocks()) + ": " +
                   Describe(life, i);
    }
    control.DropAll();
    if (control.Blocks() != 0)
        return std::to_string(control.Blocks()) + " blocks are left: " + Describe(life, life.acts.size());
    return "";
}

int OperationsBegun()
{
    return operationsBegun;
}

const std::string* TextBeingEdited()
{
    return textBeingEdited;
}

}  // namespace soak
