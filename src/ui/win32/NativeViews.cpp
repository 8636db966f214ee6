#include "ui/win32/NativeViews.h"

#include <utility>

namespace zub {

std::unique_ptr<View> makeNativeView(const ViewSite& site) {
  using layout::Kind;
  constexpr std::pair<Kind, std::unique_ptr<View> (*)(const ViewSite&)> Makers[] = {
      {Kind::Label, makeLabel},
      {Kind::Edit, makeEdit},
      {Kind::Memo, makeEdit},
      {Kind::Content, makeEdit},
      {Kind::Report, makeReport},
      {Kind::List, makeList},
      {Kind::CheckList, makeCheckList},
      {Kind::DropDown, makeCombo},
      {Kind::EditCombo, makeCombo},
      {Kind::Radio, makeRadio},
      {Kind::Tabs, makeTabs},
      {Kind::StatusBar, makeStatusBar},
      {Kind::ProgramIcon, makeProgramIcon}};
  for (const auto& [kind, make] : Makers) {
    if (kind == site.spec.kind) return make(site);
  }
  return nullptr;
}

}  // namespace zub
