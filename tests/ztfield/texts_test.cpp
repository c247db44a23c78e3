// Texts at the border: UTF-8 read with care, written whole or cut at a character.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/ztfield/field.h"

namespace zttest::fields {
namespace {

// What a field without a mask shows of bytes that are handed in.
std::string Read(const char* bytes)
{
    const Field field("", DT_STRING, 0);
    ZTF_SetText(field.get(), bytes);
    return field.Text();
}

TEST(Texts, OfAllLengthsOfACharacterAreReadAndWritten)
{
    for (const char* text : {"", "a", "\u00e9", "\u20ac", "\U0001F600", "a\u00e9\u20ac\U0001F600z", "\uFFFD", "\U0010FFFF"})
        EXPECT_EQ(Read(text), text);
}

struct BadBytes {
    const char* bytes;
    const char* read;
};

TEST(Texts, BytesThatAreNoCharacterStandForThemselvesAsTheReplacement)
{
    const BadBytes rows[] = {
        {"a\x80z",             "a\uFFFDz"},              // nothing in front of it
        {"\xC3",               "\uFFFD"},                // the text ends within it
        {"\xE2\x82",           "\uFFFD\uFFFD"},
        {"\xF0\x9F\x98",       "\uFFFD\uFFFD\uFFFD"},
        {"\xC3z",              "\uFFFDz"},
        {"\xC0\x80",           "\uFFFD\uFFFD"},          // longer than needed
        {"\xE0\x80\x80",       "\uFFFD\uFFFD\uFFFD"},
        {"\xED\xA0\x80",       "\uFFFD\uFFFD\uFFFD"},    // a surrogate
        {"\xF4\x90\x80\x80",   "\uFFFD\uFFFD\uFFFD\uFFFD"},  // beyond the last
        {"\xFF\xFE",           "\uFFFD\uFFFD"},
    };
    for (const BadBytes& row : rows)
        EXPECT_EQ(Read(row.bytes), row.read);
}

TEST(Texts, AreCutBetweenCharactersAndAlwaysEnded)
{
    const Field field("", DT_STRING, 0);
    ZTF_SetText(field.get(), "a\u00e9\u20acb");
    const char* const cut[] = {"", "", "a", "a", "a\u00e9", "a\u00e9", "a\u00e9", "a\u00e9\u20ac", "a\u00e9\u20acb", "a\u00e9\u20acb"};
    for (int32_t size = 0; size < 10; ++size) {
        char buffer[12];
        std::memset(buffer, 'x', sizeof buffer);
        EXPECT_EQ(ZTF_GetText(field.get(), buffer, size), 7) << size;
        if (size > 0) {
            EXPECT_STREQ(buffer, cut[size]) << size;
        }
        EXPECT_EQ(buffer[size], 'x') << "written behind the buffer of " << size;
    }
}

TEST(Texts, OfNoSizeOrNoBufferAreMeasured)
{
    const Field field("", DT_STRING, 0);
    ZTF_SetText(field.get(), "abc");
    char untouched = 'x';
    EXPECT_EQ(ZTF_GetText(field.get(), nullptr, 100), 3);
    EXPECT_EQ(ZTF_GetText(field.get(), &untouched, 0), 3);
    EXPECT_EQ(ZTF_GetText(field.get(), &untouched, -1), 3);
    EXPECT_EQ(untouched, 'x');
}

TEST(Characters, TypedAsNumbersThatAreNoneAreTheReplacement)
{
    for (const uint32_t code : {0xD800u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu}) {
        const Field field("X", DT_STRING);
        ZTF_Character(field.get(), code);
        EXPECT_EQ(field.Text(), "\uFFFD") << code;
    }
}

TEST(Nothing, IsDoneToNoField)
{
    char buffer[8] = "before";
    int32_t anchor = 7, caret = 7;
    ZTFieldPosition position = {1, 1, 1, 1};
    EXPECT_EQ(ZTF_GetText(nullptr, buffer, sizeof buffer), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(ZTF_GetDataString(nullptr, buffer, sizeof buffer), -1);
    EXPECT_EQ(ZTF_ReadData(nullptr, buffer, sizeof buffer), -1);
    EXPECT_EQ(ZTF_ReadText(nullptr, "1", buffer, sizeof buffer), -1);
    EXPECT_EQ(ZTF_GetClipboard(nullptr, buffer, sizeof buffer), -1);
    EXPECT_EQ(ZTF_GetMask(nullptr, buffer, sizeof buffer), 0);
    EXPECT_EQ(ZTF_GetDataType(nullptr), 0);
    EXPECT_EQ(ZTF_GetState(nullptr), -1);
    EXPECT_EQ(ZTF_SetMask(nullptr, "X", DT_STRING), 0);
    EXPECT_EQ(ZTF_SetModern(nullptr, 1), 0);
    EXPECT_EQ(ZTF_TrySetDataString(nullptr, "1"), ZTR_DOES_NOT_FIT);
    EXPECT_EQ(ZTF_CanUndo(nullptr), 0);
    EXPECT_EQ(ZTF_CanRedo(nullptr), 0);
    EXPECT_EQ(ZTF_IsModified(nullptr), 0);
    EXPECT_EQ(ZTF_CountPositions(nullptr), 0);
    EXPECT_EQ(ZTF_GetPosition(nullptr, 0, &position), 0);
    EXPECT_EQ(position.kind + position.escaped + position.part, 0);
    ZTF_GetSelection(nullptr, &anchor, &caret);
    EXPECT_EQ(anchor + caret, 0);
    EXPECT_EQ(ZTF_SetSetting(nullptr, ZTF_DECIMAL, ","), 0);
    void (*const acts[])(ZTField*) = {ZTF_Paste, ZTF_Cut, ZTF_Copy, ZTF_Clear, ZTF_Undo, ZTF_Redo, ZTF_Leave, ZTF_Destroy};
    for (const auto act : acts)
        act(nullptr);
    ZTF_DestroySettings(nullptr);
    ZTF_UseSettings(nullptr, nullptr);
    ZTF_Type(nullptr, "1");
    ZTF_Press(nullptr, ZTF_KEY_LEFT, 0);
    ZTF_Click(nullptr, 0, 0);
    ZTF_Drag(nullptr, 0, 1);
    ZTF_Select(nullptr, 0, 1);
    ZTF_SetText(nullptr, "1");
    ZTF_SetClipboard(nullptr, "1");
    ZTF_SetSpin(nullptr, 1, "", "", 0);
}

TEST(Null, IsNoTextForAField)
{
    const Field field("MM/DD/YYYY", DT_DATE);
    ZTF_Type(field.get(), nullptr);
    ZTF_SetDataString(field.get(), "2026-07-04");
    ZTF_SetDataString(field.get(), nullptr);
    EXPECT_EQ(field.Text(), "  /  /    ");
    EXPECT_EQ(ZTF_TrySetDataString(field.get(), nullptr), 0);
    EXPECT_EQ(ZTF_SetMask(field.get(), nullptr, DT_DATE), 0);
    EXPECT_EQ(ZTF_SetMask(field.get(), nullptr, DT_STRING), 0);
    EXPECT_EQ(ZTF_GetDataType(field.get()), DT_STRING);
}

TEST(NoSetup, IsAStringWithoutAMask)
{
    ZTField* field = ZTF_Create(nullptr);
    ZTF_Type(field, "\u0436");
    EXPECT_EQ(TextOf([&](char* buffer, int32_t size) { return ZTF_GetText(field, buffer, size); }), "\u0436");
    EXPECT_EQ(ZTF_GetDataType(field), DT_STRING);
    ZTF_Destroy(field);
}

TEST(Version, IsThatOfTheHeader)
{
    EXPECT_EQ(ZTF_Version(), static_cast<uint32_t>(ZTFIELD_VERSION));
}

}  // namespace
}  // namespace zttest::fields
