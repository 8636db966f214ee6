#include "app/console/Commands.h"

#include <algorithm>
#include <array>

#include "app/console/ImportCommand.h"
#include "app/console/Terminal.h"
#include "base/Text.h"

namespace zub {
namespace {

constexpr CommandOption Only{"--only", "TASK,...",
                             "just these tasks, ticked or not: documents, find, run, temp, scandisk, "
                             "recycle, office, media, netscape, ie, and "
                             "plugins for those that are ticked. The ticks stay as they are"};
constexpr CommandOption Plugin{"--plugin", "NAME",
                               "just this plugin, ticked or not; beside other --plugin and --only"};
constexpr CommandOption JsonForm{"--json", "",
                                 "one JSON document on a line instead, which output.schema.json describes"};
constexpr CommandOption listOptions[] = {JsonForm};
constexpr CommandOption washOptions[] = {
    Only,
    Plugin,
    {"--yes", "", "do not ask; needed on the PC that it runs on where nobody can be asked"},
    {"--quiet", "", "say nothing but what stays behind"},
    {"--report", "FILE", "write the report to this file of this machine, too"},
    JsonForm,
};
constexpr CommandOption previewOptions[] = {
    Only,
    Plugin,
    {"--list", "", "each thing on a line: its kind, a tab, its path, for a value a tab and its name"},
    JsonForm,
};
constexpr CommandOption changesOptions[] = {
    {"--settings", "", "with the program's own settings and Run entries"},
};

constexpr CommandOption importOptions[] = {
    {"--registry", "EXPORT...", "the exports of the registry"},
    {"--as", "KEY", "where the keys of the exports behind it lie, which name no hive"},
    {"--user", "NAME", "the branch of HKEY_USERS that is the user's"},
    {"--drive", "C=FOLDER", "where a drive's disk is mounted"},
};

// clang-format off
constexpr std::array commandTable{
    Command{"wash", "",
            "Removes what is ticked, and tells it. The program is started, \"Start Cleaning\" and \"Finish\" are pressed, and "
            "the program ends. A wash that is interrupted stops behind the file at which it is, and saves and tells what it did.",
            "--pc /mnt/disk wash --only temp,recycle --plugin ACDSee",
            washOptions, checkWash, washCommand},
    Command{"preview", "",
            "Tells what a wash would remove now, and removes nothing.",
            "--pc /mnt/disk preview --list",
            previewOptions, checkPreview, previewCommand},
    Command{"start", "[/STARTUP] [/SCHEDULER]",
            "Starts the program with these switches, to the end of its washes.",
            "--pc /mnt/disk start /STARTUP",
            {}, checkStart, startCommand},
    Command{"options", "",
            "Lists what the settings store keeps, what each setting does and which values it takes.",
            "--pc /mnt/disk options",
            listOptions, nullptr, optionsCommand},
    Command{"get", "NAME",
            "Tells the value of one setting.",
            "--pc /mnt/disk get passes",
            {}, checkGet, getCommand},
    Command{"set", "NAME=VALUE...",
            "Changes settings, by the names that \"options\" lists, as the window does. Case does not count.",
            "--pc /mnt/disk set chkBleach=1 \"ZUBStandardPlugin WinRAR (all versions)=1\"",
            {}, checkSet, setCommand},
    Command{"plugins", "",
            "Lists the custom and standard plugins with their ticks.",
            "--pc /mnt/disk plugins",
            listOptions, nullptr, pluginsCommand},
    Command{"plugin show", "NAME",
            "Tells what a plugin, custom or standard, removes.",
            "--pc /mnt/disk plugin show ACDSee",
            {}, checkPluginShow, pluginShowCommand},
    Command{"plugin check", "FILE...",
            "Tells line by line what plugin files would do. The status is 1 where something can never work. A file is one of "
            "the PC's plugin folder, of the PC by its whole path, or of this machine.",
            "--pc /mnt/disk plugin check Garden.zb1 Garden.zb2",
            {}, checkPluginCheck, pluginCheckCommand},
    Command{"cookies", "ie|netscape [keep|drop NUMBER|RANGE|SITE...]",
            "Lists the cookies, or ticks those to keep. A range is such as 1-3; in a site \"*\" and \"?\" stand for any "
            "characters.",
            "--pc /mnt/disk cookies ie keep 1-3 \"*.example.org\"",
            listOptions, checkCookies, cookiesCommand},
    Command{"changes", "[KEY]",
            "Writes changes.reg, what became of the registry's export. With a key only what lies at or below it.",
            "--pc /mnt/disk changes HKEY_LOCAL_MACHINE\\SOFTWARE",
            changesOptions, checkChanges, changesCommand},
    Command{"users", "",
            "Lists whose registries the PC holds, with their profile folders.",
            "--pc /mnt/disk users",
            {}, nullptr, usersCommand},
    Command{"schedule add", "DATE TIME",
            "Adds a dated wash.",
            "--pc /mnt/disk schedule add 12/24/2031 18:00",
            {}, checkScheduleAdd, scheduleAddCommand},
    Command{"schedule remove", "NUMBER",
            "Removes the dated wash with that number.",
            "--pc /mnt/disk schedule remove 1",
            {}, checkScheduleRemove, scheduleRemoveCommand},
    Command{"schedule", "",
            "Lists the dated washes.",
            "--pc /mnt/disk schedule",
            listOptions, checkSchedule, scheduleCommand},
    Command{"scheduler", "",
            "Waits in the foreground and starts the program at each dated wash and interval, until it is interrupted.",
            "--pc /mnt/disk scheduler",
            {}, nullptr, schedulerCommand},
    Command{"new", "FOLDER",
            "Makes a PC that nobody has worked on.",
            "new /tmp/pc",
            {}, checkNew, nullptr, newCommand},
    Command{"import", "--registry EXPORT... FOLDER",
            "Makes a PC of exports of its registry and its mounted disks. Each export goes on top of the ones before it.",
            "import --registry xp.reg --drive C=/mnt/xp /tmp/pc",
            importOptions, [](const Given& given) { importWanted(given.arguments); }, nullptr,
            [](const Given& given, const std::string&) { return importCommand(given.arguments); }, true},
    Command{"help", "[COMMAND]",
            "Tells all commands, or all of one.",
            "help wash",
            {}, checkHelp, nullptr, helpCommand},
    Command{"completion", "bash|zsh",
            "Writes what completes the command line in a shell.",
            "completion bash",
            {}, checkCompletion, nullptr, completionCommand},
    Command{"manual", "",
            "Writes the manual page.",
            "manual",
            {}, nullptr, nullptr, manualCommand},
};
// clang-format on

}  // namespace

std::span<const Command> commands() {
  return commandTable;
}

bool Given::has(std::string_view option) const {
  return std::ranges::any_of(options, [option](const auto& typed) { return typed.first == option; });
}

std::vector<std::string> Given::valuesOf(std::string_view option) const {
  std::vector<std::string> values;
  for (const auto& [name, value] : options) {
    if (name == option) values.push_back(value);
  }
  return values;
}

std::string Given::valueOf(std::string_view option) const {
  const std::vector<std::string> values = valuesOf(option);
  return values.empty() ? std::string() : values.back();
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

void CommandContext::print(std::string_view text) const {
  terminal::write(terminal::Stream::Output, pc.toTerminal(text) + "\n");
}

void CommandContext::printRow(std::initializer_list<std::string_view> fields) const {
  std::string row;
  for (const std::string_view field : fields) row += (row.empty() ? "" : "\t") + pc.toTerminal(field);
  terminal::write(terminal::Stream::Output, row + "\n");
}

int rowNumber(std::string_view word) {
  const bool digits = std::ranges::all_of(word, [](char c) { return c >= '0' && c <= '9'; });
  return digits ? leadingNumber(word) : 0;
}

}  // namespace zub
