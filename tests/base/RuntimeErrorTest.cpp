#include <doctest/doctest.h>

#include <functional>
#include <new>
#include <string>

#include "base/RuntimeError.h"

using namespace zub;

TEST_CASE("of whatever fails there is a text for the user") {
  const struct {
    std::function<void()> fail;
    const char* text;
  } rows[] = {{[] { throw RuntimeError(ErrorNumber::DiskFull); }, "Disk full"},
              {[] { throw std::bad_alloc(); }, "Out of memory"},
              {[] { throw 5; }, "Internal error"}};
  for (const auto& row : rows) {
    try {
      row.fail();
    } catch (...) {
      CHECK(std::string(textOfFailure()) == row.text);
    }
  }
}
