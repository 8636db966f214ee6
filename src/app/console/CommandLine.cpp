#include "app/console/CommandLine.h"

#include <algorithm>
#include <optional>

#include "app/console/NearMiss.h"
#include "base/Text.h"

namespace zub {
namespace {

bool isHelp(std::string_view word) {
  return word == "--help" || word == "-h";
}

// Words that are taken one by one. "--name VALUE" and "--name=VALUE" are the same; "--" ends the options.
class Words {
 public:
  explicit Words(std::vector<std::string> words) : words_(std::move(words)) {}

  struct Word {
    std::string text;  // an option's without its value
    bool option = false;
    std::optional<std::string> value;
  };
  std::optional<Word> take() {
    if (next_ == words_.size()) return std::nullopt;
    const std::string& text = words_[next_++];
    if (plain_ || text.size() < 2 || (!text.starts_with("--") && text != "-h")) return Word{text, false, {}};
    const auto sign = text.find('=');
    if (sign == std::string::npos) return Word{text, true, {}};
    return Word{text.substr(0, sign), true, text.substr(sign + 1)};
  }
  void needValue(Word& option, std::string_view what) {
    if (!option.value && next_ < words_.size()) option.value = words_[next_++];
    if (!option.value || option.value->empty()) throw UsageError(joined({option.text, " takes ", what}));
  }
  void endOptions() { plain_ = true; }
  std::vector<std::string> rest() const {
    return {words_.begin() + static_cast<std::ptrdiff_t>(next_), words_.end()};
  }

 private:
  std::vector<std::string> words_;
  std::size_t next_ = 0;
  bool plain_ = false;
};

// Takes out what may stand anywhere; the words that stay.
std::vector<std::string> takeCommonOptions(CommandLine& line, const std::vector<std::string>& typed) {
  Words words(typed);
  std::vector<std::string> others;
  while (auto word = words.take()) {
    if (!word->option) {
      others.push_back(word->text);
    } else if (word->text == "--") {
      others.push_back(word->text);
      for (const std::string& plain : words.rest()) others.push_back(plain);
      break;
    } else if (word->text == "--pc") {
      words.needValue(*word, "a folder");
      line.folder = *word->value;
    } else if (word->text == "--user") {
      words.needValue(*word, "a name");
      line.user = *word->value;
    } else if (isHelp(word->text)) {
      line.help = true;
    } else {
      others.push_back(word->value ? word->text + "=" + *word->value : word->text);
    }
  }
  return others;
}

// The second words of the commands that begin with a word.
std::vector<std::string> familyOf(const std::string& word) {
  std::vector<std::string> words;
  for (const Command& command : commands()) {
    if (command.words.starts_with(word + " ")) words.emplace_back(command.words.substr(word.size() + 1));
  }
  return words;
}

[[noreturn]] void refuseCommand(const std::vector<std::string>& words) {
  const std::vector<std::string> family = familyOf(words[0]);
  if (!family.empty() && words.size() > 1) {
    throw UsageError(
        joined({"there is no command \"", words[0], " ", words[1], "\"", didYouMean(words[1], family)}));
  }
  std::vector<std::string> names;
  for (const Command& command : commands()) names.emplace_back(command.words);
  throw UsageError("there is no command \"" + words[0] + "\"" + didYouMean(words[0], names));
}

// The command whose words come first; they are taken away.
const Command& takeCommand(std::vector<std::string>& words) {
  for (const Command& command : commands()) {
    const bool two = contains(command.words, " ");
    if (two && words.size() < 2) continue;
    if (command.words != (two ? words[0] + " " + words[1] : words[0])) continue;
    words.erase(words.begin(), words.begin() + (two ? 2 : 1));
    return command;
  }
  refuseCommand(words);
}

const CommandOption& optionOf(const Command& command, const std::string& name) {
  const auto option = std::ranges::find(command.options, name, &CommandOption::name);
  if (option != command.options.end()) return *option;
  std::vector<std::string> names{"--pc", "--user", "--help"};
  for (const CommandOption& known : command.options) names.emplace_back(known.name);
  throw UsageError(joined({command.words, " takes no ", name, didYouMean(name, names)}));
}

Given given(const Command& command, Words words) {
  Given given;
  while (auto word = words.take()) {
    if (!word->option) {
      given.arguments.push_back(word->text);
    } else if (word->text == "--") {
      words.endOptions();
    } else {
      const CommandOption& option = optionOf(command, word->text);
      if (!option.value.empty()) words.needValue(*word, option.value);
      if (option.value.empty() && word->value) throw UsageError(word->text + " takes no value");
      given.options.emplace_back(word->text, word->value.value_or(""));
    }
  }
  return given;
}

void check(const Command& command, const Given& given) {
  if (command.check != nullptr) return command.check(given);
  if (!given.arguments.empty()) throw UsageError(joined({command.words, " takes no arguments"}));
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  try {
    const auto ordered = std::ranges::find_if(commands(), [&words](const Command& command) {
      return command.ordered && !words.empty() && words[0] == command.words;
    });
    if (ordered != commands().end()) {
      line.command = &*ordered;
      line.given.arguments.assign(words.begin() + 1, words.end());
      line.help = words.size() == 2 && (isHelp(words[1]) || words[1] == "help");
      if (!line.help) check(*line.command, line.given);
      return line;
    }
    std::vector<std::string> others = takeCommonOptions(line, words);
    line.version = !others.empty() && others[0] == "--version";
    if (line.version || (line.help && others.empty())) return line;
    if (others.empty()) throw UsageError("no command is given");
    if (others[0].starts_with("-")) {
      throw UsageError("there is no option " + others[0] +
                       didYouMean(others[0], {"--pc", "--user", "--help", "--version"}));
    }
    line.command = &takeCommand(others);
    line.help = line.help || others == std::vector<std::string>{"help"};
    if (line.help) return line;
    if (!line.user.empty() && line.folder.empty()) throw UsageError("--user takes a name, with --pc FOLDER");
    line.given = given(*line.command, Words(others));
    check(*line.command, line.given);
  } catch (const UsageError& error) {
    throw CommandUsageError(error.what(), line.command);
  }
  return line;
}

}  // namespace zub
