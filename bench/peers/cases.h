// The cases that every program of ./bench.sh --peers plays, from one table (cases.txt).
#pragma once

#include <string>
#include <vector>

namespace peers {

struct Case {
    std::string name;
    std::string type;  // string, date, time, number or decimal
    std::string mask;
    std::string icu;  // ICU's pattern; "-": it has none
    std::string keys;
    std::string text;
    std::string value;  // canonical
    std::string wrong;  // keys to be refused or corrected
};

// Ends the program when the table is not readable.
std::vector<Case> ReadCases(const char* path);

}  // namespace peers
