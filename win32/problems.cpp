// Why a window was not configured, or not as it was asked to be.
#include "win32/problems.h"

#include "win32/heap_watch.h"
#include "win32/library.h"
#include "win32/record_store.h"
#include "win32/standard_field.h"

namespace zte {

namespace {

constexpr char kProblemProperty[] = ZTEDIT_CLASS " problem";  // of a window that stays a plain edit

// A record on any other window would outlive it: nothing would tell when the window goes.
bool ReachesLibrary(HWND hwnd)
{
    DWORD process = 0;
    GetWindowThreadProcessId(hwnd, &process);
    return process == GetCurrentProcessId() &&
           SendMessageA(hwnd, reachMessage, 0, 0) == reinterpret_cast<LRESULT>(libraryInstance);
}

// Subclassed with the W function the procedure gets wide texts, which it would take for narrow ones.
bool GetsWideTexts(HWND hwnd)
{
    const auto own = reinterpret_cast<LONG_PTR>(&ZTE_SuperEditWndProc);
    return IsWindowUnicode(hwnd) && GetWindowLongPtrW(hwnd, GWLP_WNDPROC) == own;
}

}  // namespace

int32_t ObstacleOf(HWND hwnd, const EditInitParams* params)
{
    if (!params)
        return ZTP_NO_PARAMETERS;
    if (!ReachesLibrary(hwnd))
        return ZTP_NOT_SUBCLASSED;
    return GetsWideTexts(hwnd) ? ZTP_WIDE_TEXTS : ObstacleOfHeap(params->heap);
}

int32_t ProblemOfMask(const EditInstance& edit, const char* mask, bool asGiven)
{
    if (edit.dataType < DT_STRING || edit.dataType > DT_DECIMAL)
        return ZTP_DATA_TYPE;
    return asGiven || !mask || !*mask ? ZTP_NONE : ZTP_MASK;
}

int32_t ObstacleOfHeap(SharedHeap heap)
{
    if (!heap)
        return ZTP_NO_HEAP;
    return IsUsableHeap(heap) ? ZTP_NONE : ZTP_FOREIGN_HEAP;
}

void NoteProblem(HWND hwnd, int32_t problem)
{
    if (const EditInstance* edit = GetEditInstance(hwnd))
        FieldOf(*edit).problem = problem;
    else
        SetPropA(hwnd, kProblemProperty, reinterpret_cast<HANDLE>(static_cast<intptr_t>(problem)));
}

int32_t LastProblem(HWND hwnd)
{
    if (const EditInstance* edit = GetEditInstance(hwnd))
        return FieldOf(*edit).problem;
    const auto noted = static_cast<int32_t>(reinterpret_cast<intptr_t>(GetPropA(hwnd, kProblemProperty)));
    return noted == ZTP_NONE && ReachesLibrary(hwnd) ? ZTP_NO_PARAMETERS : noted;
}

}  // namespace zte
