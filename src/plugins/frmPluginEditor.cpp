#include "plugins/frmPluginEditor.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "engine/Engine.h"
#include "platform/FileReader.h"
#include "plugins/CFolderBrowse.h"
#include "plugins/Plugins.h"

namespace zub {
namespace {

constexpr std::string_view BoxTitle = "ZUB Plugin";

// The rows that are worth a line in a file.
std::string linesOf(const ListRows& list) {
  std::string lines;
  for (int row = 0; row < list.ListCount(); ++row) {
    const std::string_view entry = trim(list.List(row));
    if (entry.empty()) continue;
    lines += entry;
    lines += CrLf;
  }
  return lines;
}

}  // namespace

void frmPluginEditor::Form_Load() {
  state = State{};
  state.lstRegistry.Click = [this] { lstRegistry_Click(); };
  state.lstFileFolder.Click = [this] { lstFileFolder_Click(); };
  SetEntryState(state.txtFilePattern, Entry::Disabled);
}

void frmPluginEditor::show() {
  if (!loaded_) Form_Load();
  loaded_ = true;
  state.form.Show();
}

void frmPluginEditor::Unload() {
  state.form.Hide();
  loaded_ = false;
}

void frmPluginEditor::NewPlugin() {
  show();
  state.lstRegistry.AddItem(NoEntries);
  state.lstFileFolder.AddItem(NoEntries);
  state.focus = &State::txtName;
}

void frmPluginEditor::ShowPlugin(std::string_view name) {
  show();
  state.txtName.Text = name;
  OpenFiles(plugins_->baseOf(name));
}

void frmPluginEditor::OpenFiles(std::string_view base) {
  state.lstRegistry.Clear();
  state.lstFileFolder.Clear();
  try {
    readRows(state.lstRegistry, base, PluginFile::Registry);
    readRows(state.lstFileFolder, base, PluginFile::Files);
    FileReader file(*engine_.pc.files, std::string(base) += extensionOf(PluginFile::Comments));
    std::string line;
    if (file.line(line)) state.txtInfoPlugin.Text = line;
    while (file.line(line)) (state.txtComments.Text += line) += CrLf;
  } catch (const RuntimeError&) {
    // What could be read is shown.
  }
}

void frmPluginEditor::readRows(ListRows& list, std::string_view base, PluginFile which) {
  FileReader file(*engine_.pc.files, std::string(base) += extensionOf(which));
  std::string line;
  while (file.line(line)) list.AddItem(line);
}

int frmPluginEditor::SavePlugin() {
  if (isBlank(&State::txtName, "Please specify a name for the plugin", "ZUB Plugin Editor")) return -1;
  try {
    Plugins& plugins = *plugins_;
    plugins.MakeFolder();
    const std::string base = plugins.baseOf(trim(state.txtName.Text));
    writeFile(base, PluginFile::Registry, linesOf(state.lstRegistry));
    writeFile(base, PluginFile::Files, linesOf(state.lstFileFolder));
    std::string comments = state.txtInfoPlugin.Text;
    comments += CrLf;
    comments += state.txtComments.Text;
    comments += CrLf;
    writeFile(base, PluginFile::Comments, comments);
    state.cmdApply.Enabled = false;
  } catch (const RuntimeError&) {
    // Told to nobody: OK closes the window as if all had gone well.
  }
  return 0;
}

void frmPluginEditor::writeFile(const std::string& base, PluginFile file, std::string_view text) {
  engine_.pc.files->replace(base + std::string(extensionOf(file)), text);
}

void frmPluginEditor::cmdOK_Click() {
  if (!state.cmdApply.Enabled || SavePlugin() != 0) return;
  Unload();
  raise(RefreshPlugins);
}

void frmPluginEditor::cmdRegistryAdd_Click() {
  state.cmdApply.Enabled = true;
  if (isBlank(&State::txtPath, "Path cannot be empty", BoxTitle)) return;
  if (isBlank(&State::txtKeyValue, "Key/Value cannot be empty", BoxTitle)) return;
  const RegistryKind kind = state.cmbRegistry.ListIndex() == 0 ? RegistryKind::Key : RegistryKind::Value;
  putRow(state.lstRegistry,
         registryRow(state.cmbPathRegistry.Text(), state.txtPath.Text, kind, state.txtKeyValue.Text));
}

// An empty name or pattern passes: the entry then ends in a backslash.
void frmPluginEditor::cmdAddFF_Click() {
  state.cmdApply.Enabled = true;
  if (isBlank(&State::txtPathFF, "Path cannot be empty", BoxTitle)) return;
  putRow(state.lstFileFolder,
         fileRow({state.txtPathFF.Text, state.txtFileName.Text, state.txtFilePattern.Text,
                  state.optFilePattern.Value, state.chkSubfolders.Value() == 1}));
}

void frmPluginEditor::cmdPathBrowse_Click() {
  CFolderBrowse picker(*engine_.pc.shell);
  picker.Prompt("Find the Folder");
  state.form.Enabled = false;  // the picker has no owner of its own to hold still
  picker.Browse();
  state.form.Enabled = true;
  state.form.Show();
  if (!picker.Path().empty()) state.txtPathFF.Text = picker.Path();
}

void frmPluginEditor::optFileName_Click() {
  state.optFileName.Value = true;
  state.optFilePattern.Value = false;
  state.chkSubfolders.Enabled = false;
  SetEntryState(state.txtFileName, Entry::Usable);
  SetEntryState(state.txtFilePattern, Entry::Disabled);
  state.cmdBrowseFile.Enabled = true;
}

void frmPluginEditor::optFilePattern_Click() {
  state.optFilePattern.Value = true;
  state.optFileName.Value = false;
  state.cmdBrowseFile.Enabled = false;
  SetEntryState(state.txtFileName, Entry::Disabled);
  SetEntryState(state.txtFilePattern, Entry::Usable);
  state.chkSubfolders.Enabled = true;
}

void frmPluginEditor::lstRegistry_Click() {
  const std::string row = state.lstRegistry.Text();
  const CodePage& codePage = *engine_.pc.codePage;
  if (isNoEntries(codePage, row)) return;
  if (trim(row).empty()) clearRegistryBoxes();
  const RegistryBoxes boxes = registryBoxes(codePage, row);
  if (boxes.hive) state.cmbPathRegistry.ListIndex(static_cast<int>(*boxes.hive));
  if (boxes.kind) state.cmbRegistry.ListIndex(*boxes.kind == RegistryKind::Key ? 0 : 1);
  if (boxes.keyValue) state.txtKeyValue.Text = *boxes.keyValue;
  state.txtPath.Text = boxes.path;
}

void frmPluginEditor::lstFileFolder_Click() {
  const std::string row = state.lstFileFolder.Text();
  if (trim(row).empty()) clearFileBoxes();
  const std::optional<FileBoxes> boxes = fileBoxes(*engine_.pc.codePage, row);
  if (!boxes) return;
  if (boxes->byPattern) {
    optFilePattern_Click();
  } else {
    optFileName_Click();
  }
  state.txtFileName.Text = boxes->name;
  state.txtFilePattern.Text = boxes->pattern;
  state.chkSubfolders.Value(boxes->subfolders ? 1 : 0);
  state.txtPathFF.Text = boxes->folder;
}

void frmPluginEditor::SetEntryState(TextBox& box, Entry mode) {
  const bool usable = mode == Entry::Usable;
  box.Enabled = usable;
  box.BackColor = usable ? colors::White : colors::DisabledBack;
  box.ForeColor = usable ? colors::Black : colors::DisabledText;
}

void frmPluginEditor::clearRegistryBoxes() {
  state.txtPath.Text.clear();
  state.txtKeyValue.Text.clear();
  state.cmbPathRegistry.ListIndex(CurrentUserRow);
  state.cmbRegistry.ListIndex(0);
}

void frmPluginEditor::clearFileBoxes() {
  state.txtPathFF.Text.clear();
  state.txtFileName.Text.clear();
  state.txtFilePattern.Text.clear();
  state.chkSubfolders.Value(0);
}

// Edits the current row. Without one the entry is added; but a single row that is not current takes it only
// where it stands for the empty list, and otherwise drops it.
void frmPluginEditor::putRow(ListRows& list, std::string_view entry) {
  int row = list.ListIndex();
  if (row == -1) {
    if (list.ListCount() != 1) {
      list.AddItem(entry);
      list.ListIndex(list.ListCount() - 1);
      return;
    }
    if (!isNoEntries(*engine_.pc.codePage, list.List(0))) return;
    row = 0;
  }
  list.RemoveItem(row);
  list.AddItem(entry, row);
  list.ListIndex(row);
}

// The new row's click clears the boxes.
void frmPluginEditor::newRow(ListRows& list) {
  if (list.ListCount() == 1 && isNoEntries(*engine_.pc.codePage, list.List(0))) list.RemoveItem(0);
  list.AddItem("");
  list.ListIndex(list.ListCount() - 1);
}

void frmPluginEditor::removeRow(ListRows& list) {
  const int row = list.ListIndex();
  if (row == -1) return;
  list.RemoveItem(row);
  if (list.ListCount() > 0) list.ListIndex(row - 1);
}

bool frmPluginEditor::isBlank(TextBox State::*box, std::string_view message, std::string_view title) {
  if (!trim((state.*box).Text).empty()) return false;
  engine_.userFunctions.ShowMessage(message, 0, title, false);
  state.focus = box;
  return true;
}

}  // namespace zub
