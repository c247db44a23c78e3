// The texts of the regional settings: whatever the profile holds, masks are made from it or refused, values are shown and read, and
// under good settings the same control is as good as new.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/key_case.h"
#include "tests/support/profile.h"
#include "tests/support/rows.h"
#include "tests/texts/doors.h"
#include "tests/texts/guarded.h"
#include "tests/texts/texts.h"

namespace zttest {
namespace {

struct SettingRow {
    const char* name;
    const char* key;
    const char* good;
};

void PrintTo(const SettingRow& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const SettingRow kSettings[] = {
    {"ShortDate",        "sShortDate",  "M/d/yyyy"},
    {"TimeSeparator",    "sTime",       ":"       },
    {"Am",               "s1159",       "AM"      },
    {"Pm",               "s2359",       "PM"      },
    {"CurrencySymbol",   "sCurrency",   "$"       },
    {"DecimalChar",      "sDecimal",    "."       },
    {"ThousandChar",     "sThousand",   ","       },
    {"CurrencyPosition", "iCurrency",   "0"       },
    {"CurrencyDigits",   "iCurrDigits", "2"       },
    {"NegativeCurrency", "iNegCurr",    "1"       },
};
// clang-format on

// What is built from the settings, and what is shown by them.
constexpr struct {
    const char* mask;
    int32_t type;
    const char* data;
} kUsers[] = {
    {"[date]",         DT_DATE,     "1995-07-04"         },
    {"[time]",         DT_TIME,     "14:07:09"           },
    {"[date] [time]",  DT_DATETIME, "1995-07-04 14:07:09"},
    {"HH:MM AM/PM SS", DT_TIME,     "14:07:09"           },
    {"[currency(16)]", DT_NUMBER,   "-1234.5"            },
    {"[currency(9)]",  DT_DECIMAL,  "1234.5"             },
    {"#,##0.00",       DT_NUMBER,   "1234.5"             },
    {"[GENERAL]",      DT_NUMBER,   "1.5e20"             },
};

void UseThem()
{
    for (const auto& user : kUsers) {
        Config config;
        config.mask = user.mask;
        config.type = user.type;
        Subject subject(config);
        const uint32_t blocks = subject.Blocks();
        EXPECT_LE(std::strlen(subject.Record().mask), 255u) << user.mask;
        subject.SetDataString(user.data);
        subject.Read();
        subject.Unformat(user.data);
        subject.Select(0, 0);
        subject.Press("12a{Del}{Back}.{Right}5p:/{Up}{Left}-");
        if (const std::optional<std::string> read = subject.Read())
            subject.SetDataString(read->c_str());
        subject.Paste(user.data);
        subject.SetMask(user.mask, user.type);
        EXPECT_EQ(subject.Blocks(), blocks) << user.mask;
    }
}

class TextOfASetting : public RowTest<SettingRow> {
protected:
    void Try(const std::string& text)
    {
        {
            const Regional hostile(With(kUnitedStates, {
                                                           {GetParam().key, text.c_str()}
            }));
            UseThem();
        }
        if (HasFailure())
            ADD_FAILURE() << GetParam().key << ": " << Described(text);
    }

    void TearDown() override
    {
        for (const FieldRow& field : Fields()) {
            Subject subject(ConfigOf(field));
            ExpectItWorks(subject, field);
        }
    }
};

// A profile keeps one line a key.
bool IsOneLine(const std::string& text)
{
    return text.find_first_of("\r\n") == std::string::npos;
}

ROW_TEST(TextOfASetting, MayHoldEveryCharacter)
{
    const Sample sample(IsLive() ? 127 : 11);
    const size_t place = std::strlen(GetParam().name);
    const std::vector<std::string> texts = TextsOfEveryByte(GetParam().good);
    for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
        if (sample.Has(i, place) && IsOneLine(texts[i]))
            Try(texts[i]);
}

ROW_TEST(TextOfASetting, MayHaveAnyLength)
{
    const Sample sample(IsLive() ? 61 : 5);
    const std::vector<LongText> texts = LongTexts();
    for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
        if (texts[i].length < 65535 && sample.Has(i, 0))
            Try(texts[i].Make());
    Try(std::string(IsLive() ? 65535 : kMegabyte, 'q'));
}

ROW_TEST(TextOfASetting, MayBeAnyMix)
{
    const std::vector<std::string> texts = RandomTexts(1848, IsLive() ? 2 : 40);
    for (size_t i = 0; i < texts.size() && !HasFailure(); ++i)
        if (IsOneLine(texts[i]))
            Try(texts[i]);
}

TEST_ROWS(Settings, TextOfASetting, kSettings);

}  // namespace
}  // namespace zttest
