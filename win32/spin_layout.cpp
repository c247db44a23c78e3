// How much room a spin takes, and the text's room beside it.
#include "win32/spin_layout.h"

#include "win32/standard_field.h"

namespace zte {

int16_t SpinWidthForHeight(int16_t height)
{
    const int32_t width = 2 * height / 3 + 2;
    const int32_t widest = GetSystemMetrics(SM_CXVSCROLL) + 2;
    if (width < 7)
        return 7;
    return static_cast<int16_t>(width > widest ? widest : width);
}

int16_t EvenSpinWidth(const RECT& rect)
{
    const int16_t width = SpinWidthForHeight(static_cast<int16_t>(rect.bottom - rect.top));
    return static_cast<int16_t>(width + (width & 1));
}

void NarrowFormatRect(HWND hwnd)
{
    RECT rect = ClientOf(hwnd);
    rect.right -= SpinWidthForHeight(static_cast<int16_t>(rect.bottom - rect.top));
    CallBaseEdit(hwnd, EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(&rect));
}

void KeepTextOffSpin(const EditInstance& edit)
{
    if (edit.hwndSpin || Has(edit, HAS_SPIN))
        NarrowFormatRect(WindowOf(edit));
}

}  // namespace zte
