#include <doctest/doctest.h>

#include "base/Text.h"
#include "plugins/Catalogue.h"
#include "plugins/CustomPluginRun.h"
#include "plugins/Plugins.h"
#include "plugins/StandardPluginRun.h"
#include "support/Golden.h"
#include "support/Story.h"
#include "support/TracedWash.h"

using namespace zub;

namespace {

const std::string Folder = "C:\\Program Files\\Zubrane\\Plugins\\";
const std::string Traces = "HKEY_CURRENT_USER\\Software\\Shop";

struct PluginRun : WashFixture {
  Plugins plugins{engine};
  CallTrace trace{pc, engine, [](const frmAnimated::State& shown) {
                    return shown.lblApplication.Caption + ", " + shown.StatusBar1[1] +
                           (contains(shown.lblCurrent.Caption, "Searching")
                                ? ", [" + shown.lblCurrent.Caption + "]"
                                : "");
                  }};

  void save(std::string_view zb1, std::string_view zb2) {
    pc.file(Folder + "Shop.zb1", zb1);
    pc.file(Folder + "Shop.zb2", zb2);
  }
  void run(std::string_view title) {
    trace.act(onOneLine(title), [&] { RunCustomPlugin(engine, plugins, "Shop"); });
  }
  void runRow(const Catalogue& catalogue, const std::string& name) {
    trace.act(name, [&] { RunStandardPlugin(engine, catalogue, name); });
  }
};

const Catalogue& sample() {
  static const Catalogue catalogue = Catalogue::parse(
      "[Editor]\nabout a\n"
      "file windows | editor.ini\n"
      "folder appdata | Editor\\Recent | *.lnk\n"
      "file HKEY_LOCAL_MACHINE\\Software\\Editor+ Value`= Folder | Activity.log\n"
      "trace HKEY_CURRENT_USER\\Software\\Editor+ Value`= Last\n"
      "[Classes]\nabout a\ntrace HKEY_CLASSES_ROOT\\K- Key*\n"
      "[Borrowed]\nabout a\n"
      "file HKEY_LOCAL_MACHINE\\Software\\Editor+ Value`= Folder | a.log\ntrace HKEY_CLASSES_ROOT\\K- Key*\n"
      "[Wrong]\nabout a\n"
      "file windows | first.ini\ntrace HKEY_CURRENT_USER\\Software Value`- Key*\nfile windows | "
      "second.ini\n");
  return catalogue;
}

}  // namespace

