// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The tables of a multiplex, from packets to objects with every descriptor decoded.
#include <sivane/tables/crc.h>

#include "compare.h"
#include "tables_host.h"

namespace {

class ParsingHost final : public sivane::bench::TablesHost {
 public:
  std::size_t good = 0;

 protected:
  void on_psi_section(int, int table_id, int, unsigned char const* section) override {
    sivane::bench::with_table(table_id, section,
                              [this](auto const& table) { good += table.valid ? 1u : 0u; });
  }
};

class CheckingHost final : public sivane::bench::TablesHost {
 public:
  std::size_t good = 0;

 protected:
  void on_psi_section(int, int, int, unsigned char const* section) override {
    auto const size = static_cast<std::size_t>(sivane::section_size(section));
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
