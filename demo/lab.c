/* The laboratory: a control that is configured anew with every change of its mask, type, spin, table or regional settings; beside it
 * what it shows, reads and tells. A dialog, so that Tab, mnemonics and Return do what they do elsewhere.
 *
 * One control lives as long as the window and is configured by ZTE_Init again and again; its value is kept over that as canonical text,
 * as a program would keep it.
 */
#include "lab.h"

#include <stdio.h>
#include <string.h>

#include "gallery.h"
#include "lab_control.h"
#include "lab_script.h"
#include "mouse_count.h"
#include "profile.h"
#include "table_lines.h"

/* ---- The gallery and the countries -------------------------------------------------------------------------------- */

static void FillFrom(const Field* field)
{
    char increment[20], lines[TEXT_ROOM];
    LinesFromTable(field->codeTable, lines, sizeof lines);
    snprintf(increment, sizeof increment, "%u", (unsigned)(field->increment ? field->increment : 1));
    Fill(ITEM_MASK, field->mask);
    Fill(ITEM_INCREMENT, increment);
    Fill(ITEM_RANGE, field->range);
    Fill(ITEM_TABLE, lines);
    Fill(ITEM_VALUE, field->data);
    Choose(ITEM_TYPE, field->type - DT_STRING);
    Check(ITEM_SPIN, (field->options & ZTEO_SPIN) != 0);
    Check(ITEM_PICK, (field->options & ZTEO_CODE_PICK) != 0);
    Check(ITEM_DISPLAY, (field->options & ZTEO_CODE_DISPLAY) != 0);
}

static void TakeFromGallery(void)
{
    const Field* field = GalleryField(Chosen(ITEM_GALLERY));
    FillFrom(field);
    snprintf(lab.value, sizeof lab.value, "%s", field->data ? field->data : "");
    Configure();
    MarkFault();
}

static void FillSettings(const Profile* profile)
{
    int i;
    for (i = 0; i < PROFILE_KEYS; ++i)
        Fill((LabItem)(ITEM_SETTING + i), profile->values[i]);
}

/* The entries of the list: the user's own settings, those of the countries, and what has been changed since. */
static int EntryOfChanged(void)
{
    return kCountryCount + 1;
}

static void FillCountry(void)
{
    const int chosen = Chosen(ITEM_COUNTRY);
    Profile own;
    ReadProfile(&own);
    if (chosen != EntryOfChanged())
        FillSettings(chosen == 0 ? &own : &kCountries[chosen - 1].profile);
}

static void TakeCountry(void)
{
    FillCountry();
    Configure();
}

static void ChangeSetting(void)
{
    Choose(ITEM_COUNTRY, EntryOfChanged());
    Configure();
}

/* The user has changed the settings of the system. Those of the window follow while they are the user's own. */
static void OnSystemSettings(void)
{
    if (Chosen(ITEM_COUNTRY) == 0)
        TakeCountry();
}

/* ---- The window --------------------------------------------------------------------------------------------------- */

typedef struct Reaction {
    LabItem first, last;
    WORD code;
    void (*act)(void);
} Reaction;

