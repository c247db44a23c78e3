// Checks of date, time and date-time masks: one walk over the fields, with a table of what each type takes.
#include <cstring>

#include "mask/mask_checks.h"
#include "mask/mask_text.h"
#include "shared/ascii.h"

namespace zte {

namespace {

enum FieldBit : uint32_t {
    FIELD_DAY = 0x01,
    FIELD_MONTH = 0x02,
    FIELD_YEAR = 0x04,
    FIELD_JULIAN = 0x08,
    FIELD_HOUR = 0x10,
    FIELD_MINUTE = 0x20,
    FIELD_SECOND = 0x40,
    FIELD_FRACTION = 0x80,
    FIELD_AMPM = 0x100,
};

constexpr uint32_t kDateFields = FIELD_DAY | FIELD_MONTH | FIELD_YEAR | FIELD_JULIAN;
constexpr uint32_t kTimeFields = FIELD_HOUR | FIELD_MINUTE | FIELD_SECOND | FIELD_FRACTION | FIELD_AMPM;

// Bit n: a run of n letters is accepted.
constexpr uint32_t Runs(int32_t shortest, int32_t longest)
{
    return (2u << longest) - (1u << shortest);
}

struct FieldRule {
    char letter;
    FieldBit field;
    uint32_t runs;
    uint32_t excludes;
    int16_t EditInstance::*position;  // null: not kept
};

constexpr FieldRule kFieldRules[] = {
    {'D', FIELD_DAY,   Runs(2, 2),               FIELD_JULIAN, &EditInstance::dayPos  },
    {'M', FIELD_MONTH, Runs(2, 3),               FIELD_JULIAN, &EditInstance::monthPos},
    {'Y', FIELD_YEAR,  Runs(2, 2) | Runs(4,      4),           0,                       nullptr},
    {'J',   FIELD_JULIAN,            Runs(3,    3),   FIELD_DAY | FIELD_MONTH,          nullptr       },
    {'H',   FIELD_HOUR,            Runs(2,      2),     0,          &EditInstance::hourPos                    },
    {'M',   FIELD_MINUTE,            Runs(2,    2),   0,          &EditInstance::minutePos         },
    {'S',   FIELD_SECOND,            Runs(2,    2),   0,          &EditInstance::secondPos                    },
    {'F',   FIELD_FRACTION,            Runs(1,  6), 0,          &EditInstance::fractionPos           },
};

// How one type of mask is walked.
struct WalkRules {
    int32_t dataType;
    uint32_t fields;
    bool countsYear;    // whether the year field and an escape advance the position; not in dates,
    bool countsEscape;  // which is kept: positions behind them are told by the mask where they matter
};

constexpr WalkRules kDateWalk = {DT_DATE, kDateFields, false, false};
constexpr WalkRules kTimeWalk = {DT_TIME, kTimeFields, true, true};
constexpr WalkRules kDateTimeWalk = {DT_DATETIME, kDateFields | kTimeFields, true, true};

class FieldWalk {
public:
    FieldWalk(EditInstance& edit, const char* mask, const WalkRules& rules) : edit_(edit), mask_(mask), rules_(rules) {}

    bool Run()
    {
        while (mask_[offset_])
            if (!TakeItem())
                return false;
        return true;
    }
    bool Saw(uint32_t fields) const { return (seen_ & fields) == fields; }

private:
    bool TakeItem()
    {
        if (mask_[offset_] == '~')
            return TakeEscape();
        if ((rules_.fields & FIELD_AMPM) && BeginsWithAmPm(mask_ + offset_))
            return TakeAmPm();
        if (const FieldRule* rule = FindRule())
            return TakeField(*rule);
        ++offset_;
        ++position_;
        return true;
    }

    bool TakeEscape()
    {
        const char escaped = mask_[offset_ + 1];
        if (escaped == '\0' || escaped == '~')
            return false;
        offset_ += 2;
        position_ += rules_.countsEscape ? 1 : 0;
        return true;
    }

