// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "multiplex.h"

namespace sample {

using sivane::testing::make_section;

namespace {

constexpr int ca_system_id = 0xFF01;
constexpr int emm_pid = 0x0060;
constexpr int ecm_pid = 0x0120;

/// The tables of ISO/IEC 13818-1 have a zero behind the section_syntax_indicator, those of DVB a one.
Bytes with_zero_bit(Bytes section) {
  section[1] &= 0xBF;
  sivane::testing::repair_crc(section);
  return section;
}

Bytes ca_descriptor(int pid) { return make_descriptor(0x09, u16(ca_system_id) + pid_field(pid)); }

Bytes language_descriptor(char const* language, int audio_type = 0) {
  return make_descriptor(0x0A, characters(language) + u8(audio_type));
}

Bytes component_tag_descriptor(int tag) { return make_descriptor(0x52, u8(tag)); }

Bytes service_descriptor(Service const& service) {
  return make_descriptor(0x48, u8(service.type) + text_field("Lantern Media") + text_field(service.name));
}

Bytes teletext_descriptor() { return make_descriptor(0x56, characters("eng") + u8(1 << 3 | 1) + u8(0x00)); }

Bytes subtitling_descriptor() {
  return make_descriptor(0x59, characters("fra") + u8(0x10) + u16(1) + u16(1));
}

/// 538 MHz, 8 MHz wide, 64-QAM, code rate 2/3, guard interval 1/32, 8k mode.
Bytes terrestrial_delivery_system_descriptor() {
  return make_descriptor(0x5A, u32(53800000) + u8(0x1F) + u8(0x81) + u8(0x02) + u32(0xFFFFFFFF));
}

Service first_service() {
  return {0x0101,
          0x01,
          "Gull One",
          0x0100,
          {},
          {{0x02, 0x0101, component_tag_descriptor(1)},
           {0x03, 0x0102, language_descriptor("eng") + component_tag_descriptor(2)},
           {0x03, 0x0103, language_descriptor("eng", 3) + component_tag_descriptor(3)},
           {0x06, 0x0104, teletext_descriptor()}}};
}

Service second_service() {
  return {0x0102,
          0x01,
          "Gull Caf\xC2\x65",
          0x0110,
          ca_descriptor(ecm_pid),
          {{0x02, 0x0111, component_tag_descriptor(1)},
           {0x03, 0x0112, language_descriptor("fra") + component_tag_descriptor(2)},
           {0x06, 0x0113, subtitling_descriptor()}}};
}

Service radio_service() {
  return {0x0103, 0x02, "Foghorn Radio", 0x0130, {}, {{0x03, 0x0131, language_descriptor("eng")}}};
}

}  // namespace

std::vector<Service> services(int version) {
  std::vector<Service> all{first_service(), second_service()};
  if (version > 0) all.push_back(radio_service());
  return all;
}

Bytes pat(int version) {
  std::vector<sivane::testing::Program> programs{{0, nit_pid}};
  for (Service const& service : services(version)) programs.push_back({service.id, service.pmt_pid});
  return with_zero_bit(make_pat(programs, {.context_id = transport_stream_id, .version_number = version}));
}

Bytes cat() {
  return with_zero_bit(make_section({.table_id = 0x01, .context_id = 0xFFFF}, ca_descriptor(emm_pid)));
}

Bytes pmt(Service const& service) {
  Bytes body = pid_field(service.streams.front().pid) + loop_field(service.descriptors);
  for (Stream const& stream : service.streams) {
    body = body + u8(stream.type) + pid_field(stream.pid) + loop_field(stream.descriptors);
  }
  return with_zero_bit(make_section({.table_id = 0x02, .context_id = service.id}, body));
}

Bytes nit(int version) {
  Bytes list;
  for (Service const& service : services(version)) list = list + u16(service.id) + u8(service.type);
  Bytes const stream = u16(transport_stream_id) + u16(network_id) +
                       loop_field(make_descriptor(0x41, list) + terrestrial_delivery_system_descriptor());
  Bytes const name = make_descriptor(0x40, characters("Lantern Coast"));
  return make_section({.table_id = 0x40, .context_id = network_id, .version_number = version},
                      loop_field(name) + loop_field(stream));
}

Bytes sdt(int version) {
  Bytes body = u16(network_id) + u8(0xFF);
  for (Service const& service : services(version)) {
    constexpr int present_following_only = 0xFD;
    constexpr int running = 4 << 1;
    int const scrambled = service.descriptors.empty() ? 0 : 1;
    body = body + u16(service.id) + u8(present_following_only) +
           loop_field(service_descriptor(service), running | scrambled);
  }
  return make_section({.table_id = 0x42, .context_id = transport_stream_id, .version_number = version}, body);
}

}  // namespace sample
