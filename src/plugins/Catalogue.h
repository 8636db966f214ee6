// The standard catalogue: the named recipes that the program carries built in. catalogue.txt holds them and
// tells its own format.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "plugins/Action.h"

namespace zub {

struct CatalogueRow {
  std::string name;             // compared exactly, with case; also the key of its saved tick
  std::string description;      // 1 to 300 characters
  std::vector<Action> actions;  // in the order of their run; at least one; ranges are expanded

  // The description tells of a loss that nobody expects of a list of recent names.
  bool warns() const;
};

// what() is "line N: REASON"; lines count from 1.
class CatalogueError : public std::runtime_error {
 public:
  CatalogueError(int line, const std::string& reason);
  int line() const { return line_; }

 private:
  int line_;
};

class Catalogue {
 public:
  // CatalogueError at the first line that breaks the format.
  static Catalogue parse(std::string_view text);

  const std::vector<CatalogueRow>& rows() const { return rows_; }
  // Null where no row has exactly this name.
  const CatalogueRow* find(std::string_view exactName) const;

 private:
  std::vector<CatalogueRow> rows_;
};

Catalogue builtInCatalogue();

}  // namespace zub
