// The functions of the interface: texts and null are settled here, the rest is the field's.
#include "ztfield.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "engine/editing.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/modern/data.h"
#include "engine/modern/editor.h"
#include "engine/services.h"
#include "ztfield/date_text.h"
#include "ztfield/field.h"
#include "ztfield/positions.h"
#include "ztfield/settings.h"
#include "ztfield/utf8.h"

namespace {

using zte::FromUtf8;
using zte::Text;
using zte::WriteUtf8;

constexpr int32_t kNone = -1;
constexpr int32_t kMostNotches = 1000;  // at a time: no wheel turns further, and each is a step

// No text: "" in the buffer, and no length.
int32_t WriteNone(char* buffer, int32_t size)
{
    WriteUtf8(Text(), buffer, size);
    return kNone;
}

// Nothing is thrown through a C interface: without memory the program ends in one of these.
template <typename Work>
auto Ended(Work work) noexcept
{
    return work();
}

template <typename Ask>
int32_t WriteOf(const ZTField* field, char* buffer, int32_t size, Ask ask) noexcept
{
    return WriteUtf8(field ? ask(*field) : Text(), buffer, size);
}

template <typename Act>
void Do(ZTField* field, Act act) noexcept
{
    if (field)
        act(*field);
}

template <typename Field, typename Act>
int32_t Asked(Field* field, int32_t otherwise, Act act) noexcept
{
    return field ? static_cast<int32_t>(act(*field)) : otherwise;
}

// Null stays null for the calls that tell it from "".
const zte::Char* OrNull(const char* utf8, const Text& text)
{
    return utf8 ? text.c_str() : nullptr;
}

// The data of a field, as the control gives it: a block of its heap.
Text TakeData(const ZTField& field, void* block)
{
    const zte::EditInstance& record = field.Record();
    Text text = zte::IsDateOrTime(record.dataType) ? zte::DateTimeText(*static_cast<const DateTimeValue*>(block))
                                                   : Text(static_cast<const zte::Char*>(block));
    zte::services::Free(record.heap, block);
    return text;
}

template <typename Read>
int32_t WriteData(const ZTField* field, char* buffer, int32_t size, Read read) noexcept
{
    void* block = field ? read(field->Record()) : nullptr;
    return block ? WriteUtf8(TakeData(*field, block), buffer, size) : WriteNone(buffer, size);
}

using Judgement = zte::MaskVerdict (*)(const zte::Char*, int32_t, const zte::Settings&);

int32_t Judge(Judgement judge, const ZTFieldSettings* settings, const char* mask, int32_t dataType,
              int32_t* offset) noexcept
{
    const Text text = FromUtf8(mask);
    const zte::MaskVerdict verdict = judge(OrNull(mask, text), dataType, zte::SettingsOf(settings));
    if (offset)
        *offset = verdict.offset;
    return verdict.reason;
}

// A field for one question.
ZTFieldSetup Asking(const ZTFieldSettings* settings, const char* mask, int32_t dataType)
{
    ZTFieldSetup setup{};
    setup.settings = settings;
    setup.mask = mask;
    setup.dataType = dataType;
    setup.options = ZTEO_MODERN;
    return setup;
}

}  // namespace

uint32_t ZTF_Version(void)
{
    return ZTFIELD_VERSION;
}

// ---- settings

ZTFieldSettings* ZTF_CreateSettings(void)
{
    return Ended([] { return new ZTFieldSettings; });
}

void ZTF_DestroySettings(ZTFieldSettings* settings)
{
    delete settings;
}

int32_t ZTF_SetSetting(ZTFieldSettings* settings, int32_t setting, const char* value)
{
    return Asked(settings, 0, [&](ZTFieldSettings& it) { return zte::SetSetting(it.value, setting, FromUtf8(value)); });
}

int32_t ZTF_GetSetting(const ZTFieldSettings* settings, int32_t setting, char* buffer, int32_t size)
{
    return Ended([&] { return WriteUtf8(zte::SettingOf(zte::SettingsOf(settings), setting), buffer, size); });
}

// ---- fields

ZTField* ZTF_Create(const ZTFieldSetup* setup)
{
    return Ended([&] { return new ZTField(setup ? *setup : ZTFieldSetup{}); });
}

void ZTF_Destroy(ZTField* field)
{
    delete field;
}

void ZTF_UseSettings(ZTField* field, const ZTFieldSettings* settings)
{
    Do(field, [&](ZTField& it) { it.UseSettings(zte::SettingsOf(settings)); });
}

int32_t ZTF_SetMask(ZTField* field, const char* mask, int32_t dataType)
{
    return Asked(field, 0, [&](ZTField& it) { return it.SetMask(mask, dataType); });
}

int32_t ZTF_GetMask(const ZTField* field, char* buffer, int32_t size)
{
    return WriteOf(field, buffer, size,
                   [](const ZTField& it) { return Text(it.Record().mask ? it.Record().mask : Text().c_str()); });
}

int32_t ZTF_GetDataType(const ZTField* field)
{
    return field ? field->Record().dataType : 0;
}

