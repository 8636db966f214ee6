// "Internet Explorer Cookie Manger": the user ticks the cookies that survive a wash. The same object works
// out, hidden, which cookie files a wash removes. The window stays loaded from its first use on.
//
// A failure of a file ends a routine silently, with the lists as far as they came. Lists that did not come
// whole are never saved over the keep file, and no cookie is removed by them.
#pragma once

#include <string>

#include "state/Controls.h"
#include "state/Lists.h"

namespace zub {

class Engine;

class frmIECookieKeep {
 public:
  Form form;
  std::string g_strPath;  // the Cookies folder and a backslash
  ListRows lstDelete;    // a row per cookie: its site, or its file where the index names none; ticked is kept
  ListRows lstFiles;     // the cookie's file, row by row beside lstDelete
  bool allRead = false;  // the lists hold all that there is: every file could be read
  TextBox txtKeep;       // the file of the row that was clicked
  CheckOption chkSelectAll;

  explicit frmIECookieKeep(Engine& engine);
  frmIECookieKeep(const frmIECookieKeep&) = delete;
  frmIECookieKeep& operator=(const frmIECookieKeep&) = delete;

  void Show();  // loads the window at its first use
  void Form_Load() { LoadValues(); }
  // Builds the lists anew from the disk, and makes an index where there is none.
  void LoadCookies();
  void LoadValues();

  void cmdRefresh_Click() { LoadCookies(); }
  void cmdOK_Click();  // writes the keep file and closes the window; what cannot be saved leaves it open
  void lstDelete_Click();
  void chkSelectAll_Click() { lstDelete.selectAll(chkSelectAll.Value() == 1); }
  void Unload() { form.Hide(); }  // closing only hides

 private:
  void makeIndex();

  Engine& engine_;
  bool loaded_ = false;
};

}  // namespace zub
