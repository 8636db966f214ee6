#include <doctest/doctest.h>

#include "plugins/Plugins.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Folder = "C:\\Program Files\\Zubrane\\Plugins";

std::string rowsOf(const ListRows& rows) {
  std::string text;
  for (int row = 0; row < rows.ListCount(); ++row) {
    text += (rows.Selected(row) ? "*" : "") + rows.List(row) + ";";
  }
  return text;
}

}  // namespace

TEST_CASE("an absent plugin folder is an empty list, until it is there") {
  WashFixture wash;
  Plugins plugins(wash.engine);
  plugins.RefreshPluginList();
  CHECK(plugins.CurPath() == Folder);
  CHECK(rowsOf(wash.options.lstFiles) == "");
  wash.pc.file(Folder + "\\a.zb1");
  plugins.RefreshPluginList();
  CHECK(rowsOf(wash.options.lstFiles) == "a;");
  wash.pc.platform().files->deleteFolder(Folder);
  plugins.RefreshPluginList();
  CHECK(rowsOf(wash.options.lstFiles) == "");
}

TEST_CASE("the list has a row for each .zb1, sorted, cut by four characters, unticked") {
  WashFixture wash;
  for (const char* name : {"\\beta.zb1", "\\Alpha.ZB1", "\\gamma.zb2", "\\delta.one.zb1", "\\Sub.zb1\\x",
                           "\\.zb1", "\\notes.zb1.txt"}) {
    wash.pc.file(Folder + name);
  }
  Plugins plugins(wash.engine);
  plugins.RefreshPluginList();
  wash.options.lstFiles.selectAll(true);
  plugins.RefreshPluginList();
  CHECK(rowsOf(wash.options.lstFiles) == ";Alpha;beta;delta.one;");
}

TEST_CASE("removing takes the three files of the current row as a wash does, or those without a name") {
  for (const std::string current : {"a", ""}) {
    WashFixture wash;
    for (const char* name : {"\\a.zb1", "\\a.zb2", "\\a.zb3", "\\a.zb4", "\\b.zb1", "\\.zb3"}) {
      wash.pc.file(Folder + name);
    }
    wash.pc.readOnly(Folder + "\\a.zb2");
    Plugins plugins(wash.engine);
    plugins.RefreshPluginList();
    wash.options.lstFiles.selectAll(true);
    if (current == "a") wash.options.lstFiles.ListIndex(0);
    const std::string before = wash.pc.snapshot();
    plugins.RemovePlugin();
    CHECK(rowsOf(wash.options.lstFiles) == (current == "a" ? "b;" : "a;b;"));
    const std::string name = Folder + "\\" + current + ".zb";
    CHECK(beyond(wash.pc.diffSince(before), {name + "1", name + "2", name + "3"}) == "");
    CHECK_FALSE(wash.pc.hasFile(name + "3"));
    CHECK(wash.engine.TotalBytes == (current == "a" ? 3 : 1));
    wash.pc.lock(Folder + "\\b.zb1");
    wash.options.lstFiles.ListIndex(current == "a" ? 0 : 1);
    plugins.RemovePlugin();  // what others hold is not left for the next start
    CHECK_FALSE(wash.pc.hasFile("C:\\WINDOWS\\wininit.ini"));
  }
}
