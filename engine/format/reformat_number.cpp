// Lays an edited number through its mask again: takes the number out of the text and shows it anew.
#include "engine/format/reformat_number.h"

#include <algorithm>

#include "engine/format/display.h"
#include "engine/format/number_value.h"
#include "engine/mask/mask_table.h"
#include "engine/text/ascii.h"
#include "engine/values/number_text.h"

namespace zte {

namespace {

constexpr int32_t kLongestText = 254;

// Digits, signs and the point; the rest is display only.
Text ExtractNumber(const EditInstance& edit, const Text& text)
{
    const bool escapes = (edit.formatFlags & FORMAT_HAS_LITERALS) != 0;
    Text number;
    for (int32_t i = escapes ? Length(LeadingEscapes(edit)) : 0; i < Length(text); ++i) {
        const Char c = At(text, i);
        if (IsDigit(c) || IsSign(c))
            number += c;
        else if (c == edit.settings->decimalChar)
            number += Char{'.'};
    }
    return number;
}

Display FormatNumberText(EditInstance& edit, const Text& number)
{
    if (edit.dataType == DT_DECIMAL) {
        DecimalValue value = services::DecimalOf(number.c_str(), edit.decimalPlaces);
        value = Has(edit, PERCENT) ? FromPercentage(value) : value;
        return FormatValue(edit, &value);
    }
    double value = NumberFromPlainText(number.c_str());
    value = Has(edit, PERCENT) ? FromPercentage(value) : value;
    return FormatValue(edit, &value);
}

}  // namespace

int32_t ReformatNumber(EditInstance& edit, const Text& text)
{
    if (Length(text) > kLongestText)
        return 0;
    const Display display = FormatNumberText(edit, ExtractNumber(edit, text));
    edit.field->SetRedraw(true);
    edit.field->SetText(display.text.c_str());
    edit.field->KeepLayout();
    return std::max(Length(display.text) - Length(text), 0);
}

Text LeadingEscapes(const EditInstance& edit)
{
    Text literals;
    for (const Char* mask = edit.mask; mask[0] == '~' && mask[1]; mask += 2)
        literals += mask[1];
    return literals;
}

}  // namespace zte
