#include "app/Preview.h"

namespace zub {

void Preview::Turns::DoEvents() {
  events_.DoEvents();
  if (stopped && stopped()) throw EndOfPretence{};
}

Preview::Preview(Platform& beneath, EventLoop& events, Messages& messages)
    : pc_(beneath), turns_(events), program(pc_.platform(turns_, messages)) {
  watchTasks();
}

void Preview::watchTasks() {
  frmClean::Cleaners& cleaners = program.engine.clean.cleaners;
  for (std::size_t task = 0; task < BuiltInTasks; ++task) {
    cleaners.builtIn[task] = [this, task, clean = std::move(cleaners.builtIn[task])] {
      watched(std::string(taskTable()[task].status), clean);
    };
  }
  for (auto* run : {&cleaners.customPlugin, &cleaners.standardPlugin}) {
    *run = [this, plugin = std::move(*run)](const std::string& name) {
      watched(name, [&] { plugin(name); });
    };
  }
}

// Work on the registry gives no turns of its own.
void Preview::watched(const std::string& name, const std::function<void()>& work) {
  const std::uint64_t before = pc_.removals();
  work();
  if (pc_.removals() == before) foundNothing_.push_back(name);
  turns_.DoEvents();
}

void Preview::takeOver(Program& other) {
  program.options = other.options;
  program.engine.registryHelper.takeOver(other.engine.registryHelper);
  program.nsCookies->takeOver(*other.nsCookies);
}

bool Preview::wash(const std::function<bool()>& stopped) {
  turns_.stopped = stopped;
  try {
    program.main.cmdRemove_Click();
  } catch (const EndOfPretence&) {
    return false;
  }
  turns_.stopped = {};
  return true;
}

Preview::Sums Preview::sums() {
  const PretendFiles::Sums& removed = pc_.files.removed();
  Sums sums{removed.files, removed.folders, removed.bytes, 0, 0, foundNothing_};
  pc_.registry.eachRemoved(
      [&sums](const PretendRegistry::Removed& gone) { ++(gone.value == nullptr ? sums.keys : sums.values); });
  return sums;
}

void Preview::each(
    const std::function<void(Kind kind, const std::string& path, const std::string& valueName)>& tell) {
  pc_.files.eachRemoved(
      [&tell](bool folder, const std::string& path) { tell(folder ? Kind::Folder : Kind::File, path, {}); });
  pc_.registry.eachRemoved([&tell](const PretendRegistry::Removed& gone) {
    if (gone.value == nullptr) {
      tell(Kind::Key, gone.key, {});
    } else {
      tell(Kind::Value, gone.key, *gone.value);
    }
  });
}

}  // namespace zub
