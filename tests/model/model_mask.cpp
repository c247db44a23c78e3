// The model's masks: which positions are fields, and which masks a type accepts.
// Everything is read from the mask text on demand.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace model {
namespace {

constexpr int kAmPmLength = 5;

bool SameText(const std::string& a, const std::string& b)
{
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Upper(x) == Upper(y); });
}

// Positions of the whole display.
int ShownOf(const std::string& mask)
{
    return DisplayOf(mask, mask.size());
}

const char* DefaultMask(Type type)
{
    switch (type) {
    case kString: return "";
    case kNumber:
    case kDecimal: return "#,#.00";
    case kDate: return "MM/DD/YY";
    case kTime: return "HH:MM:SS:FFF";
    default: return "MM/DD/YY HH:MM:SS:FFF";
    }
}

}  // namespace

bool Control::HasFieldBehindAmPm() const
{
    bool behind = false;
    for (size_t i = 0; i < mask_.size() && (type_ == kTime || type_ == kDateTime); i += mask_[i] == '~' ? 2 : 1) {
        if (mask_.compare(i, kAmPmLength, "AM/PM") == 0 || mask_.compare(i, kAmPmLength, "am/pm") == 0) {
            behind = true;
            i += kAmPmLength - 1;
        } else if (behind && Control::InTable(mask_[i], type_))
            return true;
    }
    return false;
}

// Where the character of an offset in the mask is looked for in the text: behind "~" two places, but for masks of keywords.
int Control::TextOffset(size_t index) const
{
    const int display = DisplayOf(mask_, index);
    const bool behind = ampm_ && display > ampmPos_;
    return (keyword_ ? display : static_cast<int>(index)) - (behind ? kAmPmLength - AmPmWidth() : 0);
}

bool Control::InTable(char c, Type type)
{
    const char upper = Upper(c);
    if (upper == 'X' || upper == '!' || upper == '^')
        return true;
    const char* letters = "";
    switch (type) {
    case kString: letters = "#0A"; break;
    case kNumber:
    case kDecimal: letters = "#0"; break;
    case kDate: letters = "YMDJ"; break;
    case kTime: letters = "MHSF"; break;
    case kDateTime: letters = "YMDJHSF"; break;
    }
    return upper != '\0' && std::strchr(letters, upper) != nullptr;
}

// An "M" is a minute always in times, behind an hour in date-times, never in dates.
bool Control::MinuteAt(const std::string& mask, size_t index, Type type)
{
    bool hour = false;
    for (size_t i = 0; i < index && type == kDateTime; i += mask[i] == '~' ? 2 : 1)
        hour = hour || Upper(mask[i]) == 'H';
    return hour || type == kTime;
}

Control::MaskChar Control::PositionalCharAt(const std::string& mask, int position)
{
    int display = 0;
    for (size_t i = 0; i < mask.size(); ++i) {
        if (mask[i] == '~')
            continue;
        if (display == position) {
            const bool escaped = i > 0 && mask[i - 1] == '~';
            return escaped ? MaskChar{'~', -1} : MaskChar{mask[i], static_cast<int>(i)};
        }
        ++display;
    }
    if (!mask.empty() && mask.find('~') == std::string::npos)
        return {mask[0], 0};
    return {'\0', -1};
}

Control::MaskChar Control::CharAt(const std::string& text, int position) const
{
    if (!IsNumeric()) {
        const bool behind = ampm_ && position >= ampmPos_ + AmPmWidth();
        return PositionalCharAt(mask_, behind ? position + kAmPmLength - AmPmWidth() : position);
    }
    // Digits and the sign are fields, and so is the place behind the text; a literal never is, whatever it is.
    const ShownNumber shown = Shows(text);
    const bool inside = position >= 0 && position < static_cast<int>(text.size());
    const bool body = position >= shown.begin && position < shown.end;
    const auto stands = [&](const std::vector<int>& at) { return std::count(at.begin(), at.end(), position) != 0; };
    if (!inside || position == shown.sign || (body && (stands(shown.integerAt) || stands(shown.fractionAt))))
        return {'#', -1};
    return {position == shown.point ? '.' : '~', -1};
}

int Control::RunAfter(int position) const
{
    const MaskChar at = CharAt(Text(), position);
    int n = 0;
    if (at.index >= 0)
        while (static_cast<size_t>(at.index + n + 1) < mask_.size() &&
               mask_[static_cast<size_t>(at.index + n + 1)] == at.c)
            ++n;
    return n;
}

int Control::RunBefore(int position) const
{
    const MaskChar at = CharAt(Text(), position);
    int n = 0;
    if (at.index < 0)
        return 0;
    while (at.index - n - 1 >= 0 && mask_[static_cast<size_t>(at.index - n - 1)] == at.c)
        ++n;
    if (n > 0 && at.index - n - 1 >= 0 && mask_[static_cast<size_t>(at.index - n - 1)] == '~')
        --n;
    return n;
}

