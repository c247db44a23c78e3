// ztedit.hpp - masked edit controls for C++17: one header over ztedit.h, nothing to build. Link with ztedit050, ztshared, ztdecimal.
//
//     zt::Heap heap;                                          // one per form; the controls' records live in it
//     zt::Edit due = zt::Edit::Create(heap, zt::Setup::Date("MM/DD/YYYY").Modern().Autoskip(), form, IDC_DUE, {20, 20, 120, 24});
//     due.TrySet(zt::Date{2026, 11, 21});
//     if (const std::optional<zt::Date> day = due.Get<zt::Date>())
//         Store(day->year, day->month, day->day);
//
// Nothing is left to be freed: results are values. Nothing is thrown but std::bad_alloc by the standard library: what is refused comes
// back as a zt::Reason, what is not there as an empty std::optional. An Edit is a name of a window, copied freely and owning nothing;
// used after its window or its heap is gone it does nothing, as the functions of ztedit.h do. All of it on the window's own thread.
#ifndef ZTEDIT_HPP
#define ZTEDIT_HPP

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "ztedit.h"

namespace zt {

// ---- Words ----------------------------------------------------------------------------------------------------------

enum class Type : int32_t {
    None = 0,
    String = DT_STRING,
    Number = DT_NUMBER,
    Date = DT_DATE,
    Time = DT_TIME,
    DateTime = DT_DATETIME,
    Decimal = DT_DECIMAL
};

enum class State : int32_t {
    NoControl = -1,
    Empty = ZTS_EMPTY,
    Incomplete = ZTS_INCOMPLETE,
    Invalid = ZTS_INVALID,
    OutOfRange = ZTS_OUT_OF_RANGE,
    Complete = ZTS_COMPLETE
};

// Why something was refused; None: it was not.
enum class Reason : int32_t {
    None = 0,
    WrongKind = ZTR_WRONG_KIND,
    OutOfBounds = ZTR_OUT_OF_BOUNDS,
    Full = ZTR_FULL,
    ReadOnly = ZTR_READ_ONLY,
    DoesNotFit = ZTR_DOES_NOT_FIT,
    InDoubt = ZTR_IN_DOUBT,
    DoesNotExist = ZTR_DOES_NOT_EXIST,
    NoSuchEntry = ZTR_NO_SUCH_ENTRY,
    EndOfRange = ZTR_END_OF_RANGE,
    NotInCodePage = ZTR_NOT_IN_CODE_PAGE
};

// Why a window is no control, or not the one that was asked for.
enum class Problem : int32_t {
    None = ZTP_NONE,
    NoParameters = ZTP_NO_PARAMETERS,
    NoHeap = ZTP_NO_HEAP,
    ForeignHeap = ZTP_FOREIGN_HEAP,
    NotSubclassed = ZTP_NOT_SUBCLASSED,
    WideTexts = ZTP_WIDE_TEXTS,
    DataType = ZTP_DATA_TYPE,
    Mask = ZTP_MASK
};

// What is wrong with a mask.
enum class MaskFault : int32_t {
    Fits = ZTM_FITS,
    DataType = ZTM_DATA_TYPE,
    Empty = ZTM_EMPTY,
    TooLong = ZTM_TOO_LONG,
    Escape = ZTM_ESCAPE,
    Keyword = ZTM_KEYWORD,
    OutOfPlace = ZTM_OUT_OF_PLACE,
    Twice = ZTM_TWICE,
    FieldLength = ZTM_FIELD_LENGTH,
    Excluded = ZTM_EXCLUDED,
    FieldMissing = ZTM_FIELD_MISSING,
    NoDigit = ZTM_NO_DIGIT
};

enum class Option : uint32_t {
    None = 0,
    Autoskip = ZTEO_AUTOSKIP,
    Spin = ZTEO_SPIN,
    CodePick = ZTEO_CODE_PICK,
    CodeDisplay = ZTEO_CODE_DISPLAY,
    Modern = ZTEO_MODERN
};

constexpr Option operator|(Option first, Option second)
{
    return static_cast<Option>(static_cast<uint32_t>(first) | static_cast<uint32_t>(second));
}

constexpr bool Has(Option options, Option one)
{
    return (static_cast<uint32_t>(options) & static_cast<uint32_t>(one)) != 0;
}

enum class SpinStyle : uint32_t { Plain = 0, PickList = SPINSTYLE_PICKLIST, CodeTable = SPINSTYLE_CODETABLE };

constexpr SpinStyle operator|(SpinStyle first, SpinStyle second)
{
    return static_cast<SpinStyle>(static_cast<uint32_t>(first) | static_cast<uint32_t>(second));
}

// ---- Values ---------------------------------------------------------------------------------------------------------

struct Date {
    int year = 1;
    int month = 1;  // 1 to 12
    int day = 1;
};

struct Time {
    int hour = 0;
    int minute = 0;
    int second = 0;
    int microsecond = 0;
};

// A date whose time was left empty has midnight.
struct DateTime {
    Date date;
    Time time;
};

inline bool operator==(const Date& a, const Date& b)
{
    return std::tie(a.year, a.month, a.day) == std::tie(b.year, b.month, b.day);
}
inline bool operator<(const Date& a, const Date& b)
{
    return std::tie(a.year, a.month, a.day) < std::tie(b.year, b.month, b.day);
}
inline bool operator==(const Time& a, const Time& b)
{
    return std::tie(a.hour, a.minute, a.second, a.microsecond) == std::tie(b.hour, b.minute, b.second, b.microsecond);
}
inline bool operator<(const Time& a, const Time& b)
{
    return std::tie(a.hour, a.minute, a.second, a.microsecond) < std::tie(b.hour, b.minute, b.second, b.microsecond);
}
inline bool operator==(const DateTime& a, const DateTime& b)
{
    return a.date == b.date && a.time == b.time;
}
inline bool operator<(const DateTime& a, const DateTime& b)
{
    return a.date == b.date ? a.time < b.time : a.date < b.date;
}
inline bool operator!=(const Date& a, const Date& b)
{
    return !(a == b);
}
inline bool operator!=(const Time& a, const Time& b)
{
    return !(a == b);
}
inline bool operator!=(const DateTime& a, const DateTime& b)
{
    return !(a == b);
}

// An exact number of at least 28 digits.
class Decimal {
public:
    Decimal() = default;
    explicit Decimal(uint32_t number) { DecFromUnsigned(&value_, number); }
    explicit Decimal(const DecimalValue& value) : value_(value) {}

