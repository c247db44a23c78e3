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
#include "lab_items.h"
#include "profile.h"
#include "words.h"

enum { TEXT_ROOM = 600, LIST_LENGTH = 500 };

typedef struct Lab {
    HWND window;
    HWND live;
    SharedHeap heap;
    char value[TEXT_ROOM]; /* of the control, canonical: what is shown again when it has been configured anew */
    int32_t verdict;       /* of ZTE_CheckMask, and where */
    int32_t position;
    BOOL filling; /* the window itself writes into its items: nobody has changed anything */
} Lab;

static Lab lab;

/* ---- The items ----------------------------------------------------------------------------------------------------- */

static HWND At(LabItem item)
{
    return ItemWindow(lab.window, item);
}

static void Read(LabItem item, char* text, int size)
{
    GetWindowTextA(At(item), text, size);
}

static UINT ReadNumber(LabItem item)
{
    return GetDlgItemInt(lab.window, FIRST_LAB_ID + (int)item, NULL, FALSE);
}

/* Only where it differs: what has not changed does not flicker, and is not read out again. */
static void Tell(LabItem item, const char* text)
{
    char former[TEXT_ROOM];
    Read(item, former, sizeof former);
    if (strcmp(former, text) != 0)
        SetWindowTextA(At(item), text);
}

static void Fill(LabItem item, const char* text)
{
    lab.filling = TRUE;
    SetWindowTextA(At(item), text ? text : "");
    lab.filling = FALSE;
}

