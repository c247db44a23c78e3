// What the clerks of our customers do all day, told as they would tell it. Each of these has to work, whatever else
// changes.
#include <string>

#include "tests/engine/clerk.h"
#include "tests/support/clipboard.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// ---- Dates ----------------------------------------------------------------------------------------------------------

struct DateCase {
    const char* name;
    const char* mask;
    const char* keys;
    const char* text;
};

void PrintTo(const DateCase& row, std::ostream* out)
{
    *out << row.name << " (" << row.keys << " into " << row.mask << ")";
}

// clang-format off
const DateCase kDates[] = {
    {"WithSeparators",                    "MM/DD/YY",    "7/4/95",     "07/04/95"},
    {"WithSeparatorsAndZeroes",           "MM/DD/YY",    "07/04/95",   "07/04/95"},
    {"DigitsAlone",                       "MM/DD/YY",    "070495",     "07/04/95"},
    {"DigitsAloneWithoutZeroes",          "MM/DD/YY",    "7495",       "07/04/95"},
    {"FourDigitYear",                     "MM/DD/YYYY",  "07041995",   "07/04/1995"},
    {"FourDigitYearWithSeparators",       "MM/DD/YYYY",  "7/4/1995",   "07/04/1995"},
    {"DayFirst",                          "DD.MM.YYYY",  "4.7.1995",   "04.07.1995"},
    {"DayFirstDigitsAlone",               "DD.MM.YYYY",  "04071995",   "04.07.1995"},
    {"YearFirst",                         "YYYY-MM-DD",  "1995-7-4",   "1995-07-04"},
    {"YearFirstDigitsAlone",              "YYYY-MM-DD",  "19950704",   "1995-07-04"},
    {"YearFirstWithSlashes",              "YYYY/MM/DD",  "1995/7/4",   "1995/07/04"},
    {"TwoDigitYearFirst",                 "YY/MM/DD",    "95/7/4",     "95/07/04"},
    {"MonthName",                         "DD-MMM-YYYY", "4-jul-1995", "04-JUL-1995"},
    {"MonthNameWithoutSeparators",        "DD-MMM-YYYY", "04jul1995",  "04-JUL-1995"},
    {"DayOfTheYear",                      "JJJ/YYYY",    "185/1995",   "185/1995"},
    {"JanuaryTheSecondIsNotTheTwentieth", "MM/DD/YY",    "1/2/95",     "01/02/95"},
    {"JanuaryTheSecondYearFirst",         "YYYY-MM-DD",  "1995-1-02",  "1995-01-02"},
    {"JanuaryTheSecondDayFirst",          "DD.MM.YY",    "2.1.95",     "02.01.95"},
    {"TheLastOfTheYear",                  "MM/DD/YY",    "123195",     "12/31/95"},
    {"TheLeapDay",                        "MM/DD/YYYY",  "02291996",   "02/29/1996"},
};
// clang-format on

class ClerkTypesADate : public Clerk, public OfRow<DateCase> {};

ROW_TEST(ClerkTypesADate, IntoAnEmptyField)
{
    Field(GetParam().mask, DT_DATE);
    Type(GetParam().keys);
    EXPECT_EQ(Text(), GetParam().text);
    EXPECT_EQ(Beeps(), 0);
}

ROW_TEST(ClerkTypesADate, OverAnotherDateWhollySelected)
{
    Field(GetParam().mask, DT_DATE, "2004-02-29");
    TabInto();
    Type(GetParam().keys);
    EXPECT_EQ(Text(), GetParam().text);
    EXPECT_EQ(Beeps(), 0);
}

TEST_ROWS(Dates, ClerkTypesADate, kDates);

struct KeywordDateCase {
    const char* name;
    const RegionalSet* settings;
    const char* keys;
    const char* text;
};

