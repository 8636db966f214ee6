// What a wash takes with its progress window open, against the console program on the same files. No check of
// the program: it runs only where it is asked for by name, and prints milliseconds.
#include <algorithm>
#include <string>

#include "windows/Story.h"

using namespace zub::drive;

namespace {

constexpr int Folders = 1000, FilesInFolder = 20, Rounds = 3;
constexpr int LongWash = 300;  // seconds

void seedFiles(int folders) {
  pc::remove(pc::temp());
  pc::fs::create_directories(pc::temp());
  for (int folder = 1; folder <= folders; ++folder) {
    for (int file = 1; file <= FilesInFolder; ++file) {
      pc::put(pc::temp() / ("d" + std::to_string(folder)) / ("f" + std::to_string(file)),
              std::string(512, 'x'));
    }
  }
}

ULONGLONG withWindow() {
  const ULONGLONG start = GetTickCount();
  const Zub zub("/SCHEDULER");
  const Window progress = zub.window(title::Progress);
  REQUIRE(soon([&] { return progress.hasChild("&Finish"); }, LongWash));
  return GetTickCount() - start;
}

ULONGLONG onTheConsole() {
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  std::string command = "\"" + (pc::programs() / "zub-console.exe").string() + "\" wash";
  const ULONGLONG start = GetTickCount();
  REQUIRE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr, nullptr,
                         &startup, &process) != 0);
  WaitForSingleObject(process.hProcess, INFINITE);
  const ULONGLONG taken = GetTickCount() - start;
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return taken;
}

// The best of several runs, in turn, so that both meet the same noise of the disk.
void compare(const char* what, int folders) {
  ULONGLONG window = ~0ULL, console = ~0ULL;
  for (int round = 0; round < Rounds; ++round) {
    seedFiles(folders);
    window = std::min(window, withWindow());
    CHECK(pc::filesIn(pc::temp()) == 0);
    seedFiles(folders);
    console = std::min(console, onTheConsole());
    CHECK(pc::filesIn(pc::temp()) == 0);
  }
  MESSAGE(std::string(what) << ": with the progress window " << window << " ms, console program " << console
                            << " ms");
}

}  // namespace

TEST_CASE("figures" * doctest::skip()) {
  const Story story;
  pc::option("chkTempFolder");
  compare("nothing to remove", 0);
  compare("20,000 files in 1,000 folders", Folders);
}
