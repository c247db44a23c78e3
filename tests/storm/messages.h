// What may stand in the parameters of a message: numbers of any kind, but never a wild pointer.
#pragma once

#include <windows.h>

#include "tests/storm/random.h"

namespace storm {

enum class Parameter : uint8_t {
    Number,     // any
    Room,       // a size within the buffer that goes with it
    Zero,       // a handle or pointer that nobody may make up
    Switch,     // 0 or 1
    HitCode,    // where no scroll bar, border or caption is: those begin a loop of the window manager
    Command,    // system commands that begin no such loop
    Character,  // or a key
    Text,       // a text, or null
    Buffer,     // room enough for any text or record, all zero
    Maybe,      // the same, or null
    Line,       // a buffer that begins with its size
    Numbers,    // room for two numbers, or null
    Rect,       // a rectangle, or null
    Stops,      // an array of sixteen
    Few,        // how many of them
    Place,      // what a window's place is told in
    Creation,   // what a window's creation is told in, with a configuration or without
    Waiting,    // a message of a key, or null
    Dc,         // of memory, or none
    Margins,    // pixels that leave room for a text
    Font,       // of any height, one that is gone, or none
    Window,     // any window
    Section,    // "intl", another name, or null
    LeftOut,    // the message is not sent: see the table
};

struct MessageShape {
    Parameter wParam;
    Parameter lParam;
};

// A message to play; the same for the same number.
UINT MessageOf(uint32_t number);
MessageShape ShapeOf(UINT message);

// May open a menu, in which the system waits for a key.
bool OpensMenu(UINT message, WPARAM wParam);

WPARAM HostileNumber(Random& random);

}  // namespace storm
