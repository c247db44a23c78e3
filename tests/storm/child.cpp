// The child process: plays episodes and tells how far it has come.
#include "tests/storm/child.h"

#include <winternl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "tests/storm/late_release.h"
#include "tests/storm/laws.h"
#include "tests/storm/messages.h"
#include "tests/support/live/as_child.h"
#include "tests/support/live/beeps.h"
#include "tests/support/live/resource_counts.h"
#include "tests/support/profile.h"

namespace storm {

namespace {

constexpr uint32_t kWarmEpisodes = 5;
constexpr DWORD kStandsStill =
    60000;  // milliseconds without an operation; the slowest takes one of the processor's seconds

// The report in the memory that parent and child share.
class SharedReport {
public:
    explicit SharedReport(const std::string& name)
        : mapping_(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Report), name.c_str())),
          report_(static_cast<Report*>(MapViewOfFile(mapping_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Report))))
    {
    }
    SharedReport(const SharedReport&) = delete;
    SharedReport& operator=(const SharedReport&) = delete;
    ~SharedReport()
    {
        UnmapViewOfFile(report_);
        CloseHandle(mapping_);
    }
    Report& operator*() const { return *report_; }
    Report* operator->() const { return report_; }

private:
    HANDLE mapping_;
    Report* report_;
};

// ---- In the child ----------------------------------------------------------------------------------------------------

Report* childReport = nullptr;

void AddFrame(char* text, size_t size, void* address)
{
    HMODULE module = nullptr;
    char name[MAX_PATH] = "?";
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const char*>(address), &module);
    if (module)
        GetModuleFileNameA(module, name, sizeof name);
    const char* base = std::strrchr(name, '\\');
    const size_t used = std::strlen(text);
    const auto offset = reinterpret_cast<uintptr_t>(address) - reinterpret_cast<uintptr_t>(module);
    std::snprintf(text + used, size - used, " %s+0x%lx", base ? base + 1 : name, static_cast<unsigned long>(offset));
}

[[noreturn]] void End(Ending ending)
{
    childReport->ending = ending;
    TerminateProcess(GetCurrentProcess(), 1);
    std::abort();
}

bool IsCrash(DWORD code)
{
    constexpr DWORD kNoMemory = 0xC0000017;
    constexpr DWORD kHeapCorruption = 0xC0000374;
    return code == EXCEPTION_ACCESS_VIOLATION || code == EXCEPTION_STACK_OVERFLOW ||
           code == EXCEPTION_ILLEGAL_INSTRUCTION || code == EXCEPTION_INT_DIVIDE_BY_ZERO ||
           code == EXCEPTION_BREAKPOINT || code == kHeapCorruption || code == kNoMemory;
}

// At the first sight of it: the system swallows exceptions of window procedures in places.
LONG CALLBACK TellCrash(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (!IsCrash(record.ExceptionCode))
        return EXCEPTION_CONTINUE_SEARCH;
    childReport->code = record.ExceptionCode;
    char* told = childReport->told;
    AddFrame(told, sizeof childReport->told, record.ExceptionAddress);
    void* frames[24];
    const USHORT count = RtlCaptureStackBackTrace(0, 24, frames, nullptr);
    const size_t used = std::strlen(told);
    std::snprintf(told + used, sizeof childReport->told - used, " <");
    for (USHORT i = 0; i < count; ++i)
        AddFrame(told, sizeof childReport->told, frames[i]);
    End(Ending::Crashed);
}

// Heaps that are made from now on fill what is freed, and see what was written behind a block: as a debugger has it, by the global
// flags of the process, which stand at a place of their own in its environment block.
void CheckHeaps()
{
    constexpr DWORD kTailCheck = 0x10;
    constexpr DWORD kFreeCheck = 0x20;
    constexpr DWORD kParameterCheck = 0x40;
    constexpr size_t kPlace = sizeof(void*) == 8 ? 0xBC : 0x68;
    char* const process = reinterpret_cast<char*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const DWORD flags = kTailCheck | kFreeCheck | kParameterCheck;
    std::memcpy(process + kPlace, &flags, sizeof flags);
}

