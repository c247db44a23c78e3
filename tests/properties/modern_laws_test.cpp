// The laws of modern editing over random acts of a user: what is refused changes nothing and is told once, what is done can be undone
// and redone, literals stand, and the state told is the state there is.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "engine/memory_control.h"
#include "engine/modern/editor.h"
#include "engine/modern/layout.h"
#include "tests/support/values.h"

namespace zttest {
namespace {

using namespace zte;

DateTimeValue Today()
{
    return {0, 124, 1, 29, 13, 30, 5, 0};
}

// ---- what the controls are

struct LawMask {
    const char* mask;
    int32_t type;
    const char* codes = nullptr;
    const char* range = nullptr;
};

const LawMask kMasks[] = {
    {"(###) ###-####", DT_STRING      },
    {"XX-^^ !!",       DT_STRING      },
    {"AAAA",           DT_STRING      },
    {"~X##+XX+",       DT_STRING      },
    {"####",           DT_STRING      },
    {"",               DT_STRING,       "Red\tR/Rose\tO/Royal blue\tB/(none)\tnull!"},
    {"MM/DD/YY",                DT_DATE                     },
    {"DD.MM.YYYY",                DT_DATE,nullptr, "1990-01-01~2030-12-31"},
    {"YYYYMMDD",         DT_DATE  },
    {"DD MMM YYYY",       DT_DATE      },
    {"JJJ/YYYY",    DT_DATE     },
    {"MMM-YY",       DT_DATE           },
    {"HH:MM",         DT_TIME          },
    {"HH:MM:SS:FFF",          DT_TIME         },
    {"HH:MM AM/PM",   DT_TIME,  nullptr, "08:00~18:30"},
    {"AM/PM HH:MM",    DT_TIME         },
    {"MM/DD/YYYY HH:MM AM/PM",   DT_DATETIME                 },
    {"YYYY-MM-DD HH:MM:SS",      DT_DATETIME           },
    {"#,##0.00",   DT_NUMBER},
    {"#,#.00",DT_NUMBER   },
    {"0000",     DT_NUMBER,                    nullptr, "0~2000"},
    {"##0.##%",        DT_NUMBER                   },
    {"$#,##0.00",   DT_DECIMAL},
    {"[currency(2)]",                DT_DECIMAL,                       nullptr, "-100~"},
    {"#.#####",                DT_DECIMAL },
    {"[GENERAL]",                DT_NUMBER                         },
};

// Settings of a number, of which each changes something.
Settings SettingsOf(uint32_t number)
{
    Settings settings = StandardSettings();
    if (number % 3 == 1) {
        settings.decimalChar = ',';
        settings.thousandChar = '.';
        Assign(settings.currencySymbol, FromAscii("kr."));
        settings.currencyPosition = 3;
    }
    if (number % 3 == 2) {
        settings.decimalChar = ',';
        settings.thousandChar = ' ';
    }
    if (number % 4 == 1) {
        Assign(settings.amString, FromAscii("a.m."));
        Assign(settings.pmString, FromAscii("p.m."));
    }
    if (number % 4 == 2) {
        Assign(settings.amString, FromAscii("VM"));
        Assign(settings.pmString, FromAscii("NM"));
        Assign(settings.monthNames[2], FromAscii("MRZ"));
        Assign(settings.monthNames[4], FromAscii("MAI"));
    }
    return settings;
}

constexpr uint32_t kSettings = 12;

// ---- one control under random acts

struct Snapshot {
    Text text;
    Selection selection;
    bool modified;
    size_t steps;
    bool canRedo;
    int32_t state;
};

bool operator==(const Snapshot& one, const Snapshot& other)
{
    return one.text == other.text && one.selection.start == other.selection.start &&
           one.selection.end == other.selection.end && one.modified == other.modified && one.steps == other.steps &&
           one.canRedo == other.canRedo && one.state == other.state;
}

ControlSetup SetupOf(const LawMask& row)
{
    ControlSetup setup;
    setup.mask = row.mask;
    setup.dataType = row.type;
    setup.options = ZTEO_MODERN | ZTEO_SPIN | (row.codes ? ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK : 0u);
    setup.spinRange = row.range;
    setup.codeTable = row.codes;
    return setup;
}

class Played final : public FieldListener {
public:
    Played(const LawMask& row, uint32_t settings, uint32_t seed)
        : random_(seed), row_(row), settings_(SettingsOf(settings)), control_(SetupOf(row), settings_, Today, this)
    {
        told_ = StateOf(control_.Record());
        made_ = true;
    }