int32_t ZTF_SetModern(ZTField* field, int32_t on)
{
    return Asked(field, 0, [&](ZTField& it) { return zte::SetModern(it.Record(), on != 0); });
}

void ZTF_SetAutoskip(ZTField* field, int32_t on)
{
    Do(field, [&](ZTField& it) { zte::SetFlag(it.Record(), zte::AUTOSKIP, on != 0); });
}

void ZTF_SetReadOnly(ZTField* field, int32_t on)
{
    Do(field, [&](ZTField& it) { it.Edit().SetReadOnly(on != 0); });
}

void ZTF_SetSpin(ZTField* field, uint32_t increment, const char* range, const char* codeTable, uint32_t style)
{
    Do(field, [&](ZTField& it) { it.SetSpin(increment, range, codeTable, style); });
}

void ZTF_ShowSpin(ZTField* field, int32_t on)
{
    Do(field, [&](ZTField& it) {
        if (on) {
            it.Control().CreateSpin();
        } else if (it.Record().hwndSpin) {
            it.Control().DestroySpin();
            zte::TellState(it.Record());
        }
    });
}

// ---- values

void ZTF_SetDataString(ZTField* field, const char* text)
{
    Do(field, [&](ZTField& it) {
        const Text data = FromUtf8(text);
        zte::EditingOf(it.Record()).setDataString(it.Record(), OrNull(text, data));
    });
}

int32_t ZTF_TrySetDataString(ZTField* field, const char* text)
{
    const Text data = FromUtf8(text);
    return field ? zte::TrySetDataString(field->Record(), OrNull(text, data)) : ZTR_DOES_NOT_FIT;
}

int32_t ZTF_GetDataString(const ZTField* field, char* buffer, int32_t size)
{
    return Ended([&] {
        Text text;
        return field && zte::CanonicalText(field->Record(), text) ? WriteUtf8(text, buffer, size)
                                                                  : WriteNone(buffer, size);
    });
}

int32_t ZTF_ReadData(const ZTField* field, char* buffer, int32_t size)
{
    return WriteData(field, buffer, size,
                     [](const zte::EditInstance& edit) { return zte::EditingOf(edit).getData(edit); });
}

int32_t ZTF_ReadText(const ZTField* field, const char* text, char* buffer, int32_t size)
{
    return WriteData(field, buffer, size,
                     [&](const zte::EditInstance& edit) { return zte::UnformatData(edit, FromUtf8(text).c_str()); });
}

int32_t ZTF_GetState(const ZTField* field)
{
    return Asked(field, kNone, [](const ZTField& it) { return zte::StateOf(it.Record()); });
}

// ---- the user

void ZTF_Press(ZTField* field, int32_t key, int32_t held)
{
    Do(field, [&](ZTField& it) { it.Press(key, held); });
}

void ZTF_KeyDown(ZTField* field, int32_t key, int32_t held)
{
    Do(field, [&](ZTField& it) { it.KeyDown(key, held); });
}

void ZTF_KeyUp(ZTField* field, int32_t key, int32_t held)
{
    Do(field, [&](ZTField& it) { it.KeyUp(key, held); });
}

void ZTF_Character(ZTField* field, uint32_t codePoint)
{
    Do(field, [&](ZTField& it) { it.Control().Type(zte::ValidCodePoint(codePoint)); });
}

void ZTF_Type(ZTField* field, const char* text)
{
    Do(field, [&](ZTField& it) {
        for (const zte::Char character : FromUtf8(text))
            it.Control().Type(character);
    });
}

void ZTF_SetClipboard(ZTField* field, const char* text)
{
    Do(field, [&](ZTField& it) { it.Edit().SetClipboard(text ? std::optional(FromUtf8(text)) : std::nullopt); });
}

int32_t ZTF_GetClipboard(const ZTField* field, char* buffer, int32_t size)
{
    return Ended([&] {
        const std::optional<Text> text = field ? field->Edit().ReadClipboard() : std::nullopt;
        return text ? WriteUtf8(*text, buffer, size) : WriteNone(buffer, size);
    });
}

void ZTF_Paste(ZTField* field)
{
    Do(field, [](ZTField& it) { it.Control().Paste(); });
}

void ZTF_Cut(ZTField* field)
{
    Do(field, [](ZTField& it) { it.Control().Cut(); });
}

void ZTF_Copy(ZTField* field)
{
    Do(field, [](ZTField& it) { it.Edit().Copy(); });
}

void ZTF_Clear(ZTField* field)
{
    Do(field, [](ZTField& it) { it.Control().Clear(); });
}

void ZTF_Undo(ZTField* field)
{
    Do(field, [](ZTField& it) { it.Control().Undo(); });
}

void ZTF_Redo(ZTField* field)
{
    Do(field, [](ZTField& it) { it.Control().Redo(); });
}

int32_t ZTF_CanUndo(const ZTField* field)
{
    return Asked(field, 0, [](const ZTField& it) { return it.CanUndo(); });
}

