// The law of typing: whoever types a number gets that number. Here it stands by itself, as a reader of a mask would apply it,
// with no help of the engine: what a mask shows for a number, which numbers fit its room, where the caret stands after every
// key. The rows made from it are played on any field that takes keys, in memory or in a window.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/keyboard.h"
#include "tests/support/profile.h"

namespace zttest {

// Regional settings as far as numbers see them: the texts of the profile's keys.
struct NumberSettings {
    std::string name;
    std::string decimal;   // empty: the point
    std::string thousand;  // empty: the comma
    std::string symbol;
    int position;  // 0 and 2: the symbol stands before the digits; 1 and 3: behind
    int digits;

    char DecimalChar() const { return decimal.empty() ? '.' : decimal[0]; }
    char ThousandChar() const { return thousand.empty() ? ',' : thousand[0]; }
};
inline std::ostream& operator<<(std::ostream& out, const NumberSettings& settings)
{
    return out << settings.name;
}
const std::vector<NumberSettings>& AllNumberSettings();
RegionalSet ProfileOf(const NumberSettings& settings);

// The settings of every row of kCurrencies.
std::vector<NumberSettings> CurrencyNumberSettings();

// The masks that the law is tried on, of all kinds.
extern const std::vector<const char*> kNumberMasks;

// A number as it is written: no 0 stands first in the integer part or last in the fraction.
struct PlainNumber {
    bool negative = false;
    std::string integer;
    std::string fraction;
    bool operator==(const PlainNumber& other) const
    {
        return negative == other.negative && integer == other.integer && fraction == other.fraction;
    }
};

// Reads a plain text: sign, digits, the decimal character, digits. False when anything else stands in it.
bool ReadPlain(const std::string& text, char decimal, PlainNumber& number);

// As a value is handed in: with a point, the percentage as the fraction that it stands for.
std::string CanonicalText(const PlainNumber& number, bool percent);

// A mask under settings, read as its description says.
class NumberMask {
public:
    NumberMask(const char* mask, int32_t type, const NumberSettings& settings);

    const std::string& Mask() const { return mask_; }  // as it is set; empty for the default
    int32_t Type() const { return type_; }
    bool IsPercent() const { return behind_ == "%"; }
    bool HasPoint() const { return point_; }
    bool IsOfZeros() const { return hashes_ == 0; }  // filled from its first position
    const std::string& Before() const { return before_; }
    const std::string& Behind() const { return behind_; }
    const NumberSettings& Settings() const { return settings_; }

    // Whether the literals hold what a number is made of, so that they cannot be typed along.
    bool LiteralsLookLikeNumbers() const;
    bool HasLiteral(char character) const;
    bool SymbolHoldsPoint() const;

    // Whether a plain text with '.' as its point is promised: it fits the room, and has as many digits as are asked for.
    bool Takes(const std::string& plain) const;

    // What is shown for a number, with as many fraction digits at least.
    std::string Show(const PlainNumber& number, size_t fractionDigits = 0) const;

    // The caret among the digits when keys has been typed: empty, or what is wrong. A Backspace that has just taken back the
    // only digit may leave the caret on either side of the 0 that the mask forces.
    std::string JudgeCaret(const std::string& keys, const std::string& text, int start, int end, bool takenBack) const;

    // Whether one more digit is taken behind what has been typed.
    bool TakesDigitBehind(const std::string& keys) const;

    // The room's end without the sign, in digits.
    std::string FullInteger() const;
    size_t FractionPlaces() const { return fractionPlaces_; }

private:
    struct Typed;
    void ReadMask();
    void ReadBody(const std::string& body);
    void TakePlace(bool forced);
    size_t Width(const std::string& digits) const;  // as shown, separators included
    bool IsFull(const Typed& typed) const;
    bool IsGrouped() const { return grouped_ && settings_.DecimalChar() != settings_.ThousandChar(); }

    std::string mask_;
    int32_t type_;
    NumberSettings settings_;
    std::string before_;
    std::string behind_;
    size_t room_ = 0;
    size_t integerPlaces_ = 0;
    size_t forcedInteger_ = 0;
    size_t fractionPlaces_ = 0;
    size_t forcedFraction_ = 0;
    size_t hashes_ = 0;
    bool grouped_ = false;
    bool point_ = false;
};

// Ways to come to a field that is about to be typed into.
enum class LawStart {
    Blank,             // as setting the empty value leaves it
    BeforeFirstDigit,  // blank, a click before the first digit
    Home,              // blank, the Home key
    AllSelected,       // over another value
    SelectedDelete,
    SelectedBackspace,
    SelectedCut,
    NumberSelected,  // its sign and digits, the literals not
    NumberDeleted,
    Backspaces,  // from the end, until nothing is left
    Deletes,     // from the front on
    Count
};
const char* NameOf(LawStart start);

// A key of a row. What was typed in error is refused, or taken back by Backspace.
struct LawKey {
    enum Kind { Plain, Shown, Refused, TakenBack } kind;
    char character;
};

struct LawRow {
    const NumberMask* mask;
    LawStart start;
    PlainNumber other;  // what the field shows before, where the start begins with a value
    PlainNumber number;
    size_t typedFraction;  // fraction digits typed, zeros at the end included
    std::vector<LawKey> keys;
};

// The plain texts that are tried on a mask, with '.' as the point: at least 60 where the room is large enough for them.
std::vector<std::string> PlainTextsFor(const NumberMask& mask);

// A number that fits, for the field to show before.
PlainNumber OtherNumber(const NumberMask& mask, uint32_t choice);

LawRow PlainRow(const NumberMask& mask, LawStart start, const std::string& plain, uint32_t choice);

// The same number as the field will show it; false where the law does not promise it.
bool ShownRow(const NumberMask& mask, LawStart start, const std::string& plain, uint32_t choice, LawRow& row);

// The plain row with keys typed in error between its keys.
LawRow WithWrongKeys(LawRow row, uint32_t seed);

// What a row is played on.
class LawField {
public:
    virtual void ShowValue(const std::string& canonical) = 0;
    virtual void ShowBlank() = 0;
    virtual void Select(int start, int end) = 0;
    virtual std::string Text() = 0;
    virtual int CaretStart() = 0;
    virtual int CaretEnd() = 0;
    virtual int Beeps() = 0;
    virtual std::string Read() = 0;
    virtual Keyboard& Keys() = 0;

protected:
    ~LawField() = default;
};

// Plays a row: empty, or what came instead.
std::string PlayLaw(LawField& field, const LawRow& row);

// Whether the field itself shows a number as the mask is read here: empty, or what it shows.
std::string CompareDisplay(LawField& field, const NumberMask& mask, const PlainNumber& number);

// One line for a row that failed: mask, settings, start, keys, expected.
std::string Describe(const LawRow& row);

// A well mixed number out of others, for choosing rows the same way in every run.
uint32_t Mix(uint32_t first, uint32_t second, uint32_t third = 0, uint32_t fourth = 0);

}  // namespace zttest
