// Whoever types a number gets that number: masks of all kinds, settings of all kinds, numbers that fit, from every place where
// typing may begin, key by key. What has to come out is told by tests/support/number_law, which knows nothing of the engine.
#include "tests/support/number_law.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>

#include "engine/format/data.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "tests/support/values.h"

namespace zttest {
namespace {

zte::Settings EngineSettings(const NumberSettings& from)
{
    zte::Settings settings = zte::StandardSettings();
    settings.decimalChar = from.DecimalChar();
    settings.thousandChar = from.ThousandChar();
    zte::Assign(settings.currencySymbol, from.symbol);
    settings.currencyPosition = from.position;
    settings.currencyDigits = from.digits;
    return settings;
}

DateTimeValue NoClock()
{
    return {};
}

// A control in memory with a mask set under some settings and used under others.
class Field final : public LawField, private Keyboard {
public:
    Field(const NumberMask& mask, const NumberSettings& setUnder, const NumberSettings& usedUnder)
        : settings_(EngineSettings(setUnder)), control_(Setup(mask), settings_, NoClock)
    {
        accepted_ = mask.Mask().empty() || zte::SetMask(control_.Record(), mask.Mask().c_str(), mask.Type()) != 0;
        settings_ = EngineSettings(usedUnder);
        ownBlocks_ = control_.BlockCount();
    }
    bool IsAccepted() const { return accepted_; }
    bool HasItsOwnBlocksOnly() const { return control_.BlockCount() == ownBlocks_; }

    void ShowValue(const std::string& canonical) override { zte::SetDataString(control_.Record(), canonical.c_str()); }
    void ShowBlank() override { zte::SetData(control_.Record(), nullptr); }
    void Select(int start, int end) override { control_.Edit().SetSelection(start, end); }
    std::string Text() override { return control_.Edit().Shown(); }
    int CaretStart() override { return control_.Edit().ReadSelection().start; }
    int CaretEnd() override { return control_.Edit().ReadSelection().end; }
    int Beeps() override { return control_.Edit().Count(zte::FieldEvent::Beep); }
    std::string Read() override
    {
        void* block = zte::GetData(control_.Record());
        const std::string read = block ? static_cast<const char*>(block) : kNullResult;
        if (block)
            zte::services::Free(control_.Record().heap, block);
        return read;
    }
    Keyboard& Keys() override { return *this; }

private:
    static zte::ControlSetup Setup(const NumberMask& mask)
    {
        zte::ControlSetup setup;
        setup.mask = mask.Mask().c_str();
        setup.dataType = mask.Type();
        return setup;
    }

    void Hold(int key, bool down) override
    {
        constexpr int kControlKey = 0x11;
        if (key == zte::KEY_SHIFT)
            control_.Edit().HoldShift(down);
        else if (key == kControlKey)
            control_.Edit().HoldControl(down);
        else if (key == zte::KEY_RIGHT)
            control_.Edit().HoldRight(down);
    }
    void SendKeyDown(int key) override { control_.KeyDown(key); }
    void SendKeyUp(int key) override { control_.KeyUp(key); }
    void SendChar(char character, int) override { control_.Type(static_cast<unsigned char>(character)); }

    zte::Settings settings_;
    zte::MemoryControl control_;
    bool accepted_ = false;
    uint32_t ownBlocks_ = 0;
};

uint32_t Number(const char* variable, uint32_t otherwise)
{
    const char* text = std::getenv(variable);
    return text ? static_cast<uint32_t>(std::strtoul(text, nullptr, 10)) : otherwise;
}

// Of all combinations one in so many is played, the same ones in every run; 1 plays all.
uint32_t Every(uint32_t otherwise)
{
    const uint32_t every = Number("ZT_LAW_EVERY", otherwise);
    return every > 0 ? every : 1;
}

// What has been played, and the rows that failed: a few of each mask are told.
class Tally {
public:
    ~Tally()
    {
        std::cout << "played " << played_ << " rows of " << pairs_ << " masks under settings, " << refused_
                  << " refused, " << failed_ << " rows failed\n";
        if (failed_ == 0)
            return;
        std::string masks;
        for (const auto& row : failedBy_)
            masks += "\n    " + std::to_string(row.second) + "  " + row.first;
        ADD_FAILURE() << failed_ << " of " << played_ << " rows:" << masks;
    }
    void CountPair() { ++pairs_; }
    void CountRefused() { ++refused_; }
    void CountRow() { ++played_; }
    void Fail(const NumberMask& mask, const std::string& what)
    {
        ++failed_;
        if (++failedBy_['"' + mask.Mask() + '"'] <= Number("ZT_LAW_TELL", 2))
            ADD_FAILURE() << what;
    }
    uint64_t Played() const { return played_; }
    uint32_t Pairs() const { return pairs_; }

private:
    uint64_t played_ = 0;
    uint64_t failed_ = 0;
    uint32_t pairs_ = 0;
    uint32_t refused_ = 0;
    std::map<std::string, uint64_t> failedBy_;
};

// One mask under settings, and the rows of it.
class Subject {
public:
    Subject(const char* mask, int32_t type, const NumberSettings& setUnder, const NumberSettings& usedUnder,
            Tally& tally)
        : mask_(mask, type, Reading(setUnder, usedUnder)),
          setUnder_(setUnder),
          usedUnder_(usedUnder),
          tally_(tally),
          field_(MakeField())
    {
    }
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    ~Subject()
    {
        if (!field_->HasItsOwnBlocksOnly())
            tally_.Fail(mask_, "blocks were left behind in the heap of \"" + mask_.Mask() + '"');
    }
    bool IsAccepted() const { return field_->IsAccepted(); }
    const NumberMask& Mask() const { return mask_; }

