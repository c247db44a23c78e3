// The services of the companion libraries, as this library imports them.
#include "engine/services.h"
#include "ztdecimal.h"
#include "ztshared.h"

namespace zte::services {

void* Allocate(SharedHeap heap, uint32_t size, uint32_t flags)
{
    return SharedHeapAlloc(heap, size, flags);
}

void* Reallocate(SharedHeap heap, void* blockOrNull, uint32_t size, uint32_t flags)
{
    return SharedHeapRealloc(heap, blockOrNull, size, flags);
}

void Free(SharedHeap heap, void* block)
{
    SharedHeapFree(heap, block);
}

SharedList CreateList(SharedHeap heap, uint32_t flags)
{
    return SharedListCreate(heap, flags);
}

void DestroyList(SharedList list)
{
    SharedListDestroy(list);
}

void Append(SharedList list, void* element)
{
    SharedListAppend(list, element);
}

void* First(SharedList list)
{
    return SharedListFirst(list);
}

void* Last(SharedList list)
{
    return SharedListLast(list);
}

void* Next(SharedList list)
{
    return SharedListNext(list);
}

void* Previous(SharedList list)
{
    return SharedListPrev(list);
}

int32_t Tell(SharedList list)
{
    return SharedListTell(list);
}

void Seek(SharedList list, int32_t position)
{
    SharedListSeek(list, position);
}

bool ParseDateTime(DateTimeValue& value, const Char* text, int32_t kind, const Settings& /*settings*/)
{
    return SharedParseDateTime(&value, text, kind) == 0;
}

bool IsNumber(const Char* text, const Settings& /*settings*/)
{
    return SharedIsNumber(text) != 0;
}

Char ToUpper(Char c, const Settings& /*settings*/)
{
    return static_cast<Char>(SharedCharConvertOne(static_cast<unsigned char>(c)));
}

Char ToLower(Char c, const Settings& /*settings*/)
{
    return static_cast<Char>(SharedCharConvertTwo(static_cast<unsigned char>(c)));
}

bool CompileFormat(NumberFormat& format, const Text& text)
{
    return SharedCompileFormat(format.compiled, text.c_str(), sizeof format.compiled) == 0;
}

Text FormatDouble(const NumberFormat& format, double value, const Settings& /*settings*/)
{
    char rendered[kRenderedSize] = "";
    SharedFormatDouble(rendered, sizeof rendered, format.compiled, value, 0);
    return rendered;
}

Text FormatDecimal(const NumberFormat& format, const DecimalValue& value, const Settings& /*settings*/)
{
    char rendered[kRenderedSize] = "";
    SharedFormatDecimal(rendered, sizeof rendered, format.compiled, &value, 0);
    return rendered;
}

DecimalValue DecimalOf(const Char* text, int32_t decimalPlaces)
{
    DecimalValue value;
    DecFromString(&value, text, decimalPlaces);
    return value;
}

DecimalValue DecimalOf(uint32_t number)
{
    DecimalValue value;
    DecFromUnsigned(&value, number);
    return value;
}

DecimalValue Add(const DecimalValue& first, const DecimalValue& second)
{
    DecimalValue sum;
    DecAdd(&sum, &first, &second);
    return sum;
}

DecimalValue Subtract(const DecimalValue& first, const DecimalValue& second)
{
    DecimalValue difference;
    DecSubtract(&difference, &first, &second);
    return difference;
}

DecimalValue Divide(const DecimalValue& first, const DecimalValue& second)
{
    DecimalValue quotient;
    DecDivide(&quotient, &first, &second);
    return quotient;
}

int32_t Compare(const DecimalValue& first, const DecimalValue& second)
{
    return DecCompare(&first, &second);
}

}  // namespace zte::services
