// Number texts with the regional decimal character, and the values that they stand for; percentages.
#include "engine/format/number_value.h"

#include <optional>

#include <algorithm>

#include "engine/mask/mask_table.h"
#include "engine/services.h"
#include "engine/text/ascii.h"
#include "engine/values/number_text.h"

namespace zte {

namespace {

constexpr size_t kGroupSize = 3;
constexpr size_t kPercentDigits = 2;

bool IsGeneral(const EditInstance& edit)
{
    return edit.table && edit.table->number.isGeneral;
}

bool IsExponentSign(const EditInstance& edit, Char c)
{
    return IsGeneral(edit) && AsciiUpper(c) == 'E';
}

// '.' counts as a point too where it does not separate thousands.
bool IsPoint(const EditInstance& edit, Char c)
{
    return c == edit.settings->decimalChar || (c == '.' && c != edit.settings->thousandChar);
}

// Digits, signs and points.
Text Kept(const EditInstance& edit, const Text& text, int32_t from, int32_t to)
{
    Text kept;
    for (int32_t i = from; i < to; ++i) {
        const Char c = At(text, i);
        if (IsDigit(c) || IsSign(c) || IsPoint(edit, c) || IsExponentSign(edit, c))
            kept += c;
    }
    return kept;
}

bool IsZero(const Text& number)
{
    return std::none_of(number.begin(), number.end(), [](Char c) { return IsDigit(c) && c != '0'; });
}

bool IsLoneSign(const Text& number)
{
    return number.size() == 1 && IsSign(number[0]);
}

// Zero has no sign, also while one is being typed before it.
Text WithoutSignOfZero(const Text& number)
{
    return At(number, 0) == '-' && IsZero(number) ? number.substr(1) : number;
}

// The point moved two digits to the left, in the plain form: digits only, so that not one is lost.
Text Hundredth(const Text& percentage, Char pointRead, Char pointWritten)
{
    const bool negative = At(percentage, 0) == '-';
    Text integer = percentage.substr(IsSign(At(percentage, 0)) ? 1 : 0);
    Text fraction;
    const int32_t point = Find(integer, pointRead);
    if (point >= 0) {
        fraction = integer.substr(static_cast<size_t>(point) + 1);
        integer.resize(static_cast<size_t>(point));
    }
    integer.insert(0, kPercentDigits, '0');
    fraction.insert(0, integer, integer.size() - kPercentDigits, kPercentDigits);
    integer.resize(integer.size() - kPercentDigits);
    integer.erase(0, std::min(integer.find_first_not_of(Char{'0'}), integer.size()));
    fraction.resize(fraction.find_last_not_of(Char{'0'}) + 1);

    Text value = negative && !(integer.empty() && fraction.empty()) ? FromAscii("-") : Text();
    value += integer.empty() ? FromAscii("0") : integer;
    return fraction.empty() ? value : value + pointWritten + fraction;
}

Text WithoutSymbol(Text text, const Settings& settings)
{
    const Text symbol = settings.currencySymbol;
    const size_t at = text.find(symbol);
    return at == Text::npos ? text : text.erase(at, symbol.size());
}

// ---- texts handed in

// Reads a number as it is shown, character by character.
class ShownReader {
public:
    explicit ShownReader(const EditInstance& edit, const Text& text) : edit_(edit), at_(text.c_str()) {}

    // False when the text is none, or more.
    bool Read()
    {
        TakeSign();
        if (!TakeInteger())
            return false;
        if (*at_ == edit_.settings->decimalChar)
            TakeFraction();
        if (digits_ == 0)
            return false;
        TakeExponent();
        percentage_ = *at_ == '%';
        at_ += percentage_ ? 1 : 0;
        return *at_ == Char{};
    }

    const Text& Plain() const { return plain_; }
    bool IsPercentage() const { return percentage_; }

private:
    void TakeSign()
    {
        if (!IsSign(*at_))
            return;
        if (*at_ == '-')
            plain_ += *at_;
        ++at_;
    }

    size_t TakeDigits()
    {
        const Char* from = at_;
        while (IsDigit(*at_))
            plain_ += *at_++;
        digits_ += static_cast<size_t>(at_ - from);
        return static_cast<size_t>(at_ - from);
    }

