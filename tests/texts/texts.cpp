// Texts that no careful caller would hand in.
#include "tests/texts/texts.h"

#include <cstdlib>
#include <random>

namespace zttest {

namespace {

std::string Repeated(const std::string& text, size_t times)
{
    std::string repeated;
    for (size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

}  // namespace

std::vector<std::string> TextsOfEveryByte(const std::string& good)
{
    const size_t middle = good.size() / 2;
    std::vector<std::string> texts;
    for (int byte = 1; byte <= 0xFF; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        texts.push_back(one);
        texts.push_back(one + good);
        texts.push_back(good.substr(0, middle) + one + good.substr(middle));
        texts.push_back(good + one);
    }
    return texts;
}

std::vector<LongText> LongTexts()
{
    constexpr size_t kLengths[] = {0, 1, 254, 255, 256, 257, 65535, kMegabyte};
    // Plain characters, digits, separators, letters of masks, and high bytes.
    constexpr char kCharacters[] = {'q', ' ', '0', '9', '.', ',', '/',  ':',    '-',   '#',
                                    'X', 'Y', 'F', '~', '%', '[', '\t', '\xE4', '\xFF'};
    std::vector<LongText> texts;
    for (const size_t length : kLengths)
        for (const char character : kCharacters)
            texts.push_back({length, character});
    return texts;
}

std::vector<std::string> RandomTexts(uint32_t seed, int count)
{
    const std::string alphabet =
        "##X9A!^NYYMMDDJJJHHMMSSFFFAM/PM[date][time][currency()]~%0123456789+-.,/: \t\\\"'eEinfnan$";
    std::mt19937 random(seed);
    const auto below = [&](size_t limit) { return random() % limit; };
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i) {
        std::string text;
        for (size_t left = below(below(4) == 0 ? 300 : 30); left > 0; --left)
            text += below(8) == 0 ? static_cast<char>(1 + below(255)) : alphabet[below(alphabet.size())];
        texts.push_back(text);
    }
    return texts;
}

std::vector<std::string> PeculiarTexts()
{
    constexpr size_t kLong = 100000;
    std::string highBytes;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        highBytes += static_cast<char>(byte);
    std::string entries;
    for (int i = 0; i < 33000; ++i)
        entries += "entry " + std::to_string(i) + "\t" + std::to_string(i) + "/";
    // clang-format off
    return {
        // masks
        Repeated("~#", 127), Repeated("~#", 30000), "~", "~~", "##~", std::string(254, '-') + "#", highBytes, "\x80\xFF#\xE4\x81",
        Repeated("MM/DD/YY ", 100), "HH:MM:SS:" + std::string(240, 'F'), "HH" + Repeated(" AM/PM", 40), "#" + std::string(250, ',') + "#",
        "[currency", "[currency(" + std::string(60000, '9') + ")]", "[currency(-5)]", "[currency(65540)]", "[currency()]", "[GENERAL]",
        "[date]" + std::string(60000, '#'), "[date]x", "\"'\"'#", std::string(255, '\\'), "%s%n%d%x%s%s%s#",
        std::string(255, '0'), std::string(255, '%'), std::string(255, '.'),
        // data
        std::string(kLong, '9'), std::string(kLong, ' '), std::string(kLong, '-'), "0." + std::string(kLong, '7'),
        "1e" + std::string(kLong, '9'), Repeated(highBytes, 800), Repeated("1995-07-04 ", 9000), Repeated("%s%n", 25000),
        "1e308", "-1e99999", "1e-308", "-", "-.", "2001-02-30", "1995-13-13 25:61:61",
        // ranges and code tables
        "9~1", "~", std::string(kLong, '~'), std::string(kLong / 2, '1') + "~" + std::string(kLong / 2, '2'), "2001-02-30~1995-13-13",
        "x\t" + std::string(kLong, 'y'), std::string(kLong, '/'), std::string(kLong, '\t'), "/", "\t", "//", "a\tb\tc/\t/d", entries,
    };
    // clang-format on
}

std::string Described(const std::string& text)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string described = std::to_string(text.size()) + " characters: ";
    for (const char character : text.substr(0, 48)) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= ' ' && byte < 0x7F)
            described += character;
        else
            described += std::string("\\x") + kDigits[byte / 16] + kDigits[byte % 16];
    }
    return described;
}

Sample::Sample(size_t every) : every_(every)
{
    if (const char* told = std::getenv("ZT_TEXTS_EVERY"))
        every_ = static_cast<size_t>(std::strtoul(told, nullptr, 10));
    if (every_ == 0)
        every_ = 1;
}

}  // namespace zttest
