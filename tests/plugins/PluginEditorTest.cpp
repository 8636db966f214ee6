#include <doctest/doctest.h>

#include "base/Text.h"
#include "plugins/CFolderBrowse.h"
#include "plugins/Plugins.h"
#include "plugins/frmPluginEditor.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Folder = "C:\\Program Files\\Zubrane\\Plugins\\";
using State = frmPluginEditor::State;

struct Editor : WashFixture {
  FirstUse<Plugins> plugins{[this] { return std::make_unique<Plugins>(engine); }};
  frmPluginEditor form{engine, plugins};
  int refreshes = 0;
  State& state = form.state;

  Editor() {
    form.RefreshPlugins = [this] { ++refreshes; };
  }
  void save(std::string_view zb1, std::string_view zb2, std::string_view zb3) {
    pc.file(Folder + "P.zb1", zb1);
    pc.file(Folder + "P.zb2", zb2);
    pc.file(Folder + "P.zb3", zb3);
  }
  std::string saved(const char* extension) { return pc.bytes(Folder + "P" + extension); }
  void addKey(std::string_view path, std::string_view name, int kind = 0) {
    state.txtPath.Text = path;
    state.txtKeyValue.Text = name;
    state.cmbRegistry.ListIndex(kind);
    form.cmdRegistryAdd_Click();
  }
  void addFile(std::string_view path, std::string_view name) {
    state.txtPathFF.Text = path;
    state.txtFileName.Text = name;
    form.cmdAddFF_Click();
  }
  std::string registryBoxes() {
    return state.cmbPathRegistry.Text() + "|" + state.txtPath.Text + "|" + state.cmbRegistry.Text() + "|" +
           state.txtKeyValue.Text;
  }
  std::string fileBoxes() {
    return state.txtPathFF.Text + "|" + (state.optFileName.Value ? "F|" : "P|") + state.txtFileName.Text +
           "|" + state.txtFilePattern.Text + "|" + (state.chkSubfolders.Value() == 1 ? "sub" : "");
  }
};

// The rows, the current one with ">" in front.
std::string currentIn(const ListRows& list) {
  std::string text;
  for (int row = 0; row < list.ListCount(); ++row) {
    text += (row == list.ListIndex() ? ">" : "") + list.List(row) + ";";
  }
  return text;
}

}  // namespace

TEST_CASE("a new plugin starts with two empty lists and is saved so; the folder is made") {
  Editor editor;
  editor.form.NewPlugin();
  CHECK(editor.state.form.Visible);
  CHECK(editor.state.focus == &State::txtName);
  CHECK(editor.state.cmdApply.Enabled);
  CHECK(editor.registryBoxes() == "HKey_Current_User||Key|");
  CHECK(editor.state.txtFileName.Enabled);
  CHECK(editor.state.chkSubfolders.Enabled);
  CHECK_FALSE(editor.state.txtFilePattern.Enabled);
  CHECK(editor.state.txtFilePattern.BackColor == rgb(235, 235, 228));
  CHECK(editor.state.txtFilePattern.ForeColor == rgb(161, 161, 146));

  editor.state.txtName.Text = "  P ";
  editor.form.cmdApply_Click();
  CHECK(editor.saved(".zb1") == "No entries.\r\n");
  CHECK(editor.saved(".zb2") == "No entries.\r\n");
  CHECK(editor.saved(".zb3") == "\r\n\r\n");
  CHECK_FALSE(editor.state.cmdApply.Enabled);
  CHECK(editor.state.form.Visible);
}

TEST_CASE("OK saves, closes and refreshes only while there is something to save") {
  Editor editor;
  editor.form.NewPlugin();
  editor.form.cmdOK_Click();
  CHECK(editor.told() == "ZUB Plugin Editor: Please specify a name for the plugin;");
  CHECK(editor.state.form.Visible);

  editor.state.txtName.Text = "P";
  editor.form.cmdApply_Click();
  editor.form.cmdFFNew_Click();
  editor.form.cmdOK_Click();
  CHECK(editor.state.form.Visible);
  CHECK(editor.refreshes == 0);

  editor.addFile("C:\\", "a.txt");
  editor.form.cmdOK_Click();
  CHECK_FALSE(editor.state.form.Visible);
  CHECK(editor.refreshes == 1);
  CHECK(editor.saved(".zb1") == "C:\\a.txt\r\n");

  // A save that fails says nothing, and OK closes all the same.
  editor.form.NewPlugin();
  editor.state.txtName.Text = "a|b";
  editor.form.cmdApply_Click();
  CHECK(editor.state.cmdApply.Enabled);
  editor.form.cmdOK_Click();
  CHECK_FALSE(editor.state.form.Visible);
  CHECK(editor.refreshes == 2);
  CHECK(editor.told() == "");
}

