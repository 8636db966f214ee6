// "Internet Explorer Cookie Manger": the user ticks the cookies that survive a wash. The same object works
// out, hidden, which cookie files a wash removes. The window stays loaded from its first use on.
//
// What is kept stands in ZUBKeep.inf beside the cookies: the texts of the ticked rows, one a line, CR LF.
// A failure of a file ends a routine silently, with the lists as far as they came.
#pragma once

#include <string>
#include <string_view>

#include "engine/FileLister.h"
#include "state/Controls.h"
#include "state/Lists.h"

namespace zub {

class Engine;

class frmIECookieKeep {
 public:
  Form form;
  std::string g_strPath;  // the Cookies folder and a backslash
  ListRows lstDelete;  // a row per cookie: its site, or its file where the index names none; ticked is kept
  ListRows lstFiles;   // the cookie's file, row by row beside lstDelete
  FileLister flList;   // the folder's "*.txt"
  TextBox txtKeep;     // the file of the row that was clicked
  CheckOption chkSelectAll;

  explicit frmIECookieKeep(Engine& engine);
  frmIECookieKeep(const frmIECookieKeep&) = delete;
  frmIECookieKeep& operator=(const frmIECookieKeep&) = delete;

  void Show();  // loads the window at its first use
  void Form_Load() { LoadValues(); }
  // Builds the lists anew from the disk: the folder's "*.txt", the index, the keep file. Only a name that the
  // folder itself lists becomes a row, whatever the index says.
  void LoadCookies();
  void LoadValues();

  void cmdRefresh_Click() { LoadCookies(); }
  void cmdOK_Click();  // writes the keep file and closes the window; a failed write leaves it open
  void lstDelete_Click();
  void chkSelectAll_Click();
  void Unload() { form.Hide(); }  // closing only hides

 private:
  void listCookies();
  void tickKept();
  void addRow(std::string_view shown, std::string_view file);
  std::string keepFile() const;

  Engine& engine_;
  bool loaded_ = false;
};

}  // namespace zub
