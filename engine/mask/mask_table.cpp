// The mask of a control, compiled once when it is set.
#include "engine/mask/mask_table.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "engine/heap_block.h"
#include "engine/mask/half_of_day.h"
#include "engine/mask/number_mask.h"
#include "engine/text/ascii.h"

namespace zte {

namespace {

constexpr char kDefaultFormat[] = "#,#.00";

// The first run of a letter, in either case, that is a literal neither by "~" nor as a letter of the AM/PM field.
MaskSpan FindSpan(const MaskPositions& positions, char letter, int32_t ampmPosition, MaskOrigin origin)
{
    const auto isLetter = [&](int32_t position) {
        const MaskPosition& at = positions.At(position);
        return position < positions.Count() && !at.escaped && at.kind != FieldKind::AmPm &&
               AsciiUpper(at.character) == static_cast<Char>(letter);
    };
    for (int32_t position = 0; position < positions.Count(); ++position) {
        int32_t length = 0;
        while (isLetter(position + length))
            ++length;
        if (length == 0)
            continue;
        const int32_t offset = origin == MaskOrigin::Given ? positions.OffsetOf(position) : position;
        return {offset, length, ampmPosition >= 0 && position > ampmPosition};
    }
    return {};
}

bool HasFieldBehind(const MaskPositions& positions, int32_t ampmPosition)
{
    if (ampmPosition < 0)
        return false;
    return std::any_of(positions.All().begin() + ampmPosition, positions.All().end(),
                       [](const MaskPosition& at) { return at.IsEditable(); });
}

// A "~" at the very end shows nothing.
int32_t CountShown(const MaskPositions& positions)
{
    return static_cast<int32_t>(std::count_if(positions.All().begin(), positions.All().end(),
                                              [](const MaskPosition& at) { return at.character != Char{}; }));
}

// The words of a regional picture are literals like any other, however they had to be written.
void MakeLiteralsPlain(MaskPosition* positions, int32_t count)
{
    std::for_each_n(positions, count, [](MaskPosition& at) { at.escaped = false; });
}

// Lays the parts of a mask's block out, one behind the other.
class BlockLayout {
public:
    template <typename T>
    size_t Take(size_t count = 1)
    {
        const size_t at = (size_ + alignof(T) - 1) / alignof(T) * alignof(T);
        size_ = at + count * sizeof(T);
        return at;
    }
    size_t TakeText(const Text& text) { return Take<Char>(text.size() + 1); }
    size_t Size() const { return size_; }

private:
    size_t size_ = 0;
};

// What a number's mask is compiled into, before it has a place.
struct NumberParts {
    services::NumberFormat compiled;
    Text format;
    Text before;
    Text behind;
};

// A mask that is no format (it came from a keyword) is shown by the default one.
NumberParts CompileNumber(const Text& mask, bool unitsForced, const Settings& settings)
{
    NumberParts parts;
    parts.format = DisplayFormatText(mask, settings);
    if (unitsForced)
        parts.format = WithUnitsForced(parts.format);
    if (!services::CompileFormat(parts.compiled, parts.format)) {
        parts.format = FromAscii(kDefaultFormat);
        services::CompileFormat(parts.compiled, parts.format);
    }
    if (!IsGeneralFormat(parts.format.c_str())) {
        parts.before = LiteralsBefore(parts.format.c_str());
        parts.behind = LiteralsBehind(parts.format.c_str());
    }
    return parts;
}

const Char* Place(char* block, size_t offset, const Text& text)
{
    auto* placed = reinterpret_cast<Char*>(block + offset);
    std::char_traits<Char>::copy(placed, text.c_str(), text.size() + 1);
    return placed;
}

MaskTable* NewMaskBlock(EditInstance& edit, const Text& mask, const MaskPositions& positions, const BlockLayout& layout,
                        size_t tableAt)
{
    auto* block =
        static_cast<char*>(services::Allocate(edit.heap, static_cast<uint32_t>(layout.Size()), edit.heapFlags));
    Place(block, 0, mask);
    edit.mask = reinterpret_cast<Char*>(block);
    auto* table = new (block + tableAt) MaskTable{};
    edit.table = table;
    edit.displayLength = CountShown(positions);
    return table;
}

void InstallNumberMask(EditInstance& edit, const Text& mask, bool unitsForced)
{
    const NumberParts parts = CompileNumber(mask, unitsForced, *edit.settings);
    BlockLayout layout;
    layout.TakeText(mask);
    const size_t tableAt = layout.Take<MaskTable>();
    const size_t compiledAt = layout.Take<services::NumberFormat>();
    const size_t formatAt = layout.TakeText(parts.format);
    const size_t beforeAt = layout.TakeText(parts.before);
    const size_t behindAt = layout.TakeText(parts.behind);

    MaskTable* table = NewMaskBlock(edit, mask, MaskPositions(mask, edit.dataType), layout, tableAt);
    auto* block = reinterpret_cast<char*>(edit.mask);
    table->compiled = new (block + compiledAt) services::NumberFormat(parts.compiled);
    table->hasLiterals = HasLiterals(mask, edit.dataType, *edit.settings);
    table->ampmPosition = -1;
    NumberMask& number = table->number;
    number.format = Place(block, formatAt, parts.format);
    number.isGeneral = IsGeneralFormat(number.format);
    number.shape = ReadShape(number.format);
    number.before = {Place(block, beforeAt, parts.before), Length(parts.before)};
    number.behind = {Place(block, behindAt, parts.behind), Length(parts.behind)};
}

void InstallFieldMask(EditInstance& edit, const Text& mask, MaskOrigin origin)
{
    MaskPositions positions(mask, edit.dataType);
    const int32_t ampmPosition = Has(edit, AMPM) ? positions.MarkAmPm() : -1;
    BlockLayout layout;
    layout.TakeText(mask);
    const size_t tableAt = layout.Take<MaskTable>();
    const size_t positionsAt = layout.Take<MaskPosition>(positions.All().size());

    MaskTable* table = NewMaskBlock(edit, mask, positions, layout, tableAt);
    auto* placed = reinterpret_cast<MaskPosition*>(reinterpret_cast<char*>(edit.mask) + positionsAt);
    std::copy(positions.All().begin(), positions.All().end(), placed);
    if (origin == MaskOrigin::Keyword)
        MakeLiteralsPlain(placed, positions.Count());
    table->positions = placed;
    table->count = static_cast<int32_t>(positions.All().size());
    table->beyond = positions.Beyond();
    table->ampmPosition = ampmPosition;
    table->fieldsBehindAmPm = HasFieldBehind(positions, ampmPosition);
    table->year = FindSpan(positions, 'Y', ampmPosition, origin);
    table->month = FindSpan(positions, 'M', ampmPosition, origin);
}

}  // namespace

PositionsUnder::PositionsUnder(const EditInstance& edit, const Text& text) : edit_(edit), text_(text)
{
    if (edit.table->number.format)
        number_.emplace(edit.table->number, *edit.settings, text);
}

MaskPosition PositionsUnder::At(int32_t position) const
{
    return number_ ? NumberAt(position) : PositionOf(edit_, text_, position);
}

// What a number shows at a position: digits do not stand under their placeholders. At the end of the text a digit may follow.
MaskPosition PositionsUnder::NumberAt(int32_t position) const
{
    const Char character = zte::At(text_, position);
    const bool inNumber = position >= number_->Start() && (position < number_->End() || position >= Length(text_));
    const bool editable = inNumber && (character == Char{} || IsSign(character) || IsDigit(character));
    return {character, editable ? FieldKind::NumberDigit : FieldKind::Literal, false, true, 0, 0};
}

bool PositionsUnder::MayTypeAt(int32_t position) const
{
    return IsAmPmPosition(edit_, position) || At(position).IsEditable();
}

bool PositionsUnder::IsInFraction(int32_t position) const
{
    const int32_t point = number_ ? number_->Point() : -1;
    return point >= 0 && position > point && position <= point + edit_.decimalPlaces;
}

int32_t MissingAmPmLetters(const EditInstance& edit, const Text& text)
{
    return kAmPmLength - AmPmWidth(edit, text);
}

const MaskPosition& PositionAroundAmPm(const EditInstance& edit, const Text& text, int32_t position)
{
    const bool isBefore = position < edit.table->ampmPosition;
    return edit.table->At(isBefore ? position : position + MissingAmPmLetters(edit, text));
}

MaskPosition NumberPositionAt(const EditInstance& edit, const Text& text, int32_t position)
{
    return PositionsUnder(edit, text).At(position);
}

int32_t FieldStart(const EditInstance& edit, const Text& text, const MaskSpan& field)
{
    return field.offset - (field.behindAmPm ? MissingAmPmLetters(edit, text) : 0);
}

void InstallMask(EditInstance& edit, const Text& mask, MaskOrigin origin, bool unitsForced)
{
    DropMask(edit);
    if (IsNumeric(edit.dataType))
        InstallNumberMask(edit, mask, unitsForced);
    else
        InstallFieldMask(edit, mask, origin);
}

void DropMask(EditInstance& edit)
{
    FreeBlock(edit, edit.mask);
    edit.table = nullptr;
}

}  // namespace zte
