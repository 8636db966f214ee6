#include <doctest/doctest.h>

#include <string>

#include "scheduler/DueTimes.h"

using namespace zub;

namespace {

// "2001-09-05 14:20:00"
SystemTime at(const std::string& text) {
  const auto number = [&](std::size_t place, std::size_t digits) {
    return std::stoi(text.substr(place, digits));
  };
  const std::int64_t days = daysFromDate(number(0, 4), number(5, 2), number(8, 2));
  return timeFromSeconds(days * 86400 + number(11, 2) * 3600 + number(14, 2) * 60 + number(17, 2));
}

using Due = std::vector<std::size_t>;

}  // namespace

TEST_CASE("a look finds the times after the last look and up to now") {
  const struct {
    const char* what;
    std::vector<const char*> times;
    const char* last;
    const char* now;
    Due due;
  } rows[] = {
      {"not yet", {"2001-09-05 14:20:00"}, "2001-09-05 14:19:58", "2001-09-05 14:19:59", {}},
      {"on the second", {"2001-09-05 14:20:00"}, "2001-09-05 14:19:59", "2001-09-05 14:20:00", {0}},
      {"skipped over", {"2001-09-05 14:20:00"}, "2001-09-05 14:19:59", "2001-09-05 14:20:03", {0}},
      {"the last look has told it",
       {"2001-09-05 14:20:00"},
       "2001-09-05 14:20:00",
       "2001-09-05 14:20:01",
       {}},
      {"another day", {"2001-09-06 14:20:00"}, "2001-09-05 14:19:59", "2001-09-05 14:20:00", {}},
      {"two in one step, in the order of the list",
       {"2001-09-05 14:21:00", "2001-09-05 15:00:00", "2001-09-05 14:20:00"},
       "2001-09-05 14:19:30",
       "2001-09-05 14:21:30",
       {0, 2}},
      {"the same time twice",
       {"2001-09-05 14:20:00", "2001-09-05 14:20:00"},
       "2001-09-05 14:19:59",
       "2001-09-05 14:20:00",
       {0, 1}},
      {"turn of the year", {"2002-01-01 00:00:00"}, "2001-12-31 23:59:59", "2002-01-01 00:00:00", {0}},
      {"leap day", {"2004-02-29 00:00:00"}, "2004-02-28 23:59:59", "2004-02-29 00:00:00", {0}},
      {"behind the leap day", {"2004-03-01 00:00:00"}, "2004-02-29 23:59:59", "2004-03-01 00:00:00", {0}},
      {"no leap day in 2100", {"2100-03-01 00:00:00"}, "2100-02-28 23:59:59", "2100-03-01 00:00:00", {0}},
      {"asleep for five minutes", {"2001-09-05 14:20:00"}, "2001-09-05 14:15:30", "2001-09-05 14:20:30", {0}},
      {"asleep for longer", {"2001-09-05 14:20:00"}, "2001-09-05 14:15:30", "2001-09-05 14:20:31", {}},
      {"put on by a day", {"2001-09-06 14:20:00"}, "2001-09-05 14:20:00", "2001-09-06 14:20:00", {}},
      {"put back", {"2001-09-05 14:20:00"}, "2001-09-05 14:30:00", "2001-09-05 14:20:00", {}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.what);
    std::vector<SystemTime> times;
    for (const char* time : row.times) times.push_back(at(time));
    DueTimes due(at(row.last));
    CHECK(due.look(times, at(row.now)) == row.due);
    CHECK(due.look(times, at(row.now)) == Due{});
  }
}

TEST_CASE("a clock that was put back or on starts anew from there") {
  const std::vector times{at("2001-09-05 15:00:00"), at("2001-09-05 16:00:01")};
  DueTimes due(at("2001-09-05 14:59:59"));
  SUBCASE("back") {
    CHECK(due.look(times, at("2001-09-05 14:58:00")).empty());
    CHECK(due.look(times, at("2001-09-05 15:00:00")) == Due{0});
  }
  SUBCASE("on: what lay between is lost") {
    CHECK(due.look(times, at("2001-09-05 16:00:00")).empty());
    CHECK(due.look(times, at("2001-09-05 16:00:01")) == Due{1});
  }
}

TEST_CASE("a list that changes between two looks is taken as it is now") {
  DueTimes due(at("2001-09-05 14:19:59"));
  CHECK(due.look({at("2001-09-05 14:25:00")}, at("2001-09-05 14:20:30")).empty());
  // Added too late: its time was in a step of before.
  CHECK(due.look({at("2001-09-05 14:20:30")}, at("2001-09-05 14:20:31")).empty());
  CHECK(due.look({at("2001-09-05 14:20:32")}, at("2001-09-05 14:20:32")) == Due{0});
}
