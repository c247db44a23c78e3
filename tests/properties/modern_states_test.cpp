// The state of every text that keys can reach in small masks, against a judgement of each mask's own.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <functional>
#include <set>
#include <string>

#include "engine/memory_control.h"
#include "engine/modern/editor.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

DateTimeValue Today()
{
    return {0, 124, 1, 29, 13, 30, 5, 0};
}

// ---- judgements, by the text alone

bool IsBlank(const std::string& text)
{
    return text.find_first_of("0123456789APMapm") == std::string::npos;
}

// The number of two or three digits at a position; -1 while one of them is missing.
int NumberAt(const std::string& text, size_t at, size_t length)
{
    const std::string digits = text.substr(at, length);
    return digits.find_first_not_of("0123456789") == std::string::npos ? std::stoi(digits) : -1;
}

int JudgeDate(const std::string& text, bool filled, bool exists)
{
    return IsBlank(text) ? ZTS_EMPTY : !filled ? ZTS_INCOMPLETE : exists ? ZTS_COMPLETE : ZTS_INVALID;
}

bool IsLeap(int twoDigits)  // 1950 to 2049
{
    return twoDigits % 4 == 0;
}

int OfTime(const std::string& text)
{
    const int hour = NumberAt(text, 0, 2);
    const int minute = NumberAt(text, 3, 2);
    return JudgeDate(text, hour >= 0 && minute >= 0, hour < 24 && minute < 60);
}

int OfTimeInRange(const std::string& text)
{
    const int state = OfTime(text);
    const int minutes = NumberAt(text, 0, 2) * 60 + NumberAt(text, 3, 2);
    return state == ZTS_COMPLETE && (minutes < 9 * 60 || minutes > 17 * 60 + 30) ? ZTS_OUT_OF_RANGE : state;
}

int OfTwelveHours(const std::string& text)
{
    const int hour = NumberAt(text, 0, 2);
    const int minute = NumberAt(text, 3, 2);
    const std::string half = text.substr(6);
    const bool filled = hour >= 0 && minute >= 0 && (half == "AM" || half == "PM");
    return JudgeDate(text, filled, hour >= 1 && hour <= 12 && minute < 60);
}

int OfMonthAndYear(const std::string& text)
{
    const int month = NumberAt(text, 0, 2);
    return JudgeDate(text, month >= 0 && NumberAt(text, 3, 2) >= 0, month >= 1 && month <= 12);
}

int OfDayOfYear(const std::string& text)
{
    const int day = NumberAt(text, 0, 3);
    const int year = NumberAt(text, 4, 2);
    return JudgeDate(text, day >= 0 && year >= 0, day >= 1 && day <= (IsLeap(year) ? 366 : 365));
}

int OfDate(const std::string& text)
{
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int day = NumberAt(text, 0, 2);
    const int month = NumberAt(text, 3, 2);
    const int year = NumberAt(text, 6, 2);
    const bool hasMonth = month >= 1 && month <= 12;
    const int days = hasMonth ? kDays[month - 1] + (month == 2 && IsLeap(year) ? 1 : 0) : 0;
    return JudgeDate(text, day >= 0 && month >= 0 && year >= 0, day >= 1 && day <= days);
}

int OfCode(const std::string& text)  // "#A-#": digits are needed, the letter is not
{
    const bool digits = text[0] != ' ' && text[3] != ' ';
    return text == "  - " ? ZTS_EMPTY : digits ? ZTS_COMPLETE : ZTS_INCOMPLETE;
}

int OfFreeText(const std::string& text)  // without literals nothing is needed
{
    return text.find_first_not_of(' ') == std::string::npos ? ZTS_EMPTY : ZTS_COMPLETE;
}

// ---- every text

struct SmallMask {
    const char* name;
    const char* mask;
    int32_t type;
    const char* typed;  // the characters that are tried at every place
    int (*judge)(const std::string& text);
    std::set<int> states;  // that are reached
    const char* range = nullptr;
};
void PrintTo(const SmallMask& row, std::ostream* out)
{
    *out << row.mask;
}

