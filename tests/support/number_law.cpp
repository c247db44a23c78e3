// The law of typing, read off masks and settings alone.
#include "tests/support/number_law.h"

#include <algorithm>
#include <cstring>
#include <set>

#include "tests/support/currencies.h"
#include "tests/support/values.h"

namespace zttest {

// Separators of all kinds, equal ones too: an empty key of the profile counts as an absent one, so a decimal comma without a
// thousands character gives two commas. Symbols that look like parts of numbers or like mask characters.
// clang-format off
const std::vector<NumberSettings>& AllNumberSettings()
{
    static const std::vector<NumberSettings> settings = {
        // Name              Decimal  Thousands  Symbol   Side  Digits
        {"UnitedStates",     ".",     ",",       "$",     0,    2},
        {"German",           ",",     ".",       "EUR",   1,    2},
        {"FrenchBlank",      ",",     " ",       "F",     1,    2},
        {"FrenchNoBreak",    ",",     "\xA0",    "\x80",  3,    2},
        {"Swiss",            ".",     "'",       "CHF",   0,    2},
        {"SwissFr",          ".",     "'",       "Fr.",   2,    2},
        {"Swedish",          ",",     "\xA0",    "kr",    3,    2},
        {"Danish",           ",",     ".",       "kr.",   2,    2},
        {"DanishBehind",     ",",     ".",       "kr.",   3,    2},
        {"KrBehindByPoint",  ".",     ",",       "kr.",   1,    2},
        {"Yen",              ".",     ",",       "\xA5",  0,    0},
        {"WholeFrancs",      ",",     " ",       "F",     1,    0},
        {"MXN",              ".",     ",",       "MXN",   0,    2},
        {"XAF",              ",",     " ",       "XAF",   3,    0},
        {"Kuwait",           ".",     ",",       "KWD",   2,    3},
        {"Persian",          "/",     ",",       "Rial",  0,    2},
        {"ZeroX",            ".",     ",",       "0x",    0,    2},
        {"ZeroXBehind",      ",",     ".",       "0x",    1,    2},
        {"EqualPoints",      ".",     ".",       "$",     0,    2},
        {"EqualCommas",      ",",     "",        "kr",    1,    2},
        {"NoSymbol",         ".",     ",",       "",      0,    2},
        {"RaisedPoint",      "\xB7",  "_",       "L",     0,    2},
    };
    return settings;
}

const std::vector<const char*> kNumberMasks = {
    "",             "#,#.00",       "#,##0.00",      "#,###.00",       "#,###,##0.00",      "#,###,###.00",
    "##0.00",       "##0",          "###",           "####",           "#,###",             "#,##0",
    "#.##",         "#.#",          "0.##",          "##0.0##",        ".00",               ".##",
    "#",            "0",            "000",           "0000",           "0.00",              "00.00",
    "000.000",      "0,000.00",     "#00.00",        "0##",            "00#.0",             "#,##0.000",
    "##0%",         "###%",         "#%",            "000%",           "000.0%",            "#,##0.00%",
    "#,##0%",       "#.##%",        "0.00%",         "#,##0.0#%",      "$#,##0.00",         "$###",
    "$000.00",      "CHF##0.00",    "Total #,##0",   "~##0",           "~0##0.00",          "No~. ##0",
    "A-##0.0",      "[currency(9)]", "[currency(5)]", "[currency(3)]", "[currency(16)]",    "#,###,###,##0.00",
    "####################",         "#,##0.000000000000000000%",
};
// clang-format on

namespace {

constexpr int kHome = 0x24;
constexpr int kEnd = 0x23;
constexpr int kRight = 0x27;
constexpr int kDelete = 0x2E;
constexpr int kBack = 0x08;
constexpr size_t kExactDoubleDigits = 15;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
bool IsSign(char c)
{
    return c == '-' || c == '+';
}
bool HoldsDigit(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), IsDigit);
}

std::string WithoutLeadingZeros(const std::string& digits)
{
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}
std::string WithoutTrailingZeros(const std::string& digits)
{
    return digits.substr(0, digits.find_last_not_of('0') + 1);
}

