// The gate between the libraries and the system.
#include "tests/soak/live_gate.h"

#include <windows.h>

#include <atomic>
#include <cstdlib>

namespace soak {

namespace {

// Imported functions are called without a context.
std::atomic<int64_t> blocks{0};
DWORD thread = 0;
uint32_t requests = 0;
uint32_t refusedRequest = 0;  // 0: none
Refusal refused = Refusal::None;

bool Refuses(Refusal kind)
{
    if (GetCurrentThreadId() != thread || ++requests != refusedRequest)
        return false;
    refused = kind;
    return true;
}

template <class Block>
Block Taken(Block block)
{
    blocks += block ? 1 : 0;
    return block;
}

void* GateMalloc(size_t size)
{
    return Refuses(Refusal::Memory) ? nullptr : Taken(std::malloc(size));
}

void* GateCalloc(size_t count, size_t size)
{
    return Refuses(Refusal::Runtime) ? nullptr : Taken(std::calloc(count, size));
}

void* GateRealloc(void* block, size_t size)
{
    if (Refuses(Refusal::Runtime))
        return nullptr;
    void* grown = std::realloc(block, size);
    return block ? grown : Taken(grown);
}

void GateFree(void* block)
{
    blocks -= block ? 1 : 0;
    std::free(block);
}

void GateAbort()
{
    RaiseException(kAborted, EXCEPTION_NONCONTINUABLE, 0, nullptr);
}

void* WINAPI GateHeapAlloc(HANDLE heap, DWORD flags, SIZE_T size)
{
    return Refuses(Refusal::Memory) ? nullptr : HeapAlloc(heap, flags, size);
}

void* WINAPI GateHeapReAlloc(HANDLE heap, DWORD flags, void* block, SIZE_T size)
{
    return Refuses(Refusal::Memory) ? nullptr : HeapReAlloc(heap, flags, block, size);
}

HGLOBAL WINAPI GateGlobalAlloc(UINT flags, SIZE_T size)
{
    return Refuses(Refusal::System) ? nullptr : Taken(GlobalAlloc(flags, size));
}

HGLOBAL WINAPI GateGlobalFree(HGLOBAL block)
{
    blocks -= block ? 1 : 0;
    return GlobalFree(block);
}

BOOL WINAPI GateSetProp(HWND hwnd, const char* name, HANDLE value)
{
    return Refuses(Refusal::System) ? FALSE : SetPropA(hwnd, name, value);
}

HWND WINAPI GateCreateWindow(DWORD exStyle, const char* className, const char* text, DWORD style, int x, int y,
                             int width, int height, HWND parent, HMENU menu, HINSTANCE instance, void* parameter)
{
    if (Refuses(Refusal::System))
        return nullptr;
    return CreateWindowExA(exStyle, className, text, style, x, y, width, height, parent, menu, instance, parameter);
}

UINT_PTR WINAPI GateSetTimer(HWND hwnd, UINT_PTR id, UINT milliseconds, TIMERPROC procedure)
{
    return Refuses(Refusal::System) ? 0 : SetTimer(hwnd, id, milliseconds, procedure);
}

BOOL WINAPI GateOpenClipboard(HWND hwnd)
{
    return Refuses(Refusal::System) ? FALSE : OpenClipboard(hwnd);
}

HANDLE WINAPI GateGetClipboardData(UINT format)
{
    return Refuses(Refusal::System) ? nullptr : GetClipboardData(format);
}

constexpr const char* kControl = "ztedit050.dll";
constexpr const char* kShared = "ztshared.dll";
constexpr const char* kRuntime = "msvcrt.dll";
constexpr const char* kKernel = "kernel32.dll";
constexpr const char* kUser = "user32.dll";

template <class Function>
void* Address(Function* function)
{
    return reinterpret_cast<void*>(function);
}

}  // namespace

Gate::Gate()
{
    const struct {
        const char* importer;
        const char* dll;
        const char* function;
        void* replacement;
    } rows[] = {
        {kControl, kRuntime, "abort",            Address(GateAbort)           },
        {kControl, kRuntime, "malloc",           Address(GateMalloc)          },
        {kControl, kRuntime, "calloc",           Address(GateCalloc)          },
        {kControl, kRuntime, "realloc",          Address(GateRealloc)         },
        {kControl, kRuntime, "free",             Address(GateFree)            },
        {kShared,  kRuntime, "abort",            Address(GateAbort)           },
        {kShared,  kRuntime, "malloc",           Address(GateMalloc)          },
        {kShared,  kRuntime, "calloc",           Address(GateCalloc)          },
        {kShared,  kRuntime, "realloc",          Address(GateRealloc)         },
        {kShared,  kRuntime, "free",             Address(GateFree)            },
        {kShared,  kKernel,  "HeapAlloc",        Address(GateHeapAlloc)       },
        {kShared,  kKernel,  "HeapReAlloc",      Address(GateHeapReAlloc)     },
        {kControl, kKernel,  "GlobalAlloc",      Address(GateGlobalAlloc)     },
        {kControl, kKernel,  "GlobalFree",       Address(GateGlobalFree)      },
        {kControl, kUser,    "SetPropA",         Address(GateSetProp)         },
        {kControl, kUser,    "CreateWindowExA",  Address(GateCreateWindow)    },
        {kControl, kUser,    "SetTimer",         Address(GateSetTimer)        },
        {kControl, kUser,    "OpenClipboard",    Address(GateOpenClipboard)   },
        {kControl, kUser,    "GetClipboardData", Address(GateGetClipboardData)},
    };
    for (const auto& row : rows)
        patches_.emplace_back(row.dll, row.function, row.replacement, row.importer);
    blocks = 0;
    RefuseNone();
}

int64_t Gate::Blocks() const
{
    return blocks;
}

void Gate::RefuseOne(uint32_t number)
{
    requests = 0;
    refused = Refusal::None;
    refusedRequest = number;
    thread = GetCurrentThreadId();
}

void Gate::RefuseNone()
{
    thread = 0;
}

Refusal Gate::Refused() const
{
    return refused;
}

uint32_t Gate::Requests() const
{
    return requests;
}

}  // namespace soak
