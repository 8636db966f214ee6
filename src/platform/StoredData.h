// How the registry of each family keeps the data of a value.
#pragma once

#include <cstdint>
#include <string>

namespace zub {

// What is kept of the data that was handed over. Where the system cuts texts, as on the 9x family, one ends at its first
// NUL, whatever its length was said to be; elsewhere it gets a NUL where it has none.
std::string storedData(std::string data, std::uint32_t type, bool cutsTexts);

}  // namespace zub
