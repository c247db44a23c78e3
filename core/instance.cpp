// Attaching, finding and detaching the record of a control, and the exports that set the record up.
#include "core/instance.h"

#include "core/base_edit.h"
#include "core/creation.h"
#include "core/life_guard.h"

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

void NarrowFormatRect(const EditInstance& edit)
{
    RECT rect{};
    GetClientRect(edit.hwnd, &rect);
    rect.right -= SpinWidthForHeight(static_cast<int16_t>(rect.bottom - rect.top));
    CallBaseEdit(edit.hwnd, EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(&rect));
}

}  // namespace

void AttachEditInstance(HWND hwnd, EditInstance* edit)
{
    DetachEditInstance(hwnd);
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, sizeof(EditInstance*));
    {
        const LockedBlock locked(block);
        if (!locked.get())
            return;
        *locked.get() = edit;
    }
    if (!SetPropA(hwnd, kRecordProperty, block))
        GlobalFree(block);
}

EditInstance* GetEditInstance(HWND hwnd)
{
    HGLOBAL block = GetPropA(hwnd, kRecordProperty);
    if (!block)
        return nullptr;
    const LockedBlock locked(block);
    return locked.get() ? *locked.get() : nullptr;
}

void DetachEditInstance(HWND hwnd)
{
    if (HGLOBAL block = RemovePropA(hwnd, kRecordProperty))
        GlobalFree(block);
}

int16_t SpinWidthForHeight(int16_t height)
{
    const int32_t width = 2 * height / 3 + 2;
    const int32_t widest = GetSystemMetrics(SM_CXVSCROLL) + 2;
    if (width < 7)
        return 7;
    return static_cast<int16_t>(width > widest ? widest : width);
}

void UpdateFormatRect(const EditInstance& edit)
{
    if (Has(edit, HAS_SPIN))
        NarrowFormatRect(edit);
}

void KeepTextOffSpin(const EditInstance& edit)
{
    if (edit.hwndSpin || Has(edit, HAS_SPIN))
        NarrowFormatRect(edit);
}

}  // namespace zte

using namespace zte;

int32_t WINAPI ZTE_Init(HWND hwnd, const EditInitParams* params)
{
    if (!params || !params->heap || !IsWindow(hwnd))
        return 0;
    DiscardRecord(hwnd);
    EditInstance& edit = NewRecord(hwnd, *params);
    return WhileAlive(edit, 0, [&] {
        SetUpSpin(edit, *params);
        edit.controlId = static_cast<uint32_t>(GetWindowLongA(hwnd, GWL_ID));
        edit.hwndParent = GetParent(hwnd);
        SetUpContents(edit, *params);
        return 1;
    });
}

void WINAPI ZTE_SetAutoskip(HWND hwnd, uint32_t on)
{
    if (EditInstance* edit = GetEditInstance(hwnd))
        SetFlag(*edit, AUTOSKIP, (on & 1) != 0);
}

void WINAPI ZTE_UtilSetFormatRect(HWND hwnd)
{
    if (const EditInstance* edit = GetEditInstance(hwnd))
        UpdateFormatRect(*edit);
}
