// Reads the regional conventions when the library is loaded and when it is told to.
#include "companions/ztshared/conventions.h"

#include <windows.h>

#include "companions/profile/regional_profile.h"
#include "ztshared.h"

namespace shared {

namespace {

zte::Settings conventions;

}  // namespace

const zte::Settings& Conventions()
{
    return conventions;
}

}  // namespace shared

void WINAPI SharedReadRegionalSettings(void)
{
    zte::ReadRegionalProfile(shared::conventions);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(instance);
        SharedReadRegionalSettings();
    }
    return TRUE;
}
