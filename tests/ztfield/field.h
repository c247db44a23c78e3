// A field of libztfield under test: its texts as C++ has them, and all that it tells.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ztfield.h"

namespace zttest::fields {

// Calls a function that writes a text, first for its length; "(none)" for -1. Two sizes must tell the same.
template <typename Ask>
std::string TextOf(Ask ask)
{
    const int32_t length = ask(nullptr, 0);
    if (length < 0)
        return "(none)";
    std::string text(static_cast<size_t>(length) + 1, '?');
    if (ask(text.data(), length + 1) != length)
        return "(another length)";
    text.resize(static_cast<size_t>(length));
    return text;
}

struct SettingRow {
    int32_t setting;
    const char* value;
};

class Settings {
public:
    Settings(std::initializer_list<SettingRow> rows) : it_(ZTF_CreateSettings(), ZTF_DestroySettings)
    {
        for (const SettingRow& row : rows)
            ZTF_SetSetting(get(), row.setting, row.value);
    }
    ZTFieldSettings* get() const { return it_.get(); }
    std::string Of(int32_t setting) const
    {
        return TextOf([&](char* buffer, int32_t size) { return ZTF_GetSetting(get(), setting, buffer, size); });
    }

private:
    std::unique_ptr<ZTFieldSettings, void (*)(ZTFieldSettings*)> it_;
};

class Field {
public:
    Field(const char* mask, int32_t type, uint32_t options = ZTEO_MODERN, const ZTFieldSettings* settings = nullptr);
    explicit Field(ZTFieldSetup setup);

    ZTField* get() const { return it_.get(); }
    std::string Text() const;
    std::string Value() const;  // canonical; "(none)"
    std::string Shown() const;  // with the caret or the selection drawn in, of code points
    void Type(const char* text) const { ZTF_Type(get(), text); }
    void Press(int32_t key, int32_t held = 0) const { ZTF_Press(get(), key, held); }

    // "changed", "beep", "full", "stepped", "value", "rejected 3@5", "state 0>4", parted by blanks; taken.
    std::string Told();

    bool takesRefusals = false;

private:
    void Make(ZTFieldSetup setup);
    int32_t Hear(const ZTFieldEvent& event);

    std::string told_;
    std::unique_ptr<ZTField, void (*)(ZTField*)> it_{nullptr, ZTF_Destroy};
};

// Code points as texts, for carets between them.
std::vector<std::string> Characters(const std::string& utf8);

}  // namespace zttest::fields
