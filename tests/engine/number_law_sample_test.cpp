// Whoever types a number gets that number: a sample of the rows that tests/properties plays by the hundred thousand, on live
// windows and on fields in memory alike, and the money of all countries.
#include "tests/support/engine_test.h"
#include "tests/support/number_law.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class SampledField final : public LawField {
public:
    explicit SampledField(MaskedEdit& edit) : edit_(edit) {}
    void ShowValue(const std::string& canonical) override { edit_.SetDataString(canonical); }
    void ShowBlank() override { edit_.SetData(nullptr); }
    void Select(int start, int end) override { edit_.Select(start, end); }
    std::string Text() override { return edit_.Text(); }
    int CaretStart() override { return edit_.CaretStart(); }
    int CaretEnd() override { return edit_.CaretEnd(); }
    int Beeps() override { return edit_.Beeps(); }
    std::string Read() override { return edit_.Read(); }
    Keyboard& Keys() override { return edit_.Keys(); }

private:
    MaskedEdit& edit_;
};

enum class Typing { Plain, Shown, InError, Count };

// So that other settings play other rows.
uint32_t NumberOf(const std::string& name)
{
    uint32_t number = 0;
    for (const char c : name)
        number = Mix(number, static_cast<unsigned char>(c));
    return number;
}

// The tests of one set of settings.
class SampledLaw : public EditTest, public OfRow<NumberSettings> {
protected:
    // A control with the mask, or none where the settings refuse it.
    bool MakeAccepted(const char* mask, int32_t type)
    {
        Config config;
        config.mask = mask;
        config.type = type;
        Make(config);
        return *mask == '\0' || control_->SetMask(mask, type) != 0;
    }

    void Play(const LawRow& row)
    {
        ++played_;
        SampledField field(*control_);
        const std::string wrong = PlayLaw(field, row);
        EXPECT_TRUE(wrong.empty()) << Describe(row) << "\n    " << wrong;
    }

    // One row in so many, the same ones in every run.
    void PlaySample(const NumberMask& mask, uint32_t index, uint32_t every)
    {
        bool made = false;
        uint32_t value = 0;
        for (const std::string& plain : PlainTextsFor(mask)) {
            const uint32_t choice = Mix(++value, index, NumberOf(GetParam().name));
            if (choice % every != 0)
                continue;
            if (!made && !MakeAccepted(mask.Mask().c_str(), mask.Type()))
                return;
            made = true;
            PlayOne(mask, plain, choice / every);
        }
    }

    void PlayOne(const NumberMask& mask, const std::string& plain, uint32_t choice)
    {
        const auto start = static_cast<LawStart>(Mix(choice, 1) % static_cast<uint32_t>(LawStart::Count));
        const auto typing = static_cast<Typing>(Mix(choice, 2) % static_cast<uint32_t>(Typing::Count));
        LawRow row{};
        if (typing == Typing::Shown && ShownRow(mask, start, plain, choice, row))
            return Play(row);
        row = PlainRow(mask, start, plain, choice);
        Play(typing == Typing::InError ? WithWrongKeys(row, choice) : row);
    }

    uint32_t played_ = 0;
};

class NumberLawSample : public SampledLaw {};

ROW_TEST(NumberLawSample, WhoeverTypesANumberGetsIt)
{
    const Regional regional(ProfileOf(GetParam()));
    uint32_t index = 0;
    for (const char* mask : kNumberMasks)
        for (const int32_t type : {DT_NUMBER, DT_DECIMAL})
            PlaySample(NumberMask(mask, type, GetParam()), ++index, 120);
    EXPECT_GE(played_, 10u);
}

TEST_ROWS(Settings, NumberLawSample, AllNumberSettings());

class CurrencySample : public SampledLaw {};

ROW_TEST(CurrencySample, AnAmountIsTypedShownAndReadBack)
{
    const Regional regional(ProfileOf(GetParam()));
    const NumberMask mask("[currency(9)]", DT_NUMBER, GetParam());
    ASSERT_TRUE(MakeAccepted("[currency(9)]", DT_NUMBER));
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), mask.Show({}));
    Play(PlainRow(mask, LawStart::Blank, "1234", 0));
    Play(PlainRow(mask, LawStart::AllSelected, mask.HasPoint() ? "-12.5" : "-12", 1));
    LawRow row{};
    if (ShownRow(mask, LawStart::AllSelected, "98765", 0, row))
        Play(row);
}

TEST_ROWS(Countries, CurrencySample, CurrencyNumberSettings());

}  // namespace
}  // namespace zttest
