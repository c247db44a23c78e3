// What is pasted into dates and times.
#include "engine/modern/date_fields.h"

namespace zte::modern::dates {

Outcome Paste(const EditInstance&, const Content&, const Text&)
{
    return Refused(ZTR_DOES_NOT_FIT);
}

}  // namespace zte::modern::dates