static BOOL IsChecked(LabItem item)
{
    return SendMessageA(At(item), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

static void Check(LabItem item, BOOL on)
{
    SendMessageA(At(item), BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
}

static int Chosen(LabItem item)
{
    return (int)SendMessageA(At(item), CB_GETCURSEL, 0, 0);
}

static void Choose(LabItem item, int index)
{
    SendMessageA(At(item), CB_SETCURSEL, (WPARAM)index, 0);
}

static void AddChoice(LabItem item, const char* text)
{
    SendMessageA(At(item), CB_ADDSTRING, 0, (LPARAM)text);
}

/* ---- Notifications ------------------------------------------------------------------------------------------------- */

/* The newest is the last, and seen. */
static void Note(const char* what, const char* details)
{
    const HWND list = At(ITEM_LIST);
    char line[TEXT_ROOM];
    LRESULT last;
    snprintf(line, sizeof line, "%s\t%s", what, details);
    if (SendMessageA(list, LB_GETCOUNT, 0, 0) >= LIST_LENGTH)
        SendMessageA(list, LB_DELETESTRING, 0, 0);
    last = SendMessageA(list, LB_ADDSTRING, 0, (LPARAM)line);
    SendMessageA(list, LB_SETCURSEL, (WPARAM)last, 0);
}

static void EmptyList(void)
{
    SendMessageA(At(ITEM_LIST), LB_RESETCONTENT, 0, 0);
}

static void NoteChange(void)
{
    char text[TEXT_ROOM];
    GetWindowTextA(lab.live, text, sizeof text);
    Note("EN_CHANGE", text);
}

static void NoteFull(void)
{
    Note("ZTN_AUTOSKIP", "full: a form would move the focus on");
}

static void NoteRejected(const ZTNotifyRejected* rejected)
{
    char details[200], character[10] = "";
    if (rejected->character)
        snprintf(character, sizeof character, " '%c'", rejected->character);
    snprintf(details, sizeof details, "at %d%s: %s (reason %d)", (int)rejected->position, character,
             ReasonWords(rejected->reason), (int)rejected->reason);
    Note("ZTN_REJECTED", details);
}

static void NoteState(const ZTNotifyState* state)
{
    char details[100];
    snprintf(details, sizeof details, "%s, then %s", StateWord(state->was), StateWord(state->is));
    Note("ZTN_STATECHANGED", details);
}

static void OnNotify(const NMHDR* header)
{
    if (lab.filling)
        return;
    if (header->code == ZTN_REJECTED)
        NoteRejected((const ZTNotifyRejected*)header);
    else if (header->code == ZTN_STATECHANGED)
        NoteState((const ZTNotifyState*)header);
}

/* ---- What the control says ----------------------------------------------------------------------------------------- */

/* The text with the caret or the selection in it: "12|/31" or "[12]/31". */
static void TellText(void)
{
    char text[TEXT_ROOM], shown[TEXT_ROOM + 80];
    DWORD start = 0, end = 0;
    GetWindowTextA(lab.live, text, sizeof text);
    SendMessageA(lab.live, EM_GETSEL, (WPARAM)&start, (LPARAM)&end);
    if (end > strlen(text))
        return;
    if (start == end)
        snprintf(shown, sizeof shown, "%.*s|%s   caret at %d", (int)start, text, text + start, (int)start);
    else
        snprintf(shown, sizeof shown, "%.*s[%.*s]%s   %d to %d selected", (int)start, text, (int)(end - start),
                 text + start, text + end, (int)start, (int)end);
    Tell(ITEM_TEXT, shown);
}

static void TellData(void)
{
    char text[TEXT_ROOM];
    ReadValue(lab.live, lab.heap, text, sizeof text);
    Tell(ITEM_DATA, text);
}

static void TellDataString(void)
{
    char* text = ZTE_GetDataString(lab.live);
    snprintf(lab.value, sizeof lab.value, "%s", text ? text : "");
    Tell(ITEM_DATA_STRING, text ? text : "(none)");
    SharedHeapFree(lab.heap, text);
}

static void TellAll(void)
{
    TellText();
    Tell(ITEM_STATE, StateWord(ZTE_GetState(lab.live)));
    TellDataString();
    TellData();
    Tell(ITEM_PROBLEM, ProblemWords(ZTE_GetLastProblem(lab.live)));
}

/* ---- Configuring --------------------------------------------------------------------------------------------------- */

/* One character more in a code table's text, where there is room. */
static void Append(char* text, size_t* length, size_t size, char c)
{
    if (*length + 1 < size)
        text[(*length)++] = c;
    text[*length] = '\0';
}

/* The lines "Display = data" as the text of a code table: entries between '/', a tab inside them, "//" for a '/' itself. */
static void TableFromLines(const char* lines, char* table, size_t size)
{
    size_t length = 0;
    table[0] = '\0';
    for (; *lines; ++lines)
        if (strncmp(lines, "\r\n", 2) == 0) {
            ++lines;
            if (lines[1] && lines[1] != '\r')
                Append(table, &length, size, '/');
        } else if (strncmp(lines, " = ", 3) == 0) {
            lines += 2;
            Append(table, &length, size, '\t');
        } else {
            if (*lines == '/')
                Append(table, &length, size, '/');
            Append(table, &length, size, *lines);
        }
}

/* The way back. */
static void LinesFromTable(const char* table, char* lines, size_t size)
{
    static const char kBetween[] = "\r\n", kEquals[] = " = ";
    size_t length = 0;
    lines[0] = '\0';
    for (; table && *table; ++table) {
        const char* part = *table == '\t' ? kEquals : *table == '/' && table[1] != '/' ? kBetween : NULL;
        if (!part) {
            table += *table == '/';
            Append(lines, &length, size, *table);
        }
        for (; part && *part; ++part)
            Append(lines, &length, size, *part);
    }
}

static uint32_t Options(void)
{
    return (IsChecked(ITEM_MODERN) ? ZTEO_MODERN : 0u) | (IsChecked(ITEM_AUTOSKIP) ? ZTEO_AUTOSKIP : 0u) |
           (IsChecked(ITEM_SPIN) ? ZTEO_SPIN : 0u) | (IsChecked(ITEM_PICK) ? ZTEO_CODE_PICK : 0u) |
           (IsChecked(ITEM_DISPLAY) ? ZTEO_CODE_DISPLAY : 0u);
}

static int32_t Type(void)
{
    return Chosen(ITEM_TYPE) + DT_STRING;
}

static void InitLive(const char* mask)
{
    char range[TEXT_ROOM], lines[TEXT_ROOM], table[2 * TEXT_ROOM];
    EditInitParams params = {0};
    Read(ITEM_RANGE, range, sizeof range);
    Read(ITEM_TABLE, lines, sizeof lines);
    TableFromLines(lines, table, sizeof table);
    params.heap = lab.heap;
    params.maskText = mask;
    params.dataType = Type();
    params.initialData = lab.value[0] ? lab.value : NULL;
    params.spinRangeText = range[0] ? range : NULL;
    params.spinIncrement = ReadNumber(ITEM_INCREMENT);
    params.codeTableText = table[0] ? table : NULL;
    params.options = Options();
    ZTE_Init(lab.live, &params);
}

static void ReadSettings(Profile* profile)
{
    int i;
    for (i = 0; i < PROFILE_KEYS; ++i)
        Read((LabItem)(ITEM_SETTING + i), profile->values[i], PROFILE_ROOM);
}

/* A modern control takes a number's mask in '.' and ',' under all settings. */
static BOOL IsTakenAllTheSame(void)
{
    return lab.verdict != ZTM_FITS && ZTE_GetLastProblem(lab.live) == ZTP_NONE;
}

static void TellVerdict(const char* mask)
{
    char text[300], where[40] = "";
    if (lab.position >= (int32_t)strlen(mask))
        snprintf(where, sizeof where, "At the end: ");
    else if (lab.position >= 0)
        snprintf(where, sizeof where, "At %d, '%c': ", (int)lab.position, mask[lab.position]);
    snprintf(text, sizeof text, "%s%s%s", where, VerdictWords(lab.verdict),
             IsTakenAllTheSame() ? " A modern control takes it." : "");
    Tell(ITEM_VERDICT, text);
    InvalidateRect(At(ITEM_VERDICT), NULL, TRUE); /* its colour may change where its text does not */
}

/* The settings are in the profile while the library reads: when it is told of a change, and when it is given a mask. */
static void ConfigureUnder(const Profile* settings, const char* mask)
{
    LentProfile lent;
    LendProfile(settings, &lent);
    SendMessageA(lab.live, WM_WININICHANGE, 0, (LPARAM) "intl");
    lab.verdict = ZTE_CheckMask(mask, Type(), &lab.position);
    InitLive(mask);
    ReturnProfile(&lent);
}

static void Configure(void)
{
    Profile settings;
    char mask[TEXT_ROOM];
    ReadSettings(&settings);
    Read(ITEM_MASK, mask, sizeof mask);
    lab.filling = TRUE;
    ConfigureUnder(&settings, mask);
    lab.filling = FALSE;
    TellVerdict(mask);
    InvalidateRect(lab.live, NULL, TRUE);
    TellAll();
}

/* The character that does not fit is selected, which is seen also without the focus; in a mask that fits nothing is. */
static void MarkFault(void)
{
    const int32_t length = GetWindowTextLengthA(At(ITEM_MASK));
    const int32_t from = lab.position < 0 || lab.position > length ? length : lab.position;
    SendMessageA(At(ITEM_MASK), EM_SETSEL, (WPARAM)from, (LPARAM)min(from + 1, length));
}

/* A value of one type is none of another one. */
static void ChangeType(void)
{
    lab.value[0] = '\0';
    Configure();
}

static void SetAutoskip(void)
{
    ZTE_SetAutoskip(lab.live, IsChecked(ITEM_AUTOSKIP) ? 1 : 0);
}

static void SetValue(void)
{
    char text[TEXT_ROOM], details[TEXT_ROOM + 100];
    int32_t reason;
    Read(ITEM_VALUE, text, sizeof text);
    reason = ZTE_TrySetDataString(lab.live, text);
    if (reason)
        snprintf(details, sizeof details, "\"%s\": %s (reason %d)", text, ReasonWords(reason), (int)reason);
    else
        snprintf(details, sizeof details, "\"%s\" is shown", text);
    Note("ZTE_TrySetDataString", details);
    TellAll();
}

/* ---- The gallery and the countries --------------------------------------------------------------------------------- */

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

/* ---- The window ---------------------------------------------------------------------------------------------------- */

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

/* ---- For scripts --------------------------------------------------------------------------------------------------- */

/* name left top right bottom, in screen pixels */
static void WritePlaces(const char* path)
{
    FILE* file = path ? fopen(path, "w") : NULL;
    RECT place;
    int item;
    if (!file)
        return;
    for (item = 0; item < ITEM_COUNT; ++item)
        if (ItemName((LabItem)item)[0]) {
            GetWindowRect(At((LabItem)item), &place);
            fprintf(file, "%s %ld %ld %ld %ld\n", ItemName((LabItem)item), place.left, place.top, place.right,
                    place.bottom);
        }
    fclose(file);
}

/* One line of text, whatever stands in it. */
static void WriteText(FILE* file, const char* text)
{
    for (; *text; ++text)
        if (*text != '\r')
            fputc(*text == '\n' || *text == '\t' ? ' ' : *text, file);
}

static void WriteList(FILE* file)
{
    const int count = (int)SendMessageA(At(ITEM_LIST), LB_GETCOUNT, 0, 0);
    char line[TEXT_ROOM];
    int i;
    for (i = 0; i < count; ++i) {
        SendMessageA(At(ITEM_LIST), LB_GETTEXT, (WPARAM)i, (LPARAM)line);
        if (i)
            fputs("; ", file);
        WriteText(file, line);
    }
}

/* name|what it shows; "focus" is the name of the item with the focus, "marked" what is selected in the mask */
static void WriteTable(const char* path)
{
    FILE* file = path ? fopen(path, "w") : NULL;
    const int focus = GetDlgCtrlID(GetFocus()) - FIRST_LAB_ID;
    DWORD from = 0, to = 0;
    char text[TEXT_ROOM];
    int item;
    if (!file)
        return;
    for (item = 0; item < ITEM_LIST; ++item) {
        Read((LabItem)item, text, sizeof text);
        fprintf(file, "%s|", ItemName((LabItem)item));
        WriteText(file, text);
        fputc('\n', file);
    }
    fputs("list|", file);
    WriteList(file);
    SendMessageA(At(ITEM_MASK), EM_GETSEL, (WPARAM)&from, (LPARAM)&to);
    fprintf(file, "\nmarked|%d-%d\n", (int)from, (int)to);
    fprintf(file, "focus|%s\nend|\n", focus >= 0 && focus < ITEM_COUNT ? ItemName((LabItem)focus) : "");
    fclose(file);
}

/* The table last: who sees it whole sees the places as well. */
static void TellScript(const char* placesPath, const char* tablePath)
{
    WritePlaces(placesPath);
    WriteTable(tablePath);
}

/* ---- The loop ------------------------------------------------------------------------------------------------------ */

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
        TellAll();
}

int RunLab(int show, const char* placesPath, const char* tablePath)
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
    }
    DeleteItemFonts();
    SharedHeapDestroy(lab.heap);
    return 0;
}
