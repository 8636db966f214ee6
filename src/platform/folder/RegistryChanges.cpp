#include "platform/folder/RegistryChanges.h"

#include "platform/folder/RegistryWriter.h"

namespace zub {
namespace {

class Comparison {
 public:
  Comparison(RegistryForm form, const LeftOut& leftOut) : writer_(form), leftOut_(leftOut) {}

  void compare(const RegistryNode& before, const RegistryNode& after, const std::string& path) {
    compareEntries(before, after, path, false);
  }
  std::string text() { return writer_.text(); }

 private:
  // `begun`: the key has been written.
  void compareEntries(const RegistryNode& before, const RegistryNode& after, const std::string& path,
                      bool begun) {
    compareValues(before, after, path, begun);
    for (const auto& [name, key] : before.keys) {
      const std::string below = path + "\\" + name;
      if (after.keys.find(name) == nullptr && !leftOut_(below, {}, false)) writer_.deletedKey(below);
    }
    static const RegistryNode nothing;
    for (const auto& [name, key] : after.keys) {
      const std::string below = path + "\\" + name;
      if (leftOut_(below, {}, false)) continue;
      const auto* known = before.keys.find(name);
      if (known == nullptr) writer_.key(below);
      compareEntries(known == nullptr ? nothing : **known, *key, below, known == nullptr);
    }
  }

  void compareValues(const RegistryNode& before, const RegistryNode& after, const std::string& path,
                     bool begun) {
    const auto changed = [&](const std::string& name) {
      if (leftOut_(path, name, true)) return false;
      if (!begun) writer_.key(path);
      return begun = true;
    };
    for (const auto& [name, value] : before.values) {
      if (after.values.find(name) == nullptr && changed(name)) writer_.deletedValue(name);
    }
    for (const auto& [name, value] : after.values) {
      const RegistryValue* known = before.values.find(name);
      if ((known == nullptr || *known != value) && changed(name)) writer_.value(name, value);
    }
  }

  RegistryWriter writer_;
  const LeftOut& leftOut_;
};

}  // namespace

std::string changesText(RegistryTree& before, RegistryTree& after, RegistryForm form,
                        const LeftOut& leftOut) {
  Comparison comparison(form, leftOut);
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    comparison.compare(before.hive(i), after.hive(i), after.hive(i).name);
  }
  return comparison.text();
}

}  // namespace zub
