#include <doctest/doctest.h>

#include "scheduler/DueTimes.h"

using namespace zub;

namespace {

// Seconds after noon of the last day of a year, so that some hours on it is the next.
SystemTime at(int seconds) {
  return timeFromSeconds(secondsOf({2001, 12, 1, 31, 12, 0, 0, 0}) + seconds);
}

std::vector<SystemTime> all(const std::vector<int>& seconds) {
  std::vector<SystemTime> times;
  for (const int second : seconds) times.push_back(at(second));
  return times;
}

}  // namespace

TEST_CASE("a look finds the times after the last look and up to now, each once") {
  constexpr int Midnight = 12 * 3600;
  constexpr int Day = 86400;
  constexpr int Hour = 3600;
  const struct {
    const char* what;
    std::vector<int> times;
    int last, now;
    int due;
    int summerTime = 0;  // that the clock was put on by meanwhile
  } rows[] = {
      {"not yet", {600}, 598, 599, 0},
      {"on the second", {600}, 599, 600, 1},
      {"skipped over", {600}, 599, 603, 1},
      {"the last look has told it", {600}, 600, 601, 0},
      {"the same hour of another day", {600 + Day}, 599, 600, 0},
      {"several, one of them twice", {660, 3000, 600, 600}, 570, 690, 3},
      {"turn of the year", {Midnight}, Midnight - 1, Midnight, 1},
      {"asleep for five minutes", {600}, 330, 630, 1},
      {"asleep for longer", {600}, 330, 631, 0},
      {"put on by a day", {600 + Day}, 600, 600 + Day, 0},
      {"put back", {600}, 1200, 600, 0},
      {"summer time begins", {600, 600 + Hour}, 599, 600 + Hour, 2, Hour},
      {"summer time ends", {600}, 1200, 1201 - Hour, 0, -Hour},
  };
  for (const auto& row : rows) {
    CAPTURE(row.what);
    DueTimes due(at(row.last), row.last);
    const int passing = row.now - row.summerTime;
    CHECK(due.look(all(row.times), at(row.now), passing) == row.due);
    CHECK(due.look(all(row.times), at(row.now), passing) == 0);
  }
}

TEST_CASE("a clock that was put back or on, and a list that was changed, start anew from there") {
  DueTimes due(at(3599), 3599);
  CHECK(due.look(all({3600}), at(3480), 3480) == 0);
  CHECK(due.look(all({3600}), at(3600), 3600) == 1);
  CHECK(due.look(all({7200, 7201}), at(7200), 7200) == 0);
  CHECK(due.look(all({7200, 7201}), at(7201), 7201) == 1);
  CHECK(due.look(all({7201, 7202}), at(7202), 7202) == 1);  // 7201 was added too late
}
