// Painting of the spin: two button faces, raised or sunken, with an arrow each.
#include <algorithm>
#include <array>
#include <initializer_list>

#include "win32/gdi.h"
#include "win32/record_store.h"
#include "win32/spin_window.h"
#include "win32/standard_field.h"

namespace zte {

namespace {

constexpr COLORREF kFaceColour = RGB(192, 192, 192);  // fixed, not a system colour

// The measures of a spin painted into a rectangle; pixels.
struct SpinMeasures {
    RECT rect;
    int32_t height;
    int32_t buttonWidth;
    int32_t half;      // height of a button
    int32_t lowerTop;  // an odd height leaves one row between the buttons

    int32_t ButtonLeft() const { return rect.right - buttonWidth; }
};

// 2h/3, at least 5, at most the scroll bar's width, made even.
int32_t ButtonWidth(int32_t height)
{
    const int32_t width = 2 * height / 3;
    const int32_t widest = GetSystemMetrics(SM_CXVSCROLL);
    const int32_t bounded = width < 5 ? 5 : std::min(width, widest);
    return bounded + (bounded & 1);
}

SpinMeasures Measure(const RECT& rect)
{
    const int32_t height = static_cast<int16_t>(rect.bottom - rect.top);
    const int32_t half = height / 2;
    return {rect, height, ButtonWidth(height), half, rect.top + half + (height & 1)};
}

void DrawPolyline(HDC dc, std::initializer_list<POINT> points)
{
    Polyline(dc, points.begin(), static_cast<int>(points.size()));
}

void FillFace(HDC dc, int32_t width, int32_t height)
{
    const GdiObject grey(CreateSolidBrush(kFaceColour));
    const RECT face = {0, 0, width, height};
    FillRect(dc, &face, static_cast<HBRUSH>(grey.get()));
    const DcSelection hollow(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, 0, 0, width, height);
}

// Light from the upper left.
void DrawRaisedEdges(HDC dc, int32_t width, int32_t height)
{
    const GdiObject highlight(CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNHIGHLIGHT)));
    const GdiObject shadow(CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW)));
    const DcSelection lit(dc, highlight.get());
    DrawPolyline(dc, {
                         {1,         height - 2},
                         {1,         1         },
                         {width - 2, 1         }
    });
    const DcSelection dark(dc, shadow.get());
    DrawPolyline(dc, {
                         {width - 2, 1         },
                         {width - 2, height - 2},
                         {0,         height - 2}
    });
    DrawPolyline(dc, {
                         {width - 3, 2         },
                         {width - 3, height - 3},
                         {1,         height - 3}
    });
}

void DrawSunkenEdge(HDC dc, int32_t width, int32_t height)
{
    const GdiObject shadow(CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW)));
    const DcSelection dark(dc, shadow.get());
    DrawPolyline(dc, {
                         {1,         height - 1},
                         {1,         1         },
                         {width - 1, 1         }
    });
}

using EdgeDrawer = void (*)(HDC dc, int32_t width, int32_t height);

// A button face as a bitmap, null when it could not be made.
HBITMAP BuildFace(HDC dc, const SpinMeasures& spin, EdgeDrawer drawEdges)
{
    const MemoryDc memory(dc);
    if (!memory.get() || spin.half <= 0)
        return nullptr;
    HBITMAP face = CreateCompatibleBitmap(dc, spin.buttonWidth, spin.half);
    const DcSelection drawing(memory.get(), face);
    FillFace(memory.get(), spin.buttonWidth, spin.half);
    drawEdges(memory.get(), spin.buttonWidth, spin.half);
    return face;
}

void CopyFace(HDC dc, const SpinMeasures& spin, HGDIOBJ face, int32_t top)
{
    const MemoryDc memory(dc);
    if (!memory.get() || !face)
        return;
    const DcSelection source(memory.get(), face);
    BitBlt(dc, spin.ButtonLeft(), top, spin.buttonWidth, spin.half, memory.get(), 0, 0, SRCCOPY);
}

// Where the arrows stand: their centre column, and how far their points lie from the outer edges.
struct ArrowMeasures {
    int32_t centre;
    int32_t size;
    int32_t margin;
};

