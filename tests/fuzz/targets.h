// The doors through which texts and keys come into the engine, one target each: a target plays the bytes that it is given and checks
// the laws of its door on the way.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zttest {

using PlayBytes = void (*)(const uint8_t* data, size_t size);

struct FuzzTarget {
    const char* name;
    PlayBytes play;
};

void PlayMasks(const uint8_t* data, size_t size);          // masks of every type, and the checks of them
void PlayNumberFormats(const uint8_t* data, size_t size);  // number formats, and numbers shown by them
void PlayCanonical(const uint8_t* data, size_t size);      // canonical dates, times and numbers
void PlayDisplays(const uint8_t* data, size_t size);       // values shown, and texts read back under a mask
void PlayTables(const uint8_t* data, size_t size);         // code tables and ranges
void PlayPictures(const uint8_t* data, size_t size);       // regional pictures and settings
void PlayControl(const uint8_t* data, size_t size);        // a whole control: keys, mouse, data, settings
void PlayModern(const uint8_t* data, size_t size);         // the same in modern editing

constexpr FuzzTarget kFuzzTargets[] = {
    {"masks",          PlayMasks        },
    {"number_formats", PlayNumberFormats},
    {"canonical",      PlayCanonical    },
    {"displays",       PlayDisplays     },
    {"tables",         PlayTables       },
    {"pictures",       PlayPictures     },
    {"control",        PlayControl      },
    {"modern",         PlayModern       },
};

}  // namespace zttest
