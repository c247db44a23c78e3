// Writes the page of the manual that shows the keystroke tables of the tests, so that it says what they play and nothing else.
// Usage: write_keystrokes FILE            writes the page
//        write_keystrokes --check FILE    fails when the file is not the page
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/classic_rows.h"
#include "tests/support/modern_number_rows.h"
#include "tests/support/modern_rows.h"

namespace zttest {
namespace {

// ---- cells

// A caret as it is drawn on the page: the bar of the rows would end a cell.
constexpr char kCaret[] = "\xC2\xA6";

// A byte of the rows, all of which are of the Western code page, in the page's own encoding.
std::string Encoded(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (c == '|')
        return kCaret;
    if (byte < 0x80)
        return std::string(1, c);
    return {static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))};
}

std::string Code(const std::string& text)
{
    std::string cell = "`";
    for (const char c : text)
        cell += Encoded(c);
    return cell + "`";
}

std::string CodeOr(const std::string& text, const char* instead)
{
    return text.empty() ? instead : Code(text);
}

std::string TypedKey(char typed)
{
    if (typed > 0 && typed < ' ')
        return std::string("{Ctrl+") + static_cast<char>(typed + 'A' - 1) + "}";
    return std::string(1, typed);
}

constexpr const char* kReasons[] = {"",
                                    "ZTR_WRONG_KIND",
                                    "ZTR_OUT_OF_BOUNDS",
                                    "ZTR_FULL",
                                    "ZTR_READ_ONLY",
                                    "ZTR_DOES_NOT_FIT",
                                    "ZTR_IN_DOUBT",
                                    "ZTR_DOES_NOT_EXIST",
                                    "ZTR_NO_SUCH_ENTRY",
                                    "ZTR_END_OF_RANGE",
                                    "ZTR_NOT_IN_CODE_PAGE"};

std::string Reason(int reason)
{
    return reason == 0 ? "" : Code(kReasons[reason]);
}

// The reasons of a row ("wrong kind") under their names in the header.
std::string Reasons(std::string reasons)
{
    for (char& c : reasons)
        c = c == ' ' || c == '-' ? '_' : static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    return reasons.empty() ? "" : Code("ZTR_" + reasons);
}

std::string Beeps(int count)
{
    if (count < 2)
        return count == 0 ? "" : "beeps";
    return "beeps " + std::to_string(count) + " times";
}

constexpr const char* kTypes[] = {"", "string", "number", "date", "time", "date-time", "decimal"};

// ---- tables

using Cells = std::vector<std::string>;

// A column in which all cells are empty is left out.
void WriteTable(std::ostream& page, const Cells& headings, const std::vector<Cells>& rows)
{
    std::vector<size_t> columns;
    for (size_t column = 0; column < headings.size(); ++column)
        for (const Cells& row : rows)
            if (!row[column].empty()) {
                columns.push_back(column);
                break;
            }
    const auto write = [&](const Cells& cells) {
        page << '|';
        for (const size_t column : columns)
            page << ' ' << cells[column] << " |";
        page << '\n';
    };
    write(headings);
    page << '|';
    for (size_t i = 0; i < columns.size(); ++i)
        page << "---|";
    page << '\n';
    for (const Cells& row : rows)
        write(row);
    page << '\n';
}

// ---- modern dates, times, strings and code tables

std::string KeysOf(const typing::TypingRow& row)
{
    const std::string keys = row.keys;
    std::string told;
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] != '{') {
            told += TypedKey(keys[i]);
            continue;
        }
        const size_t end = keys.find('}', i);
        const std::string act = keys.substr(i + 1, end - i - 1);
        const char* key = typing::KeyOf(act);
        told += key ? key : "{" + act + "}";
        i = end;
    }
    return told;
}

std::string WithTabs(const std::string& text)
{
    std::string told;
    for (const char c : text)
        told += c == '\t' ? "<tab>" : std::string(1, c);
    return told;
}

// What a control has beside its mask.
std::string Beside(const typing::TypingSetup& setup)
{
    std::string beside;
    const auto add = [&](const std::string& text) { beside += (beside.empty() ? "" : ", ") + text; };
    if (setup.range)
        add("range " + Code(setup.range));
    else if (setup.options & ZTEO_SPIN)
        add("spin");
    if (setup.codes)
        add(Code(WithTabs(setup.codes)));
    if (std::strcmp(setup.am, "AM") != 0)
        add(Code(std::string(setup.am) + "/" + setup.pm));
    return beside;
}

void WriteTyping(std::ostream& page, const std::vector<typing::TypingRow>& rows)
{
    std::vector<Cells> cells;
    for (const typing::TypingRow& row : rows)
        cells.push_back({*row.setup.mask ? Code(row.setup.mask) : "", Beside(row.setup),
                         row.before ? Code(row.before) : "empty", CodeOr(KeysOf(row), "none"), Code(row.after),
                         Reasons(row.reasons)});
    WriteTable(page, {"mask", "with", "from", "keys", "becomes", "told"}, cells);
}

