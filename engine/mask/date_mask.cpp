// Checks of date, time and date-time masks: one walk over the fields, with a table of what each takes.
#include "engine/mask/date_mask.h"

#include "engine/mask/mask_checks.h"
#include "engine/mask/mask_positions.h"
#include "ztvalues.h"

namespace zte {

namespace {

constexpr uint32_t Bit(FieldKind kind)
{
    return 1u << static_cast<uint32_t>(kind);
}

constexpr uint32_t kDayAndMonth = Bit(FieldKind::Day) | Bit(FieldKind::Month);
constexpr uint32_t kDayOfYear = Bit(FieldKind::DayOfYear);

// Bit n: a run of n letters is accepted.
constexpr uint32_t Runs(int32_t shortest, int32_t longest)
{
    return (2u << longest) - (1u << shortest);
}
constexpr int32_t kLongestRun = 6;

struct FieldRule {
    FieldKind kind;
    uint32_t runs;
    uint32_t excludes;               // fields that may not stand beside it
    int16_t FieldLayout::*position;  // null: not kept
};

// clang-format off
constexpr FieldRule kFieldRules[] = {
    {FieldKind::Day,       Runs(2, 2),              kDayOfYear,   &FieldLayout::dayPos     },
    {FieldKind::Month,     Runs(2, 3),              kDayOfYear,   &FieldLayout::monthPos   },
    {FieldKind::Year,      Runs(2, 2) | Runs(4, 4), 0,            nullptr                  },
    {FieldKind::DayOfYear, Runs(3, 3),              kDayAndMonth, nullptr                  },
    {FieldKind::Hour,      Runs(2, 2),              0,            &FieldLayout::hourPos    },
    {FieldKind::Minute,    Runs(2, 2),              0,            &FieldLayout::minutePos  },
    {FieldKind::Second,    Runs(2, 2),              0,            &FieldLayout::secondPos  },
    {FieldKind::Fraction,  Runs(1, 6),              0,            &FieldLayout::fractionPos},
};
// clang-format on

const FieldRule* FindRule(FieldKind kind)
{
    for (const FieldRule& rule : kFieldRules)
        if (rule.kind == kind)
            return &rule;
    return nullptr;
}

class FieldWalk {
public:
    FieldWalk(const Text& mask, int32_t dataType, FieldLayout& layout, MaskOrigin origin)
        : mask_(mask), positions_(mask, dataType), dataType_(dataType), layout_(layout), origin_(origin)
    {
    }

    bool Run()
    {
        while (offset_ < Length(mask_))
            if (!TakeItem())
                return false;
        return true;
    }

    bool Saw(FieldKind kind) const { return (seen_ & Bit(kind)) != 0; }
    // If the first field is there, the second must be.
    bool Requires(FieldKind kind, FieldKind required) const { return !Saw(kind) || Saw(required); }

private:
    // Masks of dates count neither the year field nor an escape as positions; kept: positions behind them are told by the mask
    // where they matter.
    bool CountsAll() const { return dataType_ != DT_DATE; }
    const Char* Here() const { return mask_.c_str() + offset_; }

    bool TakeItem()
    {
        if (*Here() == '~')
            return TakeEscape();
        if (dataType_ != DT_DATE && BeginsWithAmPm(Here()))
            return TakeAmPm();
        const FieldKind kind = KindOf(*Here(), dataType_, Saw(FieldKind::Hour));
        if (const FieldRule* rule = FindRule(kind))
            return TakeField(*rule);
        ++offset_;
        ++position_;
        return true;
    }

    bool TakeEscape()
    {
        if (IsBadEscape(Here()) && origin_ == MaskOrigin::Given)
            return false;
        offset_ += 2;
        position_ += CountsAll() ? 1 : 0;
        ++escapes_;
        return true;
    }

    // Does not advance the position: kept for the positions that hosts find in the record.
    bool TakeAmPm()
    {
        if (Saw(FieldKind::AmPm))
            return false;
        seen_ |= Bit(FieldKind::AmPm);
        layout_.ampmPos = static_cast<int16_t>(position_);
        offset_ += kAmPmLength;
        return true;
    }

    // The run of a given mask is measured at the display position equal to the letter's offset in the mask; behind "~" that
    // is another place, which is kept.
    bool TakeField(const FieldRule& rule)
    {
        const int32_t measuredAt = origin_ == MaskOrigin::Given ? offset_ : offset_ - escapes_;
        const int32_t run = positions_.At(measuredAt).runAfter + 1;
        if (run > kLongestRun || !(rule.runs & (1u << run)) || (seen_ & (Bit(rule.kind) | rule.excludes)))
            return false;
        seen_ |= Bit(rule.kind);
        if (rule.position)
            layout_.*rule.position = static_cast<int16_t>(position_);
        if (rule.kind == FieldKind::Fraction)
            layout_.fractionLen = static_cast<int16_t>(run);
        if (rule.kind == FieldKind::Year)
            layout_.yearDigits = static_cast<int16_t>(run);
        offset_ += run;
        position_ += rule.kind == FieldKind::Year && !CountsAll() ? 0 : run;
        return true;
    }

    const Text& mask_;
    MaskPositions positions_;
    int32_t dataType_;
    FieldLayout& layout_;
    MaskOrigin origin_;
    int32_t escapes_ = 0;   // passed so far
    int32_t offset_ = 0;    // in the mask text
    int32_t position_ = 0;  // in the display, as far as the walk counts it
    uint32_t seen_ = 0;
};

bool HasWholeTime(const FieldWalk& walk)
{
    return walk.Requires(FieldKind::Fraction, FieldKind::Second) &&
           walk.Requires(FieldKind::Second, FieldKind::Minute) && walk.Requires(FieldKind::Minute, FieldKind::Hour);
}

bool HasWhatItNeeds(const FieldWalk& walk, int32_t dataType)
{
    if (dataType == DT_DATE)
        return walk.Saw(FieldKind::Year) && walk.Requires(FieldKind::Day, FieldKind::Month);
    const bool wholeDate =
        walk.Requires(FieldKind::Day, FieldKind::Month) && walk.Requires(FieldKind::Day, FieldKind::Year);
    return HasWholeTime(walk) && wholeDate;
}

}  // namespace

bool CheckDateOrTimeMask(const Text& mask, int32_t dataType, FieldLayout& layout, MaskOrigin origin)
{
    layout.hasAmPm = false;
    if (Length(mask) > kMaxMaskLength)
        return false;
    FieldWalk walk(mask, dataType, layout, origin);
    const bool accepted = walk.Run() && HasWhatItNeeds(walk, dataType);
    layout.hasAmPm = accepted && walk.Saw(FieldKind::AmPm);
    return accepted;
}

}  // namespace zte
