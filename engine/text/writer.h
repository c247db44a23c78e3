// Writes text into a caller's buffer: what does not fit is cut off, and the buffer is terminated after every character.
#pragma once

#include "engine/text/text.h"

namespace zte {

class Writer {
public:
    // size counts the terminator; a null buffer or a size of 0 takes nothing.
    Writer(Char* buffer, int32_t size) : buffer_(buffer), room_(buffer && size > 0 ? size - 1 : 0)
    {
        if (buffer && size > 0)
            *buffer = Char{};
    }

    void Put(Char c)
    {
        if (length_ == room_) {
            full_ = true;
            return;
        }
        buffer_[length_++] = c;
        buffer_[length_] = Char{};
    }
    void Put(const char* ascii)
    {
        for (; *ascii; ++ascii)
            Put(static_cast<Char>(*ascii));
    }

    int32_t Length() const { return length_; }
    bool IsCut() const { return full_; }  // something did not fit

private:
    Char* buffer_;
    int32_t room_;
    int32_t length_ = 0;
    bool full_ = false;
};

}  // namespace zte
