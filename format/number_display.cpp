// Numbers and decimals into display text, and the position where editing of the number starts.
#include <cstring>

#include "edit/number_layout.h"
#include "format/display.h"
#include "format/format_text.h"
#include "intl/regional_settings.h"
#include "shared/ascii.h"

namespace zte {

namespace {

constexpr char kDefaultFormat[] = "#,#.00";
constexpr int32_t kRenderedSize =
    1024;  // the largest double has 309 digits, 102 separators and a mask's worth of literals

// A mask that is no format (it came from a keyword) is shown by the default one.
void Compile(const EditInstance& edit, char (&compiled)[SHARED_FORMAT_SIZE])
{
    const std::string format = DisplayFormatText(edit.mask, edit.dataType);
    if (SharedCompileFormat(compiled, format.c_str(), sizeof compiled) != 0)
        SharedCompileFormat(compiled, kDefaultFormat, sizeof compiled);
}

bool BeginsNumber(char c)
{
    return IsDigit(c) || c == '+' || c == '-';
}

// The first digit or sign; a point directly before it comes first, so that a fraction is entered on its point. Where no
// digit is shown, the place of the first one behind the literals.
int32_t FirstNumberPos(const EditInstance& edit, const std::string& text, bool hasLiterals)
{
    size_t position = 0;
    while (position < text.size() && !BeginsNumber(text[position]))
        ++position;
    if (position == text.size())
        return hasLiterals ? FirstPlaceholderPos(edit.mask, edit.dataType) : 0;
    const auto first = static_cast<int32_t>(position);
    // Without a point in the text its position counts as 0, so that 1 becomes 0 as well; kept.
    return edit.decimalPlaces != 0 && first == DecimalCharPos(text) + 1 ? first - 1 : first;
}

void Finish(const EditInstance& edit, const char* rendered, Display& display)
{
    display.text = rendered;
    const bool hasLiterals = HasLiterals(edit.mask, edit.dataType);
    if (hasLiterals)
        display.formatFlags |= FORMAT_HAS_LITERALS;
    display.firstFieldPos = FirstNumberPos(edit, display.text, hasLiterals);
}

}  // namespace

void FormatNumber(const EditInstance& edit, double value, Display& display)
{
    char compiled[SHARED_FORMAT_SIZE];
    char rendered[kRenderedSize] = "";
    Compile(edit, compiled);
    SharedFormatDouble(rendered, sizeof rendered, compiled, value, 0);
    Finish(edit, rendered, display);
}

void FormatDecimal(const EditInstance& edit, const DecimalValue* value, Display& display)
{
    char compiled[SHARED_FORMAT_SIZE];
    char rendered[kRenderedSize] = "";
    DecimalValue zero;
    DecSetZero(&zero);
    Compile(edit, compiled);
    SharedFormatDecimal(rendered, sizeof rendered, compiled, value ? value : &zero, 0);
    Finish(edit, rendered, display);
}

}  // namespace zte
