#include "platform/win32/SystemPath.h"

#include <algorithm>
#include <array>

#include "base/RuntimeError.h"
#include "platform/win32/Text.h"

namespace zub {
namespace {

constexpr std::wstring_view WholePath = L"\\\\?\\";  // the system takes what follows as it stands
constexpr std::wstring_view WholeShare = L"\\\\?\\UNC\\";

[[noreturn]] void refuse() {
  throw RuntimeError(ErrorNumber::BadFileName);
}

// What a stand-in of a file's name stands for is never read as anything but a part of that name.
void checkUnit(char16_t unit) {
  if (unit < ' ' || std::u16string_view(u"<>:\"|?*\\/").find(unit) != std::u16string_view::npos) refuse();
}

// Behind a prefix that keeps the system from reading dots, they would be taken for an entry of that name.
std::wstring withoutDots(std::wstring path) {
  const std::wstring closed = path + L'\\';
  if (closed.find(L"\\.\\") != std::wstring::npos || closed.find(L"\\..\\") != std::wstring::npos) refuse();
  return path;
}

std::wstring fullPath(const std::wstring& path) {
  std::wstring full(path.size() + MAX_PATH, L'\0');
  DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  if (length >= full.size()) {
    full.resize(length + 1);
    length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  }
  full.resize(std::min<std::size_t>(length, full.size()));
  return full;
}

// What Windows reads into a path (the current folder, dots, slashes) is in it, and the calls take it as it stands.
std::wstring wholePath(const std::wstring& given) {
  const std::wstring full = fullPath(given);
  if (full.empty() || full.starts_with(L"\\\\.\\")) refuse();
  if (full.starts_with(WholePath)) return withoutDots(resolved(full, checkUnit));
  const bool onShare = full.starts_with(L"\\\\");
  const std::wstring path = withoutDots(resolved(std::wstring_view(full).substr(onShare ? 2 : 0), checkUnit));
  return std::wstring(onShare ? WholeShare : WholePath) + path;
}

// For the ANSI calls: a stand-in is read where the code page holds what it stands for, as in a double-byte one.
std::wstring withoutStandIns(std::wstring path) {
  if (path.find(L'<') == std::wstring::npos) return path;
  path = withoutDots(resolved(path, checkUnit));
  if (path.find(L'<') != std::wstring::npos || wideFromAnsi(ansiFromWide(path)) != path) refuse();
  return path;
}

void widen(const WIN32_FIND_DATAA& found, WIN32_FIND_DATAW& result) {
  result.dwFileAttributes = found.dwFileAttributes;
  result.ftCreationTime = found.ftCreationTime;
  result.ftLastAccessTime = found.ftLastAccessTime;
  result.ftLastWriteTime = found.ftLastWriteTime;
  result.nFileSizeHigh = found.nFileSizeHigh;
  result.nFileSizeLow = found.nFileSizeLow;
  result.dwReserved0 = 0;
  const std::wstring name = wideFromAnsi(found.cFileName);
  result.cFileName[name.copy(result.cFileName, MAX_PATH - 1)] = L'\0';
}

HANDLE findFirst(const std::wstring& path, WIN32_FIND_DATAW& found) {
  if (isNtFamily()) return FindFirstFileW(path.c_str(), &found);
  WIN32_FIND_DATAA ansi;
  const HANDLE search = FindFirstFileA(ansiFromWide(path).c_str(), &ansi);
  if (search != INVALID_HANDLE_VALUE) widen(ansi, found);
  return search;
}

}  // namespace

SystemPath::SystemPath(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) refuse();
  wide_ = wideFromAnsi(path);
  namesFolder_ = wide_.ends_with(L'\\') || wide_.ends_with(L'/');
  wide_ = isNtFamily() ? wholePath(wide_) : withoutStandIns(wide_);
  while (wide_.ends_with(L'\\') && !isRoot()) wide_.pop_back();
  if (!isNtFamily()) ansi_ = ansiFromWide(wide_);
}

bool SystemPath::isRoot() const {
  return wide_.ends_with(L":\\") || wide_.ends_with(L':');
}

DWORD SystemPath::attributes() const {
  return isNtFamily() ? GetFileAttributesW(wide_.c_str()) : GetFileAttributesA(ansi_.c_str());
}

bool SystemPath::setAttributes(DWORD attributes) const {
  return (isNtFamily() ? SetFileAttributesW(wide_.c_str(), attributes)
                       : SetFileAttributesA(ansi_.c_str(), attributes)) != 0;
}

HANDLE SystemPath::open(DWORD access, DWORD sharing, DWORD disposition, DWORD flags) const {
  return isNtFamily() ? CreateFileW(wide_.c_str(), access, sharing, nullptr, disposition, flags, nullptr)
                      : CreateFileA(ansi_.c_str(), access, sharing, nullptr, disposition, flags, nullptr);
}

bool SystemPath::removeFile() const {
  return (isNtFamily() ? DeleteFileW(wide_.c_str()) : DeleteFileA(ansi_.c_str())) != 0;
}

bool SystemPath::removeFolder() const {
  return (isNtFamily() ? RemoveDirectoryW(wide_.c_str()) : RemoveDirectoryA(ansi_.c_str())) != 0;
}

bool SystemPath::makeFolder() const {
  return (isNtFamily() ? CreateDirectoryW(wide_.c_str(), nullptr)
                       : CreateDirectoryA(ansi_.c_str(), nullptr)) != 0;
}

bool SystemPath::moveTo(const SystemPath& path) const {
  return (isNtFamily() ? MoveFileW(wide_.c_str(), path.wide_.c_str())
                       : MoveFileA(ansi_.c_str(), path.ansi_.c_str())) != 0;
}

bool SystemPath::moveOver(const SystemPath& path) const {
  return MoveFileExW(wide_.c_str(), path.wide_.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
         0;
}

std::string SystemPath::shortPath() const {
  if (!isNtFamily()) {
    std::array<char, MAX_PATH> path;
    const DWORD length = GetShortPathNameA(ansi_.c_str(), path.data(), MAX_PATH);
    return length < path.size() ? std::string(path.data(), length) : std::string();
  }
  std::wstring path(wide_.size() + 1, L'\0');
  const DWORD length = GetShortPathNameW(wide_.c_str(), path.data(), static_cast<DWORD>(path.size()));
  if (length >= path.size()) return {};
  path.resize(length);
  if (path.starts_with(WholeShare))
    path.erase(2, WholeShare.size() - 2);
  else if (path.starts_with(WholePath))
    path.erase(0, WholePath.size());
  return toldPath(path);
}

HANDLE SystemPath::findInside(WIN32_FIND_DATAW& found) const {
  std::wstring path = wide_;
  if (!path.ends_with(L'\\') && !path.ends_with(L':')) path += L'\\';
  return findFirst(path + L'*', found);
}

HANDLE SystemPath::findItself(WIN32_FIND_DATAW& found) const {
  return findFirst(wide_, found);
}

bool findNext(HANDLE search, WIN32_FIND_DATAW& found) {
  if (isNtFamily()) return FindNextFileW(search, &found) != 0;
  WIN32_FIND_DATAA ansi;
  if (FindNextFileA(search, &ansi) == 0) return false;
  widen(ansi, found);
  return true;
}

}  // namespace zub
