#include <doctest/doctest.h>

#include "scheduler/frmIcon.h"

using namespace zub;

namespace {

struct TrayPc {
  Form main, progress, report;
  frmIcon icon;
  int washes = 0, exits = 0, menus = 0;

  TrayPc() {
    icon.windows = {{frmIcon::MainWindow, [this]() -> Form& { return main; }},
                    {frmIcon::ProgressWindow, [this]() -> Form& { return progress; }},
                    {frmIcon::ReportWindow, [this]() -> Form& { return report; }}};
    icon.Press_Clean = [this] { ++washes; };
    icon.unloadMain = [this] { ++exits; };
    icon.popupMenu = [this] { ++menus; };
    icon.SetTopForm(frmIcon::MainWindow);
  }
};

}  // namespace

TEST_CASE("a left click hides the main window, or brings it back to its normal state") {
  TrayPc pc;
  pc.main.Visible = true;
  pc.icon.IconMessage(513);
  CHECK_FALSE(pc.main.Visible);
  pc.main.windowState = WindowState::Minimised;
  pc.icon.IconMessage(513);
  CHECK(pc.main.Visible);
  CHECK(pc.main.windowState == WindowState::Normal);
  pc.icon.SetTopForm(frmIcon::ProgressWindow);  // a wash does not bar it
  pc.icon.mnuShow_Click();
  CHECK_FALSE(pc.main.Visible);
}

TEST_CASE("a double click brings up the top window of the program") {
  struct {
    int top;
    bool mainVisible;
    unsigned mainShown, progressShown;
  } const rows[] = {{0, true, 1, 0}, {1, false, 0, 1}, {2, false, 0, 0}, {7, false, 0, 0}};
  for (const auto& row : rows) {
    CAPTURE(row.top);
    TrayPc pc;
    pc.icon.SetTopForm(row.top);
    pc.icon.IconMessage(515);
    CHECK(pc.main.Visible == row.mainVisible);
    CHECK(pc.main.shown == row.mainShown);
    CHECK(pc.progress.shown == row.progressShown);
    CHECK(pc.report.shown == 0);
    CHECK(pc.icon.SetTopForm() == row.top);
    CHECK((&pc.icon.TopForm() == &pc.main) == (row.top == 0 || row.top == 7));  // 7 is no window
  }
}

TEST_CASE("right clicks open the menu, and real mouse movements do nothing") {
  TrayPc pc;
  for (const int message : {516, 518}) pc.icon.IconMessage(message);
  CHECK(pc.menus == 2);
  for (const int message : {0, 512, 514, 517, 519, -1}) pc.icon.IconMessage(message);
  CHECK(pc.menus == 2);
  CHECK_FALSE(pc.main.Visible);
  pc.icon.popupMenu = nullptr;
  pc.icon.IconMessage(516);
}

TEST_CASE("the menu washes only while no other window is on top; Exit is never barred") {
  TrayPc pc;
  for (const int top : {1, 2, 7, 0}) {
    pc.icon.SetTopForm(top);
    pc.icon.mnuRemove_Click();
    CHECK(pc.washes == (top == 0 ? 1 : 0));
  }
  pc.icon.SetTopForm(frmIcon::ProgressWindow);
  pc.icon.mnuExit_Click();
  CHECK(pc.exits == 1);
}
