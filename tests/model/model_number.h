// A second, independent number formatter: decimal digits laid through a display format.
// The differential tests compare the library with it, so it shares no code with the library.
#ifndef TESTS_MODEL_MODEL_NUMBER_H
#define TESTS_MODEL_MODEL_NUMBER_H

#include <optional>
#include <string>

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

// What a display format says, once read. Literals between two placeholders count as suffix.
struct Format {
    std::string prefix;
    std::string suffix;
    std::string integer;
    std::string fraction;
    bool point = false;
    bool grouped = false;
    bool percent = false;
    bool general = false;
    bool interleaved = false;  // literals between the digits, whose place the model does not know

    static std::optional<Format> Compile(const std::string& text);
};

struct Separators {
    char point = '.';
    char group = ',';
};

std::string Render(const Format& format, const Number& number, const Separators& separators);
bool IsNumber(const std::string& text, char point);

}  // namespace model

#endif
