// The recorder of messages to the standard edit procedure.
// An imported function is called without a context, so the list is a variable of this file.
#include "tests/support/live/base_recorder.h"

namespace zttest {
namespace {

std::vector<BaseMessage> recorded;
decltype(&CallWindowProcA) realCallWindowProc = &CallWindowProcA;

LRESULT WINAPI RecordAndCall(WNDPROC proc, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    BaseMessage entry = {message, wParam, {}};
    if (message == EM_SETRECTNP && lParam)
        entry.rect = *reinterpret_cast<const RECT*>(lParam);
    recorded.push_back(entry);
    return realCallWindowProc(proc, hwnd, message, wParam, lParam);
}

}  // namespace

BaseRecorder::BaseRecorder() : patch_("user32.dll", "CallWindowProcA", reinterpret_cast<void*>(RecordAndCall))
{
    recorded.clear();
}

BaseRecorder::~BaseRecorder()
{
    recorded.clear();
}

const std::vector<BaseMessage>& BaseRecorder::All() const
{
    return recorded;
}

std::vector<BaseMessage> BaseRecorder::Of(UINT message) const
{
    std::vector<BaseMessage> found;
    for (const BaseMessage& entry : recorded)
        if (entry.message == message)
            found.push_back(entry);
    return found;
}

void BaseRecorder::Forget()
{
    recorded.clear();
}

}  // namespace zttest
