#include "settings/WindowsStartup.h"

#include "base/Text.h"

namespace zub {
void WindowsStartup::AddStartupEntry(std::string_view data, std::string_view name) {
  move(parkedKey, runKey, data, name);
}

void WindowsStartup::RemoveStartupEntry(std::string_view data, std::string_view name) {
  move(runKey, parkedKey, data, name);
}

void WindowsStartup::move(std::string_view from, std::string_view to, std::string_view data,
                          std::string_view name) {
  const std::span bytes(reinterpret_cast<const std::uint8_t*>(data.data()), data.size());
  for (const Hive root : {Hive::LocalMachine, Hive::CurrentUser}) {
    OpenKey source(registry_);
    if (source.open(root, from, access::Write) == status::Success) registry_.deleteValue(source.get(), name);
    OpenKey target(registry_);
    if (target.open(root, to, access::Write) == status::Success) {
      registry_.set(target.get(), name, static_cast<std::uint32_t>(ValueType::Text), bytes);
    }
  }
}

std::string startupCommand(SystemFolders& folders) {
  return withBackslash(folders.programFolder()) + "zub.exe /STARTUP";
}

}  // namespace zub
