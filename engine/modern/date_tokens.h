// A text that may be a date or a time, taken apart: numbers, names, separators.
#pragma once

#include <vector>

#include "engine/record.h"

namespace zte::modern::dates {

enum class TokenKind : uint8_t {
    Number,
    Month,      // a name of the settings
    Half,       // AM, PM
    TimeMark,   // the T between a date and a time
    Separator,  // blanks, with one mark among them, or as the mask has it
    Doubtful,   // a name that two months have
    Unknown,
    End,
};

struct Token {
    TokenKind kind;
    int32_t start;
    Text text;
    int32_t number;  // of a name 1 to 12, of a designator a HalfOfDay

    bool IsNumber(int32_t digits) const { return kind == TokenKind::Number && Length(text) == digits; }
    bool HasColon() const { return kind == TokenKind::Separator && Find(text, ':') >= 0; }
};

// A blank as texts of other programs have it: a tab and a no-break blank too.
bool IsBlankOfText(const EditInstance& edit, Char c);

// The mask's literals as the display shows them, each run by itself, those before the first field and behind the last included.
std::vector<Text> LiteralRuns(const EditInstance& edit);

// Ends with an End, which stands behind the text. Surrounding blanks are no tokens.
std::vector<Token> TokensOf(const EditInstance& edit, const Text& text);

}  // namespace zte::modern::dates
