// A whole control under a script of bytes: printable characters are typed, the others are the rows of a table.
//
// A script begins with its settings, type and options, a byte each, then lines: the mask, the initial data, the range of the spin, its code
// table. "\x00" ends a line, too.
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/player.h"
#include "tests/fuzz/regional.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using zte::Text;

constexpr uint32_t kFarthest = 300;  // positions, also such as lie behind the text

int32_t TakeType(Bytes& bytes)
{
    return static_cast<int32_t>(bytes.TakeBelow(8));
}

int32_t TakePosition(Bytes& bytes)
{
    return static_cast<int32_t>(bytes.TakeBelow(kFarthest)) - 1;  // -1: the end
}

template <int32_t key>
void Press(PlayedControl& control, Bytes&)
{
    control.Press(key);
}

void Select(PlayedControl& control, Bytes& bytes)
{
    const int32_t anchor = TakePosition(bytes);
    control.Select(anchor, TakePosition(bytes));
}

void SelectAll(PlayedControl& control, Bytes&)
{
    control.Select(0, -1);
}

void Click(PlayedControl& control, Bytes& bytes)
{
    control.Click(TakePosition(bytes));
}

void Drag(PlayedControl& control, Bytes& bytes)
{
    const int32_t from = TakePosition(bytes);
    control.Drag(from, TakePosition(bytes));
}

void Paste(PlayedControl& control, Bytes& bytes)
{
    control.Paste(bytes.TakeLine());
}

void SetData(PlayedControl& control, Bytes& bytes)
{
    control.SetDataString(bytes.TakeLine());
}

void SetNoData(PlayedControl& control, Bytes&)
{
    control.SetNoData();
}

void SetMask(PlayedControl& control, Bytes& bytes)
{
    const int32_t type = TakeType(bytes);
    control.SetMask(bytes.TakeLine(), type);
}

void SetText(PlayedControl& control, Bytes& bytes)
{
    control.SetText(bytes.TakeLine());
}

void Replace(PlayedControl& control, Bytes& bytes)
{
    control.Replace(bytes.TakeLine());
}

void ChangeSettings(PlayedControl& control, Bytes& bytes)
{
    control.ChangeSettings(RegionalSettings(bytes.Take()));
}

void LoseFocus(PlayedControl& control, Bytes&)
{
    control.LoseFocus();
}

void Read(PlayedControl& control, Bytes&)
{
    control.Read();
}

void Step(PlayedControl& control, Bytes& bytes)
{
    control.Step(bytes.TakeBool());
}

void SetSpin(PlayedControl& control, Bytes& bytes)
{
    const uint32_t increment = bytes.Take();
    const uint32_t style = static_cast<uint32_t>(bytes.Take()) << 24;
    const Text range = bytes.TakeLine();
    control.SetSpin(increment, range, bytes.TakeLine(), style);
}

void MakeOrDestroySpin(PlayedControl& control, Bytes& bytes)
{
    if (bytes.TakeBool())
        control.CreateSpin();
    else
        control.DestroySpin();
}

void Hold(PlayedControl& control, Bytes& bytes)
{
    const uint8_t keys = bytes.Take();
    control.Hold(zte::KEY_SHIFT, (keys & 1) != 0);
    control.Hold(0, (keys & 2) != 0);
}

void TypeControlCharacter(PlayedControl& control, Bytes& bytes)
{
    const uint32_t character = bytes.TakeBelow(33);
    control.Type(character == 32 ? 127 : character);
}

void UseMenu(PlayedControl& control, Bytes& bytes)
{
    switch (bytes.TakeBelow(5)) {
    case 0: control.ClearByMenu(); break;
    case 1: control.CutByMenu(); break;
    case 2: control.UndoByMenu(); break;
    case 3: control.ShowAgain(); break;
    default: control.FormatAgain(); break;
    }
}

void SetInput(PlayedControl& control, Bytes& bytes)
{
    const uint8_t choice = bytes.Take();
    control.SetInput((choice & 1) != 0, (choice & 2) != 0);
    control.SetAutoskip((choice & 4) != 0);
}

void Unformat(PlayedControl& control, Bytes& bytes)
{
    control.Unformat(bytes.TakeLine());
}

void Limit(PlayedControl& control, Bytes& bytes)
{
    control.Limit(static_cast<int32_t>(bytes.Take()));
}

using Act = void (*)(PlayedControl&, Bytes&);

// The act of a control character; the order is that of the corpus, so that new acts take free places.
constexpr Act kActs[0x20] = {
    /* 00 */ LoseFocus,
    /* 01 */ Press<zte::KEY_LEFT>,
    /* 02 */ Press<zte::KEY_RIGHT>,
    /* 03 */ Press<zte::KEY_HOME>,
    /* 04 */ Press<zte::KEY_END>,
    /* 05 */ Press<zte::KEY_UP>,
    /* 06 */ Press<zte::KEY_DOWN>,
    /* 07 */ Press<zte::KEY_DELETE>,
    /* 08 */ Press<zte::KEY_BACKSPACE>,
    /* 09 */ Select,
    /* 0A */ Read,
    /* 0B */ SelectAll,
    /* 0C */ Click,
    /* 0D */ Drag,
    /* 0E */ Paste,
    /* 0F */ SetData,
    /* 10 */ SetNoData,
    /* 11 */ SetMask,
    /* 12 */ SetText,
    /* 13 */ Replace,
    /* 14 */ ChangeSettings,
    /* 15 */ Step,
    /* 16 */ SetSpin,
    /* 17 */ MakeOrDestroySpin,
    /* 18 */ Hold,
    /* 19 */ TypeControlCharacter,
    /* 1A */ UseMenu,
    /* 1B */ SetInput,
    /* 1C */ Unformat,
    /* 1D */ Limit,
    /* 1E */ Press<zte::KEY_INSERT>,
    /* 1F */ Press<zte::KEY_TAB>,
};

void PlayNext(PlayedControl& control, Bytes& bytes)
{
    const uint8_t next = bytes.Take();
    if (next < 0x20)
        kActs[next](control, bytes);
    else
        control.Type(next);
}

const zte::Char* OrNull(const Text& text)
{
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

void PlayControl(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const zte::Settings& settings = RegionalSettings(bytes.Take());
    zte::ControlSetup setup;
    setup.dataType = TakeType(bytes);
    const uint8_t options = bytes.Take();
    setup.options = options & 0xFu;
    setup.spinIncrement = options >> 4;
    const Text mask = bytes.TakeLine();
    const Text initial = bytes.TakeLine();
    const Text range = bytes.TakeLine();
    const Text codes = bytes.TakeLine();
    setup.mask = mask.c_str();
    setup.data = OrNull(initial);
    setup.spinRange = OrNull(range);
    setup.codeTable = OrNull(codes);

    PlayedControl control(setup, settings);
    while (!bytes.IsEmpty())
        PlayNext(control, bytes);
    control.Read();
}

}  // namespace zttest
