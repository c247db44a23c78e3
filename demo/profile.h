/* Regional settings for one window. The library reads them from the user's profile and from nowhere else; so they are put there while
 * it reads, and the user's own are back before anything else happens. Nobody is told of the moment between, and where the settings are
 * the user's own nothing is written. */
#ifndef DEMO_PROFILE_H
#define DEMO_PROFILE_H

#include <windows.h>

enum {
    PROFILE_KEYS = 9, /* decimal, thousands, currency, its position, its digits, AM, PM, short date, time separator */
    PROFILE_ROOM = 80,
};

typedef struct Profile {
    char values[PROFILE_KEYS][PROFILE_ROOM];
} Profile;

/* What stands in the user's profile, with the library's defaults for what is not there. */
void ReadProfile(Profile* profile);

/* Puts what differs into the profile; returned fills with what ReturnProfile needs. */
typedef struct LentProfile {
    Profile former; /* as it stands there, or kAbsent */
    BOOL changed[PROFILE_KEYS];
} LentProfile;

void LendProfile(const Profile* wanted, LentProfile* lent);
void ReturnProfile(const LentProfile* lent);

/* The conventions of some countries. */
typedef struct Country {
    const char* name;
    Profile profile;
} Country;

extern const Country kCountries[];
extern const int kCountryCount;

#endif
