// The engine's text: characters, searching, reading whole numbers, and writing into a caller's buffer.
#include <gtest/gtest.h>

#include <climits>

#include "engine/text/ascii.h"
#include "engine/text/text.h"
#include "engine/text/writer.h"

namespace zttest {
namespace {

using namespace zte;

TEST(Characters, OfWhiteSpaceAreTheBlankAndTabToReturn)
{
    for (int32_t code = 0; code < 128; ++code)
        EXPECT_EQ(IsSpace(static_cast<Char>(code)), code == 32 || (code >= 9 && code <= 13)) << code;
}

TEST(Characters, OfControlStandBeforeTheBlankAndBehindTheTilde)
{
    for (int32_t code = 0; code < 128; ++code)
        EXPECT_EQ(IsControl(static_cast<Char>(code)), code < 32 || code == 127) << code;
}

TEST(Search, TellsThePositionOrMinusOne)
{
    EXPECT_EQ(Find(Text("a.b.c"), '.'), 1);
    EXPECT_EQ(Find(Text("abc"), '.'), -1);
    EXPECT_EQ(Find("a.b.c", '.'), 1);
    EXPECT_EQ(Find("abc", '.'), -1);
}

TEST(Equality, IsOfWholeTexts)
{
    EXPECT_TRUE(Equals("[GENERAL]", "[GENERAL]"));
    EXPECT_FALSE(Equals("[GENERAL]0", "[GENERAL]"));
    EXPECT_FALSE(Equals("[GENERAL", "[GENERAL]"));
}

TEST(WholeNumbers, OutOfRangeBecomeTheNearest)
{
    EXPECT_EQ(IntegerOf("2147483646"), INT32_MAX - 1);
    EXPECT_EQ(IntegerOf("2147483647"), INT32_MAX);
    EXPECT_EQ(IntegerOf("2147483648"), INT32_MAX);
    EXPECT_EQ(IntegerOf("-2147483647"), -INT32_MAX);
    EXPECT_EQ(IntegerOf("99999999999999999999999"), INT32_MAX);
}

TEST(WholeNumbers, StandBehindWhiteSpaceOfEveryKind)
{
    EXPECT_EQ(IntegerOf(" \t\n\v\f\r-7x"), -7);
}

TEST(WholeNumbers, AreWrittenWithAllTheirDigits)
{
    EXPECT_EQ(NumberText(0, 0), "");
    EXPECT_EQ(NumberText(7, 3), "007");
    EXPECT_EQ(NumberText(1234, 2), "1234");
}

struct PlaceCase {
    const char* text;
    int32_t position;
    int32_t count;
    int32_t digits;   // DigitsAt
    int32_t integer;  // IntegerAt, of places that are not negative
};

constexpr PlaceCase kPlaces[] = {
    {"0712",        0,  2,  7,         7        },
    {"0712",        2,  2,  12,        12       },
    {"0712",        2,  1,  1,         1        },
    {"0712",        3,  2,  -1,        2        }, // not so much is left
    {"0712",        4,  1,  -1,        0        },
    {"0712",        0,  0,  -1,        0        },
    {"0712",        -1, 2,  -1,        0        },
    {"07/2",        1,  2,  -1,        7        },
    {" 712",        0,  2,  -1,        7        },
    {"-712",        0,  2,  -1,        -7       },
    {"123456789",   0,  9,  123456789, 123456789},
    {"9999999999",  0,  10, -1,        INT32_MAX},
    {"00000000005", 0,  11, -1,        5        },
};

TEST(DigitsAtAPlace, AreReadWhereNothingElseStands)
{
    for (const PlaceCase& row : kPlaces)
        EXPECT_EQ(DigitsAt(row.text, row.position, row.count), row.digits) << row.text << ' ' << row.position;
}

TEST(TheIntegerAtAPlace, IsReadAsFarAsItGoes)
{
    for (const PlaceCase& row : kPlaces)
        if (row.position >= 0) {
            EXPECT_EQ(IntegerAt(row.text, row.position, row.count), row.integer) << row.text << ' ' << row.position;
        }
}

TEST(Writing, TerminatesTheBufferAtOnceAndAfterEveryCharacter)
{
    Char buffer[4] = {'x', 'x', 'x', 'x'};
    Writer output(buffer, 4);
    EXPECT_EQ(buffer[0], '\0');
    output.Put(Char{'a'});
    EXPECT_STREQ(buffer, "a");
    output.Put("bcd");
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(output.Length(), 3);
    EXPECT_TRUE(output.IsCut());
}

TEST(Writing, IntoOneCharacterLeavesTheTerminator)
{
    Char buffer[2] = {'x', 'x'};
    Writer output(buffer, 1);
    output.Put("ab");
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(buffer[1], 'x');
    EXPECT_EQ(output.Length(), 0);
}

TEST(Writing, IntoNoRoomTouchesNothing)
{
    for (const int32_t size : {0, -1, INT_MIN}) {
        Char buffer[2] = {'x', 'x'};
        Writer output(buffer + 1, size);
        output.Put("ab");
        EXPECT_EQ(buffer[0], 'x') << size;
        EXPECT_EQ(buffer[1], 'x') << size;
        EXPECT_EQ(output.Length(), 0) << size;
        EXPECT_TRUE(output.IsCut()) << size;
    }
    Writer nowhere(nullptr, 10);
    nowhere.Put("ab");
    EXPECT_EQ(nowhere.Length(), 0);
}

}  // namespace
}  // namespace zttest
