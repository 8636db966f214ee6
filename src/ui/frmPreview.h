// "Preview" without its windows: the one that shows how far a preview is, with the button that stops it, and the report
// at its end. It looks at nothing itself; whoever runs the preview tells it.
#pragma once

#include <string>
#include <string_view>

#include "engine/frmAnimated.h"
#include "state/Controls.h"

namespace zub {

class frmPreview {
 public:
  Form form;    // while a preview runs
  Form report;  // behind its end
  Image ImgAnimate{Picture::Frame0};
  Label lblApplication;
  Label lblCurrent;
  std::string txtResult;  // lines ended by CR LF
  zub::Timer Timer{100, false};
  int AnimationFrame = 0;

  // Shows the first window and answers the number of the run.
  unsigned begin();
  // Whether it may go on: nobody has stopped it or begun another one.
  bool goesOn(unsigned run) const { return run == run_; }
  // What its wash, which nobody sees, has come to.
  void follow(const frmAnimated::State& wash);
  // It is over: the first window goes, and only now, while the main window takes input again. A window that went before
  // would leave the keyboard to another program.
  void end();
  void tell(std::string text);
  // Stops what runs and takes both windows away: a wash is about to change what they tell.
  void close();

  void cmdStop_Click() { ++run_; }
  void cmdCancel_Click() { report.Hide(); }
  void Timer_Tick();

 private:
  unsigned run_ = 0;
};

}  // namespace zub
