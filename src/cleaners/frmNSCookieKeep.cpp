#include "cleaners/frmNSCookieKeep.h"

#include <unordered_set>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "cleaners/LfLine.h"
#include "cleaners/NetscapeCookies.h"
#include "engine/Engine.h"
#include "engine/ShellFolder.h"

namespace zub {
namespace {

constexpr std::string_view KeepFile = "ZUBKeepNS6.inf";
constexpr const char* CookieFile = "\\Cookies.txt";
constexpr std::string_view ProfileMark = ".slt";

}  // namespace

frmNSCookieKeep::frmNSCookieKeep(Engine& engine) : engine_(engine) {
  cmbProfile.Click = [this] { cmbProfile_Click(); };
  lstDelete.Click = [this] { lstDelete_Click(); };
  chkSelectAll.Click = [this] { chkSelectAll_Click(); };
}

void frmNSCookieKeep::Load() {
  if (loaded_) return;
  loaded_ = true;
  Form_Load();
}

void frmNSCookieKeep::Show() {
  Load();
  form.Show();
}

void frmNSCookieKeep::LoadProfiles() {
  cmbSelect.Clear();
  try {
    findProfiles();
    NS6Exists = true;
    // The click runs while no folder is chosen. Without a profile the choice fails.
    cmbProfile.ListIndex(0);
    cmbSelect.ListIndex(0);
  } catch (const RuntimeError&) {
    NS6Exists = false;
    lblKeep[1].Caption = "Cannot find a copy of Netscape 6.x";
    cmbProfile.Enabled = false;  // for good: a later scan does not enable it
  }
}

// The browser's registry file is taken as texts that end in NULs; those with the mark are profile folders. A
// missing file comes into being empty.
void frmNSCookieKeep::findProfiles() {
  FileReader registry(engine_.pc.files, shellFolder(engine_, "AppData") + "\\Mozilla\\Registry.dat",
                      OpenMode::Binary);
  std::string text;
  for (int c = registry.get(); c != -1; c = registry.get()) {
    if (c != 0) {
      text += static_cast<char>(c);
      continue;
    }
    if (contains(text, ProfileMark) && HasCookieFile(text)) {
      cmbSelect.AddItem(text);
      cmbProfile.AddItem(lastPathPart(withoutLastPathPart(text)));
    }
    text.clear();
  }
}

bool frmNSCookieKeep::HasCookieFile(const std::string& Folder) {
  try {
    engine_.pc.files.open(Folder + CookieFile, OpenMode::Input);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

void frmNSCookieKeep::LoadCookieLines(const std::string& Folder) {
  lstDelete.Clear();
  lstCookies.Clear();
  try {
    FileReader file(engine_.pc.files, Folder + CookieFile);
    std::string line;
    while (readLfLine(file, line)) {
      if (!isNetscapeCookie(line)) continue;
      lstDelete.AddItem(netscapeDomain(line));
      lstCookies.AddItem(line);
    }
  } catch (const RuntimeError&) {
  }
}

void frmNSCookieKeep::SelectNS6(std::string_view Folder) {
  std::unordered_set<std::string> kept;
  try {
    FileReader file(engine_.pc.files, withBackslash(Folder).append(KeepFile));
    std::string field;
    while (readKeepField(file, field)) kept.insert(field);
  } catch (const RuntimeError&) {
  }
  // A row's text ends in its only tab, so domain and name both agree where the joined texts do.
  std::string cookie;
  for (int row = 0; row < lstDelete.ListCount(); ++row) {
    cookie.assign(lstDelete.List(row)).append(nameAndValue(lstCookies.List(row)).name);
    if (kept.contains(cookie)) lstDelete.Selected(row, true);
  }
}

void frmNSCookieKeep::SaveNS6(std::string_view Folder) {
  writeTicked(withBackslash(Folder).append(KeepFile), [this](int row) {
    return std::string(lstDelete.List(row))
        .append(trim(nameAndValue(lstCookies.List(row)).name))
        .append(CrLf);
  });
}

void frmNSCookieKeep::CleanCookieNS6(std::string_view Folder) {
  writeTicked(withBackslash(Folder).append(CookieFile),
              [this](int row) { return lstCookies.List(row) + "\n"; });
}

void frmNSCookieKeep::writeTicked(const std::string& path, const std::function<std::string(int)>& lineOf) {
  try {
    const auto file = engine_.pc.files.open(path, OpenMode::Output);
    for (int row = 0; row < lstDelete.ListCount(); ++row) {
      if (lstDelete.Selected(row)) file->write(lineOf(row));
    }
    file->close();
  } catch (const RuntimeError&) {
  }
}

void frmNSCookieKeep::CleanNS6() {
  Load();
  const int profile = cmbProfile.ListIndex();
  SaveNS6(cmbSelect.List(profile));
  // Removals give the window system turns, in which the profiles may be read again.
  for (int row = 0; row < cmbSelect.ListCount(); ++row) cleanProfile(std::string(cmbSelect.List(row)));
  cmbProfile.ListIndex(profile);
}

void frmNSCookieKeep::cleanProfile(const std::string& Folder) {
  const Options& options = engine_.options;
  Delete& deleter = *engine_.deleter;
  if (options.chkNSHistory.Value() == 1) {
    deleter.DeleteFile(Folder + "\\history.dat", 0);
    deleter.DeleteFile(Folder + "\\history.mab", 0);
  }
  if (options.chkNSCookies.Value() == 1) {
    engine_.clean.AddItem("\tRemoving cookies");
    LoadCookieLines(Folder);
    chooseFolderOfProfile();
    SelectNS6(Folder);
    CleanCookieNS6(Folder);
  }
  if (options.chkNSCache.Value() == 1) {
    deleter.DeleteFolder(Folder + "\\Cache", "*.*");
    deleter.DeleteFolder(Folder + "\\NewCache", "*.*");
  }
  if (options.chkNSMail.Value() == 1) {
    deleter.DeleteFolder(Folder + "\\Mail", "Trash.");
    deleter.DeleteFolder(Folder + "\\Mail", "Trash.msf");
  }
}

// A name that a refresh repeated has no folder beside it: then none is chosen.
void frmNSCookieKeep::chooseFolderOfProfile() {
  const int profile = cmbProfile.ListIndex();
  cmbSelect.ListIndex(profile < cmbSelect.ListCount() ? profile : -1);
}

void frmNSCookieKeep::cmbProfile_Click() {
  SaveNS6(cmbSelect.Text());  // still the profile that was on show
  txtKeep.Text.clear();
  LoadCookieLines(cmbSelect.List(cmbProfile.ListIndex()));
  chooseFolderOfProfile();
  SelectNS6(cmbSelect.Text());
}

void frmNSCookieKeep::lstDelete_Click() {
  if (lstDelete.ListIndex() == -1) return;
  const NetscapeCookie cookie = nameAndValue(lstCookies.List(lstDelete.ListIndex()));
  txtKeep.Text.assign(cookie.name).append(CrLf).append(cookie.value);
}

void frmNSCookieKeep::chkSelectAll_Click() {
  lstDelete.selectAll(chkSelectAll.Value() == 1);
}

}  // namespace zub
