// Services that not every system has.
#include "win32/late_calls.h"

namespace zte {

namespace {

struct DpiCalls {
    UINT(WINAPI* dpiForWindow)(HWND);
    int(WINAPI* metricForDpi)(int, UINT);
};

const DpiCalls& Dpi()
{
    static const HMODULE user = GetModuleHandleA("user32.dll");
    static const DpiCalls calls = {FindFunction<decltype(DpiCalls::dpiForWindow)>(user, "GetDpiForWindow"),
                                   FindFunction<decltype(DpiCalls::metricForDpi)>(user, "GetSystemMetricsForDpi")};
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
    static const StyleCalls calls = {FindFunction<decltype(StyleCalls::open)>(library, "OpenThemeData"),
                                     FindFunction<decltype(StyleCalls::openForDpi)>(library, "OpenThemeDataForDpi"),
                                     FindFunction<decltype(StyleCalls::close)>(library, "CloseThemeData"),
                                     FindFunction<decltype(StyleCalls::draw)>(library, "DrawThemeBackground"),
                                     FindFunction<decltype(StyleCalls::isActive)>(library, "IsThemeActive")};
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

HMODULE SystemLibrary(const char* name)
{
    return LoadLibraryExA(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

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