    // As far as the text is a number, '.' being the point.
    explicit Decimal(const std::string& text) { DecFromString(&value_, text.c_str(), 0); }
    explicit Decimal(const char* text) { DecFromString(&value_, text, 0); }

    const DecimalValue& Value() const { return value_; }

    // "-1234.50": with as many digits behind the point as the value has.
    std::string Text() const
    {
        std::string reversed;
        DecimalValue rest = value_;
        while (rest.hi32 != 0 || rest.lo64 != 0 || reversed.size() <= value_.scale)
            reversed += static_cast<char>('0' + TakeLastDigit(rest));
        if (value_.scale != 0)
            reversed.insert(value_.scale, 1, '.');
        if (value_.sign != 0)
            reversed += '-';
        return std::string(reversed.rbegin(), reversed.rend());
    }

    friend Decimal operator+(const Decimal& a, const Decimal& b) { return Result(DecAdd, a, b); }
    friend Decimal operator-(const Decimal& a, const Decimal& b) { return Result(DecSubtract, a, b); }
    friend Decimal operator/(const Decimal& a, const Decimal& b) { return Result(DecDivide, a, b); }
    friend bool operator==(const Decimal& a, const Decimal& b) { return DecCompare(&a.value_, &b.value_) == 0; }
    friend bool operator!=(const Decimal& a, const Decimal& b) { return !(a == b); }
    friend bool operator<(const Decimal& a, const Decimal& b) { return DecCompare(&a.value_, &b.value_) < 0; }

private:
    using Operation = DecimalValue*(WINAPI*)(DecimalValue*, const DecimalValue*, const DecimalValue*);

    static Decimal Result(Operation operation, const Decimal& a, const Decimal& b)
    {
        Decimal result;
        operation(&result.value_, &a.value_, &b.value_);
        return result;
    }

