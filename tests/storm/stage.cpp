// The windows of the stage, and the host's reactions.
#include "tests/storm/stage.h"

#include <cstring>

#include "engine/record.h"
#include "tests/storm/late_release.h"
#include "tests/storm/samples.h"

namespace storm {

namespace {

constexpr const char* kFormClass = "storm form";
constexpr const char* kHostProcedure = "storm former procedure";

using Way = Trigger::Way;

// Edit controls of some systems go on painting, measuring and scrolling for a window that is gone, which ends the program; and after
// EN_MAXTEXT, which is left out, with the lengths that they had.
// clang-format off
constexpr Trigger kTriggers[] = {
    {Way::Command,  EN_CHANGE,         true,  "EN_CHANGE"        },
    {Way::Command,  EN_CHANGE,         true,  "EN_CHANGE"        },
    {Way::Command,  EN_CHANGE,         true,  "EN_CHANGE"        },
    {Way::Command,  EN_UPDATE,         false, "EN_UPDATE"        },
    {Way::Command,  EN_UPDATE,         false, "EN_UPDATE"        },
    {Way::Command,  EN_SETFOCUS,       true,  "EN_SETFOCUS"      },
    {Way::Command,  EN_KILLFOCUS,      true,  "EN_KILLFOCUS"     },
    {Way::Command,  EN_HSCROLL,        false, "EN_HSCROLL"       },
    {Way::Command,  EN_VSCROLL,        false, "EN_VSCROLL"       },
    {Way::Command,  ZTN_AUTOSKIP,      true,  "ZTN_AUTOSKIP"     },
    {Way::Command,  ZTN_AUTOSKIP,      true,  "ZTN_AUTOSKIP"     },
    {Way::Message,  WM_CTLCOLOREDIT,   false, "WM_CTLCOLOREDIT"  },
    {Way::Message,  WM_CTLCOLORSTATIC, false, "WM_CTLCOLORSTATIC"},
    {Way::Message,  WM_PARENTNOTIFY,   true,  "WM_PARENTNOTIFY"  },
    {Way::Subclass, EM_SETSEL,         true,  "EM_SETSEL"        },
    {Way::Subclass, EM_SCROLLCARET,    true,  "EM_SCROLLCARET"   },
    {Way::Subclass, WM_SETTEXT,        true,  "WM_SETTEXT"       },
    {Way::Subclass, WM_SIZE,           true,  "WM_SIZE"          },
    {Way::Subclass, WM_PAINT,          true,  "WM_PAINT"         },
    {Way::Subclass, WM_KILLFOCUS,      true,  "WM_KILLFOCUS"     },
    {Way::Subclass, WM_CAPTURECHANGED, true,  "WM_CAPTURECHANGED"},
    {Way::Subclass, WM_DESTROY,        true,  "WM_DESTROY"       },
};
// clang-format on

HINSTANCE Instance()
{
    return GetModuleHandleA(nullptr);
}

Stage* StageOf(HWND form)
{
    return reinterpret_cast<Stage*>(GetWindowLongPtrA(form, GWLP_USERDATA));
}

void RegisterForm(WNDPROC procedure)
{
    WNDCLASSA form = {};
    form.lpfnWndProc = procedure;
    form.hInstance = Instance();
    form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    form.lpszClassName = kFormClass;
    RegisterClassA(&form);
}

HWND CreateChild(HWND parent, const char* windowClass, DWORD style, const SIZE& size, int id, HINSTANCE instance,
                 void* params)
{
    return CreateWindowExA(0, windowClass, "", WS_CHILD | style, 10, 10, size.cx, size.cy, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, params);
}

// Of one line only those that scroll sideways: in others, made narrower than their text, some systems' edit controls write before
// their text.
DWORD StyleOf(uint32_t number)
{
    constexpr DWORD kAlignments[] = {ES_LEFT, ES_LEFT, ES_RIGHT, ES_CENTER};
    constexpr DWORD kMore[] = {0,
                               0,
                               0,
                               0,
                               ES_MULTILINE | ES_AUTOVSCROLL,
                               ES_READONLY,
                               WS_DISABLED,
                               WS_BORDER,
                               ES_NUMBER,
                               ES_PASSWORD,
                               ES_UPPERCASE,
                               WS_VSCROLL | WS_HSCROLL | ES_MULTILINE,
                               ES_NOHIDESEL,
                               ES_OEMCONVERT};
    Random random(number);
    const DWORD visible = random.OneIn(3) ? WS_VISIBLE : 0;
    const DWORD more = random.Of(kMore);
    const DWORD scroll = (more & ES_MULTILINE) != 0 && random.OneIn(2) ? 0 : ES_AUTOHSCROLL;
    return scroll | visible | random.Of(kAlignments) | more;
}

SIZE SizeOf(uint32_t number)
{
    constexpr SIZE kSizes[] = {
        {120,  20  },
        {120,  20  },
        {60,   24  },
        {8,    8   },
        {0,    0   },
        {300,  80  },
        {1,    200 },
        {3000, 3000}
    };
    return Random(number).Of(kSizes);
}

// Held by one thread at a time, which goes on answering the others' messages while it waits.
class Turn {
public:
    Turn()
    {
        while (MsgWaitForMultipleObjects(1, &Mutex(), FALSE, INFINITE, QS_SENDMESSAGE) != WAIT_OBJECT_0) {
            MSG message;
            PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
        }
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() { ReleaseMutex(Mutex()); }

private:
    static HANDLE& Mutex()
    {
        static HANDLE mutex = CreateMutexA(nullptr, FALSE, nullptr);
        return mutex;
    }
};

// The record of a control, where hosts find it.
const zte::EditInstance* RecordOf(HWND hwnd)
{
    const HGLOBAL block = IsWindow(hwnd) ? GetPropA(hwnd, "MAIN") : nullptr;
    const void* locked = block ? GlobalLock(block) : nullptr;
    if (!locked)
        return nullptr;
    const zte::EditInstance* record = nullptr;
    std::memcpy(&record, locked, sizeof record);
    GlobalUnlock(block);
    return record;
}

}  // namespace

const Trigger& TriggerOf(uint32_t number)
{
    return Random(number).Of(kTriggers);
}

Stage::Stage(Cast cast, uint32_t thread, bool alone) : cast_(cast), alone_(alone), buffer_(kRoom)
{
    RegisterForm(FormProc);
    for (HWND& form : forms_) {
        form =
            CreateWindowExA(0, kFormClass, "form", WS_POPUP, 20, 20, 400, 200, nullptr, nullptr, Instance(), nullptr);
        SetWindowLongPtrA(form, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    if (thread == 0)
        ShowWindow(Form(), SW_SHOWNA);
    const HINSTANCE library = GetModuleHandleA("ztedit050.dll");
    bystanders_[0] = CreateChild(Form(), "button", WS_VISIBLE, {40, 20}, 100, Instance(), nullptr);
    bystanders_[1] = CreateChild(Form(), "static", 0, {40, 20}, 101, Instance(), nullptr);
    bystanders_[2] = CreateChild(Form(), "listbox", 0, {40, 20}, 102, Instance(), nullptr);
    bystanders_[3] = CreateChild(Form(), "spin", 0, {40, 20}, 103, library, nullptr);
    constexpr int kHeights[] = {1, 8, 16, 24, 40};
    for (size_t i = 0; i < sizeof fonts_ / sizeof *fonts_; ++i)
        fonts_[i] = CreateFontA(kHeights[i] + static_cast<int>(thread), 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0,
                                0, 0, "Arial");
    memoryDc_ = CreateCompatibleDC(nullptr);
    bitmap_ = CreateBitmap(64, 64, 1, 32, nullptr);
    formerBitmap_ = SelectObject(memoryDc_, bitmap_);
    if (alone_)
        LoseObjects();
    heap_ = SharedHeapCreate();
}

// Objects of graphics that are gone, handed in like others. The system gives their numbers to new objects before long, which may be
// another thread's, and nobody may draw on those: with another thread beside it a stage has numbers that never were an object's.
void Stage::LoseObjects()
{
    goneFont_ = CreateFontA(20, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    DeleteObject(goneFont_);
    goneDc_ = CreateCompatibleDC(nullptr);
    DeleteDC(goneDc_);
}

Stage::~Stage()
{
    Clear();
    SharedHeapDestroy(heap_);
    for (HWND form : forms_)
        DestroyWindow(form);
    SelectObject(memoryDc_, formerBitmap_);
    DeleteObject(bitmap_);
    DeleteDC(memoryDc_);
    for (HFONT font : fonts_)
        DeleteObject(font);
}

void Stage::Clear()
{
    Disarm();
    for (HWND& control : controls_) {
        DestroyWindow(control);
        control = nullptr;
    }
    CloseClipboard();
    ReleaseCapture();
    EnableWindow(Form(), TRUE);
    SharedHeapDestroy(heap_);
    heap_ = SharedHeapCreate();
    ReleaseHeldBack();
}

HWND Stage::Spin(int slot) const
{
    const zte::EditInstance* record = RecordOf(controls_[slot]);
    return record ? static_cast<HWND>(record->hwndSpin) : nullptr;
}

HWND Stage::Bystander(uint32_t number) const
{
    constexpr uintptr_t kNoWindow = 0x7ABC;
    const HWND all[] = {nullptr,
                        reinterpret_cast<HWND>(kNoWindow),
                        GetDesktopWindow(),
                        forms_[0],
                        forms_[1],
                        bystanders_[0],
                        bystanders_[1],
                        bystanders_[2],
                        bystanders_[3]};
    return Random(number).Of(all);
}

int Stage::SlotOf(HWND hwnd) const
{
    for (int slot = 0; slot < kSlots; ++slot)
        if (hwnd && controls_[slot] == hwnd)
            return slot;
    return -1;
}

// On two threads each has fonts of its own; see MakeInTurn.
HFONT Stage::Font(uint32_t number) const
{
    Random random(number);
    if (alone_ && random.OneIn(8))
        return random.OneIn(2) ? goneFont_ : nullptr;
    return random.Of(fonts_);
}

HDC Stage::Dc(uint32_t number) const
{
    const HDC all[] = {memoryDc_, memoryDc_, memoryDc_, goneDc_, nullptr, reinterpret_cast<HDC>(bitmap_)};
    return Random(number).Of(all);
}

EditInitParams Stage::Params(const Op& op)
{
    EditInitParams params = {};
    params.heap = heap_;
    params.maskText = MaskOf(op.a);
    params.dataType = TypeOf(op.a >> 3);
    params.initialData = TextOf(op.b);
    params.spinRangeText = RangeOf(op.b >> 5);
    params.spinIncrement = Random(op.b).OneIn(3) ? op.b : op.b & 3;
    params.codeTableText = CodesOf(op.b >> 7);
    params.options = op.c;
    NoteReconfigured();
    return params;
}

HWND Stage::CreateWindowOf(const Op& op, void* params, bool byClass) const
{
    const char* name = IsMasked() && byClass ? ZTEDIT_CLASS : "edit";
    const HWND parent = Random(op.c).OneIn(10) ? OtherForm() : Form();
    return CreateChild(parent, name, StyleOf(op.c >> 4), SizeOf(op.c >> 8), op.slot + 1, Instance(), params);
}

void Stage::Make(const Op& op)
{
    if (alone_)
        MakeControl(op);
    else
        MakeInTurn(op);
}

// Some systems keep the shapes of a font's characters for all threads together, unguarded, so that two edit controls of one font which
// are drawn at once end the program. A new control draws with the font of all; nobody else makes one until it has its own.
void Stage::MakeInTurn(const Op& op)
{
    const Turn turn;
    MakeControl(op);
    SendMessageA(controls_[op.slot], WM_SETFONT, reinterpret_cast<WPARAM>(Font(op.b)), FALSE);
}

// By class with the configuration, by class and configured later, by subclassing, and without any configuration.
void Stage::MakeControl(const Op& op)
{
    DestroyWindow(controls_[op.slot]);
    EditInitParams params = Params(op);
    const uint32_t way = Random(op.a).Below(8);
    HWND hwnd = nullptr;
    if (!IsMasked()) {
        hwnd = CreateWindowOf(op, nullptr, false);
        SetWindowTextA(hwnd, "07/04/1995 12:30");
    } else if (way < 5) {
        hwnd = CreateWindowOf(op, &params, true);
    } else {
        hwnd = CreateWindowOf(op, nullptr, way == 5);
        if (way > 5)
            SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ZTE_SuperEditWndProc));
        if (way != 7)
            ZTE_Init(hwnd, &params);
    }
    controls_[op.slot] = hwnd;
}

// A plain edit's messages do not reach the library; a host that configures one is on its own.
void Stage::Init(HWND hwnd, const Op& op)
{
    EditInitParams params = Params(op);
    if (Random(op.c).OneIn(20))
        params.heap = nullptr;
    if (IsMasked())
        ZTE_Init(hwnd, Random(op.c).OneIn(30) ? nullptr : &params);
}

void Stage::SubclassControl(int slot)
{
    const HWND hwnd = controls_[slot];
    const auto host = reinterpret_cast<LONG_PTR>(HostProc);
    if (!IsWindow(hwnd) || GetWindowLongPtrA(hwnd, GWLP_WNDPROC) == host)
        return;
    const LONG_PTR former = SetWindowLongPtrA(hwnd, GWLP_WNDPROC, host);
    SetPropA(hwnd, kHostProcedure, reinterpret_cast<HANDLE>(former));
}

void Stage::Arm(const Reaction& reaction)
{
    constexpr size_t kMost = 4;
    if (reactions_.size() == kMost)
        reactions_.erase(reactions_.begin());
    reactions_.push_back(reaction);
}

void Stage::OnTrigger(Trigger::Way way, UINT code, HWND control)
{
    constexpr int kDeepest = 3;
    const int slot = SlotOf(control);
    if (depth_ >= kDeepest || slot < 0)
        return;
    for (size_t i = 0; i < reactions_.size(); ++i) {
        const Trigger& trigger = *reactions_[i].trigger;
        if (trigger.way != way || trigger.code != code || reactions_[i].times == 0)
            continue;
        --reactions_[i].times;
        ++depth_;
        ++reacted_;
        const LateRelease late;
        Op op = ReactionOf(reactions_[i].seed, slot);
        if (op.kind == Kind::Destroy && !trigger.mayDestroy)
            op.kind = Kind::TextFromOutside;
        Play(*this, op);
        --depth_;
        return;
    }
}

LRESULT CALLBACK Stage::FormProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    Stage* stage = StageOf(hwnd);
    switch (message) {
    case WM_SYSCOMMAND:  // no menu and no screen saver begins here
    case WM_CLOSE: return 0;
    case WM_COMMAND:
        if (stage)
            stage->OnTrigger(Way::Command, HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        return 0;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_PARENTNOTIFY:
        if (stage)
            stage->OnTrigger(Way::Message, message, reinterpret_cast<HWND>(lParam));
        break;
    default: break;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

LRESULT CALLBACK Stage::HostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto former = reinterpret_cast<WNDPROC>(GetPropA(hwnd, kHostProcedure));
    if (message == WM_NCDESTROY)
        RemovePropA(hwnd, kHostProcedure);
    const LRESULT result = former ? CallWindowProcA(former, hwnd, message, wParam, lParam) : 0;
    const HWND form = IsWindow(hwnd) ? GetParent(hwnd) : nullptr;
    Stage* stage = form ? StageOf(form) : nullptr;
    if (stage)
        stage->OnTrigger(Way::Subclass, message, hwnd);
    return result;
}

}  // namespace storm
