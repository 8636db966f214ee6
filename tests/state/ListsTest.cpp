#include <doctest/doctest.h>

#include "base/RuntimeError.h"
#include "state/Lists.h"

using namespace zub;

namespace {

std::string texts(const ListRows& rows) {
  std::string all;
  for (int row = 0; row < rows.ListCount(); ++row) all += rows.List(row) + ";";
  return all;
}

}  // namespace

TEST_CASE("a sorted list finds the place itself and keeps checks and the current row with their texts") {
  ListRows rows(ListRows::Order::Sorted);
  for (const char* text : {"pear", "Apple", "fig"}) rows.AddItem(text);
  rows.ListIndex(2);
  rows.Selected(1, true);
  rows.AddItem("Banana", 3);
  rows.AddItem("zebra");
  CHECK(texts(rows) == "Apple;Banana;fig;pear;zebra;");
  CHECK(rows.Text() == "pear");
  CHECK(rows.Selected(2));
  CHECK(rows.SelCount() == 1);
}

TEST_CASE("removing rows moves the current row, and loses it with its row") {
  ListRows rows;
  for (const char* text : {"b", "c"}) rows.AddItem(text);
  rows.AddItem("a", 0);
  CHECK(texts(rows) == "a;b;c;");
  rows.ListIndex(1);
  rows.RemoveItem(0);
  CHECK(rows.Text() == "b");
  rows.RemoveItem(0);
  CHECK(rows.ListIndex() == -1);
  CHECK(rows.Text().empty());
}

TEST_CASE("a row that becomes current raises Click, and a row that is not there is refused") {
  ListRows rows;
  rows.AddItem("a");
  int clicks = 0;
  rows.Click = [&] { ++clicks; };
  for (const int row : {0, 0, -1}) rows.ListIndex(row);
  CHECK(clicks == 2);
  CHECK_THROWS_AS(rows.ListIndex(1), RuntimeError);
  CHECK_THROWS_AS(rows.Selected(1, true), RuntimeError);
  CHECK_THROWS_AS(rows.AddItem("d", 2), RuntimeError);
  CHECK_THROWS_AS(rows.RemoveItem(-1), RuntimeError);
  CHECK(rows.List(1).empty());
  CHECK_FALSE(rows.Selected(1));
}

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
  CHECK(combo.List(2).empty());
  CHECK(events == "click change change ");
  CHECK_THROWS_AS(combo.ListIndex(2), RuntimeError);
}

TEST_CASE("every write of a check option raises its handler, also one that changes nothing") {
  CheckOption option;
  std::string seen;
  option.Click = [&] { seen += std::to_string(option.Value()); };
  for (const int value : {0, 1, 1, 0}) option.Value(value);
  CHECK(seen == "0110");
}
