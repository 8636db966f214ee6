#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <string>

#include "app/Program.h"
#include "support/TestPc.h"
#include "ui/TextWidth.h"
#include "ui/layout/WindowSpec.h"

using namespace zub;
using namespace zub::layout;

namespace {

const WindowSpec* const windows[] = {&mainWindow,     &progressWindow,       &reportWindow, &editorWindow,
                                     &ieCookieWindow, &netscapeCookieWindow, &aboutWindow,  &messageWindow};

bool overlap(const Place& a, const Place& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

// Two that may lie in one place: pages, the groups of which one shows, and the drawn message box, whose icons
// take turns on its background.
bool mayOverlap(const WindowSpec& window, const ControlSpec& a, const ControlSpec& b) {
  return a.kind == Kind::Page || (a.name == "grpIE" && b.name == "grpNS") || &window == &messageWindow;
}

// The room that a control gives its caption, twips; 0 for one that shows none.
int roomForCaption(const ControlSpec& control) {
  switch (control.kind) {
    case Kind::Button:
      return control.place.width - px(0, 0, 12, 0).width;
    case Kind::Check:
      return control.place.width - px(0, 0, 28, 0).width;
    case Kind::Radio:
      return control.place.width - px(0, 0, 20, 0).width;
    case Kind::Group:
      return control.place.width - px(0, 0, 30, 0).width;
    default:
      return 0;
  }
}

char accessKeyOf(std::string_view caption) {
  const std::size_t mark = caption.find('&');
  if (mark == std::string_view::npos || mark + 1 == caption.size()) return '\0';
  return caption[mark + 1] != ' ' ? caption[mark + 1] : '\0';
}

std::string_view pageOf(const WindowSpec& window, const ControlSpec& control) {
  const ControlSpec* at = &control;
  while (at != nullptr && at->kind != Kind::Page) at = find(window, at->parent);
  return at != nullptr ? at->name : "";
}

template <class Check>
void forEachControl(Check check) {
  for (const WindowSpec* window : windows) {
    for (const ControlSpec& control : window->controls) {
      CAPTURE(window->title);
      CAPTURE(control.name);
      check(*window, control);
    }
  }
}

// All pairs of controls, in the order of the window.
template <class Check>
void forEachPair(Check check) {
  forEachControl([&check](const WindowSpec& window, const ControlSpec& control) {
    for (const ControlSpec* other = &control + 1; other != window.controls.data() + window.controls.size();
         ++other) {
      CAPTURE(other->name);
      check(window, control, *other);
    }
  });
}

}  // namespace

TEST_CASE("controls lie inside what holds them, and beside each other") {
  forEachControl([](const WindowSpec& window, const ControlSpec& control) {
    const ControlSpec* parent = find(window, control.parent);
    CHECK((parent != nullptr) == !control.parent.empty());
    CHECK((parent == nullptr || parent < &control));  // a window is made in this order
    const Place room = parent != nullptr ? Place{0, 0, parent->place.width, parent->place.height}
                                         : Place{0, 0, window.width, window.height};
    const Place& place = control.place;
    CHECK(std::min(place.width, place.height) > 0);
    CHECK(std::min(place.left, place.top) >= 0);
    CHECK(place.right() <= room.width);
    CHECK(place.bottom() <= room.height);
  });
  forEachPair([](const WindowSpec& window, const ControlSpec& a, const ControlSpec& b) {
    CHECK(a.name != b.name);
    if (a.parent == b.parent && !mayOverlap(window, a, b)) CHECK_FALSE(overlap(a.place, b.place));
  });
}

TEST_CASE("no caption is cut off") {
  forEachControl([](const WindowSpec&, const ControlSpec& control) {
    const TextFont font = fontOf(control.text);
    if (const int room = roomForCaption(control); room != 0) CHECK(textWidth(control.caption, font) <= room);
    if (control.kind != Kind::Label || control.caption.empty()) return;
    CHECK(linesOf(control.caption, control.place.width, font) * lineHeight(font) <=
          control.place.height + TwipsPerPixel);
  });
}

TEST_CASE("each help label holds the longest text that it may show") {
  const auto holds = [](std::string_view label, std::string_view text) {
    const ControlSpec& control = *find(mainWindow, label);
    const TextFont font = fontOf(control.text);
    CAPTURE(text);
    CHECK(linesOf(text, control.place.width, font) * lineHeight(font) <= control.place.height);
  };
  const std::map<HelpLabel, std::string_view> labels = {{HelpLabel::Main, "lblHelp"},
                                                        {HelpLabel::Options, "lblOptionsHelp"},
                                                        {HelpLabel::Scheduler, "lblSchedulerHelp"}};
  for (const OptionHelp& help : optionHelp()) holds(labels.at(help.label), help.text);
  for (int row = 0; row < IconChecks::Count; ++row) {
    holds("lblHelp", helpOfPickedRow(row));
    holds("lblHelp", helpOfCheckedRow(row));
  }
  TestPc pc;
  Program program(pc.platform());
  program.start();
  for (int row = 0; row < program.options.standardlist.ListCount(); ++row) {
    program.options.standardlist.ListIndex(row);
    holds("lblStandardPluginDescription", program.main.lblStandardPluginDescription.Caption);
  }
}

TEST_CASE("an access key stands once among the controls that are seen together") {
  forEachPair([](const WindowSpec& window, const ControlSpec& a, const ControlSpec& b) {
    const char key = accessKeyOf(a.caption);
    const std::string_view here = pageOf(window, a), there = pageOf(window, b);
    const bool together = here.empty() || there.empty() || here == there;
    if (key == '\0' || !together || a.kind == Kind::Page || b.kind == Kind::Page) return;
    CHECK(std::tolower(key) != std::tolower(accessKeyOf(b.caption)));
  });
}

TEST_CASE("the Tab key goes through a group's controls from the top down, and from the left") {
  forEachPair([](const WindowSpec&, const ControlSpec& a, const ControlSpec& b) {
    if (a.parent != b.parent || a.kind != b.kind) return;
    if (a.kind != Kind::Check && a.kind != Kind::Button) return;
    CHECK(b.place.top >= a.place.top);
    CHECK((b.place.top >= a.place.bottom() || b.place.left > a.place.left));
  });
}

TEST_CASE("the main window's tabs stand in their order") {
  std::string tabs;
  for (const ControlSpec& control : mainWindow.controls) {
    if (control.kind == Kind::Page) (tabs += control.caption) += '|';
  }
  CHECK(tabs == "Main|Custom Plugins|Options|Scheduler| Standard Plugins|");
}

TEST_CASE("the colour under a control is that of its page, or of the window") {
  CHECK(groundOf(mainWindow, *find(mainWindow, "chkIECache")) == colors::Page);
  CHECK(groundOf(mainWindow, *find(mainWindow, "cmdRemove")) == colors::Window);
  CHECK(groundOf(progressWindow, *find(progressWindow, "lblCurrent")) == colors::ProgressWindow);
  CHECK(groundOf(ieCookieWindow, *find(ieCookieWindow, "chkSelectAll")) == colors::Window);
}
