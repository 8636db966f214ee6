#include <doctest/doctest.h>

#include <cmath>
#include <cstdio>
#include <functional>

#include "kit/Journey.h"
#include "support/Golden.h"
#include "ui/controls/Clock.h"
#include "ui/controls/ListBox.h"
#include "ui/controls/MinMax.h"
#include "ui/controls/TabStrip.h"
#include "ui/controls/XPCheck.h"
#include "ui/controls/XPCmdButton.h"
#include "ui/controls/XPGroupBox.h"
#include "ui/controls/ZUBCloseButton.h"

using namespace zub;
using namespace zub::controls;

namespace {

Handler logs(std::string& log, const std::string& event) {
  return [&log, event] { log += event + ' '; };
}

MouseEvent mouse(std::string& log, const char* event) {
  return [&log, event](std::int16_t& buttons, std::int16_t&, float& x, float& y) {
    char text[64];
    std::snprintf(text, sizeof text, "%s(%d:%g,%g) ", event, buttons, static_cast<double>(x),
                  static_cast<double>(y));
    log += text;
  };
}

auto number(std::string& log, const char* event) {
  return [&log, event](std::int16_t& value, auto&...) { log += event + std::to_string(value) + ' '; };
}

Actor button(Desk& desk, std::string& log) {
  auto control = std::make_unique<XPCmdButton>(desk.kit);
  XPCmdButton& button = *control;
  button.Caption("&Start Cleaning");
  button.resize(100, 25);
  button.MouseDown = mouse(log, "Down");
  button.MouseMove = mouse(log, "Move");
  button.MouseUp = mouse(log, "Up");
  button.MouseOut = logs(log, "Out");
  button.KeyDown = number(log, "KeyDown");
  button.KeyUp = number(log, "KeyUp");
  button.KeyPress = number(log, "KeyPress");
  button.Click = logs(log, "Click");
  return {std::move(control), {3, 3}, {50, 12}, [&button] {
            return std::vector<Step>{{"marked", call([&] { button.State(1); })},
                                     {"a state that is none", call([&] { button.State(2); })},
                                     {"disabled", call([&] { button.Enabled(false); })},
                                     {"a state while disabled", call([&] { button.State(0); })},
                                     {"enabled", call([&] { button.Enabled(true); })},
                                     {"another ground", call([&] { button.BackColor(colors::Window); })},
                                     {"another caption", call([&] { button.Caption("&Go"); })},
                                     {"other letters", call([&] { button.Font(std::make_shared<Font>()); })},
                                     {"another size", call([&] { button.resize(60, 20); })},
                                     {"marked", call([&] { button.State(1); })}};
          }};
}

Actor group(Desk& desk, std::string& log) {
  auto control = std::make_unique<XPGroupBox>(desk.kit);
  XPGroupBox& group = *control;
  group.Caption("Internet Explorer");
  group.resize(140, 50);
  group.Click = logs(log, "Click");
  group.DblClick = logs(log, "DblClick");
  group.MouseDown = mouse(log, "Down");
  group.MouseMove = mouse(log, "Move");
  group.MouseUp = mouse(log, "Up");
  return {std::move(control), {50, 30}, {17, 5}, [&group] {
            return std::vector<Step>{{"no caption", call([&] { group.Caption(""); })},
                                     {"other letters", call([&] { group.Font(std::make_shared<Font>()); })}};
          }};
}

Actor check(Desk& desk, std::string& log) {
  auto control = std::make_unique<XPCheck>(desk.kit);
  XPCheck& check = *control;
  check.Caption("Cookies");
  check.resize(80, 18);
  check.Click = [&] {
    log += check.Value() == 0.5F ? "half " : "is " + std::to_string(std::lrint(check.Value())) + ' ';
  };
  const auto write = [&check](float value) { return call([&check, value] { check.Value(value); }); };
  return {std::move(control), {10, 8}, {30, 8}, [&check, write] {
            return std::vector<Step>{{"written", write(1)},
                                     {"written again", write(1)},
                                     {"disabled", call([&] { check.Enabled(false); })},
                                     {"written while disabled", write(0)},
                                     {"enabled", call([&] { check.Enabled(true); })},
                                     {"neither on nor off", write(0.5F)},
                                     {"clicked", click(10, 8)},
                                     {"clicked again", click(10, 8)},
                                     {"another caption", call([&] { check.Caption("Go"); })}};
          }};
}

Actor simpleCheck(Desk& desk, std::string& log) {
  auto control = std::make_unique<SimpleCheck>(desk.kit);
  SimpleCheck& check = *control;
  check.resize(14, 16);
  check.Click = [&] { log += "is " + std::to_string(std::lrint(check.Value())) + ' '; };
  const auto write = [&check](float value) { return call([&check, value] { check.Value(value); }); };
  return {std::move(control), {5, 5}, {5, 1}, [write] {
            return std::vector<Step>{{"1 is empty too", write(1)},
                                     {"clicked", click(5, 2)},
                                     {"clicked again", click(5, 2)},
                                     {"not whole", write(0.4F)},
                                     {"clicked as the nearest", click(5, 2)},
                                     {"ticked", write(0)}};
          }};
}

Actor closeButton(Desk& desk, std::string& log) {
  auto control = std::make_unique<ZUBCloseButton>(desk.kit);
  control->Click = logs(log, "Click");
  return {std::move(control), {5, 5}, {0, 0}, [] { return std::vector<Step>(); }};
}

Actor minMax(Desk& desk, std::string& log) {
  auto control = std::make_unique<MinMax>(desk.kit);
  MinMax& buttons = *control;
  buttons.MinClicked = logs(log, "Min");
  buttons.CloseClicked = logs(log, "Close");
  const auto tip = [&](int x) {
    return call([&log, &buttons, x] { log += std::string(buttons.toolTip({x, 3})) + ' '; });
  };
  return {std::move(control), {5, 5}, {25, 5}, [tip] {
            return std::vector<Step>{
                {"tip of the first", tip(3)}, {"of the second", tip(22)}, {"beside them", tip(60)}};
          }};
}

template <class Tabs>
Actor tabs(std::unique_ptr<Tabs> control, std::string& log) {
  Tabs& strip = *control;
  strip.Click = number(log, "");
  const auto show = [&strip](std::int16_t tab) { return call([&strip, tab] { strip.ShowTab(tab); }); };
  return {std::move(control), {100, 10}, {150, 10}, [show] {
            return std::vector<Step>{{"by code", show(2)},
                                     {"the one behind", show(3)},
                                     {"no tab", show(4)},
                                     {"none either", show(-1)}};
          }};
}

Actor mainTabs(Desk& desk, std::string& log) {
  auto control = std::make_unique<XPTab>(desk.kit);
  control->Main = logs(log, "Main");
  control->Plugins = logs(log, "Plugins");
  control->Options = logs(log, "Options");
  control->ZUBScheduler = logs(log, "Scheduler");
  return tabs(std::move(control), log);
}

Actor editorTabs(Desk& desk, std::string& log) {
  auto control = std::make_unique<TabPluginsEditor>(desk.kit);
  control->Registry = logs(log, "Registry");
  control->Files = logs(log, "Files");
  control->Comments = logs(log, "Comments");
  return tabs(std::move(control), log);
}

Actor timeDisplay(Desk& desk, std::string&) {
  auto control = std::make_unique<Clock>(desk.kit);
  Clock& clock = *control;
  return {
      std::move(control),
      {5, 5},
      {60, 20},
      [&clock] {
        std::vector<Step> all = {{"the colon", call([&clock] { clock.Blink(); })}};
        for (const char* time : {"12:30", "1:30", "9:05", "12:30 PM", "123456", "1:", "", "ab:c7", "1:2:3"})
          all.push_back({time, call([&clock, time] { clock.SetText(time); })});
        all.push_back({"the colon goes", call([&clock] { clock.Blink(); })});
        return all;
      },
      [&clock] {
        std::string look;
        for (const int digit : clock.digits()) look += digit == Clock::Blank ? "_" : std::to_string(digit);
        return look + (clock.colonIsVisible() ? " with its colon, \"" : ", \"") + clock.described().name +
               '"';
      }};
}

Act times(int count, const Act& act) {
  return [=](Desk& desk, Control& control) {
    for (int time = 0; time < count; ++time) act(desk, control);
  };
}

// The selected item, those that are highlighted, the ticked ones; the tops of the panel and of the thumb; where the
// keyboard's frame is.
std::string lookOfList(const ListBox& list) {
  std::string text = std::to_string(list.Selected()) + " of ", ticked;
  for (std::int16_t item = 0; item < ListBox::Items; ++item) {
    if (list.highlighted()[static_cast<std::size_t>(item)]) text += std::to_string(item);
    if (list.Check(item) != 0) ticked += std::to_string(item);
  }
  const Box frame = list.focusPlace();
  return text + (ticked.empty() ? "" : ", ticked " + ticked) + "; " + std::to_string(list.panelTop()) + ' ' +
         std::to_string(list.thumbTop()) + "; frame " + std::to_string(frame.left) + ',' +
         std::to_string(frame.top) + ' ' + std::to_string(frame.width) + 'x' + std::to_string(frame.height);
}

Actor list(Desk& desk, std::string& log) {
  // In the middle of the two arrows and of the thumb at its upper end.
  constexpr float Arrow = 397, Down = 65, Up = 8, Thumb = 27;
  auto control = std::make_unique<ListBox>(desk.kit);
  ListBox& list = *control;
  list.ItemName(9, "Find History");
  list.ClickSelect = number(log, "select ");
  list.ClickCheck = number(log, "check ");
  list.Initialise();
  const auto select = [&list](std::int16_t item) { return call([&list, item] { list.Selected(item); }); };
  const auto tick = [&list](std::int16_t value) { return call([&list, value] { list.Check(9, value); }); };
  const Act drag = move(LeftButton, Arrow, Thumb), up = zub::controls::up(LeftButton, Arrow, Thumb);
  return {std::move(control),
          {220, 30},
          {8, 15},
          [=, &list] {
            return std::vector<Step>{
                {"its beginning", call([&list] { list.Initialise(); })},
                {"right", key(39)},
                {"left", key(37)},
                {"left of the first", key(37)},
                {"a write changes no picture", select(7)},
                {"so the next selection takes back the highlight of 7", click(220, 30)},
                {"a write too far", select(12)},
                {"right of the last", key(39)},
                {"a write too low", select(-1)},
                {"ticked by its owner", tick(5)},
                {"and not", tick(0)},
                {"ticked by a reader of the screen", call([&list] { list.pressPart(2); })},
                {"selected by it", call([&list] { list.selectPart(4); })},
                {"a box over the picture before it", click(187, 15)},
                {"up at the upper end", click(Arrow, Up)},
                {"down", down(LeftButton, Arrow, Down)},
                {"moved while held", move(LeftButton, Arrow, Down)},
                {"the arrow keeps the mouse", move(LeftButton, 0, 0)},
                {"with both buttons", move(LeftButton | RightButton, Arrow, Down)},
                {"released", zub::controls::up(LeftButton, Arrow, Down)},
                {"moved", move(0, Arrow, Down)},
                {"out of sight", times(297, click(Arrow, Down))},
                {"down at the lower end", click(Arrow, Down)},
                {"a picture there", click(30, 50)},
                {"a box there", click(65, 16)},
                {"up", down(LeftButton, Arrow, Up)},
                {"moved while held", move(LeftButton, Arrow, Up)},
                {"released", up},
                {"to the upper end", times(300, click(Arrow, Up))},
                {"on the thumb", down(LeftButton, Arrow, Thumb)},
                {"it runs down wherever the mouse is", times(299, move(LeftButton, Arrow, 0))},
                {"the last step", drag},
                {"the end", drag},
                {"released", up},
                {"on the thumb where it is now", down(LeftButton, Arrow, 45)},
                {"moved down it runs up", move(LeftButton, Arrow, 50)},
                {"the direction stays", drag},
                {"released", up},
                {"a step down", click(Arrow, Down)},
                {"on the thumb", down(LeftButton, Arrow, 45)},
                {"short of the end it runs down", drag}};
          },
          [&list] { return lookOfList(list); }};
}

Actor heard(const Make& make, Desk& desk, std::string& log) {
  Actor made = make(desk, log);
  made.control->PropertyChanged = [&log](std::string_view name) { log.append(name).append(" changes "); };
  return made;
}

std::string valueOf(const Control& control) {
  if (const auto* button = dynamic_cast<const XPCmdButton*>(&control))
    return ", state " + std::to_string(button->State());
  const auto* box = dynamic_cast<const SimpleCheck*>(&control);
  const bool ticked = box != nullptr ? box->Value() == SimpleCheck::Ticked : control.described().checked;
  return ticked ? ", ticked" : "";
}

}  // namespace

