#include <doctest/doctest.h>

#include <string>

#include "ui/controls/Art.h"
#include "ui/controls/CaptionLabel.h"

using namespace zub;
using namespace zub::controls;

TEST_CASE("every picture is there in its size") {
  const Art art;
  const auto check = [&](const std::string& name, int width, int height) {
    CAPTURE(name);
    CHECK(art[name].width() == width);
    CHECK(art[name].height() == height);
  };
  const struct {
    int width, height;
    std::initializer_list<const char*> names;
  } sizes[] = {
      {90, 21, {"button-strip"}},
      {22, 20, {"group-frame"}},
      {13, 13, {"check-off", "check-on", "check-off-disabled", "check-on-disabled"}},
      {13, 13, {"simple-check-ticked", "simple-check-empty"}},
      {407, 75, {"list-frame"}},
      {15, 16, {"scroll-arrow-down", "scroll-arrow-up"}},
      {15, 20, {"scroll-thumb"}},
      {68, 26, {"clock-background"}},
      {12, 20, {"digit-0", "digit-1", "digit-2", "digit-3", "digit-4", "digit-5"}},
      {12, 20, {"digit-6", "digit-7", "digit-8", "digit-9", "digit-blank"}},
      {3, 11, {"clock-colon"}},
      {25, 20, {"close-rest", "close-pressed", "close-hot"}},
      {276, 20, {"tab-top-0", "tab-top-1", "tab-top-2", "tab-top-3"}},
      {202, 20, {"tab-editor-0", "tab-editor-1", "tab-editor-2"}},
      {38, 20, {"minmax-background"}},
      {18,
       20,
       {"minmax-minimise-hot", "minmax-close-hot", "minmax-minimise-pressed", "minmax-close-pressed"}},
      {32, 32, {"kind-registry", "kind-folder", "kind-files"}},
      {16, 16, {"mark-open", "mark-done"}},
      {398, 154, {"message-background"}},
      {32, 32, {"icon-information", "icon-question", "icon-critical", "icon-exclamation"}},
  };
  for (const auto& [width, height, names] : sizes)
    for (const char* name : names) check(name, width, height);

  const int items[][4] = {{37, 61, 39, 61}, {46, 72, 48, 73}, {47, 44, 49, 45}, {38, 55, 40, 56},
                          {43, 61, 45, 62}, {45, 46, 47, 47}, {33, 48, 35, 49}, {33, 56, 35, 57},
                          {51, 56, 53, 57}, {34, 53, 36, 54}};
  for (int i = 0; i < 10; ++i) {
    check("item-" + std::to_string(i), items[i][0], items[i][1]);
    check("item-" + std::to_string(i) + "-active", items[i][2], items[i][3]);
  }
  for (int i = 0; i < 6; ++i) CHECK(art["animation-" + std::to_string(i)].width() > 0);
  CHECK(art["warning"].width() > 0);
  CHECK(art["no such picture"].width() == 0);
}

TEST_CASE("an ampersand marks the access key") {
  const struct {
    const char *caption, *text;
    int underlined;
    char key;
  } cases[] = {
      {"&Yes", "Yes", 0, 'y'},    {"Save &As", "Save As", 5, 'A'}, {"Help", "Help", -1, 0},
      {"A && B", "A & B", -1, 0}, {"A && &B", "A & B", 4, 'B'},    {"&One &Two", "One Two", 0, 'o'},
      {"End&", "End", -1, 0},     {"&&&X", "&X", 1, 'x'},          {"", "", -1, 0},
  };
  for (const auto& [caption, text, underlined, key] : cases) {
    CAPTURE(caption);
    const AccessText shown = withoutAmpersands(caption);
    CHECK(shown.text == text);
    CHECK(shown.underlined == underlined);
    CaptionLabel label;
    label.text = caption;
    for (const char c : {'y', 'A', 'B', 'o', 'x', '&'}) CHECK(label.isAccessKey(c) == (c == key));
  }
}
