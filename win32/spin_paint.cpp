// Painting of the spin: two button faces, raised or sunken, with an arrow each, drawn straight into the context.
#include <algorithm>
#include <array>
#include <initializer_list>

#include "win32/gdi.h"
#include "win32/known_record.h"
#include "win32/native_spin.h"
#include "win32/spin_window.h"
#include "win32/standard_field.h"
#include "ztedit.h"

namespace zte {

namespace {

constexpr COLORREF kFaceColour = RGB(192, 192, 192);  // fixed, not a system colour
constexpr COLORREF kBlack = RGB(0, 0, 0);

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

// The colours of a context's own pen and brush, and plain drawing whatever a host has set; all put back at the end. Nothing is created.
class DrawingTools {
public:
    explicit DrawingTools(HDC dc)
        : dc_(dc),
          pen_(dc, GetStockObject(DC_PEN)),
          brush_(dc, GetStockObject(DC_BRUSH)),
          penColour_(GetDCPenColor(dc)),
          brushColour_(GetDCBrushColor(dc)),
          mode_(SetROP2(dc, R2_COPYPEN))
    {
    }
    DrawingTools(const DrawingTools&) = delete;
    DrawingTools& operator=(const DrawingTools&) = delete;
    ~DrawingTools()
    {
        SetDCPenColor(dc_, penColour_);
        SetDCBrushColor(dc_, brushColour_);
        SetROP2(dc_, mode_);
    }

    void Use(COLORREF line, COLORREF fill)
    {
        SetDCPenColor(dc_, line);
        SetDCBrushColor(dc_, fill);
    }
    void UseLine(COLORREF line) { SetDCPenColor(dc_, line); }

private:
    HDC dc_;
    DcSelection pen_;
    DcSelection brush_;
    COLORREF penColour_;
    COLORREF brushColour_;
    int mode_;
};

// Lines collected to be drawn by one call.
class Polylines {
public:
    void Add(POINT origin, std::initializer_list<POINT> points)
    {
        for (const POINT& point : points)
            points_[pointCount_++] = {origin.x + point.x, origin.y + point.y};
        lengths_[lineCount_++] = static_cast<DWORD>(points.size());
    }
    void Draw(HDC dc) const
    {
        if (lineCount_ > 0)
            PolyPolyline(dc, points_.data(), lengths_.data(), lineCount_);
    }

private:
    static constexpr size_t kMost = 4;  // two for each of two faces

