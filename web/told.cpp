// A field whose events go to the JavaScript around the library: a listener is a C function there, and JavaScript has none.
#include "ztfield.h"

extern "C" {

__attribute__((import_module("env"), import_name("told"))) int32_t ZTW_Told(ZTField* field, int32_t kind,
                                                                            int32_t reason, int32_t position,
                                                                            uint32_t character, int32_t was,
                                                                            int32_t is);

static int32_t Tell(void*, ZTField* field, const ZTFieldEvent* event)
{
    return ZTW_Told(field, event->kind, event->reason, event->position, event->character, event->was, event->is);
}

// The setup by its members, so that JavaScript knows no layout of a struct.
ZTF_API ZTField* ZTW_Create(const char* mask, int32_t dataType, uint32_t options, const char* range, uint32_t increment,
                            const char* codeTable, const ZTFieldSettings* settings)
{
    ZTFieldSetup setup{};
    setup.mask = mask;
    setup.dataType = dataType;
    setup.options = options;
    setup.range = range;
    setup.increment = increment;
    setup.codeTable = codeTable;
    setup.settings = settings;
    setup.listener = Tell;
    return ZTF_Create(&setup);
}

}  // extern "C"
