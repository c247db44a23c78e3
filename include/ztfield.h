/* ztfield.h - masked fields without a window (libztfield; ztfield.wasm)
 *
 * The engine of the masked edit control as a library of its own: what the control does with a key, a paste or a value, a field here
 * does in memory, so that a program draws it as it likes: on a terminal, in a web page, in a toolkit of its own.
 *
 *   texts       are UTF-8 and end with a NUL. One code point is one position of a field, whatever its bytes: positions, lengths and
 *               carets are counted in code points, from 0. Bytes that are no UTF-8 stand for U+FFFD each. Texts handed in are borrowed
 *               for the call; null counts as none.
 *   texts out   are written into a buffer of the caller's, size bytes with the NUL, never cut within a code point. What is returned is
 *               the number of bytes that the whole text has, without the NUL: size or more means that it was cut; a null buffer with
 *               the size 0 asks for the length alone.
 *   a field     belongs to the thread that uses it. Different fields, and different settings, may be used by different threads at the
 *               same time: nothing is shared between them.
 *   null        for a field or for settings does nothing and gives 0, -1 or "" as stated.
 *   memory      Nothing is thrown. A library that gets no memory ends the program.
 *
 * Masks, data types, canonical texts, states, reasons and spins are those of the masked edit control (ztvalues.h, and the manual). In
 * a modern field '.' and ',' in a number's mask stand for the point and the separators of the settings: "#,##0.00" serves every country.
 *
 *     ZTFieldSetup setup = {0};
 *     setup.mask = "MM/DD/YYYY";
 *     setup.dataType = DT_DATE;
 *     setup.options = ZTEO_MODERN;
 *     ZTField* due = ZTF_Create(&setup);
 *     ZTF_Type(due, "7/4/2026");
 *     char text[64];
 *     ZTF_GetText(due, text, sizeof text);        "07/04/2026"
 *     ZTF_GetDataString(due, text, sizeof text);  "2026-07-04"
 *     ZTF_Destroy(due);
 */
#ifndef ZTFIELD_H
#define ZTFIELD_H

#include <stdint.h>

#include "ztvalues.h"

#if defined(__GNUC__)
#define ZTF_API __attribute__((visibility("default")))
#else
#define ZTF_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The version of these declarations; ZTF_Version tells that of the library. */
#define ZTFIELD_VERSION_MAJOR 0
#define ZTFIELD_VERSION_MINOR 5
#define ZTFIELD_VERSION_PATCH 0
#define ZTFIELD_VERSION (ZTFIELD_VERSION_MAJOR * 65536 + ZTFIELD_VERSION_MINOR * 256 + ZTFIELD_VERSION_PATCH)

typedef struct ZTField ZTField;
typedef struct ZTFieldSettings ZTFieldSettings;

/* Made like ZTFIELD_VERSION: 0x000500 is 0.5.0. */
ZTF_API uint32_t ZTF_Version(void);

/* ---- Regional settings --------------------------------------------------------------------------------------------- */

/* What can be set, and to what. A text that is longer than its room is cut. */
#define ZTF_DECIMAL 1           /* the decimal character, one code point; "." */
#define ZTF_THOUSANDS 2         /* between groups of three digits, one code point; "," */
#define ZTF_CURRENCY 3          /* the currency symbol, at most 255 code points; "$" */
#define ZTF_CURRENCY_POSITION 4 /* "0" and "2" before the digits, "1" and "3" behind them; "0" */
#define ZTF_CURRENCY_DIGITS 5   /* the fraction digits of an amount of money, at most 16; "2" */
#define ZTF_AM 6                /* the halves of the day, at most 4 code points; "AM" */
#define ZTF_PM 7                /* "PM" */
#define ZTF_SHORT_DATE 8        /* the picture of the mask "[date]", at most 99 code points; "m/d/yy" */
#define ZTF_TIME_SEPARATOR 9    /* of the mask "[time]", at most 9 code points; ":" */
#define ZTF_MONTHS 10           /* the twelve names under "MMM", parted by '/'; "JAN/FEB/MAR/APR/MAY/JUN/JUL/AUG/SEP/OCT/NOV/DEC" */

/* Settings as the defaults above have them; to be destroyed with ZTF_DestroySettings. */
ZTF_API ZTFieldSettings* ZTF_CreateSettings(void);
ZTF_API void ZTF_DestroySettings(ZTFieldSettings* settings);

