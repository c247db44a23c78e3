// The libraries as they are loaded: plain names and the ordinals that callers import by.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/rows.h"

namespace {

struct ExportCase {
    const char* library;
    const char* name;
    WORD ordinal;
};

void PrintTo(const ExportCase& row, std::ostream* out)
{
    *out << row.library << ' ' << row.name;
}

class Export : public zttest::RowTest<ExportCase> {};

ROW_TEST(Export, IsFoundByNameAndOrdinal)
{
    const HMODULE library = GetModuleHandleA(GetParam().library);
    ASSERT_NE(library, nullptr);
    const FARPROC byName = GetProcAddress(library, GetParam().name);
    EXPECT_NE(byName, nullptr);
    EXPECT_EQ(GetProcAddress(library, MAKEINTRESOURCEA(GetParam().ordinal)), byName);
}

constexpr ExportCase kExports[] = {
    {"ztshared.dll",  "SharedListDestroy",          30 },
    {"ztshared.dll",  "SharedListNext",             32 },
    {"ztshared.dll",  "SharedListPrev",             33 },
    {"ztshared.dll",  "SharedListAppend",           39 },
    {"ztshared.dll",  "SharedListCreate",           40 },
    {"ztshared.dll",  "SharedListFirst",            43 },
    {"ztshared.dll",  "SharedListLast",             44 },
    {"ztshared.dll",  "SharedListCurrent",          45 },
    {"ztshared.dll",  "SharedListTell",             47 },
    {"ztshared.dll",  "SharedListSeek",             48 },
    {"ztshared.dll",  "SharedHeapCreate",           148},
    {"ztshared.dll",  "SharedHeapDestroy",          149},
    {"ztshared.dll",  "SharedHeapAlloc",            150},
    {"ztshared.dll",  "SharedHeapFree",             151},
    {"ztshared.dll",  "SharedHeapBlockCount",       152},
    {"ztshared.dll",  "SharedHeapIsAlive",          153},
    {"ztshared.dll",  "SharedHeapWatch",            154},
    {"ztshared.dll",  "SharedHeapUnwatch",          155},
    {"ztshared.dll",  "SharedHeapRealloc",          159},
    {"ztshared.dll",  "SharedHeapStrDup",           162},
    {"ztshared.dll",  "SharedStrCopy",              171},
    {"ztshared.dll",  "SharedCharConvertOne",       180},
    {"ztshared.dll",  "SharedCharConvertTwo",       181},
    {"ztshared.dll",  "SharedIsNumber",             182},
    {"ztshared.dll",  "SharedParseDateTime",        190},
    {"ztshared.dll",  "SharedDateTimeNow",          191},
    {"ztshared.dll",  "SharedCompileFormat",        200},
    {"ztshared.dll",  "SharedFormatDouble",         201},
    {"ztshared.dll",  "SharedFormatDecimal",        202},
    {"ztshared.dll",  "SharedReadRegionalSettings", 210},
    {"ztdecimal.dll", "DecFromString",              2  },
    {"ztdecimal.dll", "DecAdd",                     4  },
    {"ztdecimal.dll", "DecSubtract",                5  },
    {"ztdecimal.dll", "DecDivide",                  7  },
    {"ztdecimal.dll", "DecCompare",                 14 },
    {"ztdecimal.dll", "DecFromUnsigned",            18 },
    {"ztdecimal.dll", "DecSetZero",                 29 },
    {"ztdecimal.dll", "DecCopy",                    31 },
};

TEST_ROWS(Functions, Export, kExports);

// The tables of a loaded library.
class Image {
public:
    explicit Image(const char* name) : base_(reinterpret_cast<const unsigned char*>(GetModuleHandleA(name))) {}

    std::vector<std::string> ExportedNames() const
    {
        const auto& table = At<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
        const DWORD* const names = &At<DWORD>(table.AddressOfNames);
        std::vector<std::string> found;
        for (DWORD i = 0; i < table.NumberOfNames; ++i)
            found.emplace_back(&At<char>(names[i]));
        return found;
    }

private:
    template <class T>
    const T& At(DWORD offset) const
    {
        return *reinterpret_cast<const T*>(base_ + offset);
    }

    DWORD Directory(int index) const
    {
        const auto& dos = At<IMAGE_DOS_HEADER>(0);
        return At<IMAGE_NT_HEADERS>(static_cast<DWORD>(dos.e_lfanew))
            .OptionalHeader.DataDirectory[index]
            .VirtualAddress;
    }

    const unsigned char* base_;
};

std::string StemOf(const char* const& library)
{
    return std::string(library, std::string(library).find('.'));
}

class LibraryImage : public zttest::RowTest<const char*> {};

ROW_TEST(LibraryImage, ExportsTheFunctionsOfItsHeaderAndNoOther)
{
    std::vector<std::string> expected;
    for (const ExportCase& row : kExports)
        if (std::string(row.library) == GetParam())
            expected.emplace_back(row.name);
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(Image(GetParam()).ExportedNames(), expected);
}

TEST_ROWS_NAMED(Libraries, LibraryImage, StemOf, std::vector{"ztshared.dll", "ztdecimal.dll"});

}  // namespace
