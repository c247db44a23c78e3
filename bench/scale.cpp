// How the engine's work grows with its masks, texts and code tables, over a field in memory. To be run under an instruction counter:
// the instructions of an operation are the difference between two runs of different rounds.
//
//     scale OPERATION SIZE ROUNDS
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>

#include "engine/format/data.h"
#include "engine/format/read_back.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/values/settings.h"

namespace {

using namespace zte;

DateTimeValue NoClock()
{
    return {};
}

// "Entry1<tab>1/Entry2<tab>2/...".
Text TableOf(int size)
{
    std::string text;
    for (int i = 1; i <= size; ++i)
        text += "Entry" + std::to_string(i) + '\t' + std::to_string(i) + '/';
    return FromAscii(text.c_str());
}

class Subject {
public:
    Subject(const Text& mask, const Text& codeTable, uint32_t options)
        : mask_(mask), codeTable_(codeTable), control_(Setup(options), settings_, NoClock)
    {
    }

    MemoryControl& Control() { return control_; }
    void Set(const Text& data) { SetDataString(control_.Record(), data.c_str()); }
    void Get()
    {
        EditInstance& edit = control_.Record();
        services::Free(edit.heap, GetData(edit));
    }

private:
    ControlSetup Setup(uint32_t options) const
    {
        ControlSetup setup;
        setup.mask = mask_.empty() ? nullptr : mask_.c_str();
        setup.options = options;
        setup.codeTable = codeTable_.empty() ? nullptr : codeTable_.c_str();
        return setup;
    }

    Text mask_;
    Text codeTable_;
    Settings settings_ = StandardSettings();
    MemoryControl control_;
};

using Play = std::function<void()>;

Text Digits(int count)
{
    return Text(static_cast<size_t>(count), Char{'#'});
}

Text Sevens(int count)
{
    return Text(static_cast<size_t>(count), Char{'7'});
}

// A key in the middle of a full field.
Play KeyUnderMask(int size)
{
    auto subject = std::make_shared<Subject>(Digits(size), Text(), 0);
    subject->Set(Sevens(size));
    return [subject, size] {
        subject->Control().Edit().SetSelection(size / 2, size / 2);
        subject->Control().KeyDown('5');
        subject->Control().Type('5');
        subject->Control().KeyUp('5');
    };
}

Play SetAndGetUnderMask(int size)
{
    auto subject = std::make_shared<Subject>(Digits(size), Text(), 0);
    return [subject, data = Sevens(size)] {
        subject->Set(data);
        subject->Get();
    };
}

Play SetAndGetText(int size)
{
    auto subject = std::make_shared<Subject>(Text(), Text(), 0);
    return [subject, data = Sevens(size)] {
        subject->Set(data);
        subject->Get();
    };
}

Play CreateWithMask(int size)
{
    return [mask = Digits(size)] { Subject(mask, Text(), 0); };
}

constexpr uint32_t kTableOptions = ZTEO_SPIN | ZTEO_CODE_DISPLAY;

// The last entry, which is looked for from the first one.
Play SetAndGetLastEntry(int size)
{
    auto subject = std::make_shared<Subject>(Text(), TableOf(size), kTableOptions);
    return [subject, data = FromAscii(std::to_string(size).c_str())] {
        subject->Set(data);
        subject->Get();
    };
}

Play StepFromLastEntry(int size)
{
    auto subject = std::make_shared<Subject>(Text(), TableOf(size), kTableOptions);
    return [subject, data = FromAscii(std::to_string(size).c_str())] {
        subject->Set(data);
        subject->Control().Step(true);
    };
}

Play CreateWithTable(int size)
{
    return [table = TableOf(size)] { Subject(Text(), table, kTableOptions); };
}

struct Operation {
    const char* name;
    Play (*make)(int size);
};

constexpr Operation kOperations[] = {
    {"mask-create",   CreateWithMask    },
    {"mask-key",      KeyUnderMask      },
    {"mask-set-get",  SetAndGetUnderMask},
    {"text-set-get",  SetAndGetText     },
    {"table-create",  CreateWithTable   },
    {"table-set-get", SetAndGetLastEntry},
    {"table-step",    StepFromLastEntry },
};

int Run(const std::string& name, int size, int rounds)
{
    for (const Operation& operation : kOperations) {
        if (name != operation.name)
            continue;
        const Play play = operation.make(size);
        for (int i = 0; i < rounds; ++i)
            play();
        return 0;
    }
    return 2;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc == 4)
        return Run(argv[1], std::atoi(argv[2]), std::atoi(argv[3]));
    std::fprintf(stderr, "usage: scale OPERATION SIZE ROUNDS\n");
    return 2;
}
