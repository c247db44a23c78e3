/* What stands in the laboratory's window, in tab order, and where. */
#include "lab_items.h"

#include <string.h>

#include "ztedit.h"

/* How an item follows a larger window, and which font it has. */
enum { WIDER = 1, TALLER = 2, LOWER = 4, RIGHTWARDS = 8, EVEN = 16, LARGE = 32 };

/* The window's smallest size; what stands below is in its pixels. */
enum { LAB_WIDTH = 980, LAB_HEIGHT = 586 };

/* The styles of the items. */
enum {
    TAB = WS_TABSTOP,
    LINE = TAB | ES_AUTOHSCROLL,
    LINES = TAB | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL,
    MASK_LINE = LINE | ES_NOHIDESEL,
    TOLD = LINE | ES_READONLY,
    TOLD_LINES = TAB | ES_MULTILINE | ES_READONLY,
    CHOICE = TAB | CBS_DROPDOWNLIST | WS_VSCROLL,
    CHECK = TAB | BS_AUTOCHECKBOX,
    PUSH = TAB | BS_PUSHBUTTON,
    GROUP = BS_GROUPBOX,
    LIST = TAB | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS | LBS_NOTIFY | WS_VSCROLL,
};

typedef struct ItemRow {
    const char* name;
    const char* class;
    const char* label; /* a button's own text; of the others it stands before them, or above where labelX is x */
    DWORD style;
    int labelX, x, y, width, height;
    unsigned follows;
} ItemRow;

// clang-format off
static const ItemRow kItems[ITEM_COUNT] = {
    {"",          "button",   "What the control is",          GROUP,      0,   12,  10,  446, 338, 0},
    {"gallery",   "combobox", "&Gallery",                     CHOICE,     26,  130, 34,  314, 320, 0},
    {"mask",      "edit",     "&Mask",                        MASK_LINE,  26,  130, 64,  314, 24,  EVEN},
    {"verdict",   "edit",     "Chec&k",                       TOLD_LINES, 26,  130, 94,  314, 36,  0},
    {"type",      "combobox", "&Type",                        CHOICE,     26,  130, 138, 110, 200, 0},
    {"modern",    "button",   "M&odern",                      CHECK,      0,   256, 140, 88,  20,  0},
    {"autoskip",  "button",   "&Autoskip",                    CHECK,      0,   350, 140, 94,  20,  0},
    {"spin",      "button",   "&Spin",                        CHECK,      0,   130, 172, 64,  20,  0},
    {"increment", "edit",     "&Increment",                   LINE,       200, 268, 170, 38,  24,  0},
    {"range",     "edit",     "&Range",                       LINE,       314, 360, 170, 84,  24,  0},
    {"table",     "edit",     "&Code table",                  LINES,      26,  130, 202, 190, 96,  EVEN},
    {"pick",      "button",   "Typing &picks",                CHECK,      0,   330, 202, 114, 20,  0},
    {"display",   "button",   "S&hown by it",                 CHECK,      0,   330, 226, 114, 20,  0},
    {"value",     "edit",     "&Value",                       LINE,       26,  130, 310, 190, 24,  0},
    {"set",       "button",   "Sho&w it",                     PUSH,       0,   330, 309, 114, 26,  0},
    {"",          "button",   "Regional settings of this window alone", GROUP, 0, 12, 358, 446, 214, 0},
    {"country",   "combobox", "Co&untry",                     CHOICE,     26,  130, 382, 314, 260, 0},
    {"decimal",   "edit",     "&1  Decimal",                  LINE,       26,  130, 416, 88,  24,  EVEN},
    {"thousands", "edit",     "&2  Thousands",                LINE,       236, 344, 416, 100, 24,  EVEN},
    {"currency",  "edit",     "&3  Currency",                 LINE,       26,  130, 446, 88,  24,  EVEN},
    {"position",  "edit",     "&4  Place, 0 to 3",        LINE,       236, 344, 446, 100, 24,  EVEN},
    {"digits",    "edit",     "&5  Its digits",               LINE,       26,  130, 476, 88,  24,  EVEN},
    {"am",        "edit",     "&6  AM",                       LINE,       236, 344, 476, 100, 24,  EVEN},
    {"pm",        "edit",     "&7  PM",                       LINE,       26,  130, 506, 88,  24,  EVEN},
    {"shortdate", "edit",     "&8  Short date",               LINE,       236, 344, 506, 100, 24,  EVEN},
    {"time",      "edit",     "&9  Time sign",                LINE,       26,  130, 536, 88,  24,  EVEN},
    {"",          "button",   "The control itself",           GROUP,      0,   470, 10,  498, 246, WIDER},
    {"live",      ZTEDIT_CLASS, "&Live control",              LINE | WS_CLIPCHILDREN, 484, 588, 34, 366, 36, WIDER | LARGE},
    {"text",      "edit",     "Window te&xt",                 TOLD,       484, 588, 86,  366, 24,  WIDER | EVEN},
    {"state",     "edit",     "Stat&e",                       TOLD,       484, 588, 116, 366, 24,  WIDER},
    {"string",    "edit",     "&Data string",                 TOLD,       484, 588, 146, 366, 24,  WIDER | EVEN},
    {"data",      "edit",     "&FmtGetData",                  TOLD,       484, 588, 176, 366, 24,  WIDER | EVEN},
    {"problem",   "edit",     "Last pro&blem",                TOLD,       484, 588, 206, 366, 24,  WIDER},
    {"",          "button",   "What the parent hears",        GROUP,      0,   470, 266, 498, 306, WIDER | TALLER},
    {"list",      "listbox",  "&Notifications",               LIST,       484, 484, 310, 470, 218, WIDER | TALLER},
    {"empty",     "button",   "Empt&y the list",              PUSH,       0,   828, 536, 126, 26,  RIGHTWARDS | LOWER},
};
// clang-format on

