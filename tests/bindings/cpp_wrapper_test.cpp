// The wrapper for C++ (bindings/cpp/ztedit.hpp) on live windows.
#include "bindings/cpp/ztedit.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <iterator>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

#include "tests/support/live/beeps.h"
#include "tests/support/live/typist.h"

namespace {

constexpr char kFormClass[] = "wrapper test form";
constexpr int kId = 7;

// What a form hears, as the wrapper reads it.
struct Heard {
    std::vector<zt::Rejected> rejected;
    std::vector<zt::StateChanged> states;
    std::vector<zt::Autoskip> skips;
    int others = 0;  // notifications that the wrapper does not take for its own
};

Heard* heard = nullptr;

LRESULT CALLBACK FormProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (heard && message == WM_NOTIFY) {
        if (const auto refused = zt::Rejected::From(lParam))
            heard->rejected.push_back(*refused);
        else if (const auto state = zt::StateChanged::From(lParam))
            heard->states.push_back(*state);
        else
            ++heard->others;
    }
    if (heard && message == WM_COMMAND)
        if (const auto skip = zt::Autoskip::From(wParam, lParam))
            heard->skips.push_back(*skip);
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

class CppWrapper : public testing::Test {
protected:
    CppWrapper()
    {
        WNDCLASSA form = {};
        form.lpfnWndProc = FormProc;
        form.hInstance = GetModuleHandleA(nullptr);
        form.lpszClassName = kFormClass;
        RegisterClassA(&form);
        form_ =
            CreateWindowExA(0, kFormClass, "", WS_POPUP, 20, 20, 400, 300, nullptr, nullptr, form.hInstance, nullptr);
        heard = &heard_;
    }
    ~CppWrapper() override
    {
        heard = nullptr;
        DestroyWindow(form_);
    }

    zt::Edit Make(const zt::Setup& setup) { return zt::Edit::Create(heap_, setup, form_, kId, {10, 10, 200, 24}); }
    HWND MakeWindow(const char* windowClass)
    {
        return CreateWindowExA(0, windowClass, "", zt::Edit::kStyle, 10, 10, 200, 24, form_,
                               reinterpret_cast<HMENU>(INT_PTR{kId}), nullptr, nullptr);
    }
    static void Type(const zt::Edit& edit, const std::string& keys)
    {
        zttest::Typist typist(edit.Window());
        typist.Play(keys);
    }

    zttest::BeepCounter beeps_;
    zt::Heap heap_;
    HWND form_;
    Heard heard_;
};

TEST_F(CppWrapper, HeapIsMovedNotCopied)
{
    static_assert(!std::is_copy_constructible_v<zt::Heap> && !std::is_copy_assignable_v<zt::Heap>);
    static_assert(std::is_nothrow_move_constructible_v<zt::Heap> && std::is_nothrow_move_assignable_v<zt::Heap>);
    zt::Heap first;
    const SharedHeap handle = first.Handle();
    zt::Heap second(std::move(first));
    EXPECT_EQ(second.Handle(), handle);
    zt::Heap third;
    const SharedHeap replaced = third.Handle();
    third = std::move(second);
    EXPECT_EQ(third.Handle(), handle);
    EXPECT_TRUE(SharedHeapIsAlive(handle));
    EXPECT_FALSE(SharedHeapIsAlive(replaced));
}

TEST_F(CppWrapper, HeapEndsWithItsOwner)
{
    SharedHeap handle;
    {
        const zt::Heap heap;
        handle = heap.Handle();
        EXPECT_TRUE(SharedHeapIsAlive(handle));
    }
    EXPECT_FALSE(SharedHeapIsAlive(handle));
}

TEST_F(CppWrapper, CreatesAControlAsItsSetupSays)
{
    const zt::Edit edit = Make(zt::Setup::Date("MM/DD/YYYY").Modern().Initial("2026-11-21"));
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit.Window(), GetDlgItem(form_, kId));
    EXPECT_EQ(edit.GetType(), zt::Type::Date);
    EXPECT_EQ(edit.Shown(), "11/21/2026");
    EXPECT_EQ(edit.GetState(), zt::State::Complete);
    EXPECT_TRUE(edit.SetModern(false));
    EXPECT_FALSE(edit.SetModern(true));
}

