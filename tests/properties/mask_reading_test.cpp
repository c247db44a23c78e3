// The compiled mask against a slow plain reading of mask texts, over random masks of every type.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "engine/mask/mask_positions.h"
#include "engine/mask/mask_table.h"
#include "engine/memory_control.h"
#include "engine/text/ascii.h"

namespace zttest {
namespace {

using namespace zte;

// The plain reading walks the text anew for every question. A position is looked for by counting the characters that are shown.
struct PlainPlace {
    int32_t offset = -1;  // in the mask, of the character shown
    bool escaped = false;
};

PlainPlace FindPlace(const Text& mask, int32_t position)
{
    int32_t shown = 0;
    for (int32_t offset = 0; offset < Length(mask); ++offset, ++shown) {
        const bool escaped = At(mask, offset) == '~';
        offset += escaped ? 1 : 0;
        if (shown == position)
            return {offset, escaped};
    }
    return {};
}

// How many characters equal to the one at an offset follow it, or stand before it; the character behind a "~" belongs to no run.
int32_t PlainRunAfter(const Text& mask, int32_t offset)
{
    int32_t run = 0;
    while (offset + run + 1 < Length(mask) && At(mask, offset + run + 1) == At(mask, offset))
        ++run;
    return run;
}

// An odd number of "~" before it: of two, the first escapes the second.
bool IsEscaped(const Text& mask, int32_t offset)
{
    int32_t tildes = 0;
    while (At(mask, offset - tildes - 1) == '~')
        ++tildes;
    return tildes % 2 != 0;
}

int32_t PlainRunBefore(const Text& mask, int32_t offset)
{
    int32_t run = 0;
    while (offset - run - 1 >= 0 && At(mask, offset - run - 1) == At(mask, offset))
        ++run;
    return run > 0 && IsEscaped(mask, offset - run) ? run - 1 : run;
}

bool HasHourBefore(const Text& mask, int32_t offset, int32_t dataType)
{
    for (int32_t i = 0; i < offset; ++i) {
        if (At(mask, i) == '~')
            ++i;
        else if (AsciiUpper(At(mask, i)) == 'H' && (dataType == DT_TIME || dataType == DT_DATETIME))
            return true;
    }
    return false;
}

struct KindRow {
    const char* letters;  // upper case
    FieldKind kind;
    uint32_t types;  // bit n: in masks of type n
};

constexpr uint32_t kDates = 1u << DT_DATE | 1u << DT_DATETIME;
constexpr uint32_t kTimes = 1u << DT_TIME | 1u << DT_DATETIME;
constexpr uint32_t kNumbers = 1u << DT_NUMBER | 1u << DT_DECIMAL;
constexpr uint32_t kStrings = 1u << DT_STRING;

constexpr KindRow kKinds[] = {
    {"X",  FieldKind::Any,          ~0u     },
    {"!",  FieldKind::UpperCase,    ~0u     },
    {"^",  FieldKind::LowerCase,    ~0u     },
    {"#0", FieldKind::Digit,        kStrings},
    {"A",  FieldKind::Alphanumeric, kStrings},
    {"#0", FieldKind::NumberDigit,  kNumbers},
    {"Y",  FieldKind::Year,         kDates  },
    {"D",  FieldKind::Day,          kDates  },
    {"J",  FieldKind::DayOfYear,    kDates  },
    {"H",  FieldKind::Hour,         kTimes  },
    {"S",  FieldKind::Second,       kTimes  },
    {"F",  FieldKind::Fraction,     kTimes  },
};

FieldKind PlainKind(const Text& mask, PlainPlace place, int32_t dataType)
{
    const Char letter = AsciiUpper(At(mask, place.offset));
    if (place.escaped)
        return FieldKind::Literal;
    if (letter == 'M' && dataType == DT_DATE)
        return FieldKind::Month;
    if (letter == 'M' && dataType == DT_TIME)
        return FieldKind::Minute;
    if (letter == 'M' && dataType == DT_DATETIME)
        return HasHourBefore(mask, place.offset, dataType) ? FieldKind::Minute : FieldKind::Month;
    for (const KindRow& row : kKinds)
        if (Find(FromAscii(row.letters), letter) >= 0 && letter && (row.types & (1u << dataType)))
            return row.kind;
    return FieldKind::Literal;
}

std::string Describe(const Text& mask, int32_t dataType, int32_t position)
{
    return '"' + std::string(mask.begin(), mask.end()) + "\" type " + std::to_string(dataType) + " position " +
           std::to_string(position);
}

void ComparePlaces(const Text& mask, int32_t dataType)
{
    const MaskPositions table(mask, dataType);
    const auto count = static_cast<int32_t>(table.All().size());
    for (int32_t position = 0; position < count; ++position) {
        const PlainPlace place = FindPlace(mask, position);
        const MaskPosition& read = table.At(position);
        const bool same = read.exists && place.offset >= 0 && read.escaped == place.escaped &&
                          read.character == At(mask, place.offset) && read.kind == PlainKind(mask, place, dataType) &&
                          (place.escaped || (read.runAfter == PlainRunAfter(mask, place.offset) &&
                                             read.runBefore == PlainRunBefore(mask, place.offset)));
        ASSERT_TRUE(same) << Describe(mask, dataType, position);
    }
    ASSERT_EQ(FindPlace(mask, count).offset, -1) << Describe(mask, dataType, count);
}

// Behind the end: nothing, or what the mask begins with where nothing is escaped.
void CompareEnds(const Text& mask, int32_t dataType)
{
    const MaskPositions table(mask, dataType);
    const bool repeats = !mask.empty() && Find(mask, '~') < 0;
    for (const int32_t behind : {0, 1, 100}) {
        const MaskPosition& read = table.At(static_cast<int32_t>(table.All().size()) + behind);
        ASSERT_EQ(read.exists, repeats) << Describe(mask, dataType, behind);
        if (!repeats)
            continue;
        ASSERT_EQ(read.character, At(mask, 0)) << Describe(mask, dataType, behind);
    }
    ASSERT_FALSE(table.At(-1).exists);
}

class RandomMasks {
public:
    explicit RandomMasks(uint32_t seed) : engine_(seed) {}
    uint32_t Below(uint32_t limit) { return static_cast<uint32_t>(engine_() % limit); }

