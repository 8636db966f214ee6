// Every control in each of its states, as pictures.
#pragma once

#include <string>
#include <vector>

#include "kit/Canvas.h"

namespace zub::controls {

struct Exhibit {
  std::string name;
  Canvas picture;
};

std::vector<Exhibit> gallery();

}  // namespace zub::controls
