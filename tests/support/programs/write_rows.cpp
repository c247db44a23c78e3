// Writes the keystroke tables of the tests as JSON, for those who play them elsewhere: in a browser.
// Usage: write_rows FILE
//
// A row: {"table", "modern", "mask", "type", "settings", "spin", "range", "codes", "value" or "text", "keys", "after"}. A value is set as
// data, a text with its marks ('|' the caret, '[' and ']' around a selection) is put there as it is; with neither the field is empty.
// Keys are characters, and names in braces: those of keys ("{Shift+Left}"), and what is no key ("{Blur}", "{Click4}").
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "tests/support/classic_rows.h"
#include "tests/support/modern_number_rows.h"
#include "tests/support/modern_rows.h"

namespace zttest {
namespace {

// The bytes of the rows are of the Western code page, which Unicode begins with.
std::string Quoted(const std::string& text)
{
    static const char kHex[] = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            quoted += std::string("\\") + c;
        else if (byte >= ' ' && byte < 0x7F)
            quoted += c;
        else
            quoted += std::string("\\u00") + kHex[byte >> 4] + kHex[byte & 15];
    }
    return quoted + "\"";
}

// What members are written into, one after another.
class Object {
public:
    void Add(const char* name, const std::string& json)
    {
        text_ += (text_.empty() ? "" : ",") + Quoted(name) + ":" + json;
    }
    void AddText(const char* name, const char* text)
    {
        if (text)
            Add(name, Quoted(text));
    }
    std::string Json() const { return "{" + text_ + "}"; }

private:
    std::string text_;
};

constexpr const char* kTypes[] = {"", "string", "number", "date", "time", "datetime", "decimal"};

std::string List(const std::vector<std::string>& texts)
{
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "" : ",") + Quoted(text);
    return "[" + list + "]";
}

// Control characters come of keys held with Ctrl, but for those that have a key of their own.
std::string KeyOfCharacter(char typed)
{
    switch (typed) {
    case '\b': return "{Back}";
    case '\t': return "{Tab}";
    case '\r': return "{Enter}";
    case '\x1b': return "{Esc}";
    default: break;
    }
    if (typed > 0 && typed < ' ')
        return std::string("{Ctrl+") + static_cast<char>(typed + 'A' - 1) + "}";
    return std::string(1, typed);
}

// Characters, and names in braces that may stand for others.
std::vector<std::string> KeysOf(const std::string& played, const char* (*keyOf)(const std::string& act))
{
    std::vector<std::string> keys;
    for (size_t i = 0; i < played.size(); ++i) {
        if (played[i] != '{') {
            keys.push_back(KeyOfCharacter(played[i]));
            continue;
        }
        const size_t end = played.find('}', i);
        const char* const key = keyOf(played.substr(i + 1, end - i - 1));
        keys.push_back(key ? key : played.substr(i, end - i + 1));
        i = end;
    }
    return keys;
}

const char* NoOtherName(const std::string&)
{
    return nullptr;
}

struct Region {
    const char* decimal;
    const char* thousands;
    const char* currency;
    int32_t position;
    int32_t digits;
};

constexpr Region kUnitedStates = {".", ",", "$", 0, 2};
constexpr Region kGerman = {",", ".", "EUR", 1, 2};
constexpr Region kFrench = {",", " ", "F", 1, 2};
constexpr Region kSwiss = {".", "'", "CHF", 0, 2};
constexpr Region kCzech = {",", " ", "Kc", 1, 0};
constexpr Region kDanish = {",", ".", "kr.", 0, 2};
constexpr Region kSwissFranc = {".", "'", "Fr.", 0, 2};
constexpr Region kMexican = {".", ",", "MXN", 0, 2};

Object SettingsOf(const Region& region)
{
    Object settings;
    settings.AddText("decimal", region.decimal);
    settings.AddText("thousands", region.thousands);
    settings.AddText("currency", region.currency);
    settings.Add("currencyPosition", std::to_string(region.position));
    settings.Add("currencyDigits", std::to_string(region.digits));
    settings.AddText("date", "m/d/yyyy");
    return settings;
}

Object Begun(const char* table, bool modern, const char* mask, int32_t type, const Object& settings)
{
    Object row;
    row.AddText("table", table);
    row.Add("modern", modern ? "true" : "false");
    row.AddText("mask", mask);
    row.AddText("type", kTypes[type]);
    row.Add("settings", settings.Json());
    return row;
}

std::string Ended(Object row, const std::vector<std::string>& keys, const char* after)
{
    row.Add("keys", List(keys));
    row.AddText("after", after);
    return row.Json();
}

// ---- modern editing

struct TypingTable {
    const char* name;
    const std::vector<typing::TypingRow>& (*rows)();
};

constexpr TypingTable kTypingTables[] = {
    {"modern dates",     typing::ModernDates    },
    {"modern times",     typing::ModernTimes    },
    {"modern deletions", typing::ModernDeletions},
    {"modern undo",      typing::ModernUndo     },
    {"modern carets",    typing::ModernCarets   },
    {"modern spins",     typing::ModernSpins    },
    {"modern strings",   typing::ModernStrings  },
    {"modern choices",   typing::ModernChoices  },
};

std::string RowOf(const char* table, const typing::TypingRow& row)
{
    Object settings = SettingsOf(kUnitedStates);
    settings.AddText("am", row.setup.am);
    settings.AddText("pm", row.setup.pm);
    Object json = Begun(table, true, row.setup.mask, row.setup.type, settings);
    json.Add("spin", row.setup.options & ZTEO_SPIN ? "true" : "false");
    json.AddText("range", row.setup.range);
    json.AddText("codes", row.setup.codes);
    json.AddText("text", row.before);
    return Ended(json, KeysOf(row.keys, typing::KeyOf), row.after);
}

