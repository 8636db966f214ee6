// Washes at a chosen interval, watched by the main window's one-second timer while the program runs. Compared
// by hour and minute alone. Some next times are no time of any day (a minute of 60, an hour of 24 or 25): the
// automatic wash then stays silent until the user touches the option.
#pragma once

#include <functional>

#include "platform/Services.h"
#include "state/Options.h"

namespace zub {

class AutomaticInterval {
 public:
  AutomaticInterval(Clock& clock, Options& options) : clock_(clock), options_(options) {}

  Label lblTimerRemove{"Next auto track removal at:"};
  ClockDisplay display;
  Timer timer{1000, true};  // stopped while a wash runs that it started
  SystemTime NextRemoval;
  std::function<void()> startWash;

  void chkRunAuto_Click();
  void SetNextRemovalTime();
  void Timer_Tick();

 private:
  Clock& clock_;
  Options& options_;
};

}  // namespace zub
