// How the registry of each family keeps the data of a value.
#pragma once

#include <string>

#include "platform/Registry.h"

namespace zub {

// What is kept of the data that was handed over. Where the system cuts texts, as on the 9x family, one ends at its first
// NUL, whatever its length was said to be; elsewhere it gets a NUL where it has none.
std::string storedData(std::string data, ValueType type, bool cutsTexts);

}  // namespace zub
