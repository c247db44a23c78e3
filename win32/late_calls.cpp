// Services that not every system has.
#include "win32/late_calls.h"

namespace zte {

namespace {

// In the system's own folder alone. Never unloaded: its own windows' procedures may be in it.
HMODULE SystemLibrary(const char* name)
{
    return LoadLibraryExA(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

template <typename Function>
Function Find(HMODULE library, const char* name)
{
    return library ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name))) : nullptr;
}

struct DpiCalls {
    UINT(WINAPI* dpiForWindow)(HWND);
    int(WINAPI* metricForDpi)(int, UINT);
};

const DpiCalls& Dpi()
{
    static const HMODULE user = GetModuleHandleA("user32.dll");
    static const DpiCalls calls = {Find<decltype(DpiCalls::dpiForWindow)>(user, "GetDpiForWindow"),
                                   Find<decltype(DpiCalls::metricForDpi)>(user, "GetSystemMetricsForDpi")};
    return calls;
}

struct StyleCalls {
    HANDLE(WINAPI* open)(HWND, LPCWSTR);
    HANDLE(WINAPI* openForDpi)(HWND, LPCWSTR, UINT);
    HRESULT(WINAPI* close)(HANDLE);
    HRESULT(WINAPI* draw)(HANDLE, HDC, int, int, const RECT*, const RECT*);
    BOOL(WINAPI* isActive)();
};

const StyleCalls& Styles()
{
    static const HMODULE library = SystemLibrary("uxtheme.dll");
    static const StyleCalls calls = {Find<decltype(StyleCalls::open)>(library, "OpenThemeData"),
                                     Find<decltype(StyleCalls::openForDpi)>(library, "OpenThemeDataForDpi"),
                                     Find<decltype(StyleCalls::close)>(library, "CloseThemeData"),
                                     Find<decltype(StyleCalls::draw)>(library, "DrawThemeBackground"),
                                     Find<decltype(StyleCalls::isActive)>(library, "IsThemeActive")};
    return calls;
}

bool HasStyles()
{
    const StyleCalls& calls = Styles();
    return calls.open && calls.close && calls.draw && calls.isActive && calls.isActive();
}

HANDLE OpenStyle(HWND hwnd, const wchar_t* parts)
{
    const StyleCalls& calls = Styles();
    return calls.openForDpi ? calls.openForDpi(hwnd, parts, DpiOf(hwnd)) : calls.open(hwnd, parts);
}

}  // namespace

UINT DpiOf(HWND hwnd)
{
    const UINT dpi = Dpi().dpiForWindow ? Dpi().dpiForWindow(hwnd) : 0;
    return dpi != 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

int MetricFor(HWND hwnd, int metric)
{
    return Dpi().metricForDpi ? Dpi().metricForDpi(metric, DpiOf(hwnd)) : GetSystemMetrics(metric);
}

bool IsHighContrast()
{
    HIGHCONTRASTA contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0 &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

VisualStyle::VisualStyle(HWND hwnd, const wchar_t* parts)
    : theme_(parts && HasStyles() ? OpenStyle(hwnd, parts) : nullptr)
{
}

VisualStyle::~VisualStyle()
{
    if (theme_)
        Styles().close(theme_);
}

void VisualStyle::Draw(HDC dc, int part, int state, const RECT& rect) const
{
    Styles().draw(theme_, dc, part, state, &rect, nullptr);
}

}  // namespace zte
