// Texts that were approved: what a test tells is held against golden/NAME beside the test, which is built into its
// program. ZUB_UPDATE_GOLDEN=FOLDER lets the test write its texts there instead; judge the difference before it is kept.
#pragma once

#include <doctest/doctest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "base/Embedded.h"

namespace zub {

std::span<const EmbeddedFile> goldenTexts();

inline void checkGolden(const std::string& name, const std::string& text) {
  CAPTURE(name);
  if (const char* folder = std::getenv("ZUB_UPDATE_GOLDEN")) {
    std::ofstream(std::string(folder) + '/' + name, std::ios::binary) << text;
    return;
  }
  const auto approved = std::ranges::find(goldenTexts(), name, &EmbeddedFile::name);
  REQUIRE(approved != goldenTexts().end());
  std::istringstream wanted{std::string(approved->text())}, got{text};
  std::string wantedLine, gotLine;
  for (int line = 1; std::getline(wanted, wantedLine); ++line) {
    CAPTURE(line);
    std::getline(got, gotLine);
    REQUIRE(gotLine == wantedLine);
  }
  CHECK(text == approved->text());
}

}  // namespace zub
