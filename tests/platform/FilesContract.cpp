#include <functional>
#include <utility>

#include "base/Text.h"
#include "platform/ContractPc.h"
#include "support/Golden.h"
#include "support/Snapshot.h"

namespace zub {
namespace {

std::string contentByPieces(FileChannel& channel, std::size_t piece) {
  std::string content;
  std::string buffer(piece, '\0');
  while (const std::size_t count = channel.read(buffer)) content += buffer.substr(0, count);
  return content;
}

}  // namespace

TEST_CASE_TEMPLATE("files: wildcards find what Windows finds", Pc, CONTRACT_PCS) {
  Pc pc;
  const std::string base = pc.folder() + '\\';
  for (const char* name :
       {"a.tmp", "B.TMP", "cc.tmp", "Trash", "Trash.txt", "x y.old", "two.dots.tmp", "page.html"})
    pc.file(base + name, "x");
  pc.platform().files->createFolder(base + "Sub");
  std::string told;
  for (const std::string pattern :
       {"*.*", "*", "*.tmp", "*.tmp ", "*.TMP", "?.tmp", "Trash.", "trash.*", "*.", "Trash.txt",
        "Trash.txt  ", "x y.*", "*dots*", "sub", "*.htm", "PAGE~*", "*.none", "a.tm", "missing\\*.*"})
    told += '"' + pattern + "\" finds " + found(*pc.platform().files, base + pattern) + '\n';
  checkGolden("wildcards.txt", told);
}

TEST_CASE_TEMPLATE("files: a search tells sizes and attributes, and files may go meanwhile", Pc,
                   CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  pc.file(base + "some.bin", std::string(70000, 'x'));
  pc.readOnly(base + "some.bin");
  FoundFile entry;
  const auto one = files.find(base + "SOME.*");
  REQUIRE(one);
  REQUIRE(one->next(entry));
  CHECK(entry.name == "some.bin");
  CHECK(entry.nFileSizeHigh == 0);
  CHECK(entry.nFileSizeLow == 70000);
  CHECK((entry.attributes & (attribute::ReadOnly | attribute::Directory)) == attribute::ReadOnly);
  CHECK_FALSE(one->next(entry));
  CHECK_FALSE(one->next(entry));

  for (int number = 0; number < 100; ++number) pc.file(base + std::to_string(number) + ".dat", "x");
  const auto search = files.find(base + "*.dat");
  REQUIRE(search);
  while (search->next(entry)) files.grip(base + entry.name)->remove();
  CHECK(found(files, base + "*.*") == "some.bin");
}

TEST_CASE_TEMPLATE("files: what is a file and what is a folder", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  pc.file(pc.folder() + "\\file", "x");
  std::vector<std::string> paths = {pc.folder().substr(0, 3), "B:\\file", "",
                                    pc.folder() + std::string("\\file\0", 6)};
  for (const char* below :
       {"", "\\", "\\file", "\\missing", "\\missing\\file", "\\file\\below", "\\f*", "\\file\\"})
    paths.push_back(pc.folder() + below);
  std::string told;
  for (const std::string& path : paths) {
    CAPTURE(path);
    const std::uint32_t bits = files.attributes(path);
    const bool isFile = files.fileExists(path);
    CHECK(files.folderExists(path) == (bits != attribute::Invalid && isFolder(bits)));
    CHECK(isFile == (bits != attribute::Invalid && !isFolder(bits)));
    const bool isBelow = path.starts_with(pc.folder());
    told += (isBelow ? "the folder" + printable(path.substr(pc.folder().size())) : path) +
            (isFile                     ? ": a file\n"
             : files.folderExists(path) ? ": a folder\n"
                                        : ": nothing\n");
  }
  checkGolden("files.txt", told);
}

// What each call answers to each name: the number of its failure, or nothing.
TEST_CASE_TEMPLATE("files: every failure has its number", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  files.createFolder(base + "folder");
  for (const char* name : {"plain", "readonly", "locked"}) pc.file(base + name, "x");
  pc.readOnly(base + "readonly");
  pc.lock(base + "locked");
  const struct {
    const char* what;
    std::function<void(const std::string&)> make;
    std::string spares = {};  // the names on which it would work, or is no failure of the name's
    bool writes = false;
  } calls[] = {
      {"reset attributes", [&](const auto& path) { files.grip(path)->resetAttributes(); },
       "folder readonly locked"},
      {"length", [&](const auto& path) { files.grip(path)->length(); }, "", true},
      {"open to write", [&](const auto& path) { files.open(path, OpenMode::Binary); }, "missing", true},
      {"open to read", [&](const auto& path) { files.open(path, OpenMode::Input); }},
      {"remove", [&](const auto& path) { files.grip(path)->remove(); }, "plain"},
      {"replace", [&](const auto& path) { files.replace(path, "new"); }, "missing"},
      {"make folder", [&](const auto& path) { files.createFolder(path); }, "missing"},
      {"remove folder", [&](const auto& path) { files.deleteFolder(path); }, "folder"},
  };
  std::string told;
  std::vector<std::string> names{"missing", "nowhere\\file", "folder", "plain",  "readonly",
                                 "locked",  "a|b",           "a*b",    "plain\\"};
  names.emplace_back("plain\0x", 7);
  for (const std::string& name : names) {
    told += printable(name) + ':';
    for (const auto& call : calls) {
      if (contains(call.spares, name)) continue;
      const bool tolerated = call.writes && name == "readonly" && pc.deviates("read-only");
      const int number = tolerated ? 75 : failure([&] { call.make(base + name); });
      told += std::string(" ") + call.what + ' ' + (number == 0 ? "works" : std::to_string(number)) + ';';
    }
    told += '\n';
  }
  checkGolden("failures.txt", told);
  const int noDrive = pc.deviates("missing drive") ? 53 : 76;
  CHECK(failure([&] { files.open("B:\\file", OpenMode::Input); }) == noDrive);
  CHECK(failure([&] { files.grip("B:\\file"); }) == 53);
  CHECK(found(files, base + "*") == "folder, locked, plain, readonly");  // nothing came or went

  files.grip(base + "readonly")->resetAttributes();
  files.grip(base + "readonly")->remove();
  pc.unlock(base + "locked");
  files.grip(base + "locked")->remove();
  CHECK(found(files, base + "*") == "folder, plain");
}

TEST_CASE_TEMPLATE("files: what others hold open can be read as they share it, and is not taken from them",
                   Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string path = pc.folder() + "\\held";
  for (const Sharing sharing : {Sharing::Reading, Sharing::Everything}) {
    pc.file(path, "theirs");
    if (!pc.hold(path, sharing)) return;
    CHECK(failure([&] { CHECK(contentByPieces(*files.open(path, OpenMode::Input), 100) == "theirs"); }) == 0);
    CHECK(failure([&] { files.grip(path)->length(); }) == 70);
    CHECK(failure([&] { files.open(path, OpenMode::Binary); }) == 70);
    CHECK(failure([&] { files.replace(path, "ours"); }) == 70);
    pc.unlock(path);
    CHECK(pc.bytes(path) == "theirs");
  }
  // What is being read can be read, written and removed by others.
  const auto reading = files.open(path, OpenMode::Input);
  CHECK(failure([&] { files.open(path, OpenMode::Input); }) == 0);
  CHECK(pc.hold(path, Sharing::Everything));
  pc.unlock(path);
  CHECK(failure([&] { files.grip(path)->remove(); }) ==
        (isNt(pc) ? 0 : 70));  // the 9x family shares no removal
  // Nor is what is held taken by clearing its attributes.
  const std::string hidden = pc.folder() + "\\hidden";
  pc.file(hidden, "theirs");
  pc.hide(hidden);
  files.grip(hidden)->resetAttributes();
  CHECK(pc.hold(hidden, Sharing::Everything));
  CHECK(failure([&] { files.grip(hidden)->length(); }) == 70);
}

TEST_CASE_TEMPLATE("files: each mode opens what it is for", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string path = pc.folder() + "\\File.dat";
  files.open(path, OpenMode::Binary);
  CHECK(pc.bytes(path).empty());
  files.open(path, OpenMode::Binary)->write("0123456789");
  CHECK(pc.bytes(path) == "0123456789");
  {
    const auto channel = files.open(path, OpenMode::Binary);
    CHECK(channel->length() == 10);
    channel->seek(3);
    channel->write("AB");
    std::string rest(4, '\0');
    CHECK(channel->read(rest) == 4);  // goes on behind what was written
    CHECK(rest == "5678");
    channel->seek(0);
    CHECK(contentByPieces(*channel, 4) == "012AB56789");
    channel->write("end");
    CHECK(channel->length() == 13);  // counts what was kept back
    channel->close();
    channel->close();
  }
  CHECK(pc.bytes(path) == "012AB56789end");
  CHECK(contentByPieces(*files.open(path, OpenMode::Input), 100) == "012AB56789end");
}

TEST_CASE_TEMPLATE(
    "files: a file that is replaced keeps its name and attributes, and nothing stays beside it", Pc,
    CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  pc.file(base + "The Cookies.txt", std::string(100000, 'o'));
  pc.hide(base + "The Cookies.txt");
  files.replace(base + "THE COOKIES.TXT", "new");
  files.replace(base + "Made.txt", "");
  CHECK(found(files, base + "*") == "Made.txt, The Cookies.txt");
  CHECK(pc.bytes(base + "The Cookies.txt") == "new");
  CHECK(pc.bytes(base + "Made.txt").empty());
  const std::uint32_t bits =
      attribute::Hidden | attribute::System | attribute::ReadOnly | attribute::Directory;
  CHECK((files.attributes(base + "The Cookies.txt") & bits) == attribute::Hidden);
  CHECK((files.attributes(base + "Made.txt") & bits) == 0);
  if (const std::string shortPath = files.shortPath(base + "The Cookies.txt"); !shortPath.empty()) {
    const std::string bytes(200000, 'b');
    files.replace(shortPath, bytes);
    CHECK(pc.bytes(base + "The Cookies.txt") == bytes);
  }
}

TEST_CASE_TEMPLATE("files: what is written in pieces arrives whole", Pc, CONTRACT_PCS) {
  Pc pc;
  const std::string path = pc.folder() + "\\big.dat";
  std::string expected(300000, 'o');
  pc.file(path, expected);
  const auto channel = pc.platform().files->open(path, OpenMode::Binary);
  const auto overwrite = [&](std::size_t place, std::size_t piece, int times, char letter) {
    channel->seek(static_cast<std::int64_t>(place));
    for (int time = 0; time < times; ++time) channel->write(std::string(piece, letter));
    const std::size_t size = piece * static_cast<std::size_t>(times);
    expected.replace(place, size, size, letter);
  };
  overwrite(0, 1024, 200, 'a');
  overwrite(1000, 100000, 1, 'b');  // more than is ever kept back
  overwrite(65536, 65536, 1, 'c');
  overwrite(65000, 1000, 1, 'd');  // over what is still kept back, and on from within it
  overwrite(65500, 65536, 1, 'e');
  overwrite(100, 10, 1, 'f');
  overwrite(1000, 10, 1, 'g');    // beyond a gap
  overwrite(299990, 7, 10, 'h');  // across the end
  CHECK(channel->length() == static_cast<std::int64_t>(expected.size()));
  char last[2];
  channel->seek(static_cast<std::int64_t>(expected.size()) - 2);
  CHECK(channel->read(last) == 2);
  channel->sync();
  channel->close();
  CHECK(pc.bytes(path) == expected);
}

TEST_CASE_TEMPLATE("files: a folder goes with all that it holds", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  for (const char* folder : {"tree", "tree\\a", "tree\\a\\deep", "tree\\b", "beside"})
    files.createFolder(base + folder);
  for (const char* file : {"tree\\1", "tree\\a\\2", "tree\\a\\deep\\3", "tree\\b\\z", "beside\\kept"})
    pc.file(base + file, "x");
  pc.readOnly(base + "tree\\a\\deep\\3");
  pc.file(base + "tree\\b\\held", "x");
  pc.lock(base + "tree\\b\\held");
  CHECK(failure([&] { files.deleteFolder(base + "tree"); }) == 70);
  CHECK(found(files, base + "tree\\*") == "b");  // only what is held stays, wherever it stands
  CHECK(found(files, base + "tree\\b\\*") == "held");
  pc.unlock(base + "tree\\b\\held");
  files.deleteFolder(base + "TREE\\");
  CHECK(found(files, base + "*") == "beside");
  CHECK(files.fileExists(base + "beside\\kept"));
}

TEST_CASE_TEMPLATE("files: a link to a folder is an empty file, never a way in", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  files.createFolder(base + "target");
  pc.file(base + "target\\kept", "x");
  files.createFolder(base + "empty");
  files.createFolder(base + "tree");
  if (!pc.link(base + "link", base + "target") || !pc.link(base + "tree\\link", base + "empty")) {
    MESSAGE("this PC cannot make a link");
    return;
  }
  const auto search = files.find(base + "link");
  REQUIRE(search);
  FoundFile entry;
  REQUIRE(search->next(entry));
  for (const std::uint32_t bits : {files.attributes(base + "link"), entry.attributes}) {
    CHECK(isFolderLink(bits));
    CHECK_FALSE(isFolder(bits));
  }
  CHECK(entry.nFileSizeLow == 0);
  // The folder that somebody names may be a link: a Windows follows it, a PC in a folder says that it does not.
  CHECK(files.folderExists(base + "link"));
  CHECK_FALSE(files.fileExists(base + "link"));
  if (pc.followsLinks())
    CHECK(found(files, base + "link\\*") == "kept");
  else
    CHECK(failure([&] { files.find(base + "link\\*"); }) == 70);
  CHECK(failure([&] { files.deleteFolder(base + "link"); }) == 76);
  if (pc.deviates("link")) {
    CHECK(failure([&] { files.grip(base + "link")->length(); }) == 75);
    CHECK(failure([&] { files.grip(base + "link")->remove(); }) == 75);
    CHECK(failure([&] { files.deleteFolder(base + "tree"); }) == 75);
  } else {
    CHECK(files.grip(base + "link")->length() == 0);
    files.deleteFolder(base + "tree");
    files.grip(base + "link")->resetAttributes();
    files.grip(base + "link")->remove();
    CHECK(found(files, base + "*") == "empty, target");
  }
  CHECK(files.fileExists(base + "target\\kept"));
  CHECK(files.folderExists(base + "empty"));
}

}  // namespace zub
