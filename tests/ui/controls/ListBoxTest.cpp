#include "kit/Play.h"
#include "ui/controls/ListBox.h"

using namespace zub;
using namespace zub::controls;

namespace {

struct ListStage : Stage {
  ListBox list{desk.kit};

  ListStage() {
    list.ClickSelect = [this](std::int16_t& index) { log += "select " + std::to_string(index) + ";"; };
    list.ClickCheck = [this](std::int16_t& index) {
      log += "check " + std::to_string(index) + " " + std::to_string(list.Check(index)) + ";";
    };
  }

  void act(const Act& act, int times = 1) {
    for (int i = 0; i < times; ++i) act(desk, list);
  }
  // The selected item, then those that are highlighted.
  void playSelection(std::initializer_list<Step> steps) {
    const auto look = [this] {
      std::string items = std::to_string(list.Selected()) + ":";
      for (std::size_t i = 0; i < list.highlighted().size(); ++i)
        if (list.highlighted()[i]) items += std::to_string(i);
      return items;
    };
    play(list, look, steps);
  }
  // The tops of the panel and of the thumb.
  void playScrolling(std::initializer_list<Step> steps) {
    const auto look = [this] {
      return std::to_string(list.panelTop()) + " " + std::to_string(list.thumbTop());
    };
    play(list, look, steps);
  }
};

// In the middle of the two arrows and of the thumb at its upper end.
constexpr float ArrowX = 397, DownY = 65, UpY = 8, ThumbY = 27;

}  // namespace

TEST_CASE("items are selected by clicks on their pictures and by keys, the first one to begin with") {
  ListStage stage;
  ListBox& list = stage.list;
  const auto write = [&](std::int16_t index) { return call([&list, index] { list.Selected(index); }); };
  stage.playSelection({
      {"the beginning", call([&] { list.Initialise(); }), "select 0;", "0:0"},
      {"a click on item 3", click(220, 30), "select 3;", "3:3"},
      {"a click on it again", click(220, 30), "select 3;", "3:3"},
      {"a click beside the items", click(58, 60), "", "3:3"},
      {"right", key(39), "select 4;", "4:4"},
      {"left", key(37), "select 3;", "3:3"},
      {"any other key", key(65), "select 0;", "0:0"},
      {"left of the first", key(37), "select 0;", "0:0"},
      {"a write changes no picture", write(7), "", "7:0"},
      {"so the next selection takes the new one's back", click(220, 30), "select 3;", "3:03"},
      {"a write too far", write(12), "", "9:03"},
      {"right of the last", key(39), "select 9;", "9:039"},
      {"a write too low", write(-1), "", "0:039"},
      {"the highlight of the selected one goes", click(220, 30), "select 3;", "3:39"},
  });
}

TEST_CASE("the frame of the keyboard is around the selected item, or around all where that is out of sight") {
  ListStage stage;
  const Box all = {1, 1, 387, 73};
  stage.list.Initialise();
  CHECK(stage.list.focusPlace() == Box{18, 11, 41, 63});
  stage.act(key(39), 6);
  CHECK(stage.list.focusPlace() == all);
  stage.act(click(ArrowX, DownY), 300);
  CHECK(stage.list.focusPlace().width < all.width);
}

TEST_CASE("boxes are ticked by the user, who is told on, and by the owner") {
  ListStage stage;
  for (std::int16_t i = 0; i < ListBox::Items; ++i) CHECK(stage.list.Check(i) == 0);
  stage.playSelection({
      {"a click", click(8, 15), "check 0 1;", "0:"},
      {"another", click(8, 15), "check 0 0;", "0:"},
      {"down", down(LeftButton, 8, 15), "", "0:"},
      {"up beside it", up(LeftButton, 30, 40), "", "0:"},
      {"where it lies over the picture before it", click(187, 15), "check 3 1;", "0:"},
  });
  stage.list.Check(9, 5);
  CHECK(stage.list.Check(9) == 1);
  stage.list.Check(9, 0);
  CHECK(stage.list.Check(9) == 0);
}

TEST_CASE("the arrows scroll a step with each press and each move while held, up to the ends") {
  ListStage stage;
  stage.playScrolling({
      {"up at the upper end", click(ArrowX, UpY), "", "0 270"},
      {"down", down(LeftButton, ArrowX, DownY), "", "-4 271"},
      {"moved while held", move(LeftButton, ArrowX, DownY), "", "-8 272"},
      {"the arrow keeps the mouse", move(LeftButton, 0, 0), "", "-12 273"},
      {"with both buttons", move(LeftButton | RightButton, ArrowX, DownY), "", "-12 273"},
      {"released", up(LeftButton, ArrowX, DownY), "", "-12 273"},
      {"moved", move(0, ArrowX, DownY), "", "-12 273"},
  });
  stage.act(click(ArrowX, DownY), 400);
  stage.playScrolling({
      {"down at the lower end", click(ArrowX, DownY), "", "-1200 570"},
      {"up", down(LeftButton, ArrowX, UpY), "", "-1196 569"},
      {"moved while held", move(LeftButton, ArrowX, UpY), "", "-1192 568"},
  });
}

TEST_CASE("the thumb runs down from above the lower end, and up from there, whatever the mouse does") {
  ListStage stage;
  stage.playScrolling({{"down", down(LeftButton, ArrowX, ThumbY), "", "0 270"}});
  stage.act(move(LeftButton, ArrowX, 0), 299);
  stage.playScrolling({
      {"the last step", move(LeftButton, ArrowX, ThumbY), "", "-1200 570"},
      {"the end", move(LeftButton, ArrowX, ThumbY), "", "-1200 570"},
      {"up", up(LeftButton, ArrowX, ThumbY), "", "-1200 570"},
      {"down where it is now", down(LeftButton, ArrowX, 45), "", "-1200 570"},
      {"moved down", move(LeftButton, ArrowX, 50), "", "-1196 569"},
      {"the direction stays until the release", move(LeftButton, ArrowX, 50), "", "-1192 568"},
      {"released", up(LeftButton, ArrowX, 50), "", "-1192 568"},
      {"a step further", click(ArrowX, DownY), "", "-1196 569"},
      {"down once more", down(LeftButton, ArrowX, 45), "", "-1196 569"},
      {"a step short of the end it runs down", move(LeftButton, ArrowX, 0), "", "-1200 570"},
  });
}

TEST_CASE("scrolled items are met where they show") {
  ListStage stage;
  stage.act(click(ArrowX, DownY), 300);
  stage.playSelection({
      {"a picture", click(30, 50), "select 6;", "6:6"},
      {"a box", click(65, 16), "check 7 1;", "6:6"},
  });
}
