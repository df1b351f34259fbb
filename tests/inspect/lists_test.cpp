// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What services, events and networks show.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "run_inspect.h"

namespace sivane::testing {

namespace {

namespace fs = std::filesystem;

Outcome list(std::string const& command, Bytes const& section) {
  return inspect(command + " --input sections @", hex_text(section) + "\n");
}

bool has(std::string const& text, std::string const& part) { return text.find(part) != std::string::npos; }

}  // namespace

TEST(InspectLists, ServicesWithAndWithoutADescriptor) {
  Bytes const sdt = make_section({.table_id = 0x42, .context_id = 7},
                                 hex("0001 FF  0002 FD 900D 48 07 01 02 5041 02 C265 53 02 0100  0001 FC 2000"
                                     "0003 FC 800C 48 0A 19 00 07 1B5B41 9B868A42"));
  Outcome const run = list("services", sdt);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "network                             stream  service  name  provider  "
            "type                        status       access\n"
            "1 (Astra Satellite Network 19,2°E)  7       1                        "
            "-                           not running  free\n"
            "1 (Astra Satellite Network 19,2°E)  7       2        é     PA        "
            "digital television service  running      scrambled (Canal Plus)\n"
            "1 (Astra Satellite Network 19,2°E)  7       3        [A B            "
            "0x19                        running      free\n");
  EXPECT_EQ(list("services", make_pat({})).out, "");
}

TEST(InspectLists, OfRepeatedSectionsTheLastThatAppliesCounts) {
  auto const sdt = [](int version, int current, char const* name) {
    return hex_text(make_section({.table_id = 0x46,
                                  .context_id = 7,
                                  .version_number = version,
                                  .current_next_indicator = current},
                                 hex("FEFE FF 0009 FC 8006 48 04 02 00 01") + hex(name))) +
           "\n";
  };
  Outcome const run = inspect("services --input sections @",
                              sdt(30, 1, "41") + sdt(31, 1, "42") + sdt(31, 1, "42") + sdt(0, 0, "43"));
  EXPECT_EQ(line_count(run.out), 2);
  EXPECT_TRUE(has(run.out, "7       9        B               digital radio sound service")) << run.out;
}

TEST(InspectLists, AFailedSectionIsReportedAndLeftOut) {
  Bytes const good = make_section({.table_id = 0x42}, hex("0001 FF 0005 FC 2000"));
  Bytes bad = make_section({.table_id = 0x42}, hex("0001 FF 0006 FC 2000"));
  bad.back() ^= 1;
  Outcome const run =
      inspect("services --input sections @", hex_text(bad) + "\nno section\n" + hex_text(good) + "\n");
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(has(run.err, "section 1 (Sdt): error") && has(run.err, "crc error")) << run.err;
  EXPECT_TRUE(has(run.err, "section 2 (-): error -1: not a whole section")) << run.err;
  EXPECT_EQ(line_count(run.err), 2);
  EXPECT_EQ(line_count(run.out), 2) << run.out;
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
            "start (UTC)          duration  service  event\n"
            "1993-10-13 07:00:00  01:30:00  5        Ł\n"
            "1993-10-13 12:45:00  01:30:00  5        中\n"
            "-                    01:30:00  5        B\n");
}

TEST(InspectLists, NetworksWithRegisteredNames) {
  Bytes const nit = make_section({.table_id = 0x40, .context_id = 0x3001},
                                 hex("F00C 40 04 10000241 09 04 0100 E010"
                                     "F039 0007 0001 F00D 5A 0B 0393 8700 3FFFFFFFFFFFFF"
                                     "0008 209E F00D 43 0B 01171425 0192 82 02750004"
                                     "0009 209E F00D 44 0B 03465000 FFF2 03 0069000F"));
  Outcome const run = list("networks", nit);
  EXPECT_EQ(run.out,
            "network 12289 (German Digital Terrestrial Television): A\n"
            "  stream 7 of network 1 (Astra Satellite Network 19,2°E): terrestrial 600 MHz, 7 MHz wide\n"
            "  stream 8 of network 8350: satellite 19.2 E, 11.71425 GHz linear - horizontal, "
            "27.5 Msymbol/s, FEC 5/6\n"
            "  stream 9 of network 8350: cable 346.5 MHz, 6.9 Msymbol/s, 64-QAM\n"
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
        "2021-10-05 03:58:00  01:02:00  501 華視CTS             華視午間新聞(普)\n");
  shows("networks", "terrestrial-tw.ts", "  stream 34 of network 8350: terrestrial 593 MHz, 6 MHz wide\n");
  shows("services", "satellite-it.ts", "272 (Mediaset)  6000    102      Radio Monte Carlo");
  shows("networks", "satellite-it.ts", "\nCA system 0x183e (Kudelski SA)\n");
  shows("events", "terrestrial-at.ts", "2024-07-27 07:05:00  00:25:12  14104    Zurück zur Natur\n");
}

}  // namespace sivane::testing