    // Divides the 96 bits by ten, 32 at a time, and gives what remains.
    static uint32_t TakeLastDigit(DecimalValue& number)
    {
        uint32_t remainder = 0;
        const auto divide = [&remainder](uint32_t part) {
            const uint64_t dividend = (static_cast<uint64_t>(remainder) << 32) | part;
            remainder = static_cast<uint32_t>(dividend % 10);
            return static_cast<uint32_t>(dividend / 10);
        };
        number.hi32 = divide(number.hi32);
        const uint32_t middle = divide(static_cast<uint32_t>(number.lo64 >> 32));
        const uint32_t low = divide(static_cast<uint32_t>(number.lo64 & 0xFFFFFFFFu));
        number.lo64 = (static_cast<uint64_t>(middle) << 32) | low;
        return remainder;
    }

    DecimalValue value_ = {};
};

// ---- Heap -----------------------------------------------------------------------------------------------------------

// The heap of a form's controls. Whichever goes first, heap or control, the other one stays sound: a control without its heap is a plain
// edit from then on.
class Heap {
public:
    Heap() : handle_(SharedHeapCreate()) {}
    Heap(Heap&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Heap& operator=(Heap&& other) noexcept
    {
        Heap taken(std::move(other));
        std::swap(handle_, taken.handle_);
        return *this;
    }
    Heap(const Heap&) = delete;
    Heap& operator=(const Heap&) = delete;
    ~Heap() { SharedHeapDestroy(handle_); }

    SharedHeap Handle() const { return handle_; }
    uint32_t BlockCount() const { return handle_ ? SharedHeapBlockCount(handle_) : 0; }

private:
    SharedHeap handle_;
};

// ---- How a control is set up ----------------------------------------------------------------------------------------

// The text of a code table, written entry by entry: zt::CodeTable().Add("Red", "R").Add("none", zt::CodeTable::kNull).
class CodeTable {
public:
    static constexpr const char* kNull = "null!";  // the value of an entry that stands for no data

    CodeTable& Add(std::string_view shown, std::string_view value)
    {
        if (!text_.empty())
            text_ += '/';
        Append(shown);
        text_ += '\t';
        Append(value);
        return *this;
    }
    const std::string& Text() const { return text_; }

private:
    void Append(std::string_view part)
    {
        for (const char character : part)
            text_.append(character == '/' ? 2 : 1, character);
    }

    std::string text_;
};

// What a control shall be. The mask may be a keyword ("[date]"); without one the type's default stands.
class Setup {
public:
    explicit Setup(Type type, std::string mask = {}) : type_(type), mask_(std::move(mask)) {}
    static Setup String(std::string mask = {}) { return Setup(Type::String, std::move(mask)); }
    static Setup Number(std::string mask = {}) { return Setup(Type::Number, std::move(mask)); }
    static Setup Decimal(std::string mask = {}) { return Setup(Type::Decimal, std::move(mask)); }
    static Setup Date(std::string mask = {}) { return Setup(Type::Date, std::move(mask)); }
    static Setup Time(std::string mask = {}) { return Setup(Type::Time, std::move(mask)); }
    static Setup DateTime(std::string mask = {}) { return Setup(Type::DateTime, std::move(mask)); }

    Setup& With(Option options)
    {
        options_ = options_ | options;
        return *this;
    }
    Setup& Modern() { return With(Option::Modern); }
    Setup& Autoskip() { return With(Option::Autoskip); }

    // A spin; the range is "minimum~maximum", either side may be empty.
    Setup& Spin(uint32_t increment = 1, std::string range = {})
    {
        increment_ = increment;
        range_ = std::move(range);
        return With(Option::Spin);
    }

    // Only the entries of a table, chosen by their letters or by the spin.
    Setup& Choices(const CodeTable& table)
    {
        codes_ = table.Text();
        return With(Option::Spin | Option::CodePick | Option::CodeDisplay);
    }

    // Canonical text, or as the mask shows it.
    Setup& Initial(std::string data)
    {
        data_ = std::move(data);
        return *this;
    }

