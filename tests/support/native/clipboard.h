// The clipboard that all fields of a program share.
#pragma once

#include <optional>

#include "engine/text/text.h"

namespace zttest {

std::optional<zte::Text>& NativeClipboard();

}  // namespace zttest
