// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The descriptors of the case files, each made from a bare pointer and by a set in the middle of a section.
#include <set>

#include "case_file.h"
#include "descriptor_check.h"
#include "row_list.h"

namespace sivane::testing {
namespace {

constexpr char const* families[] = {"mpeg_systems.txt", "network.txt", "service.txt", "event.txt",
                                    "stream.txt",       "cell.txt",    "general.txt"};
constexpr char const* following = "A5 5A A5 5A A5 5A A5 5A A5 5A A5 5A";

std::string made_in_section(Row const& row, Case const& one) {
  const HeapBlock section(hex(one.bytes) + hex(one.behind) + hex(following));
  return row.first(parsed(section), section.data());
}

class Cases : public ::testing::TestWithParam<char const*> {};
INSTANTIATE_TEST_SUITE_P(Files, Cases, ::testing::ValuesIn(families), [](auto const& family) {
  const std::string file = family.param;
  return file.substr(0, file.find('.'));
});

TEST_P(Cases, AreReadAndDumped) {
  for (Case const& one : read_cases(GetParam())) {
    const ::testing::ScopedTrace trace(one.file.c_str(), one.line, one.title);
    const HeapBlock alone(hex(one.bytes));
    Row const& row = row_of(alone.data()[0]);
    EXPECT_EQ(made_in_section(row, one), one.title + '\n' + one.text);
    EXPECT_EQ(row.bare(alone.data()), one.title + '\n' + one.text);
  }
}

TEST(AllCases, HaveOneOfEveryRow) {
  std::set<std::string> getters;
  for (char const* const family : families) {
    for (Case const& one : read_cases(family)) getters.insert(row_of(hex(one.bytes).at(0)).getter);
  }
  for (Row const& row : row_list()) EXPECT_EQ(getters.count(row.getter), 1u) << row.getter;
}

// Fixed fields and inner lengths may run over the descriptor: what they take is taken as it stands where all
// of it follows in the section, and not where any of it is missing. A rest ends with the descriptor.
TEST(AllCases, MayRunOverTheDescriptorButNotOverTheSection) {
  const std::vector<Case> cases = read_cases("overruns.txt");
  EXPECT_FALSE(cases.empty());
  for (Case const& one : cases) {
    const ::testing::ScopedTrace trace(one.file.c_str(), one.line, one.title);
    const HeapBlock alone(hex(one.bytes));
    Row const& row = row_of(alone.data()[0]);
    const std::string expected = one.title + '\n' + one.text;
    EXPECT_EQ(made_in_section(row, one).substr(0, expected.size()), expected);
    EXPECT_EQ(thrown([&] { row.bare(alone.data()); }), "no_errorcode too little data");
    const Bytes behind = hex(one.behind);
    for (auto end = behind.begin(); end != behind.end(); ++end) {
      const HeapBlock section(hex(one.bytes) + Bytes(behind.begin(), end));
      EXPECT_EQ(thrown([&] { parsed(section); }), "no_errorcode too little data");
    }
  }
}

TEST(AllCases, NamedFailuresWinWhereverTheDescriptorStands) {
  const std::vector<Case> cases = read_cases("failures.txt");
  EXPECT_FALSE(cases.empty());
  for (Case const& one : cases) {
    const ::testing::ScopedTrace trace(one.file.c_str(), one.line, one.title);
    const HeapBlock alone(hex(one.bytes));
    const HeapBlock within(hex(one.bytes) + Bytes(40));
    DescriptorSet set;
    EXPECT_EQ(thrown([&] { set.ParseDescriptor(alone.data()); }), one.title);
    EXPECT_EQ(thrown([&] { parse(set, alone); }), one.title);
    EXPECT_EQ(thrown([&] { parse(set, within); }), one.title);
  }
}

}  // namespace
}  // namespace sivane::testing
