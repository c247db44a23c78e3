// Reads the year and the month out of the text now shown. A field's offset in the mask serves as its offset in the text;
// the two differ behind "~", which is kept.
#include "mask/field_text.h"

#include <cstdlib>
#include <string>

#include "core/base_edit.h"
#include "mask/month_names.h"
#include "shared/ascii.h"

namespace zte {

namespace {

struct Field {
    int32_t offset;
    int32_t length;  // 0: the mask has no such field
};

// The first run of a letter, in either case, that is not escaped.
Field FindField(const char* mask, char letter)
{
    for (int32_t i = 0; mask[i]; ++i) {
        if (AsciiUpper(mask[i]) != letter || (i > 0 && mask[i - 1] == '~'))
            continue;
        int32_t length = 1;
        while (AsciiUpper(mask[i + length]) == letter)
            ++length;
        return {i, length};
    }
    return {0, 0};
}

std::string Cut(const std::string& text, Field field)
{
    const auto offset = static_cast<size_t>(field.offset);
    return offset < text.size() ? text.substr(offset, static_cast<size_t>(field.length)) : std::string();
}

}  // namespace

int32_t YearFromText(const EditInstance& edit)
{
    const Field field = FindField(edit.mask, 'Y');
    if (field.length == 0)
        return 0;
    const int32_t number = std::atoi(Cut(ReadText(edit), field).c_str());
    if (field.length == 2)
        return number < 50 ? number + 100 : number;
    return number - 1900;
}

int32_t MonthFromText(const EditInstance& edit)
{
    const Field field = FindField(edit.mask, 'M');
    if (field.length == 0)
        return 0;
    std::string text = ReadText(edit);
    if (!text.empty())
        text.pop_back();  // the last character is not seen: kept, a month at the very end reads as it always did
    const std::string month = Cut(text, field);
    return field.length == 2 ? std::atoi(month.c_str()) : MonthFromName(month.c_str()) + 1;
}

}  // namespace zte
