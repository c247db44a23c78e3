// The spin of a modern control: by the visual style where there is one, else by the system's own drawing in its colours.
#include "win32/native_spin.h"

#include "win32/late_calls.h"
#include "win32/standard_field.h"

namespace zte {

namespace {

// The visual style's numbers of the states; those of both arrows are the same.
enum class Look : int { Normal = 1, Hot = 2, Pressed = 3, Disabled = 4 };

struct Arrow {
    uint32_t flag;
    int part;       // of the visual style
    UINT drawing;   // of DrawFrameControl
    int firstHalf;  // where it begins and ends, in halves of the height
    int lastHalf;
};

constexpr Arrow kArrows[] = {
    {SPIN_UP,   1, DFCS_SCROLLUP,   0, 1},
    {SPIN_DOWN, 2, DFCS_SCROLLDOWN, 1, 2},
};

struct LookRow {
    Look look;
    UINT drawing;
};

constexpr LookRow kDrawings[] = {
    {Look::Normal,   0            },
    {Look::Hot,      DFCS_HOT     },
    {Look::Pressed,  DFCS_PUSHED  },
    {Look::Disabled, DFCS_INACTIVE},
};

Look LookOf(const EditInstance& edit, const Arrow& arrow)
{
    if (edit.field->RefusesInput())
        return Look::Disabled;
    if (Has(edit, arrow.flag))
        return Look::Pressed;
    return FieldOf(edit).hotArrow == arrow.flag ? Look::Hot : Look::Normal;
}

RECT PlaceOf(const Arrow& arrow, const RECT& rect)
{
    const LONG height = rect.bottom - rect.top;
    return {rect.left, rect.top + height * arrow.firstHalf / 2, rect.right, rect.top + height * arrow.lastHalf / 2};
}

void DrawInSystemColours(HDC dc, const Arrow& arrow, Look look, RECT place)
{
    UINT drawing = arrow.drawing;
    for (const LookRow& row : kDrawings)
        drawing |= row.look == look ? row.drawing : 0;
    DrawFrameControl(dc, &place, DFC_SCROLL, drawing);
}

// Where the style lets it shine through.
void FillBehind(const EditInstance& edit, HDC dc, const RECT& rect)
{
    const COLORREF former = SetDCBrushColor(
        dc, edit.spinBkColor != 0 ? edit.spinBkColor
                                  : GetSysColor(edit.field->RefusesInput() ? COLOR_BTNFACE : COLOR_WINDOW));
    FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    SetDCBrushColor(dc, former);
}

}  // namespace

void PaintNativeSpin(const EditInstance& edit, HDC dc, const RECT& rect)
{
    FillBehind(edit, dc, rect);
    const VisualStyle style(SpinOf(edit), IsHighContrast() ? nullptr : L"SPIN");
    for (const Arrow& arrow : kArrows) {
        const Look look = LookOf(edit, arrow);
        const RECT place = PlaceOf(arrow, rect);
        if (style)
            style.Draw(dc, arrow.part, static_cast<int>(look), place);
        else
            DrawInSystemColours(dc, arrow, look, place);
    }
}

RECT ArrowPlace(HWND spin, uint32_t arrow)
{
    return PlaceOf(kArrows[arrow == SPIN_UP ? 0 : 1], ClientOf(spin));
}

uint32_t ArrowAt(HWND spin, POINT point)
{
    for (const Arrow& arrow : kArrows) {
        const RECT place = ArrowPlace(spin, arrow.flag);
        if (PtInRect(&place, point))
            return arrow.flag;
    }
    return 0;
}

}  // namespace zte
