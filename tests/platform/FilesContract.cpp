#include <functional>
#include <iterator>

#include "base/Text.h"
#include "platform/ContractPc.h"

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
  const std::string all = "B.TMP, Sub, Trash, Trash.txt, a.tmp, cc.tmp, page.html, two.dots.tmp, x y.old";
  const struct {
    const char* pattern;
    std::string expected;
  } rows[] = {
      {"*.*", all},
      {"*", all},
      {"*.tmp", "B.TMP, a.tmp, cc.tmp, two.dots.tmp"},
      {"*.tmp ", "B.TMP, a.tmp, cc.tmp, two.dots.tmp"},
      {"*.TMP", "B.TMP, a.tmp, cc.tmp, two.dots.tmp"},
      {"?.tmp", "B.TMP, a.tmp"},
      {"Trash.", "Trash"},
      {"trash.*", "Trash, Trash.txt"},
      {"*.", "Sub, Trash"},
      {"Trash.txt", "Trash.txt"},
      {"Trash.txt  ", "Trash.txt"},
      {"x y.*", "x y.old"},
      {"*dots*", "two.dots.tmp"},
      {"sub", "Sub"},
      {"*.htm", "null"},  // nor by its 8.3 name
      {"PAGE~*", "null"},
      {"*.none", "null"},
      {"a.tm", "null"},
      {"missing\\*.*", "null"},
  };
  for (const auto& row : rows) {
    CAPTURE(std::string(row.pattern));
    CHECK(found(*pc.platform().files, base + row.pattern) == row.expected);
  }
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
  const std::string drive = pc.folder().substr(0, 2);
  const struct {
    std::string path;
    bool file;
    bool folder;
  } rows[] = {
      {pc.folder() + "\\file", true, false},
      {pc.folder(), false, true},
      {pc.folder() + '\\', false, true},
      {drive + '\\', false, true},
      {pc.folder() + "\\missing", false, false},
      {pc.folder() + "\\missing\\file", false, false},
      {pc.folder() + "\\file\\below", false, false},
      {"B:\\file", false, false},
      {"", false, false},
      {pc.folder() + "\\f*", false, false},
      {pc.folder() + "\\file\\", false, false},
      {pc.folder() + std::string("\\file\0", 6), false, false},
  };
  for (const auto& row : rows) {
    CAPTURE(row.path);
    CHECK(files.fileExists(row.path) == row.file);
    CHECK(files.folderExists(row.path) == row.folder);
    const std::uint32_t bits = files.attributes(row.path);
    CHECK((bits == attribute::Invalid) == (!row.file && !row.folder));
    if (bits != attribute::Invalid) CHECK(((bits & attribute::Directory) != 0) == row.folder);
  }
}

TEST_CASE_TEMPLATE("files: every failure has its number", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  files.createFolder(base + "folder");
  pc.file(base + "plain", "x");
  pc.file(base + "readonly", "x");
  pc.readOnly(base + "readonly");
  pc.file(base + "locked", "x");
  pc.lock(base + "locked");
  const struct {
    const char* name;
    bool writes;
    std::function<void(const std::string&)> make;
  } calls[] = {
      {"reset", false, [&](const std::string& path) { files.grip(path)->resetAttributes(); }},
      {"length", true, [&](const std::string& path) { files.grip(path)->length(); }},
      {"binary", true, [&](const std::string& path) { files.open(path, OpenMode::Binary); }},
      {"input", false, [&](const std::string& path) { files.open(path, OpenMode::Input); }},
      {"remove", false, [&](const std::string& path) { files.grip(path)->remove(); }},
      {"replace", false, [&](const std::string& path) { files.replace(path, "new"); }},
      {"make", false, [&](const std::string& path) { files.createFolder(path); }},
      {"tree", false, [&](const std::string& path) { files.deleteFolder(path); }},
  };
  const struct {
    std::string name;
    int expected[8];  // by call; 0 for success, -1 for what is not tried
  } rows[] = {
      //  name         reset len bin  in  rem  rep make tree
      {"missing", {53, 53, -1, 53, 53, -1, -1, 76}},
      {"nowhere\\file", {53, 53, 76, 76, 53, 76, 76, 76}},
      {"folder", {-1, 75, 75, 75, 75, 75, 75, -1}},
      {"plain", {-1, 0, 0, 0, -1, 0, 75, 76}},
      {"readonly", {-1, 75, 75, 0, 75, 75, 75, 76}},
      {"locked", {-1, 70, 70, 70, 70, 70, 75, 76}},
      {"a|b", {53, 53, 52, 52, 53, 52, 52, 76}},
      {"a*b", {53, 53, 52, 52, 53, 52, 52, 76}},
      {"plain\\", {53, 53, 76, 76, 53, 76, 75, 76}},
      {std::string("plain\0x", 7), {53, 53, 52, 52, 53, 52, 52, 76}},
  };
  for (const auto& row : rows) {
    for (std::size_t call = 0; call < std::size(calls); ++call) {
      CAPTURE(row.name);
      CAPTURE(std::string(calls[call].name));
      if (calls[call].writes && row.name == "readonly" && pc.deviates("read-only")) continue;
      if (row.expected[call] < 0) continue;
      CHECK(failure([&] { calls[call].make(base + row.name); }) == row.expected[call]);
    }
  }
  const int noDrive = pc.deviates("missing drive") ? 53 : 76;
  CHECK(failure([&] { files.open("B:\\file", OpenMode::Input); }) == noDrive);
  CHECK(failure([&] { files.grip("B:\\file"); }) == 53);
  CHECK(found(files, base + "*") == "folder, locked, plain, readonly");  // nothing came or went

  files.grip(base + "readonly")->resetAttributes();
  CHECK(failure([&] { files.grip(base + "readonly")->remove(); }) == 0);
  pc.unlock(base + "locked");
  CHECK(failure([&] { files.grip(base + "locked")->remove(); }) == 0);
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
