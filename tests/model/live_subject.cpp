// The library's control as a window of a form: keys, clicks and the clipboard are those of the system.
#include "raw_values.h"
#include "subject.h"

#include "tests/support/live/beeps.h"
#include "tests/support/clipboard.h"
#include "tests/support/live/form.h"
#include "tests/support/live/import_patch.h"
#include "tests/support/profile.h"
#include "tests/support/live/typist.h"

#include <list>

namespace model {
namespace {

constexpr int kControlId = 7;

void WINAPI TellToday(DateTimeValue* value)
{
    *value = Raw(Today());
}

// The values of a profile, with the texts that they point to.
class Profile {
public:
    explicit Profile(const Regional& regional)
    {
        Add("sDecimal", std::string(regional.decimal == '\0' ? 0 : 1, regional.decimal));
        Add("sThousand", std::string(1, regional.thousand));
        Add("sCurrency", regional.currency);
        Add("iCurrency", std::to_string(regional.currencyPosition));
        Add("iCurrDigits", std::to_string(regional.currencyDigits));
        Add("s1159", regional.am);
        Add("s2359", regional.pm);
        Add("sShortDate", regional.shortDate);
        Add("sTime", regional.timeSeparator);
    }
    const zttest::RegionalSet& Values() const { return values_; }

private:
    void Add(const char* key, const std::string& value)
    {
        texts_.push_back(value);
        values_.push_back({key, texts_.back().c_str()});
    }

    std::list<std::string> texts_;
    zttest::RegionalSet values_;
};

class LiveSubject : public Subject {
public:
    void UseSettings(const Regional& regional) override
    {
        control_.reset();
        settings_.reset();
        const Profile profile(regional);
        settings_ = std::make_unique<zttest::Regional>(profile.Values());
    }

    void Make(const Config& config) override
    {
        zttest::Config made;
        made.mask = config.mask.c_str();
        made.type = config.type;
        made.options = OptionsOf(config);
        made.range = config.range.c_str();
        made.increment = config.increment;
        made.codes = config.codes ? config.codes->c_str() : nullptr;
        made.width = 600;
        type_ = config.type;
        steps_ = 0;
        control_ = std::make_unique<zttest::Control>(form_.hwnd(), kControlId, made);
        typist_.Use(Window());
        form_.Forget();
        beeps_.Forget();
    }

    State Look() override
    {
        State state;
        state.text = control_->Text();
        state.start = control_->CaretStart();
        state.end = control_->CaretEnd();
        state.beeps = beeps_.Count();
        state.autoskips = form_.Count(ZTN_AUTOSKIP);
        state.steps = steps_;
        state.drawn = (GetWindowLongA(Window(), GWL_STYLE) & WS_VISIBLE) != 0;
        state.modified = SendMessageA(Window(), EM_GETMODIFY, 0, 0) != 0;
        return state;
    }

    void Enter(char c) override { typist_.Type(std::string(1, c)); }

    void Press(int key, bool shift) override
    {
        const int changes = form_.Count(EN_CHANGE);
        typist_.Press(key, shift ? zttest::kShift : zttest::kPlain);
        if ((key == VK_UP || key == VK_DOWN) && form_.Count(EN_CHANGE) != changes)
            ++steps_;
    }

    void Click(int position) override { typist_.Click(position); }

    void Paste(const std::string& clipboard) override
    {
        zttest::CopyToClipboard(clipboard);
        SendMessageA(Window(), WM_PASTE, 0, 0);
    }

    void Select(int start, int end) override { control_->Select(start, end); }

    int SetMask(const char* mask, Type type) override
    {
        type_ = type;
        const int result = ZTE_FmtSetMask(Window(), mask, type);
        control_->AcceptHeap();
        return result;
    }

    void SetData(const char* text) override
    {
        if (text != nullptr)
            ZTE_FmtSetDataString(Window(), text);
        else
            ZTE_FmtSetData(Window(), nullptr);
    }

    void SetAutoskip(bool on) override { ZTE_SetAutoskip(Window(), on ? 1 : 0); }
    void SetReadOnly(bool on) override { SendMessageA(Window(), EM_SETREADONLY, on ? TRUE : FALSE, 0); }
    void Enable(bool on) override { EnableWindow(Window(), on ? TRUE : FALSE); }

    Value Read() override { return Take(ZTE_FmtGetData(Window())); }
    Value Unformat(const std::string& text) override { return Take(ZTE_FmtUnformatData(Window(), text.c_str())); }

    bool ReadRangeEnd(const std::string& text, Stamp& end) override
    {
        DateTimeValue raw = {};
        const bool read = ZTE_SpinDateRange(Window(), &raw, text.c_str()) == 0;
        end = StampOf(raw);
        return read;
    }

    bool OutOfOrder(const Stamp& first, const Stamp& second) override
    {
        const DateTimeValue raw[] = {Raw(first), Raw(second)};
        return ZTE_SpinRangeCompare(Window(), &raw[0], &raw[1]) != 0;
    }

private:
    HWND Window() const { return control_->hwnd(); }

    Value Take(void* block) const
    {
        if (block == nullptr)
            return Value::None();
        const bool text = type_ == kString || type_ == kNumber || type_ == kDecimal;
        const Value value = text ? Value::OfText(static_cast<const char*>(block))
                                 : Value::OfStamp(StampOf(*static_cast<const DateTimeValue*>(block)));
        SharedHeapFree(control_->heap(), block);
        return value;
    }

    zttest::ImportPatch clock_{"ztshared.dll", "SharedDateTimeNow", reinterpret_cast<void*>(TellToday)};
    zttest::BeepCounter beeps_;
    zttest::Form form_;
    zttest::Typist typist_;
    std::unique_ptr<zttest::Regional> settings_;
    std::unique_ptr<zttest::Control> control_;
    Type type_ = kString;
    int steps_ = 0;
};

}  // namespace

const unsigned kDefaultRounds = 1;
const unsigned kPlayedOf = 3;

std::unique_ptr<Subject> MakeLibrary()
{
    return std::make_unique<LiveSubject>();
}

}  // namespace model
