// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <numeric>
#include <sstream>
#include <type_traits>

#include "descriptor_check.h"
#include "row_list.h"
#include "spell.h"

namespace sivane::testing {
namespace {

template <class Set>
constexpr bool is_light =
    sizeof(Set) <= 64 && std::is_nothrow_move_constructible_v<Set>&& std::is_nothrow_move_assignable_v<Set>;
static_assert(is_light<DescriptorSet> && is_light<AitDescriptorSet>);
// No destructor to call through the base, so no descriptor is deleted through it.
static_assert(!std::is_destructible_v<DescriptorBase> && !std::has_virtual_destructor_v<DescriptorBase>);
template <class Descriptor>
constexpr bool is_plain_value =
    std::is_nothrow_move_constructible_v<Descriptor>&& std::is_copy_constructible_v<Descriptor>&&
        std::is_copy_assignable_v<Descriptor>&& std::is_base_of_v<DescriptorBase, Descriptor>&&
            std::is_constructible_v<Descriptor, unsigned char const*>;
static_assert(is_plain_value<DescriptorGeneral>);
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) static_assert(is_plain_value<Class>);
#include <sivane/descriptors/descriptor_rows.inc>
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) \
  static_assert(is_plain_value<Class> && std::is_base_of_v<DescriptorAitBase, Class>);
#include <sivane/descriptors/ait_descriptor_rows.inc>

template <class Set>
void parse(Set& set, Bytes const& descriptor) {
  file(set, descriptor.data());
}
template <class Set>
void parse(Set& set, char const* descriptor) {
  parse(set, hex(descriptor));
}

/// The longest one of at most 40 body bytes that the class of `tag` accepts, bytes that count up if possible.
template <class Set>
Bytes valid_descriptor(int tag) {
  for (bool const counting : {true, false}) {
    for (std::size_t length = 40; length > 0; --length) {
      Bytes body(length);
      if (counting) std::iota(body.begin(), body.end(), static_cast<unsigned char>(1));
      Bytes descriptor = make_descriptor(tag, body);
      Set set;
      if (thrown([&] { parse(set, descriptor); }).empty()) return descriptor;
    }
  }
  return make_descriptor(tag, {});
}

template <class Set>
std::string dump_all(Set const& set) {
  std::string text;
  for (RowOf<Set> const& row : row_list<Set>()) text += row.dump(set);
  return text;
}

template <class Set>
std::size_t count_all(Set const& set) {
  return std::accumulate(row_list<Set>().begin(), row_list<Set>().end(), std::size_t{},
                         [&](std::size_t sum, RowOf<Set> const& row) { return sum + row.count(set); });
}

template <class Set>
class EitherSet : public ::testing::Test {};
using Sets = ::testing::Types<DescriptorSet, AitDescriptorSet>;
TYPED_TEST_SUITE(EitherSet, Sets);

TYPED_TEST(EitherSet, EachTagFillsOneVectorAndLeavesTheOthersEmpty) {
  EXPECT_EQ(row_list<TypeParam>().size(), (std::is_same_v<TypeParam, DescriptorSet> ? 71u : 16u));
  TypeParam all;
  for (RowOf<TypeParam> const& filled : row_list<TypeParam>()) {
    Bytes const descriptor = valid_descriptor<TypeParam>(filled.tag);
    TypeParam set;
    parse(set, descriptor);
    parse(all, descriptor);
    for (RowOf<TypeParam> const& row : row_list<TypeParam>()) {
      EXPECT_EQ(row.count(set), &row == &filled ? 1u : 0u) << filled.getter << ", " << row.getter;
    }
  }
  for (RowOf<TypeParam> const& row : row_list<TypeParam>()) EXPECT_EQ(row.count(all), 1u) << row.getter;
}

