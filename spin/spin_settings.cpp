// The parameters of a spin: range, increment, code table, colour, and the width that its window gets.
#include "spin/spin_settings.h"

#include <cstring>
#include <string>
#include <utility>

#include "core/heap.h"
#include "core/instance.h"
#include "format/number_text.h"
#include "spin/code_table.h"
#include "spin/range_text.h"

namespace zte {

namespace {

void KeepRange(EditInstance& edit, const char* range)
{
    if (char* old = std::exchange(edit.spinRange, nullptr))
        SharedHeapFree(edit.heap, old);
    if (range)
        edit.spinRange = Duplicate(edit, range);
}

// Ends that are not given, or are no numbers, are 0; a maximum of 0 means none.
void SetBounds(EditInstance& edit, const char* range)
{
    const RangeText ends = SplitRange(range);
    edit.spinMin = NumberFromPlainText(ends.minimum.c_str());
    edit.spinMax = NumberFromPlainText(ends.maximum.c_str());
}

}  // namespace

void SetSpin(EditInstance& edit, uint32_t increment, const char* range, const char* codeTable, uint32_t style)
{
    KeepRange(edit, range);
    if (range && !IsDateOrTime(edit.dataType))
        SetBounds(edit, range);
    DestroyCodeTable(edit);
    if (codeTable)
        ParseCodeTable(edit, codeTable);
    edit.spinIncrement = increment == 0 ? 1 : increment;
    SetFlag(edit, CODE_PICKLIST, (style & SPINSTYLE_PICKLIST) != 0);
    SetFlag(edit, CODE_SPIN, (style & SPINSTYLE_CODETABLE) != 0);
}

}  // namespace zte

using namespace zte;

void WINAPI ZTE_SetSpin(HWND hwnd, uint32_t increment, const char* range, const char* codeTable, uint32_t style)
{
    if (EditInstance* edit = GetEditInstance(hwnd))
        SetSpin(*edit, increment, range, codeTable, style);
}

void WINAPI ZTE_SetSpinBkColor(HWND hwnd, COLORREF colour)
{
    if (EditInstance* edit = GetEditInstance(hwnd))
        edit->spinBkColor = colour;
}

// Rounded up to even, unlike the width that ZTE_CreateSpin gives its window; kept.
int16_t WINAPI ZTE_GetSpinWidth(HWND hwnd, const RECT* rect)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 0;
    RECT client{};
    if (rect)
        client = *rect;
    else
        GetClientRect(edit->hwndSpin, &client);
    const int16_t width = SpinWidthForHeight(static_cast<int16_t>(client.bottom - client.top));
    return static_cast<int16_t>(width + (width & 1));
}
