// A control in modern editing under a script of bytes, with its laws behind every act: what is refused changes nothing and is told once, a
// change is one change, literals stand, the state told is the state there is, and all that was done can be undone.
//
// A script begins with its settings, type and options, a byte each, then lines: the mask, the initial data, the range of the spin, its code
// table; as the scripts of "control" do.
#include "engine/memory_control.h"
#include "engine/modern/editor.h"
#include "engine/modern/layout.h"
#include "engine/services.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/player.h"
#include "tests/fuzz/regional.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using namespace zte;

struct Standing {
    Text text;
    Selection selection;
    bool modified;
    size_t steps;
    bool canRedo;
};

class ModernControl final : public FieldListener {
public:
    ModernControl(const ControlSetup& setup, const Settings& settings)
        : settings_(settings), control_(setup, settings_, FuzzToday, this), told_(StateOf(control_.Record()))
    {
        blocks_ = control_.BlockCount();
    }

    void OnFieldEvent(FieldEvent event) override
    {
        if (event == FieldEvent::State)
            told_ = control_.Edit().LastState().is;
    }

    // What a user does.
    template <typename Act>
    void ByUser(Act act)
    {
        const Standing before = Play(act);
        const bool positional = !control_.Record().codeTable && !IsNumeric(control_.Record().dataType) && !IsPlain();
        if (positional && Editor() && before.text != Edit().Shown())
            Demand(modern::Layout(control_.Record(), Edit().Shown()).Fits(), "literals do not stand", Edit().Shown());
    }

    // The same by one who may bring a text back that the program has set.
    template <typename Act>
    void ByHistory(Act act)
    {
        Play(act);
    }

    // What the program does.
    template <typename Act>
    void ByProgram(Act act)
    {
        CountStep();
        act(control_);
        CheckState();
    }

    // The value read back; handed in again it changes nothing.
    void Read()
    {
        EditInstance& record = control_.Record();
        if (void* value = EditingOf(record).getData(record)) {
            const int32_t state = StateOf(record);
            const bool mayBe = record.dataType == DT_STRING || state == ZTS_EMPTY || state >= ZTS_OUT_OF_RANGE;
            Demand(mayBe, "a getter returns what is not there", Edit().Shown());
            services::Free(record.heap, value);
        }
        Demand(control_.BlockCount() == blocks_ || !settled_, "blocks are left behind");
    }

    void UndoAll()
    {
        if (!Editor() || Edit().RefusesInput())
            return;
        while (Editor()->CanUndo())
            control_.Undo();
        Demand(Editor()->UndoSteps() == 0, "not all was undone");
    }

    // A switch tells nobody: who switches can ask.
    void BeginAgain() { told_ = StateOf(control_.Record()); }

    // Masks and tables take blocks of their own.
    void Unsettle() { settled_ = false; }
    MemoryField& Edit() { return control_.Edit(); }

private:
    modern::Editor* Editor() { return control_.Record().editor; }
    bool IsPlain() const { return !HasMask(control_.Record()) && !Has(control_.Record(), CODE_SPIN); }

    template <typename Act>
    Standing Play(Act act)
    {
        CountStep();
        Standing before = Look();
        control_.Edit().ForgetCounts();
        act(control_);
        const Standing after = Look();
        CheckRefusal(before, after);
        CheckChange(before, after);
        CheckState();
        return before;
    }

    Standing Look()
    {
        return {Edit().Shown(), Edit().ReadSelection(), Edit().IsModified(), Editor() ? Editor()->UndoSteps() : 0,
                Editor() && Editor()->CanRedo()};
    }

    void CheckRefusal(const Standing& before, const Standing& after)
    {
        const int32_t rejections = Edit().Count(FieldEvent::Rejected);
        Demand(rejections <= 1, "an act is refused twice", after.text);
        if (rejections == 0 || !Editor())
            return;
        const Rejection& rejection = Edit().LastRejected();
        Demand(rejection.reason >= ZTR_WRONG_KIND && rejection.reason <= ZTR_NOT_IN_CODE_PAGE,
               "a refusal without a reason");
        DemandEqual(after.text, before.text, "what is refused changes the text");
        Demand(after.selection.start == before.selection.start && after.selection.end == before.selection.end,
               "what is refused moves the caret", after.text);
        Demand(after.modified == before.modified, "what is refused counts as a change", after.text);
        Demand(after.steps == before.steps && after.canRedo == before.canRedo, "what is refused can be undone",
               after.text);
    }

