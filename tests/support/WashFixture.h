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
  // The pop-ups so far, each as "TITLE: PROMPT;", which then are forgotten.
  std::string told() {
    std::string all;
    for (const TestPc::Message& message : std::exchange(pc.messages, {})) {
      all += message.title + (message.style == 0 ? "" : ", style " + std::to_string(message.style)) + ": " +
             message.prompt + ";";
    }
    return all;
  }
  void cleaner(Task task, Handler run) {
    engine.clean.cleaners.builtIn[static_cast<std::size_t>(task)] = std::move(run);
    options.LstIcons.Check(rowOf(task).iconRow, 1);
  }
};

// The rows of a list, the ticked ones with "*" in front.
inline std::string rowsOf(const ListRows& rows) {
  std::string text;
  for (int row = 0; row < rows.ListCount(); ++row) {
    text += (rows.Selected(row) ? "*" : "") + rows.List(row) + ";";
  }
  return text;
}

// The marks of a list's rows, "*" for a ticked one.
inline std::string ticksOf(const ListRows& rows) {
  std::string marks;
  for (int row = 0; row < rows.ListCount(); ++row) marks += rows.Selected(row) ? '*' : '-';
  return marks;
}

}  // namespace zub
