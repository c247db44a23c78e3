// The library's masks, values and range checks against the model: thousands of random ones on one control a type.
// ZT_MODEL_SEED gives another run, ZT_MODEL_ROUNDS multiplies it.
#include "scenario.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace model {
namespace {

constexpr int kControlId = 9;
constexpr int kMostReports = 12;

class Values : public testing::Test {
protected:
    Values()
    {
        if (const char* seed = std::getenv("ZT_MODEL_SEED"))
            engine_.seed(static_cast<unsigned>(std::strtoul(seed, nullptr, 10)));
        if (const char* rounds = std::getenv("ZT_MODEL_ROUNDS"))
            times_ = std::max(1, std::atoi(rounds) / 10);
    }

    int Below(int limit) { return static_cast<int>(engine_() % static_cast<unsigned>(limit)); }
    bool Chance(int percent) { return Below(100) < percent; }

    template <size_t N>
    const char* Of(const char* const (&pool)[N])
    {
        return pool[Below(static_cast<int>(N))];
    }

    std::string Digits(int most)
    {
        std::string text;
        for (int n = 1 + Below(most); n > 0; --n)
            text += static_cast<char>('0' + Below(10));
        return text;
    }

    std::string RandomMask(Type type)
    {
        static const char* const dates[] = {"MM", "DD", "YY",  "YYYY", "MMM", "JJJ", "/", "-", ".", " ", "~x",
                                            "X",  "mm", "DDD", "Y",    "dd",  "yy",  "(", ")", "a", "F", "AM/PM"};
        static const char* const times[] = {"HH", "MM", "SS", "F",  "FFF", "FFFFFF",  ":",     ".",     " ", "AM/PM",
                                            "hh", "mm", "ss", "~:", "H",   "FFFFFFF", "am/pm", "Am/Pm", "X", "b"};
        static const char* const numbers[] = {"#",      "##0", "#,##0", ".", ".00", ".##", "0",   "%", ",",  "$",
                                              "#,#.00", "~x",  "DM ",   "'", "EUR", " ",   "CHF", "x", "~~", "\\"};
        static const char* const strings[] = {"#", "##", "0", "A", "AAA", "X", "!", "^",
                                              "-", "~#", " ", "(", ")",   "~", "/", "b"};
        static const char* const common[] = {"MM/DD/YY",  "DD.MM.YYYY", "YYYY-MM-DD",  "DD-MMM-YYYY",
                                             "HH:MM",     "HH:MM:SS",   "HH:MM AM/PM", "HH:MM:SS.FFF",
                                             "MM/DD/YY ", "#,##0",      "$",           " "};
        std::string mask;
        for (int n = Below(7); n >= 0; --n)
            switch (type) {
            case kNumber:
            case kDecimal: mask += Of(numbers); break;
            case kDate: mask += Chance(85) ? Of(dates) : Of(common); break;
            case kTime: mask += Chance(85) ? Of(times) : Of(common); break;
            case kDateTime: mask += Chance(20) ? Of(common) : Chance(50) ? Of(dates) : Of(times); break;
            default: mask += Of(strings); break;
            }
        return mask;
    }

    std::string RandomText(Type type, const Regional& regional)
    {
        char text[64];
        const int year = Chance(70) ? 1940 + Below(100) : Below(9999);
        switch (Below(6)) {
        case 0: std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, Below(14), Below(33)); break;
        case 1: std::snprintf(text, sizeof text, "%02d:%02d:%02d", Below(25), Below(61), Below(61)); break;
        case 2:
            std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d:%06d", year, 1 + Below(12), 1 + Below(28),
                          Below(24), Below(60), Below(60), Below(1000000));
            break;
        case 3: std::snprintf(text, sizeof text, "%02d/%02d/%02d", 1 + Below(13), Below(33), Below(100)); break;
        case 4: std::snprintf(text, sizeof text, "%02d:%02d %s", Below(14), Below(60), Chance(50) ? "PM" : "AM"); break;
        default:
            std::snprintf(text, sizeof text, "%s%s.%s", Chance(30) ? "-" : "", Digits(7).c_str(), Digits(5).c_str());
        }
        std::string result = text;
        if (type == kNumber || type == kDecimal)
            result = (Chance(30) ? "-" : "") + Digits(7) + (Chance(70) ? "." + Digits(5) : "");
        if (Chance(15))
            result[static_cast<size_t>(Below(static_cast<int>(result.size())))] = "0 x-:/."[Below(7)];
        if (Chance(5))
            result += regional.am;
        if (type == kString && Chance(70))
            result = Digits(9).substr(0, static_cast<size_t>(Below(9))) + (Chance(50) ? "ab" : "");
        return result;
    }

    // Reports a difference, and says whether there were too many.
    bool Same(const std::string& what, const std::string& expected, const std::string& got)
    {
        if (expected != got) {
            ADD_FAILURE() << what << "\n  expected  " << expected << "\n  got       " << got;
            ++reports_;
        }
        return expected == got;
    }
    bool TooMany() const { return reports_ > kMostReports; }

    int times_ = 1;
    int reports_ = 0;
    std::mt19937 engine_{5};
    zttest::Form form_;
};

