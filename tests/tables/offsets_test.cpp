// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Where an error says that it happened: cases/offsets.txt, whose bytes have a '^' at the place. A block's
// title is the table; behind each "hex" stands what is thrown. Each is parsed with all of its bytes at hand.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <functional>
#include <map>

#include "case_file.h"
#include "expect_error.h"
#include "heap_block.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

using Parse = std::function<void(unsigned char const* section, std::size_t available)>;

template <class Table>
void parse(unsigned char const* section, std::size_t available) {
  Table().Parse(section, available);
}

std::map<std::string, Parse> const parse_as = {
#define SIVANE_TABLE_ROW(Class, ...) {#Class, parse<Class>},
#include <sivane/tables/table_rows.inc>
};

TEST(ErrorOffset, IsWhereTheFaultIs) {
  std::map<std::string, int> count;
  for (Case const& c : read_cases("tables/cases/offsets.txt")) {
    ::testing::ScopedTrace const trace(c.file.c_str(), c.line, c.title);
    int place = -1;
    HeapBlock const section(assemble(c.bytes, &place));
    auto const failure =
        caught_error([&] { parse_as.at(c.title)(section.data(), static_cast<std::size_t>(section.size())); });
    ++count[c.title];
    EXPECT_TRUE(failure);
    if (!failure) continue;
    EXPECT_EQ("throws " + thrown([&] { throw *failure; }) + '\n', c.text);
    EXPECT_EQ(failure->offset, place);
  }
  EXPECT_EQ(count.size(), parse_as.size());
}

// An entry or descriptor at a bare pointer is in no section.
TEST(ErrorOffset, IsNoneWithoutASection) {
  HeapBlock const descriptor(hex("56 01 00"));
  auto const failure = caught_error([&] { DescriptorTeletext teletext(descriptor.data()); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->offset, -1);
}

}  // namespace
}  // namespace sivane::testing
