// Services that not every system has: looked up when they are first wanted, not imported.
#pragma once

#include <windows.h>

namespace zte {

// A library of the system's own folder, never unloaded; null when there is none.
HMODULE SystemLibrary(const char* name);

template <typename Function>
Function FindFunction(HMODULE library, const char* name)
{
    return library ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name))) : nullptr;
}

// Dots per inch of a window, as its thread sees it.
UINT DpiOf(HWND hwnd);

// A measure of the system, as it is at a window's dots per inch.
int MetricFor(HWND hwnd, int metric);

// Whether the user has asked for high contrast.
bool IsHighContrast();

// The visual style's parts of a name, for a window, where there is a style; null for none. Closed at the end.
class VisualStyle {
public:
    VisualStyle(HWND hwnd, const wchar_t* parts);
    VisualStyle(const VisualStyle&) = delete;
    VisualStyle& operator=(const VisualStyle&) = delete;
    ~VisualStyle();

    explicit operator bool() const { return theme_ != nullptr; }
    void Draw(HDC dc, int part, int state, const RECT& rect) const;

private:
    HANDLE theme_;
};

}  // namespace zte
