#include <doctest/doctest.h>

#include <set>
#include <string>

#include "app/Program.h"
#include "support/TestPc.h"
#include "ui/MessageBox.h"
#include "ui/frmAbout.h"
#include "ui/layout/Bindings.h"

using namespace zub;
using namespace zub::layout;

namespace {

struct BoundForms {
  TestPc pc;
  Program program{pc.platform()};
  frmAbout about{program.engine.pc};
  MessageBox messageBox;
  std::vector<WindowBinding> all = {bindMain(program.main),
                                    bindProgress(program.engine.animated),
                                    bindReport(program.engine.clean),
                                    bindEditor(*program.editor),
                                    bindCookies(*program.ieCookies),
                                    bindCookies(*program.nsCookies),
                                    bindAbout(about),
                                    bindMessageBox(messageBox)};
};

template <class... States>
bool holdsOne(const Bound& state) {
  return (std::holds_alternative<States>(state) || ...);
}

// Whether the kind of control can show that kind of state.
bool fits(Kind kind, const Bound& state) {
  switch (kind) {
    case Kind::Check:
      return holdsOne<CheckOption*>(state);
    case Kind::Edit:
    case Kind::Memo:
    case Kind::Content:
      return holdsOne<TextBox*>(state);
    case Kind::Report:
      return holdsOne<const std::string*>(state);
    case Kind::List:
    case Kind::CheckList:
      return holdsOne<ListRows*>(state);
    case Kind::DropDown:
    case Kind::EditCombo:
      return holdsOne<Combo*>(state);
    case Kind::Radio:
      return holdsOne<const OptionButton*>(state);
    case Kind::Clock:
      return holdsOne<const ClockDisplay*>(state);
    case Kind::IconList:
      return holdsOne<IconListState>(state);
    case Kind::StatusBar:
      return holdsOne<const std::array<std::string, 2>*>(state);
    case Kind::Button:
      return holdsOne<std::monostate, const Button*>(state);
    case Kind::Label:
      return holdsOne<std::monostate, const Label*>(state);
    case Kind::Group:
      return holdsOne<std::monostate, const Group*>(state);
    case Kind::Picture:
      return holdsOne<std::monostate, const Image*, const bool*>(state);
    default:
      return holdsOne<std::monostate>(state);
  }
}

}  // namespace

TEST_CASE("every control that shows or does something is tied to its form") {
  const BoundForms bound;
  for (const WindowBinding& window : bound.all) {
    CAPTURE(window.window->title);
    std::set<std::string_view> tied;
    for (const Binding& binding : window.controls) {
      CAPTURE(binding.control);
      const ControlSpec* control = find(*window.window, binding.control);
      REQUIRE(control != nullptr);
      CHECK(tied.insert(binding.control).second);
      CHECK(fits(control->kind, binding.state));
      if (const auto* button = std::get_if<const Button*>(&binding.state))
        CHECK((*button)->Caption == control->caption);
      if (control->kind == Kind::Button && window.window != &messageWindow) CHECK(binding.click);
    }
    for (const ControlSpec& control : window.window->controls) {
      CAPTURE(control.name);
      if (!fits(control.kind, {}) || (control.kind == Kind::Button && window.window != &messageWindow))
        CHECK(tied.contains(control.name));
    }
  }
}

TEST_CASE("a focus that a form asked for is given once") {
  BoundForms bound;
  frmPluginEditor& editor = *bound.program.editor;
  const WindowBinding& window = bound.all[3];
  CHECK(window.takesFocus() == nullptr);
  editor.NewPlugin();
  CHECK(window.takesFocus() == &editor.state.txtName);
  CHECK(window.takesFocus() == nullptr);
}

TEST_CASE("looking at the progress window does not load it") {
  const BoundForms bound;
  const WindowBinding& progress = bound.all[1];
  CHECK(progress.form() == nullptr);
  CHECK_FALSE(bound.program.engine.animated.loaded());
}
