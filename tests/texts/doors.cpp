// The doors by which texts enter a control, and what holds of each whatever comes in.
#include "tests/texts/doors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "engine/format/code_table.h"
#include "engine/values/date_time.h"
#include "tests/texts/guarded.h"
#include "tests/texts/texts.h"

namespace zttest {
namespace {

constexpr size_t kLongestMask = 255;
constexpr size_t kLongestEntry = 255;
constexpr size_t kWindowLimit = 30000;  // of a new edit control, for what is put into the place of a selection
constexpr size_t kTyped = 300;
constexpr size_t kLongestNumberShown = 1023;
constexpr uint32_t kCodes = SPINSTYLE_CODETABLE | SPINSTYLE_PICKLIST;

struct DefaultRow {
    int32_t type;
    const char* shown;
};
// What a type shows under the mask that stands in for one refused.
// clang-format off
constexpr DefaultRow kDefaults[] = {
    {DT_STRING,   ""                     },
    {DT_NUMBER,   ".00"                  },
    {DT_DECIMAL,  ".00"                  },
    {DT_DATE,     "00/00/00"             },
    {DT_TIME,     "00:00:00:000"         },
    {DT_DATETIME, "00/00/00 00:00:00:000"},
};
// clang-format on

const char* DefaultShown(int32_t type)
{
    for (const DefaultRow& row : kDefaults)
        if (row.type == type)
            return row.shown;
    return nullptr;
}

bool HasMask(const FieldRow& field)
{
    return field.mask && *field.mask;
}

// ---- what holds of what is shown

// The positions of the test's string masks that hold a character of the value.
bool IsSlot(char character)
{
    return std::strchr("#X!", character) != nullptr;
}

// How a string stands under a mask of these: without literals it is as long as the text.
std::string StringShown(const FieldRow& field, const std::string& text)
{
    if (!HasMask(field))
        return text;
    const std::string mask = field.mask;
    const bool literals = !std::all_of(mask.begin(), mask.end(), IsSlot);
    std::string shown;
    size_t taken = 0;
    for (const char character : mask) {
        if (!IsSlot(character))
            shown += character;
        else if (taken < text.size())
            shown += text[taken++];
        else if (literals)
            shown += ' ';
    }
    return shown;
}

// What a caller's text reads as under them; behind the mask's end its first position goes on.
std::string StringRead(const FieldRow& field, const std::string& text)
{
    if (!HasMask(field))
        return text;
    const std::string mask = field.mask;
    std::string read;
    for (size_t i = 0; i < text.size(); ++i)
        if (IsSlot(i < mask.size() ? mask[i] : mask[0]))
            read += text[i];
    return read;
}

bool IsWrittenAsANumber(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return std::strchr("0123456789+-.,eE", c) != nullptr; });
}

// Something that the field can show stands there: it can be read, and what was read, handed in again, is shown alike.
void ExpectAValueIsShown(Subject& subject, const FieldRow& field)
{
    const std::string shown = subject.Text();
    if (IsDateOrTime(field.type))
        EXPECT_EQ(shown.size(), std::strlen(field.shown)) << shown;
    else
        EXPECT_LE(shown.size(), kLongestNumberShown);
    const std::optional<std::string> read = subject.Read();
    if (IsNumber(field.type) && !read)
        ADD_FAILURE() << "a number reads as none";
    if (IsNumber(field.type) && read) {
        EXPECT_TRUE(!read->empty() && IsWrittenAsANumber(*read)) << *read;
        const GuardedText again(*read);
        subject.SetDataString(again.get());
    } else {
        const GuardedText again(shown);
        subject.SetDataString(again.get());
    }
    EXPECT_EQ(subject.Text(), shown);
}

// A text was handed in as data.
void ExpectItIsShown(Subject& subject, const FieldRow& field, const std::string& text)
{
    if (field.type != DT_STRING)
        ExpectAValueIsShown(subject, field);
    else
        EXPECT_EQ(subject.Text(), StringShown(field, text));
}

void PressEverything(Subject& subject)
{
    subject.Press("5a{Del}{Back}-./:{Left}{Right}{Up}{Down}{Shift+End}{Del}{Home}7");
}

