// Reads the regional conventions from the profile section "intl": when the library is loaded and when it is told to.
#include "shared/services/regional.h"

#include "ztshared.h"

namespace shared {

namespace {

Regional conventions;

constexpr char kSection[] = "intl";

// A key that is empty counts as one that is absent.
template <size_t size>
void ReadText(char (&text)[size], const char* key, const char* standard)
{
    GetProfileStringA(kSection, key, standard, text, static_cast<DWORD>(size));
    if (text[0] == '\0')
        lstrcpynA(text, standard, static_cast<int>(size));
}

char ReadCharacter(const char* key, const char* standard)
{
    char text[256] = "";
    ReadText(text, key, standard);
    return text[0];
}

void ReadConventions()
{
    conventions.decimal = ReadCharacter("sDecimal", ".");
    conventions.thousand = ReadCharacter("sThousand", ",");
    ReadText(conventions.am, "s1159", "AM");
    ReadText(conventions.pm, "s2359", "PM");
}

}  // namespace

const Regional& RegionalConventions()
{
    return conventions;
}

}  // namespace shared

void WINAPI SharedReadRegionalSettings(void)
{
    shared::ReadConventions();
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(instance);
        shared::ReadConventions();
    }
    return TRUE;
}
