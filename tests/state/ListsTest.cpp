#include <doctest/doctest.h>

#include "base/RuntimeError.h"
#include "state/Lists.h"
#include "support/Golden.h"
#include "support/Story.h"

using namespace zub;

namespace {

// Each step of `story` is told with the failure that ended it, if one did.
template <class Action>
void tell(Story& story, const std::string& what, Action action) {
  try {
    story.step(what, action);
  } catch (const RuntimeError& failure) {
    story.text += "    fails: " + failure.description() + "\n";
  }
}

}  // namespace

// A view paints anew what has another revision than it showed.
TEST_CASE("what lists hold after each step, with the current row and the ticks") {
  Story story;
  for (const ListRows::Order order : {ListRows::Order::Sorted, ListRows::Order::AsAdded}) {
    ListRows rows(order);
    int clicks = 0;
    rows.Click = [&] { ++clicks; };
    story.look = [&]() -> Story::Things {
      std::string all;
      for (int row = 0; row < rows.ListCount(); ++row) {
        all += (row == rows.ListIndex() ? ">" : "") + std::string(rows.Selected(row) ? "*[" : "[") +
               rows.List(row) + "]";
      }
      return {{"rows", all},
              {"text", rows.Text()},
              {"ticked", std::to_string(rows.SelCount())},
              {"clicks", std::to_string(clicks)},
              {"revision", std::to_string(rows.revision())}};
    };
    story.chapter(order == ListRows::Order::Sorted ? "A sorted list" : "A list as it is added to");
    const auto add = [&](const char* text, int index = -1) {
      tell(story, std::string("AddItem ") + text + " " + std::to_string(index),
           [&] { rows.AddItem(text, index); });
    };
    const auto remove = [&](int row) {
      tell(story, "RemoveItem " + std::to_string(row), [&] { rows.RemoveItem(row); });
    };
    const auto choose = [&](int row) {
      tell(story, "ListIndex " + std::to_string(row), [&] { rows.ListIndex(row); });
    };
    const auto tick = [&](int row, bool on) {
      tell(story, "Selected " + std::to_string(row), [&] { rows.Selected(row, on); });
    };
    for (const char* text : {"pear", "Apple", "fig"}) add(text);
    choose(1);
    tick(2, true);
    add("Banana", 0);
    add("zebra", 4);
    add("yak", 6);
    for (const int row : {1, 1, -1, 5, -2}) choose(row);
    choose(2);
    for (const int row : {5, -1, 0, 1, 2}) remove(row);
    tick(0, false);
    tick(2, true);
    tick(-1, true);
    tell(story, "selectAll", [&] { rows.selectAll(true); });
    choose(0);
    tell(story, "Clear", [&] { rows.Clear(); });
    CHECK(rows.List(0).empty());
    CHECK_FALSE(rows.Selected(0));
  }
  Combo combo({"one", "two"}, 0);
  std::string events;
  combo.Click = [&] { events += "click "; };
  combo.Change = [&] { events += "change "; };
  story.look = [&]() -> Story::Things {
    return {{"row", std::to_string(combo.ListIndex()) + " of " + std::to_string(combo.ListCount())},
            {"text", combo.Text()},
            {"last row", combo.List(combo.ListCount() - 1) + combo.List(combo.ListCount()) + combo.List(-1)},
            {"events", events},
            {"revision", std::to_string(combo.revision())}};
  };
  story.chapter("A combo box: a row, or a typed text that may be no row");
  for (const int row : {1, 1, 2, -2}) {
    tell(story, "ListIndex " + std::to_string(row), [&] { combo.ListIndex(row); });
  }
  for (const char* text : {"two ", "one"})
    tell(story, "type " + std::string(text), [&] { combo.type(text); });
  tell(story, "ListIndex -1", [&] { combo.ListIndex(-1); });
  tell(story, "AddItem three", [&] { combo.AddItem("three"); });
  tell(story, "ListIndex 2", [&] { combo.ListIndex(2); });
  tell(story, "Clear", [&] { combo.Clear(); });
  checkGolden("lists.txt", story.text);
}

TEST_CASE("every write of a check option raises its handler, also one that changes nothing") {
  CheckOption option;
  std::string seen;
  option.Click = [&] { seen += std::to_string(option.Value()); };
  for (const int value : {0, 1, 1, 0}) option.Value(value);
  CHECK(seen == "0110");
}
