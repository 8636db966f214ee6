#include "platform/pretend/PretendPc.h"

namespace zub {
namespace {

constexpr std::uint32_t VersionRecord = 148;  // bytes
constexpr std::uint32_t NtFamily = 2;

}  // namespace

PretendPc::PretendPc(Platform& beneath)
    : beneath_(beneath),
      registry(beneath.registry, beneath.codePage, beneath.restart.platformId(VersionRecord) != NtFamily),
      tasks(beneath.tasks, beneath.clock) {}

Platform PretendPc::platform(EventLoop& events, Messages& messages) {
  return {beneath_.codePage, registry,       beneath_.files, beneath_.drives,  beneath_.folders,
          beneath_.restart,  beneath_.shell, beneath_.clock, beneath_.process, events,
          messages,          beneath_.tray,  tasks};
}

}  // namespace zub
