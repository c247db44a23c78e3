// How strings are laid into the fields of a mask, and what formatting says about the literals around them.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

struct StringCase {
    const char* name;
    const char* mask;
    const char* data;
    const char* shown;
};
void PrintTo(const StringCase& row, std::ostream* out)
{
    *out << '"' << row.data << "\" under " << row.mask;
}

class StringDisplay : public ValueTest, public OfRow<StringCase> {};

ROW_TEST(StringDisplay, LaysTheStringIntoTheFields)
{
    Install(GetParam().mask, DT_STRING);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

const StringCase kStringRows[] = {
    {"Digits",                           "######",         "123456",             "123456"            },
    {"ShorterThanAMaskWithoutLiterals",  "######",         "123",                "123"               },
    {"EmptyUnderAMaskWithoutLiterals",   "######",         "",                   ""                  },
    {"LongerThanTheMaskIsCut",           "###",            "123456",             "123"               },
    {"LiteralsStandBetween",             "(###) ###-####", "5551234567",         "(555) 123-4567"    },
    {"ShortIsPaddedBetweenLiterals",     "(###) ###-####", "555",                "(555)    -    "    },
    {"EndingInsideAFieldIsPadded",       "(###) ###-####", "55512",              "(555) 12 -    "    },
    {"EmptyShowsBlanksBetweenLiterals",  "(###) ###-####", "",                   "(   )    -    "    },
    {"NoPaddingWithoutALiteralBehind",   "-AAAA",          "ab",                 "-ab"               },
    {"EmptyShowsBlanksBehindALiteral",   "-AAAA",          "",                   "-    "             },
    {"AdjacentFieldsOfTwoKinds",         "AAA###",         "abc12",              "abc12"             },
    {"AnEscapedMaskCharacterIsALiteral", "~A##",           "12",                 "A12"               },
    {"AnEscapeInside",                   "##~A##",         "1234",               "12A34"             },
    {"AnEscapeBesideItsOwnKind",         "##~###",         "1234",               "12#34"             },
    {"TwoEscapesInARow",                 "#~A~X#",         "12",                 "1AX2"              },
    {"SmallMaskLettersAreFieldsToo",     "aaxx",           "1b?!",               "1b?!"              },
    {"DateLettersAreLiterals",           "MM-##",          "12",                 "MM-12"             },
    {"CaseMasksDoNotChangeGivenData",    "!!^^",           "aBcD",               "aBcD"              },
    {"BlanksInTheDataAreKept",           "XXXXX",          "a b c",              "a b c"             },
    {"NoMaskShowsTheStringAsItStands",   "",               "any (text) ~at all", "any (text) ~at all"},
    {"HighBytesAreShown",                "XXXX",           "\xe4\xf6\xfc\xdf",   "\xe4\xf6\xfc\xdf"  },
};
TEST_ROWS(, StringDisplay, kStringRows);

struct StringReadCase {
    const char* name;
    const char* mask;
    const char* text;
    const char* data;
};
void PrintTo(const StringReadCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class StringReading : public ValueTest, public OfRow<StringReadCase> {};

ROW_TEST(StringReading, TakesTheFieldCharactersOfTheWindow)
{
    Install(GetParam().mask, DT_STRING);
    SetText(GetParam().text);
    EXPECT_EQ(Read(), GetParam().data);
}

ROW_TEST(StringReading, TakesTheFieldCharactersOfATextGiven)
{
    Install(GetParam().mask, DT_STRING);
    EXPECT_EQ(Unformat(GetParam().text), GetParam().data);
}

const StringReadCase kStringReadRows[] = {
    {"WithoutLiterals",               "######",         "123456",         "123456"    },
    {"LiteralsAreDropped",            "(###) ###-####", "(555) 123-4567", "5551234567"},
    {"BlanksAreKept",                 "(###) ###-####", "(555)    -    ", "555       "},
    {"AnEscapedCharacterIsDropped",   "~A##",           "A12",            "12"        },
    {"AnEscapeInsideIsDropped",       "##~A##",         "12A34",          "1234"      },
    {"ShorterThanTheMask",            "(###) ###-####", "(555",           "555"       },
    {"TheEmptyMaskGivesTheWholeText", "",               "any (text)",     "any (text)"},
};
TEST_ROWS(, StringReading, kStringReadRows);

class StringValues : public ValueTest {};

TEST_F(StringValues, AnEmptyWindowReadsAsEmpty)
{
    Install("####", DT_STRING);
    SetText("");
    EXPECT_EQ(Read(), "");
}

TEST_F(StringValues, AnEmptyTextGivenIsNull)
{
    Install("####", DT_STRING);
    EXPECT_EQ(Unformat(""), kNullResult);
}

TEST_F(StringValues, ANullTextGivenIsNull)
{
    Install("####", DT_STRING);
    EXPECT_EQ(Unformat(nullptr), kNullResult);
}

TEST_F(StringValues, NullShowsBlanksBetweenLiterals)
{
    Install("(###) ###", DT_STRING);
    ShownFor("123456");
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "(   )    ");
}

TEST_F(StringValues, NullShowsNothingWithoutLiterals)
{
    Install("####", DT_STRING);
    ShownFor("1234");
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "");
}

