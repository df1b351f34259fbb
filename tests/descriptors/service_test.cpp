// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "descriptor_check.h"

namespace sivane::testing {
namespace {

TEST(Service, BouquetName) {
  const auto spell = [](auto const& d) { return members(d.bouquet_name); };
  check<DescriptorBouquetName>("47 03 05 41 E9",
                               {"47 bouquet_name_descriptor",
                                "bouquet_name: \x05"
                                "A\xE9"},
                               spell, "'\\05A\\e9'", "''");
}

TEST(Service, Service) {
  const auto spell = [](auto const& d) { return members(d.service_type, d.provider_name, d.service_name); };
  check<DescriptorService>("48 08 85 02 05 41 03 42 E9 43",
                           {"48 service_descriptor", "service_type 85",
                            "provider_name \x05"
                            "A",
                            "service_name B\xE9"
                            "C"},
                           spell, "85 '\\05A' 'B\\e9C'");
  check<DescriptorService>("48 03 01 00 00",
                           {"48 service_descriptor", "service_type 1", "provider_name ", "service_name "},
                           spell, "1 '' ''");
}

TEST(Service, CountryAvailability) {
  const auto spell = [](auto const& d) { return members(d.country_availability_flag, d.country_code); };
  check<DescriptorCountryAvailability>("49 07 80 47 42 52 44 45 55",
                                       {"49 country_availability_descriptor", "country_availability_flag: 1",
                                        "country_code: GBR", "country_code: DEU"},
                                       spell, "1 ['GBR' 'DEU']");
  check<DescriptorCountryAvailability>(
      "49 01 7F", {"49 country_availability_descriptor", "country_availability_flag: 0"}, spell, "0 []");
}

TEST(Service, Linkage) {
  const auto spell = [](auto const& d) {
    return members(d.transport_stream_id, d.original_network_id, d.service_id, d.linkage_type,
                   d.private_data_byte);
  };
  std::vector<std::string> lines = {"4a linkage_descriptor", "transport_stream_id: 8001",
                                    "original_network_id: 8002", "service_id: 8003", "linkage_type: 84"};
  check<DescriptorLinkage>("4A 07 80 01 80 02 80 03 84", lines, spell, "8001 8002 8003 84 <>");
  lines.insert(lines.end(), {"private_data_byte:", block("aa 42", ".B")});
  check<DescriptorLinkage>("4A 09 80 01 80 02 80 03 84 AA 42", lines, spell, "8001 8002 8003 84 <aa42>",
                           "8001 8002 8003 84 <>");
}

TEST(Service, NvodReference) {
  const auto spell = [](auto const& d) {
    return each(d.service_list, [](auto const& r) {
      return members(r.transport_stream_id, r.original_network_id, r.service_id);
    });
  };
  check<DescriptorNVODReference>(
      "4B 0C 80 01 80 02 80 03 00 04 00 05 00 06",
      {"4b NVOD_reference_descriptor", "DescriptorNVODReference::service::transport_stream_id: 8001",
       "DescriptorNVODReference::service::original_network_id: 8002",
       "DescriptorNVODReference::service::service_id: 8003",
       "DescriptorNVODReference::service::transport_stream_id: 4",
       "DescriptorNVODReference::service::original_network_id: 5",
       "DescriptorNVODReference::service::service_id: 6"},
      spell, "{8001 8002 8003}{4 5 6}", "");
}

TEST(Service, TimeShiftedService) {
  const auto spell = [](auto const& d) { return members(d.reference_service_id); };
  check<DescriptorTimeShiftedService>(
      "4C 02 80 01", {"4c time_shifted_service_descriptor", "reference_service_id: 8001"}, spell, "8001");
}

std::string spell_service(DescriptorMosiac::ServiceInfo const& info) {
  return members(info.original_network_id, info.transport_stream_id, info.service_id);
}

// The four kinds of cell, each with the other three empty.
std::string spell_mosaic(DescriptorMosiac const& d) {
  const auto cell = [](DescriptorMosiac::CellInfo const& c) {
    return members(c.logical_cell_id, c.logical_call_presentation_info, c.elementary_cell_field_length,
                   c.elementary_cell_id, c.cell_linkage_info) +
           " b" + members(c.bouquetinfo.bouquet_id) + " s" + spell_service(c.serviceinfo) + " t" +
           members(c.serviceinfo2.original_network_id, c.serviceinfo2.transport_stream_id,
                   c.serviceinfo2.service_id) +
           " e" +
           members(c.eventinfo.original_network_id, c.eventinfo.transport_stream_id, c.eventinfo.service_id,
                   c.eventinfo.event_id);
  };
  return members(d.mosiac_entry_point, d.number_of_horizontal_elementary_cells,
                 d.number_of_vertical_elementary_cells) +
         each(d.cellinfo, cell);
}

std::vector<std::string> cell_lines(std::string const& id, std::string const& presentation,
                                    std::string const& field_length, std::string const& linkage) {
  const std::string label = "DescriptorMosiac::CellInfo::";
  return {label + "logical_cell_id: " + id, label + "logical_call_presentation_info: " + presentation,
          label + "elementary_cell_field_length: " + field_length, label + "cell_linkage_info: " + linkage};
}

TEST(Service, Mosaic) {
  std::vector<std::string> lines = {"51 mosiac_descriptor", "mosiac_entry_point: 1",
                                    "number_of_horizontal_elementary_cells: 2",
                                    "number_of_vertical_elementary_cells: 5"};
  const auto add = [&](std::vector<std::string> const& more) {
    lines.insert(lines.end(), more.begin(), more.end());
  };
  add(cell_lines("21", "5", "2", "1"));
  add({"BouquetInfo::bouquet_id: 8001"});
  add(cell_lines("1e", "2", "0", "2"));
  add({"ServiceInfo::original_network_id: 8002", "ServiceInfo::transport_stream_id: 8003",
       "ServiceInfo::service_id: 8004"});
  add(cell_lines("3f", "7", "1", "3"));
  add({"ServiceInfo::original_network_id: 5", "ServiceInfo::transport_stream_id: 6",
       "ServiceInfo::service_id: 7"});
  add(cell_lines("0", "0", "0", "4"));
  add({"EventInfo::original_network_id: 8008", "EventInfo::transport_stream_id: 8009",
       "EventInfo::service_id: 800a", "EventInfo::event_id: 800b"});
  check<DescriptorMosiac>(
      "51 2A AD  87 FD 02 C1 7E 01 80 01  78 02 00 02 80 02 80 03 80 04"
      "  FC 07 01 FF 03 00 05 00 06 00 07  03 F8 00 04 80 08 80 09 80 0A 80 0B",
      lines, spell_mosaic,
      "1 2 5"
      "{21 5 2 <013e> 1 b8001 s0 0 0 t0 0 0 e0 0 0 0}{1e 2 0 <> 2 b0 s8002 8003 8004 t0 0 0 e0 0 0 0}"
      "{3f 7 1 <3f> 3 b0 s0 0 0 t5 6 7 e0 0 0 0}{0 0 0 <> 4 b0 s0 0 0 t0 0 0 e8008 8009 800a 800b}",
      "1 2 5");
  check<DescriptorMosiac>(
      "51 01 52",
      {"51 mosiac_descriptor", "mosiac_entry_point: 0", "number_of_horizontal_elementary_cells: 5",
       "number_of_vertical_elementary_cells: 2"},
      spell_mosaic, "0 5 2");
}

TEST(Service, CaIdentifier) {
  const auto spell = [](auto const& d) {
    return each(d.CA_system_id, [](auto const& r) { return members(r.CA_system_id); });
  };
  check<DescriptorCAIdentifier>(
      "53 04 80 01 0B 02",
      {"53 CA_system_id_descriptor", "CA_system_id: CA_system_id: 8001", "CA_system_id: b02"}, spell,
      "{8001}{b02}", "");
  // An odd last byte is ignored.
  check<DescriptorCAIdentifier>("53 03 80 01 0B",
                                {"53 CA_system_id_descriptor", "CA_system_id: CA_system_id: 8001"}, spell,
                                "{8001}", "");
  // Without records the line stays open.
  for (char const* const empty : {"53 00", "53 01 80"}) {
    EXPECT_EQ(dumped(in_section<DescriptorCAIdentifier>(empty, "FF FF")),
              "descriptor_tag: 53 CA_system_id_descriptor\nCA_system_id: ");
  }
}

TEST(Service, Telephone) {
  const auto spell = [](auto const& d) {
    return members(d.foriegn_availability, d.connection_type, d.country_prefix_length,
                   d.international_area_code_length, d.operator_code_length, d.national_area_code_length,
                   d.core_number_length, d.country_prefix_char, d.international_area_code_char,
                   d.operator_code_char, d.national_area_code_char, d.core_number_char);
  };
  check<DescriptorTelephone>(
      "57 10 31 D5 B2  31 32  33 34 35 36 37  38  39 41 42  43 44",
      {"57 telephone_descriptor", "foriegn_availability: 1", "connection_type: 11",
       "country_prefix_length: 2", "international_area_code_length: 5", "operator_code_length: 1",
       "national_area_code_length: 3", "core_number_length: 2", "country_prefix_char: 12",
       "international_area_code_char: 34567", "operator_code_char: 8", "national_area_code_char: 9AB",
       "core_number_char: CD"},
      spell, "1 11 2 5 1 3 2 '12' '34567' '8' '9AB' 'CD'", "1 11 2 5 1 3 2 '' '' '' '' ''");
  check<DescriptorTelephone>(
      "57 1A CE 7F 0A  61 62 63  64 65 66 67 68 69 6A  6B 6C 6D  30 31 32 33 34 35 36 37 38 39",
      {"57 telephone_descriptor", "foriegn_availability: 0", "connection_type: e", "country_prefix_length: 3",
       "international_area_code_length: 7", "operator_code_length: 3", "national_area_code_length: 0",
       "core_number_length: a", "country_prefix_char: abc", "international_area_code_char: defghij",
       "operator_code_char: klm", "national_area_code_char: ", "core_number_char: 0123456789"},
      spell, "0 e 3 7 3 0 a 'abc' 'defghij' 'klm' '' '0123456789'", "0 e 3 7 3 0 a '' '' '' '' ''");
}

TEST(Service, MultilingualBouquetName) {
  const auto spell = [](auto const& d) {
    return each(d.nameinfo,
                [](auto const& r) { return members(r.ISO_639_language_code, r.text_len, r.name); });
  };
  check<DescriptorMultilingualBouquetName>(
      "5C 06 65 6E 67 02 05 41",
      {"5c multilingual_bouquet_name_descriptor", "MultilingualNameInfo::ISO_639_language_code: eng",
       "MultilingualNameInfo::text_len: 2",
       "MultilingualNameInfo::name: \x05"
       "A"},
      spell, "{'eng' 2 '\\05A'}", "");
}

TEST(Service, MultilingualServiceName) {
  const auto spell = [](auto const& d) {
    return each(d.servicenameinfo, [](auto const& r) {
      return members(r.ISO_639_language_code, r.provider_len, r.providername, r.service_len, r.servicename);
    });
  };
  const std::string label = "DescriptorMultilingualServiceName::MultilingualServiceNameInfo::";
  check<DescriptorMultilingualServiceName>(
      "5D 0F 65 6E 67 02 05 41 01 42  64 65 75 00 02 FF 43",
      {"5d multilingual_service_name_descriptor", label + "ISO_639_language_code: eng",
       label + "provider_len: 2",
       label + "providername: \x05"
               "A",
       label + "service_len: 1", label + "servicename: B", label + "ISO_639_language_code: deu",
       label + "provider_len: 0", label + "providername: ", label + "service_len: 2",
       label + "servicename: \xFF"
               "C"},
      spell, "{'eng' 2 '\\05A' 1 'B'}{'deu' 0 '' 2 '\\ffC'}", "");
}

TEST(Service, PrivateDataSpecifier) {
  const auto spell = [](auto const& d) { return members(d.private_data_specifier); };
  check<DescriptorPrivateDataSpecifier>(
      "5F 04 80 01 02 83", {"5f private_data_specifier_descriptor", "private_data_specifier: 80010283"},
      spell, "80010283");
}

TEST(Service, ServiceMove) {
  const auto spell = [](auto const& d) {
    return members(d.new_original_network_id, d.new_transport_stream_id, d.new_service_id);
  };
  check<DescriptorServiceMove>("60 06 80 01 80 02 80 03",
                               {"60 service_move_descriptor", "new_original_network_id: 8001",
                                "new_transport_stream_id: 8002", "new_service_id: 8003"},
                               spell, "8001 8002 8003");
}

TEST(Service, ServiceIdentifier) {
  const auto spell = [](auto const&) { return ""; };
  check<DescriptorServiceIdentifier>("71 02 41 42", {"71 service_identifier_descriptor"}, spell, "");
  check<DescriptorServiceIdentifier>("71 00", {"71 service_identifier_descriptor"}, spell, "");
}

TEST(Service, ServiceAvailability) {
  const auto spell = [](auto const& d) { return members(d.availability_flag, d.cell_id); };
  check<DescriptorServiceAvailability>("72 05 7F 80 01 00 02", {"72 service_availability_descriptor"}, spell,
                                       "0 [8001 2]");
  check<DescriptorServiceAvailability>("72 01 80", {"72 service_availability_descriptor"}, spell, "1 []");
}

}  // namespace
}  // namespace sivane::testing
