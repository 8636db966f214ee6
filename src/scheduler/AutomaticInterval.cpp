#include "scheduler/AutomaticInterval.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace zub {
namespace {

struct Interval {
  std::string_view row;
  int hours;
  int minutes;
};
constexpr Interval intervals[] = {
    {"Every Hour", 1, 0}, {"Every Half-Hour", 0, 30}, {"Every 15 Minutes", 0, 15}};

}  // namespace

void AutomaticInterval::chkRunAuto_Click() {
  if (options_.chkRunAuto.Value() == 1) {
    lblTimerRemove.Caption = "Next auto track removal at:";
    SetNextRemovalTime();
  } else {
    lblTimerRemove.Caption = "Current time:";
  }
}

void AutomaticInterval::SetNextRemovalTime() {
  const SystemTime now = clock_.local();
  int hour = now.wHour;
  int minute = now.wMinute;
  const std::string_view chosen = trim(options_.ComboInterval.Text());
  for (const Interval& interval : intervals) {
    if (!contains(chosen, interval.row)) continue;
    if (interval.hours != 0) hour = now.wHour + interval.hours;
    if (interval.minutes != 0) minute = now.wMinute + interval.minutes;
  }
  if (minute > 60) {  // 60 itself stays
    minute -= 60;
    ++hour;
  }
  if (hour > 25) hour = 1;  // 24 and 25 stay
  NextRemoval = now;
  NextRemoval.wHour = static_cast<std::uint16_t>(hour);
  NextRemoval.wMinute = static_cast<std::uint16_t>(minute);
}

void AutomaticInterval::Timer_Tick() {
  const SystemTime now = clock_.local();
  const bool automatic = options_.chkRunAuto.Value() == 1;
  const SystemTime& shown = automatic ? NextRemoval : now;
  display.SetText(twoDigits(shown.wHour) + ":" + twoDigits(shown.wMinute));
  display.Blink();
  if (automatic && NextRemoval.wHour == now.wHour && NextRemoval.wMinute == now.wMinute) {
    SetNextRemovalTime();
    timer.Enabled = false;
    startWash();
  }
}

}  // namespace zub
