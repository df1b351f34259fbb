// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Every tag with every length at the very end of a section: under the address sanitizer no byte behind the
// section is looked at, and all that is thrown is `error`.
#include <set>

#include "descriptor_check.h"
#include "row_list.h"

namespace sivane::testing {
namespace {

/// Bodies that between them take the branches of most classes: no inner lengths, lengths that run far over,
/// lengths that fit now and then.
std::vector<Bytes> body_patterns() {
  Bytes counting(256), scattered(256);
  unsigned state = 12345;
  for (std::size_t i = 0; i < 256; ++i) {
    counting[i] = static_cast<unsigned char>(i);
    state = state * 1103515245 + 12345;
    scattered[i] = static_cast<unsigned char>(state >> 16 & (i % 3 == 0 ? 0xFF : 0x07));
  }
  return {Bytes(256, 0x00), Bytes(256, 0xFF), counting, scattered};
}

struct Tally {
  int parsed = 0;
  int thrown = 0;
};

/// Parses the descriptor of which `body` alone is left in its section.
template <class Set>
void parse_at_end(int tag, int length, Bytes const& body, Tally& tally) {
  HeapBlock const section(Bytes{static_cast<unsigned char>(tag), static_cast<unsigned char>(length)} + body);
  Set set;
  if (!thrown([&] { parse(set, section); }).empty()) {
    ++tally.thrown;
    return;
  }
  ++tally.parsed;
  Set const copy(set);
  for (RowOf<Set> const& row : row_list<Set>()) {
    if (row.count(copy) > 0) row.dump(copy);
  }
}

/// How many bytes of the body may be left: all, all but one, and none to a few.
std::set<int> sizes_left(int length) {
  std::set<int> sizes;
  for (int const size : {length, length - 1, length / 2, 0, 3, 7}) {
    if (size >= 0 && size <= length) sizes.insert(size);
  }
  return sizes;
}

template <class Set>
class Bounds : public ::testing::Test {};
using Sets = ::testing::Types<DescriptorSet, AitDescriptorSet>;
TYPED_TEST_SUITE(Bounds, Sets);

TYPED_TEST(Bounds, NothingBehindTheSectionIsRead) {
  std::vector<Bytes> const patterns = body_patterns();
  for (RowOf<TypeParam> const& row : row_list<TypeParam>()) {
    Tally tally;
    for (Bytes const& pattern : patterns) {
      for (int length = 0; length <= 0xFF; ++length) {
        for (int const size : sizes_left(length)) {
          parse_at_end<TypeParam>(row.tag, length, {pattern.begin(), pattern.begin() + size}, tally);
        }
      }
    }
    EXPECT_GT(tally.parsed, 0) << row.getter;
    EXPECT_EQ(tally.thrown > 0, row.tag != 0x63 && row.tag != 0x71) << row.getter;  // these read no body
  }
}

TYPED_TEST(Bounds, TagsWithoutAClassNeedTheirWholeBody) {
  for (int tag = 0; tag <= 0xFF; ++tag) {
    if (has_class<TypeParam>(tag)) continue;
    for (int length = 0; length <= 0xFF; ++length) {
      for (int const size : sizes_left(length)) {
        Tally tally;
        parse_at_end<TypeParam>(tag, length, Bytes(static_cast<std::size_t>(size), 0xFF), tally);
        EXPECT_EQ(tally.parsed, size == length ? 1 : 0) << tag << ", " << length << ", " << size;
      }
    }
  }
}

// The bytes that each class reads of a body of zeros, but for those with a failure of their own.
template <class Set>
std::vector<std::pair<int, int>> const fixed_sizes = {
    {0x02, 3}, {0x03, 1},  {0x04, 4},  {0x05, 4}, {0x06, 1}, {0x07, 4}, {0x08, 4}, {0x09, 4},
    {0x0B, 2}, {0x0C, 4},  {0x0D, 4},  {0x0E, 3}, {0x0F, 4}, {0x10, 6}, {0x11, 1}, {0x12, 2},
    {0x13, 5}, {0x43, 11}, {0x44, 11}, {0x48, 3}, {0x4A, 7}, {0x4C, 2}, {0x4D, 5}, {0x4E, 6},
    {0x4F, 4}, {0x50, 6},  {0x52, 1},  {0x57, 3}, {0x5A, 7}, {0x5F, 4}, {0x60, 6}, {0x61, 1},
    {0x64, 8}, {0x66, 2},  {0x69, 3},  {0x6A, 1}, {0x6B, 1}, {0x70, 1}};
template <>
std::vector<std::pair<int, int>> const fixed_sizes<AitDescriptorSet> = {
    {0x00, 3}, {0x02, 3}, {0x04, 2}, {0x08, 1}, {0x09, 1}, {0x0A, 1}, {0x0B, 3}};

TYPED_TEST(Bounds, FieldsBehindTheDescriptorAreReadInTheSectionAndNotBehindIt) {
  for (auto const& [tag, size] : fixed_sizes<TypeParam>) {
    for (int length = 0; length <= size; ++length) {
      SCOPED_TRACE(::testing::Message() << "tag " << tag << ", length " << length);
      Bytes const descriptor = make_descriptor(tag, Bytes(static_cast<std::size_t>(length)));
      HeapBlock const alone(descriptor);
      Bytes const behind(static_cast<std::size_t>(size - length));
      EXPECT_EQ(thrown([&] { parsed<TypeParam>(HeapBlock(descriptor + behind)); }), "");
      std::string const expected = length == size ? "" : "no_errorcode too little data";
      TypeParam set;
      EXPECT_EQ(thrown([&] { file(set, alone.data()); }), expected);
      if (length == size) continue;
      EXPECT_EQ(
          thrown([&] { parsed<TypeParam>(HeapBlock(descriptor + Bytes(behind.begin() + 1, behind.end()))); }),
          expected);
    }
  }
}

TYPED_TEST(Bounds, TagAndLengthThemselvesMustStandInTheSection) {
  for (std::size_t const size : {0u, 1u}) {
    HeapBlock const section(Bytes(size, 0x52));
    EXPECT_EQ(thrown([&] { parsed<TypeParam>(section); }), "no_errorcode too little data");
  }
}

}  // namespace
}  // namespace sivane::testing
