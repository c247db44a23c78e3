// The spin as pixels: whole pictures on memory device contexts, of all heights, pressed and unpressed, on any
// background.
#include <gtest/gtest.h>

#include <initializer_list>

#include "tests/support/live/spin_window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr COLORREF kPaper = RGB(10, 200, 30);  // of no part of a spin
constexpr COLORREF kGrey = RGB(192, 192, 192);
constexpr COLORREF kBlack = RGB(0, 0, 0);

// A picture in memory, all paper at first.
class Canvas {
public:
    Canvas(int width, int height) : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        former_ = SelectObject(dc_, bitmap_);
        pixels_ = static_cast<const uint32_t*>(bits);
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
        const HBRUSH paper = CreateSolidBrush(kPaper);
        const RECT all = {0, 0, width_, height_};
        FillRect(dc_, &all, paper);
        DeleteObject(paper);
    }
    HDC dc() const { return dc_; }
    int width() const { return width_; }
    int height() const { return height_; }
    COLORREF At(int x, int y) const
    {
        GdiFlush();
        const uint32_t pixel = pixels_[y * width_ + x];
        return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
    }

private:
    int width_;
    int height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ former_;
    const uint32_t* pixels_;
};

struct Point {
    int x;
    int y;
};

// The same picture drawn by hand into a plain array: straight lines and filled triangles only.
class Expected {
public:
    Expected(int width, int height)
        : width_(width), height_(height), pixels_(static_cast<size_t>(width * height), kPaper)
    {
    }

    COLORREF At(int x, int y) const { return pixels_[static_cast<size_t>(y * width_ + x)]; }
    void Put(int x, int y, COLORREF colour)
    {
        if (x >= 0 && x < width_ && y >= 0 && y < height_)
            pixels_[static_cast<size_t>(y * width_ + x)] = colour;
    }

    // Up to the last point, which a line does not draw.
    void Line(Point from, Point to, COLORREF colour)
    {
        const int stepX = (to.x > from.x) - (to.x < from.x);
        const int stepY = (to.y > from.y) - (to.y < from.y);
        for (; from.x != to.x || from.y != to.y; from.x += stepX, from.y += stepY)
            Put(from.x, from.y, colour);
    }
    void Lines(std::initializer_list<Point> points, COLORREF colour)
    {
        for (const Point* point = points.begin(); point + 1 < points.end(); ++point)
            Line(point[0], point[1], colour);
    }
    void Fill(int left, int top, int right, int bottom, COLORREF colour)
    {
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                Put(x, y, colour);
    }
    void Fill(const RECT& rect, COLORREF colour)
    {
        Fill(static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
             static_cast<int>(rect.bottom), colour);
    }
    void CopyFrom(const Expected& face, int left, int top)
    {
        for (int y = 0; y < face.height_; ++y)
            for (int x = 0; x < face.width_; ++x)
                Put(left + x, top + y, face.At(x, y));
    }
    // Rows from the apex down (up with direction -1), each two pixels wider than the one before.
    void Arrow(Point apex, int size, int direction)
    {
        for (int row = 0; row <= size; ++row)
            Fill(apex.x - row, apex.y + direction * row, apex.x + row + 1, apex.y + direction * row + 1, kBlack);
    }

private:
    int width_;
    int height_;
    std::vector<COLORREF> pixels_;
};

Expected Face(int width, int height, bool pressed)
{
    const COLORREF highlight = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    Expected face(width, height);
    face.Fill(0, 0, width, height, kBlack);
    face.Fill(1, 1, width - 1, height - 1, kGrey);
    const int right = width - 1;
    const int bottom = height - 1;
    // clang-format off
    if (pressed) {
        face.Lines({{1, bottom}, {1, 1}, {right, 1}}, shadow);
        return face;
    }
    face.Lines({{1, bottom - 1}, {1, 1}, {right - 1, 1}}, highlight);
    face.Lines({{right - 1, 1}, {right - 1, bottom - 1}, {0, bottom - 1}}, shadow);
    face.Lines({{right - 2, 2}, {right - 2, bottom - 2}, {1, bottom - 2}}, shadow);
    // clang-format on
    return face;
}

