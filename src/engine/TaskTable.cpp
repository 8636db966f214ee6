#include "engine/TaskTable.h"

#include <string>

#include "base/Text.h"
#include "engine/Engine.h"
#include "state/Options.h"

namespace zub {

const std::array<TaskRow, AllTasks>& taskTable() {
  using State = frmAnimated::State;
  static constexpr std::array<TaskRow, AllTasks> table{{
      {iconRow::DocumentHistory, "Document History",
       "ZUB has cleaned the document history, with the following results:", &State::Label1, &State::Image3},
      {iconRow::FindHistory, "Search/Find History",
       "ZUB has cleaned the Find history, with the following results:", &State::Label2, &State::Image4},
      {iconRow::RunHistory, "Run History",
       "ZUB has cleaned the Run MRU, with the following results:", &State::Label3, &State::Image5},
      {iconRow::TempFolder, "Temporary Folder",
       "ZUB has cleaned the TEMP folder, with the following results:", &State::Label4, &State::Image6},
      {iconRow::ScanDisk, "Scandisk logs",
       "ZUB has cleaned the SCANDISK files, with the following results:", &State::Label9, &State::Image11},
      {iconRow::RecycleBin, "Recycle bin",
       "ZUB has cleaned the recycle bin, with the following results:", &State::Label5, &State::Image7},
      {iconRow::Office, "MS Office - MRU",
       "ZUB has cleaned the Office MRU, with the following results:", &State::Label6, &State::Image8},
      {iconRow::MediaPlayer, "Windows Media Player - MRU",
       "ZUB has cleaned the Windows Media Player MRU, with the following results:", &State::Label10,
       &State::Image12},
      {iconRow::Netscape, "Netscape",
       "ZUB has cleaned Netscape files ans registry entries, with the following results:", &State::Label7,
       &State::Image9},
      {iconRow::InternetExplorer, "Internet Explorer",
       "ZUB has cleaned IE files and registry entries, with the following results:", &State::Label8,
       &State::Image10},
      {-1, "", "", &State::Label11, &State::Image13},
      {-1, "", "", &State::Label14, &State::Image14},
  }};
  return table;
}

const TaskRow& rowOf(Task task) {
  return taskTable()[static_cast<std::size_t>(task)];
}

void beginTask(Engine& engine, Task task) {
  Label& label = (*engine.animated).state.*rowOf(task).label;
  label.Bold = true;
  label.ForeColor = colors::Green;
}

void endTask(Engine& engine, Task task) {
  frmAnimated::State& state = engine.animated->state;
  state.*rowOf(task).image = state.Image1;
  (state.*rowOf(task).label).Bold = false;
}

void countCompleted(Engine& engine) {
  frmAnimated::State& state = engine.animated->state;
  state.lblCompleted.Caption = std::to_string(leadingNumber(state.lblCompleted.Caption) + 1);
  state.StatusBar1[1] = "Number of tasks competed: " + state.lblCompleted.Caption;
}

void CleanerFrame::announce() {
  beginTask(engine_, task_);
  engine_.animated->AppName(rowOf(task_).status);
}

void CleanerFrame::heading() {
  engine_.clean.AddItem(std::string(rowOf(task_).heading));
}

void CleanerFrame::finish() {
  countCompleted(engine_);
  endTask(engine_, task_);
}

}  // namespace zub
