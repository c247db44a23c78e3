// What setting a mask leaves in the record: lengths, positions of fields, the editing mode and the bits of the mask.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class MaskRecord : public ValueTest {
protected:
    MaskRecord() { Install(nullptr, DT_STRING); }

    RecordView After(const char* mask, int32_t type)
    {
        control_->SetMask(mask, type);
        return Record();
    }
};

struct LengthCase {
    const char* name;
    const char* mask;
    int32_t type;
    int32_t displayLength;
};
void PrintTo(const LengthCase& row, std::ostream* out)
{
    *out << row.mask;
}

class DisplayLength : public MaskRecord, public OfRow<LengthCase> {};

ROW_TEST(DisplayLength, LeavesTheTildesOut)
{
    EXPECT_EQ(After(GetParam().mask, GetParam().type).displayLength, GetParam().displayLength);
}

const LengthCase kLengthRows[] = {
    {"Date",      "MM/DD/YY",       DT_DATE,   8 },
    {"Telephone", "(###) ###-####", DT_STRING, 14},
    {"Escapes",   "~#~A##",         DT_STRING, 4 },
    {"Empty",     "",               DT_STRING, 0 },
    {"Number",    "$#,##0.00",      DT_NUMBER, 9 },
    {"Marker",    "HH:MM AM/PM",    DT_TIME,   11},
    {"Keyword",   "[date]",         DT_DATE,   10},
    {"Default",   nullptr,          DT_TIME,   12},
};
TEST_ROWS(, DisplayLength, kLengthRows);

struct PlacesCase {
    const char* name;
    const char* mask;
    int32_t type;
    int32_t places;
};
void PrintTo(const PlacesCase& row, std::ostream* out)
{
    *out << row.mask;
}

class DecimalPlaces : public MaskRecord, public OfRow<PlacesCase> {};

ROW_TEST(DecimalPlaces, CountThePlaceholdersBehindThePoint)
{
    EXPECT_EQ(After(GetParam().mask, GetParam().type).decimalPlaces, GetParam().places);
}

const PlacesCase kPlacesRows[] = {
    {"None",                    "#,##0",         DT_NUMBER,  0},
    {"TwoZeros",                "#,##0.00",      DT_NUMBER,  2},
    {"TwoHashes",               "#.##",          DT_NUMBER,  2},
    {"Mixed",                   "0.0##",         DT_DECIMAL, 3},
    {"TheDefault",              nullptr,         DT_NUMBER,  2},
    {"Percent",                 "0.0%",          DT_NUMBER,  1},
    {"APointWithNothingBehind", "##0.",          DT_NUMBER,  0},
    {"Currency",                "[currency(8)]", DT_NUMBER,  2},
    {"NotForStrings",           "#.00",          DT_STRING,  0},
};
TEST_ROWS(, DecimalPlaces, kPlacesRows);

TEST_F(MaskRecord, DecimalPlacesGoWithTheNextMask)
{
    After("#.00", DT_NUMBER);
    EXPECT_EQ(After("##", DT_NUMBER).decimalPlaces, 0);
}

TEST_F(MaskRecord, DecimalPlacesAreCountedBehindThePlainPointInGermanToo)
{
    const Regional settings(kGerman);
    EXPECT_EQ(After("##0.000", DT_NUMBER).decimalPlaces, 3);
}

// Positions of fields, in the order month, day, hour, minute, second, fraction, AM/PM; -1 where the mask has no such
// field and the record may hold anything.
struct PositionCase {
    const char* name;
    const char* mask;
    int32_t type;
    int month;
    int day;
    int hour;
    int minute;
    int second;
    int fraction;
    int marker;
};
void PrintTo(const PositionCase& row, std::ostream* out)
{
    *out << row.mask;
}

class FieldPositions : public MaskRecord, public OfRow<PositionCase> {};

