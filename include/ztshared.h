/* ztshared.h - the shared services under the masked edit control (ztshared.dll)
 *
 * A heap that a host makes per form and discards as a whole, lists with a cursor, the canonical date and time texts, and
 * the number formats. Everything is used from one thread at a time per heap or list; nothing is locked.
 */
#ifndef ZTSHARED_H
#define ZTSHARED_H

#include <stdint.h>
#include <windows.h>

#include "ztdecimal.h"
#include "ztvalues.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Heap ---------------------------------------------------------------------------------------------------------- */

/* A private heap. Blocks are aligned for any type. The flags argument of the functions below is accepted and has no
 * meaning. A heap that cannot give a block ends the process with a no-memory exception: callers never see null. */
SharedHeap WINAPI SharedHeapCreate(void);

/* Tells those who watch the heap, and discards it with all its blocks. Null, and a heap that is not alive, are ignored. */
void WINAPI SharedHeapDestroy(SharedHeap heap);

/* Non-zero for a heap of this library that has not been destroyed. Any pointer may be asked about: it is compared, not
 * followed. A heap made later may stand at the address of one that is gone. */
int32_t WINAPI SharedHeapIsAlive(SharedHeap heap);

/* Somebody who keeps blocks of a heap and must let go of them before it is destroyed. The record is the watcher's own; it
 * may be a block of the heap. */
typedef struct SharedHeapWatcher {
    /* Called once, by SharedHeapDestroy, on its thread, with the heap's blocks still there. May destroy windows; must not
     * allocate from the heap. */
    void(WINAPI* ending)(struct SharedHeapWatcher* watcher);
    struct SharedHeapWatcher* previous; /* the heap's, as is the next */
    struct SharedHeapWatcher* next;
} SharedHeapWatcher;

/* Begins and ends watching; a watcher watches one heap. Unwatching is for heaps that are alive, or just telling of
 * their end; a watcher that has been told, or has been unwatched, watches no longer, and unwatching it does nothing. */
void WINAPI SharedHeapWatch(SharedHeap heap, SharedHeapWatcher* watcher);
void WINAPI SharedHeapUnwatch(SharedHeap heap, SharedHeapWatcher* watcher);

/* Count of live blocks, for hosts and tests that watch for leaks. */
uint32_t WINAPI SharedHeapBlockCount(SharedHeap heap);

/* A new block of size bytes (a size of 0 gives a valid block too); its contents are undefined. */
void* WINAPI SharedHeapAlloc(SharedHeap heap, uint32_t size, uint32_t flags);

/* Resizes a block, which may move; its contents are kept up to the smaller size. A null block is allocated. */
void* WINAPI SharedHeapRealloc(SharedHeap heap, void* blockOrNull, uint32_t size, uint32_t flags);

/* Gives a block back. Null is ignored. */
void WINAPI SharedHeapFree(SharedHeap heap, void* block);

/* A copy of text in a new block; a null text is copied as the empty text. */
char* WINAPI SharedHeapStrDup(SharedHeap heap, const char* text, uint32_t flags);

/* ---- Texts --------------------------------------------------------------------------------------------------------- */

/* Copies text with its terminator; the caller vouches for the room. Returns destination. */
char* WINAPI SharedStrCopy(char* destination, const char* source);

/* One character in upper case (One) or lower case (Two), by the runtime's current locale. Takes a character code 0 to
 * 255 and returns one; any other number is returned as it is. */
int32_t WINAPI SharedCharConvertOne(int32_t character);
int32_t WINAPI SharedCharConvertTwo(int32_t character);

/* Non-zero when text is a number: surrounding blanks, an optional sign, digits with at most one decimal point ('.' or
 * the regional decimal character) and at least one digit, and nothing else. A null text is no number. */
int32_t WINAPI SharedIsNumber(const char* text);

/* ---- Lists --------------------------------------------------------------------------------------------------------- */

/* A list of borrowed element pointers with one cursor. The cursor stands on an element, before the first or past the
 * last; a new list's stands before the first. */
