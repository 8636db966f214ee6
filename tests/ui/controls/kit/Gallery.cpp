#include "kit/Gallery.h"

#include "kit/Desk.h"
#include "ui/controls/Clock.h"
#include "ui/controls/ListBox.h"
#include "ui/controls/MinMax.h"
#include "ui/controls/TabStrip.h"
#include "ui/controls/XPCheck.h"
#include "ui/controls/XPCmdButton.h"
#include "ui/controls/XPGroupBox.h"
#include "ui/controls/ZUBCloseButton.h"

namespace zub::controls {

namespace {

class Painter {
 public:
  std::vector<Exhibit> all() {
    buttons();
    groups();
    checks();
    lists();
    clocks();
    titleControls();
    for (const int dpi : {120, 144, 192}) scaled({dpi});
    return std::move(exhibits_);
  }

 private:
  void add(const std::string& name, const Control& control) {
    exhibits_.push_back({name, Canvas::of(control)});
  }
  void add(const std::string& name, Control& control, const Act& act) {
    act(desk_, control);
    add(name, control);
  }

  void buttons() {
    XPCmdButton button(desk_.kit);
    button.Caption("&Start Cleaning");
    button.resize(100, 25);
    add("button-normal", button);
    add("button-hot", button, move(0, 3, 3));
    add("button-pressed", button, down(LeftButton, 3, 3));
    button.State(1);
    add("button-marked", button);
    button.Enabled(false);
    add("button-disabled", button);
    XPCmdButton corners(desk_.kit);
    corners.Caption("");
    corners.resize(6, 6);
    add("button-of-corners", corners);
  }

  void groups() {
    XPGroupBox group(desk_.kit);
    group.Caption("Internet Explorer");
    group.resize(140, 50);
    add("group", group);
    group.Enabled(false);
    add("group-disabled", group);
    group.Caption("");
    add("group-without-title", group);
  }

  void checks() {
    XPCheck check(desk_.kit);
    check.Caption("Cookies");
    check.resize(80, 18);
    for (const char* enabled : {"", "-disabled"}) {
      check.Enabled(*enabled == '\0');
      for (const char* value : {"off", "on"}) {
        check.Value(std::string_view(value) == "on" ? 1.0F : 0.0F);
        add(std::string("check-") + value + enabled, check);
      }
    }
    SimpleCheck simple(desk_.kit);
    simple.resize(14, 16);
    add("simple-check-empty", simple);
    add("simple-check-ticked", simple, click(5, 5));
  }

  void lists() {
    ListBox list(desk_.kit);
    list.Initialise();
    add("list", list);
    for (const int item : {1, 3, 4, 9}) list.Check(static_cast<std::int16_t>(item), 1);
    const auto times = [](int count, const Act& act) {
      return [=](Desk& desk, Control& control) {
        for (int i = 0; i < count; ++i) act(desk, control);
      };
    };
    add("list-item-4", list, times(4, key(39)));
    add("list-half-way", list, times(150, click(395, 65)));
    times(150, click(395, 65))(desk_, list);
    add("list-end", list, times(4, key(39)));
  }

  void clocks() {
    Clock clock(desk_.kit);
    add("clock-before-a-time", clock);
    clock.SetText("12:34");
    add("clock-1234-no-colon", clock);
    clock.Blink();
    for (const char* time : {"9:05", "07:68"}) {
      clock.SetText(time);
      add(std::string("clock-") + (time[1] == ':' ? "905" : "0768"), clock);
    }
  }

  void titleControls() {
    ZUBCloseButton close(desk_.kit);
    add("close-rest", close);
    add("close-hot", close, move(0, 5, 5));
    add("close-pressed", close, down(LeftButton, 5, 5));
    XPTab top(desk_.kit);
    add("tab-top-0", top);
    for (std::int16_t tab = 1; tab < 4; ++tab)
      add("tab-top-" + std::to_string(tab), top, call([&] { top.ShowTab(tab); }));
    TabPluginsEditor editor(desk_.kit);
    add("tab-editor-0", editor);
    for (std::int16_t tab = 1; tab < 3; ++tab)
      add("tab-editor-" + std::to_string(tab), editor, call([&] { editor.ShowTab(tab); }));
    MinMax buttons(desk_.kit);
    add("minmax", buttons);
    for (const float x : {5.0F, 25.0F}) {
      const std::string name = x < 20 ? "minmax-minimise" : "minmax-close";
      add(name + "-hot", buttons, move(0, x, 5));
      add(name + "-pressed", buttons, down(LeftButton, x, 5));
      up(LeftButton, x, 5)(desk_, buttons);
    }
  }

  // On screens with more pixels an inch.
  void scaled(Scale scale) {
    Kit kit = desk_.kit;
    kit.scale = scale;
    const std::string dpi = "-at-" + std::to_string(scale.dpi);
    XPCmdButton button(kit);
    button.Caption("&Start Cleaning");
    button.resize(scale.pixels(100, 1), scale.pixels(25, 1));
    add("button" + dpi, button);
    XPGroupBox group(kit);
    group.Caption("Netscape");
    group.resize(scale.pixels(100, 1), scale.pixels(40, 1));
    add("group" + dpi, group);
    XPCheck check(kit);
    check.Caption("Cookies");
    check.resize(scale.pixels(80, 1), scale.pixels(18, 1));
    check.Value(1);
    add("check" + dpi, check);
    ListBox list(kit);
    list.Initialise();
    list.Check(1, 1);
    add("list" + dpi, list);
    Clock clock(kit);
    clock.SetText("12:34");
    clock.Blink();
    add("clock" + dpi, clock);
  }

  Desk desk_;
  std::vector<Exhibit> exhibits_;
};

}  // namespace

std::vector<Exhibit> gallery() {
  return Painter().all();
}

}  // namespace zub::controls
