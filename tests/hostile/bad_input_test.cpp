// Input that no careful host or user would give: nothing crashes, overruns memory or loses blocks. (Bad texts: tests/texts.)
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "tests/support/clipboard.h"
#include "tests/support/live/window_test.h"
#include "tests/support/profile.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// True when no heap of the process has been written past a block.
bool HeapsAreSound()
{
    std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
    GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    return std::all_of(heaps.begin(), heaps.end(), [](HANDLE heap) { return HeapValidate(heap, 0, nullptr); });
}

class Hostile : public WindowTest {
protected:
    void TearDown() override { EXPECT_TRUE(HeapsAreSound()); }

    // Every kind of key once, with the caret wherever the last one left it.
    void PressEverything()
    {
        Play(
            "5a-+.,/: P%{Back}{Del}{Left}{Right}{Home}{End}{Shift+Left}7{Shift+Home}{Del}{Shift+End}{Back}"
            "{Ins}{Shift+Ins}{Up}{Down}{Ctrl+C}{Ctrl+V}{Ctrl+X}{Tab}{Esc}{Enter}1");
    }

    // Whatever came before: under a mask that fits its type the control takes, shows and gives back a value.
    void ExpectItWorks()
    {
        EXPECT_EQ(ZTE_FmtSetMask(Window(), "MM/DD/YY", DT_DATE), 1);
        ZTE_FmtSetDataString(Window(), "1995-07-04");
        PutCaret(0);
        Type("12");
        EXPECT_EQ(Shown(), "12/|04/95");
        EXPECT_EQ(Value(), "1995-12-04");
    }
};

// ---- Masks ----------------------------------------------------------------------------------------------------------

