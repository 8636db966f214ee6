#include <doctest/doctest.h>

#include "plugins/Catalogue.h"
#include "plugins/StandardPluginRun.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const Catalogue& sample() {
  static const Catalogue catalogue = Catalogue::parse(
      "[Editor]\nabout a\n"
      "file windows | editor.ini\n"
      "folder appdata | Editor\\Recent | *.lnk\n"
      "file HKEY_LOCAL_MACHINE\\Software\\Editor+ Value`= Folder | Activity.log\n"
      "trace HKEY_CURRENT_USER\\Software\\Editor+ Value`= Last\n"
      "[Classes]\nabout a\ntrace HKEY_CLASSES_ROOT\\K- Key*\n"
      "[Wrong]\nabout a\n"
      "file windows | first.ini\ntrace HKEY_CURRENT_USER\\Software Value`- Key*\nfile windows | "
      "second.ini\n");
  return catalogue;
}

struct RowRun : WashFixture {
  void run(const std::string& name) { RunStandardPlugin(engine, sample(), name); }
  std::string heading(const std::string& name) {
    return "\r\nZUB has cleaned " + name +
           " , with the following results:\r\n\tDeleting registry items for " + name + "\r\n";
  }
};

}  // namespace

TEST_CASE("a row's actions run in their order on its folders") {
  RowRun wash;
  wash.pc.shellFolder("AppData", "C:\\User\\Data\\");
  wash.pc.value("HKEY_LOCAL_MACHINE\\Software\\Editor", "Folder", "C:\\Editor");
  wash.pc.value("HKEY_CURRENT_USER\\Software\\Editor", "Last", "a");
  const std::vector<std::string> gone{"C:\\WINDOWS\\editor.ini", "C:\\User\\Data\\Editor\\Recent\\a.lnk",
                                      "C:\\Editor\\Activity.log"};
  for (const std::string& path : gone) wash.pc.file(path);
  wash.pc.file("C:\\Activity.log");
  const std::string before = wash.pc.snapshot();
  wash.run("Editor");
  CHECK(wash.takeReport() == wash.heading("Editor") + "\tDeleting file editor.ini\r\n" +
                                 "\tDeleting file a.lnk\r\n\tDeleting file Activity.log\r\n");
  CHECK_FALSE(wash.pc.hasValue("HKEY_CURRENT_USER\\Software\\Editor", "Last"));
  CHECK(beyond(wash.pc.diffSince(before), {gone[0], gone[1], gone[2], "\"Last\""}) == "");
  CHECK(wash.progress().lblApplication.Caption == "Editor");
  CHECK(wash.progress().StatusBar1[1] == "Number of tasks competed: 1");
}

TEST_CASE("what is shown of a row is told with the folders of this PC, and marked where there are none") {
  RowRun wash;
  const auto shown = [&](const char* row) {
    std::string all;
    for (const Meaning& meaning : describeStandardPlugin(wash.engine, *sample().find(row))) {
      all += " ?!"[static_cast<int>(meaning.verdict)] + meaning.text + "\n";
    }
    return all;
  };
  wash.pc.shellFolder("AppData", "C:\\User");
  CHECK(shown("Editor") ==
        " Removes the file C:\\WINDOWS\\editor.ini\n"
        " Removes the files *.lnk of the folder C:\\User\\Editor\\Recent\\\n"
        "?Removes the file \\Activity.log (its folder cannot be read from the registry)\n"
        " Removes the value Last of the key HKEY_CURRENT_USER\\Software\\Editor; once the wash has wiped any "
        "key, all "
        "of it\n");
  // The state is that of a run that has read the application data folder.
  CHECK(shown("Classes") ==
        "?Removes the key HKEY_CURRENT_USER\\K with its values and subkeys "
        "(no hive has this name, and the one of the entry before counts)\n");
}

TEST_CASE("the application data folder is read anew for each run; a folder that cannot be read is the root") {
  RowRun wash;
  for (const char* folder : {"C:", "C:\\Now"}) {
    const std::string recent = std::string(folder) + "\\Editor\\Recent\\a.lnk";
    wash.pc.file(recent);
    wash.pc.file("C:\\Activity.log");
    wash.run("Editor");
    CHECK_FALSE(wash.pc.hasFile(recent));
    CHECK_FALSE(wash.pc.hasFile("C:\\Activity.log"));
    wash.pc.shellFolder("AppData", "C:\\Now");
  }
}

TEST_CASE("a name that is no row gives its lines and counts; a failure is told, ends the row and does not") {
  RowRun wash;
  wash.pc.file("C:\\WINDOWS\\first.ini");
  wash.pc.file("C:\\WINDOWS\\second.ini");
  wash.run("wrong");
  CHECK(wash.takeReport() == wash.heading("wrong"));
  CHECK(wash.progress().lblCompleted.Caption == "1");
  CHECK(wash.engine.registryHelper.ValueMode);
  wash.run("Wrong");
  CHECK(wash.takeReport() ==
        wash.heading("Wrong") + "\tDeleting file first.ini\r\n\tInvalid procedure call or argument\r\n");
  CHECK(wash.pc.hasFile("C:\\WINDOWS\\second.ini"));
  CHECK(wash.progress().lblCompleted.Caption == "1");
}
