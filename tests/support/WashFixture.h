// A test PC with everything that a wash needs but the cleaners.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/Engine.h"
#include "support/TestPc.h"

namespace zub {

// The main window of the wash: records what it is told.
struct FakeOwner : WashOwner {
  std::vector<std::string> calls;

  void Enable() override { calls.emplace_back("Enable"); }
  void FinishedCleaning() override { calls.emplace_back("FinishedCleaning"); }
  void Unload() override { throw EndOfProcess{}; }
};

struct WashFixture {
  TestPc pc;
  Options options;
  FakeOwner owner;
  Engine engine;

  explicit WashFixture(std::vector<std::string> facts = {})
      : pc(std::move(facts)), engine(pc.platform(), options) {
    engine.owner = &owner;
  }

  frmAnimated::State& progress() { return engine.animated->state; }
  // The report so far, which then is empty.
  std::string takeReport() { return std::exchange(engine.clean.txtResult, {}); }
  // The pop-ups so far, each as "TITLE: PROMPT;", which then are forgotten.
  std::string told() {
    std::string all;
    for (const TestPc::Message& message : std::exchange(pc.messages, {})) {
      all += message.title + ": " + message.prompt + ";";
    }
    return all;
  }
  void cleaner(Task task, Handler run) {
    engine.clean.cleaners.builtIn[static_cast<std::size_t>(task)] = std::move(run);
    options.LstIcons.Check(rowOf(task).iconRow, 1);
  }
};

}  // namespace zub