std::string DigitsOf(const std::string& text, size_t from, size_t to)
{
    std::string digits;
    for (size_t i = from; i < std::min(to, text.size()); ++i)
        if (IsDigit(text[i]))
            digits += text[i];
    return digits;
}

// A percentage as the fraction that it stands for.
PlainNumber Hundredth(PlainNumber number)
{
    while (number.integer.size() < 2)
        number.integer.insert(0, "0");
    const size_t left = number.integer.size() - 2;
    number.fraction = WithoutTrailingZeros(number.integer.substr(left) + number.fraction);
    number.integer = WithoutLeadingZeros(number.integer.substr(0, left));
    return number;
}

std::string Printable(const std::string& text)
{
    std::string printable;
    constexpr char kHex[] = "0123456789ABCDEF";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte < 0x7F)
            printable += c;
        else
            printable += std::string("\\x") + kHex[byte / 16] + kHex[byte % 16];
    }
    return printable;
}

std::string WithCaret(const std::string& text, int start, int end)
{
    const auto at = [&](int position) { return std::min(static_cast<size_t>(position), text.size()); };
    if (start == end)
        return Printable(text.substr(0, at(start)) + '|' + text.substr(at(start)));
    return Printable(text.substr(0, at(start)) + '{' + text.substr(at(start), at(end) - at(start)) + '}' +
                     text.substr(at(end)));
}

bool HoldsAnyOf(const std::string& text, const std::string& characters)
{
    return text.find_first_of(characters) != std::string::npos;
}

}  // namespace

uint32_t Mix(uint32_t first, uint32_t second, uint32_t third, uint32_t fourth)
{
    uint32_t mixed = 2166136261u;
    for (const uint32_t part : {first, second, third, fourth}) {
        mixed = (mixed ^ part) * 2654435761u;
        mixed ^= mixed >> 15;
        mixed *= 2246822519u;
        mixed ^= mixed >> 13;
    }
    return mixed;
}

RegionalSet ProfileOf(const NumberSettings& settings)
{
    static const char* const kNumbers[] = {"0", "1", "2", "3"};
    return With(kUnitedStates, {
                                   {"sDecimal",    settings.decimal.c_str()   },
                                   {"sThousand",   settings.thousand.c_str()  },
                                   {"sCurrency",   settings.symbol.c_str()    },
                                   {"iCurrency",   kNumbers[settings.position]},
                                   {"iCurrDigits", kNumbers[settings.digits]  }
    });
}

std::vector<NumberSettings> CurrencyNumberSettings()
{
    std::vector<NumberSettings> all;
    for (size_t i = 0; i < kCurrencyCount; ++i) {
        const CurrencySettings& row = kCurrencies[i];
        all.push_back({row.country, row.decimal, row.thousand, row.symbol, row.position, row.digits});
    }
    return all;
}

bool ReadPlain(const std::string& text, char decimal, PlainNumber& number)
{
    const size_t start = !text.empty() && IsSign(text[0]) ? 1 : 0;
    size_t point = text.find(decimal, start);
    point = std::min(point, text.size());
    const std::string fraction = point < text.size() ? text.substr(point + 1) : "";
    const std::string integer = text.substr(start, point - start);
    if (DigitsOf(integer, 0, integer.size()) != integer || DigitsOf(fraction, 0, fraction.size()) != fraction)
        return false;
    number.integer = WithoutLeadingZeros(integer);
    number.fraction = WithoutTrailingZeros(fraction);
    number.negative = start == 1 && text[0] == '-' && !(number.integer + number.fraction).empty();
    return true;
}

std::string CanonicalText(const PlainNumber& number, bool percent)
{
    const PlainNumber value = percent ? Hundredth(number) : number;
    std::string text = value.negative ? "-" : "";
    text += value.integer.empty() ? "0" : value.integer;
    return value.fraction.empty() ? text : text + '.' + value.fraction;
}

// ---- Masks ----------------------------------------------------------------------------------------------------------

