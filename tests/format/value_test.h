// The fixture of tests that hand values to a control and read them back, without typing.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <ostream>
#include <string>

#include "engine/record.h"
#include "tests/support/edit_test.h"
#include "tests/support/form.h"
#include "tests/support/profile.h"

namespace zttest {

constexpr int kValueControlId = 5;
constexpr const char* kNullResult = "(null)";  // stands for a null pointer in the tables

// What ZTE_FmtFormatData returned, copied.
struct FormattedValue {
    std::string text;
    uint32_t flags;
    int32_t firstFieldPos;
};

class ValueTest : public testing::Test {
protected:
    // Makes the control anew, with the mask given at creation.
    void Install(const char* mask, int32_t type, uint32_t options = 0, const char* codes = nullptr)
    {
        Config config;
        config.mask = mask;
        config.type = type;
        config.options = options;
        config.codes = codes;
        control_.reset();
        control_ = std::make_unique<Control>(form_.hwnd(), kValueControlId, config);
    }

    HWND Window() const { return control_->hwnd(); }
    std::string Text() const { return control_->Text(); }
    void SetText(const std::string& text) const { SetWindowTextA(Window(), text.c_str()); }

    // What the control shows for a value given as text.
    std::string ShownFor(const std::string& data) const
    {
        ZTE_FmtSetDataString(Window(), data.c_str());
        return Text();
    }

    // The value read back: strings and numbers as their text, dates and times as canonical text, which is empty for the
    // empty value; kNullResult for a null pointer.
    std::string Read() const { return Take(ZTE_FmtGetData(Window())); }
    std::string Unformat(const char* text) const { return Take(ZTE_FmtUnformatData(Window(), text)); }

    FormattedValue Format(const void* data) const
    {
        FormatResult* result = ZTE_FmtFormatData(Window(), data);
        if (!result) {
            ADD_FAILURE() << "nothing was formatted";
            return {};
        }
        const FormattedValue value = {result->text, result->formatFlags, result->firstFieldPos};
        SharedHeapFree(control_->heap(), result->text);
        SharedHeapFree(control_->heap(), result);
        return value;
    }

    // A copy of the record behind the control, found as a host would find it: by the window's property.
    zte::EditInstance Record() const
    {
        zte::EditInstance record = {};
        const HGLOBAL block = GetPropA(Window(), "MAIN");
        if (const void* locked = block ? GlobalLock(block) : nullptr) {
            const void* found = nullptr;
            std::memcpy(&found, locked, sizeof found);
            std::memcpy(&record, found, sizeof record);
            GlobalUnlock(block);
        } else {
            ADD_FAILURE() << "the window has no record";
        }
        return record;
    }
    std::string MaskInForce() const { return Record().mask; }

    Form form_;
    std::unique_ptr<Control> control_;

private:
    std::string Take(void* block) const
    {
        if (!block)
            return kNullResult;
        const uint16_t type = ZTE_FmtGetDataType(Window());
        std::string value;
        if (type == DT_DATE || type == DT_TIME || type == DT_DATETIME) {
            DateTimeValue read;
            std::memcpy(&read, block, sizeof read);
            value = Canonical(read);
        } else {
            value = static_cast<const char*>(block);
        }
        SharedHeapFree(control_->heap(), block);
        return value;
    }
};

// The value of a canonical text: "2024-03-05", "14:07:09", "14:07:09:000250", a date and a time, or "" for the empty value.
inline DateTimeValue ValueOf(const std::string& canonical)
{
    DateTimeValue value = {};
    value.year = DATETIME_NO_DATE;
    value.hour = DATETIME_NO_TIME;
    int year, month, day, hour, minute, second;
    unsigned long microsecond = 0;
    const char* time = canonical.c_str();
    if (std::sscanf(time, "%4d-%2d-%2d", &year, &month, &day) == 3) {
        value.year = static_cast<int16_t>(year - 1900);
        value.month = static_cast<int8_t>(month - 1);
        value.day = static_cast<int8_t>(day);
        time += canonical.size() > 10 ? 11 : 10;
    }
    if (std::sscanf(time, "%2d:%2d:%2d:%6lu", &hour, &minute, &second, &microsecond) >= 3) {
        value.hour = static_cast<int8_t>(hour);
        value.minute = static_cast<int8_t>(minute);
        value.second = static_cast<int8_t>(second);
        value.microsecond = static_cast<uint32_t>(microsecond);
    }
    return value;
}

// A complete set of settings with some keys changed.
inline RegionalSet With(RegionalSet set, const RegionalSet& changes)
{
    for (const ProfileValue& change : changes) {
        for (ProfileValue& entry : set) {
            if (std::strcmp(entry.key, change.key) == 0)
                entry.value = change.value;
        }
    }
    return set;
}

}  // namespace zttest
