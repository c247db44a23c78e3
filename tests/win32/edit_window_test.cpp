// What editing does that only a window can show: keys left to the system's own control, key messages of odd kinds, and
// whom a notification names.
#include "tests/support/live/window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// Keys that the library leaves alone do what they do in a plain edit.
class KeyLeftAlone : public WindowTest, public OfRow<int> {};

ROW_TEST(KeyLeftAlone, ActsAsInAPlainEdit)
{
    Given("MM/DD/YY", DT_DATE, "07/0|4/95");
    const HWND plain = CreateWindowExA(0, "edit", "07/04/95", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 200, 20, form_.hwnd(),
                                       nullptr, nullptr, nullptr);
    SendMessageA(plain, EM_SETSEL, 4, 4);
    Typist plainTypist(plain);
    plainTypist.Press(GetParam());
    const LRESULT expected = SendMessageA(plain, EM_GETSEL, 0, 0);
    Press(GetParam());
    EXPECT_EQ(SendMessageA(Window(), EM_GETSEL, 0, 0), expected);
    EXPECT_EQ(Text(), "07/04/95");
    DestroyWindow(plain);
}

TEST_ROWS_OF(Keys, KeyLeftAlone, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_INSERT, VK_F4, VK_F10);

class KeyMessages : public WindowTest {};

TEST_F(KeyMessages, OfATabInTheHighWordReturnZeroAndDoNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/0|4/95");
    EXPECT_EQ(SendMessageA(Window(), WM_KEYDOWN, MAKELONG(VK_LEFT, 9), 1), 0);
    EXPECT_EQ(Shown(), "07/0|4/95");
}

class AutoskipNotification : public WindowTest {
protected:
    std::vector<Notification> SkipsAfterTyping(const char* text)
    {
        Type(text);
        std::vector<Notification> skips;
        for (const Notification& notification : form_.Notifications())
            if (notification.code == ZTN_AUTOSKIP)
                skips.push_back(notification);
        return skips;
    }
};

TEST_F(AutoskipNotification, CarriesTheIdentifierAndTheControl)
{
    Given("##", DT_STRING, "1|2", ZTEO_AUTOSKIP);
    const std::vector<Notification> expected = {
        {ZTN_AUTOSKIP, control_->id(), Window()}
    };
    EXPECT_EQ(SkipsAfterTyping("3"), expected);
}

TEST_F(AutoskipNotification, ReadsTheIdentifierWhenItIsNeeded)
{
    Given("##", DT_STRING, "1|2", ZTEO_AUTOSKIP);
    SetWindowLongPtrA(Window(), GWLP_ID, 99);
    const std::vector<Notification> expected = {
        {ZTN_AUTOSKIP, 99, Window()}
    };
    EXPECT_EQ(SkipsAfterTyping("3"), expected);
}

}  // namespace
}  // namespace zttest
