// The model of a masked edit control: a text, a caret and the record behind them, without any window.
// Written apart from the library, so that a difference between the two shows a mistake in one of them.
#ifndef TESTS_MODEL_MODEL_CONTROL_H
#define TESTS_MODEL_MODEL_CONTROL_H

#include "model_edit.h"
#include "model_number.h"

#include <optional>
#include <string>
#include <vector>

namespace model {

enum Type {
    kString = 1,
    kNumber,
    kDate,
    kTime,
    kDateTime,
    kDecimal,
};

struct Regional {
    char decimal = '.';
    char thousand = ',';
    std::string currency = "$";
    int currencyPosition = 0;
    int currencyDigits = 2;
    std::string am = "AM";
    std::string pm = "PM";
    std::string shortDate = "m/d/yy";
    std::string timeSeparator = ":";

    char Point() const { return decimal == '\0' ? '.' : decimal; }
};

constexpr int kNoDate = -32767;
constexpr int kNoTime = -1;

struct Stamp {
    int microsecond = 0;
    int year = kNoDate;  // since 1900
    int month = 0;       // 0..11
    int day = 0;
    int hour = kNoTime;
    int minute = 0;
    int second = 0;

    bool HasDate() const { return year != kNoDate; }
    bool HasTime() const { return hour != kNoTime; }
    bool operator==(const Stamp& other) const;
};

struct Value {
    bool none = true;
    std::string text;
    Number number;
    Stamp stamp;

    static Value None() { return {}; }
    static Value OfText(const std::string& text);
    static Value OfNumber(const Number& number);
    static Value OfStamp(const Stamp& stamp);
};

struct Shown {
    std::string text;
    unsigned flags = 0;
    int first = 0;
};

struct CodeEntry {
    std::string display;
    std::string value;
};

// Status and mask of a regional picture.
struct Picture {
    int status = 0;
    std::string mask;
};

Picture PictureToMask(const Regional& regional, int size, int kind);
std::string CurrencyMask(const Regional& regional, int totalDigits);
bool ParseCanonical(Stamp& stamp, const std::string& text, Type type, const Regional& regional);
int DaysOfMonth(int calendarYear, int month);
Stamp Today();  // the moment that stands for now
std::vector<CodeEntry> CycleOfCodeTable(const std::string& text);

class Control {
public:
    explicit Control(const Regional& regional) : regional_(&regional) {}

    // What a program does to the control.
    int SetMask(const char* mask, Type type);
    void SetData(const Value& value);
    void SetDataString(const std::string& text);
    Shown Format(const Value& value);
    Value GetData();
    Value Unformat(const std::string& text);
    void SetAutoskip(bool on) { autoskip_ = on; }
    void SetReadOnly(bool on) { readOnly_ = on; }
    void Enable(bool on) { enabled_ = on; }
    void SetCodeDisplay(bool codes, bool pick);
    void SetSelection(int start, int end);
    void SetSpin(unsigned increment, const char* range, const char* codeTable, bool pick, bool codes, Type type);
    bool SpinDateRange(Stamp& stamp, const std::string& text);
    bool OutOfOrder(const Stamp& first, const Stamp& second) const;

    // What a user does to it.
    void KeyDown(int key, bool shift);
    void KeyUp()
    {
        deletePending_ = false;
        if (backspaceKey_ == BackspaceKey::Waits)
            backspaceKey_ = BackspaceKey::None;
    }
    void Char(char c, bool shift = false);
    void Paste(const std::string& clipboard);
    void Click(int position);

    const std::string& Text() const { return edit_.Text(); }
    int Start() const { return edit_.Start(); }
    int End() const { return edit_.End(); }
    int Autoskips() const { return autoskips_; }
    int Changes() const { return changes_; }
    int Beeps() const { return beeps_; }
    bool Modified() const { return modified_; }
    const std::string& Mask() const { return mask_; }
    bool Charwise() const { return charwise_; }
    int FirstField() const { return firstField_; }

