// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Options of `Parse`: every descriptor that fails, in every owner, costs itself alone; tags that are not
// asked for; and the bound on descriptors that overlap.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include "case_file.h"
#include "expect_error.h"
#include "heap_block.h"
#include "held_tags.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

std::string said(int offset, int code, std::string const& text) {
  return std::to_string(offset) + ' ' + std::to_string(code) + ' ' + text;
}

std::string replaced(std::string text, std::string const& part, std::string const& by) {
  return text.replace(text.find(part), part.size(), by);
}

std::size_t size_of(HeapBlock const& block) { return static_cast<std::size_t>(block.size()); }

/// Parses a section with a descriptor that fails, and expects what comes of the same section with one without
/// a class in its place; false if it does not fail there.
template <class Table>
bool costs_itself_alone(std::string const& owner, std::string const& bad, std::string const& classless) {
  HeapBlock const section(assemble(replaced(owner, "%", bad)));
  auto const failure = caught_error([&] { Table().Parse(section.data()); });
  if (!failure) return false;
  Table expected, table;
  expected.Parse(HeapBlock(assemble(replaced(owner, "%", classless + bad.substr(2)))).data());
  ParseOptions options;
  table.Parse(section.data(), size_of(section), options);
  EXPECT_TRUE(table.valid);
  EXPECT_EQ(held(table), replaced(held(expected), classless, bad.substr(0, 2)));
  EXPECT_EQ(options.problems.size(), 1u);
  for (ParseProblem const& problem : options.problems) {
    EXPECT_EQ(said(problem.offset, problem.code, problem.text),
              said(failure->offset, failure->code, failure->text));
    EXPECT_EQ(problem.tag, hex(bad.substr(0, 2))[0]);
  }
  return true;
}

/// The same with each descriptor that a case file has, in the section's loop at the '%'.
template <class Table>
void check_owner(std::string const& section) {
  SCOPED_TRACE(section);
  bool const is_ait = std::is_same_v<Table, Ait>;
  auto const cases =
      read_steps(is_ait ? "descriptors/cases/ait_failures.txt" : "descriptors/cases/failures.txt");
  std::size_t failed = 0;
  for (Step const& step : cases) {
    SCOPED_TRACE(step.argument);
    failed += costs_itself_alone<Table>(section, step.argument, is_ait ? "0E" : "15") ? 1 : 0;
  }
  EXPECT_GT(failed, cases.size() / 2);  // the others read on in what follows
}

TEST(TolerantParse, ABadDescriptorCostsItselfAlone) {
  check_owner<Pmt>("02 B( 0001 C1 00 00 E100 F( 52[ 01 ] % 80[] ) 1B E101 F( 52[ 05 ] ) crc )");
  check_owner<Pmt>("02 B( 0001 C1 00 00 E100 F() 1B E101 F( 52[ 01 ] % 80[] ) 1B E102 F( 52[ 05 ] ) crc )");
  check_owner<Nit>("40 B( 3001 C1 00 00 F( 40[] % 80[] ) F( 0001 0002 F( 40[] ) ) crc )");
  check_owner<Nit>("40 B( 3001 C1 00 00 F() F( 0001 0002 F( 40[] % 80[] ) 0001 0003 F( 40[] ) ) crc )");
  check_owner<Bat>("4A B( 3001 C1 00 00 F( 47[] % 80[] ) F( 0001 0002 F( 40[] ) ) crc )");
  check_owner<Bat>("4A B( 3001 C1 00 00 F() F( 0001 0002 F( 40[] % 80[] ) 0001 0003 F( 40[] ) ) crc )");
  check_owner<Sdt>("42 B( 0001 C1 00 00 0002 FF 0003 FC 8( 52[ 01 ] % 80[] ) 0004 FC 8( 52[ 02 ] ) crc )");
  check_owner<Eit>(
      "4E B( 0001 C1 00 00 0002 0003 00 4E 0001 1234567890 010203 0( 54[] % 80[] ) 0002 1234567890 010203 0( "
      "54[] ) crc )");
  check_owner<Tot>("73 7( 1234567890 F( 52[ 01 ] % 80[] ) 00000000 )");
  check_owner<Ait>("74 B( 0001 C1 00 00 F( 0B[ 00 0000 ] % 80[] ) F( 00000001 0002 01 F( 0D[ 00 ] ) ) crc )");
  check_owner<Ait>(
      "74 B( 0001 C1 00 00 F() F( 00000001 0002 01 F( 0D[ 00 ] % 80[] ) 00000001 0003 01 F() ) crc )");
}