    Text Next()
    {
        constexpr const char* kPieces[] = {"MM",    "DD", "YY", "YYYY", "JJJ", "HH", "SS",   "F",  "FFF", "AM/PM",
                                           "am/pm", "mm", "M",  "MMM",  "#",   "0",  "A",    "X",  "!",   "^",
                                           ",",     ".",  "%",  "/",    ":",   "~",  "~M",   "~H", "-",   "a",
                                           "x",     " ",  "$",  "h",    "~~",  "~A", "\xE9", "##"};
        Text mask;
        for (uint32_t pieces = Below(10); pieces > 0; --pieces)
            for (const char* c = kPieces[Below(std::size(kPieces))]; *c; ++c)
                mask += static_cast<Char>(*c);
        return mask;
    }

private:
    std::mt19937 engine_;
};

uint32_t Rounds(const char* variable, uint32_t otherwise)
{
    const char* text = std::getenv(variable);
    return text ? static_cast<uint32_t>(std::strtoul(text, nullptr, 10)) : otherwise;
}

TEST(MaskReading, AgreesWithThePlainReadingOverRandomMasks)
{
    RandomMasks random(19950704);
    for (uint32_t round = Rounds("ZT_MASKS", 250000); round > 0 && !HasFatalFailure(); --round) {
        const Text mask = random.Next();
        ComparePlaces(mask, static_cast<int32_t>(DT_STRING + random.Below(DT_DECIMAL)));
    }
}

TEST(MaskReading, AgreesBehindTheEnd)
{
    RandomMasks random(4071995);
    for (uint32_t round = 20000; round > 0 && !HasFatalFailure(); --round)
        CompareEnds(random.Next(), static_cast<int32_t>(DT_STRING + random.Below(DT_DECIMAL)));
}

TEST(MaskReading, AMaskOfSixtyThousandCharactersIsReadInOneGo)
{
    const Text mask(60000, 'X');
    const MaskPositions table(mask, DT_STRING);
    EXPECT_EQ(table.At(0).runAfter, 59999);
    EXPECT_EQ(table.At(59999).runBefore, 59999);
}

DateTimeValue NoClock()
{
    return {};
}

// The table that a control carries is the same reading, with the AM/PM field marked where the mask was accepted with one. Numbers
// have none: what stands at a position follows the digits shown.
TEST(MaskReading, AControlCarriesTheSameTable)
{
    const Settings settings = StandardSettings();
    RandomMasks random(1);
    for (uint32_t round = 20000; round > 0 && !HasFatalFailure(); --round) {
        const Text mask = random.Next();
        ControlSetup setup;
        setup.mask = mask.c_str();
        setup.dataType = static_cast<int32_t>(DT_STRING + random.Below(DT_DECIMAL));
        const MemoryControl control(setup, settings, NoClock);
        const EditInstance& edit = control.Record();
        if (IsNumeric(setup.dataType)) {
            ASSERT_EQ(edit.table->count, 0);
            continue;
        }
        const MaskPositions table(edit.mask, setup.dataType);
        ASSERT_EQ(edit.table->count, static_cast<int32_t>(table.All().size()));
        for (int32_t position = 0; position < edit.table->count; ++position) {
            const bool marked = edit.table->positions[position].kind == FieldKind::AmPm;
            const int32_t behind = position - edit.table->ampmPosition;
            ASSERT_EQ(marked, HasAmPmField(edit) && behind >= 0 && behind < kAmPmLength)
                << Describe(mask, setup.dataType, position);
            ASSERT_EQ(edit.table->positions[position].character, table.At(position).character);
        }
    }
}

}  // namespace
}  // namespace zttest
