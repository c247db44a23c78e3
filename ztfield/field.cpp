// A field behind the interface.
#include "ztfield/field.h"

#include <utility>

#include "engine/edit/plain_edit.h"
#include "engine/editing.h"
#include "ztfield/clock.h"
#include "ztfield/settings.h"
#include "ztfield/utf8.h"

namespace {

using zte::FieldEvent;
using zte::Text;

// A text of the caller's for the time of a call; null stays null.
class Borrowed {
public:
    explicit Borrowed(const char* utf8) : isNull_(!utf8), text_(zte::FromUtf8(utf8)) {}
    const zte::Char* get() const { return isNull_ ? nullptr : text_.c_str(); }

private:
    bool isNull_;
    Text text_;
};

int32_t TypeOf(const ZTFieldSetup& setup)
{
    return setup.dataType == 0 ? DT_STRING : setup.dataType;
}

// A control is made by texts that live as long as its making.
class Making {
public:
    explicit Making(const ZTFieldSetup& setup)
        : mask_(setup.mask), data_(setup.data), range_(setup.range), codeTable_(setup.codeTable)
    {
        control_.mask = mask_.get();
        control_.dataType = TypeOf(setup);
        control_.options = setup.options;
        control_.data = data_.get();
        control_.spinRange = range_.get();
        control_.spinIncrement = setup.increment;
        control_.codeTable = codeTable_.get();
    }
    const zte::ControlSetup& Setup() const { return control_; }

private:
    Borrowed mask_;
    Borrowed data_;
    Borrowed range_;
    Borrowed codeTable_;
    zte::ControlSetup control_;
};

struct EventRow {
    FieldEvent event;
    int32_t kind;
};

constexpr EventRow kEvents[] = {
    {FieldEvent::Change,   ZTF_CHANGED },
    {FieldEvent::Beep,     ZTF_BEEP    },
    {FieldEvent::Full,     ZTF_FULL    },
    {FieldEvent::Stepped,  ZTF_STEPPED },
    {FieldEvent::Rejected, ZTF_REJECTED},
    {FieldEvent::State,    ZTF_STATE   },
    {FieldEvent::Value,    ZTF_VALUE   },
};

// 0 for what is only of interest to a window.
int32_t KindOf(FieldEvent event)
{
    for (const EventRow& row : kEvents)
        if (row.event == event)
            return row.kind;
    return 0;
}

constexpr int32_t kFirstLetter = 'A';
constexpr int32_t kLastLetter = 'Z';
constexpr uint32_t kControlBackspace = 0x7F;

// The character that a key makes which is not typed as one; 0 for the others.
uint32_t CharacterOf(int32_t key, int32_t held)
{
    const bool control = (held & ZTF_CONTROL) != 0;
    if (key == ZTF_KEY_BACKSPACE)
        return control ? kControlBackspace : static_cast<uint32_t>(key);
    if (control && key >= kFirstLetter && key <= kLastLetter)
        return static_cast<uint32_t>(key - kFirstLetter + 1);
    return key == ZTF_KEY_KEYPAD_POINT && !control ? '.' : 0;
}

}  // namespace

// The listener hears from here on: what the making does is no event.
ZTField::ZTField(const ZTFieldSetup& setup)
    : settings_(zte::SettingsOf(setup.settings)),
      mask_(zte::FromUtf8(setup.mask)),
      listener_(setup.listener),
      context_(setup.context),
      control_(Making(setup).Setup(), settings_, zte::LocalNow)
{
    if (listener_)
        Edit().SetListener(this);
}

void ZTField::OnFieldEvent(FieldEvent event)
{
    const int32_t kind = KindOf(event);
    if (kind == 0)
        return;
    ZTFieldEvent told{};
    told.kind = kind;
    if (event == FieldEvent::Rejected) {
        const zte::Rejection& rejected = Edit().LastRejected();
        told.reason = rejected.reason;
        told.position = rejected.position;
        told.character = rejected.character;
    }
    if (event == FieldEvent::State) {
        told.was = Edit().LastState().was;
        told.is = Edit().LastState().is;
    }
    const bool taken = listener_(context_, this, &told) != 0;
    if (event == FieldEvent::Rejected)
        Edit().BeQuiet(taken);
}

bool ZTField::SetMask(const char* mask, int32_t dataType)
{
    mask_ = zte::FromUtf8(mask);
    return zte::EditingOf(Record()).setMask(Record(), mask_.c_str(), dataType) != 0;
}

// The value is what stays, in another dress. One that is not complete has none, and what is shown of a string is its value.
void ZTField::UseSettings(const zte::Settings& settings)
{
    Text value;
    const bool hasValue = zte::CanonicalText(Record(), value);
    settings_ = settings;
    zte::EditingOf(Record()).setMask(Record(), mask_.c_str(), Record().dataType);
    if (hasValue)
        zte::TrySetDataString(Record(), value.c_str());
}

void ZTField::SetSpin(uint32_t increment, const char* range, const char* codeTable, uint32_t style)
{
    zte::EditingOf(Record()).setSpin(Record(), increment, Borrowed(range).get(), Borrowed(codeTable).get(), style);
}

void ZTField::Hold(int32_t held)
{
    Edit().HoldShift((held & ZTF_SHIFT) != 0);
    Edit().HoldControl((held & ZTF_CONTROL) != 0);
}

void ZTField::KeyDown(int32_t key, int32_t held)
{
    Hold(held);
    Edit().HoldRight(key == ZTF_KEY_RIGHT);
    control_.KeyDown(key, std::exchange(keyDown_, key) == key);
}

void ZTField::KeyUp(int32_t key, int32_t held)
{
    Hold(held);
    if (key == ZTF_KEY_RIGHT)
        Edit().HoldRight(false);
    keyDown_ = 0;
    control_.KeyUp(key);
}

void ZTField::Press(int32_t key, int32_t held)
{
    KeyDown(key, held);
    if (const uint32_t character = CharacterOf(key, held))
        control_.Type(character);
    KeyUp(key, held);
    Hold(0);
}

void ZTField::Click(int32_t position, int32_t held)
{
    control_.Click(position, (held & ZTF_SHIFT) != 0);
}

// Asking changes nothing, though the table of acts takes a control that may be changed.
bool ZTField::CanUndo() const
{
    auto& record = const_cast<zte::EditInstance&>(Record());
    const zte::Reply reply = zte::IsPlainEdit(record) ? zte::kPassOn : zte::EditingOf(record).canUndo(record);
    return reply.kept ? reply.result != 0 : Edit().CanUndo();
}
