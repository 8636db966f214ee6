#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string path = "C:\\T\\f.dat";

// The shredder at work on a file that cannot be removed and so can be looked at afterwards.
struct Shredding : WashFixture {
  Shredding() {
    options.chkBleach.Value(1);
    pc.fail("remove " + path, ErrorNumber::DeviceIo);
  }
  std::string shredded(std::size_t length) {
    pc.file(path, std::string(length, 'A'));
    engine.deleter->DeleteFile(path, 0);
    CHECK(takeReport().starts_with("\tShredding file f.dat\r\n\tDevice I/O error "));
    return pc.bytes(path);
  }
};

}  // namespace

TEST_CASE("whole blocks are overwritten with zeros, all but the last") {
  struct {
    std::size_t length;
    std::size_t overwritten;
  } const rows[] = {{0, 0},       {1024, 0},    {1535, 0},    {1536, 1024}, {2560, 1024},      {2561, 2048},
                    {3584, 3072}, {3583, 2048}, {4608, 3072}, {4609, 4096}, {1048576, 1047552}};
  for (const auto& [length, overwritten] : rows) {
    CAPTURE(length);
    Shredding pc;
    CHECK(pc.shredded(length) == std::string(overwritten, '\0') + std::string(length - overwritten, 'A'));
    CHECK(pc.pc.turns == static_cast<int>(overwritten / 1024));
  }
}

TEST_CASE("the chosen number of passes is written, and a text without a number writes nothing") {
  struct {
    const char* text;
    int passes;
  } const rows[] = {{"1", 1}, {"2", 2}, {"9", 9}, {"", 0}, {"x", 0}, {"0", 0}, {"-3", 0}, {" 3 times", 3}};
  for (const auto& [text, passes] : rows) {
    CAPTURE(text);
    Shredding pc;
    pc.options.cmbShredder.type(text);
    CHECK(pc.shredded(4096).starts_with(passes > 0 ? '\0' : 'A'));
    CHECK(pc.pc.turns == passes * 3);
  }
}

TEST_CASE("every pass is written, on what is there then") {
  Shredding pc;
  pc.options.cmbShredder.type("3");
  pc.pc.onDoEvents = [&](int turn) {  // three blocks a pass: these are the first turns of the later passes
    if (turn != 4 && turn != 7) return;
    CHECK(pc.pc.bytes(path).starts_with(std::string(3072, '\0')));
    pc.pc.file(path, std::string(4096, 'B'));
  };
  pc.pc.file(path, std::string(4096, 'A'));
  pc.engine.deleter->DeleteFile(path, 0);
  CHECK(pc.pc.bytes(path) == std::string(3072, '\0') + std::string(1024, 'B'));
}

TEST_CASE("a shredded file goes, read-only too, and its bytes count once") {
  Shredding pc;
  pc.pc.clearFaults();
  pc.options.cmbShredder.ListIndex(8);
  pc.pc.file(path, std::string(5000, 'A'));
  pc.pc.readOnly(path);
  CHECK_FALSE(pc.engine.deleter->DeleteFile(path, 0));
  CHECK_FALSE(pc.pc.hasFile(path));
  CHECK(pc.engine.TotalBytes == 5000);
  CHECK(pc.takeReport() == "\tShredding file f.dat\r\n");
}
