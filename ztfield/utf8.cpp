// UTF-8, read with care and written.
#include "ztfield/utf8.h"

#include <cstring>
#include <iterator>

namespace zte {

namespace {

constexpr uint32_t kLastCodePoint = 0x10FFFF;
constexpr uint32_t kFirstSurrogate = 0xD800;
constexpr uint32_t kLastSurrogate = 0xDFFF;
constexpr uint32_t kBehindBits = 6;  // that each byte behind the first one holds

// The forms of a character by its first byte.
struct Form {
    uint8_t mask;
    uint8_t lead;
    int32_t bytesBehind;
    uint32_t first;  // the first code point that needs the form
};

constexpr Form kForms[] = {
    {0x80, 0x00, 0, 0      },
    {0xE0, 0xC0, 1, 0x80   },
    {0xF0, 0xE0, 2, 0x800  },
    {0xF8, 0xF0, 3, 0x10000},
};

bool IsCodePoint(uint32_t code)
{
    return code <= kLastCodePoint && (code < kFirstSurrogate || code > kLastSurrogate);
}

constexpr bool IsBehind(uint8_t byte)
{
    return (byte & 0xC0) == 0x80;
}

const Form* FormOf(uint8_t lead)
{
    for (const Form& form : kForms)
        if ((lead & form.mask) == form.lead)
            return &form;
    return nullptr;
}

struct Read {
    Char character;
    int32_t bytes;
};

// A text ends with a NUL, which is no byte behind another: nothing is read past it.
Read ReadCharacter(const char* utf8)
{
    constexpr Read kBad = {kReplacement, 1};
    const auto lead = static_cast<uint8_t>(*utf8);
    const Form* form = FormOf(lead);
    if (!form)
        return kBad;
    uint32_t code = lead & static_cast<uint8_t>(~form->mask);
    for (int32_t i = 1; i <= form->bytesBehind; ++i) {
        const auto byte = static_cast<uint8_t>(utf8[i]);
        if (!IsBehind(byte))
            return kBad;
        code = code << kBehindBits | (byte & 0x3F);
    }
    if (code < form->first || !IsCodePoint(code))
        return kBad;
    return {static_cast<Char>(code), 1 + form->bytesBehind};
}

struct Bytes {
    char bytes[4];
    int32_t count;
};

Bytes BytesOf(Char character)
{
    uint32_t code = ValidCodePoint(character);
    const Form* form = kForms;
    while (form + 1 != std::end(kForms) && code >= form[1].first)
        ++form;
    Bytes written = {{}, form->bytesBehind + 1};
    for (int32_t i = form->bytesBehind; i > 0; --i, code >>= kBehindBits)
        written.bytes[i] = static_cast<char>(0x80 | (code & 0x3F));
    written.bytes[0] = static_cast<char>(form->lead | code);
    return written;
}

}  // namespace

Char ValidCodePoint(uint32_t code)
{
    return IsCodePoint(code) ? static_cast<Char>(code) : kReplacement;
}

Text FromUtf8(const char* utf8)
{
    Text text;
    while (utf8 && *utf8) {
        const Read read = ReadCharacter(utf8);
        text += read.character;
        utf8 += read.bytes;
    }
    return text;
}

int32_t WriteUtf8(const Text& text, char* buffer, int32_t size)
{
    int32_t length = 0;
    int32_t room = buffer && size > 0 ? size - 1 : 0;
    char* end = buffer;
    for (const Char character : text) {
        const Bytes written = BytesOf(character);
        length += written.count;
        if (written.count > room) {
            room = 0;  // what comes behind a character that is cut off is cut off, too
            continue;
        }
        std::memcpy(end, written.bytes, static_cast<size_t>(written.count));
        end += written.count;
        room -= written.count;
    }
    if (buffer && size > 0)
        *end = '\0';
    return length;
}

}  // namespace zte
