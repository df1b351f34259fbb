// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "row_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string_view>
#include <tuple>

#include "memory_dom.h"
#include "spell.h"

namespace sivane::testing {
namespace {

constexpr int other = 0x15;
constexpr int user_private = 0xFE;

template <class Descriptor>
std::string dumped(Descriptor const& descriptor) {
  std::ostringstream os;
  descriptor.dump_state(os);
  return os.str();
}

/// Lines of a dump as the case files write them. A backslash at the end stands for a line that was not ended,
/// and what keeps blanks from ending a line is that the last of them is written as a byte.
std::string dump_lines(std::string const& dump, std::string const& keyword) {
  std::string text;
  std::istringstream lines(dump);
  for (std::string line; std::getline(lines, line);) {
    bool const open = lines.eof();
    line = printable(line);
    if (open) line += '\\';
    if (line.ends_with(' ')) line.replace(line.size() - 1, 1, "\\20");
    text += keyword + line + '\n';
  }
  return text;
}

/// What is saved of a descriptor behind its head, an element a line.
template <class Descriptor>
std::string saved_lines(Descriptor const& descriptor, char16_t const* element, std::string const& keyword) {
  MemoryDom dom;
  auto const saved = dom.element(element);
  EXPECT_TRUE(descriptor.SaveSection(dom.document().get(), saved.get()));
  EXPECT_EQ(take_attribute(saved.get(), 0), "descriptor_id");
  EXPECT_EQ(take_attribute(saved.get(), 0), "descriptor_length");
  std::istringstream lines(written(saved.get()));
  std::string text;
  for (std::string line; std::getline(lines, line);) text += keyword + line + '\n';
  return text;
}

/// Those of a DVB descriptor as it is saved, of an AIT's as it is dumped.
template <class Descriptor>
std::string member_lines(Descriptor const& descriptor, char16_t const* element, std::string const& keyword) {
  if (element != nullptr) return saved_lines(descriptor, element, keyword);
  std::string const dump = dumped(descriptor);
  return dump_lines(dump.substr(dump.find('\n') + 1), keyword);
}

/// What `_reset` leaves, if that is not everything.
template <class Descriptor>
std::string left_by_reset(Descriptor& descriptor, char16_t const* element) {
  std::string const before = member_lines(descriptor, element, "reset  ");
  descriptor._reset();
  std::string const left = member_lines(descriptor, element, "reset  ");
  if (left == before) return "";
  return left.empty() ? "reset  -\n" : left;
}

template <class Descriptor>
std::string case_text(Descriptor descriptor, char16_t const* element, unsigned char const* bytes) {
  auto const expect_head = [&] {
    EXPECT_EQ(std::tuple(descriptor.tag, descriptor.length), std::tuple(bytes[0], bytes[1]));
  };
  expect_head();
  constexpr std::string_view label = "descriptor_tag: ";
  std::string const dump = dumped(descriptor);
  EXPECT_TRUE(dump.starts_with(label)) << dump;
  std::size_t const behind_title = dump.find('\n') + 1;
  std::string text = dump.substr(label.size(), behind_title - label.size());
  if (element != nullptr) text += saved_lines(descriptor, element, "xml    ");
  text += left_by_reset(descriptor, element);
  expect_head();
  return text + dump_lines(dump.substr(behind_title), "dump   ");
}

template <class Set, class Descriptor, auto getter>
RowOf<Set> make_row(int tag, char const* name, char16_t const* element) {
  return {tag,
          name,
          element,
          [](Set const& set) { return (set.*getter)().size(); },
          [](Set const& set) {
            std::string text;
            for (Descriptor const& descriptor : (set.*getter)()) text += dumped(descriptor);
            return text;
          },
          [](Set const& set, char16_t const* its_element, unsigned char const* bytes) {
            return case_text((set.*getter)().at(0), its_element, bytes);
          },
          [](char16_t const* its_element, unsigned char const* bytes) {
            return case_text(Descriptor(bytes), its_element, bytes);
          }};
}

}  // namespace

template <>
std::vector<RowOf<DescriptorSet>> const& row_list() {
  using Set = DescriptorSet;
  static std::vector<RowOf<Set>> const rows = {
#define SIVANE_ROW(tag, Class, getter, element) make_row<Set, Class, &Set::getter>(tag, #getter, u"" element),
#include <sivane/descriptors/descriptor_rows.inc>
  };
  return rows;
}

template <>
std::vector<RowOf<AitDescriptorSet>> const& row_list() {
  using Set = AitDescriptorSet;
  static std::vector<RowOf<Set>> const rows = {
#define SIVANE_ROW(tag, Class, getter, element) make_row<Set, Class, &Set::getter>(tag, #getter, nullptr),
#include <sivane/descriptors/ait_descriptor_rows.inc>
  };
  return rows;
}

template <class Set>
RowOf<Set> const& row_of(int tag) {
  int const filed_as = has_class<Set>(tag) ? tag : tag < 0x80 ? other : user_private;
  return *std::find_if(row_list<Set>().begin(), row_list<Set>().end(),
                       [&](RowOf<Set> const& row) { return row.tag == filed_as; });
}
template RowOf<DescriptorSet> const& row_of(int);
template RowOf<AitDescriptorSet> const& row_of(int);

template <class Set>
bool has_class(int tag) {
  return tag < 0x80 && tag != other &&
         std::any_of(row_list<Set>().begin(), row_list<Set>().end(),
                     [tag](RowOf<Set> const& row) { return row.tag == tag; });
}
template bool has_class<DescriptorSet>(int);
template bool has_class<AitDescriptorSet>(int);

}  // namespace sivane::testing
