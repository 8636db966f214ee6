// What a wash takes with its progress window open, against the console program and the system's own command on
// the same files. No check of the program: it runs only where it is asked for by name, and prints milliseconds.
#include <algorithm>
#include <string>

#include "windows/Story.h"

using namespace zub::drive;

namespace {

constexpr int Folders = 250, FilesInFolder = 20, Rounds = 3;
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

void washInTheWindow() {
  const Zub zub("/SCHEDULER");
  const Window progress = zub.window(title::Progress);
  REQUIRE(soon([&] { return progress.hasChild("&Finish"); }, LongWash));
}

void run(std::string command) {
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  REQUIRE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr, nullptr,
                         &startup, &process) != 0);
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

template <class Removal>
ULONGLONG timed(int folders, Removal removal) {
  seedFiles(folders);
  const ULONGLONG start = GetTickCount();
  removal();
  const ULONGLONG taken = GetTickCount() - start;
  CHECK(pc::filesIn(pc::temp()) == 0);
  return taken;
}

// The best of several runs, in turn, so that all meet the same noise of the disk.
void compare(const std::string& what, int folders) {
  const std::string console = "\"" + (pc::programs() / "zub-console.exe").string() + "\" wash";
  const std::string system = "cmd /c rd /s /q \"" + pc::temp().string() + "\"";
  ULONGLONG least[] = {~0ULL, ~0ULL, ~0ULL};
  for (int round = 0; round < Rounds; ++round) {
    const ULONGLONG taken[] = {timed(folders, washInTheWindow), timed(folders, [&] { run(console); }),
                               timed(folders, [&] { run(system); })};
    std::ranges::transform(least, taken, least,
                           [](ULONGLONG one, ULONGLONG other) { return std::min(one, other); });
  }
  MESSAGE(what << ": with the progress window " << least[0] << " ms, console program " << least[1]
               << " ms, rd /s /q " << least[2] << " ms");
}

}  // namespace

TEST_CASE("figures" * doctest::skip()) {
  const Story story;
  pc::option("chkTempFolder");
  compare("nothing to remove", 0);
  compare(std::to_string(Folders * FilesInFolder) + " files in " + std::to_string(Folders) + " folders",
          Folders);
}
