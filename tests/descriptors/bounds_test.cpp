// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Every tag with every length at the very end of a section: under the address sanitizer no byte behind the
// section is looked at, and all that is thrown is `error`.
#include <algorithm>
#include <set>

#include "descriptor_check.h"
#include "expect_error.h"
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
void parse_at_end(int tag, int length, Bytes const& body, Tally& tally) {
  const HeapBlock section(Bytes{static_cast<unsigned char>(tag), static_cast<unsigned char>(length)} + body);
  unsigned char const* const end = section.data() + section.size();
  DescriptorSet set;
  if (caught_error([&] { set.ParseDescriptor({section.data(), end}); })) {
    ++tally.thrown;
    return;
  }
  ++tally.parsed;
  const DescriptorSet copy(set);
  for (Row const& row : row_list) {
    if (row.count(copy) > 0) row.dump(copy);
  }
}

/// How many bytes of the body may be left: all, all but one, and none to a few.
std::set<int> sizes_left(int length) {
  std::set<int> sizes;
  for (const int size : {length, length - 1, length / 2, 0, 3, 7}) {
    if (size >= 0 && size <= length) sizes.insert(size);
  }
  return sizes;
}

bool has_class(int tag) {
  return tag < 0x80 && std::any_of(std::begin(row_list), std::end(row_list),
                                   [tag](Row const& row) { return row.tag == tag && tag != row_tag::other; });
}

TEST(Bounds, NothingBehindTheSectionIsRead) {
  const std::vector<Bytes> patterns = body_patterns();
  for (Row const& row : row_list) {
    Tally tally;
    for (Bytes const& pattern : patterns) {
      for (int length = 0; length <= 0xFF; ++length) {
        for (const int size : sizes_left(length)) {
          parse_at_end(row.tag, length, {pattern.begin(), pattern.begin() + size}, tally);
        }
      }
    }
    EXPECT_GT(tally.parsed, 0) << row.getter;
    EXPECT_EQ(tally.thrown > 0, row.tag != 0x63 && row.tag != 0x71) << row.getter;  // these read no body
  }
}

TEST(Bounds, TagsWithoutAClassNeedTheirWholeBody) {
  for (int tag = 0; tag <= 0xFF; ++tag) {
    if (has_class(tag)) continue;
    for (int length = 0; length <= 0xFF; ++length) {
      for (const int size : sizes_left(length)) {
        Tally tally;
        parse_at_end(tag, length, Bytes(static_cast<std::size_t>(size), 0xFF), tally);
        EXPECT_EQ(tally.parsed, size == length ? 1 : 0) << tag << ", " << length << ", " << size;
      }
    }
  }
}

TEST(Bounds, TagAndLengthThemselvesMustStandInTheSection) {
  for (const int size : {0, 1}) {
    const HeapBlock section(Bytes(static_cast<std::size_t>(size), 0x52));
    DescriptorSet set;
    EXPECT_TRUE(throws(
        [&] {
          set.ParseDescriptor({section.data(), section.data() + size});
        },
        "too little data"));
  }
}

}  // namespace
}  // namespace sivane::testing
