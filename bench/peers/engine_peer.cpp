// The engine as a control in memory: keys as a keyboard sends them, a value into text, a text into a value.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>

#include "bench/peers/measure.h"
#include "bench/peers/peers.h"
#include "engine/format/display.h"
#include "engine/format/read_back.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/text/ascii.h"
#include "engine/values/date_time.h"

namespace peers {

namespace {

using namespace zte;

union Value {
    char text[64];
    double number;
    DateTimeValue dateTime;
    DecimalValue decimal;
};

// From the canonical text of a value; GetData gives that of strings and numbers, and dates and times as they are.
void TakeText(const void* text, Value& value, const Settings&)
{
    std::snprintf(value.text, sizeof value.text, "%s", static_cast<const char*>(text));
}

void TakeNumber(const void* text, Value& value, const Settings&)
{
    value.number = std::strtod(static_cast<const char*>(text), nullptr);
}

void TakeDecimal(const void* text, Value& value, const Settings&)
{
    constexpr int32_t kPlaces = 2;
    value.decimal = services::DecimalOf(static_cast<const char*>(text), kPlaces);
}

template <int32_t kind>
void TakeDateTime(const void* text, Value& value, const Settings& settings)
{
    value.dateTime = kEmptyDateTime;
    services::ParseDateTime(value.dateTime, static_cast<const char*>(text), kind, settings);
}

void CopyDateTime(const void* block, Value& value, const Settings&)
{
    value.dateTime = *static_cast<const DateTimeValue*>(block);
}

using Take = void (*)(const void* source, Value& value, const Settings& settings);

struct Type {
    const char* name;
    int32_t dataType;
    Take fromCanonical;
    Take fromData;
};

constexpr Type kTypes[] = {
    {"string",  DT_STRING,  TakeText,                         TakeText    },
    {"date",    DT_DATE,    TakeDateTime<DATETIME_KIND_DATE>, CopyDateTime},
    {"time",    DT_TIME,    TakeDateTime<DATETIME_KIND_TIME>, CopyDateTime},
    {"number",  DT_NUMBER,  TakeNumber,                       TakeNumber  },
    {"decimal", DT_DECIMAL, TakeDecimal,                      TakeDecimal },
};

const Type& TypeOf(const Case& row)
{
    for (const Type& type : kTypes)
        if (row.type == type.name)
            return type;
    std::fprintf(stderr, "FAILED: no such type: %s\n", row.type.c_str());
    std::exit(1);
}

DateTimeValue NoClock()
{
    return {};
}

// The key of an American keyboard that makes a character: digits and letters have their own numbers.
int32_t KeyOf(char character)
{
    constexpr int32_t kPeriod = 0xBE;
    return character == '.' ? kPeriod : AsciiUpper(static_cast<Char>(character));
}

class Player {
public:
    explicit Player(const Case& row)
        : row_(row), type_(TypeOf(row)), settings_(StandardSettings()), control_(Setup(), settings_, NoClock)
    {
        type_.fromCanonical(row.value.c_str(), value_, settings_);
    }

    void TypeOverAll(const std::string& keys)
    {
        control_.Edit().SetSelection(0, Length(control_.Edit().Shown()));
        for (const char key : keys) {
            control_.KeyDown(KeyOf(key));
            control_.Type(static_cast<unsigned char>(key));
            control_.KeyUp(KeyOf(key));
        }
    }

    Text Shown() const { return control_.Edit().Shown(); }
    Text Format() { return FormatValue(control_.Record(), &value_).text; }

    // A text is put into the field and read.
    Value Read()
    {
        Value value{};
        control_.SetText(row_.text.c_str());
        void* data = GetData(control_.Record());
        if (data)
            type_.fromData(data, value, settings_);
        services::Free(control_.Record().heap, data);
        return value;
    }

    std::string WhatIsRead()
    {
        const Value value = Read();
        return std::memcmp(&value, &value_, sizeof value) == 0 ? row_.value : "another value";
    }

private:
    ControlSetup Setup() const
    {
        ControlSetup setup;
        setup.mask = row_.mask.c_str();
        setup.dataType = type_.dataType;
        return setup;
    }

    const Case& row_;
    const Type& type_;
    Settings settings_;
    Value value_{};
    MemoryControl control_;
};

}  // namespace

void MeasureEngine(const Case& row)
{
    Player player(row);
    const auto type = [&] { player.TypeOverAll(row.keys); };
    type();
    type();
    Measure({"engine", row.name, "keys", row.keys.size()}, player.Shown(), type);
    Measure({"engine", row.name, "formats"}, player.Format(), [&] { benchmark::DoNotOptimize(player.Format()); });
    Measure({"engine", row.name, "reads"}, player.WhatIsRead(), [&] { benchmark::DoNotOptimize(player.Read()); });
    player.TypeOverAll(row.wrong);
    TellWrong("engine", row.name, player.Shown());
}

}  // namespace peers
