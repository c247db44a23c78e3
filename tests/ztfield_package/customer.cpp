// A program in C++ that has an engine of its own, with the names of the library's: 0 where both do what they say.
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <ztfield.h>

namespace zte {

struct EditInstance {
    int own = 7;
};

int StateOf(const EditInstance& edit);
bool SetModern(EditInstance& edit, bool on);
int StandardSettings();

}  // namespace zte

namespace {

using Field = std::unique_ptr<ZTField, void (*)(ZTField*)>;

int32_t Hear(void* context, ZTField*, const ZTFieldEvent* event)
{
    static_cast<std::vector<int32_t>*>(context)->push_back(event->kind);
    return 0;
}

std::string TextOf(const ZTField* field)
{
    std::string text(static_cast<std::size_t>(ZTF_GetText(field, nullptr, 0)), '\0');
    ZTF_GetText(field, &text[0], static_cast<int32_t>(text.size()) + 1);
    return text;
}

bool ThrowsAsEver()
{
    try {
        return std::string("abc").at(7) == 'x';
    } catch (const std::out_of_range&) {
        return true;
    }
}

}  // namespace

int main()
{
    std::vector<int32_t> heard;
    ZTFieldSetup setup = ZTFieldSetup();
    setup.mask = "!!!!-##";
    setup.dataType = DT_STRING;
    setup.options = ZTEO_MODERN | ZTEO_AUTOSKIP;
    setup.listener = Hear;
    setup.context = &heard;
    const Field field(ZTF_Create(&setup), ZTF_Destroy);
    ZTF_Type(field.get(), "žofí12");
    zte::EditInstance own;
    zte::SetModern(own, true);
    const bool ownStands = zte::StateOf(own) == 8 && zte::StandardSettings() == 3;
    return TextOf(field.get()) == "ŽOFÍ-12" && !heard.empty() && heard.back() == ZTF_FULL && ownStands && ThrowsAsEver()
               ? 0
               : 1;
}
