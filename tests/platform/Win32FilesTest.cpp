// What only a Windows of its own has: its error numbers, its kinds of reparse points, what it reads into a name.
#ifdef _WIN32
#include "platform/ContractPc.h"
#include "platform/host/win32/ReparsePoint.h"
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
  Files& files = pc.platform().files;
  files.createFolder(pc.folder() + "\\in");
  pc.file(pc.folder() + "\\kept", "x");
  for (const char* name : {"in<005C>..<005C>kept", "in\\<002E002E>\\kept", "kept<003A>x", "<002A>", "con"}) {
    CAPTURE(std::string(name));
    if (!isNt(pc) && std::string_view(name) == "con")
      continue;  // found and not removed, as the device that it is
    CHECK(failure([&] { files.remove(pc.folder() + '\\' + name); }) == 52);
    CHECK_FALSE(files.find(pc.folder() + '\\' + name));
  }
  CHECK(files.fileExists(pc.folder() + "\\kept"));
}

}  // namespace zub
#endif
