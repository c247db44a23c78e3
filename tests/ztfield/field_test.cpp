// A field by its functions: what it tells, what its positions are, what a user and a program do.
#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

#include "tests/ztfield/field.h"

namespace zttest::fields {
namespace {

// ---- what it tells

TEST(Events, AreToldInTheirOrder)
{
    Field field("MM/DD/YYYY", DT_DATE);
    EXPECT_EQ(field.Told(), "") << "making a field is no event";
    field.Type("7");
    EXPECT_EQ(field.Told(), "changed state 0>1");
    field.Type("x");
    EXPECT_EQ(field.Told(), "rejected 1@3 beep");
    field.Type("/4/2026");
    field.Told();
    field.Press('Z', ZTF_CONTROL);
    EXPECT_EQ(field.Told(), "changed state 4>0 value");
}

TEST(ARefusal, ThatIsTakenDoesNotBeep)
{
    Field field("##", DT_STRING);
    field.takesRefusals = true;
    field.Type("x");
    EXPECT_EQ(field.Told(), "rejected 1@0");
    field.takesRefusals = false;
    field.Type("x");
    EXPECT_EQ(field.Told(), "rejected 1@0 beep");
}

TEST(AClassicField, TellsNoReasons)
{
    Field field("##", DT_STRING, 0);
    field.Type("x");
    EXPECT_EQ(field.Told(), "beep");
    field.Type("1");
    EXPECT_EQ(field.Told(), "changed");
}

TEST(Full, IsToldWithAutoskipAlone)
{
    Field field("##", DT_STRING, ZTEO_MODERN | ZTEO_AUTOSKIP);
    field.Type("12");
    EXPECT_EQ(field.Told(), "changed state 0>4 changed full");
    ZTF_SetAutoskip(field.get(), 0);
    field.Press(ZTF_KEY_BACKSPACE);
    field.Told();
    field.Type("2");
    EXPECT_EQ(field.Told().find("full"), std::string::npos);
}

ZTFieldSetup SpinSetup()
{
    ZTFieldSetup setup = {};
    setup.mask = "##0";
    setup.dataType = DT_NUMBER;
    setup.options = ZTEO_MODERN | ZTEO_SPIN;
    setup.range = "0~10";
    setup.increment = 5;
    setup.data = "5";
    return setup;
}

TEST(ASpin, StepsByKeysTheWheelAndItsArrows)
{
    Field field(SpinSetup());
    ZTF_Step(field.get(), 1);
    EXPECT_EQ(field.Text(), "10");
    EXPECT_EQ(field.Told(), "changed value");
    field.Press(ZTF_KEY_UP);
    EXPECT_EQ(field.Told(), "rejected 9@0 beep");
    field.Press(ZTF_KEY_DOWN);
    EXPECT_EQ(field.Text(), "5");
    ZTF_Wheel(field.get(), -1);
    EXPECT_EQ(field.Text(), "0");
    ZTF_ShowSpin(field.get(), 0);
    ZTF_Wheel(field.get(), 1);
    EXPECT_EQ(field.Text(), "0");
}

TEST(AKeyThatIsHeld, MakesStepsThatAreUndoneTogether)
{
    ZTFieldSetup setup = SpinSetup();
    setup.range = "0~100";
    const Field field(setup);
    for (int i = 0; i < 3; ++i)
        ZTF_KeyDown(field.get(), ZTF_KEY_UP, 0);
    ZTF_KeyUp(field.get(), ZTF_KEY_UP, 0);
    EXPECT_EQ(field.Text(), "20");
    field.Press('Z', ZTF_CONTROL);
    EXPECT_EQ(field.Text(), "5");
    field.Press(ZTF_KEY_UP);
    field.Press(ZTF_KEY_UP);
    field.Press('Z', ZTF_CONTROL);
    EXPECT_EQ(field.Text(), "10") << "steps of keys pressed anew are undone one by one";
}

TEST(ARange, MakesAnotherStateAndGoesWithTheSpin)
{
    Field field(SpinSetup());
    field.Press('A', ZTF_CONTROL);
    field.Type("77");
    EXPECT_EQ(ZTF_GetState(field.get()), ZTS_OUT_OF_RANGE);
    field.Told();
    ZTF_ShowSpin(field.get(), 0);
    EXPECT_EQ(ZTF_GetState(field.get()), ZTS_COMPLETE);
    EXPECT_EQ(field.Told(), "state 3>4");
}

TEST(Choices, AreTakenByTheirFirstLetters)
{
    ZTFieldSetup setup = {};
    setup.options = ZTEO_MODERN | ZTEO_SPIN | ZTEO_CODE_PICK | ZTEO_CODE_DISPLAY;
    setup.codeTable = "Red\tr/Gr\u00fcn\tg/Grey\ty";
    const Field field(setup);
    field.Type("gr");
    EXPECT_EQ(field.Text(), "Gr\u00fcn");
    EXPECT_EQ(field.Value(), "g");
    ZTF_LetTimePass(field.get(), 1500);
    field.Type("r");
    EXPECT_EQ(field.Text(), "Red");
}

// ---- positions

// "m0m0-d1": each position as its letter and part, literals as they are shown.
std::string Map(const Field& field)
{
    static const char kKinds[] = "-#nAX!^ymdjhisfa";
    std::string map;
    for (int32_t i = 0; i < ZTF_CountPositions(field.get()); ++i) {
        ZTFieldPosition position = {};
        EXPECT_EQ(ZTF_GetPosition(field.get(), i, &position), 1);
        map += position.kind == ZTF_LITERAL ? static_cast<char>(position.character) : kKinds[position.kind];
        map += position.part >= 0 ? std::to_string(position.part) : position.escaped ? "~" : "";
    }
    return map;
}

struct MapRow {
    const char* mask;
    int32_t type;
    const char* data;
    const char* map;
};

TEST(Positions, AreThoseOfTheTextShown)
{
    const MapRow rows[] = {
        {"MM/DD/YYYY", DT_DATE, "", "m0m0/d1d1/y2y2y2y2"},
        {"DDMMYY", DT_DATE, "", "d0d0m1m1y2y2"},
        {"JJJ/YYYY", DT_DATE, "", "j0j0j0/y1y1y1y1"},
        {"DD-MMM-YYYY", DT_DATE, "", "d0d0-m1m1m1-y2y2y2y2"},
        {"HH:MM:SS.FF", DT_TIME, "", "h0h0:i1i1:s2s2.f3f3"},
        {"HH:MM AM/PM", DT_TIME, "09:30", "h0h0:i1i1 a2a2"},
        {"AM/PM HH:MM", DT_TIME, "09:30", "a0a0 h1h1:i2i2"},
        {"HH:MM AM/PM)", DT_TIME, "09:30", "h0h0:i1i1 a2a2)"},
        {"~(###~) A!^X", DT_STRING, "", "(~#0#0#0)~ A1!2^3X4"},
        {"#,##0.00", DT_NUMBER, "-1234.5", "n0n0,n0n0n0.n1n1"},
        {"$#,##0.00", DT_NUMBER, "12", "$n0n0.n1n1"},
        {"", DT_STRING, "abc", ""},
    };
    for (const MapRow& row : rows) {
        const Field field(row.mask, row.type);
        EXPECT_EQ(ZTF_TrySetDataString(field.get(), row.data), 0) << row.mask;
        EXPECT_EQ(Map(field), row.map) << row.mask;
    }
}

TEST(Positions, OutsideOfTheTextAreNone)
{
    const Field field("##", DT_STRING);
    ZTFieldPosition position = {7, 7, 7, 7};
    EXPECT_EQ(ZTF_GetPosition(field.get(), -1, &position), 0);
    EXPECT_EQ(ZTF_GetPosition(field.get(), 2, &position), 0);
    EXPECT_EQ(position.kind + static_cast<int32_t>(position.character) + position.escaped + position.part, 0);
    EXPECT_EQ(ZTF_GetPosition(field.get(), 1, nullptr), 1);
}

// ---- the user and the program

TEST(Keys, WithTheCharactersTheyMakeArePressedAsOne)
{
    const Field field("MM/DD/YYYY", DT_DATE);
    field.Type("070495");
    field.Press(ZTF_KEY_BACKSPACE);
    field.Press(ZTF_KEY_HOME);
    field.Press(ZTF_KEY_RIGHT, ZTF_SHIFT);
    EXPECT_EQ(field.Shown(), "[0]7/04/2009");
    field.Press('C', ZTF_CONTROL);
    EXPECT_EQ(TextOf([&](char* buffer, int32_t size) { return ZTF_GetClipboard(field.get(), buffer, size); }), "0");
    field.Press('A', ZTF_CONTROL);
    field.Press('X', ZTF_CONTROL);
    EXPECT_EQ(field.Text(), "  /  /    ");
    field.Press('V', ZTF_CONTROL);
    EXPECT_EQ(ZTF_CanUndo(field.get()), 1);
    field.Press('Z', ZTF_CONTROL);
    EXPECT_EQ(ZTF_CanRedo(field.get()), 1);
    field.Press('Y', ZTF_CONTROL);
    EXPECT_EQ(ZTF_CanRedo(field.get()), 0);
}

TEST(TheKeypadsPoint, IsThePointOfTheSettings)
{
    const Settings german({{ZTF_DECIMAL, ","}, {ZTF_THOUSANDS, "."}});
    const Field field("#,##0.00", DT_NUMBER, ZTEO_MODERN, german.get());
    field.Type("1");
    field.Press(ZTF_KEY_KEYPAD_POINT);
    field.Type("5");
    EXPECT_EQ(field.Text(), "1,50");
}

TEST(TheMouse, SelectsAndClicks)
{
    const Field field("MM/DD/YYYY", DT_DATE);
    ZTF_TrySetDataString(field.get(), "2026-07-04");
    ZTF_DoubleClick(field.get(), 4);
    EXPECT_EQ(field.Shown(), "07/[04]/2026");
    ZTF_Drag(field.get(), 5, 0);
    int32_t anchor = 0, caret = 9;
    ZTF_GetSelection(field.get(), &anchor, &caret);
    EXPECT_EQ(anchor, 5);
    EXPECT_EQ(caret, 0);
    ZTF_Click(field.get(), 3, 0);
    EXPECT_EQ(field.Shown(), "07/|04/2026");
    ZTF_Select(field.get(), 0, -1);
    EXPECT_EQ(field.Shown(), "[07/04/2026]");
}

TEST(AReadOnlyField, RefusesItsUser)
{
    Field field("##", DT_STRING);
    ZTF_SetReadOnly(field.get(), 1);
    field.Type("1");
    EXPECT_EQ(field.Told(), "rejected 4@0 beep");
    EXPECT_EQ(ZTF_TrySetDataString(field.get(), "12"), 0);
    EXPECT_EQ(field.Text(), "12");
}

TEST(Leaving, CompletesTheFieldThatTheCaretIsIn)
{
    const Field field("MM/DD/YYYY", DT_DATE);
    field.Type("7/4/26");
    ZTF_Leave(field.get());
    EXPECT_EQ(field.Text(), "07/04/2026");
}

TEST(Editing, IsModernOrClassicWithTheSameValue)
{
    const Field field("MM/DD/YYYY", DT_DATE, 0);
    EXPECT_EQ(field.Text(), "00/00/0000");
    EXPECT_EQ(ZTF_SetModern(field.get(), 1), 0);
    EXPECT_EQ(field.Text(), "  /  /    ");
    ZTF_TrySetDataString(field.get(), "2026-07-04");
    EXPECT_EQ(ZTF_SetModern(field.get(), 0), 1);
    EXPECT_EQ(field.Text(), "07/04/2026");
}

TEST(Modified, IsWhatTheUserHasChanged)
{
    const Field field("##", DT_STRING);
    field.Type("1");
    EXPECT_EQ(ZTF_IsModified(field.get()), 1);
    ZTF_SetDataString(field.get(), "22");
    EXPECT_EQ(ZTF_IsModified(field.get()), 0);
    ZTF_SetModified(field.get(), 1);
    EXPECT_EQ(ZTF_IsModified(field.get()), 1);
}

TEST(Masks, OfKeywordsAreToldAsWhatTheyStandFor)
{
    const Field field("[date]", DT_DATE);
    EXPECT_EQ(TextOf([&](char* buffer, int32_t size) { return ZTF_GetMask(field.get(), buffer, size); }), "mm/dd/yy");
    EXPECT_EQ(ZTF_SetMask(field.get(), "HH:MM", DT_TIME), 1);
    EXPECT_EQ(ZTF_GetDataType(field.get()), DT_TIME);
    EXPECT_EQ(field.Text(), "  :  ");
}

// ---- values without a field

struct ValueRow {
    const char* mask;
    int32_t type;
    const char* text;
    const char* result;
    int32_t reason;
};

TEST(Format, GivesTheTextShownOrNone)
{
    const ValueRow rows[] = {
        {"MM/DD/YYYY", DT_DATE, "2026-07-04", "07/04/2026", 0},   {"MM/DD/YYYY", DT_DATE, "2026-02-30", "(none)", 0},
        {"#,##0.00", DT_NUMBER, "1234.5", "1,234.50", 0},         {"#,##0.00", DT_NUMBER, "abc", "(none)", 0},
        {"~(###~) ###-####", DT_STRING, "2125551234", "(212) 555-1234", 0}, {"HH:MM AM/PM", DT_TIME, "13:05", "01:05 PM", 0},
        {"#,##0.00%", DT_DECIMAL, "0.125", "12.50%", 0},          {"MM/DD/YYYY", DT_DATE, "", "  /  /    ", 0},
        {"##", DT_STRING, "1234", "(none)", 0},
    };
    for (const ValueRow& row : rows)
        EXPECT_EQ(TextOf([&](char* buffer, int32_t size) { return ZTF_Format(nullptr, row.mask, row.type, row.text, buffer, size); }),
                  row.result)
            << row.mask << " " << row.text;
}

TEST(Parse, GivesTheValueOrWhyThereIsNone)
{
    const ValueRow rows[] = {
        {"MM/DD/YYYY", DT_DATE, "4 July 2026", "2026-07-04", 0},  {"MM/DD/YYYY", DT_DATE, "Feb 30 2024", "(none)", ZTR_DOES_NOT_EXIST},
        {"#,##0.00", DT_DECIMAL, "$1,234.50", "1234.50", 0},      {"#,##0.00", DT_DECIMAL, "12 apples", "(none)", ZTR_DOES_NOT_FIT},
        {"~(###~) ###-####", DT_STRING, "(212) 555-1234", "2125551234", 0},
        {"~(###~) ###-####", DT_STRING, "212", "(none)", ZTR_DOES_NOT_FIT},
        {"HH:MM", DT_TIME, "1:05 pm", "13:05:00", 0},             {"MM/DD/YYYY", DT_DATE, "", "", 0},
    };
    for (const ValueRow& row : rows) {
        int32_t reason = -1;
        EXPECT_EQ(TextOf([&](char* buffer, int32_t size) {
                      return ZTF_Parse(nullptr, row.mask, row.type, row.text, buffer, size, &reason);
                  }),
                  row.result)
            << row.mask << " " << row.text;
        EXPECT_EQ(reason, row.reason) << row.text;
    }
}

// ---- laws

TEST(Fields, OfDifferentThreadsKnowNothingOfEachOther)
{
    const auto live = [](const char* decimal, const char* expected, bool* good) {
        *good = true;
        const Settings settings({{ZTF_DECIMAL, decimal}, {ZTF_THOUSANDS, " "}});
        for (int i = 0; i < 300 && *good; ++i) {
            const Field field("#,##0.00", DT_DECIMAL, ZTEO_MODERN, settings.get());
            field.Type("1234");
            field.Type(decimal);
            field.Type("5");
            *good = field.Text() == expected && field.Value() == "1234.50";
        }
    };
    bool good[3] = {};
    std::thread first(live, ",", "1 234,50", &good[0]);
    std::thread second(live, ".", "1 234.50", &good[1]);
    std::thread third(live, "\u00b7", "1 234\u00b7" "50", &good[2]);
    first.join();
    second.join();
    third.join();
    EXPECT_TRUE(good[0] && good[1] && good[2]);
}

// From the environment, for longer games and other ones.
uint32_t NumberFrom(const char* variable, uint32_t usual)
{
    const char* value = std::getenv(variable);
    return value ? static_cast<uint32_t>(std::strtoul(value, nullptr, 10)) : usual;
}

class Random {
public:
    uint32_t Below(uint32_t end)
    {
        state_ = state_ * 1664525u + 1013904223u;
        return (state_ >> 8) % end;
    }

private:
    uint32_t state_ = NumberFrom("ZT_FIELD_SEED", 12);
};

// Bytes of any kind, more often such as masks and values are made of.
std::string AnyBytes(Random& random)
{
    static const char kUsual[] = "#0AX!^MDYHSFJ/:-. ,%$~[]()123459pm\xC3\xA9\xD0\xB6\xE2\x82\xAC";
    std::string bytes;
    for (uint32_t length = random.Below(24); length > 0; --length)
        bytes += random.Below(8) == 0 ? static_cast<char>(1 + random.Below(255)) : kUsual[random.Below(sizeof kUsual - 1)];
    return bytes;
}

void DoAnything(const Field& field, Random& random)
{
    const std::string bytes = AnyBytes(random);
    const auto number = static_cast<int32_t>(random.Below(40)) - 8;
    switch (random.Below(14)) {
    case 0: ZTF_Type(field.get(), bytes.c_str()); break;
    case 1: ZTF_Press(field.get(), static_cast<int32_t>(0x20 + random.Below(0x50)), static_cast<int32_t>(random.Below(4))); break;
    case 2: ZTF_SetClipboard(field.get(), bytes.c_str()), ZTF_Paste(field.get()); break;
    case 3: ZTF_Select(field.get(), number, static_cast<int32_t>(random.Below(20))); break;
    case 4: ZTF_Undo(field.get()); break;
    case 5: ZTF_Redo(field.get()); break;
    case 6: ZTF_SetText(field.get(), bytes.c_str()); break;
    case 7: ZTF_TrySetDataString(field.get(), bytes.c_str()); break;
    case 8: ZTF_SetDataString(field.get(), bytes.c_str()); break;
    case 9: ZTF_Click(field.get(), number, 0); break;
    case 10: ZTF_DoubleClick(field.get(), number); break;
    case 11: ZTF_SetMask(field.get(), bytes.c_str(), static_cast<int32_t>(random.Below(8))); break;
    case 12:
        ZTF_SetSpin(field.get(), random.Below(9), bytes.c_str(), AnyBytes(random).c_str(), 0);
        ZTF_Step(field.get(), number & 1);
        break;
    default: ZTF_Press(field.get(), ZTF_KEY_BACKSPACE, 0); break;
    }
}

// What is shown is valid UTF-8, carets stand in it, positions are of it, and a complete value can be handed in again.
void ExpectSound(const Field& field)
{
    const std::string text = field.Text();
    const auto length = static_cast<int32_t>(Characters(text).size());
    int32_t anchor = -1, caret = -1;
    ZTF_GetSelection(field.get(), &anchor, &caret);
    EXPECT_TRUE(anchor >= 0 && anchor <= length && caret >= 0 && caret <= length) << text;
    EXPECT_LE(ZTF_CountPositions(field.get()), length);
    const std::string value = field.Value();
    if (ZTF_GetState(field.get()) == ZTS_COMPLETE) {
        EXPECT_NE(value, "(none)") << text;
    }
}

TEST(AnyBytesAtAll, LeaveASoundField)
{
    Random random;
    const uint32_t lives = NumberFrom("ZT_FIELD_LIVES", 400);
    for (uint32_t life = 0; life < lives && !HasFailure(); ++life) {
        const std::string mask = AnyBytes(random);
        const auto type = static_cast<int32_t>(1 + random.Below(6));
        const Field field(mask.c_str(), type, random.Below(32));
        for (int i = 0; i < 40; ++i) {
            DoAnything(field, random);
            ExpectSound(field);
        }
    }
}

}  // namespace
}  // namespace zttest::fields
