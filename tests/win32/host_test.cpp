// Hosts: dialogs, many controls, several heaps, and hosts that destroy a control while it is at work.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/live/window_test.h"
#include "tests/support/profile.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

EditInitParams Params(SharedHeap heap, const char* mask, int32_t type, const char* data, uint32_t options = 0)
{
    EditInitParams params = {};
    params.heap = heap;
    params.maskText = mask;
    params.dataType = type;
    params.initialData = data;
    params.options = options;
    return params;
}

HWND CreateOn(HWND parent, EditInitParams* params, int id = 1)
{
    return CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, params);
}

// A dialog template in memory with one control of the library's class.
std::vector<WORD> DialogTemplate()
{
    std::vector<WORD> words;
    const auto addLong = [&](DWORD value) {
        words.push_back(LOWORD(value));
        words.push_back(HIWORD(value));
    };
    const auto addText = [&](const char* text) {
        for (; *text; ++text)
            words.push_back(static_cast<unsigned char>(*text));
        words.push_back(0);
    };
    addLong(WS_POPUP | DS_SETFONT);
    addLong(0);
    words.insert(words.end(), {1, 0, 0, 200, 100});  // one control; x, y, width, height
    words.push_back(0);                              // no menu
    words.push_back(0);                              // the standard class
    addText("dialog");
    words.push_back(8);
    addText("MS Shell Dlg");
    if (words.size() % 2)
        words.push_back(0);  // items start on a DWORD
    addLong(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL);
    addLong(0);
    words.insert(words.end(), {10, 10, 80, 12, 42});  // x, y, width, height, identifier
    addText(ZTEDIT_CLASS);
    addText("");
    words.push_back(0);  // no creation data
    return words;
}

INT_PTR CALLBACK DialogProc(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

class DialogHost : public testing::Test {
protected:
    void SetUp() override
    {
        const std::vector<WORD> words = DialogTemplate();
        dialog_ = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), reinterpret_cast<LPCDLGTEMPLATEA>(words.data()),
                                             nullptr, DialogProc, 0);
        ASSERT_NE(dialog_, nullptr);
        control_ = GetDlgItem(dialog_, 42);
        ASSERT_NE(control_, nullptr);
    }
    void TearDown() override { DestroyWindow(dialog_); }

    HWND dialog_ = nullptr;
    HWND control_ = nullptr;
};

TEST_F(DialogHost, AControlFromATemplateIsAPlainEditAtFirst)
{
    Typist typist(control_);
    typist.Type("abc");
    EXPECT_EQ(TextOf(control_), "abc");
}

TEST_F(DialogHost, InitConfiguresAControlFromATemplate)
{
    const SharedHeap heap = SharedHeapCreate();
    EditInitParams params = Params(heap, "MM/DD/YY", DT_DATE, "1995-07-04");
    ZTE_Init(control_, &params);
    Typist typist(control_);
    SendMessageA(control_, EM_SETSEL, 0, 0);
    typist.Type("12");
    EXPECT_EQ(TextOf(control_), "12/04/95");
    DestroyWindow(dialog_);
    SharedHeapDestroy(heap);
}

TEST(ManyControls, OfOneFormWorkInOneHeap)
{
    constexpr int kCount = 400;
    Form form;
    const SharedHeap heap = SharedHeapCreate();
    std::vector<HWND> controls;
    for (int i = 0; i < kCount; ++i) {
        EditInitParams params =
            i % 2 ? Params(heap, "MM/DD/YY", DT_DATE, "1995-07-04") : Params(heap, "#,##0.00", DT_NUMBER, "1.5");
        controls.push_back(CreateOn(form.hwnd(), &params, i + 1));
        ASSERT_NE(controls.back(), nullptr);
    }
    int wrong = 0;
    for (int i = 0; i < kCount; ++i) {
        const HWND control = controls[static_cast<size_t>(i)];
        Typist typist(control);
        SendMessageA(control, EM_SETSEL, 0, 0);
        typist.Type("1");
        wrong += TextOf(control) != (i % 2 ? "10/04/95" : "11.50");
    }
    EXPECT_EQ(wrong, 0);
    for (const HWND control : controls)
        DestroyWindow(control);
    EXPECT_EQ(SharedHeapBlockCount(heap), static_cast<uint32_t>(kCount));  // the masks
    SharedHeapDestroy(heap);
}

TEST(TwoForms, WithTwoHeapsDoNotDisturbEachOther)
{
    auto first = std::make_unique<Form>();
    Form second;
    const SharedHeap firstHeap = SharedHeapCreate();
    const SharedHeap secondHeap = SharedHeapCreate();
    EditInitParams firstParams = Params(firstHeap, "MM/DD/YY", DT_DATE, "1995-07-04");
    EditInitParams secondParams = Params(secondHeap, "DD.MM.YYYY", DT_DATE, "1995-07-04");
    CreateOn(first->hwnd(), &firstParams);
    const HWND left = CreateOn(second.hwnd(), &secondParams);
    first.reset();
    SharedHeapDestroy(firstHeap);
    Typist typist(left);
    SendMessageA(left, EM_SETSEL, 0, 0);
    typist.Type("31");
    EXPECT_EQ(TextOf(left), "31.07.1995");
    DestroyWindow(left);
    SharedHeapDestroy(secondHeap);
}

