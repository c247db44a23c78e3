/* ztedit.h - masked edit controls (ztedit050.dll)
 *
 * The ideas, in the words used below:
 *
 *   control    a window of the class "ZTEDIT050", or a standard edit control subclassed with ZTE_SuperEditWndProc, that has
 *              been configured with an EditInitParams record, at creation or later by ZTE_Init.
 *   mask       a text such as "MM/DD/YY" that says, position by position, what may be typed and which characters stand
 *              fixed; or a keyword such as "[date]" that expands from the regional settings. At most 255 characters.
 *   literal    a fixed character of the mask, shown as it stands and skipped by the caret; '~' makes the next one a literal.
 *   position   a place in the text shown, counted from 0.
 *   data type  what the text means: DT_STRING to DT_DECIMAL.
 *   canonical  the form in which values are handed in and out as text, the same under every mask and setting: "1995-07-04",
 *              "14:07:09:000250", "1995-07-04 14:07"; "-1234.5"; strings without the mask's literals.
 *   modern     the way of editing that ZTE_SetModern tells of; without it a control is classic.
 *
 * All functions are called on the thread that owns the control. For a window that is no control they do nothing and return
 * what is stated there. Nothing is thrown or logged and no message is shown; a refused key beeps. Without memory the process ends
 * in the system's no-memory exception, as in ztshared.h; a window that the system does not let be tied to its record stays a plain
 * edit.
 *
 * The parent gets two notifications as WM_COMMAND (control identifier in the low word, lParam the control):
 *   ZTN_AUTOSKIP  the last position was filled, or Right pressed at the end, while autoskip is on: move the focus on. Not sent
 *                 by a modern control that shows an invalid value.
 *   EN_CHANGE     after each step of the spin, beside those that the standard edit control sends; a modern control sends one
 *                 EN_UPDATE and one EN_CHANGE for each change of its text, however it is made, and none for what changes nothing.
 * and of a modern control two more as WM_NOTIFY, see below. It may destroy the control in any of them.
 *
 * A control's record and strings live in the heap given at creation, which the caller discards as a whole (usually one heap
 * per form). Results are blocks of that heap, to be freed with SharedHeapFree.
 *
 * What a host must not do, and what comes of it:
 *
 *   destroy the heap before the control   the control lets go of it and is a plain edit with its text from then on; results
 *                                         not yet freed are gone with the heap, as are the spin, its range and its table
 *   pass a heap that is none, or is gone  refused: the window stays a plain edit, ZTE_Init returns 0
 *   subclass a standard edit control with SetWindowLongPtrW
 *                                         use SetWindowLongPtrA: the procedure takes narrow texts. ZTE_Init refuses such a
 *                                         window where it can tell (by the procedure's address). A procedure of the host's
 *                                         own may be put before a control with either function.
 *   call from another thread than the control's, or use one heap from two threads
 *                                         not told, and not safe
 *   free the record, or write into it     not told, and not safe
 */
#ifndef ZTEDIT_H
#define ZTEDIT_H

#include <stdint.h>
#include <windows.h>

#include "ztdecimal.h"
#include "ztshared.h"
#include "ztvalues.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The version of these declarations; the library that runs tells its own, see ZTE_Initialize. */
#define ZTEDIT_VERSION_MAJOR 0
#define ZTEDIT_VERSION_MINOR 5
#define ZTEDIT_VERSION_PATCH 0
#define ZTEDIT_VERSION (ZTEDIT_VERSION_MAJOR * 65536 + ZTEDIT_VERSION_MINOR * 256 + ZTEDIT_VERSION_PATCH)

#define ZTEDIT_CLASS "ZTEDIT050"
#define ZTN_AUTOSKIP 0x0903

/* What the parent of a modern control hears as WM_NOTIFY; see ZTE_SetModern.
 *
 *   ZTN_REJECTED      an act of the user (a key, a paste, a step) was refused, once for each; lParam points to a ZTNotifyRejected.
 *                     Text, selection and modified flag are as they were before. Comes ahead of the beep; an answer other than 0
 *                     is taken for it. Nobody hears of keys that move, copy, or leave the field.
 *   ZTN_STATECHANGED  what ZTE_GetState returns has changed, by the user or by a call; lParam points to a ZTNotifyState. Comes
 *                     after EN_CHANGE; not while the control is created.
 *
 *     case WM_NOTIFY:
 *         if (((NMHDR*)lParam)->code == ZTN_REJECTED)
 *             ShowHint(((ZTNotifyRejected*)lParam)->reason);
 *         if (((NMHDR*)lParam)->code == ZTN_STATECHANGED)
 *             EnableWindow(ok, ((ZTNotifyState*)lParam)->is == ZTS_COMPLETE);
 *         return 0;
 */