    // Borrows the texts: for a call, not to be kept.
    EditInitParams Params(const Heap& heap) const
    {
        EditInitParams params = {};
        params.heap = heap.Handle();
        params.maskText = TextOrNull(mask_);
        params.dataType = static_cast<int32_t>(type_);
        params.initialData = TextOrNull(data_);
        params.spinRangeText = TextOrNull(range_);
        params.spinIncrement = increment_;
        params.codeTableText = TextOrNull(codes_);
        params.options = static_cast<uint32_t>(options_);
        return params;
    }

private:
    static const char* TextOrNull(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

    Type type_;
    std::string mask_;
    std::string data_;
    std::string range_;
    std::string codes_;
    uint32_t increment_ = 1;
    Option options_ = Option::None;
};

// Whether a mask fits a type, without a control; and where in it what does not fit stands, -1 where all does.
struct MaskVerdict {
    MaskFault fault;
    int position;
};

inline MaskVerdict CheckMask(const std::string& mask, Type type)
{
    int32_t position = -1;
    const int32_t fault = ZTE_CheckMask(mask.c_str(), static_cast<int32_t>(type), &position);
    return {static_cast<MaskFault>(fault), position};
}

struct Place {
    int x;
    int y;
    int width;
    int height;
};

// ---- Canonical texts ------------------------------------------------------------------------------------------------

namespace detail {

// A result of the library, given back to its heap.
class Result {
public:
    Result(SharedHeap heap, char* text) : heap_(heap), text_(text) {}
    Result(const Result&) = delete;
    Result& operator=(const Result&) = delete;
    ~Result() { SharedHeapFree(heap_, text_); }

    explicit operator bool() const { return text_ != nullptr; }
    const char* Text() const { return text_; }

private:
    SharedHeap heap_;
    char* text_;
};

inline std::string CanonicalOf(const Date& value)
{
    char text[48];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", value.year, value.month, value.day);
    return text;
}

inline std::string CanonicalOf(const Time& value)
{
    char text[64];
    const int length = std::snprintf(text, sizeof text, "%02d:%02d:%02d", value.hour, value.minute, value.second);
    if (value.microsecond != 0)
        std::snprintf(text + length, sizeof text - static_cast<size_t>(length), ":%06d", value.microsecond);
    return text;
}

inline std::string CanonicalOf(const DateTime& value)
{
    return CanonicalOf(value.date) + ' ' + CanonicalOf(value.time);
}

// The fewest digits that read as the same number, without an exponent.
inline std::string CanonicalOf(double value)
{
    char text[512];
    const std::to_chars_result written = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed);
    return std::string(text, written.ptr);
}

inline std::string CanonicalOf(const Decimal& value)
{
    return value.Text();
}

inline Date DateOf(const DateTimeValue& value)
{
    return {value.year + 1900, value.month + 1, value.day};
}

inline Time TimeOf(const DateTimeValue& value)
{
    if (value.hour == DATETIME_NO_TIME)
        return {};
    return {value.hour, value.minute, value.second, static_cast<int>(value.microsecond)};
}

inline std::optional<DateTimeValue> Parsed(const char* text, int32_t kind)
{
    DateTimeValue value = {};
    if (SharedParseDateTime(&value, text, kind) != 0)
        return std::nullopt;
    return value;
}

constexpr bool IsNumeric(Type type)
{
    return type == Type::Number || type == Type::Decimal;
}

// Canonical text as a value of a type; none where the control's type has no such value, or the text is empty.
template <class Value>
std::optional<Value> ValueOf(Type type, const char* text);

template <>
inline std::optional<std::string> ValueOf<std::string>(Type, const char* text)
{
    return std::string(text);
}

template <>
inline std::optional<double> ValueOf<double>(Type type, const char* text)
{
    const std::string_view digits(text);
    double value = 0;
    if (!IsNumeric(type) || std::from_chars(digits.data(), digits.data() + digits.size(), value).ec != std::errc())
        return std::nullopt;
    return value;
}

template <>
inline std::optional<Decimal> ValueOf<Decimal>(Type type, const char* text)
{
    if (!IsNumeric(type) || *text == '\0')
        return std::nullopt;
    return Decimal(text);
}

template <>
inline std::optional<Date> ValueOf<Date>(Type type, const char* text)
{
    const std::optional<DateTimeValue> value =
        type == Type::Date || type == Type::DateTime ? Parsed(text, DATETIME_KIND_BOTH) : std::nullopt;
    return value ? std::optional<Date>(DateOf(*value)) : std::nullopt;
}

template <>
inline std::optional<Time> ValueOf<Time>(Type type, const char* text)
{
    std::optional<DateTimeValue> value;
    if (type == Type::Time)
        value = Parsed(text, DATETIME_KIND_TIME);
    if (type == Type::DateTime)
        value = Parsed(text, DATETIME_KIND_BOTH);
    return value ? std::optional<Time>(TimeOf(*value)) : std::nullopt;
}

template <>
inline std::optional<DateTime> ValueOf<DateTime>(Type type, const char* text)
{
    const std::optional<DateTimeValue> value =
        type == Type::Date || type == Type::DateTime ? Parsed(text, DATETIME_KIND_BOTH) : std::nullopt;
    return value ? std::optional<DateTime>(DateTime{DateOf(*value), TimeOf(*value)}) : std::nullopt;
}

}  // namespace detail

// ---- The control ----------------------------------------------------------------------------------------------------

class Edit {
public:
    static constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL;
    static constexpr DWORD kExtendedStyle = WS_EX_CLIENTEDGE;

