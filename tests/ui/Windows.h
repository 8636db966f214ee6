// All windows of the program, tied to forms of a PC in a folder.
#pragma once

#include <doctest/doctest.h>

#include <algorithm>
#include <vector>

#include "app/Program.h"
#include "support/Golden.h"
#include "support/TestPc.h"
#include "ui/MessageBox.h"
#include "ui/frmAbout.h"
#include "ui/layout/WindowSpec.h"

namespace zub {

// Each control before those inside it, with what holds it (null: the window) and the title of its page.
template <class Visit>
void walk(const layout::Controls& controls, Visit visit, const layout::ControlSpec* holder = nullptr,
          std::string_view page = {}) {
  for (const layout::ControlSpec& control : controls) {
    visit(control, holder, page);
    walk(control.inside, visit, &control, control.kind == layout::Kind::Page ? control.name : page);
  }
}

inline const layout::ControlSpec& find(const layout::WindowSpec& window, std::string_view name) {
  const layout::ControlSpec* found = nullptr;
  walk(window.controls, [&](const layout::ControlSpec& control, const auto*, std::string_view) {
    if (control.name == name) found = &control;
  });
  return found != nullptr ? *found : throw std::out_of_range(std::string(name));
}

struct Windows {
  TestPc pc;
  Program program{pc.platform()};
  frmAbout about{program.engine.pc};
  MessageBox messageBox;
  std::vector<layout::WindowSpec> all = {layout::mainWindow(program.main),
                                         layout::progressWindow(program.engine.animated),
                                         layout::reportWindow(program.engine.clean),
                                         layout::previewWindow(program.main.preview),
                                         layout::previewReportWindow(program.main.preview),
                                         layout::editorWindow(*program.editor),
                                         layout::cookieWindow(*program.ieCookies),
                                         layout::cookieWindow(*program.nsCookies),
                                         layout::aboutWindow(about),
                                         layout::messageWindow(messageBox)};

  const layout::WindowSpec& of(const layout::Face& face) const {
    return *std::ranges::find_if(all, [&face](const layout::WindowSpec& one) { return one.face == face; });
  }
  // A click on the button of this name.
  void press(const layout::Face& face, std::string_view name) const { find(of(face), name).click(); }
};

}  // namespace zub
