// The library loaded by name while the program runs, as a forms runtime does it: its window classes, and unloading.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/abi/image_file.h"
#include "ztedit.h"

namespace zttest {
namespace {

class Library {
public:
    explicit Library(const char* name) : module_(LoadLibraryA(BuiltFile(name).c_str())) {}
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { FreeLibrary(module_); }

    HMODULE module() const { return module_; }

    template <class Function>
    Function Get(Function, const char* name) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

private:
    HMODULE module_;
};

// The function of a library under the type that its header gives it.
template <class Function>
Function FunctionOf(const Library& library, const char* name)
{
    return library.Get(Function(), name);
}

bool ClassExists(HINSTANCE instance, const char* name)
{
    WNDCLASSA found{};
    return GetClassInfoA(instance, name, &found) != 0;
}

class LoadedLibrary : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(library_.module(), nullptr); }

    WNDPROC Procedure(const char* name) const { return FunctionOf<WNDPROC>(library_, name); }

    Library library_{"ztedit050.dll"};
};

TEST_F(LoadedLibrary, RegistersTheMaskedEditAsACopyOfTheSystemEdit)
{
    WNDCLASSA system{};
    WNDCLASSA masked{};
    ASSERT_TRUE(GetClassInfoA(nullptr, "edit", &system));
    ASSERT_TRUE(GetClassInfoA(library_.module(), ZTEDIT_CLASS, &masked));
    EXPECT_EQ(masked.style, system.style | CS_GLOBALCLASS);
    EXPECT_EQ(masked.lpfnWndProc, Procedure("ZTE_SuperEditWndProc"));
    EXPECT_EQ(masked.cbClsExtra, system.cbClsExtra);
    EXPECT_EQ(masked.cbWndExtra, system.cbWndExtra);
    EXPECT_EQ(masked.hIcon, system.hIcon);
    EXPECT_EQ(masked.hCursor, system.hCursor);
    EXPECT_EQ(masked.hbrBackground, system.hbrBackground);
    EXPECT_EQ(masked.lpszMenuName, nullptr);
}

TEST_F(LoadedLibrary, LetsEveryModuleUseTheMaskedEdit)
{
    EXPECT_TRUE(ClassExists(GetModuleHandleA(nullptr), ZTEDIT_CLASS));
    EXPECT_TRUE(ClassExists(GetModuleHandleA("user32.dll"), ZTEDIT_CLASS));
}

TEST_F(LoadedLibrary, RegistersTheSpinForItself)
{
    WNDCLASSA spin{};
    ASSERT_TRUE(GetClassInfoA(library_.module(), "spin", &spin));
    EXPECT_EQ(spin.style, 0u);
    EXPECT_EQ(spin.lpfnWndProc, Procedure("ZTE_SpinWndProc"));
    EXPECT_EQ(spin.cbClsExtra, 0);
    EXPECT_EQ(spin.cbWndExtra, 4);
    EXPECT_EQ(spin.hInstance, library_.module());
    EXPECT_EQ(spin.hIcon, nullptr);
    EXPECT_EQ(spin.hCursor, LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
    EXPECT_EQ(spin.hbrBackground, GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(spin.lpszMenuName, nullptr);
    EXPECT_FALSE(ClassExists(GetModuleHandleA(nullptr), "spin"));
}

TEST_F(LoadedLibrary, HasAnExitProcedureThatMayBeCalledAnyTime)
{
    const auto exitProcedure = FunctionOf<decltype(&WEP)>(library_, "WEP");
    EXPECT_EQ(exitProcedure(0), 1);
    EXPECT_EQ(exitProcedure(1), 1);
    EXPECT_TRUE(ClassExists(library_.module(), ZTEDIT_CLASS));
}

// Makes a date control with the functions of the library just loaded, types a digit and returns the text shown.
std::string TypeIntoADate(const Library& library)
{
    const Library shared("ztshared.dll");
    const auto createHeap = FunctionOf<decltype(&SharedHeapCreate)>(shared, "SharedHeapCreate");
    const auto destroyHeap = FunctionOf<decltype(&SharedHeapDestroy)>(shared, "SharedHeapDestroy");
    const SharedHeap heap = createHeap();
    EditInitParams params{};
    params.heap = heap;
    params.maskText = "MM/DD/YY";
    params.dataType = DT_DATE;
    params.initialData = "1995-12-04";
    params.options = ZTEO_SPIN;
    const HWND control =
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_POPUP, 0, 0, 100, 20, nullptr, nullptr, library.module(), &params);
    SendMessageA(control, EM_SETSEL, 0, 0);
    SendMessageA(control, WM_CHAR, '0', 1);
    char text[32] = "";
    GetWindowTextA(control, text, sizeof text);
    DestroyWindow(control);
    destroyHeap(heap);
    return text;
}

TEST(LoadingAgain, WorksEveryTimeAndUnloadingTakesTheClassesAway)
{
    for (int round = 0; round < 20; ++round) {
        HMODULE gone = nullptr;
        {
            const Library library("ztedit050.dll");
            ASSERT_NE(library.module(), nullptr);
            gone = library.module();
            EXPECT_TRUE(ClassExists(gone, ZTEDIT_CLASS)) << round;
            EXPECT_TRUE(ClassExists(gone, "spin")) << round;
            EXPECT_EQ(TypeIntoADate(library), "02/04/95") << round;
        }
        ASSERT_EQ(GetModuleHandleA("ztedit050.dll"), nullptr) << round;
        EXPECT_FALSE(ClassExists(GetModuleHandleA(nullptr), ZTEDIT_CLASS)) << round;
        EXPECT_FALSE(ClassExists(gone, "spin")) << round;
    }
}

TEST(LinkedProgram, RunsWithTheImportLibraries)
{
    std::string command = "\"" + BuiltFile("abi_customer.exe") + "\"";
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(
        CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process));
    EXPECT_EQ(WaitForSingleObject(process.hProcess, 60000), WAIT_OBJECT_0);
    DWORD result = 99;
    GetExitCodeProcess(process.hProcess, &result);
    EXPECT_EQ(result, 0u);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

TEST(LinkedProgram, ImportsTheFunctionsByPlainName)
{
    const std::vector<std::string> needed = ImageFile(BuiltFile("abi_customer.exe")).ImportedLibraries();
    for (const char* library : {"ztedit050.dll", "ztshared.dll", "ztdecimal.dll"})
        EXPECT_NE(std::find(needed.begin(), needed.end(), library), needed.end()) << library;
}

}  // namespace
}  // namespace zttest
