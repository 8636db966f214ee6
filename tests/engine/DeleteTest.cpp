#include <doctest/doctest.h>

#include "base/Text.h"
#include "support/Golden.h"
#include "support/TracedWash.h"

#ifndef _WIN32
#include <unistd.h>
#endif

using namespace zub;

namespace {

const std::string File = "C:\\T\\f.txt";

struct Disk : TracedWash {
  Disk() : TracedWash({"hidden = C:\\T\\hidden", "system = C:\\T\\hidden"}) {}
  void plant(std::initializer_list<std::string_view> paths) {
    for (const std::string_view path : paths) pc.file(path, "four");
  }
  void deleteFolder(std::string_view path, std::string_view pattern) {
    trace.act(joined({"DeleteFolder ", path, " ", pattern}),
              [&] { trace.tell(engine.deleter->DeleteFolder(path, pattern) ? "nothing there\n" : ""); });
  }
  void deleteFiles(std::string_view path, std::string_view pattern) {
    trace.act(joined({"DeleteFilesInFolder ", path, " ", pattern}),
              [&] { engine.deleter->DeleteFilesInFolder(path, pattern); });
  }
  void deleteFile(std::string_view title, std::string_view path, int nSpecial = 0) {
    trace.act(title, [&] { trace.tell(engine.deleter->DeleteFile(path, nSpecial) ? "" : "removed\n"); });
  }
};

}  // namespace

TEST_CASE("the calls, the report and the rest of folders and files that go") {
  Disk pc;
  const auto chain = [&] {
    pc.plant({"C:\\T\\Trash", "C:\\T\\a\\Trash", "C:\\T\\a\\trash.snm", "C:\\T\\a\\b\\TRASH", "C:\\T\\hidden",
              "C:\\T\\c\\Trash.snm", "C:\\T2\\Trash"});
    pc.pc.readOnly("C:\\T\\Trash");
  };
  for (const char* pattern : {"Trash.", "*.SNM", "*", "*.*"}) {
    chain();
    pc.deleteFolder("C:\\T", pattern);
  }
  chain();
  pc.deleteFiles("C:\\T", "*.*");
  pc.deleteFiles("C:\\T\\a\\", "*.snm");
  pc.deleteFiles("C:\\none", "*.*");
  for (const char* path : {"C:\\none\\", "", "Z:\\x", "..\\..\\none", "C:\\T2\\Trash"})
    pc.deleteFolder(path, "*.*");
  for (const char* path : {"C:\\T", "C:\\new", "C:\\none\\below", "", "C:\\T2\\Trash"}) {
    pc.trace.act("MakeDir " + std::string(path), [&] { pc.engine.deleter->MakeDir(path); });
  }
  checkGolden("delete.txt", pc.trace.text);
}

TEST_CASE("every failure is told in its own words, and keeps nothing else from going") {
  Disk pc;
  pc.options.chkSkipMessages.Value(1);
  const struct {
    const char* title;
    std::string call;
    ErrorNumber error;
    int nSpecial;
  } rows[] = {{"Held, to be left for the next start", "length ", ErrorNumber::PermissionDenied, 1},
              {"Access error at the removal", "remove ", ErrorNumber::PathFileAccess, 0},
              {"Access error at once, to be left for the next start", "reset attributes of ",
               ErrorNumber::PathFileAccess, 1},
              {"The device, to be left for the next start", "remove ", ErrorNumber::DeviceIo, 1},
              {"The disk", "reset attributes of ", ErrorNumber::DiskNotReady, 0},
              {"The path", "reset attributes of ", ErrorNumber::PathNotFound, 1},
              {"Too many files", "length ", ErrorNumber::TooManyFiles, 0},
              {"A bad name", "length ", ErrorNumber::BadFileName, 0},
              {"Held", "remove ", ErrorNumber::PermissionDenied, 0}};
  for (const auto& row : rows) {
    pc.plant({File});
    pc.pc.fail(row.call + File, row.error);
    pc.engine.animated->StartAnimation();
    pc.deleteFile(row.title, File, row.nSpecial);
    pc.pc.clearFaults();
  }
  pc.pc.lock(File);
  pc.options.chkSkipMessages.Value(0);
  pc.deleteFile("Held, to be left for the next start, without messages", File, 1);
  pc.options.chkSkipMessages.Value(1);
  const std::string second = "C:\\T\\SECOND.DAT";
  pc.plant({second});
  pc.pc.lock(second);
  pc.deleteFile("Another one: the file scheduled last stands alone in the profile", second, 1);
  CHECK(pc.pc.bytes("C:\\WINDOWS\\wininit.ini") == "[rename]\r\nnul=C:\\T\\SECOND.DAT\r\n");
  pc.deleteFile("A missing file: in silence, and the animation stands still", "C:\\none.txt", 1);
  pc.deleteFile("A file of a missing folder", "C:\\none\\none.txt", 1);

  pc.plant({"C:\\S\\1", "C:\\S\\2", "C:\\S\\a\\3", "C:\\S\\b\\4", "C:\\S\\c\\5"});
  pc.pc.lock("C:\\S\\a\\3");
  pc.pc.fail("remove C:\\S\\1", ErrorNumber::DeviceIo);
  pc.pc.fail("search C:\\S\\c\\*", ErrorNumber::PathFileAccess);
  pc.pc.fail("remove folder C:\\S\\c", ErrorNumber::PermissionDenied);
  pc.deleteFolder("C:\\S", "*.*");
  pc.pc.fail("search C:\\S\\a\\*.*", ErrorNumber::DeviceIo);
  pc.deleteFiles("C:\\S\\a", "*.*");

  pc.plant({"C:\\1", "C:\\2"});
  pc.engine.TotalBytes = 2147483647 - 4;
  pc.deleteFile("The sum of the bytes is full", "C:\\1");
  pc.deleteFile("The sum overflows: a failure of a file that is gone", "C:\\2");
  checkGolden("failures.txt", pc.trace.text);
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

TEST_CASE("each pass of the shredder, and how it fails") {
  Disk pc;
  pc.options.chkBleach.Value(1);
  const auto shred = [&](const std::string& title) {
    pc.pc.file(File, std::string(2561, 'A'));
    pc.pc.readOnly(File);
    pc.deleteFile(title, File);
  };
  for (const char* passes : {"1", "2", "", "x", "-3", " +3 times"}) {
    pc.options.cmbShredder.type(passes);
    shred("Passes: " + std::string(passes));
  }
  for (const std::string call : {"open to write over ", "write "}) {
    pc.pc.fail(call + File, ErrorNumber::DiskFull);
    shred("The disk is full: the removal decides");
    pc.pc.clearFaults();
  }
  checkGolden("shredder.txt", pc.trace.text);
}

TEST_CASE("whole blocks are overwritten with zeros, all but the last") {
  struct {
    std::size_t length;
    std::size_t overwritten;
  } const rows[] = {{0, 0},       {1024, 0},    {1535, 0},    {1536, 1024}, {2560, 1024},      {2561, 2048},
                    {3584, 3072}, {3583, 2048}, {4608, 3072}, {4609, 4096}, {1048576, 1047552}};
  for (const auto& [length, overwritten] : rows) {
    CAPTURE(length);
    WashFixture pc;
    pc.options.chkBleach.Value(1);
    pc.pc.fail("remove " + File, ErrorNumber::DeviceIo);  // so that it can be looked at
    pc.pc.file(File, std::string(length, 'A'));
    pc.engine.deleter->DeleteFile(File, 0);
    CHECK(pc.pc.bytes(File) == std::string(overwritten, '\0') + std::string(length - overwritten, 'A'));
  }
}