// Looked at more than once: while another thread is just freeing a block, some systems take a sound heap for a broken one.
bool IsSound(HANDLE heap)
{
    constexpr int kLooks = 4;
    for (int look = 0; look < kLooks; ++look) {
        if (HeapValidate(heap, 0, nullptr))
            return true;
        Sleep(5);
    }
    return false;
}

bool HeapsAreSound()
{
    HANDLE heaps[64];
    const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
    return std::all_of(heaps, heaps + count, IsSound);
}

// Of two threads each looks at what both have, and at no heap of the other's, which may just be going.
bool IsProcessHeapSound()
{
    return IsSound(GetProcessHeap());
}

Counts CountAll()
{
    return {zttest::GdiObjects(), zttest::Windows(), zttest::MemoryBlocks()};
}

void BreakLaw(const std::string& law)
{
    std::snprintf(childReport->told, sizeof childReport->told, "%s", law.c_str());
    End(Ending::BrokeALaw);
}

void PlayEpisode(const Part& part, uint32_t thread, uint32_t episode, Stage& stage)
{
    const std::vector<Op> ops = EpisodeOf(part.seed, episode);
    Laws laws(stage);
    childReport->episode[thread] = static_cast<LONG>(episode);
    for (size_t i = 0; i < ops.size(); ++i) {
        if (!part.kept.empty() && !part.kept[i])
            continue;
        childReport->op[thread] = static_cast<LONG>(i);
        laws.Before(ops[i]);
        Play(stage, ops[i]);
        const std::string broken = laws.After(ops[i]);
        ++childReport->operations[thread];
        InterlockedIncrement(&childReport->kinds[static_cast<size_t>(ops[i].kind)]);
        if (!broken.empty())
            BreakLaw(broken);
    }
}

// The settings of the profile, as every test program begins with them.
void PutSettingsBack()
{
    for (const zttest::ProfileValue& value : zttest::kUnitedStates)
        if (zttest::ReadProfile(value.key) != value.value)
            zttest::WriteProfile(value.key, value.value);
    zttest::TellRegionalChange();
}

void DrainQueue()
{
    MSG message;
    for (int i = 0; i < 1000 && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); ++i)
        DispatchMessageA(&message);
}

// Adds the host's reactions to the report when the play is over.
class ReactionCount {
public:
    explicit ReactionCount(const Stage& stage) : stage_(stage) {}
    ReactionCount(const ReactionCount&) = delete;
    ReactionCount& operator=(const ReactionCount&) = delete;
    ~ReactionCount() { InterlockedExchangeAdd(&childReport->reactions, static_cast<LONG>(stage_.Reacted())); }

private:
    const Stage& stage_;
};

void PlayEpisodes(const Part& part, uint32_t thread)
{
    Stage stage(part.cast, thread, part.threads == 1);
    const ReactionCount reactions(stage);
    DrainQueue();
    int windows = 0;
    for (uint32_t i = thread; i < part.count; i += part.threads) {
        PlayEpisode(part, thread, part.first + i, stage);
        stage.Clear();
        if (part.threads == 1 && stage.TakeSettingsChanged())
            PutSettingsBack();
        DrainQueue();
        if (!(part.threads == 1 ? HeapsAreSound() : IsProcessHeapSound()))
            BreakLaw("a heap was written to beside its blocks");
        const int now = zttest::Windows();
        if (i / part.threads < kWarmEpisodes)
            windows = now;
        else if (now > windows)
            BreakLaw("windows were left behind: " + std::to_string(windows) + ", now " + std::to_string(now));
        if (part.threads == 1 && i == kWarmEpisodes) {
            childReport->warm = CountAll();
            childReport->warmEpisodes = static_cast<LONG>(i);
        }
    }
    if (part.threads == 1)
        childReport->last = CountAll();
}

