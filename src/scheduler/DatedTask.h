// The dated washes: each is a trigger of the one task "ZUB" of the operating system's task scheduler, which
// starts the program with /SCHEDULER at its time. Nothing of them is kept by the program. What the facility
// refuses is a RuntimeError.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace zub {

inline constexpr std::string_view DatedTaskName = "ZUB";

// Finds the program's task, or makes it. A found one is told where the program lies now, which lasts from the
// next save on.
ScheduleTask& openDatedTask(const Platform& pc);

// The triggers of the program's task as lines, in their order. Changes nothing: without the task there are none.
std::vector<std::string> datedWashes(const Platform& pc);

// Of `date` the day counts, of `time` hour and minute.
void addDatedWash(const Platform& pc, const SystemTime& date, const SystemTime& time);
void removeDatedWash(const Platform& pc, int position);  // from 1

}  // namespace zub
