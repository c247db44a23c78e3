// The clock gives the local time.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/companions/ended_calls.h"
#include "ztshared.h"

namespace {

TEST(Clock, GivesTheLocalTime)
{
    SYSTEMTIME before;
    SYSTEMTIME after;
    DateTimeValue value;
    std::memset(&value, 0x5A, sizeof value);
    GetLocalTime(&before);
    SharedDateTimeNow(&value);
    GetLocalTime(&after);
    SYSTEMTIME now{};
    now.wYear = static_cast<WORD>(value.year + 1900);
    now.wMonth = static_cast<WORD>(value.month + 1);
    now.wDay = static_cast<WORD>(value.day);
    now.wHour = static_cast<WORD>(value.hour);
    now.wMinute = static_cast<WORD>(value.minute);
    now.wSecond = static_cast<WORD>(value.second);
    now.wMilliseconds = static_cast<WORD>(value.microsecond / 1000);
    const auto ticks = [](const SYSTEMTIME& time) {
        FILETIME file{};
        EXPECT_TRUE(SystemTimeToFileTime(&time, &file));
        return static_cast<uint64_t>(file.dwHighDateTime) << 32 | file.dwLowDateTime;
    };
    EXPECT_GE(ticks(now), ticks(before));
    EXPECT_LE(ticks(now), ticks(after));
    EXPECT_EQ(value.spare, 0);
}

TEST(Clock, IgnoresNull)
{
    EXPECT_EQ(zttest::EndOf([] { SharedDateTimeNow(nullptr); }), zttest::kCameBack);
}

}  // namespace
