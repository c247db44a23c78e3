// Loading and unloading the library: its window classes and first look at the regional settings.
#include "win32/library.h"

#include "win32/regional_settings.h"
#include "win32/standard_field.h"
#include "ztedit.h"

namespace zte {

HINSTANCE libraryInstance;
UINT reachMessage;

namespace {

constexpr char kSpinClass[] = "spin";

WNDCLASSA SpinClass()
{
    WNDCLASSA spin{};
    spin.lpfnWndProc = ZTE_SpinWndProc;
    spin.cbWndExtra = 4;
    spin.hInstance = libraryInstance;
    spin.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    spin.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    spin.lpszClassName = kSpinClass;
    return spin;
}

// Another copy of the library may have registered the name first; its class is not this one's to take away.
void UnregisterOwnClass(const char* name, WNDPROC procedure)
{
    WNDCLASSA registered{};
    if (GetClassInfoA(libraryInstance, name, &registered) && registered.lpfnWndProc == procedure)
        UnregisterClassA(name, libraryInstance);
}

}  // namespace

bool RegisterClasses(HINSTANCE instance)
{
    libraryInstance = instance;
    reachMessage = RegisterWindowMessageA(ZTEDIT_CLASS " reaches");
    WNDCLASSA edit{};
    GetClassInfoA(nullptr, "edit", &edit);
    baseEditProc = edit.lpfnWndProc;

    edit.style |= CS_GLOBALCLASS;  // any module's windows and dialog templates may name the class
    edit.lpfnWndProc = ZTE_SuperEditWndProc;
    edit.hInstance = libraryInstance;
    edit.lpszMenuName = nullptr;
    edit.lpszClassName = ZTEDIT_CLASS;
    if (!RegisterClassA(&edit))
        return false;

    const WNDCLASSA spin = SpinClass();
    if (!RegisterClassA(&spin))
        return false;
    ReadIntlSettings();
    return true;
}

void UnregisterClasses(int flag)
{
    if (flag != 0)
        return;
    UnregisterOwnClass(ZTEDIT_CLASS, ZTE_SuperEditWndProc);
    UnregisterOwnClass(kSpinClass, ZTE_SpinWndProc);
}

}  // namespace zte

int32_t WINAPI WEP(int32_t /*argument*/)
{
    return 1;
}

// The language runtime has been started by its own entry point before this one is called. A failed registration is not
// reported: the library stays loaded without its classes.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH)
        zte::RegisterClasses(instance);
    else if (reason == DLL_PROCESS_DETACH)
        zte::UnregisterClasses(0);
    return TRUE;
}
