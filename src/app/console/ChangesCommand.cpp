#include "app/console/Commands.h"

namespace zub {

void checkChanges(const Given& given) {
  if (given.arguments.size() > 1) {
    throw UsageError("changes takes --settings and one path, such as HKEY_LOCAL_MACHINE\\SOFTWARE");
  }
}

int changesCommand(CommandContext& context) {
  const std::vector<std::string>& arguments = context.given.arguments;
  const bool withSettings = context.given.has("--settings");
  context.needAlone();
  if (!context.pc.saveChanges(withSettings, arguments.empty() ? std::string() : arguments.front())) {
    context.tell("the registry of this PC is no export, or nothing of it was changed");
  }
  return exitStatus::Done;
}

}  // namespace zub
