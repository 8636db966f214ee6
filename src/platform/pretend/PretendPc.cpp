#include "platform/pretend/PretendPc.h"

namespace zub {
namespace {

constexpr std::uint32_t VersionRecord = 148;  // bytes
constexpr std::uint32_t NtFamily = 2;

}  // namespace

PretendPc::PretendPc(Platform& beneath)
    : beneath_(beneath),
      registry(beneath.registry, beneath.codePage, beneath.restart.platformId(VersionRecord) != NtFamily),
      files(beneath.files, beneath.folders, beneath.codePage),
      restart(beneath.restart, beneath.folders, beneath.codePage, files),
      shell(beneath.shell, files),
      tasks(beneath.tasks, beneath.clock) {}

Platform PretendPc::platform(EventLoop& events, Messages& messages) {
  return {beneath_.codePage, registry, files,          beneath_.drives, beneath_.folders,
          restart,           shell,    beneath_.clock, process,         events,
          messages,          tray,     tasks};
}

std::uint64_t PretendPc::removals() const {
  const PretendFiles::Sums& removed = files.removed();
  return registry.removals() + static_cast<std::uint64_t>(removed.files + removed.folders);
}

}  // namespace zub
