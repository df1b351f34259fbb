// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The page of the command report, as far as it can be looked at without a browser.
#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include "multiplex.h"
#include "run_inspect.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

/// The data of the page.
std::string data_of(std::string const& page) {
  std::string const mark = "<script type=\"application/json\" id=\"data\">";
  std::size_t const begin = page.find(mark) + mark.size();
  return page.substr(begin, page.find("</script>", begin) - begin);
}

}  // namespace

TEST(Report, KeepsTheTextsOfABroadcastFromBeingMarkup) {
  Multiplex multiplex;
  multiplex.repeat("sdt", 0x11, 500, 9,
                   assemble("42 F( 0001 C1 00 00 0001 FF 0001 FD 8( 48[ 01 01 41 "
                            "[ 15 \"</script><!--<b>&'\" ] ] ) crc )"));
  Outcome const run = inspect("report --quiet @", multiplex.make(3000));
  EXPECT_EQ(run.status, 0) << run.err;
  std::string const data = data_of(run.out);
  EXPECT_EQ(data.find_first_of("<>&\xE2"), std::string::npos) << data;
  rapidjson::Document document;
  document.Parse(data.c_str());
  ASSERT_TRUE(document.IsObject()) << data;
  EXPECT_STREQ(document["services"][0]["name"].GetString(), "</script><!--<b>&'");
}

TEST(Report, TellsEachSectionOnceAndTheCourseOfRates) {
  Outcome const run = inspect("report --quiet @", Multiplex().make(30000));
  rapidjson::Document document;
  document.Parse(data_of(run.out).c_str());
  ASSERT_TRUE(document.IsObject());
  auto const& pat = document["sections"][0];
  EXPECT_STREQ(pat["class"].GetString(), "Pat");
  EXPECT_EQ(pat["count"].GetInt(), 300);
  EXPECT_EQ(pat["table"]["program_infos"][0]["pmtpid"].GetInt(), Multiplex::map_pid);
  auto const& ends = document["part_ends"];
  EXPECT_GT(ends.Size(), 100u);
  EXPECT_NEAR(ends[ends.Size() - 1].GetDouble(), 30, 0.1);
  for (auto const& pid : document["pids"].GetArray()) {
    int sum = 0;
    for (auto const& packets : pid["course"].GetArray()) sum += packets.GetInt();
    EXPECT_EQ(sum, pid["packets"].GetInt());
    EXPECT_EQ(pid["course"].Size(), ends.Size());
  }
}

}  // namespace sivane::testing
