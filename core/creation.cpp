// Setting a control up from its EditInitParams, and taking it down.
#include "core/creation.h"

#include <new>
#include <utility>

#include "core/base_edit.h"
#include "core/instance.h"
#include "core/life_guard.h"
#include "format/data.h"
#include "mask/mask_setting.h"
#include "spin/spin_settings.h"
#include "spin/spin_window.h"

namespace zte {

namespace {

struct OptionRow {
    uint32_t option;
    uint32_t flag;
    uint32_t spinStyle;
};

constexpr OptionRow kOptions[] = {
    {ZTEO_AUTOSKIP,     AUTOSKIP,      0                  },
    {ZTEO_SPIN,         HAS_SPIN,      0                  },
    {ZTEO_CODE_PICK,    CODE_PICKLIST, SPINSTYLE_PICKLIST },
    {ZTEO_CODE_DISPLAY, CODE_SPIN,     SPINSTYLE_CODETABLE},
};

}  // namespace

EditInstance& NewRecord(HWND hwnd, const EditInitParams& params)
{
    void* block = SharedHeapAlloc(params.heap, sizeof(EditInstance), params.heapFlags);
    EditInstance& edit = *new (block) EditInstance{};
    AttachEditInstance(hwnd, &edit);
    edit.heap = params.heap;
    edit.heapFlags = params.heapFlags;
    edit.dataType = params.dataType;
    edit.hwnd = hwnd;
    for (const OptionRow& row : kOptions)
        SetFlag(edit, row.flag, (params.options & row.option) != 0);
    return edit;
}

void SetUpSpin(EditInstance& edit, const EditInitParams& params)
{
    if (!Has(edit, HAS_SPIN))
        return;
    uint32_t style = 0;
    for (const OptionRow& row : kOptions)
        style |= (params.options & row.option) != 0 ? row.spinStyle : 0;
    SetSpin(edit, params.spinIncrement, params.spinRangeText, params.codeTableText, style);
}

void SetUpContents(EditInstance& edit, const EditInitParams& params)
{
    SetMask(edit, params.maskText, edit.dataType);
    if (params.initialData)
        SetDataString(edit, params.initialData);
    if (Has(edit, HAS_SPIN))
        CreateHiddenSpin(edit);
}

void DiscardRecord(HWND hwnd)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return;
    if (HWND spin = std::exchange(edit->hwndSpin, nullptr))
        DestroyWindow(spin);
    LifeGuard::TellAll(*edit);
    DetachEditInstance(hwnd);
    SharedHeapFree(edit->heap, edit);
}

LRESULT CreateControl(HWND hwnd, WPARAM wParam, LPARAM lParam)
{
    const auto& creation = *reinterpret_cast<const CREATESTRUCTA*>(lParam);
    const auto* params = static_cast<const EditInitParams*>(creation.lpCreateParams);
    if (!params || !params->heap)
        return CallBaseEdit(hwnd, WM_CREATE, wParam, lParam);

    EditInstance& edit = NewRecord(hwnd, *params);
    return WhileAlive<LRESULT>(edit, -1, [&] {
        SetUpSpin(edit, *params);
        edit.controlId = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(creation.hMenu));
        edit.hwndParent = creation.hwndParent;
        const LifeCheck life(edit);
        const LRESULT result = CallBaseEdit(hwnd, WM_CREATE, wParam, lParam);
        life.Check();
        if (result != -1)
            SetUpContents(edit, *params);
        return result;
    });
}

}  // namespace zte