static const Reaction kReactions[] = {
    {ITEM_GALLERY,   ITEM_GALLERY,      CBN_SELCHANGE, TakeFromGallery},
    {ITEM_MASK,      ITEM_MASK,         EN_CHANGE,     Configure      },
    {ITEM_MASK,      ITEM_MASK,         EN_KILLFOCUS,  MarkFault      },
    {ITEM_TYPE,      ITEM_TYPE,         CBN_SELCHANGE, ChangeType     },
    {ITEM_MODERN,    ITEM_MODERN,       BN_CLICKED,    Configure      },
    {ITEM_AUTOSKIP,  ITEM_AUTOSKIP,     BN_CLICKED,    SetAutoskip    },
    {ITEM_SPIN,      ITEM_SPIN,         BN_CLICKED,    Configure      },
    {ITEM_INCREMENT, ITEM_TABLE,        EN_CHANGE,     Configure      },
    {ITEM_PICK,      ITEM_DISPLAY,      BN_CLICKED,    Configure      },
    {ITEM_SET,       ITEM_SET,          BN_CLICKED,    SetValue       },
    {ITEM_COUNTRY,   ITEM_COUNTRY,      CBN_SELCHANGE, TakeCountry    },
    {ITEM_SETTING,   ITEM_LAST_SETTING, EN_CHANGE,     ChangeSetting  },
    {ITEM_LIVE,      ITEM_LIVE,         EN_CHANGE,     NoteChange     },
    {ITEM_LIVE,      ITEM_LIVE,         ZTN_AUTOSKIP,  NoteFull       },
    {ITEM_EMPTY,     ITEM_EMPTY,        BN_CLICKED,    EmptyList      },
};

/* Return shows what is wrong with the mask, or the value; a button with the focus it presses. */
static void OnReturn(void)
{
    const HWND focus = GetFocus();
    if (focus == At(ITEM_MASK))
        MarkFault();
    else if (focus == At(ITEM_VALUE))
        SetValue();
    else if (SendMessageA(focus, WM_GETDLGCODE, 0, 0) & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON))
        SendMessageA(focus, BM_CLICK, 0, 0);
}

static void OnCommand(int id, WORD code)
{
    const int item = id - FIRST_LAB_ID;
    size_t i;
    if (id == IDOK)
        OnReturn();
    for (i = 0; !lab.filling && lab.live && i < sizeof kReactions / sizeof kReactions[0]; ++i)
        if (item >= (int)kReactions[i].first && item <= (int)kReactions[i].last && code == kReactions[i].code)
            kReactions[i].act();
}

static BOOL IsHighContrast(void)
{
    HIGHCONTRASTA contrast = {0};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

/* The verdict and the state: green where all is well, red where something is wrong. */
static COLORREF ColourOf(HWND told)
{
    static const COLORREF kGood = RGB(0, 96, 32), kBad = RGB(160, 0, 0);
    const int32_t state = told == At(ITEM_STATE) ? ZTE_GetState(lab.live) : -1;
    const COLORREF plain = GetSysColor(COLOR_WINDOWTEXT);
    if (IsHighContrast())
        return plain;
    if (told == At(ITEM_VERDICT) && IsTakenAllTheSame())
        return plain;
    if (told == At(ITEM_VERDICT))
        return lab.verdict == ZTM_FITS ? kGood : kBad;
    if (state == ZTS_COMPLETE)
        return kGood;
    return state == ZTS_INVALID || state == ZTS_OUT_OF_RANGE ? kBad : plain;
}

static INT_PTR OnColour(HDC dc, HWND told)
{
    SetTextColor(dc, ColourOf(told));
    SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
    return (INT_PTR)GetSysColorBrush(COLOR_BTNFACE);
}

static const DWORD kStyle = WS_OVERLAPPEDWINDOW;

static SIZE OuterSize(void)
{
    const SIZE client = SmallestLab();
    RECT outer = {0, 0, client.cx, client.cy};
    SIZE size;
    AdjustWindowRect(&outer, kStyle, FALSE);
    size.cx = outer.right - outer.left;
    size.cy = outer.bottom - outer.top;
    return size;
}

static void LimitSize(MINMAXINFO* limits)
{
    const SIZE size = OuterSize();
    limits->ptMinTrackSize.x = size.cx;
    limits->ptMinTrackSize.y = size.cy;
}

static void FillChoices(void)
{
    static const char* const kTypes[] = {"String", "Number", "Date", "Time", "Date-time", "Decimal"};
    int i;
    for (i = 0; i < (int)(sizeof kTypes / sizeof kTypes[0]); ++i)
        AddChoice(ITEM_TYPE, kTypes[i]);
    for (i = 0; i < GalleryCount(); ++i)
        AddChoice(ITEM_GALLERY, GalleryField(i)->label);
    AddChoice(ITEM_COUNTRY, "As in your profile");
    for (i = 0; i < kCountryCount; ++i)
        AddChoice(ITEM_COUNTRY, kCountries[i].name);
    AddChoice(ITEM_COUNTRY, "As changed below");
}

static void OpenWith(HWND window)
{
    CreateItems(window);
    lab.window = window;
    FillChoices();
    Check(ITEM_MODERN, TRUE);
    Check(ITEM_AUTOSKIP, TRUE);
    Choose(ITEM_COUNTRY, 0);
    FillCountry();
    lab.live = At(ITEM_LIVE);
    Choose(ITEM_GALLERY, 0);
    TakeFromGallery();
    SetFocus(At(ITEM_MASK));
}

static INT_PTR CALLBACK LabProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG: OpenWith(window); return FALSE;
    case WM_SIZE: PlaceItems(window); return TRUE;
    case WM_GETMINMAXINFO: LimitSize((MINMAXINFO*)lParam); return TRUE;
    case WM_CTLCOLORSTATIC: return OnColour((HDC)wParam, (HWND)lParam);
    case WM_COMMAND: OnCommand(LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_NOTIFY: OnNotify((const NMHDR*)lParam); return FALSE;
    case WM_WININICHANGE: OnSystemSettings(); return TRUE;
    case WM_CLOSE: DestroyWindow(window); return TRUE;
    case WM_DESTROY: PostQuitMessage(0); return TRUE;
    default: return FALSE;
    }
}

