// The library's control without a window: the engine over a field in memory.
#include "native_settings.h"
#include "raw_values.h"
#include "subject.h"

#include "engine/format/data.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/spin/range.h"
#include "tests/support/keyboard.h"

namespace model {
namespace {

using zte::FieldEvent;

constexpr int kControlKey = 0x11;

DateTimeValue TellToday()
{
    return Raw(Today());
}

class NativeSubject final : public Subject, private zttest::Keyboard, public zte::FieldListener {
public:
    void UseSettings(const Regional& regional) override
    {
        control_.reset();
        settings_ = SettingsOf(regional);
    }

    void Make(const Config& config) override
    {
        zte::ControlSetup setup;
        setup.mask = config.mask.c_str();
        setup.dataType = config.type;
        setup.options = OptionsOf(config);
        setup.spinRange = config.range.c_str();
        setup.spinIncrement = config.increment;
        setup.codeTable = config.codes ? config.codes->c_str() : nullptr;
        type_ = config.type;
        drawn_ = true;
        control_ = std::make_unique<zte::MemoryControl>(setup, settings_, TellToday, this);
        Edit().ForgetCounts();
    }

    State Look() override
    {
        State state;
        state.text = Edit().Shown();
        state.start = Edit().ReadSelection().start;
        state.end = Edit().ReadSelection().end;
        state.beeps = Edit().Count(FieldEvent::Beep);
        state.autoskips = Edit().Count(FieldEvent::Full);
        state.steps = Edit().Count(FieldEvent::Stepped);
        state.drawn = drawn_;
        state.modified = Edit().IsModified();
        return state;
    }

    void Enter(char c) override { Type(std::string(1, c)); }
    void Press(int key, bool shift) override { Keyboard::Press(key, shift ? zttest::kShift : zttest::kPlain); }
    void Click(int position) override { control_->Click(position); }
    void Paste(const std::string& clipboard) override
    {
        Edit().SetClipboard(clipboard);
        control_->Paste();
    }

    void Select(int start, int end) override { control_->Select(start, end); }
    int SetMask(const char* mask, model::Type type) override
    {
        type_ = type;
        return zte::SetMask(control_->Record(), mask, type);
    }
    void SetData(const char* text) override { zte::SetDataString(control_->Record(), text); }
    void SetAutoskip(bool on) override { zte::SetFlag(control_->Record(), zte::AUTOSKIP, on); }
    void SetReadOnly(bool on) override { Edit().SetReadOnly(on); }
    void Enable(bool on) override { Edit().Enable(on); }
    Value Read() override { return Take(zte::GetData(control_->Record())); }
    Value Unformat(const std::string& text) override
    {
        return Take(zte::UnformatData(control_->Record(), text.c_str()));
    }
    bool ReadRangeEnd(const std::string& text, Stamp& end) override
    {
        DateTimeValue raw = {};
        const bool read = zte::ReadRangeEnd(control_->Record(), raw, text) == 0;
        end = StampOf(raw);
        return read;
    }
    bool OutOfOrder(const Stamp& first, const Stamp& second) override
    {
        return zte::IsOutOfOrder(type_, Raw(first), Raw(second));
    }

private:
    zte::MemoryField& Edit() { return control_->Edit(); }

    void Hold(int key, bool down) override
    {
        if (key == zte::KEY_SHIFT)
            Edit().HoldShift(down);
        else if (key == kControlKey)
            Edit().HoldControl(down);
        else if (key == zte::KEY_RIGHT)
            Edit().HoldRight(down);
    }
    void SendKeyDown(int key) override { control_->KeyDown(key); }
    void SendKeyUp(int key) override { control_->KeyUp(key); }
    void SendChar(char character, int) override { control_->Type(static_cast<unsigned char>(character)); }

    void OnFieldEvent(FieldEvent event) override
    {
        if (event == FieldEvent::RedrawOff || event == FieldEvent::RedrawOn)
            drawn_ = event == FieldEvent::RedrawOn;
    }

    Value Take(void* block)
    {
        if (block == nullptr)
            return Value::None();
        const bool text = type_ == kString || type_ == kNumber || type_ == kDecimal;
        const Value value = text ? Value::OfText(static_cast<const char*>(block))
                                 : Value::OfStamp(StampOf(*static_cast<const DateTimeValue*>(block)));
        zte::services::Free(control_->Record().heap, block);
        return value;
    }

    zte::Settings settings_ = zte::StandardSettings();
    std::unique_ptr<zte::MemoryControl> control_;
    model::Type type_ = kString;
    bool drawn_ = true;
};

}  // namespace

const unsigned kDefaultRounds = 16;  // about a million steps
const unsigned kPlayedOf = 1;

std::unique_ptr<Subject> MakeLibrary()
{
    return std::make_unique<NativeSubject>();
}

}  // namespace model
