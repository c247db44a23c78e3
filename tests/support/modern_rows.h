// What keys, acts and the mouse leave of dates, times, strings and code tables in modern editing: rows that are played in memory and on
// live windows.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "engine/values/settings.h"
#include "tests/support/values.h"

namespace zttest::typing {

struct TypingSetup {
    const char* mask;
    int32_t type;
    uint32_t options = 0;
    const char* codes = nullptr;
    const char* range = nullptr;
    const char* am = "AM";
    const char* pm = "PM";
    void (*regional)(zte::Settings&) = nullptr;  // settings of another country
};

struct TypingRow {
    const TypingSetup& setup;
    const char* before;  // null: empty
    const char* keys;
    const char* after;
    const char* reasons = "";  // of all that was refused
};
void PrintTo(const TypingRow& row, std::ostream* out);

// The key of an act as keyboards name it ("{Ctrl+Back}" of "CtrlBs"); null for an act that is no key.
const char* KeyOf(const std::string& act);

const std::vector<TypingRow>& ModernDates();
const std::vector<TypingRow>& ModernTimes();
const std::vector<TypingRow>& ModernDeletions();
const std::vector<TypingRow>& ModernUndo();
const std::vector<TypingRow>& ModernCarets();
const std::vector<TypingRow>& ModernSpins();
const std::vector<TypingRow>& ModernStrings();
const std::vector<TypingRow>& ModernChoices();

// ---- the controls of the rows

inline constexpr TypingSetup kUs = {"MM/DD/YYYY", DT_DATE};
inline constexpr TypingSetup kShort = {"MM/DD/YY", DT_DATE};
inline constexpr TypingSetup kNamed = {"DD-MMM-YYYY", DT_DATE};
inline constexpr TypingSetup kDayOfYear = {"JJJ/YYYY", DT_DATE};
inline constexpr TypingSetup kFramed = {"(MM/DD/YY)", DT_DATE};
inline constexpr TypingSetup kTime = {"HH:MM", DT_TIME};
inline constexpr TypingSetup kHalves = {"HH:MM AM/PM", DT_TIME};
inline constexpr TypingSetup kDotted = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "a.m.", "p.m."};
inline constexpr TypingSetup kHalfFirst = {"AM/PM HH:MM", DT_TIME};
inline constexpr TypingSetup kFraction = {"HH:MM:SS.FFF", DT_TIME};
inline constexpr TypingSetup kBoth = {"MM/DD/YYYY HH:MM", DT_DATETIME};
inline constexpr TypingSetup kUsSpin = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN};
inline constexpr TypingSetup kShortSpin = {"MM/DD/YY", DT_DATE, ZTEO_SPIN};
inline constexpr TypingSetup kTimeSpin = {"HH:MM", DT_TIME, ZTEO_SPIN};
inline constexpr TypingSetup kHalvesSpin = {"HH:MM AM/PM", DT_TIME, ZTEO_SPIN};
inline constexpr TypingSetup kNamedSpin = {"DD-MMM-YYYY", DT_DATE, ZTEO_SPIN};
inline constexpr TypingSetup kRanged = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN, nullptr, "2024-01-10~2024-01-20"};
inline constexpr TypingSetup kPhone = {"(###) ###-####", DT_STRING};
inline constexpr TypingSetup kWord = {"AAAAA", DT_STRING};
inline constexpr TypingSetup kNote = {"XXXXXXXX", DT_STRING};
inline constexpr TypingSetup kPlate = {"!!-###", DT_STRING};
inline constexpr TypingSetup kPlus = {"##+XX", DT_STRING};
inline constexpr TypingSetup kColours = {"", DT_STRING, 0, "Red\tr/Green\tg/Grey\ty/Light blue\tb/None\tnull!"};
inline constexpr TypingSetup kNoNull = {"", DT_STRING, 0, "Red\tr/Green\tg"};

}  // namespace zttest::typing
