// The rows of a window's table, by kind. Each takes just what its kind of control can show and do, so that a wrong
// join does not compile; a control that shows no state takes its caption, one that does takes it from there.
#pragma once

#include "ui/layout/WindowSpec.h"

namespace zub::layout {

ControlSpec label(std::string_view name, Place place, std::string_view caption, Color color = colors::Black);
ControlSpec label(std::string_view name, Place place, const Label& shown, Text text = Text::Normal);
ControlSpec button(std::string_view name, Place place, std::string_view caption, std::string_view toolTip,
                   Handler click);
ControlSpec button(std::string_view name, Place place, const Button& shown, std::string_view toolTip,
                   Handler click);
ControlSpec check(std::string_view name, Place place, std::string_view caption, std::string_view toolTip,
                  CheckOption& shown);
ControlSpec group(std::string_view name, Place place, std::string_view caption, Controls inside);
ControlSpec group(std::string_view name, Place place, const Group& shown, Controls inside);
ControlSpec iconList(std::string_view name, Place place, IconListState shown);
ControlSpec clock(std::string_view name, Place place, const ClockDisplay& shown);
ControlSpec closeButton(std::string_view name, Place place);

ControlSpec edit(std::string_view name, Place place, TextBox& shown);
ControlSpec memo(std::string_view name, Place place, TextBox& shown);
ControlSpec content(std::string_view name, Place place, TextBox& shown);
ControlSpec report(std::string_view name, Place place, const std::string& shown, Color color);
ControlSpec list(std::string_view name, Place place, ListRows& shown);
ControlSpec checkList(std::string_view name, Place place, ListRows& shown);
ControlSpec dropDown(std::string_view name, Place place, std::string_view toolTip, Combo& shown);
ControlSpec editCombo(std::string_view name, Place place, std::string_view toolTip, Combo& shown);
ControlSpec radio(std::string_view name, Place place, const OptionButton& shown, Handler click);
ControlSpec tabs(std::string_view name, Place place, Handler click);
ControlSpec page(std::string_view caption, Place place, Controls inside);
ControlSpec statusBar(std::string_view name, Place place, const std::array<std::string, 2>& shown);

ControlSpec picture(std::string_view name, Place place, std::string_view bitmap);
ControlSpec picture(std::string_view name, Place place, std::string_view bitmap, const bool& visible);
ControlSpec picture(std::string_view name, Place place, const Image& shown);
ControlSpec programIcon(std::string_view name, Place place);
ControlSpec line(std::string_view name, Place place, Color color);

// A routine of a form as a handler.
template <class Owner>
Handler on(Owner& form, void (Owner::*handler)()) {
  return [&form, handler] { (form.*handler)(); };
}

}  // namespace zub::layout