/* An empty dialog; what stands in it is made by LabProc, in pixels. */
static HWND OpenLab(void)
{
    struct {
        DLGTEMPLATE dialog;
        WORD menu, class, title;
    } template = {{0}, 0, 0, 0};
    const SIZE size = OuterSize();
    HWND window;
    template.dialog.style = kStyle;
    window = CreateDialogIndirectParamA(GetModuleHandleA(NULL), &template.dialog, NULL, LabProc, 0);
    SetWindowTextA(window, "Mask laboratory");
    SetWindowPos(window, NULL, 40, 40, size.cx, size.cy, SWP_NOZORDER);
    return window;
}

/* ---- The loop ----------------------------------------------------------------------------------------------------- */

static BOOL IsKey(const MSG* message, WPARAM key)
{
    return message->message == WM_KEYDOWN && message->wParam == key;
}

/* Of an edit of several lines in a dialog Escape closes the dialog. */
static BOOL WouldCloseTheWindow(const MSG* message)
{
    return IsKey(message, VK_ESCAPE) && (message->hwnd == At(ITEM_TABLE) || message->hwnd == At(ITEM_VERDICT));
}

static BOOL IsOfLive(HWND window)
{
    return IsWindow(lab.live) && (window == lab.live || IsChild(lab.live, window));
}

/* The caret moves without a notification: what the control says is read after each message of its own. */
static void Handle(MSG* message)
{
    if (WouldCloseTheWindow(message))
        return;
    if (!IsDialogMessageA(lab.window, message)) {
        TranslateMessage(message);
        DispatchMessageA(message);
    }
    if (IsOfLive(message->hwnd))
        FollowLive();
}

int RunLab(int show, const char* placesPath, const char* tablePath, const char* mousePath)
{
    MSG message;
    ZTE_Initialize(); /* the class of the live control stands in a table of names */
    lab.heap = SharedHeapCreate();
    ShowWindow(OpenLab(), show);
    UpdateWindow(lab.window);
    WritePlaces(placesPath);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        if (IsKey(&message, VK_F2))
            TellScript(placesPath, tablePath);
        Handle(&message);
        CountMouse(message.message, mousePath);
    }
    DeleteItemFonts();
    SharedHeapDestroy(lab.heap);
    return 0;
}
