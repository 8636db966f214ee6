#include "kit/Play.h"
#include "ui/controls/Clock.h"
#include "ui/controls/MinMax.h"
#include "ui/controls/TabStrip.h"
#include "ui/controls/ZUBCloseButton.h"

using namespace zub;
using namespace zub::controls;

TEST_CASE("the clock reads a time leniently") {
  constexpr int None = Clock::Blank;
  const struct {
    const char* text;
    std::array<int, 4> digits;
  } cases[] = {
      {"12:30", {1, 2, 3, 0}},    {"1:30", {None, 1, 3, 0}}, {"9:05", {None, 9, 0, 5}},
      {"12:30 PM", {1, 2, 3, 0}}, {"123456", {1, 2, 4, 5}},  {"1:", {None, 1, 0, 0}},
      {"", {0, 0, 0, 0}},         {"ab:c7", {0, 0, 0, 7}},   {"1:2:3", {None, 1, 2, 0}},
  };
  Desk desk;
  Clock clock(desk.kit);
  CHECK(clock.digits() == std::array<int, 4>{None, None, None, None});
  for (const auto& [text, digits] : cases) {
    CAPTURE(text);
    clock.SetText(text);
    CHECK(clock.digits() == digits);
  }
  CHECK_FALSE(clock.colonIsVisible());
  for (const bool visible : {true, false}) {
    clock.Blink();
    CHECK(clock.colonIsVisible() == visible);
  }
}

TEST_CASE("the close button follows the mouse") {
  PaintedArt painted;
  Stage stage(painted.addPlain({"close-rest", "close-pressed", "close-hot"}, 25, 20));
  ZUBCloseButton button(stage.desk.kit);
  button.Click = stage.logs("Click");
  CHECK(button.timer().Interval == 10);
  stage.play(button, {{1, 1}},
             {
                 {"at first", tick(5, 5), "", "0", true},
                 {"the pointer is elsewhere", tick(30, 5), "", "0", false},
                 {"on the margin", move(0, 0, 0), "", "0", false},
                 {"over it", move(0, 5, 5), "", "2", true},
                 {"the far edges are inside", tick(29, 23), "", "2", true},
                 {"down", down(LeftButton, 5, 5), "", "1", true},
                 {"dragged out", move(LeftButton, 60, 5), "", "1", true},
                 {"left while held", tick(60, 5), "", "0", false},
                 {"back", move(LeftButton, 5, 5), "", "1", true},
                 {"up", up(LeftButton, 5, 5), "Click", "0", true},
                 {"right held", move(RightButton, 5, 5), "", "2", true},
                 {"a click on its lower right corner", click(25, 20), "Click", "0", true},
             });
}

TEST_CASE("a tab shows its strip and raises its own event, then Click") {
  PaintedArt painted;
  painted.addPlain({"tab-top-0", "tab-top-1", "tab-top-2", "tab-top-3"}, 276, 20);
  Stage stage(painted.addPlain({"tab-editor-0", "tab-editor-1", "tab-editor-2"}, 202, 20));
  const auto logsIndex = [&](std::int16_t& index) { stage.log += std::to_string(index); };
  XPTab top(stage.desk.kit);
  top.Main = stage.logs("Main ");
  top.Plugins = stage.logs("Plugins ");
  top.Options = stage.logs("Options ");
  top.ZUBScheduler = stage.logs("Scheduler ");
  top.Click = logsIndex;
  stage.play(top, {{0, 0}},
             {
                 {"the second", click(100, 10), "Plugins 1", "1"},
                 {"the third", click(150, 10), "Options 2", "2"},
                 {"the end of the fourth", click(275, 10), "Scheduler 3", "3"},
                 {"behind it", click(279, 10), "", "3"},
                 {"the end of the first", click(59, 10), "Main 0", "0"},
                 {"by code", call([&] { top.ShowTab(2); }), "Options 2", "2"},
                 {"no tab", call([&] { top.ShowTab(4); }), "", "2"},
                 {"no tab either", call([&] { top.ShowTab(-1); }), "", "2"},
             });
  TabPluginsEditor editor(stage.desk.kit);
  editor.Registry = stage.logs("Registry ");
  editor.Files = stage.logs("Files ");
  editor.Comments = stage.logs("Comments ");
  editor.Click = logsIndex;
  stage.play(editor, {{0, 0}},
             {
                 {"the second", click(100, 10), "Files 1", "1"},
                 {"where the third lies over it", click(140, 10), "Comments 2", "2"},
                 {"before the first", click(1, 10), "", "2"},
                 {"the first", click(4, 10), "Registry 0", "0"},
             });
}

TEST_CASE("the title buttons follow the mouse, one of them at most") {
  PaintedArt painted;
  painted.add("minmax-background", 38, 20, [](int, int) { return Opaque | 9; });
  Stage stage(painted.addPlain(
      {"minmax-minimise-hot", "minmax-close-hot", "minmax-minimise-pressed", "minmax-close-pressed"}, 18,
      20));
  MinMax buttons(stage.desk.kit);
  buttons.MinClicked = stage.logs("min");
  buttons.CloseClicked = stage.logs("close");
  CHECK(buttons.timer().Interval == 1);
  CHECK(buttons.toolTip({3, 3}) == "Minimise to tray");
  CHECK(buttons.toolTip({22, 3}) == "Close");
  stage.play(buttons, {{0, 0}, {37, 0}},
             {
                 {"over the first", move(0, 3, 3), "", "09", true},
                 {"over the second", move(0, 30, 3), "", "91", true},
                 {"down", down(LeftButton, 30, 3), "", "93", false},
                 {"moved while held", move(LeftButton, 3, 3), "", "93", false},
                 {"up", up(LeftButton, 30, 3), "close", "99", false},
                 {"down on the first", down(LeftButton, 3, 3), "", "29", false},
                 {"up on the other is no click", up(LeftButton, 30, 3), "", "99", false},
                 {"a click on the first", click(3, 3), "min", "99", false},
                 {"over the first again", move(0, 3, 3), "", "09", true},
                 {"the pointer stays", tick(38, 20), "", "09", true},
                 {"the pointer has left", tick(3, 21), "", "99", false},
             });
}

TEST_CASE("only a drag with the left button alone moves a window") {
  CHECK(dragsWindow(LeftButton));
  for (const int buttons : {0, 2, 3, 4, 5}) CHECK_FALSE(dragsWindow(static_cast<std::int16_t>(buttons)));
}
