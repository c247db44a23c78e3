// The spin of a modern control: its pace while it is held, and its looks.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <set>

#include "tests/support/live/import_patch.h"
#include "tests/support/rows.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

constexpr int kSpinHeight = 20;

// ---- time, as the library sees it

std::vector<UINT> delaysAsked;
DWORD timeTold;
int timersEnded;

UINT_PTR WINAPI NoteTimer(HWND, UINT_PTR id, UINT delay, TIMERPROC)
{
    delaysAsked.push_back(delay);
    return id;
}

BOOL WINAPI EndTimer(HWND, UINT_PTR)
{
    ++timersEnded;
    return TRUE;
}

DWORD WINAPI TellTime()
{
    return timeTold;
}

class ModernSpinWindow : public ModernWindow {
protected:
    void MakeSpin(const char* data, const char* range = nullptr)
    {
        Config config;
        config.mask = kDate;
        config.type = DT_DATE;
        config.data = data;
        config.range = range;
        config.increment = 1;
        config.options = ZTEO_SPIN;
        Make(config);
        SetWindowPos(Window(), nullptr, 0, 0, 150, kSpinHeight, SWP_NOMOVE | SWP_NOZORDER);
        Select(3, 3);
        TakeTold();
    }
    POINT MiddleOf(bool up) const
    {
        RECT client{};
        GetClientRect(Spin(), &client);
        return {client.right / 2, up ? client.bottom / 4 : client.bottom * 3 / 4};
    }
    void Mouse(UINT message, POINT point) const
    {
        SendMessageA(Spin(), message, MK_LBUTTON,
                     MAKELPARAM(static_cast<uint16_t>(point.x), static_cast<uint16_t>(point.y)));
    }
    void PressUp() const { Mouse(WM_LBUTTONDOWN, MiddleOf(true)); }
    void Release() const { Mouse(WM_LBUTTONUP, MiddleOf(true)); }
    void Tick() const { SendMessageA(Spin(), WM_TIMER, 1, 0); }
};

class ModernPace : public ModernSpinWindow {
protected:
    ModernPace()
        : timers_("user32.dll", "SetTimer", reinterpret_cast<void*>(NoteTimer)),
          endings_("user32.dll", "KillTimer", reinterpret_cast<void*>(EndTimer)),
          clock_("kernel32.dll", "GetTickCount", reinterpret_cast<void*>(TellTime))
    {
        delaysAsked.clear();
        timersEnded = 0;
        timeTold = 0xFFFFFF00;  // it goes round while the button is held
    }

    ImportPatch timers_;
    ImportPatch endings_;
    ImportPatch clock_;
};

TEST_F(ModernPace, IsTheKeyboardsAtFirstAndFasterWithTime)
{
    int delay = 0;
    SystemParametersInfoA(SPI_GETKEYBOARDDELAY, 0, &delay, 0);
    MakeSpin("2024-02-10");
    PressUp();
    timeTold += 500;
    Tick();
    timeTold += 1499;
    Tick();
    timeTold += 1;
    Tick();
    EXPECT_EQ(delaysAsked, (std::vector<UINT>{250 * (static_cast<UINT>(delay) + 1), 100, 100, 30}));
    EXPECT_EQ(control_->Text(), "02/14/2024");
    Release();
}

TEST_F(ModernPace, RestsWhileThePointerIsOutside)
{
    MakeSpin("2024-02-26");
    PressUp();
    Mouse(WM_MOUSEMOVE, {-30, -30});
    Tick();
    Tick();
    EXPECT_EQ(control_->Text(), "02/27/2024");
    Mouse(WM_MOUSEMOVE, MiddleOf(true));
    Tick();
    EXPECT_EQ(control_->Text(), "02/28/2024");
    Release();
    Tick();  // one that was under way
    EXPECT_EQ(control_->Text(), "02/28/2024");
}

TEST_F(ModernPace, EndsWhenAnotherWindowTakesTheMouse)
{
    MakeSpin("2024-02-26");
    PressUp();
    EXPECT_EQ(timersEnded, 0);
    SetCapture(parent_.hwnd());
    EXPECT_EQ(timersEnded, 1);
    Tick();
    EXPECT_EQ(control_->Text(), "02/27/2024");
    ReleaseCapture();
}

