#include "ui/frmPreview.h"

#include <utility>

namespace zub {

unsigned frmPreview::begin() {
  close();
  AnimationFrame = 0;
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
  ImgAnimate.picture = nextFrame(AnimationFrame);
}

}  // namespace zub
