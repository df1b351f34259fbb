// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The descriptors of the case files: filed alone at the end of a section, with other bytes after them, and at
// a bare pointer.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "case_file.h"
#include "expect_error.h"
#include "memory_dom.h"
#include "rows.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

constexpr char const* too_little = "no_errorcode too little data\n";

/// What is saved of a descriptor after its head.
template <class Descriptor>
std::string saved(Descriptor const& descriptor, char16_t const* name) {
  MemoryDom dom;
  auto const element = dom.element(name);
  EXPECT_TRUE(descriptor.SaveSection(dom.document().get(), element.get()));
  EXPECT_EQ(take_attribute(element.get(), 0), "descriptor_id");
  EXPECT_EQ(take_attribute(element.get(), 0), "descriptor_length");
  return written(element.get());
}

template <class Descriptor>
void add(KeyedLines& outcome, Descriptor descriptor, char16_t const* element) {
  std::ostringstream dump;
  descriptor.dump_state(dump);
  outcome["dump"] += printable_lines(dump.str());
  outcome["xml"] += saved(descriptor, element);
  descriptor._reset();
  std::string const left = saved(descriptor, element);
  if (left != outcome["xml"]) outcome["left"] += left;
}

/// What comes of filing a descriptor: the vectors that it is in, and what it is there.
template <class Set>
KeyedLines filed(DescriptorBytes bytes) {
  KeyedLines outcome = {{"throws", ""}, {"in", ""}, {"dump", ""}, {"xml", ""}, {"left", ""}};
  Set set;
  std::string const failure = thrown([&] { file(set, bytes); });
  if (!failure.empty()) outcome["throws"] = failure + '\n';
  each_row<Set>([&](auto const& row) {
    for (auto const& descriptor : (set.*row.getter)()) {
      outcome["in"] += std::string(row.name) + '\n';
      EXPECT_EQ(descriptor.tag, bytes.tag());
      EXPECT_EQ(descriptor.length, bytes.length());
      add(outcome, descriptor, row.element);
    }
  });
  return outcome;
}

/// Whether a descriptor throws that there are too few bytes. The items of an extended event have a text of
/// their own for it.
template <class Set>
bool is_short(DescriptorBytes bytes) {
  std::string const text = filed<Set>(bytes).at("throws");
  bool const is_extended_event = std::is_same_v<Set, DescriptorSet> && bytes.tag() == 0x4E;
  return text == too_little || (is_extended_event && text == "no_errorcode data length mismatch\n");
}

/// One whose fixed fields and inner lengths run over its end needs all that they take in the section.
template <class Set>
void expect_needed(Bytes const& descriptor, Bytes const& after) {
  EXPECT_TRUE(is_short<Set>(DescriptorBytes(HeapBlock(descriptor).data())));
  for (auto end = after.begin(); end != after.end(); ++end) {
    HeapBlock const cut(descriptor + Bytes(after.begin(), end));
    EXPECT_TRUE(is_short<Set>(descriptor_in(cut)));
  }
}

template <class Set>
void check(Step const& step) {
  Bytes const descriptor = assemble(step.argument);
  HeapBlock const alone(descriptor);
  Bytes const after = step.lines.contains("after") ? assemble(step.lines.at("after")) : Bytes();
  // What a descriptor that is refused has run into decides how it is refused.
  unsigned char const noise = step.lines.contains("throws") ? 0 : 0xA5;
  for (Bytes const& others : {Bytes(), Bytes(40), Bytes(40, noise)}) {
    HeapBlock const section(descriptor + after + others);
    expect_lines(step, filed<Set>(descriptor_in(section)));
  }
  if (after.empty()) {
    expect_lines(step, filed<Set>(DescriptorBytes(alone.data())));
  } else {
    expect_needed<Set>(descriptor, after);
  }
}

std::vector<std::string> case_files() {
  std::vector<std::string> names;
  for (auto const& entry : std::filesystem::directory_iterator(SIVANE_TESTS "/descriptors/cases")) {
    names.push_back(entry.path().stem().string());
  }
  return names;
}

bool is_of_ait(std::string const& name) { return name.starts_with("ait"); }

std::vector<Step> steps_of(std::string const& name) {
  return read_steps("descriptors/cases/" + name + ".txt");
}

class Descriptors : public ::testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Cases, Descriptors, ::testing::ValuesIn(case_files()),
                         [](auto const& file) { return file.param; });

TEST_P(Descriptors, AreFiledDumpedAndSaved) {
  for (Step const& step : steps_of(GetParam())) {
    is_of_ait(GetParam()) ? check<AitDescriptorSet>(step) : check<DescriptorSet>(step);
  }
}

TEST(DescriptorCases, HaveOneOfEveryRow) {
  std::string dvb, ait;
  for (std::string const& name : case_files()) {
    for (Step const& step : steps_of(name)) {
      if (step.lines.contains("in")) (is_of_ait(name) ? ait : dvb) += '\n' + step.lines.at("in");
    }
  }
  auto const look_for = [](std::string const& all) {
    return [&all](auto const& row) {
      EXPECT_NE(all.find('\n' + std::string(row.name) + '\n'), all.npos) << row.name << " has no case";
    };
  };
  each_row<DescriptorSet>(look_for(dvb));
  each_row<AitDescriptorSet>(look_for(ait));
}

}  // namespace
}  // namespace sivane::testing
