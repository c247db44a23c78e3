// The spin as pixels: painted into memory device contexts, of all heights, pressed and unpressed, with and without background.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/spin/spin_test.h"

namespace zttest {
namespace {

constexpr COLORREF kCanvas = RGB(10, 200, 30);  // of no part of a spin
constexpr COLORREF kGrey = RGB(192, 192, 192);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr int kSide = 80;

// A bitmap of one colour to paint on.
class Canvas {
public:
    Canvas() : dc_(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kSide;
        info.bmiHeader.biHeight = -kSide;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        former_ = SelectObject(dc_, bitmap_);
        Clear();
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas()
    {
        SelectObject(dc_, former_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }

    void Clear()
    {
        const RECT all = {0, 0, kSide, kSide};
        const HBRUSH brush = CreateSolidBrush(kCanvas);
        FillRect(dc_, &all, brush);
        DeleteObject(brush);
    }
    HDC Dc() const { return dc_; }
    COLORREF At(int x, int y) const { return GetPixel(dc_, x, y); }
    bool IsUntouchedOutside(const RECT& rect) const
    {
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x)
                if ((x < rect.left || x >= rect.right || y < rect.top || y >= rect.bottom) && At(x, y) != kCanvas)
                    return false;
        return true;
    }

private:
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ former_ = nullptr;
};

int ButtonWidth(int height)
{
    const int scrollBar = GetSystemMetrics(SM_CXVSCROLL);
    const int width = std::clamp(2 * height / 3, 5, std::max(5, scrollBar));
    return width + width % 2;
}

class SpinPaint : public SpinTest {
protected:
    void SetUp() override
    {
        SpinTest::SetUp();
        MakeSpin("###0", DT_NUMBER, nullptr, 1, "5");
    }
    void Paint(const RECT& rect) { ZTE_PaintSpin(Window(), canvas_.Dc(), &rect); }
    void Set(uint32_t bits) { RecordOf(Window())->flags |= bits; }

