#include <doctest/doctest.h>

#include <sstream>

#include "app/console/CommandLine.h"
#include "app/console/Help.h"

using namespace zub;

namespace {

// Words with blanks between; "_" stands for a blank within one, "''" for an empty one.
std::vector<std::string> wordsOf(const std::string& text) {
  std::vector<std::string> words;
  std::istringstream stream(text);
  for (std::string word; stream >> word;) {
    for (char& c : word) c = c == '_' ? ' ' : c;
    words.push_back(word == "''" ? "" : word);
  }
  return words;
}

// What was read, as one line: the command, the folder, the arguments, the options.
std::string read(const std::string& words) {
  try {
    const CommandLine line = readCommandLine(wordsOf(words));
    std::string text(line.command == nullptr ? "" : line.command->words);
    if (line.help) return text + "?";
    if (line.version) return text + "version";
    text += " in " + line.folder;
    for (const std::string& argument : line.given.arguments) text += " <" + argument + ">";
    for (const auto& [name, value] : line.given.options) text += " " + name + "=" + value;
    return text;
  } catch (const CommandUsageError& error) {
    return (error.command == nullptr ? std::string() : std::string(error.command->words) + ": ") +
           error.what();
  }
}

}  // namespace

TEST_CASE("the command line") {
  struct Row {
    const char* words;
    const char* read;
  };
  const Row rows[] = {
      {"--pc /pc wash", "wash in /pc"},
      {"wash --pc /pc", "wash in /pc"},
      {"--pc=/pc schedule add 12/24/2030 18:00", "schedule add in /pc <12/24/2030> <18:00>"},
      {"schedule --pc=/a_b remove 1", "schedule remove in /a b <1>"},
      {"schedule", "schedule in "},
      {"preview --list --pc /pc", "preview in /pc --list="},
      {"set a=b=1", "set in  <a=b=1>"},
      {"plugin show -- --pc", "plugin show in  <--pc>"},
      {"plugin show -", "plugin show in  <->"},
      {"--help", "?"},
      {"--pc /pc -h", "?"},
      {"--version", "version"},
      {"wash --help", "wash?"},
      {"-h plugin show", "plugin show?"},
      {"cookies help", "cookies?"},
      {"help plugin check", "help in  <plugin> <check>"},

      {"import --help", "import?"},
      {"import --registry a b --user x pc", "import in  <--registry> <a> <b> <--user> <x> <pc>"},
      {"import a", "import: import takes --registry EXPORT... and the folder to make"},

      {"", "no command is given"},
      {"--user x wash", "wash: --user takes a name, with --pc FOLDER"},
      {"--pc", "--pc takes a folder"},
      {"--pc= wash", "--pc takes a folder"},
      {"--pc '' wash", "--pc takes a folder"},
      {"polish", "there is no command \"polish\""},
      {"wsh", "there is no command \"wsh\": did you mean \"wash\"?"},
      {"sett", "there is no command \"sett\": did you mean \"set\"?"},
      {"wahs", "there is no command \"wahs\": did you mean \"wash\"?"},
      {"Option", "there is no command \"Option\": did you mean \"options\"?"},
      {"plugin chekc", "there is no command \"plugin chekc\": did you mean \"check\"?"},
      {"plugin", "there is no command \"plugin\": did you mean \"plugins\"?"},
      {"--verison", "there is no option --verison: did you mean \"--version\"?"},
      {"preview --lits", "preview: preview takes no --lits: did you mean \"--list\"?"},
      {"preview --list=1", "preview: --list takes no value"},
      {"wash now", "wash: wash takes no arguments"},
      {"new", "new: new takes a folder"},
      {"new a b", "new: new takes a folder"},
      {"help polish", "help: there is no command \"polish\""},
      {"start /SCHEDULER /startup", "start: start takes /STARTUP and /SCHEDULER, not \"/startup\""},
      {"set", "set: set takes NAME=VALUE"},
      {"set a=1 chkBleach", "set: \"chkBleach\" is not NAME=VALUE"},
      {"plugin check a.zb1 b.zb3", "plugin check: plugin check reads .zb1 and .zb2 files"},
      {"cookies opera", "cookies: cookies takes \"ie\" or \"netscape\""},
      {"cookies ie eat 1",
       "cookies: cookies takes \"keep\" or \"drop\" and numbers of the list, ranges or sites"},
      {"cookies ie keep 3-1", "cookies: \"3-1\" is no number of the list"},
      {"schedule add 12/24/2030", "schedule add: schedule add takes a date and a time"},
      {"schedule polish", "schedule: schedule takes \"add\", \"remove\" or nothing"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.words);
    CHECK(read(row.words) == std::string(row.read));
  }
}

// Every example is a command line that the program takes.
TEST_CASE("the help of each command") {
  for (const Command& command : commands()) {
    CAPTURE(command.words);
    CHECK((command.run == nullptr) == (command.runWithoutPc != nullptr));
    CHECK(command.help.ends_with('.'));
    std::string example;
    bool quoted = false;
    for (const char c : command.example) {
      if (c == '"') quoted = !quoted;
      if (c != '"') example += quoted && c == ' ' ? '_' : c;
    }
    CHECK(read(example).starts_with(command.words));
    std::istringstream lines(commandHelp(command, "zub", 60) + programHelp("zub", 60));
    for (std::string line; std::getline(lines, line);) {
      const bool whole =
          line.find(" --pc ") != std::string::npos || line.find(" [--pc ") != std::string::npos;
      if (!whole) CHECK_MESSAGE(line.size() <= 60, line);
    }
  }
}
