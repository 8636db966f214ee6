// What the host's failures are to the program.
#pragma once

#include <string>

#include "base/RuntimeError.h"
#include "platform/host/HostDir.h"

namespace zub {

ErrorNumber errorNumberOf(HostError error);

// Its text, for a message.
std::string reasonOf(HostError error);

// Throws RuntimeError unless there is no error.
void check(HostError error);

}  // namespace zub
