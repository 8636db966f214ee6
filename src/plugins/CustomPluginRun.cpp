#include "plugins/CustomPluginRun.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "engine/Engine.h"
#include "platform/FileReader.h"
#include "plugins/PluginFormat.h"
#include "plugins/Plugins.h"

namespace zub {
namespace {

void runFiles(Engine& engine, const std::string& base, const std::string& name) {
  FileReader file(*engine.pc.files, base + std::string(extensionOf(PluginFile::Files)));
  engine.animated->AppName(name);
  engine.clean.AddItem("\r\nZUB has cleaned " + name + " , with the following results:");
  std::string line;
  while (file.line(line)) {
    const auto action = actionOf(*engine.pc.codePage, PluginFile::Files, line);
    if (!action) break;
    if (!carryOut(engine, *action, {}) && action->kind == Action::Kind::File) {
      engine.pc.events->DoEvents();
      engine.clean.AddItem("\tDeleting file " + std::string(lastPathPart(action->path)));
    }
  }
}

void runRegistry(Engine& engine, const std::string& base, const std::string& name) {
  FileReader file(*engine.pc.files, base + std::string(extensionOf(PluginFile::Registry)));
  engine.clean.AddItem("\tDeleting registry items for " + name);
  std::string line;
  while (file.line(line)) {
    const auto action = actionOf(*engine.pc.codePage, PluginFile::Registry, line);
    if (!action) break;
    carryOut(engine, *action, {});
  }
}

}  // namespace

void RunCustomPlugin(Engine& engine, const Plugins& plugins, const std::string& name) {
  const std::string base = plugins.baseOf(name);
  try {
    runFiles(engine, base, name);
    runRegistry(engine, base, name);
    countCompleted(engine);
  } catch (const RuntimeError&) {
    // Ends this plugin only; the next one runs as usual.
  }
}

}  // namespace zub
