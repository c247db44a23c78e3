// How calls end that may not come back.
#pragma once

#include <windows.h>

namespace zttest {

constexpr DWORD kCameBack = 1;
constexpr DWORD kNoMemory = 0xC0000017;
constexpr DWORD kBadAccess = EXCEPTION_ACCESS_VIOLATION;

// Ends the thread in which the exception was raised, instead of the process.
inline LONG CALLBACK EndThread(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    const bool final = (record.ExceptionFlags & EXCEPTION_NONCONTINUABLE) != 0;
    if (record.ExceptionCode == kBadAccess || (record.ExceptionCode == kNoMemory && final))
        ExitThread(record.ExceptionCode);
    return EXCEPTION_CONTINUE_SEARCH;
}

inline DWORD WINAPI RunCalls(void* calls)
{
    reinterpret_cast<void (*)()>(calls)();
    return kCameBack;
}

// kCameBack, or the exception in which the calls end: they run on a thread of their own, which the exception ends.
inline DWORD EndOf(void (*calls)())
{
    void* const handler = AddVectoredExceptionHandler(1, EndThread);
    const HANDLE thread = CreateThread(nullptr, 0, RunCalls, reinterpret_cast<void*>(calls), 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    DWORD result = 0;
    GetExitCodeThread(thread, &result);
    CloseHandle(thread);
    RemoveVectoredExceptionHandler(handler);
    return result;
}

}  // namespace zttest
