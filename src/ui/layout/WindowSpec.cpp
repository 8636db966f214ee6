#include "ui/layout/WindowSpec.h"

#include "plugins/frmPluginEditor.h"

namespace zub::layout {

std::string_view captionOf(const ControlSpec& control) {
  const auto of = [&control]<class State>(const State& state) -> std::string_view {
    if constexpr (requires { state->Caption; }) return state->Caption;
    return control.caption;
  };
  return std::visit(of, control.shown);
}

}  // namespace zub::layout