ROW_TEST(FieldPositions, AreDisplayPositions)
{
    const PositionCase& row = GetParam();
    ASSERT_EQ(control_->SetMask(row.mask, row.type), 1);
    const RecordView record = Record();
    const auto expect = [](const char* field, int position, int expected) {
        if (expected >= 0) {
            EXPECT_EQ(position, expected) << field;
        }
    };
    expect("month", record.month, row.month);
    expect("day", record.day, row.day);
    expect("hour", record.hour, row.hour);
    expect("minute", record.minute, row.minute);
    expect("second", record.second, row.second);
    expect("fraction", record.fraction, row.fraction);
    expect("AM/PM", record.marker, row.marker);
}

const PositionCase kPositionRows[] = {
    {"MonthDayYear",                      "MM/DD/YY",               DT_DATE,     0,  3,  -1, -1, -1, -1, -1},
    {"DayMonthName",                      "DD-MMM-YYYY",            DT_DATE,     3,  0,  -1, -1, -1, -1, -1},
    {"AWordBefore",                       "on DD.MM.YY",            DT_DATE,     6,  3,  -1, -1, -1, -1, -1},
    {"AYearInFrontIsNotCounted",          "YY/MM/DD",               DT_DATE,     1,  4,  -1, -1, -1, -1, -1},
    {"AFourDigitYearInFrontIsNotCounted", "YYYY-MM-DD",             DT_DATE,     1,  4,  -1, -1, -1, -1, -1},
    {"Time",                              "HH:MM:SS:FFF",           DT_TIME,     -1, -1, 0,  3,  6,  9,  -1},
    {"TimeWithoutLiterals",               "HHMMSSFF",               DT_TIME,     -1, -1, 0,  2,  4,  6,  -1},
    {"Marker",                            "HH:MM AM/PM",            DT_TIME,     -1, -1, 0,  3,  -1, -1, 6 },
    {"MarkerIsNotCounted",                "HH AM/PM:MM",            DT_TIME,     -1, -1, 0,  4,  -1, -1, 3 },
    {"DateTime",                          "MM/DD/YY HH:MM:SS",      DT_DATETIME, 0,  3,  9,  12, 15, -1, -1},
    {"YearCountsInADateTime",             "YYYY-MM-DD HH:MM",       DT_DATETIME, 5,  8,  11, 14, -1, -1, -1},
    {"DayOfYearCounts",                   "JJJ/YYYY HH:MM",         DT_DATETIME, -1, -1, 9,  12, -1, -1, -1},
    {"DateTimeMarker",                    "MM/DD/YYYY HH:MM AM/PM", DT_DATETIME, 0,  3,  11, 14, -1, -1, 17},
};
TEST_ROWS(, FieldPositions, kPositionRows);

class FractionLength : public MaskRecord, public OfRow<int> {};

ROW_TEST(FractionLength, IsTheRunOfItsLetters)
{
    const std::string mask = "HH:MM:SS." + std::string(static_cast<size_t>(GetParam()), 'F');
    EXPECT_EQ(After(mask.c_str(), DT_TIME).fractionLength, GetParam());
}

TEST_ROWS(, FractionLength, Integers(1, 7));

// The positions of a keyword's mask and of a default one take the place of those of the mask before.
TEST_F(MaskRecord, PositionsAreAllSetAnew)
{
    for (const char* mask : {"[time]", "refused SS", ""}) {
        After("AM/PM HH:MM:SS:FF", DT_TIME);
        ASSERT_EQ(Record().hour, 1);
        After(mask, DT_TIME);
        const RecordView record = Record();
        EXPECT_EQ(record.marker, 0);
        EXPECT_EQ(record.hour, 0);
        EXPECT_EQ(record.minute, 3);
        EXPECT_EQ(record.second, 6);
        EXPECT_EQ(record.fraction, record.mask == "hh:mm:ss" ? 0 : 9);
        EXPECT_EQ(record.fractionLength, record.mask == "hh:mm:ss" ? 0 : 3);
    }
}