    Canvas canvas_;
};

class SpinPaintOfHeight : public SpinPaint, public testing::WithParamInterface<int> {};

TEST_P(SpinPaintOfHeight, HasTwoFramedButtonsFlushRight)
{
    const int height = GetParam();
    const RECT rect = {10, 5, 50, 5 + height};
    Paint(rect);
    const int half = height / 2;
    const int left = static_cast<int>(rect.right) - ButtonWidth(height);
    const int right = static_cast<int>(rect.right) - 1;
    const int lower = static_cast<int>(rect.top) + half + height % 2;
    if (half < 6)
        return;  // too low to tell the frame from the arrow; that nothing is harmed has been seen
    for (const int top : {static_cast<int>(rect.top), lower}) {
        EXPECT_EQ(canvas_.At(left, top), kBlack);
        EXPECT_EQ(canvas_.At(right, top), kBlack);
        EXPECT_EQ(canvas_.At(left, top + half - 1), kBlack);
        EXPECT_EQ(canvas_.At(right, top + half - 1), kBlack);
        EXPECT_EQ(canvas_.At(left + 1, top + 1), GetSysColor(COLOR_BTNHIGHLIGHT));
        EXPECT_EQ(canvas_.At(right - 1, top + half - 3), GetSysColor(COLOR_BTNSHADOW));
        EXPECT_EQ(canvas_.At(left + 2, top + 2), kGrey);
    }
    if (height % 2 == 1) {
        EXPECT_EQ(canvas_.At(left, lower - 1), kCanvas);
    }
    EXPECT_TRUE(canvas_.IsUntouchedOutside({left, rect.top, rect.right, rect.bottom}));
}

TEST_P(SpinPaintOfHeight, HasAnArrowOnEachButton)
{
    const int height = GetParam();
    const RECT rect = {10, 5, 50, 5 + height};
    Paint(rect);
    const int half = height / 2;
    const int size = ButtonWidth(height) / 2 / 2;
    const int centre = static_cast<int>(rect.right) - ButtonWidth(height) / 2;
    const int margin = (half - size) / 2;
    EXPECT_EQ(canvas_.At(centre, static_cast<int>(rect.top) + margin), kBlack);
    EXPECT_EQ(canvas_.At(centre, static_cast<int>(rect.top) + margin + size), kBlack);
    EXPECT_EQ(canvas_.At(centre, static_cast<int>(rect.top) + height - margin - 1), kBlack);
    EXPECT_EQ(canvas_.At(centre, static_cast<int>(rect.top) + height - margin - 1 - size), kBlack);
}

INSTANTIATE_TEST_SUITE_P(Pixels, SpinPaintOfHeight, testing::Range(0, 61));

TEST_F(SpinPaint, ATwentyOnePixelSpinStartsItsLowerButtonAtEleven)
{
    Paint({0, 0, 30, 21});
    EXPECT_EQ(canvas_.At(30 - 14, 10), kCanvas);
    EXPECT_EQ(canvas_.At(30 - 14, 11), kBlack);
}

TEST_F(SpinPaint, APressedButtonIsSunkenAndItsArrowMoved)
{
    const RECT rect = {0, 0, 30, 40};
    const int left = 30 - ButtonWidth(40);
    Paint(rect);
    const COLORREF raised = canvas_.At(left + 1, 1);
    Set(zte::SPIN_UP);
    canvas_.Clear();
    Paint(rect);
    EXPECT_EQ(raised, GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas_.At(left + 1, 1), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas_.At(left + 1, 20 + 1), GetSysColor(COLOR_BTNHIGHLIGHT)) << "the lower button is not pressed";
    const int size = ButtonWidth(40) / 2 / 2;
    const int centre = 30 - ButtonWidth(40) / 2;
    const int apex = (20 - size) / 2;
    EXPECT_EQ(canvas_.At(centre + 1, apex + 1), kBlack);
    EXPECT_EQ(canvas_.At(centre, apex), kGrey);
}

TEST_F(SpinPaint, TheBackgroundColourFillsTheRectangle)
{
    ZTE_SetSpinBkColor(Window(), RGB(200, 10, 20));
    Paint({10, 5, 50, 25});
    EXPECT_EQ(canvas_.At(10, 5), RGB(200, 10, 20));
    EXPECT_EQ(canvas_.At(20, 24), RGB(200, 10, 20));
    EXPECT_TRUE(canvas_.IsUntouchedOutside({10, 5, 50, 25}));
}

TEST_F(SpinPaint, ABlackBackgroundLeavesTheCanvas)
{
    ZTE_SetSpinBkColor(Window(), kBlack);
    Paint({10, 5, 50, 25});
    EXPECT_EQ(canvas_.At(10, 5), kCanvas);
}

TEST_F(SpinPaint, TheBorderFlagDrawsTwoLines)
{
    Set(zte::SPIN_BORDER);
    Paint({0, 0, 50, 20});
    EXPECT_EQ(canvas_.At(0, 0), kBlack);
    EXPECT_EQ(canvas_.At(0, 19), kBlack);
    EXPECT_EQ(canvas_.At(0, 10), kCanvas);
}

TEST_F(SpinPaint, PaintedOnceItsArrowsStandOnePixelFurtherLeft)
{
    const RECT rect = {0, 0, 30, 40};
    const int size = ButtonWidth(40) / 2 / 2;
    const int apex = (20 - size) / 2;
    const int centre = 30 - ButtonWidth(40) / 2;
    EXPECT_EQ(ZTE_PaintSpinOnce(&rect, canvas_.Dc()), ButtonWidth(40));
    EXPECT_EQ(canvas_.At(centre - 1, apex), kBlack);
    EXPECT_EQ(canvas_.At(centre, apex), kGrey);
    EXPECT_EQ(canvas_.At(30 - ButtonWidth(40), 0), kBlack);
}

TEST_F(SpinPaint, NoFacesAreLeftInTheRecord)
{
    Paint({0, 0, 30, 40});
    EXPECT_EQ(RecordOf(Window())->spinFaceNormal, nullptr);
    EXPECT_EQ(RecordOf(Window())->spinFacePressed, nullptr);
}

// A process may own 10,000 graphics objects: paints that kept one each would leave none to be had.
TEST_F(SpinPaint, TenThousandPaintsLeaveNoObjectsBehind)
{
    ZTE_SetSpinBkColor(Window(), RGB(1, 2, 3));
    const RECT rect = {0, 0, 20, 20};
    for (int i = 0; i < 10000; ++i)
        ZTE_PaintSpin(Window(), canvas_.Dc(), &rect);
    HGDIOBJ brushes[2000];
    int made = 0;
    for (HGDIOBJ& brush : brushes) {
        brush = CreateSolidBrush(RGB(1, 1, 1));
        made += brush != nullptr;
    }
    for (const HGDIOBJ brush : brushes)
        DeleteObject(brush);
    EXPECT_EQ(made, 2000);
    EXPECT_EQ(GetObjectType(GetCurrentObject(canvas_.Dc(), OBJ_PEN)), static_cast<DWORD>(OBJ_PEN));
}

TEST_F(SpinPaint, WithoutADeviceContextNothingHappens)
{
    const RECT rect = {0, 0, 20, 20};
    ZTE_PaintSpin(Window(), nullptr, &rect);
    ZTE_PaintSpinOnce(&rect, nullptr);
    EXPECT_EQ(ZTE_PaintSpinOnce(nullptr, canvas_.Dc()), 0);
    EXPECT_TRUE(canvas_.IsUntouchedOutside({}));
}

}  // namespace
}  // namespace zttest
