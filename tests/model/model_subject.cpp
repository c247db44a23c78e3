// The model as a subject.
#include "subject.h"

#include <algorithm>
#include <cstring>

namespace model {
namespace {

// On the keyboard that the scenarios are typed on.
bool NeedsShift(char c)
{
    return (c >= 'A' && c <= 'Z') || (c != '\0' && std::strchr("_+?:\"!@#$%^&*()~|{}<>", c) != nullptr);
}

class ModelSubject : public Subject {
public:
    void UseSettings(const Regional& regional) override { regional_ = regional; }

    void Make(const Config& config) override
    {
        control_ = Control(regional_);
        control_.SetAutoskip(config.autoskip);
        control_.SetCodeDisplay(config.codeDisplay, config.codePick);
        if (config.increment != 0)
            control_.SetSpin(config.increment, config.range.c_str(), config.codes ? config.codes->c_str() : nullptr,
                             config.codePick, config.codeDisplay, config.type);
        control_.SetMask(config.mask.c_str(), config.type);
    }

    State Look() override
    {
        State state;
        state.text = control_.Text();
        state.start = control_.Start();
        state.end = control_.End();
        state.beeps = control_.Beeps();
        state.autoskips = control_.Autoskips();
        state.steps = control_.Changes();
        state.modified = control_.Modified();
        return state;
    }

    void Enter(char c) override
    {
        control_.Char(c, NeedsShift(c));
        control_.KeyUp();
    }

    void Press(int key, bool shift) override
    {
        control_.KeyDown(key, shift);
        if (key == kBackspace)
            control_.Char('\b', shift);
        control_.KeyUp();
    }

    void Click(int position) override { control_.Click(std::min(position, static_cast<int>(control_.Text().size()))); }
    void Paste(const std::string& clipboard) override { control_.Paste(clipboard); }
    void Select(int start, int end) override { control_.SetSelection(start, end); }
    int SetMask(const char* mask, Type type) override { return control_.SetMask(mask, type); }

    void SetData(const char* text) override
    {
        if (text != nullptr)
            control_.SetDataString(text);
        else
            control_.SetData(Value::None());
    }

    void SetAutoskip(bool on) override { control_.SetAutoskip(on); }
    void SetReadOnly(bool on) override { control_.SetReadOnly(on); }
    void Enable(bool on) override { control_.Enable(on); }
    Value Read() override { return control_.GetData(); }
    Value Unformat(const std::string& text) override { return control_.Unformat(text); }
    bool ReadRangeEnd(const std::string& text, Stamp& end) override { return control_.SpinDateRange(end, text); }
    bool OutOfOrder(const Stamp& first, const Stamp& second) override { return control_.OutOfOrder(first, second); }

private:
    Regional regional_;
    Control control_{regional_};
};

}  // namespace

std::unique_ptr<Subject> MakeModel()
{
    return std::make_unique<ModelSubject>();
}

}  // namespace model
