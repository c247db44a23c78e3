/* ztdecimal.h - exact decimal numbers (ztdecimal.dll)
 *
 * A DecimalValue is a 96-bit integer, a sign and a decimal scale of 0 to 28, in the layout of the platform's own DECIMAL
 * record, so that a host may hand one to OLE Automation and back. It holds at least 28 significant digits; addition,
 * subtraction and comparison inside that range are exact.
 *
 * Every function is re-entrant and keeps no state. Pointers are borrowed for the call only. A null operand, or a record
 * whose scale is above 28, counts as zero; a null destination is left alone. Zero never has a sign.
 *
 *     DecimalValue price, tax, sum;
 *     DecFromString(&price, "19.90", 2);
 *     DecFromString(&tax, "3.78", 2);
 *     DecAdd(&sum, &price, &tax);                 // 23.68, exactly
 */
#ifndef ZTDECIMAL_H
#define ZTDECIMAL_H

#include <stdint.h>
#include <windows.h>

#include "ztvalues.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Reads a decimal text: blanks, an optional sign, digits with at most one '.', an optional exponent.
 *
 * destination    receives the value; zero when the text is null or begins with no number.
 * text           read as far as it is a number; what follows is ignored. Only '.' is a decimal point here.
 * decimalPlaces  a hint of the scale wanted (the value may be given that scale when that loses nothing); no digit of the
 *                text is dropped for it. Digits beyond what a DecimalValue can hold are rounded, half to even, in the
 *                last digit kept. A number too large for a DecimalValue becomes the largest one of its sign.
 *
 * Returns destination.
 */
DecimalValue* WINAPI DecFromString(DecimalValue* destination, const char* text, int32_t decimalPlaces);

/* destination = first + second; exact as long as the result has at most 28 digits, then rounded half to even. A sum out
 * of range becomes the largest value of its sign. destination may be one of the operands. Returns destination. */
DecimalValue* WINAPI DecAdd(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second);

/* destination = first - second; as DecAdd. */
DecimalValue* WINAPI DecSubtract(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second);

/* destination = first / second, rounded half to even in the last digit kept. Division by zero gives zero.
 * Returns destination. */
DecimalValue* WINAPI DecDivide(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second);

/* Below 0 when first < second, 0 when they are equal (1.0 equals 1.00), above 0 when first > second. */
int16_t WINAPI DecCompare(const DecimalValue* first, const DecimalValue* second);

/* The decimal value of an unsigned 32-bit number. Returns destination. */
DecimalValue* WINAPI DecFromUnsigned(DecimalValue* destination, uint32_t number);

/* Returns destination, set to zero. */
DecimalValue* WINAPI DecSetZero(DecimalValue* destination);

/* Copies source. Returns destination. */
DecimalValue* WINAPI DecCopy(DecimalValue* destination, const DecimalValue* source);

#ifdef __cplusplus
}
#endif

#endif
