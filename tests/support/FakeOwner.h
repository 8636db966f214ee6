// The main window of a wash that a test runs: records what it is told.
#pragma once

#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "engine/Engine.h"

namespace zub {

struct FakeOwner : WashOwner {
  std::vector<std::string> calls;

  void Enable() override { calls.emplace_back("Enable"); }
  void FinishedCleaning() override { calls.emplace_back("FinishedCleaning"); }
  void Unload() override {
    calls.emplace_back("Unload");
    throw EndOfProcess{};
  }
};

}  // namespace zub
