// Number formats, and numbers shown by them. Bytes: settings, the number (a byte of its kind, then its bits), the format.
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "engine/mask/shown_number.h"
#include "engine/services.h"
#include "engine/values/number_text.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/promises.h"
#include "tests/fuzz/regional.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using zte::DecimalDigits;
using zte::Text;

double TakeDouble(Bytes& bytes)
{
    const uint64_t bits = bytes.Take64();
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

DecimalValue TakeDecimal(Bytes& bytes)
{
    DecimalValue value{};
    value.scale = static_cast<uint8_t>(bytes.TakeBelow(29));
    value.sign = bytes.TakeBool() ? uint8_t{0x80} : uint8_t{0};
    value.hi32 = bytes.Take32();
    value.lo64 = bytes.Take64();
    return value;
}

// The digits read back are the same double.
void CheckDigits(double value, const DecimalDigits& digits)
{
    if (!std::isfinite(value) || value == 0.0) {
        Demand(digits.IsZero() && !digits.IsNegative(), "what is no number is zero");
        return;
    }
    Text text = digits.IsNegative() ? "-0." : "0.";
    for (int32_t at = 0; at < digits.Count(); ++at)
        text += digits.At(at);
    text += 'e';
    text += std::to_string(digits.PointPos());
    Demand(std::strtod(text.c_str(), nullptr) == value, "the digits of a double are that double", text);
}

// What a display holds between the literals, as it was laid: told here from the format alone.
struct Laid {
    bool negative = false;
    bool point = false;
    Text integer;
    Text fraction;
};

// Digits, groups of three, the point. False for anything else.
bool TakeApart(const Text& number, const zte::FormatShape& shape, const zte::Settings& settings, Laid& laid)
{
    const bool grouped = shape.grouped && settings.thousandChar != settings.decimalChar;
    size_t at = 0;
    if (number[at] == '-') {
        laid.negative = true;
        ++at;
    }
    size_t sinceGroup = 0;
    bool groups = false;
    for (; at < number.size() && number[at] != settings.decimalChar; ++at) {
        if (number[at] >= '0' && number[at] <= '9') {
            laid.integer += number[at];
            ++sinceGroup;
            continue;
        }
        if (!grouped || number[at] != settings.thousandChar || sinceGroup == 0 || sinceGroup > 3 ||
            (groups && sinceGroup != 3))
            return false;
        groups = true;
        sinceGroup = 0;
    }
    if (grouped && (groups ? sinceGroup != 3 : sinceGroup > 3))
        return false;
    if (at < number.size()) {
        laid.point = true;
        laid.fraction = number.substr(at + 1);
    }
    return laid.fraction.find_first_not_of("0123456789") == Text::npos;
}

Text WithoutLeadingZeros(const Text& digits)
{
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

Text WithoutTrailingZeros(const Text& digits)
{
    return digits.substr(0, digits.find_last_not_of('0') + 1);
}

void CheckLaid(const Laid& laid, const zte::FormatShape& shape, DecimalDigits number, const Text& display)
{
    if (shape.percent)
        number.MultiplyByPowerOfTen(2);
    number.RoundToFractionDigits(shape.fractionPlaces);
    Text integer;
    for (int32_t at = 0; at < number.PointPos() && !number.IsZero(); ++at)
        integer += number.At(at);
    Text fraction;
    for (int32_t at = 0; at < number.FractionDigits(); ++at)
        fraction += number.At(number.PointPos() + at);
    DemandEqual(WithoutLeadingZeros(laid.integer), integer, "the digits before the point are the number's");
    DemandEqual(WithoutTrailingZeros(laid.fraction), fraction, "the digits behind the point are the number's");
    Demand(laid.negative == number.IsNegative(), "the sign is the number's", display);
    Demand(laid.point == shape.point, "the point is shown when the format has one", display);
    Demand(zte::Length(laid.integer) >= shape.forcedInteger, "forced digits stand before the point", display);
    Demand(zte::Length(laid.fraction) >= shape.forcedFraction && zte::Length(laid.fraction) <= shape.fractionPlaces,
           "as many digits stand behind the point as the format asks for", display);
}

void CheckDisplay(const Text& format, const DecimalDigits& number, const zte::Settings& settings, const Text& display)
{
    const zte::FormatShape shape = zte::ReadShape(format.c_str());
    if (zte::IsGeneralFormat(format.c_str()) || !IsInOnePiece(format) || !CanWriteNumbers(settings))
        return;
    const Text before = zte::LiteralsBefore(format.c_str());
    const Text behind = zte::LiteralsBehind(format.c_str());
    Demand(display.size() >= before.size() + behind.size() && display.compare(0, before.size(), before) == 0 &&
               display.compare(display.size() - behind.size(), behind.size(), behind) == 0,
           "the literals stand around a number", display, format);
    Laid laid;
    const Text middle = display.substr(before.size(), display.size() - before.size() - behind.size());
    Demand(TakeApart(middle, shape, settings, laid), "a number is digits, groups of three and a point", display,
           format);
    CheckLaid(laid, shape, number, display);
}

// "[GENERAL]" reads what it shows, but for the digits behind the fifteenth: rounded to these, the largest numbers are beyond all others.
void CheckGeneral(double value, const Text& display, const zte::Settings& settings)
{
    constexpr double kLargest = 1.79769313486231e308;
    if (!(std::fabs(value) <= kLargest))
        return;
    const double read = zte::NumberFromPlainText(zte::WithPlainPoint(display, settings).c_str());
    Demand(std::fabs(read - value) <= std::fabs(value) * 1e-14, "a number shown in general is that number", display);
}

}  // namespace

void PlayNumberFormats(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const zte::Settings& settings = RegionalSettings(bytes.Take());
    const bool isDecimal = bytes.TakeBool();
    const double value = isDecimal ? 0.0 : TakeDouble(bytes);
    const DecimalValue decimal = isDecimal ? TakeDecimal(bytes) : DecimalValue{};
    const Text format = bytes.TakeRest();
    CountStep(2);
    zte::services::NumberFormat compiled;
    const bool isValid = zte::services::CompileFormat(compiled, format);
    Demand(!isValid || zte::IsValidFormat(compiled.compiled), "what is compiled is valid", format);
    if (!isValid)
        return;
    CountStep(2);
    const DecimalDigits digits = isDecimal ? DecimalDigits::FromDecimal(decimal) : DecimalDigits::FromDouble(value);
    if (!isDecimal)
        CheckDigits(value, digits);
    const Text display = isDecimal ? zte::services::FormatDecimal(compiled, decimal, settings)
                                   : zte::services::FormatDouble(compiled, value, settings);
    Demand(zte::Length(display) < zte::services::kRenderedSize, "a number shown fits its room", display);
    CheckDisplay(compiled.compiled, digits, settings, display);
    if (zte::IsGeneralFormat(compiled.compiled) && !isDecimal)
        CheckGeneral(value, display, settings);
}

}  // namespace zttest
