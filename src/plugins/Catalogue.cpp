#include "plugins/Catalogue.h"

#include <algorithm>
#include <span>

#include "base/Embedded.h"
#include "base/Text.h"
#include "plugins/CatalogueText.h"

namespace zub {

std::span<const EmbeddedFile> catalogueFiles();

CatalogueError::CatalogueError(int line, const std::string& reason)
    : std::runtime_error("line " + std::to_string(line) + ": " + reason), line_(line) {}

bool CatalogueRow::warns() const {
  return contains(description, " ALL ") || contains(description, "Do not use this plugin");
}

Catalogue Catalogue::parse(std::string_view text) {
  Catalogue catalogue;
  catalogue.rows_ = readCatalogueRows(text);
  return catalogue;
}

const CatalogueRow* Catalogue::find(std::string_view exactName) const {
  const auto row = std::ranges::find(rows_, exactName, &CatalogueRow::name);
  return row == rows_.end() ? nullptr : &*row;
}

Catalogue builtInCatalogue() {
  return Catalogue::parse(catalogueFiles().front().text());
}

}  // namespace zub
