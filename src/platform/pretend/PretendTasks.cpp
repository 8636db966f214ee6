#include "platform/pretend/PretendTasks.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace zub {
namespace {

std::size_t checkedIndex(int position, std::size_t count) {
  if (position < 1 || static_cast<std::size_t>(position) > count)
    throw RuntimeError(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(position - 1);
}

using Texts = std::shared_ptr<std::vector<std::string>>;

// Keeps the texts alive that it is one of.
class Trigger : public ScheduleTrigger {
 public:
  Trigger(Texts texts, std::size_t index, Clock& clock)
      : texts_(std::move(texts)), index_(index), clock_(clock) {}

  void type(int) override {}
  void beginDate(const SystemTime& date) override {
    begin_.wYear = date.wYear;
    begin_.wMonth = date.wMonth;
    begin_.wDay = date.wDay;
    word();
  }
  void startTime(const SystemTime& time) override {
    begin_.wHour = time.wHour;
    begin_.wMinute = time.wMinute;
    word();
  }
  std::string text() override { return texts_->at(index_); }

 private:
  void word() { texts_->at(index_) = "At " + clock_.timeText(begin_) + " on " + clock_.dateText(begin_); }

  Texts texts_;
  std::size_t index_;
  Clock& clock_;
  SystemTime begin_;
};

class Triggers : public ScheduleTriggers {
 public:
  Triggers(Texts texts, Clock& clock) : texts_(std::move(texts)), clock_(clock) {}

  int count() override { return static_cast<int>(texts_->size()); }
  std::unique_ptr<ScheduleTrigger> at(int position) override {
    return std::make_unique<Trigger>(texts_, checkedIndex(position, texts_->size()), clock_);
  }
  std::unique_ptr<ScheduleTrigger> add() override {
    texts_->emplace_back();
    return at(count());
  }
  void remove(int position) override {
    texts_->erase(texts_->begin() + static_cast<std::ptrdiff_t>(checkedIndex(position, texts_->size())));
  }
  void update() override {}

 private:
  Texts texts_;
  Clock& clock_;
};

std::vector<std::string> textsOf(ScheduleTask& task) {
  std::vector<std::string> texts;
  ScheduleTriggers& triggers = task.triggers();
  const int count = triggers.count();
  for (int position = 1; position <= count; ++position) texts.push_back(triggers.at(position)->text());
  return texts;
}

}  // namespace

class PretendTasks::Task : public ScheduleTask {
 public:
  Task(PretendTasks& owner, std::string name, std::vector<std::string> texts)
      : owner_(owner),
        name_(std::move(name)),
        texts_(std::make_shared<std::vector<std::string>>(std::move(texts))),
        triggers_(texts_, owner.clock_) {}

  std::string name() override { return name_; }
  void application(std::string_view) override {}
  void parameters(std::string_view) override {}
  void comment(std::string_view) override {}
  ScheduleTriggers& triggers() override { return triggers_; }
  void save(int) override { owner_.saved_[name_] = *texts_; }
  void showProperties() override { throw RuntimeError(ErrorNumber::Automation); }

 private:
  PretendTasks& owner_;
  std::string name_;
  Texts texts_;
  Triggers triggers_;
};

PretendTasks::PretendTasks(ScheduleTasks& beneath, Clock& clock) : beneath_(beneath), clock_(clock) {}

PretendTasks::~PretendTasks() = default;

int PretendTasks::count() {
  return static_cast<int>(tasks_.size());
}

void PretendTasks::refresh() {
  beneath_.refresh();
  tasks_.clear();
  auto saved = saved_;
  const int count = beneath_.count();
  for (int position = 1; position <= count; ++position) {
    ScheduleTask& task = beneath_.at(position);
    const auto changed = saved.extract(task.name());
    auto texts = changed.empty() ? textsOf(task) : changed.mapped();
    tasks_.push_back(std::make_unique<Task>(*this, task.name(), std::move(texts)));
  }
  for (const auto& [name, texts] : saved) tasks_.push_back(std::make_unique<Task>(*this, name, texts));
}

ScheduleTask& PretendTasks::at(int position) {
  return *tasks_[checkedIndex(position, tasks_.size())];
}

ScheduleTask& PretendTasks::add(std::string_view name) {
  if (name.empty()) throw RuntimeError(ErrorNumber::Automation);
  tasks_.push_back(std::make_unique<Task>(*this, std::string(name), std::vector<std::string>{}));
  return *tasks_.back();
}

}  // namespace zub