class EveryText : public RowTest<SmallMask> {
protected:
    EveryText() : control_(SetupOf(GetParam()), settings_, Today)
    {
        Note();
        for (; !toDo_.empty(); toDo_.pop_front())
            GoOnFrom(toDo_.front());
    }

    std::set<int> states_;
    size_t texts_ = 0;

private:
    static ControlSetup SetupOf(const SmallMask& row)
    {
        ControlSetup setup;
        setup.mask = row.mask;
        setup.dataType = row.type;
        setup.options = ZTEO_MODERN | (row.range ? ZTEO_SPIN : 0u);
        setup.spinRange = row.range;
        return setup;
    }

    // Looks at what stands there; a text that is new is gone on from.
    void Note()
    {
        const std::string text = control_.Edit().Shown();
        const int state = StateOf(control_.Record());
        ASSERT_EQ(state, GetParam().judge(text)) << '"' << text << '"';
        states_.insert(state);
        if (!known_.insert(text).second)
            return;
        ++texts_;
        toDo_.push_back(text);
        Text canonical;
        ASSERT_EQ(CanonicalText(control_.Record(), canonical),
                  GetParam().type == DT_STRING || (state != ZTS_INVALID && state != ZTS_INCOMPLETE))
            << '"' << text << '"';
    }

    void GoOnFrom(const std::string& text)
    {
        for (int32_t caret = 0; caret <= static_cast<int32_t>(text.size()); ++caret) {
            for (const char* typed = GetParam().typed; *typed; ++typed)
                Act(text, caret, [&] { control_.Type(static_cast<uint32_t>(*typed)); });
            for (const int32_t key : {KEY_BACKSPACE, KEY_DELETE})
                Act(text, caret, [&] { control_.KeyDown(key); });
        }
    }

    void Act(const std::string& text, int32_t caret, const std::function<void()>& act)
    {
        control_.SetText(text.c_str());
        control_.Select(caret, caret);
        act();
        Note();
        control_.LoseFocus();
        Note();
    }

    Settings settings_ = StandardSettings();
    MemoryControl control_;
    std::set<std::string> known_;
    std::deque<std::string> toDo_;
};

ROW_TEST(EveryText, HasTheStateThatItsMaskAloneTells)
{
    std::printf("%zu texts of %s\n", texts_, GetParam().mask);
    EXPECT_EQ(states_, GetParam().states);
    EXPECT_GT(texts_, 8u);
}

const SmallMask kSmallMasks[] = {
    {"Time",         "HH:MM",       DT_TIME,   "012359", OfTime,         {ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_COMPLETE}},
    {"TimeInRange",  "HH:MM",       DT_TIME,   "013579", OfTimeInRange,
     {ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_OUT_OF_RANGE, ZTS_COMPLETE}, "09:00~17:30"},
    {"TwelveHours",  "HH:MM AM/PM", DT_TIME,   "0129ap", OfTwelveHours,  {ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_COMPLETE}},
    {"MonthAndYear", "MM/YY",       DT_DATE,   "012359", OfMonthAndYear, {ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_COMPLETE}},
    {"DayOfYear",    "JJJ/YY",      DT_DATE,   "0365",   OfDayOfYear,
     {ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_INVALID, ZTS_COMPLETE}},
    {"Date",         "DD/MM/YY",    DT_DATE,   "029",    OfDate,
     {ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_INVALID, ZTS_COMPLETE}},
    {"Code",         "#A-#",        DT_STRING, "5x -",   OfCode,         {ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_COMPLETE}},
    {"FreeText",     "#AX",         DT_STRING, "5x ",    OfFreeText,     {ZTS_EMPTY, ZTS_COMPLETE}},
};
TEST_ROWS(Rows, EveryText, kSmallMasks);

}  // namespace
}  // namespace zttest
