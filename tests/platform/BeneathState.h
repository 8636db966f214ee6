// What a PC holds below the scratch folder and the scratch key of the contract suite, and its tasks.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/Platform.h"

namespace zub {

class BeneathState {
 public:
  // The times of a file or folder, as text.
  using TimesOf = std::function<std::string(const std::string& path)>;
  BeneathState(Platform& pc, std::string folder, std::string key, TimesOf times);

  void take() { taken_ = look(); }
  void take(const std::string& path);  // one file or folder anew
  std::string changes() const;         // what differs from what was taken; empty for nothing

 private:
  using Entries = std::map<std::string, std::string>;  // by path
  Entries look() const;
  std::string describe(const std::string& path) const;
  void addFolder(Entries& entries, const std::string& path) const;
  void addKey(Entries& entries, RegistryKey parent, const std::string& name, const std::string& path) const;

  Platform& pc_;
  std::string folder_;
  std::string key_;
  TimesOf times_;
  Entries taken_;
};

}  // namespace zub
