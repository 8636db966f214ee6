// The PC's own registry.
#pragma once

#include "platform/Registry.h"

namespace zub {

class Win32Registry : public Registry {
 public:
  RegistryKey hive(Hive which) const override;
  RegistryStatus open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                      RegistryKey& opened) override;
  RegistryStatus create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                        RegistryKey& opened) override;
  RegistryStatus enumKey(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length) override;
  RegistryStatus enumValue(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length,
                           ValueType& type, std::uint8_t* data, std::uint32_t& dataLength) override;
  RegistryStatus query(RegistryKey key, std::string_view name, ValueType& type, std::uint8_t* data,
                       std::uint32_t& dataLength) override;
  RegistryStatus set(RegistryKey key, std::string_view name, ValueType type,
                     std::span<const std::uint8_t> data) override;
  RegistryStatus deleteValue(RegistryKey key, std::string_view name) override;
  RegistryStatus deleteKey(RegistryKey key, std::string_view path) override;
  RegistryStatus close(RegistryKey key) override;
  std::vector<std::string> shownBy(Hive which) const override;
};

}  // namespace zub
