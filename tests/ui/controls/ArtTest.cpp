#include <doctest/doctest.h>

#include <string>

#include "ui/controls/Art.h"
#include "ui/controls/CaptionLabel.h"

using namespace zub;
using namespace zub::controls;

// Those of the controls are on their golden images.
TEST_CASE("the pictures of the windows, and of the items that are highlighted, are there in their sizes") {
  const struct {
    std::string beginning;
    int count;
    Size size;
  } families[] = {
      {"animation-", 6, {64, 64}},    {"kind-", 3, {32, 32}},         {"icon-", 4, {32, 32}},
      {"mark-", 2, {16, 16}},         {"warning", 1, {300, 48}},      {"message-background", 1, {398, 154}},
      {"item-0-active", 1, {39, 61}}, {"item-1-active", 1, {48, 73}}, {"item-2-active", 1, {49, 45}},
      {"item-3-active", 1, {40, 56}}, {"item-4-active", 1, {45, 62}}, {"item-5-active", 1, {47, 47}},
      {"item-6-active", 1, {35, 49}}, {"item-7-active", 1, {35, 57}}, {"item-8-active", 1, {53, 57}},
      {"item-9-active", 1, {36, 54}}};
  const Art art;
  for (const auto& [beginning, count, size] : families) {
    CAPTURE(beginning);
    int found = 0;
    for (const EmbeddedFile& file : artFiles()) {
      if (!file.name.starts_with(beginning)) continue;
      const Bitmap& picture = art[file.name.substr(0, file.name.rfind('.'))];
      CHECK(Size{picture.width(), picture.height()} == size);
      ++found;
    }
    CHECK(found == count);
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
