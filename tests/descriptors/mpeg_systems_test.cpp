// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "descriptor_check.h"

namespace sivane::testing {
namespace {

// Where a class has flags side by side it is parsed twice, the second time with all bits the other way round.

TEST(MpegSystems, VideoStream) {
  const auto spell = [](auto const& d) {
    return members(d.multiple_frame_rate_flag, d.frame_rate_code, d.MPEG_1_only_flag,
                   d.constrained_parameter_flag, d.still_picture_flag, d.profile_and_level_indication,
                   d.chroma_format, d.frame_rate_extension_flag, d.reserved);
  };
  const std::vector<std::string> lines = {"02 video_stream_descriptor", "TO IMPLEMENT!!!"};
  check<DescriptorVideoStream>("02 03 B2 85 B1", lines, spell, "1 6 0 1 0 85 2 1 11");
  check<DescriptorVideoStream>("02 03 49 7A 4E", lines, spell, "0 9 0 0 1 7a 1 0 e");
  // With MPEG_1_only_flag nothing behind the first byte is looked at.
  check<DescriptorVideoStream>("02 01 4D", lines, spell, "0 9 1 0 1 0 0 0 0");
  check<DescriptorVideoStream>("02 03 B6 85 B1", lines, spell, "1 6 1 1 0 0 0 0 0");
}

TEST(MpegSystems, AudioStream) {
  const auto spell = [](auto const& d) {
    return members(d.free_format_flag, d.ID, d.layer, d.variable_rate_audio_indicator);
  };
  check<DescriptorAudioStream>("03 01 97",
                               {"03 audio_stream_descriptor", "free_format_flag: 1", "ID: 0", "layer: 1",
                                "variable_rate_audio_indicator: 0"},
                               spell, "1 0 1 0");
  check<DescriptorAudioStream>("03 01 68",
                               {"03 audio_stream_descriptor", "free_format_flag: 0", "ID: 1", "layer: 2",
                                "variable_rate_audio_indicator: 1"},
                               spell, "0 1 2 1");
}

TEST(MpegSystems, Hierarchy) {
  const auto spell = [](auto const& d) {
    return members(d.hierarchy_type, d.hierarchy_layer_index, d.hierarchy_embedded_layer_index,
                   d.hierarchy_channel);
  };
  check<DescriptorHierarchy>("04 04 FA E1 1E ED", {"04 hierachy_descriptor"}, spell, "a 21 1e 2d");
}

TEST(MpegSystems, Registration) {
  const auto spell = [](auto const& d) {
    return members(d.format_identifier, d.additional_identification_info);
  };
  check<DescriptorRegistration>("05 06 80 01 02 83 FE 00", {"05 registration_descriptor"}, spell,
                                "80010283 <fe00>");
  check<DescriptorRegistration>("05 04 80 01 02 83", {"05 registration_descriptor"}, spell, "80010283 <>");
}

TEST(MpegSystems, DataStreamAlignment) {
  const auto spell = [](auto const& d) { return members(d.alignment_type); };
  check<DescriptorDataStreamAlignment>("06 01 84", {"06 data_stream_alignment_descriptor"}, spell, "84");
}

TEST(MpegSystems, TargetBackgroundGrid) {
  const auto spell = [](auto const& d) {
    return members(d.horizontal_size, d.vertical_size, d.aspect_ratio_information);
  };
  check<DescriptorTargetBackgroundGrid>("07 04 80 05 FF E9", {"07 target_background_grid_descriptor"}, spell,
                                        "2001 1ffe 9");
}

TEST(MpegSystems, VideoWindow) {
  const auto spell = [](auto const& d) {
    return members(d.horizonal_offset, d.vertical_offset, d.window_priority);
  };
  check<DescriptorVideoWindow>("08 04 7F FA 00 16", {"08 video_window_descriptor"}, spell, "1ffe 2001 6");
}

TEST(MpegSystems, Ca) {
  const auto spell = [](auto const& d) { return members(d.sys_id, d.pid, d.private_bytes); };
  check<DescriptorCa>("09 06 0B 81 F2 35 AA 42",
                      {"09 CA_Descriptor", "sys_id: 0b81 Norwegian Telekom", "pid: 1235",
                       "private data:", block("aa 42", ".B")},
                      spell, "b81 1235 <aa42>", "b81 1235 <>");
  check<DescriptorCa>("09 04 00 05 E0 01", {"09 CA_Descriptor", "sys_id: 0005 unknown provider", "pid: 0001"},
                      spell, "5 1 <>");

  DescriptorCa by_hand;
  by_hand.add_private_byte(0xFE);
  by_hand.add_private_byte(0x01);
  EXPECT_EQ(spell(by_hand), "0 0 <fe01>");
}

TEST(MpegSystems, Iso639Language) {
  const auto spell = [](auto const& d) {
    return each(d.language_vector,
                [](auto const& r) { return members(r.ISO_639_language_code, r.audio_type); });
  };
  check<DescriptorISO639Language>("0A 08 65 6E 67 41 64 65 75 FF",
                                  {"0a ISO_639_language_descriptor", "ISO_639_language_code: eng",
                                   "audio_type: A", "ISO_639_language_code: deu", "audio_type: \xFF"},
                                  spell, "{'eng' 41}{'deu' ff}", "");
  check<DescriptorISO639Language>("0A 00", {"0a ISO_639_language_descriptor"}, spell, "");
}

TEST(MpegSystems, SystemClock) {
  const auto spell = [](auto const& d) {
    return members(d.external_clock_reference_indicator, d.clock_acuracy_integer, d.clock_acuracy_exponent);
  };
  check<DescriptorSystemClock>("0B 02 A1 BF", {"0b system_clock_descriptor"}, spell, "1 21 5");
  check<DescriptorSystemClock>("0B 02 5E 40", {"0b system_clock_descriptor"}, spell, "0 1e 2");
}

TEST(MpegSystems, MultiplexBufferUtilization) {
  const auto spell = [](auto const& d) {
    return members(d.bound_valid_flag, d.LTW_offset_lower_bound, d.LTW_offset_upper_bound);
  };
  const std::vector<std::string> lines = {"0c multiplex_buffer_utilization_descriptor"};
  check<DescriptorMultiplexBufferUtilization>("0C 04 80 01 FF FE", lines, spell, "1 1 7ffe");
  check<DescriptorMultiplexBufferUtilization>("0C 04 7F FE 40 01", lines, spell, "0 7ffe 4001");
}

TEST(MpegSystems, Copyright) {
  const auto spell = [](auto const& d) {
    return members(d.copyright_identifier, d.additional_copyright_info);
  };
  check<DescriptorCopyright>(
      "0D 06 80 01 02 83 0A FF",
      {"0d copyright_descriptor", "copyright_identifier:80010283", "additional_copyright_info:  a ff"}, spell,
      "80010283 <0aff>", "80010283 <>");
  check<DescriptorCopyright>(
      "0D 04 80 01 02 83",
      {"0d copyright_descriptor", "copyright_identifier:80010283", "additional_copyright_info: "}, spell,
      "80010283 <>");
}

TEST(MpegSystems, MaximumBitrate) {
  const auto spell = [](auto const& d) { return members(d.maximum_bitrate); };
  check<DescriptorMaximumBitrate>("0E 03 E0 00 81", {"0e maximum_bitrate_descriptor"}, spell, "200081");
}

TEST(MpegSystems, PrivateDataIndicator) {
  const auto spell = [](auto const& d) { return members(d.private_data_indicator); };
  check<DescriptorPrivateDataIndicator>(
      "0F 04 80 01 02 83", {"0f private_data__indicatordescriptor", "private_data_indicator: 80010283"},
      spell, "80010283");
}

TEST(MpegSystems, SmoothingBuffer) {
  const auto spell = [](auto const& d) { return members(d.sb_leak_rate, d.sb_size); };
  check<DescriptorSmoothingBuffer>("10 06 E0 00 81 1F FF 7E", {"10 smoothing_buffer_descriptor"}, spell,
                                   "200081 1fff7e");
}

TEST(MpegSystems, Std) {
  const auto spell = [](auto const& d) { return members(d.leak_valid_flag); };
  check<DescriptorSTD>("11 01 01", {"11 STD_descriptor", "leak_valid_flag: 1"}, spell, "1");
  check<DescriptorSTD>("11 01 FE", {"11 STD_descriptor", "leak_valid_flag: 0"}, spell, "0");
}

TEST(MpegSystems, Ibp) {
  const auto spell = [](auto const& d) {
    return members(d.closed_gop_flag, d.identical_gop_flag, d.max_gop_length);
  };
  check<DescriptorIBP>("12 02 A0 81", {"12 IBP_descriptor"}, spell, "1 0 2081");
  check<DescriptorIBP>("12 02 5F 7E", {"12 IBP_descriptor"}, spell, "0 1 1f7e");
}

TEST(MpegSystems, CarouselId) {
  const auto spell = [](auto const& d) {
    return members(d.carousel_id, d.formatid, d.private_data_byte, d.moduleversion, d.moduleid, d.blocksize,
                   d.modulesize, d.compressionmethod, d.originalsize, d.timeout, d.objectkeylength,
                   d.objectkeydata);
  };
  const std::vector<std::string> lines = {"13 carousel_id_descriptor"};
  check<DescriptorCarouselId>("13 07 80 01 02 83 00 AA BB", lines, spell,
                              "80010283 0 <aabb> 0 0 0 0 0 0 0 0 ''");
  check<DescriptorCarouselId>(
      "13 19 80 01 02 83 01 85 86 87 88 89 8A 8B 8C 8D 8E 8F 90 91 92 93 02 4B FF 94 95", lines, spell,
      "80010283 1 <9495> 85 8687 8889 8a8b8c8d 8e 8f909192 93 2 'K\\ff'");
  check<DescriptorCarouselId>("13 07 80 01 02 83 02 AA BB", lines, spell, "80010283 2 <> 0 0 0 0 0 0 0 0 ''");
}

TEST(MpegSystems, AssociationTag) {
  const auto spell = [](auto const& d) {
    return members(d.association_tag, d.use, d.selector_length, d.transaction_id, d.timeout, d.selector_byte,
                   d.private_data_byte);
  };
  const std::vector<std::string> lines = {"14 association_tag_descriptor"};
  check<DescriptorAssociationTag>("14 0F 80 01 00 00 08 80 02 03 04 85 06 07 08 AA BB", lines, spell,
                                  "8001 0 8 80020304 85060708 <> <aabb>");
  check<DescriptorAssociationTag>("14 07 80 01 00 01 00 AA BB", lines, spell, "8001 1 0 0 0 <> <aabb>");
  check<DescriptorAssociationTag>("14 0A 80 01 00 02 03 11 22 33 AA BB", lines, spell,
                                  "8001 2 3 0 0 <112233> <aabb>");
  check<DescriptorAssociationTag>("14 05 80 01 80 00 00", lines, spell, "8001 8000 0 0 0 <> <>");
}

TEST(MpegSystems, OverlaysStoreTheirOwnTag) {
  const HeapBlock bytes(hex("77 04 65 6E 67 41"));
  EXPECT_EQ(DescriptorVideoStream(bytes.data()).tag, 0x77);
  EXPECT_EQ(DescriptorISO639Language(bytes.data()).tag, 0x77);

  const DescriptorVideoStream video(reinterpret_cast<VIDEO_STREAM_desc const*>(bytes.data()));
  EXPECT_EQ(members(video.tag, video.length, video.frame_rate_code), "2 4 c");
  const DescriptorISO639Language language(reinterpret_cast<ISO_639_LANGUAGE_desc const*>(bytes.data()));
  EXPECT_EQ(members(language.tag, language.length, language.language_vector.at(0).ISO_639_language_code),
            "a 4 'eng'");
}

}  // namespace
}  // namespace sivane::testing
