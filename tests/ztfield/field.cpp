// A field of libztfield under test.
#include "tests/ztfield/field.h"

#include <algorithm>

namespace zttest::fields {

Field::Field(const char* mask, int32_t type, uint32_t options, const ZTFieldSettings* settings)
{
    ZTFieldSetup setup = {};
    setup.mask = mask;
    setup.dataType = type;
    setup.options = options;
    setup.settings = settings;
    Make(setup);
}

Field::Field(ZTFieldSetup setup)
{
    Make(setup);
}

void Field::Make(ZTFieldSetup setup)
{
    setup.context = this;
    setup.listener = [](void* context, ZTField*, const ZTFieldEvent* event) {
        return static_cast<Field*>(context)->Hear(*event);
    };
    it_.reset(ZTF_Create(&setup));
}

int32_t Field::Hear(const ZTFieldEvent& event)
{
    static const char* const kNames[] = {"", "changed", "beep", "full", "stepped", "rejected", "state", "value"};
    told_ += told_.empty() ? "" : " ";
    told_ += kNames[event.kind];
    if (event.kind == ZTF_REJECTED)
        told_ += " " + std::to_string(event.reason) + "@" + std::to_string(event.position);
    if (event.kind == ZTF_STATE)
        told_ += " " + std::to_string(event.was) + ">" + std::to_string(event.is);
    return takesRefusals ? 1 : 0;
}

std::string Field::Told()
{
    std::string told;
    told.swap(told_);
    return told;
}

std::string Field::Text() const
{
    return TextOf([&](char* buffer, int32_t size) { return ZTF_GetText(get(), buffer, size); });
}

std::string Field::Value() const
{
    return TextOf([&](char* buffer, int32_t size) { return ZTF_GetDataString(get(), buffer, size); });
}

std::string Field::Shown() const
{
    int32_t anchor = 0, caret = 0;
    ZTF_GetSelection(get(), &anchor, &caret);
    const auto start = static_cast<size_t>(std::min(anchor, caret));
    const auto end = static_cast<size_t>(std::max(anchor, caret));
    std::vector<std::string> characters = Characters(Text());
    characters.emplace_back();
    characters[end].insert(0, start == end ? "|" : "]");
    if (start != end)
        characters[start].insert(0, "[");
    std::string shown;
    for (const std::string& character : characters)
        shown += character;
    return shown;
}

std::vector<std::string> Characters(const std::string& utf8)
{
    std::vector<std::string> characters;
    for (const char c : utf8) {
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            characters.emplace_back();
        characters.back() += c;
    }
    return characters;
}

}  // namespace zttest::fields
