// Linked into each test program by tools/mutate. It records which test reaches which mutants (MUTATE_RECORD names the file), or
// plays mutants: the program, once loaded, is forked for each one, and the child runs the tests that reach it.
#include "switches.h"

#include <gtest/gtest.h>

#include "src/gtest-internal-inl.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace mutate {
namespace {

constexpr int kFailedCode = 91;
constexpr int kStepsCode = 92;
constexpr uint64_t kMoreSteps = 20;  // as many times what a test takes otherwise are an endless loop
constexpr uint64_t kFewSteps = 100000;
constexpr rlim_t kMostMemory = 1500u << 20;

struct TestRow {
    std::string name;
    uint64_t microseconds = 0;
    uint64_t steps = 0;
    std::vector<uint32_t> reached;
};

uint64_t ProcessTime()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto total = [](const timeval& t) { return static_cast<uint64_t>(t.tv_sec) * 1000000 + static_cast<uint64_t>(t.tv_usec); };
    return total(usage.ru_utime) + total(usage.ru_stime);
}

std::string NameOf(const testing::TestInfo& test)
{
    return std::string(test.test_suite_name()) + '.' + test.name();
}

// One line a test: name, microseconds, steps, and what it reached. What is reached outside of tests stands under the name "-".
class Recorder : public testing::EmptyTestEventListener {
public:
    explicit Recorder(const char* path) : file_(std::fopen(path, "w")) {}

    void OnTestStart(const testing::TestInfo&) override
    {
        Write("-", 0);
        start_ = ProcessTime();
    }
    void OnTestEnd(const testing::TestInfo& test) override { Write(NameOf(test), ProcessTime() - start_); }
    void OnTestProgramEnd(const testing::UnitTest&) override
    {
        Write("-", 0);
        std::fclose(file_);
    }

private:
    void Write(const std::string& name, uint64_t microseconds)
    {
        std::fprintf(file_, "%s %llu %llu", name.c_str(), static_cast<unsigned long long>(microseconds),
                     static_cast<unsigned long long>(steps));
        for (uint32_t i = 0; i < kMostMutants; ++i)
            if (reached[i])
                std::fprintf(file_, " %u", i);
        std::fputc('\n', file_);
        std::memset(reached, 0, sizeof reached);
        steps = 0;
    }

    FILE* file_;
    uint64_t start_ = 0;
};

std::vector<TestRow> ReadRecord(const char* path)
{
    std::vector<TestRow> rows;
    FILE* file = std::fopen(path, "r");
    char* line = nullptr;
    size_t room = 0;
    while (file && getline(&line, &room, file) > 0) {
        TestRow row;
        char* at = std::strchr(line, ' ');
        row.name.assign(line, static_cast<size_t>(at - line));
        if (row.name == "-")
            continue;
        row.microseconds = std::strtoull(at, &at, 10);
        row.steps = std::strtoull(at, &at, 10);
        rows.push_back(row);
    }
    std::free(line);
    return rows;
}

// Commands come line by line on descriptor 3: the mutant, and the numbers of the tests in the record's order, as a text of 0 and 1.
// Answers go to descriptor 4: "survived", "failed <test>", "steps <test>", "time", "crashed <signal>".
class Player : public testing::EmptyTestEventListener {
public:
    explicit Player(const char* record) : rows_(ReadRecord(record)) {}

    void OnTestProgramStart(const testing::UnitTest&) override
    {
        if (!std::getenv("MUTATE_TELL")) {
            const int nowhere = open("/dev/null", O_WRONLY);
            dup2(nowhere, 1);
            dup2(nowhere, 2);
        }
        for (testing::TestSuite* suite : testing::internal::GetUnitTestImpl()->test_suites_)
            for (testing::TestInfo* test : suite->test_info_list_)
                if (test->should_run_) {
                    tests_.push_back(test);
                    suites_.push_back(suite);
                }
        commands_ = fdopen(3, "r");
        answers_ = fdopen(4, "w");
        char* line = nullptr;
        size_t room = 0;
        while (getline(&line, &room, commands_) > 0) {
            char* at = nullptr;
            const auto mutant = static_cast<uint32_t>(std::strtoul(line, &at, 10));
            if (Fork(mutant))
                return Choose(at + 1);
        }
        _exit(0);
    }

