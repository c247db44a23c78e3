// The beep counter: finds and replaces one entry of the control library's import address table.
#include "tests/support/beeps.h"

#include <gtest/gtest.h>

#include <cstring>

namespace zttest {
namespace {

int beepCount = 0;

BOOL WINAPI CountBeep(UINT)
{
    ++beepCount;
    return TRUE;
}

// The slot that holds the address of an imported function, or null.
void** ImportSlot(HMODULE module, const char* dll, const char* function)
{
    BYTE* base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* descriptor = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
    for (; descriptor->Name != 0; ++descriptor) {
        if (lstrcmpiA(reinterpret_cast<const char*>(base + descriptor->Name), dll) != 0)
            continue;
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + descriptor->OriginalFirstThunk);
        auto* slot = reinterpret_cast<void**>(base + descriptor->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto* byName = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(byName->Name), function) == 0)
                return slot;
        }
    }
    return nullptr;
}

void WriteSlot(void** slot, void* address)
{
    DWORD protection = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = address;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}

// The control library, or the program itself where the library's objects are linked into it.
HMODULE BeepingModule()
{
    const HMODULE library = GetModuleHandleA("ztedit050.dll");
    return library ? library : GetModuleHandleA(nullptr);
}

}  // namespace

BeepCounter::BeepCounter() : slot_(ImportSlot(BeepingModule(), "user32.dll", "MessageBeep"))
{
    EXPECT_NE(slot_, nullptr) << "the library does not import MessageBeep";
    if (!slot_)
        return;
    original_ = *slot_;
    WriteSlot(slot_, reinterpret_cast<void*>(CountBeep));
    beepCount = 0;
}

BeepCounter::~BeepCounter()
{
    if (slot_)
        WriteSlot(slot_, original_);
}

int BeepCounter::Count() const { return beepCount; }

void BeepCounter::Forget() { beepCount = 0; }

}  // namespace zttest
