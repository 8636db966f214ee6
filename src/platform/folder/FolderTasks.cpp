#include "platform/folder/FolderTasks.h"

#include <algorithm>

#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"

namespace zub {
namespace {

std::vector<TaskRecord> savedTasks(HostDir& root) {
  return readTasksText(readHostText(root, FolderTasks::FileName).value_or(""), FolderTasks::FileName);
}

[[noreturn]] void refuse() {
  throw RuntimeError(ErrorNumber::Automation);
}

}  // namespace

class FolderTasks::Task : public ScheduleTask, public ScheduleTriggers {
 public:
  Task(FolderTasks& owner, TaskRecord record) : owner_(owner), record_(std::move(record)) {}

  std::string name() override { return record_.name; }
  void application(std::string_view path) override { record_.application = path; }
  void parameters(std::string_view text) override { record_.parameters = text; }
  void comment(std::string_view text) override { record_.comment = text; }
  ScheduleTriggers& triggers() override { return *this; }
  void save() override { owner_.saveTask(record_); }
  void showProperties() override { refuse(); }  // nobody sits at this PC

  std::vector<std::string> texts() override {
    std::vector<std::string> texts;
    for (const ScheduleTrigger& trigger : record_.triggers) texts.push_back(textOf(trigger));
    return texts;
  }
  void add(const ScheduleTrigger& trigger) override { record_.triggers.push_back(trigger); }
  void remove(int position) override {
    const std::size_t index = indexOf(position, record_.triggers.size());
    record_.triggers.erase(record_.triggers.begin() + static_cast<std::ptrdiff_t>(index));
  }

 private:
  FolderTasks& owner_;
  TaskRecord record_;
};

FolderTasks::FolderTasks(HostDir& root, DamagedTasks damaged) : root_(root) {
  try {
    load();
  } catch (const PcError&) {
    if (damaged == DamagedTasks::Refused) throw;
  }
}

void FolderTasks::load() {
  const std::vector<TaskRecord> saved = savedTasks(root_);
  tasks_.clear();
  for (const TaskRecord& task : saved) keep(std::make_unique<Task>(*this, task));
}

void FolderTasks::throwUnsaved() const {
  if (unsaved_) throw *unsaved_;
}

void FolderTasks::refresh() {
  try {
    load();
  } catch (const PcError&) {
    refuse();
  }
}

ScheduleTask& FolderTasks::add(std::string_view name) {
  if (name.empty()) refuse();
  TaskRecord record;
  record.name = name;
  return keep(std::make_unique<Task>(*this, std::move(record)));
}

// Other programs may have saved other tasks meanwhile: these stay.
void FolderTasks::saveTask(const TaskRecord& task) {
  try {
    std::vector<TaskRecord> tasks = savedTasks(root_);
    const auto place = std::ranges::find(tasks, task.name, &TaskRecord::name);
    if (place == tasks.end()) {
      tasks.push_back(task);
    } else {
      *place = task;
    }
    const std::string text = writeTasksText(tasks);
    readTasksText(text, FileName);  // what cannot be read again is not saved
    replaceHostText(root_, FileName, text);
    unsaved_.reset();
  } catch (const PcError& failure) {
    unsaved_ = failure;
    refuse();
  }
}

}  // namespace zub
