#include <doctest/doctest.h>

#include "settings/WindowsStartup.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

constexpr const char* command = "C:\\Z\\zub.exe /STARTUP";
const std::string stored = command + std::string(1, '\0');
constexpr const char* hives[] = {"HKEY_LOCAL_MACHINE", "HKEY_CURRENT_USER"};

std::string run(std::string_view hive) {
  return std::string(hive) + "\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
}
std::string parked(std::string_view hive) {
  return run(hive) + "-";
}

}  // namespace

TEST_CASE("the entry moves between the Run keys and their twins") {
  TestPc pc;
  for (const char* hive : hives) {
    pc.value(run(hive), "Other", "decoy");
    pc.value(parked(hive), "Other", "decoy");
  }
  WindowsStartup startup(*pc.platform().registry);
  for (const bool on : {false, true, true, false}) {
    if (on) {
      startup.AddStartupEntry(command, "Zubrane");
    } else {
      startup.RemoveStartupEntry(command, "Zubrane");
    }
    for (const char* hive : hives) {
      CHECK(pc.data(on ? run(hive) : parked(hive), "Zubrane") == stored);
      CHECK_FALSE(pc.hasValue(on ? parked(hive) : run(hive), "Zubrane"));
      CHECK(pc.hasValue(run(hive), "Other"));
      CHECK(pc.hasValue(parked(hive), "Other"));
    }
  }
  startup.RemoveStartupEntry("D:\\Moved\\zub.exe /STARTUP", "Zubrane");
  CHECK(pc.text(parked(hives[1]), "Zubrane") == "D:\\Moved\\zub.exe /STARTUP");
}

TEST_CASE("a key that is missing or denied stays as it is, and the others still get their part") {
  for (const bool denied : {false, true}) {
    TestPc pc;
    pc.key(run(hives[1]));
    if (denied) {
      pc.key(run(hives[0]));
      pc.fail("open " + run(hives[0]), status::AccessDenied);
    }
    WindowsStartup startup(*pc.platform().registry);
    startup.AddStartupEntry(command, "Zubrane");
    CHECK(pc.data(run(hives[1]), "Zubrane") == stored);
    CHECK_FALSE(pc.hasValue(run(hives[0]), "Zubrane"));
    startup.RemoveStartupEntry(command, "Zubrane");
    CHECK_FALSE(pc.hasValue(run(hives[1]), "Zubrane"));
    CHECK_FALSE(pc.hasKey(parked(hives[1])));
    CHECK(pc.hasKey(run(hives[0])) == denied);
  }
}

TEST_CASE("the command has one backslash behind the program's folder") {
  TestPc pc;
  CHECK(startupCommand(*pc.platform().folders) == "C:\\Program Files\\Zubrane\\zub.exe /STARTUP");
  TestPc atRoot({"program = C:\\"});
  CHECK(startupCommand(*atRoot.platform().folders) == "C:\\zub.exe /STARTUP");
}
