// What a modern control holds, and what an act of its user comes to. Every act is judged first, by a pure function of the content: it
// gives another content, or the reason why there is none, and only then is the field touched.
#pragma once

#include "engine/record.h"

namespace zte::modern {

// What the keys typed last have left behind: it ends with anything that is not typed.
struct Typing {
    // Typing has carried the caret over the literals from here to there, any of which may still be typed, once and in their order.
    int32_t carriedFrom = 0;
    int32_t carriedTo = 0;
    // What may be typed on without a change: the rest of a month's name, of an AM/PM designator.
    Text rest;
    // A code table's prefix.
    Text prefix;
    // The caret stands where typing or deleting in a number has left it: what is typed goes on there, and begins no other number.
    bool goesOn = false;
    // The next character comes from the keypad's decimal key.
    bool keypadPoint = false;
};

struct Content {
    Text text;
    Selection selection{0, 0};
    bool isEmpty = false;      // of a number, which shows what 0 shows: remembered, not seen
    bool isUntouched = false;  // of a number: nobody has edited it since it was set
    Typing typing;

    int32_t Caret() const { return selection.start; }
};

// Why an act was refused: the ZTR_ values of ztvalues.h, 0 for none.
using Reason = int32_t;

struct Outcome {
    Reason reason = 0;
    int32_t position = -1;  // in a pasted text, of what was refused; -1: the place is the content's own
    Content content;        // of an act that is not refused
    bool isFull = false;    // the last position was typed: the focus may move on
};

inline Outcome Refused(Reason reason, int32_t position = -1)
{
    Outcome outcome;
    outcome.reason = reason;
    outcome.position = position;
    return outcome;
}

inline Outcome Accepted(Content content)
{
    Outcome outcome;
    outcome.content = std::move(content);
    return outcome;
}

// The same with the caret, or a selection, elsewhere.
inline Content WithCaret(Content content, int32_t caret)
{
    content.selection = {caret, caret};
    return content;
}

inline Content Untyped(Content content)
{
    content.typing = {};
    return content;
}

}  // namespace zte::modern
