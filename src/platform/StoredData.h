// What all registries do alike: how each family keeps the data of a value, and how a call hands out names and data.
#pragma once

#include <string>
#include <string_view>

#include "platform/Registry.h"

namespace zub {

// What is kept of the data that was handed over. Where the system cuts texts, as on the 9x family, one ends at its first
// NUL, whatever its length was said to be; elsewhere it gets a NUL where it has none.
std::string storedData(std::string data, ValueType type, bool cutsTexts);

// As the calls that enumerate and query tell them, MoreData where the room that `length` tells is too small.
RegistryStatus handName(std::string_view text, char* name, std::uint32_t& length);
RegistryStatus handData(std::string_view bytes, std::uint8_t* data, std::uint32_t& length);

}  // namespace zub
