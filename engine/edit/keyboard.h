// Key and character messages, routed to the code table, the number entry or the position-by-position entry.
#pragma once

#include "engine/record.h"
#include "engine/reply.h"

namespace zte {

// Printable characters and Backspace: what enters or deletes text, as the characters of the Ctrl key do not.
constexpr bool IsTyped(uint32_t character)
{
    return (character >= ' ' && character != 0x7F) || character == KEY_BACKSPACE;
}

// key and typed as the messages carry them: more than a key's or a character's number counts.
Reply OnKeyDown(EditInstance& edit, uint32_t key, KeyData keyData);
Reply OnKeyUp(EditInstance& edit, uint32_t key);
Reply OnChar(EditInstance& edit, uint32_t typed, KeyData keyData);

// The program is about to put a text or the caret there: nobody has typed up to it.
void OnTextSetFromOutside(EditInstance& edit);

// The focus is about to leave the control.
void OnFocusLost(EditInstance& edit);

}  // namespace zte
