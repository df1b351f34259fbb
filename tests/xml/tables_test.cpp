// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The document of one rich section of each table, whole.
#include <sivane/sivane.h>

#include "document_check.h"
#include "section_builder.h"

namespace sivane::testing {
namespace {

/// Headers of long sections; the length and the checksum of a case stand in its expected tree.
constexpr LongSection header_of(int table_id) {
  return {.table_id = table_id,
          .context_id = 0x8001,
          .version_number = 17,
          .section_number = 2,
          .last_section_number = 200};
}

std::string header_text(int table_id, Bytes const& section) {
  std::size_t const size = section.size();
  auto const crc = static_cast<std::int32_t>(section[size - 4] << 24 | section[size - 3] << 16 |
                                             section[size - 2] << 8 | section[size - 1]);
  return "it table_id=\"" + std::to_string(table_id) + "\" syntax_indicator=\"1\" section_length=\"" +
         std::to_string(size - 3) +
         "\" context_id=\"32769\" version_number=\"17\" section_number=\"2\" last_section_number=\"200\" "
         "current_next_indicator=\"1\" crc32=\"" +
         std::to_string(crc) + '"';
}

/// Parses the section, saves it, compares the tree, and takes the document through all checks.
template <class Table>
void check(Bytes const& section, std::string const& expected, bool save_may_throw = false) {
  Table table;
  table.Parse(section.data(), section.size());
  Saved saved;
  ASSERT_TRUE(saved.save(table));
  EXPECT_EQ(saved.text(), expected);
  Table const loaded = expect_round_trip(table);
  EXPECT_TRUE(loaded.valid);
  EXPECT_EQ(dump_of(loaded), dump_of(table));
  expect_everything_is_needed(table, true);
  expect_refusals_are_met(table, true, save_may_throw);
}

template <class Table>
void check_long(int table_id, Bytes const& body, std::string const& behind_header,
                bool save_may_throw = false) {
  Bytes const section = make_section(header_of(table_id), body);
  check<Table>(section, header_text(table_id, section) + behind_header, save_may_throw);
}

TEST(Documents, Pat) {
  check_long<Pat>(0x00, {}, "\n  program_infos\n");
  check_long<Pat>(0x00, hex("0000 E010 8002 FFFF"), R"(
  program_infos
    program_info sid="0" pmtpid="16"
    program_info sid="32770" pmtpid="8191"
)");
}

TEST(Documents, Cat) {
  check_long<Cat>(0x01, {}, "\n  descriptors\n");
  check_long<Cat>(0x01, hex("09 04 0B00 E0B1  09 06 8005 FFFE 0AFF"), R"(
  descriptors
    CA_descriptor descriptor_id="9" descriptor_length="4" sys_id="2816" pid="177" private_bytes=""
    CA_descriptor descriptor_id="9" descriptor_length="6" sys_id="32773" pid="8190" private_bytes="0aff"
)");
}

// One class stands together, whatever the order on the wire: the classes in the order of the format.
TEST(Documents, Pmt) {
  check_long<Pmt>(0x02,
                  hex("FFFE F00F  09 04 0001 E002  02 01 04  09 04 0003 E004"
                      "02 E100 F006 52 01 85 80 01 AB  06 FFFF F000"),
                  R"( pcr="8190"
  stream_infos
    stream stream_type="2" elementary_pid="256" es_info_length="6"
      descriptors
        stream_identifier_descriptor descriptor_id="82" descriptor_length="1" component_tag="133"
        user_private_descriptor descriptor_id="128" descriptor_length="1" private_data="ab"
    stream stream_type="6" elementary_pid="8191" es_info_length="0"
      descriptors
  descriptors
    video_stream_descriptor descriptor_id="2" descriptor_length="1" multiple_frame_rate_flag="0" frame_rate_code="0" MPEG_1_only_flag="1" constrained_parameter_flag="0" still_picture_flag="0" profile_and_level_indication="0" chroma_format="0" frame_rate_extension_flag="0" reserved="0"
    CA_descriptor descriptor_id="9" descriptor_length="4" sys_id="1" pid="2" private_bytes=""
    CA_descriptor descriptor_id="9" descriptor_length="4" sys_id="3" pid="4" private_bytes=""
)");
}

// The table's own descriptors of tag 9 have no place in documents.
TEST(Documents, NitAndBat) {
  Bytes const body =
      hex("F00A 40 02 4EFF 09 04 0001 E002  F019 8003 8004 F00D 43 0B 01172500 0192 81 02750003"
          "8005 8006 F000");
  std::string const descriptors =
      "  descriptors\n"
      "    network_name_descriptor descriptor_id=\"64\" descriptor_length=\"2\" network_name=\"N\\ff\"\n";
  std::string const satellite =
      "        satellite_delivery_system_descriptor descriptor_id=\"67\" descriptor_length=\"11\" "
      "frequency=\"11.725\" orbital_position=\"19.2\" west_east_flag=\"1\" polarization=\"0\" "
      "modulation=\"1\" "
      "symbol_rate=\"27.5\" FEC_inner=\"3\"\n";
  auto const entries = [&satellite](std::string const& list, std::string const& entry) {
    return "\n  " + list + "\n    " + entry +
           " stream_id=\"32771\" network_id=\"32772\"\n      descriptors\n" + satellite + "    " + entry +
           " stream_id=\"32773\" network_id=\"32774\"\n      descriptors\n";
  };
  check_long<Nit>(0x41, body, entries("stream_infos", "stream") + descriptors);
  check_long<Bat>(0x4A, body, entries("infos", "stream_info") + descriptors);
}

TEST(Documents, Sdt) {
  check_long<Sdt>(0x42, {0x80, 0x02, 0xFF}, " original_network_id=\"32770\"\n  service_infos\n");
  check_long<Sdt>(0x46, hex("8002 FF  8003 FF F009 48 07 01 02 05 41 02 42 E9  8004 FC 0000"),
                  R"( original_network_id="32770"
  service_infos
    service_info service_id="32771" EIT_schedule_flag="1" EIT_present_following_flag="1" running_status="7" free_CA_mode="1"
      descriptors
        service_descriptor descriptor_id="72" descriptor_length="7" service_type="1" provider_name="\05A" service_name="B\e9"
    service_info service_id="32772" EIT_schedule_flag="0" EIT_present_following_flag="0" running_status="0" free_CA_mode="0"
      descriptors
)");
}

TEST(Documents, Eit) {
  check_long<Eit>(
      0x6F,
      hex("8002 8003 FE FD  8004 C079 124500 014530 9009 4D 07 656E67 02 0541 00"
          "8005 FFFF 000000 000000 6000"),
      R"( transport_stream_id="32770" original_network_id="32771" segment_last_section_number="254" last_table_id="253"
  event_infos
    event event_id="32772" running_status="4" free_CA_mode="1" descriptors_length="9" start_time="13 10 1993 12 45 0" duration="1 45 30"
      descriptors
        short_event_descriptor descriptor_id="77" descriptor_length="7" language_code="eng" event_name="A" text=""
    event event_id="32773" running_status="3" free_CA_mode="0" descriptors_length="0" start_time="22 4 2038 0 0 0" duration="0 0 0"
      descriptors
)");
}

TEST(Documents, TdtTotAndRst) {
  check<Tdt>(make_short_section(0x70, hex("C079 124500")),
             "it table_id=\"112\" section_length=\"5\" UTC_time=\"13 10 1993 12 45 0\"\n");
  check<Tot>(make_short_section(0x73, hex("C079 124500 F00F 58 0D 474252 06 0100 C079 010000 0030 FFFFFFFF")),
             R"(it table_id="115" section_length="26" UTC_time="13 10 1993 12 45 0" crc32="-1"
  descriptors
    local_time_offset_descriptor descriptor_id="88" descriptor_length="13"
      localtime
        time country_region_id="1" local_time_offset_polarity="0" country_code="GBR"
          local_time_offset hour="1" minute="0"
          time_of_change day="13" month="10" year="1993" hour="1" minute="0" second="0"
          next_time_offset hour="0" minute="30"
)");
  check<Rst>(make_short_section(0x71, hex("8001 8002 8003 8004 FC")),
             R"(it table_id="113" section_length="9"
  status_infos
    status_info transport_stream_id="32769" original_network_id="32770" service_id="32771" event_id="32772" running_status="4"
)");
}

TEST(Documents, AitWithADescriptorOfEveryKind) {
  std::pair<int, char const*> const wire[] = {
      {0x00, "0A 8001 82 83 84 0005 06 07 08 DF 85 41FF"},
      {0x01, "656E67 02 41E9 646575 00"},
      {0x02, "0001 82 80 8003 8004 8005 86"},
      {0x03, "02 4142 00"},
      {0x04, "01 2F 00 43"},
      {0x05, "80000001 8002 83 00000010 0020 05"},
      {0x06, "81 FFFFFF00 8002 80000000"},
      {0x07, "81 20010000000000000000000000000000 8002 FFFFFFFFFFFFFFFF000000000000000A"},
      {0x08, "02 0102 3F41"},
      {0x09, "01 41 42"},
      {0x0A, "01 41 2E2A"},
      {0x0B, "02 2F41 8001 AB"},
      {0x0C, "81 02 4142 83 00 01"},
      {0x0D, "81 8002 8003 FFFE 0004"},
      {0x0E, "01"},
      {0x80, "AB"}};
  Bytes common;
  for (auto const& [tag, body] : wire) common = common + make_descriptor(tag, hex(body));
  auto const size = static_cast<unsigned char>(common.size());
  Bytes const application = hex("80000001 8002 81 F003 80 01 CD");
  Bytes const applications = Bytes{0xF0, static_cast<unsigned char>(application.size())} + application;
  check_long<Ait>(0x74, Bytes{0xF0, size} + common + applications,
                  " common_descriptors_length=\"" + std::to_string(size) + R"(" application_loop_length="12"
  application_infos
    application_info application_control_code="129" application_descriptors_loop_length="3" application_identifer="80000001 8002"
      descriptors
        user_private_descriptor descriptor_id="128" descriptor_length="1" private_data="cd"
  descriptors
    application_descriptor descriptor_id="0" descriptor_length="15" application_profiles_length="10" service_bound_flag="1" visibility="2" application_priority="133" transport_protocol_label="41ff"
      application_profiles
        profile application_profile="32769" version_major="130" version_minor="131" version_micro="132"
        profile application_profile="5" version_major="6" version_minor="7" version_micro="8"
    application_name_descriptor descriptor_id="1" descriptor_length="10"
      application_name_infos
        info application_name_length="2" application_name="A\e9" ISO_639_language_code="eng"
        info application_name_length="0" application_name="" ISO_639_language_code="deu"
    application_icons_descriptor descriptor_id="11" descriptor_length="6" icon_locator_length="2" icon_locator="/A" icon_flags="32769" reserved_future_use="ab"
    external_application_authorisation_descriptor descriptor_id="5" descriptor_length="14"
      external_application_authorisation_infos
        info application_priority="131"
          application_identifer organisation_id="-2147483647" application_id="32770"
        info application_priority="5"
          application_identifer organisation_id="16" application_id="32"
    transport_protocol_descriptor descriptor_id="2" descriptor_length="11" protocol_id="1" transport_protocol_label="130"
      transport_OC remote_connection="1" original_network_id="32771" transport_stream_id="32772" service_id="32773" component_tag="134"
      transport_IP remote_connection="0" original_network_id="0" transport_stream_id="0" service_id="0" alignment_indicator="0"
    routing_descriptor_IPv4 descriptor_id="6" descriptor_length="11"
      routing_ipv4_infos
        info component_tag="129" address="-256" port_number="32770" address_mask="-2147483648"
    routing_descriptor_IPv6 descriptor_id="7" descriptor_length="35"
      routing_ipv6_infos
        info component_tag="129" address="20010000000000000000000000000000" port_number="32770" address_mask="ffffffffffffffff000000000000000a"
    DII_location_descriptor descriptor_id="13" descriptor_length="9" transport_protocol_label="129"
      dii_location_infos
        info DII_identification="2" associatoin_tag="32771"
        info DII_identification="32766" associatoin_tag="4"
    pre_fetch_descriptor descriptor_id="12" descriptor_length="7" transport_protocol_label="129"
      prefetch_info
        info label_length="2" label="AB" prefetch_priority="131"
        info label_length="0" label="" prefetch_priority="1"
    DVB_J_application_descriptor descriptor_id="3" descriptor_length="4"
      parameter_infos
        info length="2" value="AB"
        info length="0" value=""
    DVB_J_application_location_descriptor descriptor_id="4" descriptor_length="4" initial_class="C"
      base_directory length="1" value="/"
      classpath_extension length="0" value=""
    DVB_HTML_application_descriptor descriptor_id="8" descriptor_length="5" parameter="?A"
      application_id length="2" value="\01\02"
    DVB_HTML_application_location_descriptor descriptor_id="9" descriptor_length="3" initial_path="B"
      physical_root length="1" value="A"
    DVB_HTML_application_boundary_descriptor descriptor_id="10" descriptor_length="4" regular_expression=".*"
      label length="1" value="A"
    general_descriptor descriptor_id="14" descriptor_length="1" private_data="01"
    user_private_descriptor descriptor_id="128" descriptor_length="1" private_data="ab"
)",
                  true);
}

TEST(Documents, DsmCCAnswersFalseBehindItsHeader) {
  Bytes const section = make_section(header_of(0x3B), hex("0102"));
  DsmCC table, loaded;
  table.Parse(section.data());
  Saved saved;
  EXPECT_FALSE(saved.save(table));
  EXPECT_EQ(saved.text(), header_text(0x3B, section) + '\n');
  loaded.data = {7};
  saved.load(loaded);
  EXPECT_EQ(dump_of(loaded), dump_of(table));
  EXPECT_EQ(loaded.get_data(), Bytes{7});
}

}  // namespace
}  // namespace sivane::testing
