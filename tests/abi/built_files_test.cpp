// The built libraries as files: the names they export, the libraries they need, their resources.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/abi/image_file.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr char kControlLibrary[] = "ztedit050.dll";

const std::vector<std::string> kExports = {
    "WEP",
    "ZTE_CheckMask",
    "ZTE_CreateSpin",
    "ZTE_DestroySpin",
    "ZTE_FmtFormatData",
    "ZTE_FmtGetData",
    "ZTE_FmtGetDataType",
    "ZTE_FmtSetData",
    "ZTE_FmtSetDataString",
    "ZTE_FmtSetMask",
    "ZTE_FmtUnformatData",
    "ZTE_GetDataString",
    "ZTE_GetLastProblem",
    "ZTE_GetSpinWidth",
    "ZTE_GetState",
    "ZTE_Init",
    "ZTE_Initialize",
    "ZTE_PaintSpin",
    "ZTE_PaintSpinOnce",
    "ZTE_SetAutoskip",
    "ZTE_SetModern",
    "ZTE_SetSpin",
    "ZTE_SetSpinBkColor",
    "ZTE_SpinDateRange",
    "ZTE_SpinRangeCompare",
    "ZTE_SpinWndProc",
    "ZTE_SuperEditWndProc",
    "ZTE_TrySetDataString",
    "ZTE_UtilSetFormatRect",
};

struct NeededCase {
    const char* library;
    std::vector<std::string> needed;  // in lower case and sorted
};

void PrintTo(const NeededCase& row, std::ostream* out)
{
    *out << row.library;
}

std::string StemOf(const std::string& file)
{
    return file.substr(0, file.find('.'));
}

std::string Lower(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(tolower(static_cast<unsigned char>(c)));
    return text;
}

TEST(ControlLibrary, ExportsItsFunctionsUnderPlainNamesAndNothingElse)
{
    const ImageFile image(BuiltFile(kControlLibrary));
    std::vector<std::string> names;
    for (const NamedExport& found : image.Exports())
        names.push_back(found.name);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, kExports);
    EXPECT_EQ(image.ExportCount(), kExports.size());
}

class BuiltLibrary : public RowTest<NeededCase> {};

ROW_TEST(BuiltLibrary, IsMadeForTheMachineOfItsFolder)
{
    EXPECT_EQ(ImageFile(BuiltFile(GetParam().library)).Machine(),
              sizeof(void*) == 4 ? IMAGE_FILE_MACHINE_I386 : IMAGE_FILE_MACHINE_AMD64);
}

ROW_TEST(BuiltLibrary, NeedsOnlyWindowsAndItsCompanions)
{
    std::vector<std::string> needed = ImageFile(BuiltFile(GetParam().library)).ImportedLibraries();
    std::transform(needed.begin(), needed.end(), needed.begin(), Lower);
    std::sort(needed.begin(), needed.end());
    EXPECT_EQ(needed, GetParam().needed);
}

ROW_TEST(BuiltLibrary, TellsVersionAndName)
{
    const std::string path = BuiltFile(GetParam().library);
    std::vector<char> block(GetFileVersionInfoSizeA(path.c_str(), nullptr));
    ASSERT_FALSE(block.empty());
    ASSERT_TRUE(GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));

    void* value = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueA(block.data(), "\\", &value, &size));
    const auto* fixed = static_cast<const VS_FIXEDFILEINFO*>(value);
    EXPECT_EQ(fixed->dwFileVersionMS, 5u);  // 0.5
    EXPECT_EQ(fixed->dwFileVersionLS, 0u);
    EXPECT_EQ(fixed->dwFileType, static_cast<DWORD>(VFT_DLL));

    ASSERT_TRUE(VerQueryValueA(block.data(), "\\StringFileInfo\\040904E4\\OriginalFilename", &value, &size));
    EXPECT_STREQ(static_cast<const char*>(value), GetParam().library);
}

// clang-format off
const NeededCase kLibraries[] = {
    {"ztdecimal.dll", {"kernel32.dll", "msvcrt.dll"}},
    {"ztshared.dll",  {"kernel32.dll", "msvcrt.dll"}},
    {kControlLibrary, {"gdi32.dll", "kernel32.dll", "msvcrt.dll", "user32.dll", "ztdecimal.dll", "ztshared.dll"}},
};
// clang-format on

std::string StemOfRow(const NeededCase& row)
{
    return StemOf(row.library);
}

TEST_ROWS_NAMED(Libraries, BuiltLibrary, StemOfRow, kLibraries);

class MonthName : public RowTest<int> {};

ROW_TEST(MonthName, IsAStringResource)
{
    constexpr char kNames[] = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
    const HMODULE library = LoadLibraryA(kControlLibrary);
    ASSERT_NE(library, nullptr);
    char text[16] = "";
    EXPECT_EQ(LoadStringA(library, 2000 + static_cast<UINT>(GetParam()), text, sizeof text), 3);
    EXPECT_EQ(text, std::string(kNames + 3 * GetParam(), 3));
    FreeLibrary(library);
}

TEST_ROWS(Months, MonthName, Integers(0, 12));

}  // namespace
}  // namespace zttest
