// Where a script is played: a form with three controls, a second form to move to, windows of other classes, and a host that reacts to
// notifications. Everything on it belongs to one thread.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "include/ztedit.h"
#include "tests/storm/script.h"

namespace storm {

// The same script is played on controls of the library and on plain edits.
enum class Cast { Masked, Plain };

// When the host reacts: to a notification, to another message to the form, or to one that passes its own subclass of the control.
struct Trigger {
    enum class Way : uint8_t { Command, Message, Subclass } way;
    UINT code;
    bool mayDestroy;  // the edit control underneath survives its own destruction there
    const char* name;
};
const Trigger& TriggerOf(uint32_t number);

struct Reaction {
    const Trigger* trigger;
    uint32_t seed;
    uint32_t times;
};

class Stage {
public:
    Stage(Cast cast, uint32_t thread, bool alone);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    // Between episodes: the controls go, and so does what they have left behind in the heap.
    void Clear();

    HWND Form() const { return forms_[0]; }
    HWND OtherForm() const { return forms_[1]; }
    HWND Control(int slot) const { return controls_[slot]; }
    HWND Spin(int slot) const;
    HWND Bystander(uint32_t number) const;
    int SlotOf(HWND hwnd) const;
    SharedHeap Heap() const { return heap_; }
    bool IsMasked() const { return cast_ == Cast::Masked; }
    bool IsAlone() const { return alone_; }  // no other thread has a stage
    HFONT Font(uint32_t number) const;
    HDC MemoryDc() const { return memoryDc_; }
    HDC Dc(uint32_t number) const;  // or one that is gone, or none at all

    void Make(const Op& op);
    void Init(HWND hwnd, const Op& op);
    void SubclassControl(int slot);
    void Arm(const Reaction& reaction);
    void Disarm() { reactions_.clear(); }

    // Counts whatever may rightly change how many blocks the controls own.
    void NoteReconfigured() { ++reconfigured_; }
    uint32_t Reconfigured() const { return reconfigured_; }

    // Whether the profile was written to since this was asked.
    void NoteSettingsChanged() { settingsChanged_ = true; }
    bool TakeSettingsChanged() { return std::exchange(settingsChanged_, false); }

    // Counts what the host has done inside notifications.
    uint32_t Reacted() const { return reacted_; }

    char* Buffer() { return buffer_.data(); }
    static constexpr uint32_t kRoom = 0x20000;

    EditInitParams Params(const Op& op);

private:
    static constexpr uintptr_t kNoObject = 0x7ABC;

    void LoseObjects();
    void MakeControl(const Op& op);
    void MakeInTurn(const Op& op);
    static LRESULT CALLBACK FormProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK HostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void OnTrigger(Trigger::Way way, UINT code, HWND control);
    HWND CreateWindowOf(const Op& op, void* params, bool byClass) const;

    Cast cast_;
    bool alone_;
    HWND forms_[2] = {};
    HWND controls_[kSlots] = {};
    HWND bystanders_[4] = {};
    HFONT fonts_[5] = {};
    HFONT goneFont_ = reinterpret_cast<HFONT>(kNoObject);
    HDC memoryDc_ = nullptr;
    HDC goneDc_ = reinterpret_cast<HDC>(kNoObject);
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ formerBitmap_ = nullptr;
    SharedHeap heap_ = nullptr;
    std::vector<Reaction> reactions_;
    int depth_ = 0;
    uint32_t reconfigured_ = 0;
    uint32_t reacted_ = 0;
    bool settingsChanged_ = false;
    std::vector<char> buffer_;
};

// Carries one operation out; nested ones, too.
void Play(Stage& stage, const Op& op);

}  // namespace storm