TYPED_TEST(EitherSet, CopiesAreIndependentAndMovesTakeEverything) {
  TypeParam set;
  for (RowOf<TypeParam> const& row : row_list<TypeParam>()) {
    parse(set, valid_descriptor<TypeParam>(row.tag));
    parse(set, valid_descriptor<TypeParam>(row.tag));
  }
  std::string const dump = dump_all(set);
  std::size_t const count = count_all(set);
  ASSERT_EQ(count, 2 * row_list<TypeParam>().size());

  TypeParam copy(set);
  parse(copy, "7F 01 11");
  EXPECT_EQ(count_all(copy), count + 1);
  EXPECT_EQ(dump_all(set), dump);
  copy = set;
  EXPECT_EQ(dump_all(copy), dump);
  TypeParam& same = copy;
  copy = same;
  EXPECT_EQ(dump_all(copy), dump);

  TypeParam moved(std::move(copy));
  EXPECT_EQ(dump_all(moved), dump);
  TypeParam assigned;
  parse(assigned, "0A 04 00 01 00 02");
  assigned = std::move(moved);
  EXPECT_EQ(dump_all(assigned), dump);
  assigned = TypeParam();
  EXPECT_EQ(count_all(assigned), 0u);
  EXPECT_EQ(dump_all(set), dump);
}

TYPED_TEST(EitherSet, GeneralDescriptorsAreClearedAlone) {
  TypeParam set, none;
  none.clear_general_descriptors();
  EXPECT_EQ(count_all(none), 0u);
  for (RowOf<TypeParam> const& row : row_list<TypeParam>()) parse(set, valid_descriptor<TypeParam>(row.tag));
  parse(set, "7F 01 11");
  TypeParam const copy(set);
  set.clear_general_descriptors();
  EXPECT_EQ(set.get_general_descriptors().size(), 0u);
  EXPECT_EQ(count_all(set), row_list<TypeParam>().size() - 1);
  EXPECT_EQ(copy.get_general_descriptors().size(), 2u);
  parse(set, "7F 01 11");
  EXPECT_EQ(set.get_general_descriptors().size(), 1u);
}

TEST(DescriptorSet, ClearedItIsAsNew) {
  DescriptorSet set;
  for (Row const& row : row_list()) parse(set, valid_descriptor<DescriptorSet>(row.tag));
  DescriptorSet const copy(set);
  set.clear_descriptors();
  EXPECT_EQ(count_all(set), 0u);
  EXPECT_EQ(count_all(copy), 71u);
  parse(set, "52 01 11");
  EXPECT_EQ(count_all(set), 1u);
}

TEST(AitDescriptorSet, DumpsEverythingRowByRow) {
  AitDescriptorSet set;
  for (auto row = row_list<AitDescriptorSet>().rbegin(); row != row_list<AitDescriptorSet>().rend(); ++row) {
    parse(set, valid_descriptor<AitDescriptorSet>(row->tag));
  }
  std::ostringstream os;
  set.dump_descriptors(os);
  EXPECT_EQ(os.str(), dump_all(set));
}

TEST(AitDescriptorSet, TagsWithoutAClassAreFiledByWhetherTheyArePrivate) {
  AitDescriptorSet set;
  for (char const* const tag : {"0E 00", "7F 00", "80 00", "FF 00", "42 00"}) parse(set, tag);
  EXPECT_EQ(set.get_general_descriptors().size(), 3u);
  EXPECT_EQ(set.get_user_private_descriptors().size(), 2u);
}

TEST(DescriptorSet, GettersThatAreNotNamedLikeTheirClass) {
  DescriptorSet set;
  for (int const tag : {0x47, 0x53, 0x5E, 0x63, 0x6D, 0x80, 0x00})
    parse(set, valid_descriptor<DescriptorSet>(tag));
  EXPECT_EQ(set.get_bouquet_descriptors().size(), 1u);
  EXPECT_EQ(set.get_CA_identifiers_descriptors().size(), 1u);
  EXPECT_EQ(set.get_multilingual_component_descriptors().size(), 1u);
  EXPECT_EQ(set.get_partial_transport_stream_descriptors().size(), 1u);
  EXPECT_EQ(set.get_cell_frequency_link_descriptors().size(), 1u);
  EXPECT_EQ(set.get_user_private_descriptors().size(), 1u);
  EXPECT_EQ(set.get_general_descriptors().size(), 1u);
}

