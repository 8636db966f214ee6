// The stand-alone scheduler of a PC in a folder: starts the program at each dated wash and interval. A start that meets
// another program at work waits for its turn.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "app/console/Commands.h"
#include "platform/host/HostDir.h"
#include "scheduler/AutomaticInterval.h"
#include "scheduler/DueTimes.h"

namespace zub {

class Scheduler {
 public:
  // The local time is that of the context's clock. `passing` is a count of seconds that summer time does not touch.
  Scheduler(CommandContext& context, std::int64_t passing);

  // To be called at least once a second: starts what has come due since the last call.
  void step(std::int64_t passing);

 private:
  // The program is to be started with this command line.
  struct Start {
    std::string commandLine;
    int (*command)(CommandContext&);
  };

  std::unique_ptr<ConsolePc> openPc(const std::string& commandLine);
  void readTasks();
  void readOptions();
  void lookAtInterval(const SystemTime& now, std::int64_t passing);
  void tellNext(const SystemTime& now);
  bool start(const Start& what);

  CommandContext& context_;
  Clock& clock_;
  std::unique_ptr<HostDir> root_;
  DueTimes due_;
  DueTimes intervalDue_;
  Options options_;
  AutomaticInterval automatic_;
  std::vector<SystemTime> times_;
  std::deque<Start> waiting_;  // for their turn
  bool waits_ = false;         // told
  std::string parameters_;     // of the task that the times belong to
  std::string tasksText_;
  std::string tasksFailure_;
  std::string optionsFailure_;
  std::string toldNext_;
  int minute_ = -1;
};

}  // namespace zub
