// What a PC holds below the scratch folder and the scratch key of the contract suite, and its tasks: by path, as text.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/Platform.h"

namespace zub {

using BeneathState = std::map<std::string, std::string>;
// The times of a file or folder, as text.
using TimesOf = std::function<std::string(const std::string& path)>;

// Of one file or folder: attributes, times and bytes.
std::string stateOf(Files& files, const std::string& path, const TimesOf& times);
BeneathState stateOf(const Platform& pc, const std::string& folder, const std::string& key,
                     const TimesOf& times);
// The entries that differ, as text.
std::string differences(const BeneathState& before, const BeneathState& after);

}  // namespace zub