TEST_F(ModernPace, IsOneStepOfTheHistory)
{
    MakeSpin("2024-02-10");
    PressUp();
    Tick();
    Tick();
    Release();
    PressUp();
    Release();
    EXPECT_EQ(control_->Text(), "02/14/2024");
    Send(WM_UNDO);
    EXPECT_EQ(control_->Text(), "02/13/2024");
    Send(WM_UNDO);
    EXPECT_EQ(control_->Text(), "02/10/2024");
}

TEST_F(ModernPace, ToldOfEachStepOnce)
{
    MakeSpin("2024-02-28", "2024-02-28~2024-02-29");
    PressUp();
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
    Tick();
    EXPECT_EQ(TakeTold(), (Told{"rejected end of the range at 3"}));
    Release();
    EXPECT_EQ(Beeps(), 1);
}

TEST_F(ModernPace, ToldOnceThatTheEndIsReachedWhileItIsHeld)
{
    MakeSpin("2024-02-29", "2024-02-28~2024-02-29");
    const Told end = {"rejected end of the range at 3"};
    PressUp();
    EXPECT_EQ(TakeTold(), end);
    Tick();
    Tick();
    EXPECT_EQ(TakeTold(), Told());
    Release();
    PressUp();
    EXPECT_EQ(TakeTold(), end);
    Release();
    Send(WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(TakeTold(), end);
    Send(WM_KEYDOWN, VK_UP, 0x40000001);
    Send(WM_KEYDOWN, VK_UP, 0x40000001);
    EXPECT_EQ(TakeTold(), Told());
    Send(WM_KEYDOWN, VK_DOWN, 0x40000001);
    EXPECT_EQ(TakeTold(), (Told{"update", "change"}));
    Send(WM_KEYDOWN, VK_UP, 0x40000001);
    TakeTold();
    Send(WM_KEYDOWN, VK_UP, 0x40000001);
    EXPECT_EQ(TakeTold(), end);
    EXPECT_EQ(Beeps(), 4);
}

// ---- size

// The width of the system's scroll bars while it lives: what a spin is never wider than.
class ScrollBars {
public:
    explicit ScrollBars(int width)
    {
        metrics_.cbSize = sizeof metrics_;
        SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics_, &metrics_, 0);
        NONCLIENTMETRICSA wide = metrics_;
        wide.iScrollWidth = width;
        SystemParametersInfoA(SPI_SETNONCLIENTMETRICS, sizeof wide, &wide, 0);
    }
    ScrollBars(const ScrollBars&) = delete;
    ScrollBars& operator=(const ScrollBars&) = delete;
    ~ScrollBars() { SystemParametersInfoA(SPI_SETNONCLIENTMETRICS, sizeof metrics_, &metrics_, 0); }

private:
    NONCLIENTMETRICSA metrics_{};
};

class ModernSize : public ModernSpinWindow {
protected:
    LONG Width() const
    {
        RECT client{};
        GetClientRect(Spin(), &client);
        return client.right;
    }
    LONG RightEdge() const
    {
        RECT spin{};
        GetWindowRect(Spin(), &spin);
        MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&spin), 2);
        return spin.right;
    }
    LONG FieldsRightEdge() const
    {
        RECT client{};
        GetClientRect(Window(), &client);
        return client.right;
    }
    LONG TextsRightEdge() const
    {
        RECT rect{};
        Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
        return rect.right;
    }
};

// What a form on a screen of other dots per inch tells its controls, behind the metrics of that screen.
TEST_F(ModernSize, FollowsAChangedScreen)
{
    MakeSpin("2024-02-26");
    SetWindowPos(Window(), nullptr, 0, 0, 300, 80, SWP_NOMOVE | SWP_NOZORDER);
    const LONG before = Width();
    const ScrollBars bars(static_cast<int>(before) + 20);
    EXPECT_EQ(Width(), before);
    Send(WM_DPICHANGED_AFTERPARENT);
    EXPECT_EQ(Width(), (before + 20 + 2 + 1) / 2 * 2);
    EXPECT_EQ(RightEdge(), FieldsRightEdge());
    EXPECT_LE(TextsRightEdge(), FieldsRightEdge() - Width());
}

