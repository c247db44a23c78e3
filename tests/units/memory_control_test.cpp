// A masked edit in memory: what a setup that names nothing means, and the routing around the engine.
#include "engine/memory_control.h"

#include <gtest/gtest.h>

#include "engine/edit/keyboard.h"

namespace zttest {
namespace {

using namespace zte;

class ControlInMemory : public testing::Test {
protected:
    MemoryControl& Make(const ControlSetup& setup)
    {
        control_ = std::make_unique<MemoryControl>(setup, settings_, nullptr);
        return *control_;
    }
    MemoryControl& MakeMasked(const char* mask)
    {
        mask_ = FromAscii(mask);
        ControlSetup setup;
        setup.mask = mask_.c_str();
        return Make(setup);
    }

    Settings settings_ = StandardSettings();
    Text mask_;
    std::unique_ptr<MemoryControl> control_;
};

// Typing has carried the caret over literals, and has spelled some: told in the record.
void Pass(EditInstance& record)
{
    record.carriedTo = 3;
    record.spelled = 1;
}

void ExpectNothingPassed(const EditInstance& record)
{
    EXPECT_EQ(record.carriedTo, 0);
    EXPECT_EQ(record.spelled, 0);
}

TEST_F(ControlInMemory, IsAPlainStringUnlessToldOtherwise)
{
    const EditInstance& record = Make({}).Record();
    EXPECT_EQ(record.dataType, DT_STRING);
    EXPECT_FALSE(HasMask(record));
    EXPECT_FALSE(Has(record, AUTOSKIP | HAS_SPIN | CODE_SPIN | CODE_PICKLIST));
    EXPECT_EQ(record.hwndSpin, nullptr);
}

TEST_F(ControlInMemory, ASpinStepsByOneUnlessToldOtherwise)
{
    ControlSetup setup;
    setup.options = ZTEO_SPIN;
    EXPECT_EQ(Make(setup).Record().spinIncrement, 1u);
}

TEST_F(ControlInMemory, AKeyComingUpEndsItsDeletion)
{
    MemoryControl& control = MakeMasked("####");
    control.Record().deletePending = 1;
    control.KeyUp(KEY_DELETE);
    EXPECT_EQ(control.Record().deletePending, 0u);
}

TEST_F(ControlInMemory, WhatAProgramDoesEndsWhatTypingHasPassed)
{
    MemoryControl& control = MakeMasked("(##) ##");
    EditInstance& record = control.Record();
    Pass(record);
    control.SetText(FromAscii("(12) 34").c_str());
    ExpectNothingPassed(record);
    EXPECT_EQ(control.Edit().Shown(), FromAscii("(12) 34"));
    Pass(record);
    control.Select(5, 6);
    ExpectNothingPassed(record);
    Pass(record);
    control.Replace(FromAscii("9").c_str(), true);
    ExpectNothingPassed(record);
    EXPECT_EQ(control.Edit().Shown(), FromAscii("(12) 94"));
}

TEST_F(ControlInMemory, AClickEndsWhatTypingHasPassed)
{
    MemoryControl& control = MakeMasked("(##) ##");
    Pass(control.Record());
    control.Click(1);
    ExpectNothingPassed(control.Record());
}

TEST_F(ControlInMemory, ASpinDestroyedIsThereNoMore)
{
    ControlSetup setup;
    setup.options = ZTEO_SPIN;
    MemoryControl& control = Make(setup);
    EXPECT_NE(control.Record().hwndSpin, nullptr);
    control.DestroySpin();
    EXPECT_EQ(control.Record().hwndSpin, nullptr);
}

TEST_F(ControlInMemory, AnArrowIsReleasedAfterItsStep)
{
    ControlSetup setup;
    setup.options = ZTEO_SPIN;
    MemoryControl& control = Make(setup);
    for (const bool up : {true, false}) {
        control.Step(up);
        EXPECT_FALSE(Has(control.Record(), SPIN_UP | SPIN_DOWN)) << up;
    }
}

}  // namespace
}  // namespace zttest