TEST_F(CppWrapper, IsNoControlWithoutAWindow)
{
    const zt::Edit none;
    EXPECT_FALSE(none);
    EXPECT_EQ(none.GetState(), zt::State::NoControl);
    EXPECT_FALSE(none.Get<zt::Date>() || none.Get<double>() || none.Get<std::string>());
    EXPECT_EQ(none.TrySet(5.0), zt::Reason::DoesNotFit);
    EXPECT_EQ(none.Shown(), "");
    EXPECT_FALSE(zt::Edit::Attach(heap_, zt::Setup::Date(), form_, 999));
    EXPECT_FALSE(zt::Edit::Subclass(heap_, zt::Setup::Date(), nullptr));
}

TEST_F(CppWrapper, AttachesToAnItemThatIsThere)
{
    const HWND item = MakeWindow(ZTEDIT_CLASS);
    const zt::Edit edit = zt::Edit::Attach(heap_, zt::Setup::Number("#,##0.00").Initial("1234.5"), form_, kId);
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit.Window(), item);
    EXPECT_EQ(edit.Shown(), "1,234.50");
    EXPECT_EQ(zt::Edit::Of(heap_, item).Get<double>(), 1234.5);
}

TEST_F(CppWrapper, SubclassesAStandardEdit)
{
    const HWND item = MakeWindow("edit");
    const LONG_PTR before = GetWindowLongPtrA(item, GWLP_WNDPROC);
    zt::Heap gone;
    {
        const zt::Heap taken(std::move(gone));
    }
    EXPECT_FALSE(zt::Edit::Subclass(gone, zt::Setup::Date("MM/DD/YY"), item)) << "without a heap";
    EXPECT_EQ(GetWindowLongPtrA(item, GWLP_WNDPROC), before) << "a refused edit is as it was";
    const zt::Edit edit = zt::Edit::Subclass(heap_, zt::Setup::Date("MM/DD/YY").Initial("1995-07-04"), item);
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit.Shown(), "07/04/95");
}

TEST_F(CppWrapper, GivesEveryTypeAndLeavesNothingBehind)
{
    const zt::Edit date = Make(zt::Setup::Date("MM/DD/YYYY").Modern().Initial("2026-11-21"));
    const zt::Edit time = Make(zt::Setup::Time("HH:MM:SS:FFFFFF").Modern().Initial("14:07:09:000250"));
    const zt::Edit both = Make(zt::Setup::DateTime("YYYY-MM-DD HH:MM").Modern().Initial("1995-07-04 14:07"));
    const zt::Edit number = Make(zt::Setup::Number("#,##0.00").Modern().Initial("-1234.5"));
    const zt::Edit decimal = Make(zt::Setup::Decimal("#,##0.0000").Modern().Initial("1234567.8901"));
    const zt::Edit phone = Make(zt::Setup::String("(###) ###-####").Modern().Initial("5551234567"));
    const uint32_t blocks = heap_.BlockCount();

    EXPECT_EQ(date.Get<zt::Date>(), (zt::Date{2026, 11, 21}));
    EXPECT_EQ(time.Get<zt::Time>(), (zt::Time{14, 7, 9, 250}));
    EXPECT_EQ(both.Get<zt::DateTime>(), (zt::DateTime{
                                            {1995, 7, 4},
                                            { 14,   7, 0, 0}
    }));
    EXPECT_EQ(both.Get<zt::Date>(), (zt::Date{1995, 7, 4}));
    EXPECT_EQ(both.Get<zt::Time>(), (zt::Time{14, 7, 0, 0}));
    EXPECT_EQ(number.Get<double>(), -1234.5);
    EXPECT_EQ(number.Get<zt::Decimal>(), zt::Decimal("-1234.50"));
    EXPECT_EQ(decimal.Get<zt::Decimal>(), zt::Decimal("1234567.8901"));
    EXPECT_EQ(decimal.Get<double>(), 1234567.8901);
    EXPECT_EQ(phone.Get<std::string>(), "5551234567");
    EXPECT_EQ(date.Get<std::string>(), "2026-11-21");
    EXPECT_EQ(heap_.BlockCount(), blocks);
}

