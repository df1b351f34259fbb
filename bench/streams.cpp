// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "streams.h"

#include <cstdint>
#include <cstdio>
#include <string>

#include "packet_writer.h"
#include "section_text.h"

namespace sivane::bench {

using testing::Bytes;
using testing::PacketWriter;

namespace {

constexpr int versions = 32;
constexpr int transports = 20;
constexpr int schedule_sections = 16;  // of each service
constexpr int events_in_schedule = 3;

/// A number of `width` hexadecimal digits, as the notation of sections has it.
std::string digits(int value, int width) {
  char text[9];
  std::snprintf(text, sizeof text, "%0*X", width, static_cast<unsigned>(value));
  return text;
}

std::string word(int value) { return digits(value & 0xFFFF, 4); }

template <class Make>
std::string repeat(int count, Make make) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += make(i);
  return text;
}

/// The tables of one round.
class Round {
 public:
  explicit Round(int version) : version_(version), state_(static_cast<std::uint32_t>(version)) {}

  struct OnPid {
    int pid;
    std::vector<Bytes> sections;
  };

  std::vector<OnPid> tables() {
    std::vector<testing::Program> programs;
    std::vector<OnPid> made;
    OnPid events{eit_pid, {}};
    for (int service = 1; service <= services; ++service) {
      int const pid = first_pmt_pid + service - 1;
      programs.push_back({service, pid});
      made.push_back({pid, {pmt(service)}});
      for (int i = 0; i < 2; ++i) events.sections.push_back(eit("4E", service, i, 1, 1));
      for (int i = 0; i < schedule_sections; ++i) {
        events.sections.push_back(eit("50", service, i, schedule_sections - 1, events_in_schedule));
      }
    }
    made.push_back({pat_pid, {testing::make_pat(programs, {.context_id = 1, .version_number = version_})}});
    made.push_back({nit_pid, {nit()}});
    made.push_back({sdt_pid, {sdt()}});
    made.push_back(std::move(events));
    return made;
  }

 private:
  int random(int below) {
    state_ = state_ * 1664525 + 1013904223;
    return static_cast<int>((state_ >> 8) % static_cast<std::uint32_t>(below));
  }

  /// A quoted text of `least` to `most` words.
  std::string text(int least, int most) {
    static constexpr char const* words[] = {
        "the",   "keeper", "of",      "a",    "lighthouse", "and",    "his",  "cat",
        "watch", "ships",  "pass",    "by",   "in",         "winter", "fog",  "letters",
        "home",  "from",   "harbour", "with", "storms",     "gulls",  "seen", "tonight"};
    std::string made = words[random(std::size(words))];
    for (int i = least + random(most - least + 1); i > 1; --i) {
      made += ' ';
      made += words[random(std::size(words))];
    }
    return '"' + made + '"';
  }

  Bytes section(std::string const& table_id, int id, int number, int last, std::string const& body) const {
    return testing::assemble(table_id + "B(" + word(id) + digits(0xC1 | version_ << 1, 2) +
                             digits(number, 2) + digits(last, 2) + body + "crc )");
  }

  Bytes pmt(int program) {
    return section("02", program, 0, 0,
                   "E200 F( 09[ 0500 E1F5 ] 0E[ C0" + word(random(0x8000)) +
                       "] ) 1B E200 F( 52[ 01 ] ) 03 E201 F( 52[ 02 ] 0A[ \"eng\" 00 ] )"
                       "06 E202 F( 52[ 03 ] 56[ \"deu\" 09 00 \"deu\" 11 50 ] )"
                       "06 E203 F( 52[ 04 ] 59[ \"deu\" 10 0001 0001 \"eng\" 10 0002 0002 ] )"
                       "03 E204 F( 52[ 05 ] 0A[ \"deu\" 00 \"eng\" 03 ] )");
  }

  Bytes nit() {
    auto const transport = [this](int id) {
      return word(id) + "0001 F( 43[ 0117" + digits(1000 + random(9000), 4) + "0192 C9 0275000" +
             digits(random(6), 1) + "] 41[ 0001 01 0002 01 0003 02 0004 19 ] 4A[ 0001 0001" +
             word(random(0x1000)) + "02 ] )";
    };
    return section("40", 1, 0, 0, "F( 40[" + text(1, 3) + "] ) F(" + repeat(transports, transport) + ")");
  }

  Bytes sdt() {
    auto const service = [this](int id) {
      return word(id) + "FF 8( 48[ 01 [" + text(1, 3) + "] [" + text(1, 3) +
             "] ] 49[ 80 \"deu\" \"fra\" ] 53[ 0500" + word(random(0x1000)) + "] )";
    };
    return section("42", 1, 0, 0, "0001 FF" + repeat(services, service));
  }

  std::string event(int id) {
    return word(id) + "EEB9181200 013000 8( 4D[ \"eng\" [" + text(2, 5) + "] [" + text(8, 20) + "] ]" +
           "4E[ 00 \"eng\" [] [" + text(20, 30) + "] ] 50[ F1 03 01 \"eng\" ] 50[ F2 03 02 \"eng\" ]" +
           "54[ " + word(random(0x1000)) + "] 55[ \"DEU\" 09 ] )";
  }

  Bytes eit(char const* table_id, int service, int number, int last, int events) {
    return section(table_id, service, number, last,
                   "0001 0001" + digits(last, 2) + table_id + repeat(events, [this, number](int i) {
                     return event(number * events_in_schedule + i);
                   }));
  }

  int version_;
  std::uint32_t state_;
};

/// The sections written.
std::size_t write(PacketWriter& writer, std::vector<Round::OnPid> const& tables) {
  std::size_t sections = 0;
  for (Round::OnPid const& table : tables) {
    writer.dense_sections(table.pid, table.sections);
    sections += table.sections.size();
  }
  return sections;
}

/// A place in three of 100 packets is `wanted`'s; the others are stuffing of no meaning.
Bytes among_others(Bytes const& wanted) {
  constexpr std::size_t packet_size = 188;
  constexpr std::size_t of_wanted = 3;
  constexpr std::size_t of_all = 100;
  std::size_t const count = wanted.size() / packet_size * of_all / of_wanted;
  Bytes other = testing::make_packet({.payload = Bytes(184, 0x5A)});
  Bytes stream;
  stream.reserve((count + of_all) * packet_size);
  auto next = wanted.begin();
  for (std::size_t i = 0; next != wanted.end(); ++i) {
    if (i * of_wanted % of_all < of_wanted) {
      stream.insert(stream.end(), next, next + packet_size);
      next += packet_size;
    } else {
      other[1] = 0x02;
      other[2] = static_cast<unsigned char>(i % 40);
      stream.insert(stream.end(), other.begin(), other.end());
    }
  }
  return stream;
}

}  // namespace

Stream tables_stream(std::size_t size, int times) {
  std::vector<std::vector<Round::OnPid>> rounds;
  for (int version = 0; version < versions; ++version) rounds.push_back(Round(version).tables());
  PacketWriter writer;
  std::size_t sections = 0;
  for (std::size_t round = 0; writer.stream().size() < size; ++round) {
    for (int i = 0; i < times; ++i) sections += write(writer, rounds[round % versions]);
  }
  return {writer.stream(), sections};
}

Stream multiplex_stream(std::size_t size, int times) {
  Stream const tables = tables_stream(size / 100 * 3, times);
  return {among_others(tables.bytes), tables.sections};
}

}  // namespace sivane::bench
