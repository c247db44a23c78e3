// Clipboard helpers. Another program may hold the clipboard for a moment, so opening it is tried again.
#include "tests/support/clipboard.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>

namespace zttest {
namespace {

class OpenedClipboard {
public:
    OpenedClipboard()
    {
        for (int attempt = 0; attempt < 50 && !open_; ++attempt) {
            open_ = OpenClipboard(nullptr) != 0;
            if (!open_)
                Sleep(10);
        }
        EXPECT_TRUE(open_) << "the clipboard is in use";
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard()
    {
        if (open_)
            CloseClipboard();
    }

private:
    bool open_ = false;
};

}  // namespace

void CopyToClipboard(const std::string& text)
{
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(GlobalLock(block), text.c_str(), text.size() + 1);
    GlobalUnlock(block);
    const OpenedClipboard clipboard;
    EmptyClipboard();
    SetClipboardData(CF_TEXT, block);
}

void EmptyTheClipboard()
{
    const OpenedClipboard clipboard;
    EmptyClipboard();
}

std::string ClipboardText()
{
    const OpenedClipboard clipboard;
    const HANDLE block = GetClipboardData(CF_TEXT);
    if (!block)
        return "";
    const std::string text = static_cast<const char*>(GlobalLock(block));
    GlobalUnlock(block);
    return text;
}

}  // namespace zttest
