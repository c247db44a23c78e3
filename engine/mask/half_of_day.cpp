// The AM/PM field as a text shows it.
#include "engine/mask/half_of_day.h"

#include "engine/mask/mask_table.h"

namespace zte {

namespace {

// The designator's length when the text shows it at the AM/PM field; 0 when it does not.
int32_t LengthShown(const EditInstance& edit, const Text& text, HalfOfDay half)
{
    const int32_t marker = edit.table->ampmPosition;
    const Char* designator = DesignatorOf(*edit.settings, half);
    const bool shown = marker <= Length(text) && BeginsWith(text.c_str() + marker, designator);
    return shown ? static_cast<int32_t>(TextLength(designator)) : 0;
}

}  // namespace

const Char* DesignatorOf(const Settings& settings, HalfOfDay half)
{
    return half == HalfOfDay::Am ? settings.amString : settings.pmString;
}

// One designator may begin with the other: the longer one is meant.
std::optional<HalfOfDay> ShownHalf(const EditInstance& edit, const Text& text)
{
    const int32_t am = LengthShown(edit, text, HalfOfDay::Am);
    const int32_t pm = LengthShown(edit, text, HalfOfDay::Pm);
    if (am == 0 && pm == 0)
        return std::nullopt;
    return am > pm ? HalfOfDay::Am : HalfOfDay::Pm;
}

std::optional<HalfOfDay> HalfTyped(const EditInstance& edit, const Text& text, Char typed)
{
    if (!HasAmPmField(edit) || typed == Char{})
        return std::nullopt;
    const Settings& settings = *edit.settings;
    const auto begins = [&](HalfOfDay half) {
        return settings.letters->upper(DesignatorOf(settings, half)[0]) == settings.letters->upper(typed);
    };
    const bool am = begins(HalfOfDay::Am);
    const bool pm = begins(HalfOfDay::Pm);
    if (am && pm)
        return ShownHalf(edit, text) == HalfOfDay::Am ? HalfOfDay::Pm : HalfOfDay::Am;
    if (am || pm)
        return am ? HalfOfDay::Am : HalfOfDay::Pm;
    return std::nullopt;
}

// A display that shows neither designator was laid out under other settings: the rest of it is as long as ever.
int32_t AmPmWidth(const EditInstance& edit, const Text& text)
{
    const std::optional<HalfOfDay> half = ShownHalf(edit, text);
    const int32_t width = Length(text) - (edit.table->count - kAmPmLength);
    if (!half && width > 0 && width < kDesignatorSize)
        return width;
    return static_cast<int32_t>(TextLength(DesignatorOf(*edit.settings, half.value_or(HalfOfDay::Am))));
}

}  // namespace zte