// ---- modern numbers

std::string KeysOf(const modern_numbers::KeyRow& row)
{
    std::string told;
    for (const char* letter = row.keys; *letter; ++letter) {
        const char* key = modern_numbers::KeyOf(*letter);
        told += key ? key : *letter == 'l' ? "{Blur}" : TypedKey(*letter);
    }
    return told;
}

std::string StartOf(const modern_numbers::KeyRow& row)
{
    return row.start[0] == '=' ? "value " + Code(row.start + 1) : CodeOr(row.start, "empty");
}

void WriteNumbers(std::ostream& page, const std::vector<modern_numbers::KeyRow>& rows)
{
    std::vector<Cells> cells;
    for (const modern_numbers::KeyRow& row : rows)
        cells.push_back({Code(row.mask), std::strcmp(row.region, "US") == 0 ? "" : row.region, StartOf(row),
                         CodeOr(KeysOf(row), "none"), Code(row.after), Reason(row.reason)});
    WriteTable(page, {"mask", "settings", "from", "keys", "becomes", "told"}, cells);
}

std::string Separator(char c)
{
    return c == ' ' ? "a blank" : c == '\xA0' ? "a fixed blank" : Code(std::string(1, c));
}

void WriteRegions(std::ostream& page)
{
    constexpr const char* kPositions[] = {"before", "behind"};
    std::vector<Cells> cells;
    for (const modern_numbers::Region& region : modern_numbers::kRegions)
        cells.push_back({region.name, Separator(region.decimal), Separator(region.thousand), Code(region.symbol),
                         kPositions[region.position & 1]});
    WriteTable(page, {"settings", "point", "separator", "currency symbol", "where it stands"}, cells);
}

// ---- classic

std::string MaskOf(const KeyCase& row)
{
    return *row.mask ? Code(row.mask) : row.type == DT_STRING ? "none" : "the default";
}

// A text put there by the program is told like a value: for keys it is the same.
std::string GivenOf(const KeyCase& row)
{
    constexpr char kFromOutside[] = "text:";
    const size_t skipped =
        std::strncmp(row.given, kFromOutside, std::strlen(kFromOutside)) == 0 ? sizeof kFromOutside - 1 : 0;
    return Code(row.given + skipped);
}

std::string KeysOf(const KeyCase& row)
{
    std::string told;
    for (const char* key = row.keys; *key; ++key)
        told += TypedKey(*key);
    return told;
}

void WriteClassic(std::ostream& page, const classic::Rows& rows)
{
    std::vector<Cells> cells;
    for (const KeyCase& row : rows)
        cells.push_back(
            {MaskOf(row), kTypes[row.type], GivenOf(row), Code(KeysOf(row)), Code(row.shown), Beeps(row.beeps)});
    WriteTable(page, {"mask", "type", "from", "keys", "becomes", "told"}, cells);
}

// ---- the page

constexpr char kIntroduction[] = R"(# Behaviour reference

The keystroke tables of the tests, as the tests run them: a program writes this page from the same rows, and a test fails when the page
is not what they give. What the keys are for stands in [Keys](keys.md); this page is for looking up one case.

How to read a row: under the mask, from the text shown with the caret in it, the keys lead to what stands under *becomes*.

- `¦` is the caret; `[` and `]` stand around what is selected.
- Characters are typed as they stand. Keys and acts stand in braces: `{Back}` is Backspace, `{Del}` Delete, `{Ins}` Insert, `{Num.}` the
  point of the keypad.
- `{Blur}`: the focus leaves the field. `{Pause}`: a second goes by. `{Click4}`, `{Double4}`: a click, a double click, in front of the
  character at position 4. `{WheelUp}`, `{WheelDown}`: a notch of the wheel. `{ReadOnly}`: the program makes the field read-only.
  `{Paste}`, `{Clear}`, `{Undo}`, `{Redo}`: the entries of the context menu.
- *From* "empty": nothing is filled in. "value": the program has set this value, and the caret stands in front.
- *Told*: in modern editing the reasons of `ZTN_REJECTED` (of numbers, the last one); in classic editing the beeps.

The settings are those of the United States unless a table or a row says otherwise.

)";

struct TypingTable {
    const char* heading;
    const char* words;
    const std::vector<typing::TypingRow>& (*rows)();
};

constexpr TypingTable kTypingTables[] = {
    {"Dates, typed",         "",                                                            typing::ModernDates    },
    {"Times, typed",         "",                                                            typing::ModernTimes    },
    {"Deleting and cutting", "A `{Ctrl+V}` behind a cut pastes what was cut.",              typing::ModernDeletions},
    {"Undo and redo",        "",                                                            typing::ModernUndo     },
    {"Caret and mouse",      "",                                                            typing::ModernCarets   },
    {"The spin's keys",      "The increment is 1; today is the 4th of June 1995, at noon.", typing::ModernSpins    },
    {"Strings",              "",                                                            typing::ModernStrings  },
    {"Code tables",          "",                                                            typing::ModernChoices  },
};

