#include "kit/Play.h"
#include "ui/controls/XPCmdButton.h"

using namespace zub;
using namespace zub::controls;

namespace {

const PaintedArt& cells() {
  static PaintedArt painted;
  static const PaintedArt& strip =
      painted.add("button-strip", 90, 21, [](int x, int) { return Opaque | static_cast<unsigned>(x / 18); });
  return strip;
}

// Cells of one colour each, 0 to 4; the look is the cell on show.
struct ButtonStage : Stage {
  XPCmdButton button{desk.kit};

  ButtonStage() : Stage(cells()) {
    button.Caption("&Go");  // 11 by 13 pixels: from 14.5, 3.5 to 25.5, 16.5
    button.resize(40, 20);
    const auto mouse = [this](const char* name) {
      return [this, name](std::int16_t& pressed, std::int16_t&, float& x, float& y) {
        char text[64];
        std::snprintf(text, sizeof text, "%s %d %g,%g;", name, pressed, static_cast<double>(x),
                      static_cast<double>(y));
        log += text;
      };
    };
    const auto keys = [this](const char* name) {
      return [this, name](std::int16_t& code, std::int16_t&) { log += name + std::to_string(code); };
    };
    button.MouseDown = mouse("Down");
    button.MouseMove = mouse("Move");
    button.MouseUp = mouse("Up");
    button.KeyDown = keys("KeyDown ");
    button.KeyUp = keys("KeyUp ");
    button.KeyPress = [this](std::int16_t& ascii) { log += "KeyPress " + std::to_string(ascii); };
    button.Click = logs("Click");
    button.MouseOut = logs("Out");
  }
  void play(std::initializer_list<Step> steps) { Stage::play(button, {{0, 0}}, steps); }
};

}  // namespace

TEST_CASE("the button follows the mouse") {
  ButtonStage stage;
  CHECK(stage.button.timer().Interval == 10);
  stage.play({
      {"over it", move(0, 3, 3), "Move 0 3,3;", "3", true},
      {"the far edges are inside", tick(40, 20), "", "3", true},
      {"left to the right", tick(41, 5), "Out", "0", false},
      {"no second notice", tick(41, 5), "", "0", false},
      {"on the far corner", move(0, 40, 20), "Move 0 40,20;", "3", true},
      {"left to the top", tick(5, -1), "Out", "0", false},
      {"outside", move(0, 41, 3), "", "0", true},
      {"left for good", tick(41, 3), "Out", "0", false},
      {"down", down(LeftButton, 3, 3), "Down 1 3,3;", "1", false},
      {"moved while held", move(LeftButton, 5, 5), "Move 1 5,5;", "1", true},
      {"dragged out", move(LeftButton, 50, 5), "", "1", true},
      {"it rests though the button is held", tick(50, 5), "Out", "0", false},
      {"dragged back", move(LeftButton, 5, 5), "Move 1 5,5;", "1", true},
      {"up", up(LeftButton, 5, 5), "Up 1 5,5;Click", "0", true},
      {"down again", down(LeftButton, 5, 5), "Down 1 5,5;", "1", true},
      {"up outside is no click", up(LeftButton, 50, 5), "Up 1 50,5;", "0", true},
      {"right down", down(RightButton, 3, 3), "Down 2 3,3;", "1", true},
      {"right held", move(RightButton, 4, 3), "Move 2 4,3;", "3", true},
      {"left and right held", move(3, 4, 3), "Move 3 4,3;", "3", true},
      {"right up is no click", up(RightButton, 4, 3), "Up 2 4,3;", "0", true},
      {"hot once more", move(0, 3, 3), "Move 0 3,3;", "3", true},
      {"in sight again it rests", call([&] { stage.button.shown(); }), "", "0", true},
  });
}

TEST_CASE("the caption hands its events on, a move as one at its own corner") {
  ButtonStage stage;
  stage.play({
      {"over it", move(0, 20, 10), "Move 0 14.5,3.5;", "3", true},
      {"down on it", down(LeftButton, 20, 10), "Down 1 5.5,6.5;", "1", true},
      {"dragged out", move(LeftButton, 90, 5), "Move 1 14.5,3.5;", "1", true},
      {"up beside it", up(LeftButton, 3, 3), "Up 1 -11.5,-0.5;Click", "0", true},
      {"down beside it", down(LeftButton, 3, 3), "Down 1 3,3;", "1", true},
      {"over it from there", move(LeftButton, 20, 10), "Move 1 20,10;", "1", true},
  });
}

TEST_CASE("keys are told and do not click; state and enabling choose the cell at rest") {
  ButtonStage stage;
  XPCmdButton& button = stage.button;
  const auto state = [&](std::int32_t value) { return call([&button, value] { button.State(value); }); };
  const auto enable = [&](bool enabled) { return call([&button, enabled] { button.Enabled(enabled); }); };
  const Act access = call([&] { button.press(); });
  stage.play({
      {"key down", key(13), "KeyDown 13", "0"},
      {"key press", call([&] { button.keyPress(13); }), "KeyPress 13", "0"},
      {"key up", call([&] { button.keyUp(13, 0); }), "KeyUp 13", "0"},
      {"access key", access, "Click", "0"},
      {"marked", state(1), "", "4"},
      {"an unknown state keeps the look", state(2), "", "4"},
      {"disabled", enable(false), "", "2"},
      {"a state while disabled", state(0), "", "2"},
      {"no move", move(0, 3, 3), "", "2"},
      {"no press", down(LeftButton, 3, 3), "", "2"},
      {"no release", up(LeftButton, 3, 3), "", "2"},
      {"no key", key(13), "", "2"},
      {"no access key", access, "", "2"},
      {"enabled", enable(true), "", "0"},
  });
}