std::string Repeated(const std::string& text, size_t times)
{
    std::string repeated;
    repeated.reserve(text.size() * times);
    for (size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

TEST_F(Hostile, ANullMaskIsTheDefault)
{
    Config config;
    config.type = DT_NUMBER;
    Make(config);
    EXPECT_EQ(ZTE_FmtSetMask(Window(), nullptr, DT_NUMBER), 0);
    EXPECT_EQ(Text(), ".00");
}

TEST_F(Hostile, AMaskOf256CharactersIsRejected)
{
    Config config;
    config.mask = "##";
    Make(config);
    EXPECT_EQ(ZTE_FmtSetMask(Window(), std::string(256, '#').c_str(), DT_STRING), 0);
}

TEST_F(Hostile, AMaskOf255CharactersIsTaken)
{
    Config config;
    config.mask = "##";
    Make(config);
    EXPECT_EQ(ZTE_FmtSetMask(Window(), std::string(255, '#').c_str(), DT_STRING), 1);
    Type("5");
    EXPECT_EQ(Text()[0], '5');
}

TEST_F(Hostile, AMaskOfHighBytesIsShown)
{
    Config config;
    config.mask = "\xE4\xF6#";
    config.data = "5";
    Make(config);
    EXPECT_EQ(Text(),
              "\xE4\xF6"
              "5");
}

class TypeOfNoKind : public Hostile, public OfRow<int32_t> {};

ROW_TEST(TypeOfNoKind, IsSurvived)
{
    Config config;
    config.mask = "##/AA";
    config.type = GetParam();
    config.data = "1234";
    Make(config);
    PutCaret(0);
    PressEverything();
    SharedHeapFree(control_->heap(), ZTE_FmtGetData(Window()));
    SharedHeapFree(control_->heap(), ZTE_FmtUnformatData(Window(), "12/34"));
    EXPECT_EQ(ZTE_FmtGetDataType(Window()), static_cast<uint16_t>(GetParam()));
    ExpectItWorks();
}

TEST_ROWS_OF(Types, TypeOfNoKind, 0, 7, 8, -1, 255, INT32_MAX, INT32_MIN);

// ---- Data -----------------------------------------------------------------------------------------------------------

struct MaskOfType {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;   // a value that it can show
    const char* shown;  // the value under the mask
};

void PrintTo(const MaskOfType& row, std::ostream* out)
{
    *out << row.name;
}

// The one without a mask stands first: it shows a text of any length.
// clang-format off
const MaskOfType kMasks[] = {
    {"StringWithoutMask",     nullptr,                     DT_STRING,   "any text",            "any text"              },
    {"String",                "(###) XXX-!!!",             DT_STRING,   "123a-zXYZ",           "(123) a-z-XYZ"         },
    {"StringWithoutLiterals", "XXXX",                      DT_STRING,   "abcd",                "abcd"                  },
    {"Number",                "#,##0.00",                  DT_NUMBER,   "1234.5",              "1,234.50"              },
    {"Percentage",            "#,##0.00%",                 DT_NUMBER,   "0.125",               "12.50%"                },
    {"Amount",                "[currency(16)]",            DT_NUMBER,   "1234.5",              "$1,234.50"             },
    {"General",               "[GENERAL]",                 DT_NUMBER,   "1234.5",              "1234.5"                },
    {"Decimal",               "#,##0.00",                  DT_DECIMAL,  "1234.5",              "1,234.50"              },
    {"DecimalPercentage",     "#,##0.00%",                 DT_DECIMAL,  "0.125",               "12.50%"                },
    {"Date",                  "MM/DD/YY",                  DT_DATE,     "1995-07-04",          "07/04/95"              },
    {"DateWithName",          "DD-MMM-YYYY",               DT_DATE,     "1995-07-04",          "04-JUL-1995"           },
    {"DayOfYear",             "JJJ/YYYY",                  DT_DATE,     "1995-07-04",          "185/1995"              },
    {"Time",                  "HH:MM:SS:FFFFFF",           DT_TIME,     "14:07:09:000250",     "14:07:09:000250"       },
    {"TwelveHours",           "HH:MM AM/PM",               DT_TIME,     "14:07",               "02:07 PM"              },
    {"DateTime",              "MM/DD/YYYY HH:MM:SS AM/PM", DT_DATETIME, "1995-07-04 14:07:09", "07/04/1995 02:07:09 PM"},
};
// clang-format on

std::vector<MaskOfType> Masked()
{
    return {std::begin(kMasks) + 1, std::end(kMasks)};
}

// A field under one of the masks.
class HostileField : public Hostile {
protected:
    void MakeField(const MaskOfType& mask, uint32_t options = 0, const char* data = nullptr)
    {
        Config config;
        config.mask = mask.mask;
        config.type = mask.type;
        config.options = options;
        config.data = data;
        config.increment = 1;
        Make(config);
        PutCaret(0);
    }
    void ReadAndDrop() { SharedHeapFree(control_->heap(), ZTE_FmtGetData(Window())); }

    // Whatever came before: the next value is shown as ever.
    void ExpectItShowsAValue(const MaskOfType& mask)
    {
        ZTE_FmtSetDataString(Window(), mask.data);
        EXPECT_EQ(Text(), mask.shown);
    }
};

class FieldOfEachKind : public HostileField, public OfRow<MaskOfType> {
protected:
    void MakeField(uint32_t options = 0) { HostileField::MakeField(GetParam(), options); }
    void ExpectItShowsAValue() { HostileField::ExpectItShowsAValue(GetParam()); }
};

ROW_TEST(FieldOfEachKind, TakesNoControlCharacter)
{
    MakeField();
    EmptyTheClipboard();
    ExpectItShowsAValue();
    for (int byte = 0; byte < 0x20; ++byte) {
        PutCaret(0);
        SendMessageA(Window(), WM_CHAR, static_cast<WPARAM>(byte), 1);
        EXPECT_EQ(Text(), GetParam().shown) << "after character " << byte;
    }
}

ROW_TEST(FieldOfEachKind, SurvivesNullTexts)
{
    MakeField();
    ZTE_FmtSetDataString(Window(), nullptr);
    ZTE_FmtSetData(Window(), nullptr);
    EXPECT_EQ(ZTE_FmtUnformatData(Window(), nullptr), nullptr);
    EXPECT_EQ(ZTE_FmtUnformatData(Window(), ""), nullptr);
    ExpectItShowsAValue();
}

ROW_TEST(FieldOfEachKind, SurvivesATextLimitBelowItsLength)
{
    MakeField(ZTEO_AUTOSKIP);
    SendMessageA(Window(), EM_SETLIMITTEXT, 2, 0);
    PressEverything();
    ZTE_FmtSetDataString(Window(), "123");
    PressEverything();
    ExpectItShowsAValue();
}

ROW_TEST(FieldOfEachKind, SurvivesTextsFromOutsideFollowedByEveryKey)
{
    MakeField(ZTEO_AUTOSKIP | ZTEO_SPIN);
    const std::string shown = Text();
    const std::vector<std::string> texts = {"",
                                            "1",
                                            shown.substr(0, shown.size() / 2),
                                            shown + "9999",
                                            "????????",
                                            "\xFF\xFE\x80",
                                            std::string(254, '9'),
                                            std::string(300, '9'),
                                            "-.,-.,-",
                                            std::string(2000, 'x')};
    for (const std::string& text : texts)
        for (const int caret : {0, static_cast<int>(text.size() / 2), static_cast<int>(text.size())}) {
            SetWindowTextA(Window(), text.c_str());
            PutCaret(caret);
            Play("5{Del}{Back}a./:{Left}{Right}{Up}{Down}-");
        }
    SetWindowTextA(Window(), "1");
    PressEverything();
    ReadAndDrop();
    ExpectItShowsAValue();
}

ROW_TEST(FieldOfEachKind, SurvivesASettingsChangeInTheMiddle)
{
    MakeField();
    ZTE_FmtSetDataString(Window(), "1234.5");
    {
        const Regional german(kGerman);
        PutCaret(0);
        PressEverything();
        ZTE_FmtSetDataString(Window(), "1234.5");
        PressEverything();
    }
    ExpectItShowsAValue();
}

ROW_TEST(FieldOfEachKind, LosesNoBlocksOverManyKeys)
{
    MakeField(ZTEO_AUTOSKIP);
    const uint32_t before = SharedHeapBlockCount(control_->heap());
    for (int i = 0; i < 10; ++i)
        PressEverything();
    EXPECT_EQ(SharedHeapBlockCount(control_->heap()), before);
}

ROW_TEST(FieldOfEachKind, LosesNoBlocksOverManyMasks)
{
    MakeField();
    const uint32_t before = SharedHeapBlockCount(control_->heap());
    for (int i = 0; i < 10; ++i) {
        ZTE_FmtSetMask(Window(), "#,##0.00", DT_NUMBER);
        ZTE_FmtSetMask(Window(), "wrong ~", DT_DATE);
        ZTE_FmtSetMask(Window(), "[currency(9)]", DT_DECIMAL);
        ZTE_FmtSetMask(Window(), GetParam().mask, GetParam().type);
    }
    EXPECT_EQ(SharedHeapBlockCount(control_->heap()), before);
}

ROW_TEST(FieldOfEachKind, SurvivesAFloodOfRandomMessages)
{
    MakeField(ZTEO_AUTOSKIP | ZTEO_SPIN);
    CopyToClipboard("1995-07-04");
    uint32_t seed = 12345;
    const auto next = [&seed](uint32_t below) {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % below;
    };
    constexpr UINT kMessages[] = {WM_CHAR,  WM_KEYDOWN, WM_KEYUP,       WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK,
                                  WM_PASTE, WM_CUT,     WM_COPY,        WM_CLEAR,       WM_UNDO,      EM_UNDO,
                                  WM_MOVE,  WM_SIZE,    WM_SETFOCUS,    WM_KILLFOCUS,   EM_SETSEL,    EM_SETLIMITTEXT,
                                  WM_CHAR,  WM_KEYDOWN, EM_SCROLLCARET, WM_CHAR,        WM_KEYDOWN,   EM_SETREADONLY};
    constexpr UINT kCount = sizeof kMessages / sizeof *kMessages;
    for (int i = 0; i < 4000; ++i) {
        const UINT message = kMessages[next(kCount)];
        const bool character = message == WM_CHAR;
        const WPARAM wParam = next(character ? 256 : 60);
        const LPARAM lParam =
            message == EM_SETSEL ? static_cast<LPARAM>(next(300)) : static_cast<LPARAM>(next(0x10000));
        SendMessageA(Window(), message, message == EM_SETREADONLY ? 0 : wParam, lParam);
    }
    ExpectItShowsAValue();
}

class MaskedField : public FieldOfEachKind {};

ROW_TEST(MaskedField, SurvivesAMegabyteOnTheClipboard)
{
    MakeField();
    CopyToClipboard(std::string(1 << 20, '7'));
    Press('V', kCtrl);
    ReadAndDrop();
    PutCaret(0);
    Play("5{Del}{Back}");
    ExpectItShowsAValue();
}

TEST_ROWS(Fields, MaskedField, Masked());

// Letters: over as many digits in one word the system's own edit control thinks for half a minute.
TEST_F(Hostile, AStringWithoutAMaskShowsAHundredThousandCharacters)
{
    const std::string text(100000, 'x');
    Config config;
    config.data = text.c_str();
    Make(config);
    EXPECT_EQ(Value(), text);
}

TEST_F(Hostile, AStringWithoutAMaskTakesALongTextFromTheClipboard)
{
    Make(Config());
    const std::string text = Repeated("abcdefghij", 1000);
    CopyToClipboard(text);
    SendMessageA(Window(), WM_PASTE, 0, 0);
    EXPECT_EQ(Value(), text);
}

TEST_ROWS(Fields, FieldOfEachKind, kMasks);

TEST_F(Hostile, AnEmptyNumberReadsAsZero)
{
    GivenText("#,##0.00", DT_NUMBER, "");
    EXPECT_EQ(Value(), "0");
}

TEST_F(Hostile, AnEmptyDateReadsAsNoDate)
{
    GivenText("MM/DD/YY", DT_DATE, "");
    EXPECT_EQ(Value(), "");
}

TEST_F(Hostile, ANotANumberShowsAsZero)
{
    Given("#,##0.00", DT_NUMBER, "5.00");
    const double value = std::numeric_limits<double>::quiet_NaN();
    ZTE_FmtSetData(Window(), &value);
    EXPECT_EQ(Text(), "0.00");
}

TEST_F(Hostile, InfinityShowsAsZero)
{
    Given("#,##0.00", DT_NUMBER, "5.00");
    const double value = -std::numeric_limits<double>::infinity();
    ZTE_FmtSetData(Window(), &value);
    EXPECT_EQ(Text(), "0.00");
}

TEST_F(Hostile, TheLargestNumberIsSurvived)
{
    Given("#,##0.00", DT_NUMBER, "5.00");
    const double value = std::numeric_limits<double>::max();
    ZTE_FmtSetData(Window(), &value);
    EXPECT_EQ(Text().substr(0, 8), "179,769,");
    PutCaret(0);
    PressEverything();
    SharedHeapFree(control_->heap(), ZTE_FmtGetData(Window()));
    ExpectItWorks();
}

struct WrongDate {
    const char* name;
    DateTimeValue value;
};

void PrintTo(const WrongDate& row, std::ostream* out)
{
    *out << row.name;
}

class DateOutOfRange : public HostileField, public OfRow<WrongDate> {};

ROW_TEST(DateOutOfRange, IsSurvived)
{
    for (const MaskOfType& mask : kMasks) {
        if (mask.type != DT_DATE && mask.type != DT_TIME && mask.type != DT_DATETIME)
            continue;
        MakeField(mask);
        ZTE_FmtSetData(Window(), &GetParam().value);
        FormatResult* shown = ZTE_FmtFormatData(Window(), &GetParam().value);
        ASSERT_NE(shown, nullptr);
        SharedHeapFree(control_->heap(), shown->text);
        SharedHeapFree(control_->heap(), shown);
        PutCaret(0);
        PressEverything();
        ReadAndDrop();
        ExpectItShowsAValue(mask);
    }
}

// clang-format off
const WrongDate kWrongDates[] = {
    {"AllOnes",     {0xFFFFFFFFu, -1,     -1,   -1,   -1,   -1,   -1,   -1  }},
    {"AllLargest",  {0xFFFFFFFFu, 32767,  127,  127,  127,  127,  127,  127 }},
    {"AllSmallest", {0,           -32768, -128, -128, -128, -128, -128, -128}},
    {"MonthTwelve", {0,           95,     12,   1,    0,    0,    0,    0   }},
    {"DayZero",     {0,           95,     6,    0,    0,    0,    0,    0   }},
};
// clang-format on
TEST_ROWS(Values, DateOutOfRange, kWrongDates);

}  // namespace
}  // namespace zttest
