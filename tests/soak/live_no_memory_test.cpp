// A heap that fails under the libraries, and a system that refuses. Without memory there is the no-memory exception and nothing
// else: no other exception, no crash, heaps and texts whole, and the window and the heap can be taken down on top of it. Where the
// system refuses an object, the control makes do.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include "tests/soak/live_control.h"
#include "tests/soak/live_gate.h"
#include "tests/soak/table_row.h"
#include "tests/support/live/beeps.h"
#include "tests/support/live/form.h"

namespace soak {
namespace {

constexpr int kActs = 12;
constexpr int kOperations = 500;
constexpr DWORD kNoMemory = 0xC0000017;  // STATUS_NO_MEMORY

// Positional masks whose literals stand still, whatever is typed.
bool LiteralsStand(const std::string& mask, const std::string& text)
{
    constexpr const char* kMasks[] = {"(###) ###-####", "MM/DD/YY", "HH:MM:SS:FFF", "MM/DD/YYYY HH:MM:SS:FFFFFF"};
    for (const char* const known : kMasks) {
        if (mask != known)
            continue;
        if (text.size() != mask.size())
            return false;
        for (size_t i = 0; i < mask.size(); ++i)
            if (!std::strchr("#MDYHSF", mask[i]) && text[i] != mask[i])
                return false;
    }
    return true;
}

bool AreHeapsWhole()
{
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    for (DWORD i = 0; i < count && i < heaps.size(); ++i)
        if (!HeapValidate(heaps[i], 0, nullptr))
            return false;
    return true;
}

// Lives of controls in which requests are refused, on a thread of their own, which the exception ends.
class Game {
public:
    Game(Gate& gate, uint64_t seed, int operations) : gate_(gate), dice_(seed), left_(operations) {}
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    // The code with which the thread ended.
    DWORD Play()
    {
        playing_ = this;
        const HANDLE thread = CreateThread(nullptr, 0, Run, this, 0, nullptr);
        WaitForSingleObject(thread, INFINITE);
        DWORD code = 0;
        GetExitCodeThread(thread, &code);
        CloseHandle(thread);
        playing_ = nullptr;
        return code;
    }

    const std::string& Complaint() const { return complaint_; }
    int Refusals() const { return refusals_; }
    int Left() const { return left_; }
    std::string What() const
    {
        return "way " + std::to_string(static_cast<int>(way_)) + ", request " + std::to_string(number_) + ", " +
               Describe(life_, act_);
    }

    static LONG CALLBACK OnException(EXCEPTION_POINTERS* exception)
    {
        const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
        Game* const game = playing_;
        if (!game || GetCurrentThreadId() != game->thread_)
            return EXCEPTION_CONTINUE_SEARCH;
        switch (record.ExceptionCode) {
        case kNoMemory: game->EndInException(record); break;
        case kAborted: game->Complain("the runtime gave up"); break;
        case static_cast<DWORD>(EXCEPTION_ACCESS_VIOLATION):
            std::printf("crash in %s\n", game->What().c_str());
            [[fallthrough]];
        default: return EXCEPTION_CONTINUE_SEARCH;
        }
        ExitThread(record.ExceptionCode);
    }

private:
    static DWORD WINAPI Run(void* game)
    {
        try {
            static_cast<Game*>(game)->PlayOnThread();
        } catch (...) {
            static_cast<Game*>(game)->Complain("a C++ exception left the library");
        }
        return 0;
    }

    void PlayOnThread()
    {
        thread_ = GetCurrentThreadId();
        form_ = std::make_unique<zttest::Form>();
        form_->onNotification = [this](const zttest::Notification& notification) {
            if (notification.code == EN_CHANGE)
                lastText_ = zttest::TextOf(notification.control);
        };
        while (left_ > 0 && complaint_.empty())
            PlayLife();
        DestroyWindow(form_->hwnd());
    }

    void PlayLife()
    {
        Throw(life_, dice_.Number(), kActs);
        way_ = static_cast<Way>(dice_.Below(static_cast<int>(Way::Count)));
        fromOutside_ = false;
        act_ = 0;
        textBefore_.clear();
        lastText_.clear();
        heap_ = SharedHeapCreate();
        RefuseAnother();
        --left_;
        control_.Create(form_->hwnd(), heap_, life_.config, way_, dice_.Chance(50));
        for (; act_ < life_.acts.size(); ++act_) {
            CheckRefusal();
            textBefore_ = zttest::TextOf(Window());
            --left_;
            Perform(life_.acts[act_]);
        }
        --left_;
        control_.Destroy();
        CheckRefusal();
        gate_.RefuseNone();
        SharedHeapDestroy(heap_);
    }

