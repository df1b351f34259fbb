// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// One call a descriptor: its bytes, its dump and its members, the last two written out as text.
#pragma once

#include <gtest/gtest.h>
#include <sivane/descriptors/descriptor_set.h>

#include <charconv>
#include <concepts>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "heap_block.h"
#include "section_builder.h"

namespace sivane::testing {

// Members as text: numbers in hexadecimal, doubles with all their digits, strings in quotes, bytes in angle
// brackets, lists in square ones.

template <std::integral Number>
std::string spelled(Number value) {
  char digits[20];
  const auto bits =
      static_cast<std::make_unsigned_t<std::conditional_t<sizeof(Number) == 1, int, Number>>>(value);
  return {digits, std::to_chars(std::begin(digits), std::end(digits), bits, 16).ptr};
}

inline std::string spelled(double value) {
  char digits[40];
  return {digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr};
}

inline std::string two_digits(unsigned char byte) { return (byte < 16 ? "0" : "") + spelled(byte); }

inline std::string spelled(std::string const& value) {
  std::string text = "'";
  for (const char c : value) {
    text += c >= ' ' && c <= '~' ? std::string(1, c) : '\\' + two_digits(static_cast<unsigned char>(c));
  }
  return text + "'";
}

inline std::string spelled(std::vector<unsigned char> const& bytes) {
  std::string text = "<";
  for (const unsigned char byte : bytes) text += two_digits(byte);
  return text + ">";
}

template <class Value>
std::string spelled(std::vector<Value> const& values) {
  std::string text = "[";
  for (Value const& value : values) text += (text.size() > 1 ? " " : "") + spelled(value);
  return text + "]";
}

/// The values with a blank between.
template <class... Values>
std::string members(Values const&... values) {
  std::string text;
  ((text += (text.empty() ? "" : " ") + spelled(values)), ...);
  return text;
}

/// `spell` of each record, in braces.
template <class Record, class Spell>
std::string each(std::vector<Record> const& records, Spell spell) {
  std::string text;
  for (Record const& record : records) text += '{' + spell(record) + '}';
  return text;
}

/// A line of a byte dump that is not full.
inline std::string block(std::string const& bytes, std::string const& letters) {
  return bytes + std::string(48 - bytes.size(), ' ') + " : " + letters;
}

/// What a descriptor writes to a fresh stream.
inline std::string dumped(DescriptorBase const& descriptor) {
  std::ostringstream os;
  descriptor.dump_state(os);
  return os.str();
}

inline std::string dump_of(std::vector<std::string> const& lines) {
  std::string text = "descriptor_tag: ";
  for (std::string const& line : lines) text += line + '\n';
  return text;
}

/// The vector of a set that holds the class.
template <class Descriptor>
std::vector<Descriptor> const& filed(DescriptorSet const& set);
#define SIVANE_ROW(tag, Class, getter, element, tag_text)                   \
  template <>                                                               \
  inline std::vector<Class> const& filed<Class>(DescriptorSet const& set) { \
    return set.getter();                                                    \
  }
#include <sivane/descriptors/descriptor_rows.inc>
template <>
inline std::vector<DescriptorGeneral> const& filed<DescriptorGeneral>(DescriptorSet const& set) {
  return set.get_general_descriptors().empty() ? set.get_user_private_descriptors()
                                               : set.get_general_descriptors();
}

/// The descriptor that a set makes of `text` where `behind` follows in the section.
template <class Descriptor>
Descriptor in_section(std::string_view text, std::string_view behind) {
  const HeapBlock section(hex(text) + hex(behind));
  DescriptorSet set;
  set.ParseDescriptor({section.data(), section.data() + section.size()});
  return filed<Descriptor>(set).at(0);
}

/// Parses the bytes that `text` spells twice, from a bare pointer and by a set in the middle of a section,
/// and compares dump lines and members each time. `after_reset` is what the members are behind `_reset`.
template <class Descriptor, class Spell>
void check(std::string_view text, std::vector<std::string> const& lines, Spell spell,
           std::string const& expected, std::string const& after_reset) {
  SCOPED_TRACE(std::string(text));
  const HeapBlock alone(hex(text));
  const auto expect = [&](Descriptor const& descriptor, std::string const& values) {
    EXPECT_EQ(descriptor.tag, alone.data()[0]);
    EXPECT_EQ(descriptor.length, alone.data()[1]);
    EXPECT_EQ(spell(descriptor), values);
  };
  Descriptor descriptor = in_section<Descriptor>(text, "A5 5A A5 5A A5 5A A5 5A A5 5A A5 5A");
  expect(descriptor, expected);
  EXPECT_EQ(dumped(descriptor), dump_of(lines));
  descriptor = Descriptor();
  descriptor = Descriptor(alone.data());
  expect(descriptor, expected);
  EXPECT_EQ(dumped(descriptor), dump_of(lines));
  descriptor._reset();
  expect(descriptor, after_reset);
}

/// For a class whose `_reset` empties nothing.
template <class Descriptor, class Spell>
void check(std::string_view text, std::vector<std::string> const& lines, Spell spell,
           std::string const& expected) {
  check<Descriptor>(text, lines, spell, expected, expected);
}

}  // namespace sivane::testing
