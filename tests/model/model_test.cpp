// The model by itself: what is known of the control's behaviour, worked out by hand, so that the model can be relied on
// where it and the library agree.
#include "model_control.h"
#include "script.h"

#include <gtest/gtest.h>

#include <algorithm>

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

    void Play(const std::string& script)
    {
        for (const Step& step : StepsOf(script))
            if (step.kind == StepKind::Key)
                Press(step.a, step.b != 0);
            else
                Enter(std::string(1, static_cast<char>(step.a)));
    }

    // A number mask with what it shows, "|" for the caret or "[" and "]" around a selection; none of them for all.
    void GivenShown(const char* mask, std::string shown, bool autoskip = false)
    {
        Given(mask, kNumber, "\1", autoskip);
        const size_t caret = shown.find_first_of("|[");
        if (caret != std::string::npos)
            shown.erase(caret, 1);
        const size_t end = shown.find(']');
        if (end != std::string::npos)
            shown.erase(end, 1);
        control_.SetDataString(shown);
        ASSERT_EQ(control_.Text(), shown) << mask;
        const auto start = static_cast<int>(caret != std::string::npos ? caret : 0);
        const int length = static_cast<int>(shown.size());
        const auto last = end != std::string::npos ? static_cast<int>(end) : start;
        control_.SetSelection(start, caret != std::string::npos ? last : length);
    }

    struct Typed {
        const char* mask;
        const char* start;
        const char* keys;
        const char* shown;
        int beeps;
        const char* reads;
    };

    void Check(const std::vector<Typed>& rows)
    {
        for (const Typed& row : rows) {
            GivenShown(row.mask, row.start);
            Play(row.keys);
            const std::string what = std::string(row.mask) + " over " + row.start + " typed " + row.keys;
            EXPECT_EQ(Shown(), row.shown) << what;
            EXPECT_EQ(control_.Beeps(), row.beeps) << what;
            EXPECT_EQ(control_.GetData().text, row.reads) << what;
        }
    }

    void Money(const char* symbol, int position, int digits, char decimal, char thousand)
    {
        regional_.currency = symbol;
        regional_.currencyPosition = position;
        regional_.currencyDigits = digits;
        regional_.decimal = decimal;
        regional_.thousand = thousand;
    }

    // Fraction places of a mask; the currency masks have those of the setting.
    size_t PlacesOf(const std::string& mask) const
    {
        const size_t point = mask.find_last_of('.');
        if (mask[0] == '[')
            return static_cast<size_t>(regional_.currencyDigits);
        return point == std::string::npos ? 0 : mask.find_last_of("#0") - point;
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

// clang-format off
TEST_F(ModelTest, WhoeverTypesANumberGetsIt)
{
    Check({
        {"0000",          "1234",             "5678",      "5678|",         0, "5678"},
        {"00.00",         "12.34",            "56.78",     "56.78|",        0, "56.78"},
        {"00.00",         "12.34",            "5678",      "56.78|",        0, "56.78"},
        {"00.00",         "12.34",            ".5",        "00.5|0",        0, "00.50"},
        {"000.0%",        "098.7%",           "12.5",      "012.5|%",       0, "0.125"},
        {"#,##0.00",      "1,234.56",         ".5",        "0.5|0",         0, "0.50"},
        {"#,##0.00",      "5.00",             "-0.5",      "-0.5|0",        0, "-0.50"},
        {"#,##0.00",      "|0.00",            "-0.05",     "-0.05|",        0, "-0.05"},
        {"#,#.00",        "|.00",             "-0.5",      "-.5|0",         0, "-.50"},
        {"#,#.00",        "|.00",             "-.05",      "-.05|",         0, "-.05"},
        {"#,#.00",        "|.00",             "05",        "5|.00",         0, "5.00"},
        {"#,###,###.00",  "|.00",             "0123",      "123|.00",       0, "123.00"},
        {"$#,##0.00",     "$12.00",           "-5",        "$-5|.00",       0, "-5.00"},
        {"[currency(9)]", "$12.00",           "-5",        "$-5|.00",       0, "-5.00"},
        {"$#,##0.00",     "$12.00",           "$1,234.50", "$1,234.50|",    1, "1234.50"},
        {"#,##0.00",      "1,234.50",         "x12",       "12|.00",        1, "12.00"},
        {"#,##0.00",      "45.00|", "{Back}{Back}{Back}{Back}{Back}{Back}12", "12|.00", 0, "12.00"},
        {"##0",           "10|",              "{Back}{Back}25", "25|",      0, "25"},
        {"#,##0.00",      "|0.00",            "5",         "5|.00",         0, "5.00"},
        {"#,##0.00",      "0|.00",            "5",         "5|.00",         0, "5.00"},
        {"##0%",          "[98]%",            "125",       "125|%",         0, "1.25"},
        {"000%",          "[098]%",           "125",       "125|%",         0, "1.25"},
        {"###%",          "[98]%",            "125",       "125|%",         0, "1.25"},
        {"###%",          "98|%",             "{Back}{Back}125", "125|%",   0, "1.25"},
        {"#,##0.00%",     "65.0[0]%",         "5",         "65.05|%",       0, "0.6505"},
        {"#,##0.00",      "1,234|.00",        "{Back}",    "123|.00",       0, "123.00"},
        {"#,###,###.00",  "1|,234,567.89",    "9",         "1,9|34,567.89", 0, "1934567.89"},
        {"#,###.00",      "|1,234.56",        "-",         "-|1,234.56",    0, "-1234.56"},
        {"###%",          "98%",              "056",       "56|%",          0, "0.56"},
        {"#%",            "9%",               "07",        "7|%",           0, "0.07"},
        {"[currency(8)]", "$98.00",           "056",       "$56|.00",       0, "56.00"},
        {"$###",          "$123",             "-56",       "$-56|",         0, "-56"},
        {"$#,##0.00",     "$123.00",          "-56",       "$-56|.00",      0, "-56.00"},
        {"#,##0%",        "567%",             "56{Back}7", "57|%",          0, "0.57"},
        {"$#,##0.00",     "$[5.00]",          "12",        "$12|.00",       0, "12.00"},
        {"$#,##0.00",     "$[5.00]",          "-56",       "$-56|.00",      0, "-56.00"},
        {"#,##0.00",      "8.00",             "-1234.56",  "-1,234.56|",    0, "-1234.56"},
        {"#,#.00",        "|.00",             "123.45",    "123.45|",       0, "123.45"},
        {".00",           "|.00",             "0.25",      ".25|",          0, ".25"},
        {"#.##",          "|.",               ".0x5",      ".05|",          1, ".05"},
        {"#.##",          "|.",               "7.50",      "7.50|",         0, "7.50"},
        {"##0",           "|-6",              "{End}{Back}5", "-5|",        0, "-5"},
        {"####################", "|",         "12345678901234567890", "12345678901234567890|", 0, "12345678901234567890"},
    });
}

TEST_F(ModelTest, CaretAndDigitsKeepTheirPlaces)
{
    Check({
        {"#,##0.00",     "13|.00",         "{Shift+End}{Del}",   "13|.00",        0, "13.00"},
        {"#,##0.00",     "[1,234].50",     "{Del}",              "|0.50",         0, "0.50"},
        {"#,##0.00",     "1,[23]4.50",     "{Del}",              "1|4.50",        0, "14.50"},
        {"0000",         "1[23]4",         "{Del}",              "1|004",         0, "1004"},
        {"0000",         "|1234",          "{Del}{Del}{Del}{Del}", "|0000",       0, "0000"},
        {"0000",         "|1234",          "{Del}",              "0|234",         0, "0234"},
        {"0000",         "12|34",          "{Back}",             "1|034",         0, "1034"},
        {"0000",         "|1234",          "-9",                 "-9|234",        0, "-9234"},
        {"#,##0.00",     "|-5.00",         "3",                  "3|5.00",        0, "35.00"},
        {"$#,##0.00",    "|$5.00",         "3",                  "$3|5.00",       0, "35.00"},
        {"$#,##0.00",    "|$5.00",         "-",                  "$-|5.00",       0, "-5.00"},
        {"$#,##0.00",    "$|-5.00",        "+",                  "$|5.00",        0, "5.00"},
        {"#,##0.00",     "1|2.00",         "-",                  "1|2.00",        1, "12.00"},
        {"#,##0.00",     "1|2.00",         "+",                  "1|2.00",        1, "12.00"},
        {"#,##0.00",     "|0.00",          "-",                  "-|0.00",        0, "0.00"},
        {"#,##0.00",     "|0.00",          "-x5",                "-5|.00",        1, "-5.00"},
        {"#,##0.00",     "|0.00",          "-{Back}5",           "5|.00",         0, "5.00"},
        {"###",          "|",              "-",                  "-|",            0, "0"},
        {"#,##0.00",     "|1,234.56",      "0",                  "0,|234.56",     0, "0234.56"},
        {"#,##0.00",     "|1,234.56",      "0x",                 "|234.56",       1, "234.56"},
        {"#,##0.00",     "|12.00",         "0",                  "|12.00",        0, "12.00"},
        {"#,##0.00",     "|0.00",          "0",                  "0|.00",         0, "0.00"},
        {"#,##0.00",     "1,23|4.56",      "9",                  "1,239.|56",     0, "1239.56"},
        {"###",          "12|3",           "4",                  "124|",          0, "124"},
        {"###",          "123|",           "4x-",                "123|",          0, "123"},
        {"###%",         "123|%",          "4",                  "123|%",         1, "1.23"},
        {"###%",         "123|%",          "%",                  "123%|",         0, "1.23"},
        {"#,##0.00",     "1.25|",          "7x.",                "1.25|",         0, "1.25"},
        {"#,##0.00",     "1.|25",          ".",                  "1.|25",         1, "1.25"},
        {"#,##0.00",     "1.2|5",          ".",                  "1.2|5",         1, "1.25"},
        {"#,##0.00",     "12|3.45",        ".",                  "12.|45",        0, "12.45"},
        {"00.00",        "1|2.34",         ".",                  "01.|34",        0, "01.34"},
        {"#,##0.00",     "1|,234.00",      ",",                  "1,|234.00",     0, "1234.00"},
        {"#,##0.00",     "12|.00",         ",",                  "12|.00",        1, "12.00"},
        {"#,##0.00",     "1.2|5",          "{Back}",             "1.|05",         0, "1.05"},
        {"#.##",         "1.25|",          "{Back}",             "1.2|",          0, "1.2"},
        {"#.##",         "1.|25",          "{Del}",              "1.|5",          0, "1.5"},
        {"#,##0.00",     "1.|25",          "{Del}",              "1.|50",         0, "1.50"},
        {"#,##0.00",     "1|.25",          "{Del}",              "1|.25",         0, "1.25"},
        {"#,##0.00",     "1|,234.00",      "{Del}",              "1|,234.00",     0, "1234.00"},
        {"#,##0.00",     "|-1.00",         "{Del}",              "|1.00",         0, "1.00"},
        {"#,##0.00",     "1,2|34.00",      "{Del}",              "12|4.00",       0, "124.00"},
        {"#.000",        "1.[2]34",        "9",                  "1.9|34",        0, "1.934"},
        {"#,##0.00",     "1,[234].00",     "9",                  "19|.00",        0, "19.00"},
        {"~N~o~5 #,##0", "No5 |0",         "7",                  "No5 7|",        0, "7"},
        {"~N~o~5 #,##0", "No5 |0",         "No5 7",              "No5 7|",        0, "7"},
        {"~N~o~5 #,##0", "|No5 3",         "7",                  "No5 7|3",       0, "73"},
    });
}

TEST_F(ModelTest, SymbolsAreLiteralsWhateverTheyHold)
{
    Money("kr.", 2, 2, ',', '.');
    Check({
        {"[currency(9)]", "kr.|,00",     "1234,5",      "kr.1.234,5|0", 0, "1234,50"},
        {"[currency(9)]", "kr.98,00",    "kr.12",       "kr.12|,00",    0, "12,00"},
        {"[currency(9)]", "kr.98,00",    "-,5",         "kr.-,5|0",     0, "-,50"},
        {"[currency(9)]", "|kr.98,00",   "1",           "kr.1|98,00",   0, "198,00"},
    });
    Money("Fr.", 0, 2, '.', '\'');
    Check({{"[currency(9)]", "Fr.8.00", "Fr.12.5", "Fr.12.5|0", 0, "12.50"}});
    Money("MXN", 1, 2, '.', ',');
    Check({
        {"[currency(5)]", "8.00MXN",     "123.45",      "123.45|MXN",   0, "123.45"},
        {"[currency(5)]", "8.00MXN",     "123.45MXN",   "123.45MXN|",   0, "123.45"},
    });
    Money("XAF", 0, 0, ',', ' ');
    Check({{"[currency(4)]", "XAF8", "1234", "XAF1 234|", 0, "1234"}});
    Money("F", 1, 0, '.', ',');
    Check({{"[currency(3)]", "[123]F", "456", "456|F", 0, "456"}});
    Money("0x", 0, 2, '.', ',');
    Check({{"[currency(6)]", "0x8.00", "12.5", "0x12.5|0", 0, "12.50"}});
}
// clang-format on

// Digits of a value without the zeros that say nothing.
std::string Plain(const std::string& value, size_t places)
{
    const Number number = Number::FromText(value);
    const std::string text = PlainText(number, '.');
    const size_t point = text.find('.');
    return point == std::string::npos || text.size() - point - 1 <= places ? text : "";
}

// Every value that fits is typed from every start; what is read back is what was typed.
TEST_F(ModelTest, EveryValueIsTypedUnderEveryMask)
{
    const std::string masks[] = {
        "#,##0.00", "#,#.00", "###.##", "##0.0", "###.00", "#,###.00", "$#,##0.00", "$###.0", "#,#.00%", "###.0#",
        "[currency(8)]", "[currency(5)]", "[currency(9)]", "#00.00", "###.0##", "US $##0.0", "~N~5 ##0.0", "##0%",
        "###%", "###", "$###", "##0", "#,###"};
    const std::string values[] = {"0", "5", "12", "123", "-5", "-123", "0.5", "-0.5", ".5", "-.5", "1.5", "00", "05", "012",
                                  "-05", "0.0", "-0.0", "7.", "+5", "100", "101", "-100", "10", "9.9", "0.25", "-12.05"};
    const std::string starts[] = {"", "{sel}", "{sel}{Del}", "{sel}{Back}",
                                  "{End}{Back}{Back}{Back}{Back}{Back}{Back}{Back}{Back}", "{Home}{Del}{Del}"};
    const char* const symbols[] = {"$", "kr.", "F", "MXN", "0x"};
    int typed = 0;
    for (int setting = 0; setting < 10; ++setting) {
        Money(symbols[setting / 2], setting % 2, 2, setting % 4 < 2 ? '.' : ',', setting % 4 < 2 ? ',' : '.');
        for (const std::string& mask : masks)
            for (const std::string& start : starts)
                for (const std::string& value : values) {
                    const bool blank = start.empty() || start[1] == 'H';
                    Given(mask.c_str(), kNumber, blank ? "0" : "87");
                    const size_t places = std::min<size_t>(2, PlacesOf(mask));
                    const std::string wanted = Plain(value, places);
                    if (result_ == 0 || wanted.empty() || (places == 0 && value.find('.') != std::string::npos))
                        continue;
                    std::string script = start;
                    if (script.compare(0, 5, "{sel}") == 0) {
                        control_.SetSelection(0, 99);
                        script.erase(0, 5);
                    }
                    std::string keys = value;
                    std::replace(keys.begin(), keys.end(), '.', regional_.Point());
                    Play(script + keys);
                    std::string text = control_.GetData().text;
                    std::replace(text.begin(), text.end(), regional_.Point(), '.');
                    Number read = Number::FromText(text);
                    if (mask.back() == '%')
                        read = read.TimesPowerOfTen(2);
                    EXPECT_EQ(PlainText(read, '.'), wanted) << mask << " " << regional_.currency << " " << start << value;
                    EXPECT_EQ(control_.Beeps(), 0) << mask << " " << regional_.currency << " " << start << value;
                    ++typed;
                }
    }
    EXPECT_GT(typed, 10000);
}

TEST_F(ModelTest, BackspaceIsForgottenByTheNextKey)
{
    Given("##0", kNumber, "10");
    Caret(2);
    control_.KeyDown(kBackspace, false);
    control_.KeyUp();
    Play("{End}8{Back}");
    EXPECT_EQ(Shown(), "10|");
    EXPECT_EQ(control_.Beeps(), 0);
    Enter("\b");
    EXPECT_EQ(Shown(), "10|");
}

TEST_F(ModelTest, LastFractionDigitMovesOn)
{
    Money("F", 1, 2, '.', ',');
    GivenShown("[currency(5)]", "123.|45F", true);
    Enter("8");
    EXPECT_EQ(control_.Autoskips(), 0);
    Enter("9");
    EXPECT_EQ(control_.Autoskips(), 1);
    EXPECT_EQ(Shown(), "123.89|F");
}

TEST_F(ModelTest, ControlCharactersLeaveASelection)
{
    for (const char c : {'\t', '\r', '\x1a', '\x1b'}) {
        GivenShown("#,##0.00", "[12].00");
        Enter(std::string(1, c));
        EXPECT_EQ(Shown(), "[12].00");
    }
    Enter("\x01");
    EXPECT_EQ(Shown(), "[12.00]");
    Enter("\x18");
    EXPECT_EQ(Shown(), "|0.00");
}

TEST_F(ModelTest, ShownTextsAreTakenAsData)
{
    Given("#,##0.00", kNumber, "1,234.50");
    EXPECT_EQ(control_.Text(), "1,234.50");
    Given("#.0%", kNumber, "12.5%");
    EXPECT_EQ(control_.Text(), "12.5%");
    Given("#.0%", kNumber, "0.125");
    EXPECT_EQ(control_.Text(), "12.5%");
    control_.Paste("12.5%");
    EXPECT_EQ(control_.Text(), "12.5%");
    control_.Paste("7");
    EXPECT_EQ(control_.Text(), "7.0%");
    regional_.decimal = ',';
    regional_.thousand = '.';
    Given("[currency(9)]", kNumber, "98,70");
    EXPECT_EQ(control_.Text(), "$98,70");
    control_.SetDataString("1.234");
    EXPECT_EQ(control_.Text(), "$1,23");
    control_.SetDataString("$-1.234,5");
    EXPECT_EQ(control_.Text(), "$-1.234,50");
    Given("#,##0.000000000000000000%", kDecimal, "0.12345678901234567891");
    regional_ = {};
    Given("#,##0.000000000000000000%", kDecimal, "0.12345678901234567891");
    EXPECT_EQ(control_.GetData().text, "0.12345678901234567891");
    for (const char* text : {"1E+15", "1E-20", "1E+300"}) {
        Given("[GENERAL]", kNumber, text);
        EXPECT_EQ(control_.GetData().text, text);
    }
}

TEST_F(ModelTest, ModifiedIsWhatTheUserChanged)
{
    Given("#,##0.00", kNumber, "5");
    EXPECT_FALSE(control_.Modified());
    Enter("1");
    EXPECT_TRUE(control_.Modified());
    control_.SetDataString("5");
    EXPECT_FALSE(control_.Modified());
    Press(kDelete);
    EXPECT_TRUE(control_.Modified());
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
