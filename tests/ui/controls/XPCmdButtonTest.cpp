#include <doctest/doctest.h>

#include "kit/Canvas.h"
#include "kit/Desk.h"
#include "kit/PaintedArt.h"
#include "ui/controls/XPCmdButton.h"

using namespace zub;
using namespace zub::controls;

namespace {

constexpr std::uint32_t NormalCell = 0, PressedCell = 1, DisabledCell = 2, HotCell = 3, MarkedCell = 4;

// Cells of one colour each; the log tells the events, the corner's pixel the cell on show.
struct Bench {
  PaintedArt painted;
  Desk desk{
      painted.add("button-strip", 90, 21, [](int x, int) { return Opaque | static_cast<unsigned>(x / 18); })
          .art()};
  XPCmdButton button{desk.kit};
  std::string log;

  Bench() {
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
    const auto key = [this](const char* name) {
      return [this, name](std::int16_t& code, std::int16_t&) { log += name + std::to_string(code) + ";"; };
    };
    button.MouseDown = mouse("Down");
    button.MouseMove = mouse("Move");
    button.MouseUp = mouse("Up");
    button.KeyDown = key("KeyDown ");
    button.KeyUp = key("KeyUp ");
    button.KeyPress = [this](std::int16_t& ascii) { log += "KeyPress " + std::to_string(ascii) + ";"; };
    button.Click = [this] { log += "Click;"; };
    button.MouseOut = [this] { log += "Out;"; };
  }

  std::uint32_t cell() const { return Canvas::of(button).at(0, 0); }
};

struct Step {
  const char* what;
  std::function<void(Bench&)> act;
  const char* raised;
  std::uint32_t cell;
  bool tracking;
};

auto move(std::int16_t buttons, float x, float y) {
  return [=](Bench& bench) { bench.button.mouseMove({buttons, 0, x, y}); };
}
auto down(std::int16_t pressed, float x, float y) {
  return [=](Bench& bench) { bench.button.mouseDown({pressed, 0, x, y}); };
}
auto up(std::int16_t pressed, float x, float y) {
  return [=](Bench& bench) { bench.button.mouseUp({pressed, 0, x, y}); };
}
auto tick(int x, int y) {
  return [=](Bench& bench) {
    bench.desk.pointer.at = {x, y};
    bench.button.timerTick();
  };
}

void play(Bench& bench, std::initializer_list<Step> steps) {
  for (const Step& step : steps) {
    CAPTURE(step.what);
    bench.log.clear();
    step.act(bench);
    CHECK(bench.log == step.raised);
    CHECK(bench.cell() == step.cell);
    CHECK(bench.button.timer().Enabled == step.tracking);
  }
}

}  // namespace

TEST_CASE("the button follows the mouse") {
  Bench bench;
  CHECK(bench.button.timer().Interval == 10);
  play(bench, {
                  {"over it", move(0, 3, 3), "Move 0 3,3;", HotCell, true},
                  {"the far edges are inside", tick(40, 20), "", HotCell, true},
                  {"left to the right", tick(41, 5), "Out;", NormalCell, false},
                  {"no second notice", tick(41, 5), "", NormalCell, false},
                  {"on the far corner", move(0, 40, 20), "Move 0 40,20;", HotCell, true},
                  {"left to the top", tick(5, -1), "Out;", NormalCell, false},
                  {"outside", move(0, 41, 3), "", NormalCell, true},
                  {"left for good", tick(41, 3), "Out;", NormalCell, false},
                  {"down", down(LeftButton, 3, 3), "Down 1 3,3;", PressedCell, false},
                  {"moved while held", move(LeftButton, 5, 5), "Move 1 5,5;", PressedCell, true},
                  {"dragged out", move(LeftButton, 50, 5), "", PressedCell, true},
                  {"it rests though the button is held", tick(50, 5), "Out;", NormalCell, false},
                  {"dragged back", move(LeftButton, 5, 5), "Move 1 5,5;", PressedCell, true},
                  {"up", up(LeftButton, 5, 5), "Up 1 5,5;Click;", NormalCell, true},
                  {"down again", down(LeftButton, 5, 5), "Down 1 5,5;", PressedCell, true},
                  {"up outside is no click", up(LeftButton, 50, 5), "Up 1 50,5;", NormalCell, true},
                  {"right down", down(RightButton, 3, 3), "Down 2 3,3;", PressedCell, true},
                  {"right held", move(RightButton, 4, 3), "Move 2 4,3;", HotCell, true},
                  {"left and right held", move(3, 4, 3), "Move 3 4,3;", HotCell, true},
                  {"right up is no click", up(RightButton, 4, 3), "Up 2 4,3;", NormalCell, true},
              });
}

