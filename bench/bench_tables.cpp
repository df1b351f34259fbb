// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The tables of a multiplex, from packets to objects with every descriptor decoded.
#include <sivane/sivane.h>
#include <sivane/tables/crc.h>

#include "compare.h"
#include "streams.h"

namespace {

/// Registers every table of the stream and pushes it; what becomes of a section is the derived class's.
class SiHost : public sivane::DemuxPush {
 public:
  SiHost() {
    add_psi_handler(sivane::bench::pat_pid, 0x00);
    add_psi_handler(sivane::bench::nit_pid, 0x40);
    add_psi_handler(sivane::bench::sdt_pid, 0x42);
    add_psi_handler(sivane::bench::eit_pid, 0x4E);
    add_psi_handler(sivane::bench::eit_pid, 0x50);
    for (int i = 0; i < sivane::bench::services; ++i) add_psi_handler(sivane::bench::first_pmt_pid + i, 0x02);
  }
  void push(sivane::testing::Bytes const& stream) {
    push_data(stream.data(), static_cast<int>(stream.size()));
  }

  std::size_t good = 0;
};

class ParsingHost final : public SiHost {
 protected:
  void on_psi_section(int, int table_id, int, unsigned char const* section) override {
    switch (table_id) {
      case 0x00:
        return parse<sivane::Pat>(section);
      case 0x02:
        return parse<sivane::Pmt>(section);
      case 0x40:
        return parse<sivane::Nit>(section);
      case 0x42:
        return parse<sivane::Sdt>(section);
      default:
        return parse<sivane::Eit>(section);
    }
  }

 private:
  template <class Table>
  void parse(unsigned char const* section) {
    Table table;
    table.Parse(section);
    good += table.valid ? 1u : 0u;
  }
};

class CheckingHost final : public SiHost {
 protected:
  void on_psi_section(int, int, int, unsigned char const* section) override {
    std::size_t const size = 3u + (section[1] & 0xFu) * 256u + section[2];
    good += sivane::crc_register(section, size) == 0 ? 1u : 0u;
  }
};

void parse_tables(benchmark::State& state) {
  constexpr std::size_t stream_size = 500000;
  sivane::bench::Stream const stream = sivane::bench::tables_stream(stream_size);
  ParsingHost parsing;
  CheckingHost checking;
  std::size_t rounds = 0;
  sivane::bench::compare(
      state, stream.bytes.size(), "the time of reassembling and checking the CRC alone",
      [&] {
        parsing.push(stream.bytes);
        ++rounds;
      },
      [&] { checking.push(stream.bytes); });
  std::size_t const expected = rounds * stream.sections;
  if (parsing.good != expected || checking.good != expected) state.SkipWithError("sections were lost");
  state.counters["sections"] = static_cast<double>(stream.sections) / state.counters["time"];
}

}  // namespace

BENCHMARK(parse_tables)->Name("tables of a multiplex")->Apply(sivane::bench::timed_by_hand);
