// The services of the companion libraries that the engine calls: heaps, lists, canonical texts, number formats, decimals. The
// library forwards them to the companions, which a customer may replace (win32/imported_services); everywhere else they are the
// engine's own values (engine/own_services). Which, is decided when a program is linked.
#pragma once

#include <cstdint>

#include "engine/text/text.h"
#include "engine/values/settings.h"
#include "ztvalues.h"

namespace zte::services {

// Blocks of a control's heap; never null.
void* Allocate(SharedHeap heap, uint32_t size, uint32_t flags);
void* Reallocate(SharedHeap heap, void* blockOrNull, uint32_t size, uint32_t flags);
void Free(SharedHeap heap, void* block);  // null is ignored

// Lists of borrowed pointers with one cursor.
SharedList CreateList(SharedHeap heap, uint32_t flags);
void DestroyList(SharedList list);
void Append(SharedList list, void* element);
void* First(SharedList list);
void* Last(SharedList list);
void* Next(SharedList list);
void* Previous(SharedList list);
int32_t Tell(SharedList list);
void Seek(SharedList list, int32_t position);

// Canonical text of a DATETIME_KIND_; false leaves value as it was.
bool ParseDateTime(DateTimeValue& value, const Char* text, int32_t kind, const Settings& settings);

bool IsNumber(const Char* text, const Settings& settings);

// The typed character under "!" and "^".
Char ToUpper(Char c, const Settings& settings);
Char ToLower(Char c, const Settings& settings);

// A compiled number format. Copied freely.
struct NumberFormat {
    Char compiled[SHARED_FORMAT_SIZE];
};
// Room for any number shown: the largest double has 309 digits, 102 separators and a mask's worth of literals.
constexpr int32_t kRenderedSize = 1024;
bool CompileFormat(NumberFormat& format, const Text& text);  // false: text is no valid format
Text FormatDouble(const NumberFormat& format, double value, const Settings& settings);
Text FormatDecimal(const NumberFormat& format, const DecimalValue& value, const Settings& settings);

// Exact decimals. A text is read as far as it is a number with '.' as its point, and is zero when it is none.
DecimalValue DecimalOf(const Char* text, int32_t decimalPlaces);
DecimalValue DecimalOf(uint32_t number);
DecimalValue Add(const DecimalValue& first, const DecimalValue& second);
DecimalValue Subtract(const DecimalValue& first, const DecimalValue& second);
DecimalValue Divide(const DecimalValue& first, const DecimalValue& second);
int32_t Compare(const DecimalValue& first, const DecimalValue& second);

}  // namespace zte::services
