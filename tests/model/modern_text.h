// Small questions of the model's modern editing about texts.
#ifndef TESTS_MODEL_MODERN_TEXT_H
#define TESTS_MODEL_MODERN_TEXT_H

#include <algorithm>
#include <cstdio>
#include <string>

namespace model::modern {

inline bool IsBlank(const std::string& text)
{
    return text.find_first_not_of(' ') == std::string::npos;
}

inline bool AreDigits(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

inline std::string WithoutBlanks(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

inline std::string ZeroPadded(int value, int width)
{
    char text[32];
    std::snprintf(text, sizeof text, "%0*d", width, value);
    return text;
}

}  // namespace model::modern

#endif