TEST_F(CppWrapper, GivesNoValueOfAnotherType)
{
    const zt::Edit number = Make(zt::Setup::Number("####").Initial("1995"));
    EXPECT_FALSE(number.Get<zt::Date>() || number.Get<zt::Time>() || number.Get<zt::DateTime>());
    const zt::Edit text = Make(zt::Setup::String().Initial("1995-07-04"));
    EXPECT_FALSE(text.Get<zt::Date>() || text.Get<double>() || text.Get<zt::Decimal>());
    const zt::Edit date = Make(zt::Setup::Date("MM/DD/YYYY").Initial("1995-07-04"));
    EXPECT_FALSE(date.Get<zt::Time>() || date.Get<double>());
    const zt::Edit time = Make(zt::Setup::Time("HH:MM").Initial("14:07"));
    EXPECT_FALSE(time.Get<zt::Date>() || time.Get<zt::DateTime>());
}

TEST_F(CppWrapper, GivesNothingWhereNothingIsShown)
{
    const zt::Edit date = Make(zt::Setup::Date("MM/DD/YYYY").Modern());
    EXPECT_EQ(date.GetState(), zt::State::Empty);
    EXPECT_FALSE(date.Get<zt::Date>());
    EXPECT_EQ(date.Get<std::string>(), "");
    Type(date, "{Home}0230");
    EXPECT_EQ(date.GetState(), zt::State::Incomplete);
    EXPECT_FALSE(date.Get<zt::Date>() || date.Get<std::string>());
    Type(date, "2026");
    EXPECT_EQ(date.GetState(), zt::State::Invalid);
    EXPECT_FALSE(date.Get<zt::Date>() || date.Get<std::string>());
}

TEST_F(CppWrapper, GivesNoNumberOfAnEmptyField)
{
    const zt::Edit decimal = Make(zt::Setup::Decimal("####").Modern());
    Type(decimal, "{Ctrl+A}{Del}");
    EXPECT_EQ(decimal.GetState(), zt::State::Empty);
    EXPECT_FALSE(decimal.Get<zt::Decimal>() || decimal.Get<double>());
    EXPECT_EQ(decimal.TrySet(zt::Decimal()), zt::Reason::None);
    Type(decimal, "{Ctrl+A}7");
    EXPECT_EQ(decimal.Get<zt::Decimal>(), zt::Decimal(7u));
}

TEST_F(CppWrapper, SetsWhatItGives)
{
    const zt::Edit both = Make(zt::Setup::DateTime("YYYY-MM-DD HH:MM:SS:FFFFFF").Modern());
    const zt::DateTime moment = {
        {2026, 2, 3  },
        { 4,   5, 6, 700}
    };
    EXPECT_EQ(both.TrySet(moment), zt::Reason::None);
    EXPECT_EQ(both.Shown(), "2026-02-03 04:05:06:000700");
    EXPECT_EQ(both.Get<zt::DateTime>(), moment);
    EXPECT_EQ(both.TrySet(std::optional<zt::DateTime>()), zt::Reason::None);
    EXPECT_EQ(both.GetState(), zt::State::Empty);
    EXPECT_EQ(both.TrySet(std::optional<zt::DateTime>(moment)), zt::Reason::None);
    EXPECT_EQ(both.Clear(), zt::Reason::None);
    EXPECT_EQ(both.GetState(), zt::State::Empty);

    const zt::Edit time = Make(zt::Setup::Time("HH:MM").Modern());
    EXPECT_EQ(time.TrySet(zt::Time{}), zt::Reason::None);
    EXPECT_EQ(time.Get<zt::Time>(), zt::Time{}) << "midnight is a time";

    const zt::Edit number = Make(zt::Setup::Number("#,##0.00").Modern());
    EXPECT_EQ(number.TrySet(-1234.5), zt::Reason::None);
    EXPECT_EQ(number.Shown(), "-1,234.50");
    EXPECT_EQ(number.TrySet(std::numeric_limits<double>::quiet_NaN()), zt::Reason::DoesNotFit);
    EXPECT_EQ(number.TrySet(zt::Decimal("0.25")), zt::Reason::None);
    EXPECT_EQ(number.Get<double>(), 0.25);
}

