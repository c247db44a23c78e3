// A modern control in memory that keys, acts and a program are played on, by a script of one line; and all that it tells, in its order.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "engine/editing.h"
#include "engine/memory_control.h"
#include "tests/support/modern_rows.h"

namespace zttest::typing {

// Hears what a control tells: the reasons of what is refused, the states, and everything.
class Listener final : public zte::FieldListener {
public:
    void Hear(const zte::MemoryField& field) { field_ = &field; }
    void Forget() { reasons_ = states_ = all_ = {}; }
    const std::string& Reasons() const { return reasons_; }  // "wrong kind, full"
    const std::string& States() const { return states_; }    // "0>1 1>4"
    // "changed 0>1", where "changed" is one change as it should be: redrawing off while the caret goes there, EN_UPDATE and EN_CHANGE.
    // What is refused is told with the place, and the character that was typed: "wrong kind@3x".
    std::string All() const;

private:
    void OnFieldEvent(zte::FieldEvent event) override;
    std::string Told(zte::FieldEvent event) const;

    const zte::MemoryField* field_ = nullptr;
    std::string reasons_;
    std::string states_;
    std::string all_;
};

class Played {
public:
    explicit Played(const TypingSetup& setup, uint32_t notOptions = 0);

    zte::MemoryControl& Control() { return *control_; }
    const zte::MemoryControl& Control() const { return *control_; }
    zte::EditInstance& Record() { return control_->Record(); }
    zte::MemoryField& Edit() { return control_->Edit(); }
    zte::Settings& Regional() { return settings_; }
    const Listener& Heard() const { return listener_; }

    // Puts a text with its marks there, as a program sets it; null: leaves what is there. What that told is forgotten.
    void Show(const char* marked);
    std::string Shown() const;

    // Characters as they are, keys and acts by name, with a number or a text where they take one: "12{Left}{Click3}{Set 12/31/1999}".
    void Play(const std::string& keys);

private:
    void Act(const std::string& name);

    zte::Settings settings_;
    zte::Text mask_;
    zte::Text codes_;
    zte::Text range_;
    Listener listener_;
    std::unique_ptr<zte::MemoryControl> control_;
};

// What keys and acts leave, and all that is told of them.
struct ToldRow {
    const TypingSetup& setup;
    const char* before;  // with its marks; null: empty
    const char* keys;
    const char* after;
    const char* told;
};
void PrintTo(const ToldRow& row, std::ostream* out);
void ExpectTold(const ToldRow& row);

}  // namespace zttest::typing
