// The model's regional pictures and currency masks.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>

namespace model {
namespace {

// Writes a mask of at most `size` bytes, terminator included.
class MaskWriter {
public:
    explicit MaskWriter(int size) : size_(size) {}
    void Put(char c)
    {
        if (static_cast<int>(picture.mask.size()) < size_)
            picture.mask += c;
        else
            picture.status = 1;
    }
    // A letter that a mask of dates or times would read is escaped.
    void PutLiteral(char c)
    {
        if (c == '~' || Control::InTable(c, kDateTime))
            Put('~');
        Put(c);
    }
    void Put(const char* text)
    {
        while (*text != '\0' && picture.status == 0)
            Put(*text++);
    }
    bool Full() const { return static_cast<int>(picture.mask.size()) >= size_; }

    Picture picture;

private:
    int size_;
};

}  // namespace

Picture PictureToMask(const Regional& regional, int size, int kind)
{
    const std::string& sep = regional.timeSeparator;
    const std::string picture = kind == 1 ? regional.shortDate : "hh'" + sep + "'mm'" + sep + "'ss";
    MaskWriter out(size);
    bool hourSeen = false;
    bool open = false;
    size_t i = 0;
    const auto run = [&](char letter) {
        int n = 0;
        while (i < picture.size() && Upper(picture[i]) == letter)
            ++n, ++i;
        return n;
    };
    const auto fail = [&](int status) { out.picture.status = status; };
    while (i < picture.size() && out.picture.status == 0 && !open) {
        const char c = picture[i];
        int n = 0;
        switch (Upper(c)) {
        case 'M':
            n = run('M');
            if (n > (hourSeen ? 2 : 4))
                fail(hourSeen ? 14 : 9);
            else
                out.Put("mm");
            break;
        case 'D':
            n = run('D');
            if (n > 4)
                fail(10);
            else
                out.Put(n == 3 ? "ddd" : "dd");
            break;
        case 'Y':
            n = run('Y');
            if (n != 2 && n != 4)
                fail(11);
            else
                out.Put(n == 2 ? "yy" : "yyyy");
            break;
        case 'H':
            n = run('H');
            hourSeen = true;
            if (n > 2)
                fail(12);
            else
                out.Put("hh");
            break;
        case 'S':
            if (run('S') > 2)
                fail(13);
            else
                out.Put("ss");
            break;
        case 'F':
            n = run('F');
            if (n > 6)
                fail(16);
            else
                out.Put(std::string(static_cast<size_t>(n) + 1, 'f').c_str());
            break;
        case 'A':
            if (picture.compare(i, 5, "AM/PM") == 0 || picture.compare(i, 5, "am/pm") == 0 ||
                picture.compare(i, 3, "A/P") == 0 || picture.compare(i, 3, "a/p") == 0) {
                out.Put("AM/PM");
                i = std::min(picture.size(), i + 5);
            } else
                fail(15);
            break;
        case '\\':
            ++i;
            open = i >= picture.size();
            if (!open)
                out.PutLiteral(picture[i++]);
            break;
        case '\'':
        case '"': {
            ++i;
            while (i < picture.size() && picture[i] != c && out.picture.status == 0)
                out.PutLiteral(picture[i++]);
            open = i >= picture.size();
            ++i;
            break;
        }
        default: out.Put(picture[i++]);
        }
    }
    if (out.picture.status == 0 && open)
        fail(7);
    if (out.picture.status == 0 && out.Full())
        fail(1);
    return out.picture;
}

std::string CurrencyMask(const Regional& regional, int totalDigits)
{
    std::string integer;
    if (regional.currencyDigits < totalDigits) {
        const int n = totalDigits - regional.currencyDigits;
        for (int i = n; i > 0; --i) {
            integer += '#';
            if (i > 1 && (i - 1) % 3 == 0)
                integer += ',';
        }
    }
    std::string fraction;
    if (regional.currencyDigits != 0)
        fraction = "." + std::string(static_cast<size_t>(std::max(0, regional.currencyDigits)), '0');
    const bool behind = regional.currencyPosition == 1 || regional.currencyPosition == 3;
    return behind ? integer + fraction + regional.currency : regional.currency + integer + fraction;
}

}  // namespace model
