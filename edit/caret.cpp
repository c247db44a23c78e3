// Moving the caret over literals: counting the way, and going it.
#include "edit/caret.h"

#include "core/base_edit.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

constexpr int kPressed = 0x8000;

bool IsPressed(int key)
{
    return (GetKeyState(key) & kPressed) != 0;
}

bool MayTypeAt(const EditInstance& edit, const std::string& text, int32_t position)
{
    return IsAmPmPosition(edit, position) || IsEditable(edit, text, position);
}

// So that the base sees Shift held and selects the character that it passes.
void HoldShift()
{
    BYTE keys[256];
    if (!GetKeyboardState(keys))
        return;
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys);
}

// Right at the end of the text: the focus may move on; the caret goes to the very end for a key, not after typing.
void MoveAtEnd(EditInstance& edit, const std::string& text, int32_t position, int32_t steps, LPARAM keyData)
{
    bool move = IsInFraction(edit, text, position);
    if (!move) {
        if (Has(edit, AUTOSKIP) && !(IsPressed(VK_SHIFT) && IsPressed(VK_RIGHT)))
            NotifyAutoskip(edit);
        move = position == static_cast<int32_t>(text.size()) && keyData != 0;
    }
    if (move)
        SendKeyToBase(edit, VK_RIGHT, keyData, steps);
}

}  // namespace

int32_t StepsToEditable(const EditInstance& edit, const std::string& text, int32_t position, Direction direction)
{
    const int32_t step = direction == Direction::Forward ? 1 : -1;
    for (int32_t steps = 1;; ++steps) {
        position += step;
        if (position < 0 || (step > 0 && position > edit.displayLength - 1))
            return 0;
        if (MaskCharAt(edit, text, position).IsNone() || MayTypeAt(edit, text, position))
            return steps;
    }
}

void MoveCaret(EditInstance& edit, WPARAM key, LPARAM keyData)
{
    const int32_t step = key == VK_LEFT ? -1 : 1;
    const bool shift = IsPressed(VK_SHIFT);
    const std::string text = ReadText(edit);
    int32_t position = Caret(edit);
    for (int32_t steps = 1;; ++steps) {
        position += step;
        if (key == VK_RIGHT && position >= static_cast<int32_t>(text.size()))
            return MoveAtEnd(edit, text, position, steps, keyData);
        if (key == VK_LEFT && position < 0)
            return SendKeyToBase(edit, VK_LEFT, keyData, steps);
        if (shift)  // one Left, whatever key was asked for: kept, Backspace counts on it
            return SendKeyToBase(edit, VK_LEFT, keyData, steps);
        if (key == VK_BACK) {
            HoldShift();
            return SendKeyToBase(edit, VK_LEFT, keyData, steps);
        }
        if (MayTypeAt(edit, text, position))
            return SendKeyToBase(edit, key, keyData, steps);
        if (MaskCharAt(edit, text, position).IsNone())
            return;
    }
}

LiteralRun LiteralsAt(const EditInstance& edit, const std::string& text, int32_t position)
{
    for (int32_t length = 0;; ++length) {
        const int32_t at = position + length;
        if (IsInFraction(edit, text, at))
            return {true, length};
        if (at > edit.displayLength - 1)
            return {false, length};
        if (MayTypeAt(edit, text, at))
            return {true, length};
        if (MaskCharAt(edit, text, at).IsNone())
            return {false, length};
    }
}

bool SkipLiterals(EditInstance& edit, const std::string& text, int32_t position)
{
    const LiteralRun literals = LiteralsAt(edit, text, position);
    if (!literals.found || literals.length == 0)
        return literals.found;
    edit.carriedFrom = position;
    edit.carriedTo = position + literals.length;
    PlaceCaret(edit, edit.carriedTo);
    return true;
}

CarriedOver TakeCarriedOver(EditInstance& edit)
{
    const CarriedOver carried = {edit.carriedFrom, edit.carriedTo};
    edit.carriedTo = 0;
    return carried;
}

bool IsCarriedLiteral(EditInstance& edit, const std::string& text, CarriedOver carried, int32_t caret, char typed)
{
    if (carried.to == 0 || carried.to != caret || caret > static_cast<int32_t>(text.size()))
        return false;
    for (int32_t i = carried.from; i < carried.to; ++i) {
        if (text[static_cast<size_t>(i)] != typed)
            continue;
        edit.carriedFrom = i + 1;
        edit.carriedTo = i + 1 < carried.to ? carried.to : 0;
        return true;
    }
    return false;
}

}  // namespace zte