/* Changes one. Returns 1; 0, and nothing is changed, for a setting that there is not and for a value that it cannot have (no code
 * point where one is wanted, other numbers than those above, not twelve names). Fields that were made with the settings before keep
 * what they have: see ZTF_UseSettings.
 *
 *     ZTFieldSettings* german = ZTF_CreateSettings();
 *     ZTF_SetSetting(german, ZTF_DECIMAL, ",");
 *     ZTF_SetSetting(german, ZTF_THOUSANDS, ".");
 */
ZTF_API int32_t ZTF_SetSetting(ZTFieldSettings* settings, int32_t setting, const char* value);
ZTF_API int32_t ZTF_GetSetting(const ZTFieldSettings* settings, int32_t setting, char* buffer, int32_t size);

/* ---- Fields -------------------------------------------------------------------------------------------------------- */

/* What a field tells the program around it, in the order in which it happens. */
#define ZTF_CHANGED 1  /* the text has changed */
#define ZTF_BEEP 2     /* an act was refused, and nobody has taken ZTF_REJECTED for it */
#define ZTF_FULL 3     /* the last position was filled, or Right pressed at the end, while ZTEO_AUTOSKIP is on: move the focus on */
#define ZTF_STEPPED 4  /* the spin has made a step, refused or not */
#define ZTF_REJECTED 5 /* modern: an act of the user was refused; reason, position and character tell what */
#define ZTF_STATE 6    /* modern: what ZTF_GetState returns has changed from was to is */
#define ZTF_VALUE 7    /* modern: another value stands there than was typed: by a step, a choice, an undo */

typedef struct ZTFieldEvent {
    int32_t kind;       /* ZTF_CHANGED to ZTF_VALUE */
    int32_t reason;     /* ZTR_ value, of ZTF_REJECTED */
    int32_t position;   /* of ZTF_REJECTED: the caret, or in a pasted text the offset of what was refused */
    uint32_t character; /* of ZTF_REJECTED: the code point typed, 0 for other acts */
    int32_t was;        /* ZTS_ values, of ZTF_STATE */
    int32_t is;
} ZTFieldEvent;

/* Hears events; may ask the field, but not change it nor destroy it. What it returns counts for ZTF_REJECTED alone: not 0, and the
 * field does not beep. */
typedef int32_t (*ZTFieldListener)(void* context, ZTField* field, const ZTFieldEvent* event);

/* How a field is made; all zero is a string without a mask. Everything is borrowed for the call, but for the listener and its
 * context, which are kept. */
typedef struct ZTFieldSetup {
    const char* mask;
    int32_t dataType; /* DT_STRING to DT_DECIMAL; 0 counts as DT_STRING */
    uint32_t options; /* ZTEO_ bits */
    const char* data; /* see ZTF_SetDataString; null leaves the empty value */
    const char* range; /* see ZTF_SetSpin; this and the next two count with ZTEO_SPIN only */
    uint32_t increment;
    const char* codeTable;
    const ZTFieldSettings* settings; /* null for the defaults */
    ZTFieldListener listener;        /* null for none */
    void* context;
} ZTFieldSetup;

/* Makes a field; setup null counts as all zero. A mask that does not fit its type is told by
 * ZTF_CheckMask: the type's default stands in. */
ZTF_API ZTField* ZTF_Create(const ZTFieldSetup* setup);
ZTF_API void ZTF_Destroy(ZTField* field);

/* Takes other settings over; null for the defaults. The mask is read anew under them and the value is laid under it. */
ZTF_API void ZTF_UseSettings(ZTField* field, const ZTFieldSettings* settings);

/* Installs a mask and shows the empty value under it. 1, or 0 when the type's default stands in: of strings no mask at all. */
ZTF_API int32_t ZTF_SetMask(ZTField* field, const char* mask, int32_t dataType);
/* The mask in force: of a keyword what it stands for. */
ZTF_API int32_t ZTF_GetMask(const ZTField* field, char* buffer, int32_t size);
ZTF_API int32_t ZTF_GetDataType(const ZTField* field);

/* Modern editing on or off; what it was is returned. */
ZTF_API int32_t ZTF_SetModern(ZTField* field, int32_t on);
ZTF_API void ZTF_SetAutoskip(ZTField* field, int32_t on);
/* A field that takes nothing from its user. */
ZTF_API void ZTF_SetReadOnly(ZTField* field, int32_t on);

/* What the spin steps: as ZTE_SetSpin of the control. increment 0 counts as 1; range "minimum~maximum"; codeTable entries parted by
 * '/', each a display text, a tab and a data value; style SPINSTYLE_ bits. */
