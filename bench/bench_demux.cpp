// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What a packet costs: streams of which the host wants next to nothing, and streams of sections alone.
#include <sivane/demux/demux.h>

#include <cstring>
#include <string>

#include "compare.h"
#include "packet_writer.h"

namespace {

using sivane::testing::Bytes;
using sivane::testing::PacketWriter;

constexpr std::size_t packet_size = sivane::ts_packet_size;
constexpr std::size_t header_size = 4;
constexpr int section_pid = 0x0000;

class CountingHost final : public sivane::DemuxPush {
 public:
  CountingHost() { add_psi_handler(section_pid, 0x00); }
  /// False if a packet is refused.
  bool push(Bytes const& stream) { return push_data(stream.data(), static_cast<int>(stream.size())) == 0; }
  std::size_t sections = 0;

 protected:
  void on_psi_section(int, int, int, unsigned char const*) override { ++sections; }
};

/// The least that a reader of packets can do: sync byte and PID of each.
bool plain_pass(Bytes const& stream) {
  unsigned int pids = 0;
  for (std::size_t i = 0; i < stream.size(); i += packet_size) {
    if (stream[i] != sivane::ts_sync_byte) return false;
    pids += (stream[i + 1] & 0x1Fu) << 8 | stream[i + 2];
  }
  benchmark::DoNotOptimize(pids);
  return true;
}

/// One packet in 200 carries a section that is wanted; the others go through 40 PIDs that nobody wants.
Bytes unhandled_stream(std::size_t size) {
  constexpr int period = 200;
  PacketWriter writer;
  writer.section(section_pid, sivane::testing::make_pat({{1, 0x100}, {2, 0x101}}));
  for (int i = 1; i < period; ++i) writer.packet({.pid = 0x200 + i % 40, .payload = Bytes(184, 0x5A)});
  Bytes stream;
  stream.reserve(size + writer.stream().size());
  while (stream.size() < size) stream.insert(stream.end(), writer.stream().begin(), writer.stream().end());
  return stream;
}

void push_unhandled(benchmark::State& state) {
  Bytes const stream = unhandled_stream(static_cast<std::size_t>(state.range(0)) * 1000000);
  CountingHost host;
  bool whole = true;
  sivane::bench::compare(
      state, stream.size(), "the time of a plain pass over sync byte and PID",
      [&] { whole = host.push(stream) && whole; }, [&] { whole = plain_pass(stream) && whole; });
  if (!whole || host.sections == 0) state.SkipWithError("the stream was not read to its end");
}

Bytes pat_of_size(std::size_t size) {
  constexpr std::size_t without_programs = 12;
  std::vector<sivane::testing::Program> programs;
  for (std::size_t at = without_programs; at + 4 <= size; at += 4) {
    int const number = static_cast<int>(programs.size());
    programs.push_back({number, 0x100 + number});
  }
  return sivane::testing::make_pat(programs);
}

/// Copies the payload of each packet into a section's buffer, as reassembly must.
void copy_payloads(Bytes const& stream, std::size_t section_size) {
  static unsigned char section[sivane::Demux::SectionBuffer::capacity];
  std::size_t held = 0;
  for (std::size_t i = 0; i < stream.size(); i += packet_size) {
    std::memcpy(section + held, &stream[i + header_size], packet_size - header_size);
    held += packet_size - header_size;
    if (held >= section_size) held = 0;
    benchmark::ClobberMemory();
  }
}

void push_sections(benchmark::State& state) {
  constexpr std::size_t stream_size = 500000;
  Bytes const section = pat_of_size(static_cast<std::size_t>(state.range(0)));
  PacketWriter one;
  one.section(section_pid, section);
  Bytes stream;
  std::size_t sections = 0;
  for (; stream.size() < stream_size; ++sections) {
    stream.insert(stream.end(), one.stream().begin(), one.stream().end());
  }
  CountingHost host;
  std::size_t rounds = 0;
  sivane::bench::compare(
      state, stream.size(), "the time of memcpy of the payloads",
      [&] { rounds += host.push(stream) ? 1u : 0u; }, [&] { copy_payloads(stream, section.size()); });
  if (rounds == 0 || host.sections != rounds * sections) state.SkipWithError("sections were lost");
}

}  // namespace

BENCHMARK(push_unhandled)
    ->Name("push_data, unhandled PIDs, stream of # MB")
    ->Arg(8)
    ->Arg(64)
    ->Arg(256)
    ->Apply(sivane::bench::timed_by_hand);
BENCHMARK(push_sections)
    ->Name("push_data, sections of # bytes")
    ->Arg(20)
    ->Arg(180)
    ->Arg(1024)
    ->Arg(4096)
    ->Apply(sivane::bench::timed_by_hand);
