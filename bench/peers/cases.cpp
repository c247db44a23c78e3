#include "bench/peers/cases.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace peers {

namespace {

struct Column {
    const char* name;
    std::string Case::*member;
};

// What stands in the table for others is passed over.
constexpr Column kColumns[] = {
    {"type",  &Case::type },
    {"mask",  &Case::mask },
    {"icu",   &Case::icu  },
    {"keys",  &Case::keys },
    {"text",  &Case::text },
    {"value", &Case::value},
    {"wrong", &Case::wrong},
};

void TakeColumn(Case& row, const std::string& name, const std::string& content)
{
    for (const Column& column : kColumns)
        if (name == column.name)
            row.*column.member = content;
}

}  // namespace

std::vector<Case> ReadCases(const char* path)
{
    std::ifstream file(path);
    std::vector<Case> cases;
    for (std::string line; std::getline(file, line);) {
        const size_t end = line.find(' ');
        const size_t start = line.find_first_not_of(' ', end);
        if (end == std::string::npos || start == std::string::npos || line[0] == '#')
            continue;
        const std::string name = line.substr(0, end);
        const std::string content = line.substr(start);
        if (name == "case")
            cases.emplace_back().name = content;
        else if (!cases.empty())
            TakeColumn(cases.back(), name, content);
    }
    if (cases.empty()) {
        std::fprintf(stderr, "FAILED: no cases in %s\n", path);
        std::exit(1);
    }
    return cases;
}

}  // namespace peers
