// The event loop and the display of a program without windows: timers are served, progress goes to standard
// error as one moving line on a terminal and as plain lines of tasks otherwise, messages as lines.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Services.h"

namespace zub {

class Program;

class ConsoleLoop : public EventLoop, public Messages {
 public:
  explicit ConsoleLoop(std::function<std::string(std::string_view)> toTerminal);

  // Until a program is attached, a turn does nothing. The program tells its tasks from here on.
  void attach(Program& program);
  void detach();  // before the program goes
  void DoEvents() override;
  void show(std::string_view prompt, int style, std::string_view title) override;
  void clearLine();  // takes the moving line away

 private:
  void tellTask(std::string_view name);
  void beginWash();
  void draw(const std::string& item);

  std::function<std::string(std::string_view)> toTerminal_;
  bool terminal_;
  Program* program_ = nullptr;
  std::function<void()> serveTimers_;
  std::uint64_t nextTurn_ = 0;
  int task_ = 0;   // that runs, counted from 1
  int tasks_ = 0;  // of this wash
  std::string taskName_;
  std::size_t drawn_ = 0;  // characters of the moving line
};

}  // namespace zub
