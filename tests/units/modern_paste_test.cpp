// What is pasted into modern fields: texts as people and programs write them, read or refused with the reason and the place.
#include <gtest/gtest.h>

#include <cstring>

#include "engine/editing.h"
#include "engine/memory_control.h"
#include "engine/modern/editor.h"
#include "engine/modern/kind.h"
#include "tests/support/marked_text.h"
#include "tests/support/rows.h"

namespace zttest::pasting {
namespace {

using namespace zte;

// ---- settings

using Change = void (*)(Settings&);

void NameMonths(Settings& settings, const char* const (&names)[kMonths])
{
    for (int32_t month = 0; month < kMonths; ++month)
        Assign(settings.monthNames[month], FromAscii(names[month]));
}

void Plain(Settings& /*settings*/) {}

// No designators, as where the day has 24 hours.
void German(Settings& settings)
{
    NameMonths(settings, {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"});
    Assign(settings.amString, {});
    Assign(settings.pmString, {});
}

// Two months that begin alike, as far as a field of three letters shows them; names with a point behind.
void French(Settings& settings)
{
    NameMonths(settings,
               {"janv.", "fevr.", "mars", "avr.", "mai", "juin", "juil.", "aout", "sept.", "oct.", "nov.", "dec."});
}

void Dotted(Settings& settings)
{
    Assign(settings.amString, FromAscii("a.m."));
    Assign(settings.pmString, FromAscii("p.m."));
}

// Both begin with the letter that elsewhere means the afternoon.
void AlikeInP(Settings& settings)
{
    Assign(settings.amString, FromAscii("pri"));
    Assign(settings.pmString, FromAscii("po"));
}

void SameForBoth(Settings& settings)
{
    Assign(settings.amString, FromAscii("h"));
    Assign(settings.pmString, FromAscii("h"));
}

// ---- rows

struct PasteSetup {
    const char* mask;
    int32_t type;
    const char* codes = nullptr;
    Change settings = Plain;
};

struct PasteRow {
    const PasteSetup& setup;
    const char* before;  // with its caret or selection; null: empty
    const char* text;
    const char* expected;  // the text shown, with its caret; or the reason and the offset
};
void PrintTo(const PasteRow& row, std::ostream* out)
{
    *out << row.setup.mask << ": \"" << row.text << '"';
}

constexpr const char* kReasons[] = {
    "",         "wrong kind",     "out of bounds", "full",        "read-only", "does not fit",
    "in doubt", "does not exist", "no such entry", "end of range"};

DateTimeValue FourthOfJune()
{
    return {0, 95, 5, 4, 12, 0, 0, 0};
}

class ModernPaste : public RowTest<PasteRow> {
protected:
    ModernPaste() : mask_(FromAscii(GetParam().setup.mask)), codes_(FromAscii(OrEmpty(GetParam().setup.codes)))
    {
        GetParam().setup.settings(settings_);
        ControlSetup setup;
        setup.mask = mask_.c_str();
        setup.dataType = GetParam().setup.type;
        setup.options = ZTEO_MODERN | (GetParam().setup.codes ? ZTEO_SPIN | ZTEO_CODE_DISPLAY : 0u);
        setup.codeTable = GetParam().setup.codes ? codes_.c_str() : nullptr;
        control_ = std::make_unique<MemoryControl>(setup, settings_, FourthOfJune);
        if (!GetParam().before)
            return;
        const Marked before = Unmark(GetParam().before);
        control_->SetText(FromAscii(before.text.c_str()).c_str());
        control_->Select(before.start, before.end);
    }

    static const char* OrEmpty(const char* text) { return text ? text : ""; }

    std::string Shown() const
    {
        const Selection selection = control_->Edit().ReadSelection();
        return Mark(std::string(control_->Edit().Shown().begin(), control_->Edit().Shown().end()), selection.start,
                    selection.end);
    }

    // The text and the caret, or why not.
    static std::string Told(const modern::Outcome& outcome)
    {
        if (outcome.reason != 0)
            return kReasons[outcome.reason] + (" " + std::to_string(outcome.position));
        const modern::Content& content = outcome.content;
        return Mark(std::string(content.text.begin(), content.text.end()), content.selection.start,
                    content.selection.end);
    }

    Settings settings_ = StandardSettings();
    Text mask_;
    Text codes_;
    std::unique_ptr<MemoryControl> control_;
};

ROW_TEST(ModernPaste, ShowsOrRefuses)
{
    EditInstance& edit = control_->Record();
    const std::string before = Shown();
    const Text text = FromAscii(GetParam().text);
    EXPECT_EQ(Told(modern::KindOf(edit).paste(edit, edit.editor->Look(), text)), GetParam().expected);
    EXPECT_EQ(Shown(), before) << "a judgement changes nothing";
}

// The same by the clipboard: a refused text leaves everything as it was, and is told once.
ROW_TEST(ModernPaste, OfTheClipboardDoesTheSame)
{
    const std::string before = Shown();
    control_->Edit().ForgetCounts();
    control_->Edit().SetClipboard(FromAscii(GetParam().text));
    control_->Paste();
    const Rejection& rejected = control_->Edit().LastRejected();
    if (control_->Edit().Count(FieldEvent::Rejected) == 0) {
        EXPECT_EQ(Shown(), GetParam().expected);
        return;
    }
    EXPECT_EQ(control_->Edit().Count(FieldEvent::Rejected), 1);
    EXPECT_EQ(kReasons[rejected.reason] + (" " + std::to_string(rejected.position)), GetParam().expected);
    EXPECT_EQ(Shown(), before);
    EXPECT_EQ(control_->Edit().Count(FieldEvent::Change), 0);
    EXPECT_FALSE(control_->Edit().IsModified());
}

// ---- dates

constexpr PasteSetup kUsDate = {"MM/DD/YYYY", DT_DATE};
constexpr PasteSetup kShortDate = {"MM/DD/YY", DT_DATE};
constexpr PasteSetup kDayFirst = {"DD.MM.YYYY", DT_DATE, nullptr, German};
constexpr PasteSetup kYearFirst = {"YYYY/MM/DD", DT_DATE};
constexpr PasteSetup kYearDayMonth = {"YYYY/DD/MM", DT_DATE};
constexpr PasteSetup kNamed = {"MMM-DD-YYYY", DT_DATE};
constexpr PasteSetup kDayNamed = {"DD MMM YY", DT_DATE};
constexpr PasteSetup kFrenchNamed = {"DD MMM YYYY", DT_DATE, nullptr, French};
constexpr PasteSetup kDayOfYear = {"JJJ/YYYY", DT_DATE};
constexpr PasteSetup kYearOfDay = {"YYYY.JJJ", DT_DATE};
constexpr PasteSetup kMonthOnly = {"MM/YYYY", DT_DATE};
constexpr PasteSetup kShortMonth = {"MM/YY", DT_DATE};
constexpr PasteSetup kYearOnly = {"YYYY", DT_DATE};
constexpr PasteSetup kFramed = {"[MM/DD/YY]", DT_DATE};
constexpr PasteSetup kColons = {"MM:DD:YYYY", DT_DATE};
constexpr PasteSetup kTwoMarks = {"MM -- DD -- YYYY", DT_DATE};
constexpr PasteSetup kNoted = {"MM/DD/YYYY XX", DT_DATE};
constexpr PasteSetup kBlanks = {"DD MM YYYY", DT_DATE};

// clang-format off
const PasteRow kDates[] = {
    // what the field itself shows
    {kUsDate, nullptr, "07/04/2024",       "07/04/2024|"},
    {kUsDate, "12/3|1/1999", "07/04/2024", "07/04/2024|"},
    {kUsDate, "[12/31]/1999", "07/04/2024", "07/04/2024|"},
    {kUsDate, "12/3|1/1999", "  /  /    ", "  /  /    |"},
    {kBlanks, "31| 12 1999", "          ", "          |"},
    {kUsDate, nullptr, "  /04/2024",       "does not fit 2"},
    {kUsDate, nullptr, "07/  /2024",       "does not fit 2"},
    {kUsDate, nullptr, "07/04/    ",       "does not fit 5"},
    {kUsDate, nullptr, "7 /4 /2024",       "07/04/2024|"},
    {kFramed, nullptr, "[07/04/24]",       "[07/04/24|]"},
    {kFramed, nullptr, "07/04/24",         "[07/04/24|]"},
    {kFramed, nullptr, "[7/4/24",          "[07/04/24|]"},
    {kFramed, nullptr, "(07/04/24)",       "does not fit 0"},
    {kColons, nullptr, "07:04:2024",       "07:04:2024|"},
    {kColons, nullptr, "7:4:24",           "07:04:2024|"},
    {kTwoMarks, nullptr, "07 -- 04 -- 2024", "07 -- 04 -- 2024|"},
    {kTwoMarks, nullptr, "7--4--2024",     "07 -- 04 -- 2024|"},
    {kNoted, nullptr, "07/04/2024 ab",     "07/04/2024 ab|"},
    {kNoted, nullptr, "7/4/2024",          "07/04/2024   |"},
    {kNamed, nullptr, "JUL-04-2024",       "JUL-04-2024|"},
    {kNamed, nullptr, "jul-04-2024",       "JUL-04-2024|"},
    {kFrenchNamed, nullptr, "04 jui 2024", "04 jui 2024|"},
    // canonical, under every mask
    {kUsDate, nullptr, "2024-07-04",       "07/04/2024|"},
    {kUsDate, nullptr, "  2024-07-04  ",   "07/04/2024|"},
    {kShortDate, nullptr, "2024-07-04",    "07/04/24|"},
    {kDayFirst, nullptr, "2024-07-04",     "04.07.2024|"},
    {kYearFirst, nullptr, "2024-07-04",    "2024/07/04|"},
    {kYearDayMonth, nullptr, "2024-07-04", "2024/04/07|"},
    {kNamed, nullptr, "2024-07-04",        "JUL-04-2024|"},
    {kDayOfYear, nullptr, "2024-07-04",    "186/2024|"},
    {kMonthOnly, nullptr, "2024-07-01",    "07/2024|"},
    {kYearOnly, nullptr, "2024-01-01",     "2024|"},
    {kUsDate, nullptr, "0001-01-01",       "01/01/0001|"},
    {kUsDate, nullptr, "9999-12-31",       "12/31/9999|"},
    {kUsDate, nullptr, "2024-02-29",       "02/29/2024|"},
    {kUsDate, nullptr, "2023-02-29",       "does not exist 8"},
    {kUsDate, nullptr, "2024-13-01",       "does not exist 5"},
    {kUsDate, nullptr, "0000-01-01",       "does not exist 0"},
    {kYearDayMonth, nullptr, "2024-13-01", "2024/13/01|"},
    // what the mask would show as another date
    {kShortDate, nullptr, "1949-12-31",    "does not fit 0"},
    {kShortDate, nullptr, "1950-01-01",    "01/01/50|"},
    {kShortDate, nullptr, "2049-12-31",    "12/31/49|"},
    {kShortDate, nullptr, "2050-01-01",    "does not fit 0"},
    {kShortDate, nullptr, "7/4/1905",      "does not fit 4"},
    {kShortDate, nullptr, " 7/4/1905",     "does not fit 5"},
    {kMonthOnly, nullptr, "2024-07-04",    "does not fit 8"},
    {kYearOnly, nullptr, "2024-07-01",     "does not fit 5"},
    // in the mask's order, with any separators
    {kUsDate, nullptr, "7/4/2024",         "07/04/2024|"},
    {kUsDate, nullptr, "7-4-2024",         "07/04/2024|"},
    {kUsDate, nullptr, "7.4.2024",         "07/04/2024|"},
    {kUsDate, nullptr, "7 4 2024",         "07/04/2024|"},
    {kUsDate, nullptr, "7, 4, 2024",       "07/04/2024|"},
    {kUsDate, nullptr, "7 / 4 / 2024",     "07/04/2024|"},
    {kUsDate, nullptr, "07\t04\t2024",     "07/04/2024|"},
    {kUsDate, nullptr, "07/4-2024",        "07/04/2024|"},
    {kUsDate, nullptr, "7//4/2024",        "does not fit 1"},
    {kUsDate, nullptr, "7/ /4/2024",       "does not fit 1"},
    {kUsDate, nullptr, "7:4:2024",         "does not fit 1"},
    {kUsDate, nullptr, "7+4+2024",         "does not fit 1"},
    {kUsDate, nullptr, "12:30:45",         "does not fit 2"},
    {kUsDate, nullptr, "/7/4/2024",        "does not fit 0"},
    {kUsDate, nullptr, "-7/4/2024",        "does not fit 0"},
    {kUsDate, nullptr, "7/4/2024/",        "does not fit 8"},
    {kUsDate, nullptr, "7/4",              "does not fit 3"},
    {kUsDate, nullptr, "7",                "does not fit 1"},
    {kUsDate, nullptr, "7/2024",           "does not fit 2"},
    {kUsDate, nullptr, "7/4/2024/5",       "does not fit 9"},
    {kUsDate, nullptr, "07/004/2024",      "does not fit 3"},
    {kUsDate, nullptr, "7/4/20245",        "does not fit 4"},
    {kUsDate, nullptr, "7/4/024",          "does not fit 4"},
    {kUsDate, nullptr, "7/4/4",            "does not fit 4"},
    {kUsDate, nullptr, "13/4/2024",        "does not exist 0"},
    {kUsDate, nullptr, "0/4/2024",         "does not exist 0"},
    {kUsDate, nullptr, "7/32/2024",        "does not exist 2"},
    {kUsDate, nullptr, "7/0/2024",         "does not exist 2"},
    {kUsDate, nullptr, "2/29/2024",        "02/29/2024|"},
    {kUsDate, nullptr, "2/29/2023",        "does not exist 2"},
    {kUsDate, nullptr, "4/31/2024",        "does not exist 2"},
    {kUsDate, nullptr, "2/29/1900",        "does not exist 2"},
    {kUsDate, nullptr, "2/29/2000",        "02/29/2000|"},
    {kDayFirst, nullptr, "4.7.2024",       "04.07.2024|"},
    {kDayFirst, nullptr, "4/7/2024",       "04.07.2024|"},
    {kDayFirst, nullptr, "31.04.2024",     "does not exist 0"},
    {kDayFirst, nullptr, "7/13/2024",      "does not exist 2"},
    {kYearDayMonth, nullptr, "2024/4/7",   "2024/04/07|"},
    {kYearDayMonth, nullptr, "2024.04.07", "2024/04/07|"},
    {kYearFirst, nullptr, "24/7/4",        "2024/07/04|"},
    {kMonthOnly, nullptr, "7/2024",        "07/2024|"},
    {kMonthOnly, nullptr, "7/24",          "07/2024|"},
    {kMonthOnly, nullptr, "7/4/2024",      "does not fit 2"},
    {kShortMonth, nullptr, "7/24",         "07/24|"},
    {kYearOnly, nullptr, "2024",           "2024|"},
    {kYearOnly, nullptr, "24",             "2024|"},
    {kYearOnly, nullptr, "224",            "does not fit 0"},
    {kNamed, nullptr, "7/4/2024",          "JUL-04-2024|"},
    // two digits of a year
    {kUsDate, nullptr, "7/4/00",           "07/04/2000|"},
    {kUsDate, nullptr, "7/4/49",           "07/04/2049|"},
    {kUsDate, nullptr, "7/4/50",           "07/04/1950|"},
    {kUsDate, nullptr, "7/4/99",           "07/04/1999|"},
    {kShortDate, nullptr, "7/4/49",        "07/04/49|"},
    {kShortDate, nullptr, "7/4/2024",      "07/04/24|"},
    {kUsDate, nullptr, "2/29/00",          "02/29/2000|"},
    {kUsDate, nullptr, "2/29/99",          "does not exist 2"},
    // the year first, with four digits
    {kUsDate, nullptr, "2024/7/4",         "07/04/2024|"},
    {kUsDate, nullptr, "2024.07.04",       "07/04/2024|"},
    {kUsDate, nullptr, "2024 7 4",         "07/04/2024|"},
    {kDayFirst, nullptr, "2024/7/4",       "04.07.2024|"},
    {kNamed, nullptr, "2024/7/4",          "JUL-04-2024|"},
    {kUsDate, nullptr, "2024/7",           "does not fit 6"},
    {kUsDate, nullptr, "2024/30/2",        "does not exist 5"},
    {kMonthOnly, nullptr, "2024-07",       "07/2024|"},
    {kShortMonth, nullptr, "2024-07",      "07/24|"},
    {kDayOfYear, nullptr, "2024/186",      "186/2024|"},
    {kDayOfYear, nullptr, "2024/7/4",      "186/2024|"},
    {kYearOfDay, nullptr, "2024/7/4",      "2024.186|"},
    {kYearOfDay, nullptr, "2024.186",      "2024.186|"},
    {kYearOfDay, nullptr, "2024/7",        "2024.007|"},
    {kYearOfDay, nullptr, "2024-04-00",    "does not exist 8"},
    {kUsDate, nullptr, "07/04/2024-00",    "does not fit 11"},
    {kUsDate, nullptr, "07/04/2024 00",    "does not fit 11"},
    {kUsDate, nullptr, "07/04/2024 00:00", "07/04/2024|"},
    // months by their names
    {kUsDate, nullptr, "July 4, 2024",     "07/04/2024|"},
    {kUsDate, nullptr, "Jul 4 2024",       "07/04/2024|"},
    {kUsDate, nullptr, "4 jul 2024",       "07/04/2024|"},
    {kUsDate, nullptr, "4JUL2024",         "07/04/2024|"},
    {kUsDate, nullptr, "04-Jul-24",        "07/04/2024|"},
    {kUsDate, nullptr, "2024 Jul 4",       "07/04/2024|"},
    {kUsDate, nullptr, "2024-JUL-04",      "07/04/2024|"},
    {kUsDate, nullptr, "4 2024 July",      "07/04/2024|"},
    {kUsDate, nullptr, "4. July 2024",     "07/04/2024|"},
    {kUsDate, nullptr, "Jul. 4, 2024",     "07/04/2024|"},
    {kUsDate, nullptr, "Jul 4",            "does not fit 5"},
    {kUsDate, nullptr, "Jul 2024",         "does not fit 8"},
    {kUsDate, nullptr, "Jul",              "does not fit 3"},
    {kUsDate, nullptr, "Jul Jul 2024",     "does not fit 4"},
    {kUsDate, nullptr, "Ju 4 2024",        "does not fit 0"},
    {kUsDate, nullptr, "Foo 4 2024",       "does not fit 0"},
    {kUsDate, nullptr, "4 Jul 2024 Foo",   "does not fit 11"},
    {kUsDate, nullptr, "Feb 29, 2023",     "does not exist 4"},
    {kUsDate, nullptr, "July 4, 2024, 5",  "does not fit 14"},
    {kYearFirst, nullptr, "4 July 2024",   "2024/07/04|"},
    {kYearFirst, nullptr, "24-Jul-04",     "2024/07/04|"},
    {kNamed, nullptr, "4 July 2024",       "JUL-04-2024|"},
    {kNamed, nullptr, "march 5, 2024",     "MAR-05-2024|"},
    {kDayNamed, nullptr, "July 4, 2024",   "04 JUL 24|"},
    {kDayNamed, nullptr, "July 4, 1924",   "does not fit 8"},
    {kMonthOnly, nullptr, "July 2024",     "07/2024|"},
    {kMonthOnly, nullptr, "2024 July",     "07/2024|"},
    {kDayOfYear, nullptr, "July 4, 2024",  "186/2024|"},
    {kYearOnly, nullptr, "July 2024",      "does not fit 0"},
    {kDayFirst, nullptr, "5. Mrz 2024",    "05.03.2024|"},
    {kDayFirst, nullptr, "5. Dezember 2024", "05.12.2024|"},
    {kDayFirst, nullptr, "5. Mai 2024",    "05.05.2024|"},
    {kDayFirst, nullptr, "5. May 2024",    "does not fit 3"},
    {kFrenchNamed, nullptr, "4 juillet 2024", "does not fit 2"},
    {kFrenchNamed, nullptr, "4 juin 2024", "04 jui 2024|"},
    {kFrenchNamed, nullptr, "4 jui 2024",  "in doubt 2"},
    {kFrenchNamed, nullptr, "4 fevrier 2024", "04 fev 2024|"},
    {kFrenchNamed, nullptr, "4 fevr. 2024", "04 fev 2024|"},
    // digits alone
    {kUsDate, nullptr, "07042024",         "07/04/2024|"},
    {kUsDate, nullptr, "13042024",         "does not exist 0"},
    {kUsDate, nullptr, "02302024",         "does not exist 2"},
    {kUsDate, nullptr, "070424",           "does not fit 0"},
    {kShortDate, nullptr, "070424",        "07/04/24|"},
    {kShortDate, nullptr, "07042024",      "does not fit 0"},
    {kDayFirst, nullptr, "04072024",       "04.07.2024|"},
    {kYearFirst, nullptr, "20240704",      "2024/07/04|"},
    {kNamed, nullptr, "07042024",          "JUL-04-2024|"},
    {kMonthOnly, nullptr, "072024",        "07/2024|"},
    {kShortMonth, nullptr, "0724",         "07/24|"},
    {kDayOfYear, nullptr, "1862024",       "186/2024|"},
    {kDayOfYear, nullptr, "186 2024",      "186/2024|"},
    {kDayOfYear, nullptr, "366/2023",      "does not exist 0"},
    {kDayOfYear, nullptr, "366/2024",      "366/2024|"},
    {kDayOfYear, nullptr, "367/2024",      "does not exist 0"},
    {kDayOfYear, nullptr, "7/2024",        "007/2024|"},
    // with a time, and what is no date at all
    {kUsDate, nullptr, "2024-07-04 00:00:00.000", "07/04/2024|"},
    {kUsDate, nullptr, "7/4/2024 12:00 AM", "07/04/2024|"},
    {kUsDate, nullptr, "7/4/2024 13:30",   "does not fit 9"},
    {kUsDate, nullptr, "2024-07-04T00:01", "does not fit 14"},
    {kUsDate, nullptr, "13:30",            "does not exist 0"},
    {kUsDate, nullptr, "12:30",            "does not fit 2"},
    {kUsDate, nullptr, "today",            "does not fit 0"},
    {kUsDate, nullptr, "4th July 2024",    "does not fit 1"},
    {kUsDate, nullptr, "   ",              "does not fit 3"},
    {kUsDate, nullptr, "7/4/2024\x01",     "does not fit 8"},
};
TEST_ROWS(Dates, ModernPaste, kDates);
// clang-format on

// ---- times

constexpr PasteSetup kTime = {"HH:MM", DT_TIME};
constexpr PasteSetup kSeconds = {"HH:MM:SS", DT_TIME};
constexpr PasteSetup kFraction = {"HH:MM:SS.FFF", DT_TIME};
constexpr PasteSetup kHalves = {"HH:MM AM/PM", DT_TIME};
constexpr PasteSetup kDottedHalves = {"HH:MM AM/PM", DT_TIME, nullptr, Dotted};
constexpr PasteSetup kHalfFirst = {"AM/PM HH:MM", DT_TIME};
constexpr PasteSetup kAlike = {"HH:MM AM/PM", DT_TIME, nullptr, AlikeInP};
constexpr PasteSetup kSame = {"HH:MM AM/PM", DT_TIME, nullptr, SameForBoth};
constexpr PasteSetup kHours = {"HH", DT_TIME};
constexpr PasteSetup kGermanTime = {"HH.MM", DT_TIME, nullptr, German};
constexpr PasteSetup kHourWord = {"HHuMM", DT_TIME};
constexpr PasteSetup kMinutesFirst = {"MM:HH", DT_TIME};

// clang-format off
const PasteRow kTimes[] = {
    {kTime, nullptr, "13:30",             "13:30|"},
    {kTime, "08:|15", "13:30",            "13:30|"},
    {kTime, "08:|15", "  :  ",            "  :  |"},
    {kTime, nullptr, "9:05",              "09:05|"},
    {kTime, nullptr, "9:5",               "09:05|"},
    {kTime, nullptr, "0:00",              "00:00|"},
    {kTime, nullptr, "13.30",             "13:30|"},
    {kTime, nullptr, "13 30",             "13:30|"},
    {kTime, nullptr, "13-30",             "13:30|"},
    {kTime, nullptr, "1330",              "13:30|"},
    {kTime, nullptr, "133000",            "does not fit 0"},
    {kTime, nullptr, "130",               "does not fit 0"},
    {kTime, nullptr, "13",                "does not fit 2"},
    {kTime, nullptr, "24:00",             "does not exist 0"},
    {kTime, nullptr, "13:60",             "does not exist 3"},
    {kTime, nullptr, "13:30:60",          "does not exist 6"},
    {kTime, nullptr, "13:30:45",          "13:30|"},
    {kTime, nullptr, "13:30:45.5",        "13:30|"},
    {kTime, nullptr, "13:30:45:500000",   "13:30|"},
    {kTime, nullptr, "13:30:45.1234567",  "13:30|"},
    {kTime, nullptr, "13:30:45.5.5",      "does not fit 10"},
    {kTime, nullptr, "13::30",            "does not fit 2"},
    {kTime, nullptr, "13:",               "does not fit 2"},
    {kTime, nullptr, ":30",               "does not fit 0"},
    {kTime, nullptr, "13:30 PM",          "does not exist 0"},
    {kTime, nullptr, "1:30 PM",           "13:30|"},
    {kTime, nullptr, "1:30PM",            "13:30|"},
    {kTime, nullptr, "1:30 am",           "01:30|"},
    {kTime, nullptr, "12:00 AM",          "00:00|"},
    {kTime, nullptr, "12:00 PM",          "12:00|"},
    {kTime, nullptr, "12:30 p",           "12:30|"},
    {kTime, nullptr, "12:30a",            "00:30|"},
    {kTime, nullptr, "PM 1:30",           "13:30|"},
    {kTime, nullptr, "1:30 PM PM",        "does not fit 8"},
    {kTime, nullptr, "PM 1:30 PM",        "does not fit 8"},
    {kTime, nullptr, "0:30 AM",           "does not exist 0"},
    {kTime, nullptr, "1 PM",              "13:00|"},
    {kTime, nullptr, "1:30 XM",           "does not fit 5"},
    {kTime, nullptr, "1:30:15 p.m.",      "13:30|"},
    {kTime, nullptr, "2024-07-04 13:30",  "does not fit 0"},
    {kTime, nullptr, "7/4/2024",          "does not fit 4"},
    {kTime, nullptr, "T13:30",            "does not fit 0"},
    {kTime, nullptr, "13:30Z",            "does not fit 5"},
    {kTime, nullptr, "13:30+01:00",       "does not fit 5"},
    {kTime, nullptr, "13:30-05:00",       "does not fit 5"},
    {kSeconds, nullptr, "13:30:45",       "13:30:45|"},
    {kSeconds, nullptr, "13:30",          "13:30:00|"},
    {kSeconds, nullptr, "1:30 PM",        "13:30:00|"},
    {kSeconds, nullptr, "133045",         "13:30:45|"},
    {kSeconds, nullptr, "1330",           "does not fit 0"},
    {kSeconds, nullptr, "13:30:45.999",   "13:30:45|"},
    {kFraction, nullptr, "13:30:45.5",    "13:30:45.500|"},
    {kFraction, nullptr, "13:30:45:000123", "13:30:45.000|"},
    {kFraction, nullptr, "13:30:45,999999", "13:30:45.999|"},
    {kFraction, nullptr, "13:30:45",      "13:30:45.000|"},
    {kFraction, nullptr, "133045123",     "13:30:45.123|"},
    {kFraction, nullptr, "13:30:45.123456789", "13:30:45.123|"},
    {kFraction, nullptr, "13:30:45.1234567890", "does not fit 9"},
    {kHalves, nullptr, "01:30 PM",        "01:30 PM|"},
    {kHalves, nullptr, "13:30",           "01:30 PM|"},
    {kHalves, nullptr, "00:30",           "12:30 AM|"},
    {kHalves, nullptr, "12:30",           "12:30 PM|"},
    {kHalves, nullptr, "1:30",            "01:30 AM|"},
    {kHalves, "12:00 PM|", "1:30",        "01:30 AM|"},
    {kHalves, nullptr, "1:30p",           "01:30 PM|"},
    {kHalves, nullptr, "0130PM",          "01:30 PM|"},
    {kHalves, nullptr, "1330",            "01:30 PM|"},
    {kHalves, nullptr, "01:30   ",        "01:30 AM|"},
    {kHalves, "12:00 PM|", "  :     ",    "  :     |"},
    {kHalves, nullptr, "13:30 AM",        "does not exist 0"},
    {kDottedHalves, nullptr, "1:30 p.m.", "01:30 p.m.|"},
    {kDottedHalves, nullptr, "1:30 PM",   "01:30 p.m.|"},
    {kDottedHalves, nullptr, "13:30",     "01:30 p.m.|"},
    {kHalfFirst, nullptr, "PM 01:30",     "PM 01:30|"},
    {kHalfFirst, nullptr, "13:30",        "PM 01:30|"},
    {kHalfFirst, nullptr, "1:30 pm",      "PM 01:30|"},
    {kAlike, nullptr, "1:30 po",          "01:30 po|"},
    {kAlike, nullptr, "1:30 PRI",         "01:30 pri|"},
    {kAlike, nullptr, "1:30 PM",          "01:30 po|"},
    {kAlike, nullptr, "1:30 p",           "does not fit 5"},
    {kAlike, nullptr, "1:30 a",           "does not fit 5"},
    {kSame, nullptr, "1:30 h",            "does not fit 5"},
    {kHours, nullptr, "13",               "13|"},
    {kHours, nullptr, "9",                "09|"},
    {kHours, nullptr, "13:00",            "13|"},
    {kHours, nullptr, "13:30",            "does not fit 3"},
    {kHours, nullptr, "1 PM",             "13|"},
    {kGermanTime, nullptr, "9.05",        "09.05|"},
    {kGermanTime, nullptr, "1:05 PM",     "13.05|"},
    {kGermanTime, nullptr, "1:05p",       "13.05|"},
    {kHourWord, nullptr, "13u30",         "13u30|"},
    {kHourWord, nullptr, "9U05",          "09u05|"},
    {kHourWord, nullptr, "9 u 05",        "09u05|"},
    {kHourWord, nullptr, "13:30",         "13u30|"},
    {kHourWord, nullptr, "13x30",         "does not fit 2"},
    {kMinutesFirst, nullptr, "13:30",     "30:13|"},
    {kMinutesFirst, nullptr, "30.13",     "30:13|"},
};
TEST_ROWS(Times, ModernPaste, kTimes);
// clang-format on

// ---- dates with times

constexpr PasteSetup kBoth = {"MM/DD/YYYY HH:MM", DT_DATETIME};
constexpr PasteSetup kBothHalves = {"MM/DD/YY HH:MM AM/PM", DT_DATETIME};
constexpr PasteSetup kTimeFirst = {"HH:MM JJJ/YYYY", DT_DATETIME};
constexpr PasteSetup kNamedBoth = {"DD-MMM-YYYY HH:MM:SS", DT_DATETIME};
constexpr PasteSetup kColonBoth = {"MM:DD:YYYY HH:MM", DT_DATETIME};
constexpr PasteSetup kPointed = {"DD.MM.YYYY HH.MM", DT_DATETIME, nullptr, German};
constexpr PasteSetup kPointedTimeFirst = {"HH.MM JJJ.YYYY", DT_DATETIME, nullptr, German};
constexpr PasteSetup kDateOfBoth = {"MM/DD/YYYY", DT_DATETIME};
constexpr PasteSetup kHalfBefore = {"AM/PM MM/DD/YYYY HH:MM", DT_DATETIME, nullptr, Dotted};
constexpr PasteSetup kFree = {"XXX", DT_DATETIME};
constexpr PasteSetup kFreeTime = {"XXX", DT_TIME};
constexpr PasteSetup kAtWord = {"MM/DD/YYYY at HH:MM", DT_DATETIME};

// clang-format off
const PasteRow kDateTimes[] = {
    {kBoth, nullptr, "07/04/2024 13:30",          "07/04/2024 13:30|"},
    {kBoth, "12/31/1999| 23:59", "  /  /       :  ", "  /  /       :  |"},
    {kBoth, nullptr, "2024-07-04 13:30",          "07/04/2024 13:30|"},
    {kBoth, nullptr, "2024-07-04T13:30",          "07/04/2024 13:30|"},
    {kBoth, nullptr, "2024-07-04t13:30:15",       "07/04/2024 13:30|"},
    {kBoth, nullptr, "2024-07-04 13:30:15:123456", "07/04/2024 13:30|"},
    {kBoth, nullptr, "2024-07-04T13:30Z",         "does not fit 16"},
    {kBoth, nullptr, "2024-07-04-13:30",          "does not fit 11"},
    {kBoth, nullptr, "2024-07-04 T 13:30",        "does not fit 12"},
    {kBoth, nullptr, "7/4/2024 1:30 PM",          "07/04/2024 13:30|"},
    {kBoth, nullptr, "7/4/2024, 1:30:15 PM",      "07/04/2024 13:30|"},
    {kBoth, nullptr, "7/4/24 9:05",               "07/04/2024 09:05|"},
    {kBoth, nullptr, "July 4, 2024 1:30p",        "07/04/2024 13:30|"},
    {kBoth, nullptr, "4 Jul 24 1330",             "07/04/2024 13:30|"},
    {kBoth, nullptr, "2024/7/4 13:30",            "07/04/2024 13:30|"},
    {kBoth, nullptr, "070420241330",              "07/04/2024 13:30|"},
    {kBoth, nullptr, "07042024 1330",             "07/04/2024 13:30|"},
    {kBoth, nullptr, "07042024T1330",             "07/04/2024 13:30|"},
    {kBoth, nullptr, "070420240130PM",            "07/04/2024 13:30|"},
    {kBoth, nullptr, "1:30 PM 7/4/2024",          "07/04/2024 13:30|"},
    {kBoth, nullptr, "13:30 2024-07-04",          "07/04/2024 13:30|"},
    {kBoth, nullptr, "13:30:15, 4 July 2024",     "07/04/2024 13:30|"},
    {kBoth, nullptr, "7/4/2024 24:00",            "does not exist 9"},
    {kBoth, nullptr, "2/30/2024 13:30",           "does not exist 2"},
    {kBoth, nullptr, "7/4/2024:13:30",            "does not fit 8"},
    {kBoth, nullptr, "7/4/2024 13",               "does not fit 11"},
    {kBoth, nullptr, "7/4/2024 13:30 5",          "does not fit 15"},
    {kBoth, nullptr, "7/4/2024PM 1:30",           "does not fit 8"},
    // a date alone, a time alone
    {kBoth, nullptr, "7/4/2024",                  "07/04/2024   :  |"},
    {kBoth, "12/31/1999 23:5|9", "7/4/2024",      "07/04/2024 23:59|"},
    {kBoth, "[12/31/1999 23:59]", "2024-07-04",   "07/04/2024 23:59|"},
    {kBoth, "12/31/1999 23:5|9", "07042024",      "07/04/2024 23:59|"},
    {kBoth, "12/31/1999 23:|  ", "7/4/2024",      "07/04/2024 23:  |"},
    {kBoth, "12/31/1999 23:5|9", "07/04/2024   :  ", "07/04/2024 23:59|"},
    {kBoth, "12/31/1999 23:5|9", "02/30/2024   :  ", "does not exist 0"},
    {kBoth, "junk|", "7/4/2024",                  "07/04/2024   :  |"},
    {kBoth, "12/31/1999 23:5|9", "13:30",         "12/31/1999 13:30|"},
    {kBoth, "12/31/1999 23:5|9", "1 pm",          "12/31/1999 13:00|"},
    {kBoth, "12/31/1999 23:5|9", "  /  /     13:30", "12/31/1999 13:30|"},
    {kBoth, nullptr, "13:30",                     "  /  /     13:30|"},
    {kBoth, nullptr, "12:30:45",                  "  /  /     12:30|"},
    {kBoth, nullptr, "1330",                      "does not fit 4"},
    {kBoth, nullptr, "  /04/2024 13:30",          "does not fit 2"},
    {kBoth, nullptr, "07/04/2024 13:  ",          "does not fit 13"},
    {kBoth, nullptr, "7/4 13:30",                 "does not fit 6"},
    {kBoth, nullptr, "4 July 13:30",              "does not fit 9"},
    // masks of other orders
    {kBothHalves, nullptr, "07/04/24 01:30 PM",   "07/04/24 01:30 PM|"},
    {kBothHalves, nullptr, "2024-07-04 13:30",    "07/04/24 01:30 PM|"},
    {kBothHalves, nullptr, "2024-07-04 01:30 PM", "07/04/24 01:30 PM|"},
    {kBothHalves, nullptr, "1949-07-04 13:30",    "does not fit 0"},
    {kBothHalves, "12/31/99 11:59 PM|", "7/4/24", "07/04/24 11:59 PM|"},
    {kBothHalves, "12/31/99 |  :     ", "7/4/24", "07/04/24   :     |"},
    {kBothHalves, "12/31/99 11:59 PM|", "0:15",   "12/31/99 12:15 AM|"},
    {kTimeFirst, nullptr, "13:30 186/2024",       "13:30 186/2024|"},
    {kTimeFirst, nullptr, "9:05 186/24",          "09:05 186/2024|"},
    {kTimeFirst, nullptr, "2024-07-04 13:30",     "13:30 186/2024|"},
    {kTimeFirst, nullptr, "July 4, 2024 1:30 PM", "13:30 186/2024|"},
    {kTimeFirst, nullptr, "186/2024 1:30 PM",     "13:30 186/2024|"},
    {kTimeFirst, nullptr, "13301862024",          "13:30 186/2024|"},
    {kTimeFirst, "23:59 |365/1999", "13:30",      "13:30 365/1999|"},
    {kTimeFirst, "23:59 |365/1999", "2024-07-04", "23:59 186/2024|"},
    {kTimeFirst, "23:59 |365/1999", "July 4, 2024", "23:59 186/2024|"},
    {kPointed, nullptr, "4.7.2024 9.05",          "04.07.2024 09.05|"},
    {kPointed, nullptr, "4.7.24 9:05",            "04.07.2024 09.05|"},
    {kPointedTimeFirst, nullptr, "9.05 7.2024",   "09.05 007.2024|"},
    {kPointedTimeFirst, nullptr, "9:05 186.2024", "09.05 186.2024|"},
    {kPointedTimeFirst, nullptr, "186.2024 9:05", "09.05 186.2024|"},
    {kNamedBoth, nullptr, "July 4, 2024 13:30",   "04-JUL-2024 13:30:00|"},
    {kNamedBoth, nullptr, "2024-07-04 13:30:15",  "04-JUL-2024 13:30:15|"},
    {kNamedBoth, nullptr, "4-jul-2024 1:30:15 PM", "04-JUL-2024 13:30:15|"},
    {kColonBoth, nullptr, "7:4:2024 13:30",       "07:04:2024 13:30|"},
    {kDateOfBoth, nullptr, "7/4/2024",            "07/04/2024|"},
    {kDateOfBoth, nullptr, "7/4/2024 0:00",       "07/04/2024|"},
    {kDateOfBoth, nullptr, "7/4/2024 13:30",      "does not fit 9"},
    {kHalfBefore, nullptr, "2024-07-04 13:30",    "p.m. 07/04/2024 01:30|"},
    {kHalfBefore, "p.m. 07/04/2024 |01:30", "1/2/2023", "p.m. 01/02/2023 01:30|"},
    {kHalfBefore, "p.m. 07/04/2024 |01:30", "13:45", "p.m. 07/04/2024 01:45|"},
    {kHalfBefore, nullptr, "1:30 P.M. 7/4/2024",  "p.m. 07/04/2024 01:30|"},
    {kFree, nullptr, "7/4/2024",                  "does not fit 0"},
    {kFree, nullptr, "13:30",                     "does not fit 0"},
    {kFreeTime, nullptr, "13:30",                 "does not fit 0"},
    {kAtWord, nullptr, "7/4/2024 at 13:30",       "07/04/2024 at 13:30|"},
    {kAtWord, nullptr, "7/4/2024 13:30",          "07/04/2024 at 13:30|"},
    {kAtWord, nullptr, "7/4/2024 AT 1:30 PM",     "07/04/2024 at 13:30|"},
};
TEST_ROWS(DateTimes, ModernPaste, kDateTimes);
// clang-format on

// ---- strings

constexpr PasteSetup kPhone = {"(###) ###-####", DT_STRING};
constexpr PasteSetup kCalled = {"+## (###) #####", DT_STRING};
constexpr PasteSetup kZip = {"#####-####", DT_STRING};
constexpr PasteSetup kWord = {"AAAAA", DT_STRING};
constexpr PasteSetup kAnything = {"XXXXX", DT_STRING};
constexpr PasteSetup kPlate = {"!!-###", DT_STRING};
constexpr PasteSetup kSmall = {"^^^/^^", DT_STRING};
constexpr PasteSetup kClock = {"##:##", DT_STRING};
constexpr PasteSetup kKey = {"##:XX", DT_STRING};
constexpr PasteSetup kNumbered = {"No. ####", DT_STRING};
constexpr PasteSetup kAreaAndName = {"(###) XXXX", DT_STRING};
constexpr PasteSetup kDigitLiteral = {"1-###-##", DT_STRING};
constexpr PasteSetup kDigitBetween = {"##-1-##", DT_STRING};
constexpr PasteSetup kBehind = {"## kg", DT_STRING};

// clang-format off
const PasteRow kStrings[] = {
    // a phone number as people write it
    {kPhone, nullptr, "5551234567",              "(555) 123-4567|"},
    {kPhone, nullptr, "555-123-4567",            "(555) 123-4567|"},
    {kPhone, nullptr, "(555) 123-4567",          "(555) 123-4567|"},
    {kPhone, nullptr, "(555)123-4567",           "(555) 123-4567|"},
    {kPhone, nullptr, "555.123.4567",            "(555) 123-4567|"},
    {kPhone, nullptr, "555/123 4567",            "(555) 123-4567|"},
    {kPhone, nullptr, "555 123 4567",            "(555) 123-4567|"},
    {kPhone, nullptr, " 555 123 4567 ",          "(555) 123-4567|"},
    {kPhone, nullptr, "5-5-5-1-2-3-4-5-6-7",     "(555) 123-4567|"},
    {kPhone, nullptr, "555",                     "(555) |   -    "},
    {kPhone, nullptr, "(555",                    "(555) |   -    "},
    {kPhone, nullptr, "(555)",                   "(555) |   -    "},
    {kPhone, nullptr, "55",                      "(55| )    -    "},
    {kPhone, nullptr, "555123",                  "(555) 123-|    "},
    {kPhone, nullptr, "(555)    -4567",          "(555)    -4567|"},
    {kPhone, "(555) 123-456|7", "(   )    -    ", "(   )    -    |"},
    {kPhone, nullptr, "555123456",               "(555) 123-456| "},
    {kPhone, nullptr, "55512345678",             "does not fit 10"},
    {kPhone, nullptr, "(555) 123-4567 x1",       "does not fit 15"},
    {kPhone, nullptr, "555-CALL",                "wrong kind 4"},
    {kPhone, nullptr, "(abc) 123-4567",          "wrong kind 1"},
    {kPhone, nullptr, "+1 555 123 4567",         "wrong kind 0"},
    {kPhone, nullptr, "555\t123",                "wrong kind 3"},
    {kPhone, nullptr, "555\n123",                "wrong kind 3"},
    {kPhone, nullptr, "---",                     "(|   )    -    "},
    // at the caret and over a selection
    {kPhone, "(555) |123-4567", "999",           "(555) 999-|4567"},
    {kPhone, "(555) |123-4567", "999-8888",      "(555) 999-8888|"},
    {kPhone, "(555) |123-4567", "99988887",      "does not fit 7"},
    {kPhone, "(555) 1|23-4567", "9",             "(555) 19|3-4567"},
    {kPhone, "(555) [123]-4567", "9",            "(555) 9|  -4567"},
    {kPhone, "(555) [123]-4567", "9876",         "(555) 987-6|567"},
    {kPhone, "(555) [123-4567]", "98",           "(555) 98| -    "},
    {kPhone, "[(555) 123-4567]", "98",           "(98| )    -    "},
    {kPhone, "[(555) 123-4567]", "9998887777",   "(999) 888-7777|"},
    {kPhone, "(55[5) 1]23-4567", "78",           "(557) 8|23-4567"},
    {kPhone, "(555[) ]123-4567", "9",            "(555) 9|23-4567"},
    {kPhone, "(555) [123]-4567", "abc",          "wrong kind 0"},
    {kPhone, "(555) 123-4567|", "8",             "does not fit 0"},
    {kPhone, "(555) 123|-4567", "-89",           "(555) 123-89|67"},
    {kPhone, "(555) [123]-4567", "(999) 888-7777", "(999) 888-7777|"},
    {kPhone, "junk|", "555",                     "(555) |   -    "},
    // other literals
    {kCalled, nullptr, "+49 (123) 45678",        "+49 (123) 45678|"},
    {kCalled, nullptr, "49 123 45678",           "+49 (123) 45678|"},
    {kCalled, nullptr, "+49-123-45678",          "+49 (123) 45678|"},
    {kCalled, nullptr, "0049 123 45678",         "does not fit 12"},
    {kZip, nullptr, "12345",                     "12345-|    "},
    {kZip, nullptr, "123456789",                 "12345-6789|"},
    {kZip, nullptr, "12345 6789",                "12345-6789|"},
    {kZip, nullptr, "12345-",                    "12345-|    "},
    {kZip, nullptr, "1234-5678",                 "12345-678| "},
    {kClock, nullptr, "12:34",                   "12:34|"},
    {kClock, nullptr, "1234",                    "12:34|"},
    {kClock, nullptr, "12.34",                   "12:34|"},
    {kClock, nullptr, "1:234",                   "wrong kind 1"},
    {kClock, "12:|34", ":56",                    "12:56|"},
    {kClock, "12|:34", ":56",                    "12:56|"},
    {kClock, "12[:34]", ":5",                    "12:5| "},
    {kClock, "12:3|4", ":5",                     "wrong kind 0"},
    {kKey, "12:|ab", ":c",                       "12::c|"},
    {kKey, nullptr, "12:ab",                     "12:ab|"},
    {kKey, nullptr, "12ab",                      "12:ab|"},
    {kNumbered, nullptr, "No. 1234",             "No. 1234|"},
    {kNumbered, nullptr, "No.1234",              "No. 1234|"},
    {kNumbered, nullptr, "1234",                 "No. 1234|"},
    {kNumbered, nullptr, "no. 1234",             "wrong kind 0"},
    {kAreaAndName, nullptr, "555 abcd",          "(555) abcd|"},
    {kAreaAndName, nullptr, "555)abcd",          "(555) abcd|"},
    {kAreaAndName, nullptr, "555abcd",           "(555) abcd|"},
    {kAreaAndName, nullptr, "(555) a-cd",        "(555) a-cd|"},
    {kDigitLiteral, nullptr, "1-234-56",         "1-234-56|"},
    {kDigitLiteral, nullptr, "123456",           "1-234-56|"},
    {kDigitLiteral, nullptr, "23456",            "1-234-56|"},
    {kDigitBetween, nullptr, "1213",             "12-1-13|"},
    {kDigitBetween, nullptr, "12-1-13",          "12-1-13|"},
    {kBehind, nullptr, "12 kg",                  "12| kg"},
    {kBehind, nullptr, "12",                     "12| kg"},
    {kBehind, nullptr, "12kg",                   "does not fit 2"},
    // positions that take more than digits
    {kWord, nullptr, "ab1",                      "ab1|  "},
    {kWord, nullptr, "ab-cd",                    "abcd| "},
    {kWord, nullptr, "abcdef",                   "does not fit 5"},
    {kWord, nullptr, "ab_cd",                    "wrong kind 2"},
    {kWord, "ab|cde", "xy",                      "abxy|e"},
    {kWord, "a[bcd]e", "x",                      "ax|  e"},
    {kWord, "ab|cde", "vwxyz",                   "vwxyz|"},
    {kAnything, nullptr, "a b-c",                "a b-c|"},
    {kAnything, nullptr, "(.)",                  "(.)|  "},
    {kAnything, nullptr, "a\tb",                 "wrong kind 1"},
    {kAnything, nullptr, "a\tbcd",               "wrong kind 1"},
    {kPlate, nullptr, "ab123",                   "AB-123|"},
    {kPlate, nullptr, "AB-123",                  "AB-123|"},
    {kPlate, nullptr, "ab-123",                  "AB-123|"},
    {kSmall, nullptr, "ABCDE",                   "abc/de|"},
};
TEST_ROWS(Strings, ModernPaste, kStrings);
// clang-format on

// ---- entries of a code table

constexpr PasteSetup kColours = {"", DT_STRING, "Red\tr/Green\tg/Light blue\tb/None\tnull!"};
constexpr PasteSetup kNumbers = {"###", DT_NUMBER, "One\t1/Twenty\t20"};
constexpr PasteSetup kNoNull = {"", DT_STRING, "Red\tr/Green\tg"};

// clang-format off
const PasteRow kEntries[] = {
    {kColours, nullptr, "Green",       "[Green]"},
    {kColours, "[Red]", "Green",       "[Green]"},
    {kColours, "[Red]", "green",       "[Green]"},
    {kColours, "[Red]", "LIGHT BLUE",  "[Light blue]"},
    {kColours, "[Red]", "g",           "[Green]"},
    {kColours, "[Red]", "None",        "[None]"},
    {kColours, "[Red]", "null!",       "[None]"},
    {kColours, "[Red]", "Gree",        "no such entry 0"},
    {kColours, "[Red]", "Yellow",      "no such entry 0"},
    {kColours, "[Red]", "Red Green",   "no such entry 0"},
    {kColours, "Re|d", "x",            "no such entry 0"},
    {kNumbers, nullptr, "Twenty",      "[Twenty]"},
    {kNumbers, nullptr, "20",          "[Twenty]"},
    {kNumbers, nullptr, "3",           "no such entry 0"},
    {kNoNull, "[Red]", "null!",        "no such entry 0"},
};
TEST_ROWS(Entries, ModernPaste, kEntries);
// clang-format on

// ---- a program's own replacement

// EM_REPLACESEL with nothing takes the selection out, as a deletion does.
class ModernReplacement : public RowTest<PasteRow> {};

ROW_TEST(ModernReplacement, ByAProgram)
{
    Settings settings = StandardSettings();
    const Text mask = FromAscii(GetParam().setup.mask);
    ControlSetup setup;
    setup.mask = mask.c_str();
    setup.dataType = GetParam().setup.type;
    setup.options = ZTEO_MODERN;
    MemoryControl control(setup, settings, FourthOfJune);
    const Marked before = Unmark(GetParam().before);
    control.SetText(FromAscii(before.text.c_str()).c_str());
    control.Select(before.start, before.end);
    control.Replace(FromAscii(GetParam().text).c_str(), true);
    const Selection selection = control.Edit().ReadSelection();
    EXPECT_EQ(Mark({control.Edit().Shown().begin(), control.Edit().Shown().end()}, selection.start, selection.end),
              GetParam().expected);
    control.Undo();
    EXPECT_EQ(control.Edit().Shown(), FromAscii(before.text.c_str()));
}

// clang-format off
const PasteRow kReplacements[] = {
    {kUsDate, "[12/31]/1999", "",             "|  /  /1999"},
    {kUsDate, "12/3|1/1999", "",              "12/3|1/1999"},
    {kUsDate, "[12/31]/1999", "7/4/2024",     "07/04/2024|"},
    {kUsDate, "[12/31]/1999", "x",            "[12/31]/1999"},
    {kBoth, "[12/31/1999] 23:59", "7/4/2024", "07/04/2024 23:59|"},
    {kPhone, "(555) [123]-4567", "",          "(555) |   -4567"},
    {kPhone, "(555) 1|23-4567", "",           "(555) 1|23-4567"},
    {kPhone, "(555) [123]-4567", "9",         "(555) 9|  -4567"},
};
TEST_ROWS(Replacements, ModernReplacement, kReplacements);
// clang-format on

}  // namespace
}  // namespace zttest::pasting
