// Copies of the record behind a control and of its code table, for tests to look at.
#pragma once

#if __has_include("engine/record.h")
#include "engine/record.h"
#else
#include "core/edit_instance.h"
#endif
#include "tests/support/masked_edit.h"

namespace zttest {

RecordView ViewOf(const zte::EditInstance& record);
std::optional<CodeTableView> CodeTableOf(const zte::EditInstance& record);

}  // namespace zttest
