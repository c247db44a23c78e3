// Date pictures and time separators of the regional settings, turned into masks.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "intl/intl_picture.h"
#include "tests/support/edit_test.h"
#include "tests/support/profile.h"

namespace zttest {
namespace {

using namespace zte;

constexpr char kUntouched = '?';

struct Conversion {
    int32_t status;
    std::string mask;  // what was written in front of the first untouched character
};

// Converts with size characters of room; a write behind them fails the test.
Conversion Convert(const char* picture, int32_t size = 255)
{
    std::string out(static_cast<size_t>(size) + 8, kUntouched);
    const int32_t status = PictureToMask(picture, &out[0], size);
    EXPECT_EQ(out.find_first_not_of(kUntouched, static_cast<size_t>(size)), std::string::npos)
        << "written behind the buffer";
    return {status, status == PICTURE_OK ? std::string(out.c_str()) : out.substr(0, out.find(kUntouched))};
}

struct PictureCase {
    const char* name;
    const char* picture;
    const char* mask;
};
void PrintTo(const PictureCase& row, std::ostream* out)
{
    *out << row.picture;
}

class Picture : public testing::TestWithParam<PictureCase> {};

TEST_P(Picture, BecomesAMask)
{
    const Conversion conversion = Convert(GetParam().picture);
    EXPECT_EQ(conversion.status, PICTURE_OK);
    EXPECT_EQ(conversion.mask, GetParam().mask);
}

const PictureCase kPictureRows[] = {
    {"Empty",                          "",                   ""                    },
    {"UnitedStates",                   "M/d/yy",             "mm/dd/yy"            },
    {"German",                         "dd.MM.yyyy",         "dd.mm.yyyy"          },
    {"Iso",                            "yyyy-MM-dd",         "yyyy-mm-dd"          },
    {"OneMonthLetter",                 "M yy",               "mm yy"               },
    {"TwoMonthLetters",                "MM yy",              "mm yy"               },
    {"ThreeMonthLetters",              "MMM yy",             "mm yy"               },
    {"FourMonthLetters",               "MMMM yy",            "mm yy"               },
    {"OneDayLetter",                   "d",                  "dd"                  },
    {"TwoDayLetters",                  "dd",                 "dd"                  },
    {"ThreeDayLetters",                "ddd",                "ddd"                 },
    {"FourDayLetters",                 "dddd",               "dd"                  },
    {"TwoYearLetters",                 "yy",                 "yy"                  },
    {"FourYearLetters",                "yyyy",               "yyyy"                },
    {"CapitalYear",                    "YYYY",               "yyyy"                },
    {"MixedCaseRun",                   "yYyY",               "yyyy"                },
    {"OneHourLetter",                  "h",                  "hh"                  },
    {"TwoHourLetters",                 "HH",                 "hh"                  },
    {"MinutesBehindTheHour",           "hh:mm",              "hh:mm"               },
    {"OneMinuteLetter",                "h:m",                "hh:mm"               },
    {"MonthBeforeTheHourMinuteBehind", "M h:m",              "mm hh:mm"            },
    {"OneSecondLetter",                "h:m:s",              "hh:mm:ss"            },
    {"TwoSecondLetters",               "hh:mm:ss",           "hh:mm:ss"            },
    {"OneFractionLetter",              "f",                  "ff"                  },
    {"SixFractionLetters",             "ffffff",             "fffffff"             },
    {"CapitalAmPm",                    "h AM/PM",            "hh AM/PM"            },
    {"SmallAmPm",                      "h am/pm",            "hh AM/PM"            },
    {"AmPmThenMore",                   "h AM/PM:m",          "hh AM/PM:mm"         },
    {"ShortAmPmSkipsFiveCharacters",   "h A/P:.m",           "hh AM/PMmm"          },
    {"SmallShortAmPm",                 "h a/p:.m",           "hh AM/PMmm"          },
    {"ShortAmPmAtTheEnd",              "h a/p",              "hh AM/PM"            },
    {"ShortAmPmOneFromTheEnd",         "h a/p.",             "hh AM/PM"            },
    {"Literals",                       "d. M. yy",           "dd. mm. yy"          },
    {"Escape",                         "\\dd\\M",            "dddM"                },
    {"EscapedBackslash",               "d\\\\M",             "dd\\mm"              },
    {"SingleQuotes",                   "'Day' d",            "Day dd"              },
    {"DoubleQuotes",                   "\"Day\" d",          "Day dd"              },
    {"DoubleQuoteInSingleQuotes",      "'\"' d",             "\" dd"               },
    {"SingleQuoteInDoubleQuotes",      "\"'\" d",            "' dd"                },
    {"EmptyQuotes",                    "''d\"\"",            "dd"                  },
    {"BackslashInQuotesIsItself",      "'\\'d",              "\\dd"                },
    {"QuotesEndARun",                  "d''d",               "dddd"                },
    {"TimeTemplate",                   "hh':'mm':'ss",       "hh:mm:ss"            },
    {"EveryPart",                      "dddd, d.M.yyyy h:m", "dd, dd.mm.yyyy hh:mm"},
};
INSTANTIATE_TEST_SUITE_P(, Picture, testing::ValuesIn(kPictureRows), RowName<PictureCase>);

struct RefusedCase {
    const char* name;
    const char* picture;
    int32_t status;
};
void PrintTo(const RefusedCase& row, std::ostream* out)
{
    *out << row.picture;
}

class RefusedPicture : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedPicture, GivesItsStatus)
{
    EXPECT_EQ(Convert(GetParam().picture).status, GetParam().status);
}

const RefusedCase kRefusedRows[] = {
    {"UnclosedSingleQuote",    "'Day d",      7 },
    {"UnclosedDoubleQuote",    "\"Day d",     7 },
    {"OtherQuoteDoesNotClose", "'Day\" d",    7 },
    {"BackslashAtTheEnd",      "d\\",         7 },
    {"FiveMonthLetters",       "MMMMM/dd/yy", 9 },
    {"FiveDayLetters",         "ddddd",       10},
    {"FiveYearLetters",        "yyyyy",       11},
    {"OneYearLetter",          "d/M/y",       11},
    {"ThreeYearLetters",       "yyy/MM/dd",   11},
    {"OneYearLetterAtTheEnd",  "y",           11},
    {"ThreeHourLetters",       "hhh",         12},
    {"ThreeSecondLetters",     "h:m:sss",     13},
    {"ThreeMinuteLetters",     "h:mmm",       14},
    {"MonthNameBehindTheHour", "h MMMM",      14},
    {"LoneA",                  "h A",         15},
    {"AmWithoutPm",            "h AM",        15},
    {"MixedCaseAmPm",          "h Am/Pm",     15},
    {"SmallMixedShortAmPm",    "h a/P",       15},
    {"WordWithAnA",            "a day",       15},
    {"SevenFractionLetters",   "fffffff",     16},
    {"TheFirstErrorCounts",    "yyy'",        11},
};
INSTANTIATE_TEST_SUITE_P(, RefusedPicture, testing::ValuesIn(kRefusedRows), RowName<RefusedCase>);

TEST(PictureRoom, ExactlyTheMaskAndItsEndFit)
{
    const Conversion conversion = Convert("M/d/yy", 9);
    EXPECT_EQ(conversion.status, PICTURE_OK);
    EXPECT_EQ(conversion.mask, "mm/dd/yy");
}

TEST(PictureRoom, OneLessHasNoRoomForTheEnd)
{
    EXPECT_EQ(Convert("M/d/yy", 8).status, PICTURE_BUFFER_FULL);
}

class SmallRoom : public testing::TestWithParam<int> {};

TEST_P(SmallRoom, IsFullAndNotOverrun)
{
    EXPECT_EQ(Convert("M/d/yy 'quoted' \\x h:m:s AM/PM ff", GetParam()).status, PICTURE_BUFFER_FULL);
}

TEST_P(SmallRoom, HoldsTheStartOfTheMask)
{
    const std::string whole = "mm/dd/yy quoted x hh:mm:ss AM/PM fff";
    const Conversion conversion = Convert("M/d/yy 'quoted' \\x h:m:s AM/PM ff", GetParam());
    EXPECT_EQ(whole.compare(0, conversion.mask.size(), conversion.mask), 0) << conversion.mask;
}

INSTANTIATE_TEST_SUITE_P(, SmallRoom, testing::Range(0, 37));

TEST(PictureRoom, AnErrorInThePictureIsNotHiddenByRoomLeft)
{
    EXPECT_EQ(Convert("yyy", 255).status, PICTURE_BAD_YEAR);
}

// The conversion of what the profile has.
struct ProfileCase {
    const char* name;
    const char* key;
    const char* value;
    int32_t kind;
    int32_t status;
    const char* mask;
};
void PrintTo(const ProfileCase& row, std::ostream* out)
{
    *out << row.key << '=' << (row.value ? row.value : "(absent)");
}

class ProfilePicture : public testing::TestWithParam<ProfileCase> {};

TEST_P(ProfilePicture, IsConverted)
{
    const Regional settings(RegionalSet(1, {GetParam().key, GetParam().value}));
    char out[255] = "";
    EXPECT_EQ(IntlPictureToMask(out, sizeof out, GetParam().kind), GetParam().status);
    if (GetParam().status == PICTURE_OK) {
        EXPECT_STREQ(out, GetParam().mask);
    }
}

const ProfileCase kProfileRows[] = {
    {"DateAbsent",             "sShortDate", nullptr,       1, 0,  "mm/dd/yy"                },
    {"DateEmpty",              "sShortDate", "",            1, 0,  ""                        },
    {"DateDayFirst",           "sShortDate", "dd.MM.yyyy",  1, 0,  "dd.mm.yyyy"              },
    {"DateWithWords",          "sShortDate", "'Day' d",     1, 0,  "Day dd"                  },
    {"DateOfThreeYearLetters", "sShortDate", "yyy/MM/dd",   1, 11, ""                        },
    {"DateOfFiveMonthLetters", "sShortDate", "MMMMM/dd/yy", 1, 9,  ""                        },
    {"TimeAbsent",             "sTime",      nullptr,       2, 0,  "hh:mm:ss"                },
    {"TimeEmpty",              "sTime",      "",            2, 0,  "hhmmss"                  },
    {"TimePoint",              "sTime",      ".",           2, 0,  "hh.mm.ss"                },
    {"TimeOfAMaskLetter",      "sTime",      "h",           2, 0,  "hhhmmhss"                },
    {"TimeIsCutToNine",        "sTime",      "123456789ab", 2, 0,  "hh123456789mm123456789ss"},
    {"TimeOfAQuote",           "sTime",      "'x",          2, 0,  "hhxmmxss"                },
    {"TimeOfAnyOtherKind",     "sTime",      ".",           7, 0,  "hh.mm.ss"                },
    {"TimeOfKindZero",         "sTime",      ".",           0, 0,  "hh.mm.ss"                },
};
INSTANTIATE_TEST_SUITE_P(, ProfilePicture, testing::ValuesIn(kProfileRows), RowName<ProfileCase>);

TEST(ProfilePictureRoom, FiveCharactersDoNotHoldADate)
{
    char out[5];
    EXPECT_EQ(IntlPictureToMask(out, sizeof out, PICTURE_DATE), PICTURE_BUFFER_FULL);
}

TEST(ProfilePictureRoom, FiveCharactersDoNotHoldATime)
{
    char out[5];
    EXPECT_EQ(IntlPictureToMask(out, sizeof out, PICTURE_TIME), PICTURE_BUFFER_FULL);
}

TEST(ProfilePictureRoom, MoreThanNinetyNineCharactersAreCut)
{
    const std::string picture = std::string(110, '-') + "yyy";
    const Regional settings(RegionalSet(1, {"sShortDate", picture.c_str()}));
    char out[255] = "";
    EXPECT_EQ(IntlPictureToMask(out, sizeof out, PICTURE_DATE), PICTURE_OK);
    EXPECT_EQ(out, std::string(99, '-'));
}

}  // namespace
}  // namespace zttest
