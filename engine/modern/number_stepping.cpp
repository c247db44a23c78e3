// The range and the steps of modern numbers: exact decimals for both types.
#include "engine/modern/number_stepping.h"

#include <optional>

#include "engine/format/number_value.h"
#include "engine/modern/number_content.h"
#include "engine/services.h"
#include "engine/spin/range.h"
#include "engine/text/ascii.h"

namespace zte::modern::numbers {

namespace {

constexpr int32_t kExactDigits = 28;  // that any decimal has room for

struct Range {
    std::optional<DecimalValue> minimum;
    std::optional<DecimalValue> maximum;
};

bool IsLess(const DecimalValue& first, const DecimalValue& second)
{
    return services::Compare(first, second) < 0;
}

DecimalValue ValueOf(const EditInstance& edit, const Text& plain)
{
    return services::DecimalOf(plain.c_str(), edit.decimalPlaces);
}

std::optional<DecimalValue> EndOf(const EditInstance& edit, const Text& text)
{
    const Text plain = PlainNumberOf(edit, text);
    const bool isGiven = plain.find_first_of(FromAscii("0123456789")) != Text::npos;
    return isGiven ? std::optional<DecimalValue>(ValueOf(edit, plain)) : std::nullopt;
}

Range RangeOf(const EditInstance& edit)
{
    const RangeText ends = SplitRange(edit.spinRange);
    return {EndOf(edit, ends.minimum), EndOf(edit, ends.maximum)};
}

// The end that a value outside the range is nearest to; none for one within it.
const DecimalValue* EndBeyond(const Range& range, const DecimalValue& value)
{
    if (range.minimum && IsLess(value, *range.minimum))
        return &*range.minimum;
    return range.maximum && IsLess(*range.maximum, value) ? &*range.maximum : nullptr;
}

// Increments in one direction.
class Ladder {
public:
    Ladder(const EditInstance& edit, const DecimalValue& value, bool up)
        : increment_(services::DecimalOf(edit.spinIncrement)), value_(value), up_(up)
    {
    }

    const DecimalValue& Value() const { return value_; }
    DecimalValue Next() const
    {
        return up_ ? services::Add(value_, increment_) : services::Subtract(value_, increment_);
    }
    void GoTo(const DecimalValue& value) { value_ = value; }

private:
    DecimalValue increment_;
    DecimalValue value_;
    bool up_;
};

Text TextOf(const EditInstance& edit, const DecimalValue& value)
{
    return services::FormatDecimal(*edit.table->compiled, value, *edit.settings);
}

bool IsShowable(const EditInstance& edit, const Text& text)
{
    Content content;
    content.text = text;
    return MaskOf(edit).isGeneral || HasRoomFor(edit, HeldNumber(edit, content).Digits());
}

bool HasRoomForValue(const EditInstance& edit, const DecimalValue& value)
{
    return IsShowable(edit, TextOf(edit, value));
}

Outcome Stepped(const EditInstance& edit, const DecimalValue& value)
{
    if (!HasRoomForValue(edit, value))
        return Refused(ZTR_END_OF_RANGE);
    Content content;
    content.text = TextOf(edit, value);
    content.selection = {0, Length(content.text)};
    return Accepted(std::move(content));
}

// One step that would leave the range is refused, as is the first of many; further ones stop at the end.
Outcome Climb(const EditInstance& edit, const Range& range, Ladder ladder, int32_t count)
{
    for (int32_t made = 0; made < count; ++made) {
        const DecimalValue next = ladder.Next();
        const DecimalValue* const end = EndBeyond(range, next);
        const DecimalValue& reached = end && made > 0 ? *end : next;
        if ((end && made == 0) || !HasRoomForValue(edit, reached))
            return made == 0 ? Refused(ZTR_END_OF_RANGE) : Stepped(edit, ladder.Value());
        ladder.GoTo(reached);
        if (end)
            break;
    }
    return Stepped(edit, ladder.Value());
}

// What is no number counts from 0; a lone sign is shown before zeros.
Text CountedFrom(const EditInstance& edit, const Content& content)
{
    return IsOfMask(edit, content.text) ? PlainValue(edit, content.text) : FromAscii("0");
}

bool IsExact(const Text& plain)
{
    const int32_t point = Find(plain, Char{'.'});
    return (point >= 0 ? point : Length(plain)) <= kExactDigits;
}

}  // namespace

bool IsInRange(const EditInstance& edit, const Text& plain)
{
    return EndBeyond(RangeOf(edit), ValueOf(edit, plain)) == nullptr;
}

Outcome Step(const EditInstance& edit, const Content& content, int32_t steps)
{
    const Text plain = CountedFrom(edit, content);
    if (!IsExact(plain))
        return Refused(ZTR_END_OF_RANGE);
    const Range range = RangeOf(edit);
    const DecimalValue value = ValueOf(edit, plain);
    if (const DecimalValue* end = EndBeyond(range, value))
        return Stepped(edit, *end);
    return Climb(edit, range, Ladder(edit, value, steps > 0), steps > 0 ? steps : -steps);
}

}  // namespace zte::modern::numbers
