// The plugin editor without its window: builds the files of a custom plugin from boxes and lists. Not modal;
// a closed window is loaded anew by the next NewPlugin or ShowPlugin, an open one goes on with what it holds.
#pragma once

#include <string>
#include <string_view>

#include "base/Holders.h"
#include "plugins/EditorRows.h"
#include "plugins/PluginFormat.h"
#include "state/Controls.h"
#include "state/Lists.h"

namespace zub {

class Engine;
class Plugins;

struct OptionButton {
  std::string Caption;
  bool Value = false;
};

class frmPluginEditor {
 public:
  // What a load gives anew.
  struct State {
    Form form;

    TextBox txtName;
    Button cmdOK{"&Ok"};
    Button cmdApply{"&Apply"};  // enabled while there is something to save
    Button cmdCancel{"&Cancel"};

    ListRows lstRegistry{ListRows::Order::AsAdded};
    Button cmdRegNew{"New"};
    Button cmdRegRemove{"Remove"};
    Button cmdRegistryAdd{"Add"};
    Combo cmbPathRegistry{editorHives(), CurrentUserRow};
    TextBox txtPath;
    Combo cmbRegistry{{"Key", "Value"}, 0};
    TextBox txtKeyValue;

    ListRows lstFileFolder{ListRows::Order::AsAdded};
    Button cmdFFNew{"New"};
    Button cmdFFRemove{"Remove"};
    Button cmdAddFF{"Add"};
    TextBox txtPathFF;
    Button cmdPathBrowse{"Browse"};
    OptionButton optFileName{"File Name", true};
    OptionButton optFilePattern{"File pattern"};
    TextBox txtFileName;
    TextBox txtFilePattern;
    CheckOption chkSubfolders;
    Button cmdBrowseFile{"", false};  // never visible, does nothing

    TextBox txtInfoPlugin;
    TextBox txtComments;

    // The box that the program has given the focus, until the view has passed it on.
    TextBox State::*focus = nullptr;
  };
  State state;

  Handler RefreshPlugins;  // of the main window, run when OK has closed the editor

  frmPluginEditor(Engine& engine, FirstUse<Plugins>& plugins) : engine_(engine), plugins_(plugins) {}

  void NewPlugin();
  void ShowPlugin(std::string_view name);
  // `base` is the files' path without their extension. Silent where a file is missing: what was read before it stays.
  void OpenFiles(std::string_view base);

  void cmdOK_Click();
  void cmdApply_Click() { SavePlugin(); }
  void cmdCancel_Click() { Unload(); }  // so does the close box

  void cmdRegistryAdd_Click();
  void cmdRegNew_Click() { newRow(state.lstRegistry); }
  void cmdRegRemove_Click() { removeRow(state.lstRegistry); }
  void cmdAddFF_Click();
  void cmdFFNew_Click() { newRow(state.lstFileFolder); }
  void cmdFFRemove_Click() { removeRow(state.lstFileFolder); }
  void cmdPathBrowse_Click();
  void optFileName_Click();
  void optFilePattern_Click();

 private:
  enum class Entry : std::uint8_t { Usable, Disabled };

  void Form_Load();
  void show();
  void Unload();
  int SavePlugin();  // 0, or -1 where the plugin has no name; 0 after failures too
  void lstRegistry_Click();
  void lstFileFolder_Click();
  void SetEntryState(TextBox& box, Entry mode);
  void clearRegistryBoxes();
  void clearFileBoxes();
  void putRow(ListRows& list, std::string_view entry);
  void newRow(ListRows& list);
  void removeRow(ListRows& list);
  void readRows(ListRows& list, std::string_view base, PluginFile file);
  void writeFile(const std::string& base, PluginFile file, std::string_view text);
  bool isBlank(TextBox State::*box, std::string_view message, std::string_view title);

  Engine& engine_;
  FirstUse<Plugins>& plugins_;
  bool loaded_ = false;
};

}  // namespace zub
