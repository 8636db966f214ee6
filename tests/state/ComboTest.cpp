#include <doctest/doctest.h>

#include "base/RuntimeError.h"
#include "state/Lists.h"
#include "state/Options.h"

using namespace zub;

TEST_CASE("a combo box holds a row, or a typed text that may be no row") {
  Combo combo({"one", "two"}, 0);
  std::string events;
  combo.Click = [&] { events += "click "; };
  combo.Change = [&] { events += "change "; };
  combo.ListIndex(1);
  CHECK(combo.Text() == "two");
  combo.type("two ");
  CHECK(combo.ListIndex() == -1);
  CHECK(combo.Text() == "two ");
  combo.type("one");
  CHECK(combo.ListIndex() == 0);
  combo.ListIndex(-1);
  CHECK(combo.Text().empty());
  CHECK(events == "click change change ");
  CHECK_THROWS_AS(combo.ListIndex(2), RuntimeError);
  CHECK_THROWS_AS(combo.ListIndex(-2), RuntimeError);
}

TEST_CASE("every write of a check option raises its handler, also one that changes nothing") {
  CheckOption option;
  std::vector<int> seen;
  option.Click = [&] { seen.push_back(option.Value()); };
  for (const int value : {0, 1, 1, 0}) option.Value(value);
  CHECK(seen == std::vector{0, 1, 1, 0});
}

TEST_CASE("the icon rows hold ticks and refuse rows that they have not") {
  IconChecks icons;
  icons.Check(9, -1);
  CHECK(icons.Check(9) == 1);
  icons.Check(9, 0);
  CHECK(icons.Check(9) == 0);
  CHECK_THROWS(icons.Check(10));
  CHECK_THROWS(icons.Check(-1, 1));
}
