// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What two inputs do not have in common, in every kind of input.
#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "packet_writer.h"
#include "run_inspect.h"
#include "section_text.h"
#include "temporary_folder.h"

namespace sivane::testing {
namespace {

/// The sections of a small stream, in which a test replaces texts.
struct Stream {
  std::string sdt[2] = {"42 F( 0007 C1 00 01 0001 FF 0001 FC 8( 48[ 01 [ \"P\" ] [ \"One\" ] ] ) crc )",
                        "42 F( 0007 C1 01 01 0001 FF 0002 FC 8( 48[ 01 [ 05 \"P\" 8A EE ] [ \"Two\" ] ] 5F[ "
                        "00000028 ] ) crc )"};
  std::string eit =
      "4E F( 0001 C1 00 00 0007 0001 00 4E 0005 E000 120000 013000 8( 4D[ \"eng\" [ \"News\" ] [] ] )"
      " 0006 E000 133000 003000 8( 4D[ \"eng\" [ \"Film\" ] [] ] ) crc )";

  Bytes packets(int first = 0) const {
    PacketWriter writer;
    for (int round = 0; round < 3; ++round) {
      for (std::string const& section : sdt) writer.section(0x11, assemble(section));
      writer.section(0x12, assemble(eit));
    }
    Bytes const& all = writer.stream();
    return {all.begin() + first * 188, all.end()};
  }
};

Stream replaced(std::vector<std::pair<std::string, std::string>> const& changes) {
  Stream stream;
  for (std::string* const section : {&stream.sdt[0], &stream.sdt[1], &stream.eit}) {
    for (auto const& [text, by] : changes) {
      std::size_t const at = section->find(text);
      if (at != std::string::npos) section->replace(at, text.size(), by);
    }
  }
  return stream;
}

class InspectDiff : public ::testing::Test {
 protected:
  /// The file that packets become: themselves, or what a command makes of them.
  std::string file(char const* name, Bytes const& packets, std::string const& form) {
    std::string const text(packets.begin(), packets.end());
    std::ofstream(folder_.file(name), std::ios::binary)
        << (form == "ts" ? text : inspect(form + " @", packets).out);
    return folder_.file(name);
  }
  Outcome diff(Bytes const& a, Bytes const& b, std::string const& form_of_a = "ts",
               std::string const& form_of_b = "ts", std::string const& options = "") {
    return inspect("diff " + options + ' ' + file("a", a, form_of_a) + ' ' + file("b", b, form_of_b));
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(InspectDiff, TellsOneNameOneServiceAndOneEventInEveryKindOfInput) {
  Bytes const a = Stream().packets();
  Bytes const b = replaced({{"One", "Ond"}, {"0002 FC 8", "0002 FC 9"}, {"003000", "002000"}}).packets();
  for (auto const& [of_a, of_b] :
       std::vector<std::pair<char const*, char const*>>{{"ts", "ts"},
                                                        {"xml", "xml"},
                                                        {"json", "json"},
                                                        {"ts", "xml"},
                                                        {"xml", "ts"},
                                                        {"ts", "json"},
                                                        {"json --names", "json"}}) {
    Outcome const same = diff(a, a, of_a, of_b), run = diff(a, b, of_a, of_b);
    EXPECT_EQ(same.out + same.err, "") << of_a << of_b;
    EXPECT_EQ(same.status, 0);
    EXPECT_EQ(run.out,
              "Sdt 0x42, stream 7, network 1\n"
              "  changed service 1 \"One\" > service_descriptor > service_name: \"One\" | \"Ond\"\n"
              "  changed service 2 \"Two\" > free_CA_mode: 0 | 1\n"
              "Eit 0x4e, service 1, stream 7, network 1\n"
              "  changed event 6 \"Film\" > duration: \"PT0H30M0S\" | \"PT0H20M0S\"\n")
        << of_a << of_b << run.err;
    EXPECT_EQ(run.status, 1);
  }
}

TEST_F(InspectDiff, FindsWhatCameAndWentByItsKey) {
  Bytes const b = replaced({{"0005 E000 120000 013000 8( 4D[ \"eng\" [ \"News\" ] [] ] )", ""},
                            {"5F[ 00000028 ]", "52[ 01 ] 5F[ 00000029 ]"},
                            {"C1 00 01", "C3 00 01"},
                            {"C1 01 01", "C3 01 01"}})
                      .packets();
  Outcome const run = diff(Stream().packets(), b, "ts", "ts", "--json");
  std::string const change = "{\"change\":\"",
                    sdt = "\",\"table\":\"Sdt 0x42, stream 7, network 1\",\"path\":[\"";
  std::string const service = "service 2 \\\"Two\\\"\",\"";
  for (std::string const& part :
       {"{\"differences\":[" + change + "changed" + sdt + "version_number\"],\"a\":0,\"b\":1}," + change +
            "changed" + sdt + service +
            "private_data_specifier_descriptor\",\"private_data_specifier\"],\"a\":40,\"b\":41}," + change +
            "added" + sdt + service + "stream_identifier_descriptor component 1\"],\"b\":{",
        change + "removed\",\"table\":\"Eit 0x4e, service 1, stream 7, network 1\",\"path\":[\"event 5 "
                 "\\\"News\\\"\"],\"a\":{",
        std::string("\"partly_compared\":[]}\n")}) {
    EXPECT_NE(run.out.find(part), std::string::npos) << part << '\n' << run.out;
  }
}

TEST_F(InspectDiff, ACutElsewhereIsNoDifference) {
  Stream const stream;
  for (int const first : {1, 2, 3, 5}) {
    Outcome const run = diff(stream.packets(), stream.packets(first));
    EXPECT_EQ(run.out + run.err, "") << first;
  }
  // What is not whole is compared as far as it is there.
  for (auto const& [name, found] : {std::pair("Two", ""),
                                    {"Zwo",
                                     "Sdt 0x42, stream 7, network 1\n"
                                     "  changed service 2 \"Two\" > service_descriptor > "
                                     "service_name: \"Two\" | \"Zwo\"\n"}}) {
    Outcome const run = diff(stream.packets(), replaced({{"Two", name}}).packets(7));
    EXPECT_EQ(run.out, found);
    EXPECT_EQ(run.err, "1 table not whole in both and compared in part\n");
  }
}

TEST_F(InspectDiff, RefusesWhatItCannotCompare) {
  Bytes const packets = Stream().packets();
  EXPECT_EQ(diff(packets, packets, "xml", "json").status, 2);
  EXPECT_EQ(inspect("diff - -").status, 2);
  EXPECT_EQ(inspect("diff nowhere " + file("a", packets, "ts")).status, 2);
  EXPECT_EQ(inspect("diff " + file("a", packets, "ts") + " nowhere").status, 2);
  std::string const deep = std::string(100000, '[') + std::string(100000, ']');
  for (std::string const& line : {R"({"class":"Pat","table":{"a":)" + deep + "}}",
                                  std::string(R"({"class":"Pat")"), std::string("{}")}) {
    Outcome const run = inspect("diff --input json @ @", line);
    EXPECT_TRUE(run.err.starts_with("section 1: not a line of JSON with a table\n")) << run.err;
    EXPECT_EQ(run.status, 1);
  }
}

}  // namespace
}  // namespace sivane::testing
