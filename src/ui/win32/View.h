// One control of a window, as the window system has it.
#pragma once

#include <functional>
#include <memory>

#include "ui/layout/WindowSpec.h"
#include "ui/win32/Ui.h"

namespace zub {

class View {
 public:
  View() = default;
  View(const View&) = delete;
  View& operator=(const View&) = delete;
  virtual ~View() = default;

  virtual HWND hwnd() const = 0;
  // Compares the state with what was shown last, and shows what differs.
  virtual void show() {}
  // The next show takes nothing as shown: the form may have been loaded anew.
  virtual void forget() {}
};

// Takes over a value; whether it is new.
template <class Shown, class Now>
bool changes(Shown& shown, const Now& now) {
  if (shown == now) return false;
  shown = now;
  return true;
}

// What a view is made from.
struct ViewSite {
  Ui& ui;
  const layout::WindowSpec& window;
  const layout::ControlSpec& spec;
  HWND parent;
  RECT place;       // within the parent, pixels
  COLORREF ground;  // the colour under the control
  std::function<void(int page)> showPage;

  template <class State>
  State bound() const {
    const State* state = std::get_if<State>(&spec.shown);
    return state != nullptr ? *state : State{};
  }
  const Handler& click() const { return spec.click; }
  std::string caption() const { return std::string(layout::captionOf(spec)); }
};

std::unique_ptr<View> makeNativeView(const ViewSite& site);
std::unique_ptr<View> makeKitView(const ViewSite& site);

}  // namespace zub
