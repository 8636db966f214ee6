// "Netscape Cookie Manger": finds the profiles, shows the cookies of one as a check list and keeps the ticked ones in
// the profile's keep file; a wash rewrites the cookie files by it. The window stays loaded from its first use on.
//
// A failure of a file ends a routine silently, with what it did so far. Lists that did not come whole are never
// saved over a keep file or a cookie file. Routines that run while no profile is chosen write their keep file
// to the root of the current drive.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "state/Controls.h"
#include "state/Lists.h"

namespace zub {

class Engine;
class Files;

class frmNSCookieKeep {
 public:
  Form form;
  Combo cmbProfile;     // the profiles' names
  Combo cmbSelect;      // the profiles' folders, beside cmbProfile; never visible
  ListRows lstDelete;   // a row per cookie: its domain and a tab; ticked is kept
  ListRows lstCookies;  // the cookie's line, row by row beside lstDelete
  std::array<Label, 2> lblKeep{Label{"Cookies that are selected will not be deleted."},
                               Label{"Select one of your Netscape profiles"}};
  TextBox txtKeep;  // name and value of the cookie that was clicked
  CheckOption chkSelectAll;
  bool NS6Exists = false;  // the last scan found a profile

  explicit frmNSCookieKeep(Engine& engine);
  frmNSCookieKeep(const frmNSCookieKeep&) = delete;
  frmNSCookieKeep& operator=(const frmNSCookieKeep&) = delete;

  // The profiles and the ticks of another one, read from the disk or not yet saved.
  void takeOver(const frmNSCookieKeep& other);

  void Load();  // loads the window, the first time only
  void Show();
  void Form_Load() { LoadProfiles(); }

  // Ticks the rows on show that the folder's keep file names, and clears none.
  void SelectNS6(std::string_view Folder);
  // Writes the folder's keep file from the ticks on show.
  void SaveNS6(std::string_view Folder);
  // Writes the folder's cookie file anew from the ticked rows on show: all other lines are gone.
  void CleanCookieNS6(std::string_view Folder);
  // Removes, in every profile, what the options say: history, cookies, cache, deleted mail.
  void CleanNS6();

  // Reads the profiles again. Names are added to those that are there, so that each stands once more.
  void cmdRefresh_Click() { LoadProfiles(); }
  void cmdOK_Click() { Unload(); }
  void cmbProfile_Click();
  void lstDelete_Click();
  void chkSelectAll_Click() { lstDelete.selectAll(chkSelectAll.Value() == 1); }
  void Unload() { form.Hide(); }  // closing only hides; the next SaveNS6 keeps the ticks

 private:
  void LoadProfiles();
  void findProfiles();
  Files& files() const;
  void LoadCookieLines(std::string_view Folder);
  void chooseFolderOfProfile();
  void cleanProfile(const std::string& Folder);

  Engine& engine_;
  bool loaded_ = false;
  bool allRead_ = true;  // the rows on show and their ticks are all that there is
};

}  // namespace zub
