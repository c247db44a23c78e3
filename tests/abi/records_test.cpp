// Sizes and offsets of the records that cross the border of the libraries.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>

#include "ztedit.h"

#include "tests/support/rows.h"

namespace {

constexpr bool kIs32Bit = sizeof(void*) == 4;

struct FieldCase {
    const char* name;
    size_t actual;
    size_t on32Bit;
    size_t on64Bit;
};

void PrintTo(const FieldCase& row, std::ostream* out)
{
    *out << row.name;
}

class RecordLayout : public zttest::RowTest<FieldCase> {};

ROW_TEST(RecordLayout, IsFixed)
{
    EXPECT_EQ(GetParam().actual, kIs32Bit ? GetParam().on32Bit : GetParam().on64Bit);
}

const FieldCase kFields[] = {
    {"InitHeap",             offsetof(EditInitParams, heap),          0,  0 },
    {"InitHeapFlags",        offsetof(EditInitParams, heapFlags),     4,  8 },
    {"InitReserved",         offsetof(EditInitParams, reserved),      8,  12},
    {"InitMaskText",         offsetof(EditInitParams, maskText),      12, 16},
    {"InitDataType",         offsetof(EditInitParams, dataType),      16, 24},
    {"InitInitialData",      offsetof(EditInitParams, initialData),   20, 32},
    {"InitSpinRangeText",    offsetof(EditInitParams, spinRangeText), 24, 40},
    {"InitSpinIncrement",    offsetof(EditInitParams, spinIncrement), 28, 48},
    {"InitCodeTableText",    offsetof(EditInitParams, codeTableText), 32, 56},
    {"InitOptions",          offsetof(EditInitParams, options),       36, 64},
    {"ResultText",           offsetof(FormatResult,   text),          0,  0 },
    {"ResultFormatFlags",    offsetof(FormatResult,   formatFlags),   4,  8 },
    {"ResultFirstFieldPos",  offsetof(FormatResult,   firstFieldPos), 8,  12},
    {"DateTimeMicrosecond",  offsetof(DateTimeValue,  microsecond),   0,  0 },
    {"DateTimeYear",         offsetof(DateTimeValue,  year),          4,  4 },
    {"DateTimeMonth",        offsetof(DateTimeValue,  month),         6,  6 },
    {"DateTimeDay",          offsetof(DateTimeValue,  day),           7,  7 },
    {"DateTimeHour",         offsetof(DateTimeValue,  hour),          8,  8 },
    {"DateTimeMinute",       offsetof(DateTimeValue,  minute),        9,  9 },
    {"DateTimeSecond",       offsetof(DateTimeValue,  second),        10, 10},
    {"DateTimeSpare",        offsetof(DateTimeValue,  spare),         11, 11},
    {"DecimalReserved",      offsetof(DecimalValue,   reserved),      0,  0 },
    {"DecimalScale",         offsetof(DecimalValue,   scale),         2,  2 },
    {"DecimalSign",          offsetof(DecimalValue,   sign),          3,  3 },
    {"DecimalHigh",          offsetof(DecimalValue,   hi32),          4,  4 },
    {"DecimalLow",           offsetof(DecimalValue,   lo64),          8,  8 },
    {"DecimalPlatformScale", offsetof(DECIMAL,        scale),         2,  2 },
    {"DecimalPlatformSign",  offsetof(DECIMAL,        sign),          3,  3 },
    {"DecimalPlatformHigh",  offsetof(DECIMAL,        Hi32),          4,  4 },
    {"DecimalPlatformLow",   offsetof(DECIMAL,        Lo64),          8,  8 },
};

const FieldCase kSizes[] = {
    {"InitSize",            sizeof(EditInitParams), 40, 72},
    {"ResultSize",          sizeof(FormatResult),   12, 16},
    {"DateTimeSize",        sizeof(DateTimeValue),  12, 12},
    {"DecimalSize",         sizeof(DecimalValue),   16, 16},
    {"DecimalPlatformSize", sizeof(DECIMAL),        16, 16},
};

TEST_ROWS(Offsets, RecordLayout, kFields);
TEST_ROWS(Sizes, RecordLayout, kSizes);

TEST(Records, ArePlainDataThatMayBeCopiedByteByByte)
{
    EXPECT_TRUE(std::is_trivially_copyable<EditInitParams>::value && std::is_standard_layout<EditInitParams>::value);
    EXPECT_TRUE(std::is_trivially_copyable<FormatResult>::value && std::is_standard_layout<FormatResult>::value);
    EXPECT_TRUE(std::is_trivially_copyable<DateTimeValue>::value && std::is_standard_layout<DateTimeValue>::value);
    EXPECT_TRUE(std::is_trivially_copyable<DecimalValue>::value && std::is_standard_layout<DecimalValue>::value);
}

}  // namespace
