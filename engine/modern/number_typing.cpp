// Typing into modern numbers.
#include "engine/modern/number_typing.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "engine/modern/number_content.h"
#include "engine/modern/number_deletion.h"
#include "engine/text/ascii.h"

namespace zte::modern::numbers {

namespace {

// One character on its way into a number.
struct NumberKey {
    const EditInstance& edit;
    const Content& content;  // in form, nothing selected
    Char typed;
    bool isPoint;   // by itself, or as the keypad's decimal key
    bool replaces;  // it takes the place of a selection that has gone
};

Content GoingOn(Content content)
{
    content.typing = {};
    content.typing.goesOn = true;
    content.isUntouched = false;
    return content;
}

Content Passed(Content content, int32_t caret)
{
    content.typing.keypadPoint = false;
    return WithCaret(std::move(content), caret);
}

// ---- which character is what

// Where a no-break blank separates, the blank of the keyboard does, too.
bool IsThousands(const EditInstance& edit, Char c)
{
    const Char separator = edit.settings->thousandChar;
    return IsGrouped(MaskOf(edit).shape, *edit.settings) &&
           (c == separator || (IsBlankCharacter(c) && IsBlankCharacter(separator)));
}

bool IsPoint(const EditInstance& edit, Char c)
{
    return c == edit.settings->decimalChar || ((c == '.' || c == ',') && !IsThousands(edit, c));
}

bool MayBeginNumber(const NumberKey& key)
{
    return IsDigit(key.typed) || IsSign(key.typed) || (MaskOf(key.edit).shape.point && key.isPoint);
}

// Behind a number that nobody has begun its integer part is meant, and not the end of a fraction of zeros.
bool IsBehindFresh(const Content& content, const HeldNumber& number)
{
    const bool isFresh = number.IsZero() && (content.isEmpty || content.isUntouched) && !content.typing.goesOn;
    return isFresh && number.Caret() >= number.Shown().End();
}

// ---- literals around the number

// Where the currency symbol begins among literals that end with it; 0 where they do not.
int32_t SymbolStart(const MaskLiterals& literals, const Settings& settings)
{
    const auto start = literals.length - static_cast<int32_t>(TextLength(settings.currencySymbol));
    return start > 0 && BeginsWith(literals.text + start, settings.currencySymbol) ? start : 0;
}

// How many of the literals before the number are behind the caret, or were typed while it stood behind them all.
int32_t LiteralsTyped(const Content& content, int32_t count)
{
    if (content.Caret() < count)
        return content.Caret();
    return content.typing.carriedTo == count ? content.typing.carriedFrom : 0;
}

// Which literal before the number the key is: the next one, or the first of the symbol that ends them; -1: none. A character of which
// numbers are made begins the number, unless literals before it were typed.
int32_t LiteralBefore(const NumberKey& key, const HeldNumber& number)
{
    const MaskLiterals& literals = MaskOf(key.edit).before;
    const bool isAtFront = key.content.Caret() <= number.Front() || IsBehindFresh(key.content, number);
    if (number.Front() == 0 || key.content.typing.goesOn || !isAtFront)
        return -1;
    const int32_t typed = LiteralsTyped(key.content, literals.length);
    if (typed >= literals.length || (typed == 0 && MayBeginNumber(key)))
        return -1;
    if (literals.text[typed] == key.typed)
        return typed;
    const int32_t symbol = SymbolStart(literals, *key.edit.settings);
    return typed == 0 && literals.text[symbol] == key.typed ? symbol : -1;
}

Content PassedBefore(const NumberKey& key, const HeldNumber& number, int32_t literal)
{
    const int32_t next = literal + 1;
    const bool isInside = key.content.Caret() < number.Front();
    Content content = Passed(key.content, isInside ? next : key.content.Caret());
    content.typing.carriedFrom = next;
    content.typing.carriedTo = number.Front();
    return content;
}

// In the fraction, and where the mask has no point, a point means nothing to the number: there the literal's own is meant.
bool IsLiteralBehind(const NumberKey& key, const HeldNumber& number)
{
    const int32_t caret = key.content.Caret();
    if (caret < number.Shown().End() || At(key.content.text, caret) != key.typed || key.typed == Char{})
        return false;
    const bool isPoint = key.isPoint && MaskOf(key.edit).shape.point && !number.Shown().IsInFraction(caret);
    return caret > number.Shown().End() || !(IsDigit(key.typed) || IsSign(key.typed) || isPoint);
}

std::optional<Content> PassLiteral(const NumberKey& key)
{
    const HeldNumber number(key.edit, key.content);
    if (const int32_t literal = LiteralBefore(key, number); literal >= 0)
        return PassedBefore(key, number, literal);
    if (IsLiteralBehind(key, number))
        return Passed(key.content, key.content.Caret() + 1);
    return std::nullopt;
}

// ---- where the number is typed into

int32_t TypingCaret(const Content& content, const HeldNumber& number)
{
    return IsBehindFresh(content, number) ? number.IntegerEnd() : number.Caret();
}

// Before the first digit of a number nothing is added to it: another one begins there.
bool BeginsAnother(const NumberKey& key, const HeldNumber& number, int32_t caret)
{
    return !key.content.typing.goesOn && !number.IsZero() && caret <= number.FirstDigit() &&
           caret <= number.IntegerEnd();
}

struct Typed {
    TypedNumber number;
    DigitPlace place{false, 0};
    bool isAnother = false;
};

// The number and the place that a digit or the point is typed at.
Typed Beginning(const NumberKey& key)
{
    const HeldNumber number(key.edit, key.content);
    const int32_t caret = TypingCaret(key.content, number);
    Typed typed;
    typed.isAnother = BeginsAnother(key, number, caret);
    if (!typed.isAnother) {
        typed.number = number.Digits();
        typed.place = number.Shown().PlaceAt(caret);
    }
    typed.number.negative = number.IsBehindSign(caret);
    return typed;
}

// ---- digits

Outcome TypeIntoFraction(const NumberKey& key, Typed typed)
{
    const int32_t places = MaskOf(key.edit).shape.fractionPlaces;
    const int32_t index = typed.place.digits;
    if (index >= places)
        return Refused(ZTR_FULL);
    Text& fraction = typed.number.fraction;
    const auto at = std::min(static_cast<size_t>(index), fraction.size());
    if (!key.replaces && at < fraction.size())
        fraction[at] = key.typed;
    else
        fraction.insert(at, 1, key.typed);
    fraction.resize(std::min(fraction.size(), static_cast<size_t>(places)));
    Outcome outcome = Accepted(GoingOn(Laid(key.edit, typed.number, {true, index + 1})));
    outcome.isFull = index + 1 == places;
    return outcome;
}

// A zero in front is taken and holds no place.
Outcome TypeIntoInteger(const NumberKey& key, Typed typed)
{
    Text& integer = typed.number.integer;
    const int32_t behind = std::min(typed.place.digits, Length(integer));
    if (key.typed != '0' || behind < Length(integer))
        integer.insert(integer.size() - static_cast<size_t>(behind), 1, key.typed);
    if (!HasRoomFor(key.edit, typed.number))
        return Refused(ZTR_FULL);
    Outcome outcome = Accepted(GoingOn(Laid(key.edit, typed.number, {false, behind})));
    const bool isLast = behind == 0 && MaskOf(key.edit).shape.fractionPlaces == 0;
    outcome.isFull = isLast && Length(integer) >= Room(key.edit);
    return outcome;
}

Outcome TypeDigit(const NumberKey& key)
{
    Typed typed = Beginning(key);
    return typed.place.inFraction ? TypeIntoFraction(key, std::move(typed)) : TypeIntoInteger(key, std::move(typed));
}

// ---- separators

Outcome TypePoint(const NumberKey& key)
{
    if (!MaskOf(key.edit).shape.point)
        return Refused(ZTR_WRONG_KIND);
    const Typed typed = Beginning(key);
    if (typed.place.inFraction)
        return typed.place.digits > 0 ? Refused(ZTR_WRONG_KIND) : Accepted(GoingOn(key.content));
    Content content = GoingOn(Laid(key.edit, typed.number, {true, 0}));
    content.isEmpty = typed.isAnother || key.content.isEmpty;
    return Accepted(std::move(content));
}

Outcome TypeThousands(const NumberKey& key)
{
    const HeldNumber number(key.edit, key.content);
    const int32_t caret = number.Caret();
    if (!number.HasIntegerBefore(caret))
        return Refused(ZTR_WRONG_KIND);
    const bool standsThere = caret < number.IntegerEnd() && !IsDigit(At(key.content.text, caret));
    return Accepted(Passed(key.content, standsThere ? caret + 1 : caret));
}

// ---- the sign

bool IsAllSelected(const HeldNumber& number, Selection selection)
{
    if (selection.IsEmpty())
        return false;
    const ShownNumber& shown = number.Shown();
    bool isAll = shown.Start() < shown.End() || selection.start <= shown.Start();
    for (int32_t i = shown.Start(); i < shown.End(); ++i)
        isAll = isAll && (!shown.IsDigitAt(i) || (i >= selection.start && i < selection.end));
    return isAll;
}

// The same digits with a sign or without, and the same of them selected.
Content WithSign(const EditInstance& edit, const Content& content, bool negative)
{
    const HeldNumber number(edit, content);
    TypedNumber digits = number.Digits();
    digits.negative = negative;
    const DigitPlace start = number.Shown().PlaceAt(number.Within(content.selection.start));
    const DigitPlace end = number.Shown().PlaceAt(number.Within(content.selection.end));
    Content signedContent = Laid(edit, digits, start);
    signedContent.selection.end = HeldNumber(edit, signedContent).Shown().PositionOf(end);
    signedContent.isEmpty = content.isEmpty;
    signedContent.typing.goesOn = content.typing.goesOn;
    return signedContent;
}

// Behind a number that nobody has begun the sign is followed by its integer part.
Content WithFreshCaret(const EditInstance& edit, const Content& content)
{
    const HeldNumber number(edit, content);
    return content.selection.IsEmpty() ? WithCaret(content, TypingCaret(content, number)) : content;
}

// The caret of an empty number goes before its digits, unless it stands in the fraction, which may have been begun by the point.
Content Signed(const EditInstance& edit, const Content& content, bool negative)
{
    const Content fresh = WithFreshCaret(edit, content);
    const bool begins = content.isEmpty && !HeldNumber(edit, fresh).Shown().IsInFraction(fresh.Caret());
    return begins ? Emptied(edit, negative) : WithSign(edit, fresh, negative);
}

Content Touched(Content content)
{
    content.isUntouched = false;
    content.typing.keypadPoint = false;
    return content;
}

Outcome TypeMinus(const EditInstance& edit, const Content& content)
{
    const HeldNumber number(edit, content);
    const int32_t sign = number.Shown().Sign();
    if (IsAllSelected(number, content.selection))
        return Accepted(Emptied(edit, true));  // another number begins
    if (sign >= 0 && content.selection.IsEmpty() && content.Caret() <= sign)
        return Accepted(Touched(WithCaret(content, sign + 1)));
    return Accepted(Signed(edit, content, sign < 0));
}

Outcome TypePlus(const EditInstance& edit, const Content& content)
{
    const HeldNumber number(edit, content);
    if (number.Shown().Sign() >= 0)
        return Accepted(Signed(edit, content, false));
    const bool isFirst = number.Caret() <= number.FirstDigit() || IsEmpty(edit, content);
    return isFirst ? Accepted(Touched(content)) : Refused(ZTR_WRONG_KIND);
}

Outcome TypeSign(const EditInstance& edit, const Content& content, Char sign)
{
    return sign == '-' ? TypeMinus(edit, content) : TypePlus(edit, content);
}

Outcome TypeSeparator(const NumberKey& key)
{
    if (key.isPoint)
        return TypePoint(key);
    return IsThousands(key.edit, key.typed) ? TypeThousands(key) : Refused(ZTR_WRONG_KIND);
}

}  // namespace

Outcome Type(const EditInstance& edit, const Content& content, Char typed)
{
    if (MaskOf(edit).isGeneral)
        return Refused(ZTR_WRONG_KIND);
    const Content shown = InForm(edit, content);
    const bool replaces = !shown.selection.IsEmpty();
    const Content left = replaces ? Without(edit, shown, shown.selection) : shown;
    const bool isKeypadPoint = content.typing.keypadPoint;
    const NumberKey key = {edit, left, typed, isKeypadPoint || IsPoint(edit, typed), replaces};
    if (std::optional<Content> passed = PassLiteral(key))
        return Accepted(*std::move(passed));
    if (isKeypadPoint)
        return TypePoint(key);
    if (IsSign(typed))
        return TypeSign(edit, shown, typed);
    return IsDigit(typed) ? TypeDigit(key) : TypeSeparator(key);
}

}  // namespace zte::modern::numbers
