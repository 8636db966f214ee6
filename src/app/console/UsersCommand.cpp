#include "app/console/Commands.h"
#include "app/console/RegistryLook.h"

namespace zub {

int usersCommand(CommandContext& context) {
  const Platform& pc = context.pc.platform();
  for (const RegistryUser& user : usersOf(*pc.registry, pc.folders->windows())) {
    context.printRow({user.branch, user.profile});
  }
  return exitStatus::Done;
}

}  // namespace zub
