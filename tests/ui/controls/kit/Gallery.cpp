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
    closeButtons();
    tabs();
    titleButtons();
    messageBox();
    return std::move(exhibits_);
  }

 private:
  void add(const std::string& name, const Control& control) {
    exhibits_.push_back({name, Canvas::of(control)});
  }

  void buttons() {
    XPCmdButton button(desk_.kit);
    button.Caption("&Start Cleaning");
    button.resize(100, 25);
    add("button-normal", button);
    button.mouseMove({0, 0, 3, 3});
    add("button-hot", button);
    button.mouseDown({LeftButton, 0, 3, 3});
    add("button-pressed", button);
    button.mouseUp({LeftButton, 0, 3, 3});
    button.State(1);
    add("button-marked", button);
    button.Enabled(false);
    add("button-disabled", button);
    button.Enabled(true);
    button.State(0);
    button.Caption("");
    button.resize(6, 6);
    add("button-of-corners", button);
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
    for (const bool enabled : {true, false}) {
      check.Enabled(enabled);
      for (const float value : {0.0F, 1.0F}) {
        check.Value(value);
        add(std::string("check-") + (value == 0 ? "off" : "on") + (enabled ? "" : "-disabled"), check);
      }
    }
    SimpleCheck simple(desk_.kit);
    simple.resize(14, 16);
    add("simple-check-empty", simple);
    simple.Value(SimpleCheck::Ticked);
    add("simple-check-ticked", simple);
  }

  void lists() {
    ListBox list(desk_.kit);
    list.Initialise();
    add("list", list);
    for (const int item : {1, 3, 4, 9}) list.Check(static_cast<std::int16_t>(item), 1);
    for (int i = 0; i < 4; ++i) list.keyDown(39, 0);
    add("list-item-4", list);
    scrollDown(list, 150);
    add("list-half-way", list);
    scrollDown(list, 150);
    for (int i = 0; i < 4; ++i) list.keyDown(39, 0);
    add("list-end", list);
  }

  static void scrollDown(ListBox& list, int steps) {
    for (int i = 0; i < steps; ++i) {
      list.mouseDown({LeftButton, 0, 395, 65});
      list.mouseUp({LeftButton, 0, 395, 65});
    }
  }

  void clocks() {
    Clock clock(desk_.kit);
    add("clock-before-a-time", clock);
    clock.SetText("9:05");
    clock.Blink();
    add("clock-905", clock);
    clock.SetText("12:34");
    clock.Blink();
    add("clock-1234-no-colon", clock);
    clock.SetText("07:68");
    clock.Blink();
    add("clock-0768", clock);
  }

  void closeButtons() {
    ZUBCloseButton close(desk_.kit);
    add("close-rest", close);
    close.mouseMove({0, 0, 5, 5});
    add("close-hot", close);
    close.mouseDown({LeftButton, 0, 5, 5});
    add("close-pressed", close);
  }

  void tabs() {
    XPTab top(desk_.kit);
    for (std::int16_t tab = 0; tab < 4; ++tab) {
      top.ShowTab(tab);
      add("tab-top-" + std::to_string(tab), top);
    }
    TabPluginsEditor editor(desk_.kit);
    for (std::int16_t tab = 0; tab < 3; ++tab) {
      editor.ShowTab(tab);
      add("tab-editor-" + std::to_string(tab), editor);
    }
  }

  void titleButtons() {
    MinMax buttons(desk_.kit);
    add("minmax", buttons);
    const struct {
      const char* button;
      float x;
    } places[] = {{"minimise", 5}, {"close", 25}};
    for (const auto& [button, x] : places) {
      buttons.mouseMove({0, 0, x, 5});
      add(std::string("minmax-") + button + "-hot", buttons);
      buttons.mouseDown({LeftButton, 0, x, 5});
      add(std::string("minmax-") + button + "-pressed", buttons);
      buttons.mouseUp({LeftButton, 0, x, 5});
    }
  }

  // The controls as they come together in a window without a frame.
  void messageBox() {
    Canvas window(398, 154);
    Surface surface = window.surface();
    surface.draw(desk_.art["message-background"], {});
    surface.draw(desk_.art["icon-question"], {pixels(630), pixels(870)});
    CaptionLabel title;
    title.text = "Zubrone";
    title.paint(surface, desk_.font, {pixels(855), pixels(120)});
    CaptionLabel message;
    message.text = "Are you sure?";
    message.paint(surface, desk_.font, {pixels(2490), pixels(960)});
    ZUBCloseButton close(desk_.kit);
    window.put(Canvas::of(close), pixels(5445), pixels(75));
    XPCmdButton yes(desk_.kit), no(desk_.kit);
    for (XPCmdButton* button : {&yes, &no}) button->BackColor(colors::Window);
    yes.Caption("&Yes");
    yes.resize(58, 25);
    window.put(Canvas::of(yes), pixels(2040), pixels(1740));
    no.Caption("&No");
    no.resize(58, 25);
    window.put(Canvas::of(no), pixels(3135), pixels(1740));
    exhibits_.push_back({"message-box", window});
  }

  Desk desk_;
  std::vector<Exhibit> exhibits_;
};

}  // namespace

std::vector<Exhibit> gallery() {
  return Painter().all();
}

}  // namespace zub::controls
