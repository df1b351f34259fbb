// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The tables of a multiplex, from packets to objects with every descriptor decoded.
#include <sivane/sivane.h>
#include <sivane/tables/crc.h>

#include <cstdio>
#include <string>

#include "compare.h"
#include "packet_writer.h"
#include "section_text.h"

namespace {

using sivane::testing::Bytes;
using sivane::testing::PacketWriter;

constexpr int services = 12;
constexpr int transports = 20;
constexpr int schedules = 16;  // sections of events for each service
constexpr int events_in_schedule = 10;

enum Pid : int { pat_pid = 0x00, nit_pid = 0x10, sdt_pid = 0x11, eit_pid = 0x12, first_pmt_pid = 0x100 };

/// A 16-bit number as the notation of sections has it.
std::string word(int value) {
  char digits[5];
  std::snprintf(digits, sizeof digits, "%04X", static_cast<unsigned>(value) & 0xFFFF);
  return digits;
}

Bytes section(std::string const& start, int id, std::string const& body) {
  return sivane::testing::assemble(start + word(id) + " C1 00 00 " + body + " crc )");
}

template <class Make>
std::string repeat(int count, Make make) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += make(i);
  return text;
}

Bytes pmt(int program) {
  return section("02 B(", program,
                 "E200 F( 09[ 0500 E1F5 ] ) 1B E200 F( 52[ 01 ] ) 03 E201 F( 52[ 02 ] 0A[ \"eng\" 00 ] )"
                 "06 E202 F( 52[ 03 ] 56[ \"deu\" 09 00 \"deu\" 11 50 ] )"
                 "06 E203 F( 52[ 04 ] 59[ \"deu\" 10 0001 0001 \"eng\" 10 0002 0002 ] )"
                 "06 E204 F( 52[ 05 ] 6A[ 40 08 ] 0A[ \"eng\" 00 ] )");
}

Bytes nit() {
  auto const transport = [](int id) {
    return word(id) +
           "0001 F( 43[ 01175850 0192 C9 02750003 ] 41[ 0001 01 0002 01 0003 02 0004 19 ]"
           " 5F[ 00000028 ] 83[ 0001FC01 0002FC02 ] )";
  };
  return section("40 B(", 1, "F( 40[ \"Harbour network\" ] ) F(" + repeat(transports, transport) + ")");
}

Bytes sdt() {
  auto const service = [](int id) {
    return word(id) + "FF 8( 48[ 01 [ \"Harbour Media\" ] [ \"Harbour One\" ] ] 53[ 0500 0600 ] )";
  };
  return section("42 B(", 1, "0001 FF" + repeat(services, service));
}

std::string event(int id) {
  return word(id) +
         "EEB9181200 013000 8( 4D[ \"eng\" [ \"The lighthouse keeper\" ]"
         " [ \"A documentary in three parts about the coast\" ] ]"
         " 4E[ 00 \"eng\" [] [ \"Sixty years of storms, ships and letters home, told by those who"
         " kept the light burning, and by the gulls. With pictures from the archive.\" ] ]"
         " 50[ F1 03 01 \"eng\" ] 50[ F2 03 02 \"eng\" ] 54[ 2300 ] 55[ \"DEU\" 09 ] )";
}

Bytes eit(char const* table_id, int service, int events) {
  return section(table_id, service, std::string("0001 0001 00 4E") + repeat(events, event));
}

struct SiStream {
  Bytes bytes;
  std::size_t sections = 0;
};

SiStream si_stream() {
  PacketWriter writer;
  std::size_t count = 0;
  auto const add = [&](int pid, std::vector<Bytes> const& sections) {
    writer.dense_sections(pid, sections);
    count += sections.size();
  };
  std::vector<sivane::testing::Program> programs;
  std::vector<Bytes> events;
  for (int service = 1; service <= services; ++service) {
    programs.push_back({service, first_pmt_pid + service});
    add(first_pmt_pid + service, {pmt(service)});
    events.push_back(eit("4E B(", service, 1));
    events.push_back(eit("4E B(", service, 1));
    for (int i = 0; i < schedules; ++i) events.push_back(eit("50 B(", service, events_in_schedule));
  }
  add(pat_pid, {sivane::testing::make_pat(programs)});
  add(nit_pid, {nit()});
  add(sdt_pid, {sdt()});
  add(eit_pid, events);
  return {writer.stream(), count};
}

/// Registers every table of the stream and pushes it; what becomes of a section is the derived class's.
class SiHost : public sivane::DemuxPush {
 public:
  SiHost() {
    add_psi_handler(pat_pid, 0x00);
    add_psi_handler(nit_pid, 0x40);
    add_psi_handler(sdt_pid, 0x42);
    add_psi_handler(eit_pid, 0x4E);
    add_psi_handler(eit_pid, 0x50);
    for (int service = 1; service <= services; ++service) add_psi_handler(first_pmt_pid + service, 0x02);
  }
  void push(Bytes const& stream) { push_data(stream.data(), static_cast<int>(stream.size())); }

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
  SiStream const stream = si_stream();
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
