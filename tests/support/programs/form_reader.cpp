// Tells what a form of another program shows, and does to it what the desktop would do.
// Usage: form_reader TITLE                   prints the texts of its children, "ID TEXT" a line
//        form_reader TITLE close             closes it
//        form_reader TITLE settings KEY=VALUE...   changes the regional settings, and tells the form
//        form_reader TITLE command ID        chooses an item of its menu
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

BOOL CALLBACK PrintChild(HWND child, LPARAM)
{
    char text[512] = "";
    SendMessageA(child, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    if (GetDlgCtrlID(child) > 0 && GetDlgCtrlID(child) < 0xFFFF)
        std::printf("%d %s\n", GetDlgCtrlID(child), text);
    return TRUE;
}

void ChangeSetting(const std::string& setting)
{
    const size_t equals = setting.find('=');
    WriteProfileStringA("intl", setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str());
}

HWND WaitFor(const char* title)
{
    for (int i = 0; i < 100; ++i) {
        if (const HWND form = FindWindowA(nullptr, title))
            return form;
        Sleep(100);
    }
    return nullptr;
}

}  // namespace

int main(int count, char** arguments)
{
    const HWND form = count > 1 ? WaitFor(arguments[1]) : nullptr;
    if (!form) {
        std::puts("no such form");
        return 1;
    }
    const char* act = count > 2 ? arguments[2] : "";
    if (std::strcmp(act, "close") == 0) {
        PostMessageA(form, WM_CLOSE, 0, 0);
    } else if (std::strcmp(act, "command") == 0 && count == 4) {
        SendMessageA(form, WM_COMMAND, static_cast<WPARAM>(std::atoi(arguments[3])), 0);
    } else if (std::strcmp(act, "settings") == 0) {
        for (int i = 3; i < count; ++i)
            ChangeSetting(arguments[i]);
        SendMessageA(form, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    } else {
        EnumChildWindows(form, PrintChild, 0);
    }
    return 0;
}
