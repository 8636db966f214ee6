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
  pc.icon.SetTopForm(frmIcon::ProgressWindow);  // a wash does not bar it
  pc.main.Visible = true;
  pc.icon.IconMessage(513);
  CHECK_FALSE(pc.main.Visible);
  pc.main.windowState = WindowState::Minimised;
  pc.icon.IconMessage(513);
  CHECK(pc.main.Visible);
  CHECK(pc.main.windowState == WindowState::Normal);
}

TEST_CASE("what a double click and the menu do depends on the top window; Exit is never barred") {
  struct {
    int top;
    bool mainVisible;
    unsigned mainShown, progressShown;
    int washes;
  } const rows[] = {{0, true, 1, 0, 1}, {1, false, 0, 1, 0}, {2, false, 0, 0, 0}, {7, false, 0, 0, 0}};
  for (const auto& row : rows) {
    CAPTURE(row.top);
    TrayPc pc;
    pc.icon.SetTopForm(row.top);
    CHECK(pc.icon.SetTopForm() == row.top);
    CHECK((&pc.icon.TopForm() == &pc.main) == (row.top == 0 || row.top == 7));  // 7 is no window
    pc.icon.IconMessage(515);
    CHECK(pc.main.Visible == row.mainVisible);
    CHECK(pc.main.shown == row.mainShown);
    CHECK(pc.progress.shown == row.progressShown);
    CHECK(pc.report.shown == 0);
    pc.icon.mnuRemove_Click();
    CHECK(pc.washes == row.washes);
    pc.icon.mnuExit_Click();
    CHECK(pc.exits == 1);
  }
}

TEST_CASE("right clicks open the menu, and real mouse movements do nothing") {
  TrayPc pc;
  for (const int message : {516, 518}) pc.icon.IconMessage(message);
  for (const int message : {0, 512, 514, 517, 519, -1}) pc.icon.IconMessage(message);
  CHECK(pc.menus == 2);
  CHECK_FALSE(pc.main.Visible);
  pc.icon.popupMenu = nullptr;  // a PC without windows
  pc.icon.IconMessage(516);
}
