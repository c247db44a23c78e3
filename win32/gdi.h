// An owner for what is selected into a device context.
#pragma once

#include <windows.h>

namespace zte {

// Selects an object and puts the former one back.
class DcSelection {
public:
    DcSelection(HDC dc, HGDIOBJ object) : dc_(dc), former_(object ? SelectObject(dc, object) : nullptr) {}
    DcSelection(const DcSelection&) = delete;
    DcSelection& operator=(const DcSelection&) = delete;
    ~DcSelection()
    {
        if (former_)
            SelectObject(dc_, former_);
    }

private:
    HDC dc_;
    HGDIOBJ former_;
};

}  // namespace zte
