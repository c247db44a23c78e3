// What both kinds of masked edits under test have in common.
#include "tests/support/masked_edit.h"

#include <algorithm>

#include "tests/support/marked_text.h"

namespace zttest {

std::ostream& operator<<(std::ostream& out, Notice notice)
{
    return out << (notice == Notice::Full ? "full" : "changed");
}

std::string MaskedEdit::Shown() const
{
    return Mark(Text(), CaretStart(), CaretEnd());
}

int MaskedEdit::Count(Notice notice) const
{
    return static_cast<int>(std::count(Notices().begin(), Notices().end(), notice));
}

std::vector<std::string> FieldRecorder::Redraws() const
{
    std::vector<std::string> told = Told();
    told.erase(std::remove(told.begin(), told.end(), "text"), told.end());
    return told;
}

}  // namespace zttest
