// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/descriptor.h>
#include <sivane/foundation/dump_line.h>
#include <sivane/foundation/dump_lines.h>

#include <iomanip>
#include <ostream>

namespace sivane {

void DescriptorBase::dump_state(std::ostream& os) const {
  dump::Line line(os << std::hex << std::setfill('0'));
  line.text("descriptor_tag: ").number(tag, 2).text(' ').text(get_tag_text()).end();
  _dump_state(os);
}

DescriptorGeneral::DescriptorGeneral(DescriptorBytes descriptor)
    : DescriptorBase(descriptor), data(descriptor.body().rest()) {}

DescriptorGeneral::DescriptorGeneral(descriptor_base const* descriptor)
    : DescriptorGeneral(DescriptorBytes(bytes_of(descriptor))) {}

DescriptorGeneral::DescriptorGeneral(int descriptor_tag, unsigned char const* bytes, int descriptor_length)
    : data(Reader::within(bytes, descriptor_length).rest()) {
  tag = descriptor_tag;
  length = descriptor_length;
}

char const* DescriptorGeneral::get_tag_text() const {
  // Literals of the dumps, and none of them is read from the classes that these tags have.
  static constexpr char const* systems_texts[] = {
      "video_stream_descriptor",
      "audio_stream_descriptor",
      "hierachy_descriptor",
      "registration_descriptor",
      "data_streeam_descriptor",
      "target_background_grid_descriptor",
      "video_window_descriptor",
      "CA_descriptor",
      "ISO_639_language_descriptor",
      "system_clock_descriptor",
      "multiplex_buffer_utilization_descriptor",
      "copyright_descriptor",
      "maximum_bitrate_descriptor",
      "private_data_indicator_descriptor",
      "smootihing_descriptor",
      "STD_descriptor",
      "IBP_descriptor",
  };
  if (tag < 0) return "Unknown";
  if (tag >= 2 && tag <= 18) return systems_texts[tag - 2];
  return tag < 64 ? "Reserved" : "User Private";
}

void DescriptorGeneral::_dump_state(std::ostream& os) const { dump::block(os, "data:", data); }

}  // namespace sivane
