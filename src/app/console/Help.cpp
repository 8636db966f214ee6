#include "app/console/Help.h"

#include <algorithm>

#include "app/console/Terminal.h"
#include "base/Text.h"

namespace zub {
namespace {

constexpr std::size_t WidestText = 100;  // longer lines are hard to read

// Words in lines of this width, those behind the first one indented; the first begins behind `lead`.
std::string wrapped(std::string lead, std::string_view text, std::size_t indent, std::size_t width) {
  std::string result;
  std::string line = std::move(lead);
  line.resize(std::max(line.size(), indent), ' ');
  bool empty = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!empty && line.size() + 1 + word.size() > width) {
      result += line + "\n";
      line.assign(indent, ' ');
      empty = true;
    }
    line += (empty ? "" : " ") + std::string(word);
    empty = false;
  }
  return result + line + "\n";
}

// A name on a line of its own where it does not fit before the text.
std::string row(const std::string& name, std::string_view text, std::size_t indent, std::size_t width) {
  if (name.size() + 4 <= indent) return wrapped("  " + name + "  ", text, indent, width);
  return "  " + name + "\n" + wrapped("", text, indent, width);
}

std::string optionText(const CommandOption& option) {
  return joined({option.name, option.value.empty() ? "" : " ", option.value});
}

std::string wordsAndArguments(const Command& command) {
  return joined({command.words, command.arguments.empty() ? "" : " ", command.arguments});
}

}  // namespace

std::string usageOf(const Command& command, const std::string& program) {
  return program + (command.run == nullptr ? " " : " [--pc FOLDER] ") + wordsAndArguments(command) +
         (command.options.empty() ? "" : " [OPTION...]");
}

std::string summaryOf(const Command& command) {
  const auto end = std::min(command.help.find(". "), command.help.size() - 1);
  return std::string(command.help.substr(0, end));
}

std::string programHelp(const std::string& program, std::size_t width) {
  width = std::min(width, WidestText);
  std::string text = "Zubrane, a privacy cleaner.\n\n";
  constexpr std::size_t usageIndent = 30;
  text += row(program + " --pc FOLDER COMMAND", "works on a PC kept in a folder", usageIndent, width);
  text += row(program + " --pc FOLDER --user NAME COMMAND",
              "the same, as the user of this branch of HKEY_USERS", usageIndent, width);
  text += row(program + " COMMAND", "works on the PC that it runs on (Windows only)", usageIndent, width);
  text += row(program + " COMMAND --help", "tells all of a command", usageIndent, width);
  text += "  " + program + " --version\n";
  text += "\nCommands:\n";
  constexpr std::size_t commandIndent = 19;
  for (const Command& command : commands()) {
    text += row(std::string(command.words), summaryOf(command), commandIndent, width);
  }
  text += "\n" + wrapped("",
                         "Exit status: 0 all that was tried went, 1 something could not be removed or looked "
                         "at, 2 wrong usage or an unusable PC, 130 (143, 129) the wash was interrupted.",
                         0, width);
  return text;
}

std::string commandHelp(const Command& command, const std::string& program, std::size_t width) {
  width = std::min(width, WidestText);
  std::string text = usageOf(command, program) + "\n\n" + wrapped("", command.help, 0, width);
  if (!command.options.empty()) text += "\n";
  constexpr std::size_t optionIndent = 24;
  for (const CommandOption& option : command.options) {
    text += row(optionText(option), option.help, optionIndent, width);
  }
  return text + "\nExample:\n  " + program + " " + std::string(command.example) + "\n";
}

void checkHelp(const Given& given) {
  std::string words;
  for (const std::string& word : given.arguments) words += (words.empty() ? "" : " ") + word;
  if (words.empty() || std::ranges::count(commands(), words, &Command::words) == 1) return;
  throw UsageError("there is no command \"" + words + "\"");
}

int helpCommand(const Given& given, const std::string& program) {
  std::string words;
  for (const std::string& word : given.arguments) words += (words.empty() ? "" : " ") + word;
  const std::size_t width = terminal::width(terminal::Stream::Output);
  const auto command = std::ranges::find(commands(), words, &Command::words);
  terminal::write(terminal::Stream::Output,
                  words.empty() ? programHelp(program, width) : commandHelp(*command, program, width));
  return exitStatus::Done;
}

}  // namespace zub
