// Date pictures and time separators of the regional settings, turned into masks.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "engine/mask/picture.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

constexpr int32_t kRoom = 255;

zte::Picture Convert(const char* picture, int32_t size = kRoom)
{
    return PictureToMask(picture, size);
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

class PictureText : public RowTest<PictureCase> {};

ROW_TEST(PictureText, BecomesAMask)
{
    const zte::Picture conversion = Convert(GetParam().picture);
    EXPECT_EQ(conversion.status, PictureStatus::Ok);
    EXPECT_EQ(conversion.mask, GetParam().mask);
}

const PictureCase kPictureRows[] = {
    {"Empty",                          "",                        ""                                    },
    {"UnitedStates",                   "M/d/yy",                  "mm/dd/yy"                            },
    {"German",                         "dd.MM.yyyy",              "dd.mm.yyyy"                          },
    {"Iso",                            "yyyy-MM-dd",              "yyyy-mm-dd"                          },
    {"OneMonthLetter",                 "M yy",                    "mm yy"                               },
    {"TwoMonthLetters",                "MM yy",                   "mm yy"                               },
    {"ThreeMonthLetters",              "MMM yy",                  "mm yy"                               },
    {"FourMonthLetters",               "MMMM yy",                 "mm yy"                               },
    {"OneDayLetter",                   "d",                       "dd"                                  },
    {"TwoDayLetters",                  "dd",                      "dd"                                  },
    {"ThreeDayLetters",                "ddd",                     "ddd"                                 },
    {"FourDayLetters",                 "dddd",                    "dd"                                  },
    {"TwoYearLetters",                 "yy",                      "yy"                                  },
    {"FourYearLetters",                "yyyy",                    "yyyy"                                },
    {"CapitalYear",                    "YYYY",                    "yyyy"                                },
    {"MixedCaseRun",                   "yYyY",                    "yyyy"                                },
    {"OneHourLetter",                  "h",                       "hh"                                  },
    {"TwoHourLetters",                 "HH",                      "hh"                                  },
    {"MinutesBehindTheHour",           "hh:mm",                   "hh:mm"                               },
    {"OneMinuteLetter",                "h:m",                     "hh:mm"                               },
    {"MonthBeforeTheHourMinuteBehind", "M h:m",                   "mm hh:mm"                            },
    {"OneSecondLetter",                "h:m:s",                   "hh:mm:ss"                            },
    {"TwoSecondLetters",               "hh:mm:ss",                "hh:mm:ss"                            },
    {"OneFractionLetter",              "f",                       "ff"                                  },
    {"SixFractionLetters",             "ffffff",                  "fffffff"                             },
    {"CapitalAmPm",                    "h AM/PM",                 "hh AM/PM"                            },
    {"SmallAmPm",                      "h am/pm",                 "hh AM/PM"                            },
    {"AmPmThenMore",                   "h AM/PM:m",               "hh AM/PM:mm"                         },
    {"ShortAmPmSkipsFiveCharacters",   "h A/P:.m",                "hh AM/PMmm"                          },
    {"SmallShortAmPm",                 "h a/p:.m",                "hh AM/PMmm"                          },
    {"ShortAmPmAtTheEnd",              "h a/p",                   "hh AM/PM"                            },
    {"ShortAmPmOneFromTheEnd",         "h a/p.",                  "hh AM/PM"                            },
    {"Literals",                       "d. M. yy",                "dd. mm. yy"                          },
    {"Escape",                         "\\dd\\M",                 "~ddd~M"                              },
    {"EscapedBackslash",               "d\\\\M",                  "dd\\mm"                              },
    {"SingleQuotes",                   "'Day' d",                 "~Da~y dd"                            },
    {"DoubleQuotes",                   "\"Day\" d",               "~Da~y dd"                            },
    {"DoubleQuoteInSingleQuotes",      "'\"' d",                  "\" dd"                               },
    {"SingleQuoteInDoubleQuotes",      "\"'\" d",                 "' dd"                                },
    {"ADayWord",                       "d 'de' MMMM",             "dd ~de mm"                           },
    {"AWordInFront",                   "'den' d.M.yyyy",          "~den dd.mm.yyyy"                     },
    {"TwoWords",                       "d 'de' MMMM \"de\" yyyy", "dd ~de mm ~de yyyy"                  },
    {"EveryLetterThatAMaskReads",      "'DMYJHSFXdmyjhsfx!^'",    "~D~M~Y~J~H~S~F~X~d~m~y~j~h~s~f~x~!~^"},
    {"LettersThatNoDateMaskReads",     "'AaBbZz#09/'",            "AaBbZz#09/"                          },
    {"AQuotedDesignatorIsNone",        "h 'AM/PM'",               "hh A~M/P~M"                          },
    {"BytesOfAYearSign",               "yyyy'\xE5\xB9\xB4'M",     "yyyy\xE5\xB9\xB4mm"                  },
    {"ATildeAmongTheBytes",            "yyyy'\xA6\x7E'M",         "yyyy\xA6~\x7Emm"                     },
    {"EscapedLetters",                 "\\y\\x-d",                "~y~x-dd"                             },
    {"EmptyQuotes",                    "''d\"\"",                 "dd"                                  },
    {"BackslashInQuotesIsItself",      "'\\'d",                   "\\dd"                                },
    {"QuotesEndARun",                  "d''d",                    "dddd"                                },
    {"TimeTemplate",                   "hh':'mm':'ss",            "hh:mm:ss"                            },
    {"EveryPart",                      "dddd, d.M.yyyy h:m",      "dd, dd.mm.yyyy hh:mm"                },
};
TEST_ROWS(, PictureText, kPictureRows);

struct RefusedCase {
    const char* name;
    const char* picture;
    PictureStatus status;
};
void PrintTo(const RefusedCase& row, std::ostream* out)
{
    *out << row.picture;
}

class RefusedPicture : public RowTest<RefusedCase> {};

ROW_TEST(RefusedPicture, GivesItsStatus)
{
    EXPECT_EQ(Convert(GetParam().picture).status, GetParam().status);
}

const RefusedCase kRefusedRows[] = {
    {"UnclosedSingleQuote",    "'Day d",      PictureStatus::Unclosed    },
    {"UnclosedDoubleQuote",    "\"Day d",     PictureStatus::Unclosed    },
    {"OtherQuoteDoesNotClose", "'Day\" d",    PictureStatus::Unclosed    },
    {"BackslashAtTheEnd",      "d\\",         PictureStatus::Unclosed    },
    {"FiveMonthLetters",       "MMMMM/dd/yy", PictureStatus::LongMonth   },
    {"FiveDayLetters",         "ddddd",       PictureStatus::LongDay     },
    {"FiveYearLetters",        "yyyyy",       PictureStatus::BadYear     },
    {"OneYearLetter",          "d/M/y",       PictureStatus::BadYear     },
    {"ThreeYearLetters",       "yyy/MM/dd",   PictureStatus::BadYear     },
    {"OneYearLetterAtTheEnd",  "y",           PictureStatus::BadYear     },
    {"ThreeHourLetters",       "hhh",         PictureStatus::LongHour    },
    {"ThreeSecondLetters",     "h:m:sss",     PictureStatus::LongSecond  },
    {"ThreeMinuteLetters",     "h:mmm",       PictureStatus::LongMinute  },
    {"MonthNameBehindTheHour", "h MMMM",      PictureStatus::LongMinute  },
    {"LoneA",                  "h A",         PictureStatus::BadAmPm     },
    {"AmWithoutPm",            "h AM",        PictureStatus::BadAmPm     },
    {"MixedCaseAmPm",          "h Am/Pm",     PictureStatus::BadAmPm     },
    {"SmallMixedShortAmPm",    "h a/P",       PictureStatus::BadAmPm     },
    {"WordWithAnA",            "a day",       PictureStatus::BadAmPm     },
    {"SevenFractionLetters",   "fffffff",     PictureStatus::LongFraction},
    {"TheFirstErrorCounts",    "yyy'",        PictureStatus::BadYear     },
};
TEST_ROWS(, RefusedPicture, kRefusedRows);

TEST(PictureRoom, ExactlyTheMaskAndItsEndFit)
{
    const zte::Picture conversion = Convert("M/d/yy", 9);
    EXPECT_EQ(conversion.status, PictureStatus::Ok);
    EXPECT_EQ(conversion.mask, "mm/dd/yy");
}

TEST(PictureRoom, OneLessHasNoRoomForTheEnd)
{
    EXPECT_EQ(Convert("M/d/yy", 8).status, PictureStatus::DoesNotFit);
}

class SmallRoom : public RowTest<int> {};

ROW_TEST(SmallRoom, IsFullAndNotOverrun)
{
    EXPECT_EQ(Convert("M/d/yy 'quoted' \\x h:m:s AM/PM ff", GetParam()).status, PictureStatus::DoesNotFit);
}

ROW_TEST(SmallRoom, HoldsTheStartOfTheMask)
{
    const std::string whole = "mm/dd/yy quote~d ~x hh:mm:ss AM/PM fff";
    const zte::Picture conversion = Convert("M/d/yy 'quoted' \\x h:m:s AM/PM ff", GetParam());
    EXPECT_EQ(whole.compare(0, conversion.mask.size(), conversion.mask), 0) << conversion.mask;
}

TEST_ROWS(, SmallRoom, Integers(0, 39));

TEST(PictureRoom, TellsOfAnUnclosedQuoteOnlyWhereItFits)
{
    EXPECT_EQ(Convert("'bcegi", 6).status, PictureStatus::Unclosed);
    EXPECT_EQ(Convert("'bcegi", 5).status, PictureStatus::DoesNotFit);
}

TEST(PictureRoom, AnErrorInThePictureIsNotHiddenByRoomLeft)
{
    EXPECT_EQ(Convert("yyy", 255).status, PictureStatus::BadYear);
}

// The conversion of what the settings have.
struct SettingCase {
    const char* name;
    const char* value;
    PictureStatus status;
    const char* mask;
};
void PrintTo(const SettingCase& row, std::ostream* out)
{
    *out << '"' << row.value << '"';
}

class DateSetting : public RowTest<SettingCase> {};
class TimeSetting : public RowTest<SettingCase> {};

void Check(const zte::Picture& picture, const SettingCase& row)
{
    EXPECT_EQ(picture.status, row.status);
    if (row.status == PictureStatus::Ok) {
        EXPECT_EQ(picture.mask, row.mask);
    }
}

ROW_TEST(DateSetting, IsConverted)
{
    Settings settings = StandardSettings();
    Assign(settings.shortDate, GetParam().value);
    Check(DatePictureToMask(settings, kRoom), GetParam());
}

ROW_TEST(TimeSetting, IsConverted)
{
    Settings settings = StandardSettings();
    Assign(settings.timeSeparator, GetParam().value);
    Check(TimePictureToMask(settings, kRoom), GetParam());
}

const SettingCase kDateRows[] = {
    {"Standard",         "m/d/yy",      PictureStatus::Ok,        "mm/dd/yy"  },
    {"Empty",            "",            PictureStatus::Ok,        ""          },
    {"DayFirst",         "dd.MM.yyyy",  PictureStatus::Ok,        "dd.mm.yyyy"},
    {"WithWords",        "'Day' d",     PictureStatus::Ok,        "~Da~y dd"  },
    {"ThreeYearLetters", "yyy/MM/dd",   PictureStatus::BadYear,   ""          },
    {"FiveMonthLetters", "MMMMM/dd/yy", PictureStatus::LongMonth, ""          },
};
TEST_ROWS(, DateSetting, kDateRows);

const SettingCase kTimeRows[] = {
    {"Standard",    ":",           PictureStatus::Ok, "hh:mm:ss"                },
    {"Empty",       "",            PictureStatus::Ok, "hhmmss"                  },
    {"Point",       ".",           PictureStatus::Ok, "hh.mm.ss"                },
    {"AMaskLetter", "h",           PictureStatus::Ok, "hh~hmm~hss"              },
    {"IsCutToNine", "123456789ab", PictureStatus::Ok, "hh123456789mm123456789ss"},
    {"AQuote",      "'x",          PictureStatus::Ok, "hhx~m~m~xss"             },
};
TEST_ROWS(, TimeSetting, kTimeRows);

TEST(SettingRoom, FiveCharactersDoNotHoldADate)
{
    EXPECT_EQ(DatePictureToMask(StandardSettings(), 5).status, PictureStatus::DoesNotFit);
}

TEST(SettingRoom, FiveCharactersDoNotHoldATime)
{
    EXPECT_EQ(TimePictureToMask(StandardSettings(), 5).status, PictureStatus::DoesNotFit);
}

}  // namespace
}  // namespace zttest
