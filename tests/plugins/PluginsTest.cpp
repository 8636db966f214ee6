#include <doctest/doctest.h>

#include "plugins/Plugins.h"
#include "support/Golden.h"
#include "support/TracedWash.h"

using namespace zub;

// A refresh unticks the rows.
TEST_CASE("the list of custom plugins, and what Remove takes") {
  TracedWash wash;
  ListRows& rows = wash.options.lstFiles;
  const std::string folder = "C:\\Program Files\\Zubrane\\Plugins\\";
  Plugins plugins(wash.engine);
  const auto act = [&](const char* title, const auto& work) {
    rows.selectAll(true);
    wash.trace.act(title, work);
    wash.trace.tell("rows " + rowsOf(rows) + "\n");
  };
  const auto refresh = [&] { plugins.RefreshPluginList(); };
  const auto remove = [&] { plugins.RemovePlugin(); };
  act("There is no folder", refresh);
  for (const char* name : {"beta.zb1", "beta.zb2", "beta.zb3", "beta.zb4", "Alpha.ZB1", "gamma.zb2",
                           "delta.one.zb1", "Sub.zb1\\x", ".zb1", ".zb3", "notes.zb1.txt"}) {
    wash.pc.file(folder + name);
  }
  wash.pc.hide(folder + "Hidden.zb1");
  wash.pc.file(folder + "Hidden.zb1");
  act("A row for each .zb1, sorted, cut by four characters", refresh);
  wash.pc.readOnly(folder + "beta.zb2");
  rows.ListIndex(2);
  act("Remove with beta current", remove);
  act("Remove without a current row takes the files without a name", remove);
  wash.pc.lock(folder + "delta.one.zb1");
  rows.ListIndex(1);
  act("Remove of what another program holds, which is not left for the next start", remove);
  wash.pc.unlock(folder + "delta.one.zb1");
  wash.pc.platform().files->deleteFolder(folder);
  act("The folder has gone", refresh);
  checkGolden("list.txt", wash.trace.text);
}
