// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Every tag with every length at the very end of a section: under the address sanitizer no byte after the
// section is looked at, and all that is thrown is `error`.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "expect_error.h"
#include "plain_bytes.h"
#include "rows.h"

namespace sivane::testing {
namespace {

/// Bodies that between them take the branches of most classes: no inner lengths, lengths that run far over,
/// lengths that fit now and then.
std::vector<Bytes> body_patterns() {
  Bytes counting(256), scattered = noise(256);
  for (std::size_t i = 0; i < 256; ++i) {
    counting[i] = static_cast<unsigned char>(i);
    if (i % 3 != 0) scattered[i] &= 0x07;
  }
  return {Bytes(256, 0x00), Bytes(256, 0xFF), counting, scattered};
}

/// What is thrown where `size` bytes of the body are left in the section; what is parsed survives its set.
template <class Set>
std::string parse_at_end(int tag, int length, Bytes const& body, int size) {
  HeapBlock const section(Bytes{static_cast<unsigned char>(tag), static_cast<unsigned char>(length)} +
                          Bytes(body.begin(), body.begin() + size));
  auto set = std::make_unique<Set>();
  std::string failure = thrown([&] { file(*set, descriptor_in(section)); });
  Set const copy(*set);
  set.reset();
  std::ostringstream os;
  if (!failure.empty()) return failure;
  each_row<Set>([&](auto const& row) {
    for (auto const& descriptor : (copy.*row.getter)()) descriptor.dump_state(os);
  });
  EXPECT_FALSE(os.str().empty());
  return failure;
}

template <class Set>
class Bounds : public ::testing::Test {};
using Sets = ::testing::Types<DescriptorSet, AitDescriptorSet>;
TYPED_TEST_SUITE(Bounds, Sets);

TYPED_TEST(Bounds, NothingAfterTheSectionIsRead) {
  std::vector<Bytes> const patterns = body_patterns();
  each_row<TypeParam>([&](auto const& row) {
    int parsed = 0;
    for (Bytes const& pattern : patterns) {
      for (int length = 0; length <= 0xFF; ++length) {
        for (int const size : std::set<int>{length, length - 1, length / 2, 0, 3, 7}) {
          if (size < 0 || size > length) continue;
          parsed += parse_at_end<TypeParam>(row.tag, length, pattern, size).empty() ? 1 : 0;
        }
      }
    }
    EXPECT_GT(parsed, 0) << row.name;
  });
}

// A class reads the same bytes whatever the length says, or fails by the length alone: with those bytes in
// the section it never has too little, without any one of them always. The one without a class reads its
// length.
TYPED_TEST(Bounds, FieldsAreReadInTheSectionAndNotAfterIt) {
  each_row<TypeParam>([](auto const& row) {
    Bytes const zeros(256);
    for (int length = 0; length <= 40; ++length) {
      auto const has_too_little = [&](int size) {
        return parse_at_end<TypeParam>(row.tag, length, zeros, size) == "no_errorcode too little data";
      };
      int size = 0;
      while (size < 64 && has_too_little(size)) ++size;
      EXPECT_LT(size, 64) << row.name << ", length " << length;
      for (int more = size; more < size + 3; ++more) EXPECT_FALSE(has_too_little(more)) << row.name;
      HeapBlock const alone(Bytes{static_cast<unsigned char>(row.tag), static_cast<unsigned char>(length)} +
                            Bytes(static_cast<std::size_t>(length)));
      TypeParam set;
      EXPECT_EQ(thrown([&] { file(set, alone.data()); }) == "no_errorcode too little data", size > length)
          << row.name << ", length " << length;
    }
  });
}

TYPED_TEST(Bounds, TagAndLengthThemselvesMustStandInTheSection) {
  for (std::size_t const size : {0u, 1u}) {
    HeapBlock const section(Bytes(size, 0x52));
    TypeParam set;
    EXPECT_EQ(thrown([&] { file(set, descriptor_in(section)); }), "no_errorcode too little data");
  }
}

}  // namespace
}  // namespace sivane::testing
