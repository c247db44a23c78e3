// Held back in a list a thread; the functions are found by name in the table of imports.
#include "tests/storm/late_release.h"

#include <windows.h>

#include <vector>

#include "tests/support/live/import_patch.h"

namespace storm {

namespace {

struct Held {
    HANDLE heap;  // null: a block that was allocated as a local one
    void* block;
};

thread_local std::vector<Held> held;
thread_local int depth = 0;

BOOL WINAPI FreeLater(HANDLE heap, DWORD flags, void* block)
{
    if (depth == 0 || !block)
        return HeapFree(heap, flags, block);
    held.push_back({heap, block});
    return TRUE;
}

HLOCAL WINAPI FreeLocalLater(HLOCAL block)
{
    if (depth == 0 || !block)
        return LocalFree(block);
    held.push_back({nullptr, block});
    return nullptr;
}

}  // namespace

void HoldBackReleases()
{
    const HMODULE windows = GetModuleHandleA("user32.dll");
    const auto freeLater = reinterpret_cast<void*>(FreeLater);
    const auto freeLocalLater = reinterpret_cast<void*>(FreeLocalLater);
    for (const char* dll : {"kernelbase.dll", "kernel32.dll"}) {
        static_cast<void>(
            new zttest::ImportPatch(windows, dll, "HeapFree", freeLater));  // for as long as the process lives
        static_cast<void>(new zttest::ImportPatch(windows, dll, "LocalFree", freeLocalLater));
    }
}

LateRelease::LateRelease()
{
    ++depth;
}

LateRelease::~LateRelease()
{
    --depth;
}

void ReleaseHeldBack()
{
    for (const Held& one : held) {
        if (one.heap)
            HeapFree(one.heap, 0, one.block);
        else
            LocalFree(static_cast<HLOCAL>(one.block));
    }
    held.clear();
}

}  // namespace storm
