// The text that keeps a PC's tasks.
#include <algorithm>
#include <array>
#include <set>

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/DateText.h"
#include "platform/folder/FolderTasks.h"
#include "platform/folder/PcText.h"

namespace zub {
namespace {

struct TextField {
  std::string_view name;
  std::string TaskRecord::*member;
};
constexpr std::array<TextField, 3> TextFields{{{"application", &TaskRecord::application},
                                               {"parameters", &TaskRecord::parameters},
                                               {"comment", &TaskRecord::comment}}};

std::string fourDigits(int number) {
  const std::string digits = std::to_string(number);
  return std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// "0 2001-09-05 14:20"
bool readTrigger(std::string_view text, ScheduleTrigger& trigger) {
  constexpr std::string_view form = "9 9999-99-99 99:99";
  if (text.size() != form.size()) return false;
  for (std::size_t i = 0; i < form.size(); ++i) {
    if (form[i] == '9' ? !isDigit(text[i]) : text[i] != form[i]) return false;
  }
  const auto number = [&](std::size_t at, std::size_t digits) {
    int value = 0;
    for (std::size_t i = at; i < at + digits; ++i) value = value * 10 + (text[i] - '0');
    return value;
  };
  const int year = number(2, 4);
  const int month = number(7, 2);
  const int day = number(10, 2);
  const int hour = number(13, 2);
  const int minute = number(16, 2);
  const bool isDate = month >= 1 && month <= 12 && day >= 1 && day <= daysInMonth(year, month);
  if (!isDate || hour > 23 || minute > 59) return false;
  trigger.type = number(0, 1);
  trigger.begin = dateFromDays(daysFromDate(year, month, day));
  trigger.begin.wHour = static_cast<std::uint16_t>(hour);
  trigger.begin.wMinute = static_cast<std::uint16_t>(minute);
  return true;
}

std::string triggerText(const ScheduleTrigger& trigger) {
  const SystemTime& begin = trigger.begin;
  return std::to_string(trigger.type) + " " + fourDigits(begin.wYear) + "-" + twoDigits(begin.wMonth) + "-" +
         twoDigits(begin.wDay) + " " + twoDigits(begin.wHour) + ":" + twoDigits(begin.wMinute);
}

// `names` are those of the tasks so far.
void take(std::vector<TaskRecord>& tasks, std::set<std::string>& names, const PcLine& line) {
  if (line.name == "task") {
    if (line.value.empty()) throw Refused{"the task has no name"};
    tasks.push_back({});
    tasks.back().name = ansiFromUtf8(line.value);
    if (!names.insert(tasks.back().name).second) throw Refused{"the task was told before"};
    return;
  }
  if (tasks.empty()) throw Refused{"stands before the first task"};
  if (line.name == "trigger") {
    ScheduleTrigger trigger;
    if (!readTrigger(line.value, trigger)) throw Refused{"a trigger is told as \"0 2001-09-05 14:20\""};
    tasks.back().triggers.push_back(trigger);
    return;
  }
  const auto* field = std::ranges::find(TextFields, line.name, &TextField::name);
  if (field == TextFields.end()) throw Refused{joined({"unknown name \"", line.name, "\""})};
  tasks.back().*field->member = ansiFromUtf8(line.value);
}

}  // namespace

std::string textOf(const ScheduleTrigger& trigger) {
  const std::string time = shortTime(trigger.begin);  // "2:20:00 PM"
  return "At " + time.substr(0, time.size() - 6) + time.substr(time.size() - 3) + " on " +
         shortDate(trigger.begin);
}

std::vector<TaskRecord> readTasksText(std::string_view text, const std::string& file) {
  std::vector<TaskRecord> tasks;
  std::set<std::string> names;
  eachPcLine(text, file, [&](const PcLine& line) { take(tasks, names, line); });
  return tasks;
}

std::string writeTasksText(const std::vector<TaskRecord>& tasks) {
  std::string text;
  const auto add = [&](std::string_view name, const std::string& value) {
    text.append(name).append(" = ").append(value).append("\n");
  };
  for (const TaskRecord& task : tasks) {
    if (!text.empty()) text += '\n';
    add("task", utf8FromAnsi(task.name));
    for (const TextField& field : TextFields) add(field.name, utf8FromAnsi(task.*field.member));
    for (const ScheduleTrigger& trigger : task.triggers) add("trigger", triggerText(trigger));
  }
  return text;
}

}  // namespace zub
