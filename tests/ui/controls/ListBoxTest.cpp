#include <doctest/doctest.h>

#include "kit/Desk.h"
#include "ui/controls/ListBox.h"

using namespace zub;
using namespace zub::controls;

namespace {

struct Bench {
  Desk desk;
  ListBox list{desk.kit};
  std::string log;

  Bench() {
    list.ClickSelect = [this](std::int16_t& index) { log += "select " + std::to_string(index) + ";"; };
    list.ClickCheck = [this](std::int16_t& index) {
      log += "check " + std::to_string(index) + " " + std::to_string(list.Check(index)) + ";";
    };
  }

  void down(float x, float y) { list.mouseDown({LeftButton, 0, x, y}); }
  void up(float x, float y) { list.mouseUp({LeftButton, 0, x, y}); }
  void click(float x, float y) {
    down(x, y);
    up(x, y);
  }
  void move(std::int16_t buttons, float x, float y) { list.mouseMove({buttons, 0, x, y}); }
  std::string highlighted() const {
    std::string items;
    for (std::size_t i = 0; i < list.highlighted().size(); ++i)
      if (list.highlighted()[i]) items += std::to_string(i);
    return items;
  }
};

// In the middle of the two arrows and of the thumb at its upper end.
constexpr float ArrowX = 397, DownY = 65, UpY = 8, ThumbY = 27;

}  // namespace

TEST_CASE("the first item is selected when the list begins, and nothing is ticked") {
  Bench bench;
  bench.list.Initialise();
  CHECK(bench.log == "select 0;");
  CHECK(bench.highlighted() == "0");
  for (std::int16_t i = 0; i < ListBox::Items; ++i) CHECK(bench.list.Check(i) == 0);
}

TEST_CASE("items are selected by clicks on their pictures and by keys") {
  const auto key = [](std::int16_t code) { return [code](Bench& b) { b.list.keyDown(code, 0); }; };
  const auto click = [](float x, float y) { return [=](Bench& b) { b.click(x, y); }; };
  const auto write = [](std::int16_t index) { return [index](Bench& b) { b.list.Selected(index); }; };
  const struct {
    const char* what;
    std::function<void(Bench&)> act;
    const char* raised;
    std::int16_t selected;
    const char* highlighted;
  } steps[] = {
      {"a click on item 3", click(220, 30), "select 3;", 3, "3"},
      {"a click on it again", click(220, 30), "select 3;", 3, "3"},
      {"a click beside the items", click(58, 60), "", 3, "3"},
      {"right", key(39), "select 4;", 4, "4"},
      {"left", key(37), "select 3;", 3, "3"},
      {"any other key", key(65), "select 0;", 0, "0"},
      {"left of the first", key(37), "select 0;", 0, "0"},
      {"a write changes no picture", write(7), "", 7, "0"},
      {"so the next selection takes the new one's back", click(220, 30), "select 3;", 3, "03"},
      {"a write too far", write(12), "", 9, "03"},
      {"right of the last", key(39), "select 9;", 9, "039"},
      {"a write too low", write(-1), "", 0, "039"},
      {"the highlight of the selected one goes", click(220, 30), "select 3;", 3, "39"},
  };
  Bench bench;
  bench.list.Initialise();
  for (const auto& step : steps) {
    CAPTURE(step.what);
    bench.log.clear();
    step.act(bench);
    CHECK(bench.log == step.raised);
    CHECK(bench.list.Selected() == step.selected);
    CHECK(bench.highlighted() == step.highlighted);
  }
}

TEST_CASE("boxes are ticked by the user, who is told on, and by the owner") {
  Bench bench;
  bench.click(8, 15);
  CHECK(bench.log == "check 0 1;");
  bench.click(8, 15);
  CHECK(bench.log == "check 0 1;check 0 0;");
  bench.down(8, 15);
  bench.up(30, 40);
  CHECK(bench.log == "check 0 1;check 0 0;");
  bench.list.Check(9, 5);
  CHECK(bench.list.Check(9) == 1);
  bench.list.Check(9, 0);
  CHECK(bench.list.Check(9) == 0);
}

TEST_CASE("the arrows scroll a step with each press and each move while held, up to the ends") {
  Bench bench;
  bench.click(ArrowX, UpY);
  CHECK(bench.list.panelTop() == 0);
  bench.down(ArrowX, DownY);
  CHECK(bench.list.panelTop() == -4);
  CHECK(bench.list.thumbTop() == 271);
  bench.move(LeftButton, ArrowX, DownY);
  bench.move(LeftButton, 0, 0);  // the arrow keeps the mouse
  CHECK(bench.list.panelTop() == -12);
  bench.move(LeftButton | RightButton, ArrowX, DownY);
  CHECK(bench.list.panelTop() == -12);
  bench.up(ArrowX, DownY);
  bench.move(0, ArrowX, DownY);
  CHECK(bench.list.panelTop() == -12);
  for (int i = 0; i < 400; ++i) bench.click(ArrowX, DownY);
  CHECK(bench.list.panelTop() == -1200);
  CHECK(bench.list.thumbTop() == 570);
  bench.click(ArrowX, UpY);
  CHECK(bench.list.panelTop() == -1196);
  CHECK(bench.list.thumbTop() == 569);
}

TEST_CASE("the thumb runs down from above the lower end, and up from there, whatever the mouse does") {
  Bench bench;
  bench.down(ArrowX, ThumbY);
  CHECK(bench.list.panelTop() == 0);
  for (int i = 0; i < 150; ++i) bench.move(LeftButton, ArrowX, static_cast<float>(i % 7));
  CHECK(bench.list.panelTop() == -600);
  for (int i = 0; i < 200; ++i) bench.move(LeftButton, ArrowX, ThumbY);
  CHECK(bench.list.panelTop() == -1200);
  bench.up(ArrowX, ThumbY);
  bench.down(ArrowX, 45);  // the thumb's area has moved with it
  bench.move(LeftButton, ArrowX, 50);
  CHECK(bench.list.panelTop() == -1196);
  bench.move(LeftButton, ArrowX, 50);  // the direction stays until the release
  CHECK(bench.list.panelTop() == -1192);
  bench.up(ArrowX, 50);
}

TEST_CASE("scrolled items are met where they show") {
  Bench bench;
  for (int i = 0; i < 300; ++i) bench.click(ArrowX, DownY);
  bench.click(30, 50);
  bench.click(65, 16);
  CHECK(bench.log == "select 6;check 7 1;");
}
