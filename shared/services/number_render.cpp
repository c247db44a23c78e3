// Lays decimal digits through a number format: the one renderer behind doubles and decimals.
#include <cstring>

#include "shared/services/decimal_digits.h"
#include "shared/services/number_format.h"
#include "shared/services/regional.h"
#include "ztshared.h"

namespace shared {

namespace {

constexpr int32_t kGroupSize = 3;
constexpr int32_t kGeneralDigits = 15;  // significant digits, and zeros in front of them, that the plain form may have

// A caller's buffer; what does not fit is cut off, and the text is terminated whatever happens.
class Output {
public:
    Output(char* buffer, int32_t size) : buffer_(buffer), room_(buffer && size > 0 ? size - 1 : 0)
    {
        if (buffer && size > 0)
            *buffer = '\0';
    }

    void Put(char c)
    {
        if (length_ == room_)
            return;
        buffer_[length_++] = c;
        buffer_[length_] = '\0';
    }

    void Put(const char* text)
    {
        for (; *text != '\0'; ++text)
            Put(*text);
    }

    int32_t Length() const { return length_; }

private:
    char* buffer_;
    int32_t room_;
    int32_t length_ = 0;
};

// One number on its way through one format.
class Rendering {
public:
    Rendering(Output& output, const char* format, const DecimalDigits& number)
        : output_(output), format_(format), shape_(ReadShape(format)), number_(number)
    {
        if (shape_.percent)
            number_.MultiplyByPowerOfTen(2);
        number_.RoundToFractionDigits(shape_.fractionPlaces);
        integerDigits_ = Larger(number_.PointPos(), shape_.forcedInteger);
        fractionDigits_ = Larger(number_.FractionDigits(), shape_.forcedFraction);
        placesLeft_ = shape_.integerPlaces;
        digitsLeft_ = integerDigits_;
    }

    void Run()
    {
        for (Token token = NextToken(format_); token.kind != TokenKind::End; token = NextToken(format_))
            Show(token);
    }

private:
    static int32_t Larger(int32_t first, int32_t second) { return first > second ? first : second; }

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
    }

    // Digits until only those of the places to the right are left; the first place takes all that are too many.
    void ShowIntegerDigits(int32_t remaining)
    {
        while (digitsLeft_ > remaining) {
            ShowSign();
            --digitsLeft_;
            output_.Put(number_.At(number_.PointPos() - digitsLeft_ - 1));
            if (shape_.grouped && digitsLeft_ > 0 && digitsLeft_ % kGroupSize == 0)
                output_.Put(RegionalConventions().thousand);
        }
    }

    void ShowPoint()
    {
        ShowIntegerDigits(0);
        ShowSign();
        output_.Put(RegionalConventions().decimal);
        inFraction_ = true;
    }

    void ShowFractionPlace()
    {
        if (fractionShown_ == fractionDigits_)
            return;
        output_.Put(number_.At(number_.PointPos() + fractionShown_));
        ++fractionShown_;
    }

    // Directly before the first digit or the point, whichever comes first.
    void ShowSign()
    {
        if (number_.IsNegative() && !signShown_)
            output_.Put('-');
        signShown_ = true;
    }

    Output& output_;
    const char* format_;
    FormatShape shape_;
    DecimalDigits number_;
    int32_t integerDigits_ = 0;
    int32_t fractionDigits_ = 0;
    int32_t placesLeft_ = 0;  // integer placeholders still to come
    int32_t digitsLeft_ = 0;  // integer digits still to be shown
    int32_t fractionShown_ = 0;
    bool inFraction_ = false;
    bool signShown_ = false;
};

void PutExponent(Output& output, int32_t exponent)
{
    output.Put('E');
    output.Put(exponent < 0 ? '-' : '+');
    const int32_t magnitude = exponent < 0 ? -exponent : exponent;
    if (magnitude >= 100)
        output.Put(static_cast<char>('0' + magnitude / 100));
    output.Put(static_cast<char>('0' + magnitude / 10 % 10));
    output.Put(static_cast<char>('0' + magnitude % 10));
}

// Digits with integerDigits of them before the point; the point only when digits follow it.
void PutPlain(Output& output, const DecimalDigits& number, int32_t integerDigits)
{
    for (int32_t i = 0; i < integerDigits; ++i)
        output.Put(number.At(i));
    if (integerDigits <= 0)
        output.Put('0');
    if (number.Count() <= integerDigits)
        return;
    output.Put(RegionalConventions().decimal);
    for (int32_t i = integerDigits; i < number.Count(); ++i)
        output.Put(number.At(i));
}

void RenderGeneral(Output& output, DecimalDigits number)
{
    number.RoundToSignificantDigits(kGeneralDigits);
    if (number.IsZero()) {
        output.Put('0');
        return;
    }
    if (number.IsNegative())
        output.Put('-');
    const bool plain = number.PointPos() <= kGeneralDigits && number.PointPos() >= -kGeneralDigits;
    PutPlain(output, number, plain ? number.PointPos() : 1);
    if (!plain)
        PutExponent(output, number.PointPos() - 1);
}

int32_t Render(char* buffer, int32_t size, const void* compiled, const DecimalDigits& number)
{
    Output output(buffer, size);
    const auto format = static_cast<const char*>(compiled);
    if (!format)
        return 0;
    if (IsGeneralFormat(format))
        RenderGeneral(output, number);
    else
        Rendering(output, format, number).Run();
    return output.Length();
}

}  // namespace

}  // namespace shared

int32_t WINAPI SharedFormatDouble(char* output, int32_t size, const void* compiled, double value, uint32_t /*flags*/)
{
    return shared::Render(output, size, compiled, shared::DecimalDigits::FromDouble(value));
}

int32_t WINAPI SharedFormatDecimal(char* output, int32_t size, const void* compiled, const DecimalValue* value,
                                   uint32_t /*flags*/)
{
    // Without a value there is nothing to show, not even the format's literals.
    return shared::Render(output, size, value ? compiled : nullptr,
                          value ? shared::DecimalDigits::FromDecimal(*value) : shared::DecimalDigits());
}