// A control's heap is as it was at the end of the scope.
class BlocksComeBack {
public:
    explicit BlocksComeBack(Subject& subject) : subject_(subject), before_(subject.Blocks()) {}
    BlocksComeBack(const BlocksComeBack&) = delete;
    BlocksComeBack& operator=(const BlocksComeBack&) = delete;
    ~BlocksComeBack() { EXPECT_EQ(subject_.Blocks(), before_) << "blocks of the heap"; }

private:
    Subject& subject_;
    uint32_t before_;
};

// ---- masks

void ExpectAMaskStands(Subject& subject, const FieldRow& field, size_t length, bool taken)
{
    EXPECT_TRUE(length <= kLongestMask || !taken) << "a mask that is too long was taken";
    EXPECT_TRUE(taken || subject.Text() == DefaultShown(field.type)) << subject.Text();
    EXPECT_LE(std::strlen(subject.Record().mask), kLongestMask);
    PressEverything(subject);
    subject.Read();
    EXPECT_EQ(subject.Record().dataType, field.type);
}

// Where no result tells it, a mask longer than any is known to be refused.
void ExpectAMaskStands(Subject& subject, const FieldRow& field, size_t length)
{
    ExpectAMaskStands(
        subject, field, length,
        length <= kLongestMask && *subject.Record().mask != '\0' && subject.Text() != DefaultShown(field.type));
}

void MaskAtCreation(const FieldRow& field, const char* text, size_t length)
{
    Config config = ConfigOf(field);
    config.mask = text;
    Subject subject(config);
    const BlocksComeBack blocks(subject);
    ExpectAMaskStands(subject, field, length);
    ExpectItWorks(subject, field);
}

void MaskAtInit(const FieldRow& field, const char* text, size_t length)
{
    Subject subject(ConfigOf(field));
    Config config = ConfigOf(field);
    config.mask = text;
    subject.Init(config);
    const BlocksComeBack blocks(subject);
    ExpectAMaskStands(subject, field, length);
    ExpectItWorks(subject, field);
}

void MaskSet(const FieldRow& field, const char* text, size_t length)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    const bool taken = subject.SetMask(text, field.type) == 1;
    ExpectAMaskStands(subject, field, length, taken);
    ExpectItWorks(subject, field);
}

// ---- data

void DataAtCreation(const FieldRow& field, const char* text, size_t)
{
    Config config = ConfigOf(field);
    config.data = text;
    Subject subject(config);
    const BlocksComeBack blocks(subject);
    ExpectItIsShown(subject, field, text);
    ExpectItWorks(subject, field);
}

void DataString(const FieldRow& field, const char* text, size_t)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    subject.SetDataString(text);
    ExpectItIsShown(subject, field, text);
    ExpectItWorks(subject, field);
}

void StringData(const FieldRow& field, const char* text, size_t)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    subject.SetData(text);
    EXPECT_EQ(subject.Text(), StringShown(field, text));
    EXPECT_EQ(subject.Format(text), StringShown(field, text));
    ExpectItWorks(subject, field);
}

void TextRead(const FieldRow& field, const char* text, size_t)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    const std::string shown = subject.Text();
    const std::optional<std::string> read = subject.Unformat(text);
    EXPECT_EQ(read.has_value(), *text != '\0');
    EXPECT_TRUE(field.type != DT_STRING || read.value_or("") == StringRead(field, text)) << *read;
    EXPECT_TRUE(!IsNumber(field.type) || IsWrittenAsANumber(read.value_or(""))) << *read;
    EXPECT_EQ(subject.Text(), shown);
    ExpectItWorks(subject, field);
}

// ---- spins

Config SpinConfigOf(const FieldRow& field, uint32_t options = 0)
{
    Config config = ConfigOf(field);
    config.options = ZTEO_SPIN | options;
    config.increment = 1;
    return config;
}

// Whatever came before: a spin set up anew steps.
void ExpectItSteps(Subject& subject)
{
    const GuardedText range("1~9");
    subject.SetMask("##0", DT_NUMBER);
    subject.SetSpin(range.get(), nullptr, 0);
    subject.SetDataString("5");
    subject.Press("{Up}");
    EXPECT_EQ(subject.Text(), "6");
    subject.SetSpin(nullptr, nullptr, 0);
}

void Steps(Subject& subject)
{
    subject.Select(0, 0);
    subject.Press("{Up}{Down}{Up}5a{Back}{Del}");
}

