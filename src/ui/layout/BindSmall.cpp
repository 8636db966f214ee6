// The cookie windows, the about box and the message box.
#include "cleaners/frmIECookieKeep.h"
#include "cleaners/frmNSCookieKeep.h"
#include "ui/MessageBox.h"
#include "ui/frmAbout.h"
#include "ui/layout/Bindings.h"

namespace zub::layout {
namespace {

// What the two cookie windows have alike.
template <class Keep>
WindowBinding bindKeepWindow(Keep& form, const WindowSpec& window) {
  WindowBinding keep;
  keep.window = &window;
  keep.form = [&form] { return &form.form; };
  keep.close = [&form] { form.Unload(); };
  keep.escape = [&form] { form.Unload(); };
  keep.controls = {
      {"lstDelete", &form.lstDelete, {}},
      {"txtKeep", &form.txtKeep, {}},
      {"chkSelectAll", &form.chkSelectAll, {}},
      {"cmdRefresh", {}, [&form] { form.cmdRefresh_Click(); }},
      {"cmdOK", {}, [&form] { form.cmdOK_Click(); }},
  };
  return keep;
}

}  // namespace

WindowBinding bindCookies(frmIECookieKeep& form) {
  return bindKeepWindow(form, ieCookieWindow);
}

WindowBinding bindCookies(frmNSCookieKeep& form) {
  WindowBinding keep = bindKeepWindow(form, netscapeCookieWindow);
  keep.controls.push_back({"cmbProfile", &form.cmbProfile, {}});
  keep.controls.push_back({"lblKeep(0)", &form.lblKeep[0], {}});
  keep.controls.push_back({"lblKeep(1)", &form.lblKeep[1], {}});
  return keep;
}

WindowBinding bindAbout(frmAbout& form) {
  WindowBinding about;
  about.window = &aboutWindow;
  about.form = [&form] { return &form.form; };
  about.anew = true;
  about.close = [&form] { form.Unload(); };
  about.escape = [&form] { form.cmdOK_Click(); };
  about.controls = {
      {"lblTitle", &form.lblTitle, {}},
      {"lblVersion", &form.lblVersion, {}},
      {"cmdOK", {}, [&form] { form.cmdOK_Click(); }},
      {"cmdSysInfo", {}, [&form] { form.cmdSysInfo_Click(); }},
  };
  return about;
}

WindowBinding bindMessageBox(MessageBox& form) {
  WindowBinding box;
  box.window = &messageWindow;
  box.form = [&form] { return &form.form; };
  box.controls = {
      {"lblTitle", &form.lblTitle, {}},
      {"lblMessage", &form.lblMessage, {}},
      {"imginformation", &form.imginformation, {}},
      {"imgquestion", &form.imgquestion, {}},
      {"imgcritical", &form.imgcritical, {}},
      {"imgexclamation", &form.imgexclamation, {}},
      {"cmdYes", &form.cmdYes, {}},
      {"cmdNo", &form.cmdNo, {}},
  };
  return box;
}

}  // namespace zub::layout
