// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "pages/option_table.h"
#include "pages/pages.h"

namespace inspect {

namespace {

constexpr char const* legend = "# Made from the options of sivane-inspect: change those.\n";

std::string joined(std::vector<std::string> const& words) {
  std::string text;
  for (std::string const& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

std::string names_of(std::vector<CommandPage> const& commands) {
  std::string names;
  for (CommandPage const& command : commands) names += command.name + ' ';
  return names;
}

std::vector<std::string> words_of(OptionRow const& option) {
  return option.letter.empty() ? std::vector{option.word} : std::vector{option.letter, option.word};
}

/// In single quotes, with a backslash before each of the `special` characters.
std::string quoted(std::string const& text, std::string_view special = {}) {
  std::string safe = "'";
  for (char const c : text) {
    if (special.find(c) != std::string_view::npos) safe += '\\';
    safe += c == '\'' ? "'\\''" : std::string(1, c);
  }
  return safe + "'";
}

/// Words of options that take a value other than a kind of input, each followed by `|` but the last.
std::string with_values(CommandPage const& command) {
  std::string words;
  for (OptionRow const& option : command.options) {
    if (option.value.empty() || option.word == "--input") continue;
    for (std::string const& word : words_of(option)) words += (words.empty() ? "" : " | ") + word;
  }
  return words;
}

std::string bash_command(CommandPage const& command) {
  std::string words;
  for (OptionRow const& option : command.options) words += joined(words_of(option)) + ' ';
  return "    " + command.name + ")\n      kinds=" + quoted(joined(command.kinds)) +
         "\n      options=" + quoted(words) + "\n      ;;\n";
}

std::string zsh_option(CommandPage const& command, OptionRow const& option) {
  std::string value;
  if (option.word == "--input") {
    value = ":kind:(" + joined(command.kinds) + ")";
  } else if (!option.value.empty()) {
    value = ":" + option.value + ": ";
  }
  std::string lines;
  for (std::string const& word : words_of(option)) {
    lines += "        " + quoted(word) + quoted("[" + option.help + "]", ":") + quoted(value) + " \\\n";
  }
  return lines;
}

}  // namespace

std::string bash_completion() {
  std::vector<CommandPage> const commands = option_table();
  std::string text =
      std::string(legend) +
      "_sivane_inspect() {\n"
      "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} kinds options\n"
      "  COMPREPLY=()\n"
      "  if ((COMP_CWORD == 1)); then\n"
      "    mapfile -t COMPREPLY < <(compgen -W " +
      quoted(names_of(commands) + "--help --version") +
      " -- \"$current\")\n"
      "    return\n"
      "  fi\n"
      "  case ${COMP_WORDS[1]} in\n";
  for (CommandPage const& command : commands) text += bash_command(command);
  return text +
         "  esac\n"
         "  case $previous in\n"
         "    -i | --input) mapfile -t COMPREPLY < <(compgen -W \"$kinds\" -- \"$current\") ;;\n"
         "    " +
         with_values(commands.front()) +
         ") ;;\n"
         "    *)\n"
         "      if [[ $current == -* ]]; then\n"
         "        mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$current\")\n"
         "      else\n"
         "        mapfile -t COMPREPLY < <(compgen -f -- \"$current\")\n"
         "      fi\n"
         "      ;;\n"
         "  esac\n"
         "}\n"
         "complete -o filenames -F _sivane_inspect sivane-inspect\n";
}

std::string zsh_completion() {
  std::string text = std::string("#compdef sivane-inspect\n") + legend +
                     "_sivane_inspect() {\n"
                     "  local curcontext=$curcontext state line\n"
                     "  local -a commands=(\n";
  std::string cases;
  for (CommandPage const& command : option_table()) {
    text += "    " + quoted(command.name) + quoted(":" + command.help) + "\n";
    cases += "    " + command.name + ")\n      _arguments -S \\\n";
    for (OptionRow const& option : command.options) cases += zsh_option(command, option);
    cases += "        '1:source:_files'\n      ;;\n";
  }
  return text +
         "  )\n"
         "  _arguments -C '(- *)--help[Tell the commands]' '(- *)--version[Tell the version]' \\\n"
         "    '1: :->command' '*::argument:->argument'\n"
         "  if [[ $state == command ]]; then\n"
         "    _describe command commands\n"
         "    return\n"
         "  fi\n"
         "  case $words[1] in\n" +
         cases +
         "  esac\n"
         "}\n"
         "_sivane_inspect \"$@\"\n";
}

std::string fish_completion() {
  std::string text =
      std::string(legend) +
      "complete -c sivane-inspect -n __fish_use_subcommand -f -l help -d 'Tell the commands'\n"
      "complete -c sivane-inspect -n __fish_use_subcommand -f -l version -d 'Tell the version'\n";
  for (CommandPage const& command : option_table()) {
    text += "complete -c sivane-inspect -n __fish_use_subcommand -f -a " + command.name + " -d " +
            quoted(command.help, "\\") + "\n";
    for (OptionRow const& option : command.options) {
      text += "complete -c sivane-inspect -n '__fish_seen_subcommand_from " + command.name + "'";
      if (!option.letter.empty()) text += " -s " + option.letter.substr(1);
      text += " -l " + option.word.substr(2);
      if (option.word == "--input") {
        text += " -x -a " + quoted(joined(command.kinds));
      } else if (!option.value.empty()) {
        text += " -x";
      }
      text += " -d " + quoted(option.help, "\\") + "\n";
    }
  }
  return text;
}

}  // namespace inspect
