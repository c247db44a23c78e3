// The messages that are played, and what their parameters are.
#include "tests/storm/messages.h"

namespace storm {

namespace {

using P = Parameter;

struct MessageRow {
    UINT first;
    UINT last;
    P wParam;
    P lParam;
};

constexpr UINT kCueBanners = 0x1500;
constexpr UINT kReflected = 0x2000;
constexpr UINT kMessages = 0x401;

// Messages that are not in the table take any numbers. What is left out or narrowed for the sake of the edit control underneath was seen
// to end or to stop a program with plain edits alone.
// clang-format off
constexpr MessageRow kRows[] = {
    {WM_CREATE,             WM_CREATE,             P::Zero,      P::Creation},
    {WM_SETTEXT,            WM_SETTEXT,            P::Number,    P::Text    },
    {WM_GETTEXT,            WM_GETTEXT,            P::Room,      P::Buffer  },
    {WM_PAINT,              WM_PAINT,              P::Dc,        P::Zero    },
    {WM_ERASEBKGND,         WM_ERASEBKGND,         P::Dc,        P::Zero    },
    {WM_WININICHANGE,       WM_WININICHANGE,       P::Number,    P::Section },
    {WM_DEVMODECHANGE,      WM_DEVMODECHANGE,      P::Number,    P::Section },
    {WM_GETMINMAXINFO,      WM_GETMINMAXINFO,      P::Zero,      P::Buffer  },
    {WM_ICONERASEBKGND,     WM_ICONERASEBKGND,     P::Dc,        P::Zero    },
    {WM_DRAWITEM,           WM_DELETEITEM,         P::Number,    P::Buffer  },
    {WM_SETFONT,            WM_SETFONT,            P::Font,      P::Number  },
    {WM_COMPAREITEM,        WM_COMPAREITEM,        P::Number,    P::Buffer  },
    {WM_WINDOWPOSCHANGING,  WM_WINDOWPOSCHANGED,   P::Number,    P::Place   },
    {WM_COPYDATA,           WM_COPYDATA,           P::Window,    P::Buffer  },
    {WM_NOTIFY,             WM_NOTIFY,             P::Number,    P::Buffer  },
    {WM_INPUTLANGCHANGEREQUEST, WM_INPUTLANGCHANGE, P::Zero,     P::Zero    },
    {WM_HELP,               WM_HELP,               P::Number,    P::Buffer  },
    {WM_STYLECHANGING,      WM_STYLECHANGED,       P::Number,    P::Buffer  },
    {WM_SETICON,            WM_SETICON,            P::Number,    P::Zero    },
    {WM_NCCREATE,           WM_NCCREATE,           P::LeftOut,   P::LeftOut },  // sent twice, the base loses what it has
    {WM_NCCALCSIZE,         WM_NCCALCSIZE,         P::Switch,    P::Buffer  },
    {WM_NCPAINT,            WM_NCPAINT,            P::Switch,    P::Zero    },
    {WM_GETDLGCODE,         WM_GETDLGCODE,         P::Number,    P::Waiting },
    {WM_NCMOUSEMOVE,        0xAD,                  P::HitCode,   P::Number  },
    {EM_GETSEL,             EM_GETSEL,             P::Numbers,   P::Numbers },
    {EM_GETRECT,            EM_SETRECTNP,          P::Number,    P::Rect    },
    {EM_SETHANDLE,          EM_SETHANDLE,          P::Zero,      P::Zero    },
    {EM_GETTHUMB,           EM_GETTHUMB,           P::LeftOut,   P::LeftOut },  // some systems divide by the height of no line
    {EM_REPLACESEL,         EM_REPLACESEL,         P::Switch,    P::Text    },
    {EM_SCROLL,             EM_LINESCROLL,         P::Few,       P::Few     },  // some systems paint every line on a longer way
    {EM_GETLINE,            EM_GETLINE,            P::Number,    P::Line    },
    {EM_SETTABSTOPS,        EM_SETTABSTOPS,        P::Few,       P::Stops   },
    {EM_SETWORDBREAKPROC,   EM_SETWORDBREAKPROC,   P::Zero,      P::Zero    },
    {EM_SETMARGINS,         EM_SETMARGINS,         P::Number,    P::Margins },  // in others some systems type for ever
    {SBM_SETPOS,            0xEF,                  P::Number,    P::Buffer  },
    {BM_GETCHECK,           0xFD,                  P::Number,    P::Zero    },
    {0xFE,                  0xFF,                  P::Number,    P::Zero    },  // raw input
    {WM_KEYDOWN,            WM_UNICHAR,            P::Character, P::Number  },
    {WM_INITDIALOG,         WM_INITDIALOG,         P::Window,    P::Number  },
    {WM_SYSCOMMAND,         WM_SYSCOMMAND,         P::Command,   P::Number  },
    {WM_TIMER,              WM_TIMER,              P::Number,    P::Zero    },
    {WM_HSCROLL,            WM_VSCROLL,            P::Number,    P::Zero    },
    {WM_CTLCOLORMSGBOX,     WM_CTLCOLORSTATIC,     P::Dc,        P::Window  },
    {CB_GETEDITSEL,         0x1DF,                 P::Number,    P::Buffer  },  // of lists and combo boxes, of static controls
    {0x1E0,                 0x1FF,                 P::Zero,      P::Zero    },  // of menus
    {WM_NEXTMENU,           WM_NEXTMENU,           P::Number,    P::Buffer  },
    {WM_SIZING,             WM_SIZING,             P::Number,    P::Rect    },
    {WM_MOVING,             WM_MOVING,             P::Number,    P::Rect    },
    {WM_DEVICECHANGE,       WM_DEVICECHANGE,       P::Number,    P::Zero    },
    {WM_MDICREATE,          WM_MDICREATE,          P::LeftOut,   P::LeftOut },  // a record that only a client of many documents reads
    {WM_MDIDESTROY,         WM_MDIREFRESHMENU,     P::Zero,      P::Zero    },
    {WM_IME_SETCONTEXT,     0x29F,                 P::Number,    P::Zero    },
    {0x2E0,                 0x2E4,                 P::Number,    P::Rect    },  // another resolution
    {WM_PAINTCLIPBOARD,     WM_PAINTCLIPBOARD,     P::Zero,      P::Zero    },
    {WM_SIZECLIPBOARD,      WM_SIZECLIPBOARD,      P::Zero,      P::Zero    },
    {WM_ASKCBFORMATNAME,    WM_ASKCBFORMATNAME,    P::Room,      P::Buffer  },
    {WM_PRINT,              WM_PRINTCLIENT,        P::Dc,        P::Number  },
    {0x33F,                 0x33F,                 P::Number,    P::Buffer  },  // the title bar
    {WM_DDE_FIRST,          WM_DDE_FIRST + 8,      P::Window,    P::Zero    },
    {kCueBanners,           kCueBanners + 0xF,     P::Number,    P::Maybe   },
};
// clang-format on

// Numbers at which something ends.
constexpr INT_PTR kEdges[] = {
    0,      1,      2,      3,       7,          8,          9,          10,         13,        27,
    32,     46,     127,    128,     255,        256,        257,        1000,       0x7FFE,    0x7FFF,
    0x8000, 0xFFFE, 0xFFFF, 0x10000, 0x00010001, 0x00640005, 0x7FFFFFFE, 0x7FFFFFFF, INT32_MIN, -2,
    -1,     -3,     -32768, -65536,  INTPTR_MAX, INTPTR_MIN, 0x00100010, 0x0005000A, 0x000A0064};

// What the library and the base do most with.
constexpr UINT kFavourites[] = {
    WM_SETTEXT,    WM_GETTEXT,       WM_SETFOCUS,    WM_KILLFOCUS,   WM_PAINT,        WM_SIZE,
    WM_MOVE,       WM_SETFONT,       WM_KEYDOWN,     WM_KEYUP,       WM_CHAR,         WM_LBUTTONDOWN,
    WM_LBUTTONUP,  WM_LBUTTONDBLCLK, WM_MOUSEMOVE,   WM_CUT,         WM_COPY,         WM_PASTE,
    WM_CLEAR,      WM_UNDO,          WM_TIMER,       EM_SETSEL,      EM_REPLACESEL,   EM_SETMARGINS,
    EM_GETMARGINS, EM_SETRECT,       EM_SETRECTNP,   EM_SETREADONLY, EM_SETLIMITTEXT, EM_SETPASSWORDCHAR,
    EM_GETLINE,    EM_UNDO,          EM_SCROLLCARET, WM_SETREDRAW,   WM_ENABLE,       WM_CAPTURECHANGED,
    WM_CANCELMODE, WM_STYLECHANGED,  WM_NCCALCSIZE,  WM_GETDLGCODE,  WM_HSCROLL,      WM_VSCROLL};

UINT RegisteredMessage()
{
    static const UINT message = RegisterWindowMessageA("storm over windows");
    return message;
}

}  // namespace

UINT MessageOf(uint32_t number)
{
    Random random(number);
    const uint32_t range = random.Below(100);
    if (range < 45)
        return random.Below(kMessages);
    if (range < 70)
        return random.Of(kFavourites);
    if (range < 90)
        return EM_GETSEL + random.Below(0x30);
    if (range < 93)
        return kCueBanners + random.Below(0x10);
    if (range < 97)
        return kReflected + random.Below(kMessages);
    return range < 99 ? RegisteredMessage() : WM_APP + random.Below(0x100);
}

MessageShape ShapeOf(UINT message)
{
    for (const MessageRow& row : kRows)
        if (row.first <= message && message <= row.last)
            return {row.wParam, row.lParam};
    return {P::Number, P::Number};
}

bool OpensMenu(UINT message, WPARAM wParam)
{
    const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
    return message == WM_CONTEXTMENU || message == WM_RBUTTONUP || message == WM_NCRBUTTONUP ||
           (isKey && (wParam == VK_APPS || wParam == VK_F10));
}

WPARAM HostileNumber(Random& random)
{
    switch (random.Below(4)) {
    case 0: return random.Below(300);
    case 1: return random.Next();
    default: return static_cast<WPARAM>(random.Of(kEdges));
    }
}

}  // namespace storm
