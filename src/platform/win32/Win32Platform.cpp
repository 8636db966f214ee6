#include "platform/win32/Win32Platform.h"

#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32CodePage.h"
#include "platform/win32/Win32Drives.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Messages.h"
#include "platform/win32/Win32Process.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32Restart.h"
#include "platform/win32/Win32Shell.h"
#include "platform/win32/Win32SystemFolders.h"
#include "platform/win32/Win32TaskScheduler.h"

namespace zub {

struct Win32Platform::Services {
  Services(EventLoop& events, Tray& tray, const OwnerWindow& owner)
      : shell(owner), messages(owner), tasks(owner), platform{&codePage, &registry, &files,    &drives,
                                                              &folders,  &restart,  &shell,    &clock,
                                                              &process,  &events,   &messages, &tray,
                                                              &tasks} {}

  Win32CodePage codePage;
  Win32Registry registry;
  Win32Files files;
  Win32Drives drives;
  Win32SystemFolders folders;
  Win32Restart restart;
  Win32Shell shell;
  Win32Clock clock;
  Win32Process process;
  Win32Messages messages;
  Win32TaskScheduler tasks;
  Platform platform;
};

Win32Platform::Win32Platform(EventLoop& events, Tray& tray, const OwnerWindow& owner)
    : services_(std::make_unique<Services>(events, tray, owner)) {}

Win32Platform::~Win32Platform() = default;

Platform& Win32Platform::platform() {
  return services_->platform;
}

}  // namespace zub
