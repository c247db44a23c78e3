// Plays scripts on the system's own edit control, in a window whose parent is hidden. One player lives at a time.
#pragma once

#include <windows.h>

#include "tests/field/script.h"

namespace zttest {

class RealPlayer final : public Player {
public:
    explicit RealPlayer(int32_t style);
    ~RealPlayer() override;

    // Whether every position of the text can be clicked at: some characters have no width.
    bool CanPlay(const Operation& operation) const;

    std::string Play(const Operation& operation) override;
    State Look() const override;
    std::string ClipboardText() const override;

private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void Expect(LRESULT expected, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void Put(const std::string& text) const;
    void Mouse(UINT message, int32_t position, WPARAM held) const;
    int32_t Left(int32_t position) const;
    int32_t Length() const { return static_cast<int32_t>(Send(WM_GETTEXTLENGTH)); }
    std::string Text() const;

    HWND edit_;
    std::string told_;
};

}  // namespace zttest
