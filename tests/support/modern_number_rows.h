// What keys leave of numbers in modern editing: rows that are played over the functions that judge them, and on live windows.
#pragma once

#include <ostream>
#include <vector>

#include "tests/support/values.h"

namespace zttest::modern_numbers {

// keys: b and d are Backspace and Delete, B and D with Ctrl; h, e, < and > Home, End and the arrows, [ and ] the arrows with Ctrl; a
// selects all, k is the keypad's decimal key, l the loss of the focus. All others are typed.
// start: "" is empty, "=1.5" a value as it is set, anything else a text with its marks.
struct KeyRow {
    const char* mask;
    const char* start;
    const char* keys;
    const char* after;
    int reason;  // of the last key that was refused
    const char* region = "US";
};
void PrintTo(const KeyRow& row, std::ostream* out);

// The key that a letter of the rows stands for, as keyboards name it; null for others.
const char* KeyOf(char letter);

// The settings of the rows.
struct Region {
    const char* name;
    char decimal;
    char thousand;
    const char* symbol;
    int32_t position;
};

inline constexpr Region kRegions[] = {
    {"US", '.',    ',',    "$",   0},
    {"DE", ',',    '.',    "EUR", 3},
    {"FR", ',',    ' ',    "F",   3},
    {"NB", ',',    '\xA0', "F",   3},
    {"CH", '.',    '\'',   "Fr.", 2},
    {"DK", ',',    '.',    "kr.", 2},
    {"IR", '/',    ',',    "R",   0},
    {"EQ", '.',    '.',    "$",   0},
    {"RP", '\xB7', '_',    "L",   0},
    {"FB", '.',    ',',    "F.-", 1},
    {"PB", '.',    ',',    ".-",  1},
};

const std::vector<KeyRow>& NumberDigits();
const std::vector<KeyRow>& NumberSigns();
const std::vector<KeyRow>& NumberSeparators();
const std::vector<KeyRow>& NumberDeletion();
const std::vector<KeyRow>& NumberCaret();

}  // namespace zttest::modern_numbers
