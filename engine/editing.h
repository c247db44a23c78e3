// Classic and modern editing: two readings of the same keys, messages and calls, each a table of functions. Whoever routes takes a
// control's table and asks no further.
#pragma once

#include "engine/format/display.h"
#include "engine/record.h"
#include "engine/reply.h"

namespace zte {

struct Editing {
    // ---- keys and characters, as the messages carry them
    Reply (*keyDown)(EditInstance&, uint32_t key, KeyData);
    void (*afterKey)(EditInstance&);  // the field has taken a key that was not kept; null: whatever came of it
    Reply (*keyUp)(EditInstance&, uint32_t key);
    Reply (*character)(EditInstance&, uint32_t typed, KeyData);
    Reply (*foreignCharacter)(
        EditInstance&);  // one that the code page does not have, or has in several bytes; null: the field's own

    // ---- the other acts of a user. Not kept: they are the field's own.
    Reply (*paste)(EditInstance&);
    Reply (*cut)(EditInstance&);    // WM_CUT
    Reply (*clear)(EditInstance&);  // WM_CLEAR
    Reply (*undo)(EditInstance&);   // the result tells whether anything was undone
    Reply (*redo)(EditInstance&);
    // A wheel turned, upwards where notches is positive; kept where it steps, which no notches ask alone. Null: the field's own.
    Reply (*wheel)(EditInstance&, int32_t notches);
    void (*step)(EditInstance&, bool up, bool repeated);  // by an arrow of the spin; repeated: it is still held
    // A mouse button: before the field handles its release, whether the caret is to be put right afterwards; and that.
    bool (*beforeClick)(EditInstance&);
    bool (*afterClick)(EditInstance&);
    Reply (*doubleClick)(EditInstance&, int32_t position);  // null: the field's own
    void (*focusLost)(EditInstance&);

    // ---- what a program does to an edit control
    void (*beforeTextSet)(EditInstance&);  // WM_SETTEXT, EM_SETSEL: not the library's own
    void (*afterTextSet)(EditInstance&);   // the field has done it: the text
    void (*afterSelect)(EditInstance&);    // ... the selection
    Reply (*replaceSelection)(EditInstance&, const Char* text, bool canUndo);  // EM_REPLACESEL
    Reply (*canUndo)(EditInstance&);                                           // EM_CANUNDO
    Reply (*emptyUndo)(EditInstance&);                                         // EM_EMPTYUNDOBUFFER

    // ---- the library's own calls
    int32_t (*setMask)(EditInstance&, const Char* mask, int32_t dataType);
    int32_t (*setData)(EditInstance&, const void*);
    int32_t (*setDataString)(EditInstance&, const Char*);
    void* (*getData)(const EditInstance&);
    Display (*format)(EditInstance&, const void*);  // what setData would show
    void (*setSpin)(EditInstance&, uint32_t increment, const Char* range, const Char* codeTable, uint32_t style);
};

const Editing& EditingOf(const EditInstance& edit);

// A control that is being created with ZTEO_MODERN: before its mask is set, and when all is set. The parent is told of no states
// between.
void BeginModern(EditInstance& edit);
void EndCreation(EditInstance& edit);

// Another range or code table may have made another state of what is shown; the parent of a modern control is told.
void TellState(EditInstance& edit);

// Turns modern editing on or off: what the positions hold stays, laid anew. True when it was on.
bool SetModern(EditInstance& edit, bool on);

// ZTS_ value, of controls of both kinds.
int32_t StateOf(const EditInstance& edit);

// The canonical text of what is shown; false when there is none: an incomplete or invalid value. Of controls of both kinds.
bool CanonicalText(const EditInstance& edit, Text& text);

// Shows a text given as data, canonical or as a user might paste it. 0, or a ZTR_ reason: then nothing changes. null: the empty value.
int32_t TrySetDataString(EditInstance& edit, const Char* text);

// Ends what modern editing remembers of a control, whose end is near: the field is not touched.
void DropEditor(EditInstance& edit);

}  // namespace zte
