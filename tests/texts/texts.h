// Texts that no careful caller would hand in.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zttest {

// Every character value but NUL alone, in front of a good text, in its middle and at its end.
std::vector<std::string> TextsOfEveryByte(const std::string& good);

// Texts of one character, by lengths around the limits of masks, of entries and of 16 bits, up to a megabyte.
struct LongText {
    size_t length;
    char character;
    std::string Make() const { return std::string(length, character); }
};
std::vector<LongText> LongTexts();
constexpr size_t kMegabyte = 1048576;

// Random texts of mask letters, digits, separators, high bytes and any byte at all.
std::vector<std::string> RandomTexts(uint32_t seed, int count);

// Masks, data, ranges and code tables that are broken or endless in their own ways.
std::vector<std::string> PeculiarTexts();

// The length of a text and how it begins.
std::string Described(const std::string& text);

// Which rows of a table are played: one in so many, another one in each of the tables that are played with it, so that together
// they play every row. ZT_TEXTS_EVERY=1 plays all.
class Sample {
public:
    explicit Sample(size_t every);
    bool Has(size_t row, size_t table) const { return (row + table) % every_ == 0; }

private:
    size_t every_;
};

}  // namespace zttest
