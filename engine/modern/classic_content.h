// What a classic control shows, as a modern one would hold it, and back: zeros are all there is in classic to tell blank by.
#pragma once

#include "engine/modern/content.h"

namespace zte::modern {

// For a judgement of a classic control: fields of zeros that no date has count as blank.
Content ClassicContent(const EditInstance& edit);

// What a classic text becomes under modern editing: the blank display empty, all else as it stands.
Content FromClassic(const EditInstance& edit, const Text& text);

// What a content becomes under classic editing: blanks of dates and times as zeros.
Text ToClassic(const EditInstance& edit, const Content& content);

}  // namespace zte::modern
