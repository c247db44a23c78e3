// Pasting: the clipboard text is read back as data, as if it were the control's own display, and set as the new value.
#include "edit/paste.h"

#include <cstring>
#include <optional>
#include <string>

#include "core/base_edit.h"
#include "core/heap.h"
#include "format/data.h"
#include "format/number_text.h"
#include "format/read_back.h"

namespace zte {

namespace {

class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND hwnd) : open_(OpenClipboard(hwnd) != FALSE) {}
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard()
    {
        if (open_)
            CloseClipboard();
    }
    bool IsOpen() const { return open_; }

private:
    bool open_;
};

// The clipboard's text, none when it is busy or holds no text.
std::optional<std::string> ClipboardText(HWND hwnd)
{
    const OpenedClipboard clipboard(hwnd);
    HANDLE data = clipboard.IsOpen() ? GetClipboardData(CF_TEXT) : nullptr;
    const auto* text = data ? static_cast<const char*>(GlobalLock(data)) : nullptr;
    if (!text)
        return std::nullopt;
    std::string copy(text, strnlen(text, GlobalSize(data)));
    GlobalUnlock(data);
    return copy;
}

// A percentage means what it shows: 12.5% is an eighth.
void SetNumber(EditInstance& edit, const char* number)
{
    double value = NumberFromText(number);
    if (Has(edit, PERCENT))
        value /= 100.0;
    SetData(edit, &value);
}

void SetDecimal(EditInstance& edit, const char* number)
{
    DecimalValue value = DecimalFromText(number, edit.decimalPlaces);
    if (Has(edit, PERCENT)) {
        DecimalValue hundred;
        DecFromUnsigned(&hundred, 100);
        DecDivide(&value, &value, &hundred);
    }
    SetData(edit, &value);
}

// False when the text is no data of the type.
bool SetFromText(EditInstance& edit, const std::string& text)
{
    if (IsDateOrTime(edit.dataType)) {
        const DateTimeValue value = ReadPastedDateTime(edit, text.c_str());
        SetData(edit, &value);
        return true;
    }
    const std::string data = Own(edit, static_cast<char*>(UnformatData(edit, text.c_str()))).get();
    if (!IsNumeric(edit.dataType)) {
        SetData(edit, data.c_str());
        return true;
    }
    if (!SharedIsNumber(data.c_str()))
        return false;
    if (edit.dataType == DT_NUMBER)
        SetNumber(edit, data.c_str());
    else
        SetDecimal(edit, data.c_str());
    return true;
}

}  // namespace

void PasteClipboard(EditInstance& edit)
{
    if (IsInputRefused(edit.hwnd))
        return;
    const std::optional<std::string> text = ClipboardText(edit.hwnd);
    if (!text || text->empty() || !edit.mask)
        return;
    if (SetFromText(edit, *text))
        CallBaseEdit(edit.hwnd, EM_SETMODIFY, TRUE, 0);
    else
        Beep();
}

}  // namespace zte