namespace {

// Before or behind the digits of "[currency(n)]": groups of three, the settings' fraction; without one, a forced 0.
std::string CurrencyBody(int count, int fractionDigits)
{
    std::string body;
    for (int left = count - fractionDigits; left > 0; --left) {
        body += left == 1 && fractionDigits == 0 ? '0' : '#';
        if (left > 1 && left % 3 == 1)
            body += ',';
    }
    return fractionDigits > 0 ? body + '.' + std::string(static_cast<size_t>(fractionDigits), '0') : body;
}

bool IsBodyChar(char c)
{
    return std::strchr("#0.,", c) != nullptr && c != '\0';
}

}  // namespace

NumberMask::NumberMask(const char* mask, int32_t type, const NumberSettings& settings)
    : mask_(mask), type_(type), settings_(settings)
{
    constexpr char kCurrency[] = "[currency(";
    if (mask_.empty()) {
        ReadBody("#,#.00");
    } else if (mask_.compare(0, sizeof kCurrency - 1, kCurrency) == 0) {
        (settings.position % 2 == 0 ? before_ : behind_) = settings.symbol;
        ReadBody(CurrencyBody(std::stoi(mask_.substr(sizeof kCurrency - 1)), settings.digits));
    } else {
        ReadMask();
    }
}

void NumberMask::ReadMask()
{
    const std::string& symbol = settings_.symbol;
    size_t at = 0;
    while (at < mask_.size() && !IsBodyChar(mask_[at])) {
        const bool isSymbol = !symbol.empty() && mask_.compare(at, symbol.size(), symbol) == 0;
        const size_t escape = !isSymbol && mask_[at] == '~' ? 1 : 0;
        const size_t length = isSymbol ? symbol.size() : 1;
        before_ += mask_.substr(at + escape, length);
        at += escape + length;
    }
    const size_t end = std::min(mask_.find('%', at), mask_.size());
    behind_ = mask_.substr(end);
    ReadBody(mask_.substr(at, end - at));
}

void NumberMask::ReadBody(const std::string& body)
{
    bool group = false;
    for (const char c : body) {
        room_ += !point_ && c != '.';
        if (c == '.')
            point_ = true;
        else if (c == ',')
            group = integerPlaces_ > 0;
        else {
            grouped_ = grouped_ || (group && !point_);
            TakePlace(c == '0');
        }
    }
}

// A forced digit forces those between it and the point as well.
void NumberMask::TakePlace(bool forced)
{
    hashes_ += !forced;
    if (point_) {
        ++fractionPlaces_;
        forcedFraction_ = forced ? fractionPlaces_ : forcedFraction_;
        return;
    }
    ++integerPlaces_;
    forcedInteger_ += forced || forcedInteger_ > 0;
}

bool NumberMask::LiteralsLookLikeNumbers() const
{
    return HoldsAnyOf(before_ + behind_, std::string("0123456789+-") + settings_.DecimalChar());
}

bool NumberMask::HasLiteral(char character) const
{
    return (before_ + behind_).find(character) != std::string::npos;
}

bool NumberMask::SymbolHoldsPoint() const
{
    return HasLiteral(settings_.DecimalChar()) && before_ == settings_.symbol && !HoldsAnyOf(before_, "0123456789+-");
}

size_t NumberMask::Width(const std::string& digits) const
{
    return IsGrouped() && !digits.empty() ? digits.size() + (digits.size() - 1) / 3 : digits.size();
}

bool NumberMask::Takes(const std::string& plain) const
{
    const size_t start = !plain.empty() && IsSign(plain[0]) ? 1 : 0;
    const size_t point = plain.find('.');
    const bool pointed = point != std::string::npos;
    const std::string integer = plain.substr(start, pointed ? point - start : point);
    const std::string fraction = pointed ? plain.substr(point + 1) : "";
    const std::string significant = WithoutLeadingZeros(integer);
    const bool zero = (significant + WithoutTrailingZeros(fraction)).empty();
    if ((integer + fraction).empty() || (pointed && !point_) || fraction.size() > fractionPlaces_)
        return false;
    if (zero && start == 1 && plain[0] == '-')
        return false;
    if (IsPercent() && type_ == DT_NUMBER && significant.size() + fraction.size() > kExactDoubleDigits)
        return false;
    if (room_ == 0)
        return pointed && (integer.empty() || integer == "0");
    if (IsOfZeros())
        return pointed ? integer.size() <= integerPlaces_ : integer.size() == integerPlaces_;
    return Width(significant) <= room_;
}

