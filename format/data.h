// Values into the control: the exports of ztedit.h with the record at hand.
#pragma once

#include "core/edit_instance.h"

namespace zte {

int32_t SetData(EditInstance& edit, const void* data);
int32_t SetDataString(EditInstance& edit, const char* text);
FormatResult* FormatData(EditInstance& edit, const void* data);
void* GetData(EditInstance& edit);
void* UnformatData(EditInstance& edit, const char* text);

// Owner of a FormatResult.
class Formatted {
public:
    Formatted(EditInstance& edit, const void* data);
    ~Formatted();
    Formatted(const Formatted&) = delete;
    Formatted& operator=(const Formatted&) = delete;
    const char* text() const { return result_->text; }
    const FormatResult* operator->() const { return result_; }

private:
    SharedHeap heap_;
    FormatResult* result_;
};

}  // namespace zte
