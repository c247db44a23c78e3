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

// The mask character that stands for what a number shows at a position.
Char NumericMaskChar(const EditInstance& edit, Char shown, int32_t position)
{
    if (shown == Char{} || IsSign(shown))
        return '#';
    if (IsDigit(shown))
        return position < edit.table->textLength && edit.mask[position] == '0' ? Char{'0'} : Char{'#'};
    if (shown == edit.settings->decimalChar)
        return '.';
    return shown == edit.settings->thousandChar ? Char{','} : shown;
}

// The digits of a number do not stand under their placeholders, unless its point is escaped.
bool FollowsDigits(const Text& mask, int32_t dataType)
{
    const int32_t point = Find(mask, '.');
    return IsNumeric(dataType) && !(point > 0 && At(mask, point - 1) == '~');
}

// The first run of a letter, in either case, that is a literal neither by "~" nor as a letter of the AM/PM field.
MaskSpan FindSpan(const MaskPositions& positions, char letter, int32_t ampmPosition, MaskOrigin origin)
{
    const auto isLetter = [&](int32_t position) {
        const MaskPosition& at = positions.At(position);
        return position < positions.Count() && !at.escaped && at.kind != FieldKind::AmPm &&
               AsciiUpper(at.character) == static_cast<Char>(letter);
    };
    for (int32_t position = 0; position < positions.Count(); ++position) {
        if (!isLetter(position))
            continue;
        int32_t length = 1;
        while (isLetter(position + length))
            ++length;
        const int32_t offset = origin == MaskOrigin::Given ? positions.OffsetOf(position) : position;
        return {offset, length, ampmPosition >= 0 && position > ampmPosition};
    }
    return {0, 0, false};
}

bool HasFieldBehind(const MaskPositions& positions, int32_t ampmPosition)
{
    const auto first = positions.All().begin() + std::max(ampmPosition, 0);
    return ampmPosition >= 0 &&
           std::any_of(first, positions.All().end(), [](const MaskPosition& at) { return at.IsEditable(); });
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
    for (int32_t i = 0; i < count; ++i)
        positions[i].escaped = false;
}

// The designator shown is shorter than the field is written.
int32_t MissingAmPmLetters(const EditInstance& edit, const Text& text)
{
    return kAmPmLength - AmPmWidth(edit, text);
}

// Where the parts of a mask's block stand, in bytes.
struct BlockLayout {
    size_t table;
    size_t positions;
    size_t format;
    size_t size;
};

constexpr size_t AlignUp(size_t size, size_t alignment)
{
    return (size + alignment - 1) / alignment * alignment;
}

BlockLayout LayOutBlock(const Text& mask, size_t positions, bool isNumber)
{
    BlockLayout layout{};
    layout.table = AlignUp((mask.size() + 1) * sizeof(Char), alignof(MaskTable));
    layout.positions = AlignUp(layout.table + sizeof(MaskTable), alignof(MaskPosition));
    layout.format = AlignUp(layout.positions + positions * sizeof(MaskPosition), alignof(services::NumberFormat));
    layout.size = layout.format + (isNumber ? sizeof(services::NumberFormat) : 0);
    return layout;
}

// A mask that is no format (it came from a keyword) is shown by the default one.
void CompileNumber(const EditInstance& edit, const Text& mask, services::NumberFormat& format, MaskTable& table)
{
    if (!services::CompileFormat(format, DisplayFormatText(mask, edit.dataType)))
        services::CompileFormat(format, FromAscii(kDefaultFormat));
    table.format = &format;
    table.hasLiterals = HasLiterals(mask, edit.dataType, *edit.settings);
    table.firstPlaceholder = FirstPlaceholderPos(mask, edit.dataType);
}

}  // namespace

MaskPosition PositionAt(const EditInstance& edit, const Text& text, int32_t position)
{
    if (!edit.table->followsDigits)
        return PositionOf(edit, text, position);
    const Char character = NumericMaskChar(edit, At(text, position), position);
    return {character, KindOf(character, edit.dataType), false, true, 0, 0};
}

const MaskPosition& PositionOf(const EditInstance& edit, const Text& text, int32_t position)
{
    const MaskTable& table = *edit.table;
    if (position < 0 || table.followsDigits)
        return kNoPosition;
    if (table.fieldsBehindAmPm && position >= table.ampmPosition)
        position += MissingAmPmLetters(edit, text);
    return position < table.count ? table.positions[position] : table.beyond;
}

int32_t ShownLength(const EditInstance& edit, const Text& text)
{
    const bool shorter = edit.table && edit.table->fieldsBehindAmPm;
    return edit.displayLength - (shorter ? MissingAmPmLetters(edit, text) : 0);
}

int32_t FieldStart(const EditInstance& edit, const Text& text, const MaskSpan& field)
{
    return field.offset - (field.behindAmPm ? MissingAmPmLetters(edit, text) : 0);
}

void InstallMask(EditInstance& edit, const Text& mask, MaskOrigin origin)
{
    DropMask(edit);
    const bool isNumber = IsNumeric(edit.dataType);
    MaskPositions positions(mask, edit.dataType);
    const int32_t ampmPosition = Has(edit, AMPM) ? positions.MarkAmPm() : -1;
    const BlockLayout layout = LayOutBlock(mask, positions.All().size(), isNumber);

    auto* block = static_cast<char*>(services::Allocate(edit.heap, static_cast<uint32_t>(layout.size), edit.heapFlags));
    auto* table = new (block + layout.table) MaskTable{};
    auto* placed = reinterpret_cast<MaskPosition*>(block + layout.positions);
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
    table->textLength = Length(mask);
    table->point = Find(mask, '.');
    table->followsDigits = FollowsDigits(mask, edit.dataType);
    table->hasHash = Find(mask, '#') >= 0;

    edit.mask = reinterpret_cast<Char*>(block);
    std::char_traits<Char>::copy(edit.mask, mask.c_str(), mask.size() + 1);
    edit.table = table;
    edit.displayLength = CountShown(positions);
    if (isNumber)
        CompileNumber(edit, mask, *new (block + layout.format) services::NumberFormat, *table);
}

void DropMask(EditInstance& edit)
{
    FreeBlock(edit, edit.mask);
    edit.table = nullptr;
}

}  // namespace zte
