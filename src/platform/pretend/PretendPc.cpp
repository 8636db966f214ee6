#include "platform/pretend/PretendPc.h"

namespace zub {
namespace {

constexpr std::uint32_t VersionRecord = 148;  // bytes
constexpr std::uint32_t NtFamily = 2;

}  // namespace

PretendPc::PretendPc(Platform& beneath)
    : beneath_(beneath),
      registry(*beneath.registry, *beneath.codePage, beneath.restart->platformId(VersionRecord) != NtFamily),
      files(*beneath.files, *beneath.folders, *beneath.codePage),
      restart(*beneath.restart, *beneath.folders, *beneath.codePage, files),
      shell(*beneath.shell, files),
      tasks(*beneath.tasks, *beneath.clock) {}

Platform PretendPc::platform(EventLoop& events, Messages& messages) {
  Platform pc = beneath_;
  pc.registry = &registry;
  pc.files = &files;
  pc.restart = &restart;
  pc.shell = &shell;
  pc.process = &process;
  pc.events = &events;
  pc.messages = &messages;
  pc.tray = &tray;
  pc.tasks = &tasks;
  return pc;
}

std::uint64_t PretendPc::removals() const {
  const PretendFiles::Sums& removed = files.removed();
  return registry.removals() + static_cast<std::uint64_t>(removed.files + removed.folders);
}

}  // namespace zub
