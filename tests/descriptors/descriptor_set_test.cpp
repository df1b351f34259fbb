// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Sets as values, their loops, and what no case file can say of descriptors.
#include <gtest/gtest.h>
#include <sivane/foundation/parse_state.h>

#include <sstream>
#include <type_traits>
#include <utility>

#include "expect_error.h"
#include "rows.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

template <class Set>
void parse(Set& set, char const* descriptor) {
  file(set, hex(descriptor).data());
}

/// How many descriptors each row holds.
template <class Set>
std::vector<std::size_t> counts(Set const& set) {
  std::vector<std::size_t> all;
  each_row<Set>([&](auto const& row) { all.push_back((set.*row.getter)().size()); });
  return all;
}

// No destructor to call through the base, so no descriptor is deleted through it.
static_assert(!std::is_destructible_v<DescriptorBase>);

template <class Set>
class EitherSet : public ::testing::Test {
 protected:
  /// Two of every row, where 26 bytes of zeros make one.
  EitherSet() {
    for (int i = 0; i < 2; ++i) {
      each_row<Set>([this](auto const& row) {
        thrown([&] { file(full, make_descriptor(row.tag, Bytes(26)).data()); });
      });
    }
  }
  Set full;
};
using Sets = ::testing::Types<DescriptorSet, AitDescriptorSet>;
TYPED_TEST_SUITE(EitherSet, Sets);

TYPED_TEST(EitherSet, CopiesAreIndependentAndMovesTakeEverything) {
  static_assert(sizeof(TypeParam) <= 64 && std::is_nothrow_move_constructible_v<TypeParam> &&
                std::is_nothrow_move_assignable_v<TypeParam>);
  TypeParam& set = this->full;
  std::vector<std::size_t> const before = counts(set);
  EXPECT_GT(std::count(before.begin(), before.end(), 2u), static_cast<long>(before.size() / 2));
  TypeParam copy(set);
  parse(copy, "7F 01 11");
  EXPECT_EQ(copy.get_general_descriptors().size(), 3u);
  EXPECT_EQ(counts(set), before);
  copy = set;
  EXPECT_EQ(counts(copy), before);
  TypeParam& same = copy;
  copy = same;
  EXPECT_EQ(counts(copy), before);
  TypeParam moved(std::move(copy)), assigned;
  parse(assigned, "FE 00");
  assigned = std::move(moved);
  EXPECT_EQ(counts(assigned), before);
  assigned = TypeParam();
  EXPECT_EQ(counts(assigned), counts(TypeParam()));
  EXPECT_EQ(counts(set), before);
}

TYPED_TEST(EitherSet, GeneralDescriptorsAreClearedAloneOrAllOfThem) {
  TypeParam& set = this->full;
  TypeParam expected, none;
  none.clear_general_descriptors();
  EXPECT_EQ(counts(none), counts(TypeParam()));
  TypeParam const copy(set);
  set.clear_general_descriptors();
  EXPECT_EQ(set.get_general_descriptors().size(), 0u);
  for (int i = 0; i < 2; ++i) parse(set, "7F 01 11");
  EXPECT_EQ(counts(set), counts(copy));
  EXPECT_EQ(set.get_general_descriptors()[0].tag, 0x7F);
  EXPECT_EQ(copy.get_general_descriptors()[0].tag, 0x15);
  if constexpr (std::is_same_v<TypeParam, DescriptorSet>) {
    set.clear_descriptors();
    EXPECT_EQ(counts(set), counts(TypeParam()));
    parse(set, "52 01 22");
    EXPECT_EQ(set.get_stream_identifier_descriptors().at(0).component_tag, 0x22);
  }
}

/// The specifiers that private descriptors remember of a loop; with options the set builds these alone.
template <class Set>
std::vector<unsigned int> specifiers(Bytes const& loop, ParseOptions* options) {
  int const size = static_cast<int>(loop.size());
  ParseState state(size, options);
  Reader reader(loop.data(), size, size, too_little_data, 0, &state);
  Set set;
  set.parse_descriptors(reader, size, too_little_data);
  std::vector<unsigned int> found;
  for (auto const& d : set.get_user_private_descriptors()) found.push_back(d.private_data_specifier);
  return found;
}

TYPED_TEST(EitherSet, PrivateDescriptorsRememberTheSpecifierBeforeThem) {
  Bytes const loop = assemble(
      "83[ 01 ] 5F[ FFFFFF28 ] 83[ 02 ] 83[ 03 ] 15[] 84[] 5F[ 00000001 ] 5F[ 00000029 ] 83[] 5F[ 01 ] 83[ "
      "00 ]");
  std::vector<unsigned int> const expected = {0, 0xFFFFFF28, 0xFFFFFF28, 0xFFFFFF28, 0x29, 0};
  EXPECT_EQ(specifiers<TypeParam>(loop, nullptr), expected);
  ParseOptions options;
  options.build_only({0x83, 0x84});
  EXPECT_EQ(specifiers<TypeParam>(loop, &options), expected);
  EXPECT_EQ(specifiers<TypeParam>(assemble("83[]"), nullptr), std::vector<unsigned int>{0});
}

TEST(DescriptorSet, GeneralDescriptorsBuiltByHand) {
  Bytes const bytes = hex("09 03 AA BB CC");
  DescriptorGeneral const overlaid(reinterpret_cast<descriptor_base const*>(bytes.data()));
  EXPECT_EQ(overlaid.tag, 9);
  EXPECT_EQ(overlaid.data, hex("AABBCC"));
  DescriptorGeneral const given(0x41, bytes.data() + 2, 2), none(-5, nullptr, -1);
  EXPECT_EQ(given.length, 2);
  EXPECT_EQ(given.data, hex("AABB"));
  EXPECT_EQ(none.tag, -5);
  EXPECT_EQ(none.length, -1);
  EXPECT_TRUE(none.data.empty());
}

