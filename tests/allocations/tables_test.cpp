// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// One section of each table on its whole way, with each request for memory refused once.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <new>
#include <ostream>
#include <string>

#include "case_file.h"
#include "count.h"
#include "packet_writer.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

/// Takes what is written and asks for nothing.
struct Sink final : std::streambuf {
  int overflow(int c) override { return c; }
  std::streamsize xsputn(char const*, std::streamsize size) override { return size; }
};

/// The longest section of a class's cases.
Bytes longest_section(std::string const& name) {
  Bytes longest;
  for (Step const& step : read_steps("tables/cases/" + name + ".txt")) {
    if (step.action != "hex" || step.lines.contains("throws")) continue;
    Bytes const section = assemble(step.argument);
    if (section.size() > longest.size()) longest = section;
  }
  return longest;
}

/// Does `work` with ever more memory until it has enough; what it holds is gone after each time.
template <class Work>
void with_every_refusal(char const* what, Work work) {
  bool done = false;
  for (int granted = 0; !done; ++granted) {
    std::size_t const before = live_blocks();
    try {
      grant(granted);
      work();
      done = true;
    } catch (std::bad_alloc const&) {
    }
    grant(-1);
    ASSERT_EQ(live_blocks(), before) << what << " with " << granted;
  }
}

class Host final : public DemuxPush {
 public:
  int sections = 0;

 private:
  void on_psi_section(int, int, int, unsigned char const*) override { ++sections; }
};

template <class Table>
void expect_survival(std::string const& name) {
  SCOPED_TRACE(name);
  Bytes const section = longest_section(name);
  ASSERT_FALSE(section.empty());
  Table table;
  table.Parse(section.data());
  with_every_refusal("parsing", [&] { Table().Parse(section.data()); });
  with_every_refusal("copying", [&] {
    Table copy(table), assigned;
    assigned = copy;
  });
  Sink sink;
  std::ostream out(&sink);
  out.exceptions(std::ios::badbit);  // a stream keeps bad_alloc to itself otherwise
  with_every_refusal("dumping", [&] { table.dump_state(out); });

  dom::Document whole;
  table.SaveSection(whole.dom(), whole.make_root("it").get());
  with_every_refusal("loading", [&] { Table().Parse(static_cast<void*>(whole.root_node().get())); });
  std::string const text = whole.save_string();
  with_every_refusal("reading", [&] { dom::Document::load_string(text); });
  with_every_refusal("saving", [&] {
    dom::Document document;
    auto const root = document.make_root("it");
    try {
      table.SaveSection(document.dom(), root.get());
    } catch (std::bad_alloc const&) {
      grant(-1);
      EXPECT_NO_THROW(dom::Document::load_string(document.save_string()));
      throw;
    }
  });

  PacketWriter writer;
  writer.section(0x100, section);
  with_every_refusal("delivering", [&] {
    Host host;
    host.add_psi_handler(0x100, section[0]);
    host.add_psi_handler(0x101, nullptr, nullptr, 0, 1);
    host.push_data(writer.stream().data(), static_cast<int>(writer.stream().size()));
    EXPECT_EQ(host.sections, 1);
  });
}

TEST(ExhaustedMemory, IsToldAndLeavesNothingBehind) {
#define SIVANE_TABLE_ROW(Class, ...) expect_survival<Class>(#Class);
#include <sivane/tables/table_rows.inc>
}

}  // namespace
}  // namespace sivane::testing
