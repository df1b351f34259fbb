// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What services, events and networks show, and the texts that broadcasts are written in.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "../../examples/inspect/conversion.h"
#include "../../examples/inspect/dvb_text.h"
#include "../../examples/inspect/terminal.h"
#include "run_inspect.h"

namespace sivane::testing {

namespace {

namespace fs = std::filesystem;

/// A field in hexadecimal as UTF-8.
std::string shown(char const* field) {
  Bytes const bytes = hex(field);
  return ::inspect::from_unicode(
      ::inspect::dvb_text({reinterpret_cast<char const*>(bytes.data()), bytes.size()}), "UTF-8");
}

Outcome list(std::string const& command, Bytes const& section) {
  return inspect(command + " --input sections @", hex_text(section) + "\n");
}

bool has(std::string const& text, std::string const& part) { return text.find(part) != std::string::npos; }

}  // namespace

TEST(InspectText, ReadsEveryCharacterTable) {
  std::pair<char const*, char const*> const fields[] = {
      {"", ""},
      {"43 61 66 C2 65", "Café"},  // the diacritic stands in front of its letter
      {"A4 35 20 C8 75 A4", "€5 ü€"},
      {"01 B0 B1", "АБ"},
      {"02 C7", "ا"},
      {"03 C1", "Α"},
      {"04 E0", "א"},
      {"05 FD", "ı"},
      {"0B A4", "€"},
      {"10 00 02 A3", "Ł"},
      {"11 00 41 4E 2D D8 3D DE 00", "A中😀"},
      {"12 B0 A1", "가"},
      {"13 D6 D0", "中"},
      {"14 4E 2D 65 87", "中文"},
      {"15 E4 B8 AD", "中"},
      {"1F 02 41", "A"},
      {"00 41", "A"},
      {"0C 41", "A"}};
  for (auto const& [field, text] : fields) EXPECT_EQ(shown(field), text) << field;
}

TEST(InspectText, LetsNoControlCharacterThrough) {
  EXPECT_EQ(shown("41 86 42 87 8A 43 1B 5B 33 31 6D 07 80 9B 7F"), "AB C[31m");
  EXPECT_EQ(shown("11 E0 86 00 41 E0 87 E0 8A 00 42 00 1B 00 9B 20 2E"), "A B");
  EXPECT_EQ(shown("15 C2 86 41 C2 8A EE 82 8A 42 0A 43"), "A  B C");
}

TEST(InspectText, ReplacesWhatIsMalformedOrCutOff) {
  constexpr char const* unknown = "\xEF\xBF\xBD";
  for (char const* const field : {"11 4E", "11 D8 3D", "15 FF", "15 E4 B8", "12 B0", "C2", "10 00 0C 41"}) {
    EXPECT_TRUE(has(shown(field), unknown)) << field << shown(field);
  }
  for (char const* const selector : {"01", "10", "10 00", "11", "15", "1F"}) EXPECT_EQ(shown(selector), "");
}

TEST(InspectText, CountsTheCellsOfATerminal) {
  EXPECT_EQ(::inspect::width_of(U"A\u00e9"), 2);
  EXPECT_EQ(::inspect::width_of(U"e\u0301"), 1);
  EXPECT_EQ(::inspect::width_of(U"\u4e2d\u6587!"), 5);
}

TEST(InspectLists, ServicesWithAndWithoutADescriptor) {
  Bytes const sdt =
      make_section({.table_id = 0x42, .context_id = 7},
                   hex("0001 FF  0002 FD 900D 48 07 01 02 5041 02 C265 53 02 0100  0001 FC 2000"));
  Outcome const run = list("services", sdt);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "network                         stream  service  name  provider  type                        "
            "status       access\n"
            "Astra Satellite Network 19,2°E  7       1                        -                           "
            "not running  free\n"
            "Astra Satellite Network 19,2°E  7       2        é     PA        digital television service  "
            "running      scrambled (Canal Plus)\n");
  EXPECT_EQ(list("services", make_pat({})).out, "");
}

