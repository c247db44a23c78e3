// Where a control places its spin, and how much of its width it keeps free of text.
#include <gtest/gtest.h>

#include <vector>

#include "tests/support/live/base_recorder.h"
#include "tests/support/live/window_test.h"

namespace zttest {
namespace {

class SpinPlacement : public WindowTest {
protected:
    HWND MakeWithSpin(int height, Creation creation = Creation::ByClass)
    {
        Config config;
        config.mask = "####";
        config.type = DT_NUMBER;
        config.options = ZTEO_SPIN;
        config.style = WS_CHILD | ES_AUTOHSCROLL;
        config.height = height;
        Make(config, creation);
        return GetWindow(Window(), GW_CHILD);
    }
    RECT Client() const
    {
        RECT client;
        GetClientRect(Window(), &client);
        return client;
    }
    // Of the spin, in the control's client coordinates.
    RECT PlaceOf(HWND spin) const
    {
        RECT place;
        GetWindowRect(spin, &place);
        MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    static bool IsShown(HWND spin) { return (GetWindowLongPtrA(spin, GWL_STYLE) & WS_VISIBLE) != 0; }
};

TEST_F(SpinPlacement, TheSpinIsAnInvisibleChildOfTheSpinClassUntilASizeOrPaintComes)
{
    const HWND spin = MakeWithSpin(24, Creation::ByInit);
    ASSERT_NE(spin, nullptr);
    char name[20];
    GetClassNameA(spin, name, sizeof name);
    EXPECT_STREQ(name, "spin");
    EXPECT_EQ(GetParent(spin), Window());
    EXPECT_FALSE(IsShown(spin));
}

TEST_F(SpinPlacement, WithoutTheOptionThereIsNoSpin)
{
    Given("####", DT_NUMBER, "12|", ZTEO_AUTOSKIP);
    EXPECT_EQ(GetWindow(Window(), GW_CHILD), nullptr);
}

TEST_F(SpinPlacement, ResizingPlacesItAtTheRightEdge)
{
    const HWND spin = MakeWithSpin(24);
    SetWindowPos(Window(), nullptr, 0, 0, 180, 30, SWP_NOMOVE | SWP_NOZORDER);
    RECT client = Client();
    const int width = ZTE_GetSpinWidth(Window(), &client);
    const RECT place = PlaceOf(spin);
    EXPECT_EQ(place.left, client.right - width);
    EXPECT_EQ(place.right, client.right);
    EXPECT_EQ(place.top, client.top);
    EXPECT_EQ(place.bottom, client.bottom);
    EXPECT_TRUE(IsShown(spin));
}

TEST_F(SpinPlacement, ResizingToNothingLeavesItWhereItIs)
{
    const HWND spin = MakeWithSpin(24);
    SetWindowPos(Window(), nullptr, 0, 0, 180, 30, SWP_NOMOVE | SWP_NOZORDER);
    const RECT before = PlaceOf(spin);
    SetWindowPos(Window(), nullptr, 0, 0, 0, 30, SWP_NOMOVE | SWP_NOZORDER);
    const RECT after = PlaceOf(spin);
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(SpinPlacement, PaintingShowsIt)
{
    const HWND spin = MakeWithSpin(24, Creation::ByInit);
    SendMessageA(Window(), WM_PAINT, 0, 0);
    EXPECT_TRUE(IsShown(spin));
}

TEST_F(SpinPlacement, ItGoesWithTheControl)
{
    const HWND spin = MakeWithSpin(24);
    control_.reset();
    EXPECT_FALSE(IsWindow(spin));
}

TEST_F(SpinPlacement, CodeOptionsWithoutTheSpinOptionMakeNoCodeTable)
{
    Config config;
    config.mask = "";
    config.type = DT_STRING;
    config.options = ZTEO_CODE_DISPLAY;
    config.codes = "Red\tR/Green\tG";
    Make(config);
    ZTE_FmtSetDataString(Window(), "R");
    EXPECT_EQ(Text(), "");
}

class FormatRect : public SpinPlacement {
protected:
    // How much of the client width the library keeps free of text.
    int ReserveAtHeight(int height)
    {
        MakeWithSpin(height);
        recorder_.Forget();
        ZTE_UtilSetFormatRect(Window());
        const std::vector<BaseMessage> set = recorder_.Of(EM_SETRECTNP);
        EXPECT_EQ(set.size(), 1u);
        return set.empty() ? -1 : static_cast<int>(Client().right - set[0].rect.right);
    }

    BaseRecorder recorder_;
};

TEST_F(FormatRect, OfALowControlReservesSevenPixels)
{
    EXPECT_EQ(ReserveAtHeight(6), 7);
}

TEST_F(FormatRect, OfAnOrdinaryControlReservesTwoThirdsOfTheHeight)
{
    EXPECT_EQ(ReserveAtHeight(15), 2 * 15 / 3 + 2);
}

TEST_F(FormatRect, OfATallControlReservesAScrollBar)
{
    EXPECT_EQ(ReserveAtHeight(200), GetSystemMetrics(SM_CXVSCROLL) + 2);
}

TEST_F(FormatRect, WithoutASpinIsLeftAlone)
{
    Given("####", DT_NUMBER, "12|");
    recorder_.Forget();
    ZTE_UtilSetFormatRect(Window());
    EXPECT_TRUE(recorder_.Of(EM_SETRECTNP).empty());
}

TEST_F(FormatRect, IsSetAgainWhenDataIsSet)
{
    MakeWithSpin(15);
    recorder_.Forget();
    ZTE_FmtSetDataString(Window(), "12");
    EXPECT_EQ(recorder_.Of(EM_SETRECTNP).size(), 2u);  // before the text and after it
}

}  // namespace
}  // namespace zttest
