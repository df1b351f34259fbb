// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The sections of the case files. "hex" parses into a new table and "more" into the one at hand, which
// "reset" empties; behind each stands what comes of it: "throws", "dump" (without the header's lines) and
// "base", in which the stream is then. "holds" lists the tags that the table's sets hold in the order of
// their rows, those of each entry in braces, and a table's own list of CA descriptors in parentheses.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <map>
#include <sstream>

#include "case_file.h"
#include "expect_error.h"
#include "heap_block.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

void add(std::string& text, std::string const& item) {
  if (!text.empty() && !item.empty()) text += ' ';
  text += item;
}

std::string two_digits(int byte) {
  constexpr char digits[] = "0123456789ABCDEF";
  return {digits[byte / 16], digits[byte % 16]};
}

template <class Descriptor>
void add_tags(std::string& text, std::vector<Descriptor> const& descriptors) {
  for (Descriptor const& descriptor : descriptors) add(text, two_digits(descriptor.tag));
}

std::string tags(DescriptorSet const& set) {
  std::string text;
#define SIVANE_ROW(tag, Class, getter, element) add_tags(text, set.getter());
#include <sivane/descriptors/descriptor_rows.inc>
  return text;
}

std::string tags(AitDescriptorSet const& set) {
  std::string text;
#define SIVANE_ROW(tag, Class, getter, element) add_tags(text, set.getter());
#include <sivane/descriptors/ait_descriptor_rows.inc>
  return text;
}

std::string tags(Rst::Status const&) { return ""; }

template <class Entry>
void add_entries(std::string& text, std::vector<Entry> const& entries) {
  for (Entry const& entry : entries) add(text, '{' + tags(entry) + '}');
}

template <class Table>
std::string held(Table const& table) {
  std::string text;
  if constexpr (requires { table.ca_descriptors; }) {
    add_tags(text, table.ca_descriptors);
    text = '(' + text + ')';
  }
  if constexpr (requires { tags(table); }) add(text, tags(table));
  if constexpr (requires { table.stream_infos; }) add_entries(text, table.stream_infos);
  if constexpr (requires { table.service_infos; }) add_entries(text, table.service_infos);
  if constexpr (requires { table.event_infos; }) add_entries(text, table.event_infos);
  if constexpr (requires { table.status_infos; }) add_entries(text, table.status_infos);
  if constexpr (requires { table.application_infos; }) add_entries(text, table.application_infos);
  if constexpr (requires { table.data; }) {
    for (unsigned char const byte : table.data) add(text, two_digits(byte));
  }
  return text;
}

template <class Table>
constexpr bool is_long = std::is_base_of_v<PsiTableBase, Table>;

/// Without the eight lines of the header.
template <class Table>
std::string dumped(Table const& table, std::ostringstream& os) {
  table.dump_state(os);
  std::string text = os.str();
  for (int i = 0; is_long<Table> && i < 8; ++i) text.erase(0, text.find('\n') + 1);
  return text;
}

struct Step {
  std::map<std::string, std::string> lines;  // by keyword, each with its end
  int number = 0;
};

bool is_action(std::string const& keyword) {
  return keyword == "hex" || keyword == "more" || keyword == "reset";
}

std::vector<Step> steps_of(Block const& block) {
  std::vector<Step> steps;
  std::string last;
  for (auto const& [text, number] : block.lines) {
    std::string const keyword = text.substr(0, text.find(' '));
    if (is_action(keyword) && keyword != last) steps.push_back({{}, number});
    last = keyword;
    std::string& lines = steps.at(steps.size() - 1).lines[keyword];
    if (text.size() > 7) lines += text.substr(7) + '\n';
  }
  return steps;
}

Bytes section_of(Step const& step) {
  auto const at = step.lines.contains("hex") ? step.lines.find("hex") : step.lines.find("more");
  return at == step.lines.end() ? Bytes() : assemble(at->second);
}

template <class Table>
void reset(Table& table) {
  if constexpr (is_long<Table>) {
    table.reset();
    EXPECT_FALSE(table.valid);
  } else {
    table._reset();
  }
}

template <class Table>
void act(Table& table, Step const& step) {
  if (step.lines.contains("reset")) return reset(table);
  if (step.lines.contains("hex")) table = Table();
  HeapBlock const section(section_of(step));
  bool const was_valid = table.valid;
  auto const failure = step.lines.find("throws");
  bool const fails = failure != step.lines.end();
  EXPECT_EQ(thrown([&] { table.Parse(section.data()); }) + '\n', fails ? failure->second : "\n");
  EXPECT_EQ(table.valid, !fails || was_valid);
}

