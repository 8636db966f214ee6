#include <doctest/doctest.h>

#include <functional>
#include <new>
#include <string>

#include "base/RuntimeError.h"
#include "support/Golden.h"

using namespace zub;

TEST_CASE("the runtime's own text of each error number") {
  std::string all;
  const std::string other(descriptionOf(ErrorNumber{0}));
  for (int number = 0; number < 500; ++number) {
    const std::string text(descriptionOf(ErrorNumber{number}));
    if (number == 0 || text != other) all += std::to_string(number) + " " + text + "\n";
  }
  checkGolden("errors.txt", all);
}

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
