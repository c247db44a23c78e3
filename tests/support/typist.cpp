// The typist's keys and clicks, by the layout of an American keyboard.
#include "tests/support/typist.h"

#include <gtest/gtest.h>

#include <cstring>

namespace zttest {
namespace {

struct KeyStroke {
    int key;  // 0 when no key of the keyboard makes the character
    int modifiers;
};

struct SignKey {
    char sign;
    int key;
    int modifiers;
};

constexpr SignKey kSignKeys[] = {
    {' ',    VK_SPACE,      kPlain},
    {'.',    VK_OEM_PERIOD, kPlain},
    {',',    VK_OEM_COMMA,  kPlain},
    {'-',    VK_OEM_MINUS,  kPlain},
    {'_',    VK_OEM_MINUS,  kShift},
    {'+',    VK_OEM_PLUS,   kShift},
    {'=',    VK_OEM_PLUS,   kPlain},
    {'/',    VK_OEM_2,      kPlain},
    {'?',    VK_OEM_2,      kShift},
    {':',    VK_OEM_1,      kShift},
    {';',    VK_OEM_1,      kPlain},
    {'\'',   VK_OEM_7,      kPlain},
    {'"',    VK_OEM_7,      kShift},
    {'!',    '1',           kShift},
    {'@',    '2',           kShift},
    {'#',    '3',           kShift},
    {'$',    '4',           kShift},
    {'%',    '5',           kShift},
    {'^',    '6',           kShift},
    {'&',    '7',           kShift},
    {'*',    '8',           kShift},
    {'(',    '9',           kShift},
    {')',    '0',           kShift},
    {'~',    VK_OEM_3,      kShift},
    {'`',    VK_OEM_3,      kPlain},
    {'\\',   VK_OEM_5,      kPlain},
    {'|',    VK_OEM_5,      kShift},
    {'[',    VK_OEM_4,      kPlain},
    {']',    VK_OEM_6,      kPlain},
    {'{',    VK_OEM_4,      kShift},
    {'}',    VK_OEM_6,      kShift},
    {'<',    VK_OEM_COMMA,  kShift},
    {'>',    VK_OEM_PERIOD, kShift},
    {'\b',   VK_BACK,       kPlain},
    {'\t',   VK_TAB,        kPlain},
    {'\r',   VK_RETURN,     kPlain},
    {'\x1b', VK_ESCAPE,     kPlain},
};

struct NamedKey {
    const char* name;
    int key;
};

constexpr NamedKey kNamedKeys[] = {
    {"Left",  VK_LEFT  },
    {"Right", VK_RIGHT },
    {"Up",    VK_UP    },
    {"Down",  VK_DOWN  },
    {"Home",  VK_HOME  },
    {"End",   VK_END   },
    {"Del",   VK_DELETE},
    {"Back",  VK_BACK  },
    {"Ins",   VK_INSERT},
    {"Tab",   VK_TAB   },
    {"Esc",   VK_ESCAPE},
    {"Enter", VK_RETURN},
    {"PgUp",  VK_PRIOR },
    {"PgDn",  VK_NEXT  },
    {"V",     'V'      },
    {"C",     'C'      },
    {"X",     'X'      },
    {"Z",     'Z'      },
};

bool TakePrefix(std::string& text, const std::string& prefix)
{
    if (text.compare(0, prefix.size(), prefix) != 0)
        return false;
    text.erase(0, prefix.size());
    return true;
}

// What a name in braces stands for, such as "Shift+Left".
KeyStroke StrokeOfName(std::string name)
{
    int modifiers = kPlain;
    if (TakePrefix(name, "Ctrl+"))
        modifiers |= kCtrl;
    if (TakePrefix(name, "Shift+"))
        modifiers |= kShift;
    for (const NamedKey& named : kNamedKeys)
        if (name == named.name)
            return {named.key, modifiers};
    ADD_FAILURE() << "no key has the name " << name;
    return {0, kPlain};
}

KeyStroke StrokeOf(char character)
{
    if (character >= '0' && character <= '9')
        return {character, kPlain};
    if (character >= 'a' && character <= 'z')
        return {character - 'a' + 'A', kPlain};
    if (character >= 'A' && character <= 'Z')
        return {character, kShift};
    for (const SignKey& sign : kSignKeys)
        if (sign.sign == character)
            return {sign.key, sign.modifiers};
    if (character > 0 && character < 27)
        return {character + 'A' - 1, kCtrl};
    return {0, kPlain};
}

// The character that a key makes, or -1.
int CharacterOf(int key, int modifiers)
{
    const bool letter = key >= 'A' && key <= 'Z';
    if (modifiers & kCtrl) {
        if (letter)
            return key - 'A' + 1;
        if (key == VK_BACK)
            return 127;
        return key == VK_RETURN ? '\n' : -1;
    }
    if (letter)
        return modifiers & kShift ? key : key - 'A' + 'a';
    if (key >= '0' && key <= '9' && !(modifiers & kShift))
        return key;
    if (key == VK_BACK)
        return '\b';
    for (const SignKey& sign : kSignKeys)
        if (sign.key == key && sign.modifiers == modifiers)
            return sign.sign;
    return -1;
}

bool IsExtended(int key)
{
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
}

LPARAM KeyData(int key, bool release)
{
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

void Typist::HoldModifiers(int modifiers, bool down)
{
    if (modifiers & kShift)
        Hold(VK_SHIFT, down);
    if (modifiers & kCtrl)
        Hold(VK_CONTROL, down);
}

void Typist::KeyDown(int key, int modifiers)
{
    HoldModifiers(modifiers, true);
    Hold(key, true);
    SendMessageA(control_, WM_KEYDOWN, static_cast<WPARAM>(key), KeyData(key, false));
    const int character = CharacterOf(key, modifiers);
    if (character >= 0)
        SendMessageA(control_, WM_CHAR, static_cast<WPARAM>(character), KeyData(key, false));
}

void Typist::KeyUp(int key, int modifiers)
{
    Hold(key, false);
    SendMessageA(control_, WM_KEYUP, static_cast<WPARAM>(key), KeyData(key, true));
    HoldModifiers(modifiers, false);
}

void Typist::Press(int key, int modifiers)
{
    KeyDown(key, modifiers);
    KeyUp(key, modifiers);
}

void Typist::KeyDownOf(char character)
{
    const KeyStroke stroke = StrokeOf(character);
    if (stroke.key != 0)
        KeyDown(stroke.key, stroke.modifiers);
    else
        SendMessageA(control_, WM_CHAR, static_cast<unsigned char>(character), 1);
}

void Typist::KeyUpOf(char character)
{
    const KeyStroke stroke = StrokeOf(character);
    if (stroke.key != 0)
        KeyUp(stroke.key, stroke.modifiers);
}

void Typist::Type(const std::string& text)
{
    for (const char character : text) {
        KeyDownOf(character);
        KeyUpOf(character);
    }
}

void Typist::Play(const std::string& keys)
{
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] != '{') {
            Type(std::string(1, keys[i]));
            continue;
        }
        const size_t close = keys.find('}', i);
        const KeyStroke stroke = StrokeOfName(keys.substr(i + 1, close - i - 1));
        Press(stroke.key, stroke.modifiers);
        i = close;
    }
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
