#include <doctest/doctest.h>

#include <algorithm>
#include <string>

#include "ui/controls/Art.h"
#include "ui/controls/CaptionLabel.h"

using namespace zub;
using namespace zub::controls;

TEST_CASE("every picture is there in its size") {
  const struct {
    Size size;
    int count;
    std::initializer_list<std::string_view> beginnings;
  } families[] = {
      {{90, 21}, 1, {"button-strip"}},
      {{22, 20}, 1, {"group-frame"}},
      {{13, 13}, 4, {"check-"}},
      {{407, 75}, 1, {"list-frame"}},
      {{15, 16}, 2, {"scroll-arrow-"}},
      {{15, 20}, 1, {"scroll-thumb"}},
      {{68, 26}, 1, {"clock-background"}},
      {{12, 20}, 11, {"digit-"}},
      {{3, 11}, 1, {"clock-colon"}},
      {{25, 20}, 3, {"close-"}},
      {{276, 20}, 4, {"tab-top-"}},
      {{202, 20}, 3, {"tab-editor-"}},
      {{38, 20}, 1, {"minmax-background"}},
      {{18, 20}, 4, {"minmax-minimise-", "minmax-close-"}},
      {{64, 64}, 6, {"animation-"}},
      {{32, 32}, 7, {"kind-", "icon-"}},
      {{16, 16}, 2, {"mark-"}},
      {{300, 48}, 1, {"warning"}},
      {{398, 154}, 1, {"message-background"}},
  };
  const Art art;
  for (const auto& [size, count, beginnings] : families) {
    CAPTURE(*beginnings.begin());
    int found = 0;
    for (const EmbeddedFile& file : artFiles()) {
      const auto opens = [&file](std::string_view text) { return file.name.starts_with(text); };
      if (std::none_of(beginnings.begin(), beginnings.end(), opens)) continue;
      const Bitmap& picture = art[file.name.substr(0, file.name.rfind('.'))];
      CHECK(Size{picture.width(), picture.height()} == size);
      ++found;
    }
    CHECK(found == count);
  }
  // Plain and highlighted.
  const int items[][4] = {{37, 61, 39, 61}, {46, 72, 48, 73}, {47, 44, 49, 45}, {38, 55, 40, 56},
                          {43, 61, 45, 62}, {45, 46, 47, 47}, {33, 48, 35, 49}, {33, 56, 35, 57},
                          {51, 56, 53, 57}, {34, 53, 36, 54}};
  for (std::size_t i = 0; i < std::size(items); ++i) {
    CAPTURE(i);
    const std::string name = "item-" + std::to_string(i);
    const Bitmap &plain = art[name], &lit = art[name + "-active"];
    const int sizes[] = {plain.width(), plain.height(), lit.width(), lit.height()};
    CHECK(std::equal(std::begin(sizes), std::end(sizes), items[i]));
  }
  CHECK(art["no such picture"].width() == 0);
}

TEST_CASE("an ampersand marks the access key") {
  const struct {
    const char *caption, *text;
    int underlined;
  } cases[] = {
      {"&Yes", "Yes", 0},      {"Save &As", "Save As", 5}, {"Help", "Help", -1},
      {"A && B", "A & B", -1}, {"A && &B", "A & B", 4},    {"&One &Two", "One Two", 0},
      {"End&", "End", -1},     {"&&&X", "&X", 1},          {"", "", -1},
  };
  for (const auto& [caption, text, underlined] : cases) {
    CAPTURE(caption);
    const AccessText shown = withoutAmpersands(caption);
    CHECK(shown.text == text);
    CHECK(shown.underlined == underlined);
  }
}
