// The plain controls, by kind.
#pragma once

#include "ui/win32/NativeView.h"

namespace zub {

std::unique_ptr<View> makeLabel(const ViewSite& site);
std::unique_ptr<View> makeEdit(const ViewSite& site);
std::unique_ptr<View> makeReport(const ViewSite& site);
std::unique_ptr<View> makeList(const ViewSite& site);
std::unique_ptr<View> makeCheckList(const ViewSite& site);
std::unique_ptr<View> makeCombo(const ViewSite& site);
std::unique_ptr<View> makeRadio(const ViewSite& site);
std::unique_ptr<View> makeTabs(const ViewSite& site);
std::unique_ptr<View> makeStatusBar(const ViewSite& site);
std::unique_ptr<View> makeProgramIcon(const ViewSite& site);

}  // namespace zub
