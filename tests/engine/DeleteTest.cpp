#include <doctest/doctest.h>

#include <algorithm>

#include "support/WashFixture.h"

using namespace zub;

namespace {

using Texts = std::vector<std::string>;

Texts texts(const FoundPaths& paths) {
  Texts result;
  for (std::size_t place = 0; place < paths.size(); ++place) result.push_back(paths[place]);
  return result;
}

// A chain of folders, each with a file of both kinds, and a decoy beside it.
struct Chain : WashFixture {
  Chain() {
    for (const char* folder : {"C:\\T\\", "C:\\T\\a\\", "C:\\T\\a\\b\\"}) {
      pc.file(std::string(folder) + "Trash", "12345");
      pc.file(std::string(folder) + "trash.snm", "123");
    }
    pc.file("C:\\T2\\Trash", "decoy");
  }
  Texts left() {
    engine.deleter->ListFilesFolder("C:\\T", "*");
    Texts found = texts(engine.deleter->DelFileList);
    std::ranges::sort(found);
    return found;
  }
};

}  // namespace

TEST_CASE("a walk lists the folders of a level before its files, and parents before their children") {
  WashFixture pc;
  for (const char* path : {"C:\\T\\1", "C:\\T\\a\\2", "C:\\T\\a\\b\\3"}) pc.pc.file(path);
  Delete& worker = *pc.engine.deleter;
  pc.pc.onDoEvents = [&](int) {
    CHECK(worker.mousePointer == MousePointer::Hourglass);
    CHECK(pc.progress().form.mousePointer == MousePointer::Hourglass);
  };
  for (const char* start : {"C:\\T", "C:\\T\\"}) {
    worker.DeleteSubDir(start, "*.*");
    CHECK(texts(worker.DelDirList) == Texts{"C:\\T\\a", "C:\\T\\a\\b"});
    CHECK(texts(worker.DelFileList) == Texts{"C:\\T\\1", "C:\\T\\a\\2", "C:\\T\\a\\b\\3"});
  }
  pc.pc.onDoEvents = {};
  CHECK(worker.mousePointer == MousePointer::Default);
  CHECK(pc.progress().form.mousePointer == MousePointer::Default);
  CHECK(pc.pc.turns >= 6);  // one for each file of both walks

  pc.pc.folder("C:\\T\\z");
  worker.ListFilesFolder("C:\\T", "*.*");
  CHECK(worker.DelDirList.size() == 3);
  CHECK(texts(worker.DelDirList).back() == "C:\\T\\a\\b");
  worker.ListFilesFolder("C:\\none", "*.*");
  CHECK(worker.DelDirList.empty());
  CHECK(worker.DelFileList.empty());
}

TEST_CASE("a pattern reaches every level, and only \"*.*\" takes the folders") {
  struct {
    const char* pattern;
    Texts left;
    bool folders;
  } const rows[] = {
      {"Trash.", {"C:\\T\\a\\b\\trash.snm", "C:\\T\\a\\trash.snm", "C:\\T\\trash.snm"}, true},
      {"*.SNM", {"C:\\T\\Trash", "C:\\T\\a\\Trash", "C:\\T\\a\\b\\Trash"}, true},
      {"*", {}, true},
      {"*.*", {}, false},
  };
  for (const auto& row : rows) {
    CAPTURE(row.pattern);
    Chain pc;
    CHECK_FALSE(pc.engine.deleter->DeleteFolder("C:\\T", row.pattern));
    CHECK(pc.left() == row.left);
    CHECK(pc.pc.hasFolder("C:\\T"));
    CHECK(pc.pc.hasFolder("C:\\T\\a\\b") == row.folders);
    CHECK(pc.pc.hasFile("C:\\T2\\Trash"));
    CHECK(pc.engine.animated->RemoveEntries() == removing::Folder);
  }
}

TEST_CASE("a folder that does not exist is nothing to do") {
  WashFixture pc;
  const std::string before = pc.pc.snapshot();
  for (const std::string path : {"C:\\none", "C:\\none\\", "", "Z:\\x", "..\\..\\none", "C:\\AUTOEXEC.BAT"}) {
    CAPTURE(path);
    CHECK(pc.engine.deleter->DeleteFolder(path, "*.*"));
    CHECK(pc.engine.animated->RemoveEntries() == removing::Folder);
  }
  CHECK(pc.takeReport().empty());
  CHECK(pc.pc.diffSince(before).empty());
}

TEST_CASE("the files of one folder go without its subfolders; one that cannot be listed is told") {
  Chain pc;
  pc.engine.deleter->DeleteFilesInFolder("C:\\T", "*.*");
  CHECK(pc.left().size() == 4);
  CHECK(pc.takeReport() == "\tDeleting file Trash\r\n\tDeleting file trash.snm\r\n");
  pc.engine.deleter->DeleteFilesInFolder("C:\\T\\a\\", "*.snm");
  CHECK(pc.takeReport() == "\tDeleting file trash.snm\r\n");
  CHECK(pc.pc.hasFile("C:\\T\\a\\Trash"));
  CHECK(pc.engine.TotalBytes == 11);
  pc.engine.deleter->DeleteFilesInFolder("C:\\none", "*.*");
  CHECK(pc.takeReport() == "Path not found\r\n");
}

TEST_CASE("hidden, system and read-only files go without a message") {
  WashFixture pc({"hidden = C:\\T\\h.txt", "system = C:\\T\\h.txt"});
  pc.options.chkSkipMessages.Value(1);
  pc.pc.file("C:\\T\\h.txt");
  pc.pc.file("C:\\T\\r.txt");
  pc.pc.readOnly("C:\\T\\r.txt");
  pc.engine.deleter->DeleteFilesInFolder("C:\\T", "*.*");
  CHECK_FALSE(pc.pc.hasFile("C:\\T\\h.txt"));
  CHECK_FALSE(pc.pc.hasFile("C:\\T\\r.txt"));
  CHECK(pc.told().empty());
  CHECK(pc.engine.leftBehind.size() == 0);
}

TEST_CASE("a folder is made where it is missing, and failures are swallowed") {
  WashFixture pc;
  pc.pc.file("C:\\T\\kept");
  for (const char* path : {"C:\\T", "C:\\new", "C:\\none\\below", "", "C:\\T\\kept"}) {
    pc.engine.deleter->MakeDir(path);
  }
  CHECK(pc.pc.hasFile("C:\\T\\kept"));
  CHECK(pc.pc.hasFolder("C:\\new"));
  CHECK(pc.takeReport().empty());
}
