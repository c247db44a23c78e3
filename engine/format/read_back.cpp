// Reads display text back into data: the control's text with the null rules of its type, a caller's text without.
#include "engine/format/read_back.h"

#include <algorithm>

#include "engine/format/code_table.h"
#include "engine/format/date_text.h"
#include "engine/format/field_text.h"
#include "engine/format/number_value.h"
#include "engine/heap_block.h"
#include "engine/mask/mask_table.h"

namespace zte {

namespace {

constexpr int16_t kYear2000 = 100;
constexpr int16_t kYearZero = -kFirstYear;

// Whether the text comes from the caller or from the window.
enum class Source { Caller, Window };

// The characters at field positions, without the literals; the whole text where there is no mask.
Text FieldCharacters(const EditInstance& edit, const Text& text)
{
    if (!HasMask(edit))
        return text;
    Text kept;
    for (int32_t i = 0; i < Length(text); ++i)
        if (PositionOf(edit, text, i).IsEditable())
            kept += At(text, i);
    return kept;
}

Text Characters(const EditInstance& edit, const Text& text, Source source)
{
    if (!IsNumeric(edit.dataType))
        return FieldCharacters(edit, text);
    return source == Source::Window ? NumberShown(edit, text) : NumberIn(edit, text);
}

// The data value of the code-table entry shown, or null.
const Char* CodeValue(const EditInstance& edit, const Text& text)
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

DateTimeValue CanonicalValue(const EditInstance& edit, const Text& text)
{
    DateTimeValue value;
    ParseCanonical(edit, text.c_str(), value);
    return value;
}

// A data value as the text that it is, in a block that is never smaller than the record a caller may take it for.
void* DuplicateCode(const EditInstance& edit, const Text& code)
{
    const size_t room = std::max(code.size() + 1, sizeof(DateTimeValue));
    Text padded = code;
    padded.resize(room - 1);
    return Duplicate(edit, padded);
}

// The fields of the window text, as far as they can be read.
DateTimeValue FieldsShown(const EditInstance& edit, const Text& text, bool longEnough)
{
    DateTimeValue value = kEmptyDateTime;
    if (longEnough || HasAmPmField(edit))
        ReadFields(edit, text, value);
    return value;
}

// What an untouched display reads as: 00/00/00.
bool IsZeroDate(const EditInstance& edit, const Text& text, const DateTimeValue& value)
{
    return value.day == 0 && value.month == 0 && value.year == kYear2000 && MonthFromText(edit, text) == 0;
}

// Midnight reads as no time, on purpose.
bool IsMidnight(const DateTimeValue& value)
{
    return value.hour == 0 && value.minute == 0 && value.second == 0 && value.microsecond == 0;
}

bool ReadsAsNull(const EditInstance& edit, const Text& text, const DateTimeValue& value)
{
    if (edit.dataType == DT_DATE)
        return IsZeroDate(edit, text, value) || value.year == kYearZero || !HasDate(value);
    return edit.dataType == DT_TIME && IsMidnight(value);
}

// A date-time is never null: without a date it gets the zero date, without a time midnight.
void CompleteDateTime(const EditInstance& edit, const Text& text, DateTimeValue& value)
{
    if (IsZeroDate(edit, text, value) || value.year == kYearZero)
        return;
    if (!HasDate(value)) {
        value.year = kYear2000;
        value.month = 0;
        value.day = 0;
    } else if (!HasTime(value)) {
        value.hour = 0;
    }
}

DateTimeValue* GetDateTime(const EditInstance& edit, const Text& text)
{
    const Char* code = CodeValue(edit, text);
    DateTimeValue value =
        code ? CanonicalValue(edit, code) : FieldsShown(edit, text, Length(text) == edit.displayLength);
    if (ReadsAsNull(edit, text, value))
        return nullptr;
    if (edit.dataType == DT_DATETIME)
        CompleteDateTime(edit, text, value);
    if (edit.dataType != DT_TIME && value.day == 0)
        value.day = 1;
    return NewDateTime(edit, value);
}

}  // namespace

DateTimeValue ReadShownDateTime(const EditInstance& edit, const Text& text)
{
    if (text.empty())
        return kEmptyDateTime;
    if (const Char* code = CodeValue(edit, text))
        return CanonicalValue(edit, code);
    DateTimeValue value = FieldsShown(edit, text, Length(text) >= edit.displayLength);
    if (value.day == 0 && HasDate(value))
        value.day = 1;
    return value;
}

Text ReadShownText(const EditInstance& edit, const Text& text)
{
    if (const Char* code = CodeValue(edit, text))
        return code;
    return Characters(edit, text, Source::Window);
}

void* GetData(const EditInstance& edit)
{
    if (!edit.mask)
        return nullptr;
    const Text text = edit.field->ReadText();
    if (text.empty()) {
        if (IsDateOrTime(edit.dataType))
            return NewDateTime(edit, kEmptyDateTime);
        return Duplicate(edit, FromAscii(IsNumeric(edit.dataType) ? "0" : ""));
    }
    if (IsDateOrTime(edit.dataType))
        return GetDateTime(edit, text);
    return Duplicate(edit, ReadShownText(edit, text));
}

DateTimeValue ReadPastedDateTime(const EditInstance& edit, const Text& text)
{
    const Char* code = CodeValue(edit, text);
    return CanonicalValue(edit, code ? Text(code) : text);
}

Text UnformatText(const EditInstance& edit, const Text& text)
{
    if (const Char* code = CodeValue(edit, text))
        return code;
    return Characters(edit, text, Source::Caller);
}

// Dates and times are read as canonical text only: what is pasted comes in that form.
void* UnformatData(const EditInstance& edit, const Char* text)
{
    if (!edit.mask || !text || !*text)
        return nullptr;
    if (const Char* code = CodeValue(edit, text))
        return DuplicateCode(edit, code);
    if (IsDateOrTime(edit.dataType))
        return NewDateTime(edit, CanonicalValue(edit, text));
    return Duplicate(edit, Characters(edit, text, Source::Caller));
}

}  // namespace zte
