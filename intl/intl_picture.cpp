// Turns the short-date picture and the time separator of the regional settings into masks.
#include "intl/intl_picture.h"

#include <windows.h>

#include <cstring>

#include "shared/ascii.h"

namespace zte {

namespace {

class MaskWriter {
public:
    MaskWriter(char* out, int32_t size) : out_(out), size_(size) {}

    void Put(char character)
    {
        if (written_ >= size_)
            status_ = PICTURE_BUFFER_FULL;
        else
            out_[written_++] = character;
    }
    void Put(const char* text)
    {
        while (*text && status_ == PICTURE_OK)
            Put(*text++);
    }
    void Repeat(char character, int32_t count)
    {
        while (count-- > 0 && status_ == PICTURE_OK)
            Put(character);
    }
    void Fail(int32_t status) { status_ = status; }
    int32_t Status() const { return status_; }

private:
    char* out_;
    int32_t size_;
    int32_t written_ = 0;
    int32_t status_ = PICTURE_OK;
};

// What a run of one picture letter becomes. A run longer than the limit fails.
struct RunRule {
    char letter;
    int32_t limit;
    int32_t tooLong;  // status
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
        out.Fail(PICTURE_BAD_YEAR);
}

constexpr RunRule kMonthRule = {'M', 4, PICTURE_LONG_MONTH, [](MaskWriter& out, int32_t) { out.Put("mm"); }};
constexpr RunRule kMinuteRule = {'M', 2, PICTURE_LONG_MINUTE, [](MaskWriter& out, int32_t) { out.Put("mm"); }};

constexpr RunRule kRunRules[] = {
    {'D',                    4,                  PICTURE_LONG_DAY,                               WriteDay},
    {   'Y',                     4,   PICTURE_BAD_YEAR,                                      WriteYear        },
    { 'H',     2,     PICTURE_LONG_HOUR,                    [](MaskWriter& out,         int32_t) { out.Put("hh"); }},
    { 'S',   2,   PICTURE_LONG_SECOND,                    [](MaskWriter& out,         int32_t) { out.Put("ss"); }},
 // One letter more than was read: kept, masks in use were built this way.
    { 'F', 6, PICTURE_LONG_FRACTION, [](MaskWriter& out,         int32_t count) { out.Repeat('f', count + 1); }},
};

const RunRule* FindRunRule(char letter, bool hourSeen)
{
    if (letter == 'M')
        return hourSeen ? &kMinuteRule : &kMonthRule;
    for (const RunRule& rule : kRunRules)
        if (rule.letter == letter)
            return &rule;
    return nullptr;
}

// Reads a run of the rule's letter and writes its mask; returns the picture behind the run.
const char* TakeRun(const RunRule& rule, const char* picture, MaskWriter& out)
{
    int32_t count = 0;
    for (; AsciiUpper(*picture) == rule.letter; ++picture) {
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
const char* TakeAmPm(const char* picture, MaskWriter& out)
{
    constexpr const char* kForms[] = {"AM/PM", "am/pm", "A/P", "a/p"};
    for (const char* form : kForms) {
        if (std::strncmp(picture, form, std::strlen(form)) != 0)
            continue;
        out.Put("AM/PM");
        return picture + strnlen(picture, 5);
    }
    out.Fail(PICTURE_BAD_AMPM);
    return picture;
}

// Copies literals up to the closing quote, which is consumed.
const char* TakeQuoted(const char* picture, char quote, MaskWriter& out)
{
    while (*picture && *picture != quote && out.Status() == PICTURE_OK)
        out.Put(*picture++);
    if (*picture == quote)
        return picture + 1;
    if (out.Status() == PICTURE_OK)
        out.Fail(PICTURE_UNCLOSED);
    return picture;
}

const char* TakeEscaped(const char* picture, MaskWriter& out)
{
    if (*picture == '\0') {
        out.Fail(PICTURE_UNCLOSED);
        return picture;
    }
    out.Put(*picture);
    return picture + 1;
}

const char* TakeItem(const char* picture, bool& hourSeen, MaskWriter& out)
{
    const char letter = AsciiUpper(*picture);
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

int32_t PictureToMask(const char* picture, char* out, int32_t outSize)
{
    MaskWriter writer(out, outSize);
    bool hourSeen = false;
    while (*picture && writer.Status() == PICTURE_OK)
        picture = TakeItem(picture, hourSeen, writer);
    if (writer.Status() == PICTURE_OK)
        writer.Put('\0');
    return writer.Status();
}

int32_t IntlPictureToMask(char* out, int32_t outSize, int32_t kind)
{
    char picture[100] = "";
    if (kind == PICTURE_DATE) {
        GetProfileStringA("intl", "sShortDate", "m/d/yy", picture, sizeof picture);
    } else {
        char separator[10] = "";
        GetProfileStringA("intl", "sTime", ":", separator, sizeof separator);
        wsprintfA(picture, "hh'%s'mm'%s'ss", separator, separator);
    }
    return PictureToMask(picture, out, outSize);
}

}  // namespace zte
