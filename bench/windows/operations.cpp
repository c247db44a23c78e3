#include "bench/windows/operations.h"

#include <memory>

#include "bench/windows/form.h"

namespace bench {

namespace {

constexpr char kDateMask[] = "MM/DD/YYYY";
constexpr char kNumberMask[] = "#,#.00";
constexpr char kPhoneMask[] = "(###) ###-####";

// Types the keys one after another, from the start of an emptied field.
Side Typing(const std::string& name, HWND window, const std::string& keys, bool isControl)
{
    const auto prepare = [window, isControl] {
        if (isControl)
            ZTE_FmtSetData(window, nullptr);
        else
            SetWindowTextA(window, "");
        SendMessageA(window, EM_SETSEL, 0, 0);
        SetFocus(window);
        Paint(window);
    };
    const auto play = [window, keys](int number) {
        TypeKey(window, keys[static_cast<size_t>(number) % keys.size()]);
        Paint(window);
    };
    return {name, prepare, play, window};
}

// A picker has no start of the text: its keys go into the field of the date that has them last.
Side TypingIntoPicker(HWND picker, const std::string& keys)
{
    const auto play = [picker, keys](int number) {
        TypeKey(picker, keys[static_cast<size_t>(number) % keys.size()]);
        Paint(picker);
    };
    return {"date picker", [picker] { SetFocus(picker); }, play};
}

Side Stepping(const std::string& name, HWND window, const std::function<void()>& setUp)
{
    const auto prepare = [window, setUp] {
        SetFocus(window);
        setUp();
        Paint(window);
    };
    const auto play = [window](int) {
        PressKey(window, VK_UP);
        Paint(window);
    };
    return {name, prepare, play, window};
}

// The least that a step can be: a plain edit has the focus, as the control has, gets the key, and is given another text.
Side SettingText(HWND edit, const char* one, const char* other)
{
    const auto play = [edit, one, other](int number) {
        PressKey(edit, VK_UP);
        SetWindowTextA(edit, number % 2 ? one : other);
        Paint(edit);
    };
    return {"edit, text set", [edit] { SetFocus(edit); }, play};
}

Side Plain(const std::string& name, const std::function<void(int)>& play)
{
    return {name, [] {}, play};
}

Operation Keys(const Form& form, const std::string& name, const char* mask, int32_t type, const std::string& keys,
               Visibility visibility, uint32_t options = 0)
{
    Operation operation = {name, static_cast<int>(keys.size()), {}};
    operation.sides.push_back(Typing("control", form.MakeControl(mask, type, visibility, options), keys, true));
    operation.sides.push_back(Typing("edit", form.MakeEdit(visibility), keys, false));
    if (type == DT_DATE)
        operation.sides.push_back(TypingIntoPicker(form.MakePicker(visibility), keys));
    return operation;
}

// Against an edit with the system's up-down beside it.
Operation NumberStep(const Form& form, const std::string& name, int32_t type)
{
    const HWND control = form.MakeControl("#,##0", type, Visibility::Visible, ZTEO_SPIN);
    const HWND buddy = form.MakeEdit(Visibility::Visible);
    const HWND upDown = form.MakeUpDown(buddy);
    return {
        name,
        20,
        {Stepping("control", control, [control] { ZTE_FmtSetDataString(control, "100"); }),
          Stepping("up-down", buddy, [upDown] { SendMessageA(upDown, WM_USER + 103, 0, 100); })}
    };
}

// Against the least that any step must do: a plain edit gets the key, and another text is set and painted.
Operation DateStep(const Form& form)
{
    const HWND control = form.MakeControl(kDateMask, DT_DATE, Visibility::Visible, ZTEO_SPIN);
    const HWND edit = form.MakeEdit(Visibility::Visible);
    const HWND picker = form.MakePicker(Visibility::Visible);
    return {
        "date step, visible",
        20,
        {Stepping("control", control,
          [control] {
                      ZTE_FmtSetDataString(control, "1995-07-04");
                      SendMessageA(control, EM_SETSEL, 3, 3);
                  }),
          SettingText(edit, "07/04/1995", "07/05/1995"), Stepping("date picker", picker, [] {})}
    };
}

constexpr RECT kSpinPlace = {700, 500, 716, 524};

// Both halves as the system draws such buttons.
Side SystemButtons(const std::shared_ptr<std::remove_pointer_t<HDC>>& dc)
{
    return Plain("DrawFrameControl x 2", [dc](int) {
        RECT upper = kSpinPlace;
        RECT lower = kSpinPlace;
        upper.bottom = lower.top = (kSpinPlace.top + kSpinPlace.bottom) / 2;
        DrawFrameControl(dc.get(), &upper, DFC_SCROLL, DFCS_SCROLLUP);
        DrawFrameControl(dc.get(), &lower, DFC_SCROLL, DFCS_SCROLLDOWN);
    });
}

// The spin of a control, which is looked up for it, and a spin without one.
std::vector<Operation> SpinPainting(const Form& form)
{
    const HWND control = form.MakeControl("##0", DT_NUMBER, Visibility::Visible, ZTEO_SPIN);
    const std::shared_ptr<std::remove_pointer_t<HDC>> dc(GetDC(form.Window()),
                                                         [&form](HDC gone) { ReleaseDC(form.Window(), gone); });
    const auto ofControl = [control, dc](int) { ZTE_PaintSpin(control, dc.get(), &kSpinPlace); };
    const auto once = [dc](int) { ZTE_PaintSpinOnce(&kSpinPlace, dc.get()); };
    constexpr int kBurst = 50;
    return {
        {"spin painted",                   kBurst, {Plain("control", ofControl), SystemButtons(dc)}},
        {"spin painted without a control", kBurst, {Plain("control", once), SystemButtons(dc)}     }
    };
}

Operation Lives(const Form& form, const std::string& name, uint32_t options)
{
    const auto withUpDown = [&form](int) {
        const HWND edit = form.MakeEdit(Visibility::Hidden);
        const HWND upDown = form.MakeUpDown(edit);
        DestroyWindow(upDown);
        DestroyWindow(edit);
    };
    const auto alone = [&form](int) { DestroyWindow(form.MakeEdit(Visibility::Hidden)); };
    const bool hasSpin = (options & ZTEO_SPIN) != 0;
    const auto life = [&form, options, hasSpin](int) {
        DestroyWindow(
            form.MakeControl(hasSpin ? "##0" : kDateMask, hasSpin ? DT_NUMBER : DT_DATE, Visibility::Hidden, options));
    };
    return {
        name, 10, {Plain("control", life), hasSpin ? Plain("edit with up-down", withUpDown) : Plain("edit", alone)}
    };
}

Operation SetAndGet(const Form& form)
{
    const HWND control = form.MakeControl(kNumberMask, DT_NUMBER, Visibility::Hidden);
    const HWND edit = form.MakeEdit(Visibility::Hidden);
    return {
        "set and get",
        20,
        {Plain("control",
          [control, &form](int number) {
                   const double value = 1234.5 + number;
                   ZTE_FmtSetData(control, &value);
                   SharedHeapFree(form.Heap(), ZTE_FmtGetData(control));
               }),
          Plain("edit", [edit](int number) {
             char text[16] = "1,234.50";
             text[0] = static_cast<char>('0' + number % 10);
             SetWindowTextA(edit, text);
             GetWindowTextA(edit, text, sizeof text);
         })}
    };
}

// Of all heaps of the process, the libraries' among them.
double BytesInUse()
{
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    double bytes = 0;
    for (DWORD i = 0; i < count && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heaps[i], &entry))
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? static_cast<double>(entry.cbData) : 0;
    }
    return bytes;
}

