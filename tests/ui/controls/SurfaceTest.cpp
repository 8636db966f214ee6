#include <doctest/doctest.h>

#include "kit/Canvas.h"
#include "kit/PaintedArt.h"

using namespace zub;
using namespace zub::controls;

namespace {

// Columns count 1, 2, 3..., rows add 10.
std::uint32_t counted(int x, int y) {
  return Opaque | static_cast<std::uint32_t>(1 + x + 10 * y);
}

Canvas black(int width, int height) {
  Canvas canvas(width, height);
  canvas.surface().clear(colors::Black);
  return canvas;
}

}  // namespace

TEST_CASE("a picture file is read as it stands, or not at all") {
  const std::vector<unsigned char> good = pictureFile(3, 2, counted);
  const Bitmap picture(good);
  REQUIRE(picture.width() == 3);
  REQUIRE(picture.height() == 2);
  CHECK(picture.pixel(0, 0) == counted(0, 0));
  CHECK(picture.pixel(2, 1) == counted(2, 1));

  const struct {
    const char* fault;
    std::size_t place;
    unsigned char byte;
  } faults[] = {
      {"another mark", 0, 'X'},
      {"no width", 7, 0},
      {"no height", 11, 0},
      {"too wide", 6, 0x20},
      {"wider than its pixels", 7, 4},
      {"higher than its pixels", 11, 3},
  };
  for (const auto& [fault, place, byte] : faults) {
    CAPTURE(fault);
    std::vector<unsigned char> bytes = good;
    bytes[place] = byte;
    CHECK(Bitmap(bytes).width() == 0);
  }
  for (std::size_t length = 0; length < good.size(); ++length)
    CHECK(Bitmap({good.data(), length}).height() == 0);
}

TEST_CASE("copying stretches to the mean of what lies under a pixel, and clips at both ends") {
  const std::vector<unsigned char> file = pictureFile(4, 2, counted);
  const Bitmap picture(file);
  const struct {
    const char* what;
    Box from, to;
    const char* drawing;
  } cases[] = {
      {"to a half", {0, 0, 4, 2}, {0, 0, 2, 1}, "790000\n000000\n000000\n"},
      {"to one and a half the width", {0, 0, 2, 1}, {0, 0, 3, 1}, "122000\n000000\n000000\n"},
      {"past the surface's left and top", {0, 0, 4, 2}, {-2, -1, 4, 2}, "de0000\n000000\n000000\n"},
      {"past its right and bottom", {0, 0, 4, 2}, {4, 2, 4, 2}, "000000\n000000\n000012\n"},
      {"from past the picture", {2, 1, 4, 2}, {0, 0, 4, 2}, "de0000\n000000\n000000\n"},
      {"from before the picture", {-1, -1, 3, 2}, {0, 0, 3, 2}, "000000\n012000\n000000\n"},
      {"to less than nothing", {0, 0, 4, 2}, {3, 1, -2, 1}, "000000\n000000\n000000\n"},
  };
  for (const auto& [what, from, to, drawing] : cases) {
    CAPTURE(what);
    Canvas canvas = black(6, 3);
    canvas.surface().copy(picture, from, to);
    CHECK(canvas.drawing() == drawing);
  }
}

TEST_CASE("a part of a surface has its own corner and never paints outside") {
  const std::vector<unsigned char> file = pictureFile(4, 2, counted);
  Canvas canvas = black(6, 4);
  Surface window = canvas.surface().within({1, 1, 4, 2});
  Surface panel = window.within({0, -1, 4, 6});
  CHECK(panel.origin() == Point{1, 0});
  CHECK(panel.clip() == Box{1, 1, 4, 2});
  panel.draw(Bitmap(file), {1, 0});
  panel.fill({-3, 2, 5, 9}, rgb(0, 0, 9));
  CHECK(canvas.drawing() == "000000\n00bcd0\n099000\n000000\n");
}