TEST_F(MaskRecord, WordsOfAPictureHideNoField)
{
    for (const char* picture : {"d 'de' MMMM 'de' yyyy", "d'\xA6\x7E'M'\xA6\x7E\xA6\x7E'yyyy"}) {
        const Regional settings(With(kUnitedStates, {
                                                        {"sShortDate", picture}
        }));
        After("MM/DD/YY", DT_DATE);
        const RecordView record = After("[date] [time]", DT_DATETIME);
        EXPECT_EQ(record.yearDigits, 4);
        EXPECT_EQ(Text().substr(static_cast<size_t>(record.day), 2), "00");
        ShownFor("1995-07-04 14:07:09");
        EXPECT_EQ(Text().substr(static_cast<size_t>(record.day), 2), "04");
        EXPECT_EQ(Text().substr(static_cast<size_t>(record.month), 2), "07");
        EXPECT_EQ(Text().substr(static_cast<size_t>(record.minute), 2), "07");
        EXPECT_EQ(Text().substr(static_cast<size_t>(record.second), 2), "09");
    }
}

class ATimeSetAfterAMarker : public ValueTest, public OfRow<const char*> {};

ROW_TEST(ATimeSetAfterAMarker, KeepsItsSeconds)
{
    for (const char* before : {"HH:MM AM/PM", "AM/PM HH:MM", "HH AM/PM:MM"}) {
        Install(before, DT_TIME);
        ShownFor("09:30");
        SetMask(GetParam(), DT_TIME);
        EXPECT_EQ(ShownFor("13:30:45").substr(0, 8), "13:30:45");
        EXPECT_EQ(Read(), "13:30:45:000000");
    }
}

TEST_ROWS_OF(Masks, ATimeSetAfterAMarker, "[time]", "refused SS", "", "HH:MM:SS");

TEST_F(ValueTest, ADateAndATimeSetAfterAMarkerKeepTheirSeconds)
{
    Install("MM/DD/YY HH:MM AM/PM", DT_DATETIME);
    SetMask("[date] [time]", DT_DATETIME);
    EXPECT_EQ(ShownFor("1995-07-04 13:30:45"), "07/04/1995 13:30:45");
    EXPECT_EQ(Read(), "1995-07-04 13:30:45:000000");
}

TEST_F(MaskRecord, TwoYearDigits)
{
    EXPECT_EQ(After("MM/DD/YY", DT_DATE).yearDigits, 2);
}

TEST_F(MaskRecord, FourYearDigits)
{
    EXPECT_EQ(After("MM/DD/YYYY", DT_DATE).yearDigits, 4);
}

TEST_F(MaskRecord, FourYearDigitsOfADateTime)
{
    EXPECT_EQ(After("MM/DD/YYYY HH:MM", DT_DATETIME).yearDigits, 4);
}

TEST_F(MaskRecord, TheDefaultDateHasTwoYearDigits)
{
    After("MM/DD/YYYY", DT_DATE);
    EXPECT_EQ(After("refused", DT_DATE).yearDigits, 2);
}

TEST_F(MaskRecord, TheDefaultDateTimeHasTwoYearDigits)
{
    After("MM/DD/YYYY", DT_DATE);
    EXPECT_EQ(After(nullptr, DT_DATETIME).yearDigits, 2);
}

TEST_F(MaskRecord, TellsThatAMaskWasSet)
{
    EXPECT_EQ(After("##", DT_STRING).maskJustSet, 1u);
}

// Bits of the flags.
struct BitCase {
    const char* name;
    const char* before;  // a mask set before, null for none
    int32_t typeBefore;
    const char* mask;
    int32_t type;
    bool RecordView::*bit;
    bool set;
};
void PrintTo(const BitCase& row, std::ostream* out)
{
    *out << row.mask;
}

class MaskBits : public MaskRecord, public OfRow<BitCase> {};

