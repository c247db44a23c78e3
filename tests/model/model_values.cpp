// The model's values: formatting under the mask, and reading back.
// A value is laid field by field along the mask.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>

namespace model {
namespace {

std::string Padded(int value, int width)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*u", width, static_cast<unsigned>(value));
    return text;
}

// The text being laid out; `used` is where the next part goes, what lies behind it may be written over.
struct Buffer {
    std::string bytes;
    size_t used = 0;

    void Write(const std::string& text)
    {
        bytes.resize(std::max(bytes.size(), used + text.size()), ' ');
        bytes.replace(used, text.size(), text);
        used += text.size();
    }
    std::string Text() const { return bytes.substr(0, used) + std::string(used - std::min(used, bytes.size()), ' '); }
};

}  // namespace

Value Value::OfText(const std::string& text)
{
    Value value;
    value.none = false;
    value.text = text;
    return value;
}

Value Value::OfNumber(const Number& number)
{
    Value value;
    value.none = false;
    value.number = number;
    return value;
}

Value Value::OfStamp(const Stamp& stamp)
{
    Value value;
    value.none = false;
    value.stamp = stamp;
    return value;
}

// Where a fraction may be typed, behind its last digit too.
bool Control::InFraction(int position) const
{
    if (!IsNumeric() || decimalPlaces_ == 0)
        return false;
    const ShownNumber shown = Shows(Text());
    return shown.InFraction(position) && position <= shown.point + decimalPlaces_;
}

void Control::FormatNumber(const Number& number, Shown& shown) const
{
    bool literals = false;
    for (size_t i = 0; i < mask_.size();) {
        const char c = mask_[i];
        if (c == '~') {
            literals = true;
            i += 2;
        } else if (SymbolAt(mask_, i))
            i += regional_->currency.size();
        else if (c == '.' || c == ',' || c == '%' || InTable(c, type_))
            ++i;
        else {
            literals = true;
            while (i < mask_.size() && !InTable(mask_[i], type_))
                ++i;
        }
    }
    if (literals)
        shown.flags |= 0x4000;
    FormatTextOf(mask_, type_, literals, shown.first);
    const model::Format& format = NumberFormat();
    shown.text = Render(format, number, Signs());
    if (format.general)
        return;
    // The literals before the number are passed over: they may hold digits and signs of their own.
    const ShownNumber found = Shows(shown.text);
    if (found.sign >= 0 || !found.integerAt.empty())
        shown.first = found.First();
    else if (!found.fractionAt.empty())
        shown.first = found.fractionAt[0];
    else if (literals)
        shown.first = found.First();
    if (decimalPlaces_ != 0 && shown.first == std::max(0, found.point) + 1)
        --shown.first;
}

// Strings, dates and times: the mask is walked and every field laid into the text.
void Control::FormatFields(const Value& value, Shown& shown) const
{
    Buffer out;
    const Stamp stamp = value.none ? Stamp() : value.stamp;
    const bool noText = value.none || value.text.empty();
    bool fieldSeen = false;
    int cursor = 0;  // characters of the string laid out so far
    for (size_t i = 0; i < mask_.size();) {
        const char c = mask_[i];
        if (c == '~' && i + 1 < mask_.size()) {
            out.Write(std::string(1, mask_[i + 1]));
            shown.flags |= 0x4000;
            i += 2;
            continue;
        }
        const bool marker = ampm_ && (mask_.compare(i, 5, "AM/PM") == 0 || mask_.compare(i, 5, "am/pm") == 0);
        if (!marker && !InTable(c, type_)) {
            out.Write(std::string(1, c));
            shown.flags |= fieldSeen ? 0xC000u : 0x4000u;
            ++i;
            continue;
        }
        if (!fieldSeen)
            shown.first = static_cast<int>(out.used);
        fieldSeen = true;
        if (marker) {
            out.Write(stamp.hour < 12 ? regional_->am : regional_->pm);
            i += 5;
            continue;
        }
        const size_t first = i;
        size_t run = 1;
        while (i + run < mask_.size() && mask_[i + run] == c)
            ++run;
        i += run;
        if (!IsTemporal()) {
            const int remaining = static_cast<int>(value.text.size()) - cursor;
            int count = std::min(remaining, static_cast<int>(run));
            if (noText) {
                count = (formatFlags_ & 0x4000) != 0 || type_ != kString ? static_cast<int>(run) : 0;
                out.Write(std::string(static_cast<size_t>(count), ' '));
            } else if (count > 0)
                out.Write(value.text.substr(static_cast<size_t>(cursor), static_cast<size_t>(count)));
            if (count < static_cast<int>(run) && (formatFlags_ & 0x8000) != 0) {
                out.Write(std::string(run - static_cast<size_t>(std::max(count, 0)), ' '));
                count = static_cast<int>(run);
            }
            cursor += std::max(count, 0);
            continue;
        }
        std::string text;
        switch (std::toupper(static_cast<unsigned char>(c))) {
        case 'Y':
            text = stamp.HasDate() ? Padded(stamp.year + 1900, 4) : "0000";
            if (run == 2)
                text = text.substr(text.size() - 2);
            break;
        case 'M':
            if (MinuteAt(mask_, first, type_))
                text = stamp.HasTime() ? Padded(stamp.minute, 2) : "00";
            else if (run == 2)
                text = stamp.HasDate() ? Padded(stamp.month + 1, 2) : "00";
            else
                text = stamp.HasDate() && stamp.month >= 0 && stamp.month < 12 ? kMonths[stamp.month] : "   ";
            break;
        case 'D': text = stamp.HasDate() ? Padded(stamp.day, 2) : "00"; break;
        case 'J': {
            int day = stamp.day;
            for (int month = 0; month < stamp.month; ++month)
                day += DaysInMonth(stamp.year, month);
            text = stamp.HasDate() ? Padded(day, 3) : "001";
            break;
        }
        case 'H': {
            int hour = stamp.hour;
            if (ampm_)
                hour = hour > 12 ? hour - 12 : hour == 0 ? 12 : hour;
            text = stamp.HasTime() ? Padded(hour, 2) : "00";
            break;
        }
        case 'S': text = stamp.HasTime() ? Padded(stamp.second, 2) : "00"; break;
        case 'F': text = stamp.HasTime() ? Padded(stamp.microsecond, 6) : "000000"; break;
        default: text.assign(run, ' '); break;
        }
        // What a field writes beyond its run stays until something is written over it.
        const size_t at = out.used;
        out.Write(text);
        out.used = at + run;
    }
    shown.text = out.Text();
}

