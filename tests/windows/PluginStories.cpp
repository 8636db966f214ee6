// A custom plugin from its making to its removal, and the standard ones.
#include "windows/Story.h"

using namespace zub::drive;

namespace {

const std::string App = "Software\\Drive App";

void addRegistryEntry(const Window& editor, const std::string& path, const std::string& name) {
  fill(editor.child("EDIT", 1), path);
  fill(editor.child("EDIT", 2), name);
  editor.child("Add").click();
}

Window pluginList(const Window& main) {
  openTab(main, "Custom Plugins");
  return main.child("SysListView32", 0);
}

}  // namespace

TEST_CASE("a plugin is made, edited, ticked and removed") {
  const Story story;
  const pc::fs::path base = pc::programs() / "Plugins" / "Drive App";
  const auto stored = [&base](const char* extension) { return pc::bytesOf(base.string() + extension); };
  const Zub zub;
  const Window main = zub.main();
  const Window list = pluginList(main);
  main.child("Create A New Plugin").click();
  Window editor = zub.window(title::Editor);
  REQUIRE(soon([&] { return focus() == editor.child("EDIT", 0); }));
  type("Drive App");
  addRegistryEntry(editor, App, "Traces");
  CHECK(rows::find(editor.child("LISTBOX", 0), "HKey_Current_User\\" + App + "\\Traces- Key*") == 0);
  openTab(editor, "Files & Folders");
  fill(editor.child("EDIT", 1), "C:\\Drive App");
  editor.child("File pattern").click();
  fill(editor.child("EDIT", 3), "*.trc");
  editor.child("Subfolders").tick();
  editor.child("Add").click();
  openTab(editor, "Comments");
  fill(editor.child("EDIT", 1), "Traces of Drive App");
  editor.child("EDIT", 2).click();
  type("First line");
  key(VK_RETURN);
  type("second line");
  editor.child("&Ok").click();
  CHECK(zub.hides(title::Editor));
  CHECK(stored(".zb1") == "C:\\Drive App\\*.trc >plus subdirectories<\r\n");
  CHECK(stored(".zb3") == "Traces of Drive App\r\nFirst line\r\nsecond line\r\n");

  rows::click(list, rows::find(list, "Drive App"));
  main.child("Edit Plugin").click();
  editor = zub.window(title::Editor);
  CHECK(editor.child("EDIT", 0).comesToSay("Drive App"));
  editor.child("New").click();
  choose(editor.child("COMBOBOX", 1), "V");
  addRegistryEntry(editor, App + "\\Values", "Last");
  editor.child("&Ok").click();
  CHECK(zub.hides(title::Editor));
  CHECK(stored(".zb2").ends_with("Key*\r\nHKey_Current_User\\" + App + "\\Values+ Value`= Last\r\n"));
  rows::clickCheck(list, rows::find(list, "Drive App"));
  CHECK(soon([&] { return rows::isChecked(list, rows::find(list, "Drive App")); }));
  main.child("Remove").click();
  CHECK(soon([&] { return rows::count(list) == 3; }));
  CHECK_FALSE(pc::exists(base.string() + ".zb1"));
}

TEST_CASE("the highlighted row is the current one, also where its box was clicked") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  const Window list = pluginList(main);
  const int shop = rows::find(list, "Card Shop Deluxe"), logs = rows::find(list, "Modem and Fax Logs");
  rows::click(list, logs);
  rows::clickCheck(list, shop);
  CHECK(rows::isHighlighted(list, shop));
  list.clickAt(120, 250);  // below the rows
  CHECK(rows::isHighlighted(list, shop));
  main.child("Edit Plugin").click();
  CHECK(zub.window(title::Editor).child("EDIT", 0).comesToSay("Card Shop Deluxe"));
  zub.window(title::Editor).child("&Cancel").click();
  main.child("Remove").click();
  CHECK(soon([&] { return rows::count(list) == 2; }));
  CHECK(rows::find(list, "Modem and Fax Logs") >= 0);
}

TEST_CASE("the editor comes up on its first tab each time, and refuses an entry without a path") {
  const Story story;
  const Zub zub;
  pluginList(zub.main());
  zub.main().child("Create A New Plugin").click();
  Window editor = zub.window(title::Editor);
  openTab(editor, "Comments");
  editor.child("&Cancel").click();
  CHECK(zub.hides(title::Editor));
  zub.main().child("Create A New Plugin").click();
  editor = zub.window(title::Editor);
  CHECK(soon([&] { return editor.hasChild("Path of registry entry:"); }, 2));

  editor.child("Add").click();
  zub.dialog("ZUB Plugin");
  CHECK_FALSE(zub.main().isEnabled());
  CHECK(answer(zub, "ZUB Plugin") == "Path cannot be empty");
  CHECK(soon([&] { return zub.main().isEnabled(); }));
  CHECK(soon([&] { return focus() == editor.child("EDIT", 1); }));
  REQUIRE(editor.comesToFront());
  key(VK_ESCAPE);  // would drop what was entered
  CHECK(zub.shows(title::Editor));
  chord({VK_MENU, 'C'});
  CHECK(zub.hides(title::Editor));
}

TEST_CASE("the system's folder picker fills the path box") {
  const Story story;
  const Zub zub;
  pluginList(zub.main());
  zub.main().child("Create A New Plugin").click();
  const Window editor = zub.window(title::Editor);
  openTab(editor, "Files & Folders");
  const Window path = editor.child("EDIT", 1);
  fill(path, "C:\\before");
  editor.child("Browse").click();
  const Window picker = zub.dialog("Browse for Folder");
  CHECK(picker.hasChild("Find the Folder"));
  CHECK_FALSE(editor.isEnabled());
  editor.send(WM_CLOSE);
  CHECK(zub.shows(title::Editor));
  picker.child("SysTreeView32", 0).click();
  key(VK_HOME);
  type("m");  // My Computer
  key(VK_RIGHT);
  key(VK_DOWN);  // its first drive
  picker.child("OK").click();
  CHECK(soon([&] { return path.text() == "C:\\"; }));
  editor.child("Browse").click();
  zub.dialog("Browse for Folder").child("Cancel").click();
  CHECK(editor.comesToFront());
  CHECK(path.text() == "C:\\");
}
