#ifdef _WIN32
// What the system's task scheduler keeps of the program's task, read back without the program's own code.
#include <doctest/doctest.h>

#include <cstdlib>
#include <string>

#include "platform/ContractPc.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/Text.h"

namespace zub {
namespace {

// A text that the component gives.
template <class Get>
std::wstring told(Get get) {
  LPWSTR text = nullptr;
  REQUIRE(SUCCEEDED(get(&text)));
  std::wstring copy = text;
  CoTaskMemFree(text);
  return copy;
}

// What stands in the task's file.
std::wstring stored(const std::string& name, bool withAccount) {
  ComPointer<ITaskScheduler> service;
  REQUIRE(SUCCEEDED(CoCreateInstance(CLSID_CTaskScheduler, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskScheduler,
                                     service.outVoid())));
  ComPointer<ITask> task;
  REQUIRE(SUCCEEDED(service->Activate(wideFromAnsi(name).c_str(), IID_ITask, task.outUnknown())));
  WORD count = 0;
  REQUIRE(SUCCEEDED(task->GetTriggerCount(&count)));
  REQUIRE(count == 1);
  DWORD flags = 0;
  REQUIRE(SUCCEEDED(task->GetFlags(&flags)));
  ComPointer<ITaskTrigger> trigger;
  REQUIRE(SUCCEEDED(task->GetTrigger(0, trigger.out())));
  TASK_TRIGGER when{};
  when.cbTriggerSize = sizeof when;
  REQUIRE(SUCCEEDED(trigger->GetTrigger(&when)));
  CHECK(flags == TASK_FLAG_RUN_ONLY_IF_LOGGED_ON);
  CHECK(when.TriggerType == TASK_TIME_TRIGGER_ONCE);
  CHECK(when.rgFlags == 0);
  std::wstring text = told([&](LPWSTR* out) { return task->GetApplicationName(out); }) + L';' +
                      told([&](LPWSTR* out) { return task->GetParameters(out); }) + L';' +
                      told([&](LPWSTR* out) { return task->GetComment(out); });
  for (const WORD part :
       {when.wBeginYear, when.wBeginMonth, when.wBeginDay, when.wStartHour, when.wStartMinute})
    text += L' ' + std::to_wstring(part);
  if (withAccount) text += L' ' + told([&](LPWSTR* out) { return task->GetAccountInformation(out); });
  return text;
}

}  // namespace

TEST_CASE("the task file holds what is to be started, as whom and when") {
  Win32ContractPc pc;
  ScheduleTasks& tasks = *pc.platform().tasks;
  tasks.refresh();
  ScheduleTask& made = tasks.add(pc.task());
  made.application("C:\\Program Files\\Zubrane\\zub");
  made.parameters(" /SCHEDULER");
  made.comment("Zubrane");
  made.triggers().add({0, {2031, 9, 5, 5, 14, 20, 3, 4}});
  made.save();
  const bool forgotten = pc.deviates("no account");
  const std::wstring account =
      forgotten ? L"" : std::wstring(L" ") + _wgetenv(L"USERDOMAIN") + L"\\" + _wgetenv(L"USERNAME");
  CHECK(stored(pc.task(), !forgotten) ==
        L"C:\\Program Files\\Zubrane\\zub; /SCHEDULER;Zubrane 2031 9 5 14 20" + account);
}

}  // namespace zub
#endif