#define ZTN_REJECTED 0x0904
#define ZTN_STATECHANGED 0x0905

typedef struct ZTNotifyRejected {
    NMHDR hdr;
    int32_t reason;    /* ZTR_ value */
    int32_t position;  /* the caret, the start of the selection, or in a pasted text the offset of what was refused */
    int32_t character; /* the character typed, 0 to 255; 0 for other acts, and for ZTR_NOT_IN_CODE_PAGE */
} ZTNotifyRejected;

typedef struct ZTNotifyState {
    NMHDR hdr;
    int32_t was; /* ZTS_ values */
    int32_t is;
} ZTNotifyState;

/* Configures a new control: the creation parameter of CreateWindowEx, or given to ZTE_Init. Only read; everything in it is
 * borrowed for the call except heap, which is to outlive the control. */
typedef struct EditInitParams {
    SharedHeap heap;
    uint32_t heapFlags;        /* handed to every allocation */
    uint32_t reserved;         /* not read */
    const char* maskText;      /* see ZTE_FmtSetMask; null for none */
    int32_t dataType;          /* DT_STRING to DT_DECIMAL */
    const char* initialData;   /* see ZTE_FmtSetDataString; null leaves the type's empty value */
    const char* spinRangeText; /* see ZTE_SetSpin; this and the next two count with ZTEO_SPIN only */
    uint32_t spinIncrement;
    const char* codeTableText;
    uint32_t options; /* ZTEO_ bits; only the lowest byte is read */
} EditInitParams;

/* What ZTE_FmtFormatData returns. Free the text, then the record, with SharedHeapFree. */
typedef struct FormatResult {
    char* text;            /* the display text */
    uint32_t formatFlags;  /* FORMAT_ bits */
    int32_t firstFieldPos; /* position at which editing starts: the first field, or a number's first digit or sign */
} FormatResult;

/* ---- The control --------------------------------------------------------------------------------------------------- */

/* To be called before the first control is created, best when the program starts. A program that makes its controls by the name of
 * their class alone would otherwise need no function of the library, so that its linker would leave the library out, and the class
 * would not exist. May be called any number of times; takes no memory, and nothing ends it.
 *
 * Returns the version of the library that runs, made like ZTEDIT_VERSION: 0x000500 is 0.5.0.
 *
 *     if (ZTE_Initialize() < ZTEDIT_VERSION)
 *         return Fail("ztedit050.dll is older than this program.");
 */
uint32_t WINAPI ZTE_Initialize(void);

/* The window procedure of "ZTEDIT050". May also subclass a standard edit control; call ZTE_Init afterwards. A window that
 * has not been configured behaves as a plain edit. */
LRESULT CALLBACK ZTE_SuperEditWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

/* Configures an existing window whose messages reach ZTE_SuperEditWndProc, for example one from a dialog template. A second
 * call configures the control anew. Returns 1; 0, and nothing is changed, without parameters, for a heap that is none, for a window
 * whose messages do not reach that procedure, and for one that gets wide texts (see above). ZTE_GetLastProblem tells which it was, and
 * after a 1 whether the mask and the type are those that were given.
 *
 *     EditInitParams p = {0};
 *     p.heap = heap;  p.maskText = "MM/DD/YY";  p.dataType = DT_DATE;  p.options = ZTEO_AUTOSKIP;
 *     ZTE_Init(GetDlgItem(dialog, IDC_DUE), &p);
 */
int32_t WINAPI ZTE_Init(HWND hwnd, const EditInitParams* params);

/* Why a window is no control, or not the one that was asked for: of the last ZTE_Init, of the creation with CreateWindowEx, or of the
 * last ZTE_FmtSetMask, whichever came last. Returns a ZTP_ value; ZTP_NONE when all is as it was asked for, and for what is no window.
 *
 *     HWND due = CreateWindowExA(..., ZTEDIT_CLASS, ..., &params);
 *     assert(ZTE_GetLastProblem(due) == ZTP_NONE);
 */
int32_t WINAPI ZTE_GetLastProblem(HWND hwnd);

/* Turns autoskip on or off. Only bit 0 of on counts, on purpose: 2 turns it off, 3 on. */
void WINAPI ZTE_SetAutoskip(HWND hwnd, uint32_t on);

/* Narrows the formatting rectangle of a control with a spin, so that text never runs under the arrows. Setting data does
 * this by itself; call it after changing the formatting rectangle from outside. Controls of one line take no formatting
 * rectangle: their right margin holds the spin's strip, beside the host's own margin, of which alone EM_SETMARGINS and
 * EM_GETMARGINS speak. */
void WINAPI ZTE_UtilSetFormatRect(HWND hwnd);

/* ---- Mask and data ------------------------------------------------------------------------------------------------- */

