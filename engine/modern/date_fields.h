// The fields of dates and times: what stands in one, what its numbers may be, how it is completed; and the value of all of them.
#pragma once

#include <optional>

#include "engine/mask/half_of_day.h"
#include "engine/modern/kind.h"
#include "engine/modern/layout.h"

namespace zte::modern::dates {

enum class Fill : uint8_t {
    Blank,
    Partial,
    Full,
    Bad,  // what no typing leaves there
};

struct FieldText {
    Fill fill;
    int32_t number;  // its digits; of a month 1 to 12, by its name too; of a designator a HalfOfDay
    int32_t filled;  // positions from the first one on
};

// What a field's number may be, of as many digits as it has places.
struct Bounds {
    int32_t least;
    int32_t most;
};

// A part of the value, which is missing until it is filled. Free text, and a designator that the settings do not have, are none.
bool IsPart(const Place& place);
bool IsMonthName(const Place& place);
bool IsOfTheDate(FieldKind kind);
Bounds BoundsOf(const Place& place);

FieldText ReadField(const EditInstance& edit, const Text& text, const Place& place);

// ---- month names, as they are shown: cut to the field
Text MonthShown(const EditInstance& edit, const Place& place, int32_t month);  // 1 to 12
// The months whose shown names begin with letters, in any case: how many, and the first one (1 to 12).
struct MonthsFound {
    int32_t count;
    int32_t first;
};
MonthsFound FindMonths(const EditInstance& edit, const Place& place, const Text& letters);

// ---- writing
void PutNumber(const EditInstance& edit, Text& text, const Place& place, int32_t number);
// Puts a designator, which may be longer or shorter than what stands there; a caret behind it moves along.
void PutHalf(const EditInstance& edit, Content& content, HalfOfDay half);

// The field is left: what has been typed of it is completed, where that makes one of its values.
void Complete(const EditInstance& edit, Content& content, const Place& place);
// A full hour of the day becomes one of the half day, and chooses or keeps the half.
void SettleHour(const EditInstance& edit, Content& content);

// ---- all fields
enum class Whole : uint8_t { Empty, Incomplete, Invalid, Value };
struct Reading {
    Whole whole;
    DateTimeValue value;  // of a Value
};
Reading ReadAll(const EditInstance& edit, const Text& text);

// The display of a value; what it does not have is blank.
Text Shown(const EditInstance& edit, const DateTimeValue& value);

// The mask shows the value as it is, but for seconds that it does not have: no other century, no day lost.
bool ShowsSame(const EditInstance& edit, const DateTimeValue& value);

// The value lies outside the range of the spin.
bool IsOutOfRange(const EditInstance& edit, const DateTimeValue& value);

// The date exists in the calendar.
bool Exists(const DateTimeValue& value);

// ---- the acts, each in its file
Outcome Type(const EditInstance& edit, const Content& content, Char typed);
Outcome Erase(const EditInstance& edit, const Content& content, Eraser eraser);
Outcome Paste(const EditInstance& edit, const Content& content, const Text& text);
Outcome Step(const EditInstance& edit, const Content& content, int32_t steps);

// The selection taken out, without a look at what may be refused; the caret on its first position.
Content WithoutSelection(const EditInstance& edit, const Content& content);

}  // namespace zte::modern::dates