int ButtonWidth(int height)
{
    int width = 2 * height / 3;
    if (width < 5)
        width = 5;
    else if (width > GetSystemMetrics(SM_CXVSCROLL))
        width = GetSystemMetrics(SM_CXVSCROLL);
    return width + width % 2;
}

enum class Pressed { None, Up, Down };

// A spin in a rectangle of the picture, its arrows moved to the left by some pixels.
void DrawSpin(Expected& picture, const RECT& rect, Pressed pressed, int arrowsLeft = 0)
{
    const int height = static_cast<int>(rect.bottom - rect.top);
    const int right = static_cast<int>(rect.right);
    const int top = static_cast<int>(rect.top);
    const int width = ButtonWidth(height);
    const int half = height / 2;
    picture.CopyFrom(Face(width, half, pressed == Pressed::Up), right - width, top);
    picture.CopyFrom(Face(width, half, pressed == Pressed::Down), right - width, top + half + height % 2);
    const int size = width / 2 / 2;
    const int margin = (half - size) / 2;
    const int centre = right - arrowsLeft - width / 2;
    const int up = pressed == Pressed::Up ? 1 : 0;
    const int down = pressed == Pressed::Down ? 1 : 0;
    picture.Arrow({centre + up, top + margin + up}, size, 1);
    picture.Arrow({centre + down, top + height - margin - 1 + down}, size, -1);
}

// The first pixel that differs, or "".
std::string Difference(const Canvas& canvas, const Expected& picture)
{
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            if (canvas.At(x, y) != picture.At(x, y)) {
                char text[80];
                std::snprintf(text, sizeof text, "at (%d, %d): %06lx instead of %06lx", x, y,
                              static_cast<unsigned long>(canvas.At(x, y)),
                              static_cast<unsigned long>(picture.At(x, y)));
                return text;
            }
    return "";
}

class SpinPaint : public SpinWindowTest {
protected:
    static constexpr int kSide = 80;
    static constexpr RECT RectOfHeight(int height) { return {7, 9, 53, 9 + height}; }

    void SetUp() override { MakeSpin("##0", DT_NUMBER, nullptr, 1, "7"); }
    void SetFlags(uint32_t bits, bool on) { zte::SetFlag(*RecordOf(Window()), bits, on); }
    void Paint(const RECT& rect) { ZTE_PaintSpin(Window(), canvas_.dc(), &rect); }
    Canvas canvas_{kSide, kSide};
};

class SpinOfHeight : public SpinPaint, public OfRow<int> {};

ROW_TEST(SpinOfHeight, IsPaintedUnpressed)
{
    const RECT rect = RectOfHeight(GetParam());
    Paint(rect);
    Expected picture(kSide, kSide);
    DrawSpin(picture, rect, Pressed::None);
    EXPECT_EQ(Difference(canvas_, picture), "");
}

ROW_TEST(SpinOfHeight, IsPaintedWithThePressedArrowSunken)
{
    const RECT rect = RectOfHeight(GetParam());
    for (const Pressed pressed : {Pressed::Up, Pressed::Down}) {
        canvas_.Clear();
        const uint32_t bit = pressed == Pressed::Up ? zte::SPIN_UP : zte::SPIN_DOWN;
        SetFlags(bit, true);
        Paint(rect);
        SetFlags(bit, false);
        Expected picture(kSide, kSide);
        DrawSpin(picture, rect, pressed);
        EXPECT_EQ(Difference(canvas_, picture), "") << (pressed == Pressed::Up ? "up" : "down");
    }
}

ROW_TEST(SpinOfHeight, IsPaintedOnceWithItsArrowsOnePixelFurtherLeft)
{
    const RECT rect = RectOfHeight(GetParam());
    EXPECT_EQ(ZTE_PaintSpinOnce(&rect, canvas_.dc()), ButtonWidth(GetParam()));
    Expected picture(kSide, kSide);
    DrawSpin(picture, rect, Pressed::None, 1);
    EXPECT_EQ(Difference(canvas_, picture), "");
}