    void CheckChange(const Standing& before, const Standing& after)
    {
        if (IsPlain() || !Editor())
            return;
        const int32_t changes = before.text == after.text ? 0 : 1;
        Demand(Edit().Count(FieldEvent::Change) == changes, "the parent hears of a change not once", before.text,
               after.text);
        Demand(after.selection.end <= Length(after.text), "the caret is outside the text", after.text);
    }

    void CheckState()
    {
        if (IsPlain() || !Editor())
            return;
        Demand(told_ == StateOf(control_.Record()), "the state told is another one", Edit().Shown());
    }

    Settings settings_;
    MemoryControl control_;
    int32_t told_;
    uint32_t blocks_ = 0;
    bool settled_ = true;
};

// ---- acts

template <int32_t key>
void Press(ModernControl& modern, Bytes&)
{
    modern.ByUser([](MemoryControl& control) { control.KeyDown(key); });
}

template <uint32_t character>
void TypeIt(ModernControl& modern, Bytes&)
{
    modern.ByUser([](MemoryControl& control) { control.Type(character); });
}

template <void (MemoryControl::*act)()>
void Do(ModernControl& modern, Bytes&)
{
    modern.ByUser([](MemoryControl& control) { (control.*act)(); });
}

template <void (MemoryControl::*act)()>
void GoInHistory(ModernControl& modern, Bytes&)
{
    modern.ByHistory([](MemoryControl& control) { (control.*act)(); });
}

int32_t TakePlace(Bytes& bytes)
{
    return static_cast<int32_t>(bytes.TakeBelow(40));
}

void ClickIt(ModernControl& modern, Bytes& bytes)
{
    const int32_t position = TakePlace(bytes);
    modern.ByUser([=](MemoryControl& control) { control.Click(position); });
}

void DragIt(ModernControl& modern, Bytes& bytes)
{
    const int32_t from = TakePlace(bytes);
    const int32_t to = TakePlace(bytes);
    modern.ByUser([=](MemoryControl& control) { control.Drag(from, to); });
}

void DoubleClickIt(ModernControl& modern, Bytes& bytes)
{
    const int32_t position = TakePlace(bytes);
    modern.ByUser([=](MemoryControl& control) { control.DoubleClick(position); });
}

void PasteIt(ModernControl& modern, Bytes& bytes)
{
    modern.Edit().SetClipboard(bytes.TakeLine());
    modern.ByUser([](MemoryControl& control) { control.Paste(); });
}

void TurnWheel(ModernControl& modern, Bytes& bytes)
{
    const int32_t notches = static_cast<int32_t>(bytes.TakeBelow(7)) - 3;
    if (notches != 0)
        modern.ByUser([=](MemoryControl& control) { control.Wheel(notches); });
}

void Wait(ModernControl& modern, Bytes& bytes)
{
    modern.Edit().LetTimePass(bytes.Take() * 16u);
}

void Hold(ModernControl& modern, Bytes& bytes)
{
    const uint8_t keys = bytes.Take();
    modern.Edit().HoldShift((keys & 1) != 0);
    modern.Edit().HoldControl((keys & 2) != 0);
}

void SetInput(ModernControl& modern, Bytes& bytes)
{
    modern.Edit().SetReadOnly(bytes.TakeBool());
}

void SetDataIt(ModernControl& modern, Bytes& bytes)
{
    const Text text = bytes.TakeLine();
    modern.ByProgram([&](MemoryControl& control) {
        EditInstance& record = control.Record();
        EditingOf(record).setDataString(record, text.c_str());
    });
}

void TryData(ModernControl& modern, Bytes& bytes)
{
    const Text text = bytes.TakeLine();
    modern.ByProgram([&](MemoryControl& control) {
        const Text before = control.Edit().Shown();
        if (TrySetDataString(control.Record(), text.c_str()) != 0)
            DemandEqual(control.Edit().Shown(), before, "data that is refused changes the text");
    });
}

void SetTextIt(ModernControl& modern, Bytes& bytes)
{
    const Text text = bytes.TakeLine();
    modern.ByProgram([&](MemoryControl& control) { control.SetText(text.c_str()); });
}

void SelectIt(ModernControl& modern, Bytes& bytes)
{
    const int32_t anchor = TakePlace(bytes);
    const int32_t caret = TakePlace(bytes);
    modern.ByProgram([=](MemoryControl& control) { control.Select(anchor, caret); });
}

