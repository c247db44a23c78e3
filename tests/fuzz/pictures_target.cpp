// Regional settings of any kind: pictures of dates and times, currencies, designators, names. Bytes: numbers, then a line for each text.
#include "engine/mask/currency_mask.h"
#include "engine/mask/mask_choice.h"
#include "engine/mask/picture.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/player.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using zte::Settings;
using zte::Text;

zte::Char OrDefault(uint8_t byte, char standard)
{
    return byte == 0 ? standard : static_cast<zte::Char>(byte);
}

Settings TakeSettings(Bytes& bytes)
{
    Settings settings = zte::StandardSettings();
    settings.decimalChar = OrDefault(bytes.Take(), '.');
    settings.thousandChar = OrDefault(bytes.Take(), ',');
    settings.currencyPosition = static_cast<int32_t>(bytes.Take()) - 2;
    settings.currencyDigits = static_cast<int32_t>(bytes.Take()) - 8;
    zte::Assign(settings.currencySymbol, bytes.TakeLine());
    zte::Assign(settings.amString, bytes.TakeLine());
    zte::Assign(settings.pmString, bytes.TakeLine());
    zte::Assign(settings.shortDate, bytes.TakeLine());
    zte::Assign(settings.timeSeparator, bytes.TakeLine());
    return settings;
}

void CheckPicture(const zte::Picture& picture, int32_t size)
{
    CountStep();
    Demand(zte::Length(picture.mask) < std::max(size, 1), "a mask made of a picture fits its room", picture.mask);
}

void CheckPictures(const Settings& settings, const Text& text)
{
    for (const int32_t size : {0, 1, 2, 3, 17, 255}) {
        CheckPicture(zte::PictureToMask(text, size), size);
        CheckPicture(zte::DatePictureToMask(settings, size), size);
        CheckPicture(zte::TimePictureToMask(settings, size), size);
    }
}

void CheckCurrencies(const Settings& settings)
{
    for (int16_t digits = -1; digits <= 17; ++digits) {
        CountStep();
        Demand(zte::Length(zte::BuildCurrencyMask(digits, settings)) <= zte::kMaxMaskLength, "a currency's mask is a mask");
    }
}

struct KeywordRow {
    const char* mask;
    int32_t type;
};

constexpr KeywordRow kKeywords[] = {
    {"[date]",         DT_DATE    },
    {"[time]",         DT_TIME    },
    {"[date] [time]",  DT_DATETIME},
    {"[currency(7)]",  DT_NUMBER  },
    {"[currency(16)]", DT_DECIMAL },
    {"[currency(0)]",  DT_NUMBER  },
    {"",               DT_NUMBER  },
    {"HH:MM AM/PM",    DT_TIME    },
    {"DD-MMM-YYYY",    DT_DATE    },
};

void PlayKeys(PlayedControl& played, Bytes bytes)
{
    while (!bytes.IsEmpty()) {
        const uint8_t key = bytes.Take();
        if (key == zte::KEY_BACKSPACE || key == zte::KEY_UP)
            played.Press(key);
        else
            played.Type(key);
    }
    played.LoseFocus();
    played.Read();
}

}  // namespace

void PlayPictures(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const Settings settings = TakeSettings(bytes);
    const Text value = bytes.TakeLine();
    CheckPictures(settings, settings.shortDate);
    CheckPictures(settings, value);
    CheckCurrencies(settings);
    for (const KeywordRow& row : kKeywords) {
        zte::ControlSetup setup;
        setup.mask = row.mask;
        setup.dataType = row.type;
        PlayedControl played(setup, settings);
        played.SetDataString(value);
        PlayKeys(played, bytes);
    }
}

}  // namespace zttest
