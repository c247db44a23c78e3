// The user's regional conventions in this process, and its clock.
#include "win32/regional_settings.h"

#include "companions/profile/regional_profile.h"
#include "engine/mask/mask_choice.h"
#include "win32/library.h"
#include "ztshared.h"

namespace zte {

Settings regionalSettings;

namespace {

constexpr UINT kFirstMonthNameId = 2000;  // string resources 2000 to 2011

void ReadMonthNames(Settings& settings)
{
    for (int32_t month = 0; month < kMonths; ++month)
        LoadStringA(libraryInstance, kFirstMonthNameId + static_cast<UINT>(month), settings.monthNames[month],
                    kMonthNameSize);
}

}  // namespace

void ReadIntlSettings()
{
    ReadRegionalProfile(regionalSettings);
    ReadPictures(regionalSettings);
    ReadMonthNames(regionalSettings);
    SharedReadRegionalSettings();
}

void ReadPicturesFor(const char* mask)
{
    if (mask && IsPictureKeyword(mask))
        ReadPictures(regionalSettings);
}

DateTimeValue Now()
{
    DateTimeValue now;
    SharedDateTimeNow(&now);
    return now;
}

}  // namespace zte
