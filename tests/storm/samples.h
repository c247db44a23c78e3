// Texts, masks and values that are handed in: those of careful hosts and of careless ones.
#pragma once

#include <cstdint>
#include <string>

namespace storm {

// Each is the same for the same number, and lives as long as the program.
const char* MaskOf(uint32_t number);  // null now and then
const char* TextOf(uint32_t number);  // null now and then
const char* KeysOf(uint32_t number);
const char* RangeOf(uint32_t number);
const char* CodesOf(uint32_t number);
const void* ValueOf(
    uint32_t number);  // room enough to be read as a value of any type, and a terminated text; null now and then
int32_t TypeOf(uint32_t number);

}  // namespace storm
