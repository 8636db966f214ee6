// The stand-alone scheduler of a PC in a folder: starts the program at each dated wash and interval. A start that meets
// another program at work waits for its turn.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "app/console/Commands.h"
#include "platform/folder/HostDir.h"
#include "scheduler/AutomaticInterval.h"
#include "scheduler/DueTimes.h"

namespace zub {

class Scheduler {
 public:
  // The context's clock is the one that counts.
  explicit Scheduler(CommandContext& context);

  // To be called at least once a second: starts what has come due since the last call.
  void step();

 private:
  // The program is to be started with this command line.
  struct Start {
    std::string commandLine;
    int (*command)(CommandContext&);
  };

  std::unique_ptr<ConsolePc> openPc(const std::string& commandLine);
  void readTasks();
  void readOptions();
  bool start(const Start& what);

  CommandContext& context_;
  Clock& clock_;
  std::unique_ptr<HostDir> root_;
  DueTimes due_;
  Options options_;
  AutomaticInterval automatic_;
  std::vector<SystemTime> times_;
  std::deque<Start> waiting_;  // for their turn
  bool waits_ = false;         // told
  std::string parameters_;     // of the task that the times belong to
  std::string tasksText_;
  std::string tasksFailure_;
  std::string optionsFailure_;
  int minute_ = -1;
};

}  // namespace zub