std::string NumberMask::Show(const PlainNumber& number, size_t fractionDigits) const
{
    std::string integer = number.integer;
    if (integer.size() < forcedInteger_)
        integer.insert(0, forcedInteger_ - integer.size(), '0');
    if (IsGrouped())
        for (size_t behind = 3; behind < integer.size(); behind += 4)
            integer.insert(integer.size() - behind, 1, settings_.ThousandChar());
    std::string fraction = number.fraction;
    fraction.resize(std::max({fraction.size(), forcedFraction_, fractionDigits}), '0');
    const std::string text = before_ + (number.negative ? "-" : "") + integer;
    return (point_ ? text + settings_.DecimalChar() + fraction : text) + behind_;
}

std::string NumberMask::FullInteger() const
{
    const std::string digits = "12345678912345678912345";
    if (IsOfZeros())
        return digits.substr(0, integerPlaces_);
    size_t count = 0;
    while (Width(digits.substr(0, count + 1)) <= room_ &&
           count + std::min<size_t>(fractionPlaces_, 3) < kExactDoubleDigits)
        ++count;
    return digits.substr(0, count);
}

// What has been typed so far.
struct NumberMask::Typed {
    explicit Typed(const std::string& keys)
    {
        const size_t start = !keys.empty() && IsSign(keys[0]) ? 1 : 0;
        const size_t at = keys.find('.');
        negative = start == 1 && keys[0] == '-';
        point = at != std::string::npos;
        integer = keys.substr(start, point ? at - start : at);
        fraction = point ? keys.substr(at + 1) : "";
        significant = WithoutLeadingZeros(integer);
    }
    bool negative;
    bool point;
    std::string integer;
    std::string significant;
    std::string fraction;
};

bool NumberMask::IsFull(const Typed& typed) const
{
    if (IsOfZeros())
        return typed.integer.size() == integerPlaces_ && integerPlaces_ > 0;
    return !typed.significant.empty() && Width(typed.significant) == room_;
}

std::string NumberMask::JudgeCaret(const std::string& keys, const std::string& text, int start, int end,
                                   bool takenBack) const
{
    const Typed typed(keys);
    if (keys.empty() || keys == "+")
        return "";
    if (start != end)
        return "a selection is left";
    const bool withLiterals = text.compare(0, before_.size(), before_) == 0;
    size_t at = withLiterals ? before_.size() : 0;
    const auto caret = static_cast<size_t>(start);
    const bool negative = at < text.size() && text[at] == '-';
    if (negative != typed.negative)
        return negative ? "a sign that was not typed" : "the sign is lost";
    at += negative;
    const bool zeroLeft = takenBack && !IsOfZeros() && !typed.point && typed.significant.empty();
    if (typed.negative && keys.size() == 1 && !zeroLeft)
        return caret == at ? "" : "the caret is not behind the sign";
    const size_t point = point_ ? text.find(settings_.DecimalChar(), at) : std::string::npos;
    if (point_ && point == std::string::npos)
        return "the point is lost";
    const size_t integerEnd = point_ ? point : std::max(at, text.size() - std::min(behind_.size(), text.size()));
    if (typed.point || (point_ && IsFull(typed))) {
        if (caret != point + 1 + typed.fraction.size())
            return "the caret is not behind the fraction digit typed, or behind the point";
        if (text.compare(point + 1, typed.fraction.size(), typed.fraction) != 0)
            return "the fraction is another";
        return WithoutLeadingZeros(DigitsOf(text, at, point)) == typed.significant ? "" : "the integer part is another";
    }
    if (caret < at || caret > integerEnd)
        return "the caret is not in the integer part";
    const std::string left = DigitsOf(text, at, caret);
    if (IsOfZeros() && room_ > 0)
        return left == typed.integer ? "" : "the digits left of the caret are not those typed";
    if (WithoutLeadingZeros(left) != typed.significant)
        return "the digits left of the caret are not those typed";
    const std::string right = DigitsOf(text, caret, integerEnd);
    return (zeroLeft ? WithoutLeadingZeros(right) : right).empty() ? ""
                                                                   : "digits stand between the caret and the point";
}

