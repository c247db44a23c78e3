// The exported functions of ztedit.h, each around a function of the engine: they find the record, and survive its going away.
#include "engine/editing.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/heap_block.h"
#include "engine/spin/range.h"
#include "engine/values/caller_value.h"
#include "win32/creation.h"
#include "win32/heap_watch.h"
#include "win32/life_guard.h"
#include "win32/problems.h"
#include "win32/record_store.h"
#include "win32/regional_settings.h"
#include "win32/spin_layout.h"
#include "win32/spin_window.h"
#include "ztedit.h"

using namespace zte;

int32_t WINAPI ZTE_Init(HWND hwnd, const EditInitParams* params)
{
    const int32_t obstacle = ObstacleOf(hwnd, params);
    if (obstacle == ZTP_NONE)
        return SetUpControl(hwnd, *params);
    NoteProblem(hwnd, obstacle);
    return 0;
}

uint32_t WINAPI ZTE_Initialize()
{
    return ZTEDIT_VERSION;
}

int32_t WINAPI ZTE_GetLastProblem(HWND hwnd)
{
    return LastProblem(hwnd);
}

int32_t WINAPI ZTE_CheckMask(const char* mask, int32_t dataType, int32_t* position)
{
    ReadPicturesFor(mask);
    const MaskVerdict verdict = JudgeMask(mask, dataType, regionalSettings);
    if (position)
        *position = verdict.offset;
    return verdict.reason;
}

void WINAPI ZTE_SetAutoskip(HWND hwnd, uint32_t on)
{
    if (EditInstance* edit = GetEditInstance(hwnd))
        SetFlag(*edit, AUTOSKIP, (on & 1) != 0);
}

void WINAPI ZTE_UtilSetFormatRect(HWND hwnd)
{
    if (const EditInstance* edit = GetEditInstance(hwnd))
        edit->field->KeepLayout();
}

int32_t WINAPI ZTE_FmtSetMask(HWND hwnd, const char* mask, int32_t dataType)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 1;
    ReadPicturesFor(mask);
    return WhileAlive(*edit, 1, [&] {
        const int32_t asGiven = EditingOf(*edit).setMask(*edit, mask, dataType);
        FieldOf(*edit).problem = ProblemOfMask(*edit, mask, asGiven != 0);
        return asGiven;
    });
}

int32_t WINAPI ZTE_FmtSetData(HWND hwnd, const void* data)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 0;
    return WhileAlive(*edit, 0, [&] { return EditingOf(*edit).setData(*edit, data); });
}

int32_t WINAPI ZTE_FmtSetDataString(HWND hwnd, const char* text)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 0;
    return WhileAlive(*edit, 0, [&] { return EditingOf(*edit).setDataString(*edit, text); });
}

void* WINAPI ZTE_FmtGetData(HWND hwnd)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    return edit ? EditingOf(*edit).getData(*edit) : nullptr;
}

uint16_t WINAPI ZTE_FmtGetDataType(HWND hwnd)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    return edit ? static_cast<uint16_t>(edit->dataType) : uint16_t{0};
}

FormatResult* WINAPI ZTE_FmtFormatData(HWND hwnd, const void* data)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return nullptr;
    const Display display = EditingOf(*edit).format(*edit, data);
    auto* result = NewBlock<FormatResult>(*edit);
    result->text = Duplicate(*edit, display.text);
    result->formatFlags = display.formatFlags;
    result->firstFieldPos = display.firstFieldPos;
    return result;
}

void* WINAPI ZTE_FmtUnformatData(HWND hwnd, const char* text)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    return edit ? UnformatData(*edit, text) : nullptr;
}

int32_t WINAPI ZTE_SetModern(HWND hwnd, int32_t on)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 0;
    const bool was = edit->editor != nullptr;
    if (was && on == 0)  // what an outer call has still to do would be the work of an editor that is gone
        LifeGuard::EndOuterWork(FieldOf(*edit));
    WhileAlive(*edit, [&] {
        SetModern(*edit, on != 0);
        if (edit->hwndSpin)  // it is drawn otherwise
            InvalidateRect(SpinOf(*edit), nullptr, TRUE);
    });
    return was ? 1 : 0;
}

int32_t WINAPI ZTE_GetState(HWND hwnd)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    return edit ? StateOf(*edit) : -1;
}

int32_t WINAPI ZTE_TrySetDataString(HWND hwnd, const char* text)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return ZTR_DOES_NOT_FIT;
    return WhileAlive(*edit, 0, [&] { return TrySetDataString(*edit, text); });
}

char* WINAPI ZTE_GetDataString(HWND hwnd)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    Text text;
    return edit && CanonicalText(*edit, text) ? Duplicate(*edit, text) : nullptr;
}

void WINAPI ZTE_SetSpin(HWND hwnd, uint32_t increment, const char* range, const char* codeTable, uint32_t style)
{
    if (EditInstance* edit = GetEditInstance(hwnd))
        WhileAlive(*edit, [&] { EditingOf(*edit).setSpin(*edit, increment, range, codeTable, style); });
}

void WINAPI ZTE_CreateSpin(HWND hwnd)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (edit && !edit->hwndSpin)
        WhileAlive(*edit, [&] { CreateSpin(*edit); });
}

void WINAPI ZTE_DestroySpin(HWND hwnd)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (edit && edit->hwndSpin)
        WhileAlive(*edit, [&] {
            DestroySpin(*edit);
            TellState(*edit);
        });
}

void WINAPI ZTE_SetSpinBkColor(HWND hwnd, COLORREF colour)
{
    if (EditInstance* edit = GetEditInstance(hwnd))
        edit->spinBkColor = colour;
}

int16_t WINAPI ZTE_GetSpinWidth(HWND hwnd, const RECT* rect)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 0;
    return EvenSpinWidth(*edit, rect ? *rect : ClientOf(SpinOf(*edit)));
}

int16_t WINAPI ZTE_SpinDateRange(HWND hwnd, DateTimeValue* value, const char* text)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    if (!edit || !value || !text)
        return 1;
    DateTimeValue end;
    const int32_t result = ReadRangeEnd(*edit, end, text);
    WriteValue(value, end);
    return static_cast<int16_t>(result);
}

int16_t WINAPI ZTE_SpinRangeCompare(HWND hwnd, const void* first, const void* second)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 1;
    return first && second && IsOutOfOrder(edit->dataType, first, second);
}