void ExpectTheRangeIsKept(Subject& subject, const FieldRow& field, const char* text)
{
    ASSERT_NE(subject.Record().spinRange, nullptr);
    EXPECT_TRUE(std::strcmp(subject.Record().spinRange, text) == 0);
    subject.SetDataString(field.data);
    Steps(subject);
    EXPECT_LE(subject.Text().size(), kLongestNumberShown);
    subject.SetSpin(nullptr, nullptr, 0);
    EXPECT_EQ(subject.Record().spinRange, nullptr);
    ExpectItSteps(subject);
}

void RangeAtCreation(const FieldRow& field, const char* text, size_t)
{
    Config config = SpinConfigOf(field);
    Subject without(config);
    config.range = text;
    Subject subject(config);
    ExpectTheRangeIsKept(subject, field, text);
    ExpectItWorks(subject, field);
    EXPECT_EQ(subject.Blocks(), without.Blocks());
    subject.AcceptBlocks();
}

void RangeSet(const FieldRow& field, const char* text, size_t)
{
    Subject subject(SpinConfigOf(field));
    const BlocksComeBack blocks(subject);
    subject.SetSpin(text, nullptr, 0);
    ExpectTheRangeIsKept(subject, field, text);
    ExpectItWorks(subject, field);
}

void ExpectTheEntriesFit(Subject& subject, const FieldRow& field)
{
    const zte::CodeTable* table = subject.Record().codeTable;
    ASSERT_NE(table, nullptr);
    EXPECT_LE(table->count, table->capacity);
    const auto* entries = reinterpret_cast<const zte::CodeTableEntry*>(table + 1);
    for (int i = 0; i < table->count; ++i) {
        EXPECT_LE(std::strlen(entries[i].display), kLongestEntry);
        EXPECT_LE(entries[i].value ? std::strlen(entries[i].value) : 0, kLongestEntry);
    }
    subject.SetData(nullptr);
    Steps(subject);
    subject.Read();
    subject.SetDataString(field.data);
    Steps(subject);
    subject.SetSpin(nullptr, nullptr, 0);
    ExpectItSteps(subject);
}

void CodesAtCreation(const FieldRow& field, const char* text, size_t)
{
    Config config = SpinConfigOf(field, ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK);
    Subject without(config);
    config.codes = text;
    Subject subject(config);
    ExpectTheEntriesFit(subject, field);
    ExpectItWorks(subject, field);
    EXPECT_EQ(subject.Blocks(), without.Blocks());
    subject.AcceptBlocks();
}

void CodesSet(const FieldRow& field, const char* text, size_t)
{
    Subject subject(SpinConfigOf(field));
    const BlocksComeBack blocks(subject);
    subject.SetSpin(nullptr, text, kCodes);
    ExpectTheEntriesFit(subject, field);
    ExpectItWorks(subject, field);
}

void RangeEndRead(const FieldRow& field, const char* text, size_t)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    const Guarded room(&zte::kEmptyDateTime, sizeof(DateTimeValue), Access::ReadWrite);
    const bool read = subject.ReadRangeEnd(room.As<DateTimeValue>(), text);
    DateTimeValue value;
    std::memcpy(&value, room.As<void>(), sizeof value);
    EXPECT_TRUE((read && IsDateOrTime(field.type)) || Canonical(value).empty()) << Canonical(value);
    ExpectItWorks(subject, field);
}

// ---- the clipboard, without a terminator

void ExpectItIsPasted(Subject& subject, const FieldRow& field, const std::string& text, const std::string& before)
{
    if (field.type == DT_STRING && HasMask(field) && !text.empty())
        EXPECT_EQ(subject.Text(), StringShown(field, StringRead(field, text)));
    else if (field.type != DT_STRING && subject.Text() != before)
        ExpectAValueIsShown(subject, field);
    ExpectItWorks(subject, field);
}

void Pasted(const FieldRow& field, const char* text, size_t)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    const std::string before = subject.Text();
    const std::string pasted = subject.Paste(text);
    ExpectItIsPasted(subject, field, pasted, before);
}

