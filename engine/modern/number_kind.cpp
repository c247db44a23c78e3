// Numbers: not yet.
#include "engine/modern/kind.h"

namespace zte::modern {

namespace numbers {

Content Show(const EditInstance&, const void*)
{
    return {};
}
std::optional<Content> ReadCanonical(const EditInstance&, const Text&)
{
    return std::nullopt;
}
int32_t State(const EditInstance&, const Content&)
{
    return ZTS_EMPTY;
}
Text Canonical(const EditInstance&, const Content&)
{
    return {};
}
Outcome Type(const EditInstance&, const Content&, Char)
{
    return Refused(ZTR_WRONG_KIND);
}
Outcome Erase(const EditInstance&, const Content&, Eraser)
{
    return Refused(ZTR_WRONG_KIND);
}
Outcome Paste(const EditInstance&, const Content&, const Text&)
{
    return Refused(ZTR_WRONG_KIND);
}
Outcome Step(const EditInstance&, const Content&, int32_t)
{
    return Refused(ZTR_END_OF_RANGE);
}
int32_t Move(const EditInstance&, const Content& content, Key, bool)
{
    return content.Caret();
}
int32_t Click(const EditInstance&, const Content&, int32_t position)
{
    return position;
}
Selection WordAt(const EditInstance&, const Content& content, int32_t)
{
    return {0, Length(content.text)};
}
Content Leave(const EditInstance&, const Content& content, int32_t)
{
    return content;
}

}  // namespace numbers

const Kind kNumbers = {numbers::Show,   numbers::ReadCanonical, numbers::State, numbers::Canonical, numbers::Type,
                       numbers::Erase,  numbers::Paste,         numbers::Step,  numbers::Move,      numbers::Click,
                       numbers::WordAt, numbers::Leave,         false};

}  // namespace zte::modern