// With fields behind it, they are typed and read where they are shown.
int Control::AmPmWidth() const
{
    return HasFieldBehindAmPm() ? MarkerWidth() : kAmPmLength;
}

// A text without either marker is taken for a display with a marker of other settings, when its length allows that.
int Control::MarkerWidth() const
{
    const int width = edit_.Length() - (ShownOf(mask_) - kAmPmLength);
    return ShowsMarker(Text()) || width < 1 || width > 4 ? static_cast<int>(regional_->am.size()) : width;
}

bool Control::OnAmPm(int position) const
{
    return ampm_ && (type_ == kTime || type_ == kDateTime) && position == ampmPos_;
}

bool Control::InsideAmPm(int position) const
{
    return ampm_ && (type_ == kTime || type_ == kDateTime) && position >= ampmPos_ && position < ampmPos_ + AmPmWidth();
}

bool Control::Editable(const std::string& text, int position) const
{
    return !InsideAmPm(position) && InTable(CharAt(text, position).c, type_);
}

bool Control::SymbolAt(const std::string& mask, size_t index) const
{
    const std::string& symbol = regional_->currency;
    return !symbol.empty() && mask.compare(index, symbol.size(), symbol) == 0;
}

std::string Control::EscapedSymbol() const
{
    std::string escaped;
    for (const char c : regional_->currency)
        escaped += std::string("\\") + c;
    return escaped;
}

// A mask that can show no digit shows what the default mask shows.
model::Format Control::CompiledMask() const
{
    int unused = 0;
    const auto format = model::Format::Compile(FormatTextOf(mask_, type_, false, unused));
    model::Format compiled = format ? *format : *model::Format::Compile(DefaultMask(kNumber));
    // A currency without fraction digits shows its zero.
    if (keyword_ && compiled.fraction.empty() && !compiled.integer.empty())
        compiled.integer.back() = '0';
    return compiled;
}

std::string Control::FormatTextOf(const std::string& mask, Type type, bool literals, int& first) const
{
    std::string text;
    int escapes = 0;
    bool firstSeen = false;
    for (size_t i = 0; i < mask.size();) {
        const char c = mask[i];
        if (c == '~' && i + 1 < mask.size()) {
            text += '\\';
            text += mask[i + 1];
            ++escapes;
            i += 2;
        } else if (SymbolAt(mask, i)) {
            text += EscapedSymbol();
            i += regional_->currency.size();
        } else if (c == '.' || c == ',' || c == '%')
            text += mask[i++];
        else if (InTable(c, type)) {
            if (!firstSeen && literals)
                first = static_cast<int>(i) - escapes;
            firstSeen = true;
            text += mask[i++];
        } else
            do
                text += mask[i++];
            while (i < mask.size() && mask[i] != '~' && !InTable(mask[i], type) && !SymbolAt(mask, i));
    }
    return text;
}

bool Control::CheckNumberMask(const std::string& mask) const
{
    bool body = false;
    bool currency = false;
    bool decimal = false;
    bool percent = false;
    for (size_t i = 0; i < mask.size();) {
        const char c = mask[i];
        const bool symbol = SymbolAt(mask, i);
        if (!symbol && (c == '#' || c == '0')) {
            if (percent)
                return false;
            body = true;
            ++i;
        } else if (c == '~') {
            if (body || i + 1 >= mask.size() || mask[i + 1] == '~')
                return false;
            i += 2;
        } else if (symbol || regional_->currency.empty()) {
            if (currency || body)
                return false;
            currency = body = true;
            i += regional_->currency.size();
        } else if (c == '\'' || c == '"')
            return false;
        else if (c == Point()) {
            if (decimal)
                return false;
            decimal = true;
            ++i;
        } else if (c == regional_->thousand) {
            if (decimal)
                return false;
            ++i;
        } else if (c == '%') {
            if (percent || currency)
                return false;
            percent = true;
            ++i;
        } else if (body)
            return false;
        else
            ++i;
    }
    int unused = 0;
    return Format::Compile(FormatTextOf(mask, kNumber, false, unused)).has_value();
}

