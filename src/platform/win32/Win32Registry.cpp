#include "platform/win32/Win32Registry.h"

#include <string>

#include "platform/win32/WindowsHeader.h"

namespace zub {
namespace {

static_assert(status::NoMoreItems == ERROR_NO_MORE_ITEMS && status::MoreData == ERROR_MORE_DATA);

HKEY handleOf(RegistryKey key) {
  return reinterpret_cast<HKEY>(key);
}

}  // namespace

// On 64 bit a hive's number is its 32 bits with the sign extended.
RegistryKey Win32Registry::hive(Hive which) const {
  return static_cast<RegistryKey>(static_cast<LONG_PTR>(static_cast<LONG>(which)));
}

RegistryStatus Win32Registry::open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                   RegistryKey& opened) {
  HKEY key = nullptr;
  const LONG result = RegOpenKeyExA(handleOf(parent), std::string(path).c_str(), 0, rights, &key);
  if (result == ERROR_SUCCESS) opened = reinterpret_cast<RegistryKey>(key);
  return result;
}

RegistryStatus Win32Registry::create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                     RegistryKey& opened) {
  HKEY key = nullptr;
  char keyClass[] = "1";
  const LONG result = RegCreateKeyExA(handleOf(parent), std::string(path).c_str(), 0, keyClass,
                                      REG_OPTION_NON_VOLATILE, rights, nullptr, &key, nullptr);
  if (result == ERROR_SUCCESS) opened = reinterpret_cast<RegistryKey>(key);
  return result;
}

RegistryStatus Win32Registry::enumKey(RegistryKey key, std::uint32_t index, char* name,
                                      std::uint32_t& length) {
  DWORD room = length;
  const LONG result = RegEnumKeyExA(handleOf(key), index, name, &room, nullptr, nullptr, nullptr, nullptr);
  if (result == ERROR_SUCCESS) length = room;
  return result;
}

RegistryStatus Win32Registry::enumValue(RegistryKey key, std::uint32_t index, char* name,
                                        std::uint32_t& length, std::uint32_t& type, std::uint8_t* data,
                                        std::uint32_t& dataLength) {
  DWORD room = length;
  DWORD kind = 0;
  DWORD size = dataLength;
  const LONG result = RegEnumValueA(handleOf(key), index, name, &room, nullptr, &kind, data, &size);
  if (result == ERROR_SUCCESS) {
    length = room;
    type = kind;
    dataLength = size;
  }
  return result;
}

RegistryStatus Win32Registry::query(RegistryKey key, std::string_view name, std::uint32_t& type,
                                    std::uint8_t* data, std::uint32_t& dataLength) {
  DWORD kind = 0;
  DWORD size = dataLength;
  const LONG result = RegQueryValueExA(handleOf(key), std::string(name).c_str(), nullptr, &kind, data, &size);
  if (result == ERROR_SUCCESS || result == ERROR_MORE_DATA) {
    type = kind;
    dataLength = size;
  }
  return result;
}

RegistryStatus Win32Registry::set(RegistryKey key, std::string_view name, std::uint32_t type,
                                  std::span<const std::uint8_t> data) {
  const std::string bytes(data.begin(), data.end());
  return RegSetValueExA(handleOf(key), std::string(name).c_str(), 0, type,
                        reinterpret_cast<const BYTE*>(bytes.c_str()), static_cast<DWORD>(data.size()));
}

RegistryStatus Win32Registry::deleteValue(RegistryKey key, std::string_view name) {
  return RegDeleteValueA(handleOf(key), std::string(name).c_str());
}

RegistryStatus Win32Registry::deleteKey(RegistryKey key, std::string_view path) {
  return RegDeleteKeyA(handleOf(key), std::string(path).c_str());
}

RegistryStatus Win32Registry::close(RegistryKey key) {
  return RegCloseKey(handleOf(key));
}

}  // namespace zub
