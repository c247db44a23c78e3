// Values into modern controls and out of them, by every call; their states and canonical texts, which classic controls tell as well;
// and what becomes of what is shown when modern editing is turned on or off.
#include <gtest/gtest.h>

#include "engine/heap_block.h"
#include "engine/modern/editor.h"
#include "tests/support/marked_text.h"
#include "tests/support/rows.h"
#include "tests/support/values.h"
#include "tests/units/modern_player.h"

namespace zttest::typing {
namespace {

using namespace zte;

constexpr TypingSetup kAmount = {"#,##0.00", DT_NUMBER};
constexpr TypingSetup kDigits = {"000", DT_NUMBER};
constexpr TypingSetup kLong = {"#,##0.0000", DT_DECIMAL};
constexpr TypingSetup kBounded = {"##0", DT_NUMBER, ZTEO_SPIN, nullptr, "10~20"};
constexpr TypingSetup kUnmasked = {"", DT_STRING};
constexpr TypingSetup kNoted = {"MM/DD/YYYY XX", DT_DATE};
constexpr TypingSetup kNoHalves = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "", ""};
constexpr TypingSetup kNumberCodes = {"##0", DT_NUMBER, 0, "One\t1/Two\t2/Dozen\t12/None\tnull!"};
constexpr TypingSetup kDateCodes = {"MM-DD-YYYY", DT_DATE, 0, "Epoch\t1970-01-01/Mine\t07-04-1995"};
constexpr TypingSetup kDecimalCodes = {"0.00", DT_DECIMAL, 0, "Half\t0.50/Shown\t1.00"};
constexpr TypingSetup kNoTable = {"AAAAA", DT_STRING, ZTEO_SPIN | ZTEO_CODE_DISPLAY};
constexpr TypingSetup kNoTableNoMask = {"", DT_STRING, ZTEO_SPIN | ZTEO_CODE_DISPLAY};

constexpr TypingSetup kMonthOfYears = {"MM/YYYY", DT_DATE};
constexpr TypingSetup kYearAlones = {"YYYY", DT_DATE};
constexpr TypingSetup kNothingBetween = {"YYYYMMDD", DT_DATE};
constexpr TypingSetup kTenths = {"HH:MM:SS.F", DT_TIME};
constexpr TypingSetup kMicroseconds6 = {"HH:MM:SS.FFFFFF", DT_TIME};
constexpr TypingSetup kHourAlones = {"HH", DT_TIME};
constexpr TypingSetup kDateOfBoth = {"MM/DD/YYYY", DT_DATETIME};
constexpr TypingSetup kHalfOfDate = {"MM/DD/YYYY AM/PM", DT_DATETIME};
constexpr TypingSetup kBothHalvess = {"MM/DD/YY HH:MM AM/PM", DT_DATETIME};
constexpr TypingSetup kFreeDates = {"MM/DD/YYYY XX", DT_DATE};

// ---- what comes out

// The value that the control's getter gives.
std::string GottenFrom(EditInstance& edit)
{
    void* data = EditingOf(edit).getData(edit);
    if (!data)
        return kNullResult;
    std::string text;
    if (zttest::IsDateOrTime(edit.dataType))
        text = Canonical(*static_cast<const DateTimeValue*>(data));
    else
        text = static_cast<const Char*>(data);
    FreeBlock(edit, data);
    return text;
}

std::string CanonicalOf(const EditInstance& edit)
{
    Text text;
    return CanonicalText(edit, text) ? std::string(text.begin(), text.end()) : kNullResult;
}

// "4 2024-07-04 = 2024-07-04": state, canonical text, value.
std::string ToldOf(EditInstance& edit)
{
    return std::to_string(StateOf(edit)) + " " + CanonicalOf(edit) + " = " + GottenFrom(edit);
}

// ---- what a program sets

struct SetRow {
    const TypingSetup& setup;
    const char* text;  // kNullResult: null
    int32_t reason;
    const char* shown;
    const char* told;
};
void PrintTo(const SetRow& row, std::ostream* out)
{
    *out << row.setup.mask << ": \"" << row.text << '"';
}

const Char* GivenText(const char* text)
{
    return text == kNullResult ? nullptr : text;
}

class ModernData : public RowTest<SetRow> {};

ROW_TEST(ModernData, IsSetOrRefused)
{
    Played played(GetParam().setup);
    EXPECT_EQ(TrySetDataString(played.Record(), GivenText(GetParam().text)), GetParam().reason);
    EXPECT_EQ(played.Shown(), GetParam().shown);
    EXPECT_EQ(ToldOf(played.Record()), GetParam().told);
    EXPECT_FALSE(played.Edit().IsModified());
    EXPECT_EQ(played.Edit().Count(FieldEvent::Rejected), 0);
    EXPECT_EQ(played.Record().editor->UndoSteps(), 0u);
}

// clang-format off
const SetRow kSets[] = {
    {kUs, "2024-07-04", 0,                "|07/04/2024", "4 2024-07-04 = 2024-07-04"},
    {kUs, "0999-07-04", 0,                "|07/04/0999", "4 0999-07-04 = 0999-07-04"},
    {kPhone, "55512345678", ZTR_DOES_NOT_FIT, "(|   )    -    ", "0  =           "},
    {kUs, kNullResult, 0,                 "|  /  /    ", "0  = (null)"},
    {kUs, "", 0,                          "|  /  /    ", "0  = (null)"},
    {kUs, "00/00/0000", 0,                "|  /  /    ", "0  = (null)"},
    {kUs, "4 Jul 95", 0,                  "07/04/1995|", "4 1995-07-04 = 1995-07-04"},
    {kUs, "2023-02-30", ZTR_DOES_NOT_EXIST, "|  /  /    ", "0  = (null)"},
    {kUs, "x", ZTR_DOES_NOT_FIT,          "|  /  /    ", "0  = (null)"},
    {kTime, "00:00", 0,                   "|00:00", "4 00:00:00 = 00:00:00:000000"},
    {kTime, "00:00:00", 0,                "|00:00", "4 00:00:00 = 00:00:00:000000"},
    {kTime, "13:30", 0,                   "|13:30", "4 13:30:00 = 13:30:00:000000"},
    {kRanged, "2024-01-25", 0,            "|01/25/2024", "3 2024-01-25 = 2024-01-25"},
    {kAmount, "1234.5", 0,                "|1,234.50", "4 1234.50 = 1234.50"},
    {kAmount, "", 0,                      "|0.00", "0  = 0.00"},
    {kAmount, kNullResult, 0,             "|0.00", "0  = 0.00"},
    {kAmount, "0", 0,                     "|0.00", "4 0.00 = 0.00"},
    {kAmount, "$1,234.50", 0,             "1,234.50|", "4 1234.50 = 1234.50"},
    {kAmount, "x", ZTR_DOES_NOT_FIT,      "|0.00", "0  = 0.00"},
    {kLong, "1234.5678", 0,               "|1,234.5678", "4 1234.5678 = 1234.5678"},
    {kBounded, "25", 0,                   "|25", "3 25 = 25"},
    {kBounded, "15", 0,                   "|15", "4 15 = 15"},
    {kPhone, "5551234567", 0,             "(|555) 123-4567", "4 5551234567 = 5551234567"},
    {kPhone, "555", 0,                    "(|555)    -    ", "1 555 = 555       "},
    {kPhone, "555 123 4567", 0,           "(555) 123-4567|", "4 5551234567 = 5551234567"},
    {kPhone, "x", ZTR_WRONG_KIND,         "(|   )    -    ", "0  =           "},
    {kPhone, kNullResult, 0,              "(|   )    -    ", "0  =           "},
    {kUnmasked, "some text", 0,               "|some text", "4 some text = some text"},
    {kUnmasked, " ", 0,                       "| ", "0  =  "},
    {kColours, "g", 0,                    "[Green]", "4 g = g"},
    {kColours, "Green", 0,                "[Green]", "4 g = g"},
    {kColours, "green", 0,                "[Green]", "4 g = g"},
    {kColours, "null!", 0,                "[None]", "0  = null!"},
    {kColours, "", 0,                     "[None]", "0  = null!"},
    {kColours, "purple", ZTR_NO_SUCH_ENTRY, "[None]", "0  = null!"},
    {kNumberCodes, "2", 0,                "[Two]", "4 2 = 2"},
    {kNumberCodes, "", 0,                 "[None]", "0  = null!"},
};
TEST_ROWS(Texts, ModernData, kSets);
// clang-format on

// What a classic setter takes is set whatever it is: a text that cannot be read as what classic editing reads of it.
class ModernSetter : public RowTest<SetRow> {};

ROW_TEST(ModernSetter, ShowsWhatCanBeRead)
{
    Played played(GetParam().setup);
    EXPECT_EQ(EditingOf(played.Record()).setDataString(played.Record(), GivenText(GetParam().text)), GetParam().reason);
    EXPECT_EQ(played.Shown(), GetParam().shown);
    EXPECT_EQ(ToldOf(played.Record()), GetParam().told);
}

// clang-format off
const SetRow kSetterSets[] = {  // 1: set
    {kUs, "2024-07-04", 1,                "|07/04/2024", "4 2024-07-04 = 2024-07-04"},
    {kUs, kNullResult, 1,                 "|  /  /    ", "0  = (null)"},
    {kUs, "x", 1,                         "|  /  /    ", "0  = (null)"},
    {kTime, "25:00", 1,                   "|  :  ", "0  = (null)"},
    {kAmount, "12x", 1,                   "|12.00", "4 12.00 = 12.00"},
    {kLong, "1234.5678x", 1,              "|1,234.5678", "4 1234.5678 = 1234.5678"},
    {kPhone, "555x", 1,                   "(|555) x  -    ", "2 555x = 555x      "},
    {kColours, "purple", 1,               "[purple]", "2 (null) = purple"},
};
TEST_ROWS(Texts, ModernSetter, kSetterSets);
// clang-format on

// ... and nothing else stays there.
TEST(ModernSetter, LeavesNothingOfWhatStoodThere)
{
    for (const TypingSetup* setup : {&kUs, &kTime, &kBoth}) {
        Played played(*setup);
        const std::string empty = played.Shown();
        EditingOf(played.Record()).setDataString(played.Record(), "2024-07-04 13:30");
        EditingOf(played.Record()).setDataString(played.Record(), "x");
        EXPECT_EQ(played.Shown(), empty);
    }
}

// A value comes before a display that is called the same.
TEST(ModernData, IsAValueBeforeItIsADisplay)
{
    Played played({"", DT_STRING, 0, "A\tB/B\tA"});
    EXPECT_EQ(TrySetDataString(played.Record(), "A"), 0);
    EXPECT_EQ(played.Shown(), "[B]");
}

// ---- values of their types, which a code table may know by another name

DateTimeValue DateOf(const char* canonical)
{
    return ValueOf(canonical);
}

std::string ShownAs(const TypingSetup& setup, const void* data)
{
    Played played(setup);
    EXPECT_EQ(EditingOf(played.Record()).setData(played.Record(), data), 1);
    const Display display = EditingOf(played.Record()).format(played.Record(), data);
    EXPECT_EQ(display.text, played.Edit().Shown());
    return played.Shown();
}

TEST(ModernValues, AreShownAsTheyAreFormatted)
{
    const DateTimeValue date = DateOf("1995-07-04");
    const double number = 12.5;
    const DecimalValue decimal = DecimalOf("1234.5678");
    EXPECT_EQ(ShownAs(kUs, &date), "|07/04/1995");
    EXPECT_EQ(ShownAs(kUs, nullptr), "|  /  /    ");
    EXPECT_EQ(ShownAs(kAmount, &number), "|12.50");
    EXPECT_EQ(ShownAs(kAmount, nullptr), "|0.00");
    EXPECT_EQ(ShownAs(kLong, &decimal), "|1,234.5678");
    EXPECT_EQ(ShownAs(kPhone, "5551234567"), "(|555) 123-4567");
    EXPECT_EQ(ShownAs(kPhone, nullptr), "(|   )    -    ");
    EXPECT_EQ(ShownAs(kUnmasked, "text"), "|text");
    EXPECT_EQ(ShownAs(kUnmasked, nullptr), "|");
}

TEST(ModernValues, AreShownAsTheirEntries)
{
    const double two = 2;
    const double twelve = 12;
    const double seven = 7;
    const DateTimeValue epoch = DateOf("1970-01-01");
    const DateTimeValue mine = DateOf("1995-07-04");
    const DateTimeValue other = DateOf("1995-07-05");
    const DecimalValue half = DecimalOf("0.5");
    const DecimalValue one = DecimalOf("1");
    EXPECT_EQ(ShownAs(kColours, "r"), "[Red]");
    EXPECT_EQ(ShownAs(kColours, "purple"), "[purple]");
    EXPECT_EQ(ShownAs(kColours, nullptr), "[None]");
    EXPECT_EQ(ShownAs(kNoNull, nullptr), "|");
    EXPECT_EQ(ShownAs(kNumberCodes, &two), "[Two]");
    EXPECT_EQ(ShownAs(kNumberCodes, &twelve), "[Dozen]");
    EXPECT_EQ(ShownAs(kNumberCodes, &seven), "[7]");
    EXPECT_EQ(ShownAs(kNumberCodes, nullptr), "[None]");
    EXPECT_EQ(ShownAs(kDateCodes, &epoch), "[Epoch]");
    EXPECT_EQ(ShownAs(kDateCodes, &mine), "[Mine]");
    EXPECT_EQ(ShownAs(kDateCodes, &other), "[07-05-1995]");
    EXPECT_EQ(ShownAs(kDecimalCodes, &half), "[Half]");
    EXPECT_EQ(ShownAs(kDecimalCodes, &one), "[Shown]");
}

// A value is gotten where there is one, a string as it stands.
TEST(ModernValues, AreNotGottenFromWhatIsNoValue)
{
    Played date(kUs);
    date.Play("0704");
    EXPECT_EQ(ToldOf(date.Record()), "1 (null) = (null)");
    date.Play("2024");
    EXPECT_EQ(ToldOf(date.Record()), "4 2024-07-04 = 2024-07-04");
    date.Play("{Set 02/30/2024}");
    EXPECT_EQ(ToldOf(date.Record()), "2 (null) = (null)");
    Played number(kAmount);
    number.Play("-");
    EXPECT_EQ(ToldOf(number.Record()), "1 (null) = (null)");
    number.Play("5");
    EXPECT_EQ(ToldOf(number.Record()), "4 -5.00 = -5.00");
    Played time(kTime);
    time.Play("0000");
    EXPECT_EQ(ToldOf(time.Record()), "4 00:00:00 = 00:00:00:000000");
}

// What the empty number shows is what 0 shows: remembered, not seen, until the text is another one.
TEST(ModernValues, OfANumberAreEmptyUntilSomethingElseStandsThere)
{
    Played number(kAmount);
    EXPECT_EQ(StateOf(number.Record()), ZTS_EMPTY);
    number.Play("{Behind 0.00}");
    EXPECT_EQ(StateOf(number.Record()), ZTS_EMPTY);
    number.Play("{Behind 1.00}");
    EXPECT_EQ(StateOf(number.Record()), ZTS_COMPLETE);
    number.Play("{Behind 0.00}");
    EXPECT_EQ(StateOf(number.Record()), ZTS_EMPTY);  // nobody has looked meanwhile
    number.Play("{Behind 1.00}{Home}{Behind 0.00}{Home}");
    EXPECT_EQ(StateOf(number.Record()), ZTS_COMPLETE);
}

// What a text that a program has set is read as: its state and its canonical text.
struct ReadingRow {
    const TypingSetup& setup;
    const char* shown;
    const char* told;
};
void PrintTo(const ReadingRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << row.shown << '"';
}

class ModernReading : public RowTest<ReadingRow> {};

ROW_TEST(ModernReading, OfATextThatAProgramSets)
{
    Played played(GetParam().setup);
    played.Control().SetText(FromAscii(GetParam().shown).c_str());
    EXPECT_EQ(std::to_string(StateOf(played.Record())) + " " + CanonicalOf(played.Record()), GetParam().told);
}

// clang-format off
const ReadingRow kReadings[] = {
    {kUs, "12/31/9999", "4 9999-12-31"},
    {kUs, "01/01/0001", "4 0001-01-01"},
    {kUs, "01/01/0000", "2 (null)"},
    {kUs, "00/01/2024", "2 (null)"},
    {kUs, "13/01/2024", "2 (null)"},
    {kUs, "01/32/2024", "2 (null)"},
    {kUs, "01/00/2024", "2 (null)"},
    {kUs, "02/29/2023", "2 (null)"},
    {kUs, "02/29/2024", "4 2024-02-29"},
    {kUs, "02/29/1900", "2 (null)"},
    {kUs, "02/29/2000", "4 2000-02-29"},
    {kUs, "1 /01/2024", "1 (null)"},
    {kUs, " 1/01/2024", "2 (null)"},
    {kUs, "12/31/1 99", "2 (null)"},
    {kUs, "12/31/199 ", "1 (null)"},
    {kUs, "12/3 /2024", "1 (null)"},
    {kUs, "01-01-2024", "2 (null)"},
    {kUs, "01/01/20240", "2 (null)"},
    {kUs, "  /  /2024", "1 (null)"},
    {kUs, "1x/01/2024", "2 (null)"},
    {kUs, "   ", "2 (null)"},
    {kUs, "x /  /    ", "2 (null)"},
    {kUs, "", "0 "},
    {kShort, "12/31/00", "4 2000-12-31"},
    {kShort, "12/31/49", "4 2049-12-31"},
    {kShort, "12/31/50", "4 1950-12-31"},
    {kShort, "12/31/99", "4 1999-12-31"},
    {kShort, "02/29/00", "4 2000-02-29"},
    {kShort, "02/29/01", "2 (null)"},
    {kDayOfYear, "366/2023", "2 (null)"},
    {kDayOfYear, "366/2024", "4 2024-12-31"},
    {kDayOfYear, "365/2023", "4 2023-12-31"},
    {kDayOfYear, "000/2024", "2 (null)"},
    {kDayOfYear, "367/2024", "2 (null)"},
    {kDayOfYear, "001/2024", "4 2024-01-01"},
    {kDayOfYear, "   /2024", "1 (null)"},
    {kDayOfYear, "60 /2024", "1 (null)"},
    {kDayOfYear, "060/2024", "4 2024-02-29"},
    {kMonthOfYears, "02/2024", "4 2024-02-01"},
    {kMonthOfYears, "13/2024", "2 (null)"},
    {kYearAlones, "2024", "4 2024-01-01"},
    {kYearAlones, "0000", "2 (null)"},
    {kNamed, "04-JUL-2024", "4 2024-07-04"},
    {kNamed, "04-jul-2024", "4 2024-07-04"},
    {kNamed, "04-JU -2024", "1 (null)"},
    {kNamed, "04-XXX-2024", "2 (null)"},
    {kNamed, "04-1  -2024", "1 (null)"},
    {kNamed, "04-12 -2024", "1 (null)"},
    {kNamed, "04-J  -2024", "1 (null)"},
    {kNamed, "04-   -2024", "1 (null)"},
    {kNamed, "31-APR-2024", "2 (null)"},
    {kTime, "23:59", "4 23:59:00"},
    {kTime, "24:00", "2 (null)"},
    {kTime, "00:00", "4 00:00:00"},
    {kTime, "12:60", "2 (null)"},
    {kTime, "12:6 ", "1 (null)"},
    {kTime, "9 :30", "1 (null)"},
    {kTime, "  :30", "1 (null)"},
    {kTime, "x2:30", "2 (null)"},
    {kTime, "22:58", "4 22:58:00"},
    {kMicroseconds6, "12:00:00.123456", "4 12:00:00:123456"},
    {kMicroseconds6, "23:59:59.999999", "4 23:59:59:999999"},
    {kMicroseconds6, "12:00:00.12345 ", "1 (null)"},
    {kMicroseconds6, "12:00:60.000000", "2 (null)"},
    {kTenths, "12:00:00.5", "4 12:00:00:500000"},
    {kTenths, "12:00:00. ", "1 (null)"},
    {kFraction, "12:00:00.999", "4 12:00:00:999000"},
    {kFraction, "12:00:00.05 ", "1 (null)"},
    {kFraction, "12:00:59.000", "4 12:00:59"},
    {kHalves, "12:00 AM", "4 00:00:00"},
    {kHalves, "12:00 PM", "4 12:00:00"},
    {kHalves, "00:30 AM", "2 (null)"},
    {kHalves, "13:00 PM", "2 (null)"},
    {kHalves, "01:30 XM", "2 (null)"},
    {kHalves, "01:30   ", "1 (null)"},
    {kHalves, "  :   PM", "1 (null)"},
    {kHalves, "11:59 pm", "2 (null)"},
    {kHalves, "01:30 A ", "2 (null)"},
    {kHourAlones, "13", "4 13:00:00"},
    {kHourAlones, "24", "2 (null)"},
    {kDateOfBoth, "07/04/2024", "4 2024-07-04 00:00:00"},
    {kDateOfBoth, "02/30/2024", "2 (null)"},
    {kHalfOfDate, "07/04/2024 PM", "4 2024-07-04 00:00:00"},
    {kHalfOfDate, "07/04/2024 AM", "4 2024-07-04 00:00:00"},
    {kHalfOfDate, "07/04/2024   ", "1 (null)"},
    {kBothHalvess, "07/04/24 12:30 AM", "4 2024-07-04 00:30:00"},
    {kBothHalvess, "07/04/24 12:30   ", "1 (null)"},
    {kBothHalvess, "  /  /   12:30 PM", "1 (null)"},
    {kFreeDates, "07/04/2024   ", "4 2024-07-04"},
    {kFreeDates, "  /  /     A ", "1 (null)"},
    {kFreeDates, "  /  /       ", "0 "},
    {kNothingBetween, "20240704", "4 2024-07-04"},
    {kNothingBetween, "2024 704", "2 (null)"},
    {kNothingBetween, "202407 4", "2 (null)"},
};
TEST_ROWS(Texts, ModernReading, kReadings);
// clang-format on

// ---- before there is a mask

TEST(ModernValues, AreNoneWithoutAMask)
{
    Played played(kUs);
    played.Show("07/04/1995|");
    EditInstance& edit = played.Record();
    auto* mask = std::exchange(edit.mask, nullptr);
    const DateTimeValue date = DateOf("1970-01-01");
    EXPECT_EQ(EditingOf(edit).setData(edit, &date), 0);
    EXPECT_EQ(EditingOf(edit).setDataString(edit, "1970-01-01"), 0);
    EXPECT_EQ(EditingOf(edit).setDataString(edit, "x"), 0);
    EXPECT_EQ(EditingOf(edit).setDataString(edit, nullptr), 0);
    EXPECT_EQ(EditingOf(edit).getData(edit), nullptr);
    EXPECT_EQ(EditingOf(edit).format(edit, &date).text, "");
    EXPECT_EQ(TrySetDataString(edit, "1970-01-01"), ZTR_DOES_NOT_FIT);
    EXPECT_EQ(StateOf(edit), ZTS_EMPTY);
    Text text;
    EXPECT_FALSE(CanonicalText(edit, text));
    edit.mask = mask;
    EXPECT_EQ(ToldOf(edit), "4 1995-07-04 = 1995-07-04");
}

// ---- masks, ranges and tables that are set later

struct MaskRow {
    const TypingSetup& setup;
    const char* mask;
    int32_t type;
    int32_t asGiven;
    const char* shown;
    const char* canonical;
};
void PrintTo(const MaskRow& row, std::ostream* out)
{
    *out << row.setup.mask << " becomes " << row.mask;
}

class ModernMask : public RowTest<MaskRow> {};

// The new mask shows the empty value, whatever stood there; what can be undone is forgotten.
ROW_TEST(ModernMask, IsSetAgain)
{
    Played played(GetParam().setup);
    played.Play("1");
    EditInstance& edit = played.Record();
    edit.maskJustSet = 0;
    EXPECT_EQ(EditingOf(edit).setMask(edit, GetParam().mask, GetParam().type), GetParam().asGiven);
    EXPECT_EQ(edit.maskJustSet, 1);
    EXPECT_EQ(played.Shown(), GetParam().shown);
    EXPECT_EQ(CanonicalOf(edit), GetParam().canonical);
    EXPECT_EQ(edit.editor->UndoSteps(), 0u);
}

// clang-format off
const MaskRow kMasks[] = {
    {kUs, "DD.MM.YYYY", DT_DATE, 1,       "|  .  .    ", ""},
    {kUs, "nonsense", DT_DATE, 0,         "|  /  /  ", ""},
    {kUs, "#,##0.00", DT_NUMBER, 1,       "|0.00", ""},
    {kUs, "MM/DD", DT_DATE, 0,            "|  /  /  ", ""},
    {kAmount, "HH:MM", DT_TIME, 1,        "|  :  ", ""},
    {kAmount, "##x#", DT_NUMBER, 0,       "|.00", ""},
    {kAmount, "(###) ###-####", DT_STRING, 1, "(|   )    -    ", ""},
    {kColours, "AAA", DT_STRING, 1,       "[None]", ""},
};
TEST_ROWS(Masks, ModernMask, kMasks);
// clang-format on

// One mask of numbers serves every country: its separators are placeholders.
TEST(ModernMask, OfNumbersIsWrittenWithPointAndComma)
{
    Played played(kAmount);
    played.Regional().decimalChar = ',';
    played.Regional().thousandChar = '.';
    EditInstance& edit = played.Record();
    EXPECT_EQ(EditingOf(edit).setMask(edit, "#,##0.00", DT_NUMBER), 1);
    EXPECT_EQ(TrySetDataString(edit, "1234.5"), 0);
    EXPECT_EQ(played.Shown(), "|1.234,50");
    EXPECT_EQ(EditingOf(edit).setMask(edit, "#;##0:00", DT_NUMBER), 0);
}

// An entry that is shown stays where the new mask is one of a code table as well.
TEST(ModernMask, LeavesAChosenEntry)
{
    Played played(kColours);
    played.Play("g{Undo}r");
    EditInstance& edit = played.Record();
    EXPECT_EQ(EditingOf(edit).setMask(edit, "AAAAAAAA", DT_STRING), 1);
    EXPECT_EQ(played.Edit().Shown(), "Red");
    EXPECT_EQ(StateOf(edit), ZTS_COMPLETE);
    EXPECT_EQ(edit.editor->UndoSteps(), 0u);
    EXPECT_EQ(edit.editor->State(), ZTS_COMPLETE);
}

// An empty one shows the entry of no data.
TEST(ModernMask, ShowsTheEntryOfNoData)
{
    Played played(kColours);
    played.Play("{Set }");
    EXPECT_EQ(played.Shown(), "|");
    EditInstance& edit = played.Record();
    EditingOf(edit).setMask(edit, "AAA", DT_STRING);
    EXPECT_EQ(played.Shown(), "[None]");
}

TEST(ModernSpinSettings, TellTheStateThatTheyMake)
{
    Played played(kUsSpin);
    played.Show("01/25/2024|");
    EditInstance& edit = played.Record();
    EditingOf(edit).setSpin(edit, 1, "2024-01-10~2024-01-20", nullptr, 0);
    EXPECT_EQ(played.Heard().All(), "4>3");
    EditingOf(edit).setSpin(edit, 1, "2024-01-10~2024-01-30", nullptr, 0);
    EXPECT_EQ(played.Heard().All(), "4>3 3>4");
    EditingOf(edit).setSpin(edit, 1, nullptr, nullptr, 0);
    EXPECT_EQ(played.Heard().All(), "4>3 3>4");
    edit.spinMin = 0;
    played.Play("{Behind 02/30/2024}");
    EditingOf(edit).setSpin(edit, 1, nullptr, nullptr, 0);
    EXPECT_EQ(edit.editor->State(), ZTS_INVALID);
}

// What was chosen from a table is no step of another one; a new range leaves what was typed.
TEST(ModernSpinSettings, ForgetWhatWasChosenFromAnotherTable)
{
    Played colours(kColours);
    colours.Play("g");
    ASSERT_EQ(colours.Record().editor->UndoSteps(), 1u);
    EditingOf(colours.Record()).setSpin(colours.Record(), 1, nullptr, "Green\tg/Grey\ty", SPINSTYLE_CODETABLE);
    EXPECT_EQ(colours.Record().editor->UndoSteps(), 0u);
    colours.Play("gg");
    ASSERT_EQ(colours.Record().editor->UndoSteps(), 1u);
    EditingOf(colours.Record()).setSpin(colours.Record(), 1, nullptr, nullptr, 0);
    EXPECT_EQ(colours.Record().editor->UndoSteps(), 0u);

    Played date(kUsSpin);
    date.Play("07");
    EditingOf(date.Record()).setSpin(date.Record(), 1, "2024-01-10~2024-01-20", nullptr, 0);
    EXPECT_EQ(date.Record().editor->UndoSteps(), 1u);
    EditingOf(date.Record()).setSpin(date.Record(), 1, nullptr, "July\t2024-07-04", SPINSTYLE_CODETABLE);
    EXPECT_EQ(date.Record().editor->UndoSteps(), 0u);

    Played lookedUp(kUsSpin);  // a table that values are not shown by
    EditingOf(lookedUp.Record()).setSpin(lookedUp.Record(), 1, nullptr, "July\t2024-07-04", 0);
    lookedUp.Play("07");
    EditingOf(lookedUp.Record()).setSpin(lookedUp.Record(), 1, nullptr, nullptr, 0);
    EXPECT_EQ(lookedUp.Record().editor->UndoSteps(), 0u);
}

// Where values are shown by a table that is still missing, there is nothing to undo either once that ends.
TEST(ModernSpinSettings, ForgetWhatWasTypedWithoutATable)
{
    Played played(kNoTable);
    played.Play("ab");
    ASSERT_EQ(played.Record().editor->UndoSteps(), 1u);
    EditingOf(played.Record()).setSpin(played.Record(), 1, nullptr, nullptr, 0);
    EXPECT_EQ(played.Record().editor->UndoSteps(), 0u);
}

// ---- classic controls are asked the same

struct ClassicRow {
    const TypingSetup& setup;
    const char* shown;  // set as the window's text
    const char* told;   // state and canonical text
};
void PrintTo(const ClassicRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << row.shown << '"';
}

class ClassicState : public RowTest<ClassicRow> {};

ROW_TEST(ClassicState, IsToldOfWhatIsShown)
{
    Played played(GetParam().setup, ZTEO_MODERN);
    ASSERT_EQ(played.Record().editor, nullptr);
    played.Control().SetText(FromAscii(GetParam().shown).c_str());
    EXPECT_EQ(std::to_string(StateOf(played.Record())) + " " + CanonicalOf(played.Record()), GetParam().told);
}

// clang-format off
const ClassicRow kClassic[] = {
    // zeros are all there is to tell blank by: of the whole, and of months, days and years
    {kUs, "00/00/0000",                   "0 "},
    {kUs, "07/04/2024",                   "4 2024-07-04"},
    {kUs, "07/00/2024",                   "1 (null)"},
    {kUs, "00/04/2024",                   "1 (null)"},
    {kUs, "07/04/0000",                   "1 (null)"},
    {kUs, "02/30/2024",                   "2 (null)"},
    {kUs, "junk",                         "2 (null)"},
    {kUs, "07-00-2024",                   "2 (null)"},
    {kShort, "07/04/00",                  "4 2000-07-04"},
    {kNamed, "04-   -2024",               "1 (null)"},
    {kTime, "00:00",                      "0 "},
    {kTime, "00:30",                      "4 00:30:00"},
    {kTime, "13:00",                      "4 13:00:00"},
    {kHalves, "00:00 AM",                 "0 "},
    {kHalves, "12:00 AM",                 "4 00:00:00"},
    {kBoth, "07/04/2024 00:00",           "4 2024-07-04 00:00:00"},
    {kBoth, "00/00/0000 13:30",           "1 (null)"},
    {kNoted, "00/04/2024 00",             "1 (null)"},
    {kNoted, "07/04/2024 00",             "4 2024-07-04"},
    {kNoHalves, "01:30 ",                 "4 01:30:00"},
    {kRanged, "01/25/2024",               "3 2024-01-25"},
    {kAmount, "0.00",                     "0 "},
    {kAmount, "1,234.50",                 "4 1234.50"},
    {kAmount, "x",                        "2 (null)"},
    {kBounded, "25",                      "3 25"},
    {kPhone, "(   )    -    ",            "0 "},
    {kPhone, "(555) 123-4567",            "4 5551234567"},
    {kPhone, "(555) 123-456",             "1 555123456"},
    {kPhone, "(555)",                     "1 555"},
    {kWord, "ab",                         "4 ab"},
    {kUnmasked, "text",                       "4 text"},
    {kColours, "Red",                     "4 r"},
    {kColours, "None",                    "0 "},
    {kColours, "Blue",                    "2 (null)"},
    {kNumberCodes, "Two",                 "4 2"},
};
TEST_ROWS(States, ClassicState, kClassic);
// clang-format on

class ClassicData : public RowTest<SetRow> {};

ROW_TEST(ClassicData, IsTriedTheSameWay)
{
    Played played(GetParam().setup, ZTEO_MODERN);
    EXPECT_EQ(TrySetDataString(played.Record(), GivenText(GetParam().text)), GetParam().reason);
    EXPECT_EQ(played.Edit().Shown(), GetParam().shown);
}

// clang-format off
const SetRow kClassicSets[] = {
    {kUs, "2024-07-04", 0,                "07/04/2024", ""},
    {kUs, "4 Jul 95", 0,                  "07/04/1995", ""},
    {kUs, "", 0,                          "00/00/0000", ""},
    {kUs, kNullResult, 0,                 "00/00/0000", ""},
    {kUs, "2023-02-30", ZTR_DOES_NOT_EXIST, "00/00/0000", ""},
    {kTime, "13:30", 0,                   "13:30", ""},
    {kAmount, "$1,234.50", 0,             "1,234.50", ""},
    {kAmount, "x", ZTR_DOES_NOT_FIT,      "0.00", ""},
    {kPhone, "555 123 4567", 0,           "(555) 123-4567", ""},
    {kColours, "Green", 0,                "Green", ""},
};
TEST_ROWS(Texts, ClassicData, kClassicSets);
// clang-format on

TEST(ClassicData, MayBeTheEmptyValue)
{
    for (const TypingSetup* setup : {&kUs, &kTime, &kPhone, &kAmount}) {
        Played played(*setup, ZTEO_MODERN);
        const std::string empty = played.Edit().Shown();
        for (const char* value : {"2024-07-04", "13:30", "5551234567", "12"})
            TrySetDataString(played.Record(), value);
        EXPECT_NE(played.Edit().Shown(), empty);
        EXPECT_EQ(TrySetDataString(played.Record(), ""), 0);
        EXPECT_EQ(played.Edit().Shown(), empty);
    }
}

// ---- modern editing turned on and off

struct SwitchRow {
    const TypingSetup& setup;
    const char* before;
    const char* after;
    const char* told;  // state and canonical text
};
void PrintTo(const SwitchRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << row.before << '"';
}

class ModernTurnedOn : public RowTest<SwitchRow> {};

ROW_TEST(ModernTurnedOn, LaysAnewWhatThePositionsHold)
{
    Played played(GetParam().setup, ZTEO_MODERN);
    played.Control().SetText(FromAscii(GetParam().before).c_str());
    const bool isLaidAnew = Equals(played.Edit().Shown(), GetParam().after) == false;
    played.Edit().ForgetCounts();
    EXPECT_FALSE(SetModern(played.Record(), true));
    EXPECT_EQ(played.Edit().Shown(), GetParam().after);
    EXPECT_EQ(played.Edit().Count(FieldEvent::Change), isLaidAnew ? 1 : 0);
    EXPECT_EQ(played.Edit().Count(FieldEvent::State), 0);
    EXPECT_EQ(std::to_string(StateOf(played.Record())) + " " + CanonicalOf(played.Record()), GetParam().told);
    EXPECT_EQ(played.Record().editor->State(), StateOf(played.Record()));
    EXPECT_EQ(played.Record().editor->UndoSteps(), 0u);
    EXPECT_TRUE(SetModern(played.Record(), true));
}

// clang-format off
const SwitchRow kTurnedOn[] = {
    {kUs, "00/00/0000",       "  /  /    ",     "0 "},
    {kUs, "07/04/2024",       "07/04/2024",     "4 2024-07-04"},
    {kUs, "07/00/2024",       "07/00/2024",     "2 (null)"},
    {kUs, "junk",             "junk",           "2 (null)"},
    {kTime, "00:00",          "  :  ",          "0 "},
    {kTime, "00:30",          "00:30",          "4 00:30:00"},
    {kHalves, "00:00 AM",     "  :     ",       "0 "},
    {kAmount, "0.00",         "0.00",           "0 "},
    {kAmount, "1.00",         "1.00",           "4 1.00"},
    {kPhone, "(555)",         "(555)    -    ", "1 555"},
    {kPhone, "(555) 123-4567", "(555) 123-4567", "4 5551234567"},
    {kWord, "ab",             "ab   ",          "4 ab"},
    {kWord, "abcdef",         "abcdef",         "2 abcde"},
    {kUnmasked, "ab",             "ab",             "4 ab"},
    {kColours, "Red",         "Red",            "4 r"},
};
TEST_ROWS(Texts, ModernTurnedOn, kTurnedOn);
// clang-format on

// From there on it is told.
TEST(ModernTurnedOn, TellsItsStates)
{
    Played played(kUs, ZTEO_MODERN);
    played.Control().SetText("07/04/2024");
    SetModern(played.Record(), true);
    played.Show(nullptr);
    played.Play("{CaretBehind9}5");
    EXPECT_EQ(played.Shown(), "07/04/2025|");
    EXPECT_EQ(played.Heard().All(), "changed");
    played.Play("{Bs}");
    EXPECT_EQ(played.Heard().All(), "changed changed 4>1");
    EXPECT_TRUE(SetModern(played.Record(), true));
    EXPECT_EQ(played.Record().editor->UndoSteps(), 0u);
    EXPECT_EQ(played.Shown(), "07/04/202| ");
}

// What shows no data is as empty as it would be in modern editing.
TEST(ModernTurnedOn, FindsNothingToTakeOutOfWhatIsEmpty)
{
    for (const TypingSetup* setup : {&kColours, &kUs, &kPhone}) {
        Played played(*setup, ZTEO_MODERN);
        TrySetDataString(played.Record(), "");
        SetModern(played.Record(), true);
        played.Show(nullptr);
        played.Play("{All}{Del}");
        EXPECT_EQ(played.Heard().All(), "");
        EXPECT_EQ(played.Record().editor->UndoSteps(), 0u);
    }
}

class ModernTurnedOff : public RowTest<SwitchRow> {};

ROW_TEST(ModernTurnedOff, LaysAnewWhatThePositionsHold)
{
    Played played(GetParam().setup);
    played.Play(GetParam().before);
    const bool isLaidAnew = Equals(played.Edit().Shown(), GetParam().after) == false;
    played.Edit().ForgetCounts();
    EXPECT_TRUE(SetModern(played.Record(), false));
    EXPECT_EQ(played.Record().editor, nullptr);
    EXPECT_EQ(played.Edit().Shown(), GetParam().after);
    EXPECT_EQ(played.Edit().Count(FieldEvent::Change), isLaidAnew ? 1 : 0);
    EXPECT_EQ(GottenFrom(played.Record()), GetParam().told);
    EXPECT_FALSE(SetModern(played.Record(), false));
}

// clang-format off
const SwitchRow kTurnedOff[] = {  // what is typed before, what is shown after, the value
    {kUs, "",                 "00/00/0000",     "(null)"},
    {kUs, "07042024",         "07/04/2024",     "2024-07-04"},
    {kUs, "1",                "10/00/0000",     "(null)"},
    {kUs, "{Set junk}",       "junk",           "(null)"},
    {kUs, "{Set 1 /32/2024}", "1 /32/2024",     "2024-01-32"},
    {kDayOfYear, "",          "000/0000",       "(null)"},
    {kFraction, "",           "00:00:00.000",   "(null)"},
    {kHalfFirst, "",          "AM 00:00",       "(null)"},
    {kDotted, "",             "00:00 a.m.",     "(null)"},
    {kBoth, "",               "00/00/0000 00:00", "0000-01-01 00:00:00:000000"},
    {kNoted, "",              "00/00/0000   ",  "(null)"},
    {kNoHalves, "",           "00:00 ",         "(null)"},
    {kUs, "02302024",         "02/30/2024",     "2024-02-30"},
    {kNamed, "",              "00-   -0000",    "(null)"},
    {kNamed, "4",             "04-   -0000",    "(null)"},
    {kTime, "",               "00:00",          "(null)"},
    {kTime, "13",             "13:00",          "13:00:00:000000"},
    {kHalves, "",             "00:00 AM",       "(null)"},
    {kHalves, "12:30{Right}{Bs}", "12:30 AM",   "00:30:00:000000"},
    {kHalves, "p",            "00:00 PM",       "12:00:00:000000"},
    {kHalves, "1330",         "01:30 PM",       "13:30:00:000000"},
    {kNoted, "07042024",      "07/04/2024   ",  "2024-07-04"},
    {kNoHalves, "11",         "11:00 ",         "11:00:00:000000"},
    {kAmount, "",             "0.00",           "0.00"},
    {kAmount, "12",           "12.00",          "12.00"},
    {kPhone, "555",           "(555)    -    ", "555       "},
    {kColours, "g",           "Green",          "g"},
};
TEST_ROWS(Texts, ModernTurnedOff, kTurnedOff);
// clang-format on

// ---- which kind a control is of

TEST(ModernKinds, ATableIsChosenFromWhereThereIsOne)
{
    Played table(kNumberCodes);
    EXPECT_EQ(&modern::KindOf(table.Record()), &modern::kChoices);
    Played noTable(kNoTable);
    EXPECT_EQ(&modern::KindOf(noTable.Record()), &modern::kStrings);
    Played nothing(kNoTableNoMask);
    EXPECT_EQ(&modern::KindOf(nothing.Record()), &modern::kChoices);
    Played unseen(kUsSpin);  // a table that values are not shown by
    EditingOf(unseen.Record()).setSpin(unseen.Record(), 1, nullptr, "July\t2024-07-04", 0);
    EXPECT_EQ(&modern::KindOf(unseen.Record()), &modern::kDates);
}

// ---- the end

// What the control remembers goes with it (the sanitizers tell of leaks).
TEST(ModernEnd, TakesTheHistoryAlong)
{
    Played played(kUs);
    played.Play("07042024{Bs}{Bs}");
    DropEditor(played.Record());
    EXPECT_EQ(played.Record().editor, nullptr);
    DropEditor(played.Record());
    EXPECT_EQ(played.Edit().Shown(), "07/04/20  ");
}

}  // namespace
}  // namespace zttest::typing
