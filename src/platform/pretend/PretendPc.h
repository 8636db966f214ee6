// A PC that only pretends: it stands over another one, reads through to it, and keeps in memory whatever the program
// writes, removes, schedules or tells. The PC beneath does not change; it outlives this one.
#pragma once

#include "platform/Platform.h"
#include "platform/pretend/PretendFiles.h"
#include "platform/pretend/PretendRegistry.h"
#include "platform/pretend/PretendServices.h"
#include "platform/pretend/PretendTasks.h"

namespace zub {

class PretendPc {
 public:
  explicit PretendPc(Platform& beneath);
  PretendPc(const PretendPc&) = delete;
  PretendPc& operator=(const PretendPc&) = delete;

  // All services; the event loop and the messages are the caller's, and outlive the platform.
  Platform platform(EventLoop& events, Messages& messages);
  // Grows with everything that is removed.
  std::uint64_t removals() const;

 private:
  Platform& beneath_;

 public:
  PretendRegistry registry;
  PretendFiles files;
  PretendRestart restart;
  PretendShell shell;
  PretendProcess process;
  PretendTray tray;
  PretendTasks tasks;
};

}  // namespace zub
