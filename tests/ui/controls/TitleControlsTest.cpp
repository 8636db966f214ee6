#include <doctest/doctest.h>

#include "kit/Canvas.h"
#include "kit/Desk.h"
#include "kit/PaintedArt.h"
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
      {":1234", {0, 1, 3, 4}},
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
  clock.Blink();
  CHECK(clock.colonIsVisible());
  clock.Blink();
  CHECK_FALSE(clock.colonIsVisible());
}

TEST_CASE("the close button follows the mouse") {
  constexpr std::uint32_t Rest = 0, Pressed = 1, Hot = 2;
  PaintedArt painted;
  Desk desk(painted.addPlain({"close-rest", "close-pressed", "close-hot"}, 25, 20).art());
  ZUBCloseButton button(desk.kit);
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  const auto tick = [&](int x, int y) {
    desk.pointer.at = {x, y};
    button.timerTick();
  };
  CHECK(button.timer().Interval == 10);
  const struct {
    const char* what;
    std::function<void()> act;
    std::uint32_t picture;
    bool tracking;
    int clicks;
  } steps[] = {
      {"at first", [] {}, Rest, true, 0},
      {"the pointer is elsewhere", [&] { tick(30, 5); }, Rest, false, 0},
      {"on the margin",
       [&] {
         button.mouseMove({0, 0, 0, 0});
       },
       Rest, false, 0},
      {"over it",
       [&] {
         button.mouseMove({0, 0, 5, 5});
       },
       Hot, true, 0},
      {"the far edges are inside", [&] { tick(29, 23); }, Hot, true, 0},
      {"down",
       [&] {
         button.mouseDown({LeftButton, 0, 5, 5});
       },
       Pressed, true, 0},
      {"dragged out",
       [&] {
         button.mouseMove({LeftButton, 0, 60, 5});
       },
       Pressed, true, 0},
      {"left while held", [&] { tick(60, 5); }, Rest, false, 0},
      {"back",
       [&] {
         button.mouseMove({LeftButton, 0, 5, 5});
       },
       Pressed, true, 0},
      {"up",
       [&] {
         button.mouseUp({LeftButton, 0, 5, 5});
       },
       Rest, true, 1},
      {"right held",
       [&] {
         button.mouseMove({RightButton, 0, 5, 5});
       },
       Hot, true, 1},
  };
  for (const auto& step : steps) {
    CAPTURE(step.what);
    step.act();
    CHECK(Canvas::of(button).at(1, 1) == step.picture);
    CHECK(button.timer().Enabled == step.tracking);
    CHECK(clicks == step.clicks);
  }
}

TEST_CASE("a tab shows its strip and raises its own event, then Click") {
  PaintedArt painted;
  painted.addPlain({"tab-top-0", "tab-top-1", "tab-top-2", "tab-top-3"}, 276, 20);
  painted.addPlain({"tab-editor-0", "tab-editor-1", "tab-editor-2"}, 202, 20);
  Desk desk(painted.art());
  std::string log;
  const auto logs = [&](const char* text) { return [&log, text] { log += text; }; };
  const auto logsIndex = [&](std::int16_t& index) { log += std::to_string(index); };
  XPTab top(desk.kit);
  top.Main = logs("Main ");
  top.Plugins = logs("Plugins ");
  top.Options = logs("Options ");
  top.ZUBScheduler = logs("Scheduler ");
  top.Click = logsIndex;
  TabPluginsEditor editor(desk.kit);
  editor.Registry = logs("Registry ");
  editor.Files = logs("Files ");
  editor.Comments = logs("Comments ");
  editor.Click = logsIndex;

  const struct {
    TabStrip& strip;
    float x;
    const char* raised;
    std::uint32_t shown;
  } clicks[] = {
      {top, 100, "Plugins 1", 1},     {top, 150, "Options 2", 2},
      {top, 275, "Scheduler 3", 3},   {top, 279, "", 3},
      {top, 59, "Main 0", 0},         {editor, 100, "Files 1", 1},
      {editor, 140, "Comments 2", 2}, {editor, 1, "", 2},
      {editor, 4, "Registry 0", 0},
  };
  for (const auto& [strip, x, raised, shown] : clicks) {
    CAPTURE(raised);
    log.clear();
    strip.mouseDown({LeftButton, 0, x, 10});
    strip.mouseUp({LeftButton, 0, x, 10});
    CHECK(log == raised);
    CHECK(Canvas::of(strip).at(0, 0) == shown);
  }
  log.clear();
  top.ShowTab(2);
  top.ShowTab(4);
  top.ShowTab(-1);
  CHECK(log == "Options 2");
}

