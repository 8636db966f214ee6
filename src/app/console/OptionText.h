// What each setting does, in a line for the console; the windows have their own texts.
#pragma once

#include <string_view>

namespace zub {

// By the stored name; empty for a plugin's tick.
std::string_view optionText(std::string_view name);

}  // namespace zub
