#include "app/console/Store.h"

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

void Store::save() {
  INIFile(engine.pc, options).PutInfo();
}

}  // namespace zub
