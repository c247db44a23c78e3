// Decimals in the hands of OLE Automation.
#include <gtest/gtest.h>

#include "ztdecimal.h"

namespace {

TEST(DecimalRecord, IsUnderstoodByOleAutomation)
{
    const HMODULE automation = LoadLibraryA("oleaut32.dll");
    ASSERT_NE(automation, nullptr);
    using Convert = HRESULT(WINAPI*)(const DecimalValue*, double*);
    const auto convert = reinterpret_cast<Convert>(reinterpret_cast<void*>(GetProcAddress(automation, "VarR8FromDec")));
    ASSERT_NE(convert, nullptr);
    DecimalValue value;
    DecFromString(&value, "-18446744073709551616.125", 0);
    double number = 0;
    EXPECT_EQ(convert(&value, &number), S_OK);
    EXPECT_DOUBLE_EQ(number, -18446744073709551616.125);
    FreeLibrary(automation);
}

}  // namespace
