/* The demo form: one labelled masked edit for each kind of field, and a status line that shows the notifications as they
 * arrive: what was refused and why, and the state of the field. The focus moves on when a field says that it is full.
 *
 *   demo.exe [--lab] [--classic] [--places FILE] [--table FILE] [--mouse FILE]
 *     --lab           the laboratory instead of the form, see lab.c
 *     --classic       the fields are edited in the classic way
 *     --places FILE   where the fields stand on the screen is written there when the form is shown, for scripts
 *     --table FILE    what each field shows, the value read back and the state are written there at F2
 *                     (F3 shows the first value of the field that has the focus again)
 *     --mouse FILE    how many mouse buttons have been released and wheels turned, written there as they come
 */
#include <stdio.h>
#include <string.h>

#include "fields.h"
#include "lab.h"
#include "mouse_count.h"
#include "words.h"

enum {
    FIRST_ID = 100,
    MARGIN = 20,
    LABEL_WIDTH = 140,
    FIELD_WIDTH = 210,
    ROW_HEIGHT = 36,
    FIELD_HEIGHT = 24,
    COLUMN_GAP = 36,
    STATUS_HEIGHT = 26,
    COLUMNS = 2,
};

typedef struct Form {
    SharedHeap heap; /* of all the fields: one heap per form */
    HWND window;
    HWND status;
    HFONT font;
    HWND lastFocus;
} Form;

static Form form;
static const char* tablePath;
static const char* mousePath;
static const char* placesPath;
static BOOL classic;
static BOOL lab;

static int RowsPerColumn(void)
{
    return (kFieldCount + COLUMNS - 1) / COLUMNS;
}

static POINT PlaceOf(int index)
{
    POINT place;
    place.x = MARGIN + index / RowsPerColumn() * (LABEL_WIDTH + FIELD_WIDTH + COLUMN_GAP);
    place.y = MARGIN + index % RowsPerColumn() * ROW_HEIGHT;
    return place;
}

static HWND AddChild(const char* class, const char* text, DWORD style, RECT place, int id, void* params)
{
    const HWND child = CreateWindowExA(strcmp(class, ZTEDIT_CLASS) == 0 ? WS_EX_CLIENTEDGE : 0, class, text,
                                       WS_CHILD | WS_VISIBLE | style, place.left, place.top, place.right, place.bottom,
                                       form.window, (HMENU)(INT_PTR)id, GetModuleHandleA(NULL), params);
    SendMessageA(child, WM_SETFONT, (WPARAM)form.font, FALSE);
    return child;
}

static void AddField(int index)
{
    const Field* field = &kFields[index];
    const POINT at = PlaceOf(index);
    const RECT label = {at.x, at.y + 4, LABEL_WIDTH, FIELD_HEIGHT};
    const RECT edit = {at.x + LABEL_WIDTH, at.y, FIELD_WIDTH, FIELD_HEIGHT};
    EditInitParams params = {0};
    params.heap = form.heap;
    params.maskText = field->mask;
    params.dataType = field->type;
    params.initialData = field->data;
    params.spinRangeText = field->range;
    params.spinIncrement = field->increment;
    params.codeTableText = field->codeTable;
    params.options = field->options | ZTEO_AUTOSKIP | (classic ? 0 : ZTEO_MODERN);
    AddChild("static", field->label, SS_LEFT, label, -1, NULL);
    AddChild(ZTEDIT_CLASS, "", WS_TABSTOP | ES_AUTOHSCROLL | WS_CLIPCHILDREN, edit, FIRST_ID + index, &params);
}

static HWND FieldWindow(int index)
{
    return GetDlgItem(form.window, FIRST_ID + index);
}

static void AddStatus(void)
{
    RECT client, place;
    GetClientRect(form.window, &client);
    place.left = 0;
    place.top = client.bottom - STATUS_HEIGHT;
    place.right = client.right;
    place.bottom = STATUS_HEIGHT;
    form.status = AddChild("static", "  Ready", SS_LEFT | SS_SUNKEN | SS_CENTERIMAGE, place, -1, NULL);
}

static void CreateForm(HWND window)
{
    int i;
    form.window = window;
    form.heap = SharedHeapCreate();
    form.font = CreateFontA(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                            CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, VARIABLE_PITCH | FF_SWISS, "Liberation Sans");
    for (i = 0; i < kFieldCount; ++i)
        AddField(i);
    AddStatus();
}

static const char* StateName(int index)
{
    return StateWord(ZTE_GetState(FieldWindow(index)));
}

static void WriteTable(void)
{
    char shown[256], value[256];
    int i;
    FILE* file = tablePath ? fopen(tablePath, "w") : NULL;
    if (!file)
        return;
    for (i = 0; i < kFieldCount; ++i) {
        GetWindowTextA(FieldWindow(i), shown, sizeof shown);
        ReadValue(FieldWindow(i), form.heap, value, sizeof value);
        fprintf(file, "%s|%s|%s|%s|%s\n", kFields[i].name, kFields[i].label, shown, value, StateName(i));
    }
    fclose(file);
}

static void ShowFirstValue(HWND window)
{
    int i;
    for (i = 0; i < kFieldCount; ++i)
        if (FieldWindow(i) == window)
            ZTE_FmtSetDataString(window, kFields[i].data);
}

static void OnFunctionKey(WPARAM key)
{
    if (key == VK_F2)
        WriteTable();
    else if (key == VK_F3)
        ShowFirstValue(GetFocus());
}