TEST_F(StringValues, AStringWithoutAMaskIsReadBackAsItStands)
{
    Install("", DT_STRING);
    EXPECT_EQ(ShownFor("Miller & Sons"), "Miller & Sons");
    EXPECT_EQ(Read(), "Miller & Sons");
}

TEST_F(StringValues, SettingMovesTheCaretToTheFirstField)
{
    Install("(###)", DT_STRING);
    PutCaret(4);
    ShownFor("123");
    EXPECT_EQ(Shown(), "(|123)");
}

struct FlagsCase {
    const char* name;
    const char* mask;
    int32_t type;
    uint32_t flags;
    int32_t firstFieldPos;
};
void PrintTo(const FlagsCase& row, std::ostream* out)
{
    *out << row.mask;
}

class FormatFlags : public ValueTest, public OfRow<FlagsCase> {};

ROW_TEST(FormatFlags, TellOfLiterals)
{
    Install(GetParam().mask, GetParam().type);
    EXPECT_EQ(Format(nullptr).flags, GetParam().flags);
}

ROW_TEST(FormatFlags, GoWithThePositionOfTheFirstField)
{
    Install(GetParam().mask, GetParam().type);
    EXPECT_EQ(Format(nullptr).firstFieldPos, GetParam().firstFieldPos);
}

ROW_TEST(FormatFlags, AreKeptInTheRecordWithThePosition)
{
    Install(GetParam().mask, GetParam().type);
    control_->SetData(nullptr);
    EXPECT_EQ(Record().formatFlags, GetParam().flags);
    EXPECT_EQ(Record().firstFieldPos, GetParam().firstFieldPos);
}

constexpr uint32_t kNoLiterals = FORMAT_DONE;
constexpr uint32_t kLiterals = FORMAT_DONE | FORMAT_HAS_LITERALS;
constexpr uint32_t kLiteralsBehind = kLiterals | FORMAT_LITERAL_AFTER;

const FlagsCase kFlagsRows[] = {
    {"NoLiteral",                       "####",           DT_STRING,   kNoLiterals,     0},
    {"ALiteralBefore",                  "(###",           DT_STRING,   kLiterals,       1},
    {"ALiteralBehind",                  "###)",           DT_STRING,   kLiteralsBehind, 0},
    {"LiteralsAround",                  "(###)",          DT_STRING,   kLiteralsBehind, 1},
    {"AnEscapeBefore",                  "~####",          DT_STRING,   kLiterals,       1},
    {"AnEscapeBehindIsNotToldAsBehind", "###~#",          DT_STRING,   kLiterals,       0},
    {"ADateWithoutLiterals",            "MMDDYY",         DT_DATE,     kLiterals,       0},
    {"ADate",                           "MM/DD/YY",       DT_DATE,     kLiteralsBehind, 0},
    {"ADateBehindAWord",                "on DD.MM.YY",    DT_DATE,     kLiteralsBehind, 3},
    {"ATime",                           "HH:MM",          DT_TIME,     kLiteralsBehind, 0},
    {"ATimeBehindAWord",                "at: HH",         DT_TIME,     kLiterals,       4},
    {"ADateTime",                       "MM/DD/YY HH:MM", DT_DATETIME, kLiteralsBehind, 0},
};
TEST_ROWS(, FormatFlags, kFlagsRows);

TEST_F(StringValues, TellTheTypeOfTheMask)
{
    Install("####", DT_STRING);
    for (const int32_t type : {DT_STRING, DT_NUMBER, DT_DATE, DT_TIME, DT_DATETIME, DT_DECIMAL}) {
        control_->SetMask(nullptr, type);
        EXPECT_EQ(control_->DataType(), type);
    }
}

}  // namespace
}  // namespace zttest
