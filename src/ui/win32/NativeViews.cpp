#include "ui/win32/NativeViews.h"

namespace zub {

std::unique_ptr<View> makeNativeView(const ViewSite& site) {
  using layout::Kind;
  switch (site.spec.kind) {
    case Kind::Label:
      return makeLabel(site);
    case Kind::Edit:
    case Kind::Memo:
    case Kind::Content:
      return makeEdit(site);
    case Kind::Report:
      return makeReport(site);
    case Kind::List:
      return makeList(site);
    case Kind::CheckList:
      return makeCheckList(site);
    case Kind::DropDown:
    case Kind::EditCombo:
      return makeCombo(site);
    case Kind::Radio:
      return makeRadio(site);
    case Kind::Tabs:
      return makeTabs(site);
    case Kind::StatusBar:
      return makeStatusBar(site);
    case Kind::ProgramIcon:
      return makeProgramIcon(site);
    default:
      return nullptr;
  }
}

}  // namespace zub