ROW_TEST(MaskBits, FollowTheMask)
{
    if (GetParam().before)
        Install(GetParam().before, GetParam().typeBefore);
    After(GetParam().mask, GetParam().type);
    EXPECT_EQ(Record().*GetParam().bit, GetParam().set);
}

constexpr bool RecordView::*CHARWISE = &RecordView::charwise;
constexpr bool RecordView::*PERCENT = &RecordView::percent;
constexpr bool RecordView::*AMPM = &RecordView::hasMarker;

const BitCase kBitRows[] = {
    {"HashesAreEditedAsANumber",      nullptr,       0,         "#,##0.00",             DT_NUMBER,   CHARWISE, false},
    {"HashesAreEditedAsADecimal",     nullptr,       0,         "#,##0.00",             DT_DECIMAL,  CHARWISE, false},
    {"ZerosAreEditedByPosition",      nullptr,       0,         "000",                  DT_NUMBER,   CHARWISE, true },
    {"StringsAreEditedByPosition",    "#",           DT_NUMBER, "###",                  DT_STRING,   CHARWISE, true },
    {"DatesAreEditedByPosition",      "#",           DT_NUMBER, "MM/DD/YY",             DT_DATE,     CHARWISE, true },
    {"TimesAreEditedByPosition",      "#",           DT_NUMBER, "HH:MM",                DT_TIME,     CHARWISE, true },
    {"CurrencyIsEditedAsANumber",     nullptr,       0,         "[currency(8)]",        DT_NUMBER,   CHARWISE, false},
    {"PercentIsTold",                 nullptr,       0,         "##0%",                 DT_NUMBER,   PERCENT,  true },
    {"PercentOfADecimalIsTold",       nullptr,       0,         "##0.00%",              DT_DECIMAL,  PERCENT,  true },
    {"PercentGoesWithTheNextNumber",  "##0%",        DT_NUMBER, "##0",                  DT_NUMBER,   PERCENT,  false},
    {"MarkerOfATimeIsTold",           nullptr,       0,         "HH:MM AM/PM",          DT_TIME,     AMPM,     true },
    {"SmallMarkerIsTold",             nullptr,       0,         "HH:MM am/pm",          DT_TIME,     AMPM,     true },
    {"MarkerOfADateTimeIsTold",       nullptr,       0,         "MM/DD/YY HH:MM AM/PM", DT_DATETIME, AMPM,     true },
    {"MarkerGoesWithTheNextTime",     "HH:MM AM/PM", DT_TIME,   "HH:MM",                DT_TIME,     AMPM,     false},
    {"MarkerGoesWithTheNextDateTime", "HH:MM AM/PM", DT_TIME,   "MM/DD/YY HH:MM",       DT_DATETIME, AMPM,     false},
    {"MarkerGoesWithTheNextKeyword",  "HH:MM AM/PM", DT_TIME,   "[time]",               DT_TIME,     AMPM,     false},
    {"MarkerGoesWithTheNextDate",     "HH:MM AM/PM", DT_TIME,   "[date]",               DT_DATE,     AMPM,     false},
    {"MarkerGoesWithBothKeywords",    "HH:MM AM/PM", DT_TIME,   "[date] [time]",        DT_DATETIME, AMPM,     false},
    {"MarkerGoesWithTheDefault",      "HH:MM AM/PM", DT_TIME,   "refused SS",           DT_TIME,     AMPM,     false},
    {"MarkerOfARefusedMaskIsNotTold", nullptr,       0,         "MM:SS AM/PM",          DT_TIME,     AMPM,     false},
    {"MarkerInAStringIsNone",         nullptr,       0,         "AM/PM",                DT_STRING,   AMPM,     false},
};
TEST_ROWS(, MaskBits, kBitRows);

TEST_F(MaskRecord, ANumberWithLiteralsIsEditedByPositionOnceAValueIsShown)
{
    After("Total #,##0", DT_NUMBER);
    ShownFor("1");
    ShownFor("2");
    EXPECT_TRUE(Record().charwise);
}

}  // namespace
}  // namespace zttest
