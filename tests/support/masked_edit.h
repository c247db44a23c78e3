// A masked edit under test, with the program around it: a host that hears it beep and notify, a user at keyboard and
// mouse. Two implementations of the same class, one chosen when a test program is linked: live/ makes windows of the
// library, native/ runs the engine over a field in memory.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/config.h"
#include "tests/support/keyboard.h"
#include "tests/support/values.h"

namespace zttest {

// What formatting a value gives.
struct FormattedValue {
    std::string text;
    uint32_t flags;  // FORMAT_ bits
    int32_t firstFieldPos;
};

// What the host is told, in the order of arrival.
enum class Notice {
    Changed,  // the text has changed, or the spin has made a step, refused or not
    Full,     // the last position was filled: the focus may move on
};
std::ostream& operator<<(std::ostream& out, Notice notice);

// A copy of the record behind the control.
struct RecordView {
    std::string mask;
    uint32_t formatFlags;
    int32_t displayLength;
    int32_t decimalPlaces;
    uint32_t maskJustSet;
    int32_t firstFieldPos;
    int yearDigits;

    // Positions of the fields.
    int month;
    int day;
    int hour;
    int minute;
    int second;
    int fraction;
    int fractionLength;
    int marker;

    // Bits of the flags.
    bool charwise;
    bool percent;
    bool hasMarker;
    bool codeDisplay;
    bool pickList;
    bool codePositioned;
    bool spun;
    bool stepping;

    std::optional<std::string> spinRange;
    uint32_t spinIncrement;
    double spinMinimum;
    double spinMaximum;
};

// A copy of the code table.
struct CodeView {
    std::string display;
    std::optional<std::string> value;
};
struct CodeTableView {
    int32_t capacity;
    std::vector<CodeView> entries;
};

class MaskedEdit {
public:
    explicit MaskedEdit(const Config& config);
    MaskedEdit(const MaskedEdit&) = delete;
    MaskedEdit& operator=(const MaskedEdit&) = delete;

    // Reports a failure when editing has left blocks of the control's heap behind, or the record does not go back to
    // it.
    ~MaskedEdit();

    // The functions of the library, under their own names. data points to a value of the control's type, or is null.
    int32_t SetMask(const char* mask, int32_t type);
    void SetData(const void* data);
    void SetDataString(const std::string& text);
    FormattedValue Format(const void* data) const;
    int32_t DataType() const;
    std::string Mask() const;  // the one in force
    void SetAutoskip(uint32_t on);
    void SetSpin(uint32_t increment, const char* range, const char* codes, uint32_t style);
    void CreateSpin();
    void DestroySpin();
    bool ReadRangeEnd(DateTimeValue* value, const char* text) const;  // true: text is an end of a range
    bool IsOutOfOrder(const void* first, const void* second) const;

    // The value read back, or read from a text: strings and numbers as they are, dates and times as canonical text,
    // which is empty for the empty value; kNullResult for a null pointer.
    std::string Read() const;
    std::string Unformat(const char* text) const;

    // ZTS_ value, and the value as canonical text (kNullResult for none), also of classic controls.
    int32_t State() const;
    std::string DataString() const;
    int32_t TrySetDataString(const std::string& text);

    // The record read back from a date or time, none for a null pointer.
    std::optional<DateTimeValue> ReadDateTime() const;

    // The edit control itself, as a program around it uses it.
    std::string Text() const;
    void SetText(const std::string& text);
    int CaretStart() const;
    int CaretEnd() const;
    void Select(int start, int end);
    std::string Shown() const;  // the text with the caret or the selection drawn in, see marked_text.h
    bool IsModified() const;
    void ForgetModified();
    bool CanUndo() const;
    void Undo();
    void Paste();
    void Replace(const std::string& text);  // in the place of the selection, by the program
    void LoseFocus();
    void SetReadOnly();
    void Disable();

    // The user. A click in front of the character at a position; a selection made by dragging.
    Keyboard& Keys();
    void Click(int position);
    void Drag(int from, int to);
    bool ShiftIsDown() const;

    // The host. What it hears is counted from here on after Forget.
    int Beeps() const;
    const std::vector<Notice>& Notices() const;
    int Count(Notice notice) const;
    void Forget();
    void OnNotice(std::function<void()> listener);  // called for each after it has been recorded

    RecordView Record() const;
    std::optional<CodeTableView> CodeTable() const;

    // Live blocks of the control's heap. AcceptBlocks takes those as what the control owns, after a call that is meant
    // to change them (SetSpin).
    uint32_t Blocks() const;
    void AcceptBlocks();

private:
    struct Implementation;
    std::unique_ptr<Implementation> it_;
};

// What fields are told while it lives, in order: "redraw off", "redraw on", and "text" where text is put into the place
// of another one. One at a time.
class FieldRecorder {
public:
    FieldRecorder();
    FieldRecorder(const FieldRecorder&) = delete;
    FieldRecorder& operator=(const FieldRecorder&) = delete;
    ~FieldRecorder();

    std::vector<std::string> Told() const;
    std::vector<std::string> Redraws() const;  // without "text"
    void Forget();

private:
    struct Implementation;
    std::unique_ptr<Implementation> it_;
};

// What ZTE_CheckMask tells under the settings of the moment.
struct MaskFault {
    int32_t reason;  // ZTM_ value
    int32_t position;
};
MaskFault FaultOf(const std::string& mask, int32_t type);

// The current local date and time, as the library sees them.
DateTimeValue Now();

}  // namespace zttest
