// The tasks of a wash in their fixed order, and the frame that every cleaner follows.
#pragma once

#include <array>
#include <string_view>

#include "engine/frmAnimated.h"

namespace zub {

enum class Task : std::uint8_t {
  DocumentHistory,
  FindHistory,
  RunHistory,
  TempFolder,
  ScanDisk,
  RecycleBin,
  Office,
  MediaPlayer,
  Netscape,
  InternetExplorer,
  CustomPlugins,
  StandardPlugins,
};
inline constexpr std::size_t BuiltInTasks = 10;
inline constexpr std::size_t AllTasks = 12;

struct TaskRow {
  int iconRow;              // the row of the icon list that switches the task; -1 for the plugins
  std::string_view status;  // what the progress window shows; the plugins show their names
  std::string_view heading;
  Label frmAnimated::State::*label;
  Image frmAnimated::State::*image;
};

const std::array<TaskRow, AllTasks>& taskTable();
const TaskRow& rowOf(Task task);

// Marks a task's label as running, and later as done. Every step touches the progress window anew: it may
// have been closed in between.
void beginTask(Engine& engine, Task task);
void endTask(Engine& engine, Task task);
// Raises the count of completed tasks and shows it.
void countCompleted(Engine& engine);

// A built-in cleaner's frame: announce, heading, the work, finish.
class CleanerFrame {
 public:
  CleanerFrame(Engine& engine, Task task) : engine_(engine), task_(task) {}
  void announce();
  void heading();
  void finish();

 private:
  Engine& engine_;
  Task task_;
};

// The frame around work that comes wholly behind the heading.
template <class Work>
void clean(Engine& engine, Task task, Work work) {
  CleanerFrame frame(engine, task);
  frame.announce();
  frame.heading();
  work();
  frame.finish();
}

}  // namespace zub
