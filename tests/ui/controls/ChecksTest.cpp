#include <cmath>

#include "kit/Play.h"
#include "ui/controls/SimpleCheck.h"
#include "ui/controls/XPCheck.h"
#include "ui/controls/XPCmdButton.h"
#include "ui/controls/XPGroupBox.h"

using namespace zub;
using namespace zub::controls;

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
  Stage stage;
  XPGroupBox group(stage.desk.kit);
  group.Caption("IE");
  group.resize(100, 50);
  group.Click = stage.logs("Click;");
  group.DblClick = stage.logs("DblClick;");
  group.MouseDown = [&](std::int16_t&, std::int16_t&, float& x, float& y) {
    stage.log += std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y)) + ";";
  };
  const auto doubleClick = [&] { group.mouseDoubleClick({LeftButton, 0, 50, 20}); };
  stage.play(group, {},
             {
                 {"within", click(50, 20), "50,20;Click;", ""},
                 {"on the title", click(17, 5), "2,5;Click;", ""},
                 {"twice", call(doubleClick), "DblClick;", ""},
                 {"released after that", up(LeftButton, 50, 20), "", ""},
                 {"disabled", call([&] { group.Enabled(false); }), "", ""},
                 {"within while disabled", click(50, 20), "", ""},
             });
}

TEST_CASE("a check box shows its value, and raises Click with every write") {
  PaintedArt painted;
  Stage stage(painted.addPlain({"check-off", "check-on", "check-off-disabled", "check-on-disabled"}, 13, 13));
  XPCheck check(stage.desk.kit);
  check.Caption("Cookies");
  check.resize(80, 17);
  check.Click = [&] {
    stage.log += check.Value() == 0.5F ? "half" : std::to_string(std::lrint(check.Value()));
  };
  const auto write = [&](float value) { return call([&check, value] { check.Value(value); }); };
  const auto enable = [&](bool enabled) { return call([&check, enabled] { check.Enabled(enabled); }); };
  stage.play(check, {{6, 2}},
             {
                 {"written", write(1), "1", "1"},
                 {"written again", write(1), "1", "1"},
                 {"disabled", enable(false), "", "3"},
                 {"clicked while disabled", click(10, 8), "", "3"},
                 {"pressed while disabled", call([&] { check.press(); }), "", "3"},
                 {"written while disabled", write(0), "0", "2"},
                 {"enabled", enable(true), "", "0"},
                 {"box clicked", click(10, 8), "1", "1"},
                 {"caption clicked", click(30, 8), "0", "0"},
                 {"clicked between them", click(23, 8), "", "0"},
                 {"clicked behind them", click(79, 8), "", "0"},
                 {"pressed", call([&] { check.press(); }), "1", "1"},
                 {"neither on nor off keeps the picture", write(0.5F), "half", "1"},
                 {"and a click switches off", click(10, 8), "0", "0"},
             });
}

TEST_CASE("stored properties come back, but for a button's state; what stands as it was made is not stored") {
  Desk desk;
  const Ambient ambient = {"chkBleach", std::make_shared<Font>()};
  PropertyBag bag, nothing;
  XPCheck check(desk.kit), loadedCheck(desk.kit);
  check.InitProperties(ambient);
  CHECK(check.Caption() == "chkBleach");
  check.Value(1);
  check.BackColor(colors::Window);
  check.WriteProperties(bag, ambient);
  CHECK_FALSE(bag.holds("Caption"));
  loadedCheck.Click = [] { FAIL("no click"); };
  loadedCheck.ReadProperties(bag, ambient);
  CHECK(loadedCheck.Value() == 1);
  CHECK(loadedCheck.BackColor() == colors::Window);

  XPGroupBox group(desk.kit);
  CHECK(group.BackColor() == colors::Page);
  group.ReadProperties(bag, {"grpIE", ambient.font});
  CHECK(group.Caption() == "grpIE");
  CHECK(group.BackColor() == colors::Window);

  XPCmdButton button(desk.kit), loaded(desk.kit);
  button.InitProperties(ambient);
  button.WriteProperties(nothing, ambient);
  for (const char* name : {"State", "Enabled", "Caption", "Font"}) CHECK_FALSE(nothing.holds(name));
  std::string changed;
  button.PropertyChanged = [&](std::string_view name) { changed += std::string(name) + ";"; };
  button.State(1);
  button.Enabled(false);
  button.Caption("&Stop");
  button.Font(std::make_shared<Font>(Font{.Name = "Tahoma"}));
  CHECK(changed == "State;Enabled;Caption;Font;");
  button.WriteProperties(bag, ambient);
  CHECK(bag.holds("State"));
  loaded.ReadProperties(bag, ambient);
  CHECK(loaded.State() == 0);
  CHECK_FALSE(loaded.Enabled());
  CHECK(loaded.Caption() == "&Stop");
  CHECK(loaded.Font()->Name == "Tahoma");
}

TEST_CASE("the simple check turns to the complement of its value, and tells clicks only") {
  PaintedArt painted;
  Stage stage(painted.addPlain({"check-on", "check-off"}, 13, 13));
  SimpleCheck check(stage.desk.kit);
  check.resize(14, 16);
  check.Click = [&] { stage.log += std::to_string(std::lrint(check.Value())); };
  CHECK(check.Value() == -1);
  const auto write = [&](float value) { return call([&check, value] { check.Value(value); }); };
  stage.play(check, {{0, 2}},
             {
                 {"empty at first, clicked", click(5, 2), "0", "0"},
                 {"clicked above the box", click(5, 1), "", "0"},
                 {"clicked again", click(5, 2), "-1", "1"},
                 {"1 is empty too", write(1), "", "1"},
                 {"clicked", click(5, 2), "-2", "1"},
                 {"clicked again", click(5, 2), "1", "1"},
                 {"not whole", write(0.4F), "", "1"},
                 {"counts as the nearest", click(5, 2), "-1", "1"},
             });
}
