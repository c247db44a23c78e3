// What a keystroke, a formatting and a reading back cost the engine on this machine, over a field in memory.
//
//     keystrokes                      times, by Google Benchmark
//     keystrokes --play NAME ROUNDS   plays the keys of a case, for counting instructions
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "engine/format/data.h"
#include "engine/format/display.h"
#include "engine/format/read_back.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/text/ascii.h"

namespace {

using namespace zte;

struct KeyCase {
    const char* name;
    const char* mask;
    int32_t dataType;
    const char* keys;  // typed from the start of the empty value
};

constexpr KeyCase kCases[] = {
    {"date",       "MM/DD/YY",       DT_DATE,    "070495"    },
    {"month_name", "DD-MMM-YYYY",    DT_DATE,    "04jul1995" },
    {"time",       "HH:MM:SS",       DT_TIME,    "140709"    },
    {"string",     "(###) ###-####", DT_STRING,  "5551234567"},
    {"number",     "#,###,##0.00",   DT_NUMBER,  "123456.78" },
    {"decimal",    "#,###,##0.00",   DT_DECIMAL, "123456.78" },
};

DateTimeValue NoClock()
{
    return {};
}

// The key of an American keyboard that makes a character: digits and letters have their own numbers.
int32_t KeyOf(char character)
{
    constexpr int32_t kPeriod = 0xBE;
    if (character == '.')
        return kPeriod;
    return AsciiUpper(static_cast<Char>(character));
}

class Player {
public:
    explicit Player(const KeyCase& row)
        : keys_(row.keys),
          mask_(FromAscii(row.mask)),
          settings_(StandardSettings()),
          control_(Setup(row), settings_, NoClock)
    {
    }

    void Play()
    {
        SetData(control_.Record(), nullptr);
        control_.Edit().SetSelection(0, 0);
        for (const char* key = keys_; *key; ++key) {
            control_.KeyDown(KeyOf(*key));
            control_.Type(static_cast<unsigned char>(*key));
            control_.KeyUp(KeyOf(*key));
        }
    }
    size_t KeyCount() const { return std::strlen(keys_); }
    MemoryControl& Control() { return control_; }

private:
    ControlSetup Setup(const KeyCase& row) const
    {
        ControlSetup setup;
        setup.mask = mask_.c_str();
        setup.dataType = row.dataType;
        return setup;
    }

    const char* keys_;
    Text mask_;
    Settings settings_;
    MemoryControl control_;
};

void TypeKeys(benchmark::State& state, const KeyCase& row)
{
    Player player(row);
    for (auto _ : state)
        player.Play();
    const auto keys = static_cast<double>(state.iterations()) * static_cast<double>(player.KeyCount());
    state.counters["per_key"] = benchmark::Counter(keys, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void FormatDate(benchmark::State& state)
{
    Player player(kCases[0]);
    const DateTimeValue value = {0, 95, 6, 4, DATETIME_NO_TIME, 0, 0, 0};
    for (auto _ : state)
        benchmark::DoNotOptimize(FormatValue(player.Control().Record(), &value));
}

void ReadDate(benchmark::State& state)
{
    Player player(kCases[0]);
    player.Play();
    EditInstance& edit = player.Control().Record();
    for (auto _ : state) {
        void* value = GetData(edit);
        benchmark::DoNotOptimize(value);
        services::Free(edit.heap, value);
    }
}

const KeyCase* FindCase(const char* name)
{
    for (const KeyCase& row : kCases)
        if (std::strcmp(row.name, name) == 0)
            return &row;
    return nullptr;
}

int PlayRounds(const char* name, int rounds)
{
    const KeyCase* row = FindCase(name);
    if (!row)
        return 2;
    Player player(*row);
    for (int i = 0; i < rounds; ++i)
        player.Play();
    std::printf("%zu\n", player.KeyCount());
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::strcmp(argv[1], "--play") == 0)
        return PlayRounds(argv[2], std::atoi(argv[3]));
    for (const KeyCase& row : kCases)
        benchmark::RegisterBenchmark((std::string("type_") + row.name).c_str(), TypeKeys, row);
    benchmark::RegisterBenchmark("format_date", FormatDate);
    benchmark::RegisterBenchmark("read_date", ReadDate);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