TEST_CASE("closing by Cancel saves nothing, and the next opening starts afresh") {
  Editor editor;
  editor.form.NewPlugin();
  editor.state.txtName.Text = "P";
  editor.addFile("C:\\", "a.txt");
  editor.form.cmdCancel_Click();
  CHECK_FALSE(editor.state.form.Visible);
  CHECK_FALSE(editor.pc.hasFile(Folder + "P.zb1"));
  CHECK(editor.refreshes == 0);
  editor.form.NewPlugin();
  CHECK(editor.state.txtName.Text == "");
  CHECK(currentIn(editor.state.lstFileFolder) == "No entries.;");
  editor.form.NewPlugin();
  CHECK(currentIn(editor.state.lstFileFolder) == "No entries.;No entries.;");
}

TEST_CASE("the boxes become rows") {
  struct Case {
    int hive;
    int kind;
    const char* path;
    const char* name;
    const char* row;
  };
  const Case cases[] = {
      {3, 0, " Software\\X ", " Recent ", "HKey_Current_User\\Software\\X\\Recent- Key*"},
      {3, 0, "\\Software\\X\\", "Recent", "HKey_Current_User\\Software\\X\\Recent- Key*"},
      {3, 0, "\\", "Recent", "HKey_Current_User\\Recent- Key*"},
      {0, 1, "X", " a = b ", "HKey_Classes_Root\\X+ Value`= a = b"},
      {1, 1, "X\\", "a", "HKey_Local_Machine\\X\\+ Value`= a"},
  };
  for (const Case& one : cases) {
    Editor editor;
    editor.form.NewPlugin();
    editor.state.cmbPathRegistry.ListIndex(one.hive);
    editor.addKey(one.path, one.name, one.kind);
    CHECK(currentIn(editor.state.lstRegistry) == ">" + std::string(one.row) + ";");
  }

  Editor editor;
  editor.form.NewPlugin();
  editor.addFile(" C:\\Temp ", " a b.txt ");
  CHECK(currentIn(editor.state.lstFileFolder) == ">C:\\Temp\\a b.txt;");
  editor.addFile("C:\\", "");
  CHECK(currentIn(editor.state.lstFileFolder) == ">C:\\;");
  editor.form.optFilePattern_Click();
  editor.state.txtFilePattern.Text = "*.tmp ";
  editor.addFile("C:\\Temp", "unread");
  CHECK(currentIn(editor.state.lstFileFolder) == ">C:\\Temp\\*.tmp;");
  editor.state.chkSubfolders.Value(1);
  for (int time = 0; time < 2; ++time) {
    editor.form.cmdAddFF_Click();
    CHECK(currentIn(editor.state.lstFileFolder) == ">C:\\Temp\\*.tmp >plus subdirectories<;");
  }
}

TEST_CASE("an empty box is told, always, and gets the focus") {
  Editor editor;
  editor.form.NewPlugin();
  editor.state.cmdApply.Enabled = false;
  editor.addKey("  ", "a");
  CHECK(editor.told() == "ZUB Plugin: Path cannot be empty;");
  CHECK(editor.state.focus == &State::txtPath);
  CHECK(editor.state.cmdApply.Enabled);
  editor.addKey("a", " ");
  CHECK(editor.told() == "ZUB Plugin: Key/Value cannot be empty;");
  CHECK(editor.state.focus == &State::txtKeyValue);
  editor.addFile(" ", "a");
  CHECK(editor.told() == "ZUB Plugin: Path cannot be empty;");
  CHECK(editor.state.focus == &State::txtPathFF);
  CHECK(currentIn(editor.state.lstRegistry) == "No entries.;");
}