    // Does not advance the position: kept, nothing stands behind an AM/PM field in the masks in use.
    bool TakeAmPm()
    {
        if (Saw(FIELD_AMPM))
            return false;
        seen_ |= FIELD_AMPM;
        edit_.ampmPos = static_cast<int16_t>(position_);
        offset_ += 5;
        return true;
    }

    // "M" is the minute once an hour has been seen, and in masks of times.
    const FieldRule* FindRule() const
    {
        const char letter = AsciiUpper(mask_[offset_]);
        const uint32_t other = Saw(FIELD_HOUR) ? FIELD_MONTH : FIELD_MINUTE;
        const uint32_t fields = rules_.dataType == DT_DATETIME ? rules_.fields & ~other : rules_.fields;
        for (const FieldRule& rule : kFieldRules)
            if (rule.letter == letter && (rule.field & fields))
                return &rule;
        return nullptr;
    }

    // The run is measured at the display position equal to the letter's offset in the mask; behind "~" that is another
    // place, which is kept.
    bool TakeField(const FieldRule& rule)
    {
        const int32_t run = MaskRunAfter(mask_, offset_, rules_.dataType) + 1;
        if (run > 6 || !(rule.runs & (1u << run)) || (seen_ & (rule.field | rule.excludes)))
            return false;
        seen_ |= rule.field;
        if (rule.position)
            edit_.*rule.position = static_cast<int16_t>(position_);
        if (rule.field == FIELD_FRACTION)
            edit_.fractionLen = static_cast<int16_t>(run);
        if (rule.field == FIELD_YEAR)
            edit_.yearDigits = static_cast<int16_t>(run);
        offset_ += run;
        position_ += rule.field == FIELD_YEAR && !rules_.countsYear ? 0 : run;
        return true;
    }

    EditInstance& edit_;
    const char* mask_;
    const WalkRules& rules_;
    int32_t offset_ = 0;    // in the mask text
    int32_t position_ = 0;  // in the display, as far as the walk counts it
    uint32_t seen_ = 0;
};

bool IsTooLong(const char* mask)
{
    return strnlen(mask, kMaxMaskLength + 1) > kMaxMaskLength;
}

// If the first field is there, the second must be.
bool Requires(const FieldWalk& walk, FieldBit field, uint32_t required)
{
    return !walk.Saw(field) || walk.Saw(required);
}

bool HasWholeTime(const FieldWalk& walk)
{
    return Requires(walk, FIELD_FRACTION, FIELD_SECOND) && Requires(walk, FIELD_SECOND, FIELD_MINUTE) &&
           Requires(walk, FIELD_MINUTE, FIELD_HOUR);
}

bool KeepAmPm(EditInstance& edit, const FieldWalk& walk, bool accepted)
{
    SetFlag(edit, AMPM, accepted && walk.Saw(FIELD_AMPM));
    return accepted;
}

}  // namespace

bool CheckDateMask(EditInstance& edit, const char* mask)
{
    FieldWalk walk(edit, mask, kDateWalk);
    return !IsTooLong(mask) && walk.Run() && walk.Saw(FIELD_YEAR) && Requires(walk, FIELD_DAY, FIELD_MONTH);
}

bool CheckTimeMask(EditInstance& edit, const char* mask)
{
    FieldWalk walk(edit, mask, kTimeWalk);
    return KeepAmPm(edit, walk, !IsTooLong(mask) && walk.Run() && HasWholeTime(walk));
}

bool CheckDateTimeMask(EditInstance& edit, const char* mask)
{
    FieldWalk walk(edit, mask, kDateTimeWalk);
    return KeepAmPm(
        edit, walk,
        !IsTooLong(mask) && walk.Run() && HasWholeTime(walk) && Requires(walk, FIELD_DAY, FIELD_MONTH | FIELD_YEAR));
}

}  // namespace zte
