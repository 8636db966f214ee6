#include "app/console/Store.h"

#include "base/RuntimeError.h"
#include "plugins/StandardList.h"
#include "settings/INIFile.h"

namespace zub {

Store::Store(const Platform& pc) : engine(pc, options), plugins(engine), catalogue(builtInCatalogue()) {
  plugins.RefreshPluginList();
  listStandardPlugins(options.standardlist, catalogue);
  INIFile store(engine.pc, options);
  store.GetInfo();
  store.GetInfo2();
}

void needStoreSaved(const Platform& pc, Options& options) {
  if (INIFile(pc, options).PutInfo() == 0) return;
  throw RuntimeError(ErrorNumber::PathFileAccess, "the settings cannot be changed: no rights to their key");
}

}  // namespace zub
