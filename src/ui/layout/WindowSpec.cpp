#include "ui/layout/WindowSpec.h"

namespace zub::layout {

const ControlSpec* find(const WindowSpec& window, std::string_view name) {
  for (const ControlSpec& control : window.controls) {
    if (control.name == name) return &control;
  }
  return nullptr;
}

Color groundOf(const WindowSpec& window, const ControlSpec& control) {
  const ControlSpec* under = &control;
  while (under != nullptr && under->kind != Kind::Page) under = find(window, under->parent);
  return under != nullptr ? colors::Page : window.background;
}

}  // namespace zub::layout