bool NumberMask::TakesDigitBehind(const std::string& keys) const
{
    const Typed typed(keys);
    if (typed.point)
        return typed.fraction.size() < fractionPlaces_;
    if (IsFull(typed))
        return fractionPlaces_ > 0;
    return IsOfZeros() ? typed.integer.size() < integerPlaces_ : Width(typed.significant + '1') <= room_;
}

// ---- Rows -----------------------------------------------------------------------------------------------------------

const char* NameOf(LawStart start)
{
    constexpr const char* kNames[] = {"blank",
                                      "blank, before the first digit",
                                      "blank, Home",
                                      "all selected",
                                      "all selected, Delete",
                                      "all selected, Backspace",
                                      "all selected, Ctrl+X",
                                      "number selected",
                                      "number selected, Delete",
                                      "emptied by Backspace from the end",
                                      "emptied by Delete from the front"};
    return kNames[static_cast<int>(start)];
}

namespace {

// Zeros, small and full ones, the edges at which a group begins or a rounding would carry, zeros typed in front.
// clang-format off
constexpr const char* kPlainTexts[] = {
    "0",       "0.0",     "0.00",    ".0",       "00",        "1",         "2",          "3",         "4",         "5",
    "6",       "7",       "8",       "9",        "10",        "12",        "25",         "53",        "80",        "99",
    "100",     "101",     "123",     "125",      "456",       "500",       "567",        "600",       "900",       "999",
    "1000",    "1001",    "1234",    "5678",     "9000",      "9999",      "10000",      "12345",     "60006",     "99999",
    "100000",  "123456",  "999999",  "1234567",  "9999999",   "12345678",  "123456789",  "1000000000", "9999999999",
    "12345678901", "99999999999999", "12345678901234567890", "10000000000000000001",
    ".5",      "0.5",     ".05",     "0.05",     "0.01",      ".10",       "0.99",       "1.5",       "1.50",      "2.",
    "10.",     "1.05",    "2.67",    "2.68",     "5.25",      "7.00",      "9.99",       "12.5",      "12.34",     "56.78",
    "99.99",   "100.5",   "123.45",  "500.05",   "999.99",    "1234.5",    "1234.56",    "9999.99",   "12345.67",  "1234567.89",
    "9999999.99", "12345678901234.56", "0.001",  "0.125",     "0.995",     "1.005",      "12.345",    "999.999",   "1234.567",
    ".050",    "1.500",   "0.123456789012345678", "99.999999999999999999", "05",         "007",       "0123",      "00.5",
    "010",     "0012.5",  "01234.5", "000.05",
};
// clang-format on

// The same digits, as many as a mask of zeros asks for.
std::string Padded(const std::string& plain, size_t places)
{
    const size_t digits = std::min(plain.find('.'), plain.size());
    return digits < places ? std::string(places - digits, '0') + plain : plain;
}

std::string RandomPlain(uint32_t seed, size_t integerDigits, size_t fractionPlaces)
{
    const size_t count = Mix(seed, 1) % (integerDigits + 1);
    const size_t fraction = fractionPlaces > 0 ? Mix(seed, 2) % (fractionPlaces + 1) : 0;
    std::string plain(Mix(seed, 3) % 4 == 0 ? "-" : "");
    for (size_t i = 0; i < count; ++i)
        plain += static_cast<char>('0' + Mix(seed, 4, static_cast<uint32_t>(i)) % 10);
    if (fraction > 0)
        plain += '.';
    for (size_t i = 0; i < fraction; ++i)
        plain += static_cast<char>('0' + Mix(seed, 5, static_cast<uint32_t>(i)) % 10);
    return plain;
}

// What a mask's author thinks of as "a field emptied".
bool IsEmptied(LawStart start)
{
    return start == LawStart::AllSelected || start == LawStart::SelectedDelete ||
           start == LawStart::SelectedBackspace || start == LawStart::SelectedCut;
}

size_t TypedFraction(const std::string& plain)
{
    const size_t point = plain.find('.');
    return point == std::string::npos ? 0 : plain.size() - point - 1;
}

LawRow RowOf(const NumberMask& mask, LawStart start, const std::string& plain, uint32_t choice)
{
    LawRow row{&mask, start, OtherNumber(mask, choice), {}, TypedFraction(plain), {}};
    ReadPlain(plain, '.', row.number);
    return row;
}

}  // namespace