    void Play(const LawRow& row)
    {
        tally_.CountRow();
        const std::string wrong = PlayLaw(*field_, row);
        if (wrong.empty())
            return;
        const std::string again = PlayLaw(*MakeField(), row);
        tally_.Fail(mask_, Where() + Describe(row) + "\n    " + wrong +
                               (again == wrong ? "" : "\n    (a new field behaves otherwise)"));
    }

    void CompareDisplay(const PlainNumber& number)
    {
        const std::string wrong = zttest::CompareDisplay(*field_, mask_, number);
        if (!wrong.empty())
            tally_.Fail(mask_, wrong);
    }

private:
    // A mask keeps its literals; separators are those of the moment.
    static NumberSettings Reading(const NumberSettings& setUnder, const NumberSettings& usedUnder)
    {
        NumberSettings reading = setUnder;
        reading.name = usedUnder.name;
        reading.decimal = usedUnder.decimal;
        reading.thousand = usedUnder.thousand;
        return reading;
    }
    std::unique_ptr<Field> MakeField() const { return std::make_unique<Field>(mask_, setUnder_, usedUnder_); }
    std::string Where() const { return &setUnder_ == &usedUnder_ ? "" : "set under " + setUnder_.name + ": "; }

    NumberMask mask_;
    const NumberSettings& setUnder_;
    const NumberSettings& usedUnder_;
    Tally& tally_;
    std::unique_ptr<Field> field_;
};

// Calls play with each mask that its settings accept, and with those that they refuse as a form brings them that has set them
// under the settings of the United States.
template <class Play>
void ForEachSubject(const std::vector<const char*>& masks, const std::vector<NumberSettings>& settings, Tally& tally,
                    Play play)
{
    uint32_t index = 0;
    for (const NumberSettings& used : settings) {
        for (const char* mask : masks) {
            for (const int32_t type : {DT_NUMBER, DT_DECIMAL}) {
                Subject subject(mask, type, used, used, tally);
                ++index;
                if (subject.IsAccepted()) {
                    tally.CountPair();
                    play(subject, index);
                    continue;
                }
                tally.CountRefused();
                Subject foreign(mask, type, AllNumberSettings()[0], used, tally);
                if (foreign.IsAccepted())
                    play(foreign, index);
            }
        }
    }
}

// Calls play with each plain text that the subject takes and each start, one in so many of them.
template <class Play>
void ForEachRow(Subject& subject, uint32_t index, uint32_t every, Play play)
{
    uint32_t value = 0;
    for (const std::string& plain : PlainTextsFor(subject.Mask())) {
        ++value;
        for (uint32_t start = 0; start < static_cast<uint32_t>(LawStart::Count); ++start) {
            const uint32_t choice = Mix(index, value, start);
            if (choice % every == 0)
                play(plain, static_cast<LawStart>(start), choice / every);
        }
    }
}

constexpr uint32_t kPairsAtLeast = 1000;

TEST(NumberLaw, PlainTextsGiveTheirNumbers)
{
    Tally tally;
    const uint32_t every = Every(32);
    ForEachSubject(kNumberMasks, AllNumberSettings(), tally, [&](Subject& subject, uint32_t index) {
        ForEachRow(subject, index, every, [&](const std::string& plain, LawStart start, uint32_t choice) {
            subject.Play(PlainRow(subject.Mask(), start, plain, choice));
        });
    });
    EXPECT_GT(tally.Pairs(), kPairsAtLeast);
    EXPECT_GT(tally.Played() * every, 1000000u);
}

TEST(NumberLaw, WhatTheFieldWillShowMayBeTypedAsItIsRead)
{
    Tally tally;
    ForEachSubject(kNumberMasks, AllNumberSettings(), tally, [&](Subject& subject, uint32_t index) {
        ForEachRow(subject, index, Every(64), [&](const std::string& plain, LawStart start, uint32_t choice) {
            LawRow row{};
            if (ShownRow(subject.Mask(), start, plain, choice, row))
                subject.Play(row);
        });
    });
    EXPECT_GT(tally.Pairs(), kPairsAtLeast);
}

TEST(NumberLaw, KeysTypedInErrorChangeNothing)
{
    Tally tally;
    ForEachSubject(kNumberMasks, AllNumberSettings(), tally, [&](Subject& subject, uint32_t index) {
        ForEachRow(subject, index, Every(64), [&](const std::string& plain, LawStart start, uint32_t choice) {
            subject.Play(WithWrongKeys(PlainRow(subject.Mask(), start, plain, choice), choice));
        });
    });
    EXPECT_GT(tally.Pairs(), kPairsAtLeast);
}

// A form that is open while its user chooses other settings: the symbol and the fraction stay, the separators are the new ones.
TEST(NumberLaw, MasksOfMoneyOutliveTheirSettings)
{
    Tally tally;
    uint32_t index = 0;
    for (const NumberSettings& set : AllNumberSettings()) {
        for (const NumberSettings& used : AllNumberSettings()) {
            Subject subject("[currency(9)]", DT_NUMBER, set, used, tally);
            ASSERT_TRUE(subject.IsAccepted());
            tally.CountPair();
            ForEachRow(subject, ++index, Every(64), [&](const std::string& plain, LawStart start, uint32_t choice) {
                subject.Play(PlainRow(subject.Mask(), start, plain, choice));
            });
        }
    }
    EXPECT_EQ(tally.Pairs(), AllNumberSettings().size() * AllNumberSettings().size());
}

// The reading of masks in tests/support/number_law and the engine's own display are the same.
TEST(NumberLaw, TheFieldShowsItsValuesAlike)
{
    Tally tally;
    ForEachSubject(kNumberMasks, AllNumberSettings(), tally, [&](Subject& subject, uint32_t) {
        for (const std::string& plain : PlainTextsFor(subject.Mask())) {
            PlainNumber number;
            ASSERT_TRUE(ReadPlain(plain, '.', number)) << plain;
            subject.CompareDisplay(number);
        }
    });
}

TEST(NumberLaw, MostMasksHaveSixtyNumbersToTry)
{
    uint32_t enough = 0;
    for (const char* mask : kNumberMasks) {
        const size_t count = PlainTextsFor(NumberMask(mask, DT_DECIMAL, AllNumberSettings()[0])).size();
        EXPECT_GE(count, 10u) << mask;
        enough += count >= 60;
    }
    EXPECT_GE(enough, 40u);
    EXPECT_GE(kNumberMasks.size(), 40u);
    EXPECT_GE(AllNumberSettings().size(), 12u);
}

// ---- The money of all countries -------------------------------------------------------------------------------------

const std::vector<const char*> kCurrencyMasks = {"[currency(9)]", "[currency(5)]"};

TEST(Currencies, EveryAmountIsTypedShownAndReadBack)
{
    const std::vector<NumberSettings> countries = CurrencyNumberSettings();
    ASSERT_GE(countries.size(), 60u);
    Tally tally;
    ForEachSubject(kCurrencyMasks, countries, tally, [&](Subject& subject, uint32_t index) {
        ForEachRow(subject, index, Every(32), [&](const std::string& plain, LawStart start, uint32_t choice) {
            subject.Play(PlainRow(subject.Mask(), start, plain, choice));
            LawRow row{};
            if (ShownRow(subject.Mask(), start, plain, choice, row))
                subject.Play(row);
        });
    });
    EXPECT_EQ(tally.Pairs(), countries.size() * kCurrencyMasks.size() * 2);
}

TEST(Currencies, EveryAmountIsShown)
{
    const std::vector<NumberSettings> countries = CurrencyNumberSettings();
    Tally tally;
    ForEachSubject(kCurrencyMasks, countries, tally, [&](Subject& subject, uint32_t) {
        subject.CompareDisplay({});  // nothing at all: 0 where there is no fraction
        for (const char* amount : {"5", "-5", "123", "5.5", "-12.34", "1234", "1234.56", "-1234567"}) {
            PlainNumber number;
            if (subject.Mask().Takes(amount) && ReadPlain(amount, '.', number))
                subject.CompareDisplay(number);
        }
    });
}

TEST(Currencies, TheBlankShowsTheFractionOrElseOneZero)
{
    for (const NumberSettings& settings : CurrencyNumberSettings()) {
        const NumberMask mask("[currency(9)]", DT_NUMBER, settings);
        Field field(mask, settings, settings);
        field.ShowBlank();
        const std::string zero =
            settings.digits == 0 ? "0" : settings.decimal + std::string(static_cast<size_t>(settings.digits), '0');
        const bool before = settings.position % 2 == 0;
        EXPECT_EQ(field.Text(), before ? settings.symbol + zero : zero + settings.symbol) << settings.name;
    }
}

}  // namespace
}  // namespace zttest
