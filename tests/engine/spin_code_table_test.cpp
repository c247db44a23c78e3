// Code tables: how their text is read, how they are cycled, and how typing chooses from them.
#include <gtest/gtest.h>

#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class CodeTableTest : public SpinTest {
protected:
    CodeTableView Table() const { return control_->CodeTable().value(); }
    int Count() const { return static_cast<int>(Table().entries.size()); }

    // Every text of the table that is reached by stepping, as "display=value", in the order of the steps.
    std::vector<std::string> Cycle(const char* codes)
    {
        MakeCodeTable("XXXXXXXX", DT_STRING, codes, SPINSTYLE_CODETABLE);
        std::vector<std::string> reached;
        for (int left = CycleLength(); left > 0; --left) {
            Up();
            reached.push_back(Text() + "=" + Value());
        }
        return reached;
    }

    int CycleLength() const
    {
        int length = 0;
        for (const CodeView& entry : Table().entries)
            length += entry.value.has_value();
        return length;
    }
};

struct TableText {
    const char* name;
    const char* codes;
    std::vector<std::string> cycle;
    int entries;
};
void PrintTo(const TableText& row, std::ostream* out)
{
    *out << row.name;
}

class CodeTableText : public CodeTableTest, public OfRow<TableText> {};

ROW_TEST(CodeTableText, IsReadAs)
{
    const TableText& row = GetParam();
    EXPECT_EQ(Cycle(row.codes), row.cycle);
    EXPECT_EQ(Count(), row.entries);
}

TEST_ROWS_OF(Texts, CodeTableText,
             TableText{
                 "ThreeColours", "Red\tR/Green\tG/Blue\tB", {"Red=R", "Green=G", "Blue=B"},
                   3
},
             TableText{"ASlashAtTheStartIsSkipped", "/A\ta/B\tb", {"A=a", "B=b"}, 2},
             TableText{"ASlashAtTheEndEndsTheLastEntry", "A\ta/B\tb/", {"A=a", "B=b"}, 2},
             TableText{"TwoSlashesAreOne", "/A\ta//b/B\tb", {"A=a/b", "B=b"}, 2},
             TableText{"TwoSlashesAreOneInADisplay", "a//b\t1/c\t2", {"a/b=1", "c=2"}, 2},
             TableText{"TwoSlashesAreOneAtTheEnd", "A\ta//", {"A=a/"}, 1},
             TableText{"TwoSlashesAreOneAtTheStart", "//A\ta", {"/A=a"}, 1},
             TableText{"ThreeSlashesAreALiteralAndASeparator", "A\ta///B\tb", {"A=a/", "B=b"}, 2},
             TableText{"FourSlashesAreTwo", "A\ta////b", {"A=a//b"}, 1},
             TableText{"WithoutAValueOutOfTheCycle", "One/Two\t2", {"Two=2"}, 2},
             TableText{"ADisplayOfABlank", "a\t1/ \t2/b\t3", {"a=1", " =2", "b=3"}, 3},
             TableText{"AnEmptyDisplayIsReadAsNothing", "a\t1/\t2", {"a=1", "="}, 2},
             TableText{"AnEmptyValue", "a\t/b\t2", {"a=", "b=2"}, 2},
             TableText{"AnEmptyValueAtTheEnd", "a\t", {"a="}, 1},
             TableText{"ASecondTabBeginsTheValueAnew", "a\tb\tc", {"b=c"}, 1},
             TableText{"BlanksStay", " a \t b ", {" a = b "}, 1}, TableText{"NoEntries", "", {}, 0},
             TableText{"OnlyASlash", "/", {}, 0});

TEST_F(CodeTableTest, TextsOfMoreThan255CharactersAreCut)
{
    const std::string display(300, 'x');
    const std::string value(300, 'y');
    Cycle((display + "\t" + value + "/b\t2").c_str());
    const std::vector<CodeView> entries = Table().entries;
    EXPECT_EQ(entries[0].display, std::string(255, 'x'));
    EXPECT_EQ(entries[0].value, std::string(255, 'y'));
    EXPECT_EQ(entries[1].display, "b");
}

TEST_F(CodeTableTest, GrowsBy51Slots)
{
    std::string codes;
    for (int i = 0; i < 51; ++i)
        codes += "d" + std::to_string(i) + "\t" + std::to_string(i) + "/";
    Cycle(codes.c_str());
    EXPECT_EQ(Table().capacity, 51);
    Cycle((codes + "last\t51").c_str());
    EXPECT_EQ(Table().capacity, 102);
    EXPECT_EQ(Count(), 52);
    EXPECT_EQ(Text(), "last");
}

