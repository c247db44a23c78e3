// How each kind of operation is carried out.
#include <array>
#include <cstring>

#include "tests/storm/messages.h"
#include "tests/storm/samples.h"
#include "tests/storm/stage.h"
#include "tests/support/profile.h"

namespace storm {

namespace {

// Records that messages point to; one of each a thread, for a posted message outlives the call that made it.
struct Records {
    DWORD numbers[2];
    RECT rect;
    UINT stops[16];
    WINDOWPOS place;
    CREATESTRUCTA creation;
    EditInitParams params;
    MSG waiting;
};
thread_local Records records;

// The control of the slot, which may be gone; now and then something that is none.
HWND TargetOf(const Stage& stage, const Op& op)
{
    Random random(op.a ^ 0x5A5A5A5A);
    return random.OneIn(12) ? stage.Bystander(random.Next()) : stage.Control(op.slot);
}

RECT RectOf(uint32_t number)
{
    constexpr RECT kRects[] = {
        {0,         0,  20,        30       },
        {0,         0,  0,         0        },
        {0,         0,  1,         1        },
        {30,        30, 0,         0        },
        {-5,        -5, 40,        40       },
        {0,         0,  2000,      4        },
        {0,         0,  4,         900      },
        {0,         0,  32767,     32767    },
        {0,         0,  65535,     65535    },
        {5,         5,  18,        36000    },
        {-40000,    -9, 40000,     9        },
        {0,         0,  INT32_MAX, INT32_MAX},
        {0,         0,  100,       33       },
        {INT32_MIN, 0,  0,         7        },
        {10,        0,  60,        -20      },
        {1,         2,  90,        19       }
    };
    return Random(number).Of(kRects);
}

const char* SectionOf(uint32_t number)
{
    constexpr const char* kSections[] = {"intl", "windows", nullptr};
    return Random(number).Of(kSections);
}

WPARAM CharacterOf(Random& random)
{
    constexpr uint8_t kKeys[] = {VK_BACK,   VK_TAB,   VK_RETURN, VK_ESCAPE, VK_SPACE,   VK_PRIOR, VK_NEXT,   VK_END,
                                 VK_HOME,   VK_LEFT,  VK_UP,     VK_LEFT,   VK_RIGHT,   VK_DOWN,  VK_INSERT, VK_DELETE,
                                 VK_DELETE, VK_SHIFT, 'A',       'C',       'V',        'X',      'Z',       '1',
                                 '5',       VK_APPS,  VK_F10,    VK_F4,     VK_CONTROL, VK_MENU};
    return random.OneIn(4) ? random.Below(256) : random.Of(kKeys);
}

WPARAM CommandOf(Random& random)
{
    constexpr WPARAM kCommands[] = {0, SC_CLOSE, SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE, SC_NEXTWINDOW, SC_HOTKEY};
    return random.Of(kCommands);
}

WPARAM HitCodeOf(Random& random)
{
    constexpr int kCodes[] = {HTERROR, HTTRANSPARENT, HTNOWHERE, HTCLIENT};
    return static_cast<WPARAM>(random.Of(kCodes));
}

template <typename Record>
LPARAM Address(Record* record)
{
    return reinterpret_cast<LPARAM>(record);
}

LPARAM CreationFor(Stage& stage, Random& random)
{
    records.creation = {};
    records.creation.cx = 100;
    records.creation.cy = 20;
    records.creation.hwndParent = stage.Form();
    records.creation.style = WS_CHILD;
    records.creation.lpszName = "";
    records.creation.lpszClass = stage.IsMasked() ? ZTEDIT_CLASS : "edit";
    if (stage.IsMasked() && random.OneIn(2)) {
        records.params = stage.Params({Kind::Init, 0, random.Next(), random.Next(), random.Next()});
        records.creation.lpCreateParams = &records.params;
    }
    return Address(&records.creation);
}

LPARAM PlaceFor(HWND hwnd, Random& random)
{
    constexpr UINT kFlags[] = {0, SWP_NOSIZE, SWP_NOMOVE, SWP_SHOWWINDOW, SWP_HIDEWINDOW, SWP_NOSIZE | SWP_NOMOVE};
    records.place = {hwnd,
                     nullptr,
                     0,
                     0,
                     static_cast<int>(random.Below(400)),
                     static_cast<int>(random.Below(100)),
                     random.Of(kFlags)};
    return Address(&records.place);
}

LPARAM LineFor(Stage& stage)
{
    constexpr WORD kSize = 1000;
    std::memcpy(stage.Buffer(), &kSize, sizeof kSize);
    return Address(stage.Buffer());
}

LPARAM CleanBuffer(Stage& stage)
{
    constexpr size_t kRecord = 256;
    std::memset(stage.Buffer(), 0, kRecord);
    return Address(stage.Buffer());
}

LPARAM ParameterFor(Parameter kind, Stage& stage, HWND hwnd, Random& random)
{
    switch (kind) {
    case Parameter::Number: return static_cast<LPARAM>(HostileNumber(random));
    case Parameter::Room: return static_cast<LPARAM>(random.OneIn(2) ? random.Below(300) : random.Below(Stage::kRoom));
    case Parameter::Switch: return static_cast<LPARAM>(random.Below(2));
    case Parameter::HitCode: return static_cast<LPARAM>(HitCodeOf(random));
    case Parameter::Command: return static_cast<LPARAM>(CommandOf(random));
    case Parameter::Character: return static_cast<LPARAM>(CharacterOf(random));
    case Parameter::Text: return Address(TextOf(random.Next()));
    case Parameter::Buffer: return CleanBuffer(stage);
    case Parameter::Maybe: return random.OneIn(2) ? CleanBuffer(stage) : 0;
    case Parameter::Line: return LineFor(stage);
    case Parameter::Numbers: return random.OneIn(3) ? 0 : Address(records.numbers);
    case Parameter::Rect: records.rect = RectOf(random.Next()); return random.OneIn(6) ? 0 : Address(&records.rect);
    case Parameter::Stops: return Address(records.stops);
    case Parameter::Few: return static_cast<LPARAM>(random.Below(17));
    case Parameter::Place: return PlaceFor(hwnd, random);
    case Parameter::Creation: return CreationFor(stage, random);
    case Parameter::Waiting:
        records.waiting = {hwnd, WM_KEYDOWN, CharacterOf(random), 1, 0, {}};
        return random.OneIn(2) ? 0 : Address(&records.waiting);
    case Parameter::Dc: return random.OneIn(3) ? 0 : Address(stage.MemoryDc());
    case Parameter::Margins:
        return static_cast<LPARAM>(MAKELONG(random.Below(12), random.OneIn(5) ? EC_USEFONTINFO : random.Below(12)));
    case Parameter::Font: return Address(stage.Font(random.Next()));
    case Parameter::Window: return Address(stage.Bystander(random.Next()));
    case Parameter::Section: return Address(SectionOf(random.Next()));
    case Parameter::Zero:
    case Parameter::LeftOut: break;
    }
    return 0;
}

// A menu waits for a key: it finds one that closes it, which nobody takes away before.
class EscapesAhead {
public:
    EscapesAhead(HWND form, bool wanted) : form_(wanted ? form : nullptr)
    {
        for (int i = 0; form_ && i < kEscapes; ++i)
            PostMessageA(form_, WM_KEYDOWN, VK_ESCAPE, 1);
        depth_ += form_ ? 1 : 0;
    }
    EscapesAhead(const EscapesAhead&) = delete;
    EscapesAhead& operator=(const EscapesAhead&) = delete;
    ~EscapesAhead()
    {
        depth_ -= form_ ? 1 : 0;
        MSG message;
        while (form_ && depth_ == 0 && PeekMessageA(&message, form_, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE)) {}
    }