    void OnFieldEvent(FieldEvent event) override
    {
        if (event == FieldEvent::State)
            told_ = control_.Edit().LastState().is;
        if (event == FieldEvent::Change && made_)
            StateOf(control_.Record());
    }

    MemoryControl& Control() { return control_; }
    MemoryField& Edit() { return control_.Edit(); }

    Snapshot Look()
    {
        EditInstance& record = control_.Record();
        return {Edit().Shown(),           Edit().ReadSelection(), Edit().IsModified(), record.editor->UndoSteps(),
                record.editor->CanRedo(), StateOf(record)};
    }

    int32_t Told() const { return told_; }
    uint32_t Below(uint32_t count) { return static_cast<uint32_t>(random_() % count); }

    // A random act of a user; its name.
    const char* Act()
    {
        switch (Below(24)) {
        case 0: Press(KEY_BACKSPACE, 8); return "Backspace";
        case 1: control_.KeyDown(KEY_DELETE); return "Delete";
        case 2: control_.KeyDown(KEY_LEFT); return "Left";
        case 3: control_.KeyDown(KEY_RIGHT); return "Right";
        case 4: control_.KeyDown(KEY_HOME); return "Home";
        case 5: control_.KeyDown(KEY_END); return "End";
        case 6: control_.KeyDown(KEY_UP); return "Up";
        case 7: control_.KeyDown(KEY_PAGE_DOWN); return "PageDown";
        case 8: Click(); return "Click";
        case 9: Drag(); return "Drag";
        case 10: Paste(); return "Paste";
        case 11: control_.Cut(); return "Cut";
        case 12: control_.Type(1); return "SelectAll";
        case 13: control_.LoseFocus(); return "LoseFocus";
        case 14: control_.Wheel(Below(2) == 0 ? 1 : -1); return "Wheel";
        case 15: Edit().LetTimePass(Below(1500)); return "Pause";
        case 16: Press(KEY_BACKSPACE, 127); return "WordBack";
        case 17: control_.DoubleClick(static_cast<int32_t>(Below(20))); return "DoubleClick";
        default: control_.Type(Character()); return "Type";
        }
    }

    // An act that a random reader of history does.
    void UndoAll()
    {
        while (control_.Record().editor->CanUndo())
            control_.Undo();
    }

    bool LiteralsStand()
    {
        const EditInstance& record = control_.Record();
        const bool positional = !record.codeTable && !IsNumeric(record.dataType) && HasMask(record);
        return !positional || modern::Layout(record, Edit().Shown()).Fits();
    }

    std::string Name() const { return std::string(row_.mask) + " type " + std::to_string(row_.type); }

private:
    uint32_t Character()
    {
        static constexpr char kLikely[] = "0123456789012345678901234567890123456789-.,/: +()apmAPMRxjfb$%kr\xE4";
        return static_cast<uint8_t>(kLikely[Below(sizeof kLikely - 1)]);
    }

    void Press(int32_t key, uint32_t character)
    {
        control_.KeyDown(key);
        control_.Type(character);
    }

    void Click() { control_.Click(static_cast<int32_t>(Below(24))); }
    void Drag() { control_.Drag(static_cast<int32_t>(Below(24)), static_cast<int32_t>(Below(24))); }

    void Paste()
    {
        static const char* const kTexts[] = {"5551234567", "(555) 123-4567",
                                             "07/04/1995", "4 Jul 95",
                                             "1995-07-04", "13:30",
                                             "1:30 PM",    "1,234.50",
                                             "1.234,50",   "12.5%",
                                             "$5",         "R",
                                             "royal blue", "x",
                                             "1995-02-30", "99999999999999999999",
                                             "-7",         "1995-07-04 14:07:09",
                                             "12"};
        Edit().SetClipboard(FromAscii(kTexts[Below(std::size(kTexts))]));
        control_.Paste();
    }

