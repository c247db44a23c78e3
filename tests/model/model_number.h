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
    bool grouped = false;
    bool percent = false;
    bool general = false;

    std::string IntegerText(const std::string& digits, bool negative, char group) const;

    static std::optional<Format> Compile(const std::string& text);
};

struct Separators {
    char point = '.';
    char group = ',';
};

std::string Render(const Format& format, const Number& number, const Separators& separators);
bool IsNumber(const std::string& text, char point);
double ToDouble(const std::string& text);  // as far as it is a decimal number

}  // namespace model

#endif
