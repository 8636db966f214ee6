// Option buttons, the status bar and the program's icon.
#include "plugins/frmPluginEditor.h"
#include "ui/win32/NativeViews.h"

namespace zub {
namespace {

class RadioView : public NativeView {
 public:
  explicit RadioView(const ViewSite& site) : NativeView(site), option_(site.bound<const OptionButton*>()) {
    foreColor_ = site.spec.color;
    backColor_ = site.ground;
    create("BUTTON", BS_AUTORADIOBUTTON | WS_TABSTOP, site.caption());
  }

  void show() override {
    if (changes(on_, option_->Value)) send(BM_SETCHECK, on_ ? BST_CHECKED : BST_UNCHECKED);
  }
  void command(WORD notice) override {
    if (notice != BN_CLICKED) return;
    raise(site_.click());
    on_ = !option_->Value;  // the button may show either: it is set anew
  }

 private:
  const OptionButton* option_;
  bool on_ = false;
};

class StatusBarView : public NativeView {
 public:
  explicit StatusBarView(const ViewSite& site)
      : NativeView(site), panels_(site.bound<const std::array<std::string, 2>*>()) {
    create(STATUSCLASSNAMEA, CCS_NORESIZE | CCS_NOPARENTALIGN | CCS_NODIVIDER);
    const int width = static_cast<int>(site.place.right - site.place.left);
    int ends[] = {width / 2, width};
    send(SB_SETPARTS, 2, reinterpret_cast<LPARAM>(ends));
  }

  void show() override {
    for (std::size_t panel = 0; panel < shown_.size(); ++panel) {
      if (changes(shown_[panel], (*panels_)[panel])) sendText(SB_SETTEXTA, panel, shown_[panel]);
    }
  }

 private:
  const std::array<std::string, 2>* panels_;
  std::array<std::string, 2> shown_;
};

class ProgramIconView : public NativeView {
 public:
  explicit ProgramIconView(const ViewSite& site) : NativeView(site) {
    backColor_ = site.ground;
    create("STATIC", SS_ICON | SS_CENTERIMAGE | SS_NOTIFY);
    const int side = site.ui.fonts.pixels(32 * layout::TwipsPerPixel);
    send(STM_SETICON, reinterpret_cast<WPARAM>(site.ui.icon(side)));
  }
};

}  // namespace

std::unique_ptr<View> makeRadio(const ViewSite& site) {
  return std::make_unique<RadioView>(site);
}
std::unique_ptr<View> makeStatusBar(const ViewSite& site) {
  return std::make_unique<StatusBarView>(site);
}
std::unique_ptr<View> makeProgramIcon(const ViewSite& site) {
  return std::make_unique<ProgramIconView>(site);
}

}  // namespace zub
