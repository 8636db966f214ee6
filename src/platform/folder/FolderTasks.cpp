#include "platform/folder/FolderTasks.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"

namespace zub {
namespace {

std::size_t checkedIndex(int position, std::size_t count) {
  if (position < 1 || static_cast<std::size_t>(position) > count)
    throw RuntimeError(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(position - 1);
}

std::vector<TaskRecord> savedTasks(HostDir& root) {
  return readTasksText(readHostText(root, FolderTasks::FileName).value_or(""), FolderTasks::FileName);
}

[[noreturn]] void refuse() {
  throw RuntimeError(ErrorNumber::Automation);
}

// Keeps the task alive that it belongs to.
class Trigger : public ScheduleTrigger {
 public:
  Trigger(std::shared_ptr<TaskRecord> task, std::size_t index) : task_(std::move(task)), index_(index) {}

  void type(int type) override { record().type = type; }
  void beginDate(const SystemTime& date) override {
    record().begin.wYear = date.wYear;
    record().begin.wMonth = date.wMonth;
    record().begin.wDay = date.wDay;
  }
  void startTime(const SystemTime& time) override {
    record().begin.wHour = time.wHour;
    record().begin.wMinute = time.wMinute;
  }
  std::string text() override { return textOf(record()); }

 private:
  TriggerRecord& record() {
    return task_->triggers[checkedIndex(static_cast<int>(index_) + 1, task_->triggers.size())];
  }

  std::shared_ptr<TaskRecord> task_;
  std::size_t index_;
};

class Triggers : public ScheduleTriggers {
 public:
  explicit Triggers(std::shared_ptr<TaskRecord> task) : task_(std::move(task)) {}

  int count() override { return static_cast<int>(task_->triggers.size()); }
  std::unique_ptr<ScheduleTrigger> at(int position) override {
    return std::make_unique<Trigger>(task_, checkedIndex(position, task_->triggers.size()));
  }
  std::unique_ptr<ScheduleTrigger> add() override {
    task_->triggers.emplace_back();
    return at(count());
  }
  void remove(int position) override {
    const std::size_t index = checkedIndex(position, task_->triggers.size());
    task_->triggers.erase(task_->triggers.begin() + static_cast<std::ptrdiff_t>(index));
  }
  void update() override {}

 private:
  std::shared_ptr<TaskRecord> task_;
};

}  // namespace

class FolderTasks::Task : public ScheduleTask {
 public:
  Task(FolderTasks& owner, TaskRecord record)
      : owner_(owner), record_(std::make_shared<TaskRecord>(std::move(record))), triggers_(record_) {}

  std::string name() override { return record_->name; }
  void application(std::string_view path) override { record_->application = path; }
  void parameters(std::string_view text) override { record_->parameters = text; }
  void comment(std::string_view text) override { record_->comment = text; }
  ScheduleTriggers& triggers() override { return triggers_; }
  void save(int) override { owner_.saveTask(*record_); }
  void showProperties() override { refuse(); }  // nobody sits at this PC

 private:
  FolderTasks& owner_;
  std::shared_ptr<TaskRecord> record_;
  Triggers triggers_;
};

FolderTasks::FolderTasks(HostDir& root, DamagedTasks damaged) : root_(root) {
  try {
    load();
  } catch (const PcError&) {
    if (damaged == DamagedTasks::Refused) throw;
  }
}

FolderTasks::~FolderTasks() = default;

void FolderTasks::load() {
  const std::vector<TaskRecord> saved = savedTasks(root_);
  tasks_.clear();
  for (const TaskRecord& task : saved) tasks_.push_back(std::make_unique<Task>(*this, task));
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

int FolderTasks::count() {
  return static_cast<int>(tasks_.size());
}

ScheduleTask& FolderTasks::at(int position) {
  return *tasks_[checkedIndex(position, tasks_.size())];
}

ScheduleTask& FolderTasks::add(std::string_view name) {
  if (name.empty()) refuse();
  TaskRecord record;
  record.name = name;
  tasks_.push_back(std::make_unique<Task>(*this, std::move(record)));
  return *tasks_.back();
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
