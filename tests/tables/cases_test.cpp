// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The sections of the case files, one file for each table class, and what is left of a long one that is
// damaged.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <sstream>

#include "expect_error.h"
#include "held_tags.h"
#include "memory_dom.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

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

template <class Table>
std::string saved(Table const& table) {
  MemoryDom dom;
  auto const element = dom.element(u"it");
  bool const answer = table.SaveSection(dom.document().get(), element.get());
  EXPECT_NE(answer, (std::is_same_v<Table, DsmCC>));  // of which a document has the header alone
  return written(element.get());
}

/// The text of a table id, told from that of one that the class refuses.
template <class Table>
std::string text_of_id(int table_id) {
  Table table;
  table.table_id = table_id;
  std::string const text = table.get_table_id_text();
  if constexpr (std::is_same_v<Table, Eit>) {
    EXPECT_EQ(Eit::get_table_id_text(table_id), text);
  }
  return (table.is_valid_tablesid() ? "" : "refused: ") + text;
}

/// The section_syntax_indicators that the class takes.
template <class Table>
std::string indicators() {
  std::string taken;
  for (int const indicator : {0, 1}) {
    bool is_taken = false;
    if constexpr (is_long<Table>) {
      is_taken = Table().is_valid_syntax_indicator(indicator);
    } else {
      is_taken = Table().is_syntax_indicator_valid(indicator);
    }
    if (is_taken) add(taken, std::to_string(indicator));
  }
  return taken + '\n';
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

/// Whether the frame refuses a section; the size of a long one may be too small for its header.
template <class Table>
bool by_frame(error const& failure, HeapBlock const& section) {
  int const size = section.size();
  bool const is_cut = size < 3 || section_size(section.data()) > size || (is_long<Table> && size < 8);
  return is_cut || failure.offset <= 1 || failure.text == "crc error";
}

/// A tolerant `Parse` lists first what a strict one throws, unless the frame refuses the section.
template <class Table>
void expect_listed(HeapBlock const& section, std::optional<error> const& failure) {
  Table table;
  ParseOptions options;
  auto const parse = [&] { table.Parse(section.data(), static_cast<std::size_t>(section.size()), options); };
  bool const is_refused = failure && by_frame<Table>(*failure, section);
  EXPECT_EQ(caught_error(parse).has_value(), is_refused);
  EXPECT_EQ(table.valid, !is_refused);
  EXPECT_EQ(options.problems.empty(), !failure || is_refused);
  if (options.problems.empty() || !failure) return;
  ParseProblem const& first = options.problems[0];
  EXPECT_TRUE(first.offset == failure->offset && first.code == failure->code && first.text == failure->text)
      << first.offset << ' ' << first.text;
}

/// What is thrown; where the case marks a byte, the failure must point there.
template <class Table>
std::string act(Table& table, Step const& step) {
  if (step.action == "reset") {
    reset(table);
    return "";
  }
  if (step.action == "hex") table = Table();
  int mark = -1;
  HeapBlock const section(assemble(step.argument, &mark));
  bool const was_valid = table.valid;
  std::optional<error> failure;
  std::string const text = thrown([&] {
    failure = caught_error([&] { table.Parse(section.data(), static_cast<std::size_t>(section.size())); });
    if (failure) throw *failure;
  });
  expect_listed<Table>(section, failure);
  EXPECT_EQ(table.valid, text.empty() || was_valid);
  EXPECT_TRUE(mark < 0 || (failure && failure->offset == mark))
      << step.file << ':' << step.line << ": at " << (failure ? failure->offset : -1);
  return text.empty() ? text : text + '\n';
}

template <class Table>
void run_steps(std::string const& file) {
  Table table;
  for (Step const& step : read_steps(file)) {
    if (step.action == "over") {
      expect_lines(step,
                   {{"text", text_runs(0x00, 0x100, text_of_id<Table>)}, {"syntax", indicators<Table>()}});
      continue;
    }
    std::ostringstream os;
    KeyedLines outcome = {{"throws", act(table, step)}, {"holds", held(table)}, {"xml", saved(table)}};
    outcome["dump"] = printable_lines(dumped(table, os));
    outcome["base"] = (os.flags() & std::ios::dec) != 0 ? "dec\n" : "hex\n";
    expect_lines(step, outcome);
  }
}

/// The longest section of a file that parses.
Bytes rich_section(std::string const& file) {
  Bytes longest;
  for (Step const& step : read_steps(file)) {
    if (step.lines.contains("throws") || (step.action != "hex" && step.action != "more")) continue;
    Bytes const section = assemble(step.argument);
    if (section.size() > longest.size()) longest = section;
  }
  return longest;
}

std::size_t claimed_size(Bytes const& section) {
  return static_cast<std::size_t>(section_size(section.data()));
}

/// Whether a damaged section with its checksum put right parses; one that claims more than there is must say
/// so.
template <class Table>
bool parses_damaged(Bytes bytes) {
  bool const fits = claimed_size(bytes) <= bytes.size();
  if (fits) bytes.resize(claimed_size(bytes));
  if (fits && is_long<Table> && bytes.size() >= 4) repair_crc(bytes);
  HeapBlock const section(bytes);
  Table table;
  std::string const failure = thrown([&] { table.Parse(section.data(), bytes.size()); });
  EXPECT_TRUE(fits || failure == "no_errorcode too little data") << failure;
  EXPECT_EQ(table.valid, failure.empty());
  Table const copy = table;
  std::ostringstream os, os_of_copy;
  EXPECT_EQ(dumped(copy, os_of_copy), dumped(table, os));
  return table.valid;
}

template <class Table>
void damage(std::string const& file) {
  Bytes const whole = rich_section(file);
  EXPECT_NO_THROW(Table().Parse(HeapBlock(whole + Bytes(9)).data(), whole.size() + 9));
  std::size_t parsed = 0, parsed_cut = 0;
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (unsigned int change = 1; change <= 0xFF; ++change) {
      Bytes bytes = whole;
      bytes[at] = static_cast<unsigned char>(bytes[at] ^ change);
      parsed += parses_damaged<Table>(bytes) ? 1 : 0;
    }
  }
  for (std::size_t size = 0; size < whole.size(); ++size) {
    Bytes bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    Table table;
    EXPECT_TRUE(throws([&] { table.Parse(HeapBlock(bytes).data(), size); }, "too little data"));
    EXPECT_TRUE(!table.valid && table.section_length == 0);
    if (size < 3) continue;
    bytes[1] = static_cast<unsigned char>((bytes[1] & 0xF0) | (size - 3) >> 8);
    bytes[2] = static_cast<unsigned char>((size - 3) & 0xFF);
    parsed_cut += parses_damaged<Table>(bytes) ? 1 : 0;
  }
  EXPECT_TRUE(0 < parsed && parsed < whole.size() * 0xFF) << parsed;
  EXPECT_LT(parsed_cut, whole.size() - 3);
}

struct TableClass {
  char const* name;
  void (*run_steps)(std::string const& file);
  void (*damage)(std::string const& file);
  friend void PrintTo(TableClass const& table, std::ostream* os) { *os << table.name; }
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

// Under the address sanitizer no byte after the section is looked at, and all that is thrown is `error`.
TEST_P(Tables, SurviveEveryCutAndEveryWrongByte) { GetParam().damage(file()); }

}  // namespace
}  // namespace sivane::testing