std::vector<std::string> PlainTextsFor(const NumberMask& mask)
{
    constexpr size_t kWanted = 60;
    std::set<std::string> seen;
    std::vector<std::string> texts;
    const auto offer = [&](const std::string& plain) {
        if (mask.Takes(plain) && seen.insert(plain).second)
            texts.push_back(plain);
    };
    const size_t places = mask.IsOfZeros() ? mask.FullInteger().size() : 0;
    uint32_t index = 0;
    for (const char* text : kPlainTexts) {
        const std::string plain = Padded(text, index % 2 == 0 ? places : 0);
        offer(plain);
        if (index % 3 == 0)
            offer('-' + plain);
        if (index % 5 == 0)
            offer('+' + plain);
        ++index;
    }
    for (uint32_t seed = 0; seed < 600 && texts.size() < kWanted; ++seed)
        offer(RandomPlain(seed, mask.FullInteger().size(), mask.FractionPlaces()));
    return texts;
}

PlainNumber OtherNumber(const NumberMask& mask, uint32_t choice)
{
    const std::string full = mask.FullInteger();
    const std::string fraction =
        std::string("6789678967896789678").substr(0, std::min<size_t>(mask.FractionPlaces(), 3));
    const PlainNumber others[] = {
        {false,          full, fraction         },
        {   false, full.substr(0,   1), fraction.substr(0, 1)},
        { true,           full, fraction         },
        {  true, full.substr(0,   2),                ""},
    };
    PlainNumber other = others[choice % 4];
    other.negative = other.negative && !(other.integer + other.fraction).empty();
    return other;
}

LawRow PlainRow(const NumberMask& mask, LawStart start, const std::string& plain, uint32_t choice)
{
    LawRow row = RowOf(mask, start, plain, choice);
    for (const char c : plain)
        row.keys.push_back({LawKey::Plain, c == '.' ? mask.Settings().DecimalChar() : c});
    return row;
}

bool ShownRow(const NumberMask& mask, LawStart start, const std::string& plain, uint32_t choice, LawRow& row)
{
    if (mask.LiteralsLookLikeNumbers() && !(IsEmptied(start) && mask.SymbolHoldsPoint()))
        return false;
    row = RowOf(mask, start, plain, choice);
    const std::string shown = mask.Show(row.number);
    row.typedFraction = 0;
    for (const char c : shown)
        row.keys.push_back({LawKey::Shown, c});
    return HoldsDigit(shown);
}

namespace {

// Chooses keys typed in error that leave the law its promise.
class Errors {
public:
    Errors(const NumberMask& mask, uint32_t seed) : mask_(mask), seed_(seed) {}

    // What goes between the keys typed so far and the next one, if anything does.
    bool Next(const std::string& typed, LawKey& key)
    {
        switch (Draw(9)) {
        case 0: return Refuse(key, Letter());
        case 1: return typed.find('.') != std::string::npos && Refuse(key, mask_.Settings().DecimalChar());
        case 2: return typed.find_first_of(".123456789") != std::string::npos && Refuse(key, Draw(2) ? '-' : '+');
        case 3: return IsFreeSeparator() && Refuse(key, mask_.Settings().ThousandChar());
        case 4:
        case 5: key = {LawKey::TakenBack, static_cast<char>('1' + Draw(9))}; return mask_.TakesDigitBehind(typed);
        default: return false;
        }
    }

private:
    uint32_t Draw(uint32_t limit) { return Mix(seed_, ++draws_) % limit; }

