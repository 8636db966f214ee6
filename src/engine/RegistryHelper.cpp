#include "engine/RegistryHelper.h"

#include <algorithm>
#include <numeric>
#include <utility>

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
RegistryStatus RegistryHelper::counted(RegistryStatus result, const Trace& trace) {
  if (result == status::AccessDenied) engine_.leftBehind.push_back({trace.text, "no rights"});
  return result;
}

void RegistryHelper::takeOver(const RegistryHelper& other) {
  TraceState::operator=(other);
  for (std::size_t place = 0; place < other.lstKey.size(); ++place) lstKey.add(other.lstKey[place]);
  for (std::size_t place = 0; place < other.lstValue.size(); ++place) lstValue.add(other.lstValue[place]);
  last_ = other.last_;
}

int RegistryHelper::DeleteTrace(const Trace& trace) {
  engine_.animated->RemoveEntries(removing::Registry);
  takeToRemove(trace);
  Registry& registry = *engine_.pc.registry;
  OpenKey key(registry);
  if (counted(key.open(hive, trace.path, access::All), trace) != status::Success) return -1;

  int result = 0;
  std::uint32_t deleted = 0;
  if (ValueMode) {
    if (counted(registry.deleteValue(key.get(), trace.valueName), trace) == status::Success) {
      deleted = 1;
    } else {
      result = -1;
    }
  }
  // Of a key that was just looked through and not wiped all names are known, but for what came behind them.
  if (KeyMode || last_.hive != hive || last_.path != trace.path) last_ = {hive, trace.path, 0, 0};
  Walk keys = walk(key.get(), &RegistryHelper::enumKey, last_.keys);
  Walk values = walk(key.get(), &RegistryHelper::enumValue, last_.values - std::min(last_.values, deleted));
  last_.keys = keys.again();
  last_.values = values.again();
  if (KeyMode && counted(wipe(key.get(), std::move(keys), std::move(values)), trace) != status::Success)
    result = -1;
  return result;
}

RegistryStatus RegistryHelper::enumKey(RegistryKey key, std::uint32_t index, std::size_t& place) {
  auto length = static_cast<std::uint32_t>(keyName_.size());
  const RegistryStatus result = engine_.pc.registry->enumKey(key, index, keyName_.data(), length);
  if (result != status::NoMoreItems) place = lstKey.add(textIn(keyName_));
  return result;
}

RegistryStatus RegistryHelper::enumValue(RegistryKey key, std::uint32_t index, std::size_t& place) {
  auto length = static_cast<std::uint32_t>(valueName_.size());
  ValueType type{};
  auto dataLength = static_cast<std::uint32_t>(data_.size());
  const RegistryStatus result =
      engine_.pc.registry->enumValue(key, index, valueName_.data(), length, type, data_.data(), dataLength);
  const std::string_view name = trimLeft(textIn(valueName_));
  if (result != status::NoMoreItems) place = lstValue.add(name.empty() ? "[Default]" : name);
  return result;
}

// No deletion during it. A status other than the end still adds what the buffer holds.
RegistryHelper::Walk RegistryHelper::walk(RegistryKey key, Enumerate next, std::uint32_t from) {
  Walk walk;
  for (walk.end = from; walk.end <= MaxIndex; ++walk.end) {
    std::size_t place = 0;
    const RegistryStatus result = (this->*next)(key, walk.end, place);
    if (result == status::NoMoreItems) break;
    walk.refused |= result != status::Success;
    walk.places.push_back(place);
  }
  return walk;
}

// One level deep: a subkey is tried once, and whether it may have subkeys of its own the PC decides. All names met so
// far are tried, in their order; where the walk saw all that is there, the others can only fail, and are left out.
RegistryStatus RegistryHelper::wipe(RegistryKey key, Walk keys, Walk values) {
  const auto forEach = [](Walk& walk, const NameList& names, const auto& remove) {
    if (!walk.complete()) {
      walk.places.resize(names.size());
      std::iota(walk.places.begin(), walk.places.end(), std::size_t{0});
    }
    std::ranges::sort(walk.places);
    for (const std::size_t place : walk.places) remove(names[place]);
  };
  Registry& registry = *engine_.pc.registry;
  forEach(values, lstValue, [&](const std::string& name) { registry.deleteValue(key, name); });
  forEach(keys, lstKey, [&](const std::string& name) { registry.deleteKey(key, name); });
  return registry.deleteKey(key, "");
}

std::string RegistryHelper::TraceValue(const Trace& trace) {
  takeToRead(trace);
  if (!trace.valueForm) return {};
  Registry& registry = *engine_.pc.registry;
  OpenKey key(registry);
  if (key.open(hive, trace.path, access::All) != status::Success) return {};

  ValueType type{};
  auto length = static_cast<std::uint32_t>(data_.size());
  if (registry.query(key.get(), trace.valueName, type, data_.data(), length) != status::Success) return {};
  // The buffer is trimmed before it is cut, so that what stands behind a text with leading blanks moves up.
  const std::string_view buffer(reinterpret_cast<const char*>(data_.data()), data_.size());
  return std::string(trim(buffer).substr(0, length > 0 ? length - 1 : 0));
}

}  // namespace zub
