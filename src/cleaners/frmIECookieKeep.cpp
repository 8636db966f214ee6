#include "cleaners/frmIECookieKeep.h"

#include <unordered_set>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "cleaners/IECookieIndex.h"
#include "cleaners/LfLine.h"
#include "cleaners/UnclaimedFiles.h"
#include "engine/Engine.h"
#include "engine/ShellFolder.h"

namespace zub {

frmIECookieKeep::frmIECookieKeep(Engine& engine)
    : flList(engine.pc, "*.txt", FileLister::Hidden::Skip), engine_(engine) {
  lstDelete.Click = [this] { lstDelete_Click(); };
  chkSelectAll.Click = [this] { chkSelectAll_Click(); };
}

void frmIECookieKeep::Show() {
  if (!loaded_) Form_Load();
  form.Show();
}

void frmIECookieKeep::LoadValues() {
  loaded_ = true;
  LoadCookies();
  form.mousePointer = MousePointer::Default;
}

void frmIECookieKeep::LoadCookies() {
  try {
    listCookies();
    tickKept();
  } catch (const RuntimeError&) {
  }
}

void frmIECookieKeep::listCookies() {
  g_strPath = shellFolder(engine_, "Cookies") + "\\";
  lstDelete.Clear();
  lstFiles.Clear();
  flList.path(g_strPath);
  IECookieIndex index(engine_.pc.files, g_strPath + "index.dat");
  UnclaimedFiles lstTemp(engine_.pc.codePage, flList.names());
  IECookie cookie;
  while (index.next(cookie)) {
    if (lstTemp.claim(trim(cookie.file))) addRow(cookie.site, cookie.file);
  }
  lstTemp.forEach([this](const std::string& name) { addRow(name, name); });
}

void frmIECookieKeep::tickKept() {
  const auto comparable = [this](std::string_view text) { return engine_.pc.codePage.upper(trim(text)); };
  std::unordered_set<std::string> lstChecked;
  FileReader file(engine_.pc.files, keepFile());
  std::string line;
  while (file.line(line)) lstChecked.insert(comparable(line));
  if (lstChecked.empty()) return;
  for (int row = 0; row < lstDelete.ListCount(); ++row) {
    if (lstChecked.contains(comparable(lstDelete.List(row)))) lstDelete.Selected(row, true);
  }
}

void frmIECookieKeep::addRow(std::string_view shown, std::string_view file) {
  lstDelete.AddItem(shown);
  lstFiles.AddItem(file);
}

std::string frmIECookieKeep::keepFile() const {
  return g_strPath + "ZUBKeep.inf";
}

void frmIECookieKeep::cmdOK_Click() {
  try {
    const auto file = engine_.pc.files.open(keepFile(), OpenMode::Output);
    for (int row = 0; row < lstDelete.ListCount(); ++row) {
      if (!lstDelete.Selected(row)) continue;
      file->write(lstDelete.List(row));
      file->write(CrLf);
    }
    file->close();
    Unload();
  } catch (const RuntimeError&) {
  }
}

void frmIECookieKeep::lstDelete_Click() {
  txtKeep.Text.clear();
  try {
    FileReader file(engine_.pc.files, g_strPath + lstFiles.List(lstDelete.ListIndex()));
    std::string line;
    while (readLfLine(file, line)) {
      if (!line.empty()) txtKeep.Text.append(line).append(CrLf);
    }
  } catch (const RuntimeError&) {
  }
}

void frmIECookieKeep::chkSelectAll_Click() {
  lstDelete.selectAll(chkSelectAll.Value() == 1);
}

}  // namespace zub
