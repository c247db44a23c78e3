// One window for each thread.
#pragma once

#include <windows.h>

namespace zte {

// Not a thread_local variable: for that a compiler's runtime may want memory at a thread's first use,
// and end the process when there is none.
class WindowOfThread {
public:
    WindowOfThread() : slot_(TlsAlloc()) {}
    WindowOfThread(const WindowOfThread&) = delete;
    WindowOfThread& operator=(const WindowOfThread&) = delete;
    ~WindowOfThread() { TlsFree(slot_); }

    void Set(HWND hwnd) const { TlsSetValue(slot_, hwnd); }
    HWND Get() const
    {
        const DWORD error = GetLastError();  // asking clears the host's
        void* const hwnd = TlsGetValue(slot_);
        SetLastError(error);
        return static_cast<HWND>(hwnd);
    }

private:
    DWORD slot_;
};

}  // namespace zte
