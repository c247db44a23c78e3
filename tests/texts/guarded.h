// Memory that ends directly before a page which may neither be read nor written: who looks one byte too far crashes.
#pragma once

#include <cstddef>
#include <string>

namespace zttest {

enum class Access { ReadOnly, ReadWrite };

// A copy of some bytes that ends `behind` bytes before the inaccessible page. Read-only ones are a caller's texts and values, which
// are never to be written; the others are room for results.
class Guarded {
public:
    Guarded(const void* bytes, size_t size, Access access, size_t behind = 0);
    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;
    ~Guarded();

    template <typename T>
    T* As() const
    {
        return static_cast<T*>(start_);
    }

private:
    char* pages_ = nullptr;
    size_t size_ = 0;
    void* start_ = nullptr;
};

// A caller's text with its terminator, directly before the page.
class GuardedText : public Guarded {
public:
    explicit GuardedText(const std::string& text) : Guarded(text.c_str(), text.size() + 1, Access::ReadOnly) {}
    const char* get() const { return As<const char>(); }
};

// One without.
class UnterminatedText : public Guarded {
public:
    explicit UnterminatedText(const std::string& text) : Guarded(text.data(), text.size(), Access::ReadOnly) {}
    const char* get() const { return As<const char>(); }
};

}  // namespace zttest
