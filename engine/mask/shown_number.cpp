// A number's display text taken apart.
#include "engine/mask/shown_number.h"

#include <algorithm>

namespace zte {

namespace {

bool StandsAt(const Text& text, int32_t position, const MaskLiterals& literals)
{
    const auto length = static_cast<size_t>(literals.length);
    return length == 0 || text.compare(static_cast<size_t>(position), length, literals.text, length) == 0;
}

bool IsLiteral(const Token& token)
{
    return token.kind == TokenKind::Literal || token.kind == TokenKind::Percent;
}

}  // namespace

Text LiteralsBefore(const Char* format)
{
    Text literals;
    for (Token token = NextToken(format); IsLiteral(token) || token.kind == TokenKind::Group; token = NextToken(format))
        if (IsLiteral(token))
            literals += token.text;
    return literals;
}

Text LiteralsBehind(const Char* format)
{
    Text literals;
    for (Token token = NextToken(format); token.kind != TokenKind::End; token = NextToken(format)) {
        if (IsLiteral(token))
            literals += token.text;
        else
            literals.clear();
    }
    return literals;
}

// A text set from outside may lack the literals: then it is the number alone.
ShownNumber::ShownNumber(const NumberMask& mask, const Settings& settings, const Text& text)
    : mask_(mask), text_(text), end_(Length(text))
{
    if (StandsAt(text, 0, mask.before))
        start_ = mask.before.length;
    if (end_ - mask.behind.length >= start_ && StandsAt(text, end_ - mask.behind.length, mask.behind))
        end_ -= mask.behind.length;
    const Char* const characters = text.c_str();
    int32_t digits = 0;
    for (int32_t i = start_; i < end_; ++i) {
        const Char c = characters[i];
        if (c == '-' && digits == 0 && sign_ < 0)
            sign_ = i;
        if (c == settings.decimalChar && mask.shape.point) {
            point_ = i;
            break;
        }
        digits += IsDigit(c) ? 1 : 0;
    }
    integerDigits_ = digits;
}

TypedNumber ShownNumber::Digits() const
{
    return {sign_ >= 0, CollectDigits(start_, PointOrEnd()), CollectDigits(PointOrEnd(), end_)};
}

int32_t ShownNumber::ZerosInFront() const
{
    int32_t zeros = 0;
    for (int32_t i = start_; i < PointOrEnd(); ++i) {
        const Char c = At(text_, i);
        if (IsDigit(c) && c != '0')
            break;
        zeros += c == '0' ? 1 : 0;
    }
    return zeros;
}

bool ShownNumber::IsZero() const
{
    return std::none_of(text_.begin() + start_, text_.begin() + end_, [](Char c) { return IsDigit(c) && c != '0'; });
}

bool ShownNumber::IsAtFront(int32_t position) const
{
    return !IsInFraction(position) && CountDigits(start_, position) == 0 && (sign_ < 0 || position <= sign_);
}

DigitPlace ShownNumber::PlaceAt(int32_t position) const
{
    if (IsInFraction(position))
        return {true, CountDigits(point_ + 1, position)};
    return {false, CountDigits(position, PointOrEnd())};
}

int32_t ShownNumber::PositionOf(DigitPlace place) const
{
    if (place.inFraction) {
        int32_t position = point_ + 1;
        for (int32_t left = place.digits; position < end_ && left > 0; ++position)
            left -= IsDigitAt(position) ? 1 : 0;
        return position;
    }
    int32_t position = PointOrEnd();
    for (int32_t right = place.digits; position > start_ && right > 0;) {
        --position;
        right -= IsDigitAt(position) ? 1 : 0;
    }
    int32_t behind = position;
    while (behind > start_ && !IsDigitAt(behind - 1))
        --behind;
    if (behind > start_)
        return behind;
    return std::max(position, sign_ + 1);
}

int32_t ShownNumber::NextDigit(int32_t position) const
{
    const int32_t end = PointOrEnd();
    int32_t next = std::max(position, start_);
    while (next < end && !IsDigitAt(next))
        ++next;
    return std::min(next, end);
}

int32_t ShownNumber::CountDigits(int32_t from, int32_t to) const
{
    int32_t count = 0;
    const int32_t end = std::min(to, end_);
    for (int32_t i = std::max(from, start_); i < end; ++i)
        count += IsDigit(text_[static_cast<size_t>(i)]) ? 1 : 0;
    return count;
}

// Between two places of the number.
Text ShownNumber::CollectDigits(int32_t from, int32_t to) const
{
    Text digits;
    for (int32_t i = from; i < to; ++i)
        if (const Char c = text_[static_cast<size_t>(i)]; IsDigit(c))
            digits += c;
    return digits;
}

}  // namespace zte