ZTF_API void ZTF_SetSpin(ZTField* field, uint32_t increment, const char* range, const char* codeTable, uint32_t style);
/* Whether there is a spin that Up, Down, a wheel and ZTF_Step move. Without it the range and the code table are gone too. */
ZTF_API void ZTF_ShowSpin(ZTField* field, int32_t on);

/* ---- Values -------------------------------------------------------------------------------------------------------- */

/* Shows a value given as text, as ZTE_FmtSetDataString does: canonical, or display text; what is neither shows the empty value. */
ZTF_API void ZTF_SetDataString(ZTField* field, const char* text);
/* The same where the text is a value, and no change where it is none. 0, or the ZTR_ reason. */
ZTF_API int32_t ZTF_TrySetDataString(ZTField* field, const char* text);
/* The value shown as canonical text, "" for the empty value. -1 for an incomplete or invalid value. */
ZTF_API int32_t ZTF_GetDataString(const ZTField* field, char* buffer, int32_t size);
/* The value as the control's ZTE_FmtGetData gives it, a date or time as canonical text: "" where it has none of both. -1 for null. */
ZTF_API int32_t ZTF_ReadData(const ZTField* field, char* buffer, int32_t size);
/* Reads a text as if the field showed it, as the control's ZTE_FmtUnformatData does: strings without literals; dates and times as
 * canonical text only. -1 for null and an empty text. */
ZTF_API int32_t ZTF_ReadText(const ZTField* field, const char* text, char* buffer, int32_t size);
/* ZTS_ value; -1 for null. */
ZTF_API int32_t ZTF_GetState(const ZTField* field);

/* ---- What the user does -------------------------------------------------------------------------------------------- */

/* Keys by the numbers under which Windows reports them, and what is held down meanwhile. */
#define ZTF_KEY_BACKSPACE 0x08
#define ZTF_KEY_PAGE_UP 0x21
#define ZTF_KEY_PAGE_DOWN 0x22
#define ZTF_KEY_END 0x23
#define ZTF_KEY_HOME 0x24
#define ZTF_KEY_LEFT 0x25
#define ZTF_KEY_UP 0x26
#define ZTF_KEY_RIGHT 0x27
#define ZTF_KEY_DOWN 0x28
#define ZTF_KEY_INSERT 0x2D
#define ZTF_KEY_DELETE 0x2E
#define ZTF_KEY_KEYPAD_POINT 0x6E
#define ZTF_SHIFT 1
#define ZTF_CONTROL 2

/* A key pressed and released with the character that it makes: of Backspace, of Ctrl with a letter ('A' to 'Z') and of the keypad's
 * point. Other characters come by ZTF_Type. */
ZTF_API void ZTF_Press(ZTField* field, int32_t key, int32_t held);
/* The halves of a key, and a character by itself, for programs that get them apart. A key that goes down once more, and has not come up,
 * is one that is held: its steps are undone together. */
ZTF_API void ZTF_KeyDown(ZTField* field, int32_t key, int32_t held);
ZTF_API void ZTF_KeyUp(ZTField* field, int32_t key, int32_t held);
ZTF_API void ZTF_Character(ZTField* field, uint32_t codePoint);
/* Characters, one after another, as typed. */
ZTF_API void ZTF_Type(ZTField* field, const char* text);

/* The clipboard is the field's own: a program puts there what the system's holds, and takes from there what was cut or copied. -1 where
 * it holds no text. */
ZTF_API void ZTF_SetClipboard(ZTField* field, const char* text);
ZTF_API int32_t ZTF_GetClipboard(const ZTField* field, char* buffer, int32_t size);
/* What a menu does with it, and with the selection. */
ZTF_API void ZTF_Paste(ZTField* field);
ZTF_API void ZTF_Cut(ZTField* field);
ZTF_API void ZTF_Copy(ZTField* field);
ZTF_API void ZTF_Clear(ZTField* field);
ZTF_API void ZTF_Undo(ZTField* field);
ZTF_API void ZTF_Redo(ZTField* field);
ZTF_API int32_t ZTF_CanUndo(const ZTField* field);
ZTF_API int32_t ZTF_CanRedo(const ZTField* field);

