// Lays decimal digits through a number format: the one renderer behind doubles and decimals.
#include <algorithm>
#include <cstdlib>

#include "engine/text/ascii.h"
#include "engine/values/number_format.h"
#include "engine/values/typed_number.h"

namespace zte {

namespace {

constexpr int32_t kGroupSize = 3;
constexpr int32_t kGeneralDigits = 15;  // significant digits, and zeros in front of them, that the plain form may have

// The digits of a value, rounded to what the format shows of them.
class ValueDigits {
public:
    ValueDigits(const DecimalDigits& number, const FormatShape& shape) : number_(number)
    {
        if (shape.percent)
            number_.MultiplyByPowerOfTen(2);
        number_.RoundToFractionDigits(shape.fractionPlaces);
    }

    bool IsNegative() const { return number_.IsNegative(); }
    int32_t IntegerDigits() const { return number_.PointPos(); }
    int32_t FractionDigits() const { return number_.FractionDigits(); }
    Char IntegerDigit(int32_t fromPoint) const { return number_.At(number_.PointPos() - fromPoint - 1); }
    Char FractionDigit(int32_t index) const { return number_.At(number_.PointPos() + index); }

private:
    DecimalDigits number_;
};

// The digits of a number that is being typed, as they are.
class TypedDigits {
public:
    explicit TypedDigits(const TypedNumber& number) : number_(number) {}

    bool IsNegative() const { return number_.negative; }
    int32_t IntegerDigits() const { return Length(number_.integer); }
    int32_t FractionDigits() const { return Length(number_.fraction); }
    Char IntegerDigit(int32_t fromPoint) const { return DigitOf(number_.integer, IntegerDigits() - fromPoint - 1); }
    Char FractionDigit(int32_t index) const { return DigitOf(number_.fraction, index); }

private:
    static Char DigitOf(const Text& digits, int32_t index)
    {
        const Char digit = At(digits, index);
        return digit == Char{} ? Char{'0'} : digit;
    }

    const TypedNumber& number_;
};

// Takes the text of a number on its way; what is too long is cut off.
class LaidText {
public:
    void Put(Char c)
    {
        if (length_ < kLongestLaidNumber)
            text_[length_++] = c;
    }
    Text Taken() const { return Text(text_, static_cast<size_t>(length_)); }

private:
    Char text_[kLongestLaidNumber];
    int32_t length_ = 0;
};

// One number on its way through one format, into a Writer or a LaidText.
template <typename Output, typename Digits>
class Rendering {
public:
    Rendering(Output& output, const Char* format, const FormatShape& shape, const Digits& digits,
              const Settings& settings)
        : output_(output), format_(format), shape_(shape), digits_(digits), settings_(settings)
    {
    }

    void Run()
    {
        Token token;
        do {
            token = NextToken(format_);
            Show(token);
        } while (token.kind != TokenKind::End);
    }

private:
    void Show(const Token& token)
    {
        if (IsPlaceholder(token.kind))
            ShowPlace();
        else if (token.kind == TokenKind::Point)
            ShowPoint();
        else if (token.kind == TokenKind::Literal || token.kind == TokenKind::Percent)
            output_.Put(token.text);
    }

    void ShowPlace()
    {
        if (inFraction_) {
            ShowFractionPlace();
            return;
        }
        --placesLeft_;
        ShowIntegerDigits(placesLeft_);
        if (placesLeft_ == 0 && !shape_.point)
            ShowSign();  // of a number that is being typed and has no digit yet
    }

    // Digits until only those of the places to the right are left; the first place takes all that are too many.
    void ShowIntegerDigits(int32_t remaining)
    {
        while (digitsLeft_ > remaining) {
            ShowSign();
            --digitsLeft_;
            output_.Put(digits_.IntegerDigit(digitsLeft_));
            if (isGrouped_ && digitsLeft_ > 0 && digitsLeft_ % kGroupSize == 0)
                output_.Put(settings_.thousandChar);
        }
    }

    void ShowPoint()
    {
        ShowIntegerDigits(0);
        ShowSign();
        output_.Put(settings_.decimalChar);
        inFraction_ = true;
    }

    void ShowFractionPlace()
    {
        if (fractionShown_ == fractionDigits_)
            return;
        output_.Put(digits_.FractionDigit(fractionShown_));
        ++fractionShown_;
    }

    // Directly before the first digit or the point, whichever comes first.
    void ShowSign()
    {
        if (digits_.IsNegative() && !signShown_)
            output_.Put(Char{'-'});
        signShown_ = true;
    }

    Output& output_;
    const Char* format_;
    const FormatShape& shape_;
    const Digits& digits_;
    const Settings& settings_;
    const bool isGrouped_ = IsGrouped(shape_, settings_);
    const int32_t fractionDigits_ = std::max(digits_.FractionDigits(), shape_.forcedFraction);
    int32_t placesLeft_ = shape_.integerPlaces;  // integer placeholders still to come
    int32_t digitsLeft_ = std::max(digits_.IntegerDigits(), shape_.forcedInteger);  // integer digits still to be shown
    int32_t fractionShown_ = 0;
    bool inFraction_ = false;
    bool signShown_ = false;
};

void PutExponent(Writer& output, int32_t exponent)
{
    output.Put(Char{'E'});
    output.Put(exponent < 0 ? Char{'-'} : Char{'+'});
    const int32_t magnitude = std::abs(exponent);
    if (magnitude >= 100)
        output.Put(DigitChar(magnitude / 100));
    output.Put(DigitChar(magnitude / 10 % 10));
    output.Put(DigitChar(magnitude % 10));
}

// Digits with integerDigits of them before the point; the point only when digits follow it.
void PutPlain(Writer& output, const DecimalDigits& number, int32_t integerDigits, const Settings& settings)
{
    for (int32_t i = 0; i < integerDigits; ++i)
        output.Put(number.At(i));
    if (integerDigits <= 0)
        output.Put(Char{'0'});
    if (number.Count() <= integerDigits)
        return;
    output.Put(settings.decimalChar);
    for (int32_t i = integerDigits; i < number.Count(); ++i)
        output.Put(number.At(i));
}

void RenderGeneral(Writer& output, DecimalDigits number, const Settings& settings)
{
    number.RoundToSignificantDigits(kGeneralDigits);
    if (number.IsNegative())
        output.Put(Char{'-'});
    const bool plain = number.PointPos() <= kGeneralDigits && number.PointPos() >= -kGeneralDigits;
    PutPlain(output, number, plain ? number.PointPos() : 1, settings);
    if (!plain)
        PutExponent(output, number.PointPos() - 1);
}

}  // namespace

void RenderNumber(Writer& output, const Char* compiled, const DecimalDigits& number, const Settings& settings)
{
    if (IsGeneralFormat(compiled))
        return RenderGeneral(output, number, settings);
    const FormatShape shape = ReadShape(compiled);
    Rendering(output, compiled, shape, ValueDigits(number, shape), settings).Run();
}

Text LayOutDigits(const Char* compiled, const FormatShape& shape, const TypedNumber& number, const Settings& settings)
{
    LaidText laid;
    Rendering(laid, compiled, shape, TypedDigits(number), settings).Run();
    return laid.Taken();
}

}  // namespace zte
