#include "engine/RegistryHelper.h"

#include "base/Text.h"
#include "engine/Engine.h"

namespace zub {
namespace {

// The view into a name buffer, up to its NUL.
template <std::size_t Size>
std::string_view textIn(const std::array<char, Size>& buffer) {
  return StripAtNull({buffer.data(), Size});
}

}  // namespace

// A refusal for want of rights is something that a wash leaves behind.
RegistryStatus RegistryHelper::counted(RegistryStatus result) {
  if (result == status::AccessDenied) ++engine_.leftBehind;
  return result;
}

int RegistryHelper::DeleteTrace(const Trace& trace) {
  engine_.animated->RemoveEntries(removing::Registry);
  takeToRemove(trace);
  Registry& registry = engine_.pc.registry;
  OpenKey key(registry);
  if (counted(key.open(hive, trace.path, access::All)) != status::Success) return -1;

  int result = 0;
  if (ValueMode && counted(registry.deleteValue(key.get(), trace.valueName)) != status::Success) result = -1;
  collectNames(key.get());
  if (KeyMode && wipe(key.get()) != status::Success) result = -1;
  return result;
}

// A plain walk by index, with no deletion during it. A status other than the end still adds what the buffer
// holds.
void RegistryHelper::collectNames(RegistryKey key) {
  Registry& registry = engine_.pc.registry;
  for (std::uint32_t index = 0; index <= MaxIndex; ++index) {
    auto length = static_cast<std::uint32_t>(keyName_.size());
    if (registry.enumKey(key, index, keyName_.data(), length) == status::NoMoreItems) break;
    lstKey.emplace_back(textIn(keyName_));
  }
  for (std::uint32_t index = 0; index <= MaxIndex; ++index) {
    auto length = static_cast<std::uint32_t>(valueName_.size());
    std::uint32_t type = 0;
    auto dataLength = static_cast<std::uint32_t>(data_.size());
    if (registry.enumValue(key, index, valueName_.data(), length, type, data_.data(), dataLength) ==
        status::NoMoreItems) {
      break;
    }
    const std::string_view name = trimLeft(textIn(valueName_));
    lstValue.emplace_back(name.empty() ? "[Default]" : name);
  }
}

// One level deep: a subkey is tried once, and whether it may have subkeys of its own the PC decides.
int RegistryHelper::wipe(RegistryKey key) {
  Registry& registry = engine_.pc.registry;
  for (const std::string& name : lstValue) registry.deleteValue(key, name);
  for (const std::string& name : lstKey) registry.deleteKey(key, name);
  return counted(registry.deleteKey(key, ""));
}

std::string RegistryHelper::TraceValue(const Trace& trace) {
  takeToRead(trace);
  if (!trace.valueForm) return {};
  Registry& registry = engine_.pc.registry;
  OpenKey key(registry);
  if (key.open(hive, trace.path, access::All) != status::Success) return {};

  std::uint32_t type = 0;
  auto length = static_cast<std::uint32_t>(data_.size());
  if (registry.query(key.get(), trace.valueName, type, data_.data(), length) != status::Success) return {};
  // The buffer is trimmed before it is cut, so that what stands behind a text with leading blanks moves up.
  const std::string_view buffer(reinterpret_cast<const char*>(data_.data()), data_.size());
  return std::string(trim(buffer).substr(0, length > 0 ? length - 1 : 0));
}

}  // namespace zub
