#include <doctest/doctest.h>

#include "base/Text.h"
#include "plugins/CFolderBrowse.h"
#include "plugins/Plugins.h"
#include "plugins/frmPluginEditor.h"
#include "support/Golden.h"
#include "support/Story.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Folder = "C:\\Program Files\\Zubrane\\Plugins\\";
using Window = frmPluginEditor;
using State = Window::State;

const std::pair<const char*, TextBox State::*> boxes[] = {{"txtName", &State::txtName},
                                                          {"txtPath", &State::txtPath},
                                                          {"txtKeyValue", &State::txtKeyValue},
                                                          {"txtPathFF", &State::txtPathFF},
                                                          {"txtFileName", &State::txtFileName},
                                                          {"txtFilePattern", &State::txtFilePattern},
                                                          {"txtInfoPlugin", &State::txtInfoPlugin},
                                                          {"txtComments", &State::txtComments}};

std::string textOf(const TextBox& box) {
  std::string text = "[" + box.Text + "]";
  if (!box.Enabled) text += " off";
  if (box.BackColor != colors::White) text += " on " + std::to_string(box.BackColor);
  return box.ForeColor == colors::Black ? text : text + " in " + std::to_string(box.ForeColor);
}

// The rows, the current one with ">" in front.
std::string textOf(const ListRows& list) {
  std::string text;
  for (int row = 0; row < list.ListCount(); ++row) {
    text += (row == list.ListIndex() ? ">[" : "[") + list.List(row) + "]";
  }
  return text;
}

// The steps of a story tell themselves.
struct Editor : WashFixture {
  FirstUse<Plugins> plugins{[this] { return std::make_unique<Plugins>(engine); }};
  Window form{engine, plugins};
  State& state = form.state;
  Story story;
  int refreshes = 0;

  Editor() {
    form.RefreshPlugins = [this] { ++refreshes; };
    story.look = [this] { return shown(); };
  }
  void save(std::string_view zb1, std::string_view zb2, std::string_view zb3) {
    pc.file(Folder + "P.zb1", zb1);
    pc.file(Folder + "P.zb2", zb2);
    pc.file(Folder + "P.zb3", zb3);
  }
  Story::Things shown() {
    Story::Things things{
        {"message", told()},
        {"window", (state.form.Visible ? "shown " : "hidden ") +
                       std::string(state.form.Enabled ? "" : "disabled ") + std::to_string(state.form.shown)},
        {"refreshes of the main window", std::to_string(refreshes)},
        {"cmdApply", state.cmdApply.Enabled ? "on" : "off"},
        {"focus", ""}};
    for (const auto& [name, box] : boxes) {
      if (state.focus == box) things.back().second = name;
    }
    for (const auto& [name, box] : boxes) things.emplace_back(name, textOf(state.*box));
    things.insert(things.end(), {{"registry", textOf(state.lstRegistry)},
                                 {"hive", state.cmbPathRegistry.Text()},
                                 {"kind", state.cmbRegistry.Text()},
                                 {"files", textOf(state.lstFileFolder)},
                                 {"optFileName", state.optFileName.Value ? "on" : "off"},
                                 {"optFilePattern", state.optFilePattern.Value ? "on" : "off"},
                                 {"chkSubfolders", std::to_string(state.chkSubfolders.Value()) +
                                                       (state.chkSubfolders.Enabled ? "" : ", disabled")},
                                 {"cmdBrowseFile", state.cmdBrowseFile.Enabled ? "enabled" : "disabled"},
                                 {"prompt of the picker", pc.folderPrompt}});
    for (const std::string extension : {".zb1", ".zb2", ".zb3"}) {
      const std::string file = Folder + "P" + extension;
      things.emplace_back("P" + extension, pc.hasFile(file) ? "[" + pc.bytes(file) + "]" : "");
    }
    return things;
  }
  void chapter(std::string_view title) {
    form.cmdCancel_Click();
    story.chapter(title);
  }
  void newPlugin(std::string_view title) {
    chapter(title);
    press("NewPlugin", &Window::NewPlugin);
  }
  void press(std::string_view name, void (Window::*click)()) {
    story.step(name, [&] { (form.*click)(); });
  }
  void open(std::string_view plugin) {
    story.step(joined({"ShowPlugin ", plugin}), [&] { form.ShowPlugin(plugin); });
  }
  void type(std::string_view what, TextBox State::*box, std::string_view text) {
    story.step(what, [&] { (state.*box).Text = text; });
  }
  void key(std::string_view path, std::string_view name, int kind = 0) {
    story.step(joined({"cmdRegistryAdd for [", path, "] [", name, "]"}), [&] {
      state.txtPath.Text = path;
      state.txtKeyValue.Text = name;
      state.cmbRegistry.ListIndex(kind);
      form.cmdRegistryAdd_Click();
    });
  }
  void file(std::string_view path, std::string_view name) {
    story.step(joined({"cmdAddFF for [", path, "] [", name, "]"}), [&] {
      state.txtPathFF.Text = path;
      state.txtFileName.Text = name;
      form.cmdAddFF_Click();
    });
  }
  void select(int row) {
    story.step("row " + std::to_string(row) + " of the files", [&] { state.lstFileFolder.ListIndex(row); });
  }
};

}  // namespace

