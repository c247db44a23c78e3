// The fixture of the tests of the spin's window.
#include "tests/support/live/spin_window_test.h"

namespace zttest {

void SpinWindowTest::MakeSpin(const char* mask, int32_t type, const char* range, uint32_t increment, const char* data)
{
    Config config;
    config.mask = mask;
    config.type = type;
    config.options = ZTEO_SPIN;
    config.range = range;
    config.increment = increment;
    config.data = data;
    Make(config);
    SetWindowPos(Window(), nullptr, 0, 0, 150, 20, SWP_NOMOVE | SWP_NOZORDER);
}

void SpinWindowTest::MakeCodeTable(const char* mask, int32_t type, const char* codes, uint32_t style)
{
    MakeSpin(mask, type, nullptr, 1, nullptr);
    ZTE_SetSpin(Window(), 1, nullptr, codes, style);
    control_->AcceptHeap();
}

void SpinWindowTest::Step(Arrow arrow)
{
    form_.Forget();
    Press(arrow == Arrow::Up ? VK_UP : VK_DOWN);
}

void SpinWindowTest::Show(const std::string& marked)
{
    const Marked text = Unmark(marked);
    SetWindowTextA(Window(), text.text.c_str());
    ASSERT_EQ(Text(), text.text);
    if (text.start >= 0)
        control_->Select(text.start, text.end);
    form_.Forget();
}

POINT SpinWindowTest::MiddleOf(Arrow arrow) const
{
    RECT client{};
    GetClientRect(Spin(), &client);
    return {client.right / 2, arrow == Arrow::Up ? client.bottom / 4 : client.bottom * 3 / 4};
}

void SpinWindowTest::MouseAt(UINT message, POINT point) const
{
    SendMessageA(Spin(), message, MK_LBUTTON,
                 MAKELPARAM(static_cast<uint16_t>(point.x), static_cast<uint16_t>(point.y)));
}

zte::EditInstance* SpinWindowTest::RecordOf(HWND hwnd)
{
    HGLOBAL block = GetPropA(hwnd, "MAIN");
    if (!block)
        return nullptr;
    zte::EditInstance* record = *static_cast<zte::EditInstance**>(GlobalLock(block));
    GlobalUnlock(block);
    return record;
}

}  // namespace zttest
