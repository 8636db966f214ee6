#include "plugins/StandardPluginRun.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "engine/Engine.h"
#include "engine/ShellFolder.h"
#include "plugins/Catalogue.h"

namespace zub {
namespace {

std::string baseOf(Engine& engine, const CatalogueAction& action, const std::string& appData) {
  switch (action.base) {
    case CatalogueAction::Base::None:
      break;
    case CatalogueAction::Base::AppData:
      return appData;
    case CatalogueAction::Base::Windows:
      return std::string(StripAtNull(engine.pc.folders.windows()));
    case CatalogueAction::Base::Registry:
      return engine.registryHelper.TraceValue(action.trace);
  }
  return {};
}

void carryOut(Engine& engine, const CatalogueAction& action, const std::string& appData) {
  switch (action.kind) {
    case CatalogueAction::Kind::File:
      engine.deleter->DeleteFile(JoinPath(baseOf(engine, action, appData), action.path), 0);
      break;
    case CatalogueAction::Kind::FilesOfFolder:
      engine.deleter->DeleteFilesInFolder(JoinPath(baseOf(engine, action, appData), action.path),
                                          action.pattern);
      break;
    case CatalogueAction::Kind::Trace:
      engine.registryHelper.DeleteTrace(action.trace);
      break;
  }
}

}  // namespace

void RunStandardPlugin(Engine& engine, const Catalogue& catalogue, const std::string& name) {
  try {
    engine.animated->AppName(name);
    engine.clean.AddItem("\r\nZUB has cleaned " + name + " , with the following results:");
    engine.clean.AddItem("\tDeleting registry items for " + name);
    // Read for every row, used or not: it is also what makes the registry removal look at values.
    const std::string appData = shellFolder(engine, "AppData");
    if (const CatalogueRow* row = catalogue.find(name)) {
      for (const CatalogueAction& action : row->actions) carryOut(engine, action, appData);
    }
    countCompleted(engine);
  } catch (const RuntimeError& failure) {
    engine.clean.AddItem("\t" + failure.description());
  }
}

}  // namespace zub
