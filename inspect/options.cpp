// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "input/dvb_input.h"
#include "input/input_kind.h"
#include "nearest_word.h"

namespace inspect {

namespace {

constexpr int last_pid = 0x1FFF;
constexpr int last_table_id = 0xFF;

/// A number as C writes it: hexadecimal after 0x, octal after 0, decimal. Nothing if it is none, or above
/// `last`.
std::optional<int> c_number(std::string_view text, int last) {
  int base = 10;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    base = 16;
    text.remove_prefix(2);
  } else if (text.starts_with('0')) {
    base = 8;
  }
  unsigned int number = 0;
  auto const [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (fault != std::errc() || end != text.data() + text.size()) return {};
  if (number > static_cast<unsigned int>(last)) return {};
  return static_cast<int>(number);
}

Handle handle_of(std::string const& text) {
  std::size_t const colon = text.find(':');
  if (colon == std::string::npos) throw CLI::ValidationError("--handle", text + " is not PID:TABLE_ID");
  auto const pid = c_number(std::string_view(text).substr(0, colon), last_pid);
  auto const table_id = c_number(std::string_view(text).substr(colon + 1), last_table_id);
  if (!pid) throw CLI::ValidationError("--handle", text + ": the PID is not a number from 0 to 0x1fff");
  if (!table_id)
    throw CLI::ValidationError("--handle", text + ": the table id is not a number from 0 to 0xff");
  return {*pid, *table_id};
}

Input input_of(CommandRow const& row, std::string const& name) {
  auto const found = std::ranges::find(row.inputs, name, name_of);
  if (found != row.inputs.end()) return *found;
  std::vector<std::string> words;
  std::string listed;
  for (Input const input : row.inputs) {
    words.emplace_back(name_of(input));
    listed += (listed.empty() ? "" : ", ") + words.back();
  }
  throw CLI::ValidationError(
      "--input", std::string(row.name) + " reads " + listed + " and not " + name + suggestion(name, words));
}

/// What is compared may be of two kinds, and says so itself.
void tell_kinds_apart(Options& options) {
  if (options.source == "-" && options.other_source == "-")
    throw CLI::ValidationError("B", "standard input cannot be compared with itself");
  options.other_input = kind_of(options.other_source, options.input);
  options.input = kind_of(options.source, options.input);
  if (options.input != options.other_input && is_lossy(options.input, options.other_input))
    throw CLI::ValidationError(
        "B", "JSON has the texts in UTF-8 and a document in bytes: compare either with a stream");
}

Parsing parsing_of(CommandRow const& row, Arguments const& arguments) {
  if (arguments.strict && arguments.tolerant) throw CLI::ValidationError("--strict", "not with --tolerant");
  if (arguments.strict) return Parsing::strict;
  return arguments.tolerant ? Parsing::tolerant : row.parsing;
}

sivane::charset::Options charset_of(Arguments const& arguments) {
  sivane::charset::Options options{arguments.charset, arguments.charset_always, " ", "", ""};
  try {
    sivane::charset::Converter const tried(options);
  } catch (std::invalid_argument const& reason) {
    throw CLI::ValidationError("--charset", reason.what());
  }
  return options;
}

void refuse_negative_numbers(Arguments const& arguments) {
  constexpr double longest = 1e9;  // which is 30 years
  if (arguments.seconds && !(*arguments.seconds >= 0 && *arguments.seconds <= longest))
    throw CLI::ValidationError("--seconds", "not a number from 0 to 1,000,000,000");
  if (arguments.packets && *arguments.packets < 0)
    throw CLI::ValidationError("--packets", "not a number from 0 on");
}

void refuse_what_has_no_packets(Options const& options) {
  if (options.input == Input::ts || options.input == Input::packets) return;
  if (!options.handles.empty())
    throw CLI::ValidationError("--handle", "only a transport stream has PIDs (--input ts or packets)");
  if (options.packets)
    throw CLI::ValidationError("--packets", "only a transport stream has packets (--input ts or packets)");
  if (is_dvb(options.source))
    throw CLI::ValidationError("--input", "an adapter gives packets (--input ts or packets)");
}

}  // namespace

Options understand(CommandRow const& row, Arguments const& arguments) {
  refuse_negative_numbers(arguments);
  Options options;
  options.command = &row;
  options.input = input_of(row, arguments.input);
  for (std::string const& text : arguments.handles) options.handles.push_back(handle_of(text));
  options.seconds = arguments.seconds;
  options.packets = arguments.packets;
  options.follow = arguments.follow;
  options.changes = arguments.changes;
  options.quiet = arguments.quiet;
  options.as_json = arguments.as_json;
  options.with_names = arguments.with_names;
  options.source = arguments.source;
  options.other_source = arguments.other_source;
  options.charset = charset_of(arguments);
  options.parsing = parsing_of(row, arguments);
  if (row.reads_two) tell_kinds_apart(options);
  refuse_what_has_no_packets(options);
  if (options.changes && row.prints_at_end())
    throw CLI::ValidationError("--changes", std::string(row.name) + " prints each thing once anyway");
  return options;
}

}  // namespace inspect
