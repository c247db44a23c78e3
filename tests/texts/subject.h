// A control whose texts are handed in as they stand in the caller's memory, without a copy on the way. Two implementations, chosen
// when a test program is linked: live_ hands them to windows of the library, native_ to the engine over a field in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "engine/record.h"
#include "tests/support/config.h"

namespace zttest {

class Subject {
public:
    explicit Subject(const Config& config);
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    ~Subject();

    // Configures the control anew; where there is no window, it is made anew.
    void Init(const Config& config);

    int32_t SetMask(const char* mask, int32_t type);
    void SetData(const void* data);
    void SetDataString(const char* text);
    std::string Format(const void* data);
    void SetSpin(const char* range, const char* codes, uint32_t style);
    bool ReadRangeEnd(DateTimeValue* value, const char* text);
    bool IsOutOfOrder(const void* first, const void* second);

    // Strings and numbers as they are, dates and times as canonical text; none for a null pointer.
    std::optional<std::string> Read();
    std::optional<std::string> Unformat(const char* text);

    // The window's text, and what a program and a user do to it.
    std::string Text();
    void SetText(const char* text);
    void ReplaceAll(const char* text);
    void Select(int start, int end);
    int CaretStart();
    void Type(const std::string& text);
    void Press(const std::string& keys);  // named in braces

    // The clipboard's block holds the bytes and nothing behind them. The text that there is to paste: the system may give it a
    // terminator in the place of its last character.
    std::string Paste(const std::string& bytes);
    std::string PasteUnicode(const std::u16string& units);

    const zte::EditInstance& Record();
    uint32_t Blocks();
    void AcceptBlocks();  // those there now are what the control owns

private:
    struct Implementation;
    std::unique_ptr<Implementation> it_;
};

// The services and decimals that take a text.
namespace services_under_test {
bool IsNumber(const char* text);
bool ParseDateTime(DateTimeValue* value, const char* text, int32_t kind);
bool CompileFormat(void* compiled, const char* text, int32_t size);
int32_t FormatDouble(char* output, int32_t size, const void* compiled, double value);
int32_t FormatDecimal(char* output, int32_t size, const void* compiled, const DecimalValue* value);
void DecimalOf(DecimalValue* value, const char* text, int32_t decimalPlaces);
void Add(DecimalValue* sum, const DecimalValue* first, const DecimalValue* second);
int32_t Compare(const DecimalValue* first, const DecimalValue* second);
std::string CopyOf(const char* text);  // by the heap, and by copying
}  // namespace services_under_test

// True when no heap of the process has been written past a block; where a sanitizer watches it has ended the program.
bool HeapsAreSound();

// Whether the subject is a window, where a call costs a hundred times as much.
bool IsLive();

}  // namespace zttest
