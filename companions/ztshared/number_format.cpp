// Compiling and rendering number formats.
#include "engine/values/number_format.h"

#include <cstring>

#include "companions/ztshared/conventions.h"
#include "engine/values/caller_value.h"
#include "ztshared.h"

namespace {

int32_t Render(char* buffer, int32_t size, const void* compiled, const zte::DecimalDigits& number)
{
    zte::Writer output(buffer, size);
    if (compiled)
        zte::RenderNumber(output, static_cast<const char*>(compiled), number, shared::Conventions());
    return output.Length();
}

}  // namespace

// A format that is refused leaves an empty one behind, so that using it all the same shows nothing.
int32_t WINAPI SharedCompileFormat(void* compiled, const char* format, int32_t size)
{
    if (!compiled || size <= 0)
        return 1;
    const auto destination = static_cast<char*>(compiled);
    const size_t length = format ? std::strlen(format) : 0;
    if (!format || !zte::IsValidFormat(format) || length >= static_cast<size_t>(size)) {
        *destination = '\0';
        return 1;
    }
    std::memmove(destination, format, length + 1);
    return 0;
}

int32_t WINAPI SharedFormatDouble(char* output, int32_t size, const void* compiled, double value, uint32_t /*flags*/)
{
    return Render(output, size, compiled, zte::DecimalDigits::FromDouble(value));
}

int32_t WINAPI SharedFormatDecimal(char* output, int32_t size, const void* compiled, const DecimalValue* value,
                                   uint32_t /*flags*/)
{
    // Without a value there is nothing to show, not even the format's literals.
    return Render(output, size, value ? compiled : nullptr,
                  value ? zte::DecimalDigits::FromDecimal(zte::ReadValue<DecimalValue>(value)) : zte::DecimalDigits());
}
