#include <algorithm>
#include <optional>

#include "app/console/Commands.h"
#include "app/console/Json.h"
#include "base/RuntimeError.h"
#include "scheduler/DatedTask.h"

namespace zub {
namespace {

std::vector<std::string> wordsOf(const std::vector<std::string>& arguments) {
  std::vector<std::string> words;
  for (const std::string& argument : arguments) {
    constexpr const char* Blanks = " \t\r\n";
    for (auto begin = argument.find_first_not_of(Blanks); begin != std::string::npos;) {
      const auto end = std::min(argument.find_first_of(Blanks, begin), argument.size());
      words.push_back(argument.substr(begin, end - begin));
      begin = argument.find_first_not_of(Blanks, end);
    }
  }
  return words;
}

std::string joinedWords(std::span<const std::string> words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

// A text that tells one of the two alone.
std::optional<SystemTime> parsed(Clock& clock, const std::string& text, bool dateWanted) {
  try {
    const SystemTime told = clock.parse(text);
    const bool hasDate = told.wYear != 1899 || told.wMonth != 12 || told.wDay != 30;
    if (hasDate == dateWanted) return told;
  } catch (const RuntimeError&) {
  }
  return std::nullopt;
}

// The moment that the words tell, both day and time in one word or several: "12/24/2030 6:00 PM".
SystemTime momentOf(Clock& clock, std::span<const std::string> words) {
  for (std::size_t dateWords = 1; dateWords < words.size(); ++dateWords) {
    auto moment = parsed(clock, joinedWords(words.first(dateWords)), true);
    const auto time = parsed(clock, joinedWords(words.subspan(dateWords)), false);
    if (!moment || !time) continue;
    moment->wHour = time->wHour;
    moment->wMinute = time->wMinute;
    moment->wSecond = 0;
    return *moment;
  }
  throw Refusal("\"" + joinedWords(words) + "\" is no date and time, such as " +
                clock.dateText(plusDays(clock.local(), 1)) + " 18:00");
}

// Windows guards its tasks itself. What the PC's tasks text says of a failure tells more than the refusal.
template <class Change>
void change(const CommandContext& context, Change work) {
  try {
    work();
  } catch (const RuntimeError&) {
    context.pc.save();
    throw RuntimeError(ErrorNumber::Automation, "the task scheduler refuses the change");
  }
  context.pc.save();
}

void needTasks(const CommandContext& context) {
  if (!context.pc.folder().empty()) context.needAlone();
}

}  // namespace

void checkSchedule(const Given& given) {
  if (!given.arguments.empty()) throw UsageError("schedule takes \"add\", \"remove\" or nothing");
}

void checkScheduleAdd(const Given& given) {
  if (wordsOf(given.arguments).size() < 2) throw UsageError("schedule add takes a date and a time");
}

void checkScheduleRemove(const Given& given) {
  if (given.arguments.size() != 1) throw UsageError("schedule remove takes a number of the list");
}

int scheduleCommand(CommandContext& context) {
  int number = 0;
  const std::vector<std::string> washes = datedWashes(context.pc.platform());
  if (context.given.has("--json")) {
    Json json(context, "schedule");
    json.array("washes", [&] {
      for (const std::string& line : washes) {
        json.object([&] {
          json.number("number", ++number);
          json.text("when", line);
        });
      }
    });
    json.write();
    return exitStatus::Done;
  }
  for (const std::string& line : washes) {
    context.print(std::to_string(++number) + " " + line);
  }
  return exitStatus::Done;
}

int scheduleAddCommand(CommandContext& context) {
  const std::vector<std::string> words = wordsOf(context.given.arguments);
  const Platform& pc = context.pc.platform();
  const SystemTime moment = momentOf(*pc.clock, words);
  if (secondsOf(moment) <= secondsOf(pc.clock->local())) {
    throw Refusal(joinedWords(words) + " is past: no wash would come of it");
  }
  needTasks(context);
  change(context, [&] {
    openDatedTask(pc);  // one that it makes gets its parameters when it is found again
    addDatedWash(pc, moment, moment);
  });
  return exitStatus::Done;
}

int scheduleRemoveCommand(CommandContext& context) {
  needTasks(context);
  const Platform& pc = context.pc.platform();
  const int number = rowNumber(context.given.arguments[0]);
  if (number < 1 || number > static_cast<int>(datedWashes(pc).size())) {
    throw Refusal("there is no dated wash " + context.given.arguments[0]);
  }
  change(context, [&] { removeDatedWash(pc, number); });
  return exitStatus::Done;
}

}  // namespace zub
