// What the objects of a wash share: the PC, the options, and the workers that live until the process ends.
#pragma once

#include <string>
#include <vector>

#include "base/Holders.h"
#include "engine/Delete.h"
#include "engine/RegistryHelper.h"
#include "engine/UserFunctions.h"
#include "engine/frmAnimated.h"
#include "engine/frmClean.h"
#include "platform/Platform.h"
#include "state/Options.h"

namespace zub {

// The main window as the wash sees it.
class WashOwner {
 public:
  virtual ~WashOwner() = default;
  virtual void Enable() = 0;
  virtual void FinishedCleaning() = 0;
  virtual void Unload() = 0;  // ends the process: does not return
};

// A file, a folder or a trace that a wash could not remove.
struct LeftBehind {
  std::string what;
  std::string why;
  bool unread = false;  // a folder that could not be listed
};

class Engine {
 public:
  Engine(const Platform& platform, Options& theOptions)
      : pc(platform),
        options(theOptions),
        userFunctions(pc, options),
        registryHelper(*this),
        clean(*this),
        animated(*this),
        deleter([this] { return std::make_unique<Delete>(*this); }) {}
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  const Platform pc;
  Options& options;
  WashOwner* owner = nullptr;  // set before the first wash
  UserFunctions userFunctions;
  RegistryHelper registryHelper;
  frmClean clean;
  AutoLoad<frmAnimated> animated;
  FirstUse<Delete> deleter;
  std::int32_t TotalBytes = 0;         // deleted in this wash
  std::vector<LeftBehind> leftBehind;  // what washes tried and could not remove, in its order
};

}  // namespace zub