ROW_TEST(SpinOfHeight, IsPaintedOnItsBackground)
{
    const COLORREF colour = RGB(0, 128, 200);
    const RECT rect = RectOfHeight(GetParam());
    ZTE_SetSpinBkColor(Window(), colour);
    Paint(rect);
    Expected picture(kSide, kSide);
    picture.Fill(rect, colour);
    DrawSpin(picture, rect, Pressed::None);
    EXPECT_EQ(Difference(canvas_, picture), "");
}

TEST_ROWS(Heights, SpinOfHeight, Integers(0, 61));

// The figures of one spin, worked out by hand: 20 pixels high, buttons 14 wide and 10 high, their left edge at 39.
enum class Part { Paper, Black, Grey, Highlight, Shadow };

COLORREF ColourOf(Part part)
{
    switch (part) {
    case Part::Paper: return kPaper;
    case Part::Black: return kBlack;
    case Part::Grey: return kGrey;
    case Part::Highlight: return GetSysColor(COLOR_BTNHIGHLIGHT);
    case Part::Shadow: break;
    }
    return GetSysColor(COLOR_BTNSHADOW);
}

struct FigureCase {
    const char* name;
    int x;
    int y;
    Part part;
};
void PrintTo(const FigureCase& row, std::ostream* out)
{
    *out << row.name << " at (" << row.x << ", " << row.y << ")";
}

class TwentyPixelSpin : public SpinPaint, public OfRow<FigureCase> {};

ROW_TEST(TwentyPixelSpin, HasItsPartsInTheirPlaces)
{
    ASSERT_GE(GetSystemMetrics(SM_CXVSCROLL), 14) << "a narrower scroll bar bounds the spin";
    Paint(RectOfHeight(20));
    EXPECT_EQ(canvas_.At(GetParam().x, GetParam().y), ColourOf(GetParam().part));
}

constexpr FigureCase kFigures[] = {
    {"LeftOfTheButtons",      38, 9,  Part::Paper    },
    {"RightOfTheButtons",     53, 20, Part::Paper    },
    {"BelowTheButtons",       45, 29, Part::Paper    },
    {"UpperFrameTopLeft",     39, 9,  Part::Black    },
    {"UpperFrameBottomRight", 52, 18, Part::Black    },
    {"LowerFrameTopLeft",     39, 19, Part::Black    },
    {"LowerFrameBottomRight", 52, 28, Part::Black    },
    {"HighlightTopLeft",      40, 10, Part::Highlight},
    {"HighlightTopRight",     50, 10, Part::Highlight},
    {"ShadowTopRight",        51, 10, Part::Shadow   },
    {"ShadowRightInner",      50, 12, Part::Shadow   },
    {"ShadowBottomLeft",      40, 17, Part::Shadow   },
    {"ShadowBottomInner",     42, 16, Part::Shadow   },
    {"Surface",               41, 11, Part::Grey     },
    {"UpperApex",             46, 12, Part::Black    },
    {"UpperBaseLeft",         43, 15, Part::Black    },
    {"UpperBaseRight",        49, 15, Part::Black    },
    {"BesideTheUpperApex",    45, 12, Part::Grey     },
    {"LowerApex",             46, 25, Part::Black    },
    {"LowerBaseLeft",         43, 22, Part::Black    },
    {"LowerBaseRight",        49, 22, Part::Black    },
};
TEST_ROWS(Figures, TwentyPixelSpin, kFigures);

TEST_F(SpinPaint, AnOddHeightLeavesARowBetweenTheButtons)
{
    Paint(RectOfHeight(21));
    EXPECT_EQ(canvas_.At(50, 9 + 9), kBlack);
    EXPECT_EQ(canvas_.At(50, 9 + 10), kPaper);
    EXPECT_EQ(canvas_.At(50, 9 + 11), kBlack);
}

TEST_F(SpinPaint, BlackMeansNoBackground)
{
    ZTE_SetSpinBkColor(Window(), kBlack);
    Paint(RectOfHeight(20));
    EXPECT_EQ(canvas_.At(10, 15), kPaper);
}