TEST(DescriptorSet, TagsWithoutAClassAreFiledByWhetherTheyArePrivate) {
  DescriptorSet set;
  for (char const* const below : {"00 00", "01 00", "15 00", "3F 00", "65 00", "73 00", "7F 00"})
    parse(set, below);
  EXPECT_EQ(set.get_general_descriptors().size(), 7u);
  parse(set, "80 00");
  parse(set, "FF 00");
  EXPECT_EQ(set.get_user_private_descriptors().size(), 2u);
  EXPECT_EQ(count_all(set), 9u);
}

TEST(DescriptorSet, GeneralDescriptorsBuiltByHand) {
  Bytes const bytes = hex("09 03 AA BB CC");
  DescriptorGeneral const overlaid(reinterpret_cast<descriptor_base const*>(bytes.data()));
  EXPECT_EQ(members(overlaid.tag, overlaid.length, overlaid.data), "9 3 <aabbcc>");
  DescriptorGeneral const given(0x41, bytes.data() + 2, 2);
  EXPECT_EQ(members(given.tag, given.length, given.data), "41 2 <aabb>");
  for (int const length : {0, -1}) {
    DescriptorGeneral const none(-5, nullptr, length);
    EXPECT_EQ(none.tag, -5);
    EXPECT_EQ(none.length, length);
    EXPECT_TRUE(none.data.empty());
  }
}

TEST(DescriptorSet, OverlaysStoreTheirOwnTag) {
  Bytes const bytes = hex("77 04 65 6E 67 41");
  EXPECT_EQ(DescriptorVideoStream(bytes.data()).tag, 0x77);
  EXPECT_EQ(DescriptorISO639Language(bytes.data()).tag, 0x77);
  DescriptorVideoStream const video(reinterpret_cast<VIDEO_STREAM_desc const*>(bytes.data()));
  EXPECT_EQ(members(video.tag, video.length, video.frame_rate_code), "2 4 c");
  DescriptorISO639Language const language(reinterpret_cast<ISO_639_LANGUAGE_desc const*>(bytes.data()));
  EXPECT_EQ(members(language.tag, language.length, language.language_vector.at(0).audio_type), "a 4 41");
}

TEST(DescriptorSet, PrivateBytesOfACaDescriptorAreAddedAtTheEnd) {
  DescriptorCa by_hand;
  by_hand.add_private_byte(0xFE);
  by_hand.add_private_byte(0x01);
  EXPECT_EQ(members(by_hand.sys_id, by_hand.pid, by_hand.private_bytes), "0 0 <fe01>");
}

TEST(DescriptorSet, RepeatedTagsKeepTheirOrder) {
  DescriptorSet set;
  for (char const* const descriptor : {"52 01 11", "09 04 00 01 00 02", "52 01 22", "52 01 33"})
    parse(set, descriptor);
  auto const& streams = set.get_stream_identifier_descriptors();
  ASSERT_EQ(streams.size(), 3u);
  EXPECT_EQ(members(streams[0].component_tag, streams[1].component_tag, streams[2].component_tag),
            "11 22 33");
  EXPECT_EQ(set.get_CA_descriptors().size(), 1u);
}

TEST(DescriptorSet, WhatThrowsIsNotFiled) {
  DescriptorSet set;
  parse(set, "56 05 65 6E 67 01 02");
  EXPECT_TRUE(throws([&] { parse(set, "56 04 65 6E 67 01"); }, "descriptor length mismatch"));
  EXPECT_TRUE(throws([&] { parse(set, "49 00"); }, error::length_error, "country_availability_descriptor"));
  EXPECT_EQ(set.get_teletext_descriptors().size(), 1u);
  EXPECT_EQ(count_all(set), 1u);
}