    // Groups of three from the first separator on, or none.
    bool TakeInteger()
    {
        const size_t first = TakeDigits();
        const Char separator = edit_.settings->thousandChar;
        if (separator == edit_.settings->decimalChar || first == 0 || first > kGroupSize)
            return true;
        while (*at_ == separator) {
            ++at_;
            if (TakeDigits() != kGroupSize)
                return false;
        }
        return true;
    }

    void TakeFraction()
    {
        plain_ += Char{'.'};
        ++at_;
        TakeDigits();
    }

    void TakeExponent()
    {
        if (!IsExponentSign(edit_, *at_))
            return;
        plain_ += *at_++;
        if (IsSign(*at_))
            plain_ += *at_++;
        while (IsDigit(*at_))
            plain_ += *at_++;
    }

    const EditInstance& edit_;
    const Char* at_;
    Text plain_;
    size_t digits_ = 0;
    bool percentage_ = false;
};

// The text without the literals that the mask, or the settings, put around a number; a sign may stand before a symbol.
Text Bare(const EditInstance& edit, const Text& text)
{
    const NumberMask& mask = edit.table->number;
    const ShownNumber shown(mask, *edit.settings, text);
    const bool percentage = At(text, Length(text) - 1) == '%';
    Text bare = Slice(text, shown.Start(), shown.End() - shown.Start());
    bare = WithoutSymbol(bare, *edit.settings);
    if (percentage && At(bare, Length(bare) - 1) != '%')
        bare += Char{'%'};
    return bare;
}

// The plain text of a number written under the settings, a percentage as its hundredth; none of any other text.
std::optional<Text> ReadAsShown(const EditInstance& edit, const Text& text)
{
    ShownReader reader(edit, text);
    if (!reader.Read() || (reader.IsPercentage() && !Has(edit, PERCENT)))
        return std::nullopt;
    return reader.IsPercentage() ? Hundredth(reader.Plain(), Char{'.'}, Char{'.'}) : reader.Plain();
}

bool IsCanonical(const Text& text)
{
    return IsNumberText(text.c_str(), Char{'.'});
}

}  // namespace

double NumberFromText(const EditInstance& edit, const Text& text)
{
    return NumberFromPlainText(WithPlainPoint(text, *edit.settings).c_str());
}

DecimalValue DecimalFromText(const EditInstance& edit, const Text& text)
{
    return services::DecimalOf(WithPlainPoint(text, *edit.settings).c_str(), edit.decimalPlaces);
}

Text NumberShown(const EditInstance& edit, const Text& text)
{
    const ShownNumber shown(edit.table->number, *edit.settings, text);
    const Text kept = Kept(edit, text, shown.Start(), shown.End());
    if (IsLoneSign(kept) && shown.End() == 1)  // nothing stands in front of it either
        return FromAscii("0");
    return ValueOfWritten(edit, WithoutSignOfZero(kept));
}

Text ValueOfWritten(const EditInstance& edit, const Text& number)
{
    const Char decimalChar = edit.settings->decimalChar;
    return Has(edit, PERCENT) ? Hundredth(number, Find(number, decimalChar) >= 0 ? decimalChar : Char{'.'}, decimalChar)
                              : number;
}

Text NumberIn(const EditInstance& edit, const Text& text)
{
    const Text bare = Bare(edit, text);
    return Kept(edit, bare, 0, Length(bare));
}

bool IsNumberOf(const EditInstance& edit, const Text& text)
{
    if (services::IsNumber(text.c_str(), *edit.settings))
        return true;
    ShownReader reader(edit, text);
    return IsGeneral(edit) && reader.Read() && !reader.IsPercentage();
}

// As the getters return a number, before as the mask shows it: literals may hold digits.
Text PlainNumberOf(const EditInstance& edit, const Text& text)
{
    if (!edit.table || IsCanonical(text))
        return text;
    if (const std::optional<Text> returned = ReadAsShown(edit, text))
        return *returned;
    return ReadAsShown(edit, Bare(edit, text)).value_or(text);
}

}  // namespace zte
