// What a modern number holds: the digits that were typed, told from the zeros that its mask shows by itself, and back into a content.
#include "engine/modern/number_content.h"

#include <algorithm>

#include "engine/text/ascii.h"
#include "engine/values/number_text.h"

namespace zte::modern::numbers {

namespace {

constexpr int32_t kDoubleDigits = 15;
constexpr int32_t kDecimalDigits = 28;
constexpr int32_t kPercentDigits = 2;
constexpr int32_t kMostDoubleDigits = 309;  // of the largest values, before the point
constexpr int32_t kMostDecimalDigits = 29;

bool IsZeros(const Text& digits)
{
    return digits.find_first_not_of(Char{'0'}) == Text::npos;
}

void DropZerosInFront(Text& digits)
{
    digits.erase(0, std::min(digits.find_first_not_of(Char{'0'}), digits.size()));
}

// One placeholder before an only comma is how number formats write "grouped", and says nothing about the room.
bool IsGroupedOnly(const Char* format)
{
    int32_t places = 0;
    int32_t commas = 0;
    int32_t placesBefore = 0;
    for (Token token = NextToken(format); token.kind != TokenKind::End && token.kind != TokenKind::Point;
         token = NextToken(format)) {
        places += IsPlaceholder(token.kind) ? 1 : 0;
        if (token.kind == TokenKind::Group) {
            ++commas;
            placesBefore = places;
        }
    }
    return commas == 1 && placesBefore == 1 && places > 1;
}

Text GeneralText(const EditInstance& edit, const Text& plain)
{
    if (edit.dataType == DT_NUMBER)
        return services::FormatDouble(*edit.table->compiled, NumberFromPlainText(plain.c_str()), *edit.settings);
    const DecimalValue value = services::DecimalOf(plain.c_str(), 0);
    return services::FormatDecimal(*edit.table->compiled, value, *edit.settings);
}

// Sign, digits, at most one point, at least one digit: where a plain number ends; null where there is none.
const Char* EndOfPlain(const Char* at)
{
    at += IsSign(*at) ? 1 : 0;
    int32_t digits = 0;
    for (bool point = false; IsDigit(*at) || (*at == '.' && !point); ++at) {
        digits += IsDigit(*at) ? 1 : 0;
        point = point || *at == '.';
    }
    return digits > 0 ? at : nullptr;
}

TypedNumber DigitsOfPlain(const Text& plain)
{
    const int32_t start = IsSign(At(plain, 0)) ? 1 : 0;
    const int32_t point = Find(plain, Char{'.'});
    const int32_t integerEnd = point >= 0 ? point : Length(plain);
    TypedNumber number;
    number.integer = Slice(plain, start, integerEnd - start);
    number.fraction = point >= 0 ? plain.substr(static_cast<size_t>(point) + 1) : Text();
    DropZerosInFront(number.integer);
    number.negative = At(plain, 0) == '-' && !IsZero(number);
    return number;
}

// The zeros that the mask shows anyway are no part of a percentage's fraction.
void DropForcedZeros(Text& fraction, int32_t forced)
{
    const int32_t last = static_cast<int32_t>(fraction.find_last_not_of(Char{'0'}) + 1);
    if (last < Length(fraction) && Length(fraction) <= forced)
        fraction.resize(static_cast<size_t>(last));
}

// "1.5E-7" in digits alone.
Text WithoutExponent(const Text& general)
{
    const int32_t exponentAt = Find(general, Char{'E'});
    if (exponentAt < 0)
        return general;
    TypedNumber number = DigitsOfPlain(Slice(general, 0, exponentAt));
    MovePoint(number, IntegerOf(general.c_str() + exponentAt + 1));
    return PlainText(number);
}

}  // namespace

HeldNumber::HeldNumber(const EditInstance& edit, const Content& content)
    : shown_(MaskOf(edit), *edit.settings, content.text), digits_(shown_.Digits()), caret_(content.Caret())
{
    DropZerosInFront(digits_.integer);
}

bool HeldNumber::IsZero() const
{
    return numbers::IsZero(digits_);
}

int32_t HeldNumber::FirstHeld() const
{
    int32_t position = FirstDigit();
    while (position < IntegerEnd() && (!IsDigit(At(shown_.Shown(), position)) || At(shown_.Shown(), position) == '0'))
        ++position;
    return position;
}

int32_t HeldNumber::Within(int32_t position) const
{
    return std::clamp(position, shown_.Start(), shown_.End());
}

bool HeldNumber::HasIntegerBefore(int32_t position) const
{
    return !shown_.IsInFraction(position) && shown_.PlaceAt(position).digits < shown_.Front().digits;
}

bool IsZero(const TypedNumber& number)
{
    return IsZeros(number.integer) && IsZeros(number.fraction);
}

void MovePoint(TypedNumber& number, int32_t places)
{
    Text& integer = number.integer;
    Text& fraction = number.fraction;
    const auto count = static_cast<size_t>(places < 0 ? -places : places);
    if (places > 0) {
        fraction.resize(std::max(fraction.size(), count), Char{'0'});
        integer.append(fraction, 0, count);
        fraction.erase(0, count);
    } else {
        integer.insert(0, count - std::min(count, integer.size()), Char{'0'});
        fraction.insert(0, integer, integer.size() - count, count);
        integer.resize(integer.size() - count);
    }
    DropZerosInFront(integer);
}

int32_t Room(const EditInstance& edit)
{
    const NumberMask& mask = MaskOf(edit);
    const int32_t places = mask.shape.integerPlaces;
    const int32_t most = edit.dataType == DT_DECIMAL ? kDecimalDigits : kDoubleDigits;
    return IsGroupedOnly(mask.format) ? std::max(places, most) : places;
}

bool HasRoomFor(const EditInstance& edit, const TypedNumber& number)
{
    return MaskOf(edit).isGeneral || Length(number.integer) <= Room(edit);
}

Text Lay(const EditInstance& edit, const TypedNumber& number)
{
    return LayOutDigits(MaskOf(edit).format, MaskOf(edit).shape, number, *edit.settings);
}

Content Laid(const EditInstance& edit, const TypedNumber& number, DigitPlace place)
{
    Content content;
    content.text = Lay(edit, number);
    const int32_t caret = HeldNumber(edit, content).Shown().PositionOf(place);
    return WithCaret(std::move(content), caret);
}

Content Showing(const EditInstance& edit, Text text)
{
    Content content;
    content.text = std::move(text);
    content.isUntouched = true;
    const int32_t front = MaskOf(edit).isGeneral ? 0 : HeldNumber(edit, content).Front();
    return WithCaret(std::move(content), front);
}

Content ShowingValue(const EditInstance& edit, const Text& plain)
{
    if (MaskOf(edit).isGeneral)
        return Showing(edit, GeneralText(edit, plain));
    TypedNumber number = ReadPlain(edit, plain).value_or(TypedNumber{});
    RoundToPlaces(number, MaskOf(edit).shape.fractionPlaces);
    number.negative = number.negative && !IsZero(number);
    return Showing(edit, Lay(edit, number));
}

Content Blank(const EditInstance& edit)
{
    Content content = ShowingValue(edit, FromAscii("0"));
    content.isEmpty = true;
    return content;
}

Content Emptied(const EditInstance& edit, bool negative)
{
    TypedNumber number;
    number.negative = negative;
    Content content = Laid(edit, number, {false, MaskOf(edit).shape.forcedInteger});
    content.isEmpty = true;
    return content;
}

bool IsOfMask(const EditInstance& edit, const Text& text)
{
    if (MaskOf(edit).isGeneral)
        return GeneralText(edit, WithPlainPoint(text, *edit.settings)) == text;
    const TypedNumber shown = ShownNumber(MaskOf(edit), *edit.settings, text).Digits();
    const bool hasZeroInFront = At(shown.integer, 0) == '0';
    return (!hasZeroInFront || Length(shown.integer) <= MaskOf(edit).shape.forcedInteger) && Lay(edit, shown) == text;
}

// Under masks that show 0 as no text at all, only the memory tells.
bool IsEmpty(const EditInstance& edit, const Content& content)
{
    return content.isEmpty || (content.text.empty() && !Blank(edit).text.empty());
}

Content InForm(const EditInstance& edit, const Content& content)
{
    const bool isShown = content.text.empty() ? !IsEmpty(edit, content) : IsOfMask(edit, content.text);
    return isShown ? content : Blank(edit);
}

Text PlainText(const TypedNumber& number)
{
    Text plain = number.negative && !IsZero(number) ? FromAscii("-") : Text();
    plain += number.integer.empty() ? FromAscii("0") : number.integer;
    return number.fraction.empty() ? plain : plain + Char{'.'} + number.fraction;
}

Text PlainValue(const EditInstance& edit, const Text& text)
{
    if (MaskOf(edit).isGeneral)
        return WithoutExponent(WithPlainPoint(text, *edit.settings));
    TypedNumber number = ShownNumber(MaskOf(edit), *edit.settings, text).Digits();
    if (MaskOf(edit).shape.percent) {
        DropForcedZeros(number.fraction, MaskOf(edit).shape.forcedFraction);
        MovePoint(number, -kPercentDigits);
    }
    return PlainText(number);
}

bool IsValue(const EditInstance& edit, const TypedNumber& number)
{
    return Length(number.integer) <= (edit.dataType == DT_DECIMAL ? kMostDecimalDigits : kMostDoubleDigits);
}

std::optional<TypedNumber> ReadPlain(const EditInstance& edit, const Text& plain)
{
    const Char* end = EndOfPlain(plain.c_str());
    if (!end || *end != Char{})
        return std::nullopt;
    TypedNumber number = DigitsOfPlain(plain);
    if (MaskOf(edit).shape.percent)
        MovePoint(number, kPercentDigits);
    return number;
}

}  // namespace zte::modern::numbers
