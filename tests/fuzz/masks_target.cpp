// Masks of every type: what the check says, what is installed, what a control shows under it. Bytes: settings, type, the mask.
#include "engine/format/mask_setting.h"
#include "engine/mask/mask_checks.h"
#include "engine/mask/mask_choice.h"
#include "engine/mask/mask_table.h"
#include "engine/memory_control.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/player.h"
#include "tests/fuzz/regional.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using zte::Text;

// The default of a type is acceptable to it, whatever the settings; but an empty currency symbol, which fits anywhere, refuses it.
void CheckStandIn(int32_t type, const zte::Settings& settings)
{
    zte::FieldLayout layout{};
    const Text standIn = zte::FromAscii(zte::DefaultMask(type));
    if (!zte::IsNumeric(type))
        Demand(standIn.empty() || zte::CheckMask(standIn, type, settings, layout), "a default mask is acceptable",
               standIn);
}

void CheckChoice(const Text& mask, int32_t type, const zte::Settings& settings, const zte::ChosenMask& chosen)
{
    const bool isText = type >= DT_STRING && type <= DT_DECIMAL;
    if (isText)
        Demand(zte::Length(chosen.text) <= zte::kMaxMaskLength, "a mask installed has at most 255 characters",
               chosen.text, mask);
    if (!chosen.asGiven) {
        CheckStandIn(type, settings);
        return;
    }
    if (chosen.origin == zte::MaskOrigin::Given)
        DemandEqual(chosen.text, mask, "a mask that is taken is taken as given");
}

// Positions are counted without the tildes of escapes.
void CheckPositions(const Text& mask, int32_t type)
{
    const zte::MaskPositions positions(mask, type);
    Demand(positions.Count() <= zte::Length(mask), "no position without a character", mask);
    int32_t before = -1;
    for (int32_t at = 0; at < positions.Count(); ++at) {
        Demand(positions.OffsetOf(at) > before, "positions stand in the order of the mask", mask);
        before = positions.OffsetOf(at);
        const zte::MaskPosition& position = positions.At(at);
        Demand(!position.IsEditable() || !position.escaped, "an escaped character is a literal", mask);
        Demand(position.runAfter < positions.Count() - at, "a run ends in the mask", mask);
        Demand(position.runBefore <= at, "a run begins in the mask", mask);
    }
}

void CheckControl(const Text& mask, int32_t type, const zte::Settings& settings, const zte::ChosenMask& chosen)
{
    zte::ControlSetup setup;
    setup.mask = mask.c_str();
    setup.dataType = type;
    PlayedControl played(setup, settings);
    zte::EditInstance& edit = played.Control().Record();
    DemandEqual(edit.mask, chosen.text, "the mask chosen is installed");
    const uint32_t blocks = played.Control().BlockCount();
    const Text blank = played.Control().Edit().Shown();
    Demand((zte::SetMask(edit, mask.c_str(), type) != 0) == chosen.asGiven,
           "the result tells whether the mask was taken", mask);
    DemandEqual(played.Control().Edit().Shown(), blank, "the same mask shows the same blank");
    Demand(played.Control().BlockCount() == blocks, "a mask gives the one before it back");
    played.SetMask(mask, type);
}

}  // namespace

void PlayMasks(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const zte::Settings& settings = RegionalSettings(bytes.Take());
    const auto type = static_cast<int32_t>(bytes.TakeBelow(8));
    const Text mask = bytes.TakeRest().substr(0, zte::kMaxMaskLength + 1);  // no more of a mask is looked at
    zte::FieldLayout layout{};
    const zte::ChosenMask chosen = zte::ChooseMask(mask, type, settings, layout);
    CountStep();
    CheckChoice(mask, type, settings, chosen);
    CheckPositions(chosen.text, type);
    CheckControl(mask, type, settings, chosen);
}

}  // namespace zttest
