// Reads display text back into data: the control's text with the null rules of its type, a caller's text without.
#include "format/read_back.h"

#include <algorithm>
#include <cstring>

#include "core/base_edit.h"
#include "core/heap.h"
#include "core/instance.h"
#include "core/life_guard.h"
#include "format/code_lookup.h"
#include "format/data.h"
#include "format/date_walk.h"
#include "format/number_text.h"
#include "intl/regional_settings.h"
#include "mask/field_text.h"
#include "mask/mask_items.h"
#include "mask/mask_text.h"
#include "shared/ascii.h"

namespace zte {

namespace {

// Whether the text comes from the caller (only '.' positions are kept beside the fields) or from the window.
enum class Source { Caller, Window };

bool IsKept(const EditInstance& edit, char shown, char mask, Source source)
{
    if (mask == '~')
        return false;
    if (IsNumeric(edit.dataType)) {
        if (source == Source::Window && shown == regionalSettings.thousandChar)
            return false;
        if (mask == '.' || (source == Source::Window && mask == ',' && IsDigit(shown)))
            return true;
    }
    return FindMaskItem(mask, edit.dataType) != nullptr;
}

// The characters at field positions, without the literals; the whole text where there is no mask.
std::string FieldCharacters(const EditInstance& edit, const std::string& text, Source source)
{
    if (!HasMask(edit))
        return text;
    std::string kept;
    for (size_t i = 0; i < text.size(); ++i) {
        const MaskChar mask = MaskCharAt(edit, text, static_cast<int32_t>(i));
        if (IsKept(edit, text[i], mask.value, source))
            kept += text[i];
    }
    return kept;
}

// A percentage as the fraction it stands for, in the plain form.
std::string FractionText(const std::string& percentage)
{
    char compiled[SHARED_FORMAT_SIZE];
    char rendered[35] = "";
    SharedCompileFormat(compiled, "[GENERAL]", sizeof compiled);
    SharedFormatDouble(rendered, sizeof rendered, compiled, NumberFromText(percentage.c_str()) / 100.0, 0);
    return rendered;
}

std::string WindowData(const EditInstance& edit, const std::string& text)
{
    const std::string kept = FieldCharacters(edit, text, Source::Window);
    return IsNumeric(edit.dataType) && Has(edit, PERCENT) ? FractionText(kept) : kept;
}

// The data value of the code-table entry shown, or null.
const char* CodeValue(const EditInstance& edit, const std::string& text)
{
    if (!edit.codeTable || !Has(edit, CODE_SPIN))
        return nullptr;
    return ValueForDisplayText(edit, text.c_str());
}

DateTimeValue* NewDateTime(const EditInstance& edit, const DateTimeValue& value)
{
    auto* block = NewBlock<DateTimeValue>(edit);
    *block = value;
    return block;
}

DateTimeValue CanonicalValue(const EditInstance& edit, const char* text)
{
    DateTimeValue value;
    ParseCanonical(edit.dataType, text, value);
    return value;
}

// A data value as the text that it is, in a block that is never smaller than the record a caller may take it for.
void* DuplicateCode(const EditInstance& edit, const char* code)
{
    const size_t size = std::max(std::strlen(code) + 1, sizeof(DateTimeValue));
    void* block = SharedHeapAlloc(edit.heap, static_cast<uint32_t>(size), edit.heapFlags);
    std::memset(block, 0, size);
    std::memcpy(block, code, std::strlen(code));
    return block;
}

// The fields of the window text, as far as they can be read.
DateTimeValue WindowDateTime(EditInstance& edit, const std::string& text, bool longEnough)
{
    DateTimeValue value = kEmptyDateTime;
    if (longEnough || Has(edit, AMPM))
        WalkDateText(edit, text.c_str(), value);
    return value;
}

int32_t Length(const std::string& text)
{
    return static_cast<int32_t>(text.size());
}

constexpr int16_t kYear2000 = 100;
constexpr int16_t kYearZero = -1900;

// What an untouched display reads as: 00/00/00.
bool IsZeroDate(const EditInstance& edit, const DateTimeValue& value)
{
    return value.day == 0 && value.month == 0 && value.year == kYear2000 && MonthFromText(edit) == 0;
}

// Midnight reads as no time, on purpose.
bool IsMidnight(const DateTimeValue& value)
{
    return value.hour == 0 && value.minute == 0 && value.second == 0 && value.microsecond == 0;
}

bool ReadsAsNull(const EditInstance& edit, const DateTimeValue& value)
{
    if (edit.dataType == DT_DATE)
        return IsZeroDate(edit, value) || value.year == kYearZero || value.year == DATETIME_NO_DATE;
    return edit.dataType == DT_TIME && IsMidnight(value);
}

// A date-time is never null: without a date it gets the zero date, without a time midnight.
void CompleteDateTime(const EditInstance& edit, DateTimeValue& value)
{
    if (IsZeroDate(edit, value) || value.year == kYearZero)
        return;
    if (value.year == DATETIME_NO_DATE) {
        value.year = kYear2000;
        value.month = 0;
        value.day = 0;
    } else if (value.hour == DATETIME_NO_TIME) {
        value.hour = 0;
    }
}

DateTimeValue* GetDateTime(EditInstance& edit, const std::string& text)
{
    const char* code = CodeValue(edit, text);
    DateTimeValue value =
        code ? CanonicalValue(edit, code) : WindowDateTime(edit, text, Length(text) == edit.displayLength);
    if (ReadsAsNull(edit, value))
        return nullptr;
    if (edit.dataType == DT_DATETIME)
        CompleteDateTime(edit, value);
    if (edit.dataType != DT_TIME && value.day == 0)
        value.day = 1;
    return NewDateTime(edit, value);
}

}  // namespace

DateTimeValue ReadCurrentDateTime(EditInstance& edit)
{
    const std::string text = ReadText(edit);
    if (text.empty())
        return kEmptyDateTime;
    if (const char* code = CodeValue(edit, text))
        return CanonicalValue(edit, code);
    DateTimeValue value = WindowDateTime(edit, text, Length(text) >= edit.displayLength);
    if (value.day == 0 && value.year != DATETIME_NO_DATE)
        value.day = 1;
    return value;
}

void* ReadCurrentData(EditInstance& edit)
{
    const std::string text = ReadText(edit);
    if (text.empty())
        return nullptr;
    if (IsDateOrTime(edit.dataType))
        return NewDateTime(edit, ReadCurrentDateTime(edit));
    if (const char* code = CodeValue(edit, text))
        return Duplicate(edit, code);
    return Duplicate(edit, WindowData(edit, text).c_str());
}

void* GetData(EditInstance& edit)
{
    if (!edit.mask)
        return nullptr;
    const std::string text = ReadText(edit);
    if (text.empty()) {
        if (IsDateOrTime(edit.dataType))
            return NewDateTime(edit, kEmptyDateTime);
        return Duplicate(edit, IsNumeric(edit.dataType) ? "0" : "");
    }
    if (IsDateOrTime(edit.dataType))
        return GetDateTime(edit, text);
    if (const char* code = CodeValue(edit, text))
        return Duplicate(edit, code);
    return Duplicate(edit, WindowData(edit, text).c_str());
}

DateTimeValue ReadPastedDateTime(const EditInstance& edit, const char* text)
{
    const char* code = CodeValue(edit, text);
    return CanonicalValue(edit, code ? code : text);
}

// Dates and times are read as canonical text only: what is pasted comes in that form.
void* UnformatData(EditInstance& edit, const char* text)
{
    if (!edit.mask || !text || !*text)
        return nullptr;
    if (const char* code = CodeValue(edit, text))
        return DuplicateCode(edit, code);
    if (IsDateOrTime(edit.dataType))
        return NewDateTime(edit, CanonicalValue(edit, text));
    return Duplicate(edit, FieldCharacters(edit, text, Source::Caller).c_str());
}

}  // namespace zte

using namespace zte;

void* WINAPI ZTE_FmtGetData(HWND hwnd)
{
    EditInstance* edit = GetEditInstance(hwnd);
    return edit ? GetData(*edit) : nullptr;
}

void* WINAPI ZTE_FmtUnformatData(HWND hwnd, const char* text)
{
    EditInstance* edit = GetEditInstance(hwnd);
    return edit ? UnformatData(*edit, text) : nullptr;
}
