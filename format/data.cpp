// Values into the control: setting data, setting data given as text, and formatting without a look at the window.
#include "format/data.h"

#include <string>

#include "core/base_edit.h"
#include "core/heap.h"
#include "core/instance.h"
#include "core/life_guard.h"
#include "format/code_lookup.h"
#include "format/date_walk.h"
#include "format/display.h"
#include "format/number_text.h"
#include "mask/mask_setting.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

// A data pointer as the text to look up in the code table: none stands for no data.
const char* LookupText(const EditInstance& edit, const void* data)
{
    return edit.dataType == DT_STRING ? static_cast<const char*>(data) : nullptr;
}

bool CanLookUp(const EditInstance& edit, const void* data)
{
    return !data || edit.dataType == DT_STRING;
}

// Shows the data through the code table; false when it is to be formatted.
bool ShowCode(EditInstance& edit, const void* data)
{
    if (!edit.codeTable) {
        edit.flags |= SPUN;
        ShowText(edit, "");
        return true;
    }
    const char* entry = CanLookUp(edit, data) ? DisplayTextForValue(edit, LookupText(edit, data)) : nullptr;
    if (entry) {
        edit.flags |= CODE_POSITIONED;
        ShowText(edit, std::string(entry).c_str());
        return true;
    }
    if (Has(edit, CODE_PICKLIST))
        edit.flags |= SPUN;
    return false;
}

// The display is complete before the window hears of it: setting the text may take the control away.
void ShowDisplay(EditInstance& edit, const Display& display)
{
    ShowText(edit, display.text.c_str());
    if (Has(edit, SPUN))
        return;
    edit.formatFlags = display.formatFlags;
    edit.firstFieldPos = display.firstFieldPos;
    if (display.firstFieldPos != 0)
        PlaceCaret(edit, display.firstFieldPos);
}

DateTimeValue DateTimeFromText(EditInstance& edit, const char* text)
{
    DateTimeValue value;
    if (LooksLikeDisplayText(edit, text) && WalkDateText(edit, text, value) &&
        CheckByCanonicalText(edit.dataType, value))
        return value;
    ParseCanonical(edit.dataType, text, value);
    return value;
}

}  // namespace

int32_t SetData(EditInstance& edit, const void* data)
{
    edit.carriedTo = 0;
    SetFlag(edit, CODE_POSITIONED, false);
    if (!edit.mask)
        return 0;
    if (Has(edit, CODE_SPIN) && ShowCode(edit, data))
        return 1;
    ChooseEditMode(edit);
    ShowDisplay(edit, FormatValue(edit, data));
    return 1;
}

int32_t SetDataString(EditInstance& edit, const char* text)
{
    if (!text)
        return SetData(edit, nullptr);
    if (edit.dataType == DT_NUMBER) {
        const double number = NumberFromPlainText(text);
        return SetData(edit, &number);
    }
    if (edit.dataType == DT_DECIMAL) {
        DecimalValue decimal;
        DecFromString(&decimal, text, edit.decimalPlaces);
        return SetData(edit, &decimal);
    }
    if (IsDateOrTime(edit.dataType)) {
        const DateTimeValue value = DateTimeFromText(edit, text);
        return SetData(edit, &value);
    }
    return SetData(edit, text);
}

FormatResult* FormatData(EditInstance& edit, const void* data)
{
    const Display display = FormatValue(edit, data);
    auto* result = NewBlock<FormatResult>(edit);
    result->text = Duplicate(edit, display.text.c_str());
    result->formatFlags = display.formatFlags;
    result->firstFieldPos = display.firstFieldPos;
    return result;
}

Formatted::Formatted(EditInstance& edit, const void* data) : heap_(edit.heap), result_(FormatData(edit, data)) {}

Formatted::~Formatted()
{
    SharedHeapFree(heap_, result_->text);
    SharedHeapFree(heap_, result_);
}

}  // namespace zte

using namespace zte;

int32_t WINAPI ZTE_FmtSetData(HWND hwnd, const void* data)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 0;
    return WhileAlive(*edit, 0, [&] { return SetData(*edit, data); });
}

int32_t WINAPI ZTE_FmtSetDataString(HWND hwnd, const char* text)
{
    EditInstance* edit = GetEditInstance(hwnd);
    if (!edit)
        return 0;
    return WhileAlive(*edit, 0, [&] { return SetDataString(*edit, text); });
}

uint16_t WINAPI ZTE_FmtGetDataType(HWND hwnd)
{
    const EditInstance* edit = GetEditInstance(hwnd);
    return edit ? static_cast<uint16_t>(edit->dataType) : uint16_t{0};
}

FormatResult* WINAPI ZTE_FmtFormatData(HWND hwnd, const void* data)
{
    EditInstance* edit = GetEditInstance(hwnd);
    return edit ? FormatData(*edit, data) : nullptr;
}
