// Installs a mask in a control and shows the type's empty value under it.
#include "engine/format/mask_setting.h"

#include "engine/format/data.h"
#include "engine/mask/mask_choice.h"
#include "engine/mask/mask_table.h"
#include "engine/values/date_time.h"

namespace zte {

namespace {

void KeepLayout(EditInstance& edit, const FieldLayout& layout)
{
    edit.yearDigits = layout.yearDigits;
    edit.ampmPos = layout.ampmPos;
    edit.monthPos = layout.monthPos;
    edit.dayPos = layout.dayPos;
    edit.minutePos = layout.minutePos;
    edit.secondPos = layout.secondPos;
    edit.hourPos = layout.hourPos;
    edit.fractionPos = layout.fractionPos;
    edit.fractionLen = layout.fractionLen;
    SetFlag(edit, AMPM, layout.hasAmPm);
}

// One character more than a mask may have tells that it is none: no more is read of it.
Text GivenMask(const Char* mask)
{
    return mask ? Text(mask, BoundedLength(mask, kMaxMaskLength + 1)) : Text();
}

// The parent of a new plain edit that is empty hears of no change.
bool ShowsPlainEmptyText(const EditInstance& edit)
{
    return edit.dataType == DT_STRING && !HasMask(edit) && !Has(edit, CODE_SPIN) && edit.field->ReadText().empty();
}

void ShowEmptyValue(EditInstance& edit)
{
    if (IsNumeric(edit.dataType)) {
        SetData(edit, nullptr);
    } else if (edit.dataType == DT_STRING) {
        const Text blanks(HasMask(edit) ? kMaxMaskLength : 0, ' ');
        SetData(edit, blanks.c_str());
    } else {
        SetData(edit, &kEmptyDateTime);
    }
}

}  // namespace

bool ChangeMask(EditInstance& edit, const Char* mask, int32_t dataType, const Settings& settings)
{
    edit.dataType = dataType;
    FieldLayout layout{};
    layout.yearDigits = edit.yearDigits;
    const ChosenMask chosen = ChooseMask(GivenMask(mask), dataType, settings, layout);
    KeepLayout(edit, layout);
    InstallMask(edit, chosen.text, chosen.origin, chosen.unitsForced);
    edit.decimalPlaces = edit.table->number.shape.fractionPlaces;
    SetFlag(edit, PERCENT, edit.table->number.shape.percent);
    SetFlag(edit, SPUN, false);
    ForgetPassed(edit);
    ChooseEditMode(edit);
    return chosen.asGiven;
}

MaskVerdict JudgeMask(const Char* mask, int32_t dataType, const Settings& settings)
{
    if (dataType < DT_STRING || dataType > DT_DECIMAL)
        return {ZTM_DATA_TYPE, 0};
    FieldLayout layout{};
    const MaskVerdict verdict = ChooseMask(GivenMask(mask), dataType, settings, layout).verdict;
    const bool fits = verdict || (verdict.reason == ZTM_EMPTY && dataType == DT_STRING);
    return fits ? MaskVerdict{ZTM_FITS, -1} : verdict;
}

int32_t SetMask(EditInstance& edit, const Char* mask, int32_t dataType)
{
    const bool asGiven = ChangeMask(edit, mask, dataType, *edit.settings);
    const bool isNew = edit.maskJustSet == 0;
    edit.maskJustSet = 1;
    if (isNew && ShowsPlainEmptyText(edit))
        edit.formatFlags = FORMAT_DONE;
    else if (!Has(edit, CODE_SPIN))
        ShowEmptyValue(edit);
    return asGiven ? 1 : 0;
}

}  // namespace zte
