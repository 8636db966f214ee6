#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "platform/host/HostDir.h"
#include "platform/host/HostFailure.h"
#include "support/Golden.h"
#include "support/Snapshot.h"
#include "support/TempFolder.h"
#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zub {
namespace {

using Name = std::string;

constexpr const char* Words[] = {"done",          "not found", "no folder", "no file",        "taken",
                                 "not empty",     "no rights", "in use",    "read-only disk", "disk full",
                                 "too many open", "bad name",  "failed"};

HostError open(HostDir& dir, const std::string& name, HostOpen mode) {
  std::unique_ptr<HostFile> file;
  const HostError error = dir.openFile(name, mode, file);
  CHECK((error == HostError::None) == (file != nullptr));
  return error;
}

// Its names in their order, with their kinds, lengths and bits.
std::string content(HostDir& dir) {
  constexpr const char* kinds[] = {"file", "folder", "link", "other"};
  std::unique_ptr<HostList> listing;
  REQUIRE(dir.list(listing) == HostError::None);
  std::vector<std::string> all;
  for (HostEntry entry; listing->next(entry);) {
    HostStat stat;
    REQUIRE(dir.stat(entry.name, stat) == HostError::None);
    CHECK(stat.kind == entry.stat.kind);
    all.push_back(std::string(stat.readOnly ? " read-only " : " ") + kinds[static_cast<int>(stat.kind)] +
                  ' ' + printable(entry.name) +
                  (stat.kind == HostKind::File ? ' ' + std::to_string(stat.size) : ""));
  }
  std::ranges::sort(all);
  std::string text;
  for (const std::string& name : all) text += name + ';';
  return text;
}

}  // namespace

// The calls are made one after the other, so that what one leaves the next one meets.
TEST_CASE("host folder: what each call answers for each name, and what it leaves") {
  const struct {
    const char* what;
    std::function<HostError(HostDir&, const Name&)> make;
  } calls[] = {
      {"look",
       [](HostDir& dir, const Name& name) {
         HostStat stat;
         return dir.stat(name, stat);
       }},
      {"enter",
       [](HostDir& dir, const Name& name) {
         std::unique_ptr<HostDir> child;
         return dir.openDir(name, child);
       }},
      {"open to read", [](HostDir& dir, const Name& name) { return open(dir, name, HostOpen::Read); }},
      {"open to read and write",
       [](HostDir& dir, const Name& name) { return open(dir, name, HostOpen::ReadWrite); }},
      {"protect", [](HostDir& dir, const Name& name) { return dir.setReadOnly(name, true); }},
      {"unprotect", [](HostDir& dir, const Name& name) { return dir.setReadOnly(name, false); }},
      {"make a folder", [](HostDir& dir, const Name& name) { return dir.makeDir(name); }},
      {"remove the folder", [](HostDir& dir, const Name& name) { return dir.removeDir(name); }},
      {"take its place", [](HostDir& dir, const Name& name) { return dir.rename("new", name); }},
      {"make", [](HostDir& dir, const Name& name) { return open(dir, name, HostOpen::Make); }},
      {"may go", [](HostDir& dir, const Name& name) { return dir.mayRemove(name); }},
      {"make anew", [](HostDir& dir, const Name& name) { return open(dir, name, HostOpen::New); }},
      {"make empty", [](HostDir& dir, const Name& name) { return open(dir, name, HostOpen::Empty); }},
      {"protect", [](HostDir& dir, const Name& name) { return dir.setReadOnly(name, true); }},
      {"remove the file", [](HostDir& dir, const Name& name) { return dir.removeFile(name); }},
      {"make a folder", [](HostDir& dir, const Name& name) { return dir.makeDir(name); }},
      {"rename", [](HostDir& dir, const Name& name) { return dir.rename(name, "renamed"); }},
  };
  using namespace std::string_literals;
  std::string told;
  for (const std::string& name :
       {"file"s, "folder"s, "none"s, "\xC3\xA9\xE2\x82\xAC"s, ""s, "."s, ".."s, "a/b"s, "../x"s, "a\0b"s}) {
    TempFolder temp;
    HostDir& dir = temp.dir();
    for (const char* folder : {"folder", "full"}) REQUIRE(dir.makeDir(folder) == HostError::None);
    std::unique_ptr<HostDir> full;
    REQUIRE(dir.openDir("full", full) == HostError::None);
    for (HostDir* at : {&dir, full.get()}) writeHostFile(*at, "file", "0123456789");
    full.reset();
    writeHostFile(dir, "new", "new");
    std::string before = content(dir);
    told += "== " + printable(name) + "; there are" + before + '\n';
    for (const auto& call : calls) {
      told += call.what + ": "s + Words[static_cast<int>(call.make(dir, name))];
      const std::string now = content(dir);
      told += (now == before ? "" : "; there are" + now) + '\n';
      before = now;
    }
    CHECK(dir.removeDir("full") == HostError::NotEmpty);
    CHECK(openHostDir(temp.path() + "/missing") == nullptr);
  }
  checkGolden("host.txt", told);
}

TEST_CASE("what each failure is called, and which of them the host's are") {
  std::string told;
  for (int number = 0; number < 1000; ++number) {
    const std::string_view text = descriptionOf(ErrorNumber{number});
    if (text != descriptionOf(ErrorNumber{1}))
      told += std::to_string(number) + ": " + std::string(text) + '\n';
  }
  told += "others: " + std::string(descriptionOf(ErrorNumber{1})) + "\n== of the host\n";
  for (std::uint8_t error = 1; error < std::size(Words); ++error)
    told += Words[error] + (": " + reasonOf(HostError{error})) + '\n';
  checkGolden("errors.txt", told);
}

TEST_CASE("host folder: many names are all told, and two listings do not meet") {
  TempFolder temp;
  for (int number = 0; number < 700; ++number)
    writeHostFile(temp.dir(), "a long name of a file " + std::to_string(number), "");
  std::unique_ptr<HostList> one, two;
  REQUIRE(temp.dir().list(one) == HostError::None);
  REQUIRE(temp.dir().list(two) == HostError::None);
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

#ifndef _WIN32
TEST_CASE("host folder: whether an entry may go is what its removal then answers") {
  constexpr uid_t Stranger = 65534;
  const uid_t owner = geteuid();
  for (const uid_t user : {owner, Stranger}) {
    if (owner != 0 && user != owner) continue;  // only root becomes somebody else
    for (const mode_t mode : {0755U, 0555U, 0777U, 01777U, 0666U}) {
      CAPTURE(mode);
      TempFolder temp;
      REQUIRE(temp.dir().makeDir("in") == HostError::None);
      std::unique_ptr<HostDir> dir;
      REQUIRE(temp.dir().openDir("in", dir) == HostError::None);
      for (const char* name : {"one", "own"}) writeHostFile(*dir, name, "x");
      REQUIRE(lchown((temp.path() + "/in/own").c_str(), user, getegid()) == 0);
      REQUIRE(chmod((temp.path() + "/in").c_str(), mode) == 0);
      REQUIRE(seteuid(user) == 0);
      std::vector<HostError> foretold, answered;
      for (const char* name : {"one", "own"}) foretold.push_back(dir->mayRemove(name));
      for (const char* name : {"one", "own"}) answered.push_back(dir->removeFile(name));
      REQUIRE(seteuid(owner) == 0);
      chmod((temp.path() + "/in").c_str(), 0755);
      CHECK(foretold == answered);
    }
  }
}
#endif

}  // namespace zub
