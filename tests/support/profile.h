// Regional settings for tests: the keys of the profile section "intl", told to the library, and put back afterwards.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace zttest {

// Keys of the section and their values. A null value removes the key.
struct ProfileValue {
    const char* key;
    const char* value;
};
using RegionalSet = std::vector<ProfileValue>;

// Complete sets. Every test program starts under kUnitedStates.
extern const RegionalSet kUnitedStates;  // 1,234.50   $ before   M/d/yyyy
extern const RegionalSet kGerman;        // 1.234,50   EUR behind dd.MM.yyyy
extern const RegionalSet kFrench;        // 1 234,50   F behind   dd/MM/yyyy
extern const RegionalSet kSwiss;         // 1'234.50   CHF before dd.MM.yyyy
extern const RegionalSet kIso;           // 1,234.50   $ before   yyyy-MM-dd

// Writes the values for its lifetime and tells the library of the change.
class Regional {
public:
    explicit Regional(const RegionalSet& values);
    Regional(const Regional&) = delete;
    Regional& operator=(const Regional&) = delete;
    ~Regional();

private:
    std::vector<std::pair<std::string, std::string>> previous_;  // kAbsent for a key that was not there
};

// A complete set of settings with some keys changed.
RegionalSet With(RegionalSet set, const RegionalSet& changes);

// The value of a key in force, empty when it is absent.
std::string RegionalValue(const char* key);

// Where the settings are kept: in the profile of a Windows system, or in memory.
constexpr const char* kAbsent = "\x01";  // stands for the value of a key that is not there
std::string ReadProfile(const char* key);
void WriteProfile(const char* key, const std::string& value);

// Tells the library that they have changed. On windows one control that hears of it is enough for all.
void TellRegionalChange();

}  // namespace zttest
