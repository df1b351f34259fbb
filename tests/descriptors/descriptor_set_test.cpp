// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <numeric>
#include <type_traits>

#include "descriptor_check.h"
#include "expect_error.h"
#include "row_list.h"

namespace sivane::testing {
namespace {

static_assert(sizeof(DescriptorSet) <= 64);
static_assert(std::is_nothrow_move_constructible_v<DescriptorSet> &&
              std::is_nothrow_move_assignable_v<DescriptorSet>);
// No destructor to call through the base, so no descriptor is deleted through it.
static_assert(!std::is_destructible_v<DescriptorBase> && !std::has_virtual_destructor_v<DescriptorBase>);
template <class Descriptor>
constexpr bool is_plain_value =
    std::is_nothrow_move_constructible_v<Descriptor>&& std::is_copy_constructible_v<Descriptor>&&
        std::is_copy_assignable_v<Descriptor>&& std::is_base_of_v<DescriptorBase, Descriptor>&&
            std::is_constructible_v<Descriptor, unsigned char const*>;
static_assert(is_plain_value<DescriptorGeneral>);
#define SIVANE_ROW(tag, Class, getter, element, tag_text) static_assert(is_plain_value<Class>);
#include <sivane/descriptors/descriptor_rows.inc>

void parse(DescriptorSet& set, Bytes const& descriptor) { set.ParseDescriptor(descriptor.data()); }
void parse(DescriptorSet& set, char const* descriptor) { parse(set, hex(descriptor)); }

/// The longest one of at most 40 body bytes that the class of `tag` accepts, bytes that count up if possible.
Bytes valid_descriptor(int tag) {
  for (const bool counting : {true, false}) {
    for (std::size_t length = 40; length > 0; --length) {
      Bytes body(length);
      if (counting) std::iota(body.begin(), body.end(), static_cast<unsigned char>(1));
      Bytes descriptor = make_descriptor(tag, body);
      DescriptorSet set;
      if (!caught_error([&] { parse(set, descriptor); })) return descriptor;
    }
  }
  return make_descriptor(tag, {});
}

std::string dump_all(DescriptorSet const& set) {
  std::string text;
  for (Row const& row : row_list) text += row.dump(set);
  return text;
}

std::size_t count_all(DescriptorSet const& set) {
  return std::accumulate(std::begin(row_list), std::end(row_list), std::size_t{},
                         [&](std::size_t sum, Row const& row) { return sum + row.count(set); });
}

TEST(DescriptorSet, EachTagFillsOneVectorAndLeavesTheOthersEmpty) {
  EXPECT_EQ(std::size(row_list), 71u);
  DescriptorSet all;
  for (Row const& filled : row_list) {
    const Bytes descriptor = valid_descriptor(filled.tag);
    DescriptorSet set;
    parse(set, descriptor);
    parse(all, descriptor);
    for (Row const& row : row_list) {
      EXPECT_EQ(row.count(set), &row == &filled ? 1u : 0u) << filled.getter << ", " << row.getter;
    }
  }
  for (Row const& row : row_list) EXPECT_EQ(row.count(all), 1u) << row.getter;
}

using Set = DescriptorSet;
const std::pair<int, std::size_t (*)(Set const&)> published[] = {
    {0x5A, count<&Set::get_terrestrial_delivery_system_descriptors>},
    {0x5B, count<&Set::get_multilingual_network_name_descriptors>},
    {0x5C, count<&Set::get_multilingual_bouquet_name_descriptors>},
    {0x5D, count<&Set::get_multilingual_service_name_descriptors>},
    {0x5E, count<&Set::get_multilingual_component_descriptors>},
    {0x5F, count<&Set::get_private_data_specifier_descriptors>},
    {0x60, count<&Set::get_service_move_descriptors>},
    {0x61, count<&Set::get_short_smoothing_buffer_descriptors>},
    {0x45, count<&Set::get_VBI_data_descriptors>},
    {0x46, count<&Set::get_VBI_teletext_descriptors>},
    {0x62, count<&Set::get_frequency_list_descriptors>},
    {0x63, count<&Set::get_partial_transport_stream_descriptors>},
    {0x64, count<&Set::get_data_broadcast_descriptors>},
    {0x66, count<&Set::get_data_broadcast_id_descriptors>},
    {0x67, count<&Set::get_transport_stream_descriptors>},
    {0x68, count<&Set::get_DSNG_descriptors>},
    {0x69, count<&Set::get_PDC_descriptors>},
    {0x6A, count<&Set::get_AC3_descriptors>},
    {0x6B, count<&Set::get_ancillary_data_descriptors>},
    {0x6C, count<&Set::get_cell_list_descriptors>},
    {0x6D, count<&Set::get_cell_frequency_link_descriptors>},
    {0x6E, count<&Set::get_announcement_support_descriptors>},
    {0x6F, count<&Set::get_application_signalling_descriptors>},
    {0x70, count<&Set::get_adaptation_field_data_descriptors>},
    {0x71, count<&Set::get_service_identifier_descriptors>},
    {0x72, count<&Set::get_service_availability_descriptors>},
    {0x53, count<&Set::get_CA_identifiers_descriptors>},
    {0x54, count<&Set::get_content_descriptors>},
    {0x80, count<&Set::get_user_private_descriptors>},
    {0x4D, count<&Set::get_short_event_descriptors>},
    {0x4E, count<&Set::get_extended_event_descriptors>},
    {0x4F, count<&Set::get_time_shifted_event_descriptors>},
    {0x50, count<&Set::get_component_descriptors>},
    {0x58, count<&Set::get_local_time_offset_descriptors>},
    {0x56, count<&Set::get_teletext_descriptors>},
    {0x00, count<&Set::get_general_descriptors>},
};

TEST(DescriptorSet, PublishedGettersReadTheirTags) {
  EXPECT_EQ(std::size(published), 36u);
  for (auto const& [tag, count_of] : published) {
    DescriptorSet set;
    parse(set, valid_descriptor(tag));
    EXPECT_EQ(count_of(set), 1u) << tag;
  }
}

TEST(DescriptorSet, TagsWithoutAClassAreKeptAsBytes) {
  const auto spell = [](auto const& d) { return members(d.data); };
  check<DescriptorGeneral>("15 02 41 FF", {"15 Reserved", "data:", block("41 ff", "A.")}, spell, "<41ff>",
                           "<>");
  check<DescriptorGeneral>(
      "80 11 00 61 7A 41 5A 30 40 5B 60 7B 01 02 03 04 05 06 62",
      {"80 User Private", "data:", "00 61 7a 41 5a 30 40 5b 60 7b 01 02 03 04 05 06  : .azAZ...........",
       block("62", "b")},
      spell, "<00617a415a30405b607b01020304050662>", "<>");
  check<DescriptorGeneral>("00 00", {"00 Reserved", "data:"}, spell, "<>");

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
  const Bytes bytes = hex("09 03 AA BB CC");
  const DescriptorGeneral overlaid(reinterpret_cast<descriptor_base const*>(bytes.data()));
  EXPECT_EQ(members(overlaid.tag, overlaid.length, overlaid.data), "9 3 <aabbcc>");
  const DescriptorGeneral given(0x41, bytes.data() + 2, 2);
  EXPECT_EQ(members(given.tag, given.length, given.data), "41 2 <aabb>");
  for (const int length : {0, -1}) {
    const DescriptorGeneral none(-5, nullptr, length);
    EXPECT_EQ(none.tag, -5);
    EXPECT_EQ(none.length, length);
    EXPECT_TRUE(none.data.empty());
  }
}

TEST(DescriptorSet, RepeatedTagsKeepTheirOrder) {
  DescriptorSet set;
  for (char const* const descriptor : {"52 01 11", "09 04 00 01 00 02", "52 01 22", "52 01 11"})
    parse(set, descriptor);
  const auto spell = [](auto const& d) { return members(d.component_tag); };
  EXPECT_EQ(each(set.get_stream_identifier_descriptors(), spell), "{11}{22}{11}");
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

TEST(DescriptorSet, CopiesAreIndependentAndMovesTakeEverything) {
  DescriptorSet set;
  for (Row const& row : row_list) {
    parse(set, valid_descriptor(row.tag));
    parse(set, valid_descriptor(row.tag));
  }
  const std::string dump = dump_all(set);
  ASSERT_EQ(count_all(set), 142u);

  DescriptorSet copy(set);
  parse(copy, "52 01 11");
  EXPECT_EQ(count_all(copy), 143u);
  EXPECT_EQ(dump_all(set), dump);
  copy = set;
  EXPECT_EQ(dump_all(copy), dump);
  DescriptorSet& same = copy;
  copy = same;
  EXPECT_EQ(dump_all(copy), dump);

  DescriptorSet moved(std::move(copy));
  EXPECT_EQ(dump_all(moved), dump);
  DescriptorSet assigned;
  parse(assigned, "09 04 00 01 00 02");
  assigned = std::move(moved);
  EXPECT_EQ(dump_all(assigned), dump);
  assigned = DescriptorSet();
  EXPECT_EQ(count_all(assigned), 0u);
  EXPECT_EQ(dump_all(set), dump);
}

constexpr Failure mismatch{error::length_error, "the loop's own"};

/// Files a loop that claims `size` bytes of a section that these are all of; members of what came of it.
std::string parse_loop(char const* section, int size) {
  const HeapBlock bytes(hex(section));
  Reader reader = Reader::within(bytes.data(), bytes.size());
  DescriptorSet set;
  const bool exact = set.parse_descriptors(reader, size, mismatch);
  return members(exact, reader.consumed(), count_all(set));
}

TEST(DescriptorSet, LoopsMayRunOverTheirSizeButNotOverTheSection) {
  EXPECT_EQ(parse_loop("", 0), "1 0 0");
  EXPECT_EQ(parse_loop("52 01 11", 0), "1 0 0");
  EXPECT_EQ(parse_loop("52 01 11 70 01 22 FF FF", 6), "1 6 2");
  // The last one runs over: it is filed, and the reader stands where the size says.
  EXPECT_EQ(parse_loop("52 01 11 70 01 22 FF FF", 5), "0 5 2");
  EXPECT_EQ(parse_loop("52 01 11 70 01 22 FF FF", 4), "0 4 2");
  // Its own length moves the walk, whatever its class reads.
  EXPECT_EQ(parse_loop("52 00 70 01 22 42 00", 7), "1 7 3");
  EXPECT_EQ(parse_loop("52 03 11 22 33 42 00", 7), "1 7 2");

  EXPECT_TRUE(throws([] { parse_loop("52 01 11 15 03 22 33", 7); }, mismatch.code, mismatch.text));
  EXPECT_TRUE(throws([] { parse_loop("52 01 11 15 01", 4); }, mismatch.code, mismatch.text));
  EXPECT_TRUE(throws([] { parse_loop("52 01 11 15", 4); }, mismatch.code, mismatch.text));
  EXPECT_ANY_THROW(parse_loop("52 01 11", 4));
}

TEST(DescriptorSet, LoopsKeepWhatStandsBeforeAFailure) {
  const Bytes bytes = hex("52 01 11 70 01 22 56 01 00 52 01 33");
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
  const std::string text = os.str();
  EXPECT_EQ(text.substr(0, 3), "1B.");
  EXPECT_NE(text.find("\nmodulation 27\n"), std::string::npos);
  EXPECT_EQ(text.substr(text.find("FEC_inner")), "FEC_inner 0\n27.descriptor_tag: 6A _descriptor\n1B001B");
}

}  // namespace
}  // namespace sivane::testing