/* Installs an edit mask and shows the type's empty value under it. A string control with an empty mask, its values not shown
 * through a code table, is a plain edit: all that the user does goes to the standard edit control underneath.
 *
 * mask      mask text or one of the keywords "[date]", "[time]", "[date] [time]", "[currency(n)]" (n digits, at most 16);
 *           null counts as empty. Borrowed for the call; no more than 256 characters of it are read. The part of a number's
 *           mask before its point is the room for what may be typed there, separators included, a sign not: "#,#.00" takes
 *           123, "#,##0.00" takes 9,999.
 * dataType  DT_STRING to DT_DECIMAL.
 *
 * Returns 1 when the mask was installed, 0 when it does not fit the type and the type's default stands in: none for
 * strings, "#,#.00" for numbers and decimals, "MM/DD/YY", "HH:MM:SS:FFF", "MM/DD/YY HH:MM:SS:FFF". 1 for a window that is
 * no control.
 */
int32_t WINAPI ZTE_FmtSetMask(HWND hwnd, const char* mask, int32_t dataType);

/* Tells whether a mask fits a data type under the regional settings of the moment, without a control.
 *
 * mask, dataType  as for ZTE_FmtSetMask.
 * position        filled, where it is not null, with the offset in the mask of what does not fit: the length of the mask where
 *                 something is missing behind it, -1 for a mask that fits.
 *
 * Returns ZTM_FITS, or the ZTM_ value of what is wrong first. No mask at all fits strings alone.
 *
 *     int32_t position;
 *     if (ZTE_CheckMask("MM/DD", DT_DATE, &position) == ZTM_FIELD_MISSING)
 *         ...  there is no year; position is 5
 */
int32_t WINAPI ZTE_CheckMask(const char* mask, int32_t dataType, int32_t* position);

/* Shows a value. data points to a value of the control's type (see DT_STRING ...); null shows the empty value, 0 for
 * numbers. The result carries no status; 0 for a window that is no control. */
int32_t WINAPI ZTE_FmtSetData(HWND hwnd, const void* data);

/* Shows a value given as text. Strings: as it stands. Numbers and decimals: canonical text, '.' being the point whatever the
 * settings ("1234.5"); any other text that the control shows or returns under the regional settings is the number that it
 * shows ("1,234.50", "98,70", "12.5%"), so that what was read can be handed in again; of anything else what follows a number
 * is no matter. Dates and times: the display text of the mask, or canonical text; a text that is neither shows the empty
 * value. */
int32_t WINAPI ZTE_FmtSetDataString(HWND hwnd, const char* text);

/* Reads the value shown.
 *
 * Returns a block of the control's heap that the caller frees: for strings the text without literals; for numbers and
 * decimals the number as text, with the regional decimal character, a percentage as the fraction it stands for, to the last
 * digit; a number of zeros alone has no sign, also while one is shown; for dates and times a DateTimeValue. Null for a
 * window that is no control and for the empty date; midnight reads as null in a DT_TIME control, on purpose.
 *
 * A modern control gives a value or none: null for an empty, incomplete or invalid date or time and for a number that is only a
 * sign, and a DateTimeValue for midnight.
 */
void* WINAPI ZTE_FmtGetData(HWND hwnd);

/* The control's data type, 0 for a window that is no control. */
uint16_t WINAPI ZTE_FmtGetDataType(HWND hwnd);

/* Formats a value as ZTE_FmtSetData would show it, without touching the window text. Null for a window that is no control. */
FormatResult* WINAPI ZTE_FmtFormatData(HWND hwnd, const void* data);

/* Reads a text of the caller's as if the control showed it. Results as ZTE_FmtGetData, except that dates and times are read
 * as canonical text only (an unreadable one gives the empty DateTimeValue), and a percentage is not divided. Null for an
 * empty or null text. Modern controls read in the same way. */
void* WINAPI ZTE_FmtUnformatData(HWND hwnd, const char* text);

/* ---- Modern editing ------------------------------------------------------------------------------------------------ */

/* Turns modern editing on or off; ZTEO_MODERN at creation turns it on from the start. It is another reading of the same keys, of
 * the clipboard, of the mouse and of data: what is refused changes nothing and is told (ZTN_REJECTED), what is changed can be
 * undone and redone, literals always stand, unfilled positions are shown as blanks instead of zeros, a date is edited field by
 * field, and the control knows the state of its value.
 *
 * on  not 0: modern; 0: classic.
 *
 * Returns what it was, 1 or 0; 0 for a window that is no control. What the positions hold stays and is laid anew: a blank display
 * of zeros becomes the empty value, and the other way round. The undo history is emptied. The parent may call it in a
 * notification: what led to that ends there.
 *
 *     ZTE_SetModern(GetDlgItem(dialog, IDC_DUE), 1);
 */
