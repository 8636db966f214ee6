#include "platform/win32/Win32Registry.h"

#include <array>
#include <optional>
#include <string>

#include "platform/StoredData.h"
#include "platform/win32/Text.h"

namespace zub {
namespace {

static_assert(status::NoMoreItems == ERROR_NO_MORE_ITEMS && status::MoreData == ERROR_MORE_DATA);

HKEY handleOf(RegistryKey key) {
  return reinterpret_cast<HKEY>(key);
}

// The most that a name of a value has, in characters, with its NUL.
constexpr DWORD NameRoom = 16384;

// The text of a value that the code page does not hold exactly, as the program is told it: the ANSI call would take
// look-alikes, and a folder's path lead elsewhere. Nothing for any other value.
std::optional<std::string> beyondCodePage(HKEY key, const std::wstring& name) {
  DWORD size = 0;
  if (RegQueryValueExW(key, name.c_str(), nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS)
    return std::nullopt;
  std::wstring text(size / sizeof(wchar_t), L'\0');
  size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  const auto room = reinterpret_cast<BYTE*>(text.data());
  if (RegQueryValueExW(key, name.c_str(), nullptr, nullptr, room, &size) != ERROR_SUCCESS)
    return std::nullopt;
  text.resize(size / sizeof(wchar_t));
  if (wideFromAnsi(ansiFromWide(text)) == text) return std::nullopt;
  return told(text);
}

}  // namespace

// On 64 bit a hive's number is its 32 bits with the sign extended.
RegistryKey Win32Registry::hive(Hive which) const {
  return static_cast<RegistryKey>(static_cast<LONG_PTR>(static_cast<LONG>(which)));
}

RegistryStatus Win32Registry::open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                   RegistryKey& opened) {
  HKEY key = nullptr;
  const LONG result = isNtFamily()
                          ? RegOpenKeyExW(handleOf(parent), untoldWide(path).c_str(), 0, rights, &key)
                          : RegOpenKeyExA(handleOf(parent), std::string(path).c_str(), 0, rights, &key);
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
  if (isNtFamily()) {
    std::array<wchar_t, NameRoom> wideName;
    DWORD room = NameRoom;
    const LONG result =
        RegEnumKeyExW(handleOf(key), index, wideName.data(), &room, nullptr, nullptr, nullptr, nullptr);
    return result == ERROR_SUCCESS ? handName(told({wideName.data(), room}), name, length) : result;
  }
  DWORD room = length;
  const LONG result = RegEnumKeyExA(handleOf(key), index, name, &room, nullptr, nullptr, nullptr, nullptr);
  if (result == ERROR_SUCCESS) length = room;
  return result;
}

// The wide call tells the name and the ANSI one the data, which is told as the code page's text: only names are asked
// for so, and data is queried.
RegistryStatus Win32Registry::enumValue(RegistryKey key, std::uint32_t index, char* name,
                                        std::uint32_t& length, ValueType& type, std::uint8_t* data,
                                        std::uint32_t& dataLength) {
  if (isNtFamily()) {
    std::array<wchar_t, NameRoom> wideName;
    DWORD wideRoom = NameRoom;
    const LONG result =
        RegEnumValueW(handleOf(key), index, wideName.data(), &wideRoom, nullptr, nullptr, nullptr, nullptr);
    if (result != ERROR_SUCCESS) return result;
    const RegistryStatus named = handName(told({wideName.data(), wideRoom}), name, length);
    if (named != ERROR_SUCCESS) return named;
    std::array<char, std::size_t{2} * NameRoom> ansiName;
    DWORD room = static_cast<DWORD>(ansiName.size());
    DWORD kind = 0;
    DWORD size = dataLength;
    const LONG read =
        RegEnumValueA(handleOf(key), index, ansiName.data(), &room, nullptr, &kind, data, &size);
    if (read == ERROR_SUCCESS) {
      type = ValueType{kind};
      dataLength = size;
    }
    return read;
  }
  DWORD room = length;
  DWORD kind = 0;
  DWORD size = dataLength;
  const LONG result = RegEnumValueA(handleOf(key), index, name, &room, nullptr, &kind, data, &size);
  if (result == ERROR_SUCCESS) {
    length = room;
    type = ValueType{kind};
    dataLength = size;
  }
  return result;
}

RegistryStatus Win32Registry::query(RegistryKey key, std::string_view name, ValueType& type,
                                    std::uint8_t* data, std::uint32_t& dataLength) {
  DWORD kind = 0;
  DWORD size = dataLength;
  const LONG result = RegQueryValueExA(handleOf(key), std::string(name).c_str(), nullptr, &kind, data, &size);
  if (result != ERROR_SUCCESS && result != ERROR_MORE_DATA) return result;
  type = ValueType{kind};
  if (isNtFamily() && isText(type)) {
    const auto text = beyondCodePage(handleOf(key), wideFromAnsi(name));
    if (text) return handData(*text, data, dataLength);
  }
  dataLength = size;
  return result;
}

RegistryStatus Win32Registry::set(RegistryKey key, std::string_view name, ValueType type,
                                  std::span<const std::uint8_t> data) {
  const std::string bytes(data.begin(), data.end());
  if (isNtFamily() && isText(type)) {
    const std::wstring text = untoldWide(bytes);
    if (text != wideFromAnsi(bytes) && told(text) == bytes)
      return RegSetValueExW(handleOf(key), wideFromAnsi(name).c_str(), 0, static_cast<DWORD>(type),
                            reinterpret_cast<const BYTE*>(text.c_str()),
                            static_cast<DWORD>(text.size() * sizeof(wchar_t)));
  }
  return RegSetValueExA(handleOf(key), std::string(name).c_str(), 0, static_cast<DWORD>(type),
                        reinterpret_cast<const BYTE*>(bytes.c_str()), static_cast<DWORD>(data.size()));
}

RegistryStatus Win32Registry::deleteValue(RegistryKey key, std::string_view name) {
  return isNtFamily() ? RegDeleteValueW(handleOf(key), untoldWide(name).c_str())
                      : RegDeleteValueA(handleOf(key), std::string(name).c_str());
}

RegistryStatus Win32Registry::deleteKey(RegistryKey key, std::string_view path) {
  return isNtFamily() ? RegDeleteKeyW(handleOf(key), untoldWide(path).c_str())
                      : RegDeleteKeyA(handleOf(key), std::string(path).c_str());
}

RegistryStatus Win32Registry::close(RegistryKey key) {
  return RegCloseKey(handleOf(key));
}

}  // namespace zub
