#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

namespace {

// A wash whose tasks write their names down.
struct RecordedWash : WashFixture {
  std::string ran;

  RecordedWash() {
    engine.clean.cleaners.customPlugin = [this](const std::string& name) { ran += "custom " + name + " "; };
    engine.clean.cleaners.standardPlugin = [this](const std::string& name) {
      ran += "standard " + name + " ";
    };
    for (const char* name : {"B", "A", "C"}) options.lstFiles.AddItem(name);
    for (const char* name : {"Y", "X"}) options.standardlist.AddItem(name);
  }
  std::string wash() {
    ran.clear();
    engine.animated->StartClean();
    return ran;
  }
};

}  // namespace

TEST_CASE("each row of the icon list switches its own task") {
  const int rows[] = {7, 9, 6, 8, 4, 3, 2, 1, 5, 0};  // by the order of the tasks
  for (std::size_t task = 0; task < std::size(rows); ++task) {
    CAPTURE(task);
    RecordedWash pc;
    pc.engine.clean.cleaners.builtIn[task] = [&] { pc.ran += "it "; };
    pc.options.LstIcons.Check(rows[task], 1);
    CHECK(pc.wash() == "it ");
  }
}

TEST_CASE("the selected plugins run from first to last, and only where they are not left out") {
  RecordedWash pc;
  pc.options.lstFiles.Selected(0, true);
  pc.options.lstFiles.Selected(2, true);
  pc.options.standardlist.selectAll(true);
  CHECK(pc.wash() == "custom B custom C standard X standard Y ");
  CHECK(pc.progress().lblTasksTotal.Caption == "2");  // standard plugins do not count

  pc.options.chkSkipPlugins.Value(1);
  CHECK(pc.wash().empty());
  CHECK(pc.progress().lblTasksTotal.Caption == "0");
}

TEST_CASE("a plugin list that changes under its own run is read safely") {
  RecordedWash pc;
  pc.options.lstFiles.AddItem("A plugin with a long name", 0);
  pc.options.lstFiles.selectAll(true);
  pc.engine.clean.cleaners.customPlugin = [&](const std::string& name) {
    pc.options.lstFiles.Clear();
    pc.ran += name;
  };
  CHECK(pc.wash() == "A plugin with a long name");
}
