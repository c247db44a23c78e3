// A heap that fails: whatever the engine asks for and does not get, the program ends at once by abort, and nothing else happens
// before. Each game is played in a process of its own.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <new>

#include "tests/soak/native_allocations.h"
#include "tests/soak/native_player.h"
#include "tests/soak/table_row.h"

namespace soak {
namespace {

constexpr int kFailingActs = 16;
constexpr int kOperations = 800;

// How the process of a game ends.
enum : int {
    kAsPromised = 70,
    kPlayed = 71,    // the game was played to its end
    kTooEarly = 72,  // by an abort before any request failed
    kTooLate = 73,   // there were requests after the one that failed
    kTextTorn = 74,
};

uint64_t failed = 0;  // the number of the request that fails

// Memory that parent and children share: the operations that a child has begun.
int& OperationsOfChild()
{
    static void* const shared = mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return *static_cast<int*>(shared);
}

// A text that someone might look at now: it ends where it says.
bool IsWhole(const std::string& text)
{
    return std::strlen(text.c_str()) == text.size();
}

void OnAbort(int)
{
    OperationsOfChild() = OperationsBegun();
    if (Requests() != failed)
        _exit(Requests() < failed ? kTooEarly : kTooLate);
    const std::string* text = TextBeingEdited();
    _exit(!text || IsWhole(*text) ? kAsPromised : kTextTorn);
}

[[noreturn]] void PlayToTheEnd(const Life& life, uint64_t request)
{
    std::signal(SIGABRT, OnAbort);
    std::set_new_handler(std::abort);  // as programs without exceptions end
    failed = Requests() + request;
    FailRequest(failed);
    Lead(life);
    _exit(kPlayed);
}

// The end of a process in which the request of the given number, counted from the creation of the control, fails.
int EndOfGame(const Life& life, uint64_t request)
{
    OperationsOfChild() = 0;
    const pid_t child = fork();
    if (child == 0)
        PlayToTheEnd(life, request);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

uint64_t RequestsOf(const Life& life)
{
    const uint64_t before = Requests();
    Lead(life);
    return Requests() - before;
}

TEST(MemoryRunningOut, EndsTheProgramByAbort)
{
    const int operations = NumberOf("ZT_SOAK_OPERATIONS", kOperations);
    const Stopwatch watch;
    int64_t games = 0;
    int64_t failures = 0;
    Dice dice(8);
    Life life;
    for (int played = 0; played < operations; played += OperationsOfChild(), ++games) {
        const zttest::Regional setting(RegionalSetOf(dice.Below(5)));
        Throw(life, dice.Number(), kFailingActs);
        const uint64_t made = RequestsOf(life);  // the heap of the control is one at least
        const uint64_t request = 1 + dice.Number() % made;
        const int end = EndOfGame(life, request);
        ASSERT_EQ(end, kAsPromised) << "request " << request << " of " << made << ", " << Describe(life, kFailingActs);
        ++failures;
    }
    PrintRow("engine, failing heap", operations, watch,
             {
                 {"games and ends by abort", games, failures}
    });
    EXPECT_EQ(failures, games);
}

// The same, were the request that fails never reached.
TEST(MemoryRunningOut, IsSeenNotToHappen)
{
    Life life;
    Throw(life, 1, kFailingActs);
    EXPECT_EQ(EndOfGame(life, RequestsOf(life) + 1), kPlayed);
}

}  // namespace
}  // namespace soak