TEST_F(CppWrapper, SaysWhyAValueIsNotTaken)
{
    const zt::Edit date = Make(zt::Setup::Date("MM/DD/YYYY").Modern().Initial("1995-07-04"));
    EXPECT_EQ(date.TrySet(zt::Date{2026, 2, 30}), zt::Reason::DoesNotExist);
    EXPECT_EQ(date.TrySet("not a date"), zt::Reason::DoesNotFit);
    EXPECT_EQ(date.TrySet(zt::Date{INT_MIN, INT_MIN, INT_MIN}), zt::Reason::DoesNotFit);
    EXPECT_EQ(date.Get<zt::Date>(), (zt::Date{1995, 7, 4})) << "what is refused changes nothing";
}

TEST_F(CppWrapper, TellsWhetherAMaskFits)
{
    const zt::Edit edit = Make(zt::Setup::Date("MM/DD/YYYY"));
    EXPECT_FALSE(edit.SetMask("no date", zt::Type::Date));
    EXPECT_TRUE(edit.SetMask("HH:MM", zt::Type::Time));
    EXPECT_EQ(edit.GetType(), zt::Type::Time);
}

TEST_F(CppWrapper, TellsWhatIsWrongWithAMask)
{
    const zt::MaskVerdict incomplete = zt::CheckMask("MM/DD", zt::Type::Date);
    EXPECT_EQ(incomplete.fault, zt::MaskFault::FieldMissing);
    EXPECT_EQ(incomplete.position, 5);
    const zt::MaskVerdict good = zt::CheckMask("MM/DD/YYYY", zt::Type::Date);
    EXPECT_EQ(good.fault, zt::MaskFault::Fits);
    EXPECT_EQ(good.position, -1);
}

TEST_F(CppWrapper, TellsWhyItIsNotWhatWasAskedFor)
{
    EXPECT_EQ(Make(zt::Setup::Date("MM/DD/YYYY")).LastProblem(), zt::Problem::None);
    EXPECT_EQ(Make(zt::Setup::Date("MM/DD")).LastProblem(), zt::Problem::Mask);
    zt::Heap gone;
    {
        const zt::Heap taken(std::move(gone));
    }
    const zt::Edit plain = zt::Edit::Create(gone, zt::Setup::Date("MM/DD/YYYY"), form_, kId, {});
    EXPECT_FALSE(plain);
    EXPECT_NE(plain.Window(), nullptr);
    EXPECT_EQ(plain.LastProblem(), zt::Problem::NoHeap);
}

TEST_F(CppWrapper, HearsRefusalsAndStates)
{
    const zt::Edit date = Make(zt::Setup::Date("MM/DD/YYYY").Modern().Autoskip());
    Type(date, "{Home}x");
    ASSERT_EQ(heard_.rejected.size(), 1u);
    EXPECT_EQ(heard_.rejected[0].control, date.Window());
    EXPECT_EQ(heard_.rejected[0].id, kId);
    EXPECT_EQ(heard_.rejected[0].reason, zt::Reason::WrongKind);
    EXPECT_EQ(heard_.rejected[0].position, 0);
    EXPECT_EQ(heard_.rejected[0].character, 'x');
    Type(date, "11212026");
    ASSERT_EQ(heard_.states.size(), 2u);
    EXPECT_EQ(heard_.states[0].was, zt::State::Empty);
    EXPECT_EQ(heard_.states[1].was, zt::State::Incomplete);
    EXPECT_EQ(heard_.states[1].is, zt::State::Complete);
    EXPECT_EQ(heard_.states[1].control, date.Window());
    EXPECT_EQ(heard_.states[1].id, kId);
    ASSERT_EQ(heard_.skips.size(), 1u);
    EXPECT_EQ(heard_.skips[0].control, date.Window());
    EXPECT_EQ(heard_.skips[0].id, kId);
    EXPECT_EQ(heard_.others, 0);
}

TEST_F(CppWrapper, TakesNoOtherControlsNotificationsForItsOwn)
{
    const HWND button = MakeWindow("button");
    NMHDR header = {button, kId, ZTN_REJECTED};
    SendMessageA(form_, WM_NOTIFY, kId, reinterpret_cast<LPARAM>(&header));
    header.code = ZTN_STATECHANGED;
    SendMessageA(form_, WM_NOTIFY, kId, reinterpret_cast<LPARAM>(&header));
    SendMessageA(form_, WM_COMMAND, MAKEWPARAM(kId, ZTN_AUTOSKIP), reinterpret_cast<LPARAM>(button));
    EXPECT_EQ(heard_.others, 2);
    EXPECT_TRUE(heard_.rejected.empty() && heard_.states.empty() && heard_.skips.empty());
}

