// The main window without its window: the start and the end of the program, the triggers of a wash, and what
// each control does. The options themselves are in state/Options.h, the work is in the rooms below.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "cleaners/frmIECookieKeep.h"
#include "cleaners/frmNSCookieKeep.h"
#include "engine/Engine.h"
#include "plugins/Catalogue.h"
#include "plugins/Plugins.h"
#include "plugins/frmPluginEditor.h"
#include "scheduler/AutomaticInterval.h"
#include "scheduler/DatedEntries.h"
#include "scheduler/frmIcon.h"
#include "ui/OptionHelp.h"
#include "ui/frmPreview.h"

namespace zub {

// Why a window is asked to close, by the classic runtime's numbers.
enum class UnloadMode : std::uint8_t { ControlMenu = 0, Code = 1, WindowsEnds = 2 };

// The other objects that the main window works with; they outlive it.
struct MainParts {
  Engine& engine;
  FirstUse<Plugins>& plugins;
  const Catalogue& catalogue;
  FirstUse<frmPluginEditor>& editor;
  FirstUse<frmIECookieKeep>& ieCookies;
  FirstUse<frmNSCookieKeep>& nsCookies;
  frmIcon& icon;
};

class frmMain : public WashOwner {
 public:
  explicit frmMain(const MainParts& parts);

  Form form;
  Options& options;
  AutomaticInterval automatic;
  DatedEntries dated;
  frmPreview preview;
  Label lblHelp;
  Label lblOptionsHelp;
  Label lblSchedulerHelp;
  Label lblStandardPluginDescription{"Please select a plugin to see the description"};
  Group grpIE{"Internet Explorer"};
  Group grpNS{"Netscape", false};
  Button cmdViewLog{"&View Log", false};
  CheckOption chkSelectAll;
  CheckOption StandardPluginsSelectAll;
  bool WasVisible = false;
  Handler showAbout;   // modally; none on a PC without windows
  Handler runPreview;  // to its end, with turns of the event loop

  // The program's start. A wash that the command line asks for runs to its end inside, before the list of
  // standard plugins is filled. Ends the process where another instance runs.
  void Form_Load();
  void Press_Clean() { cmdRemove_Click(); }
  void cmdRemove_Click();
  // The window takes no input until the preview is over. A wash that begins meanwhile stops it.
  void cmdPreview_Click();

  void Enable() override { form.Enabled = true; }
  void FinishedCleaning() override;

  // Asked before the window closes; at the end of the Windows session a whole wash may run in it.
  void QueryUnload(UnloadMode mode);
  // Saves the settings and ends the process: does not return.
  void Unload() override;
  void Form_Resize();  // a minimised window goes to the tray

  void RefreshPlugins();  // reads the plugin folder again, keeping the check marks
  void ShowTab(int tab);  // shows the window unless a wash runs; the tab stays

  void SSTab1_Click();
  void LstIcons_ClickSelect(int row);
  void LstIcons_ClickCheck(int row);
  void cmdViewLog_Click() { engine_.clean.form.Show(); }
  void cmdHelp_Click();
  void cmdAbout_Click() { raise(showAbout); }
  void cmdIECookie_Click() { parts_.ieCookies->Show(); }
  void cmdNSKeep_Click() { parts_.nsCookies->Show(); }
  void cmdRefresh_Click() { RefreshPlugins(); }
  void cmdDownload_Click();
  void cmdEditOptions_Click();
  void cmdNewPlugin_Click() { parts_.editor->NewPlugin(); }
  void cmdRemovePlugin_Click() { parts_.plugins->RemovePlugin(); }
  void standardlist_Click();

 private:
  void RefreshPluginList();
  bool ApplyStartMode();    // whether the window is to stay hidden
  void FillStandardList();  // and ticks the rows that were ticked
  void wireOptions();
  Label& helpLabel(HelpLabel which);
  void rowTouched(int row, std::string_view text);
  void writeStartupEntry();

  MainParts parts_;
  Engine& engine_;
};

}  // namespace zub
