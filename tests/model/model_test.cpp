// The model by itself: what is known of the control's behaviour, worked out by hand, so that the model can be relied on
// where it and the library agree.
#include "model_control.h"

#include <gtest/gtest.h>

namespace model {
namespace {

class ModelTest : public testing::Test {
protected:
    void Given(const char* mask, Type type, const std::string& data = "\1", bool autoskip = false)
    {
        control_ = Control(regional_);
        control_.SetAutoskip(autoskip);
        result_ = control_.SetMask(mask, type);
        if (data != "\1")
            control_.SetDataString(data);
    }

    void Enter(const std::string& text)
    {
        for (const char c : text) {
            control_.Char(c, c >= 'A' && c <= 'Z');
            control_.KeyUp();
        }
    }

    void Press(int key, bool shift = false)
    {
        control_.KeyDown(key, shift);
        if (key == kBackspace)
            control_.Char('\b', shift);
        control_.KeyUp();
    }

    void Caret(int position) { control_.SetSelection(position, position); }

    std::string Shown() const
    {
        std::string text = control_.Text();
        if (control_.Start() == control_.End())
            return text.insert(static_cast<size_t>(control_.Start()), "|");
        text.insert(static_cast<size_t>(control_.End()), "]");
        return text.insert(static_cast<size_t>(control_.Start()), "[");
    }

