#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <set>
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

Place roomIn(const WindowSpec& window, const ControlSpec& control) {
  const ControlSpec* parent = find(window, control.parent);
  return parent != nullptr ? Place{0, 0, parent->place.width, parent->place.height}
                           : Place{0, 0, window.width, window.height};
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

}  // namespace

TEST_CASE("controls lie inside what holds them, and beside each other") {
  for (const WindowSpec* window : windows) {
    std::set<std::string_view> told;
    for (const ControlSpec& control : window->controls) {
      CAPTURE(window->title);
      CAPTURE(control.name);
      CHECK(told.insert(control.name).second);
      CHECK((control.parent.empty() || told.contains(control.parent)));
      const Place room = roomIn(*window, control);
      const Place& place = control.place;
      CHECK(place.width > 0);
      CHECK(place.height > 0);
      CHECK(place.left >= 0);
      CHECK(place.top >= 0);
      CHECK(place.right() <= room.width);
      CHECK(place.bottom() <= room.height);
      for (const ControlSpec& other : window->controls) {
        if (&other <= &control || other.parent != control.parent) continue;
        if (mayOverlap(*window, control, other)) continue;
        CAPTURE(other.name);
        CHECK_FALSE(overlap(place, other.place));
      }
    }
  }
  CHECK(find(mainWindow, "grpIE")->place == find(mainWindow, "grpNS")->place);
}

TEST_CASE("no caption is cut off") {
  for (const WindowSpec* window : windows) {
    for (const ControlSpec& control : window->controls) {
      CAPTURE(window->title);
      CAPTURE(control.name);
      const TextFont font = fontOf(control.text);
      if (const int room = roomForCaption(control); room != 0)
        CHECK(textWidth(control.caption, font) <= room);
      if (control.kind != Kind::Label || control.caption.empty()) continue;
      CHECK(linesOf(control.caption, control.place.width, font) * lineHeight(font) <=
            control.place.height + TwipsPerPixel);
    }
  }
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
  for (const WindowSpec* window : windows) {
    for (const ControlSpec& control : window->controls) {
      const char key = accessKeyOf(control.caption);
      if (key == '\0' || control.kind == Kind::Page) continue;
      for (const ControlSpec& other : window->controls) {
        const std::string_view here = pageOf(*window, control), there = pageOf(*window, other);
        const bool together = here.empty() || there.empty() || here == there;
        if (&other <= &control || !together || other.kind == Kind::Page) continue;
        CAPTURE(window->title);
        CAPTURE(control.name);
        CAPTURE(other.name);
        CHECK(std::tolower(key) != std::tolower(accessKeyOf(other.caption)));
      }
    }
  }
}

TEST_CASE("the Tab key goes through a group's controls from the top down, and from the left") {
  for (const WindowSpec* window : windows) {
    for (const ControlSpec& control : window->controls) {
      for (const ControlSpec& next : window->controls) {
        if (&next <= &control || next.parent != control.parent || control.kind != next.kind) continue;
        if (control.kind != Kind::Check && control.kind != Kind::Button) continue;
        CAPTURE(control.name);
        CAPTURE(next.name);
        const bool below = next.place.top >= control.place.top;
        const bool sameRow = next.place.top < control.place.bottom();
        CHECK(below);
        CHECK((!sameRow || next.place.left > control.place.left));
      }
    }
  }
}

TEST_CASE("the main window's tabs and its controls are named as they are told") {
  const struct {
    std::string_view name, page, caption, toolTip;
  } controls[] = {
      {"cmdRemove", "", "&Start Cleaning", "Start the cleaning process"},
      {"cmdViewLog", "", "&View Log", "View log"},
      {"cmdHelp", "", "Help", "Online Help"},
      {"cmdAbout", "", "About", "About ZUB"},
      {"LstIcons", "pageMain", "", ""},
      {"chkIEIndex", "pageMain", "Index.dat", "Clean IE index.dat temporary files"},
      {"cmdNSKeep", "pageMain", "Manage", "Manage which netscape cookies to keep"},
      {"cmdDownload", "pagePlugins", "Download Plugins", "Download new plugins"},
      {"chkSelectAll", "pagePlugins", "Select All", "Select / De-select all plugins"},
      {"chkSkipMessages", "pageOptions", "Show pop-up error messages",
       "Allow error popup messages to appear"},
      {"chkRunStarted", "pageOptions", "Starts", "Run ZUB with windows startup and run cleaning process"},
      {"chkRunShutDown", "pageOptions", "ShutDown", ""},
      {"cmbShredder", "pageOptions", "", "Number of times to shred the file/folder"},
      {"chkRunAuto", "pageScheduler", "Automatic Run", "Automatically run ZUB every?"},
      {"cmdAdd", "pageScheduler", "&Add", ""},
      {"cmdRemoveScheduled", "pageScheduler", "&Remove", ""},
      {"StandardPluginsSelectAll", "pageStandard", "Select All", ""},
  };
  for (const auto& told : controls) {
    CAPTURE(told.name);
    const ControlSpec* control = find(mainWindow, told.name);
    REQUIRE(control != nullptr);
    CHECK(pageOf(mainWindow, *control) == told.page);
    CHECK(control->caption == told.caption);
    CHECK(control->toolTip == told.toolTip);
  }
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