void PrintTo(const KeywordDateCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const KeywordDateCase kKeywordDates[] = {
    {"AmericanDigits",     &kUnitedStates, "07041995", "07/04/1995"},
    {"AmericanSeparators", &kUnitedStates, "7/4/1995", "07/04/1995"},
    {"GermanDigits",       &kGerman,       "04071995", "04.07.1995"},
    {"GermanSeparators",   &kGerman,       "4.7.1995", "04.07.1995"},
    {"IsoDigits",          &kIso,          "19950704", "1995-07-04"},
    {"IsoSeparators",      &kIso,          "1995-7-4", "1995-07-04"},
};
// clang-format on

class ClerkTypesARegionalDate : public Clerk, public OfRow<KeywordDateCase> {};

ROW_TEST(ClerkTypesARegionalDate, IntoAKeywordField)
{
    const Regional regional(*GetParam().settings);
    Field("[date]", DT_DATE);
    Type(GetParam().keys);
    EXPECT_EQ(Text(), GetParam().text);
    EXPECT_EQ(Value(), "1995-07-04");
    EXPECT_EQ(Beeps(), 0);
}

TEST_ROWS(Dates, ClerkTypesARegionalDate, kKeywordDates);

TEST_F(Clerk, ReadsTheDateTyped)
{
    Field("MM/DD/YY", DT_DATE);
    Type("1/2/95");
    EXPECT_EQ(Value(), "1995-01-02");
}

TEST_F(Clerk, TypesTheDayOverInTheMiddle)
{
    Field("MM/DD/YY", DT_DATE, "1995-07-04");
    PutCaret(3);
    Type("31");
    EXPECT_EQ(Text(), "07/31/95");
}

TEST_F(Clerk, TypesADateOverAnotherFromTheFront)
{
    Field("MM/DD/YY", DT_DATE, "1995-07-04");
    ClickAtTheFront();
    Type("123196");
    EXPECT_EQ(Text(), "12/31/96");
}

// ---- Times ----------------------------------------------------------------------------------------------------------

TEST_F(Clerk, SeesHalfPastTwelveInTheAfternoonAsItWasSet)
{
    Field("HH:MM AM/PM", DT_TIME, "12:30:00");
    EXPECT_EQ(Text(), "12:30 PM");
}

TEST_F(Clerk, ReadsBackHalfPastTwelveInTheAfternoon)
{
    Field("HH:MM AM/PM", DT_TIME, "12:30:00");
    EXPECT_EQ(Value(), "12:30:00:000000");
}

TEST_F(Clerk, TypesHalfPastTwelveInTheAfternoon)
{
    Field("HH:MM AM/PM", DT_TIME);
    Type("1230P");
    EXPECT_EQ(Text(), "12:30 PM");
    EXPECT_EQ(Value(), "12:30:00:000000");
}

TEST_F(Clerk, TypesHalfPastOneInTheAfternoonWithItsColon)
{
    Field("HH:MM AM/PM", DT_TIME);
    Type("1:30P");
    EXPECT_EQ(Text(), "01:30 PM");
    EXPECT_EQ(Value(), "13:30:00:000000");
}

TEST_F(Clerk, SetsHalfPastOneAsItIsShown)
{
    Field("HH:MM AM/PM", DT_TIME);
    control_->SetDataString("01:30 PM");
    EXPECT_EQ(Value(), "13:30:00:000000");
}

TEST_F(Clerk, SetsHalfPastOneInTwentyFourHours)
{
    Field("HH:MM AM/PM", DT_TIME);
    control_->SetDataString("13:30");
    EXPECT_EQ(Text(), "01:30 PM");
}

TEST_F(Clerk, TypesATimeWithSeconds)
{
    Field("HH:MM:SS", DT_TIME);
    Type("9:5:7");
    EXPECT_EQ(Text(), "09:05:07");
}

TEST_F(Clerk, TypesADateAndATime)
{
    Field("MM/DD/YY HH:MM", DT_DATETIME);
    Type("7/4/95 14:30");
    EXPECT_EQ(Text(), "07/04/95 14:30");
    EXPECT_EQ(Beeps(), 0);
}

// ---- Strings --------------------------------------------------------------------------------------------------------

TEST_F(Clerk, TypesAPhoneNumberAsDigits)
{
    Field("(###) ###-####", DT_STRING);
    Type("5551234567");
    EXPECT_EQ(Text(), "(555) 123-4567");
    EXPECT_EQ(Value(), "5551234567");
    EXPECT_EQ(Beeps(), 0);
}

TEST_F(Clerk, TypesAPhoneNumberWithItsDash)
{
    Field("###-####", DT_STRING);
    Type("123-4567");
    EXPECT_EQ(Text(), "123-4567");
    EXPECT_EQ(Beeps(), 0);
}

TEST_F(Clerk, TypesAPhoneNumberWithAllItsSigns)
{
    Field("(###) ###-####", DT_STRING);
    Type("555) 123-4567");
    EXPECT_EQ(Text(), "(555) 123-4567");
}

TEST_F(Clerk, TypesACodeThatIsRaised)
{
    Field("!!-##", DT_STRING);
    Type("ab12");
    EXPECT_EQ(Text(), "AB-12");
}

// ---- Copying and pasting --------------------------------------------------------------------------------------------

struct CopyCase {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    int32_t type;
    const char* data;
};

void PrintTo(const CopyCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const CopyCase kCopies[] = {
    {"ANumber",            &kUnitedStates, "#,##0.00",       DT_NUMBER,  "1234.5"},
    {"ANegativeNumber",    &kUnitedStates, "#,##0.00",       DT_NUMBER,  "-1234.5"},
    {"AFraction",          &kUnitedStates, "#,#.00",         DT_NUMBER,  "0.25"},
    {"ADecimal",           &kUnitedStates, "#,##0.0000",     DT_DECIMAL, "1234.5678"},
    {"AnAmount",           &kUnitedStates, "[currency(9)]",  DT_NUMBER,  "1234.5"},
    {"ANegativeAmount",    &kUnitedStates, "[currency(9)]",  DT_NUMBER,  "-1234.5"},
    {"APercentage",        &kUnitedStates, "#,##0.00%",      DT_NUMBER,  "0.125"},
    {"ADecimalPercentage", &kUnitedStates, "#,##0.00%",      DT_DECIMAL, "0.125"},
    {"AGermanNumber",      &kGerman,       nullptr,          DT_NUMBER,  "1234.5"},
    {"AGermanDecimal",     &kGerman,       nullptr,          DT_DECIMAL, "1234.5"},
    {"AGermanAmount",      &kGerman,       "[currency(9)]",  DT_NUMBER,  "1234.5"},
    {"AFrenchAmount",      &kFrench,       "[currency(9)]",  DT_NUMBER,  "1234.5"},
    {"AFrenchDecimal",     &kFrench,       "[currency(9)]",  DT_DECIMAL, "1234.5"},
    {"ASwissAmount",       &kSwiss,        "[currency(9)]",  DT_NUMBER,  "1234.5"},
    {"APhoneNumber",       &kUnitedStates, "(###) ###-####", DT_STRING,  "5551234567"},
};
// clang-format on

class ClerkCopies : public Clerk, public OfRow<CopyCase> {};

ROW_TEST(ClerkCopies, AndPastesTheSameValue)
{
    const Regional regional(*GetParam().settings);
    Field(GetParam().mask, GetParam().type, GetParam().data);
    const std::string text = Text();
    const std::string value = Value();
    SelectAll();
    Play("{Ctrl+C}");
    control_->SetData(nullptr);
    Play("{Ctrl+V}");
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(Value(), value);
    EXPECT_EQ(Beeps(), 0);
}

ROW_TEST(ClerkCopies, AndPastesItOverItself)
{
    const Regional regional(*GetParam().settings);
    Field(GetParam().mask, GetParam().type, GetParam().data);
    const std::string text = Text();
    SelectAll();
    Play("{Ctrl+C}");
    Play("{Ctrl+V}");
    EXPECT_EQ(Text(), text);
}

TEST_ROWS(Values, ClerkCopies, kCopies);

TEST_F(Clerk, PastesADateFromALetter)
{
    Field("MM/DD/YY", DT_DATE);
    CopyToClipboard("1995-07-04");
    Play("{Ctrl+V}");
    EXPECT_EQ(Text(), "07/04/95");
    EXPECT_EQ(Value(), "1995-07-04");
}

TEST_F(Clerk, PastesADateAndATimeFromALetter)
{
    Field("MM/DD/YY HH:MM AM/PM", DT_DATETIME);
    CopyToClipboard("1995-07-04 14:30");
    Play("{Ctrl+V}");
    EXPECT_EQ(Text(), "07/04/95 02:30 PM");
}

// ---- Slips ----------------------------------------------------------------------------------------------------------

struct SlipCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
    const char* wrong;  // a key that the field refuses everywhere
};

void PrintTo(const SlipCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const SlipCase kFields[] = {
    {"Date",            "MM/DD/YY",       DT_DATE,     "1995-07-04",       "?"},
    {"DateWithName",    "DD-MMM-YYYY",    DT_DATE,     "1995-07-04",       "?"},
    {"DayOfYear",       "JJJ/YYYY",       DT_DATE,     "1995-07-04",       "?"},
    {"KeywordDate",     "[date]",         DT_DATE,     "1995-07-04",       "?"},
    {"Time",            "HH:MM:SS:FFF",   DT_TIME,     "14:30:09:250",     "?"},
    {"TwelveHours",     "HH:MM AM/PM",    DT_TIME,     "14:30",            "?"},
    {"DateTime",        "MM/DD/YY HH:MM", DT_DATETIME, "1995-07-04 14:30", "?"},
    {"KeywordDateTime", "[date] [time]",  DT_DATETIME, "1995-07-04 14:30", "?"},
    {"Phone",           "(###) ###-####", DT_STRING,   "5551234567",       "?"},
    {"Escapes",         "##~X-##~#",      DT_STRING,   "1234",             "?"},
    {"Number",          "#,##0.00",       DT_NUMBER,   "1234.5",           "?"},
    {"NumberNoZero",    "#,#.00",         DT_NUMBER,   "123.45",           "?"},
    {"ZeroMask",        "000.00",         DT_NUMBER,   "123.45",           "?"},
    {"Amount",          "[currency(9)]",  DT_NUMBER,   "1234.5",           "?"},
    {"Percentage",      "#,##0.00%",      DT_NUMBER,   "0.125",            "?"},
    {"Decimal",         "#,##0.00",       DT_DECIMAL,  "1234.5",           "?"},
};
// clang-format on

class ClerkSlips : public Clerk, public OfRow<SlipCase> {
protected:
    void MakeField() { Field(GetParam().mask, GetParam().type, GetParam().data); }
};

ROW_TEST(ClerkSlips, AWrongKeyChangesNothingAndMovesNothing)
{
    MakeField();
    const std::string text = Text();
    for (int position = 0; position <= static_cast<int>(text.size()); ++position) {
        PutCaret(position);
        Type(GetParam().wrong);
        // Before the first field the caret goes there, for the key is tried there.
        const int start = control_->CaretStart();
        EXPECT_TRUE(start == position || (start > position && text.find_first_of("0123456789") == size_t(start)))
            << "at " << position << " the caret went to " << start;
        EXPECT_EQ(Text(), text) << "at " << position;
    }
}

// The characters that are no input of the user, at their places counted from the end that does not move.
std::string LiteralsOf(const std::string& text)
{
    std::string literals;
    for (const char c : text)
        if (c == '/' || c == '-' || c == ':' || c == '(' || c == ')' || c == 'X' || c == '#' || c == '$' || c == '%')
            literals += c;
    return literals;
}

ROW_TEST(ClerkSlips, BackspaceAnywhereLeavesTheLiterals)
{
    MakeField();
    const std::string text = Text();
    for (int position = 0; position <= static_cast<int>(text.size()); ++position) {
        control_->SetDataString(GetParam().data);
        PutCaret(position);
        Backspace(3);
        EXPECT_EQ(LiteralsOf(Text()), LiteralsOf(text)) << "from " << position << " leads to " << Text();
    }
}

ROW_TEST(ClerkSlips, DeleteAnywhereLeavesTheLiterals)
{
    MakeField();
    const std::string text = Text();
    for (int position = 0; position <= static_cast<int>(text.size()); ++position) {
        control_->SetDataString(GetParam().data);
        PutCaret(position);
        Delete(3);
        EXPECT_EQ(LiteralsOf(Text()), LiteralsOf(text)) << "from " << position << " leads to " << Text();
    }
}

ROW_TEST(ClerkSlips, DeletingAnySelectionLeavesTheLiterals)
{
    MakeField();
    const std::string text = Text();
    const int length = static_cast<int>(text.size());
    for (int start = 0; start < length; ++start)
        for (int end = start + 1; end <= length; ++end) {
            control_->SetDataString(GetParam().data);
            control_->Select(start, end);
            Delete();
            EXPECT_EQ(LiteralsOf(Text()), LiteralsOf(text)) << start << " to " << end << " leads to " << Text();
        }
}

ROW_TEST(ClerkSlips, DeletedFieldsKeepTheirLength)
{
    if (GetParam().type == DT_NUMBER || GetParam().type == DT_DECIMAL)
        return;  // numbers get shorter
    MakeField();
    const size_t length = Text().size();
    SelectAll();
    Delete();
    EXPECT_EQ(Text().size(), length);
}

TEST_ROWS(Fields, ClerkSlips, kFields);

// ---- Fast typing ----------------------------------------------------------------------------------------------------

struct FastCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* keys;
    const char* text;
};

void PrintTo(const FastCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const FastCase kFast[] = {
    {"ADate",            "MM/DD/YY",       DT_DATE,    "070495",      "07/04/95"},
    {"ADateWithSlashes", "MM/DD/YY",       DT_DATE,    "7/4/95",      "07/04/95"},
    {"ATime",            "HH:MM:SS",       DT_TIME,    "143009",      "14:30:09"},
    {"AnAmount",         "#,#.00",         DT_NUMBER,  "123.45",      "123.45"},
    {"ALongAmount",      "#,###,###.00",   DT_NUMBER,  "12345.67",    "12,345.67"},
    {"ADecimal",         "#,###,###.00",   DT_DECIMAL, "12345.67",    "12,345.67"},
    {"APhoneNumber",     "(###) ###-####", DT_STRING,  "5551234567",  "(555) 123-4567"},
    {"ACorrectedDate",   "MM/DD/YY",       DT_DATE,    "0705\b\b495", "07/04/95"},
    {"ACorrectedNumber", "#,###,###.00",   DT_NUMBER,  "124\b3",      "123.00"},
    {"ACorrectedString", "AAAA",           DT_STRING,  "abx\bcd",     "abcd"},
};
// clang-format on

class ClerkTypesFast : public Clerk, public OfRow<FastCase> {};

ROW_TEST(ClerkTypesFast, EachKeyGoesDownBeforeTheLastIsUp)
{
    Field(GetParam().mask, GetParam().type);
    const std::string keys = GetParam().keys;
    control_->Keys().KeyDownOf(keys[0]);
    for (size_t i = 1; i < keys.size(); ++i) {
        control_->Keys().KeyDownOf(keys[i]);
        control_->Keys().KeyUpOf(keys[i - 1]);
    }
    control_->Keys().KeyUpOf(keys.back());
    EXPECT_EQ(Text(), GetParam().text);
    EXPECT_EQ(Beeps(), 0);
}

TEST_ROWS(Texts, ClerkTypesFast, kFast);

// ---- Fields that take no input --------------------------------------------------------------------------------------

enum class Lock { ReadOnly, ReadOnlyFromTheStart, Disabled };

struct LockCase {
    const char* name;
    Lock lock;
    const char* keys;
};

void PrintTo(const LockCase& row, std::ostream* out)
{
    *out << row.name;
}

class ClerkAtALockedField : public Clerk, public OfRow<LockCase> {
protected:
    void LockedField(const char* mask, int32_t type, const char* data)
    {
        Config config;
        config.mask = mask;
        config.type = type;
        config.data = data;
        config.options = ZTEO_SPIN;
        config.increment = 1;
        config.readOnly = GetParam().lock == Lock::ReadOnlyFromTheStart;
        Make(config);
        if (GetParam().lock == Lock::ReadOnly)
            control_->SetReadOnly();
        if (GetParam().lock == Lock::Disabled)
            control_->Disable();
    }
};

ROW_TEST(ClerkAtALockedField, ChangesNoDate)
{
    LockedField("MM/DD/YY", DT_DATE, "1995-07-04");
    CopyToClipboard("2001-12-31");
    PutCaret(1);
    Play(GetParam().keys);
    EXPECT_EQ(Text(), "07/04/95");
}

ROW_TEST(ClerkAtALockedField, ChangesNoDateWhollySelected)
{
    LockedField("MM/DD/YY", DT_DATE, "1995-07-04");
    CopyToClipboard("2001-12-31");
    SelectAll();
    Play(GetParam().keys);
    EXPECT_EQ(Text(), "07/04/95");
}

ROW_TEST(ClerkAtALockedField, ChangesNoNumber)
{
    LockedField("#,##0.00", DT_NUMBER, "1234.5");
    CopyToClipboard("77");
    PutCaret(1);
    Play(GetParam().keys);
    EXPECT_EQ(Text(), "1,234.50");
}

ROW_TEST(ClerkAtALockedField, ChangesNoNumberWhollySelected)
{
    LockedField("#,##0.00", DT_NUMBER, "1234.5");
    CopyToClipboard("77");
    SelectAll();
    Play(GetParam().keys);
    EXPECT_EQ(Text(), "1,234.50");
}

ROW_TEST(ClerkAtALockedField, SeesValuesSetByTheProgram)
{
    LockedField("MM/DD/YY", DT_DATE, "1995-07-04");
    control_->SetDataString("2001-12-31");
    EXPECT_EQ(Text(), "12/31/01");
}

// clang-format off
const LockCase kLocks[] = {
    {"ReadOnlyTyping",             Lock::ReadOnly,             "12"},
    {"ReadOnlySeparator",          Lock::ReadOnly,             "/."},
    {"ReadOnlyBackspace",          Lock::ReadOnly,             "{Back}"},
    {"ReadOnlyDelete",             Lock::ReadOnly,             "{Del}"},
    {"ReadOnlyCtrlV",              Lock::ReadOnly,             "{Ctrl+V}"},
    {"ReadOnlyShiftInsert",        Lock::ReadOnly,             "{Shift+Ins}"},
    {"ReadOnlyUp",                 Lock::ReadOnly,             "{Up}"},
    {"ReadOnlyDown",               Lock::ReadOnly,             "{Down}"},
    {"ReadOnlyFromTheStartTyping", Lock::ReadOnlyFromTheStart, "12"},
    {"ReadOnlyFromTheStartDelete", Lock::ReadOnlyFromTheStart, "{Del}"},
    {"DisabledTyping",             Lock::Disabled,             "12"},
    {"DisabledBackspace",          Lock::Disabled,             "{Back}"},
    {"DisabledDelete",             Lock::Disabled,             "{Del}"},
    {"DisabledCtrlV",              Lock::Disabled,             "{Ctrl+V}"},
    {"DisabledUp",                 Lock::Disabled,             "{Up}"},
};
// clang-format on

TEST_ROWS(Locks, ClerkAtALockedField, kLocks);

TEST_F(Clerk, PastesNothingIntoAReadOnlyFieldByMessage)
{
    Field("MM/DD/YY", DT_DATE, "1995-07-04");
    control_->SetReadOnly();
    CopyToClipboard("2001-12-31");
    control_->Paste();
    EXPECT_EQ(Text(), "07/04/95");
}

TEST_F(Clerk, MovesTheCaretInAReadOnlyField)
{
    Field("MM/DD/YY", DT_DATE, "1995-07-04");
    control_->SetReadOnly();
    PutCaret(1);
    Play("{Right}");
    EXPECT_EQ(Shown(), "07/|04/95");
}

TEST_F(Clerk, CopiesFromAReadOnlyField)
{
    Field("MM/DD/YY", DT_DATE, "1995-07-04");
    control_->SetReadOnly();
    EmptyTheClipboard();
    SelectAll();
    Play("{Ctrl+C}");
    EXPECT_EQ(ClipboardText(), "07/04/95");
}

}  // namespace
}  // namespace zttest
