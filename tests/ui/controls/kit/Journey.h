// What a control does, told as a text: what a click on each of its places raises, and what comes of all that the mouse,
// the keyboard and its owner may do to it. A step of which nothing comes is left out.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kit/Desk.h"

namespace zub::controls {

struct Step {
  std::string what;
  Act act;
};

// A control whose handlers write into the log.
struct Actor {
  std::unique_ptr<Control> control;
  Point on, other;                            // two places that are not the same to it
  std::function<std::vector<Step>()> wishes;  // of its owner
  std::function<std::string()> look = {};     // where there are too many for the gallery
};

// Makes it anew, in the state that it begins with.
using Make = std::function<Actor(Desk&, std::string& log)>;

std::string journeyOf(const Make& make);

}  // namespace zub::controls