TEST_F(ModernSize, OfAClassicSpinIsLeftAlone)
{
    MakeSpin("2024-02-26");
    ZTE_SetModern(Window(), 0);
    SetWindowPos(Window(), nullptr, 0, 0, 300, 80, SWP_NOMOVE | SWP_NOZORDER);
    const LONG before = Width();
    const ScrollBars bars(static_cast<int>(before) + 20);
    Send(WM_DPICHANGED_AFTERPARENT);
    EXPECT_EQ(Width(), before);
}

// ---- looks

class Picture {
public:
    Picture(int width, int height) : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)), former_(nullptr)
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        former_ = SelectObject(dc_, bitmap_);
        pixels_ = static_cast<uint32_t*>(bits);
        std::fill(pixels_, pixels_ + width * height, kPaper);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    ~Picture()
    {
        SelectObject(dc_, former_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }
    HDC dc() const { return dc_; }
    std::vector<uint32_t> Pixels() const
    {
        GdiFlush();
        std::vector<uint32_t> pixels(pixels_, pixels_ + width_ * height_);
        for (uint32_t& pixel : pixels)
            pixel &= 0xFFFFFF;
        return pixels;
    }

    // For a look at it, where a folder is named.
    void Keep(const std::string& name) const
    {
        const char* folder = std::getenv("ZT_SPIN_PICTURES");
        FILE* file = folder ? std::fopen((std::string(folder) + "/" + name + ".bmp").c_str(), "wb") : nullptr;
        if (!file)
            return;
        const auto size = static_cast<uint32_t>(width_ * height_ * 4);
        BITMAPFILEHEADER header = {0x4D42, static_cast<DWORD>(54 + size), 0, 0, 54};
        BITMAPINFOHEADER info = {sizeof info, width_, -height_, 1, 32, BI_RGB, size, 0, 0, 0, 0};
        std::fwrite(&header, sizeof header, 1, file);
        std::fwrite(&info, sizeof info, 1, file);
        std::fwrite(pixels_, 1, size, file);
        std::fclose(file);
    }

    static constexpr uint32_t kPaper = 0x12C834;  // of no part of a spin

private:
    int width_;
    int height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ former_;
    uint32_t* pixels_;
};

struct StyleCase {
    const char* name;
    bool themed;
};
void PrintTo(const StyleCase& row, std::ostream* out)
{
    *out << row.name;
}

class ModernLooks : public ModernSpinWindow, public OfRow<StyleCase> {
protected:
    void MakeStyled()
    {
        MakeSpin("2024-02-26");
        if (GetParam().themed)
            return;
        const HMODULE library = LoadLibraryA("uxtheme.dll");
        const auto set = reinterpret_cast<HRESULT(WINAPI*)(HWND, LPCWSTR, LPCWSTR)>(
            reinterpret_cast<void*>(GetProcAddress(library, "SetWindowTheme")));
        ASSERT_NE(set, nullptr);
        set(Spin(), L" ", L" ");
    }

    std::vector<uint32_t> Paint(const std::string& state, int height = kSpinHeight)
    {
        const int width = (2 * height / 3 + 2 + 1) & ~1;
        const Picture picture(width, height);
        const RECT rect = {0, 0, width, height};
        ZTE_PaintSpin(Window(), picture.dc(), &rect);
        picture.Keep(std::string(GetParam().name) + "-" + state + "-" + std::to_string(height));
        return picture.Pixels();
    }
};

ROW_TEST(ModernLooks, DifferInEachState)
{
    MakeStyled();
    std::set<std::vector<uint32_t>> pictures;
    pictures.insert(Paint("normal"));
    PressUp();
    pictures.insert(Paint("pressed"));
    Release();
    EXPECT_EQ(pictures.size(), 2u);
    Send(EM_SETREADONLY, TRUE);
    pictures.insert(Paint("disabled"));
    EXPECT_EQ(pictures.size(), 3u);
    Send(EM_SETREADONLY, FALSE);
    Mouse(WM_MOUSEMOVE, MiddleOf(false));
    EXPECT_TRUE(!GetParam().themed || pictures.count(Paint("hot")) == 0);
    SendMessageA(Spin(), WM_MOUSELEAVE, 0, 0);
    EXPECT_EQ(pictures.count(Paint("normal")), 1u);
    EnableWindow(Window(), FALSE);
    EXPECT_EQ(pictures.count(Paint("disabled")), 1u);
    EXPECT_EQ(pictures.size(), 3u);
}

