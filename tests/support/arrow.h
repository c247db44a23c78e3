// The arrows of a spin.
#pragma once

namespace zttest {

enum class Arrow { Up, Down };

}  // namespace zttest