// DLL memory that must be given back.
std::string TakeBlock(const zttest::Control& control, void* block, Type type)
{
    const std::string shown = ShowBlock(block, type);
    SharedHeapFree(control.heap(), block);
    return shown;
}

std::string Place(const std::string& setting, const std::string& mask, Type type)
{
    return "setting " + setting + " mask \"" + mask + "\" type " + std::to_string(type);
}

TEST_F(Values, RandomMasksAreTakenAndShown)
{
    for (const Setting& setting : Settings()) {
        const zttest::Regional regional(setting.profile);
        for (int type = kString; type <= kDecimal; ++type)
            for (int i = 0; i < 40 * times_ && !TooMany(); ++i) {
                const auto kind = static_cast<Type>(type);
                zttest::Config config;
                config.type = type;
                zttest::Control real(form_.hwnd(), kControlId, config);
                Control model(setting.regional);
                model.SetMask(nullptr, kind);
                const std::string mask = RandomMask(kind);
                const std::string what = Place(setting.name, mask, kind);
                const int expected = model.SetMask(mask.c_str(), kind);
                const int got = ZTE_FmtSetMask(real.hwnd(), mask.c_str(), type);
                if (model.Interleaved()) {
                    real.AcceptHeap();
                    continue;
                }
                bool same = Same(what, "result " + std::to_string(expected) + " " + model.Text(),
                                 "result " + std::to_string(got) + " " + real.Text());
                for (int n = 0; n < 4 && same; ++n) {
                    const std::string text = RandomText(kind, setting.regional);
                    model.SetDataString(text);
                    ZTE_FmtSetDataString(real.hwnd(), text.c_str());
                    same = Same(what + " set \"" + text + "\"", model.Text(), real.Text()) &&
                           Same(what + " set \"" + text + "\" caret", std::to_string(model.Start()),
                                std::to_string(real.CaretStart())) &&
                           Same(what + " read of \"" + model.Text() + "\"", ShowValue(model.GetData(), kind),
                                TakeBlock(real, ZTE_FmtGetData(real.hwnd()), kind)) &&
                           Same(what + " unformat \"" + text + "\"", ShowValue(model.Unformat(text), kind),
                                TakeBlock(real, ZTE_FmtUnformatData(real.hwnd(), text.c_str()), kind));
                }
                real.AcceptHeap();
            }
    }
}

std::string Shown(const Stamp& stamp)
{
    return ShowValue(Value::OfStamp(stamp), kDateTime);
}

DateTimeValue Raw(const Stamp& stamp)
{
    DateTimeValue raw = {};
    raw.microsecond = static_cast<uint32_t>(stamp.microsecond);
    raw.year = static_cast<int16_t>(stamp.year);
    raw.month = static_cast<int8_t>(stamp.month);
    raw.day = static_cast<int8_t>(stamp.day);
    raw.hour = static_cast<int8_t>(stamp.hour);
    raw.minute = static_cast<int8_t>(stamp.minute);
    raw.second = static_cast<int8_t>(stamp.second);
    return raw;
}

TEST_F(Values, RangeEndsAreReadAndOrdered)
{
    constexpr struct {
        const char* mask;
        Type type;
    } rows[] = {
        {"MM/DD/YY",             kDate    },
        {"DD.MM.YYYY",           kDate    },
        {"YYYY-MM-DD",           kDate    },
        {"HH:MM:SS",             kTime    },
        {"HH:MM",                kTime    },
        {"HH:MM AM/PM",          kTime    },
        {"MM/YYYY",              kDate    },
        {"DD-MMM-YY",            kDate    },
        {"MM/DD/YY HH:MM",       kDateTime},
        {"MM/DD/YY HH:MM AM/PM", kDateTime}
    };
    const Setting& setting = Settings()[0];
    for (const auto& row : rows) {
        zttest::Config config;
        config.mask = row.mask;
        config.type = row.type;
        zttest::Control real(form_.hwnd(), kControlId, config);
        Control model(setting.regional);
        model.SetMask(row.mask, row.type);
        for (int i = 0; i < 40 * times_ && !TooMany(); ++i) {
            const std::string texts[] = {RandomText(row.type, setting.regional),
                                         RandomText(row.type, setting.regional)};
            Stamp ends[2];
            bool same = true;
            for (int n = 0; n < 2; ++n) {
                DateTimeValue value = {};
                const bool good = model.SpinDateRange(ends[n], texts[n]);
                const bool gotGood = ZTE_SpinDateRange(real.hwnd(), &value, texts[n].c_str()) == 0;
                const std::string what = Place(setting.name, row.mask, row.type) + " end \"" + texts[n] + "\"";
                same = same && Same(what, good ? "read" : "refused", gotGood ? "read" : "refused") &&
                       (!good || Same(what, Shown(ends[n]), ShowBlock(&value, kDateTime)));
            }
            const DateTimeValue first = Raw(ends[0]);
            const DateTimeValue second = Raw(ends[1]);
            Same(Place(setting.name, row.mask, row.type) + " order of " + Shown(ends[0]) + " and " + Shown(ends[1]),
                 std::to_string(model.OutOfOrder(ends[0], ends[1])),
                 std::to_string(ZTE_SpinRangeCompare(real.hwnd(), &first, &second)));
        }
    }
}

}  // namespace
}  // namespace model
