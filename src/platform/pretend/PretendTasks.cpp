#include "platform/pretend/PretendTasks.h"

namespace zub {

class PretendTasks::Task : public ScheduleTask, public ScheduleTriggers {
 public:
  Task(PretendTasks& owner, std::string name, std::vector<std::string> texts)
      : owner_(owner), name_(std::move(name)), texts_(std::move(texts)) {}

  std::string name() override { return name_; }
  void application(std::string_view) override {}
  void parameters(std::string_view) override {}
  void comment(std::string_view) override {}
  ScheduleTriggers& triggers() override { return *this; }
  void save() override { owner_.saved_[name_] = texts_; }
  void showProperties() override { throw RuntimeError(ErrorNumber::Automation); }

  std::vector<std::string> texts() override { return texts_; }
  void add(const ScheduleTrigger& trigger) override {
    Clock& clock = owner_.clock_;
    texts_.push_back("At " + clock.timeText(trigger.begin) + " on " + clock.dateText(trigger.begin));
  }
  void remove(int position) override {
    texts_.erase(texts_.begin() + static_cast<std::ptrdiff_t>(indexOf(position, texts_.size())));
  }

 private:
  PretendTasks& owner_;
  std::string name_;
  std::vector<std::string> texts_;
};

void PretendTasks::refresh() {
  beneath_.refresh();
  tasks_.clear();
  auto saved = saved_;
  for (int position = 1; position <= beneath_.count(); ++position) {
    ScheduleTask& task = beneath_.at(position);
    const auto changed = saved.extract(task.name());
    auto texts = changed.empty() ? task.triggers().texts() : changed.mapped();
    keep(std::make_unique<Task>(*this, task.name(), std::move(texts)));
  }
  for (const auto& [name, texts] : saved) keep(std::make_unique<Task>(*this, name, texts));
}

ScheduleTask& PretendTasks::add(std::string_view name) {
  if (name.empty()) throw RuntimeError(ErrorNumber::Automation);
  return keep(std::make_unique<Task>(*this, std::string(name), std::vector<std::string>{}));
}

}  // namespace zub
