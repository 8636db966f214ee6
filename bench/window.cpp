// What a wash takes with its progress window open, against the console program and the system's own command on
// the same files. It is a case of the program that drives the desktop, runs only where it is asked for by name, and prints
// milliseconds.
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "windows/Story.h"

using namespace zub::drive;

namespace {

constexpr int Folders = 250, FilesInFolder = 20, Rounds = 4;
constexpr std::size_t SmallFile = 512, LargeFile = 256 << 20;  // bytes
constexpr int LongWash = 300;                                  // seconds

using Seed = void (*)();

void seedNothing() {}

void seedTree() {
  for (int folder = 1; folder <= Folders; ++folder) {
    for (int file = 1; file <= FilesInFolder; ++file) {
      pc::put(pc::temp() / ("d" + std::to_string(folder)) / ("f" + std::to_string(file)),
              std::string(SmallFile, 'x'));
    }
  }
}

void seedLargeFile() {
  pc::put(pc::temp() / "large.tmp", std::string(LargeFile, 'x'));
}

void washInTheWindow() {
  const Zub zub("/SCHEDULER");
  const Window progress = zub.window(title::Progress);
  // Asked seldom: each look is work for the system, which the wash needs as well.
  constexpr DWORD Seldom = 50;  // milliseconds
  REQUIRE(soon([&] { return Sleep(Seldom), progress.hasChild("&Finish"); }, LongWash));
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

struct Removal {
  const char* name;
  std::function<void()> run;
};

const std::vector<Removal>& removals() {
  static const std::string console = "\"" + (pc::programs() / "zub-console.exe").string() + "\" wash --yes";
  static const std::string system = "cmd /c rd /s /q \"" + pc::temp().string() + "\"";
  static const std::vector<Removal> all = {{"with the progress window", washInTheWindow},
                                           {"console program", [] { run(console); }},
                                           {"rd /s /q", [] { run(system); }}};
  return all;
}

ULONGLONG timed(Seed seed, const Removal& removal) {
  pc::remove(pc::temp());
  pc::fs::create_directories(pc::temp());
  seed();
  const ULONGLONG start = GetTickCount();
  removal.run();
  const ULONGLONG taken = GetTickCount() - start;
  CHECK(pc::filesIn(pc::temp()) == 0);
  return taken;
}

// The best of several runs, in turn, so that all meet the same noise of the disk.
void compare(const std::string& what, Seed seed) {
  std::vector<ULONGLONG> least(removals().size(), ~0ULL);
  for (int round = 0; round < Rounds; ++round) {
    for (std::size_t at = 0; at < least.size(); ++at)
      least[at] = std::min(least[at], timed(seed, removals()[at]));
  }
  std::string text = what + ":";
  for (std::size_t at = 0; at < least.size(); ++at)
    text += std::string(at == 0 ? " " : ", ") + removals()[at].name + " " + std::to_string(least[at]) + " ms";
  MESSAGE(text);
}

}  // namespace

TEST_CASE("figures" * doctest::skip()) {
  const Story story;
  pc::option("chkTempFolder");
  compare("nothing to remove", seedNothing);
  compare("5,000 files in 250 folders", seedTree);
  pc::option("chkBleach");
  pc::option("cmbShredder", "2");
  compare("256 MiB shredded with 3 passes", seedLargeFile);
}
