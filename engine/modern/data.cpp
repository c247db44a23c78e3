// Values into a modern control and out of it.
#include "engine/modern/data.h"

#include <utility>

#include "engine/format/data.h"
#include "engine/format/date_text.h"
#include "engine/format/mask_setting.h"
#include "engine/format/number_value.h"
#include "engine/format/read_back.h"
#include "engine/heap_block.h"
#include "engine/mask/mask_table.h"
#include "engine/modern/classic_content.h"
#include "engine/modern/editor.h"
#include "engine/spin/spin_settings.h"
#include "engine/values/date_time.h"
#include "engine/values/number_text.h"

namespace zte::modern {

namespace {

// What the control holds, of whichever editing it is.
Content ContentOf(const EditInstance& edit)
{
    return edit.editor ? edit.editor->Peek() : ClassicContent(edit);
}

bool HoldsValue(int32_t state)
{
    return state == ZTS_OUT_OF_RANGE || state == ZTS_COMPLETE;
}

DateTimeValue* ShownDateTime(const EditInstance& edit, const Content& content)
{
    DateTimeValue value;
    if (!ParseCanonical(edit, KindOf(edit).canonical(edit, content).c_str(), value))
        return nullptr;
    auto* block = NewBlock<DateTimeValue>(edit);
    *block = value;
    return block;
}

// Under these a number's mask is what it is written as, '.' and ',' being placeholders: one mask serves every country.
Settings WithPlainSeparators(Settings settings)
{
    settings.decimalChar = '.';
    settings.thousandChar = ',';
    return settings;
}

// The text as a value of classic editing reads it, which refuses nothing.
void ShowWhatCanBeRead(EditInstance& edit, const Char* text)
{
    if (edit.dataType == DT_STRING) {
        modern::SetData(edit, text);
        return;
    }
    if (IsDateOrTime(edit.dataType)) {
        DateTimeValue value;  // the empty one where the text is none
        ParseCanonical(edit, text, value);
        modern::SetData(edit, &value);
        return;
    }
    const Text plain = PlainNumberOf(edit, text);
    if (edit.dataType == DT_NUMBER) {
        const double number = NumberFromPlainText(plain.c_str());
        modern::SetData(edit, &number);
    } else {
        const DecimalValue decimal = services::DecimalOf(plain.c_str(), edit.decimalPlaces);
        modern::SetData(edit, &decimal);
    }
}

}  // namespace

int32_t SetMask(EditInstance& edit, const Char* mask, int32_t dataType)
{
    const bool asGiven = ChangeMask(edit, mask, dataType, *edit.settings) ||
                         (IsNumeric(dataType) && ChangeMask(edit, mask, dataType, WithPlainSeparators(*edit.settings)));
    edit.maskJustSet = 1;
    if (&KindOf(edit) != &kChoices || edit.editor->Look().text.empty())  // an entry that is shown stays
        modern::SetData(edit, nullptr);
    else
        edit.editor->NoteTextSet();
    return asGiven ? 1 : 0;
}

MaskVerdict JudgeMask(const Char* mask, int32_t dataType, const Settings& settings)
{
    const MaskVerdict regional = zte::JudgeMask(mask, dataType, settings);
    return regional || !IsNumeric(dataType) ? regional : zte::JudgeMask(mask, dataType, WithPlainSeparators(settings));
}

int32_t SetData(EditInstance& edit, const void* data)
{
    if (!edit.mask)
        return 0;
    edit.editor->ShowData(KindOf(edit).show(edit, data));
    return 1;
}

Outcome ReadDataString(const EditInstance& edit, const Char* text)
{
    if (!edit.mask)
        return Refused(ZTR_DOES_NOT_FIT);
    const Kind& kind = KindOf(edit);
    const Content empty = kind.show(edit, nullptr);
    if (!text || !*text)
        return Accepted(empty);
    if (std::optional<Content> content = kind.readCanonical(edit, text))
        return Accepted(std::move(*content));
    if (&kind == &kDates && FromClassic(edit, text).text != text)  // the blank display of classic editing
        return Accepted(empty);
    return kind.paste(edit, empty, text);
}

int32_t TrySetDataString(EditInstance& edit, const Char* text)
{
    Outcome read = ReadDataString(edit, text);
    if (read.reason != 0)
        return read.reason;
    if (edit.editor)
        edit.editor->ShowData(Untyped(std::move(read.content)));
    else if (KindOf(edit).state(edit, read.content) == ZTS_EMPTY)
        zte::SetData(edit, nullptr);
    else
        zte::SetDataString(edit, KindOf(edit).canonical(edit, read.content).c_str());
    return 0;
}

int32_t SetDataString(EditInstance& edit, const Char* text)
{
    if (edit.mask && modern::TrySetDataString(edit, text) != 0)
        ShowWhatCanBeRead(edit, text);
    return edit.mask ? 1 : 0;
}

void* GetData(const EditInstance& edit)
{
    if (!edit.mask)
        return nullptr;
    const Content content = edit.editor->Peek();
    const int32_t state = KindOf(edit).state(edit, content);
    if (edit.dataType == DT_STRING)
        return zte::GetData(edit);
    if (IsDateOrTime(edit.dataType))
        return HoldsValue(state) ? ShownDateTime(edit, content) : nullptr;
    return HoldsValue(state) || state == ZTS_EMPTY ? zte::GetData(edit) : nullptr;
}

Display Format(EditInstance& edit, const void* data)
{
    Display display = FormatValue(edit, data);
    if (edit.mask)
        display.text = KindOf(edit).show(edit, data).text;
    return display;
}

void SetSpin(EditInstance& edit, uint32_t increment, const Char* range, const Char* codeTable, uint32_t style)
{
    const bool hadCodes = Has(edit, CODE_SPIN) || edit.codeTable;
    zte::SetSpin(edit, increment, range, codeTable, style);
    edit.editor->Look();
    if (hadCodes || Has(edit, CODE_SPIN))  // what was chosen is no step of another table
        edit.editor->ForgetHistory();
    edit.editor->TellState();
}

int32_t StateOf(const EditInstance& edit)
{
    return KindOf(edit).state(edit, ContentOf(edit));
}

bool CanonicalText(const EditInstance& edit, Text& text)
{
    const Kind& kind = KindOf(edit);
    const Content content = ContentOf(edit);
    const int32_t state = kind.state(edit, content);
    text = state == ZTS_EMPTY ? Text() : kind.canonical(edit, content);
    return state == ZTS_EMPTY || HoldsValue(state) || &kind == &kStrings;
}

void TakeOver(EditInstance& edit)
{
    const Content content = FromClassic(edit, edit.field->ReadText());
    edit.editor = new Editor(edit);
    edit.editor->TakeOver(content);
}

void GiveBack(EditInstance& edit)
{
    const Text text = ToClassic(edit, edit.editor->Look());
    DropEditor(edit);
    if (edit.field->ReadText() != text)
        ShowText(edit, text.c_str());
}

void DropEditor(EditInstance& edit)
{
    delete std::exchange(edit.editor, nullptr);
}

}  // namespace zte::modern
