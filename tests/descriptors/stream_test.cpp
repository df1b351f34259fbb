// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "descriptor_check.h"

namespace sivane::testing {
namespace {

TEST(Stream, StreamIdentifier) {
  const auto spell = [](auto const& d) { return members(d.component_tag); };
  check<DescriptorStreamIdentifier>("52 01 85", {"52 stream_identifier_descriptor", "component_tag: 85"},
                                    spell, "85");
}

TEST(Stream, Teletext) {
  const auto spell = [](auto const& d) {
    return each(d.teletextitems, [](auto const& r) {
      return members(r.language_code, r.teletext_type, r.teletext_magazine_number, r.teletext_page_number);
    });
  };
  check<DescriptorTeletext>("56 0A 65 6E 67 8D 42 64 65 75 72 FF",
                            {"56 teletext_descriptor", "language_code eng", "teletext_type 11",
                             "teletext_magazine_number 5", "teletext_page_number 42", "language_code deu",
                             "teletext_type e", "teletext_magazine_number 2", "teletext_page_number ff"},
                            spell, "{'eng' 11 5 42}{'deu' e 2 ff}", "");
  check<DescriptorTeletext>("56 00", {"56 teletext_descriptor"}, spell, "");
}

TEST(Stream, VbiTeletext) {
  const auto spell = [](auto const& d) {
    return each(d.vbiteletextdata, [](auto const& r) {
      return members(r.ISO_639_language_code, r.teletext_type, r.teletext_magazine_number,
                     r.teletext_page_number);
    });
  };
  check<DescriptorVBITeletext>("46 0A 65 6E 67 8D 42 64 65 75 72 FF", {"46 VBI_teletext_descriptor"}, spell,
                               "{'eng' 11 5 42}{'deu' e 2 ff}", "");
  check<DescriptorVBITeletext>("46 00", {"46 VBI_teletext_descriptor"}, spell, "");
}

TEST(Stream, Subtitling) {
  const auto spell = [](auto const& d) {
    return each(d.subtitlinginfo, [](auto const& r) {
      return members(r.ISO_639_language_code, r.subtitling_type, r.composition_page_id, r.antcillary_page_id);
    });
  };
  check<DescriptorSubtitling>(
      "59 10 65 6E 67 85 80 01 80 02 64 65 75 10 00 03 00 04",
      {"59 subtitling_descriptor", "DescriptorSubtitling::ISO_639_language_code: eng",
       "DescriptorSubtitling::subtitling_type: 85", "DescriptorSubtitling::composition_page_id: 8001",
       "DescriptorSubtitling::antcillary_page_id: 8002", "DescriptorSubtitling::ISO_639_language_code: deu",
       "DescriptorSubtitling::subtitling_type: 10", "DescriptorSubtitling::composition_page_id: 3",
       "DescriptorSubtitling::antcillary_page_id: 4"},
      spell, "{'eng' 85 8001 8002}{'deu' 10 3 4}", "");
  check<DescriptorSubtitling>("59 00", {"59 subtitling_descriptor"}, spell, "");
}

TEST(Stream, VbiData) {
  const auto spell = [](auto const& d) {
    return each(d.vbiservicedata, [](auto const& r) {
      return members(r.data_service_id, r.data_service_descriptor_length, r.data);
    });
  };
  check<DescriptorVBIData>("45 07 81 03 01 02 FF 05 00", {"45 VBI_data_descriptor"}, spell,
                           "{81 3 <0102ff>}{5 0 <>}");
  check<DescriptorVBIData>("45 00", {"45 VBI_data_descriptor"}, spell, "");
}

TEST(Stream, Ac3) {
  const auto spell = [](auto const& d) {
    return members(d.component_type_flag, d.bsid_flag, d.mainid_flag, d.asvc_flag, d.AC_3_type, d.bsid,
                   d.mainid, d.asvc, d.additional_info);
  };
  const std::vector<std::string> lines = {"6a _descriptor"};
  check<DescriptorAC3>("6A 07 FF 81 82 83 84 AA BB", lines, spell, "1 1 1 1 81 82 83 84 <aabb>");
  check<DescriptorAC3>("6A 05 50 81 82 AA BB", lines, spell, "0 1 0 1 0 81 0 82 <aabb>");
  check<DescriptorAC3>("6A 03 AF 81 82", lines, spell, "1 0 1 0 81 0 82 0 <>");
  check<DescriptorAC3>("6A 03 C0 81 82", lines, spell, "1 1 0 0 81 82 0 0 <>");
  check<DescriptorAC3>("6A 01 0F", lines, spell, "0 0 0 0 0 0 0 0 <>");
}

TEST(Stream, AncillaryData) {
  const auto spell = [](auto const& d) { return members(d.ancillary_data_identifier); };
  check<DescriptorAncillaryData>("6B 01 85", {"6b _descriptor"}, spell, "85");
}

TEST(Stream, ShortSmoothingBuffer) {
  const auto spell = [](auto const& d) { return members(d.sb_size, d.sb_leak_rate, d.DVB_reserved); };
  check<DescriptorShortSmoothingBuffer>("61 03 A1 AA 42",
                                        {"61 short_smoothing_buffer_descriptor", "sb_size: 2",
                                         "sb_leak_rate: 21", "DVB_reserved:", block("aa 42", ".B")},
                                        spell, "2 21 <aa42>", "2 21 <>");
  check<DescriptorShortSmoothingBuffer>(
      "61 01 5E", {"61 short_smoothing_buffer_descriptor", "sb_size: 1", "sb_leak_rate: 1e"}, spell,
      "1 1e <>");
}

TEST(Stream, PartialTransportStream) {
  const auto spell = [](auto const&) { return ""; };
  check<DescriptorPartialTransportStream>("63 02 41 42", {"63 partial_transport_descriptor"}, spell, "");
  check<DescriptorPartialTransportStream>("63 00", {"63 partial_transport_descriptor"}, spell, "");
}

TEST(Stream, AdaptationFieldData) {
  const auto spell = [](auto const& d) { return members(d.adaptation_field_data_identifier); };
  check<DescriptorAdaptationFieldData>("70 01 85", {"70 adaptation_field_descriptor"}, spell, "85");
}

TEST(Stream, Dsng) {
  const auto spell = [](auto const& d) { return members(d.DSNG_data); };
  check<DescriptorDSNG>("68 02 AA 42", {"68 DSNG_descriptor"}, spell, "<aa42>");
}

TEST(Stream, TransportStream) {
  const auto spell = [](auto const& d) { return members(d.transport_stream_data); };
  check<DescriptorTransportStream>("67 02 AA 42", {"67 transport_stream_descriptor"}, spell, "<aa42>");
}

}  // namespace
}  // namespace sivane::testing