TEST_CASE("the title buttons follow the mouse, one of them at most") {
  constexpr std::uint32_t Rest = 9;
  PaintedArt painted;
  painted.add("minmax-background", 38, 20, [](int, int) { return Opaque | Rest; });
  Desk desk(painted
                .addPlain({"minmax-minimise-hot", "minmax-close-hot", "minmax-minimise-pressed",
                           "minmax-close-pressed"},
                          18, 20)
                .art());
  MinMax buttons(desk.kit);
  std::string log;
  buttons.MinClicked = [&] { log += "min;"; };
  buttons.CloseClicked = [&] { log += "close;"; };
  CHECK(buttons.timer().Interval == 1);
  CHECK(buttons.toolTip({3, 3}) == "Minimise to tray");
  CHECK(buttons.toolTip({22, 3}) == "Close");

  const struct {
    const char* what;
    std::function<void()> act;
    std::uint32_t minimise, close;
    bool tracking;
    const char* raised;
  } steps[] = {
      {"over the first",
       [&] {
         buttons.mouseMove({0, 0, 3, 3});
       },
       0, Rest, true, ""},
      {"over the second",
       [&] {
         buttons.mouseMove({0, 0, 30, 3});
       },
       Rest, 1, true, ""},
      {"down",
       [&] {
         buttons.mouseDown({LeftButton, 0, 30, 3});
       },
       Rest, 3, false, ""},
      {"moved while held",
       [&] {
         buttons.mouseMove({LeftButton, 0, 3, 3});
       },
       Rest, 3, false, ""},
      {"up",
       [&] {
         buttons.mouseUp({LeftButton, 0, 30, 3});
       },
       Rest, Rest, false, "close;"},
      {"down on the first",
       [&] {
         buttons.mouseDown({LeftButton, 0, 3, 3});
       },
       2, Rest, false, ""},
      {"up on the other is no click",
       [&] {
         buttons.mouseUp({LeftButton, 0, 30, 3});
       },
       Rest, Rest, false, ""},
      {"over the first again",
       [&] {
         buttons.mouseMove({0, 0, 3, 3});
       },
       0, Rest, true, ""},
      {"the pointer stays",
       [&] {
         desk.pointer.at = {38, 20};
         buttons.timerTick();
       },
       0, Rest, true, ""},
      {"the pointer has left",
       [&] {
         desk.pointer.at = {3, 21};
         buttons.timerTick();
       },
       Rest, Rest, false, ""},
  };
  for (const auto& step : steps) {
    CAPTURE(step.what);
    log.clear();
    step.act();
    const Canvas canvas = Canvas::of(buttons);
    CHECK(canvas.at(0, 0) == step.minimise);
    CHECK(canvas.at(37, 0) == step.close);
    CHECK(buttons.timer().Enabled == step.tracking);
    CHECK(log == step.raised);
  }
}

TEST_CASE("only a drag with the left button alone moves a window") {
  CHECK(dragsWindow(LeftButton));
  for (const int buttons : {0, 2, 3, 4, 5}) CHECK_FALSE(dragsWindow(static_cast<std::int16_t>(buttons)));
}
