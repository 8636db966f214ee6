// Tests of controls as tables: each step with the events that it raises and the look after it.
#pragma once

#include <doctest/doctest.h>

#include <initializer_list>
#include <string>

#include "kit/Canvas.h"
#include "kit/Desk.h"
#include "kit/PaintedArt.h"

namespace zub::controls {

struct Step {
  const char* what;
  Act act;
  std::string raised;  // what the handlers add to the log
  std::string look;
  bool tracking = false;  // whether the timer runs
};

struct Stage {
  Desk desk;
  std::string log;

  explicit Stage(const PaintedArt& painted) : desk(painted.art()) {}
  Stage() = default;

  Handler logs(const char* event) {
    return [this, event] { log += event; };
  }

  void play(Control& control, const std::function<std::string()>& look, std::initializer_list<Step> steps) {
    for (const Step& step : steps) {
      CAPTURE(step.what);
      log.clear();
      const Canvas before = Canvas::of(control);
      const unsigned revision = control.revision();
      step.act(desk, control);
      const bool painted = control.revision() != revision;
      CHECK((painted || Canvas::of(control) == before));
      CHECK(log == step.raised);
      CHECK(look() == step.look);
      CHECK(control.timer().Enabled == step.tracking);
    }
  }
  // The look is told by the colours at some places.
  void play(Control& control, std::initializer_list<Point> places, std::initializer_list<Step> steps) {
    const auto look = [&] {
      const Canvas canvas = Canvas::of(control);
      std::string colors;
      for (const Point& place : places) colors += canvas.sign(place.x, place.y);
      return colors;
    };
    play(control, look, steps);
  }
};

}  // namespace zub::controls
