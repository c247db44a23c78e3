// The user's regional conventions in this process, and its clock.
#pragma once

#include "engine/values/settings.h"
#include "ztvalues.h"

namespace zte {

// Written at start-up and at WM_WININICHANGE, on the user-interface thread.
extern Settings regionalSettings;

// Reads all of it anew, and has the services read theirs.
void ReadIntlSettings();

// Reads the pictures anew where the mask is a keyword that is built from them: each mask is built from the profile of the moment.
void ReadPicturesFor(const char* mask);

// The current local date and time.
DateTimeValue Now();

}  // namespace zte
