#include "ui/frmPreview.h"

#include <utility>

namespace zub {
namespace {

// What follows each picture of the running cycle, as a wash shows it.
Picture next(Picture shown) {
  switch (shown) {
    case Picture::Frame1:
      return Picture::Frame2;
    case Picture::Frame2:
      return Picture::Frame3;
    case Picture::Frame3:
      return Picture::Frame4;
    default:
      return Picture::Frame1;
  }
}

}  // namespace

unsigned frmPreview::begin() {
  close();
  ImgAnimate.picture = Picture::Frame0;
  lblApplication.Caption.clear();
  lblCurrent.Caption.clear();
  Timer.Enabled = true;
  form.Show();
  return run_;
}

void frmPreview::follow(const frmAnimated::State& wash) {
  lblApplication.Caption = wash.lblApplication.Caption;
  lblCurrent.Caption = wash.lblCurrent.Caption;
}

void frmPreview::end() {
  Timer.Enabled = false;
  form.Hide();
}

void frmPreview::tell(std::string text) {
  txtResult = std::move(text);
  report.Show();
}

void frmPreview::close() {
  cmdStop_Click();
  end();
  report.Hide();
}

void frmPreview::Timer_Tick() {
  ImgAnimate.picture = next(ImgAnimate.picture);
}

}  // namespace zub