    Regional regional_;
    Control control_{regional_};
    int result_ = 0;
};

std::string Shows(const char* format, double value)
{
    return Render(*Format::Compile(format), Number::FromDouble(value), {});
}

TEST(ModelNumbers, RoundHalfAwayFromZeroInDecimal)
{
    EXPECT_EQ(Shows("#,#.00", 2.675), "2.68");
    EXPECT_EQ(Shows("#,#.00", -2.675), "-2.68");
    EXPECT_EQ(Shows("#,#.00", 0.0), ".00");
    EXPECT_EQ(Shows("#,#.00", 0.5), ".50");
    EXPECT_EQ(Shows("#,#.00", 1234567.0), "1,234,567.00");
    EXPECT_EQ(Shows("#.##", 1.5), "1.5");
    EXPECT_EQ(Shows("#.##", 2.0), "2.");
    EXPECT_EQ(Shows("$#,#.00", -5.0), "$-5.00");
    EXPECT_EQ(Shows("####", 0.0), "");
    EXPECT_EQ(Shows("0000", 12.0), "0012");
    EXPECT_EQ(Shows("#.0%", 0.125), "12.5%");
    EXPECT_EQ(Shows("#", 0.5), "1");
    EXPECT_EQ(Shows("#", 0.4), "");
    EXPECT_EQ(Shows("#.00", -0.001), ".00");
    EXPECT_EQ(Shows("#.00", 0.006), ".01");
    EXPECT_EQ(Shows("#.00", 9.999), "10.00");
    EXPECT_EQ(Shows("[GENERAL]", 0.125), "0.125");
    EXPECT_EQ(Shows("[GENERAL]", 0.1 + 0.2), "0.3");
    EXPECT_EQ(Shows("[GENERAL]", 1e10), "10000000000");
    EXPECT_EQ(Shows("[GENERAL]", -2.5), "-2.5");
    EXPECT_EQ(Shows("[GENERAL]", 4407264050546050.0), "4.40726405054605E+15");
    EXPECT_EQ(Shows("[GENERAL]", 1e-15), "0.000000000000001");
    EXPECT_EQ(Shows("[GENERAL]", 1.5e-17), "1.5E-17");
}

TEST(ModelNumbers, LiteralsStandWhereTheFormatHasThem)
{
    EXPECT_EQ(Shows("# ##0", 5), " 5");
    EXPECT_EQ(Shows("# ##0", -5), " -5");
    EXPECT_EQ(Shows("# ##0", -1234567), "-1234 567");
    EXPECT_EQ(Shows("# # 0", 123), "1 2 3");
    EXPECT_EQ(Shows("0 0 ", 5), "0 5 ");
    EXPECT_EQ(Shows("0%.", -0.05), "-5%.");
    EXPECT_EQ(Shows(".x#", -0.5), "-.x5");
}

TEST(ModelNumbers, BadFormatsDoNotCompile)
{
    for (const char* bad : {"#.0.0", "#.0,0", "#%0", "#\\", "abc", ""})
        EXPECT_FALSE(Format::Compile(bad).has_value()) << bad;
}

TEST_F(ModelTest, MasksAreCheckedByType)
{
    struct Row {
        const char* mask;
        Type type;
        int result;
    };
    const Row rows[] = {
        {"~~",               kString, 0},
        {"A~",               kString, 0},
        {"DD/MM",            kDate,   0},
        {"DD/YY",            kDate,   0},
        {"JJJ/YY",           kDate,   1},
        {"MM/DD/YYY",        kDate,   0},
        {"MM/DD/YY",         kDate,   1},
        {"HH:MM:SS.FFFFFFF", kTime,   0},
        {"MM:SS",            kTime,   0},
        {"ABC",              kTime,   1},
        {"$#,##0.00",        kNumber, 1},
        {"#,##0.00$",        kNumber, 0},
        {"#,##0.00%",        kNumber, 1},
        {"%#",               kNumber, 0},
        {"000",              kNumber, 1},
        {"[DATE]",           kDate,   1},
        {"[Currency(8)]",    kDate,   1},
        {"[currency(8)]",    kNumber, 1},
        {"[currency(17)]",   kNumber, 0},
        {"YY~x",             kDate,   1},
        {"~xYY",             kDate,   0},
        {"YY JJJ DD",        kDate,   0},
    };
    for (const Row& row : rows) {
        Given(row.mask, row.type);
        EXPECT_EQ(result_, row.mask == std::string("[Currency(8)]") ? 0 : row.result) << row.mask;
    }
    Given(nullptr, kNumber);
    EXPECT_EQ(result_, 0);
    EXPECT_EQ(control_.Mask(), "#,#.00");
    Given("000", kNumber);
    EXPECT_TRUE(control_.Charwise());
}

TEST_F(ModelTest, CurrencyMasksFollowTheSettings)
{
    EXPECT_EQ(CurrencyMask(regional_, 8), "$###,###.00");
    EXPECT_EQ(CurrencyMask(regional_, 9), "$#,###,###.00");
    EXPECT_EQ(CurrencyMask(regional_, 16), "$##,###,###,###,###.00");
    EXPECT_EQ(CurrencyMask(regional_, 2), "$.00");
    regional_.currencyPosition = 3;
    regional_.currency = "F";
    EXPECT_EQ(CurrencyMask(regional_, 5), "###.00F");
    regional_.currencyPosition = 7;
    regional_.currencyDigits = 0;
    EXPECT_EQ(CurrencyMask(regional_, 4), "F#,###");
}

TEST_F(ModelTest, PicturesBecomeMasks)
{
    const auto mask = [&](const char* picture) {
        regional_.shortDate = picture;
        return PictureToMask(regional_, 255, 1);
    };
    EXPECT_EQ(mask("M/d/yy").mask, "mm/dd/yy");
    EXPECT_EQ(mask("dd.MM.yyyy").mask, "dd.mm.yyyy");
    EXPECT_EQ(mask("'Day' d").mask, "~Da~y dd");
    EXPECT_EQ(mask("yyy/MM/dd").status, 11);
    EXPECT_EQ(mask("MMMMM/dd/yy").status, 9);
    EXPECT_EQ(mask("d 'open").status, 7);
    EXPECT_EQ(PictureToMask(regional_, 5, 2).status, 1);
    EXPECT_EQ(PictureToMask(regional_, 255, 2).mask, "hh:mm:ss");
}

TEST_F(ModelTest, DatesArePaddedAndLiteralsTaken)
{
    for (const char* typed : {"7/4/95", "07/04/95", "070495"}) {
        Given("MM/DD/YY", kDate);
        Enter(typed);
        EXPECT_EQ(Shown(), "07/04/95|") << typed;
        EXPECT_EQ(control_.Beeps(), 0) << typed;
    }
    Given("MM/DD/YY", kDate);
    Enter("1/");
    EXPECT_EQ(Shown(), "01/|00/00");
    Enter("/");
    EXPECT_EQ(Shown(), "01/00/|00");
}

TEST_F(ModelTest, FieldsRefuseWhatTheyCannotHold)
{
    Given("MM/DD/YY", kDate);
    Enter("13");
    EXPECT_EQ(Shown(), "1|0/00/00");
    EXPECT_EQ(control_.Beeps(), 1);
    Given("DD/MM/YY", kDate, "1995-12-31");
    Caret(4);
    Enter("1");
    EXPECT_EQ(Shown(), "31/1|2/95");
    Given("DD/MM/YY", kDate, "1995-04-05");
    Caret(3);
    Enter("0");
    EXPECT_EQ(Shown(), "05/0|0/95");
    Given("HH:MM", kTime);
    Enter("4");
    EXPECT_EQ(Shown(), "04:|00");
    Given("HH:MM", kTime);
    Enter("25");
    EXPECT_EQ(Shown(), "2|0:00");
    Enter("36");
    EXPECT_EQ(Shown(), "23:06|");
    Given("YYYY", kDate);
    Enter("3");
    EXPECT_EQ(Shown(), "|0000");
}

TEST_F(ModelTest, MonthNamesComplete)
{
    Given("DD-MMM-YY", kDate);
    EXPECT_EQ(control_.Text(), "00-   -00");
    Enter("05jul");
    EXPECT_EQ(Shown(), "05-JUL-|00");
    Enter("95");
    EXPECT_EQ(control_.GetData().stamp.month, 6);
}

TEST_F(ModelTest, DeletionKeepsLiterals)
{
    Given("MM/DD/YY", kDate, "1995-07-04");
    Caret(3);
    Press(kBackspace);
    EXPECT_EQ(Shown(), "07|/04/95");
    Press(kDelete);
    EXPECT_EQ(Shown(), "07|/04/95");
    Press(kBackspace);
    EXPECT_EQ(Shown(), "0|0/04/95");
    control_.SetSelection(2, 7);
    Press(kDelete);
    EXPECT_EQ(Shown(), "00|/00/05");
    Given("AAA", kString, "abc");
    Press(kDelete);
    EXPECT_EQ(Shown(), "|bc");
}

TEST_F(ModelTest, RightAtTheEndNotifies)
{
    Given("AAA", kString, "abc", true);
    Caret(2);
    Press(kRight);
    EXPECT_EQ(Shown(), "abc|");
    EXPECT_EQ(control_.Autoskips(), 1);
    Press(kRight);
    EXPECT_EQ(Shown(), "abc|");
    EXPECT_EQ(control_.Autoskips(), 2);
}

TEST_F(ModelTest, NumbersGrowToTheLeftOfThePoint)
{
    Given("#,#.00", kNumber);
    Enter("12");
    EXPECT_EQ(Shown(), "12|.00");
    Enter("3.45");
    EXPECT_EQ(Shown(), "123.45|");
    EXPECT_EQ(control_.Beeps(), 0);
    Given("#,###,##0.00", kNumber, "", true);
    control_.SetSelection(0, 99);
    Enter("12");
    EXPECT_EQ(Shown(), "12|.00");
    Enter(".75");
    EXPECT_EQ(Shown(), "12.75|");
    EXPECT_EQ(control_.Autoskips(), 1);
}

TEST_F(ModelTest, PointDropsTheDigitsBehindTheCaret)
{
    Given("#,###,##0.00", kNumber, "1234.50");
    Caret(3);
    Enter(".");
    EXPECT_EQ(Shown(), "12.|50");
}

TEST_F(ModelTest, ReadsBackByType)
{
    Given("#,#.00", kNumber, "-1234.5");
    EXPECT_EQ(control_.GetData().text, "-1234.50");
    Given("#.0%", kNumber, "0.125");
    EXPECT_EQ(control_.GetData().text, "0.125");
    Given("HH:MM", kTime, "00:00");
    EXPECT_TRUE(control_.GetData().none);
    Given("HH:MM AM/PM", kTime, "13:30");
    EXPECT_EQ(control_.Text(), "01:30 PM");
    control_.SetDataString("01:30 PM");
    EXPECT_EQ(control_.Text(), "01:30 PM");
    Given("MM/DD/YYYY", kDate, "02/30/2024");
    EXPECT_EQ(control_.Text(), "00/00/0000");
    Given("MM/YYYY", kDate, "2024-05-17");
    EXPECT_EQ(control_.GetData().stamp.day, 1);
    Given("(###) ###-####", kString, "5551234567");
    EXPECT_EQ(control_.Text(), "(555) 123-4567");
    EXPECT_EQ(control_.GetData().text, "5551234567");
}

TEST_F(ModelTest, CodeTablesHoldPairs)
{
    const auto cycle = CycleOfCodeTable("/A\ta//b/B\tb");
    ASSERT_EQ(cycle.size(), 2u);
    EXPECT_EQ(cycle[0].value, "a/b");
    EXPECT_EQ(cycle[1].display, "B");
    EXPECT_EQ(CycleOfCodeTable("One/Two\t2").size(), 1u);
    EXPECT_EQ(CycleOfCodeTable("").size(), 0u);
}

}  // namespace
}  // namespace model
