// Checks of date, time and date-time masks: one walk over the fields, with a table of what each takes.
#include "engine/mask/date_mask.h"

#include "engine/mask/mask_checks.h"
#include "engine/mask/mask_positions.h"

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

    MaskVerdict Run()
    {
        while (offset_ < Length(mask_)) {
            const int32_t offset = offset_;
            const int32_t reason = TakeItem();
            if (reason != ZTM_FITS)
                return {reason, offset};
        }
        return {};
    }

    bool Saw(FieldKind kind) const { return (seen_ & Bit(kind)) != 0; }
    // Where a field begins that was seen.
    int32_t OffsetOf(FieldKind kind) const { return offsets_[static_cast<size_t>(kind)]; }

private:
    // Masks of dates count neither the year field nor an escape as positions; kept: positions behind them are told by the mask
    // where they matter.
    bool CountsAll() const { return dataType_ != DT_DATE; }
    const Char* Here() const { return mask_.c_str() + offset_; }

    int32_t TakeItem()
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
        return ZTM_FITS;
    }

    int32_t TakeEscape()
    {
        if (IsBadEscape(Here()) && origin_ == MaskOrigin::Given)
            return ZTM_ESCAPE;
        offset_ += 2;
        position_ += CountsAll() ? 1 : 0;
        ++escapes_;
        return ZTM_FITS;
    }

    // Does not advance the position: kept for the positions that hosts find in the record.
    int32_t TakeAmPm()
    {
        if (Saw(FieldKind::AmPm))
            return ZTM_TWICE;
        Note(FieldKind::AmPm);
        layout_.ampmPos = static_cast<int16_t>(position_);
        offset_ += kAmPmLength;
        return ZTM_FITS;
    }

    // The run of a given mask is measured at the display position equal to the letter's offset in the mask; behind "~" that
    // is another place, which is kept.
    int32_t TakeField(const FieldRule& rule)
    {
        const int32_t measuredAt = origin_ == MaskOrigin::Given ? offset_ : offset_ - escapes_;
        const int32_t run = positions_.At(measuredAt).runAfter + 1;
        if (run > kLongestRun || !(rule.runs & (1u << run)))
            return ZTM_FIELD_LENGTH;
        if (Saw(rule.kind))
            return ZTM_TWICE;
        if (seen_ & rule.excludes)
            return ZTM_EXCLUDED;
        Note(rule.kind);
        if (rule.position)
            layout_.*rule.position = static_cast<int16_t>(position_);
        if (rule.kind == FieldKind::Fraction)
            layout_.fractionLen = static_cast<int16_t>(run);
        if (rule.kind == FieldKind::Year)
            layout_.yearDigits = static_cast<int16_t>(run);
        offset_ += run;
        position_ += rule.kind == FieldKind::Year && !CountsAll() ? 0 : run;
        return ZTM_FITS;
    }

    void Note(FieldKind kind)
    {
        seen_ |= Bit(kind);
        offsets_[static_cast<size_t>(kind)] = offset_;
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
    int32_t offsets_[static_cast<size_t>(FieldKind::AmPm) + 1] = {};  // in the mask text, of the fields seen
};

// A field that means nothing without another one.
struct NeedRow {
    FieldKind field;
    FieldKind needed;
    bool inDates;  // in masks of DT_DATE too
};

constexpr NeedRow kNeeds[] = {
    {FieldKind::Fraction, FieldKind::Second, false},
    {FieldKind::Second,   FieldKind::Minute, false},
    {FieldKind::Minute,   FieldKind::Hour,   false},
    {FieldKind::Day,      FieldKind::Month,  true },
    {FieldKind::Day,      FieldKind::Year,   false},
};

MaskVerdict CheckNeeds(const FieldWalk& walk, const Text& mask, int32_t dataType)
{
    if (dataType == DT_DATE && !walk.Saw(FieldKind::Year))
        return {ZTM_FIELD_MISSING, Length(mask)};
    for (const NeedRow& row : kNeeds)
        if ((row.inDates || dataType != DT_DATE) && walk.Saw(row.field) && !walk.Saw(row.needed))
            return {ZTM_FIELD_MISSING, walk.OffsetOf(row.field)};
    return {};
}

}  // namespace

MaskVerdict CheckDateOrTimeMask(const Text& mask, int32_t dataType, FieldLayout& layout, MaskOrigin origin)
{
    layout.hasAmPm = false;
    if (Length(mask) > kMaxMaskLength)
        return {ZTM_TOO_LONG, kMaxMaskLength};
    FieldWalk walk(mask, dataType, layout, origin);
    MaskVerdict verdict = walk.Run();
    if (verdict)
        verdict = CheckNeeds(walk, mask, dataType);
    layout.hasAmPm = verdict && walk.Saw(FieldKind::AmPm);
    return verdict;
}

}  // namespace zte