    static bool Refuse(LawKey& key, char character)
    {
        key = {LawKey::Refused, character};
        return true;
    }

    // One that begins no literal: those may be typed along.
    char Letter()
    {
        constexpr char kLetters[] = "qwzyhQ?*=;";
        char letter = kLetters[Draw(10)];
        while (mask_.HasLiteral(letter))
            letter = kLetters[Draw(10)];
        return letter;
    }

    bool IsFreeSeparator() const
    {
        const char separator = mask_.Settings().ThousandChar();
        return separator != mask_.Settings().DecimalChar() && !mask_.HasLiteral(separator);
    }

    const NumberMask& mask_;
    uint32_t seed_;
    uint32_t draws_ = 0;
};

char AsPlain(const NumberMask& mask, char key)
{
    return key == mask.Settings().DecimalChar() ? '.' : key;
}

}  // namespace

LawRow WithWrongKeys(LawRow row, uint32_t seed)
{
    Errors errors(*row.mask, seed);
    std::vector<LawKey> keys;
    std::string typed;
    LawKey wrong{};
    for (const LawKey& key : row.keys) {
        if (errors.Next(typed, wrong))
            keys.push_back(wrong);
        keys.push_back(key);
        typed += AsPlain(*row.mask, key.character);
    }
    if (errors.Next(typed, wrong))
        keys.push_back(wrong);
    row.keys = keys;
    return row;
}

// ---- Playing --------------------------------------------------------------------------------------------------------

namespace {

class Player {
public:
    Player(LawField& field, const LawRow& row) : field_(field), row_(row), mask_(*row.mask) {}

    std::string Play()
    {
        Begin();
        begun_ = WithCaret(field_.Text(), field_.CaretStart(), field_.CaretEnd());
        beeps_ = field_.Beeps();
        for (const LawKey& key : row_.keys) {
            const std::string wrong = Press(key);
            if (!wrong.empty())
                return Report(wrong);
        }
        const std::string wrong = JudgeEnd();
        return wrong.empty() ? wrong : Report(wrong);
    }

private:
    void Begin()
    {
        if (row_.start == LawStart::Blank || row_.start == LawStart::BeforeFirstDigit || row_.start == LawStart::Home)
            return BeginBlank();
        field_.ShowValue(CanonicalText(row_.other, mask_.IsPercent()));
        const std::string text = field_.Text();
        const int length = static_cast<int>(text.size());
        switch (row_.start) {
        case LawStart::Backspaces: return BackspaceAll(2 * length + 4);
        case LawStart::Deletes: return DeleteAll(2 * length + 4);
        case LawStart::NumberSelected:
        case LawStart::NumberDeleted:
            field_.Select(FirstDigit(), length - static_cast<int>(mask_.Behind().size()));
            break;
        default: field_.Select(0, length); break;
        }
        if (row_.start == LawStart::SelectedDelete || row_.start == LawStart::NumberDeleted)
            field_.Keys().Press(kDelete);
        else if (row_.start == LawStart::SelectedBackspace)
            field_.Keys().Press(kBack);
        else if (row_.start == LawStart::SelectedCut)
            field_.Keys().Press('X', kCtrl);
    }

    void BeginBlank()
    {
        field_.ShowBlank();
        if (row_.start == LawStart::BeforeFirstDigit)
            field_.Select(FirstDigit(), FirstDigit());
        else if (row_.start == LawStart::Home)
            field_.Keys().Press(kHome);
    }

    void BackspaceAll(int times)
    {
        field_.Keys().Press(kEnd);
        for (; times > 0; --times)
            field_.Keys().Press(kBack);
    }

    // Where Delete takes nothing any more the caret goes on: over the literals, the point, zeros that the mask forces.
    void DeleteAll(int times)
    {
        field_.Keys().Press(kHome);
        for (; times > 0; --times) {
            const std::string text = field_.Text();
            field_.Keys().Press(kDelete);
            if (field_.Text() == text)
                field_.Keys().Press(kRight);
        }
        field_.Keys().Press(kHome);
    }

    int FirstDigit() const { return static_cast<int>(mask_.Before().size()); }