    std::mt19937 random_;
    const LawMask row_;
    Settings settings_;
    int32_t told_ = ZTS_EMPTY;
    bool made_ = false;
    MemoryControl control_;
};

// More of them by ZT_MODERN_ACTS (acts of each control; some 3,200 controls are 1,000,000 acts of 300).
int ActsOfEach()
{
    const char* wanted = std::getenv("ZT_MODERN_ACTS");
    return wanted ? std::atoi(wanted) : 120;
}

template <typename Check>
void WithEveryControl(Check check)
{
    for (const LawMask& row : kMasks)
        for (uint32_t settings = 0; settings < kSettings; ++settings) {
            Played played(row, settings, settings * 7919 + static_cast<uint32_t>(&row - kMasks));
            ASSERT_NO_FATAL_FAILURE(check(played));
        }
}

// ---- what a parent may do in a notification

// The literals that typing has passed, and the letters of a prefix, are remembered although the parent has asked for the state between.
TEST(ModernNotifications, MayAskForTheStateWithoutDisturbingTheTyping)
{
    Played time({"HH:MM:SS:FFF", DT_TIME}, 0, 1);
    for (const char typed : std::string("14:07:09:250"))
        time.Control().Type(static_cast<uint32_t>(typed));
    EXPECT_EQ(time.Edit().Shown(), "14:07:09:250");
    Played codes({"", DT_STRING, "Red\tR/Green\tG/Grey\tY"}, 0, 1);
    for (const char typed : std::string("grey"))
        codes.Control().Type(static_cast<uint32_t>(typed));
    EXPECT_EQ(codes.Edit().Shown(), "Grey");
}

// A parent that answers a change with a value of its own.
class Overrider final : public FieldListener {
public:
    explicit Overrider(const LawMask& row) : control_(SetupOf(row), settings_, Today, this) { ready_ = true; }

