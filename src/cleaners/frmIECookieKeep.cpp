#include "cleaners/frmIECookieKeep.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "cleaners/IECookies.h"
#include "cleaners/LfLine.h"
#include "engine/Engine.h"

namespace zub {

frmIECookieKeep::frmIECookieKeep(Engine& engine) : engine_(engine) {
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
  g_strPath = cookiesFolder(engine_);
  makeIndex();
  CookieRows rows;
  allRead = true;
  try {
    readIECookies(engine_.pc, g_strPath, rows);
  } catch (const RuntimeError& failure) {
    allRead = isMissing(failure);  // a folder that is not there holds nothing
  }
  showRows(rows, lstDelete, lstFiles);
}

// A missing index comes into being empty. Where it cannot be made, the cookies are shown without it.
void frmIECookieKeep::makeIndex() {
  const std::string index = cookieIndexFile(g_strPath);
  try {
    if (!engine_.pc.files->fileExists(index)) engine_.pc.files->open(index, OpenMode::Binary);
  } catch (const RuntimeError&) {
  }
}

void frmIECookieKeep::cmdOK_Click() {
  if (!allRead) return;
  try {
    saveIEKeepList(engine_.pc, g_strPath, rowsOnShow(lstDelete, lstFiles));
    Unload();
  } catch (const RuntimeError&) {
  }
}

void frmIECookieKeep::lstDelete_Click() {
  txtKeep.Text.clear();
  try {
    FileReader file(*engine_.pc.files, g_strPath + lstFiles.List(lstDelete.ListIndex()));
    std::string line;
    while (readLfLine(file, line)) {
      if (!line.empty()) txtKeep.Text.append(line).append(CrLf);
    }
  } catch (const RuntimeError&) {
  }
}

}  // namespace zub
