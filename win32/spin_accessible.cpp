// The spin for assistive technology. Clients may hold the object longer than the window lives: it knows the window's handle alone and
// looks everything up at each call.
#include "win32/spin_accessible.h"

#include <initguid.h>
#include <oleacc.h>

#include <new>
#include <optional>

#include "engine/editing.h"
#include "win32/late_calls.h"
#include "win32/life_guard.h"
#include "win32/native_spin.h"
#include "win32/record_store.h"

namespace zte {

namespace {

struct AssistanceCalls {
    LRESULT(WINAPI* makeAnswer)(REFIID, WPARAM, LPUNKNOWN);
    HRESULT(WINAPI* objectOfWindow)(HWND, DWORD, REFIID, void**);
    BSTR(WINAPI* makeText)(const OLECHAR*);
    HRESULT(WINAPI* beginObjects)(void*);
};

const AssistanceCalls& Assistance()
{
    static const HMODULE access = SystemLibrary("oleacc.dll");
    static const HMODULE automation = SystemLibrary("oleaut32.dll");
    static const AssistanceCalls calls = {
        FindFunction<decltype(AssistanceCalls::makeAnswer)>(access, "LresultFromObject"),
        FindFunction<decltype(AssistanceCalls::objectOfWindow)>(access, "AccessibleObjectFromWindow"),
        FindFunction<decltype(AssistanceCalls::makeText)>(automation, "SysAllocString"),
        FindFunction<decltype(AssistanceCalls::beginObjects)>(SystemLibrary("ole32.dll"), "CoInitialize")};
    return calls;
}

// The spin itself and its children, which are no objects of their own.
enum Part : LONG { kSpinItself = CHILDID_SELF, kUp = 1, kDown = 2 };
constexpr LONG kChildren = 2;

struct PartRow {
    LONG role;
    uint32_t arrow;       // SPIN_UP or SPIN_DOWN
    const wchar_t* name;  // null: none
    const wchar_t* action;
};

constexpr PartRow kParts[] = {
    {ROLE_SYSTEM_SPINBUTTON, 0,         nullptr, nullptr },
    {ROLE_SYSTEM_PUSHBUTTON, SPIN_UP,   L"Up",   L"Press"},
    {ROLE_SYSTEM_PUSHBUTTON, SPIN_DOWN, L"Down", L"Press"},
};

std::optional<Part> PartOf(const VARIANT& id)
{
    if (id.vt != VT_I4 || id.lVal < 0 || id.lVal > kChildren)
        return std::nullopt;
    return static_cast<Part>(id.lVal);
}

HRESULT GiveNumber(VARIANT* to, LONG number)
{
    to->vt = VT_I4;
    to->lVal = number;
    return S_OK;
}

HRESULT GiveNothing(VARIANT* to)
{
    to->vt = VT_EMPTY;
    return S_FALSE;
}

HRESULT GiveText(BSTR* to, const wchar_t* text)
{
    *to = text ? Assistance().makeText(text) : nullptr;
    return text ? S_OK : S_FALSE;
}

class AccessibleSpin final : public IAccessible {
public:
    explicit AccessibleSpin(HWND spin) : spin_(spin) {}
    AccessibleSpin(const AccessibleSpin&) = delete;
    AccessibleSpin& operator=(const AccessibleSpin&) = delete;

    // ---- its life
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        if (!object)
            return E_POINTER;
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible;
        *object = known ? static_cast<IAccessible*>(this) : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references_)); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

