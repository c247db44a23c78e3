// Plays scripts on the edit control in memory.
#pragma once

#include "engine/memory_field.h"
#include "tests/field/script.h"

namespace zttest {

class MemoryPlayer final : public Player, private zte::FieldListener {
public:
    explicit MemoryPlayer(int32_t style, zte::Char (*foldCase)(zte::Char, zte::LetterCase) = nullptr);

    std::string Play(const Operation& operation) override;
    State Look() const override;
    std::string ClipboardText() const override;

private:
    void OnFieldEvent(zte::FieldEvent event) override;

    zte::MemoryField field_;
    std::string told_;
};

}  // namespace zttest
