// The conventions of the companions' functions without windows: those of the tests' own profile.
#include "companions/ztshared/conventions.h"

#include "tests/support/native/profile_store.h"
#include "tests/support/profile.h"
#include "ztshared.h"

namespace shared {

const zte::Settings& Conventions()
{
    return zttest::SettingsInForce();
}

}  // namespace shared

void SharedReadRegionalSettings(void)
{
    zttest::TellRegionalChange();
}
