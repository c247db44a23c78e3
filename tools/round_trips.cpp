// Types a known number of keys into hidden fields, with marks around each burst that show in Wine's trace of its window
// server: what lies between two marks are the requests that the keys cost. Driven by count_round_trips.sh.
#include <windows.h>

#include <cstdio>
#include <string>

#include "ztedit.h"

namespace {

constexpr int kRounds = 20;

struct Case {
    const char* name;
    const char* windowClass;
    const char* mask;
    int32_t dataType;
    const char* keys;  // typed from the start of the text, as often as kRounds
};

constexpr Case kCases[] = {
    {"plain",  "edit",       "",               DT_STRING, "070495"    },
    {"date",   ZTEDIT_CLASS, "MM/DD/YY",       DT_DATE,   "070495"    },
    {"string", ZTEDIT_CLASS, "(###) ###-####", DT_STRING, "5551234567"},
    {"number", ZTEDIT_CLASS, "#,#.00",         DT_NUMBER, "123.45"    },
};

// A mark in the trace: opening a mutex that does not exist is one request, with the name readable in it.
void Mark(const std::string& what)
{
    OpenMutexA(SYNCHRONIZE, FALSE, ("round-trips " + what).c_str());
}

// What a keyboard sends for one character that needs no Shift.
void TypeKey(HWND control, char character)
{
    const int key = VkKeyScanA(character) & 0xFF;
    const auto scan = static_cast<LPARAM>(MapVirtualKeyA(static_cast<UINT>(key), MAPVK_VK_TO_VSC) << 16 | 1);
    SendMessageA(control, WM_KEYDOWN, static_cast<WPARAM>(key), scan);
    SendMessageA(control, WM_CHAR, static_cast<WPARAM>(character), scan);
    SendMessageA(control, WM_KEYUP, static_cast<WPARAM>(key), scan | static_cast<LPARAM>(0xC0000000));
}

HWND CreateField(const Case& field, HWND parent, SharedHeap heap)
{
    EditInitParams params{};
    params.heap = heap;
    params.maskText = field.mask;
    params.dataType = field.dataType;
    return CreateWindowExA(0, field.windowClass, "", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 200, 24, parent, nullptr, nullptr,
                           &params);
}

// The first round is not counted: it loads what is loaded on first use.
void TypeInto(const Case& field, HWND parent, SharedHeap heap)
{
    const HWND control = CreateField(field, parent, heap);
    const std::string keys = field.keys;
    for (int round = 0; round <= kRounds; ++round) {
        SetWindowTextA(control, "");       // empties the plain edit
        ZTE_FmtSetData(control, nullptr);  // and this the others
        SendMessageA(control, EM_SETSEL, 0, 0);
        if (round > 0)
            Mark("begin " + std::string(field.name) + ' ' + std::to_string(keys.size()));
        for (const char key : keys)
            TypeKey(control, key);
        Mark("end");
    }
    char shown[64] = "";
    GetWindowTextA(control, shown, sizeof shown);
    std::printf("%s %s\n", field.name, shown);
    DestroyWindow(control);
}

}  // namespace

int main()
{
    const HWND parent =
        CreateWindowExA(0, "static", "", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300, nullptr, nullptr, nullptr, nullptr);
    const SharedHeap heap = SharedHeapCreate();
    for (const Case& field : kCases)
        TypeInto(field, parent, heap);
    DestroyWindow(parent);
    SharedHeapDestroy(heap);
    return 0;
}
