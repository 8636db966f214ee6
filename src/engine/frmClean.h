// The wash itself and its report. The report lives in memory until the next wash; its window is "Log Report".
#pragma once

#include <array>
#include <functional>
#include <string>

#include "engine/TaskTable.h"
#include "state/Controls.h"

namespace zub {

class frmClean {
 public:
  Form form;              // the report window
  std::string txtResult;  // lines ended by CR LF

  // What the tasks run; the composition sets them.
  struct Cleaners {
    std::array<Handler, BuiltInTasks> builtIn;  // by Task
    std::function<void(const std::string& name)> customPlugin;
    std::function<void(const std::string& name)> standardPlugin;
    Handler ended;  // when all tasks are done; may stay empty
  };
  Cleaners cleaners;

  explicit frmClean(Engine& engine) : engine_(engine) {}

  // Runs the whole task table in its order. Nothing stops it early.
  void CleanAll();
  // Tasks about to run: the ticked rows and the selected custom plugins; standard plugins do not count.
  int CalculateItems() const;
  // The only way into the report: adds the text and CR LF. A text that begins with a tab also goes to the
  // progress window, without the tab.
  void AddItem(std::string text);

  void cmdCancel_Click() { form.Hide(); }
  void CloseBox();  // hides the window, so that the report is not lost, and enables the main window

 private:
  void runPlugins(Task task, const class ListRows& rows, const std::function<void(const std::string&)>& run);

  Engine& engine_;
};

}  // namespace zub
