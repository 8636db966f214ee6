#include <doctest/doctest.h>

#include "settings/WindowsStartup.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

constexpr const char* command = "C:\\Z\\zub.exe /STARTUP";
constexpr const char* hives[] = {"HKEY_LOCAL_MACHINE", "HKEY_CURRENT_USER"};

std::string run(std::string_view hive) {
  return std::string(hive) + "\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
}
std::string parked(std::string_view hive) {
  return run(hive) + "-";
}

struct Keys {
  TestPc pc;
  WindowsStartup startup{pc.platform().registry};
  Keys() {
    for (const char* hive : hives) {
      pc.value(run(hive), "Other", "decoy");
      pc.value(parked(hive), "Other", "decoy");
    }
  }
};

}  // namespace

TEST_CASE("the entry moves between the Run keys and their twins, without a terminator") {
  Keys keys;
  for (const bool on : {false, true, true, false}) {
    const std::string before = keys.pc.snapshot();
    if (on) {
      keys.startup.AddStartupEntry(command, "Zubrane");
    } else {
      keys.startup.RemoveStartupEntry(command, "Zubrane");
    }
    for (const char* hive : hives) {
      CHECK(keys.pc.data(on ? run(hive) : parked(hive), "Zubrane") == command);
      CHECK_FALSE(keys.pc.hasValue(on ? parked(hive) : run(hive), "Zubrane"));
      CHECK(keys.pc.hasValue(run(hive), "Other"));
      CHECK(keys.pc.hasValue(parked(hive), "Other"));
    }
  }
  keys.startup.RemoveStartupEntry("D:\\Moved\\zub.exe /STARTUP", "Zubrane");
  CHECK(keys.pc.data(parked(hives[1]), "Zubrane") == "D:\\Moved\\zub.exe /STARTUP");
}

TEST_CASE("a missing key is not made, and the others still get their part") {
  TestPc pc;
  pc.key(run(hives[1]));
  WindowsStartup startup(pc.platform().registry);
  startup.AddStartupEntry(command, "Zubrane");
  CHECK(pc.data(run(hives[1]), "Zubrane") == command);
  startup.RemoveStartupEntry(command, "Zubrane");
  CHECK_FALSE(pc.hasValue(run(hives[1]), "Zubrane"));
  CHECK_FALSE(pc.hasKey(parked(hives[1])));
  CHECK_FALSE(pc.hasKey(run(hives[0])));
}

TEST_CASE("without rights on the machine's keys the user's still get the entry, and nothing is told") {
  Keys keys;
  keys.pc.failKey(TestPc::KeyCall::Open, run(hives[0]), status::AccessDenied);
  keys.pc.failKey(TestPc::KeyCall::Open, parked(hives[0]), status::AccessDenied);
  keys.startup.AddStartupEntry(command, "Zubrane");
  CHECK(keys.pc.data(run(hives[1]), "Zubrane") == command);
  CHECK_FALSE(keys.pc.hasValue(run(hives[0]), "Zubrane"));
  CHECK(keys.pc.messages.empty());
}

TEST_CASE("the command has one backslash behind the program's folder") {
  TestPc pc;
  CHECK(startupCommand(pc.platform().folders) == "C:\\Program Files\\Zubrane\\zub.exe /STARTUP");
  TestPc atRoot({"program = C:\\"});
  CHECK(startupCommand(atRoot.platform().folders) == "C:\\zub.exe /STARTUP");
}
