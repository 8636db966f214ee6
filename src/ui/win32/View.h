// One control of a window, as the window system has it.
#pragma once

#include <functional>
#include <memory>

#include "ui/layout/Bindings.h"
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
  const layout::Binding* binding;  // null for a control that is only there to be seen
  HWND parent;
  RECT place;       // within the parent, pixels
  COLORREF ground;  // the colour under the control
  std::function<void(int page)> showPage;

  template <class State>
  State bound() const {
    const State* state = binding != nullptr ? std::get_if<State>(&binding->state) : nullptr;
    return state != nullptr ? *state : State{};
  }
  const Handler& click() const {
    static const Handler nothing;
    return binding != nullptr ? binding->click : nothing;
  }
};

std::unique_ptr<View> makeNativeView(const ViewSite& site);
std::unique_ptr<View> makeKitView(const ViewSite& site);

}  // namespace zub
