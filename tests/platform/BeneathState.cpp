#include "platform/BeneathState.h"

#include <array>
#include <vector>

#include "base/Text.h"

namespace zub {
namespace {

void addFolder(BeneathState& state, Files& files, const std::string& path, const TimesOf& times) {
  state[path] = stateOf(files, path, times);
  if (!isFolder(files.attributes(path))) return;
  FoundFile found;
  for (const auto search = files.find(path + "\\*"); search && search->next(found);)
    addFolder(state, files, path + '\\' + found.name, times);
}

void addKey(BeneathState& state, Registry& registry, RegistryKey parent, const std::string& path,
            const std::string& told) {
  RegistryKey key = 0;
  if (registry.open(parent, path, access::Read, key) != status::Success) return;
  state[told];
  std::array<char, 16384> name;
  std::array<std::uint8_t, 65536> data;
  for (std::uint32_t index = 0;; ++index) {
    auto length = static_cast<std::uint32_t>(name.size());
    auto dataLength = static_cast<std::uint32_t>(data.size());
    ValueType type{};
    if (registry.enumValue(key, index, name.data(), length, type, data.data(), dataLength) != status::Success)
      break;
    state[told + " \"" + name.data() + '"'] = std::to_string(static_cast<std::uint32_t>(type)) + ' ' +
                                              std::string(data.begin(), data.begin() + dataLength);
  }
  for (std::uint32_t index = 0;; ++index) {
    auto length = static_cast<std::uint32_t>(name.size());
    if (registry.enumKey(key, index, name.data(), length) != status::Success) break;
    addKey(state, registry, key, name.data(), told + '\\' + name.data());
  }
  registry.close(key);
}

}  // namespace

std::string stateOf(Files& files, const std::string& path, const TimesOf& times) {
  const std::uint32_t bits = files.attributes(path);
  std::string text = std::to_string(bits) + ' ' + times(path);
  if ((bits & (attribute::Directory | attribute::Link)) != 0) return text;
  const auto channel = files.open(path, OpenMode::Input);
  std::string bytes(static_cast<std::size_t>(channel->length()), '\0');
  bytes.resize(channel->read(bytes));
  return text + ' ' + bytes;
}

BeneathState stateOf(const Platform& pc, const std::string& folder, const std::string& key,
                     const TimesOf& times) {
  BeneathState state;
  addFolder(state, *pc.files, folder, times);
  addKey(state, *pc.registry, pc.registry->hive(Hive::CurrentUser), key, key);
  pc.tasks->refresh();
  for (int position = 1; position <= pc.tasks->count(); ++position) {
    ScheduleTask& task = pc.tasks->at(position);
    std::string& triggers = state["task " + task.name()];
    for (const std::string& text : task.triggers().texts()) triggers += text + CrLf.data();
  }
  return state;
}

std::string differences(const BeneathState& before, const BeneathState& after) {
  std::string text;
  for (const auto& [path, state] : before) {
    const auto now = after.find(path);
    if (now == after.end()) {
      text += "- " + path + '\n';
    } else if (now->second != state) {
      text += "! " + path + ": " + state.substr(0, 60) + " -> " + now->second.substr(0, 60) + '\n';
    }
  }
  for (const auto& [path, state] : after) {
    if (!before.contains(path)) text += "+ " + path + '\n';
  }
  return text;
}

}  // namespace zub
