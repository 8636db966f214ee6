#include <doctest/doctest.h>

#include <string>

#include "support/Golden.h"
#include "ui/controls/Art.h"
#include "ui/controls/CaptionLabel.h"

using namespace zub;
using namespace zub::controls;

TEST_CASE("the pictures are those that were approved, among them each that a form may show") {
  const Art art;
  std::string text;
  for (const EmbeddedFile& file : artFiles()) {
    const Bitmap& picture = art[file.name.substr(0, file.name.rfind('.'))];
    text += std::string(file.name) + ' ' + std::to_string(picture.width()) + 'x' +
            std::to_string(picture.height()) + '\n';
  }
  checkGolden("art.txt", text);
  CHECK(art["no such picture"].width() == 0);
  for (Picture one = Picture::OpenMark; one <= Picture::KindFiles;
       one = static_cast<Picture>(static_cast<int>(one) + 1))
    CHECK(art[artOf(one)].width() > 0);
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