TEST_F(CodeTableTest, AnEmptyTextLeavesAnEmptyTable)
{
    MakeCodeTable("XXXX", DT_STRING, "", SPINSTYLE_CODETABLE);
    ASSERT_TRUE(control_->CodeTable());
    EXPECT_EQ(Table().capacity, 51);
    EXPECT_EQ(Count(), 0);
    control_->SetDataString("ab");
    Up();
    EXPECT_EQ(Text(), "ab");
    EXPECT_TRUE(Record().codePositioned);
    EXPECT_EQ(control_->Notices().size(), 1u);
}

TEST_F(CodeTableTest, ANullTextLeavesNone)
{
    MakeCodeTable("XXXX", DT_STRING, "a\t1", SPINSTYLE_CODETABLE);
    SetSpin(1, nullptr, nullptr, 0);
    EXPECT_FALSE(control_->CodeTable());
}

TEST_F(CodeTableTest, ALongTextOfManyEntriesIsRead)
{
    std::string codes;
    for (int i = 0; i < 20000; ++i)
        codes += "d\t" + std::to_string(i) + "/";
    MakeCodeTable("XXXX", DT_STRING, codes.c_str(), SPINSTYLE_CODETABLE);
    EXPECT_EQ(Count(), 20000);
}

TEST_F(CodeTableTest, MoreEntriesThanATableHoldsAreCutOff)
{
    std::string codes;
    for (int i = 0; i < 40000; ++i)
        codes += "d\tv/";
    MakeCodeTable("XXXX", DT_STRING, codes.c_str(), SPINSTYLE_CODETABLE);
    EXPECT_GT(Count(), 30000);
    EXPECT_GE(Table().capacity, Count());
    Down();
    EXPECT_EQ(Text(), "d");
}

constexpr char kColours[] = "Red\tR/Green\tG/Blue\tB";

class Cycling : public CodeTableTest {
protected:
    void SetUp() override { MakeCodeTable("XXXXXXXX", DT_STRING, kColours, SPINSTYLE_CODETABLE); }

    std::string Texts(const std::vector<Arrow>& arrows)
    {
        std::string texts;
        for (const Arrow arrow : arrows) {
            Step(arrow);
            texts += (texts.empty() ? "" : " ") + Text();
        }
        return texts;
    }
    static constexpr Arrow kUp = Arrow::Up;
    static constexpr Arrow kDown = Arrow::Down;
};

TEST_F(Cycling, UpGoesFromTheFirstOnAndAround)
{
    EXPECT_EQ(Texts({kUp, kUp, kUp, kUp}), "Red Green Blue Red");
}

TEST_F(Cycling, DownGoesFromTheLastBackAndAround)
{
    EXPECT_EQ(Texts({kDown, kDown, kDown, kDown}), "Blue Green Red Blue");
}

TEST_F(Cycling, TurnsRound)
{
    EXPECT_EQ(Texts({kUp, kUp, kDown, kDown, kUp}), "Red Green Red Blue Red");
}

TEST_F(Cycling, GoesOnFromTheValueSet)
{
    control_->SetData("G");
    EXPECT_EQ(Texts({kUp}), "Blue");
    control_->SetData("G");
    EXPECT_EQ(Texts({kDown}), "Red");
}

TEST_F(Cycling, GoesOnAfterTheValueWasRead)
{
    Up();
    EXPECT_EQ(Value(), "R");
    EXPECT_EQ(Texts({kUp}), "Green");
    EXPECT_EQ(Value(), "G");
}

TEST_F(Cycling, StartsAgainAfterAValueThatIsNotInTheTable)
{
    control_->SetData("G");
    control_->SetData("nothing");
    EXPECT_EQ(Texts({kUp}), "Red");
}

TEST_F(Cycling, StartsAgainAfterTyping)
{
    control_->SetData("G");
    Play("{Home}q");
    EXPECT_EQ(Texts({kDown}), "Blue");
}

TEST_F(Cycling, NotifiesTheHost)
{
    Up();
    ASSERT_FALSE(control_->Notices().empty());
    EXPECT_EQ(control_->Notices().back(), Notice::Changed);
}

TEST_F(Cycling, LeavesValuesOfOtherTypesReadable)
{
    MakeCodeTable("##0", DT_NUMBER, "few\t3/many\t100", SPINSTYLE_CODETABLE);
    Up();
    Up();
    EXPECT_EQ(Text(), "many");
    EXPECT_EQ(Value(), "100");
}

TEST_F(Cycling, IsNotDoneWithoutTheStyle)
{
    MakeCodeTable("##0", DT_NUMBER, "few\t3/many\t100", 0);
    Up();
    EXPECT_EQ(Text(), "1");
}

