// What the engine reads back for itself while the user edits, and numbers laid through their mask again.
#include "engine/format/read_back.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

#include "engine/format/data.h"
#include "engine/memory_control.h"
#include "tests/support/key_case.h"
#include "tests/support/native/profile_store.h"
#include "tests/support/profile.h"
#include "tests/support/rows.h"
#include "tests/support/values.h"

namespace zttest {
namespace {

class EditedText : public testing::Test {
protected:
    void Install(const char* mask, int32_t type)
    {
        zte::ControlSetup setup;
        setup.mask = mask;
        setup.dataType = type;
        control_ = std::make_unique<zte::MemoryControl>(setup, SettingsInForce(), nullptr);
    }
    void SetText(const char* text) { control_->Edit().SetText(text); }
    std::string Text() const { return control_->Edit().Shown(); }
    zte::EditInstance& Live() const { return control_->Record(); }

    std::string ReadText(const char* text) const
    {
        if (zte::IsDateOrTime(Live().dataType))
            return Canonical(zte::ReadShownDateTime(Live(), text));
        return zte::ReadShownText(Live(), text);
    }

    std::unique_ptr<zte::MemoryControl> control_;
};

struct CurrentCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* text;
    const char* value;
};
void PrintTo(const CurrentCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class CurrentData : public EditedText, public OfRow<CurrentCase> {};

ROW_TEST(CurrentData, IsReadWithoutTheRulesOfNull)
{
    Install(GetParam().mask, GetParam().type);
    EXPECT_EQ(ReadText(GetParam().text), GetParam().value);
}

const CurrentCase kCurrentRows[] = {
    {"Date",                  "MM/DD/YY",       DT_DATE,     "07/04/95",       "1995-07-04"                },
    {"BlankDate",             "MM/DD/YY",       DT_DATE,     "00/00/00",       "2000-01-01"                },
    {"YearZero",              "MM/DD/YYYY",     DT_DATE,     "07/04/0000",     "0000-07-04"                },
    {"DayZero",               "MM/DD/YY",       DT_DATE,     "07/00/95",       "1995-07-01"                },
    {"LongerThanTheDisplay",  "MM/DD/YYYY",     DT_DATE,     "07/04/1995xx",   "1995-07-04"                },
    {"ShorterThanTheDisplay", "MM/DD/YYYY",     DT_DATE,     "07/04/95",       ""                          },
    {"Midnight",              "HH:MM:SS",       DT_TIME,     "00:00:00",       "00:00:00:000000"           },
    {"Time",                  "HH:MM:SS",       DT_TIME,     "14:07:09",       "14:07:09:000000"           },
    {"TwelveHours",           "HH:MM AM/PM",    DT_TIME,     "01:30 PM",       "13:30:00:000000"           },
    {"DateTime",              "MM/DD/YY HH:MM", DT_DATETIME, "07/04/95 14:07", "1995-07-04 14:07:00:000000"},
    {"DateTimeWithoutAYear",  "HH:MM",          DT_DATETIME, "14:07",          "14:07:00:000000"           },
    {"Number",                "#,##0.00",       DT_NUMBER,   "1,234.50",       "1234.50"                   },
    {"Percent",               "#,##0.00%",      DT_NUMBER,   "12.50%",         "0.125"                     },
    {"String",                "(##) ##",        DT_STRING,   "(12) 34",        "1234"                      },
    {"EmptyNumber",           "#,##0",          DT_NUMBER,   "",               ""                          },
    {"EmptyString",           "###",            DT_STRING,   "",               ""                          },
    {"EmptyDate",             "MM/DD/YY",       DT_DATE,     "",               ""                          },
};
TEST_ROWS(, CurrentData, kCurrentRows);

struct ForeignCase {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    int32_t type;
    const char* text;
    const char* shown;
};
void PrintTo(const ForeignCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class ForeignText : public EditedText, public OfRow<ForeignCase> {};

// A number that the program has set as any text is laid through the mask as soon as a key is refused.
ROW_TEST(ForeignText, IsLaidThroughTheMask)
{
    const Regional settings(*GetParam().settings);
    Install(GetParam().mask, GetParam().type);
    SetText(GetParam().text);
    control_->Type('x');
    EXPECT_EQ(Text(), GetParam().shown);
}

const ForeignCase kForeignRows[] = {
    {"GroupsAndFills",           &kUnitedStates, "#,##0.00",    DT_NUMBER,  "1234.5",                  "1,234.50"   },
    {"LeavesWhatIsRight",        &kUnitedStates, "#,##0.00",    DT_NUMBER,  "1,234.50",                "1,234.50"   },
    {"DropsOtherCharacters",     &kUnitedStates, "#,##0.00",    DT_NUMBER,  "1a2b3",                   "123.00"     },
    {"KeepsTheSign",             &kUnitedStates, "$#,##0.00",   DT_NUMBER,  "$-5.00",                  "$-5.00"     },
    {"ShrinkingCountsAsNothing", &kUnitedStates, "#,##0",       DT_NUMBER,  "0000012",                 "12"         },
    {"EmptyIsZero",              &kUnitedStates, "#,##0.00",    DT_NUMBER,  "",                        "0.00"       },
    {"EmptyDecimalIsZero",       &kUnitedStates, "#,##0.00",    DT_DECIMAL, "",                        "0.00"       },
    {"PercentIsAPercentage",     &kUnitedStates, "##0.0%",      DT_NUMBER,  "12.5%",                   "12.5%"      },
    {"PercentOfADecimal",        &kUnitedStates, "##0.0%",      DT_DECIMAL, "12.5%",                   "12.5%"      },
    {"PercentWithoutItsSign",    &kUnitedStates, "##0%",        DT_NUMBER,  "50",                      "50%"        },
    {"ALeadingEscapeIsNoDigit",  &kUnitedStates, "~1##0",       DT_NUMBER,  "15",                      "15"         },
    {"TwoLeadingEscapes",        &kUnitedStates, "~1~2##0",     DT_NUMBER,  "125",                     "125"        },
    {"ALiteralPrefix",           &kUnitedStates, "Total #,##0", DT_NUMBER,  "Total 1234",              "Total 1,234"},
    {"ALongDecimal",             &kUnitedStates, "#,##0.00",    DT_DECIMAL, "12345678901234567890.12",
     "12,345,678,901,234,567,890.12"                                                                                },
    {"German",                   &kGerman,       nullptr,       DT_NUMBER,  "1.234,5",                 "1.234,50"   },
    {"GermanDecimal",            &kGerman,       nullptr,       DT_DECIMAL, "1234,5",                  "1.234,50"   },
    {"GermanPercent",            &kGerman,       "##0.0%",      DT_NUMBER,  "12,5%",                   "12,5%"      },
    {"GermanDecimalPercent",     &kGerman,       "##0.0%",      DT_DECIMAL, "12,5%",                   "12,5%"      },
    {"French",                   &kFrench,       nullptr,       DT_NUMBER,  "1234,5",                  "1 234,50"   },
};
TEST_ROWS(, ForeignText, kForeignRows);

TEST_F(EditedText, ATextThatIsTooLongForANumberStays)
{
    Install("#,##0", DT_NUMBER);
    const std::string digits(255, '1');
    SetText(digits.c_str());
    control_->Type('x');
    EXPECT_EQ(Text(), digits);
}

}  // namespace
}  // namespace zttest
