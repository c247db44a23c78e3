// Moving the caret over literals, asked directly: how far it is, and which keys the field is given for it.
#include <gtest/gtest.h>

#include "engine/edit/caret.h"
#include "engine/edit/click.h"
#include "engine/spin/spin_settings.h"
#include "tests/support/rows.h"
#include "tests/units/field_spy.h"

namespace zttest {
namespace {

using namespace zte;

using Calls = std::vector<std::string>;

constexpr KeyData kNoKey = 0;
constexpr KeyData kData = 5;
constexpr const char* kCodes = "Red\tR/Green\tG";

// ---- arrows

struct MoveRow {
    const char* name;
    SpiedSetup setup;
    const char* before;
    Key key;
    KeyData keyData;
    bool shift;
    Calls calls;
};
void PrintTo(const MoveRow& row, std::ostream* out)
{
    *out << row.name;
}

class CaretMove : public RowTest<MoveRow> {};

ROW_TEST(CaretMove, IsMadeOf)
{
    const MoveRow& row = GetParam();
    Spied spied(row.setup);
    spied.Show(row.before);
    MoveCaret(spied.Record(), row.key, row.keyData, row.shift);
    EXPECT_EQ(spied.Spy().Calls(), row.calls);
}

constexpr SpiedSetup kDate = {"MM/DD/YY", DT_DATE};
constexpr SpiedSetup kPhone = {"(###) ###", DT_STRING};
constexpr SpiedSetup kSkipping = {"MM/DD/YY", DT_DATE, nullptr, ZTEO_AUTOSKIP};
constexpr SpiedSetup kZeros = {"000.00", DT_NUMBER};
constexpr SpiedSetup kHalf = {"0.##", DT_NUMBER, nullptr, ZTEO_AUTOSKIP};
constexpr SpiedSetup kEscaped = {"##~X##", DT_STRING};

// clang-format off
const MoveRow kMoves[] = {
    {"RightOneDigit",                      kDate,     "|07/04/95", KEY_RIGHT,     kData,  false, {"Right x1 data 5"}},
    {"RightOverALiteral",                  kDate,     "0|7/04/95", KEY_RIGHT,     kData,  false, {"Right x2 data 5"}},
    {"LeftOneDigit",                       kDate,     "07/0|4/95", KEY_LEFT,      kData,  false, {"Left x1 data 5"}},
    {"LeftOverALiteral",                   kDate,     "07/|04/95", KEY_LEFT,      kData,  false, {"Left x2 data 5"}},
    {"LeftOverSeveral",                    kPhone,    "(555) |123", KEY_LEFT,     kData,  false, {"Left x3 data 5"}},
    {"LeftAtTheStart",                     kDate,     "|07/04/95", KEY_LEFT,      kData,  false, {"Left x1 data 5"}},
    {"LeftOverTheLiteralsInFront",         kPhone,    "(|555) 123", KEY_LEFT,     kData,  false, {"Left x2 data 5"}},
    {"RightAtTheEnd",                      kDate,     "07/04/95|", KEY_RIGHT,     kData,  false, {}},
    {"RightOnTheLastByAKey",               kDate,     "07/04/9|5", KEY_RIGHT,     kData,  false, {"Right x1 data 5"}},
    {"RightOnTheLastWithoutAKey",          kDate,     "07/04/9|5", KEY_RIGHT,     kNoKey, false, {}},
    {"RightOnTheLastByAKeyOfItsOwnNumber", kDate,     "07/04/9|5", KEY_RIGHT,     -1,     false, {"Right x1 data -1"}},
    {"RightOnTheLastTells",                kSkipping, "07/04/9|5", KEY_RIGHT,     kData,  false, {"Full", "Right x1 data 5"}},
    {"RightAtTheEndTells",                 kSkipping, "07/04/95|", KEY_RIGHT,     kData,  false, {"Full"}},
    {"RightIntoAFractionWithoutDigits",    kHalf,     "1|.",       KEY_RIGHT,     kNoKey, false, {"Right x1 data 0"}},
    {"RightIntoAFractionTellsNobody",      kHalf,     "1|.",       KEY_RIGHT,     kData,  false, {"Right x1 data 5"}},
    {"RightBehindTheFractionTells",        kHalf,     "1.2|5",     KEY_RIGHT,     kData,  false, {"Full", "Right x1 data 5"}},
    {"RightWhereNoMaskIsGoesNowhere",      kEscaped,  "12X34yyyy|yy", KEY_RIGHT,  kData,  false, {}},
    {"LeftWhereNoMaskIsGoesNowhere",       kEscaped,  "12X34yyyy|yy", KEY_LEFT,   kData,  false, {}},
    {"BackspaceSelectsTheCharacterLeft",   kDate,     "07/0|4/95", KEY_BACKSPACE, kData,  false, {"Shift down", "Left x1 data 5"}},
    {"BackspaceSelectsALiteral",           kDate,     "07/|04/95", KEY_BACKSPACE, kData,  false, {"Shift down", "Left x1 data 5"}},
    {"BackspaceAtTheStart",                kDate,     "|07/04/95", KEY_BACKSPACE, kData,  false, {"Shift down", "Left x1 data 5"}},
    {"ShiftIsOneLeft",                     kDate,     "07/|04/95", KEY_LEFT,      kData,  true,  {"Left x1 data 5"}},
    {"ShiftIsOneLeftWhateverTheKey",       kDate,     "0|7/04/95", KEY_RIGHT,     kData,  true,  {"Left x1 data 5"}},
    {"ShiftIsOneLeftForBackspace",         kDate,     "07/0|4/95", KEY_BACKSPACE, kData,  true,  {"Left x1 data 5"}},
};
// clang-format on
TEST_ROWS(Rows, CaretMove, kMoves);

TEST(CaretMove, ByRightWithShiftHeldTellsNobodyThatTheFieldIsFull)
{
    Spied spied(kSkipping);
    spied.Show("07/04/9|5");
    spied.Edit().HoldRight(true);
    MoveCaret(spied.Record(), KEY_RIGHT, kData, true);
    EXPECT_EQ(spied.Spy().Count("Full"), 0) << "the end is being selected";
    MoveCaret(spied.Record(), KEY_RIGHT, kData, false);
    EXPECT_EQ(spied.Spy().Count("Full"), 1);
}

TEST(CaretMove, WithShiftButAnotherKeyTellsThatTheFieldIsFull)
{
    Spied spied(kSkipping);
    spied.Show("07/04/9|5");
    MoveCaret(spied.Record(), KEY_RIGHT, kData, true);
    EXPECT_EQ(spied.Spy().Count("Full"), 1);
}

TEST(CaretMove, OverATextFromOutsideIsNoLongerThanAMask)
{
    Spied spied({"#,##0", DT_NUMBER});
    spied.Edit().SetText((FromAscii("1") + Text(300, 'x') + FromAscii("2")).c_str());
    spied.Control().Select(1, 1);
    spied.Spy().Forget();
    MoveCaret(spied.Record(), KEY_RIGHT, kData, false);
    EXPECT_EQ(spied.Spy().Calls(), Calls{"Right x255 data 5"});
}

TEST(FullField, IsToldUnlessShiftAndRightAreHeld)
{
    for (const bool shift : {false, true})
        for (const bool right : {false, true}) {
            Spied spied(kSkipping);
            spied.Edit().HoldShift(shift);
            spied.Edit().HoldRight(right);
            MoveOnWhenFull(spied.Record());
            EXPECT_EQ(spied.Spy().Count("Full"), shift && right ? 0 : 1) << shift << right;
        }
}

TEST(FullField, IsToldWithAutoskipOnly)
{
    Spied spied(kDate);
    MoveOnWhenFull(spied.Record());
    EXPECT_EQ(spied.Spy().Count("Full"), 0);
}

// ---- distances

struct StepsRow {
    const char* name;
    SpiedSetup setup;
    const char* text;
    int32_t from;
    int32_t forward;
    int32_t backward;
};
void PrintTo(const StepsRow& row, std::ostream* out)
{
    *out << row.name;
}

class StepsTo : public RowTest<StepsRow> {};

ROW_TEST(StepsTo, TheNextPositionThatMayBeTypedAt)
{
    const StepsRow& row = GetParam();
    Spied spied(row.setup);
    const Text text = FromAscii(row.text);
    EXPECT_EQ(StepsToEditable(spied.Record(), text, row.from, Direction::Forward), row.forward);
    EXPECT_EQ(StepsToEditable(spied.Record(), text, row.from, Direction::Backward), row.backward);
}

// clang-format off
const StepsRow kSteps[] = {
    {"AtTheStart",            kDate,  "07/04/95",   0, 1, 0},
    {"OnTheSecond",           kDate,  "07/04/95",   1, 2, 1},
    {"OnALiteral",            kDate,  "07/04/95",   2, 1, 1},
    {"BehindALiteral",        kDate,  "07/04/95",   3, 1, 2},
    {"OnTheLast",             kDate,  "07/04/95",   7, 0, 1},
    {"AtTheEnd",              kDate,  "07/04/95",   8, 0, 1},
    {"BeforeTheStart",        kDate,  "07/04/95",  -1, 1, 0},
    {"BehindTheMask",         kEscaped, "12X34yyyy", 8, 0, 1},
    {"OnTheFirstLiteral",     kPhone, "(555) 123",  0, 1, 0},
    {"BehindTheFirstLiteral", kPhone, "(555) 123",  1, 1, 0},
    {"OnOneOfSeveral",        kPhone, "(555) 123",  4, 2, 1},
    {"OnTheLastOfSeveral",    kPhone, "(555) 123",  5, 1, 2},
};
// clang-format on
TEST_ROWS(Rows, StepsTo, kSteps);

struct FractionRow {
    const char* mask;
    const char* text;
    int32_t position;
    bool is;
};

TEST(Fraction, IsWhatStandsBehindThePointForTheMasksDigits)
{
    constexpr FractionRow kRows[] = {
        {"#,##0.00", "1,234.50", 5, false},
        {"#,##0.00", "1,234.50", 6, true },
        {"#,##0.00", "1,234.50", 7, true },
        {"#,##0.00", "1,234.50", 8, false},
        {"#,#.00",   ".50",      0, false},
        {"#,#.00",   ".50",      1, true },
        {"#,#.00",   ".50",      3, false},
        {"0.0",      "1.5",      2, true },
        {"0.0",      "1.5",      3, false},
        {"#,##0",    "1,234",    1, false},
        {"#,##0",    "1,234",    2, false},
        {"#,##0.00", "1234",     1, false},
        {"#,##0.00", "1234",     0, false},
    };
    for (const FractionRow& row : kRows) {
        Spied spied({row.mask, DT_NUMBER});
        EXPECT_EQ(IsInFraction(spied.Record(), FromAscii(row.text), row.position), row.is)
            << row.mask << row.text << row.position;
    }
}

// ---- over literals

struct SkipRow {
    const char* name;
    SpiedSetup setup;
    const char* text;
    int32_t position;
    int32_t caretSet;  // -1: left where it is
    bool follows;      // a position that may be typed at
};
void PrintTo(const SkipRow& row, std::ostream* out)
{
    *out << row.name;
}

class LiteralsSkipped : public RowTest<SkipRow> {};

ROW_TEST(LiteralsSkipped, LeadToTheNextPosition)
{
    const SkipRow& row = GetParam();
    Spied spied(row.setup);
    spied.Show(row.text);
    const Text text = spied.Edit().ReadText();
    EXPECT_EQ(SkipLiterals(spied.Record(), text, row.position), row.follows);
    const std::string at = std::to_string(row.caretSet);
    EXPECT_EQ(spied.Spy().Calls(), row.caretSet < 0 ? Calls{} : Calls{"Select " + at + "-" + at});
    EXPECT_EQ(spied.Record().carriedTo, std::max(row.caretSet, 0));
    EXPECT_EQ(spied.Record().carriedFrom, row.caretSet < 0 ? 0 : row.position);
}

// clang-format off
const SkipRow kSkips[] = {
    {"OneLiteral",              kDate,             "07/04/95|",   2, 3,  true },
    {"SeveralLiterals",         kPhone,            "(555) 123|",  4, 6,  true },
    {"AtADigitNone",            kDate,             "07/04/95|",   3, -1, true },
    {"BehindTheEndNone",        kDate,             "07/04/95|",   8, -1, false},
    {"LiteralsAtTheEnd",        {"## km", DT_STRING}, "12 km|",   2, -1, false},
    {"OfAnAmPmField",           {"HH:MM AM/PM", DT_TIME}, "02:30 PM|", 5, 6, true},
};
// clang-format on
TEST_ROWS(Rows, LiteralsSkipped, kSkips);

// ---- literals typed behind themselves

struct CarriedRow {
    const char* name;
    CarriedOver carried;
    int32_t caret;
    Char typed;
    bool is;
    CarriedOver left;
};
void PrintTo(const CarriedRow& row, std::ostream* out)
{
    *out << row.name;
}

class CarriedLiteral : public RowTest<CarriedRow> {};

ROW_TEST(CarriedLiteral, IsTakenOnce)
{
    const CarriedRow& row = GetParam();
    Spied spied({"##) -##", DT_STRING});
    EditInstance& edit = spied.Record();
    edit.carriedFrom = row.carried.from;
    edit.carriedTo = row.carried.to;
    const CarriedOver taken = TakeCarriedOver(edit);
    EXPECT_EQ(edit.carriedTo, 0);
    EXPECT_EQ(IsCarriedLiteral(edit, FromAscii("12) -34"), taken, row.caret, row.typed), row.is);
    EXPECT_EQ(edit.carriedTo, row.left.to);
    if (row.left.to != 0) {
        EXPECT_EQ(edit.carriedFrom, row.left.from);
    }
}

// clang-format off
const CarriedRow kCarried[] = {
    {"TheFirstOfThree",            {2, 5}, 5, ')', true,  {3, 5}},
    {"TheSecondOfThree",           {2, 5}, 5, ' ', true,  {4, 5}},
    {"TheLastOfThree",             {2, 5}, 5, '-', true,  {0, 0}},
    {"TheFirstOfTheTwoLeft",       {3, 5}, 5, ' ', true,  {4, 5}},
    {"OneThatWasTyped",            {3, 5}, 5, ')', false, {0, 0}},
    {"TheOneLeft",                 {4, 5}, 5, '-', true,  {0, 0}},
    {"ACharacterOfNoLiteral",      {2, 5}, 5, 'x', false, {0, 0}},
    {"ADigitBehind",               {2, 5}, 5, '3', false, {0, 0}},
    {"OneBehindAnotherCaret",      {2, 5}, 4, '-', false, {0, 0}},
    {"OneBehindACaretFurtherOn",   {2, 5}, 6, '-', false, {0, 0}},
    {"NoneWhereNothingWasCarried", {2, 0}, 0, ')', false, {0, 0}},
    {"NoneBehindTheText",          {2, 9}, 9, ')', false, {0, 0}},
    {"OneAtTheEndOfTheText",       {2, 7}, 7, ')', true,  {3, 7}},
};
// clang-format on
TEST_ROWS(Rows, CarriedLiteral, kCarried);

// ---- clicks

TEST(ClickCorrection, GoesByTheFieldsArrows)
{
    Spied spied(kPhone);
    spied.Show("(555)| 123");
    EXPECT_TRUE(CorrectClick(spied.Record()));
    EXPECT_EQ(spied.Spy().Calls(), Calls{"Right x1 data 0"});
    spied.Show("(555|) 123");
    EXPECT_TRUE(CorrectClick(spied.Record()));
    EXPECT_EQ(spied.Spy().Calls(), Calls{"Left x1 data 0"});
}

TEST(ClickCorrection, WithShiftHeldSelectsOneToTheLeft)
{
    Spied spied(kDate);
    spied.Show("07|/04/95");
    spied.Edit().HoldShift(true);
    EXPECT_TRUE(CorrectClick(spied.Record()));
    EXPECT_EQ(spied.Shown(), "0[7]/04/95");
}

TEST(ClickCorrection, IsNotMadeWhereTheCaretMayStay)
{
    for (const char* shown : {"|07/04/95", "07/|04/95", "07/04/95|", "07[/04]/95"}) {
        Spied spied(kDate);
        spied.Show(shown);
        EXPECT_FALSE(CorrectClick(spied.Record())) << shown;
        EXPECT_EQ(spied.Shown(), shown);
    }
}

TEST(ClickCorrection, IsNotMadeWhereAFractionMayBeTyped)
{
    Spied spied({"0.##%", DT_NUMBER});
    spied.Show("1.|%");
    EXPECT_FALSE(CorrectClick(spied.Record()));
    EXPECT_EQ(spied.Shown(), "1.|%");
}

TEST(ClickCorrection, IsForMasksEditedByPosition)
{
    EXPECT_TRUE(IsClickCorrected(Spied(kDate).Record()));
    EXPECT_TRUE(IsClickCorrected(Spied(kZeros).Record()));
    EXPECT_TRUE(IsClickCorrected(Spied({"XXXX", DT_STRING}).Record()));
    EXPECT_FALSE(IsClickCorrected(Spied({"#,#.00", DT_NUMBER}).Record()));
    EXPECT_FALSE(IsClickCorrected(Spied({"", DT_STRING, kCodes, ZTEO_SPIN | ZTEO_CODE_DISPLAY}).Record()));
}

// Shows an entry of the table.
class CodeClick : public testing::Test {
protected:
    void Show(uint32_t pick)
    {
        spied_ = std::make_unique<Spied>(SpiedSetup{"XXXXX", DT_STRING, kCodes, ZTEO_SPIN | ZTEO_CODE_DISPLAY | pick});
        SetDataString(Record(), FromAscii("G").c_str());
        ASSERT_TRUE(Has(Record(), CODE_POSITIONED));
    }
    EditInstance& Record() { return spied_->Record(); }

    std::unique_ptr<Spied> spied_;
};

TEST_F(CodeClick, EndsTheWalkOnce)
{
    Show(0);
    EXPECT_FALSE(IsClickCorrected(Record()));
    EXPECT_FALSE(Has(Record(), CODE_POSITIONED));
    EXPECT_TRUE(IsClickCorrected(Record()));
}

TEST_F(CodeClick, LeavesAPickListWhereItIs)
{
    Show(ZTEO_CODE_PICK);
    EXPECT_TRUE(IsClickCorrected(Record()));
    EXPECT_TRUE(Has(Record(), CODE_POSITIONED));
}

TEST_F(CodeClick, IsAnOrdinaryOneOnceTheTableIsNoMoreShown)
{
    Show(0);
    SetSpin(Record(), 1, nullptr, FromAscii(kCodes).c_str(), 0);
    EXPECT_TRUE(IsClickCorrected(Record()));
}

TEST_F(CodeClick, IsAnOrdinaryOneOnceTheTableIsGone)
{
    Show(0);
    SetSpin(Record(), 1, nullptr, nullptr, SPINSTYLE_CODETABLE);
    EXPECT_TRUE(IsClickCorrected(Record()));
}

}  // namespace
}  // namespace zttest