TEST_CASE("the caption hands its events on, a move as one at its own corner") {
  Bench bench;
  play(bench, {
                  {"over it", move(0, 20, 10), "Move 0 14.5,3.5;", HotCell, true},
                  {"down on it", down(LeftButton, 20, 10), "Down 1 5.5,6.5;", PressedCell, true},
                  {"dragged out", move(LeftButton, 90, 5), "Move 1 14.5,3.5;", PressedCell, true},
                  {"up beside it", up(LeftButton, 3, 3), "Up 1 -11.5,-0.5;Click;", NormalCell, true},
                  {"down beside it", down(LeftButton, 3, 3), "Down 1 3,3;", PressedCell, true},
                  {"over it from there", move(LeftButton, 20, 10), "Move 1 20,10;", PressedCell, true},
              });
}

TEST_CASE("keys are told, and only the access key clicks") {
  Bench bench;
  play(bench,
       {
           {"down", [](Bench& b) { b.button.keyDown(13, 0); }, "KeyDown 13;", NormalCell, false},
           {"press", [](Bench& b) { b.button.keyPress(13); }, "KeyPress 13;", NormalCell, false},
           {"up", [](Bench& b) { b.button.keyUp(13, 0); }, "KeyUp 13;", NormalCell, false},
           {"access key", [](Bench& b) { CHECK(b.button.accessKey('g')); }, "Click;", NormalCell, false},
           {"another", [](Bench& b) { CHECK_FALSE(b.button.accessKey('o')); }, "", NormalCell, false},
       });
}

TEST_CASE("the resting cell comes from the state, and a disabled button shows neither") {
  Bench bench;
  play(bench,
       {
           {"marked", [](Bench& b) { b.button.State(1); }, "", MarkedCell, false},
           {"an unknown state keeps the look", [](Bench& b) { b.button.State(2); }, "", MarkedCell, false},
           {"disabled", [](Bench& b) { b.button.Enabled(false); }, "", DisabledCell, false},
           {"a state while disabled", [](Bench& b) { b.button.State(0); }, "", DisabledCell, false},
           {"no move", move(0, 3, 3), "", DisabledCell, false},
           {"no press", down(LeftButton, 3, 3), "", DisabledCell, false},
           {"no release", up(LeftButton, 3, 3), "", DisabledCell, false},
           {"no key", [](Bench& b) { b.button.keyDown(13, 0); }, "", DisabledCell, false},
           {"no access key", [](Bench& b) { CHECK_FALSE(b.button.accessKey('g')); }, "", DisabledCell, false},
           {"enabled", [](Bench& b) { b.button.Enabled(true); }, "", NormalCell, false},
       });
}

TEST_CASE("a button that comes in sight again rests") {
  Bench bench;
  bench.button.mouseMove({0, 0, 3, 3});
  const unsigned hot = bench.button.revision();
  bench.button.shown();
  CHECK(bench.cell() == NormalCell);
  CHECK(bench.button.revision() != hot);
}

TEST_CASE("stored properties come back, but for the state") {
  Bench bench;
  const Ambient ambient = {"cmdRemove", std::make_shared<Font>()};
  PropertyBag bag;
  bench.button.InitProperties(ambient);
  CHECK(bench.button.Caption() == "cmdRemove");
  CHECK(bench.button.font() == ambient.font);
  bench.button.WriteProperties(bag, ambient);
  for (const char* name : {"State", "Enabled", "Caption", "Font"}) CHECK_FALSE(bag.holds(name));

  std::string changed;
  bench.button.PropertyChanged = [&](std::string_view name) { changed += std::string(name) + ";"; };
  bench.button.State(1);
  bench.button.Enabled(false);
  bench.button.Caption("&Stop");
  bench.button.font(std::make_shared<Font>(Font{.Name = "Tahoma"}));
  CHECK(changed == "State;Enabled;Caption;Font;");
  bench.button.WriteProperties(bag, ambient);
  CHECK(bag.ReadProperty("State", std::int32_t{0}) == 1);

  XPCmdButton loaded(bench.desk.kit);
  loaded.ReadProperties(bag, ambient);
  CHECK(loaded.State() == 0);
  CHECK_FALSE(loaded.Enabled());
  CHECK(loaded.Caption() == "&Stop");
  CHECK(loaded.font()->Name == "Tahoma");
}