TEST_CASE("each control takes the mouse, the keyboard and its owner's wishes as was approved") {
  const std::pair<const char*, Make> all[] = {{"XPCmdButton", button},
                                              {"XPGroupBox", group},
                                              {"XPCheck", check},
                                              {"SimpleCheck", simpleCheck},
                                              {"ZUBCloseButton", closeButton},
                                              {"MinMax", minMax},
                                              {"XPTab", mainTabs},
                                              {"TabPluginsEditor", editorTabs},
                                              {"ListBox", list},
                                              {"Clock", timeDisplay}};
  std::string text;
  for (const auto& [name, make] : all)
    text += std::string(name) + '\n' + journeyOf(std::bind_front(heard, make)) + '\n';
  checkGolden("journeys.txt", text);
}

TEST_CASE("stored properties come back, but for a button's state; what stands as it was made is not stored") {
  const Ambient ambient = {"chkBleach", std::make_shared<Font>()};
  const std::pair<const char*, Make> all[] = {
      {"XPCmdButton", button}, {"XPGroupBox", group}, {"XPCheck", check}, {"SimpleCheck", simpleCheck}};
  Desk desk;
  std::string text, log;
  for (const auto& [name, make] : all) {
    Actor made = make(desk, log);
    const auto tell = [&](const char* when, const Control& control, const PropertyBag& bag) {
      text += std::string(name) + ' ' + when + ": \"" + control.Caption() + '"' +
              (control.Enabled() ? "" : ", disabled") + valueOf(control) +
              (control.BackColor() == colors::Page ? "" : ", on another ground") + "; stored";
      for (const char* stored : {"State", "Enabled", "Caption", "Font", "Value", "BackColor"})
        if (bag.holds(stored)) text += std::string(" ") + stored;
      text += '\n';
    };
    PropertyBag bag;
    made.control->InitProperties(ambient);
    made.control->WriteProperties(bag, ambient);
    tell("as it was made", *made.control, bag);
    for (const Step& wish : made.wishes()) wish.act(desk, *made.control);
    made.control->BackColor(colors::Window);
    made.control->Enabled(false);
    made.control->WriteProperties(bag, ambient);
    tell("as its owner wants it", *made.control, bag);
    Actor loaded = heard(make, desk, log);
    log.clear();
    loaded.control->ReadProperties(bag, ambient);
    tell("as it comes back", *loaded.control, bag);
    text += "  which raises " + log + '\n';
    loaded.control->ReadProperties({}, ambient);
    tell("from nothing", *loaded.control, {});
  }
  checkGolden("properties.txt", text);
}

TEST_CASE("only a drag with the left button alone moves a window") {
  CHECK(dragsWindow(LeftButton));
  for (const int buttons : {0, 2, 3, 4, 5}) CHECK_FALSE(dragsWindow(static_cast<std::int16_t>(buttons)));
}
