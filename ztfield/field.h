// A field behind the interface: the control in memory with settings of its own, and the program that hears it.
#pragma once

#include "engine/memory_control.h"
#include "ztfield.h"

struct ZTField final : private zte::FieldListener {
public:
    explicit ZTField(const ZTFieldSetup& setup);
    ZTField(const ZTField&) = delete;
    ZTField& operator=(const ZTField&) = delete;
    ~ZTField() = default;

    zte::MemoryControl& Control() { return control_; }
    const zte::EditInstance& Record() const { return control_.Record(); }
    const zte::MemoryField& Edit() const { return control_.Edit(); }
    zte::EditInstance& Record() { return control_.Record(); }
    zte::MemoryField& Edit() { return control_.Edit(); }

    bool SetMask(const char* mask, int32_t dataType);
    void UseSettings(const zte::Settings& settings);
    void SetSpin(uint32_t increment, const char* range, const char* codeTable, uint32_t style);

    // The keys that are held, as a keyboard tells them with another one.
    void KeyDown(int32_t key, int32_t held);
    void KeyUp(int32_t key, int32_t held);
    void Press(int32_t key, int32_t held);
    void Click(int32_t position, int32_t held);
    bool CanUndo() const;

private:
    void OnFieldEvent(zte::FieldEvent event) override;
    void Hold(int32_t held);

    zte::Settings settings_;
    zte::Text mask_;       // as it was given
    int32_t keyDown_ = 0;  // and not up yet
    ZTFieldListener listener_;
    void* context_;
    zte::MemoryControl control_;
};
