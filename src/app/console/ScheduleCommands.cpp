#include "app/console/Commands.h"
#include "base/RuntimeError.h"
#include "engine/UserFunctions.h"
#include "scheduler/DatedEntries.h"
#include "state/Options.h"

namespace zub {
namespace {

// The scheduler tab by itself, for a change. Windows guards its tasks itself.
struct Entries {
  explicit Entries(const CommandContext& context)
      : user(context.pc.platform(), options), dated(context.pc.platform(), user) {
    if (!context.pc.folder().empty()) context.needAlone();
    dated.InitSchedulerTab();
  }
  Options options;
  UserFunctions user;
  DatedEntries dated;
};

// What the task scheduler refuses, a PC in a folder tells in full.
template <class Change>
void change(const CommandContext& context, Change make) {
  try {
    make();
  } catch (const RuntimeError&) {
    context.pc.save();
    throw;
  }
}

}  // namespace

int scheduleCommand(CommandContext& context) {
  if (!context.arguments.empty()) throw UsageError("schedule takes \"add\", \"remove\" or nothing");
  ScheduleTasks& tasks = context.pc.platform().tasks;
  tasks.refresh();
  for (int position = 1; position <= tasks.count(); ++position) {
    ScheduleTask& task = tasks.at(position);
    if (task.name() != DatedEntries::TaskName) continue;
    for (int row = 1; row <= task.triggers().count(); ++row) {
      context.print(std::to_string(row) + " " + task.triggers().at(row)->text());
    }
    break;
  }
  return exitStatus::Done;
}

int scheduleAddCommand(CommandContext& context) {
  if (context.arguments.size() < 2) throw UsageError("schedule add takes a date and a time");
  Entries entries(context);
  entries.dated.txtDate.Text = context.arguments[0];
  entries.dated.txtTime.Text = context.arguments[1];
  // A time in the system's own form may come as two words: "2:20 PM".
  for (std::size_t word = 2; word < context.arguments.size(); ++word) {
    entries.dated.txtTime.Text += " " + context.arguments[word];
  }
  change(context, [&] { entries.dated.cmdAdd_Click(); });
  if (entries.dated.focus != nullptr) return exitStatus::Unusable;  // a field cannot be read, which is told
  return exitStatus::Done;
}

int scheduleRemoveCommand(CommandContext& context) {
  if (context.arguments.size() != 1) throw UsageError("schedule remove takes a number of the list");
  Entries entries(context);
  const int number = rowNumber(context.arguments[0]);
  if (number < 1 || number > entries.dated.lstSchedule.ListCount()) {
    throw UsageError("there is no dated wash " + context.arguments[0]);
  }
  entries.dated.lstSchedule.ListIndex(number - 1);
  change(context, [&] { entries.dated.cmdRemoveScheduled_Click(); });
  return exitStatus::Done;
}

}  // namespace zub
