// The library's masks, values and range checks against the model: thousands of random ones on one control a type.
// ZT_MODEL_SEED gives another run, ZT_MODEL_ROUNDS multiplies it.
#include "known_differences.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace model {
namespace {

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

    void Start(const Setting& setting, const Config& config)
    {
        pair_.Use(setting);
        pair_.Model().Make(config);
        pair_.Library().Make(config);
    }

    bool SameValue(const std::string& what, const std::string& text, Type type);

    int times_ = 1;
    int reports_ = 0;
    std::mt19937 engine_{5};
    Pair pair_;
};

std::string Place(const std::string& setting, const std::string& mask, Type type)
{
    return "setting " + setting + " mask \"" + mask + "\" type " + std::to_string(type);
}

// Sets a text on both, and compares what is shown and read back.
bool Values::SameValue(const std::string& what, const std::string& text, Type type)
{
    Subject& model = pair_.Model();
    Subject& library = pair_.Library();
    model.SetData(text.c_str());
    library.SetData(text.c_str());
    const State expected = model.Look();
    const State got = library.Look();
    const bool known = StartsBehindPoint(expected, got, pair_.Point());
    return Same(what + " set", expected.text, got.text) &&
           (known || Same(what + " caret", std::to_string(expected.start), std::to_string(got.start))) &&
           Same(what + " read", ShowValue(model.Read(), type), ShowValue(library.Read(), type)) &&
           Same(what + " unformat", ShowValue(model.Unformat(text), type), ShowValue(library.Unformat(text), type));
}

TEST_F(Values, RandomMasksAreTakenAndShown)
{
    for (const Setting& setting : Settings())
        for (int code = kString; code <= kDecimal; ++code)
            for (int i = 0; i < 40 * times_ && !TooMany(); ++i) {
                const auto type = static_cast<Type>(code);
                Start(setting, {"", type});
                const std::string mask = RandomMask(type);
                const std::string what = Place(setting.name, mask, type);
                const int expected = pair_.Model().SetMask(mask.c_str(), type);
                const int got = pair_.Library().SetMask(mask.c_str(), type);
                bool same = Same(what, "result " + std::to_string(expected) + " " + pair_.Model().Look().text,
                                 "result " + std::to_string(got) + " " + pair_.Library().Look().text);
                for (int n = 0; n < 4 && same; ++n) {
                    const std::string text = RandomText(type, setting.regional);
                    same = SameValue(what + " \"" + text + "\"", text, type);
                }
            }
}

std::string Shown(const Stamp& stamp)
{
    return ShowValue(Value::OfStamp(stamp), kDateTime);
}

TEST_F(Values, RangeEndsAreReadAndOrdered)
{
    const Config rows[] = {
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
    for (const Config& row : rows) {
        Start(setting, row);
        for (int i = 0; i < 40 * times_ && !TooMany(); ++i) {
            const std::string where = Place(setting.name, row.mask, row.type);
            Stamp ends[2];
            for (Stamp& end : ends) {
                const std::string text = RandomText(row.type, setting.regional);
                Stamp got;
                const bool good = pair_.Model().ReadRangeEnd(text, end);
                const bool gotGood = pair_.Library().ReadRangeEnd(text, got);
                const std::string what = where + " end \"" + text + "\"";
                if (Same(what, good ? "read" : "refused", gotGood ? "read" : "refused") && good)
                    Same(what, Shown(end), Shown(got));
            }
            Same(where + " order of " + Shown(ends[0]) + " and " + Shown(ends[1]),
                 std::to_string(pair_.Model().OutOfOrder(ends[0], ends[1])),
                 std::to_string(pair_.Library().OutOfOrder(ends[0], ends[1])));
        }
    }
}

}  // namespace
}  // namespace model