    // ---- by name: not offered
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        if (!count)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }

    // ---- the family
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override
    {
        if (!parent)
            return E_POINTER;
        *parent = nullptr;
        return Assistance().objectOfWindow
                   ? Assistance().objectOfWindow(spin_, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                                 reinterpret_cast<void**>(parent))
                   : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override
    {
        if (!count)
            return E_POINTER;
        *count = kChildren;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT id, IDispatch** child) override
    {
        if (!child)
            return E_POINTER;
        *child = nullptr;
        return PartOf(id) ? S_FALSE : E_INVALIDARG;
    }

    // ---- what they are
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT id, BSTR* name) override
    {
        return GivePart(id, name, [](Part part) { return kParts[part].name; });
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT id, BSTR* value) override
    {
        wchar_t text[256] = L"";
        const std::optional<Part> part = PartOf(id);
        if (part == kSpinItself)
            GetWindowTextW(GetParent(spin_), text, static_cast<int>(sizeof text / sizeof *text));
        return GivePart(id, value, [&](Part of) { return of == kSpinItself ? text : nullptr; });
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT id, BSTR* text) override { return GiveNone(id, text); }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT id, BSTR* text) override { return GiveNone(id, text); }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT id, BSTR* text) override { return GiveNone(id, text); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT id, LONG* topic) override
    {
        if (!topic)
            return E_POINTER;
        *topic = 0;
        return GiveNone(id, file);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT id, VARIANT* role) override
    {
        const std::optional<Part> part = PartOf(id);
        if (!role || !part)
            return E_INVALIDARG;
        return GiveNumber(role, kParts[*part].role);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT id, VARIANT* state) override
    {
        const std::optional<Part> part = PartOf(id);
        if (!state || !part)
            return E_INVALIDARG;
        return GiveNumber(state, StateOfPart(*part));
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* id) override { return id ? GiveNothing(id) : E_POINTER; }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* id) override { return id ? GiveNothing(id) : E_POINTER; }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

    // ---- where they are
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT id) override
    {
        const std::optional<Part> part = PartOf(id);
        if (!left || !top || !width || !height || !part)
            return E_INVALIDARG;
        RECT place = *part == kSpinItself ? ClientOf(spin_) : ArrowPlace(spin_, kParts[*part].arrow);
        MapWindowPoints(spin_, nullptr, reinterpret_cast<POINT*>(&place), 2);
        *left = place.left;
        *top = place.top;
        *width = place.right - place.left;
        *height = place.bottom - place.top;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* id) override
    {
        if (!id)
            return E_POINTER;
        POINT point = {x, y};
        ScreenToClient(spin_, &point);
        const uint32_t arrow = ArrowAt(spin_, point);
        for (LONG part = kUp; part <= kDown; ++part)
            if (kParts[part].arrow == arrow)
                return GiveNumber(id, part);
        return GiveNothing(id);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT from, VARIANT* to) override
    {
        const std::optional<Part> part = PartOf(from);
        if (!to || !part)
            return E_INVALIDARG;
        const bool inside = *part != kSpinItself;
        switch (direction) {
        case NAVDIR_FIRSTCHILD: return inside ? GiveNothing(to) : GiveNumber(to, kUp);
        case NAVDIR_LASTCHILD: return inside ? GiveNothing(to) : GiveNumber(to, kDown);
        case NAVDIR_NEXT:
        case NAVDIR_DOWN: return *part == kUp ? GiveNumber(to, kDown) : GiveNothing(to);
        case NAVDIR_PREVIOUS:
        case NAVDIR_UP: return *part == kDown ? GiveNumber(to, kUp) : GiveNothing(to);
        default: return GiveNothing(to);
        }
    }

    // ---- what can be done
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT id, BSTR* action) override
    {
        return GivePart(id, action, [](Part part) { return kParts[part].action; });
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT id) override
    {
        const std::optional<Part> part = PartOf(id);
        if (!part)
            return E_INVALIDARG;
        EditInstance* edit = Control();
        if (*part == kSpinItself || !edit)
            return DISP_E_MEMBERNOTFOUND;
        WhileAlive(*edit, [&] { EditingOf(*edit).step(*edit, *part == kUp, false); });
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG, VARIANT) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~AccessibleSpin() = default;

    // Null when the spin, or what it steps, is gone.
    EditInstance* Control() const { return GetEditInstance(spin_); }

    LONG StateOfPart(Part part) const
    {
        const EditInstance* edit = Control();
        if (!edit)
            return STATE_SYSTEM_UNAVAILABLE;
        LONG state = edit->field->RefusesInput() ? STATE_SYSTEM_UNAVAILABLE : 0;
        if (!IsWindowVisible(spin_))
            state |= STATE_SYSTEM_INVISIBLE;
        if (Has(*edit, kParts[part].arrow))
            state |= STATE_SYSTEM_PRESSED;
        return state;
    }

    template <typename Of>
    HRESULT GivePart(const VARIANT& id, BSTR* to, Of of) const
    {
        const std::optional<Part> part = PartOf(id);
        if (!to || !part)
            return E_INVALIDARG;
        return GiveText(to, of(*part));
    }
    HRESULT GiveNone(const VARIANT& id, BSTR* to) const
    {
        return GivePart(id, to, [](Part) -> const wchar_t* { return nullptr; });
    }

    const HWND spin_;
    LONG references_ = 1;
};

// The object's code has to stay as long as a client may hold it, which nobody can tell.
void KeepLibraryLoaded()
{
    HMODULE self = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<LPCSTR>(&KeepLibraryLoaded), &self);
}

// For a client in another program the thread has to take part in COM, which a form that has no other use for it never began. It is not
// ended: nobody tells when the last client is gone.
LRESULT AnswerFor(AccessibleSpin& object, WPARAM wParam)
{
    const LRESULT answer = Assistance().makeAnswer(IID_IAccessible, wParam, &object);
    if (answer != static_cast<LRESULT>(CO_E_NOTINITIALIZED) || !Assistance().beginObjects)
        return answer;
    Assistance().beginObjects(nullptr);
    return Assistance().makeAnswer(IID_IAccessible, wParam, &object);
}

}  // namespace

LRESULT AnswerAssistance(HWND spin, WPARAM wParam)
{
    if (!Assistance().makeAnswer || !Assistance().makeText)
        return 0;
    KeepLibraryLoaded();
    auto* object = new AccessibleSpin(spin);
    const LRESULT answer = AnswerFor(*object, wParam);
    object->Release();
    return answer;
}

}  // namespace zte
