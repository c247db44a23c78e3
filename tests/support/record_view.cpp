// Copies of the record behind a control and of its code table.
#include "tests/support/record_view.h"

#include "engine/format/code_table.h"

namespace zttest {
namespace {

template <class Text>
std::optional<std::string> CopyOf(const Text* text)
{
    return text ? std::optional<std::string>(text) : std::nullopt;
}

}  // namespace

RecordView ViewOf(const zte::EditInstance& record)
{
    RecordView view = {};
    view.mask = record.mask ? record.mask : "";
    view.formatFlags = record.formatFlags;
    view.displayLength = record.displayLength;
    view.decimalPlaces = record.decimalPlaces;
    view.maskJustSet = record.maskJustSet;
    view.firstFieldPos = record.firstFieldPos;
    view.yearDigits = record.yearDigits;
    view.month = record.monthPos;
    view.day = record.dayPos;
    view.hour = record.hourPos;
    view.minute = record.minutePos;
    view.second = record.secondPos;
    view.fraction = record.fractionPos;
    view.fractionLength = record.fractionLen;
    view.marker = record.ampmPos;
    view.charwise = Has(record, zte::CHARWISE);
    view.percent = Has(record, zte::PERCENT);
    view.hasMarker = Has(record, zte::AMPM);
    view.codeDisplay = Has(record, zte::CODE_SPIN);
    view.pickList = Has(record, zte::CODE_PICKLIST);
    view.codePositioned = Has(record, zte::CODE_POSITIONED);
    view.spun = Has(record, zte::SPUN);
    view.stepping = Has(record, zte::SPIN_UP | zte::SPIN_DOWN);
    view.spinRange = CopyOf(record.spinRange);
    view.spinIncrement = record.spinIncrement;
    view.spinMinimum = record.spinMin;
    view.spinMaximum = record.spinMax;
    return view;
}

std::optional<CodeTableView> CodeTableOf(const zte::EditInstance& record)
{
    if (!record.codeTable)
        return std::nullopt;
    CodeTableView view = {record.codeTable->capacity, {}};
    for (int i = 0; i < record.codeTable->count; ++i) {
        const zte::CodeTableEntry& entry = record.codeTable->Entries()[i];
        view.entries.push_back({entry.display ? entry.display : "", CopyOf(entry.value)});
    }
    return view;
}

}  // namespace zttest
