#include "app/console/Commands.h"
#include "base/RuntimeError.h"
#include "engine/UserFunctions.h"
#include "scheduler/DatedEntries.h"
#include "state/Options.h"

namespace zub {
namespace {

// The scheduler tab by itself.
struct Entries {
  explicit Entries(const Platform& platform) : user(platform, options), dated(platform, user) {
    dated.InitSchedulerTab();
  }
  Options options;
  UserFunctions user;
  DatedEntries dated;
};

// The tab keeps silent where the task scheduler fails: its list then stays as it was.
void needCount(int count, const DatedEntries& dated) {
  if (dated.lstSchedule.ListCount() == count) return;
  throw RuntimeError(ErrorNumber::Automation, "the task scheduler refuses the change");
}

}  // namespace

int scheduleCommand(CommandContext& context) {
  if (!context.arguments.empty()) throw UsageError("schedule takes \"add\", \"remove\" or nothing");
  Entries entries(context.pc.platform());
  const ListRows& rows = entries.dated.lstSchedule;
  for (int row = 0; row < rows.ListCount(); ++row)
    context.print(std::to_string(row + 1) + " " + rows.List(row));
  return exitStatus::Done;
}

int scheduleAddCommand(CommandContext& context) {
  if (context.arguments.size() < 2) throw UsageError("schedule add takes a date and a time");
  Entries entries(context.pc.platform());
  const int before = entries.dated.lstSchedule.ListCount();
  entries.dated.txtDate.Text = context.arguments[0];
  entries.dated.txtTime.Text = context.arguments[1];
  // A time in the system's own form may come as two words: "2:20 PM".
  for (std::size_t word = 2; word < context.arguments.size(); ++word) {
    entries.dated.txtTime.Text += " " + context.arguments[word];
  }
  entries.dated.cmdAdd_Click();
  if (entries.dated.focus != nullptr) return exitStatus::Unusable;  // a field cannot be read, which is told
  needCount(before + 1, entries.dated);
  return exitStatus::Done;
}

int scheduleRemoveCommand(CommandContext& context) {
  if (context.arguments.size() != 1) throw UsageError("schedule remove takes a number of the list");
  Entries entries(context.pc.platform());
  const int number = rowNumber(context.arguments[0]);
  const int before = entries.dated.lstSchedule.ListCount();
  if (number < 1 || number > before) {
    throw UsageError("there is no dated wash " + context.arguments[0]);
  }
  entries.dated.lstSchedule.ListIndex(number - 1);
  entries.dated.cmdRemoveScheduled_Click();
  needCount(before - 1, entries.dated);
  return exitStatus::Done;
}

}  // namespace zub