TEST(DescriptorSet, OverlaysStoreTheirOwnTag) {
  Bytes const bytes = hex("77 04 65 6E 67 41");
  EXPECT_EQ(DescriptorVideoStream(bytes.data()).tag, 0x77);
  EXPECT_EQ(DescriptorISO639Language(bytes.data()).tag, 0x77);
  DescriptorVideoStream const video(reinterpret_cast<VIDEO_STREAM_desc const*>(bytes.data()));
  EXPECT_EQ(video.tag, 2);
  EXPECT_EQ(video.frame_rate_code, 0xC);
  DescriptorISO639Language const language(reinterpret_cast<ISO_639_LANGUAGE_desc const*>(bytes.data()));
  EXPECT_EQ(language.tag, 10);
  EXPECT_EQ(language.language_vector.at(0).audio_type, 0x41);
}

TEST(DescriptorSet, MembersThatAreNotShownElsewhere) {
  DescriptorCa by_hand;
  by_hand.add_private_byte(0xFE);
  by_hand.add_private_byte(0x01);
  EXPECT_EQ(by_hand.private_bytes, hex("FE01"));
  EXPECT_EQ(DescriptorAitApplicationIcons(hex("0B 05 02 41 00 00 01").data()).icon_locator,
            std::string("A\0", 2));
  Bytes const ipv6 = hex("00 0102030405060708090A0B0C0D0E0F10 1112 131415161718191A1B1C1D1E1F202122");
  DescriptorAitRoutingIPv6::RoutingIPv6Info const info(ipv6.data());
  EXPECT_EQ(Bytes(info.get_address(), info.get_address() + 16), Bytes(ipv6.begin() + 1, ipv6.begin() + 17));
  EXPECT_EQ(Bytes(info.get_address_mask(), info.get_address_mask() + 16),
            Bytes(ipv6.begin() + 19, ipv6.end()));
}

constexpr Failure mismatch{error::length_error, "the loop's own"};

/// Files a loop that claims `size` bytes of a section that these are all of: the bytes taken, or what is
/// thrown, and the tags filed.
std::string parse_loop(char const* section, int size, LoopEnd end = LoopEnd::open) {
  HeapBlock const bytes(assemble(section));
  Reader reader = Reader::within(bytes.data(), bytes.size());
  DescriptorSet set;
  std::string text = thrown([&] { set.parse_descriptors(reader, size, mismatch, end); });
  if (text.empty()) text = std::to_string(reader.consumed());
  each_row<DescriptorSet>([&](auto const& row) {
    for (auto const& descriptor : (set.*row.getter)()) text += ' ' + std::to_string(descriptor.tag);
  });
  return text;
}

TEST(DescriptorSet, LoopsMayRunOverTheirSizeButNotOverTheSection) {
  EXPECT_EQ(parse_loop("", 0), "0");
  EXPECT_EQ(parse_loop("52[ 11 ] 70[ 22 ]", 1), "1 82");
  EXPECT_EQ(parse_loop("52[ 11 ] 70[ 22 ] FF FF", 6, LoopEnd::exact), "6 82 112");
  // The last one runs over: it is filed, and the reader stands where the size says.
  EXPECT_EQ(parse_loop("52[ 11 ] 70[ 22 ] FF FF", 4), "4 82 112");
  // Its own length moves the walk, whatever its class reads.
  EXPECT_EQ(parse_loop("52[] 70[ 22 ] 42[]", 7), "7 66 82 112");
  EXPECT_EQ(parse_loop("52[ 11 22 33 ] 42[]", 7), "7 66 82");
  std::string const refused = "length_error the loop's own 82";
  EXPECT_EQ(parse_loop("52[ 11 ] 70[ 22 ] FF FF", 5, LoopEnd::exact), refused + " 112");
  EXPECT_EQ(parse_loop("52[ 11 ] 15[+1 22 33 ]", 7), refused);
  EXPECT_EQ(parse_loop("52[ 11 ] 15", 4), refused);
  EXPECT_EQ(parse_loop("52[ 11 ]", 4), refused);
  // What throws is not filed, and what stands before it is.
  EXPECT_EQ(parse_loop("52[ 11 ] 70[ 22 ] 56[ 00 ] 52[ 33 ]", 12),
            "no_errorcode descriptor length mismatch 82 112");
}

// A descriptor at a bare pointer is in no section.
TEST(DescriptorSet, FailuresAtABarePointerHaveNoOffset) {
  auto const failure = caught_error([] { DescriptorTeletext(hex("56 01 00").data()); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->offset, -1);
}

TEST(DescriptorDump, StreamStateIsTheStreams) {
  std::ostringstream os;
  os.setf(std::ios::uppercase);
  os << 0x1B << '.';
  DescriptorSatelliteDeliverySystem(hex("43 0B 00 00 00 00 00 00 1B 00 00 00 00").data()).dump_state(os);
  os << 0x1B << '.';
  DescriptorAC3(hex("6A 01 00").data()).dump_state(os);
  os << 0x1B;
  os.width(4);
  os << 0x1B;
  std::string const text = os.str();
  EXPECT_EQ(text.substr(0, 3), "27.");
  EXPECT_NE(text.find("\nmodulation 27\n"), std::string::npos);
  EXPECT_EQ(text.substr(text.find("FEC_inner")), "FEC_inner 0\n27.descriptor_tag: 6A _descriptor\n1B001B");
}

}  // namespace
}  // namespace sivane::testing
