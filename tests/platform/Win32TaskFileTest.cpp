#ifdef _WIN32
// What the system's task scheduler keeps of the program's task, read back without the program's own code.
#include <doctest/doctest.h>

#include <cstdlib>
#include <string>

#include "platform/ContractPc.h"
#include "platform/win32/ComPointer.h"

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

std::wstring variable(const wchar_t* name) {
  const wchar_t* text = _wgetenv(name);
  return text != nullptr ? text : L"";
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

  ComPointer<ITaskScheduler> service;
  REQUIRE(SUCCEEDED(CoCreateInstance(CLSID_CTaskScheduler, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskScheduler,
                                     service.outVoid())));
  const std::string name = pc.task();
  ComPointer<ITask> task;
  REQUIRE(SUCCEEDED(
      service->Activate(std::wstring(name.begin(), name.end()).c_str(), IID_ITask, task.outUnknown())));
  CHECK(told([&](LPWSTR* text) { return task->GetApplicationName(text); }) ==
        L"C:\\Program Files\\Zubrane\\zub");
  CHECK(told([&](LPWSTR* text) { return task->GetParameters(text); }) == L" /SCHEDULER");
  CHECK(told([&](LPWSTR* text) { return task->GetComment(text); }) == L"Zubrane");
  if (!pc.deviates("no account"))
    CHECK(told([&](LPWSTR* text) { return task->GetAccountInformation(text); }) ==
          variable(L"USERDOMAIN") + L"\\" + variable(L"USERNAME"));
  DWORD flags = 0;
  REQUIRE(SUCCEEDED(task->GetFlags(&flags)));
  CHECK(flags == TASK_FLAG_RUN_ONLY_IF_LOGGED_ON);

  WORD count = 0;
  REQUIRE(SUCCEEDED(task->GetTriggerCount(&count)));
  REQUIRE(count == 1);
  ComPointer<ITaskTrigger> trigger;
  REQUIRE(SUCCEEDED(task->GetTrigger(0, trigger.out())));
  TASK_TRIGGER when{};
  when.cbTriggerSize = sizeof when;
  REQUIRE(SUCCEEDED(trigger->GetTrigger(&when)));
  CHECK(when.TriggerType == TASK_TIME_TRIGGER_ONCE);
  CHECK(when.rgFlags == 0);
  CHECK(when.wBeginYear == 2031);
  CHECK(when.wBeginMonth == 9);
  CHECK(when.wBeginDay == 5);
  CHECK(when.wStartHour == 14);
  CHECK(when.wStartMinute == 20);
}

}  // namespace zub
#endif
