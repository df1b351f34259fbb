// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Writes the inputs that the fuzzers start from: make_corpus FOLDER fills FOLDER/demux and FOLDER/sections.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "packet_writer.h"
#include "section_builder.h"

namespace {

using sivane::testing::Bytes;
using sivane::testing::operator+;
using sivane::testing::PacketWriter;
namespace fs = std::filesystem;

constexpr std::size_t packet_size = 188;
constexpr std::size_t header_size = 4;

/// A packet as packets.h reads it: control byte, count, and the bytes in front of the stuffing. The PIDs are
/// 0x0000 and 0x0010 alone.
Bytes compact_packet(Bytes const& packet, unsigned char cut) {
  std::size_t end = packet_size;
  while (end > header_size && packet[end - 1] == 0xFF) --end;
  const int pid_index = packet[2] == 0x10 ? 1 : 0;
  const int start = (packet[1] & 0x40) != 0 ? 4 : 0;
  const int adaptation = (packet[3] & 0x20) != 0 ? 8 : 0;
  const std::size_t count = end - header_size;
  Bytes compact(2 + count);
  compact[0] = static_cast<unsigned char>(pid_index | start | adaptation | cut);
  compact[1] = static_cast<unsigned char>(count);
  std::copy_n(packet.begin() + header_size, count, compact.begin() + 2);
  return compact;
}

/// A driver, a script of its hooks and a stream, of which every packet takes the bits of `cut`.
Bytes demux_input(unsigned char driver, Bytes const& script, PacketWriter const& writer,
                  unsigned char cut = 0) {
  Bytes input = Bytes{driver, static_cast<unsigned char>(script.size())} + script;
  Bytes const& stream = writer.stream();
  for (auto packet = stream.begin(); packet != stream.end(); packet += packet_size) {
    input = input + compact_packet({packet, packet + packet_size}, cut);
  }
  return input;
}

void write(fs::path const& path, Bytes const& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<char const*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

Bytes pat_of(int programs) {
  std::vector<sivane::testing::Program> list;
  for (int i = 0; i < programs; ++i) list.push_back({i, 0x100 + i});
  return sivane::testing::make_pat(list);
}

PacketWriter broadcast() {
  PacketWriter writer;
  writer.dense_sections(0x0000, {pat_of(1), pat_of(40), pat_of(3), pat_of(100)});
  writer.packet({.pid = 0x0000, .start = true, .adaptation = 10, .payload = Bytes{0} + pat_of(2)});
  writer.packet({.pid = 0x0000, .start = true, .payload = {0, 0, 0, 1}});
  writer.packet({.pid = 0x0000, .start = true, .adaptation = 183});
  writer.section(0x0010, sivane::testing::make_section({.table_id = 0x42}, Bytes(300)));
  return writer;
}

PacketWriter long_section() {
  PacketWriter writer;
  writer.section(0x0000, sivane::testing::make_section({.length_override = 0xFFF}, Bytes(4080, 0xFF)));
  return writer;
}

void write_demux(fs::path const& folder) {
  const Bytes idle;
  const Bytes filters{0x03, 0x23, 0x0B};                           // adds filters of three sizes
  const Bytes removals{0x00, 0x02, 0x01, 0x00, 0x06, 0x01};        // removes, adds, resets and adds again
  const Bytes failures{0x00, 0x07, 0x00, 0x07, 0x07, 0x04, 0x05};  // throws, stops, dumps
  const std::string drivers[] = {"push", "istream", "polled"};
  for (unsigned char driver = 0; driver < 3; ++driver) {
    const std::string name = drivers[driver];
    write(folder / (name + "-broadcast"), demux_input(driver, idle, broadcast()));
    write(folder / (name + "-filters"), demux_input(driver, filters, broadcast()));
    write(folder / (name + "-removals"), demux_input(driver, removals, broadcast()));
    write(folder / (name + "-failures"), demux_input(driver, failures, broadcast()));
    write(folder / (name + "-long"), demux_input(driver, idle, long_section()));
  }
  write(folder / "push-packetwise", demux_input(0, filters, broadcast(), 0x10));
  write(folder / "push-odd", demux_input(0, idle, broadcast(), 0x30));
}

void write_sections(fs::path const& folder) {
  constexpr unsigned char as_it_is = 0, fitted = 3;
  for (const int programs : {0, 1, 5, 253, 1000}) {
    write(folder / ("pat-" + std::to_string(programs)), Bytes{as_it_is} + pat_of(programs));
  }
  write(folder / "pat-length-5", Bytes{as_it_is} + sivane::testing::hex("00 B0 05 0001 C1 00 00"));
  write(folder / "pat-bytes-behind", Bytes{as_it_is} + pat_of(2) + Bytes(7, 0xFF));
  write(folder / "pat-wrong-crc",
        Bytes{as_it_is} + sivane::testing::hex("00 B0 0D 0001 C1 00 00 0001 E100 00000000"));
  write(folder / "fitted-3", Bytes{fitted} + Bytes(3));
  write(folder / "fitted-16", Bytes{fitted} + sivane::testing::make_section({}, Bytes(4)));
  write(folder / "fitted-other-table",
        Bytes{fitted} + sivane::testing::make_section({.table_id = 0x02}, Bytes(4)));
}

/// A descriptor of every tag with a class, and of some without, `length` bytes each.
Bytes all_tags(int length, int first_byte, int step) {
  Bytes loop;
  for (int tag = 0; tag <= 0x80; ++tag) {
    Bytes body;
    for (int i = 0; i < length; ++i) body.push_back(static_cast<unsigned char>(first_byte + i * step));
    loop = std::move(loop) + sivane::testing::make_descriptor(tag, body);
  }
  return loop;
}

void write_descriptors(fs::path const& folder) {
  for (const int length : {0, 1, 3, 5, 9, 26}) {
    const std::string name = "all-tags-" + std::to_string(length);
    write(folder / (name + "-zeros"), all_tags(length, 0x00, 0));
    write(folder / (name + "-counting"), all_tags(length, 0x01, 1));
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  write_demux(fs::path(argv[1]) / "demux");
  write_sections(fs::path(argv[1]) / "sections");
  write_descriptors(fs::path(argv[1]) / "descriptors");
  return 0;
}