struct NumberTable {
    const char* name;
    const std::vector<modern_numbers::KeyRow>& (*rows)();
};

constexpr NumberTable kNumberTables[] = {
    {"modern numbers: digits",     modern_numbers::NumberDigits    },
    {"modern numbers: signs",      modern_numbers::NumberSigns     },
    {"modern numbers: separators", modern_numbers::NumberSeparators},
    {"modern numbers: deletion",   modern_numbers::NumberDeletion  },
    {"modern numbers: caret",      modern_numbers::NumberCaret     },
};

const modern_numbers::Region& RegionNamed(const char* name)
{
    for (const modern_numbers::Region& region : modern_numbers::kRegions)
        if (std::strcmp(region.name, name) == 0)
            return region;
    return modern_numbers::kRegions[0];
}

std::vector<std::string> NumberKeys(const char* letters)
{
    std::vector<std::string> keys;
    for (const char* letter = letters; *letter; ++letter) {
        const char* const key = modern_numbers::KeyOf(*letter);
        keys.push_back(*letter == 'l' ? "{Blur}" : key ? key : KeyOfCharacter(*letter));
    }
    return keys;
}

std::string RowOf(const char* table, const modern_numbers::KeyRow& row)
{
    const modern_numbers::Region& region = RegionNamed(row.region);
    const std::string decimal(1, region.decimal);
    const std::string thousands(1, region.thousand);
    const Object settings = SettingsOf({decimal.c_str(), thousands.c_str(), region.symbol, region.position, 2});
    Object json = Begun(table, true, row.mask, DT_NUMBER, settings);
    const bool isValue = *row.start == '=';
    if (*row.start)
        json.AddText(isValue ? "value" : "text", isValue ? row.start + 1 : row.start);
    return Ended(json, NumberKeys(row.keys), row.after);
}

// ---- classic editing

struct ClassicTable {
    const char* name;
    const classic::Rows& rows;
    const Region& region;
};

const ClassicTable kClassicTables[] = {
    {"classic characters",       classic::kCharacters,        kUnitedStates},
    {"classic behind AM/PM",     classic::kBehindAmPm,        kUnitedStates},
    {"classic string positions", classic::kStringPositions,   kUnitedStates},
    {"classic months",           classic::kMonths,            kUnitedStates},
    {"classic month names",      classic::kMonthNames,        kUnitedStates},
    {"classic days",             classic::kDays,              kUnitedStates},
    {"classic days of the year", classic::kDaysOfTheYear,     kUnitedStates},
    {"classic years",            classic::kYears,             kUnitedStates},
    {"classic times",            classic::kTimes,             kUnitedStates},
    {"classic shared positions", classic::kSharedPositions,   kUnitedStates},
    {"classic completed fields", classic::kCompletedFields,   kUnitedStates},
    {"classic deletions",        classic::kDeletions,         kUnitedStates},
    {"classic moves",            classic::kMoves,             kUnitedStates},
    {"classic numbers",          classic::kNumbers,           kUnitedStates},
    {"classic number law",       classic::kNumberLaw,         kUnitedStates},
    {"classic number deletions", classic::kNumberDeletions,   kUnitedStates},
    {"classic German numbers",   classic::kGermanNumbers,     kGerman      },
    {"classic French numbers",   classic::kFrenchNumbers,     kFrench      },
    {"classic Swiss numbers",    classic::kSwissNumbers,      kSwiss       },
    {"classic Swiss francs",     classic::kSwissFrancNumbers, kSwissFranc  },
    {"classic Danish numbers",   classic::kDanishNumbers,     kDanish      },
    {"classic Mexican numbers",  classic::kMexicanNumbers,    kMexican     },
    {"classic Czech numbers",    classic::kCzechNumbers,      kCzech       },
};

std::string RowOf(const ClassicTable& table, const KeyCase& row)
{
    constexpr char kFromOutside[] = "text:";
    constexpr size_t kSkipped = sizeof kFromOutside - 1;
    Object json = Begun(table.name, false, row.mask, row.type, SettingsOf(table.region));
    json.AddText("text", std::strncmp(row.given, kFromOutside, kSkipped) == 0 ? row.given + kSkipped : row.given);
    return Ended(json, KeysOf(row.keys, NoOtherName), row.shown);
}

// ---- the file

std::vector<std::string> AllRows()
{
    std::vector<std::string> rows;
    for (const TypingTable& table : kTypingTables)
        for (const typing::TypingRow& row : table.rows())
            rows.push_back(RowOf(table.name, row));
    for (const NumberTable& table : kNumberTables)
        for (const modern_numbers::KeyRow& row : table.rows())
            rows.push_back(RowOf(table.name, row));
    for (const ClassicTable& table : kClassicTables)
        for (const KeyCase& row : table.rows)
            rows.push_back(RowOf(table, row));
    return rows;
}

int Write(const char* file)
{
    std::ofstream out(file, std::ios::binary);
    const char* before = "[\n";
    for (const std::string& row : AllRows()) {
        out << before << row;
        before = ",\n";
    }
    out << "\n]\n";
    out.close();
    return out ? 0 : 1;
}

}  // namespace
}  // namespace zttest

int main(int count, char** arguments)
{
    if (count == 2)
        return zttest::Write(arguments[1]);
    std::cerr << "usage: write_rows FILE\n";
    return 2;
}
