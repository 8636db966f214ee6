// The about box and the message box.
#include "ui/MessageBox.h"
#include "ui/frmAbout.h"
#include "ui/layout/Rows.h"

namespace zub::layout {

WindowSpec aboutWindow(frmAbout& form) {
  return {
      .face = faces::About,
      .controls = {programIcon("picIcon", Place{120, 240, 540, 540}),
                   label("lblTitle", Place{960, 240, 5532, 252}, form.lblTitle, Text::Bold),
                   label("lblVersion", Place{960, 600, 4092, 228}, form.lblVersion),
                   label(
                       "lblDescription", Place{960, 960, 5652, 924},
                       "This simple program helps protect your privacy and recover valuable hard drive space "
                       "by cleaning up the history of your activities on your PC and the Internet. ZUB makes "
                       "it easy to shred unwanted information that clogs up your system's resources."),
                   line("Line1(1)", Place{120, 1920, 6480, 15}, rgb(128, 128, 128)),
                   label("lblDisclaimer", Place{240, 2040, 4560, 1188},
                         "Warning: this program is protected by copyright law and international treaties. "
                         "Unauthorised copying or distribution of it, or of any part of it, may lead to "
                         "civil and criminal penalties."),
                   button("cmdOK", Place{5280, 2160, 1092, 372}, "&OK", "", on(form, &frmAbout::cmdOK_Click)),
                   button("cmdSysInfo", Place{5280, 2760, 1092, 372}, "&System info", "",
                          on(form, &frmAbout::cmdSysInfo_Click))},
      .form = [&form] { return &form.form; },
      .close = on(form, &frmAbout::Unload),
      .escape = on(form, &frmAbout::cmdOK_Click),
      .anew = true};
}

WindowSpec messageWindow(MessageBox& form) {
  return {.face = faces::Message,
          .controls = {label("lblTitle", Place{855, 120, 1830, 210}, form.lblTitle),
                       closeButton("ZUBCloseButton1", Place{5445, 75, 435, 345}),
                       label("lblMessage", Place{2490, 960, 990, 195}, form.lblMessage, Text::Centred),
                       picture("imginformation", Place{585, 840, 480, 480}, "icon-information",
                               form.imginformation),
                       picture("imgquestion", Place{630, 870, 480, 480}, "icon-question", form.imgquestion),
                       picture("imgcritical", Place{555, 825, 480, 480}, "icon-critical", form.imgcritical),
                       picture("imgexclamation", Place{585, 810, 480, 480}, "icon-exclamation",
                               form.imgexclamation),
                       button("cmdYes", Place{2040, 1740, 876, 372}, form.cmdYes, "", {}),
                       button("cmdNo", Place{3135, 1740, 870, 375}, form.cmdNo, "", {})},
          .form = [&form] { return &form.form; }};
}

}  // namespace zub::layout