    void OnFieldEvent(FieldEvent event) override
    {
        if (event == FieldEvent::Change && std::exchange(ready_, false))
            TrySetDataString(control_.Record(), "1999-12-31");
    }
    MemoryControl& Control() { return control_; }

private:
    Settings settings_ = StandardSettings();
    bool ready_ = false;
    MemoryControl control_;
};

TEST(ModernNotifications, MayPutInAnotherValueWhichIsNotTheUsers)
{
    Overrider overrider({"MM/DD/YYYY", DT_DATE});
    overrider.Control().Type('4');
    EXPECT_EQ(overrider.Control().Edit().Shown(), "12/31/1999");
    EXPECT_EQ(overrider.Control().Edit().ReadSelection().start, 0);
    EXPECT_FALSE(overrider.Control().Edit().IsModified());
    EXPECT_EQ(StateOf(overrider.Control().Record()), ZTS_COMPLETE);
    EXPECT_EQ(overrider.Control().Record().editor->UndoSteps(), 0u);
}

// ---- the laws

TEST(ModernLaws, WhatIsRefusedChangesNothingAndIsToldOnce)
{
    int refused = 0;
    std::set<int32_t> reasons;
    WithEveryControl([&](Played& played) {
        for (int i = 0; i < ActsOfEach(); ++i) {
            const Snapshot before = played.Look();
            played.Edit().ForgetCounts();
            const std::string act = played.Act();
            const int32_t rejections = played.Edit().Count(FieldEvent::Rejected);
            ASSERT_LE(rejections, 1) << played.Name() << ' ' << act;
            ASSERT_EQ(played.Edit().Count(FieldEvent::Beep), rejections) << played.Name() << ' ' << act;
            if (rejections == 0)
                continue;
            ++refused;
            reasons.insert(played.Edit().LastRejected().reason);
            ASSERT_TRUE(before == played.Look()) << played.Name() << ' ' << act << " \"" << before.text
                                                 << "\" became \"" << played.Edit().Shown() << '"';
            ASSERT_EQ(played.Edit().Count(FieldEvent::Update) + played.Edit().Count(FieldEvent::Change), 0) << act;
        }
    });
    std::printf("%d acts were refused\n", refused);
    EXPECT_GT(refused, 3000);
    for (const int32_t reason : reasons)
        EXPECT_TRUE(reason >= ZTR_WRONG_KIND && reason <= ZTR_NOT_IN_CODE_PAGE) << reason;
    EXPECT_GE(reasons.size(), 6u);
}

TEST(ModernLaws, WhatIsDoneIsOneChangeThatLeavesLiteralsAndTellsTheState)
{
    WithEveryControl([](Played& played) {
        for (int i = 0; i < ActsOfEach(); ++i) {
            const Snapshot before = played.Look();
            played.Edit().ForgetCounts();
            const std::string act = played.Act();
            const Snapshot after = played.Look();
            const int changes = before.text == after.text ? 0 : 1;
            ASSERT_EQ(played.Edit().Count(FieldEvent::Change), changes)
                << played.Name() << ' ' << act << " \"" << before.text << '"';
            ASSERT_EQ(played.Edit().Count(FieldEvent::Update), changes) << played.Name() << ' ' << act;
            ASSERT_TRUE(played.LiteralsStand()) << played.Name() << ' ' << act << " \"" << after.text << '"';
            ASSERT_EQ(played.Told(), after.state) << played.Name() << ' ' << act << " \"" << after.text << '"';
            if (changes != 0) {
                ASSERT_TRUE(after.modified) << played.Name() << ' ' << act;
            }
        }
    });
}

struct Earlier {
    Text text;
    Selection selection;
};

TEST(ModernLaws, WhatIsDoneIsUndoneStepByStepAndRedone)
{
    WithEveryControl([](Played& played) {
        std::vector<Earlier> earlier;
        for (int i = 0; i < 200 && played.Look().steps < modern::History::kMostSteps - 2; ++i) {
            const Snapshot before = played.Look();
            const std::string act = played.Act();
            if (played.Look().steps > before.steps)
                earlier.push_back({before.text, before.selection});
        }
        const Snapshot last = played.Look();
        ASSERT_EQ(last.steps, earlier.size()) << played.Name();
        for (auto step = earlier.rbegin(); step != earlier.rend(); ++step) {
            played.Control().Undo();
            ASSERT_EQ(played.Edit().Shown(), step->text) << played.Name();
            ASSERT_EQ(played.Edit().ReadSelection().start, step->selection.start) << played.Name() << ' ' << step->text;
            ASSERT_EQ(played.Edit().ReadSelection().end, step->selection.end) << played.Name() << ' ' << step->text;
        }
        ASSERT_EQ(played.Look().steps, 0u);
        for (size_t i = 1; i < earlier.size(); ++i) {
            played.Control().Redo();
            ASSERT_EQ(played.Edit().Shown(), earlier[i].text) << played.Name();
        }
        played.Control().Redo();
        ASSERT_EQ(played.Edit().Shown(), last.text) << played.Name();
    });
}

TEST(ModernLaws, NoGetterReturnsWhatIsNotThere)
{
    WithEveryControl([](Played& played) {
        for (int i = 0; i < ActsOfEach(); ++i) {
            played.Act();
            const EditInstance& record = played.Control().Record();
            const int32_t state = StateOf(record);
            const bool isString = record.dataType == DT_STRING;
            Text canonical;
            const bool hasText = CanonicalText(record, canonical);
            const bool noValue = state == ZTS_INCOMPLETE || state == ZTS_INVALID;
            ASSERT_EQ(hasText, !noValue || (isString && !record.codeTable))
                << played.Name() << " \"" << played.Edit().Shown() << '"';
            void* value = EditingOf(record).getData(record);
            if (!isString && noValue) {
                ASSERT_EQ(value, nullptr) << played.Name() << " \"" << played.Edit().Shown() << '"';
            }
            if (value)
                services::Free(record.heap, value);
        }
    });
}

TEST(ModernLaws, WhatAGetterReturnsChangesNothingWhenHandedInAgain)
{
    WithEveryControl([](Played& played) {
        for (int i = 0; i < ActsOfEach(); ++i) {
            played.Act();
            EditInstance& record = played.Control().Record();
            Text canonical;
            if (StateOf(record) == ZTS_INCOMPLETE || !CanonicalText(record, canonical))
                continue;
            played.Control().LoseFocus();  // what is typed of a number is shown as its value is
            const Text shown = played.Edit().Shown();
            const int32_t state = StateOf(record);
            CanonicalText(record, canonical);
            ASSERT_EQ(TrySetDataString(record, canonical.c_str()), 0)
                << played.Name() << " \"" << shown << "\" as " << canonical;
            ASSERT_EQ(played.Edit().Shown(), shown) << played.Name() << " as " << canonical;
            ASSERT_EQ(StateOf(record), state) << played.Name() << " \"" << shown << '"';
            ASSERT_FALSE(played.Edit().IsModified());
        }
    });
}

}  // namespace
}  // namespace zttest
