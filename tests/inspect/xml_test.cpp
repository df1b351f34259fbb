// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>

#include <filesystem>

#include "run_inspect.h"

namespace sivane::testing {

namespace {

namespace fs = std::filesystem;

Outcome from_xml(std::string const& command, std::string const& document) {
  return inspect(command + " --input xml @", document);
}

std::string const head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<sections";

}  // namespace

TEST(InspectXml, SavesEverySectionUnderTheNameOfItsClass) {
  std::string const lines = hex_text(make_pat({{1, 0x100}}, {.context_id = 7})) + "\nzz\n00b000\nNit " +
                            hex_text(make_pat({})) + "\n" +
                            hex_text(make_section({.table_id = 0x3B}, {0xAB})) + "\n7f0000\n";
  Outcome const run = inspect("xml --input sections @", lines);
  EXPECT_EQ(run.out, head + R"(>
  <Pat table_id="0" syntax_indicator="1" section_length="13" context_id="7" version_number="0" section_number="0" last_section_number="0" current_next_indicator="1" crc32="905742710">
    <program_infos>
      <program_info sid="1" pmtpid="256" />
    </program_infos>
  </Pat>
  <error number="2" class="-" code="-1" what="not a whole section" />
  <error number="3" class="Pat" code="-1" what="crc error" />
  <error number="4" class="Nit" code="-1" what="invalid table id" />
  <DsmCC table_id="59" syntax_indicator="1" section_length="10" context_id="0" version_number="0" section_number="0" last_section_number="0" current_next_indicator="1" crc32="693699162" />
  <error number="6" class="-" code="-1" what="no class for table id" />
</sections>
)");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(line_count(run.err), 4);
  Outcome const again = from_xml("xml", run.out);
  EXPECT_EQ(again.status, 0);  // failures are not part of what a document holds
  EXPECT_EQ(line_count(again.out), line_count(run.out) - 4);
  EXPECT_EQ(inspect("xml --input sections @", "").out, head + " />\n");
}

TEST(InspectXml, LoadsWhatIsNamedAfterAClass) {
  std::string const tdt = R"(<Tdt table_id="112" section_length="5" UTC_time="1 3 2005 12 30 5"/>)";
  Outcome const run = from_xml("dump", "<sections><!-- c -->" + tdt + "<error/><Eitt/>" + tdt +
                                           R"(<Tdt table_id="112" section_length="5"/></sections>)");
  std::string const dump = " Tdt\ntable_id: 112\nsection_length: 5\nUTC_time: 1/3-2005 12:30:5\n";
  EXPECT_EQ(run.out, "== 1" + dump + "== 2 -\nerror -1 no class for element\n== 3" + dump +
                         "== 4 Tdt\nerror -1 failed\n");
  EXPECT_EQ(run.status, 1);
}

TEST(InspectXml, RefusesWhatIsNoDocumentOfSections) {
  for (char const* const document : {"", "<Pat/>", "<sections>", "<sections/><sections/>", "text",
                                     "<!DOCTYPE sections><sections/>", "<sections a='1' a='2'/>"}) {
    Outcome const run = from_xml("dump", document);
    EXPECT_EQ(run.status, 2) << document;
    EXPECT_EQ(line_count(run.err), 1) << document << run.err;
    EXPECT_EQ(run.out, "") << document;
  }
  EXPECT_EQ(from_xml("sections", "<sections/>").status, 2);
  EXPECT_EQ(from_xml("dump --handle 0:0", "<sections/>").status, 2);
}

TEST(InspectXml, DumpsOfRealStreamsSurviveTheirDocuments) {
  fs::path const folder = SIVANE_REAL_STREAMS;
  if (!fs::is_directory(folder)) GTEST_SKIP() << "no streams beside the repository";
  int streams = 0;
  for (auto const& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".ts") continue;
    ++streams;
    std::string const document = inspect("xml '" + entry.path().string() + "'").out;
    EXPECT_EQ(from_xml("dump", document).out, inspect("dump '" + entry.path().string() + "'").out);
    EXPECT_EQ(from_xml("xml", document).out, document);
  }
  EXPECT_GT(streams, 0);
}

}  // namespace sivane::testing