    static bool InTable(char c, Type type);

private:
    struct MaskChar {
        char c = '\0';
        int index = -1;  // offset in the mask, -1 for a character that stands apart from it
    };
    struct Fields {
        bool accepted = false;
        bool ampm = false;
        int ampmPos = -1;
        int yearDigits = 0;
    };
    enum class Verdict {
        Refused,
        Accepted,
    };
    // What the key-down of a Backspace in a number leaves to its character.
    enum class BackspaceKey {
        None,
        Waits,  // the character is to do it
        Done,   // the character is to be swallowed
    };

    bool Refuses() const { return readOnly_ || !enabled_; }
    bool IsPlain() const { return mask_.empty() && !codeSpin_; }
    bool ThroughCodes() const { return hasTable_ && codeSpin_; }
    bool IsNumeric() const { return type_ == kNumber || type_ == kDecimal; }
    bool IsTemporal() const { return type_ == kDate || type_ == kTime || type_ == kDateTime; }
    char Point() const { return regional_->Point(); }
    Separators Signs() const { return {Point(), regional_->thousand}; }

    // mask
    bool SymbolAt(const std::string& mask, size_t index) const;
    std::string EscapedSymbol() const;
    model::Format CompiledMask() const;
    const model::Format& NumberFormat() const { return format_; }
    static bool MinuteAt(const std::string& mask, size_t index, Type type);
    MaskChar CharAt(const std::string& text, int position) const;
    static MaskChar PositionalCharAt(const std::string& mask, int position);
    int RunAfter(int position) const;
    int RunBefore(int position) const;
    bool OnAmPm(int position) const;
    bool InsideAmPm(int position) const;
    bool HasFieldBehindAmPm() const;
    int TextOffset(size_t index) const;
    int ShownLength() const { return displayLength_ - (ampm_ ? 5 - AmPmWidth() : 0); }
    void PlaceMarker(const std::string& marker);
    std::string MarkerFor(char c) const;
    int AmPmWidth() const;
    int MarkerWidth() const;
    bool Editable(const std::string& text, int position) const;
    bool CheckMask(const std::string& mask, Type type);
    bool CheckNumberMask(const std::string& mask) const;
    bool CheckFields(const std::string& mask, Type type);
    std::string FormatTextOf(const std::string& mask, Type type, bool literals, int& first) const;
    void ChooseEditMode();

    // values
    void FormatNumber(const Number& number, Shown& shown) const;
    void FormatFields(const Value& value, Shown& shown) const;
    int WalkDate(Stamp& stamp, const std::string& text, const std::string& markerText);
    int ParseField(Stamp& stamp, const std::string& text, int position, const MaskChar& at, bool& year,
                   const std::string& markerText);
    bool DisplayToStamp(Stamp& stamp, const std::string& text);
    bool ShowsMarker(const std::string& text) const;
    Stamp ReadStamp(bool internal);
    std::string ReadFields(const std::string& text) const;
    ShownNumber Shows(const std::string& text) const { return ReadShown(NumberFormat(), text, Signs()); }
    std::string ReadNumber() const;
    std::string NumberIn(std::string text) const;
    Number NumberOf(const std::string& text) const;
    std::string WithoutLiterals(std::string text) const;
    int CalendarYear(int year) const;
    int DaysInMonth(int year, int month) const;
    int YearFromText() const;
    int MonthFromText() const;
    bool ZeroDate(const Stamp& stamp) const;
    void DateFromDayOfYear(Stamp& stamp, int day) const;
    bool InFraction(int position) const;

