// The settings store by itself: the options and plugin rows as they are kept, without the program's start,
// and without the handlers that a window's options have.
#pragma once

#include "engine/Engine.h"
#include "platform/pretend/PretendPc.h"
#include "plugins/Catalogue.h"
#include "plugins/Plugins.h"

namespace zub {

// Whether the settings could be saved: the program does not tell. RuntimeError where the registry refuses.
void needStoreSaved(const Platform& pc, Options& options);

class Store {
 public:
  explicit Store(const Platform& pc);

  Options options;
  Engine engine;
  Plugins plugins;
  Catalogue catalogue;
};

// The store for those who only look: what reading it writes, such as values that it lacks, stays away from the PC.
class StoreToRead {
 public:
  StoreToRead(Platform& pc, EventLoop& events, Messages& messages)
      : pretend_(pc), pc_(pretend_.platform(events, messages)), store(pc_) {}

 private:
  PretendPc pretend_;
  Platform pc_;

 public:
  Store store;
};

}  // namespace zub
