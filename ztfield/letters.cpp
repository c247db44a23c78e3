// Letters and cases as the platform's own tables of Unicode have them, whatever language the program around speaks.
#include "ztfield/letters.h"

#include <cwctype>

#if defined(__GLIBC__)
#include <locale.h>
#endif

namespace zte {

namespace {

#if defined(__GLIBC__)

// A locale of our own: the program's may be that of plain C. Made once, never changed and never freed; without it letters are those of
// ASCII.
locale_t UnicodeLocale()
{
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

template <typename Wide, typename Plain>
auto Ask(Char c, Wide wide, Plain plain)
{
    const locale_t locale = UnicodeLocale();
    return locale ? wide(static_cast<wint_t>(c), locale) : plain(c);
}

bool IsLetter(Char c)
{
    return Ask(
        c, [](wint_t code, locale_t locale) { return iswalpha_l(code, locale) != 0; }, kAsciiLetters.isLetter);
}
Char Upper(Char c)
{
    return Ask(
        c, [](wint_t code, locale_t locale) { return static_cast<Char>(towupper_l(code, locale)); },
        kAsciiLetters.upper);
}
Char Lower(Char c)
{
    return Ask(
        c, [](wint_t code, locale_t locale) { return static_cast<Char>(towlower_l(code, locale)); },
        kAsciiLetters.lower);
}

#else

bool IsLetter(Char c)
{
    return std::iswalpha(static_cast<std::wint_t>(c)) != 0;
}
Char Upper(Char c)
{
    return static_cast<Char>(std::towupper(static_cast<std::wint_t>(c)));
}
Char Lower(Char c)
{
    return static_cast<Char>(std::towlower(static_cast<std::wint_t>(c)));
}

#endif

}  // namespace

const Letters kUnicodeLetters = {IsLetter, Upper, Lower};

}  // namespace zte
