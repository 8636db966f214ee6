#include <doctest/doctest.h>

#include "support/TestPc.h"
#include "ui/frmAbout.h"

using namespace zub;

namespace {

const std::string Machine = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\";
const std::string First = Machine + "Shared Tools\\MSINFO";
const std::string Second = Machine + "Shared Tools Location";

struct AboutBox {
  TestPc pc;
  frmAbout about{pc.platform()};

  // Whether the value was read, and its text.
  std::string read(std::string_view name) {
    std::string text = "before";
    const RegistryKey machine = pc.platform().registry->hive(Hive::LocalMachine);
    const bool done = about.GetKeyValue(machine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", name, text);
    return (done ? "read " : "not ") + text;
  }
};

}  // namespace

TEST_CASE("the about box tells title and version when it is loaded") {
  AboutBox box;
  box.about.Form_Load();
  CHECK(box.about.lblTitle.Caption == "Zubrane");
  CHECK(box.about.lblVersion.Caption == "Version " ZUB_VERSION);
}

TEST_CASE("the information tool is looked for in two places") {
  const std::string tool = "C:\\Tools\\MSINFO32.EXE";
  struct {
    const char* first;
    bool toolExists;
    std::vector<std::string> started;
  } const rows[] = {{"D:\\nowhere\\info.exe", true, {"D:\\nowhere\\info.exe"}},  // used as it stands
                    {"", true, {tool}},
                    {nullptr, true, {tool}},
                    {nullptr, false, {}}};
  for (const auto& row : rows) {
    AboutBox box;
    if (row.first != nullptr) box.pc.value(First, "PATH", row.first);
    box.pc.value(Second, "MSINFO", "C:\\Tools");
    if (row.toolExists) box.pc.file(tool);
    box.about.form.Show();
    box.about.cmdSysInfo_Click();
    CHECK(box.pc.started == row.started);
    CHECK(box.about.form.Visible);
    REQUIRE(box.pc.messages.size() == (row.started.empty() ? 1 : 0));
    if (row.started.empty())
      CHECK(box.pc.messages[0].prompt == "System Information Is Unavailable At This Time");
  }
}

TEST_CASE("a value is read as text, a number by the digits of its bytes") {
  AboutBox box;
  CHECK(box.read("PATH") == "not ");
  box.pc.value(First, "Text", 1, std::string("C:\\x\0y", 6));
  box.pc.value(First, "Number", 4, std::string("\x0A\x00\xF1\x02", 4));
  box.pc.value(First, "Binary", 3, std::string("ab\0c", 4));
  box.pc.value(First, "Full", 1, std::string(1024, 'x'));
  box.pc.value(First, "TooLong", 1, std::string(1025, 'x'));
  CHECK(box.read("Text") == "read C:\\x");
  CHECK(box.read("Number") == "read &h2F10A");
  CHECK(box.read("Binary") == "read ab");
  CHECK(box.read("Full") == "read " + std::string(1024, 'x'));
  CHECK(box.read("TooLong") == "not ");
  CHECK(box.read("Missing") == "not ");
}