    std::string Press(const LawKey& key)
    {
        const std::string text = field_.Text();
        const int caret = field_.CaretStart();
        const bool selected = field_.CaretEnd() != caret;
        const int beeps = field_.Beeps();
        field_.Keys().Type(std::string(1, key.character));
        if (key.kind == LawKey::TakenBack)
            field_.Keys().Press(kBack);
        played_ += key.character;
        if (key.kind == LawKey::TakenBack)
            played_ += "{Back}";
        switch (key.kind) {
        case LawKey::Shown: return "";
        case LawKey::Plain: typed_ += AsPlain(mask_, key.character); break;
        case LawKey::Refused: inError_ = true; break;
        case LawKey::TakenBack: inError_ = true; break;
        }
        takenBack_ = key.kind == LawKey::TakenBack || (key.kind == LawKey::Refused && takenBack_);
        if (!inError_ && field_.Beeps() != beeps_)
            return "a beep";
        if (key.kind == LawKey::Refused && field_.Beeps() > beeps + 1)
            return "more than one beep";
        if (key.kind == LawKey::Refused && HoldsDigit(typed_) && field_.Text() != text)
            return "the refused key has changed the text";
        const bool stays =
            !selected && field_.Text() == text;  // what was selected gives way to the place of its first digit
        if (key.kind == LawKey::Plain && typed_ == "+" && stays && field_.CaretStart() != caret)
            return "the plus has moved the caret";
        return mask_.JudgeCaret(typed_, field_.Text(), field_.CaretStart(), field_.CaretEnd(), takenBack_);
    }

    std::string JudgeEnd()
    {
        const std::string text = field_.Text();
        bool shown = false;
        for (size_t digits = 0; digits <= row_.typedFraction; ++digits)
            shown = shown || text == mask_.Show(row_.number, digits);
        if (!shown)
            return "another text";
        const PlainNumber value = mask_.IsPercent() ? Hundredth(row_.number) : row_.number;
        const std::string read = field_.Read();
        PlainNumber number;
        if (!ReadPlain(read, mask_.Settings().DecimalChar(), number) || !(number == value))
            return "it reads back as \"" + Printable(read) + '"';
        return "";
    }

    std::string Report(const std::string& wrong)
    {
        return "begun at \"" + begun_ + "\", typed \"" + Printable(played_) + "\", got \"" +
               WithCaret(field_.Text(), field_.CaretStart(), field_.CaretEnd()) + "\": " + wrong;
    }

    LawField& field_;
    const LawRow& row_;
    const NumberMask& mask_;
    std::string begun_;
    std::string played_;
    std::string typed_;  // of the plain text, with '.' as the point
    bool inError_ = false;
    bool takenBack_ = false;
    int beeps_ = 0;
};

}  // namespace

std::string PlayLaw(LawField& field, const LawRow& row)
{
    return Player(field, row).Play();
}

std::string CompareDisplay(LawField& field, const NumberMask& mask, const PlainNumber& number)
{
    if (mask.Type() == DT_NUMBER && number.integer.size() + number.fraction.size() > kExactDoubleDigits)
        return "";
    field.ShowValue(CanonicalText(number, mask.IsPercent()));
    const std::string text = field.Text();
    if (text == mask.Show(number))
        return "";
    return mask.Mask() + " under " + mask.Settings().name + " shows \"" + Printable(text) + "\", must be \"" +
           Printable(mask.Show(number)) + '"';
}

std::string Describe(const LawRow& row)
{
    std::string keys;
    for (const LawKey& key : row.keys) {
        keys += key.kind == LawKey::Refused ? std::string("{") + key.character + '}' : std::string(1, key.character);
        if (key.kind == LawKey::TakenBack)
            keys += "{Back}";
    }
    return (row.mask->Type() == DT_DECIMAL ? "decimal " : "number ") + row.mask->Mask() + " | " +
           row.mask->Settings().name + " | " + NameOf(row.start) + " | " + Printable(keys) + " | must be \"" +
           Printable(row.mask->Show(row.number)) + '"';
}

}  // namespace zttest
