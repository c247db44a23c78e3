// Every text that enters a control, on every path: every character value, lengths up to a megabyte, random mixes. Each text is a
// read-only one that ends directly before an inaccessible page.
#include <gtest/gtest.h>

#include "tests/support/key_case.h"
#include "tests/support/rows.h"
#include "tests/texts/doors.h"
#include "tests/texts/guarded.h"
#include "tests/texts/texts.h"

namespace zttest {
namespace {

bool IsOpen(const Door& door, const FieldRow& field)
{
    return door.opens == Opens::ToAll || field.type == DT_STRING;
}

// A megabyte, or 64 kilobytes, in the window itself takes the system's own edit control half a minute.
bool IsTooLongForAWindow(const Door& door, const FieldRow& field, size_t length)
{
    constexpr size_t kLongest = 257;
    return IsLive() && length > kLongest && (door.leads == Leads::ToTheWindow || !field.mask);
}

// True when everything that holds of the door held.
bool Enters(const Door& door, const FieldRow& field, const std::string& text)
{
    const GuardedText guarded(text);
    door.hand(field, guarded.get(), text.size());
    if (!testing::Test::HasFailure())
        return true;
    ADD_FAILURE() << door.name << " of " << field.name << ", " << Described(text);
    return false;
}

class TextThroughEachDoor : public RowTest<Door> {
protected:
    void TearDown() override { EXPECT_TRUE(HeapsAreSound()); }

    // Fields that the door opens to, with their places in the table.
    template <typename Play>
    void ForEachField(Play play)
    {
        for (size_t i = 0; i < Fields().size(); ++i)
            if (IsOpen(GetParam(), Fields()[i]))
                play(Fields()[i], i);
    }
};

ROW_TEST(TextThroughEachDoor, MayHoldEveryCharacter)
{
    const Sample sample(IsLive() ? 1009 : 15);
    ForEachField([&](const FieldRow& field, size_t place) {
        const std::vector<std::string> texts = TextsOfEveryByte(GetParam().good(field));
        for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
            if (sample.Has(i, place * 17))
                Enters(GetParam(), field, texts[i]);
    });
}

ROW_TEST(TextThroughEachDoor, MayHaveAnyLength)
{
    const Sample sample(IsLive() ? 151 : 15);
    const Sample megabytes(IsLive() ? 359 : 75);
    const std::vector<LongText> texts = LongTexts();
    ForEachField([&](const FieldRow& field, size_t place) {
        for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
            if ((texts[i].length < kMegabyte ? sample : megabytes).Has(i, place * 17) &&
                !IsTooLongForAWindow(GetParam(), field, texts[i].length))
                Enters(GetParam(), field, texts[i].Make());
    });
}

ROW_TEST(TextThroughEachDoor, MayBeAnyMix)
{
    const Sample sample(IsLive() ? 379 : 15);
    const std::vector<std::string> texts = RandomTexts(4711, 300);
    ForEachField([&](const FieldRow& field, size_t place) {
        for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
            if (sample.Has(i, place))
                Enters(GetParam(), field, texts[i]);
    });
}

ROW_TEST(TextThroughEachDoor, MayBePeculiar)
{
    const Sample sample(IsLive() ? 101 : GetParam().leads == Leads::ToTheMask ? 1 : 15);
    const std::vector<std::string> texts = PeculiarTexts();
    ForEachField([&](const FieldRow& field, size_t place) {
        for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
            if (sample.Has(i, place * 17) && !IsTooLongForAWindow(GetParam(), field, texts[i].size()))
                Enters(GetParam(), field, texts[i]);
    });
}

// A way of one character at a time, and a number taken apart anew at each, would take minutes.
TEST(ArrowKey, GoesNoFurtherOverATextFromOutsideThanAMaskIsLong)
{
    constexpr int kLength = 60000;
    constexpr int kLongest = 255;
    Config config;
    config.mask = "000.00";
    config.type = DT_NUMBER;
    Subject subject(config);
    subject.SetText(std::string(kLength, 'q').c_str());
    subject.Select(kLength, kLength);
    subject.Press("{Left}");
    EXPECT_EQ(subject.CaretStart(), kLength - kLongest);
    subject.Select(0, 0);
    subject.Press("{Right}");
    EXPECT_EQ(subject.CaretStart(), kLongest);
}

TEST(WindowText, MayBeAsLongAs64KilobytesUnderAMask)
{
    for (const FieldRow& field : Fields()) {
        if (!field.mask || (IsLive() && field.type != DT_DATE))
            continue;
        Subject subject(ConfigOf(field));
        const GuardedText text(std::string(65535, 'q'));
        subject.SetText(text.get());
        EXPECT_TRUE(subject.Text() == text.get());
        subject.Read();
        subject.Select(2, 2);
        subject.Press("5{Left}");
        ExpectItWorks(subject, field);
    }
}

TEST_ROWS(Doors, TextThroughEachDoor, Doors());

}  // namespace
}  // namespace zttest