void ReplaceIt(ModernControl& modern, Bytes& bytes)
{
    const bool canUndo = bytes.TakeBool();
    const Text text = bytes.TakeLine();
    modern.ByProgram([&](MemoryControl& control) { control.Replace(text.c_str(), canUndo); });
}

void SetMaskIt(ModernControl& modern, Bytes& bytes)
{
    const auto type = static_cast<int32_t>(bytes.TakeBelow(8));
    const Text mask = bytes.TakeLine();
    modern.Unsettle();
    modern.ByProgram([&](MemoryControl& control) {
        EditInstance& record = control.Record();
        EditingOf(record).setMask(record, mask.c_str(), type);
    });
}

void SetSpinIt(ModernControl& modern, Bytes& bytes)
{
    const uint32_t increment = bytes.Take();
    const uint32_t style = static_cast<uint32_t>(bytes.Take()) << 24;
    const Text range = bytes.TakeLine();
    const Text codes = bytes.TakeLine();
    modern.Unsettle();
    modern.ByProgram([&](MemoryControl& control) {
        EditInstance& record = control.Record();
        EditingOf(record).setSpin(record, increment, range.c_str(), codes.empty() ? nullptr : codes.c_str(), style);
    });
}

void Switch(ModernControl& modern, Bytes& bytes)
{
    const bool on = bytes.TakeBool();
    modern.Unsettle();
    modern.ByProgram([&](MemoryControl& control) {
        SetModern(control.Record(), on);
        SetModern(control.Record(), true);
        modern.BeginAgain();
    });
}

void ReadIt(ModernControl& modern, Bytes&)
{
    modern.Read();
}

void UndoAll(ModernControl& modern, Bytes&)
{
    modern.UndoAll();
}

using Act = void (*)(ModernControl&, Bytes&);

// The act of a control character; the order is that of the corpus, so that new acts take free places.
constexpr Act kActs[0x20] = {
    /* 00 */ Do<&MemoryControl::LoseFocus>,
    /* 01 */ Press<KEY_LEFT>,
    /* 02 */ Press<KEY_RIGHT>,
    /* 03 */ Press<KEY_HOME>,
    /* 04 */ Press<KEY_END>,
    /* 05 */ Press<KEY_UP>,
    /* 06 */ Press<KEY_DOWN>,
    /* 07 */ Press<KEY_DELETE>,
    /* 08 */ TypeIt<8>,
    /* 09 */ SelectIt,
    /* 0A */ ReadIt,
    /* 0B */ TypeIt<1>,
    /* 0C */ ClickIt,
    /* 0D */ DragIt,
    /* 0E */ PasteIt,
    /* 0F */ SetDataIt,
    /* 10 */ TryData,
    /* 11 */ SetMaskIt,
    /* 12 */ SetTextIt,
    /* 13 */ ReplaceIt,
    /* 14 */ TurnWheel,
    /* 15 */ Press<KEY_PAGE_UP>,
    /* 16 */ SetSpinIt,
    /* 17 */ Switch,
    /* 18 */ Hold,
    /* 19 */ TypeIt<127>,
    /* 1A */ GoInHistory<&MemoryControl::Undo>,
    /* 1B */ SetInput,
    /* 1C */ GoInHistory<&MemoryControl::Redo>,
    /* 1D */ Wait,
    /* 1E */ DoubleClickIt,
    /* 1F */ UndoAll,
};

void PlayNext(ModernControl& modern, Bytes& bytes)
{
    const uint8_t next = bytes.Take();
    if (next < 0x20)
        kActs[next](modern, bytes);
    else
        modern.ByUser([=](MemoryControl& control) { control.Type(next); });
}

const Char* OrNull(const Text& text)
{
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

void PlayModern(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const Settings& settings = RegionalSettings(bytes.Take());
    ControlSetup setup;
    setup.dataType = static_cast<int32_t>(bytes.TakeBelow(8));
    const uint8_t options = bytes.Take();
    setup.options = (options & 0xFu) | ZTEO_MODERN;
    setup.spinIncrement = options >> 4;
    const Text mask = bytes.TakeLine();
    const Text initial = bytes.TakeLine();
    const Text range = bytes.TakeLine();
    const Text codes = bytes.TakeLine();
    setup.mask = mask.c_str();
    setup.data = OrNull(initial);
    setup.spinRange = OrNull(range);
    setup.codeTable = OrNull(codes);

    ModernControl modern(setup, settings);
    while (!bytes.IsEmpty())
        PlayNext(modern, bytes);
    modern.Read();
    modern.UndoAll();
}

}  // namespace zttest
