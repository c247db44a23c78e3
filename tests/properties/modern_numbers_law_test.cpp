// What is typed into a modern number is what is read: the plain text of a value and the text that the field will show, key by key, from
// every place where typing may begin. What has to come out is told by tests/support/number_law, which knows nothing of the engine.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/modern_kind.h"
#include "tests/support/number_law.h"

namespace zttest::modern_numbers {
namespace {

constexpr size_t kDoubleDigits = 15;
constexpr size_t kDecimalDigits = 28;

zte::Settings EngineSettings(const NumberSettings& from, bool separators)
{
    zte::Settings settings = zte::StandardSettings();
    if (separators) {
        settings.decimalChar = from.DecimalChar();
        settings.thousandChar = from.ThousandChar();
    }
    zte::Assign(settings.currencySymbol, from.symbol);
    settings.currencyPosition = from.position;
    settings.currencyDigits = from.digits;
    return settings;
}

zte::ControlSetup SetupOf(const NumberMask& mask)
{
    zte::ControlSetup setup;
    setup.mask = mask.Mask().empty() ? nullptr : mask.Mask().c_str();
    setup.dataType = mask.Type();
    return setup;
}

// A mask's separators are placeholders under every settings: it is set under one pair of them and used under another.
class Subject : public ModernContent {
public:
    explicit Subject(const NumberMask& mask)
        : ModernContent(SetupOf(mask), EngineSettings(mask.Settings(), false)), mask_(mask)
    {
        Regional() = EngineSettings(mask.Settings(), true);
    }
    const NumberMask& Mask() const { return mask_; }

private:
    const NumberMask& mask_;
};

// ---- the room, read off the mask

struct Places {
    size_t digits = 0;
    size_t commas = 0;
    size_t beforeComma = 0;
};

Places PlacesOf(const NumberMask& mask)
{
    const std::string& text = mask.Mask();
    if (text.empty())
        return {2, 1, 1};
    Places places;
    if (text[0] == '[') {
        places.digits = static_cast<size_t>(std::atoi(text.c_str() + 10) - mask.Settings().digits);
        places.commas = (places.digits - 1) / 3;
        places.beforeComma = places.digits - 3 * places.commas;
        return places;
    }
    for (size_t i = 0; i < text.size() && text[i] != '.'; i += text[i] == '~' ? 2 : 1) {
        places.digits += text[i] == '#' || text[i] == '0';
        if (text[i] == ',') {
            ++places.commas;
            places.beforeComma = places.digits;
        }
    }
    return places;
}

size_t RoomOf(const NumberMask& mask)
{
    const Places places = PlacesOf(mask);
    const bool groupedOnly = places.commas == 1 && places.beforeComma == 1;
    const size_t most = mask.Type() == DT_DECIMAL ? kDecimalDigits : kDoubleDigits;
    return groupedOnly ? std::max(most, places.digits) : places.digits;
}

// ---- the values

bool Fits(const NumberMask& mask, const std::string& plain)
{
    PlainNumber number;
    const size_t point = plain.find('.');
    const size_t fraction = point == std::string::npos ? 0 : plain.size() - point - 1;
    return ReadPlain(plain, '.', number) && plain.find_first_of("0123456789") != std::string::npos &&
           (point == std::string::npos || mask.HasPoint()) && fraction <= mask.FractionPlaces() &&
           number.integer.size() <= RoomOf(mask) &&
           (plain[0] != '-' || !(number.integer + number.fraction).empty());
}

std::string RandomDigits(uint32_t seed, size_t most)
{
    std::string digits;
    for (size_t i = most == 0 ? 0 : Mix(seed, 1) % (most + 1); i > 0; --i)
        digits += static_cast<char>('0' + Mix(seed, 2, static_cast<uint32_t>(i)) % 10);
    return digits;
}

std::string RandomPlain(const NumberMask& mask, uint32_t seed)
{
    constexpr const char* kSigns[] = {"", "", "", "-", "+"};
    std::string plain = kSigns[Mix(seed, 3) % 5] + RandomDigits(seed, std::min<size_t>(RoomOf(mask), 20));
    const std::string fraction = RandomDigits(seed + 1, mask.FractionPlaces());
    return fraction.empty() ? plain : plain + '.' + fraction;
}

// Of a mask under any settings.
std::vector<std::string> OfferedFor(const NumberMask& mask, uint32_t seed)
{
    constexpr uint32_t kRandom = 200;
    std::vector<std::string> offered = PlainTextsFor(mask);
    for (uint32_t i = 0; i < kRandom; ++i)
        offered.push_back(RandomPlain(mask, Mix(seed, i)));
    return offered;
}

std::vector<std::string> ValuesFor(const NumberMask& mask, const std::vector<std::string>& offered)
{
    std::vector<std::string> values;
    for (const std::string& plain : offered)
        if (Fits(mask, plain))
            values.push_back(plain);
    return values;
}

// ---- where typing begins

using Way = void (*)(Subject&);

void EraseAll(Subject& subject, zte::modern::Eraser eraser)
{
    for (int i = 0; i < 60 && subject.State() != ZTS_EMPTY; ++i)
        EXPECT_EQ(subject.Erase(eraser), 0);
    EXPECT_EQ(subject.State(), ZTS_EMPTY) << subject.Mask().Mask() << ": " << subject.Marks();
}

struct WayRow {
    const char* name;
    bool overAnother;
    Way go;
};

const WayRow kWays[] = {
    {"blank",                    false, [](Subject&) {}                                                          },
    {"blank, from the end",      false, [](Subject& subject) { subject.Move(zte::KEY_END); }                     },
    {"over all",                 true,  [](Subject& subject) { subject.SelectAll(); }                            },
    {"over another, from 0",     true,  [](Subject& subject) { subject.Select(0, 0); }                           },
    {"over another, from Home",  true,  [](Subject& subject) { subject.Move(zte::KEY_HOME); }                    },
    {"deleted",                  true,  [](Subject& subject) {
        subject.SelectAll();
        EXPECT_EQ(subject.Erase(zte::modern::Eraser::Forward), 0);
    }},
    {"backspaced",               true,  [](Subject& subject) {
        subject.Move(zte::KEY_END);
        EraseAll(subject, zte::modern::Eraser::Back);
    }},
    {"deleted from the front",   true,  [](Subject& subject) {
        subject.Move(zte::KEY_HOME);
        EraseAll(subject, zte::modern::Eraser::Forward);
    }},
    {"backspaced by words",      true,  [](Subject& subject) {
        subject.Move(zte::KEY_END);
        EraseAll(subject, zte::modern::Eraser::BackWord);
    }},
    {"deleted by words",         true,  [](Subject& subject) {
        subject.Move(zte::KEY_HOME);
        EraseAll(subject, zte::modern::Eraser::ForwardWord);
    }},
};

// ---- play

std::string WithPoint(std::string plain, char point)
{
    for (char& c : plain)
        c = c == '.' ? point : c;
    return plain;
}

std::string Describe(const Subject& subject, const WayRow& way, const std::string& other, const std::string& keys)
{
    return subject.Mask().Mask() + " under " + subject.Mask().Settings().name + ", " + way.name + " (" + other + "): " + keys;
}

void ExpectRead(Subject& subject, const PlainNumber& number, const std::string& what)
{
    PlainNumber read;
    const std::string canonical = subject.Canonical();
    ASSERT_TRUE(ReadPlain(canonical, '.', read)) << what << ": " << canonical;
    PlainNumber value;
    ASSERT_TRUE(ReadPlain(CanonicalText(number, subject.Mask().IsPercent()), '.', value));
    EXPECT_TRUE(read == value) << what << " is read as " << canonical;
    EXPECT_EQ(subject.State(), ZTS_COMPLETE) << what;
    const std::string shown = subject.Text();
    EXPECT_TRUE(subject.ShowCanonical(canonical)) << what;
    EXPECT_EQ(subject.Text(), shown) << what << ", read again from " << canonical;
}

void PlayKeys(Subject& subject, const WayRow& way, const std::string& other, const std::string& keys,
              const std::string& shown, const PlainNumber& number)
{
    subject.ShowCanonical(way.overAnother ? other : "");
    way.go(subject);
    const std::string what = Describe(subject, way, other, keys);
    ASSERT_EQ(subject.Type(keys), 0) << what << " is refused at " << subject.Marks();
    EXPECT_EQ(subject.Text(), shown) << what;
    ExpectRead(subject, number, what);
}

// The text that the field will show can be typed where its literals cannot be taken for the number.
bool MayTypeShown(const NumberMask& mask, const std::string& shown)
{
    const std::string literals = mask.Before() + mask.Behind();
    const bool isTold = !mask.LiteralsLookLikeNumbers() || mask.SymbolHoldsPoint();
    const bool begins = mask.Before().empty() || std::string(".,").find(mask.Before()[0]) == std::string::npos;
    return isTold && begins && shown.size() > literals.size() && shown.find_first_of("0123456789") != std::string::npos;
}

void PlayValue(Subject& subject, const WayRow& way, const std::string& other, const std::string& plain)
{
    PlainNumber number;
    ASSERT_TRUE(ReadPlain(plain, '.', number));
    const NumberMask& mask = subject.Mask();
    const size_t point = plain.find('.');
    const size_t typedFraction = point == std::string::npos ? 0 : plain.size() - point - 1;
    PlayKeys(subject, way, other, WithPoint(plain, mask.Settings().DecimalChar()), mask.Show(number, typedFraction), number);
    const std::string shown = mask.Show(number);
    if (MayTypeShown(mask, shown))
        PlayKeys(subject, way, other, shown, shown, number);
}

// Of so many rows one is played; ZT_MODERN_LAW_EVERY=1 plays all.
uint32_t Every(uint32_t otherwise)
{
    const char* text = std::getenv("ZT_MODERN_LAW_EVERY");
    const uint32_t every = text ? static_cast<uint32_t>(std::strtoul(text, nullptr, 10)) : otherwise;
    return every > 0 ? every : 1;
}

void PlayMask(const NumberMask& mask, const std::vector<std::string>& offered, uint32_t seed, uint32_t& played)
{
    Subject subject(mask);
    if (!subject.IsAccepted())
        return;
    const std::vector<std::string> values = ValuesFor(mask, offered);
    uint32_t index = 0;
    for (const std::string& plain : values) {
        for (const WayRow& way : kWays) {
            if (Mix(seed, ++index) % Every(500) != 0)
                continue;
            const std::string other = values[Mix(seed, index, 7) % values.size()];
            PlainNumber before;
            ReadPlain(other, '.', before);
            PlayValue(subject, way, CanonicalText(before, mask.IsPercent()), plain);
            ++played;
        }
    }
}

TEST(ModernNumberLaw, WhatIsTypedIsWhatIsRead)
{
    uint32_t played = 0;
    uint32_t seed = 0;
    for (const char* text : kNumberMasks) {
        for (const int32_t type : {DT_NUMBER, DT_DECIMAL}) {
            const auto offered = OfferedFor(NumberMask(text, type, AllNumberSettings()[0]), ++seed);
            for (const NumberSettings& settings : AllNumberSettings())
                PlayMask(NumberMask(text, type, settings), offered, ++seed, played);
        }
    }
    EXPECT_GT(played, 5000u);
}

// ---- any acts in any order

constexpr zte::Key kMoves[] = {zte::KEY_HOME, zte::KEY_END, zte::KEY_LEFT, zte::KEY_RIGHT};

int ActAtRandom(Subject& subject, uint32_t seed)
{
    constexpr char kKeys[] = "0012345678999-+.,%$ 'x";
    const uint32_t choice = Mix(seed, 2);
    switch (Mix(seed, 1) % 12) {
    case 0: subject.Move(kMoves[choice % 4], choice % 8 < 4); return 0;
    case 1: subject.SelectAll(); return 0;
    case 2: {
        const int length = zte::Length(subject.Text());
        const int start = static_cast<int>(choice % static_cast<uint32_t>(length + 1));
        subject.Select(start, start + static_cast<int>(Mix(seed, 3) % static_cast<uint32_t>(length - start + 1)));
        return 0;
    }
    case 3:
    case 4: return subject.Erase(static_cast<zte::modern::Eraser>(choice % 4));
    case 5: return subject.Step(choice % 3 == 0 ? 10 : choice % 2 == 0 ? 1 : -1);
    case 6: return subject.TypeKeypadPoint('.');
    default: return subject.Type(std::string(1, kKeys[choice % (sizeof kKeys - 1)]));
    }
}

void ExpectInForm(Subject& subject, const std::string& what)
{
    const std::string text = subject.Text();
    const NumberMask& mask = subject.Mask();
    EXPECT_EQ(text.compare(0, mask.Before().size(), mask.Before()), 0) << what << text;
    ASSERT_GE(text.size(), mask.Before().size() + mask.Behind().size()) << what << text;
    EXPECT_EQ(text.substr(text.size() - mask.Behind().size()), mask.Behind()) << what << text;
    EXPECT_NE(subject.State(), ZTS_INVALID) << what << text;
    const zte::Selection selection = subject.Content().selection;
    EXPECT_TRUE(selection.start >= 0 && selection.start <= selection.end && selection.end <= zte::Length(text)) << what << text;
}

// What is shown can be pasted, and what is read can be handed in: neither changes anything.
void ExpectTakenAgain(Subject& subject, const std::string& what)
{
    subject.Leave();
    if (subject.State() != ZTS_COMPLETE || subject.Text().find_first_of("0123456789") == std::string::npos)
        return;
    const zte::modern::Content before = subject.Content();
    EXPECT_EQ(subject.Paste(before.text), 0) << what << before.text;
    EXPECT_EQ(subject.Text(), before.text) << what;
    EXPECT_TRUE(subject.ShowCanonical(subject.Canonical())) << what;
    EXPECT_EQ(subject.Text(), before.text) << what;
    subject.Content() = before;
}

TEST(ModernNumberLaw, NoActLeavesTheMaskAndARefusedOneHasAReason)
{
    constexpr uint32_t kActs = 60;
    uint32_t seed = 0;
    uint32_t refused = 0;
    for (const char* text : kNumberMasks) {
        for (const NumberSettings& settings : AllNumberSettings()) {
            const NumberMask mask(text, ++seed % 2 == 0 ? DT_NUMBER : DT_DECIMAL, settings);
            Subject subject(mask);
            if (!subject.IsAccepted() || seed % Every(4) != 0)
                continue;
            const std::string what = mask.Mask() + " under " + settings.name + ": ";
            for (uint32_t act = 0; act < kActs; ++act) {
                const std::string before = subject.Marks();
                const int reason = ActAtRandom(subject, Mix(seed, act));
                EXPECT_TRUE(reason >= 0 && reason <= ZTR_NOT_IN_CODE_PAGE) << what << reason;
                EXPECT_TRUE(reason == 0 || subject.Marks() == before) << what << before;
                refused += reason != 0;
                ExpectInForm(subject, what);
                if (act % 16 == 15)
                    ExpectTakenAgain(subject, what);
            }
        }
    }
    EXPECT_GT(refused, 100u);
}

}  // namespace
}  // namespace zttest::modern_numbers
