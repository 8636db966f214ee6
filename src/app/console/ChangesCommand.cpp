#include "app/console/Commands.h"

namespace zub {

int changesCommand(CommandContext& context) {
  std::vector<std::string> arguments = context.arguments;
  const bool withSettings = std::erase(arguments, "--settings") > 0;
  if (arguments.size() > 1)
    throw UsageError("changes takes --settings and one path, such as HKEY_LOCAL_MACHINE\\SOFTWARE");
  context.needAlone();
  if (!context.pc.saveChanges(withSettings, arguments.empty() ? std::string() : arguments.front())) {
    context.tell("the registry of this PC is no export, or nothing of it was changed");
  }
  return exitStatus::Done;
}

}  // namespace zub