TEST_CASE("where an added entry goes") {
  Editor editor;
  editor.form.NewPlugin();
  ListRows& list = editor.state.lstFileFolder;
  struct Step {
    int current;  // Keep: as it stands
    const char* name;
    const char* rows;
  };
  constexpr int Keep = -2;
  const auto add = [&](std::initializer_list<Step> steps) {
    for (const Step& step : steps) {
      if (step.current != Keep) list.ListIndex(step.current);
      editor.addFile("C:", step.name);
      CHECK(currentIn(list) == step.rows);
    }
  };
  // The second edits the current row; the third meets a single row that is not current, and is dropped.
  add({{Keep, "a", ">C:\\a;"}, {Keep, "b", ">C:\\b;"}, {-1, "c", "C:\\b;"}});
  editor.form.cmdFFNew_Click();
  CHECK(currentIn(list) == "C:\\b;>;");
  CHECK(editor.fileBoxes() == "|F|||");
  add({{Keep, "c", "C:\\b;>C:\\c;"}, {-1, "d", "C:\\b;C:\\c;>C:\\d;"}, {1, "e", "C:\\b;>C:\\e;C:\\d;"}});

  for (const char* rows : {">C:\\b;C:\\d;", "C:\\d;", "C:\\d;"}) {
    editor.form.cmdFFRemove_Click();
    CHECK(currentIn(list) == rows);
  }
  list.ListIndex(0);
  editor.form.cmdFFRemove_Click();
  CHECK(currentIn(list) == "");
  add({{Keep, "f", ">C:\\f;"}});
}

TEST_CASE("New replaces the mark for no entries, in any case") {
  Editor editor;
  editor.save(" NO ENTRIES. \r\n", "no entries.", "");
  editor.form.ShowPlugin("P");
  editor.form.cmdFFNew_Click();
  editor.addKey("Software", "X");
  editor.form.cmdRegNew_Click();
  CHECK(currentIn(editor.state.lstFileFolder) == ">;");
  CHECK(currentIn(editor.state.lstRegistry) == "HKey_Current_User\\Software\\X- Key*;>;");
  CHECK(editor.registryBoxes() == "HKey_Current_User||Key|");
  editor.state.cmdApply.Enabled = true;
  editor.form.cmdApply_Click();
  CHECK(editor.saved(".zb1") == "");
  CHECK(editor.saved(".zb2") == "HKey_Current_User\\Software\\X- Key*\r\n");
}

TEST_CASE("a click on a file row fills the boxes") {
  constexpr const char* untouched = "old|F|old||";
  const std::pair<const char*, const char*> cases[] = {
      {"C:\\a.txt", "C:|F|a.txt||"},
      {"C:\\Temp\\*.tmp", "C:\\Temp|P||*.tmp|"},
      {"C:\\Temp\\?.tmp >Plus SUBdirectories< more", "C:\\Temp|P||?.tmp |sub"},
      {"C:\\A.TXT >plus subdirectories<", "C:|F|A.TXT >plus subdirectories<||"},
      {">plus subdirectories<C:\\*", "|P|||sub"},
      {"\\", "|F|||"},
      {"*.*", untouched},
      {"nothing", untouched},
      {" no ENTRIES. ", untouched},
      {"   ", "|F|||"},
  };
  for (const auto& [row, boxes] : cases) {
    CAPTURE(row);
    Editor editor;
    editor.save(row, "", "");
    editor.form.ShowPlugin("P");
    editor.state.txtPathFF.Text = editor.state.txtFileName.Text = "old";
    const bool pattern = contains(boxes, "|P|");
    const bool turned = boxes != std::string_view(untouched) && !trim(row).empty();
    if (turned && pattern) editor.form.optFileName_Click();
    if (turned && !pattern) editor.form.optFilePattern_Click();
    editor.state.lstFileFolder.ListIndex(0);
    CHECK(editor.fileBoxes() == boxes);
    CHECK(editor.state.txtFilePattern.Enabled == editor.state.optFilePattern.Value);
    CHECK(editor.state.txtFileName.Enabled == editor.state.optFileName.Value);
    if (!turned) continue;
    CHECK(editor.state.chkSubfolders.Enabled == editor.state.optFilePattern.Value);
    CHECK(editor.state.cmdBrowseFile.Enabled == editor.state.optFileName.Value);
  }
}