int32_t WINAPI ZTE_SetModern(HWND hwnd, int32_t on);

/* What can be said of the value shown: ZTS_EMPTY, ZTS_INCOMPLETE, ZTS_INVALID, ZTS_OUT_OF_RANGE or ZTS_COMPLETE, judged in this
 * order; the control is not changed. -1 for a window that is no control. In a classic control zeros are all that empty can be
 * told by: 00:00 is empty there.
 *
 *     if (ZTE_GetState(due) != ZTS_COMPLETE)
 *         SetFocus(due);
 */
int32_t WINAPI ZTE_GetState(HWND hwnd);

/* Shows a value given as text where the text is one, and changes nothing where it is none.
 *
 * text  canonical; else what a user might paste (a date or a number in the usual forms, a string with its literals). Null or ""
 *       for the empty value. Borrowed for the call.
 *
 * Returns 0 when the value is shown, else the ZTR_ reason; ZTR_DOES_NOT_FIT for a window that is no control. As with all data the
 * text counts as not modified, there is nothing to undo, and no ZTN_REJECTED is sent.
 *
 *     if (ZTE_TrySetDataString(due, line) == ZTR_DOES_NOT_EXIST)
 *         Complain("There is no such day.");
 */
int32_t WINAPI ZTE_TrySetDataString(HWND hwnd, const char* text);

/* Reads the value shown as canonical text. Numbers as the digits shown with '.' as the point, at least one digit before it, a
 * percentage as the fraction that it stands for; times as HH:MM:SS, with microseconds behind ':' where there are any; strings
 * without literals and without blanks at their end, also while they are incomplete. Handed to ZTE_TrySetDataString it changes
 * nothing.
 *
 * Returns a block of the control's heap that the caller frees: "" for the empty value. Null for an incomplete or invalid value and
 * for a window that is no control.
 *
 *     char* text = ZTE_GetDataString(due);
 *     Store(text);
 *     SharedHeapFree(heap, text);
 */
char* WINAPI ZTE_GetDataString(HWND hwnd);

/* ---- Spin ---------------------------------------------------------------------------------------------------------- */

/* Sets up what the spin steps.
 *
 * increment  the step; 0 is taken as 1.
 * range      "minimum~maximum", either side may be empty. For numbers a maximum of 0 means none; the minimum is 0 when not
 *            given. For dates and times each end is in the mask's layout or canonical. Null leaves number bounds as they were.
 * codeTable  entries separated by '/', each a display text, a tab and a data value; "//" is a literal '/'. The value "null!"
 *            stands for no data. Null for none.
 * style      SPINSTYLE_ bits; other bits are ignored.
 */
void WINAPI ZTE_SetSpin(HWND hwnd, uint32_t increment, const char* range, const char* codeTable, uint32_t style);

/* Creates and shows the spin of a control that has none. */
void WINAPI ZTE_CreateSpin(HWND hwnd);

/* Destroys the spin; the range text and the code table go with it, so a later spin needs ZTE_SetSpin again. */
void WINAPI ZTE_DestroySpin(HWND hwnd);

/* Paints the control's spin into dc. rect null: the client rectangle of the spin window. */
void WINAPI ZTE_PaintSpin(HWND hwnd, HDC dc, const RECT* rect);

/* Paints an unpressed spin into rect without a control. Returns the width of its buttons in pixels. */
int16_t WINAPI ZTE_PaintSpinOnce(const RECT* rect, HDC dc);

/* The width in pixels, always even, that a spin of the rectangle's height gets. rect null: the spin window's client
 * rectangle. 0 for a window that is no control. */
int16_t WINAPI ZTE_GetSpinWidth(HWND hwnd, const RECT* rect);

/* The background colour of the spin; 0 (black) leaves the background to the window class. Takes effect at the next paint. */
void WINAPI ZTE_SetSpinBkColor(HWND hwnd, COLORREF colour);

/* Reads an end of a date or time range, in the mask's layout or canonical. Returns 0 on success, and fills value. */
int16_t WINAPI ZTE_SpinDateRange(HWND hwnd, DateTimeValue* value, const char* text);

/* Returns 1 when second is earlier or smaller than first, else 0; ends without a date or time, and zero numbers, are never
 * out of order. Points to doubles for numbers and decimals, to DateTimeValues for dates and times. 1 for a window that is no
 * control. */
int16_t WINAPI ZTE_SpinRangeCompare(HWND hwnd, const void* first, const void* second);

/* The window procedure of the class "spin". */
LRESULT CALLBACK ZTE_SpinWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

/* Library exit procedure; does nothing. */
int32_t WINAPI WEP(int32_t argument);

#ifdef __cplusplus
}
#endif

#endif
