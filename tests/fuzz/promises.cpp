// What the laws are promised for.
#include "tests/fuzz/promises.h"

#include "engine/values/number_format.h"

namespace zttest {
namespace {

bool IsSeparator(zte::Char c)
{
    const auto code = static_cast<unsigned char>(c);
    const bool isLetter = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
    const bool isDigit = code >= '0' && code <= '9';
    return code >= ' ' && !isLetter && !isDigit && zte::Find(zte::FromAscii("+-#%~\\"), c) < 0;
}

}  // namespace

bool IsInOnePiece(const zte::Text& format)
{
    bool begun = false;
    bool ended = false;
    const zte::Char* at = format.c_str();
    for (zte::Token token = zte::NextToken(at); token.kind != zte::TokenKind::End; token = zte::NextToken(at)) {
        const bool isLiteral = token.kind == zte::TokenKind::Literal || token.kind == zte::TokenKind::Percent;
        if (ended && !isLiteral)
            return false;
        ended = ended || (begun && isLiteral);
        begun = begun || !isLiteral;
    }
    return true;
}

bool CanWriteNumbers(const zte::Settings& settings)
{
    const zte::Text symbol = settings.currencySymbol;
    const bool isSymbol = symbol.empty() || symbol.find_first_not_of("0123456789.,'+-#% ") != zte::Text::npos;
    return IsSeparator(settings.decimalChar) && IsSeparator(settings.thousandChar) && isSymbol;
}

bool CanTellHalves(const zte::Settings& settings)
{
    const zte::Text am = settings.amString;
    const zte::Text pm = settings.pmString;
    const bool isWord = (am + pm).find_first_of("0123456789 ") == zte::Text::npos;
    return isWord && !am.empty() && !pm.empty() && am.compare(0, pm.size(), pm) != 0 && pm.compare(0, am.size(), am) != 0;
}

}  // namespace zttest
