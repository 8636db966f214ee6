#include "platform/BeneathState.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "base/Text.h"

namespace zub {

BeneathState::BeneathState(Platform& pc, std::string folder, std::string key, TimesOf times)
    : pc_(pc), folder_(std::move(folder)), key_(std::move(key)), times_(std::move(times)) {
  take();
}

void BeneathState::take(const std::string& path) {
  if (path.starts_with(folder_)) taken_[path] = describe(path);
}

std::string BeneathState::changes() const {
  std::vector<Entries::value_type> differing;
  std::ranges::set_symmetric_difference(taken_, look(), std::back_inserter(differing));
  std::string text;
  for (const auto& [path, state] : differing) text += path + ": " + state.substr(0, 60) + '\n';
  return text;
}

BeneathState::Entries BeneathState::look() const {
  Entries entries;
  addFolder(entries, folder_);
  addKey(entries, pc_.registry->hive(Hive::CurrentUser), key_, key_);
  pc_.tasks->refresh();
  for (int position = 1; position <= pc_.tasks->count(); ++position) {
    ScheduleTask& task = pc_.tasks->at(position);
    std::string& triggers = entries["task " + task.name()];
    for (const std::string& text : task.triggers().texts()) triggers += text + CrLf.data();
  }
  return entries;
}

// Attributes, times and bytes.
std::string BeneathState::describe(const std::string& path) const {
  const std::uint32_t bits = pc_.files->attributes(path);
  std::string text = std::to_string(bits) + ' ' + times_(path) + ' ';
  if ((bits & (attribute::Directory | attribute::Link)) != 0) return text;
  const auto channel = pc_.files->open(path, OpenMode::Input);
  std::string bytes(static_cast<std::size_t>(channel->length()), '\0');
  return text.append(bytes, 0, channel->read(bytes));
}

void BeneathState::addFolder(Entries& entries, const std::string& path) const {
  entries[path] = describe(path);
  if (!isFolder(pc_.files->attributes(path))) return;
  FoundFile found;
  for (const auto search = pc_.files->find(path + "\\*"); search && search->next(found);)
    addFolder(entries, path + '\\' + found.name);
}

void BeneathState::addKey(Entries& entries, RegistryKey parent, const std::string& name,
                          const std::string& path) const {
  Registry& registry = *pc_.registry;
  RegistryKey key = 0;
  if (registry.open(parent, name, access::Read, key) != status::Success) return;
  entries[path];
  constexpr std::uint32_t NameRoom = 16384, DataRoom = 65536;
  std::array<char, NameRoom> text;
  std::array<std::uint8_t, DataRoom> data;
  for (std::uint32_t index = 0, length = NameRoom, bytes = DataRoom;;
       ++index, length = NameRoom, bytes = DataRoom) {
    ValueType type{};
    if (registry.enumValue(key, index, text.data(), length, type, data.data(), bytes) != status::Success)
      break;
    entries[path + " \"" + text.data() + '"'] = std::to_string(static_cast<std::uint32_t>(type)) + ' ' +
                                                std::string(data.begin(), data.begin() + bytes);
  }
  for (std::uint32_t index = 0, length = NameRoom;
       registry.enumKey(key, index, text.data(), length) == status::Success; ++index, length = NameRoom)
    addKey(entries, key, text.data(), path + '\\' + text.data());
  registry.close(key);
}

}  // namespace zub
