// The functions that docs/manual/forms.md prints do what it says of them, on live controls.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/live/window_test.h"
#include "tests/support/profile.h"
#include "tests/win32/manual_form.h"

namespace zttest {
namespace {

struct FieldOfForm {
    const char* mask;
    int32_t type;
};
constexpr FieldOfForm kFields[] = {
    {"(###) ###-####", DT_STRING },
    {"MM/DD/YYYY",     DT_DATE   },
    {"HH:MM",          DT_TIME   },
    {"#,##0.00",       DT_DECIMAL},
};

// A file of this test alone.
class TemporaryFile {
public:
    TemporaryFile()
    {
        char folder[MAX_PATH] = "";
        GetTempPathA(MAX_PATH, folder);
        GetTempFileNameA(folder, "zt", 0, name_);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { DeleteFileA(name_); }

    template <typename Work>
    auto With(const char* mode, Work work) const
    {
        FILE* file = std::fopen(name_, mode);
        const auto result = work(file);
        std::fclose(file);
        return result;
    }

private:
    char name_[MAX_PATH] = "";
};

class ManualForm : public WindowTest {
protected:
    ManualForm() : heap_(SharedHeapCreate())
    {
        for (int id = FIRST_FIELD; id <= LAST_FIELD; ++id) {
            EditInitParams params = {};
            params.heap = heap_;
            params.maskText = kFields[id - FIRST_FIELD].mask;
            params.dataType = kFields[id - FIRST_FIELD].type;
            params.options = ZTEO_MODERN;
            CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 24, form_.hwnd(),
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, &params);
        }
        blocks_ = SharedHeapBlockCount(heap_);
    }
    ~ManualForm() override
    {
        EXPECT_EQ(SharedHeapBlockCount(heap_), blocks_) << "what was read was not given back";
        for (int id = FIRST_FIELD; id <= LAST_FIELD; ++id)
            DestroyWindow(Field(id));
        SharedHeapDestroy(heap_);
    }

    HWND Field(int id) const { return GetDlgItem(form_.hwnd(), id); }
    std::string Text(int id) const
    {
        char text[100] = "";
        GetWindowTextA(Field(id), text, sizeof text);
        return text;
    }
    void Fill(const char* phone, const char* day, const char* time, const char* amount)
    {
        const char* texts[] = {phone, day, time, amount};
        for (int id = FIRST_FIELD; id <= LAST_FIELD; ++id)
            EXPECT_EQ(ZTE_TrySetDataString(Field(id), texts[id - FIRST_FIELD]), 0) << id;
    }
    BOOL Save() const
    {
        return file_.With("w", [this](FILE* file) { return SaveForm(form_.hwnd(), heap_, file); });
    }
    HWND Load() const
    {
        return file_.With("r", [this](FILE* file) { return LoadForm(form_.hwnd(), file); });
    }

    SharedHeap heap_;
    TemporaryFile file_;
    uint32_t blocks_ = 0;
};

TEST_F(ManualForm, IsSavedAndLoaded)
{
    Fill("5551234567", "2026-11-21", "00:00", "1234.5");
    EXPECT_EQ(FirstWrongField(form_.hwnd()), nullptr);
    EXPECT_TRUE(Save());
    Fill("", "", "", "");
    EXPECT_EQ(Load(), nullptr);
    EXPECT_EQ(Text(FIRST_FIELD), "(555) 123-4567");
    EXPECT_EQ(Text(FIRST_FIELD + 1), "11/21/2026");
    EXPECT_EQ(Text(FIRST_FIELD + 2), "00:00");
    EXPECT_EQ(Text(LAST_FIELD), "1,234.50");
}

TEST_F(ManualForm, KeepsWhatIsEmptyEmpty)
{
    EXPECT_TRUE(Save());
    Fill("5551234567", "2026-11-21", "09:30", "1");
    EXPECT_EQ(Load(), nullptr);
    for (int id = FIRST_FIELD; id <= LAST_FIELD; ++id)
        EXPECT_EQ(ZTE_GetState(Field(id)), ZTS_EMPTY) << id;
}

TEST_F(ManualForm, IsNotSavedWithAWrongField)
{
    Fill("555", "2026-11-21", "", "");
    EXPECT_EQ(FirstWrongField(form_.hwnd()), Field(FIRST_FIELD));
    EXPECT_FALSE(Save());
    Fill("5551234567", "", "", "");
    SetWindowTextA(Field(FIRST_FIELD + 1), "02/30/2026");
    EXPECT_EQ(FirstWrongField(form_.hwnd()), Field(FIRST_FIELD + 1));
    EXPECT_FALSE(Save());
}

TEST_F(ManualForm, TellsOfALineThatIsRefused)
{
    file_.With("w", [](FILE* file) { return std::fputs("5551234567\n2026-02-30\n", file); });
    Fill("", "2026-11-21", "", "");
    EXPECT_EQ(Load(), Field(FIRST_FIELD + 1));
    EXPECT_EQ(Text(FIRST_FIELD + 1), "11/21/2026");
}

TEST_F(ManualForm, GivesDatesAndAmounts)
{
    SYSTEMTIME day = {};
    EXPECT_FALSE(ReadDay(Field(FIRST_FIELD + 1), heap_, &day));
    EXPECT_EQ(ReadAmount(Field(LAST_FIELD), heap_, -1), -1);
    Fill("", "2026-11-21", "", "1234.5");
    EXPECT_TRUE(ReadDay(Field(FIRST_FIELD + 1), heap_, &day));
    EXPECT_EQ(day.wYear, 2026);
    EXPECT_EQ(day.wMonth, 11);
    EXPECT_EQ(day.wDay, 21);
    EXPECT_EQ(ReadAmount(Field(LAST_FIELD), heap_, -1), 1234.5);
}

TEST_F(ManualForm, HasNoDateInAClassicFieldWhoseTextIsGone)
{
    ZTE_SetModern(Field(FIRST_FIELD + 1), 0);
    SetWindowTextA(Field(FIRST_FIELD + 1), "");
    SYSTEMTIME day = {};
    EXPECT_FALSE(ReadDay(Field(FIRST_FIELD + 1), heap_, &day));
}

class ManualMask : public ManualForm {};

TEST_F(ManualMask, UnderADecimalCommaIsJudgedAsAClassicControlTakesIt)
{
    const Regional german(kGerman);
    const HWND field = Field(LAST_FIELD);
    EXPECT_EQ(TellMaskFault("#,##0.00", DT_DECIMAL), ZTM_OUT_OF_PLACE);
    EXPECT_EQ(ZTE_FmtSetMask(field, "#,##0.00", DT_DECIMAL), 1);
    EXPECT_EQ(ZTE_GetLastProblem(field), ZTP_NONE);
    ZTE_SetModern(field, 0);
    EXPECT_EQ(ZTE_FmtSetMask(field, "#,##0.00", DT_DECIMAL), 0);
    EXPECT_EQ(ZTE_GetLastProblem(field), ZTP_MASK);
}

TEST_F(ManualMask, IsJudged)
{
    EXPECT_EQ(TellMaskFault("MM/DD", DT_DATE), ZTM_FIELD_MISSING);
    EXPECT_EQ(TellMaskFault("MM/DD/YYYY", DT_DATE), ZTM_FITS);
}

}  // namespace
}  // namespace zttest