// A key that makes the control notify the host, which destroys the control, and the heap with it, there and then.
struct DoomedKey {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
    uint32_t options;
    int caret;
    const char* keys;
    int notification;
};
void PrintTo(const DoomedKey& row, std::ostream* out)
{
    *out << row.name;
}

class DestroyedInItsNotification : public WindowTest, public OfRow<DoomedKey> {
protected:
    void MakeDoomed(const DoomedKey& row)
    {
        heap_ = SharedHeapCreate();
        EditInitParams params = Params(heap_, row.mask, row.type, row.data, row.options);
        params.spinIncrement = 1;
        doomed_ = CreateOn(form_.hwnd(), &params);
        typist_.Use(doomed_);
        form_.onNotification = [this, code = row.notification](const Notification& notification) {
            if (notification.code == code)
                Destroy();
        };
    }
    void Destroy()
    {
        if (!heap_)
            return;
        DestroyWindow(doomed_);
        SharedHeapDestroy(heap_);
        heap_ = nullptr;
    }
    void TearDown() override { Destroy(); }

    HWND doomed_ = nullptr;
    SharedHeap heap_ = nullptr;
};

ROW_TEST(DestroyedInItsNotification, IsGoneAndNothingElseHappens)
{
    const DoomedKey& row = GetParam();
    MakeDoomed(row);
    SendMessageA(doomed_, EM_SETSEL, static_cast<WPARAM>(row.caret), row.caret);
    Play(row.keys);
    EXPECT_FALSE(IsWindow(doomed_));
    EXPECT_EQ(heap_, nullptr) << "the notification never came";
    EXPECT_EQ(Beeps(), 0);
}

// clang-format off
constexpr DoomedKey kDoomedKeys[] = {
    {"AutoskipOfADate",        "MM/DD/YY", DT_DATE,   "1995-07-04", ZTEO_AUTOSKIP, 7, "6",       ZTN_AUTOSKIP},
    {"AutoskipOfAFraction",    "#,##0.00", DT_NUMBER, "1.5",        ZTEO_AUTOSKIP, 3, "6",       ZTN_AUTOSKIP},
    {"AutoskipOfAWholeNumber", "####",     DT_NUMBER, "123",        ZTEO_AUTOSKIP, 3, "4",       ZTN_AUTOSKIP},
    {"AutoskipOfTheRightKey",  "MM/DD/YY", DT_DATE,   "1995-07-04", ZTEO_AUTOSKIP, 7, "{Right}", ZTN_AUTOSKIP},
    {"ChangeAfterASpinStep",   "####",     DT_NUMBER, "5",          ZTEO_SPIN,     0, "{Up}",    EN_CHANGE   },
};
// clang-format on
TEST_ROWS(Keys, DestroyedInItsNotification, kDoomedKeys);

class SettingsChange : public WindowTest {};

TEST_F(SettingsChange, ReachesOpenControls)
{
    Given("", DT_NUMBER, "|12.50");
    const Regional german(kGerman);
    SendMessageA(Window(), WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    ZTE_FmtSetDataString(Window(), "1234.5");
    EXPECT_EQ(Text(), "1.234,50");
}

TEST_F(SettingsChange, LeavesTextShownAsItIs)
{
    Given("", DT_NUMBER, "|12.50");
    const Regional german(kGerman);
    EXPECT_EQ(Shown(), "|12.50");
}

TEST_F(SettingsChange, LeavesAMaskAsItIs)
{
    Given("[date]", DT_DATE, "|07/04/1995");
    const Regional german(kGerman);
    ZTE_FmtSetDataString(Window(), "2001-12-31");
    EXPECT_EQ(Text(), "12/31/2001");
}

TEST_F(SettingsChange, IsHeardWithoutARecord)
{
    const HWND plain =
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 20, form_.hwnd(), nullptr, nullptr, nullptr);
    Given("", DT_NUMBER, "|12.50");
    {
        const Regional german(kGerman);  // tells the library
        WriteProfileStringA("intl", "sDecimal", "!");
        SendMessageA(plain, WM_WININICHANGE, 0, 0);
        ZTE_FmtSetDataString(Window(), "12.5");
        EXPECT_EQ(Text(), "12!50");
        WriteProfileStringA("intl", "sDecimal", ",");
    }
    DestroyWindow(plain);
}

}  // namespace
}  // namespace zttest
