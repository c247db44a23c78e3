// Setting a control up from its EditInitParams, and taking it down.
#include "win32/creation.h"

#include <utility>

#include "engine/editing.h"
#include "engine/spin/spin_settings.h"
#include "win32/life_guard.h"
#include "win32/problems.h"
#include "win32/record_store.h"
#include "win32/regional_settings.h"
#include "win32/spin_layout.h"
#include "win32/spin_window.h"

namespace zte {

namespace {

// The spin parameters, for a control created with a spin.
void SetUpSpin(EditInstance& edit, const EditInitParams& params)
{
    if (Has(edit, HAS_SPIN))
        SetSpin(edit, params.spinIncrement, params.spinRangeText, params.codeTableText, SpinStyleOf(params.options));
}

// How the control is edited, mask, initial data, and the spin child when asked for.
void SetUpContents(EditInstance& edit, const EditInitParams& params)
{
    if ((params.options & ZTEO_MODERN) != 0)
        BeginModern(edit);
    ReadPicturesFor(params.maskText);
    const int32_t asGiven = EditingOf(edit).setMask(edit, params.maskText, edit.dataType);
    FieldOf(edit).problem = ProblemOfMask(edit, params.maskText, asGiven != 0);
    if (params.initialData)
        EditingOf(edit).setDataString(edit, params.initialData);
    if (Has(edit, HAS_SPIN))
        CreateHiddenSpin(edit);
    EndCreation(edit);
}

}  // namespace

int32_t SetUpControl(HWND hwnd, const EditInitParams& params)
{
    if (EditInstance* former = GetEditInstance(hwnd))
        WhileAlive(*former, [&] { GiveMarginBack(*former); });
    DiscardRecord(hwnd);
    EditInstance* record = NewRecord(hwnd, params);
    if (!record)
        return 0;
    EditInstance& edit = *record;
    return WhileAlive(edit, 0, [&] {
        SetUpSpin(edit, params);
        edit.controlId = static_cast<uint32_t>(GetWindowLongA(hwnd, GWL_ID));
        edit.hwndParent = GetParent(hwnd);
        SetUpContents(edit, params);
        return 1;
    });
}

LRESULT CreateControl(HWND hwnd, WPARAM wParam, LPARAM lParam)
{
    const auto& creation = *reinterpret_cast<const CREATESTRUCTA*>(lParam);
    const auto* params = static_cast<const EditInitParams*>(creation.lpCreateParams);
    const int32_t obstacle = params ? ObstacleOfHeap(params->heap) : ZTP_NONE;
    if (obstacle != ZTP_NONE)
        NoteProblem(hwnd, obstacle);
    EditInstance* record = params && obstacle == ZTP_NONE ? NewRecord(hwnd, *params) : nullptr;
    if (!record)
        return CallBaseEdit(hwnd, WM_CREATE, wParam, lParam);

    EditInstance& edit = *record;
    LRESULT result = -1;
    WhileAlive(edit, [&] {
        SetUpSpin(edit, *params);
        edit.controlId = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(creation.hMenu));
        edit.hwndParent = creation.hwndParent;
        result = FieldOf(edit).ToBase(WM_CREATE, wParam, lParam);
        if (result != -1)
            SetUpContents(edit, *params);
    });
    return IsWindow(hwnd) ? result : -1;  // the parent hears of the first text, and may do anything
}

// The end of a spin may bring messages to the control, so that it is one until then; they may even destroy it.
void DiscardRecord(HWND hwnd)
{
    EditInstance* edit = DetachEditInstance(hwnd);
    if (edit && edit->hwndSpin) {
        const bool attached = AttachEditInstance(hwnd, edit);
        DestroyWindow(static_cast<HWND>(std::exchange(edit->hwndSpin, nullptr)));
        if (attached)
            edit = DetachEditInstance(hwnd);
    }
    if (edit)
        FreeRecord(*edit);
}

}  // namespace zte
