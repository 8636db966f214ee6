#include "platform/win32/Win32TaskScheduler.h"

#include "platform/win32/Text.h"

namespace zub {
namespace {

constexpr std::string_view StoredEnding = ".job";

// A text that a component made for us.
class ComText {
 public:
  ~ComText() { CoTaskMemFree(text_); }
  LPWSTR* out() { return &text_; }
  std::wstring_view get() const { return text_ != nullptr ? text_ : std::wstring_view(); }

 private:
  LPWSTR text_ = nullptr;
};

std::string taskName(std::wstring_view stored) {
  std::string name = ansiFromWide(stored);
  if (name.size() > StoredEnding.size()) {
    const std::size_t length = name.size() - StoredEnding.size();
    if (lstrcmpiA(name.c_str() + length, StoredEnding.data()) == 0) name.resize(length);
  }
  return name;
}

// Names of users may lie beyond the code page.
std::wstring environment(const wchar_t* name) {
  constexpr DWORD Room = 512;
  wchar_t text[Room] = L"";
  const DWORD length = GetEnvironmentVariableW(name, text, Room);
  return length < Room ? std::wstring(text, length) : std::wstring();
}

// The NT family starts no task without an account: this one is the user's, and runs while the user is logged
// on, so that it needs no password. The 9x family knows no accounts.
void runAsThisUser(ComPointer<ITask>& task) {
  task->SetFlags(TASK_FLAG_RUN_ONLY_IF_LOGGED_ON);
  if (!isNtFamily()) return;
  const std::wstring domain = environment(L"USERDOMAIN");
  const std::wstring user = environment(L"USERNAME");
  mustSucceed(task->SetAccountInformation((domain.empty() ? user : domain + L'\\' + user).c_str(), nullptr));
}

TASK_TRIGGER recordOf(ComPointer<ITaskTrigger>& trigger) {
  TASK_TRIGGER record{};
  record.cbTriggerSize = sizeof record;
  mustSucceed(trigger->GetTrigger(&record));
  return record;
}

std::string textOf(ComPointer<ITaskTrigger>& trigger) {
  ComText described;
  if (SUCCEEDED(trigger->GetTriggerString(described.out())) && !described.get().empty())
    return ansiFromWide(described.get());
  const TASK_TRIGGER record = recordOf(trigger);
  const SystemTime begin{record.wBeginYear, record.wBeginMonth,  0, record.wBeginDay,
                         record.wStartHour, record.wStartMinute, 0, 0};
  return "At " + localeTime(begin, TIME_NOSECONDS) + " on " + localeDate(begin);
}

}  // namespace

// The tasks of others are only named; a task is loaded when it is first worked with.
class Win32TaskScheduler::Task : public ScheduleTask, public ScheduleTriggers {
 public:
  // `task` may be empty: it is loaded then by its name.
  Task(Win32TaskScheduler& owner, std::string name, ComPointer<ITask> task)
      : owner_(owner), name_(std::move(name)), task_(std::move(task)) {}

  std::string name() override { return name_; }
  void application(std::string_view path) override {
    mustSucceed(task()->SetApplicationName(untoldWide(path).c_str()));
  }
  void parameters(std::string_view text) override {
    mustSucceed(task()->SetParameters(wideFromAnsi(text).c_str()));
  }
  void comment(std::string_view text) override {
    mustSucceed(task()->SetComment(wideFromAnsi(text).c_str()));
  }
  ScheduleTriggers& triggers() override { return *this; }
  void save() override {
    ComPointer<IPersistFile> file;
    mustSucceed(task()->QueryInterface(IID_IPersistFile, file.outVoid()));
    mustSucceed(file->Save(nullptr, TRUE));
  }
  void showProperties() override { mustSucceed(task()->EditWorkItem(static_cast<HWND>(owner_.owner_()), 0)); }

  std::vector<std::string> texts() override;
  void add(const ScheduleTrigger& trigger) override;
  void remove(int position) override {
    mustSucceed(task()->DeleteTrigger(static_cast<WORD>(indexOf(position, count()))));
  }

 private:
  ComPointer<ITask>& task() {
    if (!task_)
      mustSucceed(owner_.service()->Activate(wideFromAnsi(name_).c_str(), IID_ITask, task_.outUnknown()));
    return task_;
  }
  WORD count() {
    WORD count = 0;
    mustSucceed(task()->GetTriggerCount(&count));
    return count;
  }

  Win32TaskScheduler& owner_;
  std::string name_;
  ComPointer<ITask> task_;
};

std::vector<std::string> Win32TaskScheduler::Task::texts() {
  std::vector<std::string> texts;
  for (WORD index = 0; index < count(); ++index) {
    ComPointer<ITaskTrigger> trigger;
    mustSucceed(task()->GetTrigger(index, trigger.out()));
    texts.push_back(textOf(trigger));
  }
  return texts;
}

// A new trigger of the system is switched off.
void Win32TaskScheduler::Task::add(const ScheduleTrigger& trigger) {
  WORD index = 0;
  ComPointer<ITaskTrigger> made;
  mustSucceed(task()->CreateTrigger(&index, made.out()));
  TASK_TRIGGER record = recordOf(made);
  record.TriggerType = static_cast<TASK_TRIGGER_TYPE>(trigger.type);
  record.rgFlags &= ~DWORD{TASK_TRIGGER_FLAG_DISABLED};
  record.wBeginYear = trigger.begin.wYear;
  record.wBeginMonth = trigger.begin.wMonth;
  record.wBeginDay = trigger.begin.wDay;
  record.wStartHour = trigger.begin.wHour;
  record.wStartMinute = trigger.begin.wMinute;
  mustSucceed(made->SetTrigger(&record));
}

ComPointer<ITaskScheduler>& Win32TaskScheduler::service() {
  if (!service_)
    mustSucceed(CoCreateInstance(CLSID_CTaskScheduler, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskScheduler,
                                 service_.outVoid()));
  return service_;
}

void Win32TaskScheduler::refresh() {
  tasks_.clear();
  ComPointer<IEnumWorkItems> stored;
  mustSucceed(service()->Enum(stored.out()));
  LPWSTR* names = nullptr;
  ULONG fetched = 0;
  while (stored->Next(1, &names, &fetched) == S_OK && fetched == 1) {
    keep(std::make_unique<Task>(*this, taskName(names[0]), ComPointer<ITask>()));
    CoTaskMemFree(names[0]);
    CoTaskMemFree(names);
  }
}

ScheduleTask& Win32TaskScheduler::add(std::string_view name) {
  ComPointer<ITask> task;
  mustSucceed(service()->NewWorkItem(wideFromAnsi(name).c_str(), CLSID_CTask, IID_ITask, task.outUnknown()));
  runAsThisUser(task);
  return keep(std::make_unique<Task>(*this, std::string(name), std::move(task)));
}

}  // namespace zub