    // No control; everything does nothing.
    Edit() = default;

    // A new child window. The parent's end is its end.
    static Edit Create(const Heap& heap, const Setup& setup, HWND parent, int id, const Place& place,
                       DWORD style = kStyle, DWORD extendedStyle = kExtendedStyle)
    {
        ZTE_Initialize();  // the class is there from then on
        EditInitParams params = setup.Params(heap);
        const HWND hwnd =
            CreateWindowExA(extendedStyle, ZTEDIT_CLASS, "", style, place.x, place.y, place.width, place.height, parent,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr), &params);
        return Edit(heap, hwnd);
    }

    // An item of the class "ZTEDIT050" from a dialog template, before whose dialog ZTE_Initialize was called; no control when there is
    // none or it could not be configured.
    static Edit Attach(const Heap& heap, const Setup& setup, HWND dialog, int id)
    {
        const EditInitParams params = setup.Params(heap);
        const HWND hwnd = GetDlgItem(dialog, id);
        return ZTE_Init(hwnd, &params) ? Edit(heap, hwnd) : Edit();
    }

    // A standard edit control that the program already has; as it was, and no control, when it could not be configured.
    static Edit Subclass(const Heap& heap, const Setup& setup, HWND standardEdit)
    {
        const EditInitParams params = setup.Params(heap);
        const LONG_PTR own = reinterpret_cast<LONG_PTR>(&ZTE_SuperEditWndProc);
        const LONG_PTR before = SetWindowLongPtrA(standardEdit, GWLP_WNDPROC, own);
        if (before != 0 && ZTE_Init(standardEdit, &params))
            return Edit(heap, standardEdit);
        if (before != 0)
            SetWindowLongPtrA(standardEdit, GWLP_WNDPROC, before);
        return Edit();
    }

    // A control that was configured with this heap: the window of a notification, say.
    static Edit Of(const Heap& heap, HWND hwnd) { return Edit(heap, hwnd); }

    HWND Window() const { return hwnd_; }
    explicit operator bool() const { return GetType() != Type::None; }
    Type GetType() const { return static_cast<Type>(ZTE_FmtGetDataType(hwnd_)); }
    State GetState() const { return static_cast<State>(ZTE_GetState(hwnd_)); }

    // The value, as double, zt::Decimal, zt::Date, zt::Time, zt::DateTime, or as canonical text (std::string; "" for the empty value). None
    // while the control is empty, shows no such value, or is of a type that has none.
    template <class Value>
    std::optional<Value> Get() const
    {
        const detail::Result canonical(heap_, ZTE_GetDataString(hwnd_));
        return canonical ? detail::ValueOf<Value>(GetType(), canonical.Text()) : std::nullopt;
    }

    // Shows a value where the control can show it, and else changes nothing and says why. A text is canonical, or one that a user might
    // paste.
    Reason TrySet(const char* text) const { return static_cast<Reason>(ZTE_TrySetDataString(hwnd_, text)); }
    Reason TrySet(const std::string& text) const { return TrySet(text.c_str()); }
    Reason TrySet(double value) const { return TrySet(detail::CanonicalOf(value)); }
    Reason TrySet(const Decimal& value) const { return TrySet(detail::CanonicalOf(value)); }
    Reason TrySet(const Date& value) const { return TrySet(detail::CanonicalOf(value)); }
    Reason TrySet(const Time& value) const { return TrySet(detail::CanonicalOf(value)); }
    Reason TrySet(const DateTime& value) const { return TrySet(detail::CanonicalOf(value)); }
    template <class Value>
    Reason TrySet(const std::optional<Value>& value) const
    {
        return value ? TrySet(*value) : Clear();
    }
    Reason Clear() const { return TrySet(""); }

