// A text under a mask of positions.
#include "engine/modern/layout.h"

#include <algorithm>

#include "engine/mask/half_of_day.h"

namespace zte::modern {

namespace {

constexpr Char kBlank = ' ';

// A place goes on with the next position: the letters of one date field, any positions of a string.
bool GoesOn(const EditInstance& edit, const Place& place, const MaskPosition& next)
{
    return !IsDateOrTime(edit.dataType) || next.kind == place.kind;
}

// How many positions a blank designator takes: as many as the longer one.
int32_t DesignatorWidth(const Settings& settings)
{
    return static_cast<int32_t>(std::max(TextLength(settings.amString), TextLength(settings.pmString)));
}

}  // namespace

Layout::Layout(const EditInstance& edit, const Text& text)
{
    const MaskTable& table = *edit.table;
    bool afterLiteral = true;
    for (int32_t i = 0; i < table.count; ++i) {
        const MaskPosition& at = table.positions[i];
        if (at.kind == FieldKind::AmPm) {
            const int32_t width = AmPmWidth(edit, text);
            places_.push_back({at.kind, length_, width});
            length_ += width;
            i += kAmPmLength - 1;
        } else if (at.kind == FieldKind::Literal) {
            if (at.character == Char{})  // a lone "~" at the end shows nothing
                continue;
            fits_ = fits_ && zte::At(text, length_) == at.character;
            ++length_;
            afterLiteral = true;
        } else {
            if (!afterLiteral && GoesOn(edit, places_.back(), at))
                ++places_.back().length;
            else
                places_.push_back({at.kind, length_, 1});
            ++length_;
            afterLiteral = false;
        }
    }
    fits_ = fits_ && length_ == Length(text);
}

const Place* Layout::At(int32_t position) const
{
    const auto found =
        std::find_if(places_.begin(), places_.end(), [=](const Place& place) { return place.Holds(position); });
    return found == places_.end() ? nullptr : &*found;
}

const Place* Layout::Next(int32_t position) const
{
    const auto found =
        std::find_if(places_.begin(), places_.end(), [=](const Place& place) { return place.start >= position; });
    return found == places_.end() ? nullptr : &*found;
}

const Place* Layout::Before(int32_t position) const
{
    const auto found =
        std::find_if(places_.rbegin(), places_.rend(), [=](const Place& place) { return place.End() <= position; });
    return found == places_.rend() ? nullptr : &*found;
}

const Place* Layout::Of(FieldKind kind) const
{
    const auto found =
        std::find_if(places_.begin(), places_.end(), [=](const Place& place) { return place.kind == kind; });
    return found == places_.end() ? nullptr : &*found;
}

const Place* Layout::Around(int32_t caret) const
{
    if (const Place* place = At(caret))
        return place;
    const Place* before = Before(caret);
    return before && before->End() == caret ? before : nullptr;
}

Text BlankText(const EditInstance& edit)
{
    const MaskTable& table = *edit.table;
    Text text;
    for (int32_t i = 0; i < table.count; ++i) {
        const MaskPosition& at = table.positions[i];
        if (at.kind == FieldKind::AmPm) {
            text.append(static_cast<size_t>(DesignatorWidth(*edit.settings)), kBlank);
            i += kAmPmLength - 1;
        } else if (at.kind != FieldKind::Literal) {
            text += kBlank;
        } else if (at.character != Char{}) {
            text += at.character;
        }
    }
    return text;
}

bool IsBlank(const Text& text)
{
    return text.find_first_not_of(kBlank) == Text::npos;
}

void PutAt(Text& text, const Place& place, Text part)
{
    part.resize(static_cast<size_t>(place.length), kBlank);
    text.replace(static_cast<size_t>(place.start), static_cast<size_t>(place.length), part);
}

}  // namespace zte::modern