std::string ArgumentOf(const Part& part, const std::string& name)
{
    char text[200];
    std::snprintf(text, sizeof text, "%s,%d,%llu,%u,%u,%u,", name.c_str(), static_cast<int>(part.cast),
                  static_cast<unsigned long long>(part.seed), part.first, part.count, part.threads);
    std::string argument = text;
    for (const bool kept : part.kept)
        argument += kept ? '1' : '0';
    return argument;
}

Part PartOf(const char* argument, std::string& name)
{
    Part part = {};
    char nameRead[64] = "";
    char kept[kEpisodeLength + 1] = "";
    int cast = 0;
    unsigned long long seed = 0;
    std::sscanf(argument, "%63[^,],%d,%llu,%u,%u,%u,%250s", nameRead, &cast, &seed, &part.first, &part.count,
                &part.threads, kept);
    name = nameRead;
    part.cast = static_cast<Cast>(cast);
    part.seed = seed;
    for (const char* bit = kept; *bit; ++bit)
        part.kept.push_back(*bit == '1');
    return part;
}

int PlayAsChild(const char* argument)
{
    std::string name;
    const Part part = PartOf(argument, name);
    const SharedReport report(name);
    childReport = &*report;
    AddVectoredExceptionHandler(1, TellCrash);
    CheckHeaps();
    HoldBackReleases();
    const zttest::BeepCounter silence;
    PutSettingsBack();
    std::vector<std::thread> others;
    for (uint32_t thread = 1; thread < part.threads; ++thread)
        others.emplace_back(PlayEpisodes, part, thread);
    PlayEpisodes(part, 0);
    for (std::thread& other : others)
        other.join();
    PutSettingsBack();
    End(Ending::Played);
}

const zttest::ChildMain kRegistered = zttest::RegisterChild(PlayAsChild);

// ---- In the parent ---------------------------------------------------------------------------------------------------

HANDLE StartChild(const std::string& argument)
{
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, sizeof program);
    std::string command = std::string("\"") + program + "\" " + zttest::kChildArgument + " " + argument;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return nullptr;
    CloseHandle(process.hThread);
    return process.hProcess;
}

// False when it had to be ended.
bool AwaitEnd(HANDLE process, const Report& report)
{
    constexpr DWORD kLook = 250;
    LONG64 seen = -1;
    DWORD still = 0;
    while (WaitForSingleObject(process, kLook) == WAIT_TIMEOUT) {
        const LONG64 now = report.operations[0] + report.operations[1];
        still = now == seen ? still + kLook : 0;
        seen = now;
        if (still < kStandsStill)
            continue;
        TerminateProcess(process, 1);
        WaitForSingleObject(process, INFINITE);
        return false;
    }
    return true;
}

}  // namespace

Report PlayInChild(const Part& part)
{
    static int number = 0;
    const std::string name = "storm-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number);
    const SharedReport report(name);
    const HANDLE process = StartChild(ArgumentOf(part, name));
    if (!process)
        return {};
    if (!AwaitEnd(process, *report))
        report->ending = Ending::Hung;
    CloseHandle(process);
    return *report;
}

bool HasMessage(Kind kind)
{
    return kind == Kind::Send || kind == Kind::Post || kind == Kind::SpinMessage || kind == Kind::CallProcedure;
}

std::string Told(const Op& op)
{
    char text[160];
    std::snprintf(text, sizeof text, "%s, control %d (0x%x, 0x%x, 0x%x)", NameOf(op.kind), op.slot, op.a, op.b, op.c);
    std::string told = text;
    if (HasMessage(op.kind)) {
        std::snprintf(text, sizeof text, ", message 0x%x", MessageOf(op.a));
        told += text;
    } else if (op.kind == Kind::React) {
        told += std::string(" to ") + TriggerOf(op.a).name + " by " + Told(ReactionOf(op.b, op.slot));
    }
    return told;
}

}  // namespace storm
