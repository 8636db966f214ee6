// The box of everything that can be ticked.
#pragma once

#include "ui/controls/Control.h"

namespace zub::controls {

enum class CheckLook : std::uint8_t { Off, On, OffDisabled, OnDisabled };

inline constexpr int CheckBoxTwips = 195;  // a side

void paintCheckBox(Surface& surface, const Kit& kit, const Box& place, CheckLook look);

}  // namespace zub::controls