Shown Control::Format(const Value& value)
{
    positioned_ = false;
    Shown shown;
    shown.flags = 1;
    if (IsNumeric())
        FormatNumber(value.none ? Number() : value.number, shown);
    else if (mask_.empty())
        shown.text = value.none ? std::string() : value.text;
    else
        FormatFields(value, shown);
    if (IsTemporal())
        shown.flags |= 0x4000;
    const CodeEntry* entry = IsNumeric() && ThroughCodes() ? Find(&CodeEntry::value, shown.text) : EntryOf(value);
    if (entry != nullptr) {
        positioned_ = true;
        shown.text = entry->display;
    }
    return shown;
}

void Control::SetData(const Value& value)
{
    ForgetTyping();
    backspaceKey_ = BackspaceKey::None;
    positioned_ = false;
    modified_ = false;
    if (ShowThroughCodes(value))
        return;
    ChooseEditMode();
    const Shown shown = Format(value);
    edit_.SetText(shown.text);
    if (spun_)
        return;
    formatFlags_ = shown.flags;
    if (shown.first != 0)
        PlaceCaret(shown.first);
    firstField_ = shown.first;
}

void Control::SetDataString(const std::string& text)
{
    if (IsNumeric())
        SetData(Value::OfNumber(NumberOf(text)));
    else if (IsTemporal()) {
        Stamp stamp;
        if (!DisplayToStamp(stamp, text)) {
            stamp = Stamp();
            ParseCanonical(stamp, text, type_, *regional_);
        }
        SetData(Value::OfStamp(stamp));
    } else
        SetData(Value::OfText(text));
}

std::string Control::ReadFields(const std::string& text) const
{
    if (mask_.empty())
        return text;
    std::string fields;
    for (int i = 0; i < static_cast<int>(text.size()); ++i) {
        const MaskChar at = CharAt(text, i);
        if (at.c != '~' && InTable(at.c, type_))
            fields += text[static_cast<size_t>(i)];
    }
    return fields;
}

Value Control::GetData()
{
    if (Text().empty()) {
        if (IsTemporal())
            return Value::OfStamp(Stamp());
        return Value::OfText(IsNumeric() ? "0" : "");
    }
    const CodeEntry* entry = ThroughCodes() ? Find(&CodeEntry::display, Text()) : nullptr;
    if (entry != nullptr && !IsTemporal())
        return DataOf(*entry);
    if (!IsTemporal())
        return Value::OfText(IsNumeric() ? ReadNumber() : ReadFields(Text()));
    Stamp stamp = entry != nullptr ? DataOf(*entry).stamp : ReadStamp(false);
    if (type_ == kDate && (ZeroDate(stamp) || stamp.year == -1900 || !stamp.HasDate()))
        return Value::None();
    if (type_ == kTime && stamp.hour == 0 && stamp.minute == 0 && stamp.second == 0 && stamp.microsecond == 0)
        return Value::None();
    if (type_ == kDateTime && !ZeroDate(stamp) && stamp.year != -1900) {
        if (!stamp.HasDate()) {
            stamp.year = 100;
            stamp.month = stamp.day = 0;
        } else if (!stamp.HasTime())
            stamp.hour = 0;
    }
    if (type_ != kTime && stamp.day == 0)
        stamp.day = 1;
    return Value::OfStamp(stamp);
}

Value Control::Unformat(const std::string& text)
{
    if (text.empty())
        return Value::None();
    if (const CodeEntry* entry = ThroughCodes() ? Find(&CodeEntry::display, text) : nullptr)
        return DataOf(*entry);
    if (!IsTemporal())
        return Value::OfText(IsNumeric() ? NumberIn(text) : ReadFields(text));
    Stamp stamp;
    ParseCanonical(stamp, text, type_, *regional_);
    return Value::OfStamp(stamp);
}

}  // namespace model