TEST_CASE("what the editor shows, tells and saves, step by step") {
  Editor editor;
  editor.chapter("A new plugin is saved with two empty lists; the folder is made");
  editor.press("NewPlugin", &Window::NewPlugin);
  editor.press("cmdOK without a name", &Window::cmdOK_Click);
  editor.type("a name is typed", &State::txtName, "  P ");
  editor.press("cmdApply", &Window::cmdApply_Click);
  editor.press("cmdFFNew", &Window::cmdFFNew_Click);
  editor.press("cmdOK, with nothing to save", &Window::cmdOK_Click);
  editor.file("C:\\", "a.txt");
  editor.press("cmdOK", &Window::cmdOK_Click);

  editor.newPlugin("A save that fails says nothing, and OK closes all the same; then all begins afresh");
  editor.type("a name that no file can have", &State::txtName, "a|b");
  editor.press("cmdApply", &Window::cmdApply_Click);
  editor.press("cmdOK", &Window::cmdOK_Click);
  editor.press("NewPlugin", &Window::NewPlugin);
  editor.press("NewPlugin on the open window", &Window::NewPlugin);
  editor.type("the name of the saved plugin", &State::txtName, "P");
  editor.key("A", "B");
  editor.press("cmdCancel saves nothing", &Window::cmdCancel_Click);

  editor.newPlugin("An empty box is told, always, and gets the focus");
  editor.state.cmdApply.Enabled = false;
  editor.key("  ", "a");
  editor.key("a", " ");
  editor.state.cmdApply.Enabled = false;
  editor.file(" ", "a");

  editor.newPlugin("The boxes become rows");
  editor.key(" Software\\X ", " Recent ");
  editor.key("\\Software\\X\\", "Recent");
  editor.key("\\", "Recent");
  editor.state.cmbPathRegistry.ListIndex(0);
  editor.key("X", " a = b ", 1);
  editor.key("X\\", "a", 1);
  editor.press("cmdRegNew", &Window::cmdRegNew_Click);
  editor.press("cmdRegRemove", &Window::cmdRegRemove_Click);
  editor.file(" C:\\Temp ", " a b.txt ");
  editor.file("C:\\", "");
  editor.press("optFilePattern", &Window::optFilePattern_Click);
  editor.type("a pattern is typed", &State::txtFilePattern, "*.tmp ");
  editor.file("C:\\Temp", "unread");
  editor.state.chkSubfolders.Value(1);
  editor.press("cmdAddFF with subfolders", &Window::cmdAddFF_Click);
  editor.press("cmdAddFF of the same row", &Window::cmdAddFF_Click);
  editor.press("optFileName", &Window::optFileName_Click);

  editor.newPlugin("An entry edits the current row; a single row that is not current drops it");
  editor.file("C:", "a");
  editor.file("C:", "b");
  editor.select(-1);
  editor.file("C:", "dropped");
  editor.press("cmdFFNew", &Window::cmdFFNew_Click);
  editor.file("C:", "c");
  editor.select(-1);
  editor.file("C:", "d");
  editor.select(1);
  editor.file("C:", "e");
  for (int time = 0; time < 3; ++time) editor.press("cmdFFRemove", &Window::cmdFFRemove_Click);
  editor.select(0);
  editor.press("cmdFFRemove", &Window::cmdFFRemove_Click);
  editor.file("C:", "f");

  editor.save(" NO ENTRIES. \r\n", "no entries.", "");
  editor.chapter("New replaces the mark for no entries, in any case");
  editor.open("P");
  editor.press("cmdFFNew", &Window::cmdFFNew_Click);
  editor.key("Software", "X");
  editor.press("cmdRegNew", &Window::cmdRegNew_Click);
  editor.press("cmdApply", &Window::cmdApply_Click);

  editor.save("  \r\n \r\n\r\nC:\\Temp\\*.tmp >plus subdirectories<\r\nC:\\\xE4.txt\r\nNo entries.\r\nx\r\n",
              "  HKey_Users\\a- Key*\r\nno backslash\r\n", "Info\r\nfirst\r\nsecond\r\n");
  editor.chapter("Opening and saving keeps the entries; the comments grow by a line end");
  editor.open("P");
  editor.press("cmdOK", &Window::cmdOK_Click);
  editor.open("P");
  editor.open("P");

  editor.chapter("What stands before the first missing file is shown");
  editor.pc.platform().files->grip(Folder + "P.zb3")->remove();
  editor.open("P");
  editor.pc.platform().files->grip(Folder + "P.zb2")->remove();
  editor.open("P");

  editor.newPlugin("The folder picker fills the path box unless it is cancelled");
  for (const FolderPick& pick :
       {FolderPick{true, "C:\\Temp"}, FolderPick{}, FolderPick{true, std::nullopt}}) {
    editor.pc.folderPick = pick;
    editor.press("cmdPathBrowse", &Window::cmdPathBrowse_Click);
  }
  checkGolden("editor.txt", editor.story.text);
}

