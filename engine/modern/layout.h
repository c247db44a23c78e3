// A text under a mask of positions: its fields, each a run of positions between literals, and whether the mask could show the text at all.
#pragma once

#include <vector>

#include "engine/mask/mask_table.h"

namespace zte::modern {

struct Place {
    FieldKind kind;  // of its first position
    int32_t start;
    int32_t length;

    int32_t End() const { return start + length; }
    bool Holds(int32_t position) const { return position >= start && position < End(); }
};

class Layout {
public:
    // Of dates and times each field is a place, of strings all positions between two literals.
    Layout(const EditInstance& edit, const Text& text);

    const std::vector<Place>& Places() const& { return places_; }
    const std::vector<Place>& Places() const&& = delete;
    // The text has the mask's length, and its literals stand.
    bool Fits() const { return fits_; }

    const Place* At(int32_t position) const;      // that holds the position
    const Place* Next(int32_t position) const;    // the first that starts there or behind
    const Place* Before(int32_t position) const;  // the last that ends there or before
    const Place* Of(FieldKind kind) const;        // the first of a kind
    // The place that a caret is in: which holds it, or directly behind whose last position it stands.
    const Place* Around(int32_t caret) const;

    int32_t First() const { return places_.empty() ? 0 : places_.front().start; }
    int32_t End() const { return places_.empty() ? 0 : places_.back().End(); }  // behind the last position
    int32_t TextLength() const { return length_; }

private:
    std::vector<Place> places_;
    int32_t length_ = 0;
    bool fits_ = true;
};

// The text with nothing filled in: literals, and blanks between them.
Text BlankText(const EditInstance& edit);

// The part of a text at a place.
inline Text TextAt(const Text& text, const Place& place)
{
    return Slice(text, place.start, place.length);
}

bool IsBlank(const Text& text);

// Puts a text at a place, cut or filled with blanks.
void PutAt(Text& text, const Place& place, Text part);

}  // namespace zte::modern
