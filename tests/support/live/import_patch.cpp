// Finds and replaces an entry of a library's import address table.
#include "tests/support/live/import_patch.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>

namespace zttest {
namespace {

// The slot of a function in the tables of one imported library, or null.
void** SlotInLibrary(BYTE* base, const IMAGE_IMPORT_DESCRIPTOR& library, const char* function)
{
    const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library.OriginalFirstThunk);
    auto* slot = reinterpret_cast<void**>(base + library.FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++slot) {
        if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
            continue;
        const auto* byName = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
        if (std::strcmp(reinterpret_cast<const char*>(byName->Name), function) == 0)
            return slot;
    }
    return nullptr;
}

void** ImportSlot(HMODULE module, const char* dll, const char* function)
{
    BYTE* base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
    for (; library->Name != 0; ++library) {
        if (lstrcmpiA(reinterpret_cast<const char*>(base + library->Name), dll) != 0)
            continue;
        if (void** slot = SlotInLibrary(base, *library, function))
            return slot;
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

// The library that imports, or the program itself where the library's objects are linked into it.
HMODULE ModuleOf(const char* importer)
{
    const HMODULE library = GetModuleHandleA(importer ? importer : "ztedit050.dll");
    return library ? library : GetModuleHandleA(nullptr);
}

}  // namespace

ImportPatch::ImportPatch(const char* dll, const char* function, void* replacement, const char* importer)
    : ImportPatch(ModuleOf(importer), dll, function, replacement)
{
    EXPECT_NE(slot_, nullptr) << "the library does not import " << function;
}

ImportPatch::ImportPatch(HMODULE module, const char* dll, const char* function, void* replacement)
    : slot_(module ? ImportSlot(module, dll, function) : nullptr)
{
    if (!slot_)
        return;
    original_ = *slot_;
    WriteSlot(slot_, replacement);
}

ImportPatch::~ImportPatch()
{
    if (slot_)
        WriteSlot(slot_, original_);
}

}  // namespace zttest
