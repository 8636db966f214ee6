// The controls of the kit, each tied to the state that it shows.
#include <utility>

#include "engine/TaskTable.h"
#include "ui/controls/Clock.h"
#include "ui/controls/ListBox.h"
#include "ui/controls/XPCheck.h"
#include "ui/controls/XPCmdButton.h"
#include "ui/controls/XPGroupBox.h"
#include "ui/controls/ZUBCloseButton.h"
#include "ui/win32/KitHost.h"
#include "ui/win32/PictureControl.h"

namespace zub {
namespace {

using layout::Kind;

template <class T>
T& make(KitHost::Parts& parts, const ViewSite& site) {
  auto control = std::make_unique<T>(site.ui.kit);
  T& made = *control;
  parts.control = std::move(control);
  return made;
}

KitHost::Parts button(const ViewSite& site) {
  KitHost::Parts parts;
  auto& button = make<controls::XPCmdButton>(parts, site);
  button.Caption(site.caption());
  button.Click = site.click();
  if (const auto* state = site.bound<const Button*>()) {
    parts.show = [&button, state] {
      if (button.Caption() != state->Caption) button.Caption(state->Caption);
    };
    parts.visible = [state] { return state->Visible; };
    parts.enabled = [state] { return state->Enabled; };
  }
  parts.dialogCode = DLGC_BUTTON;
  parts.takesFocus = true;
  return parts;
}

KitHost::Parts check(const ViewSite& site) {
  KitHost::Parts parts;
  auto& box = make<controls::XPCheck>(parts, site);
  box.Caption(site.caption());
  CheckOption& option = *site.bound<CheckOption*>();
  // A write of the box raises its click also where it only follows the option.
  const auto writesOption = [&box, &option] { option.Value(static_cast<int>(box.Value())); };
  box.Click = writesOption;
  parts.show = [&box, &option, writesOption] {
    if (static_cast<int>(box.Value()) == option.Value()) return;
    box.Click = {};
    box.Value(static_cast<float>(option.Value()));
    box.Click = writesOption;
  };
  parts.enabled = [&option] { return option.Enabled; };
  parts.dialogCode = DLGC_BUTTON;
  parts.takesFocus = true;
  parts.takesSpace = true;
  return parts;
}

KitHost::Parts group(const ViewSite& site) {
  KitHost::Parts parts;
  make<controls::XPGroupBox>(parts, site).Caption(site.caption());
  if (const auto* state = site.bound<const Group*>()) parts.visible = [state] { return state->Visible; };
  return parts;
}

KitHost::Parts iconList(const ViewSite& site) {
  KitHost::Parts parts;
  auto& list = make<controls::ListBox>(parts, site);
  const auto state = site.bound<layout::IconListState>();
  list.ClickSelect = [state](std::int16_t& row) { state.ClickSelect(row); };
  list.ClickCheck = [state, &list](std::int16_t& row) {
    state.checks->Check(row, list.Check(row));
    state.ClickCheck(row);
  };
  for (const TaskRow& task : taskTable())
    if (task.iconRow >= 0) list.ItemName(static_cast<std::int16_t>(task.iconRow), task.status);
  list.Initialise();
  parts.show = [state, &list] {
    for (std::int16_t row = 0; row < controls::ListBox::Items; ++row) {
      if (list.Check(row) != state.checks->Check(row))
        list.Check(row, static_cast<std::int16_t>(state.checks->Check(row)));
    }
  };
  parts.takesFocus = true;
  parts.takesKeys = true;
  return parts;
}

KitHost::Parts clock(const ViewSite& site) {
  KitHost::Parts parts;
  auto& clock = make<controls::Clock>(parts, site);
  const auto* display = site.bound<const ClockDisplay*>();
  parts.show = [&clock, display, shown = std::string()]() mutable {
    if (changes(shown, display->text)) clock.SetText(shown);
    if (clock.colonIsVisible() != display->colon) clock.Blink();
  };
  return parts;
}

KitHost::Parts closeButton(const ViewSite& site) {
  KitHost::Parts parts;
  make<controls::ZUBCloseButton>(parts, site).Click = site.click();
  return parts;
}

KitHost::Parts picture(const ViewSite& site) {
  KitHost::Parts parts;
  auto& picture = make<PictureControl>(parts, site);
  picture.picture(site.spec.caption);
  if (const auto* image = site.bound<const Image*>())
    parts.show = [&picture, image] { picture.picture(controls::artOf(image->picture)); };
  if (const auto* shown = site.bound<const bool*>()) parts.visible = [shown] { return *shown; };
  return parts;
}

KitHost::Parts line(const ViewSite& site) {
  KitHost::Parts parts;
  parts.control = std::make_unique<LineControl>(site.ui.kit, site.spec.color);
  return parts;
}

KitHost::Parts partsOf(const ViewSite& site) {
  constexpr std::pair<Kind, KitHost::Parts (*)(const ViewSite&)> Makers[] = {
      {Kind::Button, button},     {Kind::Check, check}, {Kind::Group, group},
      {Kind::IconList, iconList}, {Kind::Clock, clock}, {Kind::CloseButton, closeButton},
      {Kind::Picture, picture},   {Kind::Line, line}};
  for (const auto& [kind, parts] : Makers) {
    if (kind == site.spec.kind) return parts(site);
  }
  return {};
}

}  // namespace

std::unique_ptr<View> makeKitView(const ViewSite& site) {
  KitHost::Parts parts = partsOf(site);
  if (!parts.control) return nullptr;
  return std::make_unique<KitHost>(site, std::move(parts));
}

}  // namespace zub
