// What every position of the text shown is, and which part of the value it belongs to.
#include "ztfield/positions.h"

#include "engine/mask/mask_table.h"

namespace zte {

namespace {

constexpr int32_t kNoPart = -1;

struct KindRow {
    FieldKind kind;
    int32_t told;
};

// clang-format off
constexpr KindRow kKinds[] = {
    {FieldKind::Literal,      ZTF_LITERAL},
    {FieldKind::NumberDigit,  ZTF_NUMBER_DIGIT},
    {FieldKind::Digit,        ZTF_DIGIT},
    {FieldKind::Alphanumeric, ZTF_LETTER},
    {FieldKind::Any,          ZTF_ANY},
    {FieldKind::UpperCase,    ZTF_UPPER},
    {FieldKind::LowerCase,    ZTF_LOWER},
    {FieldKind::Year,         ZTF_YEAR},
    {FieldKind::Month,        ZTF_MONTH},
    {FieldKind::Day,          ZTF_DAY},
    {FieldKind::DayOfYear,    ZTF_DAY_OF_YEAR},
    {FieldKind::Hour,         ZTF_HOUR},
    {FieldKind::Minute,       ZTF_MINUTE},
    {FieldKind::Second,       ZTF_SECOND},
    {FieldKind::Fraction,     ZTF_FRACTION},
    {FieldKind::AmPm,         ZTF_HALF_OF_DAY},
};
// clang-format on

int32_t ToldKind(FieldKind kind)
{
    for (const KindRow& row : kKinds)
        if (row.kind == kind)
            return row.told;
    return ZTF_LITERAL;
}

// Of a number the digits before its point are one part and those behind it another; of all else what is typed alike side by side.
int32_t PartOf(const ZTFieldPosition& position, bool inFraction, const ZTFieldPosition* before, int32_t parts)
{
    if (position.kind == ZTF_LITERAL)
        return kNoPart;
    if (position.kind == ZTF_NUMBER_DIGIT)
        return inFraction ? 1 : 0;
    return before && before->kind == position.kind ? before->part : parts;
}

// The designator shown is shorter than the letters of its field, whatever stands behind.
MaskPosition At(const EditInstance& edit, const PositionsUnder& positions, const Text& text, int32_t position)
{
    return HasAmPmField(edit) ? PositionAroundAmPm(edit, text, position) : positions.At(position);
}

}  // namespace

std::vector<ZTFieldPosition> PositionsShown(const EditInstance& edit)
{
    std::vector<ZTFieldPosition> shown;
    if (!HasMask(edit) || !edit.table)
        return shown;
    const Text text = edit.field->ReadText();
    const PositionsUnder positions(edit, text);
    int32_t parts = 0;
    for (int32_t i = 0; i < Length(text); ++i) {
        const MaskPosition position = At(edit, positions, text, i);
        if (!position.exists)
            break;
        ZTFieldPosition told = {ToldKind(position.kind), static_cast<uint32_t>(position.character),
                                position.escaped ? 1 : 0, kNoPart};
        told.part = PartOf(told, positions.IsInFraction(i), shown.empty() ? nullptr : &shown.back(), parts);
        parts = told.part >= parts ? told.part + 1 : parts;
        shown.push_back(told);
    }
    return shown;
}

}  // namespace zte
