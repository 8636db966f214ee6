#include <doctest/doctest.h>

#include <map>
#include <string>

#include "ui/TextWidth.h"
#include "ui/Windows.h"

using namespace zub;
using namespace zub::layout;

namespace {

bool overlap(const Place& a, const Place& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

// Two that may lie in one place: pages, the groups of which one shows, and the icons of the drawn message box.
bool mayOverlap(const ControlSpec& a, const ControlSpec& b) {
  return a.kind == Kind::Page || (a.name == "grpIE" && b.name == "grpNS") ||
         (a.name.starts_with("img") && b.name.starts_with("img"));
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

char accessKeyOf(const ControlSpec& control) {
  const std::string_view caption = captionOf(control);
  const std::size_t mark = caption.find('&');
  if (control.kind == Kind::Page || mark == std::string_view::npos || mark + 1 == caption.size()) return '\0';
  return caption[mark + 1] != ' ' ? static_cast<char>(std::tolower(caption[mark + 1])) : '\0';
}

template <class Check>
void forEachControl(const Windows& windows, Check check) {
  for (const WindowSpec& window : windows.all) {
    walk(window.controls, [&](const ControlSpec& control, const ControlSpec* holder, std::string_view page) {
      CAPTURE(window.face.title);
      CAPTURE(control.name);
      check(window, control, holder, page);
    });
  }
}

// All pairs of controls that one thing holds, in the order of the window.
template <class Check>
void forEachPair(const Windows& windows, Check check) {
  const auto pairsOf = [&](const Controls& controls) {
    for (std::size_t a = 0; a < controls.size(); ++a) {
      for (std::size_t b = a + 1; b < controls.size(); ++b) {
        CAPTURE(controls[a].name);
        CAPTURE(controls[b].name);
        check(controls[a], controls[b]);
      }
    }
  };
  for (const WindowSpec& window : windows.all) pairsOf(window.controls);
  forEachControl(
      windows, [&](const auto&, const ControlSpec& control, const auto*, auto) { pairsOf(control.inside); });
}

}  // namespace

TEST_CASE("controls lie inside what holds them, and beside each other") {
  const Windows windows;
  forEachControl(windows,
                 [](const WindowSpec& window, const ControlSpec& control, const ControlSpec* holder, auto) {
                   const int width = holder != nullptr ? holder->place.width : window.face.width;
                   const int height = holder != nullptr ? holder->place.height : window.face.height;
                   const Place& place = control.place;
                   CHECK(std::min(place.width, place.height) > 0);
                   CHECK(std::min(place.left, place.top) >= 0);
                   CHECK(place.right() <= width);
                   CHECK(place.bottom() <= height);
                 });
  forEachPair(windows, [](const ControlSpec& a, const ControlSpec& b) {
    if (!mayOverlap(a, b)) CHECK_FALSE(overlap(a.place, b.place));
  });
}

TEST_CASE("no caption is cut off") {
  const Windows windows;
  forEachControl(windows, [](const auto&, const ControlSpec& control, const auto*, auto) {
    const TextFont font = fontOf(control.text);
    const std::string_view caption = captionOf(control);
    if (const int room = roomForCaption(control); room != 0) CHECK(textWidth(caption, font) <= room);
    if (control.kind != Kind::Label || caption.empty()) return;
    CHECK(linesOf(caption, control.place.width, font) * lineHeight(font) <=
          control.place.height + TwipsPerPixel);
  });
}

TEST_CASE("each help label holds the longest text that it may show") {
  Windows windows;
  const auto holds = [&windows](std::string_view label, std::string_view text) {
    const ControlSpec& control = find(windows.all[0], label);
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
  Program& program = windows.program;
  program.start();
  for (int row = 0; row < program.options.standardlist.ListCount(); ++row) {
    program.options.standardlist.ListIndex(row);
    holds("lblStandardPluginDescription", program.main.lblStandardPluginDescription.Caption);
  }
}

TEST_CASE("an access key stands once among the controls that are seen together") {
  const Windows windows;
  for (const WindowSpec& window : windows.all) {
    CAPTURE(window.face.title);
    std::map<std::string_view, std::string>
        keys;  // by page; those beside the pages are seen with all of them
    walk(window.controls, [&](const ControlSpec& control, const auto*, std::string_view page) {
      if (const char key = accessKeyOf(control); key != '\0') keys[page] += key;
    });
    for (const auto& [page, own] : keys) {
      CAPTURE(page);
      std::string together = page.empty() ? own : own + keys[""];
      std::ranges::sort(together);
      CHECK(std::ranges::adjacent_find(together) == together.end());
    }
  }
}

TEST_CASE("the Tab key goes through a group's controls from the top down, and from the left") {
  const Windows windows;
  forEachPair(windows, [](const ControlSpec& a, const ControlSpec& b) {
    if (a.kind != b.kind || (a.kind != Kind::Check && a.kind != Kind::Button)) return;
    CHECK(b.place.top >= a.place.top);
    CHECK((b.place.top >= a.place.bottom() || b.place.left > a.place.left));
  });
}
