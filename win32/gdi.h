// Owners for GDI objects and for what is selected into a device context.
#pragma once

#include <windows.h>

namespace zte {

// Deletes an object of one's own.
class GdiObject {
public:
    explicit GdiObject(HGDIOBJ object) : object_(object) {}
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;
    ~GdiObject()
    {
        if (object_)
            DeleteObject(object_);
    }
    HGDIOBJ get() const { return object_; }

private:
    HGDIOBJ object_;
};

// Selects an object and puts the former one back; declared after the object, so that it is put back before the deletion.
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

// A memory device context compatible with another one.
class MemoryDc {
public:
    explicit MemoryDc(HDC like) : dc_(CreateCompatibleDC(like)) {}
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    ~MemoryDc()
    {
        if (dc_)
            DeleteDC(dc_);
    }
    HDC get() const { return dc_; }

private:
    HDC dc_;
};

}  // namespace zte
