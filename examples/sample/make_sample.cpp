// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Writes the sample stream to the file that it is given: a short piece of a DVB multiplex of our own
// invention (ISO/IEC 13818-1, ETSI EN 300 468). The same bytes every time.
#include <packet_writer.h>

#include <cstdint>
#include <fstream>
#include <iostream>

#include "multiplex.h"
#include "programme_guide.h"

namespace sample {

namespace {

using sivane::testing::PacketWriter;

/// Bytes without a meaning, as a coded picture looks to a demultiplexer.
class Noise {
 public:
  unsigned char next() {
    state_ = state_ * 1664525u + 1013904223u;
    return static_cast<unsigned char>(state_ >> 24);
  }

 private:
  std::uint32_t state_ = 1;
};

/// A PES packet of a video stream over `packets` transport packets, the last with an adaptation field.
void write_picture(PacketWriter& writer, int pid, int packets, Noise& noise) {
  Bytes const pes_header = sivane::testing::hex("00 00 01 e0 00 00 80 00 00");
  for (int i = 0; i < packets; ++i) {
    bool const last = i == packets - 1;
    sivane::testing::Packet packet{.pid = pid, .start = i == 0, .adaptation = last ? 60 : -1};
    if (packet.start) packet.payload = pes_header;
    std::size_t const room = last ? 184 - 61 : 184;
    while (packet.payload.size() < room) packet.payload.push_back(noise.next());
    writer.packet(std::move(packet));
  }
}

/// The tables of one round, as they are repeated again and again on the air.
void write_tables(PacketWriter& writer, int version, Time now) {
  writer.section(0x0000, pat(version));
  writer.section(cat_pid, cat());
  for (Service const& service : services(version)) writer.section(service.pmt_pid, pmt(service));
  writer.section(nit_pid, nit(version));
  writer.section(sdt_pid, sdt(version));
  for (Bytes const& section : eit_sections(version)) writer.section(eit_pid, section);
  writer.section(time_pid, tdt(now));
  writer.section(time_pid, tot(now));
}

Bytes make_stream() {
  PacketWriter writer;
  Noise noise;
  for (int round = 0; round < 4; ++round) {
    int const version = round / 2;
    write_tables(writer, version, {18, 12, 5 * round});
    for (Service const& service : services(version)) {
      write_picture(writer, service.streams.front().pid, 6, noise);
    }
    writer.null_packets(5);
  }
  return writer.stream();
}

}  // namespace

}  // namespace sample

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: sivane-make-sample FILE\n";
    return 2;
  }
  std::ofstream file(argv[1], std::ios::binary);
  sample::Bytes const stream = sample::make_stream();
  file.write(reinterpret_cast<char const*>(stream.data()), static_cast<std::streamsize>(stream.size()));
  file.close();
  if (!file) std::cerr << "sivane-make-sample: cannot write " << argv[1] << '\n';
  return file ? 0 : 1;
}
