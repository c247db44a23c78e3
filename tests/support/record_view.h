// Copies of the record behind a control and of its code table, for tests to look at.
#pragma once

#include "engine/record.h"
#include "tests/support/masked_edit.h"

namespace zttest {

RecordView ViewOf(const zte::EditInstance& record);
std::optional<CodeTableView> CodeTableOf(const zte::EditInstance& record);

}  // namespace zttest
