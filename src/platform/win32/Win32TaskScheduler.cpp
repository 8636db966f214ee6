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

}  // namespace

TASK_TRIGGER Win32Trigger::record() {
  TASK_TRIGGER record{};
  record.cbTriggerSize = sizeof record;
  mustSucceed(trigger_->GetTrigger(&record));
  return record;
}

void Win32Trigger::store(TASK_TRIGGER record) {
  mustSucceed(trigger_->SetTrigger(&record));
}

// A new trigger of the system is switched off until it has been given its type.
void Win32Trigger::type(int type) {
  TASK_TRIGGER changed = record();
  changed.TriggerType = static_cast<TASK_TRIGGER_TYPE>(type);
  changed.rgFlags &= ~DWORD{TASK_TRIGGER_FLAG_DISABLED};
  store(changed);
}

void Win32Trigger::beginDate(const SystemTime& date) {
  TASK_TRIGGER changed = record();
  changed.wBeginYear = date.wYear;
  changed.wBeginMonth = date.wMonth;
  changed.wBeginDay = date.wDay;
  store(changed);
}

void Win32Trigger::startTime(const SystemTime& time) {
  TASK_TRIGGER changed = record();
  changed.wStartHour = time.wHour;
  changed.wStartMinute = time.wMinute;
  store(changed);
}

std::string Win32Trigger::text() {
  ComText described;
  if (SUCCEEDED(trigger_->GetTriggerString(described.out())) && !described.get().empty())
    return ansiFromWide(described.get());
  const TASK_TRIGGER trigger = record();
  SystemTime time;
  time.wYear = trigger.wBeginYear;
  time.wMonth = trigger.wBeginMonth;
  time.wDay = trigger.wBeginDay;
  time.wHour = trigger.wStartHour;
  time.wMinute = trigger.wStartMinute;
  return "At " + localeTime(time, TIME_NOSECONDS) + " on " + localeDate(time);
}

int Win32Triggers::count() {
  WORD count = 0;
  mustSucceed(task_->GetTriggerCount(&count));
  return count;
}

WORD Win32Triggers::indexOf(int position) {
  if (position < 1 || position > count()) throw RuntimeError(ErrorNumber::InvalidCall);
  return static_cast<WORD>(position - 1);
}

std::unique_ptr<ScheduleTrigger> Win32Triggers::at(int position) {
  ComPointer<ITaskTrigger> trigger;
  mustSucceed(task_->GetTrigger(indexOf(position), trigger.out()));
  return std::make_unique<Win32Trigger>(std::move(trigger));
}

std::unique_ptr<ScheduleTrigger> Win32Triggers::add() {
  WORD index = 0;
  ComPointer<ITaskTrigger> trigger;
  mustSucceed(task_->CreateTrigger(&index, trigger.out()));
  return std::make_unique<Win32Trigger>(std::move(trigger));
}

void Win32Triggers::remove(int position) {
  mustSucceed(task_->DeleteTrigger(indexOf(position)));
}

ComPointer<ITask>& Win32Task::task() {
  if (!task_) mustSucceed(service_->Activate(wideFromAnsi(name_).c_str(), IID_ITask, task_.outUnknown()));
  return task_;
}

void Win32Task::application(std::string_view path) {
  mustSucceed(task()->SetApplicationName(untoldWide(path).c_str()));
}

void Win32Task::parameters(std::string_view text) {
  mustSucceed(task()->SetParameters(wideFromAnsi(text).c_str()));
}

void Win32Task::comment(std::string_view text) {
  mustSucceed(task()->SetComment(wideFromAnsi(text).c_str()));
}

ScheduleTriggers& Win32Task::triggers() {
  task();
  return triggers_;
}

void Win32Task::save(int) {
  ComPointer<IPersistFile> file;
  mustSucceed(task()->QueryInterface(IID_IPersistFile, file.outVoid()));
  mustSucceed(file->Save(nullptr, TRUE));
}

void Win32Task::showProperties() {
  mustSucceed(task()->EditWorkItem(static_cast<HWND>(owner_()), 0));
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
    tasks_.push_back(std::make_unique<Win32Task>(service(), owner_, taskName(names[0]), ComPointer<ITask>()));
    CoTaskMemFree(names[0]);
    CoTaskMemFree(names);
  }
}

ScheduleTask& Win32TaskScheduler::at(int position) {
  if (position < 1 || position > count()) throw RuntimeError(ErrorNumber::InvalidCall);
  return *tasks_[static_cast<std::size_t>(position - 1)];
}

ScheduleTask& Win32TaskScheduler::add(std::string_view name) {
  ComPointer<ITask> task;
  mustSucceed(service()->NewWorkItem(wideFromAnsi(name).c_str(), CLSID_CTask, IID_ITask, task.outUnknown()));
  runAsThisUser(task);
  tasks_.push_back(std::make_unique<Win32Task>(service(), owner_, std::string(name), std::move(task)));
  return *tasks_.back();
}

}  // namespace zub
