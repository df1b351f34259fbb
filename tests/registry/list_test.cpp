// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/registry/list.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "file_contents.h"
#include "registries.h"

namespace sivane::testing {
namespace {

registry::List read(std::string const& text) {
  std::istringstream in(text);
  return registry::read_list(in, "a.tsv");
}

TEST(RegistryList, ExpandsRunsById) {
  registry::List const list = read(
      "0x0009-0x000A\tHead\n"
      "\n"
      "0x0001-0x0003\tLong\xC2\xA0\n"
      "0x0002\tR\xC3\xB4le &nbsp;\n"
      "0x0003-0x0004\tLast");
  Rows rows;
  for (registry::Row const& row : list.rows) rows.emplace_back(row.id, row.name);
  EXPECT_EQ(rows, (Rows{{9, "Head"},
                        {10, "Head"},
                        {1, "Long\xA0"},
                        {2, "Long\xA0"},
                        {2, "R\xF4le &nbsp;"},
                        {3, "Long\xA0"},
                        {3, "Last"},
                        {4, "Last"}}));
  EXPECT_EQ(list.head, 2u);
  EXPECT_EQ(list.digits, 4u);
  EXPECT_EQ(read("0xFFFFFFFE-0xFFFFFFFF\tx\n").rows.size(), 2u);
}

TEST(RegistryList, RefusesAMalformedLine) {
  std::string const digits = " is not 0x and 4 hexadecimal digits";
  struct {
    std::string line, complaint;
  } const cases[] = {
      {"0x00G1\tname", "'0x00G1'" + digits},
      {"0001\tname", "'0001'" + digits},
      {"0x589\tname", "'0x589'" + digits},
      {"0x10000\tname", "'0x10000'" + digits},
      {" 0x0002\tname", "' 0x0002'" + digits},
      {"0x0002-\tname", "''" + digits},
      {"0x0002 name", "no tab between ids and name"},
      {"0x0002\t", "no name after the tab"},
      {"0x0003-0x0002\tname", "the run ends before it begins"},
      {"0x0000\tname", "begins at a lower id than the line above it"},
      {"0x0002\tname\r", "a tab or another control character in the name"},
      {"0x0002\tname\tmore", "a tab or another control character in the name"},
      {"0x0002\t1 \xE2\x80\x93 2", "a character that ISO 8859-1 has not got"},
      {"0x0002\t\xC4\x80", "a character that ISO 8859-1 has not got"},
      {"0x0002\t\xC2\x9F", "a character that ISO 8859-1 has not got"},
      {"0x0002\tname\xC3", "a character that ISO 8859-1 has not got"},
      {"0x0002\t156\xB0", "a character that ISO 8859-1 has not got"},
      {"", "the list ends without rows, or with none below the empty line"},
      {"\n", "an empty line that is not the one below the head"},
  };
  for (auto const& [line, complaint] : cases) {
    try {
      read("0x0001\tfirst\n" + line + "\n");
      ADD_FAILURE() << line;
    } catch (std::runtime_error const& failure) {
      EXPECT_EQ(failure.what(), "a.tsv:" + std::string(line == "\n" ? "3" : "2") + ": " + complaint);
    }
  }
  EXPECT_THROW(read(""), std::runtime_error);
  EXPECT_THROW(read("0x123456789\tname\n"), std::runtime_error);
  EXPECT_THROW(read("0x00000000-0xFFFFFFFF\tname\n"), std::runtime_error);
}

TEST(RegistryList, StopsTheBuildWhenItIsMalformed) {
  namespace fs = std::filesystem;
  fs::path const folder = SIVANE_MALFORMED_LIST;
  fs::remove_all(folder);
  fs::create_directory(folder);
  std::string const tables = (folder / "tables.cpp").string();
  std::string const errors = (folder / "errors").string();
  std::string const list = (folder / "bad.tsv").string();
  std::ofstream(list) << "0x0001\tfirst\n0x0002\n";
  std::string const command = "'" SIVANE_MAKE_TABLES "' '" + tables + "' '" + list + "' 2> '" + errors + "'";
  EXPECT_NE(std::system(command.c_str()), 0);
  EXPECT_FALSE(fs::exists(tables));
  EXPECT_EQ(contents(errors), list + ":2: no tab between ids and name\n");
}

}  // namespace
}  // namespace sivane::testing