// High characters are left to the code page.
void PastedAsUnicode(const FieldRow& field, const char* text, size_t)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    std::u16string units;
    for (const char* at = text; *at; ++at)
        units += static_cast<char16_t>(*at & 0x7F ? *at & 0x7F : 0x7F);
    const std::string before = subject.Text();
    const std::string pasted = subject.PasteUnicode(units);
    ExpectItIsPasted(subject, field, pasted, before);
}

// ---- the window

void ExpectKeysEverywhere(Subject& subject, size_t length)
{
    for (const size_t caret : {size_t{0}, length / 2, length}) {
        subject.Select(static_cast<int>(caret), static_cast<int>(caret));
        subject.Press("5{Del}{Back}a./:{Left}{Right}{Up}{Down}-");
    }
}

void WindowText(const FieldRow& field, const char* text, size_t length)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    subject.SetText(text);
    EXPECT_TRUE(subject.Text() == text);
    subject.Read();
    ExpectKeysEverywhere(subject, length);
    ExpectItWorks(subject, field);
}

void SelectionReplaced(const FieldRow& field, const char* text, size_t length)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    subject.SetDataString(field.data);
    subject.ReplaceAll(text);
    EXPECT_TRUE(subject.Text() == std::string(text).substr(0, kWindowLimit)) << Described(subject.Text());
    subject.Read();
    ExpectKeysEverywhere(subject, std::min(length, kWindowLimit));
    ExpectItWorks(subject, field);
}

// The text stays as long as its mask; a mask without literals, and a number, grow as far as the mask goes.
void Typed(const FieldRow& field, const char* text, size_t)
{
    Subject subject(ConfigOf(field));
    const BlocksComeBack blocks(subject);
    subject.Select(0, 0);
    subject.Type(std::string(text).substr(0, kTyped));
    const size_t length = subject.Text().size();
    if (IsDateOrTime(field.type) || (field.type == DT_STRING && HasMask(field)))
        EXPECT_LE(length, std::strlen(field.shown)) << subject.Text();
    else
        EXPECT_LE(length, 2 * kTyped);
    subject.Read();
    ExpectItWorks(subject, field);
}

// ---- the good texts

std::string GoodMask(const FieldRow& field)
{
    return field.mask ? field.mask : "";
}
std::string GoodData(const FieldRow& field)
{
    return field.data;
}
std::string GoodDisplay(const FieldRow& field)
{
    return field.shown;
}
std::string GoodRange(const FieldRow& field)
{
    return IsDateOrTime(field.type) ? "1990-01-01~2010-12-31" : "1~2000";
}
std::string GoodCodes(const FieldRow& field)
{
    return std::string("Shown\t") + field.data + "/Nothing\tnull!/And // or\t2";
}
std::string GoodRangeEnd(const FieldRow& field)
{
    return IsDateOrTime(field.type) ? field.data : "1990-01-01";
}

}  // namespace

const std::vector<FieldRow>& Fields()
{
    // clang-format off
    static const std::vector<FieldRow> fields = {
        {"NoMask",         nullptr,                     DT_STRING,   "any text",            "any text", "any text"},
        {"String",         "(###) XXX-!!!",             DT_STRING,   "123a-zXYZ",           "(123) a-z-XYZ", "123a-zXYZ"},
        {"PlainString",    "XXXX",                      DT_STRING,   "abcd",                "abcd", "abcd"},
        {"Number",         "#,##0.00",                  DT_NUMBER,   "1234.5",              "1,234.50", "1234.50"},
        {"Percentage",     "#,##0.00%",                 DT_NUMBER,   "0.125",               "12.50%", "0.125"},
        {"Amount",         "[currency(16)]",            DT_NUMBER,   "1234.5",              "$1,234.50", "1234.50"},
        {"General",        "[GENERAL]",                 DT_NUMBER,   "1234.5",              "1234.5", "1234.5"},
        {"Decimal",        "#,##0.00",                  DT_DECIMAL,  "1234.5",              "1,234.50", "1234.50"},
        {"DecimalPercent", "#,##0.00%",                 DT_DECIMAL,  "0.125",               "12.50%", "0.125"},
        {"Date",           "MM/DD/YY",                  DT_DATE,     "1995-07-04",          "07/04/95", "1995-07-04"},
        {"DateWithName",   "DD-MMM-YYYY",               DT_DATE,     "1995-07-04",          "04-JUL-1995", "1995-07-04"},
        {"DayOfYear",      "JJJ/YYYY",                  DT_DATE,     "1995-07-04",          "185/1995", "1995-07-04"},
        {"Time",           "HH:MM:SS:FFFFFF",           DT_TIME,     "14:07:09:000250",     "14:07:09:000250", "14:07:09:000250"},
        {"TwelveHours",    "HH:MM AM/PM",               DT_TIME,     "14:07",               "02:07 PM", "14:07:00:000000"},
        {"DateTime",       "MM/DD/YYYY HH:MM AM/PM", DT_DATETIME, "1995-07-04 14:07", "07/04/1995 02:07 PM", "1995-07-04 14:07:00:000000"},
    };
    // clang-format on
    return fields;
}

