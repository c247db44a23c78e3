// The record behind every masked edit control: its fields and its flag bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "engine/host.h"
#include "engine/values/settings.h"

namespace zte {

struct CodeTable;
struct MaskTable;
namespace modern {
class Editor;
}

// Bits of EditInstance::flags.
enum : uint32_t {
    CHARWISE = 0x1,            // position-by-position editing
    AUTOSKIP = 0x2,            // the focus moves on when the last position is filled
    HAS_SPIN = 0x4,            // created with a spin
    ZERO_PADDED = 0x8,         // typedChar holds a padded digit or the rest of a month name
    SPIN_UP = 0x10,            // an upward step is in progress
    SPIN_DOWN = 0x20,          // a downward step is in progress
    SPIN_TRACKING = 0x40,      // the spin holds the mouse capture
    SPIN_UP_HELD = 0x80,       // SPIN_UP parked while the pointer is outside
    SPIN_DOWN_HELD = 0x100,    // SPIN_DOWN parked likewise
    CODE_PICKLIST = 0x400,     // keystrokes choose code-table entries
    CODE_SPIN = 0x800,         // data is shown through the code table
    CODE_POSITIONED = 0x1000,  // the code-table cursor stands on the entry shown
    BACKSPACE_DONE = 0x2000,   // the character of a Backspace already carried out is to be swallowed
    TYPING = 0x4000,           // not used: a selection and what takes its place are changed at once
    SPIN_BORDER = 0x8000,      // spin painting draws two border lines; nothing in the library sets it
    SPUN = 0x10000,            // the text shown was put there by the spin or the code table
    DOY_PENDING = 0x20000,     // not used: a day of the year waits for its year within one reading only
    AMPM = 0x40000,            // the mask has an AM/PM field
    PERCENT = 0x80000,         // the number mask contains '%'
};

// The window fields are plain pointers here: the engine hands them on and never looks behind them.
struct EditInstance {
    Char* mask;            // heap copy of the mask; "" means none
    uint32_t formatFlags;  // FORMAT_ bits of the last formatting shown
    int32_t displayLength;
    SharedHeap heap;
    uint32_t heapFlags;
    int32_t dataType;
    Char typedChar[10];          // text accepted by the last validator, to be placed
    Char typedFractionChar[10];  // not used: numbers are laid digit by digit
    void* hwnd;
    void* hwndParent;
    uint32_t controlId;
    int32_t decimalPlaces;
    uint32_t deletePending;  // 1 while a Backspace or Delete is left to the edit control underneath
    uint32_t maskJustSet;    // 1 from the first mask on
    void* hwndSpin;          // null: there is no spin
    void* spinFaceNormal;
    void* spinFacePressed;
    uint32_t flags;
    Char* spinRange;
    uint32_t spinIncrement;
    double spinMax;  // 0.0: none
    double spinMin;
    CodeTable* codeTable;
    uint32_t spinBkColor;
    int32_t firstFieldPos;
    int16_t yearDigits;      // 2 or 4
    uint32_t savedDatePart;  // not used, as DOY_PENDING
    int16_t ampmPos;
    int16_t monthPos;
    int16_t dayPos;
    int16_t minutePos;
    int16_t secondPos;
    int16_t hourPos;
    int16_t fractionPos;
    int16_t fractionLen;
    // Everything above is laid out for callers that look into the record; state of our own goes below.
    Field* field;
    const Settings* settings;
    Clock clock;
    const MaskTable* table;  // the mask compiled; stands in the mask's block
    int32_t carriedFrom;     // typing has just carried the caret over the literals from here ...
    int32_t carriedTo;       // ... to here; 0: it has not
    int32_t spelled;         // of the literals before a number, the characters that were typed directly before
    bool swallowBackspace;   // the character of a Backspace already carried out in a number is to come
    modern::Editor* editor;  // of a control in modern editing, which it belongs to; null: classic
};

static_assert(std::is_trivially_copyable_v<EditInstance>, "the record is allocated zeroed and freed as one block");

inline bool Has(const EditInstance& edit, uint32_t bits)
{
    return (edit.flags & bits) != 0;
}

inline void SetFlag(EditInstance& edit, uint32_t bits, bool on)
{
    edit.flags = on ? edit.flags | bits : edit.flags & ~bits;
}

inline bool IsNumeric(int32_t dataType)
{
    return dataType == DT_NUMBER || dataType == DT_DECIMAL;
}
inline bool IsDateOrTime(int32_t dataType)
{
    return dataType >= DT_DATE && dataType <= DT_DATETIME;
}

inline bool HasMask(const EditInstance& edit)
{
    return edit.mask && edit.mask[0] != Char{};
}

// The caret, or the start of the selection.
inline int32_t Caret(const EditInstance& edit)
{
    return edit.field->ReadSelection().start;
}
inline void PlaceCaret(const EditInstance& edit, int32_t position)
{
    edit.field->Select(position, position);
}

// What typing has just passed is typed no more: the caret was moved, or the text changed, otherwise.
inline void ForgetPassed(EditInstance& edit)
{
    edit.carriedTo = 0;
    edit.spelled = 0;
}

// Sets the text with the layout kept before and after it.
inline void ShowText(const EditInstance& edit, const Char* text)
{
    edit.field->KeepLayout();
    edit.field->SetText(text);
    edit.field->KeepLayout();
}

}  // namespace zte
