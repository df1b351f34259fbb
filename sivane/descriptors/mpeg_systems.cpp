// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/mpeg_systems.h>
#include <sivane/descriptors/value_text.h>
#include <sivane/foundation/dump_line.h>
#include <sivane/foundation/dump_lines.h>

#include <ostream>

namespace sivane {

using dump::line;

// video_stream_descriptor

DescriptorVideoStream::DescriptorVideoStream(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  multiple_frame_rate_flag = r.flag();
  frame_rate_code = r.bits(4);
  MPEG_1_only_flag = r.flag();
  constrained_parameter_flag = r.flag();
  still_picture_flag = r.flag();
  if (MPEG_1_only_flag) return;
  profile_and_level_indication = r.u8();
  chroma_format = r.bits(2);
  frame_rate_extension_flag = r.flag();
  reserved = r.bits(5);
}

DescriptorVideoStream::DescriptorVideoStream(VIDEO_STREAM_desc const* descriptor)
    : DescriptorVideoStream(DescriptorBytes(bytes_of(descriptor))) {
  tag = 2;
}

// A literal of stored dumps, as it is.
void DescriptorVideoStream::_dump_state(std::ostream& os) const { os << "TO IMPLEMENT!!!" << std::endl; }

// audio_stream_descriptor

DescriptorAudioStream::DescriptorAudioStream(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  free_format_flag = r.bits(1);
  ID = r.bits(1);
  layer = r.bits(2);
  variable_rate_audio_indicator = r.bits(1);
}

void DescriptorAudioStream::_dump_state(std::ostream& os) const {
  line(os, "free_format_flag: ", free_format_flag);
  line(os, "ID: ", ID);
  line(os, "layer: ", layer);
  line(os, "variable_rate_audio_indicator: ", variable_rate_audio_indicator);
}

// hierarchy_descriptor

DescriptorHierarchy::DescriptorHierarchy(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  r.skip_bits(4);
  hierarchy_type = r.bits(4);
  r.skip_bits(2);
  hierarchy_layer_index = r.bits(6);
  r.skip_bits(2);
  hierarchy_embedded_layer_index = r.bits(6);
  r.skip_bits(2);
  hierarchy_channel = r.bits(6);
}

char const* DescriptorHierarchy::get_hierchy_type_string() const {
  static constexpr char const* texts[] = {
      "ITU-T Rec. H.262|ISO/IEC 13818-2 Spatial Scalability",
      "ITU-T Rec. H.262|ISO/IEC 13818-2 SNR Scalability",
      "ITU-T Rec. H.262|ISO/IEC 13818-2 Temporal Scalability",
      "ITU-T Rec. H.262|ISO/IEC 13818-2 Data partitioning",
      "ISO/IEC 13818-3 Extension bitstream",
      "ITU-T Rec. H.222.0|ISO/IEC 13818-1 Private Stream",
  };
  return hierarchy_type == 15 ? "Base Layer" : value_text(texts, hierarchy_type, "reserved", 1);
}

// registration_descriptor

DescriptorRegistration::DescriptorRegistration(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  format_identifier = r.u32();
  additional_identification_info = r.rest();
}

// data_stream_alignment_descriptor

DescriptorDataStreamAlignment::DescriptorDataStreamAlignment(DescriptorBytes d) : DescriptorBase(d) {
  alignment_type = d.body().u8();
}

char const* DescriptorDataStreamAlignment::get_alignment_type_string() const {
  static constexpr char const* texts[] = {"Slice, or video access unit", "video access unit", "GOP, or SEQ",
                                          "SEQ"};
  return value_text(texts, alignment_type, "reserved", 1);
}

// target_background_grid_descriptor

DescriptorTargetBackgroundGrid::DescriptorTargetBackgroundGrid(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  horizontal_size = r.bits(14);
  vertical_size = r.bits(14);
  aspect_ratio_information = r.bits(4);
}

// video_window_descriptor

DescriptorVideoWindow::DescriptorVideoWindow(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  horizonal_offset = r.bits(14);
  vertical_offset = r.bits(14);
  window_priority = r.bits(4);
}

// CA_descriptor

DescriptorCa::DescriptorCa(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  sys_id = r.u16();
  r.skip_bits(3);
  pid = r.bits(13);
  private_bytes = r.rest();
}

void DescriptorCa::add_private_byte(unsigned char byte) { private_bytes.push_back(byte); }

char const* DescriptorCa::get_ca_provider1() const {
  switch (sys_id >> 8) {
    case 0x01:
      return "Canal Plus";
    case 0x05:
      return "France Telecom";
    case 0x06:
      return "Irdeto";
    case 0x09:
      return "News Datacom";
    case 0x0B:
      return "Norwegian Telekom";
    case 0x0D:
      return "Philips";
    case 0x17:
      return "BetaTechnik";
    default:
      return "unknown provider";
  }
}

void DescriptorCa::_dump_state(std::ostream& os) const {
  dump::Line(os).text("sys_id: ").number(sys_id, 4).text(' ').text(get_ca_provider1()).end();
  line(os, "pid: ", pid, 4);
  dump::block_if_any(os, "private data:", private_bytes);
}

// ISO_639_language_descriptor

DescriptorISO639Language::DescriptorISO639Language(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  language_vector = r.records<ISO639Lang>(4, {error::no_errorcode, "descriptor length mismatch"});
}

DescriptorISO639Language::DescriptorISO639Language(ISO_639_LANGUAGE_desc const* descriptor)
    : DescriptorISO639Language(DescriptorBytes(bytes_of(descriptor))) {
  tag = 10;
}

DescriptorISO639Language::ISO639Lang::ISO639Lang(Reader& r) {
  r.code(ISO_639_language_code);
  audio_type = static_cast<unsigned char>(r.u8());
}

void DescriptorISO639Language::ISO639Lang::dump_state(std::ostream& os) const {
  line(os, "ISO_639_language_code: ", ISO_639_language_code);
  line(os, "audio_type: ", audio_type);
}

void DescriptorISO639Language::_dump_state(std::ostream& os) const { dump::each(os, language_vector); }

// system_clock_descriptor

DescriptorSystemClock::DescriptorSystemClock(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  external_clock_reference_indicator = r.bits(1);
  r.skip_bits(1);
  clock_acuracy_integer = r.bits(6);
  clock_acuracy_exponent = r.bits(3);
}

// multiplex_buffer_utilization_descriptor

DescriptorMultiplexBufferUtilization::DescriptorMultiplexBufferUtilization(DescriptorBytes d)
    : DescriptorBase(d) {
  Reader r = d.body();
  bound_valid_flag = r.bits(1);
  LTW_offset_lower_bound = r.bits(15);
  r.skip_bits(1);
  LTW_offset_upper_bound = r.bits(15);
}

// copyright_descriptor

DescriptorCopyright::DescriptorCopyright(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  copyright_identifier = r.i32();
  additional_copyright_info = r.rest();
}

void DescriptorCopyright::_dump_state(std::ostream& os) const {
  line(os, "copyright_identifier:", copyright_identifier);
  os << "additional_copyright_info: ";
  for (int const byte : additional_copyright_info) os << ' ' << byte;
  os << std::endl;
}

// maximum_bitrate_descriptor

DescriptorMaximumBitrate::DescriptorMaximumBitrate(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  r.skip_bits(2);
  maximum_bitrate = r.bits(22);
}

// private_data_indicator_descriptor

DescriptorPrivateDataIndicator::DescriptorPrivateDataIndicator(DescriptorBytes d) : DescriptorBase(d) {
  private_data_indicator = d.body().i32();
}

void DescriptorPrivateDataIndicator::_dump_state(std::ostream& os) const {
  line(os, "private_data_indicator: ", private_data_indicator);
}

// smoothing_buffer_descriptor

DescriptorSmoothingBuffer::DescriptorSmoothingBuffer(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  r.skip_bits(2);
  sb_leak_rate = r.bits(22);
  r.skip_bits(2);
  sb_size = r.bits(22);
}

// STD_descriptor

DescriptorSTD::DescriptorSTD(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  r.skip_bits(7);
  leak_valid_flag = r.bits(1);
}

void DescriptorSTD::_dump_state(std::ostream& os) const { line(os, "leak_valid_flag: ", leak_valid_flag); }

// ibp_descriptor

DescriptorIBP::DescriptorIBP(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  closed_gop_flag = r.bits(1);
  identical_gop_flag = r.bits(1);
  max_gop_length = r.bits(14);
}

// carousel_id_descriptor

DescriptorCarouselId::DescriptorCarouselId(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  carousel_id = r.u32();
  formatid = r.u8();
  if (formatid > 1) return;
  if (formatid == 1) {
    moduleversion = r.u8();
    moduleid = r.u16();
    blocksize = r.u16();
    modulesize = r.u32();
    compressionmethod = r.u8();
    originalsize = r.u32();
    timeout = r.u8();
    objectkeylength = r.u8();
    objectkeydata = r.string(objectkeylength);
  }
  private_data_byte = r.rest();
}

// association_tag_descriptor

DescriptorAssociationTag::DescriptorAssociationTag(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  association_tag = r.u16();
  use = r.u16();
  selector_length = r.u8();
  if ((use == 0 && selector_length != 8) || (use == 1 && selector_length != 0)) {
    r.fail({error::length_error, "association_tag_descriptor:selector_length"}, -1);
  }
  if (use == 0) {
    transaction_id = r.u32();
    timeout = r.u32();
  } else {
    selector_byte = r.bytes(selector_length);
  }
  private_data_byte = r.rest();
}

}  // namespace sivane
