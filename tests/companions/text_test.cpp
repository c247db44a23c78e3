// Texts and characters: copying, upper and lower case.
#include <gtest/gtest.h>

#include <cctype>
#include <climits>
#include <clocale>
#include <cstring>

#include "ztshared.h"

namespace {

TEST(TextCopy, CopiesUpToTheTerminator)
{
    char destination[10];
    std::memset(destination, 0x55, sizeof destination);
    EXPECT_EQ(SharedStrCopy(destination, "abc"), destination);
    EXPECT_STREQ(destination, "abc");
    EXPECT_EQ(destination[4], 0x55);
}

TEST(TextCopy, TakesNullAsTheEmptyText)
{
    char destination[4] = "abc";
    EXPECT_EQ(SharedStrCopy(destination, nullptr), destination);
    EXPECT_STREQ(destination, "");
    EXPECT_EQ(SharedStrCopy(nullptr, "abc"), nullptr);
}

TEST(CharacterCase, OneIsUpperAndTwoIsLower)
{
    for (int32_t character = 0; character < 128; ++character) {
        const bool lower = character >= 'a' && character <= 'z';
        const bool upper = character >= 'A' && character <= 'Z';
        EXPECT_EQ(SharedCharConvertOne(character), lower ? character - 32 : character);
        EXPECT_EQ(SharedCharConvertTwo(character), upper ? character + 32 : character);
    }
}

TEST(CharacterCase, FollowsTheRuntimesCurrentLocale)
{
    EXPECT_EQ(SharedCharConvertOne(0xE4), 0xE4);  // the standard locale knows no umlauts
    ASSERT_NE(std::setlocale(LC_CTYPE, "English_United States.1252"), nullptr);
    for (int32_t character = 0; character <= 255; ++character) {
        EXPECT_EQ(SharedCharConvertOne(character), std::toupper(character));
        EXPECT_EQ(SharedCharConvertTwo(character), std::tolower(character));
    }
    EXPECT_EQ(SharedCharConvertOne(0xE4), 0xC4);
    EXPECT_EQ(SharedCharConvertTwo(0xC4), 0xE4);
    std::setlocale(LC_CTYPE, "C");
}

TEST(CharacterCase, LeavesOtherNumbersAlone)
{
    for (const int32_t number : {-1, -159, 256, 256 + 'a', 0x10000 + 'A', INT_MAX, INT_MIN}) {
        EXPECT_EQ(SharedCharConvertOne(number), number);
        EXPECT_EQ(SharedCharConvertTwo(number), number);
    }
}

}  // namespace