TEST_F(CppWrapper, SpinsInItsRange)
{
    const zt::Edit edit = Make(zt::Setup::Number("##0").Modern().Spin(3, "1~10").Initial("7"));
    Type(edit, "{Up}{Up}");
    EXPECT_EQ(edit.Get<double>(), 10.0);
    EXPECT_EQ(heard_.rejected.back().reason, zt::Reason::EndOfRange);
    EXPECT_GT(edit.SpinWidth(), 0);
    edit.DestroySpin();
    EXPECT_EQ(GetWindow(edit.Window(), GW_CHILD), nullptr);
    edit.SetSpin(1, "1~20");
    edit.CreateSpin();
    EXPECT_NE(GetWindow(edit.Window(), GW_CHILD), nullptr);
    Type(edit, "{Up}");
    EXPECT_EQ(edit.Get<double>(), 11.0);
}

TEST_F(CppWrapper, ChoosesFromATable)
{
    const zt::CodeTable table =
        zt::CodeTable().Add("Red/pink", "R").Add("Green", "G").Add("none", zt::CodeTable::kNull);
    EXPECT_EQ(table.Text(), "Red//pink\tR/Green\tG/none\tnull!");
    const zt::Edit edit = Make(zt::Setup::String().Modern().Choices(table));
    Type(edit, "r");
    EXPECT_EQ(edit.Shown(), "Red/pink");
    EXPECT_EQ(edit.Get<std::string>(), "R");
    EXPECT_EQ(edit.TrySet("G"), zt::Reason::None);
    EXPECT_EQ(edit.Shown(), "Green");
    EXPECT_EQ(edit.TrySet("blue"), zt::Reason::NoSuchEntry);
}

TEST_F(CppWrapper, DoesNothingOnceItsHeapIsGone)
{
    auto heap = std::make_unique<zt::Heap>();
    const zt::Edit edit = zt::Edit::Create(*heap, zt::Setup::Date("MM/DD/YYYY").Initial("1995-07-04"), form_, kId, {});
    heap.reset();
    EXPECT_FALSE(edit);
    EXPECT_FALSE(edit.Get<zt::Date>());
    EXPECT_EQ(edit.Shown(), "07/04/1995");
}

TEST(CppWrapperDecimal, IsWrittenToTheLastDigit)
{
    for (const char* text :
         {"0", "7", "-7", "0.05", "-0.5", "1234.50", "79228162514264337593543950335", "7.9228162514264337593543950335",
          "-0.0000000000000000000000000001", "18446744073709551616"})
        EXPECT_EQ(zt::Decimal(text).Text(), text);
    EXPECT_EQ(zt::Decimal(4000000000u).Text(), "4000000000");
}

TEST(CppWrapperDecimal, Calculates)
{
    EXPECT_EQ(zt::Decimal("19.90") + zt::Decimal("3.78"), zt::Decimal("23.68"));
    EXPECT_EQ(zt::Decimal("19.90") - zt::Decimal("20"), zt::Decimal("-0.1"));
    EXPECT_EQ(zt::Decimal("1") / zt::Decimal("8"), zt::Decimal("0.125"));
    EXPECT_TRUE(zt::Decimal("1.0") < zt::Decimal("1.01"));
    EXPECT_TRUE(zt::Decimal("1.0") != zt::Decimal("1.01"));
}

TEST(CppWrapperDates, AreInTheOrderOfTheCalendar)
{
    const zt::DateTime moments[] = {
        {{1999, 12, 31}, {23, 59, 59, 999999}},
        {{2000, 1, 1},   {}                  },
        {{2000, 1, 1},   {0, 0, 0, 1}        },
        {{2000, 1, 1},   {0, 0, 1, 0}        },
        {{2000, 1, 2},   {}                  },
        {{2000, 2, 1},   {}                  }
    };
    for (size_t i = 0; i + 1 < std::size(moments); ++i) {
        EXPECT_TRUE(moments[i] < moments[i + 1] && moments[i] != moments[i + 1]) << i;
        EXPECT_FALSE(moments[i + 1] < moments[i] || moments[i] < moments[i]) << i;
    }
}

}  // namespace
