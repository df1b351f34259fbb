// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "row_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string_view>
#include <tuple>

#include "spellers.h"

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

/// A dump as the case files write it. A backslash at the end stands for a line that was not ended, and what
/// keeps blanks from ending a line is that the last of them is written as a byte.
std::string dump_lines(std::string const& dump) {
  std::string text;
  std::istringstream lines(dump);
  for (std::string line; std::getline(lines, line);) {
    const bool open = lines.eof();
    line = printable(line);
    if (open) line += '\\';
    if (line.ends_with(' ')) line.replace(line.size() - 1, 1, "\\20");
    text += (text.empty() ? "" : "dump   ") + line + '\n';
  }
  return text;
}

template <class Descriptor>
std::string written(Descriptor descriptor, unsigned char const* bytes) {
  const auto expect_head = [&] {
    EXPECT_EQ(std::tuple(descriptor.tag, descriptor.length), std::tuple(bytes[0], bytes[1]));
  };
  expect_head();
  constexpr std::string_view label = "descriptor_tag: ";
  const std::string dump = dumped(descriptor);
  EXPECT_TRUE(dump.starts_with(label)) << dump;
  std::string text = dump_lines(dump.substr(label.size()));
  const std::string values = spell(descriptor);
  descriptor._reset();
  expect_head();
  const std::string left = spell(descriptor);
  const std::string reset = left != values ? "reset  " + left + '\n' : "";
  return text.insert(text.find('\n') + 1, "member " + values + '\n' + reset);
}

template <class Descriptor, auto getter>
Row make_row(int tag, char const* name) {
  return {tag,
          name,
          [](DescriptorSet const& set) { return (set.*getter)().size(); },
          [](DescriptorSet const& set) {
            std::string text;
            for (Descriptor const& descriptor : (set.*getter)()) text += dumped(descriptor);
            return text;
          },
          [](DescriptorSet const& set, unsigned char const* bytes) {
            return written((set.*getter)().at(0), bytes);
          },
          [](unsigned char const* bytes) { return written(Descriptor(bytes), bytes); }};
}

}  // namespace

std::vector<Row> const& row_list() {
  static const std::vector<Row> rows = {
#define SIVANE_ROW(tag, Class, getter, element, tag_text) \
  make_row<Class, &DescriptorSet::getter>(tag, #getter),
#define SIVANE_GENERAL_ROW(kind, getter, element) \
  make_row<DescriptorGeneral, &DescriptorSet::getter>(kind, #getter),
#include <sivane/descriptors/descriptor_rows.inc>
  };
  return rows;
}

Row const& row_of(int tag) {
  const int filed_as = has_class(tag) ? tag : tag < 0x80 ? other : user_private;
  return *std::find_if(row_list().begin(), row_list().end(),
                       [&](Row const& row) { return row.tag == filed_as; });
}

bool has_class(int tag) {
  return tag < 0x80 && tag != other &&
         std::any_of(row_list().begin(), row_list().end(), [tag](Row const& row) { return row.tag == tag; });
}

}  // namespace sivane::testing
