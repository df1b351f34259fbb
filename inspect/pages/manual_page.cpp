// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <algorithm>
#include <set>
#include <string_view>

#include "help_texts.h"
#include "pages/option_table.h"
#include "pages/pages.h"

namespace inspect {

namespace {

/// Text in which nothing is a request or an escape of the formatter.
std::string escaped(std::string_view text) {
  std::string safe;
  if (text.starts_with('.') || text.starts_with('\'')) safe = "\\&";
  for (char const c : text) {
    if (c == '\\') {
      safe += "\\e";
    } else if (c == '-') {
      safe += "\\-";
    } else if (c == '\'') {
      safe += "\\(aq";
    } else {
      safe += c;
    }
  }
  return safe;
}

std::string item(std::string_view word, std::string_view meaning) {
  return ".TP\n.B " + escaped(word) + "\n" + escaped(meaning) + "\n";
}

std::string heading(std::string_view title) {
  std::string upper(title);
  std::ranges::transform(upper, upper.begin(),
                         [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
  return ".SH " + upper + "\n";
}

std::string option_item(OptionRow const& option) {
  std::string const letter = option.letter.empty() ? "" : option.letter + ", ";
  return item(letter + option.word + (option.value.empty() ? "" : " " + option.value), option.help);
}

/// Those that all commands have, and then those of some.
std::string options_of(std::vector<CommandPage> const& commands) {
  std::string text;
  std::set<std::string> told;
  for (CommandPage const& command : commands) {
    for (OptionRow const& option : command.options) {
      if (told.insert(option.word).second) text += option_item(option);
    }
  }
  return text;
}

}  // namespace

std::string manual_page() {
  std::vector<CommandPage> const commands = option_table();
  std::string page = ".TH SIVANE\\-INSPECT 1 \"\" \"sivane " SIVANE_VERSION "\" \"User Commands\"\n";
  page += heading("Name") + "sivane\\-inspect \\- shows what is in an MPEG\\-2/DVB transport stream\n";
  page += heading("Synopsis") +
          ".B sivane\\-inspect\n.I COMMAND\n[\\fIOPTION\\fR]...\n.I SOURCE\n.br\n.B sivane\\-inspect "
          "\\-\\-help\n";
  page += heading("Description") +
          "Reads a transport stream, or sections that were saved of one, and shows its tables.\n" +
          heading("Commands");
  for (CommandPage const& command : commands) page += item(command.name, command.help);
  page += heading("Options") + options_of(commands);
  for (HelpList const& list : help_lists()) {
    page += heading(list.title);
    for (auto const& [word, meaning] : list.rows) page += item(word, meaning);
  }
  page +=
      heading("Examples") + item("sivane-inspect services recording.ts", "The services of a recording.") +
      item("sivane-inspect dump --handle 0x11:0x42 udp://@239.1.2.3:5000",
           "The service descriptions of a stream on the network, as they come.") +
      item("sivane-inspect check --json recording.ts", "What is wrong with a recording, for a program.") +
      item("sivane-inspect events --seconds 30 rtp://@239.1.2.3:5004", "The events of the next half minute.");
  return page;
}

}  // namespace inspect