TEST_CASE("a click on a row fills the boxes, forgiving in case") {
  Editor editor;
  for (const char* row : {"C:\\a.txt",
                          "C:\\Temp\\*.tmp",
                          "C:\\Temp\\?.tmp >Plus SUBdirectories< more",
                          "C:\\A.TXT >plus subdirectories<",
                          ">plus subdirectories<C:\\*",
                          "\\",
                          "*.*",
                          "nothing",
                          " no ENTRIES. ",
                          "   ",
                          "HKey_Users\\.DEFAULT\\X\\Y- Key*",
                          "HKEY_USERS\\Y- KEY*",
                          "hkey_local_machine\\A\\e-merge\\Y- Key*",
                          "HKey_Dyn_Data\\A\\B+ value`= n = m",
                          "HKey_Dyn_Data\\A\\B Value`",
                          "HKey_Dyn_Data\\A\\B Key*",
                          "HKEY_CLASSSES_ROOT\\A+ Value`= n",
                          "A\\HKey_Users",
                          "HKey_Users",
                          "- Key*"}) {
    editor.form.cmdCancel_Click();
    editor.save(row, row, "");
    editor.form.ShowPlugin("P");
    for (const auto& [name, box] : boxes) (editor.state.*box).Text = "old";
    editor.state.cmbPathRegistry.ListIndex(1);
    editor.state.cmbRegistry.ListIndex(1);
    if (!hasWildcard(row)) editor.form.optFilePattern_Click();
    editor.state.chkSubfolders.Value(1);
    editor.story.settle();
    editor.story.step(joined({row, "  clicked in the files"}),
                      [&] { editor.state.lstFileFolder.ListIndex(0); });
    editor.story.step("and in the registry", [&] { editor.state.lstRegistry.ListIndex(0); });
  }
  checkGolden("editor-rows.txt", editor.story.text);
}

TEST_CASE("the prompt of the folder picker is trimmed, and has a text of its own") {
  TestPc pc;
  CFolderBrowse picker(*pc.platform().shell);
  for (const auto& [given, shown] : {std::pair{"  Where? ", "Where?"}, {"   ", "Select a folder"}}) {
    picker.Prompt(given);
    picker.Browse();
    CHECK(pc.folderPrompt == shown);
  }
}
