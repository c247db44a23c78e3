// What a client of assistive technology, such as a screen reader, gets from a window.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>

namespace zttest {

template <class Function>
Function OfSystem(const char* library, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(LoadLibraryA(library), name)));
}

inline VARIANT Id(LONG number)
{
    VARIANT id{};
    id.vt = VT_I4;
    id.lVal = number;
    return id;
}

class AccessibleClient {
public:
    explicit AccessibleClient(HWND hwnd)
    {
        constexpr IID accessible = {
            0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}
        };
        OfSystem<HRESULT(WINAPI*)(void*)>("ole32.dll", "CoInitialize")(nullptr);
        const auto ask =
            OfSystem<HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**)>("oleacc.dll", "AccessibleObjectFromWindow");
        ask(hwnd, static_cast<DWORD>(OBJID_CLIENT), accessible, reinterpret_cast<void**>(&object_));
    }
    AccessibleClient(const AccessibleClient&) = delete;
    AccessibleClient& operator=(const AccessibleClient&) = delete;
    ~AccessibleClient()
    {
        if (object_)
            object_->Release();
    }
    IAccessible* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    LONG Role(LONG id) const
    {
        VARIANT role{};
        return object_->get_accRole(Id(id), &role) == S_OK ? role.lVal : -1;
    }
    LONG State(LONG id) const
    {
        VARIANT state{};
        return object_->get_accState(Id(id), &state) == S_OK ? state.lVal : -1;
    }
    using Asked = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    std::string Text(Asked asked, LONG id) const
    {
        BSTR text = nullptr;
        if ((object_->*asked)(Id(id), &text) != S_OK)
            return "none";
        std::string copy;
        for (const wchar_t* at = text; *at; ++at)
            copy += static_cast<char>(*at);
        OfSystem<void(WINAPI*)(BSTR)>("oleaut32.dll", "SysFreeString")(text);
        return copy;
    }

private:
    IAccessible* object_ = nullptr;
};

}  // namespace zttest