TEST_F(Cycling, WithTheStyleAndWithoutATableNothingHappens)
{
    MakeCodeTable("XXXX", DT_STRING, nullptr, SPINSTYLE_CODETABLE);
    Up();
    EXPECT_EQ(Changes(), 0);
    EXPECT_FALSE(Record().spun);
}

TEST_F(Cycling, ShowsTheEntryThatStandsForNoData)
{
    MakeCodeTable("XXXX", DT_STRING, "none\tnull!/a\t1", SPINSTYLE_CODETABLE);
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "none");
    EXPECT_EQ(Texts({kUp}), "a");
}

TEST_F(Cycling, SurvivesATableReplacedInItsNotice)
{
    control_->OnNotice([this] { control_->SetSpin(1, nullptr, "new\tn", SPINSTYLE_CODETABLE); });
    Up();
    EXPECT_EQ(Text(), "Red");
    control_->OnNotice(nullptr);
    Up();
    EXPECT_EQ(Text(), "new");
    control_->AcceptBlocks();
}

constexpr char kWeekdays[] = "Monday\tMO/Tuesday\tTU/Wednesday\tWE/Thursday\tTH/Friday\tFR";
constexpr uint32_t kThroughTable = ZTEO_SPIN | ZTEO_CODE_DISPLAY;
constexpr uint32_t kPickList = kThroughTable | ZTEO_CODE_PICK;

// A list of weekdays; the first press goes on from the day shown, whatever has brought it there.
struct Weekdays {
    const char* name;
    const char* mask;
    uint32_t options;
};
void PrintTo(const Weekdays& row, std::ostream* out)
{
    *out << row.name;
}

class WeekdayList : public CodeTableTest, public OfRow<Weekdays> {
protected:
    void Create(const char* data)
    {
        Config config;
        config.mask = GetParam().mask;
        config.type = DT_STRING;
        config.options = GetParam().options;
        config.increment = 1;
        config.codes = kWeekdays;
        config.data = data;
        Make(config);
    }
};

ROW_TEST(WeekdayList, GoesOnFromTheDayItWasCreatedWith)
{
    Create("WE");
    Up();
    EXPECT_EQ(Text(), "Thursday");
    Create("WE");
    Down();
    EXPECT_EQ(Text(), "Tuesday");
}

ROW_TEST(WeekdayList, GoesOnFromTheDaySet)
{
    Create(nullptr);
    control_->SetDataString("FR");
    Up();
    EXPECT_EQ(Text(), "Monday");
}

ROW_TEST(WeekdayList, GoesOnAfterAClick)
{
    Create("WE");
    Up();
    control_->Click(2);
    Up();
    EXPECT_EQ(Text(), "Friday");
    control_->Click(2);
    Down();
    EXPECT_EQ(Text(), "Thursday");
}

ROW_TEST(WeekdayList, GoesOnFromATextThatTheProgramHasPutThere)
{
    Create(nullptr);
    control_->SetText("Tuesday");
    Up();
    EXPECT_EQ(Text(), "Wednesday");
}

ROW_TEST(WeekdayList, GoesOnAfterTheValueWasRead)
{
    Create("WE");
    EXPECT_EQ(Value(), "WE");
    Up();
    EXPECT_EQ(Text(), "Thursday");
}

ROW_TEST(WeekdayList, BeginsAtItsEndWhereNoDayIsShown)
{
    Create(nullptr);
    Up();
    EXPECT_EQ(Text(), "Monday");
    Create(nullptr);
    Down();
    EXPECT_EQ(Text(), "Friday");
    control_->SetText("Someday");
    control_->Click(1);  // the cursor stands nowhere
    Up();
    EXPECT_EQ(Text(), "Monday");
}

class PickedWeekday : public WeekdayList {};
class TypedWeekday : public WeekdayList {};

ROW_TEST(PickedWeekday, GoesOnFromAnEntryChosenByItsLetter)
{
    Create(nullptr);
    Type("T");
    EXPECT_EQ(Text(), "Tuesday");
    Up();
    EXPECT_EQ(Text(), "Wednesday");
    control_->Click(1);
    Type("M");
    Down();
    EXPECT_EQ(Text(), "Friday");
}

ROW_TEST(TypedWeekday, GoesOnFromADayTyped)
{
    Create("WE");
    SelectAll();
    Type("Monday");
    EXPECT_EQ(Text().substr(0, 6), "Monday");
    Up();
    EXPECT_EQ(Text(), "Tuesday");
}

ROW_TEST(TypedWeekday, GoesOnFromADataValueTyped)
{
    Create("WE");
    SelectAll();
    Type("TH");
    Up();
    EXPECT_EQ(Text(), "Friday");
}

