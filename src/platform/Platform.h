// All that the program asks of a PC. The services are owned by whoever made the platform, and outlive the
// program. None is null; a copy may have one of its own in the place of another.
#pragma once

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Registry.h"
#include "platform/Services.h"
#include "platform/TaskScheduler.h"

namespace zub {

struct Platform {
  CodePage* codePage;
  Registry* registry;
  Files* files;
  Drives* drives;
  SystemFolders* folders;
  Restart* restart;
  Shell* shell;
  Clock* clock;
  Process* process;
  EventLoop* events;
  Messages* messages;
  Tray* tray;
  ScheduleTasks* tasks;
};

}  // namespace zub
