// The tables of what lives are made of, and the dice.
#include "tests/soak/life.h"

#include <cstdio>
#include <cstdlib>

#include "tests/support/keyboard.h"
#include "ztvalues.h"

namespace soak {

namespace {

struct MaskRow {
    const char* mask;
    int32_t type;
};

// clang-format off
constexpr MaskRow kMasks[] = {
    {nullptr,                       DT_STRING  },
    {"",                            DT_STRING  },
    {"AAAA",                        DT_STRING  },
    {"(###) ###-####",              DT_STRING  },
    {"!!!-^^^",                     DT_STRING  },
    {"~A##~-XX",                    DT_STRING  },
    {"XXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXX", DT_STRING},
    {"#,#.00",                      DT_NUMBER  },
    {"$#,###,##0.00",               DT_NUMBER  },
    {"##0.00%",                     DT_NUMBER  },
    {"0000",                        DT_NUMBER  },
    {"[currency(9)]",               DT_NUMBER  },
    {"[GENERAL]",                   DT_NUMBER  },
    {"~N~o #,##0.0",                DT_NUMBER  },
    {"#,##0.00%%",                  DT_NUMBER  },  // refused: the default stands in
    {"#,###,##0.0000",              DT_DECIMAL },
    {"####################",        DT_DECIMAL },
    {"[currency(16)]",              DT_DECIMAL },
    {"#.0%",                        DT_DECIMAL },
    {"MM/DD/YY",                    DT_DATE    },
    {"DD-MMM-YYYY",                 DT_DATE    },
    {"JJJ/YY",                      DT_DATE    },
    {"[date]",                      DT_DATE    },
    {"ZZZ",                         DT_DATE    },  // refused
    {"HH:MM:SS:FFF",                DT_TIME    },
    {"HH:MM AM/PM",                 DT_TIME    },
    {"[time]",                      DT_TIME    },
    {"MM/DD/YYYY HH:MM:SS:FFFFFF",  DT_DATETIME},
    {"[date] [time]",               DT_DATETIME},
    {"DD.MM.YY HH:MM AM/PM",        DT_DATETIME},
};

constexpr const char* kColours = "Red\tR/Green\tG/Blue\tB/Grey\tX/None\tnull!";
constexpr const char* kNumbers = "one\t1/two\t2/three//four\t3.5/minus\t-4/none\tnull!";
constexpr const char* kDays = "Independence\t1995-07-04/Christmas\t1999-12-25/never\tnull!";

constexpr SpinRow kSpins[] = {
    {1,  "1~9",                   nullptr,  0                                        },
    {7,  "~500",                  nullptr,  0                                        },
    {0,  "-3.5~1000000",          nullptr,  0                                        },
    {1,  "1990-01-01~2010-12-31", nullptr,  0                                        },
    {15, "08:00~18:30",           nullptr,  0                                        },
    {1,  nullptr,                 kColours, SPINSTYLE_CODETABLE                      },
    {1,  "",                      kColours, SPINSTYLE_CODETABLE | SPINSTYLE_PICKLIST },
    {1,  nullptr,                 kNumbers, SPINSTYLE_CODETABLE                      },
    {1,  "1~9",                   kNumbers, SPINSTYLE_PICKLIST                       },
    {1,  nullptr,                 kDays,    SPINSTYLE_CODETABLE                      },
    {1,  nullptr,                 "",       SPINSTYLE_CODETABLE                      },
    {3,  nullptr,                 nullptr,  0                                        },
};

constexpr const char* kTexts[] = {
    "", "0", "7", "-12.5", "1234567.891", "98,70", "$1,234.50", "12.5%", "1E+20", "99999999999999999999999999999",
    "1995-07-04", "07/04/95", "4-JUL-1995", "0000-00-00", "2024-02-29", "14:07", "2:07 PM", "23:59:59:999999",
    "1995-07-04 14:07:09", "25:61", "R", "Green", "Independence", "null!", "abcXYZ", "(555) 123-4567",
    "a text that is a good deal longer than any of the masks has room for, and then some more of it",
};

constexpr const char* kTyped[] = {
    "1", "7", "0", "9", "5", "12", "070495", "7/4/95", "123.45", "-5", ".5", "0.05", "1,234.5", "12%", "jul", "J", "a", "AbC",
    "pm", "1407", "2:07p", "R", "g", "-", "/", ".", ",", " ", "(555)", "\xe9",
};
// clang-format on

using zttest::kCtrl;
using zttest::kPlain;
using zttest::kShift;

struct KeyRow {
    int key;
    int modifiers;
};

constexpr int kBackspaceKey = 0x08;
constexpr KeyRow kKeys[] = {
    {kBackspaceKey, kPlain},
    {kBackspaceKey, kPlain},
    {0x2E,          kPlain},
    {0x2E,          kPlain},
    {0x2E,          kShift},
    {0x24,          kPlain},
    {0x23,          kPlain},
    {0x23,          kShift},
    {0x25,          kPlain},
    {0x27,          kPlain},
    {0x25,          kShift},
    {0x27,          kShift},
    {0x26,          kPlain},
    {0x28,          kPlain},
    {0x26,          kPlain},
    {0x28,          kPlain},
    {'A',           kCtrl },
    {'C',           kCtrl },
    {'V',           kCtrl },
    {'X',           kCtrl },
    {'Z',           kCtrl },
    {0x2D,          kShift},
    {0x2D,          kCtrl },
    {0x1B,          kPlain},
};

// How often each deed is thrown, of a thousand. What is left types.
struct Share {
    Deed deed;
    int of1000;
};
constexpr Share kShares[] = {
    {Deed::Press,       220},
    {Deed::Paste,       40 },
    {Deed::Click,       30 },
    {Deed::Drag,        20 },
    {Deed::Select,      60 },
    {Deed::SetText,     15 },
    {Deed::Replace,     15 },
    {Deed::SetMask,     30 },
    {Deed::SetData,     70 },
    {Deed::SetNothing,  15 },
    {Deed::Read,        50 },
    {Deed::Format,      15 },
    {Deed::Unformat,    25 },
    {Deed::ReadRange,   10 },
    {Deed::SetSpin,     20 },
    {Deed::CreateSpin,  15 },
    {Deed::DestroySpin, 10 },
    {Deed::Autoskip,    5  },
    {Deed::ReadOnly,    5  },
    {Deed::Enable,      5  },
    {Deed::LoseFocus,   15 },
    {Deed::Undo,        5  },
    {Deed::Resize,      10 },
    {Deed::Show,        10 },
    {Deed::Paint,       20 },
};

Deed ThrowDeed(Dice& dice)
{
    int left = dice.Below(1000);
    for (const Share& share : kShares) {
        if (left < share.of1000)
            return share.deed;
        left -= share.of1000;
    }
    return Deed::Type;
}

std::string RandomText(Dice& dice)
{
    if (dice.Chance(70))
        return dice.Of(kTexts);
    std::string digits;
    for (int count = dice.Below(8) + 1; count > 0; --count)
        digits += static_cast<char>('0' + dice.Below(10));
    return dice.Chance(50) ? digits + "." + digits : digits;
}

void Fill(Act& act, Dice& dice)
{
    switch (act.deed) {
    case Deed::Type: act.text = dice.Of(kTyped); break;
    case Deed::Press: {
        const KeyRow& key = dice.Of(kKeys);
        act.first = key.key;
        act.second = key.modifiers;
        break;
    }
    case Deed::SetMask: {
        const MaskRow& row = dice.Of(kMasks);
        act.text = row.mask ? row.mask : "";
        act.first = row.type;
        break;
    }
    case Deed::SetSpin: act.first = dice.Below(static_cast<int>(std::size(kSpins))); break;
    case Deed::Select:
        act.first = dice.Chance(25) ? 0 : dice.Below(12);
        act.second = dice.Chance(25) ? -1 : act.first + dice.Below(6);
        break;
    case Deed::Click:
    case Deed::Drag:
        act.first = dice.Below(14);
        act.second = dice.Below(14);
        break;
    case Deed::Resize:
        act.first = dice.Below(300);
        act.second = dice.Below(60);
        break;
    case Deed::ReadOnly: act.first = dice.Chance(30); break;
    case Deed::Enable: act.first = dice.Chance(70); break;
    case Deed::Autoskip:
    case Deed::Show: act.first = dice.Below(2); break;
    default: act.text = RandomText(dice); break;
    }
}

constexpr const char* kDeeds[] = {
    "type",       "press",    "paste",       "click",        "drag",     "select",    "set text",
    "replace",    "set mask", "data",        "no data",      "read",     "format",    "unformat",
    "read range", "set spin", "create spin", "destroy spin", "autoskip", "read-only", "enable",
    "lose focus", "undo",     "resize",      "show",         "paint",
};

}  // namespace

const SpinRow& SpinRowOf(int index)
{
    return kSpins[index];
}

void Throw(Life& life, uint64_t seed, int acts)
{
    Dice dice(seed);
    const MaskRow& mask = dice.Of(kMasks);
    const SpinRow& spin = dice.Of(kSpins);
    life.data = RandomText(dice);
    life.config = {};
    life.config.mask = mask.mask;
    life.config.type = mask.type;
    life.config.options = static_cast<uint32_t>(dice.Below(32));
    life.config.data = dice.Chance(60) ? life.data.c_str() : nullptr;
    life.config.range = spin.range;
    life.config.increment = spin.increment;
    life.config.codes = spin.codes;
    life.config.readOnly = dice.Chance(5);
    life.acts.resize(static_cast<size_t>(acts));
    for (Act& act : life.acts) {
        act = {};
        act.deed = ThrowDeed(dice);
        Fill(act, dice);
    }
}

const zttest::RegionalSet& RegionalSetOf(int turn)
{
    static const zttest::RegionalSet* const sets[] = {&zttest::kUnitedStates, &zttest::kGerman, &zttest::kFrench,
                                                      &zttest::kSwiss, &zttest::kIso};
    return *sets[static_cast<size_t>(turn) % std::size(sets)];
}

bool ChangesBlocks(Deed deed)
{
    return deed == Deed::SetMask || deed == Deed::SetSpin || deed == Deed::DestroySpin;
}

std::string Describe(const Life& life, size_t last)
{
    const zttest::Config& config = life.config;
    const auto shown = [](const char* text) { return text ? std::string("\"") + text + "\"" : std::string("null"); };
    std::string text = "type " + std::to_string(config.type) + " mask " + shown(config.mask) + " options " +
                       std::to_string(config.options) + " data " + shown(config.data) + " range " +
                       shown(config.range) + " codes " + shown(config.codes) + ":";
    for (size_t i = 0; i <= last && i < life.acts.size(); ++i) {
        const Act& act = life.acts[i];
        text += std::string(" {") + kDeeds[static_cast<size_t>(act.deed)] + " " + std::to_string(act.first) + " " +
                std::to_string(act.second) + " " + act.text + "}";
    }
    return text;
}

int NumberOf(const char* variable, int otherwise)
{
    const char* text = std::getenv(variable);
    return text ? std::atoi(text) : otherwise;
}

}  // namespace soak
