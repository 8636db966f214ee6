// The reader of the catalogue's text form.
#pragma once

#include <string_view>
#include <vector>

#include "plugins/Catalogue.h"

namespace zub {

// The rows in the order of the text, ranges expanded. CatalogueError at the first line that breaks the
// format; a row without description or actions is told at the line of its name.
std::vector<CatalogueRow> readCatalogueRows(std::string_view text);

}  // namespace zub
