#include "engine/ShellFolder.h"

#include "engine/Engine.h"

namespace zub {

std::string shellFolder(Engine& engine, std::string_view name) {
  std::string trace =
      "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders+ Value`= ";
  trace += name;
  return engine.pc.codePage.toldPath(engine.registryHelper.TraceValue(trace));
}

}  // namespace zub
