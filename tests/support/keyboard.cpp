// The keys and characters of an American keyboard.
#include "tests/support/keyboard.h"

#include <gtest/gtest.h>

namespace zttest {
namespace {

// Keys, by the numbers under which keyboards report them; digits and letters by their capitals.
enum Key : int {
    kBack = 0x08,
    kTab = 0x09,
    kEnter = 0x0D,
    kShiftKey = 0x10,
    kControlKey = 0x11,
    kEscape = 0x1B,
    kSpace = 0x20,
    kPageUp = 0x21,
    kPageDown = 0x22,
    kEnd = 0x23,
    kHome = 0x24,
    kLeft = 0x25,
    kUp = 0x26,
    kRight = 0x27,
    kDown = 0x28,
    kInsert = 0x2D,
    kDelete = 0x2E,
    kKeypadPoint = 0x6E,
    kF4 = 0x73,
    kF10 = 0x79,
    kSemicolon = 0xBA,
    kEqual = 0xBB,
    kComma = 0xBC,
    kMinus = 0xBD,
    kPeriod = 0xBE,
    kSlash = 0xBF,
    kBackquote = 0xC0,
    kLeftBracket = 0xDB,
    kBackslash = 0xDC,
    kRightBracket = 0xDD,
    kQuote = 0xDE,
};

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
    {' ',    kSpace,        kPlain},
    {'.',    kPeriod,       kPlain},
    {'.',    kKeypadPoint,  kPlain},
    {',',    kComma,        kPlain},
    {'-',    kMinus,        kPlain},
    {'_',    kMinus,        kShift},
    {'+',    kEqual,        kShift},
    {'=',    kEqual,        kPlain},
    {'/',    kSlash,        kPlain},
    {'?',    kSlash,        kShift},
    {':',    kSemicolon,    kShift},
    {';',    kSemicolon,    kPlain},
    {'\'',   kQuote,        kPlain},
    {'"',    kQuote,        kShift},
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
    {'~',    kBackquote,    kShift},
    {'`',    kBackquote,    kPlain},
    {'\\',   kBackslash,    kPlain},
    {'|',    kBackslash,    kShift},
    {'[',    kLeftBracket,  kPlain},
    {']',    kRightBracket, kPlain},
    {'{',    kLeftBracket,  kShift},
    {'}',    kRightBracket, kShift},
    {'<',    kComma,        kShift},
    {'>',    kPeriod,       kShift},
    {'\b',   kBack,         kPlain},
    {'\t',   kTab,          kPlain},
    {'\r',   kEnter,        kPlain},
    {'\x1b', kEscape,       kPlain},
};

struct NamedKey {
    const char* name;
    int key;
};

constexpr NamedKey kNamedKeys[] = {
    {"Left",  kLeft       },
    {"Right", kRight      },
    {"Up",    kUp         },
    {"Down",  kDown       },
    {"Home",  kHome       },
    {"End",   kEnd        },
    {"Del",   kDelete     },
    {"Back",  kBack       },
    {"Ins",   kInsert     },
    {"Tab",   kTab        },
    {"Esc",   kEscape     },
    {"Enter", kEnter      },
    {"PgUp",  kPageUp     },
    {"PgDn",  kPageDown   },
    {"F4",    kF4         },
    {"F10",   kF10        },
    {"Num.",  kKeypadPoint},
    {"A",     'A'         },
    {"V",     'V'         },
    {"C",     'C'         },
    {"X",     'X'         },
    {"Y",     'Y'         },
    {"Z",     'Z'         },
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
        if (key == kBack)
            return 127;
        return key == kEnter ? '\n' : -1;
    }
    if (letter)
        return modifiers & kShift ? key : key - 'A' + 'a';
    if (key >= '0' && key <= '9' && !(modifiers & kShift))
        return key;
    if (key == kBack)
        return '\b';
    for (const SignKey& sign : kSignKeys)
        if (sign.key == key && sign.modifiers == modifiers)
            return sign.sign;
    return -1;
}

}  // namespace

void Keyboard::HoldModifiers(int modifiers, bool down)
{
    if (modifiers & kShift)
        Hold(kShiftKey, down);
    if (modifiers & kCtrl)
        Hold(kControlKey, down);
}

void Keyboard::KeyDown(int key, int modifiers)
{
    HoldModifiers(modifiers, true);
    Hold(key, true);
    SendKeyDown(key);
    const int character = CharacterOf(key, modifiers);
    if (character >= 0)
        SendChar(static_cast<char>(character), key);
}

void Keyboard::KeyDownAlone(int key)
{
    Hold(key, true);
    SendKeyDown(key);
    Hold(key, false);
}

void Keyboard::KeyUp(int key, int modifiers)
{
    Hold(key, false);
    SendKeyUp(key);
    HoldModifiers(modifiers, false);
}

void Keyboard::Press(int key, int modifiers)
{
    KeyDown(key, modifiers);
    KeyUp(key, modifiers);
}

void Keyboard::KeyDownOf(char character)
{
    const KeyStroke stroke = StrokeOf(character);
    if (stroke.key != 0)
        KeyDown(stroke.key, stroke.modifiers);
    else
        SendChar(character, 0);
}

void Keyboard::KeyUpOf(char character)
{
    const KeyStroke stroke = StrokeOf(character);
    if (stroke.key != 0)
        KeyUp(stroke.key, stroke.modifiers);
}

void Keyboard::Type(const std::string& text)
{
    for (const char character : text) {
        KeyDownOf(character);
        KeyUpOf(character);
    }
}

void Keyboard::Play(const std::string& keys)
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

}  // namespace zttest
