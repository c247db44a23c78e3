// Pasting: the clipboard text is read back as data, as if it were the control's own display, and set as the new value.
#include "engine/edit/paste.h"

#include "engine/format/data.h"
#include "engine/format/number_value.h"
#include "engine/format/read_back.h"
#include "engine/services.h"

namespace zte {

namespace {

void SetNumber(EditInstance& edit, const Text& value)
{
    if (edit.dataType == DT_NUMBER) {
        const double number = NumberFromText(edit, value);
        SetData(edit, &number);
    } else {
        const DecimalValue decimal = DecimalFromText(edit, value);
        SetData(edit, &decimal);
    }
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
    SetNumber(edit, ValueOfWritten(edit, data));
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