const std::vector<Door>& Doors()
{
    // clang-format off
    static const std::vector<Door> doors = {
        {"MaskAtCreation",      Opens::ToAll,     Leads::ToTheMask,  GoodMask,     MaskAtCreation},     // EditInitParams.maskText
        {"MaskAtInit",          Opens::ToAll,     Leads::ToTheMask,  GoodMask,     MaskAtInit},         // ZTE_Init
        {"MaskSet",             Opens::ToAll,     Leads::ToTheMask,  GoodMask,     MaskSet},            // ZTE_FmtSetMask
        {"DataAtCreation",      Opens::ToAll,     Leads::ToTheValue, GoodData,     DataAtCreation},     // EditInitParams.initialData
        {"DataString",          Opens::ToAll,     Leads::ToTheValue, GoodData,     DataString},         // ZTE_FmtSetDataString
        {"DisplayAsDataString", Opens::ToAll,     Leads::ToTheValue, GoodDisplay,  DataString},
        {"StringData",          Opens::ToStrings, Leads::ToTheValue, GoodData,     StringData},         // ZTE_FmtSetData, ZTE_FmtFormatData
        {"TextRead",            Opens::ToAll,     Leads::ToTheValue, GoodDisplay,  TextRead},           // ZTE_FmtUnformatData
        {"RangeAtCreation",     Opens::ToAll,     Leads::ToTheValue, GoodRange,    RangeAtCreation},    // EditInitParams.spinRangeText
        {"RangeSet",            Opens::ToAll,     Leads::ToTheValue, GoodRange,    RangeSet},           // ZTE_SetSpin
        {"CodesAtCreation",     Opens::ToAll,     Leads::ToTheValue, GoodCodes,    CodesAtCreation},    // EditInitParams.codeTableText
        {"CodesSet",            Opens::ToAll,     Leads::ToTheValue, GoodCodes,    CodesSet},           // ZTE_SetSpin
        {"RangeEndRead",        Opens::ToAll,     Leads::ToTheValue, GoodRangeEnd, RangeEndRead},       // ZTE_SpinDateRange
        {"Pasted",              Opens::ToAll,     Leads::ToTheValue, GoodDisplay,  Pasted},             // WM_PASTE of CF_TEXT
        {"PastedAsUnicode",     Opens::ToAll,     Leads::ToTheValue, GoodDisplay,  PastedAsUnicode},    // WM_PASTE of CF_UNICODETEXT
        {"WindowText",          Opens::ToAll,     Leads::ToTheWindow, GoodDisplay,  WindowText},         // WM_SETTEXT
        {"SelectionReplaced",   Opens::ToAll,     Leads::ToTheWindow, GoodDisplay,  SelectionReplaced},  // EM_REPLACESEL
        {"Typed",               Opens::ToAll,     Leads::ToTheValue, GoodDisplay,  Typed},              // WM_CHAR
    };
    // clang-format on
    return doors;
}

void PrintTo(const Door& door, std::ostream* out)
{
    *out << door.name;
}

void ExpectItWorks(Subject& subject, const FieldRow& field)
{
    if (HasMask(field))
        EXPECT_EQ(subject.SetMask(field.mask, field.type), 1);
    else
        subject.SetMask(field.mask, field.type);
    subject.SetDataString(field.data);
    EXPECT_EQ(subject.Text(), field.shown);
    EXPECT_EQ(subject.Read().value_or(kNullResult), field.read);
    subject.Select(0, 0);
    subject.Press("{Right}1{Back}");
    EXPECT_LE(subject.Text().size(), std::strlen(field.shown) + 1) << subject.Text();
}

}  // namespace zttest