    static bool AreWaiting() { return depth_ > 0; }

private:
    static constexpr int kEscapes = 3;
    static thread_local int depth_;
    HWND form_;
};

thread_local int EscapesAhead::depth_ = 0;

void Send(const Stage& stage, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const EscapesAhead escapes(stage.Form(), OpensMenu(message, wParam));
    SendMessageA(hwnd, message, wParam, lParam);
}

struct Message {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// WM_NULL stands for a message that is left out.
Message MessageFor(Stage& stage, HWND hwnd, const Op& op)
{
    const UINT message = MessageOf(op.a);
    const MessageShape shape = ShapeOf(message);
    if (shape.wParam == Parameter::LeftOut)
        return {WM_NULL, 0, 0};
    if (message == WM_CREATE && !stage.IsAlone())  // the control would go back to the font of all
        return {WM_NULL, 0, 0};
    Random first(op.b);
    Random second(op.c);
    const auto wParam = static_cast<WPARAM>(ParameterFor(shape.wParam, stage, hwnd, first));
    return {message, wParam, ParameterFor(shape.lParam, stage, hwnd, second)};
}

void PlaySendMessage(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    const Message message = MessageFor(stage, hwnd, op);
    Send(stage, hwnd, message.message, message.wParam, message.lParam);
}

bool IsNumber(Parameter parameter)
{
    return parameter == Parameter::Number || parameter == Parameter::Character || parameter == Parameter::Zero;
}

void PlayPostMessage(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    const MessageShape shape = ShapeOf(MessageOf(op.a));
    if (!hwnd || !IsNumber(shape.wParam) || !IsNumber(shape.lParam))
        return;
    const Message message = MessageFor(stage, hwnd, op);
    const bool isOfDde = message.message >= WM_DDE_FIRST && message.message <= WM_DDE_LAST;
    if (!isOfDde && !OpensMenu(message.message, message.wParam))
        PostMessageA(hwnd, message.message, message.wParam, message.lParam);
}

LPARAM PointIn(HWND hwnd, uint32_t number)
{
    RECT client = {};
    GetClientRect(hwnd, &client);
    Random random(number);
    if (random.OneIn(8))
        return static_cast<LPARAM>(HostileNumber(random));
    const auto width = static_cast<uint32_t>(client.right + 1);
    const auto height = static_cast<uint32_t>(client.bottom + 1);
    return MAKELPARAM(random.Below(width), random.Below(height));
}

// On a control without a spin the message goes to the control itself.
void PlaySpinMessage(Stage& stage, const Op& op)
{
    constexpr UINT kOfSpins[] = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MOUSEMOVE, WM_TIMER,
                                 WM_TIMER,       WM_PAINT,     WM_SETREDRAW};
    const HWND spin = stage.Spin(op.slot);
    const HWND hwnd = spin ? spin : stage.Control(op.slot);
    Random random(op.b);
    if (spin && random.OneIn(20)) {
        stage.NoteReconfigured();
        DestroyWindow(hwnd);
    } else if (random.OneIn(3)) {
        const Message message = MessageFor(stage, hwnd, op);
        Send(stage, hwnd, message.message, message.wParam, message.lParam);
    } else {
        const UINT message = random.Of(kOfSpins);
        const WPARAM number = message == WM_PAINT ? 0 : random.Below(3);
        SendMessageA(hwnd, message, number, message >= WM_MOUSEFIRST ? PointIn(hwnd, op.c) : 0);
    }
}

// The window procedures as exports, called for windows that are not theirs.
void PlayCallProcedure(Stage& stage, const Op& op)
{
    if (!stage.IsMasked())
        return;
    Random random(op.b ^ op.c);
    const HWND spin = stage.Spin(op.slot);
    const HWND control = stage.Control(op.slot);
    const HWND nobody[] = {nullptr, stage.Form(), stage.OtherForm(), spin, control};
    const HWND hwnd = random.Of(nobody);
    const Message message = MessageFor(stage, hwnd, op);
    const EscapesAhead escapes(stage.Form(), OpensMenu(message.message, message.wParam));
    if (random.OneIn(2))
        ZTE_SpinWndProc(hwnd, message.message, message.wParam, message.lParam);
    else
        ZTE_SuperEditWndProc(hwnd, message.message, message.wParam, message.lParam);
    WEP(static_cast<int32_t>(op.a));
}

// Keys held while another is pressed.
class Modifiers {
public:
    explicit Modifiers(uint32_t number) : held_(number & 3)
    {
        if (held_)
            Hold(true);
    }
    Modifiers(const Modifiers&) = delete;
    Modifiers& operator=(const Modifiers&) = delete;
    ~Modifiers()
    {
        if (held_)
            Hold(false);
    }

private:
    void Hold(bool down) const
    {
        BYTE keys[256];
        GetKeyboardState(keys);
        const BYTE state = down ? 0x80 : 0;
        if (held_ & 1)
            keys[VK_SHIFT] = state;
        if (held_ & 2)
            keys[VK_CONTROL] = state;
        SetKeyboardState(keys);
    }
    uint32_t held_;
};

bool HasCharacter(WPARAM key)
{
    return key == VK_BACK || key == VK_TAB || key == VK_RETURN || key == VK_ESCAPE || key == VK_SPACE ||
           (key >= '0' && key <= 'Z');
}

void PlayKey(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    Random random(op.a);
    const WPARAM key = CharacterOf(random);
    const uint32_t held = random.OneIn(4) ? op.b : 0;
    const uint32_t times = random.OneIn(20) ? 12 : 1 + op.c % 3;
    const Modifiers modifiers(held);
    for (uint32_t i = 0; i < times; ++i) {
        Send(stage, hwnd, WM_KEYDOWN, key, 1);
        if (HasCharacter(key))
            SendMessageA(hwnd, WM_CHAR, (held & 2) != 0 ? key & 0x1F : key, 1);
    }
    if (!random.OneIn(8))
        Send(stage, hwnd, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001u));
}

void PlayType(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    Random random(op.b);
    if (random.OneIn(3)) {
        constexpr LPARAM kEnds[] = {-1, 0, 1, 3, 100};
        SendMessageA(hwnd, EM_SETSEL, random.Below(12), random.Of(kEnds));
    }
    for (const char* key = KeysOf(op.a); *key; ++key)
        SendMessageA(hwnd, WM_CHAR, static_cast<unsigned char>(*key), 1);
}

void PlayMouse(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    const LPARAM where = PointIn(hwnd, op.a);
    Random random(op.b);
    SendMessageA(hwnd, random.OneIn(6) ? WM_LBUTTONDBLCLK : WM_LBUTTONDOWN, MK_LBUTTON, where);
    if (random.OneIn(3))
        SendMessageA(hwnd, WM_MOUSEMOVE, MK_LBUTTON, PointIn(hwnd, op.c));
    if (!random.OneIn(10))
        SendMessageA(hwnd, WM_LBUTTONUP, 0, random.OneIn(3) ? PointIn(hwnd, op.c) : where);
}

void PlaySetMask(Stage& stage, const Op& op)
{
    ZTE_FmtSetMask(TargetOf(stage, op), MaskOf(op.b), TypeOf(op.c));
}

void PlaySetData(Stage& stage, const Op& op)
{
    ZTE_FmtSetData(TargetOf(stage, op), ValueOf(op.b));
}

void PlaySetDataString(Stage& stage, const Op& op)
{
    ZTE_FmtSetDataString(TargetOf(stage, op), TextOf(op.b));
}

void PlayReadData(Stage& stage, const Op& op)
{
    const HWND hwnd = TargetOf(stage, op);
    SharedHeapFree(stage.Heap(), ZTE_FmtGetData(hwnd));
    if (FormatResult* result = ZTE_FmtFormatData(hwnd, ValueOf(op.b))) {
        SharedHeapFree(stage.Heap(), result->text);
        SharedHeapFree(stage.Heap(), result);
    }
    ZTE_FmtGetDataType(hwnd);
}

void PlayUnformatData(Stage& stage, const Op& op)
{
    SharedHeapFree(stage.Heap(), ZTE_FmtUnformatData(TargetOf(stage, op), TextOf(op.b)));
}

void PlaySetSpin(Stage& stage, const Op& op)
{
    constexpr uint32_t kIncrements[] = {0, 1, 2, 7, 1000, INT32_MAX, UINT32_MAX};
    constexpr uint32_t kStyles[] = {
        0, 0, SPINSTYLE_PICKLIST, SPINSTYLE_CODETABLE, SPINSTYLE_PICKLIST | SPINSTYLE_CODETABLE, UINT32_MAX, 1};
    Random random(op.c);
    stage.NoteReconfigured();
    const char* codes = CodesOf(random.OneIn(2) ? op.b & ~3u : op.b);
    ZTE_SetSpin(TargetOf(stage, op), random.Of(kIncrements), RangeOf(op.b), codes, random.Of(kStyles));
}

void PlayMakeSpin(Stage& stage, const Op& op)
{
    ZTE_CreateSpin(TargetOf(stage, op));
}

void PlayDropSpin(Stage& stage, const Op& op)
{
    stage.NoteReconfigured();
    ZTE_DestroySpin(TargetOf(stage, op));
}

void PlayPaintSpin(Stage& stage, const Op& op)
{
    const RECT rect = RectOf(op.b);
    const RECT* maybe = Random(op.b).OneIn(4) ? nullptr : &rect;
    if (Random(op.c).OneIn(2))
        ZTE_PaintSpin(TargetOf(stage, op), stage.Dc(op.c), maybe);
    else
        ZTE_PaintSpinOnce(maybe, stage.Dc(op.c));
}

void PlayAskSpin(Stage& stage, const Op& op)
{
    const HWND hwnd = TargetOf(stage, op);
    const RECT rect = RectOf(op.b);
    ZTE_GetSpinWidth(hwnd, Random(op.b).OneIn(4) ? nullptr : &rect);
    ZTE_SetSpinBkColor(hwnd, Random(op.c).OneIn(3) ? op.c : 0);
}

void PlaySetRange(Stage& stage, const Op& op)
{
    const HWND hwnd = TargetOf(stage, op);
    DateTimeValue value = {};
    ZTE_SpinDateRange(hwnd, Random(op.b).OneIn(10) ? nullptr : &value, TextOf(op.b));
    ZTE_SpinRangeCompare(hwnd, ValueOf(op.b), ValueOf(op.c));
}

void PlaySwitch(Stage& stage, const Op& op)
{
    const HWND hwnd = TargetOf(stage, op);
    ZTE_SetAutoskip(hwnd, op.b);
    ZTE_UtilSetFormatRect(hwnd);
}

void PlayTextFromOutside(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    Random random(op.b);
    if (random.OneIn(12))
        SendMessageA(hwnd, EM_SETLIMITTEXT, random.Below(20), 0);
    if (random.OneIn(2))
        SetWindowTextA(hwnd, TextOf(op.a));
    else if (const char* text = TextOf(op.a))
        SendMessageA(hwnd, EM_REPLACESEL, random.Below(2), Address(text));
    const auto caret = static_cast<LPARAM>(random.Below(20));
    SendMessageA(hwnd, EM_SETSEL, static_cast<WPARAM>(caret), random.OneIn(2) ? caret : -1);
}

void PlayResize(Stage& stage, const Op& op)
{
    constexpr SIZE kSizes[] = {
        {0,     0    },
        {1,     1    },
        {120,   20   },
        {60,    24   },
        {8,     200  },
        {200,   3    },
        {5000,  40   },
        {40,    5000 },
        {32767, 32767},
        {-10,   -10  },
        {99,    31   }
    };
    const SIZE size = Random(op.a).Of(kSizes);
    const UINT show = Random(op.c).OneIn(4) ? (Random(op.b).OneIn(2) ? SWP_SHOWWINDOW : SWP_HIDEWINDOW) : 0;
    const int left = static_cast<int>(op.b % 50);
    SetWindowPos(stage.Control(op.slot), nullptr, left, 5, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE | show);
}

void PlayFont(Stage& stage, const Op& op)
{
    SendMessageA(stage.Control(op.slot), WM_SETFONT, reinterpret_cast<WPARAM>(stage.Font(op.a)),
                 static_cast<LPARAM>(op.b & 1));
}

void PlayStyle(Stage& stage, const Op& op)
{
    constexpr LONG kStyles[] = {ES_MULTILINE, ES_RIGHT,  ES_CENTER, WS_VISIBLE, ES_UPPERCASE, ES_PASSWORD,
                                ES_READONLY,  ES_NUMBER, WS_BORDER, WS_VSCROLL, WS_HSCROLL};
    const HWND hwnd = stage.Control(op.slot);
    Random random(op.a);
    switch (random.Below(3)) {
    case 0: EnableWindow(hwnd, random.OneIn(2)); break;
    case 1: SendMessageA(hwnd, EM_SETREADONLY, random.Below(2), 0); break;
    default: SetWindowLongA(hwnd, GWL_STYLE, GetWindowLongA(hwnd, GWL_STYLE) ^ random.Of(kStyles));
    }
}

void PlayFocus(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    switch (Random(op.a).Below(6)) {
    case 0: SetFocus(nullptr); break;
    case 1: SetFocus(stage.Form()); break;
    case 2: SetCapture(hwnd); break;
    case 3: ReleaseCapture(); break;
    default: SetFocus(hwnd);
    }
}

void FillClipboard(UINT format, const char* text, size_t size)
{
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    void* room = block ? GlobalLock(block) : nullptr;
    if (room)
        std::memcpy(room, text, size);
    GlobalUnlock(block);
    EmptyClipboard();
    if (!SetClipboardData(format, block))
        GlobalFree(block);
}

// Held open by another window it stays so until it is let go.
void PlayClipboard(Stage& stage, const Op& op)
{
    const char* text = TextOf(op.b);
    const size_t length = text ? std::strlen(text) : 0;
    const uint32_t what = Random(op.a).Below(6);
    if (what == 0) {
        OpenClipboard(stage.OtherForm());
        return;
    }
    CloseClipboard();
    if (!OpenClipboard(stage.Form()))
        return;
    switch (what) {
    case 1: EmptyClipboard(); break;
    case 2: FillClipboard(RegisterClipboardFormatA("storm"), "other", 5); break;
    case 3: FillClipboard(CF_TEXT, "without an end", 5); break;
    default: FillClipboard(CF_TEXT, text ? text : "", length + 1);
    }
    CloseClipboard();
}

void PlayPaint(Stage& stage, const Op& op)
{
    const HWND hwnd = stage.Control(op.slot);
    const HDC dc = stage.MemoryDc();
    switch (Random(op.a).Below(4)) {
    case 0: SendMessageA(hwnd, WM_PAINT, reinterpret_cast<WPARAM>(dc), 0); break;
    case 1: SendMessageA(hwnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT | PRF_CHILDREN); break;
    case 2:
        SendMessageA(hwnd, WM_PRINT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT | PRF_CHILDREN | PRF_NONCLIENT);
        break;
    default: RedrawWindow(hwnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
}

void PlaySettings(Stage& stage, const Op& op)
{
    static const zttest::RegionalSet kChanges = {
        {"sDecimal",    "."                    },
        {"sDecimal",    ","                    },
        {"sDecimal",    ""                     },
        {"sDecimal",    "\xA7"                 },
        {"sThousand",   ","                    },
        {"sThousand",   "."                    },
        {"sThousand",   ""                     },
        {"sCurrency",   "$"                    },
        {"sCurrency",   ""                     },
        {"sCurrency",   "kr."                  },
        {"iCurrency",   "0"                    },
        {"iCurrency",   "3"                    },
        {"iCurrency",   "99"                   },
        {"s1159",       "AM"                   },
        {"s1159",       ""                     },
        {"s1159",       "before noon"          },
        {"s2359",       "PM"                   },
        {"s2359",       "A"                    },
        {"sShortDate",  "M/d/yyyy"             },
        {"sShortDate",  ""                     },
        {"sShortDate",  "dd.MM.yyyy"           },
        {"sShortDate",  "yyyy 'de' MMMM dddd d"},
        {"sTime",       ":"                    },
        {"sTime",       ""                     },
        {"sTime",       "HMS"                  },
        {"iCurrDigits", "2"                    },
        {"iCurrDigits", "-7"                   },
    };
    const zttest::ProfileValue& change = kChanges[op.a % kChanges.size()];
    stage.NoteSettingsChanged();
    zttest::WriteProfile(change.key, change.value);
    SendMessageA(stage.Control(op.slot), WM_WININICHANGE, 0, Address("intl"));
}

void PlayReact(Stage& stage, const Op& op)
{
    stage.Arm({&TriggerOf(op.a), op.b, 1 + op.c % 6});
}

void PlaySubclass(Stage& stage, const Op& op)
{
    stage.SubclassControl(op.slot);
}

void PlayReparent(Stage& stage, const Op& op)
{
    SetParent(stage.Control(op.slot), Random(op.a).OneIn(2) ? stage.Form() : stage.OtherForm());
}

void PlayPump(Stage&, const Op&)
{
    constexpr int kMost = 300;
    if (EscapesAhead::AreWaiting())
        return;
    MSG message;
    for (int i = 0; i < kMost && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); ++i) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void PlayMake(Stage& stage, const Op& op)
{
    stage.Make(op);
}

void PlayDestroy(Stage& stage, const Op& op)
{
    DestroyWindow(stage.Control(op.slot));
}

void PlayInit(Stage& stage, const Op& op)
{
    stage.Init(TargetOf(stage, op), op);
}

using Player = void (*)(Stage& stage, const Op& op);

// In the order of Kind.
constexpr std::array<Player, kKinds> kPlayers = {
    PlayMake,          PlayDestroy,  PlayInit,         PlaySendMessage, PlayPostMessage,     PlaySpinMessage,
    PlayCallProcedure, PlayKey,      PlayType,         PlayMouse,       PlaySetMask,         PlaySetData,
    PlaySetDataString, PlayReadData, PlayUnformatData, PlaySetSpin,     PlayMakeSpin,        PlayDropSpin,
    PlayPaintSpin,     PlayAskSpin,  PlaySetRange,     PlaySwitch,      PlayTextFromOutside, PlayResize,
    PlayFont,          PlayStyle,    PlayFocus,        PlayClipboard,   PlayPaint,           PlaySettings,
    PlayReact,         PlaySubclass, PlayReparent,     PlayPump,
};

}  // namespace

void Play(Stage& stage, const Op& op)
{
    kPlayers[static_cast<size_t>(op.kind)](stage, op);
}

}  // namespace storm
