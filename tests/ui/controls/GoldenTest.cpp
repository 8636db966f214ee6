#include <doctest/doctest.h>

#include <cstdlib>
#include <set>

#include "kit/Desk.h"
#include "kit/Gallery.h"
#include "kit/Png.h"
#include "ui/controls/ListBox.h"
#include "ui/controls/XPCheck.h"
#include "ui/controls/XPCmdButton.h"
#include "ui/controls/XPGroupBox.h"

namespace zub {
std::span<const EmbeddedFile> goldenFiles();
}

using namespace zub;
using namespace zub::controls;

// Pictures of the same pixels have the same bytes: both come from one packer.
TEST_CASE("every control looks as it did when its golden image was approved") {
  const char* updated = std::getenv("ZUB_UPDATE_GOLDEN");
  std::set<std::string> shown;
  for (const Exhibit& exhibit : gallery()) {
    const std::string name = exhibit.name + ".png", png = pngOf(exhibit.picture);
    CAPTURE(name);
    CHECK(shown.insert(name).second);
    if (updated) {
      REQUIRE(writeFile(std::string(updated) + "/" + name, png));
      continue;
    }
    const EmbeddedFile* golden = nullptr;
    for (const EmbeddedFile& file : goldenFiles())
      if (file.name == name) golden = &file;
    REQUIRE(golden);
    const bool looksTheSame = golden->text() == png;
    CHECK_MESSAGE(looksTheSame, "the picture differs: write it anew and look at the difference");
  }
  if (!updated)
    for (const EmbeddedFile& file : goldenFiles())
      CHECK_MESSAGE(shown.contains(std::string(file.name)), file.name);
}

// What users change is held against the picture at each step of the controls' own tests.
TEST_CASE("what an owner changes of a look is painted anew") {
  Desk desk;
  XPCmdButton button(desk.kit);
  XPGroupBox group(desk.kit);
  XPCheck check(desk.kit);
  ListBox list(desk.kit);
  list.Initialise();
  const auto letters = std::make_shared<Font>();
  const struct {
    const char* what;
    Control& control;
    Handler change;
  } rows[] = {
      {"size", button, [&] { button.resize(60, 20); }},
      {"ground", button, [&] { button.BackColor(colors::Window); }},
      {"caption of the button", button, [&] { button.Caption("&Go"); }},
      {"letters of the button", button, [&] { button.Font(letters); }},
      {"caption of the group", group, [&] { group.Caption("Go"); }},
      {"letters of the group", group, [&] { group.Font(letters); }},
      {"caption of the check", check, [&] { check.Caption("Go"); }},
      {"box in the list", list, [&] { list.Check(1, 1); }},
      {"box in the list, pressed", list, [&] { list.pressPart(2); }},
  };
  for (const auto& row : rows) {
    CAPTURE(row.what);
    const unsigned before = row.control.revision();
    row.change();
    CHECK(row.control.revision() != before);
  }
}