int32_t ZTF_CanRedo(const ZTField* field)
{
    return Asked(field, 0, [](const ZTField& it) { return it.Record().editor && it.Record().editor->CanRedo(); });
}

void ZTF_Click(ZTField* field, int32_t position, int32_t held)
{
    Do(field, [&](ZTField& it) { it.Click(position, held); });
}

void ZTF_DoubleClick(ZTField* field, int32_t position)
{
    Do(field, [&](ZTField& it) { it.Control().DoubleClick(position); });
}

void ZTF_Drag(ZTField* field, int32_t from, int32_t to)
{
    Do(field, [&](ZTField& it) { it.Control().Drag(from, to); });
}

void ZTF_Wheel(ZTField* field, int32_t notches)
{
    Do(field, [&](ZTField& it) { it.Control().Wheel(std::clamp(notches, -kMostNotches, kMostNotches)); });
}

void ZTF_Step(ZTField* field, int32_t up)
{
    Do(field, [&](ZTField& it) { it.Control().Step(up != 0); });
}

void ZTF_Leave(ZTField* field)
{
    Do(field, [](ZTField& it) { it.Control().LoseFocus(); });
}

void ZTF_LetTimePass(ZTField* field, uint32_t milliseconds)
{
    Do(field, [&](ZTField& it) { it.Edit().LetTimePass(milliseconds); });
}

// ---- what is shown

int32_t ZTF_GetText(const ZTField* field, char* buffer, int32_t size)
{
    return WriteOf(field, buffer, size, [](const ZTField& it) { return it.Edit().Shown(); });
}

void ZTF_SetText(ZTField* field, const char* text)
{
    Do(field, [&](ZTField& it) { it.Control().SetText(FromUtf8(text).c_str()); });
}

void ZTF_ReplaceSelection(ZTField* field, const char* text)
{
    Do(field, [&](ZTField& it) { it.Control().Replace(FromUtf8(text).c_str(), false); });
}

void ZTF_GetSelection(const ZTField* field, int32_t* anchor, int32_t* caret)
{
    if (anchor)
        *anchor = field ? field->Edit().Anchor() : 0;
    if (caret)
        *caret = field ? field->Edit().Caret() : 0;
}

void ZTF_Select(ZTField* field, int32_t anchor, int32_t caret)
{
    Do(field, [&](ZTField& it) {
        const int32_t end = zte::Length(it.Edit().Shown());
        it.Control().Select(anchor < 0 ? end : anchor, caret < 0 ? end : caret);
    });
}

int32_t ZTF_IsModified(const ZTField* field)
{
    return field && field->Edit().IsModified() ? 1 : 0;
}

void ZTF_SetModified(ZTField* field, int32_t on)
{
    Do(field, [&](ZTField& it) { it.Edit().SetModifiedFlag(on != 0); });
}

int32_t ZTF_CountPositions(const ZTField* field)
{
    return Asked(field, 0, [](const ZTField& it) { return zte::PositionsShown(it.Record()).size(); });
}

int32_t ZTF_GetPosition(const ZTField* field, int32_t index, ZTFieldPosition* position)
{
    ZTFieldPosition found{};
    const int32_t isThere = Asked(field, 0, [&](const ZTField& it) {
        const std::vector<ZTFieldPosition> shown = zte::PositionsShown(it.Record());
        const bool isIn = index >= 0 && static_cast<size_t>(index) < shown.size();
        found = isIn ? shown[static_cast<size_t>(index)] : ZTFieldPosition{};
        return isIn;
    });
    if (position)
        *position = found;
    return isThere;
}

// ---- without a field

int32_t ZTF_CheckMask(const ZTFieldSettings* settings, const char* mask, int32_t dataType, int32_t* offset)
{
    return Judge(zte::JudgeMask, settings, mask, dataType, offset);
}

int32_t ZTF_CheckModernMask(const ZTFieldSettings* settings, const char* mask, int32_t dataType, int32_t* offset)
{
    return Judge(zte::modern::JudgeMask, settings, mask, dataType, offset);
}

int32_t ZTF_Format(const ZTFieldSettings* settings, const char* mask, int32_t dataType, const char* data, char* buffer,
                   int32_t size)
{
    return Ended([&] {
        ZTField field(Asking(settings, mask, dataType));
        return ZTF_TrySetDataString(&field, data) == 0 ? ZTF_GetText(&field, buffer, size) : WriteNone(buffer, size);
    });
}

int32_t ZTF_Parse(const ZTFieldSettings* settings, const char* mask, int32_t dataType, const char* text, char* buffer,
                  int32_t size, int32_t* reason)
{
    return Ended([&] {
        ZTField field(Asking(settings, mask, dataType));
        const int32_t refused = ZTF_TrySetDataString(&field, text);
        const int32_t state = ZTF_GetState(&field);
        const bool isValue = refused == 0 && (state == ZTS_COMPLETE || state == ZTS_EMPTY);
        if (reason)
            *reason = isValue || refused ? refused : ZTR_DOES_NOT_FIT;  // a part of a value is none
        return isValue ? ZTF_GetDataString(&field, buffer, size) : WriteNone(buffer, size);
    });
}
