#include "engine/frmClean.h"

#include "base/Text.h"
#include "engine/Engine.h"

namespace zub {

void frmClean::CleanAll() {
  engine_.animated->StartAnimation();
  engine_.animated->state.form.Show();
  engine_.animated->state.lblTasksTotal.Caption = std::to_string(CalculateItems());
  engine_.TotalBytes = 0;
  txtResult.clear();
  Clock& clock = *engine_.pc.clock;
  const SystemTime now = clock.local();
  AddItem("Zubrone\r\n");
  AddItem("Log file generated at " + clock.timeText(now) + " on " + clock.dateText(now) + "\r\n");

  for (std::size_t task = 0; task < BuiltInTasks; ++task) {
    if (engine_.options.LstIcons.Check(taskTable()[task].iconRow) != 0) raise(cleaners.builtIn[task]);
  }
  runPlugins(Task::CustomPlugins, engine_.options.lstFiles, cleaners.customPlugin);
  runPlugins(Task::StandardPlugins, engine_.options.standardlist, cleaners.standardPlugin);

  engine_.animated->StopAnimation();
  if (engine_.options.chkCloseAfterWash.Value() == 1) {
    engine_.animated->state.lblCurrent.Caption = "Press finish to close this application";
    engine_.animated->state.CloseWindowTimer.Enabled = true;
  }
  raise(cleaners.ended);
}

void frmClean::runPlugins(Task task, const ListRows& rows,
                          const std::function<void(const std::string&)>& run) {
  if (engine_.options.chkSkipPlugins.Value() != 0 || rows.SelCount() == 0) return;
  beginTask(engine_, task);
  // The rows may change under the loop: a plugin's file loops serve the window's buttons.
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (rows.Selected(row)) run(std::string(rows.List(row)));
  }
  endTask(engine_, task);
}

int frmClean::CalculateItems() const {
  int count = 0;
  for (int row = 0; row < IconChecks::Count; ++row) count += engine_.options.LstIcons.Check(row);
  if (engine_.options.chkSkipPlugins.Value() == 0) count += engine_.options.lstFiles.SelCount();
  return count;
}

void frmClean::AddItem(std::string text) {
  txtResult += text;
  txtResult += CrLf;
  if (!text.starts_with('\t')) return;
  text.erase(0, 1);
  engine_.animated->state.lblCurrent.Caption = std::move(text);
}

void frmClean::CloseBox() {
  form.Hide();
  engine_.owner->Enable();
}

}  // namespace zub
