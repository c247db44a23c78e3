// The gate between the libraries and the system: what they ask for passes through here while a gate stands, is counted, and can
// be refused. One at a time.
#pragma once

#include <cstdint>
#include <list>

#include "tests/support/live/import_patch.h"

namespace soak {

// What was refused, by what must follow.
enum class Refusal : uint8_t {
    None,
    Memory,   // the no-memory exception
    Runtime,  // memory that the language's runtime wants for itself: that exception, or it makes do without
    System,   // an object or a service of the system: the library makes do without
};

// Raised in the place of abort: the language's runtime gives up.
constexpr uint32_t kAborted = 0xE0000001;

class Gate {
public:
    Gate();
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;

    // Blocks that the libraries have taken from the runtime's and the system's heap and not given back.
    int64_t Blocks() const;

    // The request of the given number from now on is refused, the first is 1, on this thread alone.
    void RefuseOne(uint32_t number);
    void RefuseNone();
    Refusal Refused() const;

    // Requests on that thread since.
    uint32_t Requests() const;

private:
    std::list<zttest::ImportPatch> patches_;
};

}  // namespace soak