TEST(InspectLists, AFailedSectionIsReportedAndLeftOut) {
  Bytes sdt = make_section({.table_id = 0x42}, hex("0001 FF"));
  sdt.back() ^= 1;
  Outcome const run = list("services", sdt);
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(has(run.err, "crc error"));
}

TEST(InspectLists, EventsByServiceAndTimeAndTheLastOfEach) {
  auto const event = [](char const* id, char const* start, char const* name) {
    Bytes const field = hex(name);
    Bytes const body = hex("656E67") + Bytes{static_cast<unsigned char>(field.size())} + field + Bytes{0};
    Bytes const descriptor = make_descriptor(0x4D, body);
    return hex(id) + hex(start) + hex("013000 80") + Bytes{static_cast<unsigned char>(descriptor.size())} +
           descriptor;
  };
  auto const section = [](int table_id, Bytes const& events) {
    return hex_text(make_section({.table_id = table_id, .context_id = 5}, hex("0007 0001 00 4E") + events)) +
           "\n";
  };
  std::string const sections =
      section(0x50, event("0002", "C079 124500", "14 4E2D") + event("0001", "C079 060000", "41")) +
      section(0x4E, event("0001", "C079 070000", "10 0002 A3") + event("0003", "FFFF FFFFFF", "42"));
  Outcome const run = inspect("events --input sections @", sections);
  EXPECT_EQ(run.out,
            "start (UTC)       duration  service  event\n"
            "1993-10-13 07:00  01:30:00  5        Ł\n"
            "1993-10-13 12:45  01:30:00  5        中\n"
            "-                 01:30:00  5        B\n");
}

TEST(InspectLists, NetworksWithRegisteredNames) {
  Bytes const nit = make_section({.table_id = 0x40, .context_id = 0x3001},
                                 hex("F00C 40 04 10000241 09 04 0100 E010"
                                     "F013 0007 0001 F00D 5A 0B 0393 8700 1FFFFFFFFFFFFF"));
  Outcome const run = list("networks", nit);
  EXPECT_EQ(run.out,
            "network 12289 (German Digital Terrestrial Television): A\n"
            "  stream 7 of network 1 (Astra Satellite Network 19,2°E): terrestrial 600 MHz\n"
            "CA system 0x0100 (Canal Plus)\n");
}

TEST(InspectLists, ReadmeShowsWhatServicesPrints) {
  std::ifstream file(SIVANE_ROOT "/README.md");
  std::string const readme{std::istreambuf_iterator<char>(file), {}};
  Outcome const run = inspect("services '" SIVANE_ROOT "/examples/sample/sample.ts'");
  EXPECT_TRUE(has(readme, "services examples/sample/sample.ts\n" + run.out + "```\n")) << run.out;
}

TEST(InspectLists, RealStreamsAreReadable) {
  fs::path const folder = SIVANE_REAL_STREAMS;
  if (!fs::is_directory(folder)) GTEST_SKIP() << "no streams beside the repository";
  auto const shows = [&](char const* command, char const* stream, char const* part) {
    Outcome const run = inspect(std::string(command) + " '" + (folder / stream).string() + "'");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(has(run.out, part)) << command << ' ' << stream << ' ' << part;
  };
  shows("services", "terrestrial-tw.ts",
        "華視教育體育文化台  CTS       digital television service  running  free\n");
  shows("events", "terrestrial-tw.ts",
        "2021-10-05 03:58  01:02:00  501 華視CTS             華視午間新聞(普)\n");
  shows("networks", "terrestrial-tw.ts", "  stream 34 of network 8350: terrestrial 593 MHz\n");
  shows("services", "satellite-it.ts", "Mediaset  6000    102      Radio Monte Carlo");
  shows("networks", "satellite-it.ts", "\nCA system 0x183e (Kudelski SA)\n");
  shows("events", "terrestrial-at.ts", "2024-07-27 07:05  00:25:12  14104    Zurück zur Natur\n");
}

}  // namespace sivane::testing
