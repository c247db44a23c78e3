// Lays an edited number through its mask again: takes the number out of the text and shows it anew.
#include <cstring>

#include "core/base_edit.h"
#include "core/instance.h"
#include "format/display.h"
#include "format/number_text.h"
#include "format/read_back.h"
#include "intl/regional_settings.h"
#include "shared/ascii.h"

namespace zte {

namespace {

constexpr size_t kLongestText = 254;

// Display characters that the escapes at the very start of the mask take; escapes further on are not matched (kept).
size_t LeadingEscapes(const EditInstance& edit)
{
    if ((edit.formatFlags & FORMAT_HAS_LITERALS) == 0)
        return 0;
    size_t count = 0;
    for (const char* mask = edit.mask; mask[0] == '~' && mask[1]; mask += 2)
        ++count;
    return count;
}

// Digits, signs and the point; the rest is display only.
std::string ExtractNumber(const EditInstance& edit, const std::string& text)
{
    std::string number;
    for (size_t i = LeadingEscapes(edit); i < text.size(); ++i) {
        const char c = text[i];
        if (IsDigit(c) || c == '+' || c == '-')
            number += c;
        else if (c == DecimalChar())
            number += '.';
    }
    return number;
}

Display ReformatAsNumber(EditInstance& edit, const std::string& number)
{
    double value = NumberFromPlainText(number.c_str());
    if (Has(edit, PERCENT))
        value /= 100.0;
    return FormatValue(edit, &value);
}

Display ReformatAsDecimal(EditInstance& edit, const std::string& number)
{
    DecimalValue value;
    DecFromString(&value, number.c_str(), edit.decimalPlaces);
    if (Has(edit, PERCENT)) {
        DecimalValue hundred;
        DecFromUnsigned(&hundred, 100);
        DecDivide(&value, &value, &hundred);
    }
    return FormatValue(edit, &value);
}

}  // namespace

int32_t ReformatNumber(EditInstance& edit, const char* given)
{
    const std::string text = given ? std::string(given) : ReadText(edit);
    if (text.size() > kLongestText)
        return 0;
    const std::string number = ExtractNumber(edit, text);
    const Display display =
        edit.dataType == DT_DECIMAL ? ReformatAsDecimal(edit, number) : ReformatAsNumber(edit, number);
    SetRedraw(edit, true);
    SetText(edit, display.text.c_str());
    UpdateFormatRect(edit);
    const auto growth = static_cast<int32_t>(display.text.size()) - static_cast<int32_t>(text.size());
    return growth > 0 ? growth : 0;
}

}  // namespace zte
