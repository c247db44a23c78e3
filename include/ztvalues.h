/* ztvalues.h - the values that masked edits show and read (part of ztedit.h, ztshared.h and ztdecimal.h)
 *
 * Plain records and numbers, the same on every system; nothing here needs a window.
 */
#ifndef ZTVALUES_H
#define ZTVALUES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Data types, and what a pointer to a value of the type points to. */
#define DT_STRING 1   /* char[]: a zero-terminated text, without the mask's literals */
#define DT_NUMBER 2   /* double */
#define DT_DATE 3     /* DateTimeValue */
#define DT_TIME 4     /* DateTimeValue */
#define DT_DATETIME 5 /* DateTimeValue */
#define DT_DECIMAL 6  /* DecimalValue */

/* 12 bytes. The empty value is all zero except year and hour. */
typedef struct DateTimeValue {
    uint32_t microsecond; /* 0 to 999999 */
    int16_t year;         /* years since 1900; DATETIME_NO_DATE: no date */
    int8_t month;         /* 0 to 11 */
    int8_t day;           /* 1 to 31 */
    int8_t hour;          /* 0 to 23; DATETIME_NO_TIME: no time */
    int8_t minute;        /* 0 to 59 */
    int8_t second;        /* 0 to 59 */
    int8_t spare;         /* always 0 */
} DateTimeValue;

#define DATETIME_NO_DATE (-32767)
#define DATETIME_NO_TIME (-1)

/* Kinds of canonical text. */
#define DATETIME_KIND_BOTH 1 /* a date, optionally followed by a blank and a time */
#define DATETIME_KIND_DATE 2 /* YYYY-MM-DD */
#define DATETIME_KIND_TIME 3 /* HH:MM, HH:MM:SS or HH:MM:SS:F.. with 1 to 6 fraction digits, ':' or '.' before them */

/* 16 bytes, the platform's DECIMAL. The value is (hi32 * 2^64 + lo64) / 10^scale, negative when sign is 0x80. */
typedef struct DecimalValue {
    uint16_t reserved; /* not read; written as 0 */
    uint8_t scale;     /* 0 to 28 */
    uint8_t sign;      /* 0 or 0x80 */
    uint32_t hi32;
    uint64_t lo64;
} DecimalValue;

/* A private heap; see ztshared.h. */
typedef struct SharedHeapData* SharedHeap;

/* A list of borrowed element pointers with one cursor; see ztshared.h. */
typedef struct SharedListData* SharedList;

/* A compiled number format is an opaque record of at most this many bytes; see ztshared.h. */
#define SHARED_FORMAT_SIZE 256

/* FormatResult.formatFlags, see ztedit.h */
#define FORMAT_DONE 0x0001          /* always set */
#define FORMAT_HAS_LITERALS 0x4000  /* the text holds literals; set for every date and time */
#define FORMAT_LITERAL_AFTER 0x8000 /* a literal follows a field */

/* ZTE_SetSpin styles */
#define SPINSTYLE_PICKLIST 0x10000000u
#define SPINSTYLE_CODETABLE 0x08000000u

/* EditInitParams.options */
#define ZTEO_AUTOSKIP 0x1     /* notify with ZTN_AUTOSKIP when the last position is filled */
#define ZTEO_SPIN 0x2         /* the control owns a spin; the spin fields below are used */
#define ZTEO_CODE_PICK 0x4    /* typed characters choose entries of the code table */
#define ZTEO_CODE_DISPLAY 0x8 /* values are shown through the code table */
#define ZTEO_MODERN 0x10      /* modern editing, see ZTE_SetModern */

/* ZTE_GetState, judged in this order */
#define ZTS_EMPTY 0      /* nothing is filled in */
#define ZTS_INCOMPLETE 1 /* something is still to be filled in */
#define ZTS_INVALID 2 /* no value: a date that does not exist, a text that the mask or the code table does not have */
#define ZTS_OUT_OF_RANGE 3 /* a value outside the spin's range */
#define ZTS_COMPLETE 4

/* Why a window is no control, or not the one that was asked for; see ZTE_GetLastProblem */
#define ZTP_NONE 0
#define ZTP_NO_PARAMETERS 1  /* no EditInitParams */
#define ZTP_NO_HEAP 2        /* EditInitParams.heap is null */
#define ZTP_FOREIGN_HEAP 3   /* it is no heap of ztshared.dll's, or one that was destroyed */
#define ZTP_NOT_SUBCLASSED 4 /* the window's messages do not reach ZTE_SuperEditWndProc, or it is another process's */
#define ZTP_WIDE_TEXTS 5     /* a standard edit control that was subclassed with SetWindowLongPtrW */
#define ZTP_DATA_TYPE 6      /* there is no such data type: texts are shown as they are */
#define ZTP_MASK 7           /* the mask does not fit the type, whose default stands in; ZTE_CheckMask tells why */

/* Whether a mask fits its data type, and why not; see ZTE_CheckMask */
#define ZTM_FITS 0
#define ZTM_DATA_TYPE 1    /* there is no such data type */
#define ZTM_EMPTY 2        /* no mask at all, in a type other than DT_STRING */
#define ZTM_TOO_LONG 3     /* more than 255 characters */
#define ZTM_ESCAPE 4       /* a '~' with nothing behind it that it could make a literal */
#define ZTM_KEYWORD 5      /* a keyword that nothing can be made of under the settings: "[currency(17)]" */
#define ZTM_OUT_OF_PLACE 6 /* a literal behind a number's first digit, a digit behind '%', quotation marks in numbers */
#define ZTM_TWICE 7        /* a field, the point, '%' or the currency symbol a second time */
#define ZTM_FIELD_LENGTH 8 /* a field has no such length: "M", "YYY" */
#define ZTM_EXCLUDED 9     /* a day of the year beside a day or a month */
#define ZTM_FIELD_MISSING 10 /* a field needs another one: minutes hours, a day its month, a date its year */
#define ZTM_NO_DIGIT 11      /* a number without any place for a digit */

/* Why something was refused */
#define ZTR_WRONG_KIND 1        /* a character that does not belong there */
#define ZTR_OUT_OF_BOUNDS 2     /* the field has no such number: a month 13 */
#define ZTR_FULL 3              /* there is no room for more */
#define ZTR_READ_ONLY 4         /* the control is read-only or disabled */
#define ZTR_DOES_NOT_FIT 5      /* a text that cannot be read, or is more than the mask can show */
#define ZTR_IN_DOUBT 6          /* a text that could be read in two ways: "1,234" */
#define ZTR_DOES_NOT_EXIST 7    /* a date or time that there is not: the 30th of February */
#define ZTR_NO_SUCH_ENTRY 8     /* the code table has no such entry */
#define ZTR_END_OF_RANGE 9      /* a step would leave the range */
#define ZTR_NOT_IN_CODE_PAGE 10 /* a character that the control's code page does not have */

#ifdef __cplusplus
}
#endif

#endif
