// What a wash does, as a text for checkGolden: each call to the PC, those for something that is open behind what opened
// it, and before it what has come meanwhile: "|" a line of the report, "!" a pop-up, "=" what the progress window shows.
#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "engine/Engine.h"
#include "support/Snapshot.h"
#include "support/TestPc.h"

namespace zub {

inline std::string kindOfRemoval(const frmAnimated::State& shown) {
  constexpr const char* kinds[] = {"nothing", "registry", "files", "folder"};
  return std::string("removing ") + kinds[shown.RemoveEntries] +
         (shown.Timer.Enabled ? ", moving" : ", still");
}

class CallTrace {
 public:
  CallTrace(TestPc& pc, Engine& engine,
            std::function<std::string(const frmAnimated::State&)> window = kindOfRemoval)
      : pc_(pc), engine_(engine), window_(std::move(window)) {
    pc_.onCall = [this](const std::string& call) {
      tellChanges();
      const bool again = call == last_, goesOn = call.starts_with("  ") && !last_.empty();
      if (again || goesOn) text.back() = ';';
      text += (goesOn ? call.substr(1) : again ? " again" : call) + "\n";
      last_ = call;
    };
  }

  std::string text;

  // Carries out an act under a title; behind its calls stands what became of it: bytes restored, what was left behind
  // and why, and the PC's files (with their lengths), folders, keys and values that went ("-") and came ("+").
  template <class Action>
  void act(std::string_view title, Action action) {
    text.append(text.empty() ? "# " : "\n# ").append(title) += '\n';
    shown_.clear();
    last_.clear();
    const std::string before = contents();
    const std::size_t left = engine_.leftBehind.size();
    const std::int32_t bytes = engine_.TotalBytes;
    action();
    tellChanges();
    if (engine_.TotalBytes != bytes) tell(std::to_string(engine_.TotalBytes - bytes) + " bytes restored\n");
    for (std::size_t place = left; place < engine_.leftBehind.size(); ++place) {
      tell("left behind: " + engine_.leftBehind[place].what + ": " + engine_.leftBehind[place].why + "\n");
    }
    tell(diffOf(before, contents()));
  }
  void tellChanges() {
    const std::string& report = engine_.clean.txtResult;
    if (report.size() < reported_) reported_ = 0;
    std::string news = report.substr(reported_);
    reported_ = report.size();
    std::erase(news, '\r');
    for (; !news.empty(); news.erase(0, news.find('\n') + 1))
      tell("|" + news.substr(0, news.find('\n')) + "\n");
    for (; popUps_ < pc_.messages.size(); ++popUps_) {
      std::string prompt = pc_.messages[popUps_].prompt;
      for (auto end = prompt.find("\r\n"); end != prompt.npos; end = prompt.find("\r\n"))
        prompt.replace(end, 2, " / ");
      const int style = pc_.messages[popUps_].style;
      tell("! " + pc_.messages[popUps_].title + (style == 0 ? "" : ", style " + std::to_string(style)) +
           ": " + prompt + "\n");
    }
    const std::string now = "= " + window_(engine_.animated.peek().state) + "\n";
    if (now != shown_) tell(now);
    shown_ = now;
  }
  void tell(std::string_view line) {
    text += line;
    last_.clear();
  }

 private:
  // The PC's contents without the sums of the files' bytes.
  std::string contents() const {
    std::string lines;
    std::istringstream all(pc_.snapshot());
    for (std::string line; std::getline(all, line);) {
      lines += (line.starts_with("file ") ? line.substr(0, line.rfind(' ')) : line) + "\n";
    }
    return lines;
  }

  TestPc& pc_;
  Engine& engine_;
  std::function<std::string(const frmAnimated::State&)> window_;
  std::string last_;          // the last call, where nothing was told since
  std::size_t reported_ = 0;  // characters of the report
  std::size_t popUps_ = 0;
  std::string shown_;
};

}  // namespace zub