    // The text as it is shown, literals and all.
    std::string Shown() const
    {
        std::string text(static_cast<size_t>(GetWindowTextLengthA(hwnd_)) + 1, '\0');
        text.resize(static_cast<size_t>(GetWindowTextA(hwnd_, text.data(), static_cast<int>(text.size()))));
        return text;
    }

    // Why it is no control, or not the one that was asked for.
    Problem LastProblem() const { return static_cast<Problem>(ZTE_GetLastProblem(hwnd_)); }

    // False when the mask does not fit the type, and the type's default stands in.
    bool SetMask(const std::string& mask, Type type) const
    {
        return ZTE_FmtSetMask(hwnd_, mask.c_str(), static_cast<int32_t>(type)) != 0;
    }

    // Both return, or take, whether it is on.
    bool SetModern(bool on) const { return ZTE_SetModern(hwnd_, on) != 0; }
    void SetAutoskip(bool on) const { ZTE_SetAutoskip(hwnd_, on); }

    // What the spin steps: "minimum~maximum", either side may be empty; or the entries of a table.
    void SetSpin(uint32_t increment, const std::string& range, SpinStyle style = SpinStyle::Plain) const
    {
        ZTE_SetSpin(hwnd_, increment, range.empty() ? nullptr : range.c_str(), nullptr, static_cast<uint32_t>(style));
    }
    void SetSpin(const CodeTable& table, SpinStyle style = SpinStyle::CodeTable | SpinStyle::PickList) const
    {
        ZTE_SetSpin(hwnd_, 1, nullptr, table.Text().c_str(), static_cast<uint32_t>(style));
    }
    void CreateSpin() const { ZTE_CreateSpin(hwnd_); }
    void DestroySpin() const { ZTE_DestroySpin(hwnd_); }
    void SetSpinColour(COLORREF colour) const { ZTE_SetSpinBkColor(hwnd_, colour); }
    int SpinWidth() const { return ZTE_GetSpinWidth(hwnd_, nullptr); }

private:
    Edit(const Heap& heap, HWND hwnd) : heap_(heap.Handle()), hwnd_(hwnd) {}

    SharedHeap heap_ = nullptr;
    HWND hwnd_ = nullptr;
};

// ---- What the parent hears ------------------------------------------------------------------------------------------

namespace detail {

// The record behind a WM_NOTIFY, when it is of this code and from a masked edit: other controls have codes of their own.
template <class Record>
const Record* NotifiedBy(LPARAM lParam, UINT code)
{
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (!header || header->code != code || ZTE_FmtGetDataType(header->hwndFrom) == 0)
        return nullptr;
    return reinterpret_cast<const Record*>(header);
}

}  // namespace detail

// In the parent's WM_NOTIFY: if (const auto refused = zt::Rejected::From(lParam)) ... ; an answer other than 0 takes the beep's place.
struct Rejected {
    HWND control;
    int id;
    Reason reason;
    int position;
    unsigned char character;  // 0 for what was not typed

    static std::optional<Rejected> From(LPARAM lParam)
    {
        const auto* told = detail::NotifiedBy<ZTNotifyRejected>(lParam, ZTN_REJECTED);
        if (!told)
            return std::nullopt;
        return Rejected{told->hdr.hwndFrom, static_cast<int>(told->hdr.idFrom), static_cast<Reason>(told->reason),
                        told->position, static_cast<unsigned char>(told->character)};
    }
};

// In the parent's WM_NOTIFY, likewise.
struct StateChanged {
    HWND control;
    int id;
    State was;
    State is;

    static std::optional<StateChanged> From(LPARAM lParam)
    {
        const auto* told = detail::NotifiedBy<ZTNotifyState>(lParam, ZTN_STATECHANGED);
        if (!told)
            return std::nullopt;
        return StateChanged{told->hdr.hwndFrom, static_cast<int>(told->hdr.idFrom), static_cast<State>(told->was),
                            static_cast<State>(told->is)};
    }
};

// In the parent's WM_COMMAND: the last position was filled, the focus may move on.
struct Autoskip {
    HWND control;
    int id;

    static std::optional<Autoskip> From(WPARAM wParam, LPARAM lParam)
    {
        const HWND control = reinterpret_cast<HWND>(lParam);
        if (HIWORD(wParam) != ZTN_AUTOSKIP || ZTE_FmtGetDataType(control) == 0)
            return std::nullopt;
        return Autoskip{control, LOWORD(wParam)};
    }
};

}  // namespace zt

#endif
