#include "engine/RegistryHelper.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "engine/Engine.h"

namespace zub {
namespace {

struct HiveName {
  std::string_view text;
  Hive hive;
};
// The first text is misspelt, and so the correct spelling matches nothing; recipes rely on it.
constexpr HiveName hiveNames[] = {
    {"HKEY_CLASSSES_ROOT", Hive::ClassesRoot},
    {"HKEY_CURRENT_USER", Hive::CurrentUser},
    {"HKEY_LOCAL_MACHINE", Hive::LocalMachine},
    {"HKEY_USERS", Hive::Users},
    {"HKEY_PERFORMANCE_DATA", Hive::PerformanceData},
    {"HKEY_CURRENT_CONFIG", Hive::CurrentConfig},
    {"HKEY_DYN_DATA", Hive::DynData},
};

constexpr std::string_view ValueMarker = "Value`";

std::string_view before(std::string_view text, char sign) {
  const auto place = text.find(sign);
  if (place == std::string_view::npos) throw RuntimeError(ErrorNumber::InvalidCall);
  return text.substr(0, place);
}

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

RegistryHelper::Target RegistryHelper::parse(const std::string& Spec, bool forRemoval) {
  const std::string hiveText = engine_.pc.codePage.upper(trim(before(Spec, '\\')));
  const std::string_view rest = std::string_view(Spec).substr(Spec.find('\\') + 1);
  Target target;
  if (forRemoval && trim(rest).ends_with("Key*")) {
    KeyMode = true;
    target.path = trim(before(rest, '-'));
  }
  target.namesValue = contains(rest, ValueMarker);
  if (target.namesValue) {
    ValueMode = true;
    target.valueName = trim(rest.substr(rest.rfind('=') + 1));
    target.path = before(rest, '+');
  }
  for (const HiveName& name : hiveNames) {
    if (name.text == hiveText) hive_ = name.hive;
  }
  return target;
}

int RegistryHelper::DeleteTrace(const std::string& Spec) {
  engine_.animated->RemoveEntries(removing::Registry);
  const Target target = parse(Spec, true);
  Registry& registry = engine_.pc.registry;
  OpenKey key(registry);
  if (counted(key.open(hive_, target.path, access::All)) != status::Success) return -1;

  int result = 0;
  if (ValueMode && counted(registry.deleteValue(key.get(), target.valueName)) != status::Success) result = -1;
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

std::string RegistryHelper::TraceValue(const std::string& Spec) {
  const Target target = parse(Spec, false);
  if (!target.namesValue) return {};
  Registry& registry = engine_.pc.registry;
  OpenKey key(registry);
  if (key.open(hive_, target.path, access::All) != status::Success) return {};

  std::uint32_t type = 0;
  auto length = static_cast<std::uint32_t>(data_.size());
  if (registry.query(key.get(), target.valueName, type, data_.data(), length) != status::Success) return {};
  // The buffer is trimmed before it is cut, so that what stands behind a text with leading blanks moves up.
  const std::string_view buffer(reinterpret_cast<const char*>(data_.data()), data_.size());
  return std::string(trim(buffer).substr(0, length > 0 ? length - 1 : 0));
}

}  // namespace zub
