#include <doctest/doctest.h>

#include "plugins/Catalogue.h"
#include "plugins/Plugins.h"
#include "plugins/StandardList.h"
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
  CHECK(wash.options.lstFiles.ListCount() == 0);
  wash.pc.file(Folder + "\\a.zb1");
  plugins.RefreshPluginList();
  CHECK(rowsOf(wash.options.lstFiles) == "a;");
  wash.pc.platform().files.deleteFolder(Folder);
  plugins.RefreshPluginList();
  CHECK(wash.options.lstFiles.ListCount() == 0);
}

TEST_CASE("the list has a row for each .zb1, sorted, cut by four characters, unticked") {
  WashFixture wash;
  for (const char* name : {"\\beta.zb1", "\\Alpha.ZB1", "\\gamma.zb2", "\\delta.one.zb1", "\\Sub.zb1\\x",
                           "\\.zb1", "\\notes.zb1.txt"}) {
    wash.pc.file(Folder + name);
  }
  Plugins plugins(wash.engine);
  plugins.RefreshPluginList();
  CHECK(rowsOf(wash.options.lstFiles) == ";Alpha;beta;delta.one;");
  wash.options.lstFiles.selectAll(true);
  plugins.RefreshPluginList();
  CHECK(wash.options.lstFiles.SelCount() == 0);
}

TEST_CASE("removing takes the three files of the current row as a wash does, and all ticks") {
  WashFixture wash;
  for (const char* name : {"\\a.zb1", "\\a.zb2", "\\a.zb3", "\\a.zb4", "\\b.zb1", "\\b.zb2"}) {
    wash.pc.file(Folder + name);
  }
  wash.pc.readOnly(Folder + "\\a.zb2");
  Plugins plugins(wash.engine);
  plugins.RefreshPluginList();
  wash.options.lstFiles.selectAll(true);
  wash.options.lstFiles.ListIndex(0);
  const std::string before = wash.pc.snapshot();
  plugins.RemovePlugin();
  CHECK(rowsOf(wash.options.lstFiles) == "b;");
  CHECK(wash.takeReport() == "\tDeleting file a.zb1\r\n\tDeleting file a.zb2\r\n\tDeleting file a.zb3\r\n");
  CHECK(wash.pc.hasFile(Folder + "\\a.zb4"));
  CHECK(wash.pc.hasFile(Folder + "\\b.zb2"));
  CHECK(wash.engine.TotalBytes == 3);
}

TEST_CASE("removing without a current row tries the files without a name") {
  WashFixture wash;
  wash.pc.file(Folder + "\\a.zb1");
  wash.pc.file(Folder + "\\.zb3");
  Plugins plugins(wash.engine);
  plugins.RefreshPluginList();
  plugins.RemovePlugin();
  CHECK(rowsOf(wash.options.lstFiles) == "a;");
  CHECK_FALSE(wash.pc.hasFile(Folder + "\\.zb3"));
}

TEST_CASE("the standard list shows the catalogue sorted, and describes exact names only") {
  const Catalogue catalogue = Catalogue::parse(
      "[b row]\nabout It cleans b.\ntrace HKEY_USERS\\b- Key*\n"
      "[A row]\nabout It cleans a.\ntrace HKEY_USERS\\a- Key*\n");
  ListRows rows{ListRows::Order::Sorted};
  FillStandardList(rows, catalogue);
  CHECK(rowsOf(rows) == "A row;b row;");
  CHECK(standardPluginDescription(catalogue, "b row") == "It cleans b.");
  CHECK(standardPluginDescription(catalogue, "B row") == "");
}
