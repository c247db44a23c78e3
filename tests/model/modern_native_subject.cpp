// The library's modern control without a window.
#include "modern_subject.h"
#include "native_settings.h"
#include "raw_values.h"

#include "engine/memory_control.h"
#include "tests/support/keyboard.h"

#include <algorithm>
#include <cstdlib>
#include <map>

namespace model::modern {
namespace {

constexpr int kKeyOfControl = 0x11;

DateTimeValue TodayInModern()
{
    return Raw(Today());
}

class ModernNative final : public ModernSubject, private zttest::Keyboard {
public:
    void Make(const Regional& regional, const Config& config) override
    {
        control_.reset();
        settings_ = SettingsOf(regional);
        zte::ControlSetup setup;
        setup.mask = config.mask.c_str();
        setup.dataType = config.type;
        setup.options = OptionsOf(config) | ZTEO_MODERN;
        setup.spinRange = config.range.c_str();
        setup.spinIncrement = config.increment;
        setup.codeTable = config.codes ? config.codes->c_str() : nullptr;
        control_ = std::make_unique<zte::MemoryControl>(setup, settings_, TodayInModern);
        Edit().ForgetCounts();
    }

    int Do(const std::string& act) override
    {
        const std::optional<Word> word = WordOf(act);
        if (!word) {
            Play(act);
            return 0;
        }
        return Words().at(word->name)(*this, word->rest);
    }

    ModernLook Look() override
    {
        ModernLook look;
        look.text = Edit().Shown();
        look.start = Edit().ReadSelection().start;
        look.end = Edit().ReadSelection().end;
        look.state = zte::StateOf(control_->Record());
        zte::Text canonical;
        if (zte::CanonicalText(control_->Record(), canonical))
            look.canonical = canonical;
        look.changes = Edit().Count(zte::FieldEvent::Change);
        look.rejections = Edit().Count(zte::FieldEvent::Rejected);
        look.reason = Edit().LastRejected().reason;
        look.position = Edit().LastRejected().position;
        look.character = static_cast<unsigned char>(Edit().LastRejected().character);
        look.beeps = Edit().Count(zte::FieldEvent::Beep);
        look.autoskips = Edit().Count(zte::FieldEvent::Full);
        look.modified = Edit().IsModified();
        return look;
    }

private:
    using Act = int (*)(ModernNative&, const std::string&);

    static const std::map<std::string, Act>& Words()
    {
        static const std::map<std::string, Act> words = {
            {"sel",
             [](ModernNative& to,             const std::string& rest) {
                 char* behind = nullptr;
                 const long from = std::strtol(rest.c_str(), &behind, 10);
                 to.control_->Select(static_cast<int>(from), std::atoi(behind));
                 return 0;
             }                                                                                  },
            {"click",
             [](ModernNative& to,             const std::string& rest) { return to.control_->Click(std::atoi(rest.c_str())), 0; }},
            {"double",
             [](ModernNative& to,             const std::string& rest) {
                 return to.control_->DoubleClick(
                            std::min(std::atoi(rest.c_str()), static_cast<int>(to.Edit().Shown().size()))),
                        0;
             }                                                                                  },
            {"paste",
             [](ModernNative& to,             const std::string& rest) {
                 to.Edit().SetClipboard(rest);
                 return to.control_->Paste(), 0;
             }                                                                                  },
            {"cut",      [](ModernNative& to, const std::string&) { return to.control_->Cut(), 0; }                              },
            {"clear",    [](ModernNative& to, const std::string&) { return to.control_->Clear(), 0; }                            },
            {"undo",     [](ModernNative& to, const std::string&) { return to.control_->Undo(), 0; }                             },
            {"redo",     [](ModernNative& to, const std::string&) { return to.control_->Redo(), 0; }                             },
            {"wait",
             [](ModernNative& to,             const std::string& rest) {
                 return to.Edit().LetTimePass(static_cast<uint32_t>(std::atoi(rest.c_str()))), 0;
             }                                                                                  },
            {"leave",    [](ModernNative& to, const std::string&) { return to.control_->LoseFocus(), 0; }                        },
            {"step",     [](ModernNative& to, const std::string& rest) { return to.control_->Step(rest == "up"), 0; }            },
            {"data",
             [](ModernNative& to,             const std::string& rest) {
                 return zte::EditingOf(to.control_->Record()).setDataString(to.control_->Record(), rest.c_str()), 0;
             }                                                                                  },
            {"nodata",
             [](ModernNative& to,             const std::string&) {
                 return zte::EditingOf(to.control_->Record()).setData(to.control_->Record(), nullptr), 0;
             }                                                                                  },
            {"try",
             [](ModernNative& to,             const std::string& rest) {
                 return static_cast<int>(zte::TrySetDataString(to.control_->Record(), rest.c_str()));
             }                                                                                  },
            {"mask",
             [](ModernNative& to,             const std::string& rest) {
                 return static_cast<int>(zte::EditingOf(to.control_->Record())
                                             .setMask(to.control_->Record(), rest.c_str() + 2, rest[0] - '0'));
             }                                                                                  },
            {"text",     [](ModernNative& to, const std::string& rest) { return to.control_->SetText(rest.c_str()), 0; }         },
            {"replace",
             [](ModernNative& to,             const std::string& rest) { return to.control_->Replace(rest.c_str(), true), 0; }   },
            {"readonly",
             [](ModernNative& to,             const std::string& rest) { return to.Edit().SetReadOnly(rest == "1"), 0; }         },
        };
        return words;
    }

    zte::MemoryField& Edit() { return control_->Edit(); }

    void Hold(int key, bool down) override
    {
        if (key == zte::KEY_SHIFT)
            Edit().HoldShift(down);
        else if (key == kKeyOfControl)
            Edit().HoldControl(down);
        else if (key == zte::KEY_RIGHT)
            Edit().HoldRight(down);
    }
    void SendKeyDown(int key) override { control_->KeyDown(key); }
    void SendKeyUp(int key) override { control_->KeyUp(key); }
    void SendChar(char character, int) override { control_->Type(static_cast<unsigned char>(character)); }

    zte::Settings settings_ = zte::StandardSettings();
    std::unique_ptr<zte::MemoryControl> control_;
};

}  // namespace

std::unique_ptr<ModernSubject> MakeModernLibrary()
{
    return std::make_unique<ModernNative>();
}

}  // namespace model::modern
