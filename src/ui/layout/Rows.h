// The rows of a window's table, by kind. Each takes just what its kind of control can show and do, so that a wrong
// join does not compile; a control that shows no state takes its caption, one that does takes it from there.
#pragma once

#include "ui/layout/WindowSpec.h"

namespace zub::layout {

inline ControlSpec label(std::string_view name, Place place, std::string_view caption,
                         Color color = colors::Black) {
  return {.kind = Kind::Label, .name = name, .place = place, .caption = caption, .color = color};
}
inline ControlSpec label(std::string_view name, Place place, const Label& shown, Text text = Text::Normal) {
  return {.kind = Kind::Label, .name = name, .place = place, .text = text, .shown = &shown};
}
inline ControlSpec button(std::string_view name, Place place, std::string_view caption,
                          std::string_view toolTip, Handler click) {
  return {.kind = Kind::Button,
          .name = name,
          .place = place,
          .caption = caption,
          .toolTip = toolTip,
          .click = std::move(click)};
}
inline ControlSpec button(std::string_view name, Place place, const Button& shown, std::string_view toolTip,
                          Handler click) {
  return {.kind = Kind::Button,
          .name = name,
          .place = place,
          .toolTip = toolTip,
          .shown = &shown,
          .click = std::move(click)};
}
inline ControlSpec check(std::string_view name, Place place, std::string_view caption,
                         std::string_view toolTip, CheckOption& shown) {
  return {.kind = Kind::Check,
          .name = name,
          .place = place,
          .caption = caption,
          .toolTip = toolTip,
          .shown = &shown};
}
inline ControlSpec group(std::string_view name, Place place, std::string_view caption, Controls inside) {
  return {.kind = Kind::Group, .name = name, .place = place, .caption = caption, .inside = std::move(inside)};
}
inline ControlSpec group(std::string_view name, Place place, const Group& shown, Controls inside) {
  return {.kind = Kind::Group, .name = name, .place = place, .shown = &shown, .inside = std::move(inside)};
}
inline ControlSpec iconList(std::string_view name, Place place, IconListState shown) {
  return {.kind = Kind::IconList, .name = name, .place = place, .shown = std::move(shown)};
}
inline ControlSpec clock(std::string_view name, Place place, const ClockDisplay& shown) {
  return {.kind = Kind::Clock, .name = name, .place = place, .shown = &shown};
}
inline ControlSpec closeButton(std::string_view name, Place place) {
  return {.kind = Kind::CloseButton, .name = name, .place = place};
}

inline ControlSpec edit(std::string_view name, Place place, TextBox& shown) {
  return {.kind = Kind::Edit, .name = name, .place = place, .shown = &shown};
}
inline ControlSpec memo(std::string_view name, Place place, TextBox& shown) {
  return {.kind = Kind::Memo, .name = name, .place = place, .shown = &shown};
}
inline ControlSpec content(std::string_view name, Place place, TextBox& shown) {
  return {.kind = Kind::Content, .name = name, .place = place, .shown = &shown};
}
inline ControlSpec report(std::string_view name, Place place, const std::string& shown, Color color) {
  return {.kind = Kind::Report,
          .name = name,
          .place = place,
          .text = Text::Report,
          .color = color,
          .shown = &shown};
}
inline ControlSpec list(std::string_view name, Place place, ListRows& shown) {
  return {.kind = Kind::List, .name = name, .place = place, .shown = &shown};
}
inline ControlSpec checkList(std::string_view name, Place place, ListRows& shown) {
  return {.kind = Kind::CheckList, .name = name, .place = place, .shown = &shown};
}
inline ControlSpec dropDown(std::string_view name, Place place, std::string_view toolTip, Combo& shown) {
  return {.kind = Kind::DropDown, .name = name, .place = place, .toolTip = toolTip, .shown = &shown};
}
inline ControlSpec editCombo(std::string_view name, Place place, std::string_view toolTip, Combo& shown) {
  return {.kind = Kind::EditCombo, .name = name, .place = place, .toolTip = toolTip, .shown = &shown};
}
inline ControlSpec radio(std::string_view name, Place place, const OptionButton& shown, Handler click) {
  return {.kind = Kind::Radio, .name = name, .place = place, .shown = &shown, .click = std::move(click)};
}
inline ControlSpec tabs(std::string_view name, Place place, Handler click) {
  return {.kind = Kind::Tabs, .name = name, .place = place, .click = std::move(click)};
}
inline ControlSpec page(std::string_view caption, Place place, Controls inside) {
  return {
      .kind = Kind::Page, .name = caption, .place = place, .caption = caption, .inside = std::move(inside)};
}
inline ControlSpec statusBar(std::string_view name, Place place, const std::array<std::string, 2>& shown) {
  return {.kind = Kind::StatusBar, .name = name, .place = place, .shown = &shown};
}

inline ControlSpec picture(std::string_view name, Place place, std::string_view bitmap) {
  return {.kind = Kind::Picture, .name = name, .place = place, .caption = bitmap};
}
inline ControlSpec picture(std::string_view name, Place place, std::string_view bitmap, const bool& visible) {
  return {.kind = Kind::Picture, .name = name, .place = place, .caption = bitmap, .shown = &visible};
}
inline ControlSpec picture(std::string_view name, Place place, const Image& shown) {
  return {.kind = Kind::Picture, .name = name, .place = place, .shown = &shown};
}
inline ControlSpec programIcon(std::string_view name, Place place) {
  return {.kind = Kind::ProgramIcon, .name = name, .place = place};
}
inline ControlSpec line(std::string_view name, Place place, Color color) {
  return {.kind = Kind::Line, .name = name, .place = place, .color = color};
}

// A routine of a form as a handler.
template <class Owner>
Handler on(Owner& form, void (Owner::*handler)()) {
  return [&form, handler] { (form.*handler)(); };
}

}  // namespace zub::layout
