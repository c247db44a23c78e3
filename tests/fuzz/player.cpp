// A control that a script plays, with the laws that hold after everything that is done to it.
#include "tests/fuzz/player.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "engine/edit/plain_edit.h"
#include "engine/format/data.h"
#include "engine/format/date_text.h"
#include "engine/format/display.h"
#include "engine/format/mask_setting.h"
#include "engine/format/number_value.h"
#include "engine/format/read_back.h"
#include "engine/heap_block.h"
#include "engine/mask/date_mask.h"
#include "engine/mask/half_of_day.h"
#include "engine/mask/mask_table.h"
#include "engine/spin/spin_settings.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/promises.h"

namespace zttest {
namespace {

using zte::EditInstance;
using zte::FieldEvent;
using zte::Selection;
using zte::Text;

bool StartsWith(const Text& text, const zte::MaskLiterals& literals)
{
    return text.compare(0, static_cast<size_t>(literals.length), literals.text) == 0;
}

bool EndsWith(const Text& text, const zte::MaskLiterals& literals)
{
    const auto length = static_cast<size_t>(literals.length);
    return text.size() >= length && text.compare(text.size() - length, length, literals.text) == 0;
}

// The picture of a keyword may be none that a mask can be made of; it is installed as it is.
bool HasProperMask(const EditInstance& edit)
{
    zte::FieldLayout layout{};
    return !zte::IsDateOrTime(edit.dataType) ||
           zte::CheckDateOrTimeMask(edit.mask, edit.dataType, layout, zte::MaskOrigin::Given) ||
           zte::CheckDateOrTimeMask(edit.mask, edit.dataType, layout, zte::MaskOrigin::Keyword);
}

bool HasKnownType(const EditInstance& edit)
{
    return edit.dataType >= DT_STRING && edit.dataType <= DT_DECIMAL;
}

// Its values are shown as they are, not by the entries of a table.
bool ShowsValues(const EditInstance& edit)
{
    return HasMask(edit) && !Has(edit, zte::CODE_SPIN);
}

bool IsPositional(const EditInstance& edit)
{
    return ShowsValues(edit) && !zte::IsNumeric(edit.dataType);
}

// Kept: a string that is shorter than its fields is not padded where only escaped literals follow.
bool IsCutBeforeEscapes(const EditInstance& edit)
{
    bool field = false;
    bool escapeBehind = false;
    for (int32_t at = 0; at < edit.table->count; ++at) {
        const zte::MaskPosition& position = edit.table->positions[at];
        field = field || position.kind != zte::FieldKind::Literal;
        escapeBehind = escapeBehind || (field && position.escaped);
    }
    return escapeBehind;
}

bool IsTypedNumber(const EditInstance& edit)
{
    return ShowsValues(edit) && zte::IsNumeric(edit.dataType) && !edit.table->number.isGeneral &&
           IsInOnePiece(edit.table->number.format) && CanWriteNumbers(*edit.settings);
}

// Half a day is no time without its hour.
bool ShowsHalfWithoutHour(const EditInstance& edit)
{
    bool hour = false;
    for (int32_t at = 0; at < edit.table->count; ++at)
        hour = hour || edit.table->positions[at].kind == zte::FieldKind::Hour;
    return zte::HasAmPmField(edit) && !hour;
}

Text WithoutZerosInFront(const Text& digits)
{
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

void CheckSameDigits(const EditInstance& edit, const Text& text, const Text& before)
{
    const zte::TypedNumber now = zte::ShownNumber(edit.table->number, *edit.settings, text).Digits();
    const zte::TypedNumber then = zte::ShownNumber(edit.table->number, *edit.settings, before).Digits();
    Demand(now.negative == then.negative && now.fraction == then.fraction &&
               WithoutZerosInFront(now.integer) == WithoutZerosInFront(then.integer),
           "a refused key leaves the digits of a number", text, before);
}

// Whether a field has room for one digit of its two. No mask is installed with one; but an escaped letter counts as one of its field, so
// that "~H:H" shows the first digit of the hour.
bool HasCutField(const EditInstance& edit)
{
    using zte::FieldKind;
    for (const FieldKind kind :
         {FieldKind::Month, FieldKind::Day, FieldKind::Hour, FieldKind::Minute, FieldKind::Second}) {
        const auto* const end = edit.table->positions + edit.table->count;
        if (std::count_if(edit.table->positions, end, [kind](const auto& at) { return at.kind == kind; }) == 1)
            return true;
    }
    return false;
}

// Kept: a month at the end of the text is read without its last digit where it is asked whether there is a date at all.
bool EndsWithMonth(const EditInstance& edit)
{
    return edit.table->count > 0 && edit.table->positions[edit.table->count - 1].kind == zte::FieldKind::Month;
}

bool ReadsWhatItShows(const EditInstance& edit)
{
    if (!ShowsValues(edit))
        return false;
    if (zte::IsNumeric(edit.dataType))
        return IsTypedNumber(edit);
    if (HasCutField(edit) || EndsWithMonth(edit))
        return false;
    return !zte::HasAmPmField(edit) || (CanTellHalves(*edit.settings) && !ShowsHalfWithoutHour(edit));
}

// Whether a field of the text is 00, which is read as something else.
bool HasZeroField(const EditInstance& edit, const Text& text, zte::FieldKind kind)
{
    for (int32_t at = 0; at + 1 < zte::Length(text); ++at)
        if (zte::PositionOf(edit, text, at).kind == kind && zte::PositionOf(edit, text, at).runBefore == 0)
            return zte::At(text, at) == '0' && zte::At(text, at + 1) == '0';
    return false;
}

// Free text beside the fields of a date or time is no part of the value.
bool HasFreeText(const EditInstance& edit, const Text& text)
{
    const auto isFree = [](zte::FieldKind kind) {
        return kind == zte::FieldKind::Any || kind == zte::FieldKind::UpperCase || kind == zte::FieldKind::LowerCase;
    };
    for (int32_t at = 0; at < zte::Length(text); ++at)
        if (isFree(zte::PositionOf(edit, text, at).kind) && zte::At(text, at) != ' ')
            return true;
    return false;
}

bool IsWholeDateOrTime(const EditInstance& edit, const Text& text)
{
    DateTimeValue value;
    return zte::IsDateOrTime(edit.dataType) && zte::ReadDisplayText(edit, text, value) && !HasFreeText(edit, text) &&
           !HasZeroField(edit, text, zte::FieldKind::Day) && !HasZeroField(edit, text, zte::FieldKind::Month) &&
           !(zte::HasAmPmField(edit) && HasZeroField(edit, text, zte::FieldKind::Hour));
}

bool IsTold()
{
    static const bool told = std::getenv("ZT_FUZZ_TELL") != nullptr;
    return told;
}

}  // namespace

DateTimeValue FuzzToday()
{
    return {123456, 95, 6, 4, 14, 7, 9, 0};
}

PlayedControl::PlayedControl(const zte::ControlSetup& setup, const zte::Settings& settings)
    : settings_(settings), control_(setup, settings_, FuzzToday, this)
{
    CountStep();
    hadUnknownType_ = !HasKnownType(control_.Record());
    properMask_ = HasProperMask(control_.Record());
    unformatted_ = Has(control_.Record(), zte::CODE_SPIN);
    CheckAlways();
}

// Every block of the control goes back to its heap.
PlayedControl::~PlayedControl()
{
    EditInstance& edit = control_.Record();
    zte::DropSpinTexts(edit);
    zte::DropMask(edit);
    Demand(control_.BlockCount() == 0, "a control gives all its blocks back");
}

void PlayedControl::OnFieldEvent(FieldEvent event)
{
    if (event == FieldEvent::Beep)
        ++beeps_;
    if (event == FieldEvent::RedrawOff || event == FieldEvent::RedrawOn)
        redrawOff_ = event == FieldEvent::RedrawOff;
}

template <typename Act>
void PlayedControl::ByUser(Act act)
{
    CountStep();
    const zte::MemoryField& field = control_.Edit();
    const Text before = field.Shown();
    // Without a mask the keys are the field's own, which a disabled window is never sent.
    const bool refuses = field.RefusesInput() && HasMask(control_.Record());
    act();
    if (refuses)
        DemandEqual(field.Shown(), before, "a control that takes no input keeps its text");
    if (field.Shown() != before && !zte::IsPlainEdit(control_.Record()))
        Demand(field.IsModified(), "what the user changed counts as modified", field.Shown(), before);
    CheckAlways();
}

template <typename Act>
void PlayedControl::ByProgram(Act act)
{
    CountStep();
    act();
    CheckAlways();
}

// ---- the laws

bool PlayedControl::IsWatched() const
{
    return properMask_ && !unformatted_ && !foreign_ && !foreignSettings_ && !limited_;
}

void PlayedControl::CheckAlways() const
{
    if (IsTold())
        Tell();
    const Selection selection = control_.Edit().ReadSelection();
    const int32_t length = zte::Length(control_.Edit().Shown());
    Demand(0 <= selection.start && selection.start <= selection.end && selection.end <= length,
           "the caret stands in the text");
    Demand(!redrawOff_ || hadUnknownType_, "redrawing is on again");
    if (IsWatched())
        CheckText();
}

// A script step by step, for whoever looks into a broken law.
void PlayedControl::Tell() const
{
    Text text = control_.Edit().Shown();
    text.insert(static_cast<size_t>(control_.Edit().Caret()), "|");
    std::fprintf(stderr, "%s%s%s\n", text.c_str(), IsWatched() ? "" : "   (foreign)",
                 beeps_ > 0 ? "   (has beeped)" : "");
}

void PlayedControl::CheckText() const
{
    const EditInstance& edit = control_.Record();
    if (IsPositional(edit))
        CheckFields();
    else if (IsTypedNumber(edit))
        CheckNumber();
    CheckNoUndo();
}

// Every literal of the mask stands in its place, and as many positions as the mask has: a string that is shorter lacks positions at its
// end, but no literal.
void PlayedControl::CheckFields() const
{
    const EditInstance& edit = control_.Record();
    const Text& text = control_.Edit().Shown();
    const zte::MaskTable& table = *edit.table;
    const int32_t missing = zte::HasAmPmField(edit) ? zte::kAmPmLength - zte::AmPmWidth(edit, text) : 0;
    const int32_t length = edit.displayLength - missing;
    if (!zte::IsDateOrTime(edit.dataType) && IsCutBeforeEscapes(edit))
        return;
    if (zte::HasAmPmField(edit) && !CanTellHalves(*edit.settings))
        return;
    Demand(zte::Length(text) == length || (!zte::IsDateOrTime(edit.dataType) && zte::Length(text) < length),
           "the text has the length of its mask", text, edit.mask);
    for (int32_t at = 0; at < edit.displayLength; ++at) {
        const bool isBehind = zte::HasAmPmField(edit) && at > table.ampmPosition;
        if (table.positions[at].kind == zte::FieldKind::Literal)
            Demand(zte::At(text, at - (isBehind ? missing : 0)) == table.positions[at].character, "literals stand",
                   text, edit.mask);
    }
}

// A display is what its digits give, laid through the mask, and nothing else.
void PlayedControl::CheckNumber() const
{
    const EditInstance& edit = control_.Record();
    const Text& text = control_.Edit().Shown();
    const zte::NumberMask& mask = edit.table->number;
    if (text.empty())
        return;
    Demand(StartsWith(text, mask.before) && EndsWith(text, mask.behind), "the literals of a number stand", text,
           edit.mask);
    const zte::ShownNumber shown(mask, *edit.settings, text);
    DemandEqual(text, zte::LayOutDigits(edit.table->compiled->compiled, mask.shape, shown.Digits(), *edit.settings),
                "a number shows its digits as the mask lays them");
}

// A string without literals deletes as a plain edit does, and takes that back.
void PlayedControl::CheckNoUndo() const
{
    const EditInstance& edit = control_.Record();
    const bool hasLiterals = (edit.formatFlags & FORMAT_HAS_LITERALS) != 0;
    if (ShowsValues(edit) && (hasLiterals || zte::IsNumeric(edit.dataType)))
        Demand(!control_.Edit().CanUndo(), "no undo brings back a text that breaks the mask", control_.Edit().Shown());
}

// A refused character changes nothing: not the text, and where positions are fixed, not the caret, unless it was meant for the first
// field, before which the caret stood. A number is laid anew: zeros in front that hold no place go.
void PlayedControl::CheckRefused(const Text& before, Selection selection) const
{
    const EditInstance& edit = control_.Record();
    if (IsPositional(edit))
        DemandEqual(control_.Edit().Shown(), before, "a refused key leaves the text");
    else
        CheckSameDigits(edit, control_.Edit().Shown(), before);
    const Selection now = control_.Edit().ReadSelection();
    const bool isMoved = now.start != selection.start || now.end != selection.end;
    const bool isMeant = selection.start < edit.firstFieldPos && now.IsEmpty() && now.start == edit.firstFieldPos;
    if (IsPositional(edit))
        Demand(!isMoved || isMeant, "a refused key leaves the caret", before, edit.mask);
}

// ---- the user

void PlayedControl::Type(uint32_t character)
{
    const EditInstance& edit = control_.Record();
    const Text before = control_.Edit().Shown();
    const Selection selection = control_.Edit().ReadSelection();
    const bool watched = IsWatched() && (IsPositional(edit) || IsTypedNumber(edit)) && selection.IsEmpty() &&
                         !Has(edit, zte::SPUN | zte::CODE_POSITIONED);
    const int32_t beeps = beeps_;
    ByUser([&] { control_.Type(character); });
    if (!watched || !IsWatched())
        return;
    if (beeps_ != beeps)
        CheckRefused(before, selection);
    else if (control_.Edit().Shown() != before && character >= ' ')
        Demand(control_.Edit().Caret() >= edit.firstFieldPos || zte::IsNumeric(edit.dataType),
               "behind an accepted key the caret stands on or behind the first field", before, edit.mask);
}

void PlayedControl::Press(int32_t key)
{
    ByUser([&] {
        control_.KeyDown(key);
        if (key == zte::KEY_BACKSPACE)
            control_.Type(static_cast<uint32_t>(key));
        control_.KeyUp(key);
    });
}

void PlayedControl::Hold(int32_t key, bool down)
{
    if (key == zte::KEY_SHIFT)
        control_.Edit().HoldShift(down);
    else
        control_.Edit().HoldControl(down);
}

void PlayedControl::Click(int32_t position)
{
    ByUser([&] { control_.Click(position); });
}

void PlayedControl::Drag(int32_t from, int32_t to)
{
    ByUser([&] { control_.Drag(from, to); });
}

void PlayedControl::Paste(const Text& text)
{
    control_.Edit().SetClipboard(text);
    ByUser([&] { control_.Paste(); });
}

void PlayedControl::Step(bool up)
{
    if (!control_.Edit().RefusesInput())
        ByUser([&] { control_.Step(up); });
}

void PlayedControl::LoseFocus()
{
    ByProgram([&] { control_.LoseFocus(); });
}

// ---- the program

void PlayedControl::SetMask(const Text& mask, int32_t dataType)
{
    ByProgram([&] {
        zte::SetMask(control_.Record(), mask.c_str(), dataType);
        foreign_ = unformatted_ = Has(control_.Record(), zte::CODE_SPIN);
        foreignSettings_ = false;
        properMask_ = HasProperMask(control_.Record());
        hadUnknownType_ = hadUnknownType_ || !HasKnownType(control_.Record());
    });
}

void PlayedControl::SetDataString(const Text& text)
{
    ByProgram([&] {
        foreign_ = false;
        zte::SetDataString(control_.Record(), text.c_str());
    });
    CheckShownAgain();
}

void PlayedControl::SetNoData()
{
    ByProgram([&] {
        foreign_ = false;
        zte::SetData(control_.Record(), nullptr);
    });
}

// What was typed: a whole date or time is shown again as it was typed, a number with the same value.
void PlayedControl::CheckTypedAgain()
{
    EditInstance& edit = control_.Record();
    if (!IsWatched() || !ReadsWhatItShows(edit))
        return;
    const Text typed = control_.Edit().Shown();
    if (IsWholeDateOrTime(edit, typed))
        return CheckShownAgain();
    if (!zte::IsNumeric(edit.dataType))
        return;
    CountStep(3);
    const auto value = zte::Own(edit, static_cast<char*>(zte::GetData(edit)));
    zte::SetDataString(edit, value.get());
    const auto again = zte::Own(edit, static_cast<char*>(zte::GetData(edit)));
    zte::SetDataString(edit, again.get());
    const auto thrice = zte::Own(edit, static_cast<char*>(zte::GetData(edit)));
    DemandEqual(again.get(), thrice.get(), "a number typed, read and set again is that number");
    Demand(zte::NumberFromText(edit, value.get()) == zte::NumberFromText(edit, again.get()) ||
               edit.dataType == DT_DECIMAL || zte::Length(typed) > 15,
           "a number typed is the number shown again", typed, again.get());
}

// A value just shown, read and shown again is the same text.
void PlayedControl::CheckShownAgain()
{
    EditInstance& edit = control_.Record();
    if (!IsWatched() || !ReadsWhatItShows(edit))
        return;
    CountStep(2);
    const Text shown = control_.Edit().Shown();
    if (edit.dataType == DT_DATETIME && zte::FormatValue(edit, nullptr).text == shown)
        return;  // kept: a date-time is never null, so its blank reads as the first day of 2000
    const auto value = zte::Own(edit, static_cast<char*>(zte::GetData(edit)));
    if (edit.dataType == DT_TIME && !value)
        return;  // kept: midnight reads as no time, which is shown otherwise in twelve hours
    if (zte::IsNumeric(edit.dataType) && value)
        zte::SetDataString(edit, value.get());
    else
        zte::SetData(edit, value.get());
    DemandEqual(control_.Edit().Shown(), shown, "what is shown, read and shown again is the same text");
}

void PlayedControl::SetSpin(uint32_t increment, const Text& range, const Text& codes, uint32_t style)
{
    ByProgram([&] {
        const bool showedEntries = Has(control_.Record(), zte::CODE_SPIN);
        zte::SetSpin(control_.Record(), increment, range.c_str(), codes.empty() ? nullptr : codes.c_str(), style);
        foreign_ = foreign_ || showedEntries;
    });
}

void PlayedControl::CreateSpin()
{
    ByProgram([&] { control_.CreateSpin(); });
}

void PlayedControl::DestroySpin()
{
    ByProgram([&] { control_.DestroySpin(); });
}

void PlayedControl::SetAutoskip(bool on)
{
    SetFlag(control_.Record(), zte::AUTOSKIP, on);
}

void PlayedControl::SetInput(bool readOnly, bool disabled)
{
    control_.Edit().SetReadOnly(readOnly);
    control_.Edit().Enable(!disabled);
}

void PlayedControl::Read()
{
    CountStep();
    EditInstance& edit = control_.Record();
    const uint32_t blocks = control_.BlockCount();
    {
        const auto value = zte::Own(edit, static_cast<char*>(zte::GetData(edit)));
        Demand(control_.BlockCount() == blocks + (value ? 1 : 0), "reading makes one block, the caller's");
    }
    Demand(control_.BlockCount() == blocks, "a value read is given back");
}

void PlayedControl::Unformat(const Text& text)
{
    CountStep();
    const uint32_t blocks = control_.BlockCount();
    zte::services::Free(control_.Record().heap, zte::UnformatData(control_.Record(), text.c_str()));
    Demand(control_.BlockCount() == blocks, "a text read is given back");
}

void PlayedControl::ShowAgain()
{
    CheckTypedAgain();
    CheckAlways();
}

void PlayedControl::FormatAgain()
{
    CountStep();
    const Text before = control_.Edit().Shown();
    zte::FormatValue(control_.Record(), nullptr);
    DemandEqual(control_.Edit().Shown(), before, "formatting leaves the text alone");
}

// ---- behind the library's back

void PlayedControl::Select(int32_t anchor, int32_t caret)
{
    ByProgram([&] { control_.Select(anchor, caret); });
}

void PlayedControl::SetText(const Text& text)
{
    foreign_ = true;
    ByProgram([&] { control_.SetText(text.c_str()); });
}

void PlayedControl::Replace(const Text& text)
{
    foreign_ = true;
    ByProgram([&] { control_.Replace(text.c_str(), true); });
}

void PlayedControl::ClearByMenu()
{
    foreign_ = true;
    ByProgram([&] { control_.Edit().Clear(); });
}

void PlayedControl::CutByMenu()
{
    foreign_ = true;
    ByProgram([&] { control_.Edit().Cut(); });
}

void PlayedControl::UndoByMenu()
{
    foreign_ = foreign_ || control_.Edit().CanUndo();
    ByProgram([&] { control_.Edit().Undo(); });
}

void PlayedControl::Limit(int32_t characters)
{
    limited_ = characters > 0 && characters < 2048;
    ByProgram([&] { control_.Edit().SetLimit(characters); });
    foreign_ = foreign_ || limited_;
}

void PlayedControl::ChangeSettings(const zte::Settings& settings)
{
    foreignSettings_ = true;
    settings_ = settings;
    CheckAlways();
}

}  // namespace zttest
