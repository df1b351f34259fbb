// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "descriptor_check.h"
#include "expect_error.h"

namespace sivane::testing {
namespace {

/// A descriptor that fails so from a bare pointer, at the end of a section and within one.
struct NamedFailure {
  char const* bytes;
  error::errorcode_enum code;
  char const* text;
};

const NamedFailure named_failures[] = {
    // counted records
    {"0A 06 65 6E 67 01 64 65", error::no_errorcode, "descriptor length mismatch"},
    {"0A 01 65", error::no_errorcode, "descriptor length mismatch"},
    {"41 04 00 01 02 00", error::no_errorcode, "descriptor length mismatch"},
    {"41 02 00 01", error::no_errorcode, "descriptor length mismatch"},
    {"56 04 65 6E 67 01", error::no_errorcode, "descriptor length mismatch"},
    {"56 06 65 6E 67 01 02 03", error::no_errorcode, "descriptor length mismatch"},
    {"54 01 10", error::no_errorcode, "descriptor length mismatch"},
    {"54 03 10 00 20", error::no_errorcode, "descriptor length mismatch"},
    {"4B 05 00 01 00 02 00", error::length_error, "NVOD_reference_descriptor"},
    {"4B 07 00 01 00 02 00 03 00", error::length_error, "NVOD_reference_descriptor"},
    {"55 03 47 42 52", error::length_error, "parental_rating_descriptor"},
    {"55 05 47 42 52 01 47", error::length_error, "parental_rating_descriptor"},
    {"59 07 65 6E 67 10 00 01 00", error::length_error, "subtitling_descriptor"},
    {"59 09 65 6E 67 10 00 01 00 02 65", error::length_error, "subtitling_descriptor"},
    {"46 04 65 6E 67 01", error::item_length_error, ""},
    {"46 06 65 6E 67 01 02 03", error::item_length_error, ""},
    {"6F 01 00", error::no_errorcode, ""},
    {"6F 04 00 01 02 00", error::no_errorcode, ""},
    // counted records behind a byte, which a length of 0 does not even have
    {"49 00", error::length_error, "country_availability_descriptor"},
    {"49 03 80 47 42", error::length_error, "country_availability_descriptor"},
    {"49 05 80 47 42 52 44", error::length_error, "country_availability_descriptor"},
    {"62 00", error::item_length_error, ""},
    {"62 02 01 00", error::item_length_error, ""},
    {"62 04 01 00 00 00", error::item_length_error, ""},
    {"62 06 01 00 00 00 01 00", error::item_length_error, ""},
    {"72 00", error::item_length_error, ""},
    {"72 02 80 00", error::item_length_error, ""},
    {"72 04 80 00 01 00", error::item_length_error, ""},
    // records that tell their own size
    {"58 0C 47 42 52 01 00 00 C0 79 12 45 00 00", error::no_errorcode, "descriptor start end mismatch"},
    {"58 0E 47 42 52 01 00 00 C0 79 12 45 00 00 00 47", error::no_errorcode, "descriptor start end mismatch"},
    {"45 01 81", error::syntax_error, ""},
    {"45 03 81 02 AA", error::syntax_error, ""},
    {"45 04 81 00 82 01", error::syntax_error, ""},
    {"51 00", error::length_error, "mosiac_descriptor"},
    {"51 06 00 04 00 00 01 80", error::length_error, "mosiac_descriptor"},
    {"51 0C 00 04 00 00 04 80 01 80 02 80 03 80", error::length_error, "mosiac_descriptor"},
    {"51 05 00 04 00 00 00", error::syntax_error, ""},
    {"51 05 00 04 00 00 05", error::syntax_error, ""},
    {"51 05 00 04 00 00 FF", error::syntax_error, ""},
    {"6C 09 00 01 00 02 00 03 00 40 05", error::syntax_error, ""},
    {"6C 0B 00 01 00 02 00 03 00 40 05 00 00", error::syntax_error, ""},
    {"6C 11 00 01 00 02 00 03 00 40 05 08 01 00 02 00 03 00 40", error::syntax_error, ""},
    {"6C 0E 00 01 00 02 00 03 00 40 05 04 01 02 03 04", error::item_length_error, ""},
    {"6C 0A 00 01 00 02 00 03 00 40 05 FF", error::item_length_error, ""},
    {"6D 06 00 01 00 00 00 02", error::syntax_error, ""},
    {"6D 08 00 01 00 00 00 02 00 00", error::syntax_error, ""},
    {"6D 0B 00 01 00 00 00 02 05 01 00 00 00", error::syntax_error, ""},
    {"6D 0B 00 01 00 00 00 02 04 01 00 00 00", error::item_length_error, ""},
    {"6D 07 00 01 00 00 00 02 FE", error::item_length_error, ""},
    {"6E 00", error::syntax_error, ""},
    {"6E 01 80", error::syntax_error, ""},
    {"6E 03 80 01 11", error::syntax_error, ""},
    {"6E 09 80 01 13 00 01 00 02 00 03", error::syntax_error, ""},
    // names in several languages
    {"5B 03 65 6E 67", error::length_error, "multilingual_name_info_descriptor"},
    {"5B 06 65 6E 67 03 41 42", error::length_error, "multilingual_name_info_descriptor:2"},
    {"5C 07 65 6E 67 02 41 42 64", error::length_error, "multilingual_name_info_descriptor"},
    {"5C 04 65 6E 67 01", error::length_error, "multilingual_name_info_descriptor:2"},
    {"5E 00", error::syntax_error, ""},
    {"5E 04 85 65 6E 67", error::length_error, "multilingual_name_info_descriptor"},
    {"5E 05 85 65 6E 67 01", error::length_error, "multilingual_name_info_descriptor:2"},
    {"5D 04 65 6E 67 00", error::length_error, "multilingual_service_name_info_descriptor"},
    {"5D 05 65 6E 67 01 41", error::length_error, "multilingual_service_name_info_descriptor:2"},
    {"5D 05 65 6E 67 FF 00", error::length_error, "multilingual_service_name_info_descriptor:2"},
    {"5D 06 65 6E 67 01 41 01", error::length_error, "multilingual_service_name_info_descriptor:3"},
    {"5D 05 65 6E 67 00 FF", error::length_error, "multilingual_service_name_info_descriptor:3"},
    // the selector of an association tag
    {"14 05 00 01 00 00 00", error::length_error, "association_tag_descriptor:selector_length"},
    {"14 0E 00 01 00 00 09 01 02 03 04 05 06 07 08 09", error::length_error,
     "association_tag_descriptor:selector_length"},
    {"14 06 00 01 00 01 01 00", error::length_error, "association_tag_descriptor:selector_length"},
    // an item of an extended event that does not fit in the items
    {"4E 0A 11 65 6E 67 03 01 41 01 42 00", error::no_errorcode, "data length mismatch"},
    {"4E 08 11 65 6E 67 01 00 00 00", error::no_errorcode, "data length mismatch"},
    {"4E 06 11 65 6E 67 01 00", error::no_errorcode, "data length mismatch"},
    {"4E 08 11 65 6E 67 02 FF 00 00", error::no_errorcode, "data length mismatch"},
    {"4E 08 11 65 6E 67 02 00 01 00", error::no_errorcode, "data length mismatch"},
};

TEST(Failures, NamedOnesWinWhereverTheDescriptorStands) {
  for (auto const& [bytes, code, text] : named_failures) {
    const HeapBlock alone(hex(bytes));
    const HeapBlock within(hex(bytes) + Bytes(40));
    unsigned char const* const end = alone.data() + alone.size();
    DescriptorSet set;
    EXPECT_TRUE(throws([&] { set.ParseDescriptor(alone.data()); }, code, text)) << bytes << ", bare";
    EXPECT_TRUE(throws(
        [&] {
          set.ParseDescriptor({alone.data(), end});
        },
        code, text))
        << bytes << ", at the end";
    EXPECT_TRUE(throws(
        [&] {
          set.ParseDescriptor({within.data(), within.data() + within.size()});
        },
        code, text))
        << bytes << ", within";
  }
}

// The bytes that each class reads of a body of zeros.
const std::pair<int, int> fixed_sizes[] = {
    {0x02, 3}, {0x03, 1},  {0x04, 4},  {0x05, 4}, {0x06, 1}, {0x07, 4}, {0x08, 4}, {0x09, 4},
    {0x0B, 2}, {0x0C, 4},  {0x0D, 4},  {0x0E, 3}, {0x0F, 4}, {0x10, 6}, {0x11, 1}, {0x12, 2},
    {0x13, 5}, {0x43, 11}, {0x44, 11}, {0x48, 3}, {0x4A, 7}, {0x4C, 2}, {0x4D, 5}, {0x4E, 6},
    {0x4F, 4}, {0x50, 6},  {0x52, 1},  {0x57, 3}, {0x5A, 7}, {0x5F, 4}, {0x60, 6}, {0x61, 1},
    {0x64, 8}, {0x66, 2},  {0x69, 3},  {0x6A, 1}, {0x6B, 1}, {0x70, 1}};

TEST(Failures, FieldsBehindTheDescriptorAreReadInTheSectionAndNotBehindIt) {
  for (auto const& [tag, size] : fixed_sizes) {
    for (int length = 0; length <= size; ++length) {
      SCOPED_TRACE(::testing::Message() << "tag " << tag << ", length " << length);
      const HeapBlock alone(make_descriptor(tag, Bytes(static_cast<std::size_t>(length))));
      const HeapBlock section(make_descriptor(tag, Bytes(static_cast<std::size_t>(length))) +
                              Bytes(static_cast<std::size_t>(size - length)));
      unsigned char const* const end = section.data() + section.size();
      DescriptorSet set;
      EXPECT_FALSE(caught_error([&] { set.ParseDescriptor({section.data(), end}); }));
      if (length == size) {
        EXPECT_FALSE(caught_error([&] { set.ParseDescriptor(alone.data()); }));
        continue;
      }
      EXPECT_TRUE(throws([&] { set.ParseDescriptor({section.data(), end - 1}); }, "too little data"));
      EXPECT_TRUE(throws([&] { set.ParseDescriptor(alone.data()); }, "too little data"));
    }
  }
}

TEST(Failures, ShortDescriptorsTakeNoRest) {
  const auto ca = in_section<DescriptorCa>("09 02 0B 01", "F2 35 AA BB");
  EXPECT_EQ(members(ca.length, ca.sys_id, ca.pid, ca.private_bytes), "2 b01 1235 <>");
  const auto component = in_section<DescriptorComponent>("50 03 F9 85 86", "65 6E 67 41 42");
  EXPECT_EQ(members(component.component_tag, component.language_code, component.text), "86 'eng' ''");
  const auto ac3 = in_section<DescriptorAC3>("6A 01 F0", "01 02 03 04 05");
  EXPECT_EQ(members(ac3.AC_3_type, ac3.bsid, ac3.mainid, ac3.asvc, ac3.additional_info), "1 2 3 4 <>");
}

/// An inner length runs over the descriptor: it is taken as it stands where all of `behind` follows in the
/// section, and not where any of it is missing.
template <class Descriptor, class Spell>
void expect_taken(char const* text, char const* behind, Spell spell, char const* expected) {
  SCOPED_TRACE(text);
  EXPECT_EQ(spell(in_section<Descriptor>(text, behind)), expected);
  const HeapBlock alone(hex(text));
  EXPECT_TRUE(throws([&] { Descriptor{alone.data()}; }, "too little data"));
  const int missing = static_cast<int>(hex(behind).size());
  for (int cut = 1; cut <= missing; ++cut) {
    const HeapBlock whole(hex(text) + hex(behind));
    const HeapBlock section(Bytes(whole.data(), whole.data() + whole.size() - cut));
    unsigned char const* const end = section.data() + section.size();
    EXPECT_TRUE(throws([&] { Descriptor(DescriptorBytes(section.data(), end)); }, "too little data")) << cut;
  }
}

TEST(Failures, InnerLengthsMayRunOverTheDescriptor) {
  const auto short_event = [](auto const& d) { return members(d.event_name, d.text); };
  expect_taken<DescriptorShortEvent>("4D 06 65 6E 67 03 41 42", "43 01 44", short_event, "'ABC' 'D'");
  expect_taken<DescriptorShortEvent>("4D 07 65 6E 67 01 41 02 42", "43", short_event, "'A' 'BC'");
  const auto extended = [](auto const& d) {
    return members(d.text) + each(d.items, [](auto const& r) { return members(r.description, r.item); });
  };
  expect_taken<DescriptorExtendedEvent>("4E 07 11 65 6E 67 03 01 41", "00 01 42", extended, "'B'{'A' ''}");
  expect_taken<DescriptorExtendedEvent>("4E 07 11 65 6E 67 00 02 41", "42", extended, "'AB'");
  const auto service = [](auto const& d) { return members(d.provider_name, d.service_name); };
  expect_taken<DescriptorService>("48 03 01 03 41", "42 43 01 44", service, "'ABC' 'D'");
  expect_taken<DescriptorService>("48 03 01 00 02", "41 42", service, "'' 'AB'");
  const auto data_broadcast = [](auto const& d) {
    return members(d.selector_bytes, d.language_code, d.textlength, d.text);
  };
  expect_taken<DescriptorDataBroadcast>("64 05 00 01 02 03 AA", "BB CC 65 6E 67 01 41", data_broadcast,
                                        "<aabbcc> 'eng' 1 'A'");
  expect_taken<DescriptorDataBroadcast>("64 08 00 01 02 00 65 6E 67 02", "41 42", data_broadcast,
                                        "<> 'eng' 2 'AB'");
  const auto telephone = [](auto const& d) { return members(d.country_prefix_char, d.core_number_char); };
  expect_taken<DescriptorTelephone>("57 04 00 60 02 31", "32 33 34 35", telephone, "'123' '45'");
  const auto association = [](auto const& d) { return members(d.selector_byte, d.private_data_byte); };
  expect_taken<DescriptorAssociationTag>("14 06 00 01 00 02 03 AA", "BB CC", association, "<aabbcc> <>");
  const auto carousel = [](auto const& d) { return members(d.objectkeydata, d.private_data_byte); };
  expect_taken<DescriptorCarouselId>(
      "13 16 00 00 00 01 01 02 00 03 00 04 00 00 00 05 06 00 00 00 07 08 03 4B", "4C 4D", carousel,
      "'KLM' <>");
}

}  // namespace
}  // namespace sivane::testing