TEST_CASE("the calls, the report and the rest of custom plugins") {
  std::string told;
  {
    PluginRun wash;
    for (const char* path :
         {"C:\\Data\\One.dat", "C:\\Temp\\a.tmp", "C:\\Deep\\x\\c.tmp", "C:\\All\\x\\b.c",
          "C:\\Data\\two.dat", "C:\\Data\\last.dat", "C:\\Temp\\a.txt", "C:\\Temp\\sub\\b.tmp"}) {
      wash.pc.file(path);
    }
    for (const char* name : {"Last", "Other"}) wash.pc.value(Traces, name, "a");
    wash.pc.value(Traces + "\\Recent", "1", "a");
    wash.pc.key(Traces + "\\Late");
    wash.save(
        "c:\\data\\one.dat\r\n  C:\\Temp\\?.TMP  \r\nC:\\Deep\\*.tmp >Plus subdirectories<\r\n"
        "C:\\All\\*.* >plus subdirectories<\r\nNo entries.\r\nC:\\Data\\last.dat\r\n",
        " " + Traces + "+ Value`= Last\r\n" + Traces + "\\Recent- Key*");
    // The blank before the marker stays in the pattern, so that the one for all files leaves the folders.
    wash.run("Files, patterns, a value and a key; behind \"No entries.\" nothing is read");
    told = wash.trace.text;
  }
  const std::string good = "C:\\none.dat";
  const std::pair<std::string, std::string> lines[] = {
      {"", "NO ENTRIES."},  // a blank entry is a file without a name
      {"No entries.", Traces + "\\None- Key*"},
      {"*.t?", ""},
      {"*.tmp >plus subdirectories<", ""},
      {good, "HKEY_NONE\\Software- Key*"},
      {good, " NO ENTRIES. "},
      {good, "No entries."},
      {good, ""},
      {good, "Software"},
      {good, Traces + " Key*"},
  };
  for (const auto& [zb1, zb2] : lines) {
    PluginRun wash;
    for (const char* name : {"C:\\a.dat", "C:\\a.tmp", "C:\\b.dat"}) wash.pc.file(name);
    wash.pc.key(Traces + "\\Last");
    wash.save("C:\\a.dat\r\n" + zb1 + "\r\nC:\\b.dat", zb2 + "\r\n" + Traces + "\\Last- Key*\r\n");
    wash.run("[" + zb1 + "] between two files, [" + zb2 + "] before a key");
    told += "\n" + wash.trace.text;
  }
  PluginRun missing;
  missing.pc.file(Folder + "Shop.zb2", Traces + "- Key*");
  missing.run("The .zb1 is missing");
  missing.pc.file(Folder + "Shop.zb1", "");
  missing.run("An empty .zb1");
  missing.pc.platform().files->grip(Folder + "Shop.zb2")->remove();
  missing.run("The .zb2 is missing");
  // One that fails keeps none of the others from its run.
  missing.pc.file(Folder + "Z.zb1", "C:\\b.dat");
  missing.pc.file(Folder + "Z.zb2", "");
  missing.pc.file(Folder + "Off.zb1", "C:\\WINDOWS\\*.* >plus subdirectories<\r\n");
  missing.plugins.RefreshPluginList();
  for (const int row : {1, 2}) missing.options.lstFiles.Selected(row, true);
  missing.engine.clean.cleaners.customPlugin = [&](const std::string& name) {
    RunCustomPlugin(missing.engine, missing.plugins, name);
  };
  missing.trace.act("A wash of two of three plugins, the first of which fails",
                    [&] { missing.engine.animated->StartClean(); });
  checkGolden("custom.txt", told + "\n" + missing.trace.text);
}

TEST_CASE("the end of the process is no failure of the plugin") {
  PluginRun wash;
  wash.options.chkCloseAfterWash.Value(1);
  wash.pc.file("C:\\a.dat");
  wash.save("C:\\a.dat\r\n", "");
  wash.pc.onDoEvents = [&](int) { wash.engine.animated->cmdFinish_Click(); };
  CHECK_THROWS_AS(wash.run(""), EndOfProcess);
}

TEST_CASE("the calls, the report and the rest of standard plugins, and what is shown of them") {
  PluginRun wash;
  const auto shown = [&](const char* row) {
    for (const Meaning& meaning : describeStandardPlugin(wash.engine, *sample().find(row)))
      wash.trace.tell(joined({std::string_view(" ?!").substr(static_cast<std::size_t>(meaning.verdict), 1),
                              meaning.text, "\n"}));
  };
  const auto plant = [&] {
    for (const char* path : {"C:\\WINDOWS\\editor.ini", "C:\\User\\Data\\Editor\\Recent\\a.lnk",
                             "C:\\Editor\\Recent\\a.lnk", "C:\\Editor\\Activity.log", "C:\\Activity.log",
                             "C:\\WINDOWS\\first.ini", "C:\\WINDOWS\\second.ini"}) {
      wash.pc.file(path);
    }
    wash.pc.value("HKEY_CURRENT_USER\\Software\\Editor", "Last", "a");
  };
  plant();
  wash.trace.act("What is shown of the rows", [&] {
    for (const char* row : {"Editor", "Classes", "Borrowed"}) shown(row);
  });
  wash.runRow(sample(), "Editor");
  plant();
  wash.pc.shellFolder("AppData", "C:\\User\\Data\\");
  wash.pc.value("HKEY_LOCAL_MACHINE\\Software\\Editor", "Folder", "C:\\Editor");
  wash.trace.act("and with the folders that the rows name", [&] { shown("Editor"); });
  for (const char* row : {"Editor", "Classes", "Borrowed", "wrong", "Wrong"}) wash.runRow(sample(), row);
  checkGolden("standard.txt", wash.trace.text);
}
