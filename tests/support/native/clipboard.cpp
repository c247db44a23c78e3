// The clipboard of tests without windows.
#include "tests/support/clipboard.h"

#include "tests/support/native/clipboard.h"

namespace zttest {

std::optional<zte::Text>& NativeClipboard()
{
    static std::optional<zte::Text> clipboard;
    return clipboard;
}

void CopyToClipboard(const std::string& text)
{
    NativeClipboard() = zte::FromAscii(text.c_str());
}

void EmptyTheClipboard()
{
    NativeClipboard().reset();
}

std::string ClipboardText()
{
    const zte::Text text = NativeClipboard().value_or(zte::Text());
    return std::string(text.begin(), text.end());
}

}  // namespace zttest
