#include <doctest/doctest.h>

#include "settings/WindowsStartup.h"
#include "support/Golden.h"
#include "support/TestPc.h"

using namespace zub;

TEST_CASE("the calls that move the entry between the Run keys and their twins, and what comes of them") {
  const std::string run = "\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
  std::string text;
  const auto move = [&](TestPc& pc, const char* title, bool on, const char* command) {
    text += title + std::string(on ? ": on\n" : ": off\n");
    const std::string before = pc.snapshot();
    pc.onCall = [&](const std::string& call) { text += call + "\n"; };
    WindowsStartup startup(*pc.platform().registry);
    if (on) startup.AddStartupEntry(command, "Zubrane");
    if (!on) startup.RemoveStartupEntry(command, "Zubrane");
    text += pc.diffSince(before) + "\n";
  };
  const char* command = "C:\\Z\\zub.exe /STARTUP";
  TestPc pc;
  for (const std::string hive : {"HKEY_LOCAL_MACHINE", "HKEY_CURRENT_USER"}) {
    for (const char* twin : {"", "-"}) pc.value(hive + run + twin, "Other", "decoy");
  }
  move(pc, "# For the first time", false, command);
  for (const bool on : {true, true, false}) move(pc, "# Again", on, command);
  move(pc, "# The program has moved", false, "D:\\Moved\\zub.exe /STARTUP");
  TestPc few;
  few.key("HKEY_CURRENT_USER" + run);
  for (const bool on : {true, false}) move(few, "# The user's Run key alone", on, command);
  few.key("HKEY_LOCAL_MACHINE" + run);
  few.fail("open HKEY_LOCAL_MACHINE" + run, status::AccessDenied);
  move(few, "# The machine's Run key is refused", true, command);
  checkGolden("startup.txt", text);
}

TEST_CASE("the command has one backslash behind the program's folder") {
  TestPc pc;
  CHECK(startupCommand(*pc.platform().folders) == "C:\\Program Files\\Zubrane\\zub.exe /STARTUP");
  TestPc atRoot({"program = C:\\"});
  CHECK(startupCommand(*atRoot.platform().folders) == "C:\\zub.exe /STARTUP");
}
