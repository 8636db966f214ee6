// What the main window says of each option when it is touched.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "state/Options.h"

namespace zub {

// The help label of the tab that the option stands on.
enum class HelpLabel : std::uint8_t { Main, Options, Scheduler };

struct OptionHelp {
  CheckOption Options::*option;
  HelpLabel label;
  std::string_view text;
};
std::span<const OptionHelp> optionHelp();

// The rows of the icon list, 0 to 9: when a row is picked, and when its check changes.
std::string_view helpOfPickedRow(int row);
std::string_view helpOfCheckedRow(int row);

}  // namespace zub