    // typing
    Verdict Validate(char c, int position);
    Verdict ValidateYear(char c, int position);
    Verdict ValidateMonth(char c, int position);
    Verdict ValidateMonthName(char c, int position);
    Verdict ValidateDay(char c, int position);
    Verdict ValidateJulian(char c, int position);
    Verdict ValidateHour(char c, int position);
    Verdict ValidateMinute(char c, int position);
    void TakeChar(char c);
    void EnterChar(char c);
    void TakeControlChar(char c);
    void EnterNumericChar(char c, bool replaces);
    void EnterDigit(char c, ShownNumber shown, bool replaces);
    void EnterIntegerDigit(char c, Digits digits, int right, int position);
    void EnterFractionDigit(char c, Digits digits, int place, bool inserts);
    void OverwriteInteger(char c, Digits digits, int right);
    void EnterPoint(const ShownNumber& shown);
    void EnterSign(char c, const ShownNumber& shown);
    bool BelongsToSymbol(char c, const ShownNumber& shown);
    bool IsDropped(const ShownNumber& shown) const;
    void RefuseNumeric();
    void LayOutForeign();
    std::string Held(const std::string& integer) const;
    Digits WithoutFront(Digits digits) const;
    Digits Settled(Digits digits) const;
    void LayOut(const Digits& digits) { edit_.SetText(NumberFormat().Lay(digits, Signs())); }
    void CaretBefore(int right);
    void CaretInFraction(int place);
    void CarryOver(int right);
    void Carry(int from, int to);
    void CaretToStart();
    void NotifyFull();
    void BackspaceInNumber();
    void DeleteInNumber();
    void EraseSelectedDigits(ShownNumber& shown, int start, int end) const;
    bool SkipLiterals(int position, bool remember);
    int FindLiteralAhead(const std::string& text, int position, char c) const;
    void PadFieldDigit(int position);
    void NoteChange(const std::string& before, bool wasModified) { modified_ = wasModified || before != Text(); }
    bool HandleKeyDown(int key, bool shift, bool byUser);
    bool NumericDeletion(int key);
    bool PositionalDeletion(int key, bool shift);
    void MoveCaret(int key, bool shift, bool byUser);
    int StepsToEditable(int position, bool forward) const;
    bool DeleteSelection();
    void DeleteNumericSelection();
    void PasteText(const std::string& clipboard);
    void TypeAhead(char c);
    void ForgetTyping()
    {
        carried_.clear();
        spelled_ = "";
    }
    void Beep() { ++beeps_; }
    void TellFull() { autoskips_ += autoskip_ ? 1 : 0; }
    void PlaceCaret(int position) { edit_.Select(position, position); }

    // spin
    void SpinStep(bool up);
    void SpinCodeTable(bool up);
    bool SeesEntry();
    void SpinNumber(bool up);
    void SpinDate(bool up);
    const CodeEntry* Find(const std::string CodeEntry::*part, const std::string& text);
    const CodeEntry* EntryOf(const Value& value);
    Value DataOf(const CodeEntry& entry) const;
    bool ShowThroughCodes(const Value& value);

    const Regional* regional_;
    PlainEdit edit_;
    std::string mask_;
    model::Format format_;  // what the mask of a number says
    Type type_ = kString;
    unsigned formatFlags_ = 0;
    int displayLength_ = 0;
    int decimalPlaces_ = 0;
    int firstField_ = 0;
    int yearDigits_ = 0;
    int ampmPos_ = 0;
    int pendingDay_ = -1;
    bool ampm_ = false;
    bool keyword_ = false;  // the mask was built from a keyword
    bool percent_ = false;
    bool charwise_ = false;
    bool autoskip_ = false;
    bool deletePending_ = false;
    bool backspaceDone_ = false;
    BackspaceKey backspaceKey_ = BackspaceKey::None;
    bool spun_ = false;
    bool codeSpin_ = false;
    bool codePick_ = false;
    bool positioned_ = false;
    bool hasTable_ = false;
    bool zeroPadded_ = false;
    bool shift_ = false;  // the Shift key is held down
    std::vector<CodeEntry> cycle_;
    int cursor_ = -1;
    unsigned increment_ = 0;
    double spinMin_ = 0.0;
    double spinMax_ = 0.0;
    std::optional<std::string> range_;
    std::string typed_;
    std::string carried_;                 // literals over which typing has just carried the caret
    std::optional<std::string> spelled_;  // of the symbol, by the keys typed so far into an emptied number
    std::optional<std::string> spelledBefore_;  // as it was before the key
    bool readOnly_ = false;
    bool enabled_ = true;
    bool modified_ = false;  // by the user
    int autoskips_ = 0;
    int changes_ = 0;
    int beeps_ = 0;
};

}  // namespace model

#endif
