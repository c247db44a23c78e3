// The clipboard, as another program would fill it, and as it would read it.
#pragma once

#include <string>

namespace zttest {

void CopyToClipboard(const std::string& text);  // as CF_TEXT
void EmptyTheClipboard();
std::string ClipboardText();  // empty when there is none

}  // namespace zttest
