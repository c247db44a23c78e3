// What keys leave in classic editing: rows that are played in memory and on live windows, and published in the manual.
#pragma once

#include <cstddef>

#include "tests/support/key_case.h"

namespace zttest::classic {

// A table that is there before anything runs: what lists tests may read it.
struct Rows {
    const KeyCase* first;
    size_t count;

    const KeyCase* data() const { return first; }
    size_t size() const { return count; }
    const KeyCase* begin() const { return first; }
    const KeyCase* end() const { return first + count; }
};

extern const Rows kMoves;
extern const Rows kCharacters;
extern const Rows kBehindAmPm;
extern const Rows kStringPositions;
extern const Rows kMonths;
extern const Rows kMonthNames;
extern const Rows kDays;
extern const Rows kDaysOfTheYear;
extern const Rows kYears;
extern const Rows kTimes;
extern const Rows kSharedPositions;
extern const Rows kCompletedFields;
extern const Rows kDeletions;
extern const Rows kNumberDeletions;
extern const Rows kNumbers;
extern const Rows kGermanNumbers;
extern const Rows kFrenchNumbers;
extern const Rows kSwissNumbers;
extern const Rows kNumberLaw;
extern const Rows kCzechNumbers;
extern const Rows kDanishNumbers;
extern const Rows kSwissFrancNumbers;
extern const Rows kMexicanNumbers;

}  // namespace zttest::classic