struct NumberTable {
    const char* heading;
    const std::vector<modern_numbers::KeyRow>& (*rows)();
};

constexpr NumberTable kNumberTables[] = {
    {"Digits",                  modern_numbers::NumberDigits    },
    {"Signs",                   modern_numbers::NumberSigns     },
    {"Separators and literals", modern_numbers::NumberSeparators},
    {"Deleting in numbers",     modern_numbers::NumberDeletion  },
    {"The caret in numbers",    modern_numbers::NumberCaret     },
};

struct ClassicTable {
    const char* heading;
    const char* words;
    const classic::Rows& rows;
};

const ClassicTable kClassicTables[] = {
    {"Typing dates, times and strings",               "",                                                  classic::kCharacters       },
    {"Behind the AM/PM field",                        "",                                                  classic::kBehindAmPm       },
    {"Positions of strings",                          "",                                                  classic::kStringPositions  },
    {"Months",                                        "",                                                  classic::kMonths           },
    {"Names of months",                               "",                                                  classic::kMonthNames       },
    {"Days",                                          "",                                                  classic::kDays             },
    {"Days of the year",                              "",                                                  classic::kDaysOfTheYear    },
    {"Years",                                         "",                                                  classic::kYears            },
    {"Hours, minutes, seconds, fractions",            "",                                                  classic::kTimes            },
    {"Positions that several types share",            "",                                                  classic::kSharedPositions  },
    {"Fields completed and gone on with",             "",                                                  classic::kCompletedFields  },
    {"Deleting",                                      "",                                                  classic::kDeletions        },
    {"The caret",                                     "",                                                  classic::kMoves            },
    {"Typing numbers",                                "",                                                  classic::kNumbers          },
    {"Typing numbers: longer cases",                  "",                                                  classic::kNumberLaw        },
    {"Deleting in classic numbers",                   "",                                                  classic::kNumberDeletions  },
    {"Numbers in Germany",                            "Settings: `1.234,50EUR`.",                          classic::kGermanNumbers    },
    {"Numbers in France",                             "Settings: `1 234,50F`.",                            classic::kFrenchNumbers    },
    {"Numbers in Switzerland",                        "Settings: `CHF1'234.50`.",                          classic::kSwissNumbers     },
    {"Numbers in Switzerland, a symbol with a point", "Settings: `Fr.1'234.50`.",                          classic::kSwissFrancNumbers},
    {"Numbers in Denmark",                            "Settings: `kr.1.234,50`.",                          classic::kDanishNumbers    },
    {"Numbers in Mexico",                             "Settings: `MXN1,234.50`.",                          classic::kMexicanNumbers   },
    {"Numbers in the Czech Republic",                 "Settings: `1 234Kc`, a currency without fraction.", classic::kCzechNumbers     },
};

void WriteHeading(std::ostream& page, const char* heading, const char* words)
{
    page << "### " << heading << "\n\n";
    if (*words)
        page << words << "\n\n";
}

std::string Page()
{
    std::ostringstream page;
    page << kIntroduction << "## Modern editing\n\n";
    for (const TypingTable& table : kTypingTables) {
        WriteHeading(page, table.heading, table.words);
        WriteTyping(page, table.rows());
    }
    page << "## Modern editing: numbers\n\nThe settings that rows name:\n\n";
    WriteRegions(page);
    for (const NumberTable& table : kNumberTables) {
        WriteHeading(page, table.heading, "");
        WriteNumbers(page, table.rows());
    }
    page << "## Classic editing\n\n";
    for (const ClassicTable& table : kClassicTables) {
        WriteHeading(page, table.heading, table.words);
        WriteClassic(page, table.rows);
    }
    std::string text = page.str();
    text.pop_back();  // the empty line behind the last table
    return text;
}

std::string Read(const char* file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

int Check(const char* file)
{
    if (Read(file) == Page())
        return 0;
    std::cerr << file << " is not what the rows of the tests give; tools/write_keystrokes.sh writes it anew\n";
    return 1;
}

int Write(const char* file)
{
    std::ofstream out(file, std::ios::binary);
    out << Page();
    out.close();
    return out ? 0 : 1;
}

}  // namespace
}  // namespace zttest

int main(int count, char** arguments)
{
    if (count == 3 && std::strcmp(arguments[1], "--check") == 0)
        return zttest::Check(arguments[2]);
    if (count == 2)
        return zttest::Write(arguments[1]);
    std::cerr << "usage: write_keystrokes [--check] FILE\n";
    return 2;
}