TEST_F(SpinPaint, BorderLinesAreDrawnWhenAskedFor)
{
    const RECT rect = RectOfHeight(20);
    SetFlags(zte::SPIN_BORDER, true);
    Paint(rect);
    Expected picture(kSide, kSide);
    DrawSpin(picture, rect, Pressed::None);
    const int right = static_cast<int>(rect.right) - ButtonWidth(20);
    picture.Line({0, 28}, {right, 28}, kBlack);
    picture.Line({0, 0}, {right, 0}, kBlack);
    EXPECT_EQ(Difference(canvas_, picture), "");
}

TEST_F(SpinPaint, WithoutARectangleItIsTheSpinsOwn)
{
    RECT client{};
    GetClientRect(Spin(), &client);
    ZTE_PaintSpin(Window(), canvas_.dc(), nullptr);
    Expected picture(kSide, kSide);
    DrawSpin(picture, client, Pressed::None);
    EXPECT_EQ(Difference(canvas_, picture), "");
}

// A control with its spin on a form that is shown.
class ShownSpin : public testing::Test {
protected:
    ShownSpin()
    {
        ZTE_CreateSpin(Edit());
        ZTE_SetSpin(Edit(), 1, nullptr, nullptr, 0);
        spin_ = GetWindow(Edit(), GW_CHILD);
        PaintAll();
    }