ROW_TEST(TypedWeekday, BeginsAtItsEndAfterTypingThatIsNoDay)
{
    Create("WE");
    Up();
    SelectAll();
    Type("q");
    Down();
    EXPECT_EQ(Text(), "Friday");
}

constexpr Weekdays kTyped[] = {
    {"UnderAMask",   "XXXXXXXXX", kThroughTable},
    {"WithoutAMask", "",          kThroughTable}
};
constexpr Weekdays kPicked[] = {
    {"PickListUnderAMask",   "XXXXXXXXX", kPickList},
    {"PickListWithoutAMask", "",          kPickList}
};
TEST_ROWS(Typed, WeekdayList, kTyped);
TEST_ROWS(Picked, WeekdayList, kPicked);
TEST_ROWS(Lists, TypedWeekday, kTyped);
TEST_ROWS(Lists, PickedWeekday, kPicked);

TEST_F(CodeTableTest, GoesOnFromAValueShownAmongLiterals)
{
    MakeCodeTable("(XX)", DT_STRING, "One\taa/Two\tbb/Three\tcc", SPINSTYLE_CODETABLE);
    control_->SetText("(bb)");
    Up();
    EXPECT_EQ(Text(), "Three");
}

TEST_F(CodeTableTest, GoesOnFromANumberShown)
{
    MakeCodeTable("##0", DT_NUMBER, "few\t3/many\t100/all\t999", SPINSTYLE_CODETABLE);
    control_->SetText("100");
    Up();
    EXPECT_EQ(Text(), "all");
}

TEST_F(CodeTableTest, ABlankFieldShowsNoValue)
{
    MakeCodeTable("XX", DT_STRING, "One\t/Two\t2", SPINSTYLE_CODETABLE);
    Up();
    EXPECT_EQ(Text(), "One");
}

class TypeAhead : public CodeTableTest {
protected:
    void SetUp() override
    {
        MakeCodeTable("XXXXXXXX", DT_STRING, "Amber\t1/Green\t2/Grey\t3/Hidden/Gold\t4/Teal\t5",
                      SPINSTYLE_CODETABLE | SPINSTYLE_PICKLIST);
    }
};

TEST_F(TypeAhead, ShowsTheFirstEntryOfTheLetter)
{
    Type("T");
    EXPECT_EQ(Text(), "Teal");
    EXPECT_EQ(Value(), "5");
}

TEST_F(TypeAhead, GoesOnToTheNextOfTheSameLetterAndAround)
{
    control_->SetData("2");
    std::string texts;
    for (int i = 0; i < 4; ++i) {
        Type("G");
        texts += Text() + " ";
    }
    EXPECT_EQ(texts, "Grey Gold Green Grey ");
}

TEST_F(TypeAhead, GoesOnAlsoWhenNothingWasShownBefore)
{
    std::string texts;
    for (int i = 0; i < 4; ++i) {
        Type("G");
        texts += Text() + " ";
    }
    EXPECT_EQ(texts, "Green Grey Gold Green ");
}

TEST_F(TypeAhead, KnowsCase)
{
    control_->SetData("3");
    Type("t");
    EXPECT_EQ(Text(), "Grey");
}

TEST_F(TypeAhead, LeavesTheCursorWhenNothingIsFound)
{
    control_->SetData("3");
    Type("q");
    EXPECT_EQ(Text(), "Grey");
    Up();
    EXPECT_EQ(Text(), "Gold");
}

TEST_F(TypeAhead, NeverReachesAnEntryWithoutAValue)
{
    control_->SetData("1");
    Type("H");
    EXPECT_EQ(Text(), "Amber");
}

TEST_F(TypeAhead, SendsNoNoticeOfItsOwn)
{
    control_->SetData("1");
    control_->Forget();
    Type("q");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(TypeAhead, ByTheUserSetsTheModifiedFlag)
{
    control_->SetData("1");
    EXPECT_FALSE(control_->IsModified());
    Type("T");
    EXPECT_TRUE(control_->IsModified());
    control_->SetData("1");
    EXPECT_FALSE(control_->IsModified());
    Type("q");
    EXPECT_FALSE(control_->IsModified()) << "nothing was chosen";
}

TEST_F(TypeAhead, OfTheEntryShownChangesNothing)
{
    control_->SetData("5");
    Type("T");
    EXPECT_EQ(Text(), "Teal");
    EXPECT_FALSE(control_->IsModified());
}

TEST_F(TypeAhead, WithoutATableDoesNothing)
{
    MakeCodeTable("XXXX", DT_STRING, nullptr, SPINSTYLE_CODETABLE | SPINSTYLE_PICKLIST);
    control_->SetDataString("ab");
    const std::string before = Text();
    Type("G");
    EXPECT_EQ(Text(), before);
}

}  // namespace
}  // namespace zttest