/* name left top right bottom, in screen pixels */
static void WritePlaces(void)
{
    RECT place;
    int i;
    FILE* file = placesPath ? fopen(placesPath, "w") : NULL;
    if (!file)
        return;
    for (i = 0; i < kFieldCount; ++i) {
        GetWindowRect(FieldWindow(i), &place);
        fprintf(file, "%s %ld %ld %ld %ld\n", kFields[i].name, place.left, place.top, place.right, place.bottom);
    }
    fclose(file);
}

static const char* NotificationName(WORD code)
{
    switch (code) {
    case ZTN_AUTOSKIP: return "0x0903 (field full, focus moves on)";
    case EN_CHANGE: return "EN_CHANGE";
    default: return NULL;
    }
}

static void ShowStatus(int index, const char* what)
{
    char text[250], shown[100];
    GetWindowTextA(FieldWindow(index), shown, sizeof shown);
    snprintf(text, sizeof text, "  %s: %s   %s   %s", kFields[index].label, shown, StateName(index), what);
    SetWindowTextA(form.status, text);
}

static BOOL IsField(int index)
{
    return index >= 0 && index < kFieldCount && form.status;
}

static void OnNotification(WORD id, WORD code, HWND control)
{
    const char* name = NotificationName(code);
    if (!name || !IsField(id - FIRST_ID))
        return;
    ShowStatus(id - FIRST_ID, name);
    if (code == ZTN_AUTOSKIP) {
        const HWND next = GetNextDlgTabItem(form.window, control, FALSE);
        SetFocus(next);
        SendMessageA(next, EM_SETSEL, 0, -1);
    }
}

/* What was refused is told in the status line, and the beep left to the field. */
static void OnRefused(const ZTNotifyRejected* refused)
{
    char what[100];
    snprintf(what, sizeof what, "refused: %s", ReasonWords(refused->reason));
    if (IsField((int)refused->hdr.idFrom - FIRST_ID))
        ShowStatus((int)refused->hdr.idFrom - FIRST_ID, what);
}

static void OnNotify(const NMHDR* header)
{
    if (header->code == ZTN_REJECTED)
        OnRefused((const ZTNotifyRejected*)header);
    else if (header->code == ZTN_STATECHANGED && IsField((int)header->idFrom - FIRST_ID))
        ShowStatus((int)header->idFrom - FIRST_ID, "");
}

static void OnActivate(BOOL active)
{
    if (!active)
        form.lastFocus = GetFocus();
    else
        SetFocus(form.lastFocus ? form.lastFocus : FieldWindow(0));
}

static LRESULT CALLBACK FormProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE: CreateForm(window); return 0;
    case WM_COMMAND: OnNotification(LOWORD(wParam), HIWORD(wParam), (HWND)lParam); return 0;
    case WM_NOTIFY: OnNotify((const NMHDR*)lParam); return 0;
    case WM_ACTIVATE: OnActivate(LOWORD(wParam) != WA_INACTIVE); return 0;
    case WM_DESTROY: PostQuitMessage(0); return 0;
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

static void ReadArguments(int count, char** arguments)
{
    int i;
    for (i = 1; i < count; ++i) {
        if (strcmp(arguments[i], "--classic") == 0)
            classic = TRUE;
        else if (strcmp(arguments[i], "--lab") == 0)
            lab = TRUE;
        else if (strcmp(arguments[i], "--table") == 0 && i + 1 < count)
            tablePath = arguments[++i];
        else if (strcmp(arguments[i], "--mouse") == 0 && i + 1 < count)
            mousePath = arguments[++i];
        else if (strcmp(arguments[i], "--places") == 0 && i + 1 < count)
            placesPath = arguments[++i];
    }
}

static HWND OpenForm(HINSTANCE instance)
{
    const DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    RECT size = {0, 0, 0, 0};
    WNDCLASSA formClass = {0};
    formClass.lpfnWndProc = FormProc;
    formClass.hInstance = instance;
    formClass.hCursor = LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    formClass.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    formClass.lpszClassName = "MaskedEditDemo";
    RegisterClassA(&formClass);
    size.right = 2 * MARGIN + COLUMNS * (LABEL_WIDTH + FIELD_WIDTH) + COLUMN_GAP;
    size.bottom = 2 * MARGIN + RowsPerColumn() * ROW_HEIGHT + STATUS_HEIGHT;
    AdjustWindowRect(&size, style, FALSE);
    return CreateWindowExA(0, formClass.lpszClassName, "Masked edit fields", style, 40, 40, size.right - size.left,
                           size.bottom - size.top, NULL, NULL, instance, NULL);
}

static void Run(void)
{
    MSG message;
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        if (message.message == WM_KEYDOWN)
            OnFunctionKey(message.wParam);
        if (!IsDialogMessageA(form.window, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        CountMouse(message.message, mousePath);
    }
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show)
{
    (void)previous;
    (void)commandLine;
    ReadArguments(__argc, __argv);
    if (lab)
        return RunLab(show, placesPath, tablePath, mousePath);
    /* The form links the control library by calling it; loading it has registered the class. */
    ShowWindow(OpenForm(instance), show);
    UpdateWindow(form.window);
    WritePlaces();
    Run();
    DeleteObject(form.font);
    SharedHeapDestroy(form.heap);
    return 0;
}