TEST_CASE("a click on a registry row fills the boxes, forgiving in case") {
  const std::pair<const char*, const char*> cases[] = {
      {"HKey_Users\\.DEFAULT\\X\\Y- Key*", "HKey_Users|.DEFAULT\\X|Key|Y"},
      {"HKEY_USERS\\Y- KEY*", "HKey_Users||Key|Y"},
      {"hkey_local_machine\\A\\e-merge\\Y- Key*", "HKey_Local_Machine|A|Key|e"},
      {"HKey_Dyn_Data\\A\\B+ value`= n = m", "HKey_Dyn_Data|A\\B|Value|n = m"},
      {"HKey_Dyn_Data\\A\\B Value`", "HKey_Dyn_Data|A\\B Value`|Value|A\\B Value`"},
      {"HKey_Dyn_Data\\A\\B Key*", "HKey_Dyn_Data|A|Key|B Key*"},
      {"HKEY_CLASSSES_ROOT\\A+ Value`= n", "HKey_Local_Machine|HKEY_CLASSSES_ROOT\\A|Value|n"},
      {"A\\HKey_Users", "HKey_Users|HKey_Users|Value|old"},
      {"HKey_Users", "HKey_Users|HKey_Users|Value|old"},
      {"- Key*", "HKey_Local_Machine||Key|"},
      {"  ", "HKey_Current_User|  |Key|"},
      {"No entries.", "HKey_Local_Machine|old|Value|old"},
  };
  for (const auto& [row, boxes] : cases) {
    CAPTURE(row);
    Editor editor;
    editor.save("", row, "");
    editor.form.ShowPlugin("P");
    editor.state.cmbPathRegistry.ListIndex(1);
    editor.state.cmbRegistry.ListIndex(1);
    editor.state.txtPath.Text = editor.state.txtKeyValue.Text = "old";
    editor.state.lstRegistry.ListIndex(0);
    CHECK(editor.registryBoxes() == boxes);
  }
}

TEST_CASE("opening and saving without a change keeps the entries; the comments grow by a line end") {
  Editor editor;
  const std::string files = "C:\\Temp\\*.tmp >plus subdirectories<\r\nC:\\\xE4.txt\r\nNo entries.\r\nx\r\n";
  const std::string keys = "HKey_Users\\a- Key*\r\nno backslash\r\n";
  editor.save("   \r\n \r\n\r\n" + files, "  " + keys, "Info\r\nfirst\r\nsecond\r\n");
  editor.form.ShowPlugin("P");
  CHECK(editor.state.txtName.Text == "P");
  CHECK(editor.state.txtInfoPlugin.Text == "Info");
  CHECK(editor.state.txtComments.Text == "first\r\nsecond\r\n");
  CHECK(editor.state.lstFileFolder.ListCount() == 7);
  editor.form.cmdOK_Click();
  CHECK(editor.saved(".zb1") == files);
  CHECK(editor.saved(".zb2") == keys);
  CHECK(editor.saved(".zb3") == "Info\r\nfirst\r\nsecond\r\n\r\n");
  editor.form.ShowPlugin("P");
  editor.form.ShowPlugin("P");  // on the open window the comments are appended
  CHECK(editor.state.txtComments.Text == "first\r\nsecond\r\n\r\nfirst\r\nsecond\r\n\r\n");
  CHECK(editor.state.lstFileFolder.ListCount() == 4);
}

TEST_CASE("opening shows what can be read before the first missing file") {
  Editor editor;
  editor.pc.file(Folder + "P.zb1", "C:\\a.txt");
  editor.form.ShowPlugin("P");
  CHECK(currentIn(editor.state.lstFileFolder) == "");
  editor.pc.file(Folder + "P.zb2", "x");
  editor.form.ShowPlugin("P");
  CHECK(currentIn(editor.state.lstFileFolder) == "C:\\a.txt;");
  editor.form.ShowPlugin("none");
  CHECK(currentIn(editor.state.lstRegistry) == "");
}

TEST_CASE("the folder picker fills the path box unless it is cancelled; its prompt is trimmed") {
  Editor editor;
  editor.form.NewPlugin();
  for (const FolderPick& pick :
       {FolderPick{true, "C:\\Temp"}, FolderPick{}, FolderPick{true, std::nullopt}}) {
    editor.pc.folderPick = pick;
    editor.form.cmdPathBrowse_Click();
    CHECK(editor.pc.folderPrompt == "Find the Folder");
    CHECK(editor.state.txtPathFF.Text == "C:\\Temp");
  }

  CFolderBrowse picker(*editor.pc.platform().shell);
  picker.Prompt("  Where? ");
  CHECK(picker.Prompt() == "Where?");
  picker.Prompt("   ");
  picker.Browse();
  CHECK(editor.pc.folderPrompt == "Select a folder");
  CHECK(picker.Path() == "");
}
