// Which mask a control gets: the one given, what a keyword stands for, or the default of the type.
#pragma once

#include "engine/mask/date_mask.h"
#include "engine/text/text.h"
#include "engine/values/settings.h"

namespace zte {

struct ChosenMask {
    Text text;
    bool asGiven;  // false: the mask was refused for its type, and the type's default stands in
    MaskVerdict verdict = {};
    MaskOrigin origin = MaskOrigin::Given;
    bool unitsForced = false;  // an amount of a currency without fractions: nothing is shown as 0
};

// Expands keywords and checks the mask. Where the date and time fields of the mask chosen stand is written into layout.
ChosenMask ChooseMask(const Text& mask, int32_t dataType, const Settings& settings, FieldLayout& layout);

// True for the keywords that are built from the settings' date picture and time separator.
bool IsPictureKeyword(const Char* mask);

}  // namespace zte
