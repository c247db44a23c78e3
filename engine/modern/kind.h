// The kinds of modern controls, by what they are edited as: one table of functions each. All of them are pure: they read the record's mask,
// settings and tables, never the field, and change nothing.
#pragma once

#include <optional>

#include "engine/modern/content.h"

namespace zte::modern {

// What a deletion takes, where nothing is selected; a selection is taken in every case.
enum class Eraser : uint8_t { Back, Forward, BackWord, ForwardWord };

struct Kind {
    // ---- values
    // The content that shows a value of the control's type; null: the empty value. The caret stands where editing starts.
    Content (*show)(const EditInstance&, const void* data);
    // The content that shows a canonical text; none for other texts. Strings are taken as data, without literals.
    std::optional<Content> (*readCanonical)(const EditInstance&, const Text&);
    // ZTS_ value.
    int32_t (*state)(const EditInstance&, const Content&);
    // The text that readCanonical takes for what is shown. Asked of a content that is out of range or complete; of strings at any time.
    Text (*canonical)(const EditInstance&, const Content&);

    // ---- acts
    // A printable character, in the place of the selection or at the caret.
    Outcome (*type)(const EditInstance&, const Content&, Char typed);
    Outcome (*erase)(const EditInstance&, const Content&, Eraser);
    Outcome (*paste)(const EditInstance&, const Content&, const Text&);
    // Upwards, or downwards where steps is negative; more than one stop at the end.
    Outcome (*step)(const EditInstance&, const Content&, int32_t steps);

    // ---- the caret
    // Where KEY_HOME, KEY_END, KEY_LEFT or KEY_RIGHT, alone or with Ctrl, leads from the content's caret.
    int32_t (*move)(const EditInstance&, const Content&, Key, bool control);
    // Where a click at a position leaves the caret.
    int32_t (*click)(const EditInstance&, const Content&, int32_t position);
    // What a double click at a position selects.
    Selection (*wordAt)(const EditInstance&, const Content&, int32_t position);
    // The caret leaves for another position (-1: the control loses the focus): the content with what that completes, its caret still where
    // it was.
    Content (*leave)(const EditInstance&, const Content&, int32_t position);

    // A second without a key ends what the keys before it have begun.
    bool forgetsTyping;
};

extern const Kind kStrings;  // string_kind.cpp
extern const Kind kDates;    // date_kind.cpp: dates, times, both
extern const Kind kNumbers;  // number_kind.cpp: numbers and decimals
extern const Kind kChoices;  // choice_kind.cpp: the entries of a code table

const Kind& KindOf(const EditInstance& edit);

}  // namespace zte::modern
