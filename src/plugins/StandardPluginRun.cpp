#include "plugins/StandardPluginRun.h"

#include "base/RuntimeError.h"
#include "engine/Engine.h"
#include "engine/ShellFolder.h"
#include "plugins/Catalogue.h"

namespace zub {

void RunStandardPlugin(Engine& engine, const Catalogue& catalogue, const std::string& name) {
  try {
    engine.animated->AppName(name);
    engine.clean.AddItem("\r\nZUB has cleaned " + name + " , with the following results:");
    engine.clean.AddItem("\tDeleting registry items for " + name);
    // Read for every row, used or not: it is also what makes the registry removal look at values.
    const std::string appData = shellFolder(engine, "AppData");
    if (const CatalogueRow* row = catalogue.find(name)) {
      for (const Action& action : row->actions) carryOut(engine, action, appData);
    }
    countCompleted(engine);
  } catch (const RuntimeError& failure) {
    engine.clean.AddItem("\t" + failure.description());
  }
}

std::vector<Meaning> describeStandardPlugin(Engine& engine, const CatalogueRow& row) {
  RegistryHelper traces(engine);
  const std::string appData = traces.TraceValue(shellFolderTrace("AppData"));
  std::vector<Meaning> meanings;
  for (const Action& action : row.actions) meanings.push_back(describe(engine, action, appData, traces));
  return meanings;
}

}  // namespace zub