SharedList WINAPI SharedListCreate(SharedHeap heap, uint32_t flags); /* lives in heap */
void WINAPI SharedListDestroy(SharedList list);                      /* null is ignored; elements are not freed */
void WINAPI SharedListAppend(SharedList list, void* element);        /* at the end; the cursor stays where it is */

/* Each moves the cursor and returns the element it then stands on, or null (empty list, past the end, before the start).
 * A cursor past the end stays there under Next and goes to the last element under Prev; before the start likewise. */
void* WINAPI SharedListFirst(SharedList list);
void* WINAPI SharedListLast(SharedList list);
void* WINAPI SharedListNext(SharedList list);
void* WINAPI SharedListPrev(SharedList list);

void* WINAPI SharedListCurrent(SharedList list);               /* the element under the cursor, or null */
int32_t WINAPI SharedListTell(SharedList list);                /* the cursor's position, for SharedListSeek */
void WINAPI SharedListSeek(SharedList list, int32_t position); /* positions out of range are brought into it */

/* ---- Dates and times ----------------------------------------------------------------------------------------------- */

/* Reads canonical text.
 *
 * Years 1 to 9999. A time may also be a 12-hour form: the time, a blank and the AM or PM string (the regional one or
 * plain AM/PM, in any case), with an hour of 1 to 12. Impossible dates and times, and anything left over, are refused.
 *
 * value   on success the fields of the kind are set (a date alone leaves no time, a time alone no date); on failure it
 *         is left as it was.
 * Returns 0 on success, non-zero when text is no date or time of that kind (or is null).
 */
int32_t WINAPI SharedParseDateTime(DateTimeValue* value, const char* text, int32_t kind);

/* Fills value with the current local date and time. */
void WINAPI SharedDateTimeNow(DateTimeValue* value);

/* ---- Number formats ------------------------------------------------------------------------------------------------ */

/* The format language:
 *
 *   0        a digit that is always shown, before the point and after it
 *   #        a significant digit
 *   .        the point, always shown when the format has one, as the regional decimal character
 *   ,        between integer placeholders: grouping by three with the regional thousands character; elsewhere before
 *            the point it means and shows nothing
 *   %        behind the placeholders: the value times 100, with a percent sign
 *   \x       the character x as it stands
 *   others   literal text
 *   [GENERAL] the plain form: up to 15 significant digits, no grouping, no trailing zeros; an exponent ("1.5E+20") only
 *            for more than 15 digits before the point or more than 15 zeros after it
 *
 * Rounding is half away from zero in decimal. Integer digits beyond the placeholders are all shown. A '-' stands
 * directly before the first digit or point, behind the literals ("$-5.00"); a value that rounds to zero has no sign. NaN
 * and the infinities show as 0. Literal text between placeholders keeps its place, counted from the point ("00-00" shows
 * 1234 as 12-34). A format with no digit placeholder, with a second point, with a ',' after the point, with a placeholder
 * after '%', or with a lone '\' at its end is invalid.
 */
/* Compiles a format text.
 *
 * compiled  receives the compiled format, an opaque record of at most size bytes that may be copied and needs no release.
 * size      bytes at compiled; a format that does not fit is refused. 256 holds every format of up to 255 characters.
 * Returns 0 on success, non-zero when the text is not a valid format; compiled then renders every value as an empty text.
 */
int32_t WINAPI SharedCompileFormat(void* compiled, const char* format, int32_t size);

/* Renders a value through a compiled format.
 *
 * output    receives the text, cut to size - 1 characters, always terminated when size is above 0.
 * flags     0
 * Returns the length of the text in output. Without a compiled format or a decimal the text is empty.
 */
int32_t WINAPI SharedFormatDouble(char* output, int32_t size, const void* compiled, double value, uint32_t flags);
int32_t WINAPI SharedFormatDecimal(char* output, int32_t size, const void* compiled, const DecimalValue* value,
                                   uint32_t flags);

/* Reads the regional decimal and thousands characters and the AM and PM strings again from the profile section "intl".
 * They are read once when the library is loaded; the masked edit control calls this when it is told of a change. */
void WINAPI SharedReadRegionalSettings(void);

#ifdef __cplusplus
}
#endif

#endif
