// Pasting: the clipboard text is read back as data, as if it were the control's own display, and set as the new value.
#include "engine/edit/paste.h"

#include "engine/format/data.h"
#include "engine/format/number_value.h"
#include "engine/format/read_back.h"
#include "engine/services.h"

namespace zte {

namespace {

// A percentage means what it shows: 12.5% is an eighth.
void SetNumber(EditInstance& edit, const Text& number)
{
    double value = NumberFromText(edit, number);
    value = Has(edit, PERCENT) ? FromPercentage(value) : value;
    SetData(edit, &value);
}

void SetDecimal(EditInstance& edit, const Text& number)
{
    DecimalValue value = DecimalFromText(edit, number);
    value = Has(edit, PERCENT) ? FromPercentage(value) : value;
    SetData(edit, &value);
}

// False when the text is no data of the type.
bool SetFromText(EditInstance& edit, const Text& text)
{
    if (IsDateOrTime(edit.dataType)) {
        const DateTimeValue value = ReadPastedDateTime(edit, text);
        SetData(edit, &value);
        return true;
    }
    const Text data = UnformatText(edit, text);
    if (!IsNumeric(edit.dataType)) {
        SetData(edit, data.c_str());
        return true;
    }
    if (!IsNumberOf(edit, data))
        return false;
    if (edit.dataType == DT_NUMBER)
        SetNumber(edit, data);
    else
        SetDecimal(edit, data);
    return true;
}

}  // namespace

bool PasteClipboard(EditInstance& edit)
{
    if (edit.field->RefusesInput())
        return false;
    const std::optional<Text> text = edit.field->ReadClipboard();
    if (!text || text->empty() || !edit.mask)
        return false;
    const bool taken = SetFromText(edit, *text);
    if (taken)
        edit.field->SetModified();
    else
        edit.field->Beep();
    return taken;
}

}  // namespace zte
