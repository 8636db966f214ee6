#include <doctest/doctest.h>

#include "support/WashFixture.h"

#ifndef _WIN32
#include <unistd.h>
#endif

using namespace zub;

namespace {

const std::string path = "C:\\T\\f.txt";

struct Failing : WashFixture {
  explicit Failing(std::vector<std::string> facts = {}) : WashFixture(std::move(facts)) {
    options.chkSkipMessages.Value(1);
    pc.file(path, "eight by");
    engine.animated->StartAnimation();
  }
};

const std::string lockedPrompt =
    "The file C:\\T\\f.txt you are trying to delete is locked.\r\n"
    "You need to restart your computer to delete this file";
const std::string lockedLine =
    "\tDelete locked file: The file C:\\T\\f.txt you are trying to delete is locked."
    "You need to restart your computer to delete this file\r\n\r\n";

}  // namespace

TEST_CASE("every failure is told in its own words, and the animation goes on") {
  enum Route { Refused, Locked, LockedAndScheduled };
  struct {
    std::string call;
    ErrorNumber error;
    int nSpecial;
    Route route;
    std::string description;
  } const rows[] = {
      {"remove ", ErrorNumber::PermissionDenied, 0, Locked, "Permission denied"},
      {"length ", ErrorNumber::PermissionDenied, 1, LockedAndScheduled, "Permission denied"},
      {"remove ", ErrorNumber::PathFileAccess, 0, LockedAndScheduled, "Path/File access error"},
      {"reset attributes of ", ErrorNumber::PathFileAccess, 1, LockedAndScheduled, "Path/File access error"},
      {"remove ", ErrorNumber::DeviceIo, 1, Refused, "Device I/O error"},
      {"length ", ErrorNumber::TooManyFiles, 0, Refused, "Too many files"},
      {"reset attributes of ", ErrorNumber::DiskNotReady, 1, Refused, "Disk not ready"},
      {"reset attributes of ", ErrorNumber::PathNotFound, 0, Refused, "Path not found"},
      {"length ", ErrorNumber::BadFileName, 1, Refused, "Bad file name or number"},
  };
  for (const auto& row : rows) {
    for (const int popUps : {0, 1}) {
      CAPTURE(row.description);
      CAPTURE(row.nSpecial);
      CAPTURE(popUps);
      Failing pc;
      pc.options.chkSkipMessages.Value(popUps);
      pc.pc.fail(row.call + path, row.error);
      CHECK(pc.engine.deleter->DeleteFile(path, row.nSpecial));

      const std::string outcome =
          row.route == Refused ? " cannot be deleted" : " is locked or is on a read only drive/network";
      const std::string attempt = row.call == "remove " ? "\tDeleting file f.txt\r\n" : "";
      const bool scheduled = row.route == LockedAndScheduled;
      CHECK(pc.takeReport() == attempt + (scheduled ? lockedLine : "") + "\t" + row.description +
                                   " The file C:\\T\\f.txt" + outcome + "\r\n\r\n");
      const std::string popUp = (scheduled ? "Delete locked file: " + lockedPrompt + ";" : "") +
                                row.description + ": The file C:\\T\\f.txt\r\n" + outcome + ";";
      CHECK(pc.told() == (popUps == 1 ? popUp : ""));
      CHECK(pc.pc.hasFile("C:\\WINDOWS\\wininit.ini") == scheduled);
      CHECK(pc.progress().Timer.Enabled);
      CHECK(pc.engine.TotalBytes == 0);
      CHECK(pc.engine.leftBehind.size() == 1);
      CHECK(pc.pc.bytes(path) == "eight by");
    }
  }
}

TEST_CASE("a missing file fails in silence, is not made, and leaves the animation standing") {
  Failing pc;
  const std::string before = pc.pc.snapshot();
  for (const char* missing : {"C:\\none.txt", "C:\\none\\none.txt"}) {
    CAPTURE(missing);
    pc.engine.animated->StartAnimation();
    CHECK(pc.engine.deleter->DeleteFile(missing, 1));
    CHECK_FALSE(pc.progress().Timer.Enabled);
    CHECK(pc.engine.animated->RemoveEntries() == removing::Files);
  }
  CHECK(pc.takeReport().empty());
  CHECK(pc.told().empty());
  CHECK(pc.pc.diffSince(before).empty());
  CHECK(pc.engine.leftBehind.size() == 0);
}

TEST_CASE("the file scheduled last stands alone in the profile, on both families") {
  for (const char* family : {"family = 9x", "family = nt"}) {
    CAPTURE(family);
    Failing pc({family});
    const std::string first = "C:\\T\\A long file name.dat";
    pc.pc.file(first);
    for (const std::string& held : {first, path}) {
      pc.pc.lock(held);
      CHECK(pc.engine.deleter->DeleteFile(held, 1));
      CHECK(pc.pc.bytes("C:\\WINDOWS\\wininit.ini") ==
            "[rename]\r\nnul=" + pc.pc.platform().files->shortPath(held) + "\r\n");
    }
  }
}

