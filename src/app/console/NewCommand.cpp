#include "app/console/Commands.h"
#include "platform/folder/NewPc.h"

namespace zub {

void checkNew(const Given& given) {
  if (given.arguments.size() != 1) throw UsageError("new takes a folder");
}

int newCommand(const Given& given, const std::string&) {
  createPc(given.arguments[0]);
  return exitStatus::Done;
}

}  // namespace zub