// At the heights that a field of 20 pixels has at 96, 120, 144 and 192 dots per inch, and a very low one.
ROW_TEST(ModernLooks, FillTheSpinAtEverySizeInEveryState)
{
    MakeStyled();
    const auto look = [&](const char* state) {
        for (const int height : {20, 25, 30, 40, 9}) {
            const std::vector<uint32_t> pixels = Paint(state, height);
            EXPECT_EQ(std::count(pixels.begin(), pixels.end(), Picture::kPaper), 0) << state << height;
            EXPECT_GE(std::set<uint32_t>(pixels.begin(), pixels.end()).size(), 3u) << state << height;
        }
    };
    look("normal");
    PressUp();
    look("pressed");
    Release();
    Mouse(WM_MOUSEMOVE, MiddleOf(false));
    look("hot");
    SendMessageA(Spin(), WM_MOUSELEAVE, 0, 0);
    Send(EM_SETREADONLY, TRUE);
    look("disabled");
}

BOOL WINAPI TellOfHighContrast(UINT action, UINT parameter, void* result, UINT)
{
    if (action != SPI_GETHIGHCONTRAST)
        return SystemParametersInfoW(action, parameter, result, 0);
    static_cast<HIGHCONTRASTA*>(result)->dwFlags = HCF_HIGHCONTRASTON;
    return TRUE;
}

// A colour of the system while it lives.
class SystemColour {
public:
    SystemColour(int index, COLORREF colour) : index_(index), former_(GetSysColor(index))
    {
        SetSysColors(1, &index, &colour);
    }
    SystemColour(const SystemColour&) = delete;
    SystemColour& operator=(const SystemColour&) = delete;
    ~SystemColour() { SetSysColors(1, &index_, &former_); }

private:
    int index_;
    COLORREF former_;
};

ROW_TEST(ModernLooks, AreTheSystemsColoursInHighContrast)
{
    MakeStyled();
    const std::vector<uint32_t> usual = Paint("normal");
    const ImportPatch contrast("user32.dll", "SystemParametersInfoA", reinterpret_cast<void*>(TellOfHighContrast));
    const std::vector<uint32_t> plain = Paint("contrast");
    EXPECT_EQ(plain == usual, !GetParam().themed);
    const SystemColour face(COLOR_BTNFACE, RGB(0x00, 0x00, 0x01));
    const SystemColour arrow(COLOR_BTNTEXT, RGB(0xFF, 0xFF, 0x02));
    const std::vector<uint32_t> dark = Paint("contrast-dark");
    EXPECT_GT(std::count(dark.begin(), dark.end(), 0x000001u), 20);
    EXPECT_GT(std::count(dark.begin(), dark.end(), 0xFFFF02u), 4);
}

ROW_TEST(ModernLooks, AreAskedForAgainWhereTheyChange)
{
    MakeStyled();
    ShowWindow(parent_.hwnd(), SW_SHOWNA);
    DrainMessages();
    const auto isInvalid = [&] {
        const bool invalid = GetUpdateRect(Spin(), nullptr, FALSE) != 0;
        ValidateRect(Spin(), nullptr);
        return invalid;
    };
    ValidateRect(Spin(), nullptr);
    EXPECT_FALSE(isInvalid());
    Mouse(WM_MOUSEMOVE, MiddleOf(true));
    EXPECT_TRUE(isInvalid());
    Mouse(WM_MOUSEMOVE, MiddleOf(true));
    EXPECT_FALSE(isInvalid());
    Mouse(WM_MOUSEMOVE, MiddleOf(false));
    EXPECT_TRUE(isInvalid());
    SendMessageA(Spin(), WM_MOUSELEAVE, 0, 0);
    EXPECT_TRUE(isInvalid());
    Send(EM_SETREADONLY, TRUE);
    EXPECT_TRUE(isInvalid());
    Send(WM_THEMECHANGED);
    EXPECT_TRUE(isInvalid());
    ZTE_SetModern(Window(), 0);
    EXPECT_TRUE(isInvalid());
}

constexpr StyleCase kSpinStyles[] = {
    {"Themed",   true },
    {"Unthemed", false},
};
TEST_ROWS(Rows, ModernLooks, kSpinStyles);

}  // namespace
}  // namespace zttest
