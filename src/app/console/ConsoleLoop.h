// The event loop and the display of a program without windows: timers are served, progress goes to standard error as one
// moving line where that is a terminal, messages as lines. A wash that is interrupted ends in a turn, between two
// files, or where the next task begins.
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
  ConsoleLoop(std::string programName, std::function<std::string(std::string_view)> toTerminal);

  // Until a program is attached, a turn does nothing. The program tells its tasks from here on.
  void attach(Program& program);
  void detach();  // before the program goes
  void DoEvents() override;
  void show(std::string_view prompt, int style, std::string_view title) override;
  void showNoProgress() { terminal_ = false; }
  // Whether it ended a wash before its end.
  bool interrupted() const { return interrupted_; }
  // A line of standard error behind the program's name. The text is UTF-8.
  void tell(const std::string& text);

 private:
  void endWhereInterrupted();
  void tellTask(std::string_view name);
  void beginWash();
  void draw(const std::string& item);
  void clearLine();  // takes the moving line away
  void printLine(const std::string& text);

  std::string programName_;
  std::function<std::string(std::string_view)> toTerminal_;
  bool terminal_;
  bool interrupted_ = false;
  Program* program_ = nullptr;
  std::function<void()> serveTimers_;
  std::uint64_t nextTurn_ = 0;
  int task_ = 0;   // that runs, counted from 1
  int tasks_ = 0;  // of this wash
  std::string taskName_;
  std::size_t drawn_ = 0;  // characters of the moving line
};

}  // namespace zub