enum { FIRST_LABEL_ID = 200, LABEL_DROP = 4, LABEL_HEIGHT = 18, LABEL_GAP = 6, TABS_OF_LIST = 84 };

typedef struct Fonts {
    HFONT plain, fixed, large;
} Fonts;

static Fonts fonts;

static HFONT MakeFont(int height, DWORD pitch, const char* name)
{
    return CreateFontA(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                       CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, pitch, name);
}

static void MakeFonts(void)
{
    fonts.plain = MakeFont(-13, VARIABLE_PITCH | FF_SWISS, "Liberation Sans");
    fonts.fixed = MakeFont(-14, FIXED_PITCH | FF_MODERN, "Liberation Mono");
    fonts.large = MakeFont(-22, FIXED_PITCH | FF_MODERN, "Liberation Mono");
}

void DeleteItemFonts(void)
{
    DeleteObject(fonts.plain);
    DeleteObject(fonts.fixed);
    DeleteObject(fonts.large);
}

static HFONT FontOf(const ItemRow* row)
{
    if (row->follows & LARGE)
        return fonts.large;
    return row->follows & EVEN ? fonts.fixed : fonts.plain;
}

static BOOL IsButton(const ItemRow* row)
{
    return strcmp(row->class, "button") == 0;
}

/* What is told and not typed lies in the window; what can be typed into lies deeper. */
static DWORD EdgeOf(const ItemRow* row)
{
    if (IsButton(row) || strcmp(row->class, "combobox") == 0)
        return 0;
    return row->style & ES_READONLY && strcmp(row->class, "edit") == 0 ? WS_EX_STATICEDGE : WS_EX_CLIENTEDGE;
}

static HWND AddChild(HWND window, const ItemRow* row, const char* class, const char* text, DWORD style, int id)
{
    const DWORD edge = strcmp(class, "static") == 0 ? 0 : EdgeOf(row);
    const HWND child = CreateWindowExA(edge, class, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, window,
                                       (HMENU)(INT_PTR)id, GetModuleHandleA(NULL), NULL);
    SendMessageA(child, WM_SETFONT, (WPARAM)(strcmp(class, "static") == 0 ? fonts.plain : FontOf(row)), FALSE);
    return child;
}

static void AddItem(HWND window, int item)
{
    const ItemRow* row = &kItems[item];
    if (!IsButton(row))
        AddChild(window, row, "static", row->label, SS_LEFT, FIRST_LABEL_ID + item);
    AddChild(window, row, row->class, IsButton(row) ? row->label : "", row->style, FIRST_LAB_ID + item);
}

/* By how much the window is larger than it must be. */
static SIZE Surplus(HWND window)
{
    RECT client;
    SIZE surplus;
    GetClientRect(window, &client);
    surplus.cx = max(0, client.right - LAB_WIDTH);
    surplus.cy = max(0, client.bottom - LAB_HEIGHT);
    return surplus;
}

static void PlaceLabel(HWND window, int item)
{
    const ItemRow* row = &kItems[item];
    const BOOL above = row->labelX == row->x;
    const int top = above ? row->y - LABEL_HEIGHT - LABEL_DROP : row->y + (row->follows & LARGE ? 2 : 1) * LABEL_DROP;
    MoveWindow(GetDlgItem(window, FIRST_LABEL_ID + item), row->labelX, top,
               above ? row->width : row->x - row->labelX - LABEL_GAP, LABEL_HEIGHT, TRUE);
}

static void PlaceItem(HWND window, int item, SIZE surplus)
{
    const ItemRow* row = &kItems[item];
    const int x = row->x + (row->follows & RIGHTWARDS ? surplus.cx : 0);
    const int y = row->y + (row->follows & LOWER ? surplus.cy : 0);
    const int width = row->width + (row->follows & WIDER ? surplus.cx : 0);
    const int height = row->height + (row->follows & TALLER ? surplus.cy : 0);
    MoveWindow(ItemWindow(window, (LabItem)item), x, y, width, height, TRUE);
}

void PlaceItems(HWND window)
{
    const SIZE surplus = Surplus(window);
    int item;
    for (item = 0; item < ITEM_COUNT; ++item) {
        if (!IsButton(&kItems[item]))
            PlaceLabel(window, item);
        PlaceItem(window, item, surplus);
    }
    RedrawWindow(window, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN); /* the frames leave lines behind */
}

void CreateItems(HWND window)
{
    const INT tabs = TABS_OF_LIST;
    int item;
    MakeFonts();
    for (item = 0; item < ITEM_COUNT; ++item)
        AddItem(window, item);
    PlaceItems(window); /* a text set in an edit without a width would be scrolled out of it */
    SendMessageA(ItemWindow(window, ITEM_LIST), LB_SETTABSTOPS, 1, (LPARAM)&tabs);
}

SIZE SmallestLab(void)
{
    const SIZE smallest = {LAB_WIDTH, LAB_HEIGHT};
    return smallest;
}

HWND ItemWindow(HWND window, LabItem item)
{
    return GetDlgItem(window, FIRST_LAB_ID + (int)item);
}

const char* ItemName(LabItem item)
{
    return kItems[item].name;
}