constexpr Failure mismatch{error::length_error, "the loop's own"};

/// Files a loop that claims `size` bytes of a section that these are all of; members of what came of it.
std::string parse_loop(char const* section, int size, LoopEnd end = LoopEnd::open) {
  HeapBlock const bytes(hex(section));
  Reader reader = Reader::within(bytes.data(), bytes.size());
  DescriptorSet set;
  set.parse_descriptors(reader, size, mismatch, end);
  return members(reader.consumed(), count_all(set));
}

TEST(DescriptorSet, LoopsMayRunOverTheirSizeButNotOverTheSection) {
  EXPECT_EQ(parse_loop("", 0), "0 0");
  EXPECT_EQ(parse_loop("52 01 11", 0), "0 0");
  EXPECT_EQ(parse_loop("52 01 11 70 01 22 FF FF", 6), "6 2");
  // The last one runs over: it is filed, and the reader stands where the size says.
  EXPECT_EQ(parse_loop("52 01 11 70 01 22 FF FF", 5), "5 2");
  EXPECT_EQ(parse_loop("52 01 11 70 01 22 FF FF", 4), "4 2");
  // Its own length moves the walk, whatever its class reads.
  EXPECT_EQ(parse_loop("52 00 70 01 22 42 00", 7), "7 3");
  EXPECT_EQ(parse_loop("52 03 11 22 33 42 00", 7), "7 2");

  EXPECT_EQ(parse_loop("52 01 11 70 01 22 FF FF", 6, LoopEnd::exact), "6 2");
  EXPECT_TRUE(
      throws([] { parse_loop("52 01 11 70 01 22 FF FF", 5, LoopEnd::exact); }, mismatch.code, mismatch.text));
  EXPECT_TRUE(throws([] { parse_loop("52 01 11 15 03 22 33", 7); }, mismatch.code, mismatch.text));
  EXPECT_TRUE(throws([] { parse_loop("52 01 11 15 01", 4); }, mismatch.code, mismatch.text));
  EXPECT_TRUE(throws([] { parse_loop("52 01 11 15", 4); }, mismatch.code, mismatch.text));
  EXPECT_ANY_THROW(parse_loop("52 01 11", 4));
}

TEST(DescriptorSet, LoopsKeepWhatStandsBeforeAFailure) {
  Bytes const bytes = hex("52 01 11 70 01 22 56 01 00 52 01 33");
  Reader reader = Reader::within(bytes.data(), static_cast<int>(bytes.size()));
  DescriptorSet set;
  EXPECT_TRUE(throws([&] { set.parse_descriptors(reader, 12, mismatch); }, "descriptor length mismatch"));
  EXPECT_EQ(count_all(set), 2u);
}

TEST(DescriptorDump, StreamStateIsTheStreams) {
  DescriptorSet set;
  parse(set, "6A 01 00");
  parse(set, "43 0B 00 00 00 00 00 00 1B 00 00 00 00");
  std::ostringstream os;
  os.setf(std::ios::uppercase);
  set.get_AC3_descriptors()[0].dump_state(os);
  EXPECT_EQ(os.str(), "descriptor_tag: 6A _descriptor\n");
  os.str("");
  os << 0x1B << '.';
  set.get_satellite_delivery_system_descriptors()[0].dump_state(os);
  os << 0x1B << '.';
  set.get_AC3_descriptors()[0].dump_state(os);
  os << 0x1B;
  os.width(4);
  os << 0x1B;
  std::string const text = os.str();
  EXPECT_EQ(text.substr(0, 3), "1B.");
  EXPECT_NE(text.find("\nmodulation 27\n"), std::string::npos);
  EXPECT_EQ(text.substr(text.find("FEC_inner")), "FEC_inner 0\n27.descriptor_tag: 6A _descriptor\n1B001B");
}

}  // namespace
}  // namespace sivane::testing
