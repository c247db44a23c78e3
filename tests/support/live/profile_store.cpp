// The regional settings of tests on windows: they stand in the system's profile.
#include <windows.h>

#include "include/ztedit.h"

#include "tests/support/profile.h"

namespace zttest {
namespace {

constexpr const char* kSection = "intl";

}  // namespace

std::string ReadProfile(const char* key)
{
    char value[300];
    GetProfileStringA(kSection, key, kAbsent, value, sizeof value);
    return value;
}

void WriteProfile(const char* key, const std::string& value)
{
    WriteProfileStringA(kSection, key, value == kAbsent ? nullptr : value.c_str());
}

// As the system does: WM_WININICHANGE, here to a masked edit of our own.
void TellRegionalChange()
{
    const HWND listener = CreateWindowExA(0, ZTEDIT_CLASS, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                          GetModuleHandleA(nullptr), nullptr);
    SendMessageA(listener, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    DestroyWindow(listener);
}

}  // namespace zttest
