// The state of one control in modern editing, and the one way in which its field is changed: an act is judged as a content, then shown,
// noted in the history and told; or it is refused, and all stands as before.
#pragma once

#include <utility>

#include "engine/modern/history.h"
#include "engine/modern/kind.h"

namespace zte::modern {

class Editor {
public:
    explicit Editor(EditInstance& edit) : edit_(edit) {}
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // What stands in the field, with what is remembered of it where nobody else has changed it since.
    const Content& Look();
    // The same for one who only asks, in the middle of a change too: nothing is taken note of.
    Content Peek() const;
    // The same before a key is typed; a pause may end what the keys before it have begun.
    const Content& LookAtTyping(bool pauseEnds);
    // The same, as it was when it was last looked at.
    const Content& Left() const { return left_; }

    // An act on what Look has found: shown and noted, or told as refused. typed: the character, 0 for other acts.
    void Finish(Outcome outcome, Run run, Char typed = {});
    void Refuse(Reason reason, Char typed = {}) { Tell(Refused(reason), typed); }

    // The user moves the caret, or the selection, which may complete the field that it leaves.
    void MoveCaret(Selection selection);
    // The caret was moved in the field itself, by its own keys, a mouse, or the program.
    void NoteCaret();
    // The focus is about to leave.
    void Leave();

    bool CanUndo();  // where nobody else has changed the text
    bool Undo();
    bool Redo();
    void EndRun() { history_.EndRun(); }
    // Whether the step before was refused as well.
    bool NoteStep(bool refused) { return std::exchange(stepRefused_, refused) && refused; }
    void ForgetHistory() { history_.Clear(); }
    bool CanRedo() const { return history_.CanRedo(); }
    size_t UndoSteps() const { return history_.Steps(); }

    // What a program shows: a content as data, or whatever it has set as the window's text.
    void ShowData(const Content& content);
    void NoteTextSet();
    // The ZTS_ value that was told last; TellState tells another one.
    void TellState();
    int32_t State() const { return state_; }
    // Creation is over: from here on the parent is told of states.
    void StartTelling() { tells_ = true; }
    // Begins with a content, and shows it where the field shows another text. Nobody is told of its state.
    void TakeOver(const Content& content);

    // The next character is that of the keypad's decimal key.
    void ExpectKeypadPoint(bool expected) { keypadPoint_ = expected; }

private:
    void Tell(const Outcome& refused, Char typed);
    void Show(const Content& before, const Content& after);
    void ReplaceDifference(const Text& before, const Text& after);
    void PutBackWhatWasCut(const Text& text);
    Content AtField() const;

    EditInstance& edit_;
    Content left_;
    History history_;
    int32_t state_ = ZTS_EMPTY;
    uint32_t lastTyped_ = 0;
    bool tells_ = false;
    bool keypadPoint_ = false;
    bool stepRefused_ = false;
};

}  // namespace zte::modern
