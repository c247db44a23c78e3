// An edit control of one line in memory: it takes keys, clicks and messages as the system's own control does (one that scrolls
// sideways), without a window. Made to be fast: keystrokes allocate nothing once the texts have found their capacity.
//
// Known limits
// - Words end at blanks only: the system's control stops at some punctuation as well (Ctrl with arrows, double clicks).
// - Clicks are by character position, and the mouse never scrolls; the key states of Alt and the focus are not known.
// - The clipboard is the field's own, until a host fills it. Letters beyond ASCII change case by the host's function only.
// - Texts have no password sign. A NUL ends them.
// - A listener may use the field, but not destroy it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "engine/host.h"
#include "engine/text/text.h"

namespace zte {

// What a field tells the program around it.
enum class FieldEvent : uint8_t {
    Update,        // the text has changed and is about to be drawn (EN_UPDATE)
    Change,        // the text has changed (EN_CHANGE)
    LimitReached,  // an insertion is cut at the text limit, or even the text left lies behind it (EN_MAXTEXT)
    Beep,
    Full,
    Stepped,
    RedrawOff,
    RedrawOn,
    Layout,
    Repaint,
    RepaintSpin,
    Rejected,  // an act of the user, see LastRejected
    State,     // see LastState
    Value,     // another value than was typed
    Count
};

// Hears every event as it happens. The field is settled then, but for LimitReached, which comes before the change.
class FieldListener {
public:
    virtual void OnFieldEvent(FieldEvent event) = 0;

protected:
    ~FieldListener() = default;
};

// What was told last.
struct Rejection {
    int32_t reason;
    int32_t position;
    Char character;
};
struct StateChange {
    int32_t was;
    int32_t is;
};

enum class LetterCase : uint8_t { AsTyped, Upper, Lower };

// What the styles of an edit control choose.
struct FieldStyle {
    bool readOnly = false;
    bool disabled = false;
    bool digitsOnly = false;  // for typing; texts set or pasted stay free
    LetterCase letterCase = LetterCase::AsTyped;
    Char (*foldCase)(Char, LetterCase) = nullptr;  // letters of the host's locale; null: those of ASCII
};

class MemoryField final : public Field {
public:
    static constexpr int32_t kDefaultLimit = 30000;

    explicit MemoryField(const FieldStyle& style = {}) : style_(style) {}

    // The operations of the engine.
    Text ReadText() const override { return text_; }
    Selection ReadSelection() const override;
    bool IsHeld(Key key) const override;
    bool RefusesInput() const override { return style_.readOnly || style_.disabled; }
    std::optional<Text> ReadClipboard() const override { return clipboard_; }
    void Select(int32_t start, int32_t end) override { SetSelection(start, end); }
    void ReplaceSelection(const Char* text) override;
    void CopySelection() override { Copy(); }
    void SetText(const Char* text) override;
    void PressArrow(Key key, KeyData keyData, int32_t times) override;
    void PressDelete(KeyData keyData) override;
    void ScrollToCaret() override {}  // all of the text is in view
    void HoldShift(bool down) override { shiftHeld_ = down; }
    void SetRedraw(bool on) override;
    void KeepLayout() override { Tell(FieldEvent::Layout); }
    void Repaint() override { Tell(FieldEvent::Repaint); }
    void RepaintSpin() override { Tell(FieldEvent::RepaintSpin); }
    bool IsModified() const override { return modified_; }
    void SetModified() override { modified_ = true; }
    void Beep() override { Tell(FieldEvent::Beep); }
    void NotifyFull() override { Tell(FieldEvent::Full); }
    void NotifyStepped() override { Tell(FieldEvent::Stepped); }
    bool NotifyRejected(int32_t reason, int32_t position, Char character) override;
    void NotifyState(int32_t was, int32_t is) override;
    void NotifyValue() override { Tell(FieldEvent::Value); }
    uint32_t Milliseconds() const override { return now_; }

    // The user's side: what the control itself does on a key-down, a character, a mouse button.
    void HoldControl(bool down) { controlHeld_ = down; }
    void HoldRight(bool down) { rightHeld_ = down; }
    void Press(Key key);  // under the keys that are held
    void Press(Key key, bool shift, bool control);
    void Type(Char character);
    void Type(const Text& characters);
    void Click(int32_t position, bool shift = false);
    void DoubleClick(int32_t position);
    void Drag(int32_t from, int32_t to);

    // The program's side, by the messages to an edit control.
    const Text& Shown() const { return text_; }
    int32_t Caret() const { return caret_; }    // the end of the selection that moves
    int32_t Anchor() const { return anchor_; }  // the end that stays
    void SetSelection(int32_t anchor, int32_t caret);
    void Replace(const Char* text, bool canUndo);
    int32_t Limit() const { return limit_; }
    void SetLimit(int32_t characters);  // 0 or less: none
    void SetModifiedFlag(bool modified) { modified_ = modified; }
    bool CanUndo() const { return insertedCount_ > 0 || !removed_.empty(); }
    void ForgetUndo();
    void Undo();
    void Cut();
    void Copy();
    void Paste();
    void Clear();
    void SetClipboard(std::optional<Text> text) { clipboard_ = std::move(text); }
    void SetReadOnly(bool on) { style_.readOnly = on; }
    void Enable(bool on) { style_.disabled = !on; }

    const Rejection& LastRejected() const { return rejected_; }
    const StateChange& LastState() const { return stateChange_; }
    void BeQuiet(bool on) { quiet_ = on; }  // the parent does without the beeps of what is refused
    void LetTimePass(uint32_t milliseconds) { now_ += milliseconds; }

    void SetListener(FieldListener* listener) { listener_ = listener; }
    int32_t Count(FieldEvent event) const { return counts_[static_cast<size_t>(event)]; }
    void ForgetCounts() { counts_ = {}; }

private:
    struct EditKey;

    void MoveCaret(int32_t position, bool extend);
    int32_t Room() const;
    void Put(const Char* text, int32_t count, bool canUndo);
    void FoldCase(size_t start, size_t count);
    void Remember(Selection replaced, int32_t insertedCount);
    void RememberRemoval(Selection range);
    void RememberInsertion(int32_t position, int32_t count);
    int32_t Destination(Key key) const;
    void Erase(int32_t anchor, int32_t caret);
    void DeleteForward();
    void DeleteToEnd();
    void Backspace();
    void CutByKey();
    void CutOrBackspace();
    void Tell(FieldEvent event);

    Text text_;
    int32_t anchor_ = 0;
    int32_t caret_ = 0;
    int32_t limit_ = kDefaultLimit;
    FieldStyle style_;
    bool modified_ = false;
    bool shiftHeld_ = false;
    bool controlHeld_ = false;
    bool rightHeld_ = false;
    bool redrawOff_ = false;

    // One undo step: at the position, insertedCount_ characters stand in the place of the removed text.
    int32_t undoPosition_ = 0;
    int32_t insertedCount_ = 0;
    Text removed_;
    Text restored_;  // keeps its capacity between undo steps

    std::optional<Text> clipboard_;
    Rejection rejected_{};
    StateChange stateChange_{};
    bool quiet_ = false;
    uint32_t now_ = 0;
    FieldListener* listener_ = nullptr;
    std::array<int32_t, static_cast<size_t>(FieldEvent::Count)> counts_{};
};

}  // namespace zte
