// What a spin steps: range, increment, code table.
#include "engine/spin/spin_settings.h"

#include "engine/format/code_table.h"
#include "engine/heap_block.h"
#include "engine/spin/range.h"
#include "engine/values/number_text.h"

namespace zte {

namespace {

struct OptionRow {
    uint32_t option;
    uint32_t flag;
    uint32_t spinStyle;
};

constexpr OptionRow kOptions[] = {
    {ZTEO_AUTOSKIP,     AUTOSKIP,      0                  },
    {ZTEO_SPIN,         HAS_SPIN,      0                  },
    {ZTEO_CODE_PICK,    CODE_PICKLIST, SPINSTYLE_PICKLIST },
    {ZTEO_CODE_DISPLAY, CODE_SPIN,     SPINSTYLE_CODETABLE},
};

// Ends that are not given, or are no numbers, are 0; a maximum of 0 means none.
void SetBounds(EditInstance& edit, const Char* range)
{
    const RangeText ends = SplitRange(range);
    edit.spinMin = NumberFromPlainText(ends.minimum.c_str());
    edit.spinMax = NumberFromPlainText(ends.maximum.c_str());
}

}  // namespace

void SetSpin(EditInstance& edit, uint32_t increment, const Char* range, const Char* codeTable, uint32_t style)
{
    DropSpinTexts(edit);
    if (range)
        edit.spinRange = Duplicate(edit, range);
    if (range && !IsDateOrTime(edit.dataType))
        SetBounds(edit, range);
    if (codeTable)
        ParseCodeTable(edit, codeTable);
    edit.spinIncrement = increment == 0 ? 1 : increment;
    SetFlag(edit, CODE_PICKLIST, (style & SPINSTYLE_PICKLIST) != 0);
    SetFlag(edit, CODE_SPIN, (style & SPINSTYLE_CODETABLE) != 0);
}

void DropSpinTexts(EditInstance& edit)
{
    FreeBlock(edit, edit.spinRange);
    DestroyCodeTable(edit);
}

void ApplyOptions(EditInstance& edit, uint32_t options)
{
    for (const OptionRow& row : kOptions)
        SetFlag(edit, row.flag, (options & row.option) != 0);
}

uint32_t SpinStyleOf(uint32_t options)
{
    uint32_t style = 0;
    for (const OptionRow& row : kOptions)
        style |= (options & row.option) != 0 ? row.spinStyle : 0;
    return style;
}

}  // namespace zte
