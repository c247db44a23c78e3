// Reads dates and times as people and programs write them: in the mask's order, by a month's name, the year first, or canonical.
#pragma once

#include <array>

#include "engine/mask/mask_items.h"
#include "engine/modern/content.h"

namespace zte::modern::dates {

constexpr size_t kFieldKinds = static_cast<size_t>(FieldKind::AmPm) + 1;

struct FoundField {
    int32_t number = -1;  // -1: the text does not have it
    int32_t digits = 0;
    int32_t start = 0;  // in the text
};

struct DateReading {
    Reason reason = 0;
    int32_t position = -1;  // in the text, of what cannot be read
    bool isCanonical = false;
    DateTimeValue value{};  // what the text does not have is empty
    std::array<FoundField, kFieldKinds> fields{};

    const FoundField& Of(FieldKind kind) const { return fields[static_cast<size_t>(kind)]; }
};

DateReading ReadDateText(const EditInstance& edit, const Text& text);

}  // namespace zte::modern::dates
