// The typist's keys and clicks as messages.
#include "tests/support/live/typist.h"

namespace zttest {
namespace {

bool IsExtended(int key)
{
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
}

LPARAM KeyData(int key, bool release)
{
    if (key == 0)
        return 1;
    const LPARAM scan = static_cast<LPARAM>(MapVirtualKeyA(static_cast<UINT>(key), MAPVK_VK_TO_VSC) & 0xFF);
    LPARAM data = 1 | scan << 16 | (IsExtended(key) ? 1L << 24 : 0);
    if (release)
        data |= static_cast<LPARAM>(0xC0000000u);
    return data;
}

}  // namespace

void Typist::Hold(int key, bool down)
{
    BYTE state[256];
    GetKeyboardState(state);
    state[key & 0xFF] = down ? 0x80 : 0;
    SetKeyboardState(state);
}

void Typist::SendKeyDown(int key)
{
    SendMessageA(control_, WM_KEYDOWN, static_cast<WPARAM>(key), KeyData(key, false));
}

void Typist::SendKeyUp(int key)
{
    SendMessageA(control_, WM_KEYUP, static_cast<WPARAM>(key), KeyData(key, true));
}

void Typist::SendChar(char character, int key)
{
    SendMessageA(control_, WM_CHAR, static_cast<unsigned char>(character), KeyData(key, false));
}

POINT Typist::PointOf(int position) const
{
    const LRESULT packed = SendMessageA(control_, EM_POSFROMCHAR, static_cast<WPARAM>(position), 0);
    if (packed != -1)
        return {static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))};
    RECT client;  // behind the last character, which has no point of its own
    GetClientRect(control_, &client);
    return {client.right - 1, (client.top + client.bottom) / 2};
}

void Typist::Click(int position, int modifiers)
{
    const POINT point = PointOf(position);
    const LPARAM where = MAKELPARAM(point.x, point.y);
    const WPARAM keys = modifiers & kShift ? MK_SHIFT : 0;
    HoldModifiers(modifiers, true);
    SendMessageA(control_, WM_LBUTTONDOWN, MK_LBUTTON | keys, where);
    SendMessageA(control_, WM_LBUTTONUP, keys, where);
    HoldModifiers(modifiers, false);
}

void Typist::Drag(int from, int to)
{
    const POINT start = PointOf(from);
    const POINT end = PointOf(to);
    SendMessageA(control_, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(start.x, start.y));
    SendMessageA(control_, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(end.x, end.y));
    SendMessageA(control_, WM_LBUTTONUP, 0, MAKELPARAM(end.x, end.y));
}

}  // namespace zttest
