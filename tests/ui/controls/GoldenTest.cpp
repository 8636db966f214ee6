#include <doctest/doctest.h>

#include <cstdlib>
#include <set>

#include "kit/Gallery.h"
#include "kit/Png.h"

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
