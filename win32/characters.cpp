// Characters that messages bring in other ways than one byte at a time, or in several. A position takes one byte: what has more, or is
// not in the code page, is refused as a whole.
#include "win32/characters.h"

#include <optional>

#include "engine/editing.h"
#include "win32/standard_field.h"

namespace zte {

namespace {

constexpr WPARAM kLastByte = 0xFF;
constexpr uint32_t kLastUnit = 0xFFFF;
constexpr uint32_t kFirstOfTwo = 0xD800;
constexpr uint32_t kSecondOfTwo = 0xDC00;

struct LeadRow {
    uint32_t first;
    uint32_t last;
    int32_t following;
};

constexpr LeadRow kUtf8Leads[] = {
    {0xC2, 0xDF, 1},
    {0xE0, 0xEF, 2},
    {0xF0, 0xF4, 3},
};

// How many bytes belong to a character that begins with this one, beside it.
int32_t BytesBehind(uint32_t byte)
{
    if (GetACP() != CP_UTF8)
        return IsDBCSLeadByte(static_cast<BYTE>(byte)) ? 1 : 0;
    for (const LeadRow& row : kUtf8Leads)
        if (byte >= row.first && byte <= row.last)
            return row.following;
    return 0;
}

// The byte that stands for a code point in the code page; none where it has no other than itself.
std::optional<uint32_t> ByteOf(uint32_t codePoint)
{
    wchar_t units[2] = {static_cast<wchar_t>(codePoint), 0};
    int count = 1;
    if (codePoint > kLastUnit) {
        units[0] = static_cast<wchar_t>(kFirstOfTwo + ((codePoint - kLastUnit - 1) >> 10));
        units[1] = static_cast<wchar_t>(kSecondOfTwo + (codePoint & 0x3FF));
        count = 2;
    }
    char bytes[8] = "";
    BOOL replaced = FALSE;
    const bool isUtf8 = GetACP() == CP_UTF8;  // which takes neither a flag nor a question
    const int size = WideCharToMultiByte(CP_ACP, isUtf8 ? 0 : WC_NO_BEST_FIT_CHARS, units, count, bytes, sizeof bytes,
                                         nullptr, isUtf8 ? nullptr : &replaced);
    if (size != 1 || replaced)
        return std::nullopt;
    return static_cast<uint8_t>(bytes[0]);
}

}  // namespace

Reply OnCharacter(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    const Editing& editing = EditingOf(edit);
    const auto typed = static_cast<uint32_t>(wParam);
    if (!editing.foreignCharacter)
        return editing.character(edit, typed, lParam);
    int32_t& toCome = FieldOf(edit).bytesToCome;
    if (toCome > 0) {
        --toCome;
        return Keep();
    }
    toCome = wParam > kLastByte ? 0 : BytesBehind(typed);
    if (wParam > kLastByte || toCome > 0)
        return editing.foreignCharacter(edit);
    return editing.character(edit, typed, lParam);
}

// Of two bytes where it is more than one.
Reply OnInputMethodCharacter(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    const Editing& editing = EditingOf(edit);
    if (!editing.foreignCharacter)
        return kPassOn;
    if (wParam > kLastByte)
        return editing.foreignCharacter(edit);
    return editing.character(edit, static_cast<uint32_t>(wParam), lParam);
}

Reply OnCodePoint(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    const Editing& editing = EditingOf(edit);
    if (!editing.foreignCharacter || wParam == UNICODE_NOCHAR)
        return kPassOn;
    const std::optional<uint32_t> byte = ByteOf(static_cast<uint32_t>(wParam));
    const Reply reply = byte ? editing.character(edit, *byte, lParam) : editing.foreignCharacter(edit);
    return reply.kept ? Keep(0) : reply;
}

}  // namespace zte