// The first ones are not counted: what is loaded at first use comes with them.
template <typename Make>
double BytesPerControl(Make&& make)
{
    constexpr int kControls = 2000;  // heaps take small blocks in groups
    for (int i = 0; i < 10; ++i)
        make();
    const double before = BytesInUse();
    for (int i = 0; i < kControls; ++i)
        make();
    return (BytesInUse() - before) / kControls;
}

}  // namespace

std::vector<Operation> MakeOperations(Form& form)
{
    const std::string dateKeys = "07041995";
    const std::string numberKeys = "123.45";
    std::vector<Operation> operations = SpinPainting(form);
    const std::vector<Operation> others = {
        Keys(form, "date key, hidden", kDateMask, DT_DATE, dateKeys, Visibility::Hidden),
        Keys(form, "date key, visible", kDateMask, DT_DATE, dateKeys, Visibility::Visible),
        Keys(form, "date key, visible, with spin", kDateMask, DT_DATE, dateKeys, Visibility::Visible, ZTEO_SPIN),
        Keys(form, "string key, hidden", kPhoneMask, DT_STRING, "5551234567", Visibility::Hidden),
        Keys(form, "string key, visible", kPhoneMask, DT_STRING, "5551234567", Visibility::Visible),
        Keys(form, "number key, hidden", kNumberMask, DT_NUMBER, numberKeys, Visibility::Hidden),
        Keys(form, "number key, visible", kNumberMask, DT_NUMBER, numberKeys, Visibility::Visible),
        NumberStep(form, "number step, visible", DT_NUMBER),
        NumberStep(form, "decimal step, visible", DT_DECIMAL),
        DateStep(form),
        Lives(form, "create and destroy", 0),
        Lives(form, "create and destroy, with spin", ZTEO_SPIN),
        SetAndGet(form)};
    operations.insert(operations.end(), others.begin(), others.end());
    return operations;
}

HeapBytes MeasureHeap(Form& form)
{
    HeapBytes bytes = {};
    bytes.edit = BytesPerControl([&form] { form.MakeEdit(Visibility::Hidden); });
    bytes.control = BytesPerControl([&form] { form.MakeControl(kDateMask, DT_DATE, Visibility::Hidden); });
    return bytes;
}

}  // namespace bench
