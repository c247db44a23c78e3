// The fixtures of tests that run on a live window and on a field in memory alike.
#include "tests/support/engine_test.h"

#include "tests/support/marked_text.h"

namespace zttest {
namespace {

char DecimalCharInForce()
{
    const std::string value = RegionalValue("sDecimal");
    return value.empty() ? '.' : value[0];
}

Config ConfigOf(const char* mask, int32_t type, uint32_t options)
{
    Config config;
    config.mask = mask;
    config.type = type;
    config.options = options;
    return config;
}

std::string WithoutSymbol(std::string shown)
{
    const std::string symbol = RegionalValue("sCurrency");
    const size_t at = symbol.empty() ? std::string::npos : shown.find(symbol);
    return at == std::string::npos ? shown : shown.erase(at, symbol.size());
}

// What is handed in so that a text is shown.
std::string DataOf(const MaskedEdit& control, const std::string& shown)
{
    if (IsNumber(control.DataType()))
        return DataOfNumberShown(WithoutSymbol(shown), DecimalCharInForce());
    if (control.DataType() != DT_STRING)
        return shown;
    const std::string data = control.Unformat(shown.c_str());
    return data == kNullResult ? "" : data;
}

}  // namespace

void EditTest::Make(const Config& config)
{
    control_.reset();
    control_ = std::make_unique<MaskedEdit>(config);
    control_->Forget();
}

void EditTest::Given(const char* mask, int32_t type, const std::string& shown, uint32_t options)
{
    Make(ConfigOf(mask, type, options));
    const Marked marked = Unmark(shown);
    const std::string data = DataOf(*control_, marked.text);
    control_->SetDataString(data);
    ASSERT_EQ(Text(), marked.text) << "no value is shown so; data " << data;
    if (marked.start >= 0)
        control_->Select(marked.start, marked.end);
    control_->Forget();
}

void EditTest::GivenText(const char* mask, int32_t type, const std::string& shown, uint32_t options)
{
    Make(ConfigOf(mask, type, options));
    Show(shown);
}

void EditTest::Show(const std::string& marked)
{
    const Marked text = Unmark(marked);
    control_->SetText(text.text);
    ASSERT_EQ(Text(), text.text);
    if (text.start >= 0)
        control_->Select(text.start, text.end);
    control_->Forget();
}

void EditTest::Backspace(int times)
{
    for (int i = 0; i < times; ++i)
        Play("{Back}");
}

void EditTest::Delete(int times)
{
    for (int i = 0; i < times; ++i)
        Play("{Del}");
}

std::string EditTest::Value() const
{
    const std::string value = control_->Read();
    return value == kNullResult ? "" : value;
}

void KeyTable::Check(const KeyCase& row)
{
    const std::string given = row.given;
    const std::string outside = "text:";
    if (given.compare(0, outside.size(), outside) == 0)
        GivenText(row.mask, row.type, given.substr(outside.size()));
    else
        Given(row.mask, row.type, given);
    if (HasFatalFailure())
        return;
    Play(row.keys);
    EXPECT_EQ(Shown(), row.shown);
    EXPECT_EQ(Beeps(), row.beeps);
}

void ValueTest::Install(const char* mask, int32_t type, uint32_t options, const char* codes)
{
    Config config = ConfigOf(mask, type, options);
    config.codes = codes;
    Make(config);
}

std::string ValueTest::ShownFor(const std::string& data)
{
    control_->SetDataString(data);
    return Text();
}

void SpinTest::MakeSpin(const char* mask, int32_t type, const char* range, uint32_t increment, const char* data)
{
    Config config = ConfigOf(mask, type, ZTEO_SPIN);
    config.range = range;
    config.increment = increment;
    config.data = data;
    config.width = 150;
    Make(config);
}

void SpinTest::MakeCodeTable(const char* mask, int32_t type, const char* codes, uint32_t style)
{
    MakeSpin(mask, type, nullptr, 1, nullptr);
    SetSpin(1, nullptr, codes, style);
}

void SpinTest::SetSpin(uint32_t increment, const char* range, const char* codes, uint32_t style)
{
    control_->SetSpin(increment, range, codes, style);
    control_->AcceptBlocks();
}

void SpinTest::Step(Arrow arrow)
{
    control_->Forget();
    Play(arrow == Arrow::Up ? "{Up}" : "{Down}");
}

}  // namespace zttest