TEST_CASE("files and folders that stay do not keep the others") {
  WashFixture pc;
  for (const char* name : {"1", "2", "a\\3", "b\\4"}) pc.pc.file(std::string("C:\\T\\") + name, "four");
  pc.pc.folder("C:\\T\\c");
  pc.pc.lock("C:\\T\\a\\3");
  pc.pc.fail("remove C:\\T\\1", ErrorNumber::DeviceIo);
  pc.pc.fail("remove folder C:\\T\\c", ErrorNumber::PermissionDenied);
  CHECK_FALSE(pc.engine.deleter->DeleteFolder("C:\\T", "*.*"));
  CHECK(pc.pc.hasFile("C:\\T\\1"));
  CHECK_FALSE(pc.pc.hasFile("C:\\T\\2"));
  CHECK(pc.pc.hasFile("C:\\T\\a\\3"));
  CHECK_FALSE(pc.pc.hasFolder("C:\\T\\b"));
  CHECK(pc.pc.hasFolder("C:\\T\\c"));
  CHECK(pc.engine.TotalBytes == 8);
  CHECK(pc.engine.leftBehind.size() == 4);  // the folder that holds the locked file counts too
}

TEST_CASE("a folder that cannot be listed is told and counted, and does not keep the others") {
  WashFixture pc;
  for (const char* name : {"1", "a\\2", "b\\3"}) pc.pc.file(std::string("C:\\T\\") + name);
  pc.pc.fail("search C:\\T\\a\\*", ErrorNumber::PathFileAccess);
  CHECK_FALSE(pc.engine.deleter->DeleteFolder("C:\\T", "*.tmp"));
  CHECK(pc.engine.leftBehind.size() == 1);
  CHECK(pc.engine.leftBehind[0].what == "C:\\T\\a\\");
  CHECK(pc.engine.leftBehind[0].why == "Path/File access error");
  CHECK_FALSE(pc.engine.deleter->DeleteFolder("C:\\T", "*."));
  CHECK_FALSE(pc.pc.hasFile("C:\\T\\1"));
  CHECK(pc.pc.hasFile("C:\\T\\a\\2"));
  CHECK_FALSE(pc.pc.hasFile("C:\\T\\b\\3"));

  pc.takeReport();
  pc.pc.fail("search C:\\T\\b\\*.*", ErrorNumber::DeviceIo);
  pc.engine.deleter->DeleteFilesInFolder("C:\\T\\b", "*.*");
  CHECK(pc.takeReport() == "Device I/O error\r\n");
  CHECK(pc.engine.leftBehind.size() == 3);
}

#ifndef _WIN32
TEST_CASE("a link to a folder goes where folders go, and is never entered") {
  WashFixture pc;
  pc.pc.file("C:\\T\\1.tmp");
  pc.pc.file("C:\\Else\\kept");
  const std::string drive = pc.pc.hostFolder() + "/C/";
  for (const char* link : {"T/link.tmp", "Start"})
    REQUIRE(symlink((drive + "Else").c_str(), (drive + link).c_str()) == 0);
  pc.engine.deleter->DeleteFolder("C:\\T", "*.tmp");
  CHECK_FALSE(pc.pc.hasFile("C:\\T\\1.tmp"));
  CHECK(pc.pc.hasFile("C:\\T\\link.tmp"));
  pc.engine.deleter->DeleteFolder("C:\\T", "*.*");
  CHECK_FALSE(pc.pc.hasFile("C:\\T\\link.tmp"));
  CHECK(pc.engine.leftBehind.size() == 0);

  pc.engine.deleter->DeleteFolder("C:\\Start", "*.*");
  CHECK(pc.engine.leftBehind.size() == 1);
  CHECK(pc.engine.leftBehind[0].why == "a link, which is not entered");
  CHECK(pc.pc.hasFile("C:\\Else\\kept"));
}
#endif

TEST_CASE("a sum of bytes beyond 32 bits is that file's failure, which by then is gone") {
  Failing pc;
  pc.engine.TotalBytes = 2147483647 - 8;
  CHECK_FALSE(pc.engine.deleter->DeleteFile(path, 0));
  CHECK(pc.engine.TotalBytes == 2147483647);
  pc.takeReport();
  pc.pc.file(path, "1");
  CHECK(pc.engine.deleter->DeleteFile(path, 0));
  CHECK(pc.engine.TotalBytes == 2147483647);
  CHECK_FALSE(pc.pc.hasFile(path));
  CHECK(pc.engine.leftBehind.size() == 0);
  CHECK(pc.takeReport() ==
        "\tDeleting file f.txt\r\n\tOverflow The file C:\\T\\f.txt cannot be deleted\r\n\r\n");
}

TEST_CASE("a shredder that fails leaves the outcome to the removal") {
  for (const std::string call : {"open to write over ", "write "}) {
    Failing pc;
    pc.options.chkBleach.Value(1);
    pc.pc.file(path, std::string(4096, 'A'));
    pc.pc.fail(call + path, ErrorNumber::DiskFull);
    CHECK_FALSE(pc.engine.deleter->DeleteFile(path, 0));
    CHECK_FALSE(pc.pc.hasFile(path));
    CHECK(pc.engine.TotalBytes == 4096);
    CHECK(pc.takeReport() == (call != "write " ? "" : "\tShredding file f.txt\r\n"));
    CHECK(pc.told().empty());
  }
}
