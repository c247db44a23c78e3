// Leads one import of the control library, or of another module, to a function of the test while it lives.
#pragma once

#include <windows.h>

namespace zttest {

class ImportPatch {
public:
    // Reports a failure when the library does not import the function. importer: another module than the control library.
    ImportPatch(const char* dll, const char* function, void* replacement, const char* importer = nullptr);

    // The same for any module; nothing is led elsewhere when it does not import the function.
    ImportPatch(HMODULE module, const char* dll, const char* function, void* replacement);
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;
    ~ImportPatch();

    void* Original() const { return original_; }

private:
    void** slot_;  // the entry in the import address table, or null
    void* original_ = nullptr;
};

}  // namespace zttest
