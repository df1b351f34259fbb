// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The descriptors of the case files, each made from a bare pointer and by a set in the middle of a section.
#include <set>

#include "case_file.h"
#include "descriptor_check.h"
#include "row_list.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

constexpr char const* families[] = {"mpeg_systems", "network", "service", "event",
                                    "stream",       "cell",    "general"};
constexpr char const* following = "A5 5A A5 5A A5 5A A5 5A A5 5A A5 5A";

std::vector<Case> cases_of(std::string const& name) {
  std::vector<Case> cases = read_cases("descriptors/cases/" + name + ".txt");
  EXPECT_FALSE(cases.empty()) << name;
  return cases;
}

template <class Set>
std::string made_in_section(Case const& one) {
  HeapBlock const section(assemble(one.bytes) + assemble(one.behind) + hex(following));
  return row_of<Set>(section.data()[0]).first(parsed<Set>(section), section.data());
}

template <class Set>
void read_and_dump(std::string const& name) {
  for (Case const& one : cases_of(name)) {
    const ::testing::ScopedTrace trace(one.file.c_str(), one.line, one.title);
    HeapBlock const alone(assemble(one.bytes));
    EXPECT_EQ(made_in_section<Set>(one), one.title + '\n' + one.text);
    EXPECT_EQ(row_of<Set>(alone.data()[0]).bare(alone.data()), one.title + '\n' + one.text);
  }
}

class Cases : public ::testing::TestWithParam<char const*> {};
INSTANTIATE_TEST_SUITE_P(Files, Cases, ::testing::ValuesIn(families),
                         [](auto const& family) { return std::string(family.param); });

TEST_P(Cases, AreReadAndDumped) { read_and_dump<DescriptorSet>(GetParam()); }
TEST(AitCases, AreReadAndDumped) { read_and_dump<AitDescriptorSet>("ait"); }

template <class Set>
void expect_every_row(std::vector<Case> const& cases) {
  std::set<std::string> getters;
  for (Case const& one : cases) getters.insert(row_of<Set>(assemble(one.bytes).at(0)).getter);
  for (RowOf<Set> const& row : row_list<Set>()) EXPECT_EQ(getters.count(row.getter), 1u) << row.getter;
}

TEST(AllCases, HaveOneOfEveryRow) {
  std::vector<Case> all;
  for (char const* const family : families) {
    for (Case const& one : cases_of(family)) all.push_back(one);
  }
  expect_every_row<DescriptorSet>(all);
  expect_every_row<AitDescriptorSet>(cases_of("ait"));
}

template <class Set>
void run_over(std::string const& name) {
  for (Case const& one : cases_of(name)) {
    const ::testing::ScopedTrace trace(one.file.c_str(), one.line, one.title);
    HeapBlock const alone(assemble(one.bytes));
    std::string const expected = one.title + '\n' + one.text;
    EXPECT_EQ(made_in_section<Set>(one).substr(0, expected.size()), expected);
    EXPECT_EQ(thrown([&] { row_of<Set>(alone.data()[0]).bare(alone.data()); }),
              "no_errorcode too little data");
    Bytes const behind = assemble(one.behind);
    for (auto end = behind.begin(); end != behind.end(); ++end) {
      HeapBlock const section(assemble(one.bytes) + Bytes(behind.begin(), end));
      EXPECT_EQ(thrown([&] { parsed<Set>(section); }), "no_errorcode too little data");
    }
  }
}

// Fixed fields and inner lengths may run over the descriptor: what they take is taken as it stands where all
// of it follows in the section, and not where any of it is missing. A rest ends with the descriptor.
TEST(AllCases, MayRunOverTheDescriptorButNotOverTheSection) {
  run_over<DescriptorSet>("overruns");
  run_over<AitDescriptorSet>("ait_overruns");
}

template <class Set>
void fail(std::string const& name) {
  for (Case const& one : cases_of(name)) {
    const ::testing::ScopedTrace trace(one.file.c_str(), one.line, one.title);
    HeapBlock const alone(assemble(one.bytes));
    HeapBlock const within(assemble(one.bytes) + Bytes(40));
    Set set;
    EXPECT_EQ(thrown([&] { file(set, alone.data()); }), one.title);
    EXPECT_EQ(thrown([&] { parse(set, alone); }), one.title);
    EXPECT_EQ(thrown([&] { parse(set, within); }), one.title);
  }
}

TEST(AllCases, NamedFailuresWinWhereverTheDescriptorStands) {
  fail<DescriptorSet>("failures");
  fail<AitDescriptorSet>("ait_failures");
}

}  // namespace
}  // namespace sivane::testing
