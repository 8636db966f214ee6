#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/host/HostDir.h"
#include "support/TempFolder.h"

namespace zub {
namespace {

struct Host {
  Host() : dir(openHostDir(temp.path())) { REQUIRE(dir); }

  void write(const std::string& name, std::string_view bytes) { writeHostFile(*dir, name, bytes); }
  std::string read(const std::string& name) { return readHostFile(*dir, name); }
  HostError open(const std::string& name, HostOpen mode) {
    std::unique_ptr<HostFile> file;
    const HostError error = dir->openFile(name, mode, file);
    CHECK((error == HostError::None) == (file != nullptr));
    return error;
  }
  HostError openDir(const std::string& name) {
    std::unique_ptr<HostDir> child;
    return dir->openDir(name, child);
  }
  HostStat stat(const std::string& name) {
    HostStat result;
    CHECK(dir->stat(name, result) == HostError::None);
    return result;
  }
  std::string names() {
    std::unique_ptr<HostList> listing;
    REQUIRE(dir->list(listing) == HostError::None);
    std::vector<std::string> all;
    for (HostEntry entry; listing->next(entry);) all.push_back(entry.name);
    std::ranges::sort(all);
    std::string text;
    for (const std::string& name : all) text += name + ' ';
    return text;
  }

  TempFolder temp;
  std::unique_ptr<HostDir> dir;
};

}  // namespace

TEST_CASE("host folder: a name is one part, and nothing else") {
  Host host;
  std::unique_ptr<HostFile> file;
  HostStat stat;
  for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string("a/b"),
                                  std::string("../x"), std::string("a\0b", 3)}) {
    CAPTURE(name);
    CHECK(host.openDir(name) == HostError::BadName);
    CHECK(host.open(name, HostOpen::Make) == HostError::BadName);
    CHECK(host.dir->stat(name, stat) == HostError::BadName);
    CHECK(host.dir->removeFile(name) == HostError::BadName);
    CHECK(host.dir->removeDir(name) == HostError::BadName);
    CHECK(host.dir->makeDir(name) == HostError::BadName);
    CHECK(host.dir->setReadOnly(name, true) == HostError::BadName);
    CHECK(host.dir->rename("x", name) == HostError::BadName);
  }
  CHECK(host.names().empty());
  CHECK(openHostDir(host.temp.path() + "/missing") == nullptr);
}

TEST_CASE("host folder: what each way of opening needs and makes") {
  Host host;
  REQUIRE(host.dir->makeDir("folder") == HostError::None);
  const struct {
    HostOpen mode;
    HostError missing;
    HostError present;
    const char* left;  // of "0123456789"
  } rows[] = {
      {HostOpen::Read, HostError::NotFound, HostError::None, "0123456789"},
      {HostOpen::ReadWrite, HostError::NotFound, HostError::None, "0123456789"},
      {HostOpen::Make, HostError::None, HostError::None, "0123456789"},
      {HostOpen::Empty, HostError::None, HostError::None, ""},
      {HostOpen::New, HostError::None, HostError::Exists, "0123456789"},
  };
  for (const auto& row : rows) {
    CAPTURE(static_cast<int>(row.mode));
    CHECK(host.open("file", row.mode) == row.missing);
    host.write("file", "0123456789");
    CHECK(host.open("file", row.mode) == row.present);
    CHECK(host.read("file") == row.left);
    CHECK(host.open("folder", row.mode) ==
          (row.mode == HostOpen::New ? HostError::Exists : HostError::NotAFile));
    CHECK(host.dir->removeFile("file") == HostError::None);
  }
}

TEST_CASE("host folder: names come and go") {
  Host host;
  CHECK(host.dir->makeDir("folder") == HostError::None);
  CHECK(host.dir->makeDir("folder") == HostError::Exists);
  host.write("file", "12345");
  host.write("\xC3\xA9\xE2\x82\xAC", "x");
  CHECK(host.names() == "file folder \xC3\xA9\xE2\x82\xAC ");
  CHECK(host.stat("file").kind == HostKind::File);
  CHECK(host.stat("file").size == 5);
  CHECK(host.stat("folder").kind == HostKind::Folder);
  HostStat none;
  CHECK(host.dir->stat("none", none) == HostError::NotFound);

  CHECK(host.openDir("file") == HostError::NotAFolder);
  CHECK(host.openDir("none") == HostError::NotFound);
  CHECK(host.dir->removeDir("file") == HostError::NotAFolder);
  CHECK(host.dir->removeFile("folder") == HostError::NotAFile);
  CHECK(host.dir->removeFile("none") == HostError::NotFound);
  CHECK(host.dir->removeDir("none") == HostError::NotFound);
  {
    std::unique_ptr<HostDir> child;
    REQUIRE(host.dir->openDir("folder", child) == HostError::None);
    CHECK(child->makeDir("inner") == HostError::None);
    CHECK(host.dir->removeDir("folder") == HostError::NotEmpty);
    CHECK(child->removeDir("inner") == HostError::None);
  }
  CHECK(host.dir->removeDir("folder") == HostError::None);

  host.write("new", "new");
  CHECK(host.dir->rename("new", "file") == HostError::None);
  CHECK(host.read("file") == "new");
  CHECK(host.dir->rename("none", "file") == HostError::NotFound);
  for (const bool readOnly : {true, false}) {
    CHECK(host.dir->setReadOnly("file", readOnly) == HostError::None);
    CHECK(host.stat("file").readOnly == readOnly);
  }
  CHECK(host.names() == "file \xC3\xA9\xE2\x82\xAC ");
}

TEST_CASE("host folder: many names are all told, and two listings do not meet") {
  Host host;
  for (int number = 0; number < 700; ++number)
    host.write("a long name of a file " + std::to_string(number), "");
  std::unique_ptr<HostList> one;
  std::unique_ptr<HostList> two;
  REQUIRE(host.dir->list(one) == HostError::None);
  REQUIRE(host.dir->list(two) == HostError::None);
  HostEntry entry;
  REQUIRE(two->next(entry));
  const auto left = [&entry](HostList& listing) {
    int count = 0;
    while (listing.next(entry)) ++count;
    return count;
  };
  CHECK(left(*one) == 700);
  CHECK(left(*two) == 699);
}

}  // namespace zub