ArrowMeasures MeasureArrows(const SpinMeasures& spin, int32_t right)
{
    const int32_t middle = spin.buttonWidth / 2;
    const int32_t size = middle / 2;
    return {right - middle, size, (spin.half - size) / 2};
}

// A filled triangle; direction 1 points up, -1 down; a pressed one is moved right and down.
void DrawArrow(HDC dc, const ArrowMeasures& arrow, int32_t apexRow, int32_t direction, bool pressed)
{
    const int32_t moved = pressed ? 1 : 0;
    const int32_t x = arrow.centre + moved;
    const int32_t apex = apexRow + moved;
    const int32_t base = apex + direction * arrow.size;
    const std::array<POINT, 3> corners = {
        POINT{x,              apex},
        POINT{x - arrow.size, base},
        POINT{x + arrow.size, base}
    };
    Polygon(dc, corners.data(), static_cast<int>(corners.size()));
}

void DrawArrows(HDC dc, const SpinMeasures& spin, const ArrowMeasures& arrow, bool upPressed, bool downPressed)
{
    const DcSelection brush(dc, GetStockObject(BLACK_BRUSH));
    const DcSelection pen(dc, GetStockObject(BLACK_PEN));
    DrawArrow(dc, arrow, spin.rect.top + arrow.margin, 1, upPressed);
    DrawArrow(dc, arrow, spin.rect.top + spin.height - arrow.margin - 1, -1, downPressed);
}

void FillBackground(HDC dc, const RECT& rect, COLORREF colour)
{
    const GdiObject brush(CreateSolidBrush(colour));
    const GdiObject pen(CreatePen(PS_SOLID, 1, colour));
    const DcSelection useBrush(dc, brush.get());
    const DcSelection usePen(dc, pen.get());
    Rectangle(dc, rect.left, rect.top, rect.right, rect.bottom);
}

void DrawBorder(HDC dc, const SpinMeasures& spin)
{
    const DcSelection pen(dc, GetStockObject(BLACK_PEN));
    const LONG right = spin.ButtonLeft();
    DrawPolyline(dc, {
                         {0,     spin.rect.bottom - 1},
                         {right, spin.rect.bottom - 1}
    });
    DrawPolyline(dc, {
                         {0,     0},
                         {right, 0}
    });
}

void PaintSpin(EditInstance& edit, HDC dc, const RECT& rect)
{
    if (edit.spinBkColor != 0)
        FillBackground(dc, rect, edit.spinBkColor);
    const SpinMeasures spin = Measure(rect);
    DropFaces(edit);
    edit.spinFaceNormal = BuildFace(dc, spin, DrawRaisedEdges);
    edit.spinFacePressed = BuildFace(dc, spin, DrawSunkenEdge);
    const bool up = Has(edit, SPIN_UP);
    const bool down = Has(edit, SPIN_DOWN);
    CopyFace(dc, spin, up ? edit.spinFacePressed : edit.spinFaceNormal, spin.rect.top);
    CopyFace(dc, spin, down ? edit.spinFacePressed : edit.spinFaceNormal, spin.lowerTop);
    DrawArrows(dc, spin, MeasureArrows(spin, spin.rect.right), up, down);
    DropFaces(edit);
    if (Has(edit, SPIN_BORDER))
        DrawBorder(dc, spin);
}

}  // namespace

}  // namespace zte

using namespace zte;

void WINAPI ZTE_PaintSpin(HWND hwnd, HDC dc, const RECT* rect)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return;
    PaintSpin(*edit, dc, rect ? *rect : ClientOf(SpinOf(*edit)));
}

// The arrows stand one pixel further left than those of a control's spin; kept.
int16_t WINAPI ZTE_PaintSpinOnce(const RECT* rect, HDC dc)
{
    if (!rect)
        return 0;
    const SpinMeasures spin = Measure(*rect);
    const GdiObject face(BuildFace(dc, spin, DrawRaisedEdges));
    CopyFace(dc, spin, face.get(), spin.rect.top);
    CopyFace(dc, spin, face.get(), spin.lowerTop);
    DrawArrows(dc, spin, MeasureArrows(spin, spin.rect.right - 1), false, false);
    return static_cast<int16_t>(spin.buttonWidth);
}
