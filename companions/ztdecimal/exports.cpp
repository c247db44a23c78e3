// The functions of ztdecimal.dll: exact decimals, worked out by the engine's own values and not by OLE Automation, so that the
// last digit is the same on every system.
#include "engine/values/caller_value.h"
#include "engine/values/decimal_number.h"
#include "ztdecimal.h"

using namespace zte::decimal;

namespace {

DecimalValue* Store(DecimalValue* destination, const DecimalValue& value)
{
    if (destination)
        zte::WriteValue(destination, value);
    return destination;
}

}  // namespace

DecimalValue* WINAPI DecAdd(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second)
{
    return Store(destination, Pack(Sum(Unpack(first), Unpack(second))));
}

DecimalValue* WINAPI DecSubtract(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second)
{
    return Store(destination, Pack(Difference(Unpack(first), Unpack(second))));
}

DecimalValue* WINAPI DecDivide(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second)
{
    return Store(destination, Pack(Quotient(Unpack(first), Unpack(second))));
}

int16_t WINAPI DecCompare(const DecimalValue* first, const DecimalValue* second)
{
    return static_cast<int16_t>(Compare(Unpack(first), Unpack(second)));
}

DecimalValue* WINAPI DecFromString(DecimalValue* destination, const char* text, int32_t decimalPlaces)
{
    return Store(destination, Read(text ? text : "", decimalPlaces));
}

DecimalValue* WINAPI DecFromUnsigned(DecimalValue* destination, uint32_t number)
{
    return Store(destination, FromUnsigned(number));
}

DecimalValue* WINAPI DecSetZero(DecimalValue* destination)
{
    return Store(destination, Pack(Number()));
}

DecimalValue* WINAPI DecCopy(DecimalValue* destination, const DecimalValue* source)
{
    return Store(destination, Pack(Unpack(source)));
}