    void Perform(const Act& act)
    {
        static const Deed kOutside[] = {Deed::SetText, Deed::Replace, Deed::SetMask, Deed::SetSpin, Deed::Undo};
        for (const Deed deed : kOutside)
            fromOutside_ |= act.deed == deed;
        control_.Perform(act);
    }

    void RefuseAnother()
    {
        constexpr int kSpans[] = {8, 40, 200, 600};
        number_ = static_cast<uint32_t>(1 + dice_.Below(dice_.Of(kSpans)));
        gate_.RefuseOne(number_);
    }

    // After work that has come back: memory was not refused, and when the system refused something, it may do so again.
    void CheckRefusal()
    {
        if (gate_.Refused() == Refusal::None)
            return;
        ++refusals_;
        if (gate_.Refused() == Refusal::Memory)
            Complain("memory was refused, and nothing happened");
        if (!AreHeapsWhole())
            Complain("a heap is broken");
        RefuseAnother();
    }

    // While a creation is going on, the window is known to its parent only.
    HWND Window() const { return control_.hwnd() ? control_.hwnd() : GetWindow(form_->hwnd(), GW_CHILD); }

    // On top of the work that could not go on, as a host's last handler would run.
    void EndInException(const EXCEPTION_RECORD& record)
    {
        const Refusal refused = gate_.Refused();
        gate_.RefuseNone();
        ++refusals_;
        if (refused != Refusal::Memory && refused != Refusal::Runtime)
            Complain("the exception came without reason");
        if ((record.ExceptionFlags & EXCEPTION_NONCONTINUABLE) == 0)
            Complain("the exception may be continued");
        if (!AreHeapsWhole())
            Complain("a heap is broken");
        const std::string text = zttest::TextOf(Window());
        if (text.find('\0') != std::string::npos)
            Complain("the text is torn");
        const bool isTold = way_ != Way::FromDialog;
        if (isTold && text != textBefore_ && text != lastText_)
            Complain("the text \"" + text + "\" is neither \"" + textBefore_ + "\" nor \"" + lastText_ + "\"");
        const bool isMasked = !fromOutside_ && GetPropA(Window(), "MAIN") &&
                              (life_.config.options & (ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK)) == 0;
        if (isMasked && life_.config.mask && !text.empty() && !LiteralsStand(life_.config.mask, text))
            Complain("the text \"" + text + "\" has lost literals");
        TakeDown();
    }

    void TakeDown()
    {
        const HWND window = Window();
        DestroyWindow(form_->hwnd());
        if (IsWindow(window))
            Complain("the window is still there");
        if (GetPropA(window, "MAIN"))
            Complain("the property is still there");
        SharedHeapDestroy(heap_);
        if (!AreHeapsWhole())
            Complain("a heap is broken at the end");
    }

    void Complain(const std::string& what) { complaint_ += what + "; "; }

    static Game* playing_;

    Gate& gate_;
    Dice dice_;
    int left_;  // operations still to be played: creations, deeds, destructions
    Life life_;
    Way way_ = Way::ByClass;
    DWORD thread_ = 0;
    std::unique_ptr<zttest::Form> form_;
    SharedHeap heap_ = nullptr;
    LiveControl control_;
    size_t act_ = 0;
    uint32_t number_ = 0;
    int refusals_ = 0;
    bool fromOutside_ = false;
    std::string textBefore_;
    std::string lastText_;
    std::string complaint_;
};

Game* Game::playing_ = nullptr;

TEST(MemoryRunningOut, EndsInTheNoMemoryExceptionAlone)
{
    const int operations = NumberOf("ZT_SOAK_OPERATIONS", kOperations);
    const zttest::BeepCounter quiet;
    Gate gate;
    void* const handler = AddVectoredExceptionHandler(1, Game::OnException);
    const Stopwatch watch;
    int64_t refusals = 0;
    int64_t exceptions = 0;
    uint64_t seed = static_cast<uint64_t>(NumberOf("ZT_SOAK_SEED", 8)) << 32;
    for (int left = operations; left > 0;) {
        Game game(gate, ++seed, left);
        const DWORD code = game.Play();
        left = game.Left();
        exceptions += code == kNoMemory;
        refusals += game.Refusals();
        if (!game.Complaint().empty() || (code != 0 && code != kNoMemory)) {
            ADD_FAILURE() << std::hex << code << std::dec << " " << game.Complaint() << game.What();
            break;
        }
    }
    RemoveVectoredExceptionHandler(handler);
    PrintRow("windows, failing heap", operations, watch,
             {
                 {"refusals and no-memory ends", refusals, exceptions}
    });
    EXPECT_GT(exceptions, operations / 100);
    EXPECT_GT(refusals, exceptions);
}

}  // namespace
}  // namespace soak
