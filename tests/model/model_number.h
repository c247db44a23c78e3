// A second, independent number formatter: decimal digits laid through a display format.
// The differential tests compare the library with it, so it shares no code with the library.
#ifndef TESTS_MODEL_MODEL_NUMBER_H
#define TESTS_MODEL_MODEL_NUMBER_H

#include <optional>
#include <string>
#include <vector>

namespace model {

// digits * 10^-scale; digits without leading zeros, empty for zero.
struct Number {
    bool negative = false;
    std::string digits;
    int scale = 0;

    static Number FromDouble(double value);
    static Number FromText(const std::string& text);
    Number TimesPowerOfTen(int power) const;
};

struct Separators {
    char point = '.';
    char group = ',';
};

// The digits of a number as they are shown, and as they are typed.
struct Digits {
    bool negative = false;
    std::string integer;
    std::string fraction;

    bool AreZero() const { return (integer + fraction).find_first_not_of('0') == std::string::npos; }
};

// What a display format says, once read. Literals stand where the format has them, between placeholders too.
struct Format {
    struct Inner {
        size_t before;  // placeholders of the integer part before it
        char literal;
    };

    std::string prefix;
    std::vector<Inner> inner;  // in the integer part and behind it
    std::string middle;        // between the point and the fraction
    std::string suffix;
    std::string integer;
    std::string fraction;
    bool point = false;
    int room = 0;  // characters of the integer part, separators included
    bool grouped = false;
    bool percent = false;
    bool general = false;

    bool Grows() const { return (integer + fraction).find('#') != std::string::npos; }
    size_t ForcedInteger() const;
    size_t ForcedFraction() const;
    size_t Places() const { return fraction.size(); }
    bool Groups(const Separators& separators) const { return grouped && separators.group != separators.point; }
    std::string Tail() const;  // the literals behind the number
    std::string Lay(const Digits& digits, const Separators& separators) const;
    bool IsFull(size_t significant, const Separators& separators) const;

    static std::optional<Format> Compile(const std::string& text);
};

// A number found in a text: its digits, and where they stand.
struct ShownNumber {
    Digits digits;
    int begin = 0;  // behind the literals before it
    int end = 0;    // where the literals behind it begin
    int sign = -1;
    int point = -1;
    std::vector<int> integerAt;
    std::vector<int> fractionAt;

    bool InFraction(int position) const { return point >= 0 && position > point; }
    int IntegerFrom(int position) const;     // integer digits there and behind
    int FractionBefore(int position) const;  // fraction digits before it
    int First() const;                       // the first position of the number
};

ShownNumber ReadShown(const Format& format, const std::string& text, const Separators& separators);

std::string Render(const Format& format, const Number& number, const Separators& separators);
std::string PlainText(const Number& number, char point);  // every digit
bool IsNumber(const std::string& text, char point);
double ToDouble(const std::string& text);  // as far as it is a decimal number

}  // namespace model

#endif
