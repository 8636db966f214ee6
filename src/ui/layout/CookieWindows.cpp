#include "cleaners/frmIECookieKeep.h"
#include "cleaners/frmNSCookieKeep.h"
#include "ui/layout/Rows.h"

namespace zub::layout {
namespace {

// What the two cookie windows have alike.
template <class Keep>
WindowSpec keepWindow(Keep& form, const Face& face, Controls&& controls) {
  return {.face = face,
          .controls = std::move(controls),
          .form = [&form] { return &form.form; },
          .close = on(form, &Keep::Unload),
          .escape = on(form, &Keep::Unload)};
}

}  // namespace

WindowSpec cookieWindow(frmIECookieKeep& form) {
  return keepWindow(
      form, faces::IECookies,
      {label("lblKeep", px(12, 12, 396, 14), "Cookies that are selected will not be deleted."),
       checkList("lstDelete", px(12, 32, 396, 208), form.lstDelete),
       check("chkSelectAll", px(6, 246, 200, 20), "Select All", "", form.chkSelectAll),
       content("txtKeep", px(12, 272, 396, 92), form.txtKeep),
       button("cmdRefresh", px(216, 374, 92, 28), "&Refresh", "",
              on(form, &frmIECookieKeep::cmdRefresh_Click)),
       button("cmdOK", px(316, 374, 92, 28), "&Ok", "", on(form, &frmIECookieKeep::cmdOK_Click))});
}

WindowSpec cookieWindow(frmNSCookieKeep& form) {
  return keepWindow(
      form, faces::NetscapeCookies,
      {label("lblKeep(1)", px(12, 12, 396, 14), form.lblKeep[1]),
       dropDown("cmbProfile", px(12, 30, 396, 22), "", form.cmbProfile),
       label("lblKeep(0)", px(12, 62, 396, 14), form.lblKeep[0]),
       checkList("lstDelete", px(12, 82, 396, 182), form.lstDelete),
       check("chkSelectAll", px(6, 270, 200, 20), "Select All", "", form.chkSelectAll),
       content("txtKeep", px(12, 296, 396, 68), form.txtKeep),
       button("cmdRefresh", px(216, 374, 92, 28), "&Refresh", "",
              on(form, &frmNSCookieKeep::cmdRefresh_Click)),
       button("cmdOK", px(316, 374, 92, 28), "&Ok", "", on(form, &frmNSCookieKeep::cmdOK_Click))});
}

}  // namespace zub::layout
