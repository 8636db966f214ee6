#include "engine/ShellFolder.h"

#include "base/Text.h"
#include "engine/Engine.h"

namespace zub {

std::string shellFolderTrace(std::string_view name) {
  return joined({"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders",
                 ValueMarker, name});
}

std::string shellFolder(Engine& engine, std::string_view name) {
  return engine.pc.codePage->toldPath(engine.registryHelper.TraceValue(shellFolderTrace(name)));
}

}  // namespace zub
