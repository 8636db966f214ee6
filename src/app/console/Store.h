// The settings store by itself: the options and plugin rows as they are kept, without the program's start,
// and without the handlers that a window's options have.
#pragma once

#include "engine/Engine.h"
#include "plugins/Catalogue.h"
#include "plugins/Plugins.h"

namespace zub {

// Whether the settings could be saved: the program does not tell. RuntimeError where the registry refuses.
void needStoreSaved(const Platform& pc, Options& options);

class Store {
 public:
  explicit Store(const Platform& pc);
  void save();  // RuntimeError where the registry refuses

  Options options;
  Engine engine;
  Plugins plugins;
  Catalogue catalogue;
};

}  // namespace zub
