// Runs the tests of one program: prints failures only, then the test framework's summary.
// The profile and the clipboard belong to the whole machine, so only one test program runs at a time.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <memory>

#include "tests/support/live/as_child.h"
#include "tests/support/profile.h"

namespace {

// Leaves out the lines of tests that pass.
class PlainPrinter : public testing::EmptyTestEventListener {
public:
    explicit PlainPrinter(testing::TestEventListener* full) : full_(full) {}

    void OnTestPartResult(const testing::TestPartResult& result) override
    {
        if (!result.passed())
            full_->OnTestPartResult(result);
    }

    void OnTestEnd(const testing::TestInfo& info) override
    {
        if (info.result()->Failed() || info.result()->Skipped())
            full_->OnTestEnd(info);
        std::fflush(stdout);
    }

    void OnTestIterationEnd(const testing::UnitTest& test, int iteration) override
    {
        full_->OnTestIterationEnd(test, iteration);
    }

private:
    std::unique_ptr<testing::TestEventListener> full_;
};

class OneProgramAtATime {
public:
    OneProgramAtATime() : mutex_(CreateMutexA(nullptr, FALSE, "ztedit tests"))
    {
        WaitForSingleObject(mutex_, INFINITE);
    }
    OneProgramAtATime(const OneProgramAtATime&) = delete;
    OneProgramAtATime& operator=(const OneProgramAtATime&) = delete;
    ~OneProgramAtATime()
    {
        ReleaseMutex(mutex_);
        CloseHandle(mutex_);
    }

private:
    HANDLE mutex_;
};

bool IsCrash(DWORD code)
{
    constexpr DWORD kHeapCorruption = 0xC0000374;
    return code == EXCEPTION_ACCESS_VIOLATION || code == EXCEPTION_STACK_OVERFLOW ||
           code == EXCEPTION_ILLEGAL_INSTRUCTION || code == EXCEPTION_INT_DIVIDE_BY_ZERO || code == kHeapCorruption;
}

// Ends the program at a crash. Without it an exception inside a window procedure could be swallowed by the system on
// its way out, and the test would pass.
LONG CALLBACK EndAtCrash(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (!IsCrash(record.ExceptionCode))
        return EXCEPTION_CONTINUE_SEARCH;
    char module[MAX_PATH] = "?";
    HMODULE owner = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const char*>(record.ExceptionAddress), &owner);
    if (owner)
        GetModuleFileNameA(owner, module, sizeof module);
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    std::printf("CRASH %08lx at %p (module %s at %p) in %s.%s\n", record.ExceptionCode, record.ExceptionAddress, module,
                static_cast<void*>(owner), test ? test->test_suite_name() : "-", test ? test->name() : "-");
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_CONTINUE_SEARCH;
}

zttest::ChildMain childMain = nullptr;

}  // namespace

zttest::ChildMain zttest::RegisterChild(ChildMain main)
{
    return childMain = main;
}

int main(int argc, char** argv)
{
    if (childMain && argc == 3 && std::strcmp(argv[1], zttest::kChildArgument) == 0)
        return childMain(argv[2]);
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const OneProgramAtATime alone;
    AddVectoredExceptionHandler(1, EndAtCrash);
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    listeners.Append(new PlainPrinter(listeners.Release(listeners.default_result_printer())));
    const zttest::Regional standard(zttest::kUnitedStates);
    return RUN_ALL_TESTS();
}