    void OnTestStart(const testing::TestInfo& test) override
    {
        while (tests_[now_] != &test)
            ++now_;
        steps = 0;
        stepLimit = rows_[now_].steps * kMoreSteps + kFewSteps;
        const uint64_t limit = rows_[now_].microseconds * 20 + 2000000;
        const itimerval timer = {{0, 0}, {static_cast<time_t>(limit / 1000000), static_cast<suseconds_t>(limit % 1000000)}};
        setitimer(ITIMER_PROF, &timer, nullptr);
    }

    void OnTestPartResult(const testing::TestPartResult& result) override
    {
        if (result.failed())
            End(kFailedCode);
    }

    void OnTestProgramEnd(const testing::UnitTest&) override { _exit(0); }

    [[noreturn]] void End(int code)
    {
        const uint32_t test = static_cast<uint32_t>(now_);
        if (write(told_, &test, sizeof test) < 0)
            _exit(1);
        _exit(code);
    }

private:
    // The others are as if the program's filter had taken them out. (A filter of thousands of names takes longer than the tests.)
    void Choose(const char* chosen)
    {
        if (tests_.size() != rows_.size())
            _exit(1);
        for (testing::TestSuite* suite : testing::internal::GetUnitTestImpl()->test_suites_)
            suite->should_run_ = false;
        for (size_t i = 0; i < tests_.size(); ++i) {
            tests_[i]->should_run_ = chosen[i] == '1';
            if (tests_[i]->should_run_)
                suites_[i]->should_run_ = true;
        }
    }

    // True in the child, which goes on as that mutant.
    bool Fork(uint32_t mutant)
    {
        int ends[2];
        if (pipe(ends) != 0)
            _exit(1);
        const pid_t child = fork();
        if (child == 0) {
            told_ = ends[1];
            const rlimit memory = {kMostMemory, kMostMemory};
            setrlimit(RLIMIT_AS, &memory);
            const rlimit core = {0, 0};
            setrlimit(RLIMIT_CORE, &core);
            active = mutant;
            return true;
        }
        close(ends[1]);
        int status = 0;
        waitpid(child, &status, 0);
        uint32_t test = 0;
        const bool told = read(ends[0], &test, sizeof test) == static_cast<ssize_t>(sizeof test);
        close(ends[0]);
        std::fprintf(answers_, "%s\n", Answer(status, told && test < rows_.size() ? rows_[test].name : "-").c_str());
        std::fflush(answers_);
        return false;
    }

    static std::string Answer(int status, const std::string& test)
    {
        if (WIFSIGNALED(status))
            return WTERMSIG(status) == SIGPROF ? "time" : "crashed " + std::to_string(WTERMSIG(status));
        switch (WEXITSTATUS(status)) {
        case 0: return "survived";
        case kFailedCode: return "failed " + test;
        case kStepsCode: return "steps " + test;
        default: return "crashed exit";
        }
    }

    std::vector<TestRow> rows_;
    FILE* commands_ = nullptr;
    FILE* answers_ = nullptr;
    std::vector<testing::TestInfo*> tests_;
    std::vector<testing::TestSuite*> suites_;
    size_t now_ = 0;
    int told_ = -1;
};

Player* player = nullptr;

const bool listening = [] {
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    if (const char* path = std::getenv("MUTATE_RECORD"))
        listeners.Append(new Recorder(path));
    if (const char* path = std::getenv("MUTATE_PLAY"))
        listeners.Append(player = new Player(path));
    return true;
}();

}  // namespace

void GiveUp()
{
    if (!player)
        std::abort();
    player->End(kStepsCode);
}

}  // namespace mutate
