#include "app/console/Commands.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "base/Text.h"

namespace zub {
namespace {

constexpr std::array commandTable{
    Command{"wash", "", "start the program, press \"Start Cleaning\", press \"Finish\", end", washCommand},
    Command{"preview", "[--list]",
            "tell what a wash would remove now, and remove nothing; with --list each thing on a line: its "
            "kind, a tab, "
            "its path, for a value a tab and its name",
            previewCommand},
    Command{"start", "[/STARTUP] [/SCHEDULER]",
            "start the program with these switches, to the end of its washes", startCommand},
    Command{"options", "", "list what the settings store keeps", optionsCommand},
    Command{"set", "NAME=VALUE...", "change settings, by the names that \"options\" lists", setCommand},
    Command{"plugins", "", "list the custom and standard plugins with their ticks", pluginsCommand},
    Command{"plugin show", "NAME", "tell what a plugin, custom or standard, removes", pluginShowCommand},
    Command{"plugin check", "FILE...",
            "tell line by line what plugin files would do; status 1 where something can never work",
            pluginCheckCommand},
    Command{"cookies", "ie|netscape [keep|drop NUMBER|RANGE|SITE...]",
            "list the cookies, or tick those to keep", cookiesCommand},
    Command{"changes", "[--settings] [KEY]",
            "write changes.reg, what became of the registry's export; with the settings of Zubrane; only "
            "below a key",
            changesCommand},
    Command{"users", "", "list whose registries the PC holds, with their profile folders", usersCommand},
    Command{"schedule add", "DATE TIME", "add a dated wash", scheduleAddCommand},
    Command{"schedule remove", "NUMBER", "remove the dated wash with that number", scheduleRemoveCommand},
    Command{"schedule", "", "list the dated washes", scheduleCommand},
    Command{"scheduler", "", "wait in the foreground and start the program at each dated wash and interval",
            schedulerCommand},
};

}  // namespace

std::span<const Command> commands() {
  return commandTable;
}

int runCommand(CommandContext& context, int (*command)(CommandContext& context)) {
  const auto tellFailures = [&context] {
    for (const std::string& failure : context.pc.failures()) context.tell(failure);
    return !context.pc.failures().empty();
  };
  int status = exitStatus::Done;
  for (const std::string& oddity : context.pc.oddities()) context.tell(oddity);
  try {
    status = command(context);
  } catch (...) {
    tellFailures();
    throw;
  }
  return tellFailures() ? std::max(status, exitStatus::LeftBehind) : status;
}

void CommandContext::needAlone() const {
  if (pc.platform().process->otherInstanceRuns()) throw BusyError();
}

void CommandContext::needNoArguments(std::string_view command) const {
  if (!arguments.empty()) throw UsageError(std::string(command) + " takes no arguments");
}

void CommandContext::print(std::string_view text) const {
  const std::string line = pc.toTerminal(text);
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fputc('\n', stdout);
}

void CommandContext::printRow(std::initializer_list<std::string_view> fields) const {
  std::string row;
  for (const std::string_view field : fields) row += (row.empty() ? "" : "\t") + pc.toTerminal(field);
  row += '\n';
  std::fwrite(row.data(), 1, row.size(), stdout);
}

void CommandContext::tell(const std::string& failure) const {
  loop.clearLine();
  std::fprintf(stderr, "%s: %s\n", programName, failure.c_str());
}

int rowNumber(std::string_view word) {
  const bool digits = std::ranges::all_of(word, [](char c) { return c >= '0' && c <= '9'; });
  return digits ? leadingNumber(word) : 0;
}

}  // namespace zub
