/* The control of the laboratory: configured, followed, and heard. */
#include "lab_control.h"

#include <stdio.h>
#include <string.h>

#include "profile.h"
#include "table_lines.h"
#include "words.h"

enum { LIST_LENGTH = 500 };

/* ---- Notifications ------------------------------------------------------------------------------------------------ */

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

void EmptyList(void)
{
    SendMessageA(At(ITEM_LIST), LB_RESETCONTENT, 0, 0);
}

void NoteChange(void)
{
    char text[TEXT_ROOM];
    GetWindowTextA(lab.live, text, sizeof text);
    Note("EN_CHANGE", text);
    lab.touched = TRUE;
}

void NoteFull(void)
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

void OnNotify(const NMHDR* header)
{
    if (lab.filling)
        return;
    if (header->code == ZTN_REJECTED)
        NoteRejected((const ZTNotifyRejected*)header);
    else if (header->code == ZTN_STATECHANGED)
        NoteState((const ZTNotifyState*)header);
}

/* ---- What the control says ---------------------------------------------------------------------------------------- */

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
    Tell(ITEM_DATA_STRING, text ? text : "(none)");
    SharedHeapFree(lab.heap, text);
}

/* Where the user has changed it; what a mask half typed leaves of a value is not what it was. */
static void KeepValue(void)
{
    char* text = ZTE_GetDataString(lab.live);
    snprintf(lab.value, sizeof lab.value, "%s", text ? text : "");
    SharedHeapFree(lab.heap, text);
    lab.touched = FALSE;
}

static void TellAll(void)
{
    TellText();
    Tell(ITEM_STATE, StateWord(ZTE_GetState(lab.live)));
    TellDataString();
    TellData();
    Tell(ITEM_PROBLEM, ProblemWords(ZTE_GetLastProblem(lab.live)));
}

void FollowLive(void)
{
    if (lab.touched)
        KeepValue();
    TellAll();
}

/* ---- Configuring -------------------------------------------------------------------------------------------------- */

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

BOOL IsTakenAllTheSame(void)
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

void Configure(void)
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
    UpdateWindow(lab.live); /* the first paint places a spin, which may be clicked at once */
    TellAll();
}

void MarkFault(void)
{
    const int32_t length = GetWindowTextLengthA(At(ITEM_MASK));
    const int32_t from = lab.position < 0 || lab.position > length ? length : lab.position;
    SendMessageA(At(ITEM_MASK), EM_SETSEL, (WPARAM)from, (LPARAM)min(from + 1, length));
}

/* A value of one type is none of another one. */
void ChangeType(void)
{
    lab.value[0] = '\0';
    Configure();
}

void SetAutoskip(void)
{
    ZTE_SetAutoskip(lab.live, IsChecked(ITEM_AUTOSKIP) ? 1 : 0);
}

void SetValue(void)
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
    KeepValue();
    TellAll();
}
