// What only a Windows of its own has: its error numbers, its kinds of reparse points, what it reads into a name.
#ifdef _WIN32
#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <set>

#include "platform/ContractPc.h"
#include "platform/host/win32/ReparsePoint.h"
#include "platform/win32/Text.h"
#include "platform/win32/Win32Error.h"

namespace zub {

TEST_CASE("errors of the system that no row knows are those of a device") {
  for (const DWORD unknown : {DWORD{ERROR_FILENAME_EXCED_RANGE}, DWORD{ERROR_INVALID_PARAMETER}, DWORD{4711}})
    CHECK(errorNumberOf(unknown) == ErrorNumber::DeviceIo);
}

TEST_CASE("a reparse point is a link where it stands for another name, and where nobody knows") {
  const struct {
    DWORD attributes;
    DWORD tag;
    bool link;
  } rows[] = {
      {FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY, IO_REPARSE_TAG_MOUNT_POINT, true},
      {FILE_ATTRIBUTE_REPARSE_POINT, 0xA000000C, true},  // a symbolic link
      {FILE_ATTRIBUTE_REPARSE_POINT, 0, true},
      {FILE_ATTRIBUTE_REPARSE_POINT, 0x80000013, false},  // deduplicated
      {FILE_ATTRIBUTE_REPARSE_POINT, 0x9000001A, false},  // in a cloud
      {FILE_ATTRIBUTE_NORMAL, IO_REPARSE_TAG_MOUNT_POINT, false},
  };
  for (const auto& row : rows) CHECK(isLink(row.attributes, row.tag) == row.link);
}

TEST_CASE("a stand-in is never read as a part of the path itself") {
  Win32ContractPc pc;
  Files& files = *pc.platform().files;
  files.createFolder(pc.folder() + "\\in");
  pc.file(pc.folder() + "\\kept", "x");
  for (const char* name : {"in<005C>..<005C>kept", "in\\<002E002E>\\kept", "kept<003A>x", "<002A>", "con"}) {
    CAPTURE(std::string(name));
    if (!isNt(pc) && std::string_view(name) == "con")
      continue;  // found and not removed, as the device that it is
    CHECK(failure([&] { files.grip(pc.folder() + '\\' + name); }) == 53);
    CHECK_FALSE(files.find(pc.folder() + '\\' + name));
  }
  CHECK(files.fileExists(pc.folder() + "\\kept"));
}

// Run in a Wine of code page 932, where the second byte of a character may be that of a backslash.
TEST_CASE("code page 932: no byte of a character is taken for a separator" * doctest::skip(GetACP() != 932)) {
  Win32ContractPc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  pc.wide(u"\u8868", true);
  pc.wide(u"\u30BD.tmp", false);
  pc.wide(u"\u3042.tmp", false);
  for (const char* decoy : {".tmp", "tmp", "kept"}) pc.file(base + decoy, "x");
  files.open(base + "<8868>\\inner.tmp", OpenMode::Binary);

  std::set<std::string> names;
  const auto search = files.find(base + "*");
  REQUIRE(search);
  for (FoundFile entry; search->next(entry);) names.insert(entry.name);
  CHECK(names == std::set<std::string>{"<8868>", "<30BD>.tmp", "\x82\xA0.tmp", ".tmp", "tmp", "kept"});
  // A path from outside, as bytes.
  CHECK(pc.platform().codePage->toldPath(base + "\x95\x5C\\a") == base + "<8868>\\a");
  CHECK(files.find(base + "\x95\x5C"));

  files.deleteFolder(base + "<8868>");
  files.grip(base + "<30BD>.tmp")->remove();
  files.grip(base + "\x82\xA0.tmp")->remove();
  for (const char16_t* gone : {u"\u8868", u"\u30BD.tmp", u"\u3042.tmp"}) CHECK_FALSE(pc.hasWide(gone));
  for (const char* decoy : {".tmp", "tmp", "kept"}) CHECK(files.fileExists(base + decoy));
}

TEST_CASE("a folder that the registry names in another alphabet is found, and its name stored as it was") {
  Win32ContractPc pc;
  if (!isNt(pc)) return;
  Registry& registry = *pc.platform().registry;
  pc.wide(u"\u0101\u8868", true);
  const std::wstring path = wideFromAnsi(pc.folder()) + L"\\\u0101\u8868";
  const auto size = static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t));
  OpenKey key(registry);
  REQUIRE(key.create(Hive::CurrentUser, pc.key(), access::All) == status::Success);
  const auto handle = reinterpret_cast<HKEY>(key.get());
  REQUIRE(RegSetValueExW(handle, L"Cache", 0, REG_SZ, reinterpret_cast<const BYTE*>(path.c_str()), size) ==
          0);

  std::array<std::uint8_t, 1024> data;
  ValueType type{};
  const auto query = [&](std::uint8_t* room, std::uint32_t& length) {
    return registry.query(key.get(), "Cache", type, room, length);
  };
  std::uint32_t needed = 0, length = data.size();
  CHECK(query(nullptr, needed) == status::Success);
  REQUIRE(query(data.data(), length) == status::Success);
  CHECK(needed == length);
  const std::string told(reinterpret_cast<const char*>(data.data()), length);
  CHECK(query(data.data(), --needed) == status::MoreData);
  CHECK(told == pc.folder() + "\\<01018868>" + '\0');
  CHECK(pc.platform().files->folderExists(told.substr(0, length - 1)));

  const auto* bytes = reinterpret_cast<const std::uint8_t*>(told.data());
  REQUIRE(registry.set(key.get(), "Copy", ValueType::Text, {bytes, length - 1}) == status::Success);
  std::array<wchar_t, 512> stored;
  DWORD room = sizeof stored;
  REQUIRE(RegQueryValueExW(handle, L"Copy", nullptr, nullptr, reinterpret_cast<BYTE*>(stored.data()),
                           &room) == 0);
  CHECK(room == size);
  CHECK(std::wstring(stored.data()) == path);
}

TEST_CASE("the recycle bins are told by their folders: one for all, and on the NT family the user's") {
  Win32ContractPc pc;
  const std::vector<std::string> bins = pc.platform().shell->recycleBins();
  for (const char* begin : {"\\Recycled", "\\Recycler\\S-1-5-", "\\$Recycle.Bin\\S-1-5-"}) {
    CAPTURE(std::string(begin));
    const bool told = std::ranges::any_of(
        bins, [&](const std::string& bin) { return bin.starts_with(pc.folder().substr(0, 2) + begin); });
    CHECK(told == (isNt(pc) || begin == std::string_view("\\Recycled")));
  }
}

TEST_CASE("where nothing names a folder for temporary files there is none") {
  Win32ContractPc pc;
  std::map<const char*, std::string> before;
  for (const char* variable : {"TMP", "TEMP"}) {
    before[variable] = std::getenv(variable);
    SetEnvironmentVariableA(variable, nullptr);
  }
  const std::string none = pc.platform().folders->temp(512);
  for (const auto& [variable, text] : before) SetEnvironmentVariableA(variable, text.c_str());
  CHECK(none.empty());
  CHECK_FALSE(pc.platform().folders->temp(512).empty());
}

TEST_CASE("the steady clock counts the milliseconds that the system counts") {
  Win32ContractPc pc;
  Clock& clock = *pc.platform().clock;
  const std::uint64_t first = clock.ticks();
  const DWORD begin = GetTickCount();
  while (GetTickCount() - begin < 20) SwitchToThread();
  CHECK(clock.ticks() - first >= 5);
  CHECK(clock.ticks() - first < 60000);
}

}  // namespace zub
#endif