    HWND Edit() const { return control_.hwnd(); }
    HWND Spin() const { return spin_; }
    void PaintAll() const { RedrawWindow(Edit(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

    // What stands on the screen where the spin is, against the picture of an unpressed one; "" when all is as it should be.
    std::string Wrong() const
    {
        RECT client{};
        GetClientRect(spin_, &client);
        const HDC dc = GetDC(spin_);
        const Canvas copy(static_cast<int>(client.right), static_cast<int>(client.bottom));
        BitBlt(copy.dc(), 0, 0, copy.width(), copy.height(), dc, 0, 0, SRCCOPY);
        ReleaseDC(spin_, dc);
        Expected picture(copy.width(), copy.height());
        picture.Fill(client, RGB(255, 255, 255));  // of the window class
        DrawSpin(picture, client, Pressed::None);
        return Difference(copy, picture);
    }

    static Config Number()
    {
        Config config;
        config.mask = "##0";
        config.type = DT_NUMBER;
        return config;
    }

    Form form_{true};
    Control control_{form_.hwnd(), 3, Number()};
    HWND spin_ = nullptr;
};

TEST_F(ShownSpin, ShowsWhatItPaints)
{
    RedrawWindow(Edit(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_EQ(Wrong(), "");
}

void Nothing(HWND, HWND) {}
void TypeADigit(HWND edit, HWND)
{
    SendMessageA(edit, EM_SETSEL, 0, 0);
    SendMessageA(edit, WM_CHAR, '5', 1);
}
void StepUp(HWND edit, HWND)
{
    SendMessageA(edit, WM_KEYDOWN, VK_UP, 1);
    SendMessageA(edit, WM_KEYUP, VK_UP, 1);
}
void GiveAndTakeTheFocus(HWND edit, HWND)
{
    SetFocus(edit);
    SetFocus(GetParent(edit));
}
void SetAText(HWND edit, HWND)
{
    SetWindowTextA(edit, "123");
}
void PressAndRelease(HWND, HWND spin)
{
    SendMessageA(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    UpdateWindow(spin);
    SendMessageA(spin, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
}
void HideIt(HWND edit, HWND spin)
{
    SendMessageA(spin, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(edit, nullptr, TRUE);
}
void PaintItFirst(HWND edit, HWND spin)
{
    InvalidateRect(edit, nullptr, TRUE);
    UpdateWindow(spin);
}
void CoverAndUncoverIt(HWND edit, HWND)
{
    const HWND cover = CreateWindowExA(0, "static", "over it", WS_CHILD | WS_VISIBLE, 0, 0, 400, 200, GetParent(edit),
                                       nullptr, nullptr, nullptr);
    SetWindowPos(cover, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    UpdateWindow(cover);
    DestroyWindow(cover);
}
void Enable(HWND edit, HWND)
{
    EnableWindow(edit, FALSE);
    EnableWindow(edit, TRUE);
}

struct Happening {
    const char* name;
    void (*happen)(HWND edit, HWND spin);
};
constexpr Happening kHappenings[] = {
    {"Nothing",       Nothing            },
    {"ADigit",        TypeADigit         },
    {"AStep",         StepUp             },
    {"TheFocus",      GiveAndTakeTheFocus},
    {"AText",         SetAText           },
    {"APress",        PressAndRelease    },
    {"Hiding",        HideIt             },
    {"ItsOwnPaint",   PaintItFirst       },
    {"AnotherWindow", CoverAndUncoverIt  },
    {"BeingDisabled", Enable             },
};

// A parent that paints the spin inside the notification of a step shows its arrow pressed; after the step it is not.
TEST_F(ShownSpin, IsNotPressedAfterAStepThatWasPaintedMeanwhile)
{
    std::string meanwhile;
    form_.onNotification = [&](const Notification& notification) {
        if (notification.code != EN_CHANGE)
            return;
        InvalidateRect(Spin(), nullptr, TRUE);
        UpdateWindow(Spin());
        meanwhile = Wrong();
    };
    StepUp(Edit(), Spin());
    form_.onNotification = nullptr;
    EXPECT_EQ(control_.Text(), "1");
    EXPECT_NE(meanwhile, "") << "the step was not painted";
    PaintAll();
    EXPECT_EQ(Wrong(), "");
}

// All on one form: showing a window takes the system its time.
TEST_F(ShownSpin, LooksTheSameWhateverHappens)
{
    for (const Happening& row : kHappenings) {
        row.happen(Edit(), Spin());
        PaintAll();
        EXPECT_EQ(Wrong(), "") << row.name;
    }
}

TEST_F(SpinPaint, FacesAreNotKeptBetweenPaints)
{
    Paint(RectOfHeight(20));
    EXPECT_EQ(RecordOf(Window())->spinFaceNormal, nullptr);
    EXPECT_EQ(RecordOf(Window())->spinFacePressed, nullptr);
}

TEST_F(SpinPaint, TheContextKeepsItsObjects)
{
    const RECT rect = RectOfHeight(20);
    const HGDIOBJ pen = GetCurrentObject(canvas_.dc(), OBJ_PEN);
    const HGDIOBJ brush = GetCurrentObject(canvas_.dc(), OBJ_BRUSH);
    const HGDIOBJ bitmap = GetCurrentObject(canvas_.dc(), OBJ_BITMAP);
    ZTE_SetSpinBkColor(Window(), RGB(1, 2, 3));
    Paint(rect);
    ZTE_PaintSpinOnce(&rect, canvas_.dc());
    EXPECT_EQ(GetCurrentObject(canvas_.dc(), OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(canvas_.dc(), OBJ_BRUSH), brush);
    EXPECT_EQ(GetCurrentObject(canvas_.dc(), OBJ_BITMAP), bitmap);
}

// How many graphics objects the process may still create: objects left behind by paints lower the figure one by one.
size_t ObjectsLeft()
{
    std::vector<HGDIOBJ> objects;
    for (HGDIOBJ object = CreatePen(PS_SOLID, 1, RGB(1, 2, 3)); object && objects.size() < 100000;
         object = CreatePen(PS_SOLID, 1, RGB(1, 2, 3)))
        objects.push_back(object);
    for (const HGDIOBJ object : objects)
        DeleteObject(object);
    return objects.size();
}

TEST_F(SpinPaint, TenThousandPaintsLeaveNoObjectBehind)
{
    const RECT rect = RectOfHeight(20);
    ZTE_SetSpinBkColor(Window(), RGB(1, 2, 3));
    Paint(rect);
    const size_t before = ObjectsLeft();
    ASSERT_GT(before, 1000u);
    ASSERT_LT(before, 100000u) << "without a limit nothing is counted";
    for (int i = 0; i < 10000; ++i) {
        SetFlags(zte::SPIN_UP, i % 3 == 0);
        SetFlags(zte::SPIN_DOWN, i % 3 == 1);
        Paint(rect);
        ZTE_PaintSpinOnce(&rect, canvas_.dc());
    }
    SetFlags(zte::SPIN_UP | zte::SPIN_DOWN, false);
    EXPECT_EQ(ObjectsLeft(), before);
}

TEST_F(SpinPaint, TheCountOfObjectsSeesOneLeftBehind)
{
    const size_t before = ObjectsLeft();
    const HGDIOBJ left = CreatePen(PS_SOLID, 1, RGB(3, 2, 1));
    EXPECT_EQ(ObjectsLeft(), before - 1);
    DeleteObject(left);
}

TEST_F(SpinPaint, TheContextKeepsItsColoursAndItsDrawingMode)
{
    const RECT rect = RectOfHeight(20);
    SetDCPenColor(canvas_.dc(), RGB(1, 2, 3));
    SetDCBrushColor(canvas_.dc(), RGB(4, 5, 6));
    SetROP2(canvas_.dc(), R2_NOT);
    ZTE_SetSpinBkColor(Window(), RGB(7, 8, 9));
    Paint(rect);
    ZTE_PaintSpinOnce(&rect, canvas_.dc());
    Paint(RectOfHeight(5));  // a face without room for its edges is clipped
    EXPECT_EQ(GetDCPenColor(canvas_.dc()), RGB(1, 2, 3));
    EXPECT_EQ(GetDCBrushColor(canvas_.dc()), RGB(4, 5, 6));
    EXPECT_EQ(GetROP2(canvas_.dc()), R2_NOT);
    RECT clip{};
    GetClipBox(canvas_.dc(), &clip);
    EXPECT_EQ(clip.bottom, kSide);
}

TEST_F(SpinPaint, IsTheSamePictureInAnyDrawingMode)
{
    const RECT rect = RectOfHeight(20);
    SetROP2(canvas_.dc(), R2_NOT);
    Paint(rect);
    Expected picture(kSide, kSide);
    DrawSpin(picture, rect, Pressed::None);
    EXPECT_EQ(Difference(canvas_, picture), "");
}

TEST_F(SpinPaint, OddRectanglesAndContextsAreHarmless)
{
    const RECT rects[] = {
        {0,    0,     0,      0     },
        {50,   50,    0,      0     },
        {-100, -100,  -50,    -50   },
        {0,    0,     50,     40000 },
        {0,    0,     1,      1     },
        {0,    0,     100000, 70000 },
        {0,    32767, 0,      -32768},
        {0,    5,     10,     4     }
    };
    for (const RECT& rect : rects) {
        Paint(rect);
        ZTE_PaintSpinOnce(&rect, canvas_.dc());
        ZTE_PaintSpin(Window(), nullptr, &rect);
        ZTE_PaintSpinOnce(&rect, nullptr);
    }
    EXPECT_EQ(ZTE_PaintSpinOnce(nullptr, canvas_.dc()), 0);
    canvas_.Clear();
    Paint(RectOfHeight(20));
    Expected picture(kSide, kSide);
    DrawSpin(picture, RectOfHeight(20), Pressed::None);
    EXPECT_EQ(Difference(canvas_, picture), "") << "all is as before";
}

TEST_F(SpinPaint, NoWindowIsNotTheControlWithoutASpinThatWasUsedLast)
{
    Config config;
    config.mask = "MM/DD/YY";
    config.type = DT_DATE;
    Make(config);
    Type("1");
    const RECT rect = RectOfHeight(20);
    ZTE_PaintSpin(nullptr, canvas_.dc(), &rect);
    EXPECT_EQ(Difference(canvas_, Expected(kSide, kSide)), "");
}

TEST_F(SpinPaint, AWindowThatIsNoControlIsNotPainted)
{
    const RECT rect = RectOfHeight(20);
    ZTE_PaintSpin(form_.hwnd(), canvas_.dc(), &rect);
    ZTE_PaintSpin(nullptr, canvas_.dc(), &rect);
    EXPECT_EQ(Difference(canvas_, Expected(kSide, kSide)), "");
}

}  // namespace
}  // namespace zttest
