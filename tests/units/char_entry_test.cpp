// Characters typed into dates, times and strings, on texts that no typing leaves there, and what is asked of the field for them.
#include <gtest/gtest.h>

#include "engine/edit/char_entry.h"
#include "engine/edit/validators.h"
#include "tests/support/rows.h"
#include "tests/units/field_spy.h"

namespace zttest {
namespace {

using namespace zte;

using Calls = std::vector<std::string>;

constexpr SpiedSetup kDateMask = {"MM/DD/YY", DT_DATE};

// ---- what is shown

struct EntryRow {
    const char* name;
    SpiedSetup setup;
    const char* before;
    uint32_t typed;
    const char* after;
    int beeps;
};
void PrintTo(const EntryRow& row, std::ostream* out)
{
    *out << row.name;
}

class CharEntry : public RowTest<EntryRow> {};

ROW_TEST(CharEntry, Leaves)
{
    const EntryRow& row = GetParam();
    Spied spied(row.setup);
    spied.Show(row.before);
    spied.Control().Type(row.typed);
    EXPECT_EQ(spied.Shown(), row.after);
    EXPECT_EQ(spied.Beeps(), row.beeps);
}

constexpr SpiedSetup kNameFirst = {"MMM-DD-YYYY HH:MM AM/PM", DT_DATETIME};
constexpr SpiedSetup kPhoneMask = {"(###) ###", DT_STRING};
constexpr int32_t kUnknownType = 9;  // takes any mask

// clang-format off
const EntryRow kEntries[] = {
    {"AHalfOnALiteralIsTheMarkers",            kNameFirst, "JUL|-04-1995 02:30 PM", 'a',  "JUL-04-1995 02:30 AM|", 0},
    {"AHalfAtTheEndIsTheMarkers",              kNameFirst, "JUL-04-1995 02:30 PM|", 'a',  "JUL-04-1995 02:30 AM|", 0},
    {"AHalfAtAMonthNameIsTheName",             kNameFirst, "|JUL-04-1995 02:30 PM", 'a',  "A|PR-04-1995 02:30 PM", 0},
    {"AHalfAtADigitIsTheMarkers",              kNameFirst, "JUL-0|4-1995 02:30 PM", 'a',  "JUL-04-1995 02:30 AM|", 0},
    {"ANulSkipsNowhereInAShortText",           kDateMask,      "0|7",              0,    "0|7",              1},
    {"ALiteralsCharacterBehindTheMaskIsNone",  kPhoneMask,     "(555) 1|23(",      '(',  "(555) 1|23(",      1},
    {"ALiteralFurtherOnIsSkippedTo",           kPhoneMask,     "(5|55) 123",       ')',  "(555) |123",       0},
    {"ASingleDigitIsPadded",                   kDateMask,      "7|0/04/95",        '/',  "07/|04/95",        0},
    {"AZeroIsNotPadded",                       kDateMask,      "0|7/04/95",        '/',  "07/|04/95",        0},
    {"ALetterFromOutsideIsNotPadded",          kDateMask,      "a|7/04/95",        '/',  "a7/|04/95",        0},
    {"AStringsDigitIsNotPadded",      {"##/##", DT_STRING}, "7|0/04",          '/',  "70/|04",           0},
    {"AThirdDigitIsNotPadded",        {"JJJ/YYYY", DT_DATE}, "12|3/1995",      '/',  "123/|1995",        0},
    {"TheSecondOfThreeIsNotPadded",   {"JJJ/YYYY", DT_DATE}, "1|23/1995",      '/',  "123/|1995",        0},
    {"ADayOfTheYearTooLateTakesTheNextToo", {"JJJ/YYYY", DT_DATE}, "4|55/1995", '0', "400/|1995",        0},
    {"OnALiteralBehindTheFirstFieldIsRefused", kPhoneMask,     "(555|) 123",       '1',  "(555|) 123",       1},
    {"BeforeTheFirstFieldBeginsIt",            kPhoneMask,     "|(555) 123",       '1',  "(1|55) 123",       0},
    {"BehindTheLastIsDropped",                 kPhoneMask,     "(555) 123|",       '1',  "(555) 123|",       0},
    {"AHalfAtTheEndIsTheMarkersWhateverTheMaskBeginsWith", {"X AM/PM HH:MM", DT_TIME}, "x PM 02:30|", 'a', "x AM |02:30", 0},
    {"TheSecondLetterOfAMonthNameIsNotPadded", {"DD-MMM-YYYY", DT_DATE}, "04-1|07-1995", '-', "04-107-|1995", 0},
    {"TheThirdLetterOfAMonthNameIsNotPadded",  {"DD-MMM-YYYY", DT_DATE}, "04-01|7-1995", '-', "04-017-|1995", 0},
    {"AMaskThatShowsNothingRefusesEverything", {"~", kUnknownType},      "|",            'x', "|",            1},
    {"BeforeALeadingMarkerTheCaretGoesThere",  {"(AM/PM HH:MM)", DT_TIME}, "|(AM 02:30)", '5', "(|AM 02:30)", 0},
};
// clang-format on
TEST_ROWS(Rows, CharEntry, kEntries);

TEST(MonthNames, WithADoubleLetterInFrontLeaveTheCaretOnTheirSecond)
{
    Spied spied(kNameFirst);
    Assign(spied.Regional().monthNames[0], FromAscii("SSX"));
    spied.Show("|JUL-04-1995 02:30 PM");
    spied.Type("S");
    EXPECT_EQ(spied.Shown(), "S|SX-04-1995 02:30 PM");
}

TEST(MonthNames, ThatBeginAlikeAreNotLookedThroughAtTheThirdLetter)
{
    Spied spied({"DD-MMM-YYYY", DT_DATE});
    Assign(spied.Regional().monthNames[5], FromAscii("JUIN"));
    Assign(spied.Regional().monthNames[6], FromAscii("JUIL"));
    spied.Show("31-JU|X-1995");
    spied.Type("I");
    EXPECT_EQ(spied.Shown(), "31-JU|X-1995") << "swallowed by June, which July does not stand in for";
    EXPECT_EQ(spied.Beeps(), 0);
}

TEST(MonthNames, AreTheOnlySettingsSearched)
{
    Spied spied(kNameFirst);
    Assign(spied.Regional().shortDate, Text(99, 'J'));
    Assign(spied.Regional().timeSeparator, Text(9, 'J'));
    spied.Show("|DEC-04-1995 02:30 PM");
    spied.Type("J");
    EXPECT_EQ(spied.Shown(), "J|AN-04-1995 02:30 PM");
}

// Of the mask before, where the code table shows a text that no mask was asked for.
TEST(FirstField, ThatIsALiteralByNowIsPassed)
{
    Spied spied({"##((##", DT_STRING});
    spied.Show("12|((34");
    spied.Record().firstFieldPos = 3;
    spied.Type("5");
    EXPECT_EQ(spied.Shown(), "12((|34");
    EXPECT_EQ(spied.Beeps(), 0);
}

TEST(LiteralsPassed, AreTypedNoMoreOnceASelectionGaveWay)
{
    Spied spied(kDateMask);
    spied.Show("|01/04/95");
    spied.Type("07");
    ASSERT_EQ(spied.Shown(), "07/|04/95");
    spied.Edit().SetSelection(3, 5);
    spied.Type("/");
    EXPECT_EQ(spied.Shown(), "07/00/|95");
}

// ---- what is asked of the field

TEST(CharEntryCalls, KeepTheLayoutFirstAndReplaceOnce)
{
    Spied spied(kDateMask);
    spied.Show("|01/04/95");
    EnterChar(spied.Record(), '1', 0);
    EXPECT_EQ(spied.Spy().Calls(), (Calls{"KeepLayout", "Select 0-1", "ReplaceSelection"}));
}

TEST(CharEntryCalls, OfAPaddedDigitPutTheCaretOverTheLiteral)
{
    Spied spied(kDateMask);
    spied.Show("|01/04/95");
    EnterChar(spied.Record(), '7', 0);
    EXPECT_EQ(spied.Spy().Calls(), (Calls{"KeepLayout", "Select 0-2", "ReplaceSelection", "Select 2-2", "Select 3-3"}));
}

TEST(CharEntryCalls, OfAMonthNamesLastLetterAreThoseOfOneCharacter)
{
    Spied spied(kNameFirst);
    spied.Show("JU|N-04-1995 02:30 PM");
    EnterChar(spied.Record(), 'L', 2);
    EXPECT_EQ(spied.Spy().Calls(), (Calls{"KeepLayout", "Select 2-3", "ReplaceSelection", "Select 4-4"}));
    EXPECT_EQ(spied.Shown(), "JUL-|04-1995 02:30 PM");
}

TEST(CharEntryCalls, OfASwallowedDigitLeaveTheTextAlone)
{
    Spied spied(kDateMask);
    spied.Show("0|7/31/95");
    EnterChar(spied.Record(), '6', 1);
    EXPECT_EQ(spied.Spy().Count("ReplaceSelection"), 0);
    EXPECT_EQ(spied.Beeps(), 0);
    EXPECT_EQ(spied.Edit().ReadText(), FromAscii("07/31/95"));
}

// ---- the verdict in the record

TEST(VerdictInTheRecord, IsWhatWasPlacedAndNoMorePadded)
{
    Spied spied(kDateMask);
    spied.Show("|01/04/95");
    EnterChar(spied.Record(), '7', 0);
    EXPECT_EQ(Text(spied.Record().typedChar), FromAscii("07"));
    EXPECT_FALSE(Has(spied.Record(), ZERO_PADDED));
    EXPECT_FALSE(Has(spied.Record(), SPIN_UP));
}

TEST(VerdictInTheRecord, IsNothingBehindACharacterThatIsNotTaken)
{
    for (const int32_t caret : {3, 8}) {  // refused, and dropped at the end
        Spied spied(kDateMask);
        spied.Show("|01/04/95");
        EnterChar(spied.Record(), '7', 0);
        EnterChar(spied.Record(), 'x', caret);
        EXPECT_EQ(Text(spied.Record().typedChar), Text());
    }
}

// ---- validators by themselves

struct VerdictRow {
    const char* mask;
    int32_t type;
    const char* text;
    int32_t position;
    char typed;
    const char* placed;  // null: refused
    bool padded;
};

TEST(Verdicts, AreGivenByTheFieldAndWhatStandsInIt)
{
    // clang-format off
    const VerdictRow kRows[] = {
        // the month, by digits
        {"MM/DD/YY", DT_DATE, "00/00/00", 0, '0', "0",  false},
        {"MM/DD/YY", DT_DATE, "00/00/00", 0, '1', "1",  false},
        {"MM/DD/YY", DT_DATE, "00/00/00", 0, '2', "02", true },
        {"MM/DD/YY", DT_DATE, "03/00/00", 0, '1', "10", true },
        {"MM/DD/YY", DT_DATE, "02/00/00", 0, '1', "1",  false},
        {"MM/DD/YY", DT_DATE, "10/00/00", 1, '3', nullptr, false},
        {"MM/DD/YY", DT_DATE, "10/00/00", 1, '2', "2",  false},
        {"MM/DD/YY", DT_DATE, "00/00/00", 0, 'x', nullptr, false},
        {"MM/DD/YY", DT_DATE, "07/31/95", 0, 'x', nullptr, false},
        // a day that the month to be does not have
        {"MM/DD/YY", DT_DATE, "07/31/95", 1, '6', "",   false},
        {"MM/DD/YY", DT_DATE, "07/31/95", 1, '0', "0",  false},  // no month: any day
        {"MM/DD/YY", DT_DATE, "01/31/95", 1, '2', "",   false},
        {"MM/DD/YY", DT_DATE, "01/31/95", 0, '2', "",   false},
        {"MM/DD/YY", DT_DATE, "01/31/95", 0, '3', "03", true },
        {"MM/DD/YY", DT_DATE, "02/31/95", 0, '1', "1",  false},  // December
        {"MM/DD/YY", DT_DATE, "01/31/95", 0, '1', "",   false},  // November
        {"MM/DD/YY", DT_DATE, "03/31/95", 0, '1', "10", true },  // October
        {"MM/DD/YY", DT_DATE, "12/31/95", 1, '1', "",   false},
        // the month, by names
        {"MMM-DD-YYYY", DT_DATE, "MAR-31-1995", 0, 'J', "JAN", true },
        {"MMM-DD-YYYY", DT_DATE, "MAR-31-1995", 0, 'F', "",    false},
        {"MMM-DD-YYYY", DT_DATE, "MAR-31-1995", 0, 'A', "AUG", true },  // April is too short
        {"MMM-DD-YYYY", DT_DATE, "JAN-31-1995", 1, 'U', "UL",  true },  // June is too short
        {"MMM-DD-YYYY", DT_DATE, "JUL-31-1995", 2, 'N', "",    false},
        {"MMM-DD-YYYY", DT_DATE, "JUL-30-1995", 2, 'N', "N",   true },
        {"MMM-DD-YYYY", DT_DATE, "JUN-30-1995", 2, 'L', "L",   true },
        {"MMM-DD-YYYY", DT_DATE, "MAR-31-1995", 0, 'X', nullptr, false},
        {"MMM-DD-YYYY", DT_DATE, "MAR-31-1995", 1, 'X', nullptr, false},
        // the year, by its last digit
        {"MM/DD/YYYY", DT_DATE, "07/04/1995", 6, '3', nullptr, false},
        {"MM/DD/YYYY", DT_DATE, "07/04/1995", 6, '2', "2", false},
        {"MM/DD/YY",   DT_DATE, "02/29/96", 7, '2', "2", false},
        {"MM/DD/YY",   DT_DATE, "02/29/96", 7, '5', nullptr, false},
        {"MM/DD/YY",   DT_DATE, "02/28/96", 7, '5', "5", false},
        {"MM/DD/YY",   DT_DATE, "03/29/96", 7, '5', "5", false},
        {"MM/DD/YY",   DT_DATE, "02/29/96", 6, '5', "5", false},  // not completed yet
        {"MM/DD/YYYY", DT_DATE, "02/29/1996", 7, '8', "8", false},
        {"MM/DD/YYYY", DT_DATE, "02/29/1996", 9, '5', nullptr, false},
        {"MM/DD/YYYY", DT_DATE, "02/29/1904", 9, '0', "0", false},  // the year meant is taken for 1940 ...
        {"MM/DD/YYYY", DT_DATE, "02/29/1900", 9, '4', "4", false},  // ... and for 1904
        {"MM/DD/YYYY", DT_DATE, "02/29/1910", 9, '2', "2", false},  // ... and for 1912
        {"MM/DD/YY", DT_DATE, "02/29/88", 7, '4', "4", false},
        {"MM/DD/YY", DT_DATE, "02/29/88", 7, '2', nullptr, false},
        // the month, and the name of one, with a day from outside that no month has
        {"DD/MM/YY", DT_DATE, "99/10/95", 3, '0', "0", false},
        {"DD/MM/YY", DT_DATE, "99/01/95", 4, '1', "",  false},
        {"DD/MM/YY", DT_DATE, "99/10/95", 4, '5', nullptr, false},
        {"DD-MMM-YYYY", DT_DATE, "99-JAN-1995", 3, 'J', "", false},
        // the day
        {"MM/DD/YY", DT_DATE, "00/00/00", 3, '3', "3",  false},
        {"MM/DD/YY", DT_DATE, "00/01/00", 3, '3', "3",  false},
        {"MM/DD/YY", DT_DATE, "00/02/00", 3, '3', "30", true },
        {"MM/DD/YY", DT_DATE, "00/30/00", 4, '1', "1",  false},
        {"MM/DD/YY", DT_DATE, "00/30/00", 4, '2', nullptr, false},
        {"MM/DD/YY", DT_DATE, "01/30/95", 4, '1', "1",  false},
        {"MM/DD/YY", DT_DATE, "04/30/95", 4, '1', nullptr, false},
        {"MM/DD/YY", DT_DATE, "02/01/95", 3, '3', "03", true },
        {"MM/DD/YY", DT_DATE, "02/09/95", 3, '2', "20", true },
        // the day of the year
        {"JJJYY",    DT_DATE, "00095", 0, '1', "1", false},
        {"JJJ/YYYY", DT_DATE, "000/1995", 0, '3', "3", false},
        {"JJJ/YYYY", DT_DATE, "365/1995", 2, '6', nullptr, false},
        {"JJJ/YYYY", DT_DATE, "365/1996", 2, '6', "6", false},
        {"JJJ/YYYY", DT_DATE, "367/1995", 0, '4', "04", false},
        {"JJJ/YYYY", DT_DATE, "300/1995", 1, '7', "07", false},
    };
    // clang-format on
    for (const VerdictRow& row : kRows) {
        Spied spied({row.mask, row.type});
        const Text text = FromAscii(row.text);
        const Verdict verdict = Validate({spied.Record(), text, row.position, static_cast<Char>(row.typed)});
        const std::string where =
            std::string(row.text) + " at " + std::to_string(row.position) + " '" + row.typed + "'";
        EXPECT_EQ(verdict.accepted, row.placed != nullptr) << where;
        EXPECT_EQ(Text(verdict.placed), FromAscii(row.placed ? row.placed : "")) << where;
        EXPECT_EQ(verdict.padded, row.padded) << where;
    }
}

TEST(Verdicts, OfOneCharacterAreNotPadded)
{
    EXPECT_FALSE(Verdict::Placing(Char{'x'}).padded);
    EXPECT_TRUE(Verdict::Swallowed().accepted);
    EXPECT_FALSE(Verdict::Refused().accepted);
}

}  // namespace
}  // namespace zttest
