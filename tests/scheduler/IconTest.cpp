#include <doctest/doctest.h>

#include "scheduler/frmIcon.h"
#include "support/Golden.h"
#include "support/Story.h"

using namespace zub;

TEST_CASE("what the icon's messages and its menu do, step by step") {
  Form main, progress, report;
  frmIcon icon;
  int washes = 0, exits = 0, menus = 0;
  icon.windows = {{frmIcon::MainWindow, [&]() -> Form& { return main; }},
                  {frmIcon::ProgressWindow, [&]() -> Form& { return progress; }},
                  {frmIcon::ReportWindow, [&]() -> Form& { return report; }}};
  icon.Press_Clean = [&] { ++washes; };
  icon.unloadMain = [&] { ++exits; };
  icon.popupMenu = [&] { ++menus; };
  Story story;
  story.look = [&]() -> Story::Things {
    const auto told = [](const Form& form) {
      return (form.Visible ? "visible, shown " : "hidden, shown ") + std::to_string(form.shown) +
             (form.windowState == WindowState::Minimised ? " times, minimised" : " times");
    };
    const Form& top = icon.TopForm();
    return {{"top form", std::to_string(icon.SetTopForm()) + (&top == &main       ? ", main"
                                                              : &top == &progress ? ", progress"
                                                                                  : ", report")},
            {"main window", told(main)},
            {"progress window", told(progress)},
            {"report", told(report)},
            {"washes", std::to_string(washes)},
            {"exits", std::to_string(exits)},
            {"menus", std::to_string(menus)}};
  };
  const auto message = [&](int number) {
    story.step("message " + std::to_string(number), [&] { icon.IconMessage(number); });
  };
  // 7 is no window, and leaves the top window as it was.
  for (const int top : {0, 1, 7, 2}) {
    story.step("SetTopForm " + std::to_string(top), [&] { icon.SetTopForm(top); });
    message(513);
    story.step("the window is minimised", [&] { main.windowState = WindowState::Minimised; });
    for (const int number : {513, 513, 513, 515, 516, 518}) message(number);
    for (const int number : {0, 512, 514, 517, 519, -1}) message(number);
    story.step("mnuRemove", [&] { icon.mnuRemove_Click(); });
    story.step("mnuExit", [&] { icon.mnuExit_Click(); });
  }
  icon.popupMenu = nullptr;
  story.step("a right click on a PC without windows", [&] { icon.IconMessage(516); });
  checkGolden("icon.txt", story.text);
}
