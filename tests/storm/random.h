// Numbers that look random and are the same in every run: a script is told by its seed.
#pragma once

#include <cstddef>
#include <cstdint>

namespace storm {

class Random {
public:
    explicit Random(uint64_t seed) : state_(seed) {}

    uint32_t Next()
    {
        state_ += 0x9E3779B97F4A7C15u;
        uint64_t mixed = state_;
        mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBu;
        return static_cast<uint32_t>(mixed >> 32);
    }
    uint32_t Below(uint32_t bound) { return Next() % bound; }
    bool OneIn(uint32_t times) { return Below(times) == 0; }

    template <typename Item, size_t size>
    const Item& Of(const Item (&items)[size])
    {
        return items[Below(static_cast<uint32_t>(size))];
    }

private:
    uint64_t state_;
};

}  // namespace storm
