#include "ui/layout/Rows.h"

#include "plugins/frmPluginEditor.h"

namespace zub::layout {

ControlSpec label(std::string_view name, Place place, std::string_view caption, Color color) {
  return {.kind = Kind::Label, .name = name, .place = place, .caption = caption, .color = color};
}
ControlSpec label(std::string_view name, Place place, const Label& shown, Text text) {
  return {.kind = Kind::Label, .name = name, .place = place, .text = text, .shown = &shown};
}
ControlSpec button(std::string_view name, Place place, std::string_view caption, std::string_view toolTip,
                   Handler click) {
  return {.kind = Kind::Button,
          .name = name,
          .place = place,
          .caption = caption,
          .toolTip = toolTip,
          .click = std::move(click)};
}
ControlSpec button(std::string_view name, Place place, const Button& shown, std::string_view toolTip,
                   Handler click) {
  return {.kind = Kind::Button,
          .name = name,
          .place = place,
          .toolTip = toolTip,
          .shown = &shown,
          .click = std::move(click)};
}
ControlSpec check(std::string_view name, Place place, std::string_view caption, std::string_view toolTip,
                  CheckOption& shown) {
  return {.kind = Kind::Check,
          .name = name,
          .place = place,
          .caption = caption,
          .toolTip = toolTip,
          .shown = &shown};
}
ControlSpec group(std::string_view name, Place place, std::string_view caption, Controls inside) {
  return {.kind = Kind::Group, .name = name, .place = place, .caption = caption, .inside = std::move(inside)};
}
ControlSpec group(std::string_view name, Place place, const Group& shown, Controls inside) {
  return {.kind = Kind::Group, .name = name, .place = place, .shown = &shown, .inside = std::move(inside)};
}
ControlSpec iconList(std::string_view name, Place place, IconListState shown) {
  return {.kind = Kind::IconList, .name = name, .place = place, .shown = std::move(shown)};
}
ControlSpec clock(std::string_view name, Place place, const ClockDisplay& shown) {
  return {.kind = Kind::Clock, .name = name, .place = place, .shown = &shown};
}
ControlSpec closeButton(std::string_view name, Place place) {
  return {.kind = Kind::CloseButton, .name = name, .place = place};
}

ControlSpec edit(std::string_view name, Place place, TextBox& shown) {
  return {.kind = Kind::Edit, .name = name, .place = place, .shown = &shown};
}
ControlSpec memo(std::string_view name, Place place, TextBox& shown) {
  return {.kind = Kind::Memo, .name = name, .place = place, .shown = &shown};
}
ControlSpec content(std::string_view name, Place place, TextBox& shown) {
  return {.kind = Kind::Content, .name = name, .place = place, .shown = &shown};
}
ControlSpec report(std::string_view name, Place place, const std::string& shown, Color color) {
  return {.kind = Kind::Report,
          .name = name,
          .place = place,
          .text = Text::Report,
          .color = color,
          .shown = &shown};
}
ControlSpec list(std::string_view name, Place place, ListRows& shown) {
  return {.kind = Kind::List, .name = name, .place = place, .shown = &shown};
}
ControlSpec checkList(std::string_view name, Place place, ListRows& shown) {
  return {.kind = Kind::CheckList, .name = name, .place = place, .shown = &shown};
}
ControlSpec dropDown(std::string_view name, Place place, std::string_view toolTip, Combo& shown) {
  return {.kind = Kind::DropDown, .name = name, .place = place, .toolTip = toolTip, .shown = &shown};
}
ControlSpec editCombo(std::string_view name, Place place, std::string_view toolTip, Combo& shown) {
  return {.kind = Kind::EditCombo, .name = name, .place = place, .toolTip = toolTip, .shown = &shown};
}
ControlSpec radio(std::string_view name, Place place, const OptionButton& shown, Handler click) {
  return {.kind = Kind::Radio, .name = name, .place = place, .shown = &shown, .click = std::move(click)};
}
ControlSpec tabs(std::string_view name, Place place, Handler click) {
  return {.kind = Kind::Tabs, .name = name, .place = place, .click = std::move(click)};
}
ControlSpec page(std::string_view caption, Place place, Controls inside) {
  return {
      .kind = Kind::Page, .name = caption, .place = place, .caption = caption, .inside = std::move(inside)};
}
ControlSpec statusBar(std::string_view name, Place place, const std::array<std::string, 2>& shown) {
  return {.kind = Kind::StatusBar, .name = name, .place = place, .shown = &shown};
}

ControlSpec picture(std::string_view name, Place place, std::string_view bitmap) {
  return {.kind = Kind::Picture, .name = name, .place = place, .caption = bitmap};
}
ControlSpec picture(std::string_view name, Place place, std::string_view bitmap, const bool& visible) {
  return {.kind = Kind::Picture, .name = name, .place = place, .caption = bitmap, .shown = &visible};
}
ControlSpec picture(std::string_view name, Place place, const Image& shown) {
  return {.kind = Kind::Picture, .name = name, .place = place, .shown = &shown};
}
ControlSpec programIcon(std::string_view name, Place place) {
  return {.kind = Kind::ProgramIcon, .name = name, .place = place};
}
ControlSpec line(std::string_view name, Place place, Color color) {
  return {.kind = Kind::Line, .name = name, .place = place, .color = color};
}

std::string_view captionOf(const ControlSpec& control) {
  const auto of = [&control]<class State>(const State& state) -> std::string_view {
    if constexpr (requires { state->Caption; }) return state->Caption;
    return control.caption;
  };
  return std::visit(of, control.shown);
}

}  // namespace zub::layout
