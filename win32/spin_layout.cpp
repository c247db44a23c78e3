// How much room a spin takes, and the text's room beside it.
#include "win32/spin_layout.h"

#include <algorithm>

#include "win32/late_calls.h"
#include "win32/standard_field.h"

namespace zte {

namespace {

// Narrows the formatting rectangle by the width of a spin as high as the control.
void NarrowFormatRect(const EditInstance& edit)
{
    const HWND hwnd = WindowOf(edit);
    RECT rect = ClientOf(hwnd);
    rect.right -= SpinWidthForHeight(edit, static_cast<int16_t>(rect.bottom - rect.top));
    CallBaseEdit(hwnd, EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(&rect));
}

int32_t ScrollBarWidth(const EditInstance& edit)
{
    return edit.editor ? MetricFor(WindowOf(edit), SM_CXVSCROLL) : GetSystemMetrics(SM_CXVSCROLL);
}

uint32_t CaretWidth()
{
    DWORD width = 1;
    SystemParametersInfoA(SPI_GETCARETWIDTH, 0, &width, 0);
    return width;
}

// The spin's width, even, also where it is a pixel narrower: the margin need not change when it is placed anew. And a caret's: the
// one behind the last character stands on the first pixel of the margin.
uint16_t StripOf(const EditInstance& edit)
{
    const bool manyLines = (GetWindowLongA(WindowOf(edit), GWL_STYLE) & ES_MULTILINE) != 0;
    if (!edit.hwndSpin || manyLines)
        return 0;
    return static_cast<uint16_t>(static_cast<uint32_t>(EvenSpinWidth(edit, ClientOf(WindowOf(edit)))) + CaretWidth());
}

// Setting a margin repaints the control, so it is set only when it changes.
void SetStrip(const EditInstance& edit, uint16_t strip)
{
    StandardField& field = FieldOf(edit);
    if (field.stripInMargin == strip)
        return;
    const int32_t margin = std::min(HostMargin(edit) + strip, EC_USEFONTINFO - 1);
    field.stripInMargin = strip;
    field.ToBase(EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, margin));
}

}  // namespace

int16_t SpinWidthForHeight(const EditInstance& edit, int16_t height)
{
    const int32_t width = 2 * height / 3 + 2;
    const int32_t widest = ScrollBarWidth(edit) + 2;
    if (width < 7)
        return 7;
    return static_cast<int16_t>(width > widest ? widest : width);
}

int16_t EvenSpinWidth(const EditInstance& edit, const RECT& rect)
{
    const int16_t width = SpinWidthForHeight(edit, static_cast<int16_t>(rect.bottom - rect.top));
    return static_cast<int16_t>(width + (width & 1));
}

void KeepTextOffSpin(const EditInstance& edit)
{
    if (edit.hwndSpin || Has(edit, HAS_SPIN))
        NarrowFormatRect(edit);
    SetStrip(edit, StripOf(edit));
}

void ShowCaretBesideSpin(const EditInstance& edit)
{
    if (edit.hwndSpin)
        FieldOf(edit).ToBase(EM_SCROLLCARET, 0, 0);
}

void GiveMarginBack(const EditInstance& edit)
{
    SetStrip(edit, 0);
}

uint16_t HostMargin(const EditInstance& edit)
{
    const uint16_t margin = HIWORD(CallBaseEdit(WindowOf(edit), EM_GETMARGINS, 0, 0));
    return static_cast<uint16_t>(margin - std::min(margin, FieldOf(edit).stripInMargin));
}

}  // namespace zte