    std::array<POINT, 3 * kMost> points_{};
    std::array<DWORD, kMost> lengths_{};
    DWORD pointCount_ = 0;
    DWORD lineCount_ = 0;
};

// A button's face at its place; the measures of the edges are those of the button.
struct Face {
    POINT origin;
    bool pressed;
};

// Light from the upper left.
void AddHighlight(Polylines& lines, const Face& face, int32_t width, int32_t height)
{
    if (face.pressed)
        return;
    lines.Add(face.origin, {
                               {1,         height - 2},
                               {1,         1         },
                               {width - 2, 1         }
    });
}

void AddShadow(Polylines& lines, const Face& face, int32_t width, int32_t height)
{
    if (face.pressed) {
        lines.Add(face.origin, {
                                   {1,         height - 1},
                                   {1,         1         },
                                   {width - 1, 1         }
        });
        return;
    }
    lines.Add(face.origin, {
                               {width - 2, 1         },
                               {width - 2, height - 2},
                               {0,         height - 2}
    });
    lines.Add(face.origin, {
                               {width - 3, 2         },
                               {width - 3, height - 3},
                               {1,         height - 3}
    });
}

// All that has one colour is drawn at once. Each call costs more than what it draws.
void DrawFaces(HDC dc, DrawingTools& tools, const SpinMeasures& spin, std::initializer_list<Face> faces)
{
    Polylines highlight;
    Polylines shadow;
    tools.Use(kBlack, kFaceColour);
    for (const Face& face : faces) {
        const POINT& at = face.origin;
        Rectangle(dc, at.x, at.y, at.x + spin.buttonWidth, at.y + spin.half);
        AddHighlight(highlight, face, spin.buttonWidth, spin.half);
        AddShadow(shadow, face, spin.buttonWidth, spin.half);
    }
    tools.UseLine(GetSysColor(COLOR_BTNHIGHLIGHT));
    highlight.Draw(dc);
    tools.UseLine(GetSysColor(COLOR_BTNSHADOW));
    shadow.Draw(dc);
}

// The edges of a face lower than three pixels would leave it.
void DrawFaceInside(HDC dc, DrawingTools& tools, const SpinMeasures& spin, const Face& face)
{
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, face.origin.x, face.origin.y, face.origin.x + spin.buttonWidth, face.origin.y + spin.half);
    DrawFaces(dc, tools, spin, {face});
    RestoreDC(dc, saved);
}

void DrawButtons(HDC dc, DrawingTools& tools, const SpinMeasures& spin, bool upPressed, bool downPressed)
{
    constexpr int32_t kRoomForEdges = 3;
    const Face up = {
        {spin.ButtonLeft(), spin.rect.top},
        upPressed
    };
    const Face down = {
        {spin.ButtonLeft(), spin.lowerTop},
        downPressed
    };
    if (spin.half >= kRoomForEdges)
        return DrawFaces(dc, tools, spin, {up, down});
    if (spin.half > 0) {
        DrawFaceInside(dc, tools, spin, up);
        DrawFaceInside(dc, tools, spin, down);
    }
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

void DrawArrows(HDC dc, DrawingTools& tools, const SpinMeasures& spin, const ArrowMeasures& arrow, bool upPressed,
                bool downPressed)
{
    tools.Use(kBlack, kBlack);
    DrawArrow(dc, arrow, spin.rect.top + arrow.margin, 1, upPressed);
    DrawArrow(dc, arrow, spin.rect.top + spin.height - arrow.margin - 1, -1, downPressed);
}

void FillBackground(HDC dc, DrawingTools& tools, const RECT& rect, COLORREF colour)
{
    tools.Use(colour, colour);
    Rectangle(dc, rect.left, rect.top, rect.right, rect.bottom);
}

void DrawBorder(HDC dc, const SpinMeasures& spin)
{
    const LONG right = spin.ButtonLeft();
    Polylines lines;
    lines.Add(
        {
            0, spin.rect.bottom - 1
    },
        {{0, 0}, {right, 0}});
    lines.Add(
        {
            0, 0
    },
        {{0, 0}, {right, 0}});
    lines.Draw(dc);
}

void PaintClassicSpin(const EditInstance& edit, HDC dc, const RECT& rect)
{
    DrawingTools tools(dc);
    if (edit.spinBkColor != 0)
        FillBackground(dc, tools, rect, edit.spinBkColor);
    const SpinMeasures spin = Measure(rect);
    const bool up = Has(edit, SPIN_UP);
    const bool down = Has(edit, SPIN_DOWN);
    DrawButtons(dc, tools, spin, up, down);
    DrawArrows(dc, tools, spin, MeasureArrows(spin, spin.rect.right), up, down);
    if (Has(edit, SPIN_BORDER))
        DrawBorder(dc, spin);
}

}  // namespace

void PaintSpin(const EditInstance& edit, HDC dc, const RECT& rect)
{
    const auto paint = edit.editor ? PaintNativeSpin : PaintClassicSpin;
    paint(edit, dc, rect);
}

}  // namespace zte

using namespace zte;

void WINAPI ZTE_PaintSpin(HWND hwnd, HDC dc, const RECT* rect)
{
    const EditInstance* edit = KnownRecord(hwnd);
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
    DrawingTools tools(dc);
    DrawButtons(dc, tools, spin, false, false);
    DrawArrows(dc, tools, spin, MeasureArrows(spin, spin.rect.right - 1), false, false);
    return static_cast<int16_t>(spin.buttonWidth);
}
