// Turns the short-date picture and the time separator of the regional settings into masks.
#pragma once

#include <cstdint>

namespace zte {

enum PictureKind : int32_t { PICTURE_DATE = 1, PICTURE_TIME = 2 };

// Status of a conversion.
enum PictureStatus : int32_t {
    PICTURE_OK = 0,
    PICTURE_BUFFER_FULL = 1,
    PICTURE_UNCLOSED = 7,  // ended inside a quote or behind a backslash
    PICTURE_BAD_STATE = 8,
    PICTURE_LONG_MONTH = 9,
    PICTURE_LONG_DAY = 10,
    PICTURE_BAD_YEAR = 11,
    PICTURE_LONG_HOUR = 12,
    PICTURE_LONG_SECOND = 13,
    PICTURE_LONG_MINUTE = 14,
    PICTURE_BAD_AMPM = 15,
    PICTURE_LONG_FRACTION = 16,
};

// Reads the picture from the profile and writes the mask, terminated on success, to out.
int32_t IntlPictureToMask(char* out, int32_t outSize, int32_t kind);

// The conversion alone.
int32_t PictureToMask(const char* picture, char* out, int32_t outSize);

}  // namespace zte
