// The record of a control: made in the caller's heap, found by the window property "MAIN".
#include "win32/record_store.h"

#include <new>
#include <utility>

#include "engine/editing.h"
#include "engine/format/code_table.h"
#include "engine/spin/spin_settings.h"
#include "win32/heap_watch.h"
#include "win32/known_record.h"
#include "win32/life_guard.h"
#include "win32/open_deletion.h"
#include "win32/problems.h"
#include "win32/regional_settings.h"
#include "win32/spin_layout.h"
#include "win32/spin_window.h"

namespace zte {

namespace {

constexpr char kRecordProperty[] = "MAIN";

// The movable block that holds the record's address; its handle is the property's value.
class LockedBlock {
public:
    explicit LockedBlock(HGLOBAL block) : block_(block), address_(static_cast<EditInstance**>(GlobalLock(block))) {}
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;
    ~LockedBlock()
    {
        if (address_)
            GlobalUnlock(block_);
    }
    EditInstance** get() const { return address_; }

private:
    HGLOBAL block_;
    EditInstance** address_;
};

EditInstance* RecordIn(HGLOBAL block)
{
    if (!block)
        return nullptr;
    const LockedBlock locked(block);
    return locked.get() ? *locked.get() : nullptr;
}

struct HeapEnd : SharedHeapWatcher {
    EditInstance* edit;
};

// The record comes first: what hosts find under the property is its address.
struct Control {
    EditInstance record{};
    StandardField field{record};
    HeapEnd heapEnd{};
};

Control& ControlOf(EditInstance& edit)
{
    return reinterpret_cast<Control&>(edit);
}

// The spin goes, and the text has its room. False when the control went with it.
bool TakeSpinAway(EditInstance& edit)
{
    return WhileAlive(edit, false, [&] {
        GiveMarginBack(edit);
        const LifeCheck life(edit);
        if (void* spin = std::exchange(edit.hwndSpin, nullptr))
            DestroyWindow(static_cast<HWND>(spin));
        life.Check();
        return true;
    });
}

// Another thread's windows cannot be destroyed here: the spin stays as a window without a meaning.
void ForgetSpin(EditInstance& edit)
{
    DropFaces(edit);
    if (void* spin = std::exchange(edit.hwndSpin, nullptr))
        DetachEditInstance(static_cast<HWND>(spin));
}

// The host destroys the heap before the control: the window stays, with its text, as a plain edit.
void WINAPI LetGoOfHeap(SharedHeapWatcher* watcher)
{
    EditInstance& edit = *static_cast<HeapEnd*>(watcher)->edit;
    const HWND hwnd = WindowOf(edit);
    if (!IsOnThisThread(hwnd))
        ForgetSpin(edit);
    else if (!TakeSpinAway(edit))
        return;
    LifeGuard::TellAll(FieldOf(edit));
    DropEditor(edit);
    DetachEditInstance(hwnd);
    NoteProblem(hwnd, ZTP_FOREIGN_HEAP);
}

}  // namespace

EditInstance* NewRecord(HWND hwnd, const EditInitParams& params)
{
    auto* control = new (SharedHeapAlloc(params.heap, sizeof(Control), params.heapFlags)) Control;
    EditInstance& edit = control->record;
    if (!AttachEditInstance(hwnd, &edit)) {
        SharedHeapFree(params.heap, control);
        return nullptr;
    }
    edit.heap = params.heap;
    edit.heapFlags = params.heapFlags;
    edit.dataType = params.dataType;
    edit.hwnd = hwnd;
    edit.field = &control->field;
    edit.settings = &regionalSettings;
    edit.clock = Now;
    ApplyOptions(edit, params.options);
    control->heapEnd.edit = &edit;
    WatchHeap(edit.heap, control->heapEnd, LetGoOfHeap);
    RememberRecord(hwnd, edit);
    return &edit;
}

bool IsOnThisThread(HWND hwnd)
{
    return GetWindowThreadProcessId(hwnd, nullptr) == GetCurrentThreadId();
}

void FreeRecord(EditInstance& edit)
{
    LifeGuard::TellAll(FieldOf(edit));
    DropEditor(edit);
    UnwatchHeap(edit.heap, ControlOf(edit).heapEnd);
    ForgetDeletion(edit);
    DestroyCodeTable(edit);
    SharedHeapFree(edit.heap, &edit);
}

bool AttachEditInstance(HWND hwnd, EditInstance* edit)
{
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, sizeof(EditInstance*));
    {
        const LockedBlock locked(block);
        if (!locked.get())
            return false;
        *locked.get() = edit;
    }
    const bool attached = SetPropA(hwnd, kRecordProperty, block) != FALSE;
    if (!attached)
        GlobalFree(block);
    return attached;
}

EditInstance* GetEditInstance(HWND hwnd)
{
    return RecordIn(GetPropA(hwnd, kRecordProperty));
}

EditInstance* DetachEditInstance(HWND hwnd)
{
    HGLOBAL block = RemovePropA(hwnd, kRecordProperty);
    ForgetRecord(hwnd);
    EditInstance* edit = RecordIn(block);
    if (block)
        GlobalFree(block);
    return edit;
}

}  // namespace zte
