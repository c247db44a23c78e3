// Reads and checks number formats.
#include "engine/values/number_format.h"

namespace zte {

namespace {

// Takes the tokens of a format in their order.
class ShapeReader {
public:
    void Take(TokenKind kind)
    {
        CountRoom(kind);
        if (IsPlaceholder(kind))
            TakePlaceholder(kind == TokenKind::Digit);
        else if (kind == TokenKind::Point)
            TakePoint();
        else if (kind == TokenKind::Group)
            TakeGroup();
        else if (kind == TokenKind::Percent)
            shape_.percent = true;
        else if (kind == TokenKind::Invalid)
            shape_.valid = false;
    }

    FormatShape Finish()
    {
        if (shape_.integerPlaces + shape_.fractionPlaces == 0)
            shape_.valid = false;
        return shape_;
    }

private:
    // Literals count only between placeholders, and before the point: the others stand before the number or behind it.
    void CountRoom(TokenKind kind)
    {
        if (shape_.point)
            return;
        if (kind == TokenKind::Literal)
            CountLiteral();
        else if (kind == TokenKind::Group && !begun_)
            ++groupsBefore_;
        else if (IsPlaceholder(kind) || kind == TokenKind::Group || kind == TokenKind::Point)
            CountPlace(kind != TokenKind::Point);
    }

    void CountLiteral()
    {
        if (begun_)
            ++literalsPending_;
        else
            groupsBefore_ = 0;
    }

    void CountPlace(bool takesRoom)
    {
        if (!begun_)
            shape_.room = groupsBefore_;
        begun_ = true;
        shape_.literalsInside += literalsPending_;
        shape_.room += literalsPending_ + (takesRoom ? 1 : 0);
        literalsPending_ = 0;
    }

    void TakePlaceholder(bool forced)
    {
        shape_.optional = shape_.optional || !forced;
        if (shape_.percent)
            shape_.valid = false;
        if (shape_.point) {
            ++shape_.fractionPlaces;
            if (forced)
                shape_.forcedFraction = shape_.fractionPlaces;
            return;
        }
        shape_.grouped = groupPending_;
        ++shape_.integerPlaces;
        if (forced || shape_.forcedInteger > 0)
            ++shape_.forcedInteger;
    }

    void TakePoint()
    {
        if (shape_.point)
            shape_.valid = false;
        shape_.point = true;
    }

    // It groups once a placeholder follows; elsewhere it has no meaning and shows nothing.
    void TakeGroup()
    {
        if (shape_.point)
            shape_.valid = false;
        groupPending_ = shape_.integerPlaces > 0;
    }

    FormatShape shape_;
    bool begun_ = false;        // a placeholder or the point was seen
    int32_t groupsBefore_ = 0;  // ',' directly before the first placeholder
    int32_t literalsPending_ = 0;
    bool groupPending_ = false;
};

}  // namespace

FormatShape ReadShape(const Char* format)
{
    ShapeReader reader;
    Token token;
    do {
        token = NextToken(format);
        reader.Take(token.kind);
    } while (token.kind != TokenKind::End);
    return reader.Finish();
}

bool IsGeneralFormat(const Char* format)
{
    return Equals(format, "[GENERAL]");
}

bool IsValidFormat(const Char* format)
{
    return IsGeneralFormat(format) || ReadShape(format).valid;
}

}  // namespace zte