/* The mouse, by the position in front of which it clicks. */
ZTF_API void ZTF_Click(ZTField* field, int32_t position, int32_t held);
ZTF_API void ZTF_DoubleClick(ZTField* field, int32_t position);
ZTF_API void ZTF_Drag(ZTField* field, int32_t from, int32_t to);
ZTF_API void ZTF_Wheel(ZTField* field, int32_t notches);
/* An arrow of the spin, pressed and released. */
ZTF_API void ZTF_Step(ZTField* field, int32_t up);
/* The focus leaves for another field. */
ZTF_API void ZTF_Leave(ZTField* field);
/* A field has no clock of its own: a pause of a second between keys ends what they have begun. */
ZTF_API void ZTF_LetTimePass(ZTField* field, uint32_t milliseconds);

/* ---- What is shown ------------------------------------------------------------------------------------------------- */

ZTF_API int32_t ZTF_GetText(const ZTField* field, char* buffer, int32_t size);
/* Puts a text there from outside, as a program does with an edit control that it does not know to be a masked one. */
ZTF_API void ZTF_SetText(ZTField* field, const char* text);
ZTF_API void ZTF_ReplaceSelection(ZTField* field, const char* text);
/* The end that stays and the end that moves; both the same where nothing is selected. A null pointer is not filled. */
ZTF_API void ZTF_GetSelection(const ZTField* field, int32_t* anchor, int32_t* caret);
/* An end of -1 is the end of the text. */
ZTF_API void ZTF_Select(ZTField* field, int32_t anchor, int32_t caret);
/* Whether the user has changed the text since a program has set it. */
ZTF_API int32_t ZTF_IsModified(const ZTField* field);
ZTF_API void ZTF_SetModified(ZTField* field, int32_t on);

/* What a position is. */
#define ZTF_LITERAL 0
#define ZTF_DIGIT 1        /* 0 to 9, in a string */
#define ZTF_NUMBER_DIGIT 2 /* a digit of a number */
#define ZTF_LETTER 3       /* a letter or a digit */
#define ZTF_ANY 4          /* any character */
#define ZTF_UPPER 5        /* any character, shown in upper case */
#define ZTF_LOWER 6        /* any character, shown in lower case */
#define ZTF_YEAR 7
#define ZTF_MONTH 8
#define ZTF_DAY 9
#define ZTF_DAY_OF_YEAR 10
#define ZTF_HOUR 11
#define ZTF_MINUTE 12
#define ZTF_SECOND 13
#define ZTF_FRACTION 14
#define ZTF_HALF_OF_DAY 15

typedef struct ZTFieldPosition {
    int32_t kind;       /* ZTF_LITERAL to ZTF_HALF_OF_DAY */
    uint32_t character; /* the letter of the mask, or the literal */
    int32_t escaped;    /* 1: a literal written with '~' */
    int32_t part;       /* which part of the value it belongs to, counted from 0 through positions of one kind side by side; -1 literal */
} ZTFieldPosition;

/* How many positions the text shown has. */
ZTF_API int32_t ZTF_CountPositions(const ZTField* field);
/* What stands at a position of the text shown. 1; 0, and position is all zero, where there is none. */
ZTF_API int32_t ZTF_GetPosition(const ZTField* field, int32_t index, ZTFieldPosition* position);

/* ---- Without a field ----------------------------------------------------------------------------------------------- */

/* Whether a mask fits a data type, as a classic field takes it: ZTM_FITS, or what is wrong first. offset, where it is not null, is
 * filled with where, counted in code points of the mask; -1 for a mask that fits. settings null: the defaults. */
ZTF_API int32_t ZTF_CheckMask(const ZTFieldSettings* settings, const char* mask, int32_t dataType, int32_t* offset);
/* The same as a modern field takes it: a number's mask may be written with '.' and ',' under all settings. */
ZTF_API int32_t ZTF_CheckModernMask(const ZTFieldSettings* settings, const char* mask, int32_t dataType, int32_t* offset);
/* A value given as canonical text, as a field would show it. -1, and "", for a text that is no value of the type or does not fit. */
ZTF_API int32_t ZTF_Format(const ZTFieldSettings* settings, const char* mask, int32_t dataType, const char* data, char* buffer,
                           int32_t size);
/* The canonical text of what was typed or pasted in any of the usual forms. -1, and "", where it cannot be read as one value; then
 * reason, where it is not null, is filled with the ZTR_ value, else with 0. */
ZTF_API int32_t ZTF_Parse(const ZTFieldSettings* settings, const char* mask, int32_t dataType, const char* text, char* buffer,
                          int32_t size, int32_t* reason);

#ifdef __cplusplus
}
#endif

#endif
