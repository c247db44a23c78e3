// Regional settings for the length of a test: written into the profile section "intl", told to the services, put back.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/support/profile.h"
#include "ztshared.h"

namespace zttest {

class ScopedProfile {
public:
    using Values = std::vector<std::pair<std::string, const char*>>;  // a null value removes the key

    explicit ScopedProfile(const Values& values)
    {
        for (const auto& [key, value] : values) {
            previous_.emplace_back(key, ReadProfile(key.c_str()));
            Write(key, value ? value : kAbsent);
        }
        SharedReadRegionalSettings();
    }
    ScopedProfile(const ScopedProfile&) = delete;
    ScopedProfile& operator=(const ScopedProfile&) = delete;
    ~ScopedProfile()
    {
        for (const auto& [key, value] : previous_)
            Write(key, value);
        SharedReadRegionalSettings();
    }

    // Changes a key without telling the services; the destructor puts back what was there before the object.
    static void Write(const std::string& key, const std::string& value) { WriteProfile(key.c_str(), value); }

private:
    std::vector<std::pair<std::string, std::string>> previous_;
};

inline const ScopedProfile::Values kPointAndComma = {
    {"sDecimal",  "."},
    {"sThousand", ","}
};
inline const ScopedProfile::Values kCommaAndPoint = {
    {"sDecimal",  ","},
    {"sThousand", "."}
};
inline const ScopedProfile::Values kCommaAndBlank = {
    {"sDecimal",  ","},
    {"sThousand", " "}
};
inline const ScopedProfile::Values kEmptyCharacters = {
    {"sDecimal",  ""},
    {"sThousand", ""}
};
inline const ScopedProfile::Values kAbsentCharacters = {
    {"sDecimal",  nullptr},
    {"sThousand", nullptr}
};

}  // namespace zttest
