// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Writes the inputs that the fuzzers start from: make_corpus FOLDER fills a folder of FOLDER for each target.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>

#include "case_file.h"
#include "packet_writer.h"
#include "section_builder.h"
#include "section_text.h"

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
  int const pid_index = packet[2] == 0x10 ? 1 : 0;
  int const start = (packet[1] & 0x40) != 0 ? 4 : 0;
  int const adaptation = (packet[3] & 0x20) != 0 ? 8 : 0;
  std::size_t const count = end - header_size;
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
  Bytes section = sivane::testing::make_section({}, Bytes(4080, 0xFF));
  section[1] |= 0x0F;
  section[2] = 0xFF;
  sivane::testing::repair_crc(section);
  writer.section(0x0000, section);
  return writer;
}

void write_demux(fs::path const& folder) {
  Bytes const idle;
  Bytes const filters{0x03, 0x23, 0x0B};                           // adds filters of three sizes
  Bytes const removals{0x00, 0x02, 0x01, 0x00, 0x06, 0x01};        // removes, adds, resets and adds again
  Bytes const failures{0x00, 0x07, 0x00, 0x07, 0x07, 0x04, 0x05};  // throws, stops, dumps
  std::string const drivers[] = {"push", "istream", "polled"};
  Bytes const memory{0x00, 0x06 | 0x08, 0x26, 0x46, 0x66};  // registers with memory for 0 to 3 requests
  for (unsigned char driver = 0; driver < 6; ++driver) {    // the second three with every section
    std::string const name = drivers[driver % 3] + (driver < 3 ? "" : "-every");
    write(folder / (name + "-memory"), demux_input(driver, memory, broadcast()));
    write(folder / (name + "-broadcast"), demux_input(driver, idle, broadcast()));
    write(folder / (name + "-filters"), demux_input(driver, filters, broadcast()));
    write(folder / (name + "-removals"), demux_input(driver, removals, broadcast()));
    write(folder / (name + "-failures"), demux_input(driver, failures, broadcast()));
    write(folder / (name + "-long"), demux_input(driver, idle, long_section()));
  }
  write(folder / "push-packetwise", demux_input(0, filters, broadcast(), 0x10));
  write(folder / "push-odd", demux_input(0, idle, broadcast(), 0x30));
}

void write_packet_finder(fs::path const& folder) {
  for (unsigned char stride = 0; stride < 3; ++stride) {
    std::string const name = std::to_string(stride);
    // The step of the pieces; then 8 packets, and a damage in front of 8 more.
    unsigned char const first = static_cast<unsigned char>(stride | 0x2C);
    write(folder / ("plain-" + name), Bytes{first, 0xE3, 0xE3});
    write(folder / ("junk-" + name), Bytes{first, 0xF8, 0xE3, 0x40, 0xE3});
    write(folder / ("lost-" + name), Bytes{first, 0xE3, 0x09, 0xE3});
    write(folder / ("wrong-sync-" + name), Bytes{first, 0xE3, 0x0A, 0xE3, 0x0A, 0x03, 0x0A, 0xE3});
    write(folder / ("short-" + name), Bytes{first, 0x23});
    write(folder / ("sync-alone-" + name), Bytes{first, 0xE7, 0x09, 0xE7});
  }
}