bool Control::CheckFields(const std::string& mask, Type type)
{
    bool day = false;
    bool month = false;
    bool year = false;
    bool julian = false;
    bool hour = false;
    bool minute = false;
    bool second = false;
    bool fraction = false;
    bool marker = false;
    const bool dates = type != kTime;
    const bool times = type != kDate;
    const auto claim = [](bool& seen) {
        const bool first = !seen;
        seen = true;
        return first;
    };
    for (size_t i = 0; i < mask.size();) {
        const char c = mask[i];
        const char letter = Upper(c);
        if (c == '~') {
            if (i + 1 >= mask.size() || mask[i + 1] == '~')
                return false;
            i += 2;
            continue;
        }
        if (letter == 'A' && times && (mask.compare(i, 5, "AM/PM") == 0 || mask.compare(i, 5, "am/pm") == 0)) {
            if (!claim(marker))
                return false;
            ampmPos_ = DisplayOf(mask, i);
            i += 5;
            continue;
        }
        const bool field =
            (dates && std::strchr("DMYJ", letter) != nullptr) || (times && std::strchr("HMSF", letter) != nullptr);
        if (!field) {
            ++i;
            continue;
        }
        // The run is measured at the display position of that number: escapes in front shift it, but in masks of keywords.
        const MaskChar at = PositionalCharAt(mask, keyword_ ? DisplayOf(mask, i) : static_cast<int>(i));
        int run = 1;
        if (at.index >= 0)
            while (static_cast<size_t>(at.index + run) < mask.size() &&
                   mask[static_cast<size_t>(at.index + run)] == at.c)
                ++run;
        bool good = false;
        switch (letter) {
        case 'D': good = run == 2 && !julian && claim(day); break;
        case 'J': good = run == 3 && !day && !month && claim(julian); break;
        case 'Y':
            good = (run == 2 || run == 4) && claim(year);
            if (good)
                yearDigits_ = run;
            break;
        case 'H': good = run == 2 && claim(hour); break;
        case 'S': good = run == 2 && claim(second); break;
        case 'F': good = run <= 6 && claim(fraction); break;
        default:
            if (MinuteAt(mask, i, type))
                good = run == 2 && claim(minute);
            else
                good = (run == 2 || run == 3) && !julian && claim(month);
        }
        if (!good)
            return false;
        i += static_cast<size_t>(run);
    }
    if (type == kDate && (!year || (day && !month)))
        return false;
    if (type == kDateTime && day && !(month && year))
        return false;
    if (times && ((fraction && !second) || (second && !minute) || (minute && !hour)))
        return false;
    if (times)
        ampm_ = marker;
    return true;
}

bool Control::CheckMask(const std::string& mask, Type type)
{
    if (mask.empty())
        return false;
    const bool tooLong = mask.size() > 255;
    if (type == kNumber || type == kDecimal)
        return !tooLong && CheckNumberMask(mask);
    if (type != kString)
        return !tooLong && CheckFields(mask, type);
    for (size_t i = 0; i < mask.size(); ++i)
        if (mask[i] == '~' && (++i >= mask.size() || mask[i] == '~'))
            return false;
    return !tooLong;
}

void Control::ChooseEditMode()
{
    charwise_ = (formatFlags_ & 0x4000) != 0 || !IsNumeric() || !NumberFormat().Grows();
}

int Control::SetMask(const char* mask, Type type)
{
    const std::string given = mask == nullptr ? "" : mask;
    type_ = type;
    decimalPlaces_ = 0;
    ampm_ = false;
    spun_ = false;
    ForgetTyping();
    int result = 1;
    std::optional<std::string> expansion;
    if (SameText(given, "[date]") || SameText(given, "[time]")) {
        const Picture picture = PictureToMask(*regional_, 255, SameText(given, "[date]") ? 1 : 2);
        if (picture.status == 0)
            expansion = picture.mask;
    } else if (SameText(given, "[date] [time]")) {
        const Picture date = PictureToMask(*regional_, 255, 1);
        const Picture time = PictureToMask(*regional_, 254 - static_cast<int>(date.mask.size()), 2);
        if (date.status == 0 && time.status == 0)
            expansion = date.mask + " " + time.mask;
    } else if (given.compare(0, 9, "[currency") == 0) {
        const size_t open = given.find('(');
        const size_t close = open == std::string::npos ? open : given.find(')', open);
        if (close != std::string::npos && close - open - 1 <= 19) {
            const auto digits = static_cast<short>(std::atoi(given.substr(open + 1, close - open - 1).c_str()));
            const std::string built = CurrencyMask(*regional_, digits);
            if (digits <= 16 && built.size() <= 255)
                expansion = built;
        }
    }
    keyword_ = expansion.has_value();
    if (expansion) {
        // Taken as it is: the check only tells where its fields stand.
        CheckMask(*expansion, type);
        mask_ = *expansion;
    } else if (CheckMask(given, type))
        mask_ = given;
    else {
        result = 0;
        mask_ = DefaultMask(type);
        if (type == kDate || type == kDateTime)
            yearDigits_ = 2;
    }
    format_ = IsNumeric() ? CompiledMask() : model::Format();
    percent_ = format_.percent;
    if (IsNumeric())
        decimalPlaces_ = static_cast<int>(NumberFormat().Places());
    ChooseEditMode();
    displayLength_ = ShownOf(mask_);
    if (!codeSpin_) {
        if (type == kString)
            SetData(Value::OfText(mask_.empty() ? std::string() : std::string(255, ' ')));
        else if (IsNumeric())
            SetData(Value::None());
        else
            SetData(Value::OfStamp(Stamp()));
    }
    return result;
}

}  // namespace model
