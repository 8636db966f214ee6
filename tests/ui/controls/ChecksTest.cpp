#include <doctest/doctest.h>

#include "kit/Canvas.h"
#include "kit/Desk.h"
#include "kit/PaintedArt.h"
#include "ui/controls/SimpleCheck.h"
#include "ui/controls/XPCheck.h"
#include "ui/controls/XPGroupBox.h"

using namespace zub;
using namespace zub::controls;

namespace {

void click(Control& control, float x, float y) {
  control.mouseDown({LeftButton, 0, x, y});
  control.mouseUp({LeftButton, 0, x, y});
}

}  // namespace

TEST_CASE("the group's frame is put together from its picture, the last row of the right corner left out") {
  // Each piece of the picture in its own digit, by rows for the lower corners.
  PaintedArt painted;
  painted.add("group-frame", 22, 20, [](int x, int y) {
    const int column = x < 3 ? 0 : x < 19 ? 1 : 2;
    if (y < 3) return Opaque | static_cast<unsigned>(1 + column);
    if (y < 17) return Opaque | static_cast<unsigned>(4 + column);
    return Opaque | static_cast<unsigned>((column == 1 ? 30 : 10 + 5 * column) + y - 17);
  });
  Desk desk(painted.art());
  XPGroupBox group(desk.kit);
  group.Caption("");
  group.resize(10, 16);
  CHECK(Canvas::of(group).drawing() ==
        "??????????\n??????????\n??????????\n??????????\n??????????\n??????????\n"
        "1112222333\n111????333\n111????333\n"
        "4????????6\n4????????6\n4????????6\n4????????6\n"
        "aaa????lll\nbbb????mmm\ncccwwww???\n");
}

TEST_CASE("the group tells the clicks on itself and on its title, each from its own corner") {
  Desk desk;
  XPGroupBox group(desk.kit);
  group.Caption("IE");
  group.resize(100, 50);
  std::string log;
  group.Click = [&] { log += "Click;"; };
  group.DblClick = [&] { log += "DblClick;"; };
  group.MouseDown = [&](std::int16_t&, std::int16_t&, float& x, float& y) {
    log += std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y)) + ";";
  };
  click(group, 50, 20);
  click(group, 17, 5);
  group.mouseDoubleClick({LeftButton, 0, 50, 20});
  group.Enabled(false);
  click(group, 50, 20);
  CHECK(log == "50,20;Click;2,5;Click;DblClick;");
}

TEST_CASE("a check box shows its value, and raises Click with every write") {
  PaintedArt painted;
  Desk desk(
      painted.addPlain({"check-off", "check-on", "check-off-disabled", "check-on-disabled"}, 13, 13).art());
  XPCheck check(desk.kit);
  check.Caption("Cookies");
  check.resize(80, 17);
  int clicks = 0;
  check.Click = [&] { ++clicks; };
  const auto picture = [&] { return Canvas::of(check).at(6, 2); };

  const struct {
    const char* what;
    std::function<void()> act;
    float value;
    std::uint32_t picture;
    int clicks;
  } steps[] = {
      {"at first", [] {}, 0, 0, 0},
      {"written", [&] { check.Value(1); }, 1, 1, 1},
      {"written again", [&] { check.Value(1); }, 1, 1, 2},
      {"disabled", [&] { check.Enabled(false); }, 1, 3, 2},
      {"clicked while disabled", [&] { click(check, 10, 8); }, 1, 3, 2},
      {"written while disabled", [&] { check.Value(0); }, 0, 2, 3},
      {"enabled", [&] { check.Enabled(true); }, 0, 0, 3},
      {"box clicked", [&] { click(check, 10, 8); }, 1, 1, 4},
      {"caption clicked", [&] { click(check, 30, 8); }, 0, 0, 5},
      {"clicked between them", [&] { click(check, 23, 8); }, 0, 0, 5},
      {"clicked behind them", [&] { click(check, 79, 8); }, 0, 0, 5},
      {"set on", [&] { check.Value(1); }, 1, 1, 6},
      {"neither on nor off keeps the picture", [&] { check.Value(0.5F); }, 0.5F, 1, 7},
      {"and a click switches off", [&] { click(check, 10, 8); }, 0, 0, 8},
  };
  for (const auto& step : steps) {
    CAPTURE(step.what);
    step.act();
    CHECK(check.Value() == step.value);
    CHECK(picture() == step.picture);
    CHECK(clicks == step.clicks);
  }
}

TEST_CASE("stored properties of checks and groups come back, and loading raises no Click") {
  Desk desk;
  const Ambient ambient = {"chkBleach", std::make_shared<Font>()};
  PropertyBag bag;
  XPCheck check(desk.kit);
  check.InitProperties(ambient);
  CHECK(check.Caption() == "chkBleach");
  check.Value(1);
  check.Enabled(false);
  check.BackColor(colors::Window);
  check.WriteProperties(bag, ambient);
  CHECK_FALSE(bag.holds("Caption"));
  XPCheck loaded(desk.kit);
  loaded.Click = [] { FAIL("no click"); };
  loaded.ReadProperties(bag, ambient);
  CHECK(loaded.Value() == 1);
  CHECK_FALSE(loaded.Enabled());
  CHECK(loaded.BackColor() == colors::Window);

  XPGroupBox group(desk.kit);
  CHECK(group.BackColor() == colors::Page);
  group.ReadProperties(bag, {"grpIE", ambient.font});
  CHECK(group.Caption() == "grpIE");
  CHECK_FALSE(group.Enabled());
  CHECK(group.BackColor() == colors::Window);

  SimpleCheck simple(desk.kit);
  simple.ReadProperties(PropertyBag(), ambient);
  CHECK(simple.Value() == SimpleCheck::Empty);
}

TEST_CASE("the simple check turns to the complement of its value, and tells clicks only") {
  const struct {
    float value, clicked;
    bool tickAfter;
  } cases[] = {{0, -1, false}, {-1, 0, true}, {1, -2, false}, {-2, 1, false}, {0.4F, -1, false}};
  PaintedArt painted;
  Desk desk(painted.addPlain({"simple-check-ticked", "simple-check-empty"}, 13, 13).art());
  for (const auto& [value, clicked, tickAfter] : cases) {
    CAPTURE(value);
    SimpleCheck check(desk.kit);
    CHECK(check.Value() == -1);
    int clicks = 0;
    check.Click = [&] { ++clicks; };
    check.resize(14, 16);
    check.Value(value);
    CHECK(clicks == 0);
    click(check, 5, 1);  // above the box
    CHECK(clicks == 0);
    click(check, 5, 2);
    CHECK(clicks == 1);
    CHECK(check.Value() == clicked);
    CHECK(Canvas::of(check).at(0, 2) == (tickAfter ? 0U : 1U));
  }
}