template <class Table>
void expect_outcome(Table const& table, Step const& step) {
  std::ostringstream os;
  std::string const dump = dumped(table, os);
  std::string const tags = held(table);
  bool const is_decimal = (os.flags() & std::ios::dec) != 0;
  std::map<std::string, std::string> const outcome = {
      {"dump", dump}, {"holds", tags.empty() ? "" : tags + '\n'}, {"base", is_decimal ? "dec\n" : "hex\n"}};
  for (auto const& [keyword, lines] : step.lines) {
    if (is_action(keyword) || keyword == "throws") continue;
    EXPECT_EQ(outcome.at(keyword), lines) << keyword;
  }
}

template <class Table>
void run_steps(std::string const& file) {
  for (Block const& block : read_blocks(file)) {
    Table table;
    for (Step const& step : steps_of(block)) {
      const ::testing::ScopedTrace trace(file.c_str(), step.number, block.title);
      act(table, step);
      expect_outcome(table, step);
    }
  }
}

/// The longest section of a file that parses.
Bytes rich_section(std::string const& file) {
  Bytes longest;
  for (Block const& block : read_blocks(file)) {
    for (Step const& step : steps_of(block)) {
      Bytes const section = section_of(step);
      if (!step.lines.contains("throws") && section.size() > longest.size()) longest = section;
    }
  }
  return longest;
}

struct Tally {
  int parsed = 0;
  int thrown = 0;
};

std::size_t claimed_size(Bytes const& section) { return 3u + (section[1] & 0xFu) * 256u + section[2]; }

/// Parses a damaged section with its checksum put right; one that claims more than there is must say so.
template <class Table>
void parse_damaged(Bytes bytes, Tally& tally) {
  bool const fits = claimed_size(bytes) <= bytes.size();
  if (fits) bytes.resize(claimed_size(bytes));
  if (fits && is_long<Table> && bytes.size() >= 4) repair_crc(bytes);
  HeapBlock const section(bytes);
  Table table;
  std::string const failure = thrown([&] { table.Parse(section.data(), bytes.size()); });
  EXPECT_TRUE(fits || failure == "no_errorcode too little data") << failure;
  EXPECT_EQ(table.valid, failure.empty());
  ++(failure.empty() ? tally.parsed : tally.thrown);
  Table const copy = table;
  std::ostringstream os, os_of_copy;
  EXPECT_EQ(dumped(copy, os_of_copy), dumped(table, os));
}

template <class Table>
void damage(std::string const& file) {
  Bytes const whole = rich_section(file);
  Tally corrupted, cut;
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (unsigned int change = 1; change <= 0xFF; ++change) {
      Bytes bytes = whole;
      bytes[at] = static_cast<unsigned char>(bytes[at] ^ change);
      parse_damaged<Table>(bytes, corrupted);
    }
  }
  for (std::size_t size = 3; size < whole.size(); ++size) {
    Bytes bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_TRUE(throws([&] { Table().Parse(HeapBlock(bytes).data(), size); }, "too little data"));
    bytes[1] = static_cast<unsigned char>((bytes[1] & 0xF0) | (size - 3) >> 8);
    bytes[2] = static_cast<unsigned char>((size - 3) & 0xFF);
    parse_damaged<Table>(bytes, cut);
  }
  EXPECT_GT(corrupted.parsed, 0);
  EXPECT_GT(corrupted.thrown, 0);
  EXPECT_GT(cut.thrown, 0);
}

struct TableClass {
  char const* name;
  void (*run_steps)(std::string const& file);
  void (*damage)(std::string const& file);
};

constexpr TableClass tables[] = {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) {#Class, run_steps<Class>, damage<Class>},
#include <sivane/tables/table_rows.inc>
};

class Tables : public ::testing::TestWithParam<TableClass> {
 protected:
  static std::string file() { return std::string("tables/cases/") + GetParam().name + ".txt"; }
};
INSTANTIATE_TEST_SUITE_P(Files, Tables, ::testing::ValuesIn(tables),
                         [](auto const& table) { return std::string(table.param.name); });

TEST_P(Tables, ParseAndDumpAndReset) { GetParam().run_steps(file()); }

// Under the address sanitizer no byte behind the section is looked at, and all that is thrown is `error`.
TEST_P(Tables, SurviveEveryCutAndEveryWrongByte) { GetParam().damage(file()); }

}  // namespace
}  // namespace sivane::testing
