#include "windows/Pc.h"

#include <windows.h>
// Behind it.
#include <doctest/doctest.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <fstream>
#include <iterator>

namespace zub::drive::pc {
namespace {

fs::path shellFolder(int number) {
  char path[MAX_PATH] = "";
  REQUIRE(SHGetFolderPathA(nullptr, number | CSIDL_FLAG_CREATE, nullptr, 0, path) == S_OK);
  return path;
}

}  // namespace

fs::path temp() {
  char path[MAX_PATH] = "";
  GetTempPathA(sizeof path, path);
  return fs::path(path).parent_path();
}

fs::path recent() {
  return shellFolder(CSIDL_RECENT);
}

fs::path cookies() {
  return shellFolder(CSIDL_COOKIES);
}

fs::path appData() {
  return shellFolder(CSIDL_APPDATA);
}

fs::path programs() {
  return shellFolder(CSIDL_PROGRAM_FILES) / "Zubrane";
}

void put(const fs::path& file, std::string_view bytes) {
  fs::create_directories(file.parent_path());
  std::ofstream stream(file, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  REQUIRE(stream.good());
}

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool exists(const fs::path& path) {
  std::error_code failure;
  return fs::exists(path, failure);
}

std::size_t filesIn(const fs::path& folder) {
  std::error_code failure;
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder, failure), {}));
}

void remove(const fs::path& path) {
  std::error_code failure;
  fs::remove_all(path, failure);
}

void putValue(const std::string& key, const std::string& name, std::string_view text) {
  const std::string ended(text);
  REQUIRE(SHSetValueA(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, ended.c_str(),
                      static_cast<DWORD>(ended.size() + 1)) == ERROR_SUCCESS);
}

std::optional<std::string> value(const std::string& key, const std::string& name) {
  char text[1024] = "";
  DWORD size = sizeof text - 1;
  if (SHGetValueA(HKEY_CURRENT_USER, key.c_str(), name.c_str(), nullptr, text, &size) != ERROR_SUCCESS)
    return std::nullopt;
  return text;
}

bool hasKey(const std::string& key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

void removeKey(const std::string& key) {
  SHDeleteKeyA(HKEY_CURRENT_USER, key.c_str());
}

void option(const std::string& name, std::string_view value) {
  putValue(Store, name, value);
}

std::string storedOption(const std::string& name) {
  return value(Store, name).value_or("");
}

std::size_t seedLongWork() {
  constexpr std::size_t Files = 60;
  const std::string bytes(256 * 1024, 'x');
  for (std::size_t file = 0; file < Files; ++file) put(temp() / ("long" + std::to_string(file)), bytes);
  option("chkTempFolder");
  option("chkBleach");
  option("cmbShredder", "8");
  return Files;
}

}  // namespace zub::drive::pc
