// Turns the short-date picture and the time separator of the regional settings into masks.
#include "engine/mask/picture.h"

#include "engine/mask/mask_items.h"
#include "engine/text/ascii.h"
#include "ztvalues.h"

namespace zte {

namespace {

class MaskWriter {
public:
    explicit MaskWriter(int32_t size) : size_(size) {}

    void Put(Char character)
    {
        if (Length(text_) >= size_ - 1)
            status_ = PictureStatus::DoesNotFit;
        else
            text_ += character;
    }
    void Put(const char* ascii)
    {
        for (; *ascii; ++ascii)
            Put(static_cast<Char>(*ascii));
    }
    // A character that no mask of dates or times reads as anything else.
    void PutLiteral(Char character)
    {
        const bool read = character == '~' || IsMaskItem(character, DT_DATETIME);
        if (read)
            Put('~');
        Put(character);
    }
    void Repeat(char character, int32_t count)
    {
        for (; count > 0; --count)
            Put(static_cast<Char>(character));
    }
    void Fail(PictureStatus status) { status_ = status; }
    bool IsGoing() const { return status_ == PictureStatus::Ok; }
    Picture Finish()
    {
        if (size_ <= 0 && IsGoing())
            status_ = PictureStatus::DoesNotFit;
        return {status_, text_};
    }

private:
    int32_t size_;
    Text text_;
    PictureStatus status_ = PictureStatus::Ok;
};

// What a run of one picture letter becomes. A run longer than the limit fails.
struct RunRule {
    char letter;
    int32_t limit;
    PictureStatus tooLong;
    void (*write)(MaskWriter& out, int32_t count);
};

// Three day letters stay three; every other count is the two-digit day. Kept: pictures with "ddd" exist.
void WriteDay(MaskWriter& out, int32_t count)
{
    out.Repeat('d', count == 3 ? 3 : 2);
}

void WriteYear(MaskWriter& out, int32_t count)
{
    if (count == 2 || count == 4)
        out.Repeat('y', count);
    else
        out.Fail(PictureStatus::BadYear);
}

void WriteMonth(MaskWriter& out, int32_t /*count*/)
{
    out.Put("mm");
}
void WriteHour(MaskWriter& out, int32_t /*count*/)
{
    out.Put("hh");
}
void WriteSecond(MaskWriter& out, int32_t /*count*/)
{
    out.Put("ss");
}

// One letter more than was read: kept, masks in use were built this way.
void WriteFraction(MaskWriter& out, int32_t count)
{
    out.Repeat('f', count + 1);
}

constexpr RunRule kMonthRule = {'M', 4, PictureStatus::LongMonth, WriteMonth};
constexpr RunRule kMinuteRule = {'M', 2, PictureStatus::LongMinute, WriteMonth};

// clang-format off
constexpr RunRule kRunRules[] = {
    {'D', 4, PictureStatus::LongDay,      WriteDay     },
    {'Y', 4, PictureStatus::BadYear,      WriteYear    },
    {'H', 2, PictureStatus::LongHour,     WriteHour    },
    {'S', 2, PictureStatus::LongSecond,   WriteSecond  },
    {'F', 6, PictureStatus::LongFraction, WriteFraction},
};
// clang-format on

const RunRule* FindRunRule(Char letter, bool hourSeen)
{
    if (letter == 'M')
        return hourSeen ? &kMinuteRule : &kMonthRule;
    for (const RunRule& rule : kRunRules)
        if (static_cast<Char>(rule.letter) == letter)
            return &rule;
    return nullptr;
}

// Reads a run of the rule's letter and writes its mask; returns the picture behind the run.
const Char* TakeRun(const RunRule& rule, const Char* picture, MaskWriter& out)
{
    int32_t count = 0;
    for (; AsciiUpper(*picture) == static_cast<Char>(rule.letter); ++picture) {
        if (++count > rule.limit) {
            out.Fail(rule.tooLong);
            return picture;
        }
    }
    rule.write(out, count);
    return picture;
}

// The four designators a picture may hold. Five characters are skipped for the short ones too (kept), but never more
// than the picture has.
const Char* TakeAmPm(const Char* picture, MaskWriter& out)
{
    constexpr const char* kForms[] = {"AM/PM", "am/pm", "A/P", "a/p"};
    for (const char* form : kForms) {
        if (!BeginsWith(picture, form))
            continue;
        out.Put("AM/PM");
        return picture + BoundedLength(picture, 5);
    }
    out.Fail(PictureStatus::BadAmPm);
    return picture;
}

// Copies literals up to the closing quote, which is consumed.
const Char* TakeQuoted(const Char* picture, Char quote, MaskWriter& out)
{
    while (*picture && *picture != quote)
        out.PutLiteral(*picture++);
    if (*picture == quote)
        return picture + 1;
    if (out.IsGoing())
        out.Fail(PictureStatus::Unclosed);
    return picture;
}

const Char* TakeEscaped(const Char* picture, MaskWriter& out)
{
    if (*picture == Char{}) {
        out.Fail(PictureStatus::Unclosed);
        return picture;
    }
    out.PutLiteral(*picture);
    return picture + 1;
}

const Char* TakeItem(const Char* picture, bool& hourSeen, MaskWriter& out)
{
    const Char letter = AsciiUpper(*picture);
    if (const RunRule* rule = FindRunRule(letter, hourSeen)) {
        hourSeen = hourSeen || letter == 'H';
        return TakeRun(*rule, picture, out);
    }
    switch (letter) {
    case 'A': return TakeAmPm(picture, out);
    case '\\': return TakeEscaped(picture + 1, out);
    case '\'':
    case '"': return TakeQuoted(picture + 1, letter, out);
    default: out.Put(*picture); return picture + 1;
    }
}

}  // namespace

Picture PictureToMask(const Text& picture, int32_t size)
{
    MaskWriter out(size);
    bool hourSeen = false;
    for (const Char* at = picture.c_str(); *at && out.IsGoing();)
        at = TakeItem(at, hourSeen, out);
    return out.Finish();
}

Picture DatePictureToMask(const Settings& settings, int32_t size)
{
    return PictureToMask(settings.shortDate, size);
}

Picture TimePictureToMask(const Settings& settings, int32_t size)
{
    const Text separator = Char{'\''} + Text(settings.timeSeparator) + Char{'\''};
    return PictureToMask(FromAscii("hh") + separator + FromAscii("mm") + separator + FromAscii("ss"), size);
}

}  // namespace zte
