// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors that are built on demand: the cases of extended/, at each shorter length too, by class and by
// what a set has kept of them, and through a document.
#include <gtest/gtest.h>
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/extended/extended.h>
#include <sivane/fields/field_visitor.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "case_file.h"
#include "expect_error.h"
#include "heap_block.h"
#include "memory_dom.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

using namespace sivane::extended;

constexpr char const* too_little = "no_errorcode too little data";

DescriptorBytes all_of(HeapBlock const& block) { return {block.data(), block.data() + block.size()}; }

/// Which fields hold anything, by their names; and how many of those have a size.
class Found final : public FieldVisitor {
 public:
  void number(Field const& field, std::int64_t value) override { note(field, value != 0); }
  void real(Field const& field, double value) override { note(field, value != 0); }
  void flag(Field const& field, bool value) override { note(field, value); }
  void code(Field const& field, std::string_view letters) override { note(field, letters[0] != '\0'); }
  void text(Field const& field, std::string_view bytes) override { sized(field, bytes.size()); }
  void string(Field const& field, std::string_view value) override { sized(field, value.size()); }
  void bytes(Field const& field, unsigned char const*, std::size_t size) override { sized(field, size); }
  void date(Field const& field, DateTime const&) override { note(field, true); }
  void duration(Field const& field, Duration const& value) override { note(field, value.second != 0); }
  void begin_list(Field const& field, std::size_t size) override { sized(field, size); }

  std::set<std::string> named, filled;
  int sizes = 0;

 private:
  void note(Field const& field, bool holds) {
    if (field.member == "length") return;  // of which one without a body has none
    named.emplace(field.name);
    if (holds) filled.emplace(field.name);
  }
  void sized(Field const& field, std::size_t size) {
    note(field, size > 0);
    sizes += size > 0 ? 1 : 0;
  }
};

/// An object that was built is the same by its class, of a set, and through a document; and it can be
/// emptied.
template <class Descriptor>
void expect_same(Descriptor descriptor, DescriptorBytes bytes, unsigned int specifier, Found& found) {
  DescriptorSet set;
  set.ParseDescriptor(bytes, specifier);
  for (auto const* all : {&set.get_general_descriptors(), &set.get_user_private_descriptors()}) {
    for (DescriptorGeneral const& kept : *all) {
      EXPECT_TRUE(as<Descriptor>(kept) == descriptor);
      EXPECT_TRUE(*build(kept) == descriptor);
    }
  }
  MemoryDom dom;
  auto const element = dom.element(u"descriptor");
  EXPECT_TRUE(descriptor.SaveSection(dom.document().get(), element.get()));
  Descriptor loaded;
  loaded.Parse(static_cast<IXMLDOMNode*>(element.get()));
  EXPECT_TRUE(loaded == descriptor) << written(element.get());
  descriptor.visit(found);
  descriptor._reset();
  Found left;
  descriptor.visit(left);
  EXPECT_EQ(left.sizes, 0) << descriptor.get_tag_text();
}

using FoundByName = std::map<std::string, Found>;

/// Exactly one class takes the bytes, or none does.
void expect_one_class(ExtendedDescriptor const* built, DescriptorBytes bytes, unsigned int specifier,
                      FoundByName& found) {
  int classes = 0;
#define SIVANE_EXTENDED_ROW(tag, extension, specifier_of_class, Class, name) \
  if (auto const typed = as<Class>(bytes, specifier)) {                      \
    ++classes;                                                               \
    EXPECT_TRUE(built != nullptr && *typed == *built);                       \
    expect_same(*typed, bytes, specifier, found[name]);                      \
  }
#include <sivane/descriptors/extended/extended_descriptor_rows.inc>
  EXPECT_EQ(classes, built != nullptr ? 1 : 0);
}

/// The lengths below the whole one that can be read; the others throw.
std::string shorter(Bytes const& whole, unsigned int specifier) {
  std::string lengths;
  for (std::size_t size = 0; size + 2 < whole.size(); ++size) {
    Bytes cut(whole.begin(), whole.begin() + 2 + static_cast<std::ptrdiff_t>(size));
    HeapBlock const in_short_section(cut);
    EXPECT_EQ(build(all_of(in_short_section), specifier, Malformed::is_nothing), nullptr);
    cut[1] = static_cast<unsigned char>(size);
    HeapBlock const block(cut);
    std::unique_ptr<ExtendedDescriptor> built;
    std::string const failure = thrown([&] { built = build(all_of(block), specifier); });
    EXPECT_EQ(built == nullptr, build(all_of(block), specifier, Malformed::is_nothing) == nullptr);
    if (built != nullptr) lengths += (lengths.empty() ? "" : " ") + std::to_string(size);
    EXPECT_TRUE(failure.empty() || failure == too_little) << failure;
  }
  return lengths.empty() ? lengths : lengths + '\n';
}

void check(Step const& step, FoundByName& found) {
  ::testing::ScopedTrace const trace(step.file.c_str(), step.line, step.title);
  Bytes const whole = assemble(step.argument);
  HeapBlock const block(whole);
  std::string const named = step.lines.contains("whose") ? step.lines.at("whose") : "0";
  auto const specifier = static_cast<unsigned int>(std::stoul(named, nullptr, 16));
  std::unique_ptr<ExtendedDescriptor> built;
  std::string const failure = thrown([&] { built = build(all_of(block), specifier); });
  std::ostringstream dump;
  if (built != nullptr) built->dump_state(dump);
  KeyedLines outcome = {{"dump", printable_lines(dump.str())}, {"reads", shorter(whole, specifier)}};
  outcome["throws"] = failure.empty() ? failure : failure + '\n';
  if (step.lines.contains("whose")) outcome["whose"] = named;
  expect_lines(step, outcome);
  EXPECT_TRUE(step.lines.contains("reads") || outcome.at("reads").empty())
      << "reads  " << outcome.at("reads");
  if (failure.empty()) expect_one_class(built.get(), all_of(block), specifier, found);
}

TEST(ExtendedDescriptors, AreBuiltOfTheirBytesAndOfNoFewer) {
  FoundByName found;
  for (auto const& entry : std::filesystem::directory_iterator(SIVANE_TESTS "/descriptors/extended")) {
    for (Step const& step : read_steps("descriptors/extended/" + entry.path().filename().string())) {
      check(step, found);
    }
  }
#define SIVANE_EXTENDED_ROW(tag, extension, specifier, Class, name) \
  EXPECT_TRUE(found.contains(name)) << name << " has no case";      \
  EXPECT_EQ(found[name].named, found[name].filled) << name << " has fields that no case fills";
#include <sivane/descriptors/extended/extended_descriptor_rows.inc>
}

TEST(ExtendedDescriptors, BytesOfAHostThatAreTooManyAreRefused) {
  DescriptorGeneral general;
  general.tag = 0x73;
  general.data.resize(255, 'a');
  EXPECT_EQ(as<DescriptorDefaultAuthority>(general)->default_authority.size(), 255u);
  general.data.push_back('a');
  EXPECT_EQ(thrown([&] { as<DescriptorDefaultAuthority>(general); }), "no_errorcode descriptor too long");
}

}  // namespace
}  // namespace sivane::testing
