// What a validator is asked, and what it answers.
#pragma once

#include "engine/mask/mask_table.h"
#include "engine/record.h"

namespace zte {

// One character typed at a position of the mask, which is no number's, with the text then shown.
struct Entry {
    Entry(const EditInstance& control, const Text& shown, int32_t at, Char character)
        : edit(control), text(shown), position(at), typed(character), mask(PositionOf(control, shown, at))
    {
    }

    const EditInstance& edit;
    const Text& text;
    const int32_t position;
    const Char typed;
    const MaskPosition& mask;  // what stands at the position

    int32_t Index() const { return mask.runBefore; }  // of the position within its field, from 0
    int32_t FieldLength() const { return mask.FieldLength(); }

    // The characters of the text beside the position; NUL outside the text.
    Char Before() const { return At(text, position - 1); }
    Char After() const { return At(text, position + 1); }
};

// Refused, or the text to place and how. An accepted character that places nothing is swallowed.
struct Verdict {
    static constexpr int32_t kRoom = 10;  // as in the record: 9 characters and a terminator

    bool accepted = false;
    bool padded = false;  // a padded digit or the rest of a month name: two or more positions at once
    Char placed[kRoom] = {};

    static Verdict Refused() { return {}; }
    static Verdict Swallowed() { return Placing(Text()); }
    static Verdict Placing(const Text& text)
    {
        Verdict verdict;
        verdict.accepted = true;
        Assign(verdict.placed, text);
        return verdict;
    }
    static Verdict Placing(Char c) { return {true, false, {c}}; }
    static Verdict Padding(const Text& text)
    {
        Verdict verdict = Placing(text);
        verdict.padded = true;
        return verdict;
    }
};

// Forgets the verdict before, whose padding ended when it was placed, and copies a new one into the record.
void ForgetVerdict(EditInstance& edit);
void KeepVerdict(EditInstance& edit, const Verdict& verdict);

}  // namespace zte
