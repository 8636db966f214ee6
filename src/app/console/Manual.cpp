// The manual page and the completions of the shells, from the table of commands.
#include <algorithm>

#include "app/console/Commands.h"
#include "app/console/Help.h"
#include "app/console/Terminal.h"
#include "base/Text.h"
#include "plugins/Catalogue.h"

namespace zub {
namespace {

// Text for roff: no line begins with its own signs.
std::string roff(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '\\')
      result += "\\e";
    else if (c == '-')
      result += "\\-";
    else
      result += c;
  }
  return result.starts_with('.') || result.starts_with('\'') ? "\\&" + result : result;
}

std::string manualPage() {
  std::string page =
      ".TH ZUB 1\n.SH NAME\nzub \\- privacy cleaner for a Windows PC kept in a folder\n"
      ".SH SYNOPSIS\n.B zub\n.RB [ \\-\\-pc\n.IR FOLDER ]\n.RB [ \\-\\-user\n.IR NAME ]\n.I COMMAND\n"
      ".SH DESCRIPTION\nRemoves the traces that browsing and work leave on a Windows PC: on the mounted disk "
      "of one that is "
      "not running, or on a PC made with\n.BR \"zub new\" .\n.SH COMMANDS\n";
  for (const Command& command : commands()) {
    page += ".TP\n.B " + roff(command.words) + "\n";
    if (!command.arguments.empty()) page += roff(command.arguments) + "\n.br\n";
    page += roff(command.help) + "\n";
    for (const CommandOption& option : command.options) {
      page += ".RS\n.TP\n.B " + roff(joined({option.name, option.value.empty() ? "" : " ", option.value})) +
              "\n" + roff(option.help) + "\n.RE\n";
    }
    page += ".RS\n.PP\nExample:\n.B zub " + roff(command.example) + "\n.RE\n";
  }
  page +=
      ".SH EXIT STATUS\n0 all that was tried went, 1 something could not be removed or looked at, 2 wrong "
      "usage or an unusable "
      "PC, 130 (143, 129) SIGINT (SIGTERM, SIGHUP) ended a wash.\n";
  return page;
}

// In single quotes of a shell.
std::string quoted(std::string_view text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

// Each command's words, its second ones too, and its options; plugin names where they are asked for.
std::string tables() {
  std::string first;
  std::string cases;
  std::vector<std::string> seen;
  for (const Command& command : commands()) {
    const std::string word(command.words.substr(0, command.words.find(' ')));
    if (std::ranges::count(seen, word) > 0) continue;
    seen.push_back(word);
    first += (first.empty() ? "" : " ") + word;
    std::string following = "--help";
    for (const Command& other : commands()) {
      if (other.words.starts_with(word + " "))
        following += " " + std::string(other.words.substr(word.size() + 1));
      if (other.words != word && !other.words.starts_with(word + " ")) continue;
      for (const CommandOption& option : other.options) following += " " + std::string(option.name);
    }
    cases += "    " + word + ") words=" + quoted(following) + " ;;\n";
  }
  std::string plugins;
  const Catalogue catalogue = builtInCatalogue();
  for (const CatalogueRow& row : catalogue.rows()) plugins += " " + quoted(row.name);
  return "_zub_commands=" + quoted(first + " --pc --user --help --version") + "\n_zub_plugins=(" + plugins +
         " )\n_zub_words() {\n  local words=$_zub_commands\n  case $1 in\n" + cases +
         "  esac\n  echo \"$words\"\n}\n";
}

constexpr std::string_view bash = R"script(_zub() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      --pc|--user) ((++i)) ;;
      -*) ;;
      *) command=${COMP_WORDS[i]}; break ;;
    esac
  done
  local IFS=$'\n'
  if [[ $before == --plugin || ($before == show && $command == plugin) ]]; then
    local name
    word=${word//[\\\"\']/}
    for name in "${_zub_plugins[@]}"; do
      [[ ${name,,} == "${word,,}"* ]] && COMPREPLY+=("$(printf %q "$name")")
    done
  elif [[ $before == --pc || $before == --report || $command == new ]]; then
    COMPREPLY=($(compgen -f -- "$word"))
  else
    COMPREPLY=($(compgen -W "$(_zub_words "$command" | tr ' ' '\n')" -- "$word"))
  fi
}
complete -F _zub zub
)script";

constexpr std::string_view zsh = R"script(_zub() {
  local before=$words[CURRENT-1] command= i
  for ((i = 2; i < CURRENT; ++i)); do
    case $words[i] in
      --pc|--user) ((++i)) ;;
      -*) ;;
      *) command=$words[i]; break ;;
    esac
  done
  if [[ $before == --plugin || ($before == show && $command == plugin) ]]; then
    compadd -M 'm:{a-z}={A-Z}' -a _zub_plugins
  elif [[ $before == --pc || $before == --report || $command == new ]]; then
    _files
  else
    compadd -- ${=$(_zub_words "$command")}
  fi
}
[[ $funcstack[1] == _zub ]] && _zub "$@" || compdef _zub zub
)script";

}  // namespace

void checkCompletion(const Given& given) {
  if (given.arguments.size() != 1 || (given.arguments[0] != "bash" && given.arguments[0] != "zsh")) {
    throw UsageError("completion takes \"bash\" or \"zsh\"");
  }
}

int completionCommand(const Given& given, const std::string&) {
  const bool forBash = given.arguments[0] == "bash";
  terminal::write(terminal::Stream::Output,
                  (forBash ? "" : "#compdef zub\n") + tables() + std::string(forBash ? bash : zsh));
  return exitStatus::Done;
}

int manualCommand(const Given&, const std::string&) {
  terminal::write(terminal::Stream::Output, manualPage());
  return exitStatus::Done;
}

}  // namespace zub