TEST(TolerantParse, ACatKeepsWhatIsNoCaDescriptorAsBytes) {
  HeapBlock const section(assemble("01 B( FFFF C1 00 00 09[ 0500 E1F5 ] 0A[ 01 02 ] 09[ 0600 E001 ] crc )"));
  Cat cat;
  ParseOptions options;
  cat.Parse(section.data(), size_of(section), options);
  EXPECT_EQ(held(cat), "09 09 0A\n");
  ASSERT_EQ(options.problems.size(), 1u);
  EXPECT_EQ(options.problems[0].text, "invalid descriptor tag");
  EXPECT_EQ(cat.get_general_descriptors()[0].data, hex("01 02"));
}

TEST(ParseOptions, BuildTheTagsAskedForAndCountTheOthers) {
  HeapBlock const section(
      assemble("4E B( 0001 C1 00 00 0002 0003 00 4E"
               " 0001 1234567890 010203 0( 4D[ \"eng\" [] [] ] 55[ 00 ] 54[ 1000 ] )"
               " 0002 1234567890 010203 0( 80[] 54[ 1000 ] ) crc )"));
  ParseOptions options;
  options.build_only({0x4D, 0x54});
  options.tolerant = false;
  Eit eit;
  eit.Parse(section.data(), size_of(section), options);  // the bad one is not looked at
  EXPECT_EQ(held(eit), "{54 4D} {54}\n");
  EXPECT_EQ(options.skipped, 2u);
  options.tags.set(0x55);
  EXPECT_TRUE(throws([&] { Eit().Parse(section.data(), size_of(section), options); }, error::length_error,
                     "parental_rating_descriptor"));
  EXPECT_TRUE(options.problems.empty());
}

/// Services whose one descriptor is minimal, but claims `claimed` bytes of those that follow.
Bytes overlapping_services(int claimed) {
  std::string services;
  for (int i = 0; i < 200; ++i) services += "0003 FC 8( 15[+" + std::to_string(claimed) + " ] ) ";
  return assemble("42 B( 0001 C1 00 00 0002 FF " + services + "0003 FC 8( " + std::string(600, '0') +
                  " ) crc )");
}

TEST(OverlappingDescriptors, AreBounded) {
  HeapBlock const within(overlapping_services(100)), beyond(overlapping_services(150));
  Sdt sdt;
  EXPECT_NO_THROW(sdt.Parse(within.data()));
  EXPECT_TRUE(throws([&] { Sdt().Parse(beyond.data()); }, "descriptors overlap too much"));
  ParseOptions options;
  sdt.reset();
  sdt.Parse(beyond.data(), size_of(beyond), options);
  EXPECT_EQ(sdt.service_infos.size(), 201u);
  std::size_t filed = 0;
  for (auto const& service : sdt.service_infos) {
    for (auto const& descriptor : service.get_general_descriptors()) filed += 2u + descriptor.data.size();
  }
  EXPECT_LE(filed, 16 * size_of(beyond));
  EXPECT_GT(filed, 15 * size_of(beyond));
  ASSERT_FALSE(options.problems.empty());
  EXPECT_EQ(options.problems[0].text, "descriptors overlap too much");
}

TEST(DescriptorLoop, GivesBytesAndFailsWhereOneDoesNotFit) {
  HeapBlock const bytes(hex("52 01 11 15 00 52 02 33"));
  std::vector<int> seen;
  auto const walk = [&](int size) {
    for (DescriptorBytes const d : DescriptorLoop(bytes.data(), size)) seen.push_back(d.tag());
  };
  for (int const size : {-1, 0, 3, 5}) walk(size);
  EXPECT_EQ(seen, (std::vector<int>{0x52, 0x52, 0x15}));
  for (int const size : {6, 7, 8}) {
    EXPECT_TRUE(throws([&] { walk(size); }, "descriptor start end mismatch")) << size;
  }
}

}  // namespace
}  // namespace sivane::testing
