// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "descriptor_check.h"

namespace sivane::testing {
namespace {

TEST(Cell, CellList) {
  const auto sub_cell = [](auto const& r) {
    return members(r.cell_id_extension, r.cell_latitude, r.cell_longitude, r.cell_extend_of_latitude,
                   r.cell_extend_of_longitude);
  };
  const auto spell = [&](auto const& d) {
    return each(d.cell_list_data, [&](auto const& r) {
      return members(r.cell_id, r.cell_latitude, r.cell_longitude, r.cell_extend_of_latitude,
                     r.cell_extend_of_longitude, r.subcell_info_length) +
             each(r.sub_cell_info, sub_cell);
    });
  };
  check<DescriptorCellList>(
      "6C 24 80 01 80 02 80 03 80 17 FE 10  84 80 05 80 06 7F E8 01  07 00 08 00 09 00 A0 0B"
      "  00 01 00 02 00 03 00 40 05 00",
      {"6c cell_list_descriptor"}, spell,
      "{8001 8002 8003 801 7fe 10{84 8005 8006 7fe 801}{7 8 9 a b}}{1 2 3 4 5 0}");
}

TEST(Cell, CellFrequencyLink) {
  const auto spell = [](auto const& d) {
    return each(d.cell_frequency_link_data, [](auto const& r) {
      return members(r.cell_id, r.frequency, r.sub_cell_info_length) +
             each(r.sub_cell_info,
                  [](auto const& s) { return members(s.cell_id_extension, s.transposer_frequency); });
    });
  };
  check<DescriptorCellFrequncyLink>(
      "6D 18 80 01 80 02 03 04 0A  85 86 07 08 09  01 00 00 00 02  00 03 00 00 00 04 00",
      {"6d cell_frequency_link_descriptor"}, spell, "{8001 80020304 a{85 86070809}{1 2}}{3 4 0}");
}

TEST(Cell, AnnouncementSupport) {
  const auto spell = [](auto const& d) {
    return members(d.announcement_support_indicator) + each(d.announcement_support_data, [](auto const& r) {
             return members(r.announcement_type, r.reference_type, r.original_network_id,
                            r.transport_stream_id, r.service_id, r.component_tag);
           });
  };
  check<DescriptorAnnouncementSupport>(
      "6E 1E 80 01  9B 80 02 80 03 80 04 85  64  18  21 00 06 00 07 00 08 09  FA 00 0A 00 0B 00 0C 0D  07  "
      "0D",
      {"6e announcement_support_descriptor"}, spell,
      "8001{9 3 8002 8003 8004 85}{6 4 0 0 0 0}{1 0 0 0 0 0}{2 1 6 7 8 9}{f 2 a b c d}{0 7 0 0 0 0}{0 5 0 0 "
      "0 0}");
  check<DescriptorAnnouncementSupport>("6E 02 80 01", {"6e announcement_support_descriptor"}, spell, "8001");
}

TEST(Cell, ApplicationSignalling) {
  const auto spell = [](auto const& d) {
    return each(d.application_info,
                [](auto const& r) { return members(r.application_type, r.AIT_version_number); });
  };
  check<DescriptorApplicationSignalling>("6F 06 80 01 F1 00 02 0E", {"6f application_signalling_descriptor"},
                                         spell, "{8001 11}{2 e}");
  check<DescriptorApplicationSignalling>("6F 00", {"6f application_signalling_descriptor"}, spell, "");
}

TEST(Cell, DataBroadcast) {
  const auto spell = [](auto const& d) {
    return members(d.data_broadcast_id, d.component_tag, d.selector_length, d.language_code, d.textlength,
                   d.text, d.selector_bytes);
  };
  check<DescriptorDataBroadcast>("64 0D 80 01 82 02 AA BB 65 6E 67 03 05 41 E9",
                                 {"64 data_broadcast_descriptor"}, spell,
                                 "8001 82 2 'eng' 3 '\\05A\\e9' <aabb>");
  check<DescriptorDataBroadcast>("64 08 80 01 82 00 65 6E 67 00", {"64 data_broadcast_descriptor"}, spell,
                                 "8001 82 0 'eng' 0 '' <>");
}

TEST(Cell, DataBroadcastId) {
  const auto spell = [](auto const& d) { return members(d.data_broadcast_id, d.id_selector_byte); };
  check<DescriptorDataBroadcastId>("66 04 80 01 AA BB", {"66 data_broadcast_id_descriptor"}, spell,
                                   "8001 <aabb>");
  check<DescriptorDataBroadcastId>("66 02 80 01", {"66 data_broadcast_id_descriptor"}, spell, "8001 <>");
}

}  // namespace
}  // namespace sivane::testing