void write_sections(fs::path const& folder) {
  constexpr unsigned char as_it_is = 0, fitted = 3;
  for (int const programs : {0, 1, 5, 253, 1000}) {
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

/// One descriptor of each tag that the case files have, as hexadecimal digits.
std::string one_of_each(std::initializer_list<char const*> names) {
  std::map<int, std::string> by_tag;
  for (char const* const name : names) {
    auto const cases = sivane::testing::read_steps(std::string("descriptors/cases/") + name + ".txt");
    for (auto const& one : cases) by_tag.emplace(sivane::testing::assemble(one.argument)[0], one.argument);
  }
  std::string all;
  for (auto const& [tag, bytes] : by_tag) all += bytes + ' ';
  return all;
}

constexpr char const* table_classes[] = {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) #Class,
#include <sivane/tables/table_rows.inc>
};

/// A section of each table class, as it is and made longer than any, with what the case files of descriptors
/// have.
void write_rich_sections(fs::path const& folder) {
  std::string const all =
      one_of_each({"mpeg_systems", "network", "service", "event", "stream", "cell", "general"});
  std::string const ait = one_of_each({"ait"});
  std::string const start = "B( 1234 C1 00 00 ";
  std::string const streams = "F( 09[ 0500 E1F5 ] 15[] ) F( 0001 0002 F(" + all + ") 0003 0004 F() ) crc )";
  std::map<std::string, std::string> const sections = {
      {"Pat", "00" + start + "0000 E010 0001 E100 crc )"},
      {"Cat", "01" + start + "09[ 0500 E1F5 41 ] 09[ 0600 E001 ] crc )"},
      {"Pmt", "02" + start + "E1FF F( 09[ 0500 E1F5 ] ) 1B E100 F(" + all + ") 06 E101 F() crc )"},
      {"Nit", "40" + start + streams},
      {"Bat", "4A" + start + streams},
      {"Sdt", "42" + start + "0001 FF 0001 FD 8(" + all + ") 0002 FE 1() crc )"},
      {"Eit", "4E" + start + "0001 0002 00 4E 0001 C079124500 014530 8(" + all +
                  ") 0002 C079124500 014530 1() crc )"},
      {"Tdt", "70 7( C079124500 )"},
      {"Tot", "73 7( C079124500 F( 58[ \"GBR\" 02 0100 C079124500 0000 ] 15[ AA ] ) 00000000 )"},
      {"Rst", "71 7( 0001 0002 0003 0004 05 0006 0007 0008 0009 02 )"},
      {"DsmCC", "3B" + start + "010203040506 crc )"},
      {"Ait", "74" + start + "F( 01[ \"eng\" [ \"a\" ] ] ) F( 00000015 0001 01 F(" + ait +
                  ") 00000015 0002 02 F() ) crc )"},
  };
  constexpr unsigned int fitted = 3;
  unsigned int row = 0;
  for (char const* const name : table_classes) {
    auto const choice = static_cast<unsigned char>(row << 2 | fitted);
    auto const stretched = static_cast<unsigned char>((row + std::size(table_classes)) << 2 | fitted);
    ++row;
    Bytes const section = sivane::testing::assemble(sections.at(name));
    write(folder / ("rich-" + std::string(name)), Bytes{choice} + section);
    write(folder / ("long-" + std::string(name)), Bytes{stretched} + section);
  }
}

/// A descriptor of every tag with a class, and of some without, `length` bytes each, behind the choice of the
/// set.
Bytes all_tags(unsigned char set, int last_tag, int length, int first_byte, int step) {
  Bytes loop{set};
  for (int tag = 0; tag <= last_tag; ++tag) {
    Bytes body;
    for (int i = 0; i < length; ++i) body.push_back(static_cast<unsigned char>(first_byte + i * step));
    loop = std::move(loop) + sivane::testing::make_descriptor(tag, body);
  }
  return loop;
}

/// Content descriptors with all the genres that there can be, most of them without a text.
Bytes all_genres(unsigned char set) {
  Bytes loop{set};
  for (int first = 0; first < 256; first += 64) {
    Bytes body;
    for (int genre = first; genre < first + 64; ++genre) {
      body.push_back(static_cast<unsigned char>(genre));
      body.push_back(0x00);
    }
    loop = std::move(loop) + sivane::testing::make_descriptor(0x54, body);
  }
  return loop;
}

void write_descriptors(fs::path const& folder) {
  constexpr unsigned char dvb = 0, ait = 1;
  for (int const length : {0, 1, 3, 5, 9, 26}) {
    std::string const name = "all-tags-" + std::to_string(length);
    write(folder / (name + "-zeros"), all_tags(dvb, 0x80, length, 0x00, 0));
    write(folder / (name + "-counting"), all_tags(dvb, 0x80, length, 0x01, 1));
    write(folder / ("ait-tags-" + std::to_string(length)), all_tags(ait, 0x0E, length, 0x00, 1));
  }
  write(folder / "all-genres", all_genres(dvb));
  write(folder / "ait-all", Bytes{ait} + sivane::testing::assemble(one_of_each({"ait"})));
  for (char const* const name : {"mpeg", "dvb", "extension", "private"}) {
    Bytes loop{dvb};
    for (auto const& one :
         sivane::testing::read_steps(std::string("descriptors/extended/") + name + ".txt")) {
      loop = std::move(loop) + sivane::testing::assemble(one.argument);
    }
    write(folder / (std::string("extended-") + name), loop);
  }
}

/// Calls of every kind: `DomScript` says what they are.
void write_dom(fs::path const& folder) {
  Bytes const nested{0x20, 0x06, 0x00, 0x00, 0x00, 0x01, 0x00, 0x02, 0x07, 0x01};
  Bytes const attributes{0xF0, 0x02, 0x00, 0x02, 0x41, 0x90, 0x00, 0x02, 0x00, 0x04, 0x00,
                         0x03, 0x01, 0x00, 0x02, 0x01, 0x1F, 0x03, 0x00, 0x00, 0x03};
  Bytes const views{0x80, 0x06, 0x00, 0x0E, 0x01, 0x04, 0x00, 0x01, 0x05, 0x00, 0x01, 0x01, 0x02, 0x01};
  Bytes const deep{0x40, 0xFE, 0x00, 0xEE, 0x01};
  Bytes const too_deep{0x40, 0xFE, 0x00, 0xFE, 0x01, 0x00, 0x00, 0x01, 0x02, 0x03};
  write(folder / "nested", nested);
  write(folder / "attributes", attributes);
  write(folder / "views", views);
  write(folder / "deep", deep);
  write(folder / "too-deep", too_deep);
}

/// A descriptor that ends with the bytes, each time a longer one, for some of the classes.
void write_records(fs::path const& folder) {
  constexpr unsigned char event = 8;
  std::string const leaves_its_event = "0001 C079124500 014530 8003 8002AA";
  write(folder / "descriptor-leaves-its-event", Bytes{event} + sivane::testing::hex(leaves_its_event));
  Bytes body;
  for (int choice = 0; choice < 120; choice += 12) {
    body.push_back(static_cast<unsigned char>(choice & 0x07));
    Bytes const bytes = Bytes{static_cast<unsigned char>(choice)} +
                        sivane::testing::make_descriptor(0x40 + choice / 12, body);
    write(folder / ("counting-" + std::to_string(choice)), bytes);
  }
}

/// A field of each table and control, behind the choice of the host's tables.
void write_texts(fs::path const& folder) {
  constexpr std::size_t blocks_with_a_table = 3;
  auto const blocks = sivane::testing::read_blocks("charset/cases/texts.txt");
  for (std::size_t i = 0; i < blocks_with_a_table; ++i) {
    for (auto const& [text, number] : blocks.at(i).lines) {
      Bytes const field = sivane::testing::hex(text.substr(0, text.find(" | ")));
      write(folder / std::to_string(number), Bytes{static_cast<unsigned char>(number)} + field);
    }
  }
}

/// Sections that a catalogue takes, each behind its PID and length, under three limits of memory.
void write_catalogue(fs::path const& folder) {
  std::string const texts[] = {
      "00 B( 0002 C1 00 00 0000 E010 0007 E030 crc )",
      "01 B( FFFF C1 00 00 09[ 0500 E1F5 ] crc )",
      "02 B( 0007 C1 00 00 E100 F( 09[ 0500 E1F5 ] ) 1B E101 F() 06 E102 F( 52[ 31 ] 6A[ 00 ] ) crc )",
      "40 F( 0003 C1 00 00 F( 40[ \"N\" ] ) F( 0002 0001 F( 5F[ 00000028 ] 83[ 0007 FC09 ] "
      "43[ 01172750 0192 A1 02750003 ] 7F[ 04 01 0002 ] ) ) crc )",
      "4A F( 0003 C1 00 00 F( 47[ \"B\" ] ) F( 0002 0001 F( 09[ 0100 E000 ] ) ) crc )",
      "42 F( 0002 C1 00 00 0001 FF 0007 FD 9( 48[ 01 [\"P\"] [\"N\"] ] 53[ 0500 ] ) crc )",
      "4E F( 0007 C1 00 01 0002 0001 01 4E 0001 E8A8 180000 010000 8( 4D[ \"eng\" [\"a\"] [] ] ) crc )",
      "50 F( 0007 C1 00 08 0002 0001 00 50 0001 E8A8 180000 010000 0( 4E[ 00 \"eng\" [] [\"b\"] ] ) crc )",
      "50 F( 0007 C3 08 08 0002 0001 08 50 0002 E8A8 190000 010000 0( 54[ 14 2A ] 55[ \"DEU\" 09 ] ) crc )",
      "70 7( E8A8 200000 )",
      "71 7( 0002 0001 0007 0001 01 )"};
  for (int const memory : {0x10, 0x40, 0xFF}) {
    Bytes input = {static_cast<unsigned char>(memory)};
    for (std::string const& text : texts) {
      Bytes const section = sivane::testing::assemble(text);
      input = input + Bytes{1, static_cast<unsigned char>(section.size())} + section;
    }
    write(folder / ("tables-" + std::to_string(memory)), input);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  fs::path const corpora = argv[1];
  write_demux(corpora / "demux");
  write_packet_finder(corpora / "packet_finder");
  write_sections(corpora / "sections");
  write_rich_sections(corpora / "sections");
  write_descriptors(corpora / "descriptors");
  write_dom(corpora / "dom");
  write_records(corpora / "records");
  write_texts(corpora / "texts");
  write_catalogue(corpora / "catalogue");
  return 0;
}
