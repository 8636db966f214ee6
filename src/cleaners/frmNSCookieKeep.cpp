#include "cleaners/frmNSCookieKeep.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "cleaners/NetscapeCookies.h"
#include "engine/Engine.h"

namespace zub {

namespace {

// False where a file fails; one that is missing fails nothing.
template <class Work>
bool succeeds(Work work) {
  try {
    work();
    return true;
  } catch (const RuntimeError& failure) {
    return isMissing(failure);
  }
}

}  // namespace

frmNSCookieKeep::frmNSCookieKeep(Engine& engine) : engine_(engine) {
  cmbProfile.Click = [this] { cmbProfile_Click(); };
  lstDelete.Click = [this] { lstDelete_Click(); };
  chkSelectAll.Click = [this] { chkSelectAll_Click(); };
}

void frmNSCookieKeep::takeOver(const frmNSCookieKeep& other) {
  cmbProfile = other.cmbProfile;
  cmbSelect = other.cmbSelect;
  lstDelete = other.lstDelete;
  lstCookies = other.lstCookies;
  NS6Exists = other.NS6Exists;
  loaded_ = other.loaded_;
  allRead_ = other.allRead_;
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

// A missing registry file comes into being empty.
void frmNSCookieKeep::findProfiles() {
  const std::string registry = netscapeRegistryFile(engine_);
  if (!files().fileExists(registry)) files().open(registry, OpenMode::Binary);
  findNetscapeProfiles(files(), registry, [this](const NetscapeProfile& profile) {
    if (!profile.readable) return;
    cmbSelect.AddItem(profile.folder);
    cmbProfile.AddItem(profile.name);
  });
}

Files& frmNSCookieKeep::files() const {
  return *engine_.pc.files;
}

void frmNSCookieKeep::LoadCookieLines(std::string_view Folder) {
  CookieRows rows;
  allRead_ = succeeds([&] { readNetscapeCookies(files(), Folder, rows); });
  showRows(rows, lstDelete, lstCookies);
}

void frmNSCookieKeep::SelectNS6(std::string_view Folder) {
  CookieRows rows = rowsOnShow(lstDelete, lstCookies);
  if (!succeeds([&] { tickNetscapeKept(files(), Folder, rows); })) allRead_ = false;
  for (std::size_t row = 0; row < rows.size(); ++row)
    lstDelete.Selected(static_cast<int>(row), rows[row].kept);
}

void frmNSCookieKeep::SaveNS6(std::string_view Folder) {
  if (!allRead_) return;
  succeeds([&] { saveNetscapeKeepList(files(), Folder, rowsOnShow(lstDelete, lstCookies)); });
}

void frmNSCookieKeep::CleanCookieNS6(std::string_view Folder) {
  const bool written =
      allRead_ && succeeds([&] { saveNetscapeCookies(files(), Folder, rowsOnShow(lstDelete, lstCookies)); });
  if (!written) engine_.leftBehind.push_back({std::string(Folder), "its cookies cannot be read or saved"});
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

}  // namespace zub
